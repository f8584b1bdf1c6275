# tarvola table encipher|decipher|check, and the engine loading the result.
source "$(dirname "$0")/common.sh"
mkdir SARE8
"$TOOL" table encipher "$DATA/eumorfo.txt" SARE8/eumorfo.txt
"$TOOL" table decipher SARE8/eumorfo.txt back.txt
cmp "$DATA/eumorfo.txt" back.txt || fail "round trip"
"$TOOL" table check SARE8/eumorfo.txt || fail "check of the enciphered table"
cp "$DATA/hp.txt" .
printf 'SARE8/eumorfo.txt\nhp.txt\n' > enciphered.conf
words="etxea etxeak Bilbo etab. ezer"
"$TOOL" analyze --config "$DATA/tarvola.conf" $words > plain.txt
"$TOOL" analyze --config enciphered.conf $words > enc.txt
diff -u plain.txt enc.txt || fail "enciphered table analyses differently"
printf '0\ta\t1\n\nfinal: 1' > short.txt
status=0; "$TOOL" table encipher short.txt out.txt 2> why.txt || status=$?
[ $status = 1 ] && [ ! -e out.txt ] || fail "short lines accepted"
grep -q "short.txt:2: line under 5 bytes" why.txt || fail "short line not named: $(cat why.txt)"
"$TOOL" table encipher --repair short.txt SARE8-short.txt
"$TOOL" table check SARE8-short.txt || fail "repaired table has problems"
exit 0
