// Small transducer tables written from a list of paths, for tests that
// need a network with a handful of readings.
//
// Each path is a blank-separated list of symbol fields as the plain table
// format writes them ("e", "<IZE>:<>", "<MUGM>:a", "[h=etxe]:<>"); "\s"
// stands for a symbol made of one blank. Every path gets its own chain of
// states from state 0, so readings come out in the order the paths are
// listed. word_path("etxea") is the path of a word with the single tag <X>.
#ifndef TARVOLA_TESTS_SUPPORT_CHAIN_TABLES_H
#define TARVOLA_TESTS_SUPPORT_CHAIN_TABLES_H

#include <sstream>
#include <string>
#include <vector>

namespace tarvola::testing {

inline std::string chain_table(const std::vector<std::string>& paths) {
  std::string arcs;
  std::string finals;
  int next = 1;
  for (const std::string& path : paths) {
    std::istringstream symbols(path);
    std::string symbol;
    int state = 0;
    while (symbols >> symbol) {
      if (symbol == "\\s") symbol = " ";
      arcs += std::to_string(state) + "\t" + symbol + "\t" + std::to_string(next) + "\n";
      state = next++;
    }
    finals += "final: " + std::to_string(state) + "\n";
  }
  return arcs + finals;
}

inline std::string word_path(const std::string& word) {
  std::string path;
  for (char c : word) {
    path += c == ' ' ? std::string("\\s") : std::string(1, c);
    path += ' ';
  }
  return path + "<X>:<>";
}

}  // namespace tarvola::testing

#endif
