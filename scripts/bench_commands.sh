#!/usr/bin/env bash
# Whole-process timings of the headless commands: median of several runs, in milliseconds.
set -euo pipefail
build=${1:-build}
netrix="$build/app/netrix"

# median_ms RUNS COMMAND... (bash's own clock, so that no helper process is timed with it)
median_ms() {
  local runs=$1 times=()
  shift
  for _ in $(seq "$runs"); do
    local start end
    start=${EPOCHREALTIME/./}
    "$@" >/dev/null
    end=${EPOCHREALTIME/./}
    times+=($((end - start)))
  done
  printf '%s\n' "${times[@]}" | sort -n | awk '{a[NR]=$1} END {printf "%.2f ms\n", a[int((NR+1)/2)]/1000}'
}

sweep=$(mktemp --suffix=.s2p)
series=$(mktemp -d)
batch=$(mktemp -d)
trap 'rm -f "$sweep"; rm -rf "$series" "$batch"' EXIT
{
  echo "Benchmark sweep, 253 points"
  for i in $(seq 0 253); do
    echo "$((100000000 + i * 50000000)) 0.8 -30 5 150 0.02 70 0.6 -20"
  done
} >"$sweep"

echo "netrix --figures, 253 points: $(median_ms 30 "$netrix" --figures "$sweep")"

# A batch of 1000 files of 253 points in one call.
for n in $(seq -w 1 1000); do cp "$sweep" "$batch/sweep_$n.s2p"; done
echo "netrix --figures, 1000 files of 253 points: $(median_ms 9 "$netrix" --figures "$batch")"

# A bias series of 40 files of 253 points, frequencies in MHz, evaluated with the ground inductance.
for n in $(seq 1 40); do
  {
    echo "! Benchmark series file $n"
    echo "! Ic=${n}m"
    echo "# MHz S MA R 50"
    awk -v n="$n" 'BEGIN { for (i = 0; i < 253; i++)
      printf "%d %.6f %.4f %.6f %.4f %.6f %.4f %.6f %.4f\n", 100 + i * 50, 0.8 - i * 1e-3, -30 - i * 0.7,
             5 + n * 0.1 - i * 0.01, 150 - i * 0.5, 0.02 + i * 1e-4, 70 - i * 0.2, 0.6 - i * 1e-3, -20 - i * 0.3 }'
  } >"$series/point_$n.s2p"
done
echo "netrix --series --with-lgnd, 40 files of 253 points:" \
  "$(median_ms 30 "$netrix" --series --with-lgnd "$series"/point_*.s2p)"
