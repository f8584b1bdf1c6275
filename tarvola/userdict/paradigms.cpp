#include "tarvola/userdict/paradigms.h"

#include <stdexcept>

#include "tarvola/base/latin1.h"
#include "tarvola/userdict/verb_stems.h"

namespace tarvola::userdict {

namespace {

bool one_of(char c, std::string_view set) {
  return set.find(c) != std::string_view::npos;
}

std::string without_last(std::string_view s) {
  return std::string(s.substr(0, s.size() - 1));
}

// Common nouns and adjectives share their classes; an adjective also gets
// <hp7> on the form of the row before, which (the key being taken) is never
// stored but is still made, in order.
void noun_or_adjective(std::string_view lemma, const char* tag, bool adjective,
                       std::vector<ParadigmRow>& rows) {
  const std::string lc = latin1::lowered(lemma);
  auto add = [&](const char* klass, std::string form) {
    rows.push_back({lc, tag, std::move(form), klass});
  };
  const char last = lemma.back();
  if (one_of(last, "aA")) {
    add("<hp3>", lc);
    add("<hp2>", without_last(lc));
  } else if (one_of(last, "EIOUeiou")) {
    add("<hp1>", lc);
  } else if (one_of(last, "rR")) {
    add("<hp6>", lc);
    add("<hp5>", lc + "r");
  } else {
    add("<hp4>", lc);
  }
  if (adjective) add("<hp7>", rows.back().form);
}

void verb(std::string_view lemma, std::vector<ParadigmRow>& rows) {
  const std::string lc = latin1::lowered(lemma);
  auto add = [&](const char* tag, const char* klass, std::string form) {
    rows.push_back({lc, tag, std::move(form), klass});
  };
  add("<ADI><ADI_IZE>", "<hp20>", latin1::lowered(verbal_noun(lemma)));
  // Only a lower-case n or l picks the participle class.
  const char last = lemma.back();
  const char* participle = last == 'n' ? "<hp22>" : last == 'l' ? "<hp23>" : "<hp21>";
  add("<ADI><PART>", participle, lc);
  add("<ADI><ADOIN>", "<hp24>", latin1::lowered(verb_stem(lemma)));
}

// Proper nouns keep the case they were given, in the lemma and the form.
void proper_noun(std::string_view lemma, std::string_view category,
                 std::vector<ParadigmRow>& rows) {
  const std::string tag = "<IZE>" + std::string(category);
  auto add = [&](const char* klass, std::string form) {
    rows.push_back({std::string(lemma), tag, std::move(form), klass});
  };
  const std::string whole(lemma);
  const char last = lemma.back();
  const bool vowel = one_of(last, "AEIOUaeiou");
  if (category == "<PIB>") {
    if (vowel) {
      add("<hp8>", whole);
    } else if (one_of(last, "rR")) {
      add("<hp10>", whole);
      add("<hp11>", whole + "r");
    } else {
      add("<hp9>", whole);
    }
  } else if (category == "<LIB>") {
    if (vowel) {
      add("<hp12>", whole);
    } else if (one_of(last, "LNln")) {
      add("<hp25>", whole);
    } else if (one_of(last, "rR")) {
      add("<hp14>", whole);
      add("<hp15>", whole + "r");
    } else if (one_of(last, "SXZsxz")) {
      if (lemma.size() < 2) throw std::out_of_range("invalid string position");
      if (lemma[lemma.size() - 2] == 't') {
        add("<hp19>", whole);
        add("<hp18>", whole.substr(0, whole.size() - 2) + last);
      } else {
        add("<hp13>", whole);
      }
    } else {
      add("<hp13>", whole);
    }
  } else {  // <IZB>
    add(vowel ? "<hp16>" : "<hp17>", whole);
  }
}

}  // namespace

std::vector<ParadigmRow> paradigm_rows(std::string_view lemma,
                                       std::string_view category) {
  std::vector<ParadigmRow> rows;
  // An empty lemma has no last byte to choose a class by, and its empty
  // form would begin every token; it gets no paradigm.
  if (lemma.empty()) return rows;
  if (category == "<ARR>") {
    noun_or_adjective(lemma, "<IZE><ARR>", false, rows);
  } else if (category == "<IZO>") {
    noun_or_adjective(lemma, "<ADJ><IZO>", true, rows);
  } else if (category == "<ADI>") {
    verb(lemma, rows);
  } else if (category == "<PIB>" || category == "<LIB>" || category == "<IZB>") {
    proper_noun(lemma, category, rows);
  }
  return rows;
}

}  // namespace tarvola::userdict
