#!/bin/sh
# Builds tarvola and its Basque data set, then runs the command-line tool on
# a few Basque words and sentences: readings, the correction document and
# Constraint Grammar cohorts.
set -eu
cd "$(dirname "$0")/.."
sh scripts/install-deps.sh demo
jobs=$(nproc 2>/dev/null || echo 2)
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release
cmake --build build -j"$jobs"
cmake --build build --target tarvola_data
tarvola=./build/cli/tarvola
echo
echo "== tarvola analyze etxean Mendian gizonak etab."
$tarvola analyze etxean Mendian gizonak etab.
echo "== tarvola check  (the correction document)"
echo "Gaur goizean Bilbon egon naiz. Nere lagunak etxera etorri dira." | $tarvola check
echo "== tarvola cg3"
echo "Mendiko etxe zaharrak ederrak dira." | $tarvola cg3
echo "== tarvola generate etxe '<IZE><ARR>'"
$tarvola generate etxe '<IZE><ARR>' | head -8
echo
echo "More: $tarvola --help, docs/CLI.md"
