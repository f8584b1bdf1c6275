#!/bin/sh
# Checks the build's rewrite rules on readings as the source analyser writes
# them (eumorfo/cases.regexp) and the project's own entries
# (eumorfo/extra.regexp), with hfst. Exits 77 (skipped) without hfst.
set -eu
HERE=$(cd "$(dirname "$0")/.." && pwd)
. "$HERE/eumorfo/rules.sh"
command -v hfst-regexp2fst >/dev/null 2>&1 && command -v hfst-lookup >/dev/null 2>&1 || exit 77
WORK=$(mktemp -d)
trap 'rm -rf "$WORK"' EXIT
compile_rules "$HERE/eumorfo/cases.regexp" " .o. " "$WORK/cases.hfst" 2>/dev/null
compile_rules "$HERE/eumorfo/extra.regexp" " | " "$WORK/extra.hfst" 2>/dev/null

failed=0
# expect FST INPUT OUTPUT...: the outputs, in any order, and no others
expect() {
  fst=$1 input=$2
  shift 2
  got=$(printf '%s\n' "$input" | hfst-lookup -q "$WORK/$fst.hfst" 2>/dev/null | awk -F'\t' 'NF >= 2 { print $2 }' | sort)
  want=$(printf '%s\n' "$@" | sort)
  if [ "$got" != "$want" ]; then
    printf 'FAIL %s: %s\n  want: %s\n  got:  %s\n' "$fst" "$input" "$(echo $want)" "$(echo $got)"
    failed=1
  fi
}

# number and case
expect cases 'etxe<n>+a<det><art><sg>+an<post>' 'etxe<n><NUMS><INE>'
expect cases 'etxe<n>+a<det><art><pl>+en<post>' 'etxe<n><NUMP><GEN><MG><ABS>'
expect cases 'Bilbo<np><loc>+tik<post>' 'Bilbo<np><loc><MG><ABL><BUK>'
expect cases 'handi<adj><izo>+ago<gra><comp>' 'handi<adj><izo><GRA><KONP><MG><ABS>'
# subordinating suffixes of finite verbs, alone and inflected
expect cases 'izan<vbsint><pri><NR_HU>+la<cnjsub>' 'izan<vbsint><pri><NR_HU><ERL><KONPL><BUK>'
expect cases 'izan<vbsint><pri><NR_HK>+nean<cnjadv>' 'izan<vbsint><pri><NR_HK><ERL><DENB><BUK>'
expect cases 'izan<vbsint><pii><NR_HU>+n<rel>+a<det><art><sg>+tik<post>' 'izan<vbsint><pii><NR_HU><ERL><NUMS><ABL><BUK>'
expect cases 'egon<vbsint><pii><NR_HU>+larik<rel>' 'egon<vbsint><pii><NR_HU><ERL><MOD><BUK>'
# ba- before a finite verb: both readings, the auxiliary's lemma rewritten
expect cases 'ba<cnjsub>+ukan<vbsint><pri><NR_HU><NK_HU>' \
  'ba<AUR><MEN><BALD>edun<vbsint><pri><NR_HU><NK_HU><BUK>' 'ba<AUR><PRT>edun<vbsint><pri><NR_HU><NK_HU><BUK>'
expect cases 'ukan<vbsint><pii><NR_HU><NK_HU>' 'edun<vbsint><pii><NR_HU><NK_HU><BUK>'
# ... but neither the non-finite verb ukan nor a ba- that is not a prefix
expect cases 'ukan<vblex><pp>' 'ukan<vblex><pp><BUK>'
expect cases 'baba<n>+a<det><art><sg>' 'baba<n><NUMS><ABS>'
# every reading closed: a number alone is the absolutive, a case without
# number the indefinite, a bare noun or -ko form the indefinite absolutive,
# a form the source can extend <BUK>; pronouns keep their own number
expect cases 'etxe<n>' 'etxe<n><MG><ABS>'
expect cases 'etxe<n>+an<post>' 'etxe<n><MG><INE>'
expect cases 'etxe<n>+a<det><art><pl>' 'etxe<n><NUMP><ABS>'
expect cases 'etxe<n>+a<det><art><sg>+ko<post>' 'etxe<n><NUMS><GEL><MG><ABS>'
expect cases 'etxe<n>+a<det><art><sg>+ko<post>+a<det><art><sg>' 'etxe<n><NUMS><GEL><NUMS><ABS>'
expect cases 'etxe<n>+a<det><art><sg>+ra<post><ko>' 'etxe<n><NUMS><ALA><MG><GEL><MG><ABS>'
expect cases 'etxe<n>+a<det><art><sg>+ra<post>' 'etxe<n><NUMS><ALA><BUK>'
expect cases 'ni<prn><pers><p1><sg>+en<post>' 'ni<prn><pers><p1><sg><GEN><MG><ABS>'
expect cases 'hura<det><dem><pl>' 'hura<det><dem><pl><ABS>'
expect cases 'izan<vbsint><pri><NR_HU>' 'izan<vbsint><pri><NR_HU><BUK>'
expect cases 'izan<vbsint><pri><NR_HU>+n<rel>' 'izan<vbsint><pri><NR_HU><ERL><MG><ABS>'
expect cases 'gaur<adv>' 'gaur<adv><BUK>'
expect cases 'hau<det><dem><sg>+i<post>' 'hau<det><dem><sg><DAT><BUK>'
expect cases 'hartu<vblex><pfut>' 'hartu<vblex><pfut>'
# the project's own entries
expect extra 'etab.' 'etab.<LAB>'
expect extra 'konf.' 'konf.<LAB>'
expect extra '2023a' '2023<DET><ZNB><NUMS><ABS>'
expect extra '100ekoa' '100<DET><ZNB><MG><GEL><NUMS><ABS>'
expect extra '#' '#<PUN>'
expect extra '...' '...<PUN>'
exit $failed
