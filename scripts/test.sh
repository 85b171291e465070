#!/usr/bin/env bash
# Installs what is needed, builds from a clean folder and runs the whole suite inside a private
# D-Bus session with an unlocked GNOME Keyring, so the real Secret Service is under test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
rm -rf build-test
bash scripts/build.sh build-test

home=$(mktemp -d)
runtime=$(mktemp -d)
chmod 700 "$runtime"
trap 'rm -rf "$home" "$runtime"' EXIT
export HOME="$home" XDG_RUNTIME_DIR="$runtime" XDG_CONFIG_HOME="$home/.config" \
       XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache" QT_QPA_PLATFORM=offscreen
dbus-run-session -- sh -c '
  echo -n pass | gnome-keyring-daemon --unlock --components=secrets >/dev/null 2>&1
  cd build-test && ctest --output-on-failure -j2 --timeout 300
'
