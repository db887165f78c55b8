#!/usr/bin/env bash
# Builds the rules, the command-line tools, the game's data and every test of them with
# AddressSanitizer and UndefinedBehaviorSanitizer in build-asan, and runs those tests there.
# Any sanitizer report fails the run. The window's tests (tests/ui) need the Qt game, which this
# build leaves out, so they are neither built nor run. Usage: scripts/sanitize.sh
set -euo pipefail
cd "$(dirname "$0")/.."
build=${ASAN_BUILD_DIR:-build-asan}
start=$(date +%s)
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUORBIT_STRICT=ON \
  -DQUORBIT_SANITIZE=ON -DQUORBIT_GUI=OFF -DQUORBIT_BENCH=OFF >/dev/null

# Every target of the default build except those under tests/ui.
targets() {
  ninja -C "$build" -t query "$1" | awk '/^  input:/ {f = 1; next} /^  outputs:/ {f = 0} f {print $NF}' |
    while read -r t; do
      case $t in
        tests/ui/*) ;;
        */all) targets "$t" ;;
        *) echo "$t" ;;
      esac
    done
}
mapfile -t wanted < <(targets all)
nice -n 10 cmake --build "$build" --target "${wanted[@]}"

export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
nice -n 10 ctest --test-dir "$build" --output-on-failure -j2 --exclude-regex '^ui[._]'
echo "sanitizer build and tests took $(($(date +%s) - start)) s"
