#!/bin/sh
# Builds the fuzz harnesses and runs each one for SECONDS seconds (default
# 60), one after the other. Usage: fuzz/run.sh [SECONDS] [HARNESS...]
#   BUILD_DIR  build folder (default build-fuzz)
#   CORPUS_DIR the shared Basque text folder used to seed the paragraph
#              harness (default ../shared/corpus; skipped when missing)
#   MERGE=1    minimise what was found back into fuzz/corpus/<harness>/
#              (units grown from the shared corpus's text hold pieces of it:
#              its licence keeps it out of the repository, so drop those
#              before committing; each run seeds from it again anyway)
#   NO_BUILD=1 run what is already built (for running harnesses side by side)
#   TIMEOUT    seconds one input may take before it counts as a hang
#              (default 1). On a loaded machine a long run may use more; the
#              inputs that took a second or more are still written to
#              BUILD_DIR/fuzz-findings as slow-unit-* to be timed alone.
# Exits non-zero when a harness finds a crash, a leak or an input that
# takes more than one second; the input is left in BUILD_DIR/fuzz-findings.
set -eu
seconds=${1:-60}
[ $# -gt 0 ] && shift
root=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD_DIR:-$root/build-fuzz}
corpus_text=${CORPUS_DIR:-$root/../shared/corpus}
harnesses=${*:-table_text enciphered_table dictionary paragraph cli_input}

if [ "${NO_BUILD:-0}" != 1 ]; then
  cmake -S "$root" -B "$build" -DCMAKE_CXX_COMPILER="${CXX:-clang++-14}" \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTARVOLA_BUILD_FUZZ=ON -DTARVOLA_BUILD_EXAMPLES=OFF >/dev/null
  targets=""
  for h in $harnesses; do targets="$targets ${h}_fuzz"; done
  # shellcheck disable=SC2086
  cmake --build "$build" -j2 --target $targets
fi

status=0
for h in $harnesses; do
  work=$build/fuzz-work/$h
  findings=$build/fuzz-findings/$h
  mkdir -p "$work" "$findings"
  seeds=$root/fuzz/corpus/$h
  extra=""
  if [ "$h" = paragraph ] && [ -d "$corpus_text" ]; then
    # A few short slices of real text in both encodings.
    mkdir -p "$build/fuzz-seeds/paragraph"
    for f in eu-ud-dev.txt eu-ud-dev.cp1252.txt eu-messages.txt eu-news.cp1252.txt; do
      [ -f "$corpus_text/$f" ] || continue
      head -n 40 "$corpus_text/$f" | split -l 8 - "$build/fuzz-seeds/paragraph/$f."
    done
    extra=$build/fuzz-seeds/paragraph
  fi
  if [ "$h" = cli_input ] && [ -d "$corpus_text" ]; then
    # The same kind of slices as the standard input of the paragraph
    # subcommands (the harness reads arguments, two NULs, then the text).
    mkdir -p "$build/fuzz-seeds/cli_input"
    for f in eu-ud-dev.txt eu-messages.txt; do
      [ -f "$corpus_text/$f" ] || continue
      for sub in check cg3 multext; do
        { printf '%s\0\0' "$sub"; head -n 8 "$corpus_text/$f"; } > "$build/fuzz-seeds/cli_input/$sub.$f"
      done
    done
    extra=$build/fuzz-seeds/cli_input
  fi
  options="-timeout=${TIMEOUT:-1} -report_slow_units=1 -rss_limit_mb=2048 -print_final_stats=1"
  case $h in
    table_text | enciphered_table) options="$options -dict=$root/fuzz/table.dict -max_len=16384" ;;
    dictionary) options="$options -dict=$root/fuzz/dictionary.dict -max_len=4096" ;;
    paragraph) options="$options -max_len=20000" ;;
    # The tool's messages and results would bury libFuzzer's own lines.
    cli_input) options="$options -dict=$root/fuzz/cli.dict -max_len=4000 -close_fd_mask=3" ;;
  esac
  echo "== $h: $seconds s"
  # shellcheck disable=SC2086
  if ! "$build/fuzz/${h}_fuzz" $options -max_total_time="$seconds" \
      -artifact_prefix="$findings/" "$work" "$seeds" $extra; then
    status=1
  fi
  if [ "${MERGE:-0}" = 1 ]; then
    mkdir -p "$build/fuzz-merged/$h"
    # shellcheck disable=SC2086
    "$build/fuzz/${h}_fuzz" -merge=1 $options "$build/fuzz-merged/$h" "$seeds" "$work" >/dev/null 2>&1
    rm -rf "$seeds" && mv "$build/fuzz-merged/$h" "$seeds"
  fi
done
exit $status
