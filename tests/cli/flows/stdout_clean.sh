# The library's messages never reach standard output (the golden cases hold
# the whole of it); --verbose shows them on standard error.
source "$(dirname "$0")/common.sh"
"$TOOL" analyze --config "$DATA/tarvola.conf" etxea > quiet.txt 2> quiet.err
"$TOOL" analyze --config "$DATA/tarvola.conf" --verbose etxea > loud.txt 2> loud.err
cmp quiet.txt loud.txt || fail "--verbose changed the results"
[ ! -s quiet.err ] || fail "routine messages shown: $(cat quiet.err)"
grep -qx "Taulak husten..." loud.err || fail "--verbose hid the library's messages"
# The committed demo set answers, and says on standard error what it is.
demo="$(dirname "$0")/../../../data/demo/tarvola.conf"
"$TOOL" analyze --config "$demo" etxea > demo.txt 2> demo.err || fail "demo set: exit $?"
[ "$(head -c 5 demo.txt)" = etxea ] && [ "$(grep -c 'demo data set' demo.err)" = 1 ] \
  || fail "demo set not named once: $(cat demo.err)"
exit 0
