#!/usr/bin/env bash
# Installs the Debian packages the project needs, when they are missing. Quick when all are there.
set -euo pipefail

packages=(
  build-essential cmake g++ pkg-config
  libgtest-dev libgmock-dev libbenchmark-dev
  qt6-base-dev libgl-dev libjpeg62-turbo-dev
  clang libfuzzer-14-dev libclang-rt-14-dev
  fonts-dejavu-core fonts-dejavu-extra xvfb xauth
)

missing=()
for p in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
  [ "$status" = "install ok installed" ] || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing packages: ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
unknown=0
for p in "${missing[@]}"; do
  apt-cache show "$p" >/dev/null 2>&1 || unknown=1
done
[ $unknown -eq 1 ] && "${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
