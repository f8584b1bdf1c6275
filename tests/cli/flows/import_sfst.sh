# tarvola table import on a transducer compiled with SFST: every word that
# fst-infl analyses gets the same readings from tarvola.
source "$(dirname "$0")/common.sh"
skip_unless fst-compiler fst-print fst-infl
cat > nouns.fst <<'GRAMMAR'
$stem$ = etxe | mendi | katu | {Bilbo}:{bilbo}
$stem$ <IZE>:<> (<ABS>:<> (<NUMS>:<> <MUGM>:a | <NUMP>:<> <MUGM>:a <>:k) | <INE>:<> <NUMS>:<> <MUGM>:a <>:n)
GRAMMAR
fst-compiler nouns.fst nouns.a >/dev/null
fst-print nouns.a > nouns.att
printf '%s\n' etxea etxeak etxean mendia mendiak katuan bilboa etxe xyz > words.txt
# fst-infl: "> word" then one analysis a line, or "no result for word".
fst-infl nouns.a words.txt 2>/dev/null | awk '/^> /{w=substr($0,3); next} /^no result/{next} {print w "\t" $0}' | sort -u > want.txt
import_and_compare sfst
exit 0
