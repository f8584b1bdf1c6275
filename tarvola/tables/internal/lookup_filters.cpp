#include "tarvola/tables/internal/lookup_filters.h"

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"

namespace tarvola::internal {

using tags::contains;

namespace {

// Which of the tags the filters ask about occur in an analysis string,
// found in one pass over its "<" characters.
enum : unsigned { kProperNoun = 1, kSymbol = 2, kPostposition = 4 };

unsigned tag_flags(std::string_view s) {
  unsigned flags = 0;
  for (std::size_t i = s.find('<'); i != std::string_view::npos && i + 4 < s.size();
       i = s.find('<', i + 1)) {
    std::string_view t = s.substr(i + 1, 4);
    if (t == "PIB>" || t == "LIB>" || t == "IZB>")
      flags |= kProperNoun;
    else if (t == "SNB>" || t == "SIG>")
      flags |= kSymbol;
    else if (t == "PSP>")
      flags |= kPostposition;
  }
  return flags;
}

bool maiuskulaIragazkia(std::string_view word, std::string_view analysis, unsigned flags) {
  const bool lower_word = !word.empty() && latin1::is_ascii_lower(word[0]);
  if (lower_word && !analysis.empty() && latin1::is_ascii_upper(analysis[0])) return false;
  if (lower_word && (flags & kProperNoun)) return false;
  if (!(flags & kSymbol)) return true;
  return tags::starts_with(word, tags::lemma_of(analysis));
}

// Every reading of the first list holds a blank; the others need "<PSP>".
constexpr std::string_view kFixedReadings[] = {
    "bidea ireki<", "bat egin<",  "bat etorri<", "asko izan<",   "bat egon<",
    "bat izan<",    "bat ere<",   "eta bi<",     "eta beste<",   "eta gero<",
    "lagun eraman<", "lagun izan<", "nahi beste<", "nola ez<",   "era batera<"};
constexpr std::string_view kWithPostposition[] = {
    "baina<", "bat<IZE>", "bate<IZE>", "bata<IZE>", "gara<IZE>",
    "ondo<IZE>", "bera<ADJ>", "be<IZE>", "zut<ADJ>"};

bool salbuespenIragazkia(std::string_view analysis, unsigned flags) {
  if (analysis.find(' ') != std::string_view::npos) {
    for (std::string_view fixed : kFixedReadings)
      if (contains(analysis, fixed)) return false;
  }
  if (!(flags & kPostposition)) return true;
  for (std::string_view word : kWithPostposition)
    if (contains(analysis, word)) return false;
  return !(contains(analysis, "ondorengo") && contains(analysis, "<ELI_IZE>"));
}

}  // namespace

bool filters_pass(std::string_view word, std::string_view analysis) {
  const unsigned flags = tag_flags(analysis);
  return maiuskulaIragazkia(word, analysis, flags) && salbuespenIragazkia(analysis, flags);
}

}  // namespace tarvola::internal
