// A stand-in main network built from running text: every distinct
// lower-cased word of the text becomes one reading "word<X>". Used to
// measure the suggestion search until real tables are at hand.
//
// Words are the longest runs of letters (the tokeniser's word characters
// without the digits and signs); the table is a letter trie in the plain
// table format, each word ending with the arc "<X>:<>" into one final state.
#ifndef TARVOLA_BENCH_WORD_TABLE_H
#define TARVOLA_BENCH_WORD_TABLE_H

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tarvola/base/latin1.h"

namespace tarvola::bench {

inline bool is_letter(char c) {
  return latin1::is_word_char(c) && !latin1::is_digit(c) && latin1::to_lower(c) != latin1::to_upper(c);
}

// The distinct lower-cased words of the text, in byte order.
inline std::vector<std::string> distinct_words(const std::string& text) {
  std::set<std::string> words;
  std::string word;
  for (std::size_t i = 0; i <= text.size(); ++i) {
    if (i < text.size() && is_letter(text[i])) {
      word += latin1::to_lower(text[i]);
    } else if (!word.empty()) {
      words.insert(word);
      word.clear();
    }
  }
  return {words.begin(), words.end()};
}

inline std::string word_table(const std::vector<std::string>& words) {
  // Trie states in creation order; arcs of a state in byte order.
  std::vector<std::map<char, int>> children(1);
  std::vector<bool> ends(1, false);
  for (const std::string& word : words) {
    int state = 0;
    for (char c : word) {
      auto it = children[state].find(c);
      if (it == children[state].end()) {
        const int next = static_cast<int>(children.size());
        children[state].emplace(c, next);
        children.emplace_back();
        ends.push_back(false);
        state = next;
      } else {
        state = it->second;
      }
    }
    ends[state] = true;
  }
  // The shared final state comes last, so the last line names the highest
  // state, as the state count of the loader requires.
  const int final_state = static_cast<int>(children.size());
  std::string text;
  for (int s = 0; s < final_state; ++s) {
    if (ends[s]) text += std::to_string(s) + "\t<X>:<>\t" + std::to_string(final_state) + "\n";
    for (const auto& [c, next] : children[s])
      text += std::to_string(s) + "\t" + std::string(1, c) + "\t" + std::to_string(next) + "\n";
  }
  text += "final: " + std::to_string(final_state) + "\n";
  return text;
}

}  // namespace tarvola::bench

#endif
