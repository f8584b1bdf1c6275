% Endings of the personal dictionary's paradigm classes <hp1> .. <hp25>.
%
% The personal dictionary looks a word up as the class symbol followed by
% the lower-cased ending that is left once the stored stem is taken off
% ("etxean" with the stem "etxe" of class <hp1> becomes "<hp1>an"), and it
% generates a class's forms from the class symbol alone. So every path
% starts with the class symbol on both sides; the analysis side goes on with
% the inflection tags, the surface side with the ending.
%
% Tags (data/TAGS.md), as the main network writes them after the same
% category: number <MG> indefinite, <NUMS> singular, <NUMP> plural; cases
% <ABS> <ERG> <DAT> <GEN> <SOZ> (comitative) <DES> (benefactive/
% destinative) <INS> <INE> <ALA> <ABL> <GEL> (-ko) <PAR> (partitive) <MOT>
% (motivative), with <MG><ABS> after a bare -ko or -en form and <BUK> after
% the cases and verb forms that the main network can extend.
% Strings are written analysis:surface; SFST pairs them symbol by symbol,
% which changes nothing in the strings that lookup emits.

#include "endings.fst"

% ----- the classes ---------------------------------------------------------

<hp1> $V$ | <hp2> $PL$ | <hp3> $A$ | <hp4> $C$ | <hp5> $CV$ | <hp6> $BARE$ | \
<hp7> $GRA$ | \
<hp8> $PV$ | <hp9> ($BARE$ | $PCV$) | <hp10> $BARE$ | <hp11> $PCV$ | \
<hp12> $LV$ | <hp13> ($BARE$ | $LCV$ | $LCT$) | <hp14> $BARE$ | \
<hp15> ($LCV$ | {<MG><ABL><BUK>}:{etik} | {<MG><GEL><MG><ABS>}:{eko}) | \
<hp16> $LV$ | <hp17> ($BARE$ | $LCV$ | $LCT$) | \
<hp18> $LCT$ | <hp19> ($BARE$ | $LCV$) | \
<hp20> $VN$ | <hp21> $PART_V$ | <hp22> $PART_N$ | <hp23> $PART_L$ | \
<hp24> <> | \
<hp25> ($BARE$ | $LCV$ | {<MG><ABL><BUK>}:{dik} | {<MG><GEL><MG><ABS>}:{go})
