#!/bin/sh
# Builds tarvola and its Basque data, then analyses a few Basque words and
# sentences with the bundled networks.
set -eu
cd "$(dirname "$0")/.."
sh scripts/install-deps.sh demo
jobs=$(nproc 2>/dev/null || echo 2)
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release
cmake --build build -j"$jobs"
if [ ! -f build/data/built/tarvola.conf ]; then
  cmake --build build --target tarvola_data
fi
table=build/data/built/eumorfoPG.txt
[ -f "$table" ] || table=data/demo/eumorfoPG.txt
echo "== readings of a few words ($table)"
./build/examples/tarvola_readings "$table" etxea Mendian gizonak "etab." ikusi dut
