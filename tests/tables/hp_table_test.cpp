// The personal dictionary's endings network as committed in data/tables:
// every class generates its forms, every generated form analyses back to
// the reading it was generated from, and the linking letters are right.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/tables/Taula.h"

namespace {

const std::string kHp = std::string(TARVOLA_TEST_DATA_DIR) + "/../../data/tables/hpPG.txt";

class HpTable : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { table = new tarvola::Taula(kHp); }
  static void TearDownTestSuite() {
    delete table;
    table = nullptr;
  }
  // Ending -> analysis for one class, by generation.
  static std::multimap<std::string, std::string> forms(const std::string& cls) {
    std::multimap<std::string, std::string> out;
    for (const auto& a : table->sortuFormak(cls, "", false, false)) out.emplace(a.forma.substr(cls.size()), a.analisia);
    return out;
  }
  static bool has(const std::string& cls, const std::string& ending, const std::string& tags) {
    auto all = forms(cls);
    auto range = all.equal_range(ending);
    return std::any_of(range.first, range.second, [&](const auto& p) { return p.second == cls + tags; });
  }
  static tarvola::Taula* table;
};
tarvola::Taula* HpTable::table = nullptr;

}  // namespace

TEST_F(HpTable, EveryClassRoundTrips) {
  ASSERT_TRUE(std::ifstream(kHp).good()) << kHp;
  for (int n = 1; n <= 25; ++n) {
    const std::string cls = "<hp" + std::to_string(n) + ">";
    auto generated = table->sortuFormak(cls, "", false, false);
    ASSERT_FALSE(generated.empty()) << cls;
    for (const auto& g : generated) {
      ASSERT_EQ(g.forma.rfind(cls, 0), 0u) << cls << " " << g.forma;
      auto readings = table->analizatuTokena(g.forma);
      EXPECT_TRUE(std::any_of(readings.begin(), readings.end(),
                              [&](const tarvola::Analisia& r) { return r.analisia == g.analisia; }))
          << g.forma << " does not analyse back to " << g.analisia;
    }
  }
}

TEST_F(HpTable, CommonNounsLinkByTheirFinalLetter) {
  // etxe (vowel), neska (organic a: neska / plural stem nesk-), lagun
  // (consonant), txakur (r doubled before a vowel: txakurr-).
  EXPECT_TRUE(has("<hp1>", "a", "<NUMS>"));
  EXPECT_TRUE(has("<hp1>", "ak", "<NUMP>"));
  EXPECT_TRUE(has("<hp1>", "an", "<NUMS><INE>"));
  EXPECT_TRUE(has("<hp1>", "tan", "<INE>"));
  EXPECT_TRUE(has("<hp1>", "etan", "<NUMP><INE>"));
  EXPECT_TRUE(has("<hp1>", "ri", "<DAT>"));
  EXPECT_TRUE(has("<hp3>", "", "<NUMS>"));
  EXPECT_TRUE(has("<hp3>", "n", "<NUMS><INE>"));
  EXPECT_TRUE(has("<hp2>", "ei", "<NUMP><DAT>"));
  EXPECT_TRUE(has("<hp4>", "ari", "<NUMS><DAT>"));
  EXPECT_TRUE(has("<hp4>", "ean", "<NUMS><INE>"));
  EXPECT_TRUE(has("<hp4>", "ik", "<PAR>"));
  EXPECT_TRUE(has("<hp5>", "a", "<NUMS>"));
  EXPECT_FALSE(has("<hp5>", "", ""));  // txakurr alone is no word
  EXPECT_TRUE(has("<hp6>", "", ""));
}

TEST_F(HpTable, ProperNounsTakeNoArticle) {
  EXPECT_TRUE(has("<hp12>", "n", "<INE>"));     // Bilbon
  EXPECT_TRUE(has("<hp12>", "tik", "<ABL>"));   // Bilbotik
  EXPECT_TRUE(has("<hp13>", "en", "<INE>"));    // Parisen
  EXPECT_TRUE(has("<hp13>", "ko", "<GEL>"));    // Parisko
  EXPECT_TRUE(has("<hp25>", "dik", "<ABL>"));   // Madrildik
  EXPECT_TRUE(has("<hp25>", "go", "<GEL>"));    // Madrilgo
  EXPECT_TRUE(has("<hp18>", "tik", "<ABL>"));   // Zarauztik
  EXPECT_TRUE(has("<hp19>", "era", "<ALA>"));   // Zarautzera
  EXPECT_TRUE(has("<hp8>", "rengana", "<ALA>"));  // Anerengana
  EXPECT_FALSE(has("<hp12>", "a", "<NUMS>"));
}

TEST_F(HpTable, VerbFormsFollowTheParticiple) {
  EXPECT_TRUE(has("<hp21>", "ko", "<GERO>"));   // hartuko
  EXPECT_TRUE(has("<hp22>", "go", "<GERO>"));   // egingo
  EXPECT_TRUE(has("<hp23>", "da", "<MOD>"));    // hilda
  EXPECT_TRUE(has("<hp20>", "n", "<EZBU>"));    // egiten
  EXPECT_TRUE(has("<hp20>", "ko", "<GEL>"));    // egiteko
  EXPECT_TRUE(has("<hp24>", "", ""));           // har
}

TEST_F(HpTable, CommonNounsHaveEveryCaseInEveryNumber) {
  // The classes a common noun gets by its final letter (the personal
  // dictionary adds each group together): the union of their forms must
  // hold every case in the indefinite, the singular and the plural; the
  // partitive exists only without number.
  const std::vector<std::vector<std::string>> kinds = {
      {"<hp1>"}, {"<hp3>", "<hp2>"}, {"<hp4>"}, {"<hp6>", "<hp5>"}};
  const char* cases[] = {"",      "<ERG>", "<DAT>", "<GEN>", "<SOZ>", "<DES>", "<INS>",
                         "<INE>", "<ALA>", "<ABL>", "<GEL>", "<PAR>", "<MOT>"};
  for (const auto& kind : kinds) {
    std::set<std::string> tags;
    for (const auto& cls : kind)
      for (const auto& a : table->sortuFormak(cls, "", false, false)) tags.insert(a.analisia.substr(cls.size()));
    for (const char* number : {"", "<NUMS>", "<NUMP>"})
      for (const char* c : cases) {
        const std::string want = std::string(number) + c;
        bool partitive = std::string(c) == "<PAR>";
        EXPECT_EQ(tags.count(want), partitive && *number ? 0u : 1u) << kind.front() << " " << want;
      }
  }
}
