// Compares the converted main network's readings with the source analyser's
// own, word by word (the agreement figure of data/README.md; data/agreement.sh
// drives it).
//
//   agreement --words TEXT...
//       prints the distinct word tokens of code page 1252 texts that are
//       written in lower case, one a line, in code page 1252.
//   agreement --folded-words TEXT...
//       the same for every word token, lower-cased.
//   agreement [--list] TABLE TAGMAP < READINGS
//       READINGS: UTF-8 lines "word<TAB>reading<TAB>reading...", the source
//       analyser's readings after the case rewrite and before the tag renames
//       (a word without readings is one it does not know). The renames of
//       TAGMAP are applied to them as the table importer applies them, and
//       the set of readings is compared with the set that TABLE gives for the
//       word. Prints the counts; --list also prints each word whose sets
//       differ, with "-" before a reading only the source gives and "+"
//       before one only the table gives.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "corpus_words.h"
#include "tarvola/base/latin1.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/table_import.h"

namespace ti = tarvola::table_import;

namespace {

std::vector<std::string> split_tabs(const std::string& line) {
  std::vector<std::string> out;
  std::size_t p = 0;
  for (;;) {
    std::size_t t = line.find('\t', p);
    out.push_back(line.substr(p, t == std::string::npos ? std::string::npos : t - p));
    if (t == std::string::npos) return out;
    p = t + 1;
  }
}

// Renames whole "<...>" symbols; the rest of the reading is kept.
std::string rename_tags(const std::string& reading, const std::map<std::string, std::string>& map) {
  std::string out;
  std::size_t p = 0;
  while (p < reading.size()) {
    std::size_t lt = reading.find('<', p);
    std::size_t gt = lt == std::string::npos ? lt : reading.find('>', lt);
    if (gt == std::string::npos) { out += reading.substr(p); break; }
    out += reading.substr(p, lt - p);
    std::string tag = reading.substr(lt, gt - lt + 1);
    auto it = map.find(tag);
    out += it == map.end() ? tag : it->second;
    p = gt + 1;
  }
  return out;
}

int list_words(int argc, char** argv, bool fold) {
  std::set<std::string> seen;
  for (int i = 2; i < argc; ++i) {
    std::ifstream in(argv[i], std::ios::binary);
    std::string line;
    while (std::getline(in, line)) {
      tarvola_data::for_each_word(line, [&](std::string w) {
        std::string lower = tarvola::latin1::lowered(w);
        if (fold || lower == w) seen.insert(std::move(lower));
      });
    }
  }
  for (const auto& w : seen) std::cout << w << "\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && !std::strcmp(argv[1], "--words")) return list_words(argc, argv, false);
  if (argc > 1 && !std::strcmp(argv[1], "--folded-words")) return list_words(argc, argv, true);
  bool list = argc > 1 && !std::strcmp(argv[1], "--list");
  int first = list ? 2 : 1;
  if (argc != first + 2) {
    std::cerr << "usage: agreement --words|--folded-words TEXT... | agreement [--list] TABLE TAGMAP < READINGS\n";
    return 2;
  }
  std::ifstream mapin(argv[first + 1], std::ios::binary);
  std::ostringstream maptext;
  maptext << mapin.rdbuf();
  std::vector<ti::ImportProblem> problems;
  auto map = ti::parse_tag_map(maptext.str(), true, problems);
  if (!mapin || !problems.empty()) { std::cerr << "bad tag map " << argv[first + 1] << "\n"; return 2; }
  tarvola::Taula table(argv[first]);

  long words = 0, neither = 0, source_only = 0, table_only = 0, same = 0, differ = 0, bad = 0;
  std::string line;
  while (std::getline(std::cin, line)) {
    auto fields = split_tabs(line);
    std::string word;
    if (!ti::utf8_to_cp1252(fields[0], word)) { ++bad; continue; }
    ++words;
    std::set<std::string> source, ours;
    for (std::size_t i = 1; i < fields.size(); ++i) {
      std::string r;
      if (!fields[i].empty() && ti::utf8_to_cp1252(rename_tags(fields[i], map), r)) source.insert(r);
    }
    for (const auto& a : table.analizatuTokena(word)) ours.insert(a.analisia);
    if (source.empty() && ours.empty()) ++neither;
    else if (ours.empty()) ++source_only;
    else if (source.empty()) ++table_only;
    else if (source == ours) ++same;
    else ++differ;
    if (list && source != ours) {
      std::cout << ti::cp1252_to_utf8(word) << "\n";
      for (const auto& r : source)
        if (!ours.count(r)) std::cout << "\t-" << ti::cp1252_to_utf8(r) << "\n";
      for (const auto& r : ours)
        if (!source.count(r)) std::cout << "\t+" << ti::cp1252_to_utf8(r) << "\n";
    }
  }
  long both = same + differ;
  std::fprintf(list ? stderr : stdout,
               "words %ld\nunknown to both %ld\nknown only to the source %ld\nknown only to the table %ld\n"
               "known to both %ld\n  same readings %ld (%.2f%%)\n  different readings %ld\n",
               words, neither, source_only, table_only, both, same, 100.0 * same / (both ? both : 1), differ);
  if (bad) std::fprintf(stderr, "%ld lines not in code page 1252 skipped\n", bad);
  return 0;
}
