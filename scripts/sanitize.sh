#!/usr/bin/env bash
# Builds the rules, the command-line tools and every test with AddressSanitizer and
# UndefinedBehaviorSanitizer in build-asan, and runs the whole test suite there.
# Any sanitizer report fails the run. Usage: scripts/sanitize.sh
set -euo pipefail
cd "$(dirname "$0")/.."
build=${ASAN_BUILD_DIR:-build-asan}
start=$(date +%s)
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUORBIT_STRICT=ON \
  -DQUORBIT_SANITIZE=ON -DQUORBIT_GUI=OFF -DQUORBIT_BENCH=OFF >/dev/null
nice -n 10 cmake --build "$build"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
nice -n 10 ctest --test-dir "$build" --output-on-failure -j2
echo "sanitizer build and tests took $(($(date +%s) - start)) s"
