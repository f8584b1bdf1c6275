// Measures a table's coverage on code page 1252 text: the share of word
// tokens (runs of word characters with at least one letter) that get at
// least one reading, and the table's load time. Used for the figures in
// data/README.md.
//   coverage TABLE TEXT...     prints "tokens known share load_ms"
//   coverage --unknown TABLE TEXT...   prints the unknown tokens, one a line
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>

#include "tarvola/base/latin1.h"
#include "tarvola/tables/Taula.h"

int main(int argc, char** argv) {
  bool list = argc > 1 && !std::strcmp(argv[1], "--unknown");
  int first = list ? 2 : 1;
  if (argc < first + 2) { std::cerr << "usage: coverage [--unknown] TABLE TEXT...\n"; return 2; }
  auto t0 = std::chrono::steady_clock::now();
  tarvola::Taula table(argv[first]);
  auto load = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - t0).count();
  long tokens = 0, known = 0;
  for (int i = first + 1; i < argc; ++i) {
    std::ifstream in(argv[i], std::ios::binary);
    std::string line;
    while (std::getline(in, line)) {
      std::size_t p = 0;
      while (p < line.size()) {
        if (!tarvola::latin1::is_word_char(line[p])) { ++p; continue; }
        std::size_t q = p;
        bool letter = false;
        while (q < line.size() && tarvola::latin1::is_word_char(line[q])) letter |= !tarvola::latin1::is_digit(line[q]), ++q;
        std::string w = line.substr(p, q - p);
        p = q;
        if (!letter) continue;
        ++tokens;
        if (!table.analizatuTokena(w).empty()) ++known;
        else if (list) std::cout << w << "\n";
      }
    }
  }
  if (!list) std::printf("%ld %ld %.2f%% %.0f\n", tokens, known, 100.0 * known / (tokens ? tokens : 1), load);
  return 0;
}
