#!/bin/sh
# Whole-process lookup speed of tarvola against the field's lookup tools,
# all on the same transducer: the main network the data build makes
# ("eumorfo", the converted Basque analyser with the project's words),
# compiled from its AT&T text for hfst-optimized-lookup (HFST), flookup
# (foma) and lt-proc (lttoolbox), and imported for tarvola.
#
# usage: sh bench/peers.sh [TOOL] [WORDS]
#   TOOL   the tarvola tool (default build/cli/tarvola; a Release build)
#   WORDS  how many words of running text to time (default 1000000)
# Needs hyperfine, hfst, foma, lttoolbox and the shared corpus beside the
# checkout. Prints one table: words per second, and each figure as a ratio
# of the fastest peer's, for running text (one word a line, words repeat as
# they do in prose) and for the list of distinct words (nothing repeats).
set -eu
cd "$(dirname "$0")/.."
TOOL=$(readlink -f "${1:-build/cli/tarvola}")
WORDS=${2:-1000000}
CORPUS=../shared/corpus
for t in hyperfine hfst-txt2fst hfst-fst2fst hfst-optimized-lookup foma flookup lt-comp lt-proc; do
  command -v $t >/dev/null || { echo "peers: $t is missing" >&2; exit 2; }
done
[ -x "$TOOL" ] || { echo "peers: no tool at $TOOL" >&2; exit 2; }
IMPORTER=${IMPORTER:-$(dirname "$(dirname "$TOOL")")/data/tarvola_import_table}

W=$(mktemp -d)
trap 'rm -rf "$W"' EXIT

# The transducer, as the data build makes it, and its AT&T text.
TARVOLA_KEEP_WORK=1 IMPORTER="$IMPORTER" sh data/build-data.sh "$W/data" 2>"$W/data.log" ||
  { cat "$W/data.log" >&2; exit 1; }
att="$W/data/work/eumorfo.att"
echo "eumorfoPG.txt" > "$W/data/eumorfo-only.conf"
hfst-txt2fst -i "$att" | hfst-fst2fst -w -o "$W/eu.hfstol"
foma -e "read att $att" -e "save stack $W/eu.foma" -e quit >/dev/null
lt-comp -H lr "$att" "$W/eu.bin" >/dev/null

# Inputs: the corpus's words one a line, repeated up to WORDS; and each
# distinct word once. Words holding a character lt-proc's stream format
# reserves are left out for every tool.
cat "$CORPUS"/eu-ud-dev.txt "$CORPUS"/eu-news.txt "$CORPUS"/eu-messages.txt |
  tr -s ' \t' '\n\n' | sed 's/^[[:punct:]]*//; s/[[:punct:]]*$//' | grep -v '^$' |
  grep -v '[][\^$/\\<>@{}]' > "$W/once.txt"
awk -v n="$WORDS" '{ w[NR] = $0 } END { for (i = 0; i < n; i++) print w[i % NR + 1] }' "$W/once.txt" > "$W/running.txt"
sort -u "$W/once.txt" > "$W/distinct.txt"

run() {  # run NAME INPUT: mean seconds of each command on INPUT
  hyperfine -N --warmup 1 --runs "${RUNS:-5}" --export-json "$W/$1.json" \
    -n hfst-optimized-lookup "sh -c 'hfst-optimized-lookup -q $W/eu.hfstol < $2 > /dev/null'" \
    -n flookup "sh -c 'flookup -i $W/eu.foma < $2 > /dev/null'" \
    -n lt-proc "sh -c 'lt-proc $W/eu.bin < $2 > /dev/null'" \
    -n "tarvola analyze" "sh -c '$TOOL analyze --config $W/data/eumorfo-only.conf < $2 > /dev/null'" \
    >/dev/null
}
run running "$W/running.txt"
run distinct "$W/distinct.txt"

python3 - "$W" "$(wc -l < "$W/running.txt")" "$(wc -l < "$W/distinct.txt")" <<'PY'
import json, sys
w, n_run, n_dist = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
peers = ("hfst-optimized-lookup", "flookup", "lt-proc")
rows = {}
for kind, n in (("running", n_run), ("distinct", n_dist)):
    for r in json.load(open(f"{w}/{kind}.json"))["results"]:
        rows.setdefault(r["command"], {})[kind] = n / r["median"]
best = {k: max(rows[p][k] for p in peers) for k in ("running", "distinct")}
print(f"| tool | running text, words/s | vs fastest peer | distinct words, words/s | vs fastest peer |")
print("|---|---|---|---|---|")
for name, r in rows.items():
    print(f"| {name} | {r['running']:,.0f} | {r['running'] / best['running']:.2f} | "
          f"{r['distinct']:,.0f} | {r['distinct'] / best['distinct']:.2f} |")
print(f"\n{n_run:,} words of running text; {n_dist:,} distinct words; medians of hyperfine runs")
PY
