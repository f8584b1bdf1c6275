# tarvola table import on a transducer compiled with HFST: every word that
# hfst-lookup analyses gets the same readings from tarvola.
source "$(dirname "$0")/common.sh"
skip_unless hfst-regexp2fst hfst-fst2txt hfst-invert hfst-lookup
cat > nouns.regexp <<'REGEXP'
[ {etxe} | {mendi} | {katu} | B:b {ilbo} ] %<IZE%>:0
  [ %<ABS%>:0 [ %<NUMS%>:0 %<MUGM%>:a | %<NUMP%>:0 %<MUGM%>:a 0:k ] | %<INE%>:0 %<NUMS%>:0 %<MUGM%>:a 0:n ] ;
REGEXP
hfst-regexp2fst -S nouns.regexp -o nouns.hfst
hfst-fst2txt nouns.hfst > nouns.att
"$TOOL" table import --from att nouns.att eumorfo.txt
"$TOOL" table check eumorfo.txt
echo eumorfo.txt > hfst.conf
words="etxea etxeak etxean mendia mendiak katuan bilboa etxe xyz"
for w in $words; do echo "$w"; done > words.txt
hfst-invert nouns.hfst -o analyser.hfst
hfst-lookup -q analyser.hfst < words.txt 2>/dev/null | awk -F'\t' 'NF>=2 && $2 !~ /\+\?$/ {print $1 "\t" $2}' | sort -u > want.txt
[ -s want.txt ] || fail "HFST analysed nothing"
tarvola_readings hfst.conf words.txt > got.txt
diff -u want.txt got.txt || fail "readings differ"
exit 0
