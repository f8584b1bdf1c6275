// The corpus word tokens the data tools count: runs of the tokeniser's word
// characters that hold at least one letter (numbers alone are not words).
#ifndef TARVOLA_DATA_TOOLS_CORPUS_WORDS_H
#define TARVOLA_DATA_TOOLS_CORPUS_WORDS_H

#include <cstddef>
#include <string>
#include <string_view>

#include "tarvola/base/latin1.h"

namespace tarvola_data {

template <typename F>
void for_each_word(std::string_view line, F&& f) {
  std::size_t p = 0;
  while (p < line.size()) {
    if (!tarvola::latin1::is_word_char(line[p])) { ++p; continue; }
    std::size_t q = p;
    bool letter = false;
    while (q < line.size() && tarvola::latin1::is_word_char(line[q])) {
      letter |= !tarvola::latin1::is_digit(line[q]);
      ++q;
    }
    if (letter) f(std::string(line.substr(p, q - p)));
    p = q;
  }
}

}  // namespace tarvola_data

#endif
