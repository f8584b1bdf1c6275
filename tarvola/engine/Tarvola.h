// The engine: loads the networks listed in a configuration file and the
// personal dictionary, and serves analysis, validity, generation and the
// paragraph renderings.
#ifndef TARVOLA_ENGINE_TARVOLA_H
#define TARVOLA_ENGINE_TARVOLA_H

#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/export.h"
#include "tarvola/text/Paragrafoa.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {

class TARVOLA_API Tarvola {
 public:
  Tarvola();
  explicit Tarvola(const std::string& konfigurazioa);
  Tarvola(const std::string& konfigurazioa, const std::string& hiztegia);
  Tarvola(const Tarvola& other);
  Tarvola& operator=(const Tarvola& other);
  virtual ~Tarvola();

  std::vector<Analisia> analizatuTokena(std::string tokena, std::string sarea);
  std::vector<Analisia> analizatuTokena(std::string tokena);
  Paragrafoa analizatu_paragrafoa(int id, std::string testua);
  bool isValid(std::string hitza, bool aurrizkiak);
  std::vector<Analisia> bilatuHasiera(std::string testua, bool standardOnly);
  std::vector<Analisia> sortuFormak(std::string lema, std::string etiketak);
  std::string getParagrafoaBrindel(const std::string& testua, bool proposamenak);
  std::vector<std::string> lortu_ezzg_proposamenak(std::string hitza);

 private:
  void kargatu_sareak();
  void kargatu_taula(Taula* taula);
  std::string sortu_forma_ezezaguna(std::string lema, std::string etiketak);

  std::string konfigurazioa_;
  std::string hiztegia_;
  SareMapa sareak_;
  HiztegiPertsonala* hp_;
};

}  // namespace tarvola

#endif
