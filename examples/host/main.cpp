// Builds a two-word table by hand, looks a word up and generates it back:
// proves that the installed headers, library and CMake package work.
#include <cstdio>

#include "tarvola/tarvola.h"

int main() {
  tarvola::Taula table("hand", 0);
  const char* letters = "etxe";
  int state = 0;
  for (const char* c = letters; *c; ++c, ++state)
    table.addZubiaTaulan(state, false, new tarvola::Zubia(state + 1, std::string(1, *c), std::string(1, *c)));
  table.addZubiaTaulan(state, false, new tarvola::Zubia(state + 1, "<IZE>", ""));
  table.addZubiaTaulan(state + 1, true, new tarvola::Zubia(-1, "", ""));
  tarvola::Sarea network("proba", "", new tarvola::Taula(table));
  const auto readings = table.analizatuTokena("Etxe");
  const auto forms = table.sortuFormak("etxe", "<IZE>", false, false);
  if (readings.size() != 1 || readings[0].twol != "+Ize" || readings[0].maiuskulaMota != 1 ||
      forms.size() != 1 || forms[0].forma != "etxe") {
    std::puts("host: unexpected result");
    return 1;
  }
  std::printf("host: %s -> %s %s\n", "Etxe", readings[0].lema.c_str(), readings[0].twol.c_str());
  return 0;
}
