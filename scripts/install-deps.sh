#!/usr/bin/env bash
# Installs the Debian 12 packages the build, the tests and the benchmarks need.
# Safe to run again: apt-get skips what is already there.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config clang ccache
  qt6-base-dev qt6-base-dev-tools qt6-websockets-dev qt6-httpserver-dev
  libqt6sql6-sqlite libqt6svg6 qt6-qpa-plugins
  qcoro-qt6-dev qtkeychain-qt6-dev
  qt6-l10n-tools qt6-translations-l10n
  libqrencode-dev zbar-tools
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  dbus dbus-x11 gnome-keyring libsecret-tools
  openssl python3
  xvfb xauth x11-utils imagemagick
  poppler-utils unzip
  fonts-noto-core fonts-dejavu-core
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $sudo_cmd apt-get update -qq
  $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
