% Compound and derivation components: a guesser for words the main network
% does not know, consulted only when nothing else recognises a word. It
% reads a stem of at least three letters followed by one of a few
% productive word-forming suffixes and inflects the result; the lemma is
% written "stem+suffix" (the analysis record drops the "+"), the tag <OSA>
% says the reading was put together here. Every such guess is also tagged
% <ASMATUA> ("guessed"): the stem is unknown, so its "MAT" keeps the
% validity check from counting it (a slip such as "aurkentu" would
% otherwise read as aurken+tsu, be valid and be offered as a suggestion),
% while running text still takes the word. The same suffixes after a known
% lemma are real words, derived in the main network
% (data/lexicon/suffixes.txt).

#include "endings.fst"
#include "izenak.fst"

$L$ = [a-zñ]
$STEM$ = $L$ $L$ $L$+

% nouns
$N$ = \
  {\+tasun<IZE><ARR><OSA><ASMATUA>}:{tasun} $C$ | \
  {\+tzaile<IZE><ARR><OSA><ASMATUA>}:{tzaile} $V$ | \
  {\+tegi<IZE><ARR><OSA><ASMATUA>}:{tegi} $V$ | \
  {\+kide<IZE><ARR><OSA><ASMATUA>}:{kide} $V$ | \
  {\+gile<IZE><ARR><OSA><ASMATUA>}:{gile} $V$ | \
  {\+keria<IZE><ARR><OSA><ASMATUA>}:{keria} $A$ | {\+keria<IZE><ARR><OSA><ASMATUA>}:{keri} $PL$ | \
  {\+gintza<IZE><ARR><OSA><ASMATUA>}:{gintza} $A$ | {\+gintza<IZE><ARR><OSA><ASMATUA>}:{gintz} $PL$

% adjectives
$J$ = \
  {\+garri<ADJ><IZO><OSA><ASMATUA>}:{garri} $V$ | \
  {\+tsu<ADJ><IZO><OSA><ASMATUA>}:{tsu} $V$ | \
  {\+zale<ADJ><IZO><OSA><ASMATUA>}:{zale} $V$ | \
  {\+ezin<ADJ><IZO><OSA><ASMATUA>}:{ezin} $C$ | \
  {\+gabe<ADJ><IZO><OSA><ASMATUA>}:{gabe} $V$

% -dun ends too many unrelated words to be offered
$R$ = \
  {\+dun<ADJ><IZO><OSA><Rare>}:{dun} $C$

$STEM$ ($N$ | $J$ | $R$) | $GUESSED_NAMES$
