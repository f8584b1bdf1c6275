// Cutting text into sentences and tokens.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "tarvola/text/Esaldia.h"
#include "tarvola/text/sentence_splitter.h"

namespace tarvola {
namespace {

using Sentences = std::vector<std::string>;
using Forms = std::vector<std::string>;
using text::split_sentences;

Sentences split(const std::string& text, std::set<std::string> abbreviations = {}) {
  return split_sentences(text, [&](const std::string& w) { return abbreviations.count(w) > 0; });
}

TEST(SentenceSplitter, Boundaries) {
  EXPECT_EQ(split("Kaixo! Zer moduz? Ondo."), (Sentences{"Kaixo! ", "Zer moduz? ", "Ondo."}));
  EXPECT_EQ(split("Hau da: bat."), (Sentences{"Hau da: ", "bat."}));
  EXPECT_EQ(split("Ondo. "), (Sentences{"Ondo. ", ""}));
  EXPECT_EQ(split(""), (Sentences{""}));
  // Punctuation must be followed by byte 32 itself.
  EXPECT_EQ(split("etxea.\nBeste etxea!Beste"), (Sentences{"etxea.\nBeste etxea!Beste"}));
  // A period ends a sentence before a capital, unless a number precedes it.
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

std::vector<Tokena> tokens(const std::string& text) {
  Esaldia sentence(0, text);
  sentence.tokenizatu();
  return sentence.tokenak;
}

Forms forms(const std::string& text) {
  Forms out;
  for (const Tokena& t : tokens(text)) out.push_back(t.forma);
  return out;
}

// Each token's form, "_" added when a blank follows it.
Forms blanks(const std::string& text) {
  Forms out;
  for (const Tokena& t : tokens(text)) out.push_back(t.forma + (t.hutsunea ? "_" : ""));
  return out;
}

TEST(Tokenizer, PunctuationAndBlanks) {
  EXPECT_EQ(blanks("Kaixo, zer  moduz?"), (Forms{"Kaixo", ",_", "zer_", "moduz", "?"}));
  EXPECT_EQ(forms("(etxe)[a]{b}"), (Forms{"(", "etxe", ")", "[", "a", "]", "{", "b", "}"}));
  EXPECT_EQ(forms("\xA1" "Bai!"), (Forms{"\xA1", "Bai", "!"}));
}

TEST(Tokenizer, PeriodsAfterDigitsAndInsideWords) {
  EXPECT_EQ(blanks("1990. urtean"), (Forms{"1990_", "urtean"}));
  EXPECT_EQ(forms("urtea 1990."), (Forms{"urtea", "1990", "."}));
  EXPECT_EQ(forms("3.5 eta 3,5"), (Forms{"3.5", "eta", "3", ",", "5"}));
  EXPECT_EQ(forms("etab. eta"), (Forms{"etab", ".", "eta"}));
  EXPECT_EQ(forms("etab.etab a.b. "), (Forms{"etab.etab", "a.b", "."}));
  EXPECT_EQ(forms("1.)"), (Forms{"1", ")"}));
}

TEST(Tokenizer, AddressesRunToTheBlankAndFuse) {
  EXPECT_EQ(forms("http://x/y"), (Forms{"http://x/y"}));
  EXPECT_EQ(forms("a http://x y"), (Forms{"a", "http://xy"}));
  EXPECT_EQ(forms("ikusi www.x orria"), (Forms{"ikusi", "www.xorria"}));
  EXPECT_EQ(forms("HTTP://x"), (Forms{"HTTP", ":", "/", "/", "x"}));
}

TEST(Tokenizer, OtherBytesStayInsideWords) {
  EXPECT_EQ(forms("\xABKaixo\xBB"), (Forms{"\xABKaixo\xBB"}));
  EXPECT_EQ(forms("Kaixo\tlagun 50%"), (Forms{"Kaixo\tlagun", "50%"}));
  // A zero byte is dropped without ending the word.
  EXPECT_EQ(forms(std::string("ab\0cd", 5)), (Forms{"abcd"}));
}

TEST(Tokenizer, WordsAreCutAt98Bytes) {
  std::string longword(120, 'a');
  EXPECT_EQ(forms(longword + " b"), (Forms{std::string(98, 'a'), "b"}));
  EXPECT_EQ(forms(longword + ",b"), (Forms{std::string(98, 'a'), ",", "b"}));
  std::string address = "http://" + std::string(120, 'x');
  EXPECT_EQ(forms(address + " b"), (Forms{address.substr(0, 98), "b"}));
  EXPECT_EQ(forms(std::string(110, '%')), (Forms{std::string(98, '%')}));
}

TEST(Tokenizer, CapitalisationMark) {
  std::vector<bool> marks;
  for (const Tokena& t : tokens("Etxea ETXEA etxea eTXEA 123 , \xD1" "andu \xD1" "ANDU"))
    marks.push_back(t.maiuskula);
  EXPECT_EQ(marks, (std::vector<bool>{true, true, false, false, true, true, false, true}));
}

TEST(Tokenizer, ConstructorTrimsAndTokenisingAppends) {
  EXPECT_EQ(Esaldia(3, "  \t testua ").testua, "testua ");
  EXPECT_TRUE(tokens(" \t ").empty());
  Esaldia twice(0, "bat bi");
  twice.tokenizatu();
  twice.tokenizatu();
  EXPECT_EQ(twice.tokenak.size(), 4u);
}

}  // namespace
}  // namespace tarvola
