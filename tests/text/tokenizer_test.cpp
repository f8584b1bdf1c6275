#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tarvola/text/Esaldia.h"

namespace tarvola {
namespace {

std::vector<Tokena> tokens(const std::string& text) {
  Esaldia sentence(0, text);
  sentence.tokenizatu();
  return sentence.tokenak;
}

std::vector<std::string> forms(const std::string& text) {
  std::vector<std::string> out;
  for (const Tokena& t : tokens(text)) out.push_back(t.forma);
  return out;
}

using Forms = std::vector<std::string>;

TEST(Tokenizer, PunctuationAndBlanks) {
  std::vector<Tokena> t = tokens("Kaixo, zer moduz?");
  ASSERT_EQ(t.size(), 5u);
  EXPECT_EQ(forms("Kaixo, zer moduz?"), (Forms{"Kaixo", ",", "zer", "moduz", "?"}));
  EXPECT_FALSE(t[0].hutsunea);
  EXPECT_TRUE(t[1].hutsunea);
  EXPECT_TRUE(t[2].hutsunea);
  EXPECT_FALSE(t[3].hutsunea);
  EXPECT_FALSE(t[4].hutsunea);
  for (const Tokena& token : t) EXPECT_TRUE(token.analisiak.empty());

  // Several blanks mark the previous token once and produce nothing more.
  t = tokens("bat   bi");
  ASSERT_EQ(t.size(), 2u);
  EXPECT_TRUE(t[0].hutsunea);
  EXPECT_EQ(forms("(etxe)[a]{b}"), (Forms{"(", "etxe", ")", "[", "a", "]", "{", "b", "}"}));
  EXPECT_EQ(forms("\xA1" "Bai!"), (Forms{"\xA1", "Bai", "!"}));
  EXPECT_EQ(forms("ez; bai=hori"), (Forms{"ez", ";", "bai", "=", "hori"}));
  EXPECT_EQ(tokens("a ").back().hutsunea, true);
}

TEST(Tokenizer, PeriodsAfterDigitsAndInsideWords) {
  std::vector<Tokena> t = tokens("1990. urtean");
  EXPECT_EQ(forms("1990. urtean"), (Forms{"1990", "urtean"}));
  EXPECT_TRUE(t[0].hutsunea);
  EXPECT_EQ(forms("urtea 1990."), (Forms{"urtea", "1990", "."}));
  EXPECT_EQ(forms("3.5 eta 3,5"), (Forms{"3.5", "eta", "3", ",", "5"}));
  EXPECT_EQ(forms("etab. eta"), (Forms{"etab", ".", "eta"}));
  EXPECT_EQ(forms("etab.etab"), (Forms{"etab.etab"}));
  EXPECT_EQ(forms("a.b. "), (Forms{"a.b", "."}));
  EXPECT_EQ(forms("2.a"), (Forms{"2.a"}));
  EXPECT_EQ(forms("1.)"), (Forms{"1", ")"}));
}

TEST(Tokenizer, AddressesRunToTheBlankAndFuse) {
  EXPECT_EQ(forms("http://x/y"), (Forms{"http://x/y"}));
  EXPECT_EQ(forms("a http://x y"), (Forms{"a", "http://xy"}));
  EXPECT_EQ(forms("ikusi www.x orria"), (Forms{"ikusi", "www.xorria"}));
  EXPECT_EQ(forms("sftp://a.b, c"), (Forms{"sftp://a.b,c"}));
  // The prefixes are case-sensitive.
  EXPECT_EQ(forms("HTTP://x"), (Forms{"HTTP", ":", "/", "/", "x"}));
}

TEST(Tokenizer, OtherBytesStayInsideWords) {
  EXPECT_EQ(forms("\xABKaixo\xBB"), (Forms{"\xABKaixo\xBB"}));
  EXPECT_EQ(forms("Kaixo\tlagun"), (Forms{"Kaixo\tlagun"}));
  EXPECT_EQ(forms("50% #bat"), (Forms{"50%", "#bat"}));
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
  auto mark = [](const std::string& word) { return tokens(word).at(0).maiuskula; };
  EXPECT_TRUE(mark("Etxea"));
  EXPECT_TRUE(mark("ETXEA"));
  EXPECT_FALSE(mark("etxea"));
  EXPECT_FALSE(mark("eTXEA"));
  EXPECT_TRUE(mark("123"));
  EXPECT_TRUE(mark(","));
  EXPECT_FALSE(mark("\xD1" "andu"));
  EXPECT_TRUE(mark("\xD1" "ANDU"));
}

TEST(Tokenizer, ConstructorTrimsLeadingBlanksAndTabs) {
  EXPECT_EQ(Esaldia(3, "  \t testua ").testua, "testua ");
  EXPECT_EQ(Esaldia(3, " \t ").testua, "");
  Esaldia empty(0, "");
  empty.tokenizatu();
  EXPECT_TRUE(empty.tokenak.empty());
  // Tokenising again appends a second copy.
  Esaldia twice(0, "bat bi");
  twice.tokenizatu();
  twice.tokenizatu();
  EXPECT_EQ(twice.tokenak.size(), 4u);
}

}  // namespace
}  // namespace tarvola
