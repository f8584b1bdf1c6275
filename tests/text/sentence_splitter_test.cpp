#include "tarvola/text/sentence_splitter.h"

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarvola::text {
namespace {

using Sentences = std::vector<std::string>;

Sentences split(const std::string& text, std::set<std::string> abbreviations = {}) {
  return split_sentences(text, [&](const std::string& w) { return abbreviations.count(w) > 0; });
}

TEST(SentenceSplitter, UnconditionalBoundaries) {
  EXPECT_EQ(split("Kaixo! Zer moduz? Ondo."), (Sentences{"Kaixo! ", "Zer moduz? ", "Ondo."}));
  EXPECT_EQ(split("Hau da: bat."), (Sentences{"Hau da: ", "bat."}));
  EXPECT_EQ(split("Ondo. "), (Sentences{"Ondo. ", ""}));
  EXPECT_EQ(split(""), (Sentences{""}));
  // Punctuation must be followed by byte 32 itself.
  EXPECT_EQ(split("etxea.\nBeste etxea!Beste"), (Sentences{"etxea.\nBeste etxea!Beste"}));
}

TEST(SentenceSplitter, PeriodRules) {
  EXPECT_EQ(split("etxea. Beste"), (Sentences{"etxea. ", "Beste"}));
  EXPECT_EQ(split("etxea. beste"), (Sentences{"etxea. beste"}));
  // Accented lower-case letters do not count as lower case.
  EXPECT_EQ(split("etxea. \xE9ste"), (Sentences{"etxea. ", "\xE9ste"}));
  EXPECT_EQ(split("1990. Urtean"), (Sentences{"1990. Urtean"}));
  EXPECT_EQ(split("1990. \"Hori\""), (Sentences{"1990. ", "\"Hori\""}));
  EXPECT_EQ(split("1990. \"hori\""), (Sentences{"1990. \"hori\""}));
  EXPECT_EQ(split("Mikel XX. Mendea"), (Sentences{"Mikel XX. Mendea"}));
  EXPECT_EQ(split(". Bai"), (Sentences{". ", "Bai"}));
}

TEST(SentenceSplitter, AbbreviationsAreLookedUpUpToTheFirstPeriod) {
  std::vector<std::string> asked;
  auto record = [&](const std::string& w) {
    asked.push_back(w);
    return w == "etab." || w == "a.";
  };
  EXPECT_EQ(split_sentences("sagarrak, etab. Gero a.b.c. Bai", record),
            (Sentences{"sagarrak, etab. Gero a.b.c. Bai"}));
  EXPECT_EQ(asked, (std::vector<std::string>{"etab.", "a."}));
  EXPECT_EQ(split("etxea. Beste", {"etxea."}), (Sentences{"etxea. Beste"}));
}

TEST(SentenceSplitter, LongWordsAreNotLookedUp) {
  // Words of 99 bytes or more, period included, are never looked up.
  bool asked = false;
  auto any = [&](const std::string&) { return asked = true; };
  EXPECT_EQ(split_sentences(std::string(98, 'a') + ". Bai", any).size(), 2u);
  EXPECT_FALSE(asked);
  EXPECT_EQ(split_sentences(std::string(97, 'a') + ". Bai", any).size(), 1u);
  EXPECT_TRUE(asked);
}

}  // namespace
}  // namespace tarvola::text
