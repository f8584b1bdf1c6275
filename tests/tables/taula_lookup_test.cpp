#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tarvola/tables/Taula.h"
#include "tarvola/tables/cipher.h"
#include "tarvola/tables/internal/taula_access.h"
#include "support/test_files.h"

namespace tarvola {
namespace {

std::vector<std::string> readings(const Taula& t, const std::string& word) {
  std::vector<std::string> out;
  for (const Analisia& a : t.analizatuTokena(word)) out.push_back(a.analisia);
  return out;
}

// Builds a table from lines "src symbol target" / "final N" as a host would.
Taula by_hand(const std::vector<std::string>& lines, int states) {
  Taula t("hand", states);
  for (const std::string& line : lines) {
    char kind[16], symbol[64];
    int a = 0, b = 0;
    if (std::sscanf(line.c_str(), "final %d", &a) == 1) {
      t.addZubiaTaulan(a, true, new Zubia(-1, "", ""));
    } else if (std::sscanf(line.c_str(), "%d %63s %d", &a, symbol, &b) == 3) {
      std::string s = symbol, up = s, low = s;
      if (auto colon = s.find(':'); colon != std::string::npos && s.size() > 1) {
        up = s.substr(0, colon);
        low = s.substr(colon + 1);
        if (low == "_") low.clear();
        if (up == "_") up.clear();
      }
      t.addZubiaTaulan(a, false, new Zubia(b, up, low));
    }
    (void)kind;
  }
  return t;
}

class NounsTable : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { table_ = new Taula(testing::data_path("tables/nouns.txt")); }
  static void TearDownTestSuite() { delete table_; }
  static Taula* table_;
};
Taula* NounsTable::table_ = nullptr;

TEST_F(NounsTable, ReadingsInFileOrder) {
  EXPECT_EQ(table_->egoerak.size(), 28u);
  EXPECT_EQ(readings(*table_, "etxea"),
            (std::vector<std::string>{"etxe<IZE><ARR><ABS><NUMS><MUGM>"}));
  EXPECT_EQ(readings(*table_, "etxeak"),
            (std::vector<std::string>{"etxe<IZE><ARR><ABS><NUMP><MUGM>",
                                      "etxe<IZE><ARR><ERG><NUMS><MUGM>"}));
  EXPECT_TRUE(readings(*table_, "etxe").empty());
  EXPECT_TRUE(readings(*table_, "etxeakk").empty());
  EXPECT_TRUE(readings(*table_, "").empty());
}

TEST_F(NounsTable, CapitalisationKinds) {
  auto lower = table_->analizatuTokena("etxea");
  auto initial = table_->analizatuTokena("Etxea");
  auto all = table_->analizatuTokena("ETXEA");
  ASSERT_EQ(lower.size(), 1u);
  ASSERT_EQ(initial.size(), 1u);
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(lower[0].maiuskulaMota, 0);
  EXPECT_EQ(initial[0].maiuskulaMota, 1);
  EXPECT_EQ(all[0].maiuskulaMota, 2);
  EXPECT_EQ(all[0].lema, "etxe");
  EXPECT_EQ(all[0].sarea, "");
}

TEST_F(NounsTable, ProperNounsAndAbbreviations) {
  EXPECT_TRUE(readings(*table_, "bilbo").empty());  // lower-case word, capital reading
  EXPECT_EQ(readings(*table_, "Bilbo"), (std::vector<std::string>{"Bilbo<IZE><LIB><ABS>"}));
  EXPECT_EQ(table_->analizatuTokena("BILBO").at(0).maiuskulaMota, 2);
  EXPECT_EQ(readings(*table_, "etab."), (std::vector<std::string>{"etab.<SNB>"}));
  EXPECT_TRUE(readings(*table_, "Etab.").empty());  // must be written as its lemma
}

TEST_F(NounsTable, EncipheredCopyReadsTheSame) {
  testing::TempDir dir;
  std::string plain = testing::read_file(testing::data_path("tables/nouns.txt"));
  std::string path = dir.write("nounsSARE8.bin", cipher::encipher(plain));
  Taula enciphered(path);
  ASSERT_EQ(enciphered.egoerak.size(), table_->egoerak.size());
  for (const char* word : {"etxea", "etxeak", "Bilbo", "etab."})
    EXPECT_EQ(readings(enciphered, word), readings(*table_, word)) << word;
  // "SARE8" anywhere in the path selects the enciphered form.
  std::string folder = dir.file("SARE8");
  std::filesystem::create_directory(folder);
  testing::write_file(folder + "/nouns.bin", cipher::encipher(plain));
  Taula in_folder(folder + "/nouns.bin");
  EXPECT_EQ(readings(in_folder, "etxea"), readings(*table_, "etxea"));
}

TEST(TaulaLookup, MarkNamingTheWordDropsTheReading) {
  Taula t = by_hand({"0 e 1", "1 t 2", "2 x 3", "3 e 4", "4 a 5",
                     "5 [e=etxea]:_ 6", "5 [h=etx]:_ 6", "5 [s=etxe]:_ 6", "6 <IZE>:_ 7", "final 7"},
                    8);
  auto found = t.analizatuTokena("etxea");
  ASSERT_EQ(found.size(), 2u);  // [e=etxea] dropped: the lemma-long prefix is the mark
  EXPECT_EQ(found[0].h_balioa, "etx");
  EXPECT_EQ(found[1].s_balioa, "etxe");
}

TEST(TaulaLookup, SingleCapitalOutputCutsLowerCaseWord) {
  Taula t = by_hand({"0 A:a 1", "0 a 1", "1 b 2", "2 <IZE>:_ 3", "final 3"}, 4);
  EXPECT_EQ(readings(t, "ab"), (std::vector<std::string>{"ab<IZE>"}));
  EXPECT_EQ(readings(t, "Ab"), (std::vector<std::string>{"Ab<IZE>", "ab<IZE>"}));
}

TEST(TaulaLookup, ExceptionReadingsAreFiltered) {
  Taula t = by_hand({"0 b 1", "1 a 2", "2 t 3", "3 <IZE>:_ 4", "4 <PSP>:_ 5", "final 5",
                     "3 <ADJ>:_ 5"},
                    6);
  EXPECT_EQ(readings(t, "bat"), (std::vector<std::string>{"bat<ADJ>"}));
}

TEST(TaulaLookup, DuplicatePathsBothAppear) {
  Taula t = by_hand({"0 a 1", "0 a 1", "1 <X>:_ 2", "final 2"}, 3);
  EXPECT_EQ(readings(t, "a").size(), 2u);
}

TEST(TaulaLookup, UndefinedTablesStillEnd) {
  // Arcs past the last state are skipped; epsilon cycles are not followed round.
  Taula t = by_hand({"0 a 9", "0 a 1", "1 <X>:_ 2", "2 <Y>:_ 1", "2 _:_ 1", "final 2"}, 3);
  t.egoerak.resize(3);
  EXPECT_EQ(readings(t, "a"), (std::vector<std::string>{"a<X>"}));
  testing::TempDir dir;
  Taula loaded(dir.write("cycle.txt", "0\ta\t1\n0\ta\t7\n1\t<X>:<>\t2\n2\t<Y>:<>\t1\nfinal: 2\n"));
  EXPECT_EQ(readings(loaded, "a"), (std::vector<std::string>{"a<X>"}));
}

TEST(TaulaLookup, LongWordsAreWalkedOnTheirFirst999Bytes) {
  Taula t = by_hand({"0 _:a 0", "0 <W>:_ 1", "final 1"}, 2);
  EXPECT_EQ(readings(t, std::string(999, 'a')).size(), 1u);
  EXPECT_EQ(readings(t, std::string(5000, 'a')).size(), 1u);
  EXPECT_EQ(readings(t, std::string("aa\0b", 4)).size(), 1u);  // a zero byte ends the word
}

TEST(TaulaLookup, CopiesShareStatesUntilTheLastGoes) {
  auto* original = new Taula(testing::data_path("tables/nouns.txt"));
  Taula copy(*original);
  Taula assigned;
  assigned = copy;
  delete original;
  EXPECT_EQ(readings(copy, "etxea").size(), 1u);
  EXPECT_EQ(readings(assigned, "etxeak").size(), 2u);
}

TEST(TaulaLookup, EditingDropsTheIndex) {
  Taula t(testing::data_path("tables/nouns.txt"));
  EXPECT_TRUE(internal::TaulaAccess::indexed(t));
  t.addZubiaTaulan(0, false, new Zubia(1, "e", "z"));
  EXPECT_FALSE(internal::TaulaAccess::indexed(t));
  EXPECT_EQ(readings(t, "ztxea"), (std::vector<std::string>{"etxe<IZE><ARR><ABS><NUMS><MUGM>"}));
}

TEST(TaulaPrint, Texts) {
  EXPECT_EQ(Zubia(3, "a", "b").toString(),
            "\n   - hurrengo_egoera: 3\n   - goiko_ikurra: a\n   - beheko_ikurra: b\n");
  Taula t = by_hand({"0 a:b 1", "final 1"}, 2);
  ::testing::internal::CaptureStdout();
  t.printTaula();
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            "Guztira 2 egoera\n\n\nfinal: 0, zubiak: 1\n  1. zubia:\n   - hurrengo_egoera: 1"
            "\n   - goiko_ikurra: a\n   - beheko_ikurra: b\n\n\nfinal: 1, zubiak: 1\n  1. zubia:"
            "\n   - hurrengo_egoera: -1\n   - goiko_ikurra: \n   - beheko_ikurra: \n");
  EXPECT_TRUE(t.egoerak[0]->hasZubia("b"));
  EXPECT_FALSE(t.egoerak[0]->hasZubia("a"));
}

}  // namespace
}  // namespace tarvola
