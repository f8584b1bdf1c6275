# Productive morphology built from the known forms (sourced by build-data.sh).
# Each construction takes the known network's own readings and derives new
# forms from them by composition, so that it reaches every lemma the
# network knows (the converted analyser's and the project's lexicon's) and
# nothing else: no stem is guessed.

# productive_rule NAME: compiles productive/NAME.regexp (one expression,
# comment lines left out) into $PRODUCTIVE_WORK/NAME.hfst.
productive_rule() {
  grep -v '^#' "$HERE/eumorfo/productive/$1.regexp" | tr '\n' ' ' | sed 's/$/ ;/' > "$PRODUCTIVE_WORK/$1.txt"
  hfst-regexp2fst -i "$PRODUCTIVE_WORK/$1.txt" -o "$PRODUCTIVE_WORK/$1.hfst"
}

# build_productive WORK KNOWN OUT: the forms derived from KNOWN (surface to
# analysis) into OUT, in the same direction.
build_productive() {
  PRODUCTIVE_WORK="$1/productive"
  mkdir -p "$PRODUCTIVE_WORK"
  for rule in bait_surface finite_verb bait_analysis vn_surface vn_analysis vn_cases ko_analysis ko_cases \
              place_names lower_first demonym_stem demonym_cases N_lemmas J_lemmas; do
    productive_rule "$rule"
  done
  p=$PRODUCTIVE_WORK
  # bait- before a finite verb: the new spelling is rewritten to the verb's
  # own (baitu -> du), the verb is read, and the prefix is written before
  # its reading.
  hfst-compose -1 "$p/bait_surface.hfst" -2 "$2" | hfst-compose -2 "$p/finite_verb.hfst" |
    hfst-compose -2 "$p/bait_analysis.hfst" | hfst-minimize -o "$p/bait.hfst"
  # The cases of the verbal noun the source lacks (ikustean,
  # ikusterakoan): its singular absolutive (ikustea) less the article
  # gives the verbal noun, which takes the new endings.
  hfst-compose -1 "$p/vn_surface.hfst" -2 "$2" | hfst-compose -2 "$p/vn_analysis.hfst" |
    hfst-concatenate -2 "$p/vn_cases.hfst" | hfst-minimize -o "$p/vn.hfst"
  # The participle's and the superlative's -ko forms declined (hartutakoa,
  # handienetakoa).
  hfst-compose -1 "$2" -2 "$p/ko_analysis.hfst" | hfst-concatenate -2 "$p/ko_cases.hfst" |
    hfst-minimize -o "$p/ko.hfst"
  # Demonyms of the place names (gasteiztar, kataluniar), lemma and
  # spelling in lower case.
  hfst-compose -1 "$2" -2 "$p/place_names.hfst" | hfst-project -p input |
    hfst-compose -2 "$p/lower_first.hfst" | hfst-compose -2 "$p/demonym_stem.hfst" |
    hfst-project -p output | hfst-minimize | hfst-concatenate -2 "$p/demonym_cases.hfst" |
    hfst-minimize -o "$p/demonym.hfst"
  # Derivation (lexicon/suffixes.txt): the lemmas of a base class, each
  # followed by a suffix inflected in the derived word's class.
  # (productive/N_lemmas.regexp: nouns; J_lemmas.regexp: adjectives.)
  for base in N J; do
    awk -v base=$base '$1 == base { print $2, $3 }' "$HERE/lexicon/suffixes.txt" > "$p/suffixes_$base.txt"
    build_lexicon "$p" "$p/suffixes_$base.hfst" "$p/suffixes_$base.txt"
    hfst-compose -1 "$2" -2 "$p/${base}_lemmas.hfst" | hfst-project -p output | hfst-minimize |
      hfst-concatenate -2 "$p/suffixes_$base.hfst" | hfst-minimize -o "$p/derived_$base.hfst"
  done
  hfst-disjunct -1 "$p/bait.hfst" -2 "$p/vn.hfst" | hfst-disjunct -2 "$p/ko.hfst" |
    hfst-disjunct -2 "$p/demonym.hfst" | hfst-disjunct -2 "$p/derived_N.hfst" |
    hfst-disjunct -2 "$p/derived_J.hfst" -o "$3"
}
