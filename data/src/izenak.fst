% Guessed proper nouns, part of the compound network "osag0" (osag0.fst
% includes this file), which the sentence analysis consults only when no
% other network reads a word: a word written with a capital that nothing
% knows (Xabierrek, Bidenek, Parisen, EITBko) is read as a name plus one of
% the endings proper nouns take, and a name or number, a hyphen and an
% ending, which the tokeniser splits in three, are joined into one token
% (Rijkaard-ek, COVID-19ak, 2023-an).
%
% The readings are proper nouns (<IZB>), which the lookup refuses to a word
% written in lower case, and guesses (<ASMATUA>, "guessed"): its "MAT"
% keeps the validity check from ever counting them, so a guess never makes
% a misspelling valid, never makes a suggestion, and the correction
% document takes the word as a name ("ok") only in running text. The table
% spells surfaces in lower case, so the guessed lemma is the name in lower
% case. A table cannot see where a word stands: the capitalised first word
% of a sentence is guessed too when nothing knows it.

$IZ_L$ = [a-zñçàáèéìíòóùúïü]
$IZ_D$ = [0-9]
% A name of at least two letters; before a hyphen also a number or a name
% holding digits and hyphens of its own (COVID-19).
$IZ_NAME$ = $IZ_L$ $IZ_L$+
$IZ_HNAME$ = ($IZ_L$ | $IZ_D$)+ (\- ($IZ_L$ | $IZ_D$)+)*

$IZ_GUESS$ = <IZE>:<> <IZB>:<> <ASMATUA>:<>

% Vowel-initial endings after a consonant (Bidenek), consonant-initial ones
% after a vowel (Pagadik), and both after an acronym (EITBko, AEBn), whose
% letters are read one by one: the stem's last letter is not checked.
$IZ_ENDINGS$ = $LV$ | $LCV$ | $LCT$

% After a hyphen, a foreign name ending in a consonant also takes -eko and
% -etik (Euspot-eko, Bakersfield-etik).
$IZ_HYPHENED$ = $LV$ | $LCV$ | $LCT$ | {<NUMS><ABS>}:{a} | {<NUMS><ERG>}:{ak} | \
  {<NUMP><ABS>}:{ak} | {<NUMS><INE>}:{an} | {<NUMS><INE>}:{ean} | \
  {<MG><GEL><MG><ABS>}:{eko} | {<MG><ABL><BUK>}:{etik}

% A case ending standing alone: written after the closing quote of a title
% ("Hitzokei"n, 'Maldita'ren, "Hitzokei"ra), it is a token of its own. Read
% as a guessed suffix (<ATZ>, lemma the ending): the "MAT" of <ASMATUA>
% keeps the validity check from accepting the bare ending, so only the
% correction document of running text takes it.
$IZ_SUFFIX$ = <ATZ>:<> <ASMATUA>:<>
$IZ_ALONE$ = \
  {n}:{n} $IZ_SUFFIX$ <MG>:<> <INE>:<> | {en}:{en} $IZ_SUFFIX$ <MG>:<> <GEN>:<> | \
  {ren}:{ren} $IZ_SUFFIX$ <MG>:<> <GEN>:<> | {ra}:{ra} $IZ_SUFFIX$ <MG>:<> <ALA>:<> | \
  {era}:{era} $IZ_SUFFIX$ <MG>:<> <ALA>:<> | {ko}:{ko} $IZ_SUFFIX$ <MG>:<> <GEL>:<> | \
  {eko}:{eko} $IZ_SUFFIX$ <MG>:<> <GEL>:<> | {tik}:{tik} $IZ_SUFFIX$ <MG>:<> <ABL>:<> | \
  {etik}:{etik} $IZ_SUFFIX$ <MG>:<> <ABL>:<> | {k}:{k} $IZ_SUFFIX$ <MG>:<> <ERG>:<> | \
  {ek}:{ek} $IZ_SUFFIX$ <MG>:<> <ERG>:<> | {ri}:{ri} $IZ_SUFFIX$ <MG>:<> <DAT>:<> | \
  {rekin}:{rekin} $IZ_SUFFIX$ <MG>:<> <SOZ>:<> | {ekin}:{ekin} $IZ_SUFFIX$ <MG>:<> <SOZ>:<> | \
  {rentzat}:{rentzat} $IZ_SUFFIX$ <MG>:<> <DES>:<> | {z}:{z} $IZ_SUFFIX$ <MG>:<> <INS>:<> | \
  {a}:{a} $IZ_SUFFIX$ <NUMS>:<> <ABS>:<> | {ak}:{ak} $IZ_SUFFIX$ <NUMS>:<> <ERG>:<> | \
  {an}:{an} $IZ_SUFFIX$ <NUMS>:<> <INE>:<> | {ean}:{ean} $IZ_SUFFIX$ <NUMS>:<> <INE>:<> | \
  {aren}:{aren} $IZ_SUFFIX$ <NUMS>:<> <GEN>:<> | {ari}:{ari} $IZ_SUFFIX$ <NUMS>:<> <DAT>:<> | \
  {arekin}:{arekin} $IZ_SUFFIX$ <NUMS>:<> <SOZ>:<>

$GUESSED_NAMES$ = $IZ_NAME$ $IZ_GUESS$ $IZ_ENDINGS$ | $IZ_HNAME$ $IZ_GUESS$ <>:\- $IZ_HYPHENED$ | $IZ_ALONE$
