#!/usr/bin/env bash
# Installs what is needed, builds the game and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --target quorbit2
exec ./build/bin/quorbit2 "$@"
