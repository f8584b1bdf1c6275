#include "tarvola/userdict/verb_stems.h"

#include <gtest/gtest.h>

namespace {

using tarvola::userdict::verb_stem;
using tarvola::userdict::verbal_noun;

struct StemCase {
  const char* lemma;
  const char* stem;
  const char* noun;
};

// One row per rule of the two tables, then the cases where the order of the
// rules or the minimum lengths decide.
const StemCase kCases[] = {
    {"hoztu", "hotz", "hozte"},     {"hestu", "hets", "heste"},
    {"utzi", "utz", "uzte"},        {"hautsi", "hauts", "hauste"},
    {"egin", "egin", "egite"},      {"ikusi", "ikusi", "ikuste"},
    {"etorri", "etor", "etortze"},  {"ibili", "ibil", "ibiltze"},
    {"hartu", "har", "hartze"},     {"galdu", "gal", "galtze"},
    {"itxi", "itxi", "itxitze"},    // the repeated "tsi" row never fires
    {"jarri", "jar", "jartze"},     // "rri" before "ri"
    {"edu", "edu", "edutze"},       // -du only through "ldu"/"ndu"
    {"n", "n", "ntze"},             // "n" needs two bytes
    {"tu", "", "tze"},              {"", "", "tze"},
    {"hil", "hil", "hiltze"},       {"ezkondu", "ezkon", "ezkontze"},
    // Endings are tested lower-cased but cut from the lemma as given.
    {"HARTU", "HAR", "HARtze"},     {"UTZI", "Utz", "Uzte"},
    {"EGIN", "EGIN", "EGIte"},
};

TEST(VerbStems, RuleTablesInOrder) {
  for (const StemCase& c : kCases) {
    EXPECT_EQ(verb_stem(c.lemma), c.stem) << c.lemma;
    EXPECT_EQ(verbal_noun(c.lemma), c.noun) << c.lemma;
  }
}

}  // namespace
