#!/usr/bin/env bash
# Builds the libFuzzer targets in build-fuzz and runs each for a while, two at a time, niced.
# Usage: scripts/fuzz.sh [seconds per target, default 60] [target ...]
# Targets: level_file level_text replay settings (all when none are named).
# New inputs go to build-fuzz/corpus/<target>; the seeds in fuzz/corpus/<target> are only read.
# A finding is saved as build-fuzz/artifacts/<target>/crash-* (or leak-, timeout-, oom-).
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(level_file level_text replay settings)
build=build-fuzz

CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DQUORBIT_FUZZ=ON -DQUORBIT_GUI=OFF \
  -DQUORBIT_BENCH=OFF -DQUORBIT_STRICT=ON >/dev/null
nice -n 10 cmake --build "$build" --target fuzz_all

run() {
  local t=$1
  mkdir -p "$build/corpus/$t" "$build/artifacts/$t"
  nice -n 10 "$build/bin/fuzz_$t" "$build/corpus/$t" "fuzz/corpus/$t" \
    -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=20000 \
    -artifact_prefix="$build/artifacts/$t/" -print_final_stats=1 >"$build/fuzz_$t.log" 2>&1
}

status=0
for ((i = 0; i < ${#targets[@]}; i += 2)); do
  pids=()
  for t in "${targets[@]:i:2}"; do
    run "$t" &
    pids+=($!)
  done
  for p in "${pids[@]}"; do wait "$p" || status=1; done
done

for t in "${targets[@]}"; do
  log="$build/fuzz_$t.log"
  runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || true)
  speed=$(grep -o 'stat::average_exec_per_sec: *[0-9]*' "$log" | grep -o '[0-9]*$' || true)
  cov=$(grep -o 'cov: [0-9]*' "$log" | tail -1 || true)
  if grep -q 'ERROR: \|fuzz finding\|==ERROR' "$log"; then
    echo "$t: FINDING, see $log and $build/artifacts/$t/"
    status=1
  else
    echo "$t: ${runs:-?} runs, ${speed:-?} exec/s, $cov, no finding"
  fi
done
exit $status
