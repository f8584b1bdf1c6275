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
printf '%s\n' etxea etxeak etxean mendia mendiak katuan bilboa etxe xyz > words.txt
hfst-invert nouns.hfst -o analyser.hfst
hfst-lookup -q analyser.hfst < words.txt 2>/dev/null | awk -F'\t' 'NF>=2 && $2 !~ /\+\?$/ {print $1 "\t" $2}' | sort -u > want.txt
import_and_compare att
exit 0
