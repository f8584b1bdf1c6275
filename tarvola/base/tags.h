// Tag and mark scanning over analysis strings such as
//   "etxe<IZE><ARR>[s=x]<0tas><1iri>"
// A tag is the text between a "<" and the next ">" (or the end of the string
// when no ">" follows); a mark is "[k=value]". Every piece of the library
// that reads tags or marks goes through these functions.
#ifndef TARVOLA_BASE_TAGS_H
#define TARVOLA_BASE_TAGS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tarvola::tags {

// The longest tag text accepted; a longer one ends the process.
inline constexpr std::size_t kMaxTagLength = 98;

inline bool contains(std::string_view hay, std::string_view needle) {
  return hay.find(needle) != std::string_view::npos;
}
inline bool starts_with(std::string_view s, std::string_view prefix) {
  return s.size() >= prefix.size() && s.compare(0, prefix.size(), prefix) == 0;
}
inline bool ends_with(std::string_view s, std::string_view suffix) {
  return s.size() >= suffix.size() &&
         s.compare(s.size() - suffix.size(), suffix.size(), suffix) == 0;
}

// Calls f(tag_text) for every tag of the string, in order. A tag text of
// more than kMaxTagLength bytes ends the process.
template <typename F>
void for_each_tag(std::string_view s, F&& f);

// The lemma: the text before the first tag that does not begin with "0",
// with marks and "0" tags left out (see lemma.cpp for the exact walk).
std::string lemma_of(std::string_view analysis);

// The value of the first mark "[k=" (key given with its "[" and "="), up to
// the next "]". Keys other than [h= [e= [p= [s= [a= [z= [c= give "".
std::string mark_value(std::string_view analysis, std::string_view key);

// The tag part of an analysis string: from its first "<" on, without marks
// and without tags that begin with "0". No "<" at all: the whole string.
std::string tag_part(std::string_view analysis);

[[noreturn]] void tag_too_long(std::string_view tag);

// Whether a text given from outside (a lemma, an extra text) can become
// part of an analysis without ending the process: every "<" in it is closed
// by a ">" within kMaxTagLength bytes. An open "<" would run on into the
// tags that follow it in the analysis.
inline bool tags_closed_in_time(std::string_view text) {
  for (std::size_t i = text.find('<'); i != std::string_view::npos;) {
    const std::size_t end = text.find('>', i + 1);
    if (end == std::string_view::npos || end - i - 1 > kMaxTagLength) return false;
    i = text.find('<', end + 1);
  }
  return true;
}

template <typename F>
void for_each_tag(std::string_view s, F&& f) {
  std::size_t i = s.find('<');
  while (i != std::string_view::npos) {
    std::size_t end = s.find('>', i + 1);
    std::size_t stop = end == std::string_view::npos ? s.size() : end;
    std::string_view tag = s.substr(i + 1, stop - i - 1);
    if (tag.size() > kMaxTagLength) tag_too_long(tag);
    f(tag);
    if (end == std::string_view::npos) return;
    i = s.find('<', end + 1);
  }
}

}  // namespace tarvola::tags

#endif
