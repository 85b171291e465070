#!/usr/bin/env bash
# Builds and runs the benchmarks; figures go to stdout. The start and scroll figures come from
# the real path: a display (Xvfb) and the Secret Service (GNOME Keyring in a private D-Bus
# session), each with a private home.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
bash scripts/build.sh build
./build/bench/velmora_decode_bench --benchmark_min_time=1
./build/bench/velmora_ledger_bench --benchmark_min_time=1
./build/bench/velmora_apply_body_bench --benchmark_min_time=1

home=$(mktemp -d)
runtime=$(mktemp -d)
chmod 700 "$runtime"
trap 'rm -rf "$home" "$runtime"' EXIT
export HOME="$home" XDG_RUNTIME_DIR="$runtime" XDG_CONFIG_HOME="$home/.config" \
       XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache"
unset QT_QPA_PLATFORM
xvfb-run -a -s "-screen 0 1920x1080x24" dbus-run-session -- sh -c '
  echo -n pass | gnome-keyring-daemon --unlock --components=secrets >/dev/null 2>&1
  ./build/bench/velmora_start_bench
  echo "-- scrolling 10,000 listings"
  ./build/bench/velmora_scroll_bench 10000
  echo "-- memory with 1,000 listings scrolled"
  ./build/bench/velmora_scroll_bench 1000
'
