% Compound and derivation components: a guesser for words the main network
% does not know, consulted only when nothing else recognises a word. It
% reads a stem of at least three letters followed by one of a few
% productive word-forming suffixes and inflects the result; the lemma is
% written "stem+suffix" (the analysis record drops the "+"), the tag <OSA>
% says the reading was put together here. Guesses for suffixes that often
% end unrelated words are also tagged <Rare>, which the pipeline does not
% offer.

#include "endings.fst"
#include "izenak.fst"

$L$ = [a-zñ]
$STEM$ = $L$ $L$ $L$+

% nouns
$N$ = \
  {\+tasun<IZE><ARR><OSA>}:{tasun} $C$ | \
  {\+tzaile<IZE><ARR><OSA>}:{tzaile} $V$ | \
  {\+tegi<IZE><ARR><OSA>}:{tegi} $V$ | \
  {\+kide<IZE><ARR><OSA>}:{kide} $V$ | \
  {\+gile<IZE><ARR><OSA>}:{gile} $V$ | \
  {\+keria<IZE><ARR><OSA>}:{keria} $A$ | {\+keria<IZE><ARR><OSA>}:{keri} $PL$ | \
  {\+gintza<IZE><ARR><OSA>}:{gintza} $A$ | {\+gintza<IZE><ARR><OSA>}:{gintz} $PL$

% adjectives
$J$ = \
  {\+garri<ADJ><IZO><OSA>}:{garri} $V$ | \
  {\+tsu<ADJ><IZO><OSA>}:{tsu} $V$ | \
  {\+zale<ADJ><IZO><OSA>}:{zale} $V$ | \
  {\+ezin<ADJ><IZO><OSA>}:{ezin} $C$ | \
  {\+gabe<ADJ><IZO><OSA>}:{gabe} $V$

% -dun ends too many unrelated words to be offered
$R$ = \
  {\+dun<ADJ><IZO><OSA><Rare>}:{dun} $C$

$STEM$ ($N$ | $J$ | $R$) | $GUESSED_NAMES$
