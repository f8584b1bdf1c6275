// The personal dictionary's endings network as committed in data/tables:
// the linking letters of each class are right, and common nouns have every
// case (own_form_test.cpp checks that every form reads back as generated).
#include <gtest/gtest.h>

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
  // Whether generating the class gives the ending with those tags.
  static bool has(const std::string& cls, const std::string& ending, const std::string& tags) {
    for (const auto& a : table->sortuFormak(cls, "", false, false))
      if (a.forma == cls + ending && a.analisia == cls + tags) return true;
    return false;
  }
  static tarvola::Taula* table;
};
tarvola::Taula* HpTable::table = nullptr;

}  // namespace

TEST_F(HpTable, EndingsOfEachKind) {
  // Class, ending, tags after the class, and whether the class has that form.
  struct Row {
    const char* cls;
    const char* ending;
    const char* tags;
    bool present;
  } rows[] = {
      // Common nouns link by their final letter: etxe (vowel), neska (organic
      // a: neska / plural stem nesk-), lagun (consonant), txakur (r doubled
      // before a vowel: txakurr-).
      {"<hp1>", "a", "<NUMS><ABS>", true}, {"<hp1>", "ak", "<NUMP><ABS>", true},
      {"<hp1>", "an", "<NUMS><INE>", true}, {"<hp1>", "tan", "<MG><INE>", true},
      {"<hp1>", "etan", "<NUMP><INE>", true}, {"<hp1>", "ri", "<MG><DAT>", true},
      {"<hp3>", "", "<NUMS><ABS>", true}, {"<hp3>", "n", "<NUMS><INE>", true},
      {"<hp2>", "ei", "<NUMP><DAT>", true}, {"<hp4>", "ari", "<NUMS><DAT>", true},
      {"<hp4>", "ean", "<NUMS><INE>", true}, {"<hp4>", "ik", "<MG><PAR><BUK>", true},
      {"<hp5>", "a", "<NUMS><ABS>", true},
      {"<hp5>", "", "<MG><ABS>", false},  // txakurr alone is no word
      {"<hp6>", "", "<MG><ABS>", true},
      // Proper nouns take no article.
      {"<hp12>", "n", "<MG><INE>", true}, {"<hp12>", "tik", "<MG><ABL><BUK>", true},  // Bilbon, Bilbotik
      {"<hp13>", "en", "<MG><INE>", true}, {"<hp13>", "ko", "<MG><GEL><MG><ABS>", true},  // Parisen, Parisko
      {"<hp25>", "dik", "<MG><ABL><BUK>", true}, {"<hp25>", "go", "<MG><GEL><MG><ABS>", true},  // Madrildik, Madrilgo
      {"<hp18>", "tik", "<MG><ABL><BUK>", true}, {"<hp19>", "era", "<MG><ALA><BUK>", true},  // Zarauztik, Zarautzera
      {"<hp8>", "rengana", "<MG><ALA><BUK>", true},  // Anerengana
      {"<hp12>", "a", "<NUMS><ABS>", false},
      // Verb forms follow the participle.
      {"<hp21>", "ko", "<GERO>", true}, {"<hp22>", "go", "<GERO>", true},  // hartuko, egingo
      {"<hp23>", "da", "<MOD><BUK>", true}, {"<hp20>", "n", "<EZBU><BUK>", true},  // hilda, egiten
      {"<hp20>", "ko", "<MG><GEL><MG><ABS>", true}, {"<hp24>", "", "", true},  // egiteko, har
      {"<hp21>", "", "<BUK>", true}, {"<hp21>", "tako", "<MOD><MG><GEL><MG><ABS>", true},  // hartu, hartutako
  };
  for (const Row& r : rows) EXPECT_EQ(has(r.cls, r.ending, r.tags), r.present) << r.cls << r.ending << " " << r.tags;
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
