#!/bin/sh
# Agreement of the converted main network with the source analyser: for the
# distinct lower-case words of the given texts, the readings the table gives
# against the readings lt-proc gives with Apertium's data, mapped into
# tarvola's tag set by the same rules the build uses (cases.regexp through
# hfst, then the renames of tags.map).
#
# usage: data/agreement.sh [--list] [--fold] TABLE TEXT...
#   TABLE  a converted eumorfoPG.txt (data/build-data.sh)
#   TEXT   code page 1252 texts, e.g. ../shared/corpus/*.cp1252.txt
#   --fold takes every word token lower-cased, not only the words written
#          in lower case
#   --list also prints every word whose readings differ (see
#          data/tools/agreement.cpp for the format); the counts go to stderr.
# The tool is taken from $AGREEMENT, else build/data/tarvola_agreement.
set -eu
HERE=$(cd "$(dirname "$0")" && pwd)
. "$HERE/eumorfo/rules.sh"
LIST=""
WORDS=--words
while :; do
  case "${1:-}" in
    --list) LIST=--list; shift ;;
    --fold) WORDS=--folded-words; shift ;;
    *) break ;;
  esac
done
if [ $# -lt 2 ]; then echo "usage: data/agreement.sh [--list] [--fold] TABLE TEXT..." >&2; exit 2; fi
TABLE=$1; shift
TOOL=${AGREEMENT:-$HERE/../build/data/tarvola_agreement}
AUTOMORF=/usr/share/apertium/apertium-eu-es/eu-es.automorf.bin
WORK=$(mktemp -d)
trap 'rm -rf "$WORK"' EXIT

"$TOOL" $WORDS "$@" | iconv -f cp1252 -t utf-8 > "$WORK/words.txt"
lt-proc -a "$AUTOMORF" < "$WORK/words.txt" > "$WORK/lt.txt"
compile_rules "$HERE/eumorfo/cases.regexp" " .o. " "$WORK/cases.hfst"

# One lt-proc unit a line is expected ("^word/reading/...$" or
# "^word/*word$"); a word lt-proc cut into several units (at a character
# it does not count as a letter) is left out and counted.
awk '{
    if ($0 !~ /^\^[^$]*\$$/) { split_words++; next }
    n = split(substr($0, 2, length($0) - 2), f, "/")
    if (f[2] ~ /^\*/) { print f[1] > "'"$WORK"'/known.txt"; next }
    line = f[1]
    for (i = 2; i <= n; i++) { gsub(/\\/, "", f[i]); line = line "\t" f[i]; print f[i] > "'"$WORK"'/readings.txt" }
    print line > "'"$WORK"'/known.txt"
  }
  END { if (split_words) printf "%d words cut by lt-proc left out\n", split_words > "/dev/stderr" }' "$WORK/lt.txt"
touch "$WORK/readings.txt"
sort -u "$WORK/readings.txt" | hfst-lookup -q "$WORK/cases.hfst" 2>/dev/null |
  awk -F'\t' 'NF >= 2 { print $1 "\t" $2 }' > "$WORK/rewritten.txt"
awk -F'\t' 'NR == FNR { r[$1] = ($1 in r) ? r[$1] "\t" $2 : $2; next }
  { line = $1; for (i = 2; i <= NF; i++) line = line "\t" (($i in r) ? r[$i] : $i); print line }' \
  "$WORK/rewritten.txt" "$WORK/known.txt" |
  "$TOOL" $LIST "$TABLE" "$HERE/eumorfo/tags.map"
