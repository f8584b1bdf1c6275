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
  // Each row: class, ending, tags after the class, and whether the class
  // has that form.
  struct Row {
    const char* cls;
    const char* ending;
    const char* tags;
    bool present;
  };
  static void expect_rows(const std::vector<Row>& rows) {
    for (const auto& r : rows) EXPECT_EQ(has(r.cls, r.ending, r.tags), r.present) << r.cls << r.ending << " " << r.tags;
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
  expect_rows({
      {"<hp1>", "a", "<NUMS><ABS>", true},
      {"<hp1>", "ak", "<NUMP><ABS>", true},
      {"<hp1>", "an", "<NUMS><INE>", true},
      {"<hp1>", "tan", "<MG><INE>", true},
      {"<hp1>", "etan", "<NUMP><INE>", true},
      {"<hp1>", "ri", "<MG><DAT>", true},
      {"<hp3>", "", "<NUMS><ABS>", true},
      {"<hp3>", "n", "<NUMS><INE>", true},
      {"<hp2>", "ei", "<NUMP><DAT>", true},
      {"<hp4>", "ari", "<NUMS><DAT>", true},
      {"<hp4>", "ean", "<NUMS><INE>", true},
      {"<hp4>", "ik", "<MG><PAR><BUK>", true},
      {"<hp5>", "a", "<NUMS><ABS>", true},
      {"<hp5>", "", "<MG><ABS>", false},  // txakurr alone is no word
      {"<hp6>", "", "<MG><ABS>", true},
  });
}

TEST_F(HpTable, ProperNounsTakeNoArticle) {
  expect_rows({
      {"<hp12>", "n", "<MG><INE>", true},  // Bilbon
      {"<hp12>", "tik", "<MG><ABL><BUK>", true},  // Bilbotik
      {"<hp13>", "en", "<MG><INE>", true},  // Parisen
      {"<hp13>", "ko", "<MG><GEL><MG><ABS>", true},  // Parisko
      {"<hp25>", "dik", "<MG><ABL><BUK>", true},  // Madrildik
      {"<hp25>", "go", "<MG><GEL><MG><ABS>", true},  // Madrilgo
      {"<hp18>", "tik", "<MG><ABL><BUK>", true},  // Zarauztik
      {"<hp19>", "era", "<MG><ALA><BUK>", true},  // Zarautzera
      {"<hp8>", "rengana", "<MG><ALA><BUK>", true},  // Anerengana
      {"<hp12>", "a", "<NUMS><ABS>", false},
  });
}

TEST_F(HpTable, VerbFormsFollowTheParticiple) {
  expect_rows({
      {"<hp21>", "ko", "<GERO>", true},  // hartuko
      {"<hp22>", "go", "<GERO>", true},  // egingo
      {"<hp23>", "da", "<MOD><BUK>", true},  // hilda
      {"<hp20>", "n", "<EZBU><BUK>", true},  // egiten
      {"<hp20>", "ko", "<MG><GEL><MG><ABS>", true},  // egiteko
      {"<hp24>", "", "", true},  // har
      {"<hp21>", "", "<BUK>", true},  // hartu
      {"<hp21>", "tako", "<MOD><MG><GEL><MG><ABS>", true},  // hartutako
  });
}

TEST_F(HpTable, CommonNounsHaveEveryCaseInEveryNumber) {
  // The classes a common noun gets by its final letter (the personal
  // dictionary adds each group together): the union of their forms must
  // hold every case in the indefinite, the singular and the plural; the
  // partitive exists only without number.
  const std::vector<std::vector<std::string>> kinds = {
      {"<hp1>"}, {"<hp3>", "<hp2>"}, {"<hp4>"}, {"<hp6>", "<hp5>"}};
  // Each case with its closing: -ko and -en are declined again, so bare
  // they are the indefinite absolutive; the cases the main network extends
  // (etxerako, etxekiko) are closed with <BUK>.
  const char* cases[] = {"<ABS>",          "<ERG>",      "<DAT>",      "<GEN><MG><ABS>", "<SOZ><BUK>",
                         "<DES><BUK>",     "<INS><BUK>", "<INE>",      "<ALA><BUK>",     "<ABL><BUK>",
                         "<GEL><MG><ABS>", "<PAR><BUK>", "<MOT><BUK>"};
  for (const auto& kind : kinds) {
    std::set<std::string> tags;
    for (const auto& cls : kind)
      for (const auto& a : table->sortuFormak(cls, "", false, false)) tags.insert(a.analisia.substr(cls.size()));
    for (const char* number : {"<MG>", "<NUMS>", "<NUMP>"})
      for (const char* c : cases) {
        const std::string want = std::string(number) + c;
        bool partitive = std::string(c) == "<PAR><BUK>";
        EXPECT_EQ(tags.count(want), partitive && std::string(number) != "<MG>" ? 0u : 1u)
            << kind.front() << " " << want;
      }
  }
}
