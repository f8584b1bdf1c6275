% Inflectional endings shared by the project's SFST sources (hp.fst,
% osag0.fst, zuzenketak.fst, demo.fst). Each variable is a set of
% analysis:surface strings that follows a stem; the tag conventions are
% those of data/TAGS.md: <NUMS> singular, <NUMP> plural, no number tag for
% the indefinite; the absolutive carries no case tag.
%
% Compiled with the folder data/src as the working directory, so that
% "#include" finds this file.

% ----- common nouns and adjectives ------------------------------------

% Stem ending in e, i, o, u (etxe, mendi, zulo, buru).
$V$ = <> | \
  {<ERG>}:{k} | {<DAT>}:{ri} | {<GEN>}:{ren} | {<SOZ>}:{rekin} | \
  {<DES>}:{rentzat} | {<INS>}:{z} | {<INE>}:{tan} | {<ALA>}:{tara} | \
  {<ABL>}:{tatik} | {<GEL>}:{tako} | {<PAR>}:{rik} | {<MOT>}:{gatik} | \
  {<MOT>}:{rengatik} | \
  {<NUMS>}:{a} | {<NUMS><ERG>}:{ak} | {<NUMS><DAT>}:{ari} | \
  {<NUMS><GEN>}:{aren} | {<NUMS><SOZ>}:{arekin} | \
  {<NUMS><DES>}:{arentzat} | {<NUMS><INS>}:{az} | {<NUMS><INE>}:{an} | \
  {<NUMS><ALA>}:{ra} | {<NUMS><ABL>}:{tik} | {<NUMS><GEL>}:{ko} | \
  {<NUMS><MOT>}:{arengatik} | {<NUMS><MOT>}:{agatik} | \
  {<NUMP>}:{ak} | {<NUMP><ERG>}:{ek} | {<NUMP><DAT>}:{ei} | \
  {<NUMP><GEN>}:{en} | {<NUMP><SOZ>}:{ekin} | {<NUMP><DES>}:{entzat} | \
  {<NUMP><INS>}:{ez} | {<NUMP><INE>}:{etan} | {<NUMP><ALA>}:{etara} | \
  {<NUMP><ABL>}:{etatik} | {<NUMP><GEL>}:{etako} | {<NUMP><MOT>}:{engatik}

% Plural endings that follow a consonant or the stem of a word whose final
% a belongs to it (nesk- of neska: neskak, neskei, nesketan).
$PL$ = \
  {<NUMP>}:{ak} | {<NUMP><ERG>}:{ek} | {<NUMP><DAT>}:{ei} | \
  {<NUMP><GEN>}:{en} | {<NUMP><SOZ>}:{ekin} | {<NUMP><DES>}:{entzat} | \
  {<NUMP><INS>}:{ez} | {<NUMP><INE>}:{etan} | {<NUMP><ALA>}:{etara} | \
  {<NUMP><ABL>}:{etatik} | {<NUMP><GEL>}:{etako} | {<NUMP><MOT>}:{engatik}

% Stem ending in a that belongs to the word (neska): the article merges
% with it, so the singular looks like the indefinite.
$A$ = <> | \
  {<ERG>}:{k} | {<DAT>}:{ri} | {<GEN>}:{ren} | {<SOZ>}:{rekin} | \
  {<DES>}:{rentzat} | {<INS>}:{z} | {<INE>}:{tan} | {<ALA>}:{tara} | \
  {<ABL>}:{tatik} | {<GEL>}:{tako} | {<PAR>}:{rik} | {<MOT>}:{gatik} | \
  {<MOT>}:{rengatik} | \
  <NUMS>:<> | {<NUMS><ERG>}:{k} | {<NUMS><DAT>}:{ri} | \
  {<NUMS><GEN>}:{ren} | {<NUMS><SOZ>}:{rekin} | \
  {<NUMS><DES>}:{rentzat} | {<NUMS><INS>}:{z} | {<NUMS><INE>}:{n} | \
  {<NUMS><ALA>}:{ra} | {<NUMS><ABL>}:{tik} | {<NUMS><GEL>}:{ko} | \
  {<NUMS><MOT>}:{rengatik} | {<NUMS><MOT>}:{gatik}

% Endings that begin with a vowel after a consonant-final stem (lagun,
% and txakurr- of txakur, whose r doubles before a vowel).
$CV$ = \
  {<ERG>}:{ek} | {<DAT>}:{i} | {<GEN>}:{en} | {<SOZ>}:{ekin} | \
  {<DES>}:{entzat} | {<INS>}:{ez} | {<INE>}:{etan} | {<ALA>}:{etara} | \
  {<ABL>}:{etatik} | {<GEL>}:{etako} | {<PAR>}:{ik} | {<MOT>}:{engatik} | \
  {<NUMS>}:{a} | {<NUMS><ERG>}:{ak} | {<NUMS><DAT>}:{ari} | \
  {<NUMS><GEN>}:{aren} | {<NUMS><SOZ>}:{arekin} | \
  {<NUMS><DES>}:{arentzat} | {<NUMS><INS>}:{az} | {<NUMS><INE>}:{ean} | \
  {<NUMS><ALA>}:{era} | {<NUMS><ABL>}:{etik} | {<NUMS><GEL>}:{eko} | \
  {<NUMS><MOT>}:{arengatik} | {<NUMS><MOT>}:{agatik} | \
  $PL$

% Consonant-final stem other than r (lagun, gizon, ohitura... -> lagun).
$C$ = <> | $CV$

% Adjective degrees (handiago, handien, handiegi); the personal dictionary
% always files these stems under a key another class already holds, so
% they are reached only through generation of the class itself.
$GRA$ = {<GRA><KONP>}:{ago} | {<GRA><SUP>}:{en} | {<GRA><GEH>}:{egi}

% ----- proper nouns --------------------------------------------------------

% People: no article, the local cases are the animate ones (-gan).
$PV$ = <> | \
  {<ERG>}:{k} | {<DAT>}:{ri} | {<GEN>}:{ren} | {<SOZ>}:{rekin} | \
  {<DES>}:{rentzat} | {<INS>}:{z} | {<MOT>}:{rengatik} | \
  {<INE>}:{rengan} | {<ALA>}:{rengana} | {<ABL>}:{rengandik} | \
  {<PAR>}:{rik}
$PCV$ = \
  {<ERG>}:{ek} | {<DAT>}:{i} | {<GEN>}:{en} | {<SOZ>}:{ekin} | \
  {<DES>}:{entzat} | {<INS>}:{ez} | {<MOT>}:{engatik} | \
  {<INE>}:{engan} | {<ALA>}:{engana} | {<ABL>}:{engandik} | \
  {<PAR>}:{ik}

% Places and other names: no article; local cases without -eta-.
$LV$ = <> | \
  {<ERG>}:{k} | {<DAT>}:{ri} | {<GEN>}:{ren} | {<SOZ>}:{rekin} | \
  {<DES>}:{rentzat} | {<INS>}:{z} | {<MOT>}:{rengatik} | \
  {<INE>}:{n} | {<ALA>}:{ra} | {<ABL>}:{tik} | {<GEL>}:{ko} | \
  {<PAR>}:{rik}
% After a consonant the vowel-initial endings (Paris: Parisek, Parisen,
% Parisera).
$LCV$ = \
  {<ERG>}:{ek} | {<DAT>}:{i} | {<GEN>}:{en} | {<SOZ>}:{ekin} | \
  {<DES>}:{entzat} | {<INS>}:{ez} | {<MOT>}:{engatik} | \
  {<INE>}:{en} | {<ALA>}:{era} | {<PAR>}:{ik}
% The ablative and -ko right after the consonant (Paristik, Parisko).
$LCT$ = {<ABL>}:{tik} | {<GEL>}:{ko}

% ----- verbs ---------------------------------------------------------------

% Verbal noun (egite, hartze): declined as a singular noun, plus the
% imperfective -n (egiten) and the indefinite local cases it takes.
$VN$ = <> | \
  {<NUMS>}:{a} | {<NUMS><ERG>}:{ak} | {<NUMS><DAT>}:{ari} | \
  {<NUMS><GEN>}:{aren} | {<NUMS><SOZ>}:{arekin} | \
  {<NUMS><DES>}:{arentzat} | {<NUMS><INS>}:{az} | {<NUMS><INE>}:{an} | \
  {<NUMS><MOT>}:{agatik} | {<NUMS><MOT>}:{arengatik} | \
  {<EZBU>}:{n} | {<GEL>}:{ko} | {<ALA>}:{ra} | {<ABL>}:{tik} | \
  {<INS>}:{z} | {<PAR>}:{rik}

% Participle ending in a vowel (hartu, ikusi), in n (egin, jan), in l (hil).
$PART_V$ = <> | {<GERO>}:{ko} | {<MOD>}:{ta} | {<PAR>}:{rik} | \
  {<NUMS>}:{a} | {<NUMP>}:{ak} | {<INS>}:{z} | {<MOD><GEL>}:{tako}
$PART_N$ = <> | {<GERO>}:{go} | {<MOD>}:{da} | {<PAR>}:{ik} | \
  {<NUMS>}:{a} | {<NUMP>}:{ak} | {<INS>}:{ez} | {<MOD><GEL>}:{dako}
$PART_L$ = <> | {<GERO>}:{ko} | {<MOD>}:{da} | {<PAR>}:{ik} | \
  {<NUMS>}:{a} | {<NUMP>}:{ak} | {<INS>}:{ez} | {<MOD><GEL>}:{dako}

