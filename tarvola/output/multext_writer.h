// Multext-style lines for an analysed paragraph: per sentence a header
// line, then one line per token: the form, "BOS" / "EOS" / nothing, and
// the token's distinct readings ("lemma\+Tags") joined by "|".
#ifndef TARVOLA_OUTPUT_MULTEXT_WRITER_H
#define TARVOLA_OUTPUT_MULTEXT_WRITER_H

#include <ostream>

#include "tarvola/text/Paragrafoa.h"

namespace tarvola::output {

// Every line ends with std::endl, so a line reaches a pipe as soon as it is
// written. atributuak adds each reading's mark values ("<s=X h=Y e=Z>").
void write_multext(std::ostream& out, const Paragrafoa& paragrafoa, bool atributuak);

}  // namespace tarvola::output

#endif
