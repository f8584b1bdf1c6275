% The demo main network: a few hundred forms of everyday Basque, authored
% by the project, with the same tags as the converted main network
% (data/TAGS.md). It is what the tool runs on when the main network cannot
% be built (no Apertium data and toolkits on the machine); it keeps the
% pipeline's own needs: punctuation and abbreviations with their period.

#include "endings.fst"

% common nouns: stems ending in e, i, o, u / in a consonant / in an a that
% belongs to the word
$NV$ = etxe | mendi | herri | kale | liburu | euri | hiri | ume | seme
$NOUN$ = ($NV$ | urte | emakume | ikasle) <IZE>:<> <ARR>:<> $V$ | \
         (lagun | gizon | egun | hitz | mutil) <IZE>:<> <ARR>:<> $C$ | \
         {txakur}:{txakurr} <IZE>:<> <ARR>:<> $CV$ | txakur <IZE>:<> <ARR>:<> | \
         (neska | ama | aita | eskola | etxola | hizkuntza) <IZE>:<> <ARR>:<> $A$ | \
         {neska}:{nesk} <IZE>:<> <ARR>:<> $PL$ | {ama}:{am} <IZE>:<> <ARR>:<> $PL$ | \
         {aita}:{ait} <IZE>:<> <ARR>:<> $PL$ | {eskola}:{eskol} <IZE>:<> <ARR>:<> $PL$ | \
         {hizkuntza}:{hizkuntz} <IZE>:<> <ARR>:<> $PL$

$ADJ$ = (handi | txiki | berri | {zahar}:{zaharr} | polit | on) <ADJ>:<> <IZO>:<> $CV$ | \
        (handi | txiki | berri) <ADJ>:<> <IZO>:<> $V$ | \
        (zahar | polit | on) <ADJ>:<> <IZO>:<>

% proper nouns: places and people
$PROP$ = ({Bilbo}:{bilbo} | {Donostia}:{donostia} | {Gasteiz}:{gasteiz}) <IZE>:<> <LIB>:<> $LV$ | \
         {Paris}:{paris} <IZE>:<> <LIB>:<> (<> | $LCV$ | $LCT$) | \
         {Ane}:{ane} <IZE>:<> <PIB>:<> $PV$ | {Jon}:{jon} <IZE>:<> <PIB>:<> (<> | $PCV$)

% verbs: participle, future, verbal noun
$VERB$ = (hartu | ikusi | etorri | ikasi) <ADI>:<> <PART>:<> $PART_V$ | \
         (egin | joan | esan | jan) <ADI>:<> <PART>:<> $PART_N$ | \
         {egin}:{egite} <ADI>:<> <ADI_IZE>:<> $VN$ | {hartu}:{hartze} <ADI>:<> <ADI_IZE>:<> $VN$ | \
         {ikusi}:{ikuste} <ADI>:<> <ADI_IZE>:<> $VN$ | {joan}:{joate} <ADI>:<> <ADI_IZE>:<> $VN$

% function words and finite verbs
$FUNC$ = eta<LOT>:<><LOK>:<> | edo<LOT>:<><LOK>:<> | baina<LOT>:<><LOK>:<> | \
  ez<ADB>:<> | bai<ADB>:<> | ere<ADB>:<> | oso<ADB>:<><ARAU>:<> | \
  gaur<ADB>:<> | orain<ADB>:<> | gero<ADB>:<> | hemen<ADB>:<> | han<ADB>:<> | \
  bat<DET>:<><ZNB>:<><NUMS>:<> | bi<DET>:<><ZNB>:<><NUMP>:<> | \
  hau<DET>:<><ERKARR>:<><NUMS>:<> | hori<DET>:<><ERKARR>:<><NUMS>:<> | \
  hura<DET>:<><ERKARR>:<><NUMS>:<> | \
  ni<IOR>:<><PERARR>:<><PER1>:<><NUMS>:<> | zu<IOR>:<><PERARR>:<><PER2>:<><NUMS>:<> | \
  {nire}:{nire}<IOR>:<><PERARR>:<><GEN>:<> | \
  zer<IOR>:<><GAL>:<> | nor<IOR>:<><GAL>:<> | non<ADB>:<><GAL>:<> | \
  nola<ADB>:<><GAL>:<> | \
  {izan}:{da}<ADT>:<><PRI>:<> | {izan}:{dira}<ADT>:<><PRI>:<> | {izan}:{naiz}<ADT>:<><PRI>:<> | \
  {izan}:{zen}<ADT>:<><PII>:<> | {izan}:{ziren}<ADT>:<><PII>:<> | \
  {edun}:{du}<ADT>:<><PRI>:<> | {edun}:{dut}<ADT>:<><PRI>:<> | {edun}:{dute}<ADT>:<><PRI>:<> | \
  {edun}:{zuen}<ADT>:<><PII>:<> | {egon}:{dago}<ADT>:<><PRI>:<> | {egon}:{daude}<ADT>:<><PRI>:<>

% punctuation and abbreviations with their period
$PUNCT$ = (\. | \, | \: | \; | \! | \? | ¡ | ¿ | \( | \) | \[ | \] | \" | « | » | \- | \/) <PUN>:<>
$ABBR$ = (etab\. | adib\. | or\. | zk\. | ik\. | arg\. | k\.) <LAB>:<>

$NOUN$ | $ADJ$ | $PROP$ | $VERB$ | $FUNC$ | $PUNCT$ | $ABBR$
