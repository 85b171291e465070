#!/usr/bin/env bash
# Configures and builds into the folder given (default: build).
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build}
# ccache keeps rebuilds of other folders and worktrees of this tree short.
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD}
cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Release "${launcher[@]}" >/dev/null
cmake --build "$dir" -j"$(nproc)"
