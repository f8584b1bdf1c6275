% Common non-standard spellings and forms, with the standard form to use
% instead, authored by the project (data/README.md lists them).
%
% A reading of a non-standard word carries the mark [h=STANDARD] ("better":
% dialectal, colloquial or old spellings of a standard word) or
% [e=STANDARD] ("use": borrowings and forms outside the standard). The
% standard form is also listed, with the same tags and mark: lookup drops
% a reading whose lemma is the word's own mark value, so the standard word
% gets no reading here, while generation with the replacement lemma finds
% its path and inflects it as the non-standard word was inflected. The
% standard paths end in <SNB>, which the lookup keeps only for a word that
% begins with the lemma exactly: a capitalised standard word ("Hau da",
% "Euskara" at the start of a sentence), which the case-sensitive drop
% would miss, is refused too. Generation still finds these paths, since its
% target (lemma and inflection tags) is a prefix of theirs. Every reading
% ends as the main network's does (data/TAGS.md: <MG><ABS> after a bare -en
% form, <ABS> after a bare number, <BUK> after adverbs, postpositions and
% finite verbs), so the tags of one form are never the beginning of those
% of another.

#include "endings.fst"

% uninflected words: non-standard, then standard, with the same tags and mark
$H$ = \
  {nere<IOR><PERARR><GEN><MG><ABS>\[h\=nire\]}:{nere} | \
  {nire<IOR><PERARR><GEN><MG><ABS><SNB>\[h\=nire\]}:{nire} | \
  {bezela<POST><BUK>\[h\=bezala\]}:{bezela} | \
  {bezala<POST><BUK><SNB>\[h\=bezala\]}:{bezala} | \
  {ta<LOT><LOK>\[h\=eta\]}:{ta} | \
  {eta<LOT><LOK><SNB>\[h\=eta\]}:{eta} | \
  {zan<ADT><PII><NR_HU><BUK>\[h\=zen\]}:{zan} | \
  {zen<ADT><PII><NR_HU><BUK><SNB>\[h\=zen\]}:{zen} | \
  {det<ADL>\[h\=dut\]}:{det} | \
  {dut<ADL><SNB>\[h\=dut\]}:{dut} | \
  {dezu<ADL>\[h\=duzu\]}:{dezu} | \
  {duzu<ADL><SNB>\[h\=duzu\]}:{duzu} | \
  {degu<ADL>\[h\=dugu\]}:{degu} | \
  {dugu<ADL><SNB>\[h\=dugu\]}:{dugu} | \
  {dezute<ADL>\[h\=duzue\]}:{dezute} | \
  {duzue<ADL><SNB>\[h\=duzue\]}:{duzue} | \
  {ordun<ADB><BUK>\[h\=orduan\]}:{ordun} | \
  {orduan<ADB><BUK><SNB>\[h\=orduan\]}:{orduan} | \
  {emen<ADB><BUK>\[h\=hemen\]}:{emen} | \
  {hemen<ADB><BUK><SNB>\[h\=hemen\]}:{hemen} | \
  {geo<ADB><BUK>\[h\=gero\]}:{geo} | \
  {gero<ADB><BUK><SNB>\[h\=gero\]}:{gero} | \
  {hoiek<DET><ERKARR><NUMP><ABS>\[h\=horiek\]}:{hoiek} | \
  {horiek<DET><ERKARR><NUMP><ABS><SNB>\[h\=horiek\]}:{horiek} | \
  {hontan<DET><ERKARR><NUMS><INE><BUK>\[h\=honetan\]}:{hontan} | \
  {honetan<DET><ERKARR><NUMS><INE><BUK><SNB>\[h\=honetan\]}:{honetan} | \
  {hortan<DET><ERKARR><NUMS><INE><BUK>\[h\=horretan\]}:{hortan} | \
  {horretan<DET><ERKARR><NUMS><INE><BUK><SNB>\[h\=horretan\]}:{horretan} | \
  {zeatik<ADB><GAL><BUK>\[h\=zergatik\]}:{zeatik} | \
  {zergatik<ADB><GAL><BUK><SNB>\[h\=zergatik\]}:{zergatik}

$E$ = \
  {baño<LOT><LOK>\[e\=baino\]}:{baño} | \
  {baino<LOT><LOK><SNB>\[e\=baino\]}:{baino} | \
  {vale<ITJ>\[e\=ados\]}:{vale} | \
  {ados<ITJ><SNB>\[e\=ados\]}:{ados} | \
  {gracias<ITJ>\[e\=eskerrik\ asko\]}:{gracias} | \
  {eskerrikasko<ITJ>\[e\=eskerrik\ asko\]}:{eskerrikasko} | \
  {eskerrik\ asko<ITJ><SNB>\[e\=eskerrik\ asko\]}:{eskerrik\ asko} | \
  {osea<LOT><ADB>\[e\=hau\ da\]}:{osea} | \
  {hau\ da<LOT><ADB><SNB>\[e\=hau\ da\]}:{hau\ da}

% inflected: euskera (standard euskara), a-final common noun
$EUSK$ = \
  ({euskera<IZE><ARR>}:{euskera} $A$ | {euskera<IZE><ARR>}:{eusker} $PL$) \
    {\[h\=euskara\]}:<> | \
  ({euskara<IZE><ARR>}:{euskara} $A$ | {euskara<IZE><ARR>}:{euskar} $PL$) \
    {<SNB>\[h\=euskara\]}:<>

$H$ | $E$ | $EUSK$
