% Common non-standard spellings and forms, with the standard form to use
% instead, authored by the project (data/README.md lists them).
%
% A reading of a non-standard word carries the mark [h=STANDARD] ("better":
% dialectal, colloquial or old spellings of a standard word) or
% [e=STANDARD] ("use": borrowings and forms outside the standard). The
% standard form is also listed, with the same tags and mark: lookup drops
% a reading whose lemma is the word's own mark value, so the standard word
% gets no reading here, while generation with the replacement lemma finds
% its path and inflects it as the non-standard word was inflected.

#include "endings.fst"

% uninflected words: non-standard, then standard, with the same tags and mark
$H$ = \
  {nere<IOR><PERARR><GEN>\[h\=nire\]}:{nere} | \
  {nire<IOR><PERARR><GEN>\[h\=nire\]}:{nire} | \
  {bezela<POST>\[h\=bezala\]}:{bezela} | \
  {bezala<POST>\[h\=bezala\]}:{bezala} | \
  {ta<LOT><LOK>\[h\=eta\]}:{ta} | \
  {eta<LOT><LOK>\[h\=eta\]}:{eta} | \
  {zan<ADT>\[h\=zen\]}:{zan} | \
  {zen<ADT>\[h\=zen\]}:{zen} | \
  {det<ADL>\[h\=dut\]}:{det} | \
  {dut<ADL>\[h\=dut\]}:{dut} | \
  {dezu<ADL>\[h\=duzu\]}:{dezu} | \
  {duzu<ADL>\[h\=duzu\]}:{duzu} | \
  {degu<ADL>\[h\=dugu\]}:{degu} | \
  {dugu<ADL>\[h\=dugu\]}:{dugu} | \
  {dezute<ADL>\[h\=duzue\]}:{dezute} | \
  {duzue<ADL>\[h\=duzue\]}:{duzue} | \
  {ordun<ADB>\[h\=orduan\]}:{ordun} | \
  {orduan<ADB>\[h\=orduan\]}:{orduan} | \
  {emen<ADB>\[h\=hemen\]}:{emen} | \
  {hemen<ADB>\[h\=hemen\]}:{hemen} | \
  {geo<ADB>\[h\=gero\]}:{geo} | \
  {gero<ADB>\[h\=gero\]}:{gero} | \
  {hoiek<DET><ERKARR><NUMP>\[h\=horiek\]}:{hoiek} | \
  {horiek<DET><ERKARR><NUMP>\[h\=horiek\]}:{horiek} | \
  {hontan<DET><ERKARR><NUMS><INE>\[h\=honetan\]}:{hontan} | \
  {honetan<DET><ERKARR><NUMS><INE>\[h\=honetan\]}:{honetan} | \
  {hortan<DET><ERKARR><NUMS><INE>\[h\=horretan\]}:{hortan} | \
  {horretan<DET><ERKARR><NUMS><INE>\[h\=horretan\]}:{horretan} | \
  {zeatik<ADB><GAL>\[h\=zergatik\]}:{zeatik} | \
  {zergatik<ADB><GAL>\[h\=zergatik\]}:{zergatik}

$E$ = \
  {baño<LOT><LOK>\[e\=baino\]}:{baño} | \
  {baino<LOT><LOK>\[e\=baino\]}:{baino} | \
  {vale<ITJ>\[e\=ados\]}:{vale} | \
  {ados<ITJ>\[e\=ados\]}:{ados} | \
  {gracias<ITJ>\[e\=eskerrik\ asko\]}:{gracias} | \
  {eskerrikasko<ITJ>\[e\=eskerrik\ asko\]}:{eskerrikasko} | \
  {eskerrik\ asko<ITJ>\[e\=eskerrik\ asko\]}:{eskerrik\ asko} | \
  {osea<LOT><ADB>\[e\=hau\ da\]}:{osea} | \
  {hau\ da<LOT><ADB>\[e\=hau\ da\]}:{hau\ da}

% inflected: euskera (standard euskara), a-final common noun
$EUSK$ = \
  ({euskera<IZE><ARR>}:{euskera} $A$ | {euskera<IZE><ARR>}:{eusker} $PL$) \
    {\[h\=euskara\]}:<> | \
  ({euskara<IZE><ARR>}:{euskara} $A$ | {euskara<IZE><ARR>}:{euskar} $PL$) \
    {\[h\=euskara\]}:<>

$H$ | $E$ | $EUSK$
