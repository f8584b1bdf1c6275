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
};

TEST(VerbStems, RuleTablesInOrder) {
  for (const StemCase& c : kCases) {
    EXPECT_EQ(verb_stem(c.lemma), c.stem) << c.lemma;
    EXPECT_EQ(verbal_noun(c.lemma), c.noun) << c.lemma;
  }
}

TEST(VerbStems, EndingsTestedLowerCasedButCutFromTheLemmaAsGiven) {
  EXPECT_EQ(verb_stem("HARTU"), "HAR");
  EXPECT_EQ(verbal_noun("HARTU"), "HARtze");
  EXPECT_EQ(verb_stem("UTZI"), "Utz");
  EXPECT_EQ(verbal_noun("UTZI"), "Uzte");
  EXPECT_EQ(verbal_noun("EGIN"), "EGIte");
}

}  // namespace
