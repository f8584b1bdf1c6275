// A paragraph: split into sentences through the main network's abbreviation
// readings, tokenised, analysed, then rendered.
#ifndef TARVOLA_TEXT_PARAGRAFOA_H
#define TARVOLA_TEXT_PARAGRAFOA_H

#include <string>
#include <vector>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/export.h"
#include "tarvola/text/Esaldia.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {

class TARVOLA_API Paragrafoa {
 public:
  int id;
  std::string testua;
  std::vector<Esaldia> esaldiak;

  Paragrafoa();
  Paragrafoa(int id, std::string testua);
  Paragrafoa(const Paragrafoa&) = default;
  Paragrafoa& operator=(const Paragrafoa&) = default;
  Paragrafoa(Paragrafoa&&) noexcept = default;
  Paragrafoa& operator=(Paragrafoa&&) noexcept = default;
  virtual ~Paragrafoa();

  std::vector<Esaldia> analizatu(SareMapa sareak, HiztegiPertsonala& hp, bool aukera);
  std::string get_CG3(bool atributuak, bool, bool) const;
  void print_Multext(bool atributuak, bool, bool) const;

 private:
  void esaldikatu(Taula* taula);
};

}  // namespace tarvola

#endif
