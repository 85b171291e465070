#!/usr/bin/env bash
# Builds every fuzz target with clang's libFuzzer, the code under test instrumented as well, and
# runs each for a while (default 60 s) on a copy of its corpus folder. A finding stops the script;
# the crashing input lands in build-fuzz/findings/<target>/. Usage: scripts/fuzz.sh [seconds]
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
seconds=${1:-60}
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD}
CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELMORA_FUZZ=ON \
  -DVELMORA_TESTS=ON -DVELMORA_BENCH=OFF "${launcher[@]}" >/dev/null
targets=$(cd tests/fuzz/corpus && ls)
cmake --build build-fuzz -j"$(nproc)" --target $(for t in $targets; do echo "velmora_${t}_fuzzer"; done)

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
for target in $targets; do
  work=build-fuzz/corpus/$target
  findings=build-fuzz/findings/$target
  mkdir -p "$work" "$findings"
  cp tests/fuzz/corpus/"$target"/* "$work"/
  echo "== $target: $seconds s"
  ./build-fuzz/tests/fuzz/velmora_"$target"_fuzzer -max_total_time="$seconds" -rss_limit_mb=1024 \
    -timeout=10 -artifact_prefix="$findings/" -print_final_stats=1 "$work" 2>&1 |
    grep -E '^(#[0-9]+ +DONE|stat::number_of_executed_units|stat::new_units_added|==[0-9]+==|SUMMARY|.*Test unit written)' || true
  if ls "$findings"/* >/dev/null 2>&1; then
    echo "finding in $target: $(ls "$findings")"
    exit 1
  fi
done
