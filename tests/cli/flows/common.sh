# Sourced by every flow: the tool, the fixture folder, a fresh scratch folder.
set -euo pipefail
TOOL=$1
DATA=$2
SCRATCH=$3
rm -rf "$SCRATCH"
mkdir -p "$SCRATCH"
cd "$SCRATCH"
fail() { echo "FAIL: $*" >&2; exit 1; }
skip_unless() { for t in "$@"; do command -v "$t" >/dev/null || { echo "SKIP: $t missing"; exit 77; }; done; }
# The import flows: nouns.att, written by another toolkit in format $1, is
# imported as the only network, and tarvola's readings of the words in
# words.txt must be want.txt, that toolkit's WORD<TAB>ANALYSIS lines, sorted.
# Lookup never gives a word written in lower case a reading that starts with
# a capital (a proper noun): such readings are asked for with the word's
# first letter capitalised.
import_and_compare() {
  [ -s want.txt ] || fail "the toolkit analysed nothing"
  "$TOOL" table import --from "$1" nouns.att eumorfo.txt
  "$TOOL" table check eumorfo.txt
  echo eumorfo.txt > imported.conf
  sed 's/^./\U&/' words.txt > words.cap
  {
    "$TOOL" analyze --config imported.conf -f words.txt
    "$TOOL" analyze --config imported.conf -f words.cap | awk -F'\t' '$2 ~ /^[A-Z]/'
  } | awk -F'\t' 'NF >= 2 && $2 != "+?" {print tolower(substr($1, 1, 1)) substr($1, 2) "\t" $2}' |
    sort -u > got.txt
  diff -u want.txt got.txt || fail "readings differ"
}
