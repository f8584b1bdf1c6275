// The two filters analysis applies to the strings a walk produces.
//
// maiuskulaIragazkia(word, analysis): a word written in lower case gets no
// analysis that starts with a capital or names a proper noun; an
// abbreviation or symbol reading (<SNB>, <SIG>) needs the word to begin with
// its lemma exactly. Only ASCII letters count.
//
// salbuespenIragazkia(analysis): false for a fixed list of multi-word
// readings that are never wanted.
#ifndef TARVOLA_TABLES_INTERNAL_LOOKUP_FILTERS_H
#define TARVOLA_TABLES_INTERNAL_LOOKUP_FILTERS_H

#include <string_view>

namespace tarvola::internal {

// Whether both filters keep the analysis; the tags they ask about are
// found in one scan of it.
bool filters_pass(std::string_view word, std::string_view analysis);

}  // namespace tarvola::internal

#endif
