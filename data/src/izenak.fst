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

$GUESSED_NAMES$ = $IZ_NAME$ $IZ_GUESS$ $IZ_ENDINGS$ | \
  $IZ_HNAME$ $IZ_GUESS$ <>:\- ($LV$ | $LCV$ | $LCT$ | {<NUMS><ABS>}:{a} | {<NUMS><ERG>}:{ak} | \
    {<NUMP><ABS>}:{ak} | {<NUMS><INE>}:{an} | {<NUMS><INE>}:{ean})
