// Personal dictionary lookup: find the paradigm entries whose stem begins
// the token and let the "hp" network read the rest of the token behind the
// entry's class symbol.
#include <algorithm>
#include <cstddef>
#include <utility>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {

namespace {

// The first byte as a signed char, or the terminating zero of an empty text.
signed char first_byte(const std::string& s) {
  return static_cast<signed char>(s.empty() ? '\0' : s[0]);
}

bool is_lower(signed char c) { return c >= 'a' && c <= 'z'; }
bool is_capital(signed char c) { return c >= 'A' && c <= 'Z'; }

// A proper noun stored with a capital is not found in a word written in
// lower case. The bytes are compared as signed chars, so accented letters
// (0x80 and above) count neither as lower case nor as capitals.
bool passes_case_filter(signed char token_first, const HPsarrera& entry) {
  const signed char lemma_first = first_byte(entry.lema);
  if (is_lower(token_first) && is_capital(lemma_first)) return false;
  if (!tags::contains(entry.lema, "<PIB>") && !tags::contains(entry.lema, "<LIB>"))
    return true;
  return !is_lower(token_first);
}

}  // namespace

std::vector<Analisia> HiztegiPertsonala::analizatu(const std::string& tokena,
                                                   Sarea* sarea) const {
  std::vector<Analisia> result;
  const Taula* taula = sarea ? sarea->taula : nullptr;
  if (!taula || paradigmak.empty()) return result;

  const std::string lower = latin1::lowered(tokena);
  const std::size_t bound = static_cast<std::size_t>(std::max(luzeraMin, 0));
  const std::string prefix = lower.substr(0, bound);
  const signed char token_first = first_byte(tokena);

  // Capitalisation of the word: 0 when its first byte is that of the
  // lower-cased prefix, else 2 when it has no lower-case letter, else 1.
  // With an empty prefix (a dictionary not loaded from a file) the byte
  // compared is the prefix's terminating zero, so any non-empty token gets
  // 1 or 2.
  int capitalisation = 0;
  if (token_first != first_byte(prefix))
    capitalisation = latin1::is_all_upper(tokena) ? 2 : 1;

  // Only the keys that begin with the prefix are visited.
  for (auto it = paradigmak.lower_bound(prefix);
       it != paradigmak.end() && tags::starts_with(it->first, prefix); ++it) {
    const HPsarrera* entry = it->second;
    if (!entry) continue;
    const std::string& form = entry->forma;
    // Proper nouns keep their capitals in the form, hence the second test.
    if (!tags::starts_with(lower, form) && !tags::starts_with(tokena, form)) continue;

    // The filter depends on the entry alone: a rejected entry need not be
    // looked up at all.
    if (!passes_case_filter(token_first, *entry)) continue;
    const std::string input = entry->paradigma + lower.substr(form.size());
    for (const Analisia& reading : taula->analizatuTokena(input)) {
      Analisia record(entry->lema + entry->kategoria + reading.analisia, taula->sareaIzena);
      record.s_balioa = entry->jatorria;
      record.h_balioa = entry->osagarria1;
      record.e_balioa = entry->osagarria2;
      record.maiuskulaMota = capitalisation;
      result.push_back(std::move(record));
    }
  }
  return result;
}

}  // namespace tarvola
