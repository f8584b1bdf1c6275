# The project's own Basque lexicon (sourced by build-data.sh).
#
# data/lexicon/words.txt lists lemmas with a class; lexicon_sfst turns
# each into SFST entries over the endings the personal dictionary uses
# (data/src/endings.fst), so the words inflect as the hand-written classes
# say and their readings end as every other reading does (TAGS.md).

# lexicon_sfst WORDS: the SFST program for the words (analysis:surface).
lexicon_sfst() {
  echo '#include "endings.fst"'
  awk '
    function stem_tu(l) { return substr(l, 1, length(l) - 2) }
    function vn(stem) {
      if (stem ~ /tz$/) return substr(stem, 1, length(stem) - 2) "zte"
      if (stem ~ /ts$/) return substr(stem, 1, length(stem) - 2) "ste"
      if (stem ~ /tx$/) return substr(stem, 1, length(stem) - 2) "xte"
      if (stem ~ /[zsx]$/) return stem "te"
      return stem "tze"
    }
    function noun(l, cat, cls) {
      if (cls == "V") return "{" l cat "}:{" l "} $V$"
      if (cls == "C") return "{" l cat "}:{" l "} $C$"
      if (cls == "A") return "{" l cat "}:{" l "} $A$ | {" l cat "}:{" substr(l, 1, length(l) - 1) "} $PL$"
      if (cls == "R") return "{" l cat "}:{" l "} $BARE$ | {" l cat "}:{" l "r} $CV$"
    }
    # An adjective compares (ospetsuago, ospetsuena, ospetsuegi), the
    # comparative and the excessive declined as a vowel stem, the
    # superlative as a consonant one; not after an organic a.
    function degrees(l, cls,   s) {
      if (cls == "A") return ""
      s = cls == "R" ? l "r" : l
      return " | {" l "<ADJ><IZO><GRA><KONP>}:{" s "ago} $V$ | {" l "<ADJ><IZO><GRA><SUP>}:{" s "en} $C$" \
             " | {" l "<ADJ><IZO><GRA><GEH>}:{" s "egi} $V$"
    }
    !/^#/ && NF == 2 {
      l = $1; c = $2; kind = substr(c, 1, 1); cls = substr(c, 3)
      if (kind == "N") e = noun(l, "<IZE><ARR>", cls)
      else if (kind == "J") e = noun(l, "<ADJ><IZO>", cls) degrees(l, cls)
      else if (kind == "D") e = noun(l, "<DET><ZEHAR>", cls)
      else if (c == "B") e = "{" l "<ADB><BUK>}:{" l "}"
      else if (c == "G") e = "{" l "<ADB><GAL><BUK>}:{" l "}"
      else if (c == "V_TU" || c == "V_ZI") {
        s = c == "V_TU" ? stem_tu(l) : substr(l, 1, length(l) - 1)
        e = "{" l "<ADI><PART>}:{" l "} $PART_V$ | {" l "<ADI><ADI_IZE>}:{" vn(s) "} ($VN$ | " \
            "{<MG><ALA><MG><GEL><NUMS><INE>}:{rakoan}) | {" l "<ADI><ADOIN>}:{" s "}"
      } else { print "lexicon: unknown class " c " of " l > "/dev/stderr"; exit 1 }
      printf "%s%s \\\n", (n++ ? "| " : ""), e
    }
    END { print "" }' "$1"
}

# build_lexicon WORK OUT [WORDS]: compiles the authored lexicon (or another
# list of the same shape) into OUT, surface on the input side, analysis on
# the output side, in the tag set of TAGS.md.
build_lexicon() {
  name=$(basename "$2" .hfst)
  lexicon_sfst "${3:-$HERE/lexicon/words.txt}" > "$1/$name.fst"
  # Compiled from data/src, where its #include finds the endings.
  (cd "$HERE/src" && fst-compiler-utf8 "$1/$name.fst" "$1/$name.a" >/dev/null 2>"$1/$name.log") ||
    { cat "$1/$name.log" >&2; exit 1; }
  # SFST prints analysis then surface; hfst reads the input side first.
  fst-print "$1/$name.a" | awk 'BEGIN { FS = OFS = "\t" }
    NF >= 4 { for (i = 3; i <= 4; i++) if ($i == "<>") $i = "@0@"; print $1, $2, $4, $3; next }
    { print $1 }' | hfst-txt2fst -o "$2"
}
