// The sentence splitter behind Paragrafoa::esaldikatu, apart from the table
// so that its rules can be exercised with any abbreviation test.
//
// Boundaries fall on the blank after the punctuation, so every sentence but
// the last ends with its punctuation and that blank:
//   - "! ", "? " and ": " always end a sentence;
//   - ". " ends one unless the word holding the period (from the blank
//     before it up to its first period, e.g. "a." of "a.b.c.") is a known
//     abbreviation, or the period follows a digit or one of the Roman-numeral
//     capitals CDILMVX, or an ASCII lower-case letter follows the blank; in
//     the last two cases an opening double quote not followed by a lower-case
//     letter still ends it ('1990. "Hori"').
// The remainder after the last boundary is always one more sentence, empty
// when the text ends on a boundary or is empty.
//
// Limits: only the first kMaxParagraph bytes of a longer text are split (the
// rest is left out, so callers that must not lose text cut it into
// paragraphs first); a period word longer than kMaxAbbreviation bytes is
// never looked up and is judged by the other rules alone.
#ifndef TARVOLA_TEXT_SENTENCE_SPLITTER_H
#define TARVOLA_TEXT_SENTENCE_SPLITTER_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvola::text {

inline constexpr std::size_t kMaxParagraph = 9999;
inline constexpr std::size_t kMaxAbbreviation = 98;

// Given a word ending in its period, whether it is a known abbreviation.
using AbbreviationTest = std::function<bool(const std::string&)>;

std::vector<std::string> split_sentences(std::string_view text,
                                         const AbbreviationTest& known_abbreviation);

}  // namespace tarvola::text

#endif
