#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tarvola/tables/Taula.h"
#include "tarvola/tables/cipher.h"
#include "tarvola/tables/internal/taula_access.h"
#include "support/readings.h"
#include "support/test_files.h"

namespace tarvola {
namespace {

using testing::hand_table;
using Strings = std::vector<std::string>;

Strings readings(const Taula& t, const std::string& word) {
  return testing::analyses(t.analizatuTokena(word));
}

// "lemma capitals" of each reading: the capital kind comes from the token.
Strings capitals(const Taula& t, const std::string& word) {
  Strings out;
  for (const Analisia& a : t.analizatuTokena(word)) out.push_back(a.lema + " " + std::to_string(a.maiuskulaMota));
  return out;
}

class NounsTable : public ::testing::Test {
 protected:
  Taula nouns_{testing::data_path("tables/nouns.txt")};
};

TEST_F(NounsTable, ReadingsInFileOrder) {
  EXPECT_EQ(nouns_.egoerak.size(), 28u);
  EXPECT_EQ(readings(nouns_, "etxea"), Strings{"etxe<IZE><ARR><ABS><NUMS><MUGM>"});
  EXPECT_EQ(readings(nouns_, "etxeak"),
            (Strings{"etxe<IZE><ARR><ABS><NUMP><MUGM>", "etxe<IZE><ARR><ERG><NUMS><MUGM>"}));
  EXPECT_TRUE(readings(nouns_, "etxe").empty());
  EXPECT_TRUE(readings(nouns_, "etxeakk").empty());
  EXPECT_TRUE(readings(nouns_, "").empty());
}

TEST_F(NounsTable, CapitalisationKindsAndProperNouns) {
  EXPECT_EQ(capitals(nouns_, "etxea"), Strings{"etxe 0"});
  EXPECT_EQ(capitals(nouns_, "Etxea"), Strings{"etxe 1"});
  EXPECT_EQ(capitals(nouns_, "ETXEA"), Strings{"etxe 2"});
  EXPECT_EQ(nouns_.analizatuTokena("etxea").at(0).sarea, "");
  EXPECT_TRUE(readings(nouns_, "bilbo").empty());  // lower-case word, capital reading
  EXPECT_EQ(readings(nouns_, "Bilbo"), Strings{"Bilbo<IZE><LIB><ABS>"});
  EXPECT_EQ(capitals(nouns_, "BILBO"), Strings{"Bilbo 2"});
  EXPECT_EQ(readings(nouns_, "etab."), Strings{"etab.<SNB>"});
  EXPECT_TRUE(readings(nouns_, "Etab.").empty());  // must be written as its lemma
}

TEST_F(NounsTable, EncipheredCopyReadsTheSame) {
  testing::TempDir dir;
  std::string plain = testing::read_file(testing::data_path("tables/nouns.txt"));
  Taula enciphered(dir.write("nounsSARE8.bin", cipher::encipher(plain)));
  ASSERT_EQ(enciphered.egoerak.size(), nouns_.egoerak.size());
  for (const char* word : {"etxea", "etxeak", "Bilbo", "etab."})
    EXPECT_EQ(readings(enciphered, word), readings(nouns_, word)) << word;
  // "SARE8" anywhere in the path selects the enciphered form.
  std::filesystem::create_directory(dir.file("SARE8"));
  Taula in_folder(dir.write("SARE8/nouns.bin", cipher::encipher(plain)));
  EXPECT_EQ(readings(in_folder, "etxea"), readings(nouns_, "etxea"));
}

// Small tables built arc by arc, one row per rule of the walk.
TEST(TaulaLookup, WalkRules) {
  // A mark naming the whole word drops its reading; the others stay.
  auto found = hand_table({"0 e 1", "1 t 2", "2 x 3", "3 e 4", "4 a 5", "5 [e=etxea]:_ 6",
                           "5 [h=etx]:_ 6", "5 [s=etxe]:_ 6", "6 <IZE>:_ 7", "final 7"}, 8)
                   .analizatuTokena("etxea");
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].h_balioa, "etx");
  EXPECT_EQ(found[1].s_balioa, "etxe");
  // A single capital on the output side is cut for a lower-case word.
  Taula capital = hand_table({"0 A:a 1", "0 a 1", "1 b 2", "2 <IZE>:_ 3", "final 3"}, 4);
  EXPECT_EQ(readings(capital, "ab"), Strings{"ab<IZE>"});
  EXPECT_EQ(readings(capital, "Ab"), (Strings{"Ab<IZE>", "ab<IZE>"}));
  // Exception readings (<PSP>) are filtered.
  EXPECT_EQ(readings(hand_table({"0 b 1", "1 a 2", "2 t 3", "3 <IZE>:_ 4", "4 <PSP>:_ 5",
                                 "final 5", "3 <ADJ>:_ 5"}, 6), "bat"),
            Strings{"bat<ADJ>"});
  // Duplicate paths both appear.
  EXPECT_EQ(readings(hand_table({"0 a 1", "0 a 1", "1 <X>:_ 2", "final 2"}, 3), "a").size(), 2u);
}

TEST(TaulaLookup, UndefinedTablesStillEnd) {
  // Arcs past the last state are skipped; epsilon cycles are not followed round.
  Taula t = hand_table({"0 a 9", "0 a 1", "1 <X>:_ 2", "2 <Y>:_ 1", "2 _:_ 1", "final 2"}, 3);
  t.egoerak.resize(3);
  EXPECT_EQ(readings(t, "a"), Strings{"a<X>"});
  testing::TempDir dir;
  Taula loaded(dir.write("cycle.txt", "0\ta\t1\n0\ta\t7\n1\t<X>:<>\t2\n2\t<Y>:<>\t1\nfinal: 2\n"));
  EXPECT_EQ(readings(loaded, "a"), Strings{"a<X>"});
}

TEST(TaulaLookup, LongWordsAreWalkedOnTheirFirst999Bytes) {
  Taula t = hand_table({"0 _:a 0", "0 <W>:_ 1", "final 1"}, 2);
  EXPECT_EQ(readings(t, std::string(999, 'a')).size(), 1u);
  EXPECT_EQ(readings(t, std::string(5000, 'a')).size(), 1u);
  EXPECT_EQ(readings(t, std::string("aa\0b", 4)).size(), 1u);  // a zero byte ends the word
}

TEST(TaulaLookup, CopiesShareStatesAndEditingDropsTheIndex) {
  auto* original = new Taula(testing::data_path("tables/nouns.txt"));
  Taula copy(*original);
  Taula assigned;
  assigned = copy;
  delete original;
  EXPECT_EQ(readings(copy, "etxea").size(), 1u);
  EXPECT_EQ(readings(assigned, "etxeak").size(), 2u);

  Taula edited(testing::data_path("tables/nouns.txt"));
  EXPECT_TRUE(internal::TaulaAccess::indexed(edited));
  edited.addZubiaTaulan(0, false, new Zubia(1, "e", "z"));
  EXPECT_FALSE(internal::TaulaAccess::indexed(edited));
  EXPECT_EQ(readings(edited, "ztxea"), Strings{"etxe<IZE><ARR><ABS><NUMS><MUGM>"});
}

TEST(TaulaPrint, Texts) {
  EXPECT_EQ(Zubia(3, "a", "b").toString(),
            "\n   - hurrengo_egoera: 3\n   - goiko_ikurra: a\n   - beheko_ikurra: b\n");
  Taula t = hand_table({"0 a:b 1", "final 1"}, 2);
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
