% Inflectional endings shared by the project's SFST sources (hp.fst,
% osag0.fst, zuzenketak.fst, demo.fst). Each variable is a set of
% analysis:surface strings that follows a stem; the tag conventions are
% those of data/TAGS.md. A nominal form is one number and one case: <MG>
% indefinite, <NUMS> singular, <NUMP> plural; <ABS> absolutive. A bare
% noun or adjective is the indefinite absolutive (etxe: <MG><ABS>), and so
% is a bare -ko or -en form, which can be declined again (etxeko:
% <NUMS><GEL><MG><ABS>). A case after which the main network can go on
% (etxerako, aurrerago) and the verb forms that can take more are closed
% with <BUK>. So no reading is the beginning of another one of the same
% stem, and generating a reading gives its own form only.
%
% Compiled with the folder data/src as the working directory, so that
% "#include" finds this file.

% A form without ending: the indefinite absolutive.
$BARE$ = <MG>:<> <ABS>:<>

% ----- common nouns and adjectives ------------------------------------

% Stem ending in e, i, o, u (etxe, mendi, zulo, buru).
$V$ = $BARE$ | \
  {<MG><ERG>}:{k} | {<MG><DAT>}:{ri} | {<MG><GEN><MG><ABS>}:{ren} | {<MG><SOZ><BUK>}:{rekin} | \
  {<MG><DES><BUK>}:{rentzat} | {<MG><INS><BUK>}:{z} | {<MG><INE>}:{tan} | {<MG><ALA><BUK>}:{tara} | \
  {<MG><ABL><BUK>}:{tatik} | {<MG><GEL><MG><ABS>}:{tako} | {<MG><PAR><BUK>}:{rik} | {<MG><MOT><BUK>}:{gatik} | \
  {<MG><MOT><BUK>}:{rengatik} | \
  {<NUMS><ABS>}:{a} | {<NUMS><ERG>}:{ak} | {<NUMS><DAT>}:{ari} | \
  {<NUMS><GEN><MG><ABS>}:{aren} | {<NUMS><SOZ><BUK>}:{arekin} | \
  {<NUMS><DES><BUK>}:{arentzat} | {<NUMS><INS><BUK>}:{az} | {<NUMS><INE>}:{an} | \
  {<NUMS><ALA><BUK>}:{ra} | {<NUMS><ABL><BUK>}:{tik} | {<NUMS><GEL><MG><ABS>}:{ko} | \
  {<NUMS><MOT><BUK>}:{arengatik} | {<NUMS><MOT><BUK>}:{agatik} | \
  {<NUMP><ABS>}:{ak} | {<NUMP><ERG>}:{ek} | {<NUMP><DAT>}:{ei} | \
  {<NUMP><GEN><MG><ABS>}:{en} | {<NUMP><SOZ><BUK>}:{ekin} | {<NUMP><DES><BUK>}:{entzat} | \
  {<NUMP><INS><BUK>}:{ez} | {<NUMP><INE>}:{etan} | {<NUMP><ALA><BUK>}:{etara} | \
  {<NUMP><ABL><BUK>}:{etatik} | {<NUMP><GEL><MG><ABS>}:{etako} | {<NUMP><MOT><BUK>}:{engatik}

% Plural endings that follow a consonant or the stem of a word whose final
% a belongs to it (nesk- of neska: neskak, neskei, nesketan).
$PL$ = \
  {<NUMP><ABS>}:{ak} | {<NUMP><ERG>}:{ek} | {<NUMP><DAT>}:{ei} | \
  {<NUMP><GEN><MG><ABS>}:{en} | {<NUMP><SOZ><BUK>}:{ekin} | {<NUMP><DES><BUK>}:{entzat} | \
  {<NUMP><INS><BUK>}:{ez} | {<NUMP><INE>}:{etan} | {<NUMP><ALA><BUK>}:{etara} | \
  {<NUMP><ABL><BUK>}:{etatik} | {<NUMP><GEL><MG><ABS>}:{etako} | {<NUMP><MOT><BUK>}:{engatik}

% Stem ending in a that belongs to the word (neska): the article merges
% with it, so the singular looks like the indefinite.
$A$ = $BARE$ | \
  {<MG><ERG>}:{k} | {<MG><DAT>}:{ri} | {<MG><GEN><MG><ABS>}:{ren} | {<MG><SOZ><BUK>}:{rekin} | \
  {<MG><DES><BUK>}:{rentzat} | {<MG><INS><BUK>}:{z} | {<MG><INE>}:{tan} | {<MG><ALA><BUK>}:{tara} | \
  {<MG><ABL><BUK>}:{tatik} | {<MG><GEL><MG><ABS>}:{tako} | {<MG><PAR><BUK>}:{rik} | {<MG><MOT><BUK>}:{gatik} | \
  {<MG><MOT><BUK>}:{rengatik} | \
  <NUMS>:<> <ABS>:<> | {<NUMS><ERG>}:{k} | {<NUMS><DAT>}:{ri} | \
  {<NUMS><GEN><MG><ABS>}:{ren} | {<NUMS><SOZ><BUK>}:{rekin} | \
  {<NUMS><DES><BUK>}:{rentzat} | {<NUMS><INS><BUK>}:{z} | {<NUMS><INE>}:{n} | \
  {<NUMS><ALA><BUK>}:{ra} | {<NUMS><ABL><BUK>}:{tik} | {<NUMS><GEL><MG><ABS>}:{ko} | \
  {<NUMS><MOT><BUK>}:{rengatik} | {<NUMS><MOT><BUK>}:{gatik}

% Endings that begin with a vowel after a consonant-final stem (lagun,
% and txakurr- of txakur, whose r doubles before a vowel).
$CV$ = \
  {<MG><ERG>}:{ek} | {<MG><DAT>}:{i} | {<MG><GEN><MG><ABS>}:{en} | {<MG><SOZ><BUK>}:{ekin} | \
  {<MG><DES><BUK>}:{entzat} | {<MG><INS><BUK>}:{ez} | {<MG><INE>}:{etan} | {<MG><ALA><BUK>}:{etara} | \
  {<MG><ABL><BUK>}:{etatik} | {<MG><GEL><MG><ABS>}:{etako} | {<MG><PAR><BUK>}:{ik} | {<MG><MOT><BUK>}:{engatik} | \
  {<NUMS><ABS>}:{a} | {<NUMS><ERG>}:{ak} | {<NUMS><DAT>}:{ari} | \
  {<NUMS><GEN><MG><ABS>}:{aren} | {<NUMS><SOZ><BUK>}:{arekin} | \
  {<NUMS><DES><BUK>}:{arentzat} | {<NUMS><INS><BUK>}:{az} | {<NUMS><INE>}:{ean} | \
  {<NUMS><ALA><BUK>}:{era} | {<NUMS><ABL><BUK>}:{etik} | {<NUMS><GEL><MG><ABS>}:{eko} | \
  {<NUMS><MOT><BUK>}:{arengatik} | {<NUMS><MOT><BUK>}:{agatik} | \
  $PL$

% Consonant-final stem other than r (lagun, gizon, ohitura... -> lagun).
$C$ = $BARE$ | $CV$

% Adjective degrees (handiago, handien, handiegi); the personal dictionary
% always files these stems under a key another class already holds, so
% they are reached only through generation of the class itself.
$GRA$ = {<GRA><KONP><MG><ABS>}:{ago} | {<GRA><SUP><MG><ABS>}:{en} | {<GRA><GEH><MG><ABS>}:{egi}

% ----- proper nouns --------------------------------------------------------

% People: no article, the local cases are the animate ones (-gan).
$PV$ = $BARE$ | \
  {<MG><ERG>}:{k} | {<MG><DAT>}:{ri} | {<MG><GEN><MG><ABS>}:{ren} | {<MG><SOZ><BUK>}:{rekin} | \
  {<MG><DES><BUK>}:{rentzat} | {<MG><INS><BUK>}:{z} | {<MG><MOT><BUK>}:{rengatik} | \
  {<MG><INE>}:{rengan} | {<MG><ALA><BUK>}:{rengana} | {<MG><ABL><BUK>}:{rengandik} | \
  {<MG><PAR><BUK>}:{rik}
$PCV$ = \
  {<MG><ERG>}:{ek} | {<MG><DAT>}:{i} | {<MG><GEN><MG><ABS>}:{en} | {<MG><SOZ><BUK>}:{ekin} | \
  {<MG><DES><BUK>}:{entzat} | {<MG><INS><BUK>}:{ez} | {<MG><MOT><BUK>}:{engatik} | \
  {<MG><INE>}:{engan} | {<MG><ALA><BUK>}:{engana} | {<MG><ABL><BUK>}:{engandik} | \
  {<MG><PAR><BUK>}:{ik}

% Places and other names: no article; local cases without -eta-.
$LV$ = $BARE$ | \
  {<MG><ERG>}:{k} | {<MG><DAT>}:{ri} | {<MG><GEN><MG><ABS>}:{ren} | {<MG><SOZ><BUK>}:{rekin} | \
  {<MG><DES><BUK>}:{rentzat} | {<MG><INS><BUK>}:{z} | {<MG><MOT><BUK>}:{rengatik} | \
  {<MG><INE>}:{n} | {<MG><ALA><BUK>}:{ra} | {<MG><ABL><BUK>}:{tik} | {<MG><GEL><MG><ABS>}:{ko} | \
  {<MG><PAR><BUK>}:{rik}
% After a consonant the vowel-initial endings (Paris: Parisek, Parisen,
% Parisera).
$LCV$ = \
  {<MG><ERG>}:{ek} | {<MG><DAT>}:{i} | {<MG><GEN><MG><ABS>}:{en} | {<MG><SOZ><BUK>}:{ekin} | \
  {<MG><DES><BUK>}:{entzat} | {<MG><INS><BUK>}:{ez} | {<MG><MOT><BUK>}:{engatik} | \
  {<MG><INE>}:{en} | {<MG><ALA><BUK>}:{era} | {<MG><PAR><BUK>}:{ik}
% The ablative and -ko right after the consonant (Paristik, Parisko).
$LCT$ = {<MG><ABL><BUK>}:{tik} | {<MG><GEL><MG><ABS>}:{ko}

% ----- verbs ---------------------------------------------------------------

% Verbal noun (egite, hartze): declined as a singular noun, plus the
% imperfective -n (egiten) and the indefinite local cases it takes.
$VN$ = $BARE$ | \
  {<NUMS><ABS>}:{a} | {<NUMS><ERG>}:{ak} | {<NUMS><DAT>}:{ari} | \
  {<NUMS><GEN><MG><ABS>}:{aren} | {<NUMS><SOZ><BUK>}:{arekin} | \
  {<NUMS><DES><BUK>}:{arentzat} | {<NUMS><INS><BUK>}:{az} | {<NUMS><INE>}:{an} | \
  {<NUMS><MOT><BUK>}:{agatik} | {<NUMS><MOT><BUK>}:{arengatik} | \
  {<EZBU><BUK>}:{n} | {<MG><GEL><MG><ABS>}:{ko} | {<MG><ALA><BUK>}:{ra} | {<MG><ABL><BUK>}:{tik} | \
  {<MG><INS><BUK>}:{z} | {<MG><PAR><BUK>}:{rik}

% Participle ending in a vowel (hartu, ikusi), in n (egin, jan), in l (hil);
% the bare participle is a verb form, closed with <BUK>.
$PART_V$ = <BUK>:<> | {<GERO>}:{ko} | {<MOD><BUK>}:{ta} | {<MG><PAR><BUK>}:{rik} | \
  {<NUMS><ABS>}:{a} | {<NUMP><ABS>}:{ak} | {<MG><INS><BUK>}:{z} | {<MOD><MG><GEL><MG><ABS>}:{tako}
$PART_N$ = <BUK>:<> | {<GERO>}:{go} | {<MOD><BUK>}:{da} | {<MG><PAR><BUK>}:{ik} | \
  {<NUMS><ABS>}:{a} | {<NUMP><ABS>}:{ak} | {<MG><INS><BUK>}:{ez} | {<MOD><MG><GEL><MG><ABS>}:{dako}
$PART_L$ = <BUK>:<> | {<GERO>}:{ko} | {<MOD><BUK>}:{da} | {<MG><PAR><BUK>}:{ik} | \
  {<NUMS><ABS>}:{a} | {<NUMP><ABS>}:{ak} | {<MG><INS><BUK>}:{ez} | {<MOD><MG><GEL><MG><ABS>}:{dako}

