% The demo main network: a few hundred forms of everyday Basque, authored
% by the project, with the same tags as the converted main network
% (data/TAGS.md), so that every reading ends the way the main network's
% does (etxe<IZE><ARR><MG><ABS>, izan<ADT><PRI><NR_HU><BUK>). It is what the tool runs on when the main network cannot
% be built (no Apertium data and toolkits on the machine); it keeps the
% pipeline's own needs: punctuation and abbreviations with their period.

#include "endings.fst"

% common nouns: stems ending in e, i, o, u / in a consonant / in an a that
% belongs to the word
$NV$ = etxe | mendi | herri | kale | liburu | euri | hiri | ume | seme
$NOUN$ = ($NV$ | urte | emakume | ikasle) <IZE>:<> <ARR>:<> $V$ | \
         (lagun | gizon | egun | hitz | mutil) <IZE>:<> <ARR>:<> $C$ | \
         {txakur}:{txakurr} <IZE>:<> <ARR>:<> $CV$ | txakur <IZE>:<> <ARR>:<> $BARE$ | \
         (neska | ama | aita | eskola | etxola | hizkuntza) <IZE>:<> <ARR>:<> $A$ | \
         {neska}:{nesk} <IZE>:<> <ARR>:<> $PL$ | {ama}:{am} <IZE>:<> <ARR>:<> $PL$ | \
         {aita}:{ait} <IZE>:<> <ARR>:<> $PL$ | {eskola}:{eskol} <IZE>:<> <ARR>:<> $PL$ | \
         {hizkuntza}:{hizkuntz} <IZE>:<> <ARR>:<> $PL$

$ADJ$ = {zahar}:{zaharr} <ADJ>:<> <IZO>:<> $CV$ | zahar <ADJ>:<> <IZO>:<> $BARE$ | \
        (polit | on) <ADJ>:<> <IZO>:<> $C$ | \
        (handi | txiki | berri) <ADJ>:<> <IZO>:<> $V$

% proper nouns: places and people
$PROP$ = ({Bilbo}:{bilbo} | {Donostia}:{donostia} | {Gasteiz}:{gasteiz}) <IZE>:<> <LIB>:<> $LV$ | \
         {Paris}:{paris} <IZE>:<> <LIB>:<> ($BARE$ | $LCV$ | $LCT$) | \
         {Ane}:{ane} <IZE>:<> <PIB>:<> $PV$ | {Jon}:{jon} <IZE>:<> <PIB>:<> ($BARE$ | $PCV$)

% verbs: participle, future, verbal noun
$VERB$ = (hartu | ikusi | etorri | ikasi) <ADI>:<> <PART>:<> $PART_V$ | \
         (egin | joan | esan | jan) <ADI>:<> <PART>:<> $PART_N$ | \
         {egin}:{egite} <ADI>:<> <ADI_IZE>:<> $VN$ | {hartu}:{hartze} <ADI>:<> <ADI_IZE>:<> $VN$ | \
         {ikusi}:{ikuste} <ADI>:<> <ADI_IZE>:<> $VN$ | {joan}:{joate} <ADI>:<> <ADI_IZE>:<> $VN$

% function words and finite verbs
$FUNC$ = eta<LOT>:<><LOK>:<> | edo<LOT>:<><LOK>:<> | baina<LOT>:<><LOK>:<> | \
  (ez | bai | ere | gaur | orain | gero | hemen | han) <ADB>:<> <BUK>:<> | oso<ADB>:<><ARAU>:<> | \
  bat<DET>:<><ZNB>:<><NUMS>:<><ABS>:<> | bi<DET>:<><ZNB>:<><NUMP>:<><ABS>:<> | \
  (hau | hori | hura) <DET>:<><ERKARR>:<><NUMS>:<><ABS>:<> | \
  ni<IOR>:<><PERARR>:<><PER1>:<><NUMS>:<><ABS>:<> | zu<IOR>:<><PERARR>:<><PER2>:<><NUMS>:<><ABS>:<> | \
  {ni}:{nire}<IOR>:<><PERARR>:<><PER1>:<><NUMS>:<><GEN>:<> $BARE$ | \
  (zer | nor) <IOR>:<><GAL>:<><NUMS>:<><ABS>:<> | (non | nola) <ADB>:<><GAL>:<><BUK>:<> | \
  {izan}:{da}<ADT>:<><PRI>:<><NR_HU>:<><BUK>:<> | {izan}:{dira}<ADT>:<><PRI>:<><NR_HK>:<><BUK>:<> | \
  {izan}:{naiz}<ADT>:<><PRI>:<><NR_NI>:<><BUK>:<> | \
  {izan}:{zen}<ADT>:<><PII>:<><NR_HU>:<><BUK>:<> | {izan}:{ziren}<ADT>:<><PII>:<><NR_HK>:<><BUK>:<> | \
  {edun}:{du}<ADT>:<><PRI>:<><NR_HU>:<><NK_HU>:<><BUK>:<> | \
  {edun}:{dut}<ADT>:<><PRI>:<><NR_HU>:<><NK_NI>:<><BUK>:<> | \
  {edun}:{dute}<ADT>:<><PRI>:<><NR_HU>:<><NK_HK>:<><BUK>:<> | \
  {edun}:{zuen}<ADT>:<><PII>:<><NR_HU>:<><NK_HU>:<><BUK>:<> | \
  {egon}:{dago}<ADT>:<><PRI>:<><NR_HU>:<><BUK>:<> | {egon}:{daude}<ADT>:<><PRI>:<><NR_HK>:<><BUK>:<>

% punctuation and abbreviations with their period
$PUNCT$ = (\. | \, | \: | \; | \! | \? | ¡ | ¿ | \( | \) | \[ | \] | \" | « | » | \- | \/) <PUN>:<>
$ABBR$ = (etab\. | adib\. | or\. | zk\. | ik\. | arg\. | k\.) <LAB>:<>

$NOUN$ | $ADJ$ | $PROP$ | $VERB$ | $FUNC$ | $PUNCT$ | $ABBR$
