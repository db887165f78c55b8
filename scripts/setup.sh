#!/usr/bin/env bash
# Installs every package the game, its tools and its tests need (Debian 12).
set -euo pipefail
packages=(
  build-essential cmake ninja-build pkg-config clang-format
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libgl-dev
  libsdl2-dev libsdl2-mixer-dev libfluidsynth-dev fluid-soundfont-gm
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth x11-apps imagemagick sox librsvg2-bin dpkg-dev fakeroot
  clang libclang-rt-14-dev
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  SUDO=""
  [ "$(id -u)" -eq 0 ] || SUDO="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
