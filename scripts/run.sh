#!/usr/bin/env bash
# Installs what is needed, builds, starts velmora-sandbox on http://localhost:4321 (unless one
# already listens there) and opens the client against it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
bash scripts/build.sh build

port=4321
if ! (exec 3<>/dev/tcp/127.0.0.1/$port) 2>/dev/null; then
  ./build/sandbox/velmora-sandbox --port $port &
  sandbox=$!
  trap 'kill $sandbox 2>/dev/null || true' EXIT
  for _ in $(seq 50); do
    (exec 3<>/dev/tcp/127.0.0.1/$port) 2>/dev/null && break
    sleep 0.1
  done
fi
export VELMORA_SITE=http://localhost:$port
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  ./build/app/velmora "$@"
else
  echo "No display: showing the headless client instead." >&2
  ./build/app/velmora-cli boot
fi
