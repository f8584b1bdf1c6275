// Generating the word forms of a lemma with given tags.
//
// A lemma the main network knows is generated from the beginning of its
// reading that holds the tags. Any other lemma is added, with the tag
// string as its category, to a throw-away personal dictionary, and the
// endings of each resulting paradigm class are generated through the
// dictionary's network "hp" and put behind the class's stem.
#include <utility>

#include "tarvola/base/tags.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/engine/network_lookup.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {

namespace {

// The network name given to records made for unknown lemmas; upper case on
// purpose, unlike the network "hp" that generates them.
constexpr const char* kUnknownSource = "HP";

// Every form of the lemma as a word of the category, paradigm entry by
// paradigm entry. A generated form shorter than its class symbol cannot be
// cut and raises std::out_of_range.
std::vector<Analisia> generate_unknown(const Taula& hp, const std::string& lema,
                                       const std::string& kategoria) {
  std::vector<Analisia> result;
  HiztegiPertsonala scratch;
  scratch.gehitu_sarrera(false, lema, kategoria, "", "", "");
  for (const auto& entry : scratch.paradigmak) {
    const HPsarrera& e = *entry.second;
    for (const Analisia& g : hp.sortuFormak(e.paradigma, "", false, false)) {
      Analisia record(e.forma + e.kategoria + g.analisia, kUnknownSource);
      record.forma = e.forma + g.forma.substr(e.paradigma.size());
      result.push_back(std::move(record));
    }
  }
  return result;
}

// The category symbol a tag list names, tested in this order; "" for none.
const char* category_of(const std::string& etiketak) {
  static const char* const kCategories[][2] = {{"ARR", "<ARR>"}, {"IZO", "<IZO>"},
                                               {"ADI", "<ADI>"}, {"PIB", "<PIB>"},
                                               {"LIB", "<LIB>"}, {"IZB", "<IZB>"}};
  for (const auto& category : kCategories)
    if (tags::contains(etiketak, category[0])) return category[1];
  return "";
}

}  // namespace

std::vector<Analisia> Tarvola::sortuFormak(std::string lema, std::string etiketak) {
  const Taula* main = engine::find_table(sareak_, "eumorfo");
  const std::vector<Analisia> readings =
      main == nullptr ? std::vector<Analisia>() : main->analizatuTokena(lema);

  if (!readings.empty()) {
    // Generate from the first reading holding the tags, cut right after
    // their first occurrence; with no tags asked for, from nothing at all.
    std::string start;
    if (!etiketak.empty()) {
      bool found = false;
      for (const Analisia& r : readings) {
        const std::size_t p = r.analisia.find(etiketak);
        if (p == std::string::npos) continue;
        start = r.analisia.substr(0, p + etiketak.size());
        found = true;
        break;
      }
      if (!found) return {};
    }
    return main->sortuFormak(start, "", false, false);
  }

  const Taula* hp = engine::find_table(sareak_, "hp");
  if (hp == nullptr) return {};
  return generate_unknown(*hp, lema, etiketak);
}

std::string Tarvola::sortu_forma_ezezaguna(std::string lema, std::string etiketak) {
  const std::string kategoria = category_of(etiketak);
  const Taula* hp = engine::find_table(sareak_, "hp");
  if (kategoria.empty() || hp == nullptr) return lema;
  for (const Analisia& record : generate_unknown(*hp, lema, kategoria))
    if (record.etiketa == etiketak) return record.forma;
  return lema;
}

}  // namespace tarvola
