# tarvola dict add|list|remove on a file, and the engine reading it.
source "$(dirname "$0")/common.sh"
cp "$DATA/dict.txt" d.txt
"$TOOL" dict --dict d.txt add mahai '<ARR>' --extra1 altzaria
"$TOOL" dict --dict d.txt add Iruña '<LIB>'
"$TOOL" dict --dict d.txt add mahai '<ARR>' 2> again.txt
grep -q "already in" again.txt || fail "duplicate not reported"
[ "$(grep -c . d.txt)" = 4 ] || fail "duplicate written: $(cat d.txt)"
grep -q $'^Iru\xf1a\t<LIB>' d.txt || fail "lemma not stored in code page 1252"
printf 'mendi\t<ARR>\t\t\nmahai\t<ARR>\taltzaria\t\nIruña\t<LIB>\t\t\n' > want.txt
"$TOOL" dict --dict d.txt list | diff -u want.txt - || fail "list"
"$TOOL" analyze --config "$DATA/tarvola.conf" --dict d.txt mahaian > got.txt
grep -q $'^mahaian\tmahai<IZE><ARR><hp1><INE><NUMS><MUGM>\thp$' got.txt || fail "added word not analysed: $(cat got.txt)"
"$TOOL" dict --dict d.txt remove mahai '<ARR>'
"$TOOL" dict --dict d.txt list | grep -q mahai && fail "not removed"
status=0; "$TOOL" dict --dict d.txt remove mahai '<ARR>' 2>/dev/null || status=$?
[ $status = 1 ] || fail "removing an absent word: status $status"
status=0; "$TOOL" dict --dict d.txt add etxe '<IZE>' 2>/dev/null || status=$?
[ $status = 2 ] || fail "unknown category: status $status"
# Fields that would break the file or end a later analysis are refused,
# the file left as it was.
cp d.txt before.txt
for word in 'a<b' $'bi\nlerro' 'x|y'; do
  status=0; "$TOOL" dict --dict d.txt add "$word" '<ARR>' 2>/dev/null || status=$?
  [ $status = 2 ] || fail "lemma '$word' accepted: status $status"
done
status=0; "$TOOL" dict --dict d.txt add hitz '<ARR>' --extra1 '<ireki' 2>/dev/null || status=$?
[ $status = 2 ] || fail "open tag in an extra accepted: status $status"
cmp -s before.txt d.txt || fail "refused words changed the file: $(cat d.txt)"
status=0; "$TOOL" dict --dict none.txt list 2>/dev/null || status=$?
[ $status = 2 ] || fail "missing dictionary: status $status"

# 50 writers at once, adds and removes mixed: every change is in the file
# afterwards, and the lines the loader skips are kept as they were.
printf '// my words\nlonely line\n' > c.txt
for i in $(seq 10 34); do printf '\nzahar%s\t<ARR>\t\t\tHP' "$i" >> c.txt; done
for i in $(seq 10 34); do
  "$TOOL" dict --dict c.txt remove "zahar$i" '<ARR>' &
  "$TOOL" dict --dict c.txt add "berri$i" '<ARR>' &
done
wait
"$TOOL" dict --dict c.txt list > c.list
[ "$(grep -c '^berri' c.list)" = 25 ] || fail "adds lost: $(cat c.list)"
grep -q '^zahar' c.list && fail "removals lost: $(cat c.list)"
grep -qx '// my words' c.txt && grep -qx 'lonely line' c.txt || fail "skipped lines dropped: $(cat c.txt)"

# A full file system: both changes fail with exit 2, naming the file, and
# the file is left as it was. Needs root to mount a small tmpfs.
if [ "$(id -u)" = 0 ] && mkdir -p full && mount -t tmpfs -o size=64k tmpfs full 2>/dev/null; then
  trap 'umount "$PWD/full" 2>/dev/null' EXIT
  # A file of exactly one page, so that an append needs a new one.
  { printf '//'; head -c 4077 /dev/zero | tr '\0' x; printf '\nmendi\t<ARR>\t\t\tHP'; } > full/d.txt
  cp full/d.txt full.before
  head -c 1M /dev/zero > full/filler 2>/dev/null || true
  for change in "add ibai <ARR>" "remove mendi <ARR>"; do
    status=0; "$TOOL" dict --dict full/d.txt $change 2> full.err || status=$?
    [ $status = 2 ] && grep -q "full/d.txt" full.err || fail "$change on a full disk: status $status, $(cat full.err)"
  done
  cmp -s full.before full/d.txt || fail "a failed write changed the file: $(tail -c 40 full/d.txt)"
fi
exit 0
