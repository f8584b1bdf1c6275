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
# WORD<TAB>ANALYSIS lines, sorted, of tarvola's readings for the words in
# file $2 with configuration $1. Lookup never gives a word written in lower
# case a reading that starts with a capital (a proper noun): such readings
# are asked for with the word's first letter capitalised.
tarvola_readings() {
  sed 's/^./\U&/' "$2" > "$2.cap"
  {
    "$TOOL" analyze --config "$1" -f "$2"
    "$TOOL" analyze --config "$1" -f "$2.cap" | awk -F'\t' '$2 ~ /^[A-Z]/'
  } | awk -F'\t' 'NF >= 2 && $2 != "+?" {print tolower(substr($1, 1, 1)) substr($1, 2) "\t" $2}' | sort -u
}
