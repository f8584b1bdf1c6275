#!/bin/sh
# Builds tarvola with its tests and runs them all.
set -eu
cd "$(dirname "$0")/.."
sh scripts/install-deps.sh test
jobs=$(nproc 2>/dev/null || echo 2)
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DTARVOLA_BUILD_TESTS=ON ${TARVOLA_CMAKE_ARGS:-}
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"
