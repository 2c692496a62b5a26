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
trap 'rm -f "$sweep"' EXIT
{
  echo "Benchmark sweep, 253 points"
  for i in $(seq 0 253); do
    echo "$((100000000 + i * 50000000)) 0.8 -30 5 150 0.02 70 0.6 -20"
  done
} >"$sweep"

echo "netrix --figures, 253 points: $(median_ms "$netrix" --figures "$sweep")"
