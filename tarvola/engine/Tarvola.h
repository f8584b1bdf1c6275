// The engine: loads the networks listed in a configuration file and the
// personal dictionary, and serves analysis, validity, generation and the
// paragraph renderings.
//
// Construction reads the configuration file (format in
// docs/CONFIGURATION.md), then loads each listed table in file order,
// printing an empty line per network, then creates the personal dictionary
// (read from its file by the two-path constructor). A table file name that
// gives a network name shorter than two bytes makes construction throw
// std::out_of_range.
//
// Copies share the networks, tables and dictionary; they are freed when the
// last engine holding them is destroyed, so copies may be destroyed in any
// order. Every destruction prints "Taulak husten...".
//
// One thread at a time per engine (and its copies); nothing is locked.
#ifndef TARVOLA_ENGINE_TARVOLA_H
#define TARVOLA_ENGINE_TARVOLA_H

#include <memory>
#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/export.h"
#include "tarvola/text/Paragrafoa.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {

namespace internal {
struct EngineResources;
}  // namespace internal

class TARVOLA_API Tarvola {
 public:
  Tarvola();
  explicit Tarvola(const std::string& konfigurazioa);
  Tarvola(const std::string& konfigurazioa, const std::string& hiztegia);
  Tarvola(const Tarvola& other);
  Tarvola& operator=(const Tarvola& other);
  virtual ~Tarvola();

  // The readings of the token in the named network's table; none for a
  // name that no loaded network bears.
  std::vector<Analisia> analizatuTokena(std::string tokena, std::string sarea);
  // The readings of every network's table, in network name order
  // (byte-wise), duplicates kept.
  std::vector<Analisia> analizatuTokena(std::string tokena);
  // The paragraph (always numbered 1, whatever id says) split and analysed
  // with the personal dictionary first. On an engine without networks or
  // without a dictionary (default-constructed) it comes back unsplit.
  Paragrafoa analizatu_paragrafoa(int id, std::string testua);

  // Whether the word is acceptable: the personal dictionary knows it, or a
  // network other than "hp" reads it without "MAT" (nor "Rare" from
  // "osag0"), or, with aurrizkiak, a standard lower-case word begins with
  // it. A text with a blank or hyphen is analysed as a paragraph and fails
  // only on a token of its first sentence whose sole reading is "EZZG".
  bool isValid(std::string hitza, bool aurrizkiak);
  // The readings "eumorfo" generates whose analysis begins with testua
  // (their forma holds the word); with standardOnly only the standard,
  // lower-case ones. Empty without "eumorfo".
  std::vector<Analisia> bilatuHasiera(std::string testua, bool standardOnly);
  // The forms of the lemma with the tags (forma of each reading). A lemma
  // "eumorfo" does not know is taken as a personal-dictionary word of the
  // category etiketak ("<ARR>", "<IZO>", "<ADI>", "<PIB>", "<LIB>",
  // "<IZB>") and generated through "hp"; its readings name the source "HP".
  std::vector<Analisia> sortuFormak(std::string lema, std::string etiketak);
  // The correction document of the paragraph (docs/OUTPUT_FORMATS.md);
  // proposamenak asks the suggestion search for unknown words that no
  // known word begins.
  std::string getParagrafoaBrindel(const std::string& testua, bool proposamenak);
  // Spellings proposed for an unknown word (docs/SUGGESTIONS.md).
  std::vector<std::string> lortu_ezzg_proposamenak(std::string hitza);

 private:
  void kargatu_sareak();
  void kargatu_taula(Taula* taula);
  // The form of an unknown lemma with exactly the tag list etiketak (as an
  // Analisia's etiketa), through a throw-away personal dictionary; the
  // lemma itself when none matches.
  std::string sortu_forma_ezezaguna(std::string lema, std::string etiketak);

  std::string konfigurazioa_;
  std::string hiztegia_;
  SareMapa sareak_;        // network name -> network, as loaded
  HiztegiPertsonala* hp_;  // the personal dictionary; null when default-built
  std::shared_ptr<internal::EngineResources> resources_;  // owns the above
};

}  // namespace tarvola

#endif
