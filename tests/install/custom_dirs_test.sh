#!/usr/bin/env bash
# Builds the game in a second build folder configured with its own program and data folders,
# then runs the install test on it. The second folder is kept, so later runs only rebuild what
# changed. Usage: custom_dirs_test.sh BUILD CUSTOM_BUILD BINDIR DATADIR
set -euo pipefail
build=$1 custom=$2
here=$(dirname "$0")
cached() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }
if [ ! -f "$custom/CMakeCache.txt" ]; then
  # The main build's compiler, generator, build type and compiler launcher (ccache, say).
  cmake -S "$(cached CMAKE_HOME_DIRECTORY)" -B "$custom" -G "$(cached CMAKE_GENERATOR)" \
    -DCMAKE_BUILD_TYPE="$(cached CMAKE_BUILD_TYPE)" -DCMAKE_CXX_COMPILER="$(cached CMAKE_CXX_COMPILER)" \
    -DCMAKE_CXX_COMPILER_LAUNCHER="$(cached CMAKE_CXX_COMPILER_LAUNCHER)" -DQUORBIT_BENCH=OFF \
    -DCMAKE_INSTALL_BINDIR="$3" -DCMAKE_INSTALL_DATADIR="$4" >/dev/null
fi
nice -n 10 cmake --build "$custom" \
  --target quorbit2 quorbit-sim quorbit-level quorbit-edit levels quorbit_music icons manuals >/dev/null
bash "$here/install_test.sh" "$custom"
