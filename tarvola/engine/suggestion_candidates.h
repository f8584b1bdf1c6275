// The candidate spellings of an unknown word, level by level, for the
// suggestion search. Each function returns its level's candidates in a
// fixed order with duplicates removed and without the word itself, so no
// spelling is tested twice within a level.
//
//   1 capitalised       the word in lower case with a capital first letter
//   2 swapped           two neighbouring characters exchanged
//   3 letter groups     one confusion of suggestion_tables.h undone
//   4 blank inserted    the word cut in two; halves of 2+ characters
//   5 one letter        one character deleted, one letter inserted, then
//                       one character replaced by a letter
//   6 one replaced      one character replaced by another letter
//
// Levels 1 and 6 keep only candidates longer than 2 characters. Letters
// written into the word follow its case: capitals in an all-capital word,
// a capital where a capital first letter is replaced.
#ifndef TARVOLA_ENGINE_SUGGESTION_CANDIDATES_H
#define TARVOLA_ENGINE_SUGGESTION_CANDIDATES_H

#include <string>
#include <vector>

namespace tarvola::engine {

std::vector<std::string> capitalised_candidates(const std::string& word);
std::vector<std::string> swapped_candidates(const std::string& word);
std::vector<std::string> letter_group_candidates(const std::string& word);
// Level 4 as the two halves; the candidate is left + " " + right.
struct BlankSplit {
  std::string left;
  std::string right;
};
std::vector<BlankSplit> blank_candidates(const std::string& word);
std::vector<std::string> one_letter_candidates(const std::string& word);
std::vector<std::string> replaced_candidates(const std::string& word);

}  // namespace tarvola::engine

#endif
