#!/bin/sh
# Installs the Debian packages a build needs, when they are missing.
# usage: scripts/install-deps.sh demo|test|ci
#   demo: what the library, the tool and the data build need
#   test: demo + GoogleTest, the toolkits the end-to-end tests use, and the
#         Python package's build and test packages
#   ci:   test + sanitizer runtimes, MinGW-w64, Google Benchmark, clang
set -eu
kind=${1:-demo}
packages="cmake g++ make libcli11-dev nlohmann-json3-dev"
case "$kind" in
  demo) packages="$packages apertium-eu-es lttoolbox lttoolbox-dev hfst sfst" ;;
  test) packages="$packages libgtest-dev libgmock-dev apertium-eu-es lttoolbox lttoolbox-dev hfst sfst cg3
        python3-dev pybind11-dev python3-pytest python3-dask python3-distributed
        pkg-config libenchant-2-dev enchant-2 python3-enchant" ;;
  ci) packages="$packages libgtest-dev libgmock-dev apertium-eu-es lttoolbox lttoolbox-dev hfst sfst cg3 foma
        libbenchmark-dev g++-mingw-w64-x86-64 binutils-mingw-w64-x86-64 clang-14 libclang-rt-14-dev
        python3-dev pybind11-dev python3-pytest python3-dask python3-distributed python3-pip python3-setuptools
        pkg-config libenchant-2-dev enchant-2 python3-enchant" ;;
  *) echo "usage: $0 demo|test|ci" >&2; exit 2 ;;
esac

missing=""
for p in $packages; do
  dpkg -s "$p" >/dev/null 2>&1 || missing="$missing $p"
done
[ -z "$missing" ] && exit 0

if [ "$(id -u)" = 0 ]; then
  sudo=""
elif command -v sudo >/dev/null 2>&1; then
  sudo="sudo"
else
  echo "install-deps: missing packages:$missing (run as root to install them)" >&2
  exit 0
fi
echo "install-deps: installing$missing" >&2
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get install -y -qq $missing >/dev/null 2>&1 ||
  { $sudo apt-get update -qq >/dev/null 2>&1 && $sudo apt-get install -y -qq $missing >/dev/null; } ||
  echo "install-deps: could not install all of:$missing (the build goes on without them)" >&2
