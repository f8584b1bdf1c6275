#!/bin/sh
# Builds tarvola's default Basque data set into one folder:
#   eumorfoPG.txt     main network, converted from Apertium's Basque analyser
#                     (GPL data: converted here, never committed)
#   hpPG.txt          personal dictionary's endings   (src/hp.fst)
#   osag0PG.txt       compound/derivation components  (src/osag0.fst)
#   zuzenketakPG.txt  non-standard forms and their standard ones (src/zuzenketak.fst)
#   tarvola.conf      the network configuration, paths relative to its folder
#
# usage: data/build-data.sh [OUT] [--update-committed]
#   OUT defaults to data/built. The table importer is taken from $IMPORTER,
#   else from build/data/tarvola_import_table beside the source tree.
#   Missing Debian packages are installed with apt-get when that is possible
#   (as root, unless TARVOLA_NO_APT is set); when the Apertium data or the
#   toolkits cannot be had, the small committed demo network is used as the
#   main network instead, and the script says so.
#   With TARVOLA_FULL_DATA set, falling back to the demo network is an
#   error (exit 1): continuous integration must test the real data. With
#   TARVOLA_SOURCE_ONLY set, the main network is the converted analyser
#   alone, without the project's lexicon and derived forms (to measure the
#   conversion against the source analyser, data/agreement.sh). With
#   TARVOLA_KEEP_WORK set, OUT/work keeps the intermediate transducers
#   (eumorfo.att is the main network's AT&T text, bench/peers.sh uses it).
#   --update-committed also rewrites the committed tables in data/tables/ and
#   data/demo/ from their SFST sources (for maintainers).
set -eu

HERE=$(cd "$(dirname "$0")" && pwd)
. "$HERE/eumorfo/rules.sh"
. "$HERE/eumorfo/lexicon.sh"
. "$HERE/eumorfo/productive.sh"
OUT=""
UPDATE=0
for arg in "$@"; do
  case "$arg" in
    --update-committed) UPDATE=1 ;;
    *) OUT=$arg ;;
  esac
done
OUT=${OUT:-$HERE/built}
mkdir -p "$OUT"
OUT=$(cd "$OUT" && pwd)
WORK="$OUT/work"
mkdir -p "$WORK"

IMPORTER=${IMPORTER:-$HERE/../build/data/tarvola_import_table}
if [ ! -x "$IMPORTER" ]; then
  echo "build-data: table importer not found at $IMPORTER (build the project first, or set IMPORTER)" >&2
  exit 1
fi

AUTOMORF=/usr/share/apertium/apertium-eu-es/eu-es.automorf.bin

have_tools() {
  command -v lt-print >/dev/null 2>&1 && command -v hfst-txt2fst >/dev/null 2>&1 &&
    command -v hfst-regexp2fst >/dev/null 2>&1 && command -v fst-compiler-utf8 >/dev/null 2>&1 &&
    [ -f "$AUTOMORF" ]
}

if ! have_tools && [ -z "${TARVOLA_NO_APT:-}" ] && [ "$(id -u)" = 0 ] && command -v apt-get >/dev/null 2>&1; then
  echo "build-data: installing apertium-eu-es lttoolbox lttoolbox-dev hfst sfst with apt-get" >&2
  (apt-get install -y apertium-eu-es lttoolbox lttoolbox-dev hfst sfst >/dev/null 2>&1 ||
    { apt-get update >/dev/null 2>&1 && apt-get install -y apertium-eu-es lttoolbox lttoolbox-dev hfst sfst >/dev/null 2>&1; }) ||
    echo "build-data: apt-get could not install the packages" >&2
fi

start=$(date +%s)

# SFST sources: compiled when SFST is there, else the committed tables.
sfst_table() {  # name source destination
  if command -v fst-compiler-utf8 >/dev/null 2>&1; then
    (cd "$HERE/src" && fst-compiler-utf8 "$2" "$WORK/$1.a" >/dev/null 2>"$WORK/$1.log") ||
      { cat "$WORK/$1.log" >&2; exit 1; }
    fst-print "$WORK/$1.a" > "$WORK/$1.sfst.txt"
    "$IMPORTER" --sfst "$WORK/$1.sfst.txt" "$3" 2>>"$WORK/import.log"
  else
    return 1
  fi
}

for net in hp osag0 zuzenketak; do
  if sfst_table "$net" "$net.fst" "$OUT/${net}PG.txt"; then
    [ $UPDATE = 1 ] && cp "$OUT/${net}PG.txt" "$HERE/tables/${net}PG.txt"
    if ! cmp -s "$OUT/${net}PG.txt" "$HERE/tables/${net}PG.txt"; then
      echo "build-data: note: $net differs from the committed data/tables/${net}PG.txt (run with --update-committed)" >&2
    fi
  else
    cp "$HERE/tables/${net}PG.txt" "$OUT/${net}PG.txt"
  fi
done
if [ $UPDATE = 1 ] && sfst_table demo demo.fst "$WORK/demo.txt"; then
  cp "$WORK/demo.txt" "$HERE/demo/eumorfoPG.txt"
fi

# The main network.
if have_tools; then
  # lt-print writes one section per part of the analyser, separated by
  # "--"; hfst reads one transducer, so the sections are put under a new
  # start state (a union), with lt-print's epsilon and space spelt the way
  # hfst spells them.
  lt-print "$AUTOMORF" | awk -F'\t' 'BEGIN { OFS = "\t"; base = 1; max = 0; print 0, 1, "@0@", "@0@" }
    $0 == "--" { base = max + 1; print 0, base, "@0@", "@0@"; next }
    NF >= 4 {
      for (i = 3; i <= 4; i++) { if ($i == "ε") $i = "@0@"; else if ($i == " ") $i = "@_SPACE_@" }
      s = $1 + base; t = $2 + base; if (s > max) max = s; if (t > max) max = t
      print s, t, $3, $4; next }
    NF >= 1 { s = $1 + base; if (s > max) max = s; print s }' > "$WORK/apertium.att"
  hfst-txt2fst -o "$WORK/apertium.hfst" "$WORK/apertium.att"
  # Case and number rewrites composed onto the analysis side, then the
  # project's punctuation and abbreviations united with the result.
  compile_rules "$HERE/eumorfo/cases.regexp" " .o. " "$WORK/cases.hfst"
  compile_rules "$HERE/eumorfo/extra.regexp" " | " "$WORK/extra.hfst"
  hfst-compose -1 "$WORK/apertium.hfst" -2 "$WORK/cases.hfst" -o "$WORK/cased.hfst"
  # The project's own lexicon (eumorfo/lexicon.sh), then the productive
  # morphology built from everything known so far (eumorfo/productive.sh),
  # each a transducer in the same direction and tag set as cased.hfst.
  if [ -n "${TARVOLA_SOURCE_ONLY:-}" ]; then
    cp "$WORK/cased.hfst" "$WORK/own.hfst"
  else
    build_lexicon "$WORK" "$WORK/lexicon.hfst"
    hfst-disjunct -1 "$WORK/cased.hfst" -2 "$WORK/lexicon.hfst" -o "$WORK/known.hfst"
    build_productive "$WORK" "$WORK/known.hfst" "$WORK/productive.hfst"
    hfst-disjunct -1 "$WORK/known.hfst" -2 "$WORK/productive.hfst" -o "$WORK/own.hfst"
  fi
  hfst-disjunct -1 "$WORK/own.hfst" -2 "$WORK/extra.hfst" -o "$WORK/eumorfo.hfst"
  hfst-fst2txt "$WORK/eumorfo.hfst" > "$WORK/eumorfo.att"
  "$IMPORTER" --surface-column 3 --tags "$HERE/eumorfo/tags.map" "$WORK/eumorfo.att" "$OUT/eumorfoPG.txt" \
    2>"$WORK/eumorfo.log" || { cat "$WORK/eumorfo.log" >&2; exit 1; }
  echo "build-data: main network converted from $AUTOMORF: $(sed -n '$s/.*: //p' "$WORK/eumorfo.log")" >&2
elif [ -n "${TARVOLA_FULL_DATA:-}" ]; then
  echo "build-data: Apertium's Basque data or the toolkits (lttoolbox-dev, hfst, sfst) could not be had," >&2
  echo "build-data: and TARVOLA_FULL_DATA forbids falling back to the demo network" >&2
  exit 1
else
  cp "$HERE/demo/eumorfoPG.txt" "$OUT/eumorfoPG.txt"
  echo "build-data: WARNING: Apertium's Basque data or the toolkits (lttoolbox-dev, hfst, sfst) could not be had;" >&2
  echo "build-data: WARNING: using the small demo main network instead (a few hundred forms)." >&2
fi

cat > "$OUT/tarvola.conf" <<CONF
// tarvola network configuration, written by data/build-data.sh.
// Paths are relative to this file's folder.
eumorfoPG.txt
hpPG.txt
osag0PG.txt
zuzenketakPG.txt
CONF
[ -n "${TARVOLA_KEEP_WORK:-}" ] || rm -rf "$WORK"
echo "build-data: data set in $OUT ($(( $(date +%s) - start )) s)" >&2
