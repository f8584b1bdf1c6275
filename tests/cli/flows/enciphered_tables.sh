# tarvola table encipher|decipher|check. (That the engine reads an enciphered
# table as the plain one is the table tests' EncipheredCopyReadsTheSame.)
source "$(dirname "$0")/common.sh"
mkdir SARE8
"$TOOL" table encipher "$DATA/eumorfo.txt" SARE8/eumorfo.txt
"$TOOL" table decipher SARE8/eumorfo.txt back.txt
cmp "$DATA/eumorfo.txt" back.txt || fail "round trip"
"$TOOL" table check SARE8/eumorfo.txt || fail "check of the enciphered table"
printf '0\ta\t1\n\nfinal: 1' > short.txt
status=0; "$TOOL" table encipher short.txt out.txt 2> why.txt || status=$?
[ $status = 1 ] && [ ! -e out.txt ] || fail "short lines accepted"
grep -q "short.txt:2: line under 5 bytes" why.txt || fail "short line not named: $(cat why.txt)"
"$TOOL" table encipher --repair short.txt SARE8-short.txt
"$TOOL" table check SARE8-short.txt || fail "repaired table has problems"
exit 0
