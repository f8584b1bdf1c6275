#include "tarvola/text/Paragrafoa.h"

#include <utility>

#include "tarvola/tables/Taula.h"
#include "tarvola/text/sentence_splitter.h"

namespace tarvola {

Paragrafoa::Paragrafoa() : id(0) {}

Paragrafoa::Paragrafoa(int id_, std::string testua_) : id(id_), testua(std::move(testua_)) {}

Paragrafoa::~Paragrafoa() = default;

std::vector<Esaldia> Paragrafoa::analizatu(SareMapa sareak, HiztegiPertsonala& hp,
                                           bool aukera) {
  auto main = sareak.find("eumorfo");
  if (main != sareak.end() && main->second != nullptr && main->second->taula != nullptr)
    esaldikatu(main->second->taula);
  for (Esaldia& esaldia : esaldiak) esaldia.tokenizatu();
  for (Esaldia& esaldia : esaldiak) esaldia.analizatu(sareak, hp, aukera);
  return esaldiak;
}

void Paragrafoa::esaldikatu(Taula* taula) {
  auto known = [taula](const std::string& word) { return !taula->analizatuTokena(word).empty(); };
  // Sentence numbers start at -1; the renderings print them as stored.
  int number = -1;
  for (std::string& text : text::split_sentences(testua, known))
    esaldiak.emplace_back(number++, std::move(text));
}

}  // namespace tarvola
