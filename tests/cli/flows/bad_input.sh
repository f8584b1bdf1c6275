# Input the tool must answer calmly: empty input, blanks only, and a reader
# that closes the pipe after the first line.
source "$(dirname "$0")/common.sh"
conf="$DATA/tarvola.conf"

: | "$TOOL" analyze --config "$conf" > empty.txt 2> empty.err || fail "empty input: exit $?"
[ ! -s empty.txt ] || fail "empty input gave output: $(head -c 200 empty.txt)"
printf '   \n\t\n\n' | "$TOOL" multext --config "$conf" -b > blank.txt 2> blank.err \
  || fail "blank text: exit $?"
[ ! -s blank.txt ] || fail "blank text gave output: $(head -c 200 blank.txt)"

# Bytes that are not UTF-8 pass through the text outputs, but JSON must be
# UTF-8: they come out as U+FFFD.
printf 'etxea\ngiz\xfe\xff\xfca\n' | "$TOOL" analyze --config "$conf" --format json > bad.json \
  2> bad.err || fail "malformed UTF-8 to JSON: exit $?"
grep -q $'"word":"giz\xef\xbf\xbd' bad.json || fail "no replacement character: $(cat bad.json)"
iconv -f UTF-8 -t UTF-8 bad.json > /dev/null || fail "JSON output is not UTF-8"

# A lemma with an open "<" would end the engine: it is refused, and the
# requests around it are still answered.
long_tag="<$(printf 'a%.0s' $(seq 1 120))"
printf 'etxe\t<IZE><ARR>\n%s\t<ARR>\netxe\t<IZE><ARR>\n' "$long_tag" |
  "$TOOL" generate --config "$conf" > open.txt 2> open.err && fail "open tag in a lemma: exit 0"
[ "$(grep -c . open.txt)" -ge 2 ] && grep -q 'not closed' open.err || fail "open tag: $(cat open.err)"

# Enough text that the tool is still writing when head has gone.
for i in $(seq 1 20000); do echo "Etxea ona da."; done > many.txt
set +o pipefail
first=$("$TOOL" analyze --config "$conf" -f many.txt 2> closed.err | head -1)
status=${PIPESTATUS[0]}
set -o pipefail
[ -n "$first" ] || fail "no first line"
# Ended by the broken pipe (status 141) or by noticing the failed write; a
# crash (status 128 + SIGSEGV/SIGABRT) or a hang is a fault.
case $status in
  0|1|2|141) ;;
  *) fail "closed output: exit $status: $(head -c 300 closed.err)" ;;
esac
exit 0
