#!/bin/bash
# The Enchant provider through clients nobody here wrote: the ispell pipe
# of enchant-2 (what Emacs drives), enchant-lsmod-2 and python3-enchant.
# usage: clients.sh MODULE ENCHANT_MODULE_DIR CONFIG SCRATCH
set -euo pipefail
module=$1 system_dir=$2 config=$3 scratch=$4
skip() { echo "SKIP: $*"; exit 77; }
fail() { echo "FAIL: $*" >&2; exit 1; }
for t in enchant-2 enchant-lsmod-2 unshare; do command -v $t >/dev/null || skip "$t missing"; done
[ -f "$config" ] || skip "no built Basque data set ($config)"
rm -rf "$scratch" && mkdir -p "$scratch/providers" "$scratch/config"
cd "$scratch"

# Enchant's provider folder as it would be after the install step.
for p in "$system_dir"/*.so; do [ -e "$p" ] && cp "$p" providers/; done
cp "$module" providers/
export TARVOLA_CONFIG=$config ENCHANT_CONFIG_DIR=$PWD/config
in_enchant() {
  unshare -m sh -c 'mount --bind "$1" "$2" && shift 2 && exec "$@"' sh "$PWD/providers" "$system_dir" "$@"
}
in_enchant true 2>/dev/null || skip "cannot bind-mount over $system_dir in a private mount namespace here (needs root, and not a chroot)"

in_enchant enchant-lsmod-2 -list-dicts > dicts.txt
grep -q '^eu (tarvola)' dicts.txt || fail "eu not listed: $(cat dicts.txt)"

# Both words marked, the standard forms offered; correct words pass.
echo "Nere etxia" | in_enchant enchant-2 -d eu -a > pipe.txt
grep -q '^& Nere [0-9]* 0: Nire' pipe.txt || fail "Nere: $(cat pipe.txt)"
grep -q '^& etxia [0-9]* 5: etxea' pipe.txt || fail "etxia: $(cat pipe.txt)"
echo "Etxean bizi naiz 2023an Bilbon" | in_enchant enchant-2 -d eu -a > ok.txt
[ "$(grep -c '^\*$' ok.txt)" = 5 ] || fail "correct words marked: $(cat ok.txt)"

# A word added to the personal dictionary (the pipe's "*WORD") is taken
# with its inflections by the next process; the file is tarvola's own.
printf '*Zorrotzaurre\n#\n' | in_enchant enchant-2 -d eu -a > /dev/null
grep -q $'^Zorrotzaurre\t<IZB>' config/tarvola-personal.txt || fail "not written: $(ls config)"
echo "Zorrotzaurren" | in_enchant enchant-2 -d eu -a > added.txt
grep -q '^\*$' added.txt || fail "inflected form of an added word: $(cat added.txt)"

# Python: two dictionaries share the one engine, so a session word added
# through one is known through the other.
# Debian's interpreter, the one python3-enchant belongs to.
python=python3
[ -x /usr/bin/python3 ] && python=/usr/bin/python3
if $python -c 'import enchant' 2>/dev/null; then
  in_enchant $python - <<'PY' || fail "python3-enchant"
import enchant
a, b = enchant.Dict("eu"), enchant.Dict("eu_ES")
assert a.provider.name == "tarvola", a.provider.name
assert a.check("etxea") and a.check("Bilbon") and not a.check("etxia")
assert "etxea" in a.suggest("etxia")[:5], a.suggest("etxia")
assert not b.check("txapeldunki")
a.add_to_session("txapeldunki")
assert b.check("txapeldunkiak"), "session word not shared"
PY
else
  echo "python3-enchant missing: its part is skipped"
fi
exit 0
