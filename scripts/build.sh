#!/usr/bin/env bash
# Configures and builds into the folder given (default: build).
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build}
cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$dir" -j"$(nproc)"
