#!/usr/bin/env bash
# Builds and runs the benchmarks; figures go to stdout.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
bash scripts/build.sh build
./build/bench/velmora_decode_bench --benchmark_min_time=1
./build/bench/velmora_ledger_bench --benchmark_min_time=1
./build/bench/velmora_apply_body_bench --benchmark_min_time=1
./build/bench/velmora_start_bench
