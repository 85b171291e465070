#!/usr/bin/env bash
# Installs what is needed, builds, starts velmora-sandbox on http://localhost:4321 (unless one
# already listens there) and opens the client against it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
# Only the three programs, in a folder of their own: the tests and benchmarks are for
# scripts/test.sh and scripts/bench.sh, and building them would only delay the window.
dir=build-run
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD}
cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELMORA_TESTS=OFF -DVELMORA_BENCH=OFF \
  "${launcher[@]}" >/dev/null
cmake --build "$dir" -j"$(nproc)" --target velmora velmora-cli velmora-sandbox

port=4321
if ! (exec 3<>/dev/tcp/127.0.0.1/$port) 2>/dev/null; then
  ./$dir/sandbox/velmora-sandbox --port $port &
  sandbox=$!
  trap 'kill $sandbox 2>/dev/null || true' EXIT
  for _ in $(seq 50); do
    (exec 3<>/dev/tcp/127.0.0.1/$port) 2>/dev/null && break
    sleep 0.1
  done
fi
export VELMORA_SITE=http://localhost:$port
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  ./$dir/app/velmora "$@"
else
  echo "No display: showing the headless client instead." >&2
  ./$dir/app/velmora-cli boot
fi
