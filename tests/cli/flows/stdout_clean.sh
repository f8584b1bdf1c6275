# The library's messages never reach standard output; --verbose shows them
# on standard error.
source "$(dirname "$0")/common.sh"
"$TOOL" analyze --config "$DATA/tarvola.conf" etxea > quiet.txt 2> quiet.err
"$TOOL" analyze --config "$DATA/tarvola.conf" --verbose etxea > loud.txt 2> loud.err
cmp quiet.txt loud.txt || fail "--verbose changed the results"
[ "$(head -c 5 quiet.txt)" = etxea ] || fail "results do not start the output"
[ ! -s quiet.err ] || fail "routine messages shown: $(cat quiet.err)"
grep -qx "Taulak husten..." loud.err || fail "--verbose hid the library's messages"
"$TOOL" multext --config "$DATA/tarvola.conf" -b <<< "Etxea ona da." | head -1 | grep -q '^{p=1 s=1' \
  || fail "multext result not on standard output"
# The committed demo set answers, and says on standard error what it is.
demo="$(dirname "$0")/../../../data/demo/tarvola.conf"
"$TOOL" analyze --config "$demo" etxea > demo.txt 2> demo.err || fail "demo set: exit $?"
[ "$(head -c 5 demo.txt)" = etxea ] && [ "$(grep -c 'demo data set' demo.err)" = 1 ] \
  || fail "demo set not named once: $(cat demo.err)"
exit 0
