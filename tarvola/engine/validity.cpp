// Whether a word is acceptable standard Basque, and the prefix search.
//
// A single word is valid when the personal dictionary knows it, or when a
// network other than the dictionary's own gives it a reading that is not
// marked "MAT" (and, from the compound network "osag0", not "Rare"), or,
// on request, when it begins some standard word. Text holding a blank or a
// hyphen is analysed as a paragraph instead, and only a token of its first
// sentence whose sole reading is non-standard makes it invalid.
#include <utility>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/engine/network_lookup.h"

namespace tarvola {

namespace {

constexpr const char* kMainNetwork = "eumorfo";
constexpr const char* kDictionaryNetwork = "hp";
constexpr const char* kCompoundNetwork = "osag0";

bool starts_with_capital(const std::string& s) {
  return !s.empty() && latin1::is_ascii_upper(s[0]);
}

// A reading of a network that counts towards validity.
bool counts(const Analisia& a, const std::string& network) {
  if (tags::contains(a.etiketa, "MAT")) return false;
  return network != kCompoundNetwork || !tags::contains(a.etiketa, "Rare");
}

// The text check: only the first sentence is looked at, and only a token
// that is nothing but a non-standard form rejects it. A text that yields
// no sentence at all has nothing to reject.
bool first_sentence_passes(const Paragrafoa& paragrafoa) {
  if (paragrafoa.esaldiak.empty()) return true;
  for (const Tokena& token : paragrafoa.esaldiak.front().tokenak) {
    if (token.analisiak.size() == 1 && tags::contains(token.analisiak[0].etiketa, "EZZG"))
      return false;
  }
  return true;
}

}  // namespace

bool Tarvola::isValid(std::string hitza, bool aurrizkiak) {
  if (hitza.find_first_of(" -") != std::string::npos)
    return first_sentence_passes(analizatu_paragrafoa(1, hitza));

  // The answer depends only on whether some reading is found, so the
  // search stops at the first one. Without the dictionary or its network
  // the dictionary simply knows nothing, as in the sentence analysis.
  if (hp_ != nullptr) {
    Sarea* hp_network = engine::find_network(sareak_, kDictionaryNetwork);
    if (hp_network != nullptr && !hp_->analizatu(hitza, hp_network).empty()) return true;
  }
  // Networks are told apart by the name their table carries.
  for (const auto& entry : sareak_) {
    const Taula* taula = entry.second == nullptr ? nullptr : entry.second->taula;
    if (taula == nullptr || taula->sareaIzena == kDictionaryNetwork) continue;
    for (const Analisia& a : taula->analizatuTokena(hitza))
      if (counts(a, taula->sareaIzena)) return true;
  }
  if (!aurrizkiak) return false;

  // Prefix test: some standard, lower-case word begins with the word.
  for (const Analisia& a : bilatuHasiera(latin1::lowered(hitza) + " ", true)) {
    if (a.e_balioa.empty() && !tags::contains(a.etiketa, "EZZG") && !starts_with_capital(a.lema))
      return true;
  }
  return false;
}

std::vector<Analisia> Tarvola::bilatuHasiera(std::string testua, bool standardOnly) {
  const Taula* main = engine::find_table(sareak_, kMainNetwork);
  if (main == nullptr) return {};
  std::vector<Analisia> generated = main->sortuFormak(std::move(testua), "", true, false);
  if (!standardOnly) return generated;

  // The re-analysis of the generated form is the costly test, so it comes
  // last; the tests have no side effects, so their order changes nothing.
  std::vector<Analisia> kept;
  for (Analisia& a : generated) {
    if (tags::contains(a.etiketa, "EZZG") || starts_with_capital(a.lema)) continue;
    const std::vector<Analisia> again = main->analizatuTokena(a.forma);
    if (!again.empty() && again.front().e_balioa.empty()) kept.push_back(std::move(a));
  }
  return kept;
}

}  // namespace tarvola
