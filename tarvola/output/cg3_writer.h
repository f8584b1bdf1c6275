// Constraint Grammar (CG3) input text for an analysed paragraph: per
// sentence a header line and an opening "EBUK" pseudo-cohort, one cohort
// per token with its distinct readings numbered "<id=N>" in byte order,
// and a closing "EBUK" cohort.
#ifndef TARVOLA_OUTPUT_CG3_WRITER_H
#define TARVOLA_OUTPUT_CG3_WRITER_H

#include <ostream>

#include "tarvola/text/Paragrafoa.h"

namespace tarvola::output {

// atributuak adds each reading's mark values (" <s=X h=Y e=Z>").
void write_cg3(std::ostream& out, const Paragrafoa& paragrafoa, bool atributuak);

}  // namespace tarvola::output

#endif
