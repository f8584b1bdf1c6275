// A sentence: its text (leading blanks and tabs removed) and its tokens.
#ifndef TARVOLA_TEXT_ESALDIA_H
#define TARVOLA_TEXT_ESALDIA_H

#include <string>
#include <vector>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/export.h"
#include "tarvola/text/Tokena.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {

class TARVOLA_API Esaldia {
 public:
  int id;
  std::string testua;
  std::vector<Tokena> tokenak;

  Esaldia();
  Esaldia(int id, std::string testua);
  Esaldia(const Esaldia&) = default;
  Esaldia& operator=(const Esaldia&) = default;
  Esaldia(Esaldia&&) noexcept = default;
  Esaldia& operator=(Esaldia&&) noexcept = default;
  virtual ~Esaldia();

  void tokenizatu();
  void analizatu(SareMapa sareak, HiztegiPertsonala& hp, bool aukera);
};

}  // namespace tarvola

#endif
