# Productive morphology built from the known forms (sourced by build-data.sh).

# build_productive WORK KNOWN OUT: the forms derived from KNOWN (a
# transducer, surface to analysis) into OUT, in the same direction.
build_productive() {
  echo '[ "<NONE>" - "<NONE>" ] ;' | hfst-regexp2fst -o "$3"
}
