// The paradigm entries a word of the personal dictionary gets: from its
// category and the last byte of its lemma, one to three (inflection class,
// stem form) pairs. Lookup later finds a token's stem among the forms and
// hands the rest of the token, behind the class symbol "<hpN>", to the
// network that knows each class's endings.
#ifndef TARVOLA_USERDICT_PARADIGMS_H
#define TARVOLA_USERDICT_PARADIGMS_H

#include <string>
#include <string_view>
#include <vector>

namespace tarvola::userdict {

struct ParadigmRow {
  std::string lemma;  // lower-cased for common nouns, adjectives and verbs
  std::string tag;    // e.g. "<IZE><ARR>"
  std::string form;   // the stem the class attaches to
  std::string klass;  // "<hp1>" .. "<hp25>"
};

// The rows in insertion order (an earlier row wins a shared key). A category
// other than the six known symbols, and an empty lemma, give no rows. A
// one-byte "<LIB>" lemma in s, x or z throws std::out_of_range: its rule
// reads the byte before the last one.
std::vector<ParadigmRow> paradigm_rows(std::string_view lemma,
                                       std::string_view category);

}  // namespace tarvola::userdict

#endif
