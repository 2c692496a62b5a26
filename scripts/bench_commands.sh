#!/usr/bin/env bash
# Whole-process timings of the headless commands: median of 30 runs, in milliseconds.
set -euo pipefail
build=${1:-build}
netrix="$build/app/netrix"

median_ms() {
  local times=()
  for _ in $(seq 30); do
    local start end
    start=$(date +%s%N)
    "$@" >/dev/null
    end=$(date +%s%N)
    times+=($(( (end - start) / 1000 )))
  done
  printf '%s\n' "${times[@]}" | sort -n | awk '{a[NR]=$1} END {printf "%.2f ms\n", a[int((NR+1)/2)]/1000}'
}

sweep=$(mktemp --suffix=.s2p)
series=$(mktemp -d)
trap 'rm -f "$sweep"; rm -rf "$series"' EXIT
{
  echo "Benchmark sweep, 253 points"
  for i in $(seq 0 253); do
    echo "$((100000000 + i * 50000000)) 0.8 -30 5 150 0.02 70 0.6 -20"
  done
} >"$sweep"

echo "netrix --figures, 253 points: $(median_ms "$netrix" --figures "$sweep")"

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
echo "netrix --series --with-lgnd, 40 files of 253 points: $(median_ms "$netrix" --series --with-lgnd "$series"/point_*.s2p)"
