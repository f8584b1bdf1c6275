# tarvola cg3 --vislcg3 | vislcg3: the grammar selects and removes readings.
source "$(dirname "$0")/common.sh"
skip_unless vislcg3
here=$(dirname "$0")/../vislcg3
"$TOOL" cg3 --config "$DATA/tarvola.conf" --vislcg3 "$here/input.txt" | vislcg3 -g "$here/grammar.cg3" > got.txt
diff -u "$here/expected.txt" got.txt || fail "vislcg3 output differs"
# Without the flag vislcg3 sees no word cohorts: the readings pile up on EBUK.
"$TOOL" cg3 --config "$DATA/tarvola.conf" "$here/input.txt" | vislcg3 -g "$here/grammar.cg3" > plain.txt
grep -q '^"<Etxeak>"' plain.txt && fail "library cohorts unexpectedly read as cohorts"
exit 0
