// Analysed paragraphs written by hand, for the renderers' golden cases.
//
// One item a line, fields separated by tabs; "#" starts a comment line.
//   p  ID                      the paragraph (first line)
//   s                          a new sentence
//   t  FORM  BLANK             a token; BLANK is 1 when a blank follows it
//   r  ANALYSIS  CAPITALS [NETWORK]
//                              a reading of the last token, parsed from the
//                              analysis string; CAPITALS is maiuskulaMota
#ifndef TARVOLA_TESTS_OUTPUT_PARAGRAPH_FIXTURE_H
#define TARVOLA_TESTS_OUTPUT_PARAGRAPH_FIXTURE_H

#include <sstream>
#include <string>
#include <vector>

#include "tarvola/text/Paragrafoa.h"

namespace tarvola::testing {

inline std::vector<std::string> tab_fields(const std::string& line) {
  std::vector<std::string> fields;
  std::size_t begin = 0;
  for (;;) {
    std::size_t tab = line.find('\t', begin);
    fields.push_back(line.substr(begin, tab == std::string::npos ? std::string::npos : tab - begin));
    if (tab == std::string::npos) return fields;
    begin = tab + 1;
  }
}

inline Paragrafoa parse_paragraph(const std::string& text) {
  Paragrafoa p(0, "");
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    const std::vector<std::string> f = tab_fields(line);
    if (f[0] == "p") {
      p.id = std::stoi(f.at(1));
    } else if (f[0] == "s") {
      p.esaldiak.emplace_back(static_cast<int>(p.esaldiak.size()) - 1, "");
    } else if (f[0] == "t") {
      Tokena token;
      token.forma = f.at(1);
      token.hutsunea = f.at(2) == "1";
      p.esaldiak.back().tokenak.push_back(token);
    } else if (f[0] == "r") {
      Analisia a(f.at(1), f.size() > 3 ? f[3] : "");
      a.maiuskulaMota = std::stoi(f.at(2));
      p.esaldiak.back().tokenak.back().analisiak.push_back(a);
    }
  }
  return p;
}

}  // namespace tarvola::testing

#endif
