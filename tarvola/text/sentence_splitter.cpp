#include "tarvola/text/sentence_splitter.h"

#include "tarvola/base/latin1.h"

namespace tarvola::text {

namespace {

bool is_roman_capital(char c) {
  switch (c) {
    case 'C': case 'D': case 'I': case 'L': case 'M': case 'V': case 'X':
      return true;
    default:
      return false;
  }
}

char byte_at(std::string_view text, std::size_t i) { return i < text.size() ? text[i] : '\0'; }

// Whether the ". " at position p ends a sentence.
bool period_ends_sentence(std::string_view text, std::size_t p,
                          const AbbreviationTest& known_abbreviation) {
  std::size_t blank = p == 0 ? std::string_view::npos : text.rfind(' ', p - 1);
  std::size_t start = blank == std::string_view::npos ? 0 : blank + 1;
  // Deliberately up to the word's first period: "a.b.c." is tried as "a.".
  std::size_t first_period = text.find('.', start);
  std::size_t length = first_period - start + 1;
  if (length <= kMaxAbbreviation &&
      known_abbreviation(std::string(text.substr(start, length))))
    return false;

  const char prev = p == 0 ? '\0' : text[p - 1];
  const char next = byte_at(text, p + 2);
  const char next2 = byte_at(text, p + 3);
  // Only ASCII a-z counts as lower case here: "etxea. éste" is split.
  if (!latin1::is_digit(prev) && !is_roman_capital(prev) && !latin1::is_ascii_lower(next))
    return true;
  return next == '"' && !latin1::is_ascii_lower(next2);
}

}  // namespace

std::vector<std::string> split_sentences(std::string_view text,
                                         const AbbreviationTest& known_abbreviation) {
  if (text.size() > kMaxParagraph) text = text.substr(0, kMaxParagraph);
  std::vector<char> ends(text.size(), 0);

  for (std::string_view pair : {"! ", "? ", ": "})
    for (std::size_t p = text.find(pair); p != std::string_view::npos; p = text.find(pair, p + 1))
      ends[p + 1] = 1;
  for (std::size_t p = text.find(". "); p != std::string_view::npos; p = text.find(". ", p + 1))
    if (period_ends_sentence(text, p, known_abbreviation)) ends[p + 1] = 1;

  std::vector<std::string> sentences;
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!ends[i]) continue;
    sentences.emplace_back(text.substr(start, i + 1 - start));
    start = i + 1;
  }
  sentences.emplace_back(text.substr(start));
  return sentences;
}

}  // namespace tarvola::text
