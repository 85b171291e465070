#!/usr/bin/env bash
# Installs what is needed, builds from clean folders and runs the whole suite twice inside a
# private D-Bus session with an unlocked GNOME Keyring, so the real Secret Service is under test:
# first the Release build, then the same suite built under AddressSanitizer, UndefinedBehavior-
# Sanitizer and LeakSanitizer (build-asan, without the benchmarks). Either failing fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
rm -rf build-test build-asan
bash scripts/build.sh build-test

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD}
# -O1 with a little debug information: fast enough for CI, readable stacks.
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -g1 -DNDEBUG" -DVELMORA_SANITIZE=ON -DVELMORA_BENCH=OFF \
  "${launcher[@]}" >/dev/null
cmake --build build-asan -j"$(nproc)"

home=$(mktemp -d)
runtime=$(mktemp -d)
chmod 700 "$runtime"
trap 'rm -rf "$home" "$runtime"' EXIT
export HOME="$home" XDG_RUNTIME_DIR="$runtime" XDG_CONFIG_HOME="$home/.config" \
       XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache" QT_QPA_PLATFORM=offscreen

# Only third-party frames are suppressed; each entry says why.
supp=$PWD/tests/sanitizers
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:detect_stack_use_after_return=0:suppressions=$supp/asan.supp"
export LSAN_OPTIONS="suppressions=$supp/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1:suppressions=$supp/ubsan.supp"

dbus-run-session -- sh -c '
  echo -n pass | gnome-keyring-daemon --unlock --components=secrets >/dev/null 2>&1
  status=0
  (cd build-test && ASAN_OPTIONS= LSAN_OPTIONS= UBSAN_OPTIONS= \
     ctest --output-on-failure -j2 --timeout 300) || status=1
  (cd build-asan && ctest --output-on-failure -j2 --timeout 600) || status=1
  exit $status
'
