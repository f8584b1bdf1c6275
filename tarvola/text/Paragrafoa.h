// A paragraph: split into sentences through the main network's abbreviation
// readings, tokenised, analysed, then rendered.
//
// analizatu splits only when the map holds "eumorfo" (without it the
// paragraph gets no sentences), numbers the sentences from -1, tokenises
// them all and then analyses each one. Splitting appends: a second call
// adds a second copy of every sentence.
//
// Limits: only the first 9999 bytes of the text are split and analysed;
// the rest is left out without any message (cut long text into paragraphs
// before). A word of 99 or more bytes before a ". " is never taken for an
// abbreviation. See text/sentence_splitter.h for the boundary rules.
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
