// Prints every reading of each word in one table, one line per reading:
//   word<TAB>analysis      (or word<TAB>+? when the table knows no reading)
// usage: tarvola_readings TABLE WORD...
// Words are given in code page 1252, like the table.
#include <cstdio>
#include <string>

#include "tarvola/tarvola.h"

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s TABLE WORD...\n", argv[0]);
    return 2;
  }
  if (std::FILE* f = std::fopen(argv[1], "rb")) {
    std::fclose(f);
  } else {
    std::fprintf(stderr, "%s: cannot open table '%s'\n", argv[0], argv[1]);
    return 1;
  }
  tarvola::Taula table(argv[1]);
  for (int i = 2; i < argc; ++i) {
    const std::string word = argv[i];
    const auto readings = table.analizatuTokena(word);
    if (readings.empty()) std::printf("%s\t+?\n", word.c_str());
    for (const tarvola::Analisia& a : readings)
      std::printf("%s\t%s\tlemma=%s tags=%s\n", word.c_str(), a.analisia.c_str(), a.lema.c_str(),
                  a.twol.c_str());
    std::printf("\n");
  }
  return 0;
}
