// Cutting text into sentences and tokens, and sentences and paragraphs
// analysed over networks built straight from the engine fixture tables,
// without an engine.
#include <initializer_list>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/engine_fixture.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/text/Esaldia.h"
#include "tarvola/text/Paragrafoa.h"
#include "tarvola/text/sentence_splitter.h"

namespace tarvola {
namespace {

using testing::sourced;
using Strings = std::vector<std::string>;

class Networks {
 public:
  // Each name loads tables/engine/<name>.txt.
  Networks(std::initializer_list<const char*> names) {
    for (const char* name : names) {
      std::string path = testing::engine_table(std::string(name) + ".txt");
      owned_.push_back(std::make_unique<Sarea>(name, path, new Taula(path)));
      map_[name] = owned_.back().get();
    }
  }
  const SareMapa& map() const { return map_; }

 private:
  std::vector<std::unique_ptr<Sarea>> owned_;
  SareMapa map_;
};

Strings token_forms(const Esaldia& esaldia) {
  Strings out;
  for (const Tokena& t : esaldia.tokenak) out.push_back(t.forma);
  return out;
}

Strings readings_of(const Tokena& token) { return testing::analyses(token.analisiak); }

Esaldia analysed(const std::string& text, const SareMapa& sareak, HiztegiPertsonala& hp,
                 bool aukera = true) {
  Esaldia esaldia(0, text);
  esaldia.tokenizatu();
  esaldia.analizatu(sareak, hp, aukera);
  return esaldia;
}

class SentenceAnalysis : public ::testing::Test {
 protected:
  Networks networks{"eumorfo", "hp", "osag0"};
  HiztegiPertsonala dictionary{testing::data_path("engine_hiztegia.txt")};
  HiztegiPertsonala empty;

  Esaldia run(const std::string& text, bool aukera = true) {
    return analysed(text, networks.map(), dictionary, aukera);
  }
};

TEST_F(SentenceAnalysis, MultiTokenUnitsLongestAndFirstWin) {
  Esaldia e = run("hala ere beste");
  EXPECT_EQ(token_forms(e), (Strings{"hala ere", "beste"}));
  EXPECT_TRUE(e.tokenak[0].hutsunea);  // the blank after "ere"
  EXPECT_EQ(readings_of(e.tokenak[0]), (Strings{"hala ere<LOT><LOK>"}));

  // "hala ere" and "ere bai" overlap: the unit that starts first wins.
  e = run("hala ere bai");
  EXPECT_EQ(token_forms(e), (Strings{"hala ere", "bai"}));
  EXPECT_FALSE(e.tokenak[1].hutsunea);

  e = run("zer edo zer, zer");
  EXPECT_EQ(token_forms(e), (Strings{"zer edo zer", ",", "zer"}));
  for (const Tokena& t : e.tokenak) EXPECT_EQ(t.analisiak.size(), 1u);

  // Merging moves only form and blank: the capital mark stays with the slot.
  e = run("hala ere Bai kaixo");
  ASSERT_EQ(token_forms(e), (Strings{"hala ere", "Bai", "kaixo"}));
  EXPECT_FALSE(e.tokenak[1].maiuskula);
  EXPECT_TRUE(e.tokenak[2].maiuskula);
}

TEST_F(SentenceAnalysis, NetworksAllowOnlyTheirUnitLength) {
  // Six tokens: more than an ordinary network's five.
  const std::string six = "bat bi hiru lau bost sei";
  EXPECT_EQ(run(six).tokenak.size(), 6u);
  Networks with_numbers{"eumorfo", "zenbakiak"};
  Esaldia e = analysed(six, with_numbers.map(), empty);
  ASSERT_EQ(e.tokenak.size(), 1u);
  EXPECT_EQ(readings_of(e.tokenak[0]), (Strings{six + "<DET><ZNB>"}));
}

TEST_F(SentenceAnalysis, FallbackReadings) {
  Esaldia e = run("[ ] < > xyzw");
  Strings got;
  for (const Tokena& t : e.tokenak)
    for (const Analisia& a : t.analisiak)
      got.push_back(a.sarea + "|" + a.analisia + "|" + a.lema + "|" + a.etiketa);
  EXPECT_EQ(got, (Strings{"eumorfo|[<PUN><KOR>|[| PUN KOR", "eumorfo|]<PUN><KOR>|]| PUN KOR",
                          "eumorfo|<<PUN><LT>|<| PUN LT", "eumorfo|><PUN><GT>|>| PUN GT",
                          "|xyzw<EZZG>|xyzw| EZZG"}));

  // A long unknown token starting with "<" gets its reading too, although
  // its first "tag" would be too long to parse.
  std::string odd = "<" + std::string(97, 'x');
  e = run(odd);
  ASSERT_EQ(e.tokenak.size(), 1u);
  EXPECT_EQ(e.tokenak[0].analisiak.at(0).analisia, odd + "<EZZG>");
  EXPECT_EQ(e.tokenak[0].analisiak.at(0).etiketa, " EZZG");
}

TEST_F(SentenceAnalysis, CompoundNetworkComesLastWithoutRareReadings) {
  Esaldia e = run("etxezain etxezulo etxea");
  ASSERT_EQ(e.tokenak.size(), 3u);
  EXPECT_EQ(readings_of(e.tokenak[0]), (Strings{"etxe+zain<IZE><ARR>"}));
  EXPECT_EQ(e.tokenak[0].analisiak[0].sarea, "osag0");
  EXPECT_EQ(readings_of(e.tokenak[1]), (Strings{"etxezulo<EZZG>"}));
  // Known to the main network: "osag0" is not asked.
  EXPECT_EQ(readings_of(e.tokenak[2]), (Strings{"etxe<IZE><ARR><ABS><NUMS><MUGM>"}));
}

TEST_F(SentenceAnalysis, PersonalDictionaryFirstOrLast) {
  const std::string network = "etxe<IZE><ARR><INE><NUMS><MUGM>";
  const std::string personal = "hp:" + network;
  EXPECT_EQ(sourced(run("etxean", true).tokenak.at(0).analisiak), Strings{personal});
  EXPECT_EQ(sourced(run("etxean", false).tokenak.at(0).analisiak),
            (Strings{"eumorfo:" + network, personal}));
  // Words only the dictionary knows, either way.
  for (bool aukera : {true, false})
    EXPECT_EQ(run("Getxon", aukera).tokenak.at(0).analisiak.at(0).lema, "Getxo") << aukera;
  // Without the "hp" network, or with an empty dictionary, nothing personal.
  Networks no_hp{"eumorfo"};
  EXPECT_EQ(readings_of(analysed("etxean", no_hp.map(), dictionary).tokenak.at(0)),
            (Strings{network}));
  EXPECT_EQ(readings_of(analysed("Getxon", networks.map(), empty).tokenak.at(0)),
            (Strings{"Getxon<EZZG>"}));
}

TEST_F(SentenceAnalysis, EmptySentenceAndMissingNetworks) {
  EXPECT_TRUE(run("").tokenak.empty());
  Esaldia e = analysed("etxea", SareMapa{}, empty);
  EXPECT_EQ(readings_of(e.tokenak.at(0)), (Strings{"etxea<EZZG>"}));
}

class ParagraphAnalysis : public ::testing::Test {
 protected:
  Networks networks{"eumorfo", "hp", "osag0"};
  HiztegiPertsonala dictionary;

  Paragrafoa run(const std::string& text) {
    Paragrafoa p(1, text);
    p.analizatu(networks.map(), dictionary, true);
    return p;
  }
};

Strings sentence_texts(const Paragrafoa& p) {
  Strings out;
  for (const Esaldia& e : p.esaldiak) out.push_back(e.testua);
  return out;
}

TEST_F(ParagraphAnalysis, SplitsNumbersTokenisesAndAnalyses) {
  Paragrafoa p(1, "Kaixo! Zer moduz? Ondo.");
  std::vector<Esaldia> returned = p.analizatu(networks.map(), dictionary, true);
  ASSERT_EQ(p.esaldiak.size(), 3u);
  // The blank that ends a sentence stays with it; the next starts trimmed.
  EXPECT_EQ(sentence_texts(p), (Strings{"Kaixo! ", "Zer moduz? ", "Ondo."}));
  EXPECT_EQ(p.esaldiak[0].id, -1);
  EXPECT_EQ(p.esaldiak[2].id, 1);
  EXPECT_EQ(token_forms(p.esaldiak[1]), (Strings{"Zer", "moduz", "?"}));
  for (const Esaldia& e : p.esaldiak)
    for (const Tokena& t : e.tokenak) EXPECT_FALSE(t.analisiak.empty());
  EXPECT_EQ(returned[2].tokenak.size(), p.esaldiak[2].tokenak.size());
}

TEST_F(ParagraphAnalysis, AbbreviationsNetworksAndRepeatedAnalysis) {
  // Abbreviations come from the main network.
  EXPECT_EQ(sentence_texts(run("sagarrak, etab. Gero etxea. Beste")),
            (Strings{"sagarrak, etab. Gero etxea. ", "Beste"}));
  // Without the main network nothing at all.
  Networks others{"hp", "osag0"};
  Paragrafoa none(1, "Kaixo! Zer moduz?");
  EXPECT_TRUE(none.analizatu(others.map(), dictionary, true).empty());
  EXPECT_TRUE(none.esaldiak.empty());
  // A second analysis appends again.
  Paragrafoa p(1, "Bai! Ez.");
  p.analizatu(networks.map(), dictionary, true);
  p.analizatu(networks.map(), dictionary, true);
  EXPECT_EQ(sentence_texts(p), (Strings{"Bai! ", "Ez.", "Bai! ", "Ez."}));
}

TEST_F(ParagraphAnalysis, LongTextIsAnalysedUpToTheLimit) {
  std::string text;
  while (text.size() < 12000) text += "Kaixo! ";
  Paragrafoa p = run(text);
  std::size_t covered = 0;
  for (const Esaldia& e : p.esaldiak) covered += e.testua.size();
  EXPECT_EQ(covered, 9999u);
  EXPECT_EQ(p.esaldiak.back().testua, "Kai");
  EXPECT_EQ(p.testua, text);
}

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
