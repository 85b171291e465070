#!/usr/bin/env bash
# Builds the record fuzzer with clang's libFuzzer and runs it for a while (default 60 s) on a
# copy of the regression corpus. Crashing inputs land in build-fuzz/ as crash-*.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
seconds=${1:-60}
CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELMORA_FUZZ=ON \
  -DVELMORA_TESTS=ON -DVELMORA_BENCH=OFF >/dev/null
cmake --build build-fuzz --target velmora_record_fuzzer
work=$(mktemp -d)
cp tests/fuzz/corpus/* "$work"/
cd build-fuzz && ./tests/fuzz/velmora_record_fuzzer -max_total_time="$seconds" "$work"
