// The engine's correction document: the paragraph is analysed with the
// personal dictionary first, then written with the engine's own prefix
// search, suggestion search and unknown-form generation.
#include <sstream>
#include <stdexcept>

#include "tarvola/engine/Tarvola.h"
#include "tarvola/output/brindel_writer.h"

namespace tarvola {

std::string Tarvola::getParagrafoaBrindel(const std::string& testua, bool proposamenak) {
  Paragrafoa paragrafoa(1, testua);
  if (hp_ != nullptr) paragrafoa.analizatu(sareak_, *hp_, true);

  output::BrindelServices services;
  services.prefix_search = [this](const std::string& text) { return bilatuHasiera(text, true); };
  services.suggestions = [this](const std::string& word) { return lortu_ezzg_proposamenak(word); };
  // A malformed "hp" table can make the generated form shorter than its
  // class symbol; the document then keeps the replacement as it is rather
  // than losing the whole paragraph to the cut's out-of-range error.
  services.unknown_form = [this](const std::string& lemma, const std::string& tags) {
    try {
      return sortu_forma_ezezaguna(lemma, tags);
    } catch (const std::out_of_range&) {
      return lemma;
    }
  };
  services.networks = &sareak_;
  services.proposamenak = proposamenak;

  std::ostringstream out;
  output::write_brindel(out, paragrafoa.esaldiak, services);
  return out.str();
}

}  // namespace tarvola
