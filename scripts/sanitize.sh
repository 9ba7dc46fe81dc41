#!/usr/bin/env bash
# The sanitizer run: every test built with AddressSanitizer and UndefinedBehaviorSanitizer (gcc),
# then each fuzz target (clang, libFuzzer) for FUZZ_SECONDS on its corpus. Any finding, failed test,
# crash, leak, hang (over 10 s on one input) or runaway memory fails the script.
#   FUZZ_SECONDS  seconds per fuzz target (default 60)
#   FUZZ_JOBS     fuzz targets run side by side (default 2)
# Inputs that broke a target are kept in build-fuzz/findings/<target>/; run the target on one to
# see it again: build-fuzz/fuzz/fuzz_<target> build-fuzz/findings/<target>/crash-...
set -euo pipefail
cd "$(dirname "$0")/.."
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$PWD}"
FUZZ_SECONDS="${FUZZ_SECONDS:-60}"
FUZZ_JOBS="${FUZZ_JOBS:-2}"
TARGETS=(money date val sql ini report)

echo "== the tests under AddressSanitizer and UBSan"
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=g++ \
  -DQUINTARA_SANITIZE=ON -DQUINTARA_BENCH=OFF
cmake --build build-asan
ctest --test-dir build-asan --output-on-failure -j2

echo "== the fuzz targets, ${FUZZ_SECONDS} s each"
cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DQUINTARA_FUZZ=ON -DQUINTARA_TESTS=OFF -DQUINTARA_BENCH=OFF
cmake --build build-fuzz --target fuzz_all

fuzz_one() {
  local t=$1
  # new inputs go to build-fuzz/corpus; the seeds of fuzz/corpus stay as written
  mkdir -p "build-fuzz/corpus/$t" "build-fuzz/findings/$t"
  if "build-fuzz/fuzz/fuzz_$t" -max_total_time="$FUZZ_SECONDS" -timeout=10 -rss_limit_mb=2048 \
      -max_len=4096 -print_final_stats=1 -artifact_prefix="build-fuzz/findings/$t/" \
      "build-fuzz/corpus/$t" "fuzz/corpus/$t" >"build-fuzz/fuzz_$t.log" 2>&1; then
    echo "fuzz_$t: $(grep -E '^stat::number_of_executed_units' "build-fuzz/fuzz_$t.log" | awk '{print $2}') runs, no finding"
  else
    echo "fuzz_$t: FINDING"
    tail -n 60 "build-fuzz/fuzz_$t.log"
    return 1
  fi
}
export -f fuzz_one
export FUZZ_SECONDS
# the layout, settings and report targets write files for each input: memory spares the disk
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
printf '%s\n' "${TARGETS[@]}" | xargs -P "$FUZZ_JOBS" -I{} bash -c 'fuzz_one {}'
echo "== no finding"
