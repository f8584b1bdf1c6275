// The correction document of an analysed paragraph: every token with its
// verdict.
//
//   <p>
//   <es ezk="J" pzk="0">          one per sentence, J counted from 1
//   <tok h="K" z="32|0">          one per token; z="32" when a blank follows
//   	<frm>FORM</frm>
//   	VERDICT
//   </tok>
//   </es>
//   </p>
//
// The verdict is "ok" when some reading is standard, a list of "hobe" /
// "erabili" replacements when the readings are non-standard, and an "ezz"
// list of suggestions for an unknown token (one reading, tags " EZZG").
// Replacements come from the reading's own network; prefix search,
// suggestions and the form of an unknown replacement are the engine's and
// reach the writer through BrindelServices, so this file knows nothing of
// the engine.
#ifndef TARVOLA_OUTPUT_BRINDEL_WRITER_H
#define TARVOLA_OUTPUT_BRINDEL_WRITER_H

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/text/Esaldia.h"

namespace tarvola::output {

struct BrindelServices {
  // The standard readings of the words a text begins (text given with its
  // trailing blank); their forma fields are offered as suggestions.
  std::function<std::vector<Analisia>(const std::string&)> prefix_search;
  // Spellings proposed for an unknown word; asked only when proposamenak.
  std::function<std::vector<std::string>(const std::string&)> suggestions;
  // The form of an unknown replacement lemma with the given tag list.
  std::function<std::string(const std::string&, const std::string&)> unknown_form;
  // Networks by name, for replacing a non-standard reading's form. A
  // reading whose network is not here gets no replacement from it.
  const SareMapa* networks = nullptr;
  bool proposamenak = false;
};

void write_brindel(std::ostream& out, const std::vector<Esaldia>& esaldiak,
                   const BrindelServices& services);

}  // namespace tarvola::output

#endif
