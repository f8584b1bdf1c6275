// The user's personal dictionary: words the tables do not know, each with
// its category, and the paradigm entries (stem form + inflection class)
// derived from them. Lookup hands the rest of a token, behind the class
// symbol, to the "hp" network.
#ifndef TARVOLA_USERDICT_HIZTEGIPERTSONALA_H
#define TARVOLA_USERDICT_HIZTEGIPERTSONALA_H

#include <map>
#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/export.h"
#include "tarvola/userdict/HPsarrera.h"

namespace tarvola {

class TARVOLA_API HiztegiPertsonala {
 public:
  std::string fitxategia;
  std::vector<HPsarrera*> sarrerak;
  std::map<std::string, HPsarrera*> paradigmak;
  int luzeraMin;
  int hitzMax;

  HiztegiPertsonala();
  explicit HiztegiPertsonala(const std::string& fitxategia);
  HiztegiPertsonala(const HiztegiPertsonala& other);
  HiztegiPertsonala& operator=(const HiztegiPertsonala& other);
  virtual ~HiztegiPertsonala();

  void gehitu_sarrera(bool idatzi, const std::string& lema,
                      const std::string& kategoria, const std::string& osagarria1,
                      const std::string& osagarria2, const std::string& jatorria);
  void kendu_sarrera(bool idatzi, const std::string& lema,
                     const std::string& kategoria);
  std::vector<Analisia> analizatu(const std::string& tokena, Sarea* sarea) const;

 private:
  void kargatu_fitxategia();
  static std::string lortuAdoin(const std::string& lema);
  static std::string lortuAditzizen(const std::string& lema);
};

}  // namespace tarvola

#endif
