// Measures a table's coverage on code page 1252 text: the share of word
// tokens (runs of word characters with at least one letter) that get at
// least one reading, and the table's load time. Used for the figures in
// data/README.md.
//   coverage TABLE TEXT...     prints "tokens known share load_ms"
//   coverage --unknown TABLE TEXT...   prints the unknown tokens, one a line
//   coverage --lemmas TABLE CONLLU   on a CoNLL-U file (UTF-8), the word
//                          tokens (punctuation left out), those the table
//                          knows, and those of them whose gold lemma is
//                          among the readings' lemmas: "tokens known hits share"
//   coverage --load CONF   prints the time to construct the engine on a
//                          network configuration (every table it lists),
//                          in ms; the listed paths are taken relative to
//                          the configuration's folder, as the tool does.
#include <chrono>
#include <filesystem>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "corpus_words.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/table_import.h"

static int load_time(const char* conf) {
  namespace fs = std::filesystem;
  fs::path path = fs::absolute(conf);
  fs::current_path(path.parent_path());
  auto t0 = std::chrono::steady_clock::now();
  {
    tarvola::Tarvola engine(path.string());
    auto ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - t0).count();
    std::printf("%.0f\n", ms);
  }
  return 0;
}

static int lemma_hits(const char* table_path, const char* conllu) {
  tarvola::Taula table(table_path);
  std::ifstream in(conllu, std::ios::binary);
  std::string line;
  long tokens = 0, known = 0, hits = 0;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> f;
    std::istringstream fields(line);
    for (std::string x; std::getline(fields, x, '\t');) f.push_back(x);
    // ID FORM LEMMA UPOS ...; multiword ranges ("3-4") are not tokens
    if (f.size() < 4 || f[0].find('-') != std::string::npos || f[3] == "PUNCT") continue;
    std::string form, lemma;
    if (!tarvola::table_import::utf8_to_cp1252(f[1], form) ||
        !tarvola::table_import::utf8_to_cp1252(f[2], lemma))
      continue;
    ++tokens;
    auto readings = table.analizatuTokena(form);
    if (readings.empty()) continue;
    ++known;
    for (const auto& a : readings)
      if (a.lema == lemma) { ++hits; break; }
  }
  std::printf("%ld %ld %ld %.2f%%\n", tokens, known, hits, 100.0 * hits / (known ? known : 1));
  return 0;
}

int main(int argc, char** argv) {
  if (argc == 4 && !std::strcmp(argv[1], "--lemmas")) return lemma_hits(argv[2], argv[3]);
  if (argc == 3 && !std::strcmp(argv[1], "--load")) return load_time(argv[2]);
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
      tarvola_data::for_each_word(line, [&](const std::string& w) {
        ++tokens;
        if (!table.analizatuTokena(w).empty()) ++known;
        else if (list) std::cout << w << "\n";
      });
    }
  }
  if (!list) std::printf("%ld %ld %.2f%% %.0f\n", tokens, known, 100.0 * known / (tokens ? tokens : 1), load);
  return 0;
}
