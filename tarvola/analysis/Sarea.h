// A network: a named transducer table. Its readings carry its name, and it
// re-generates a reading with a replacement lemma (ordeztuForma), which the
// correction document uses to turn a non-standard word into standard ones.
#ifndef TARVOLA_ANALYSIS_SAREA_H
#define TARVOLA_ANALYSIS_SAREA_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/export.h"
#include "tarvola/tables/Taula.h"

namespace tarvola {

class TARVOLA_API Sarea {
 public:
  std::string izena;       // the network's name
  std::string fitxategia;  // the table file's path
  Taula* taula;            // the network's table, owned
  int mota;                // longest multi-token unit: 7 for "zenbak" networks, else 5

  Sarea();
  // Takes ownership of the table and writes the name into it.
  Sarea(std::string izena, std::string fitxategia, Taula* taula);
  Sarea(const Sarea& other);
  Sarea& operator=(const Sarea& other);
  // Deletes the table when this is the last of the network's copies.
  virtual ~Sarea();

  // The readings the table generates for the replacement lemma (or each of
  // its "/"-separated alternatives) with the reading's tags, in the
  // capitalisation of the reading's word.
  std::vector<Analisia> ordeztuForma(const std::string& forma,
                                     const Analisia& analisia) const;

 private:
  static std::string etiketaZatia(const std::string& analisia);

  std::shared_ptr<int> holders_;  // shared by the network and its copies
};

using SareMapa = std::map<std::string, Sarea*>;

}  // namespace tarvola

#endif
