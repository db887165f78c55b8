#!/usr/bin/env bash
# Installs what is needed, builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
build=${BUILD_DIR:-build}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUORBIT_STRICT=ON
cmake --build "$build"
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
export SDL_AUDIODRIVER=${SDL_AUDIODRIVER:-dummy}
ctest --test-dir "$build" --output-on-failure -j2
# The rules and every test again under AddressSanitizer and UndefinedBehaviorSanitizer.
bash scripts/sanitize.sh
