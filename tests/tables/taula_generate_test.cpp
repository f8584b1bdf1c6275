#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "support/readings.h"
#include "support/test_files.h"

namespace tarvola {
namespace {

using testing::forms;
using Strings = std::vector<std::string>;

Taula nouns() { return Taula(testing::data_path("tables/nouns.txt")); }

TEST(TaulaGenerate, ExactAndPrefixTargets) {
  Taula t = nouns();
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<IZE><ARR><ABS><NUMP><MUGM>", false, false)), Strings{"etxeak"});
  // A target that stops short accepts every longer path that agrees with it.
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<IZE><ARR><ABS>", false, false)), (Strings{"etxea", "etxeak"}));
  // "<>" pieces in the tags are removed before the walk.
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<><IZE><<>><ARR><ERG>", false, true)), Strings{"etxeak"});
  EXPECT_TRUE(t.sortuFormak("etxe", "<IZE><ADJ>", false, false).empty());
  auto readings = t.sortuFormak("etxe", "<IZE><ARR><ERG>", false, false);
  ASSERT_EQ(readings.size(), 1u);
  EXPECT_EQ(readings[0].analisia, "etxe<IZE><ARR><ERG><NUMS><MUGM>");
  EXPECT_EQ(readings[0].etiketa, " IZE ARR ERG NUMS MUGM");
  // The prefix flag stops at the first tag.
  auto found = t.sortuFormak("et", "", true, false);
  ASSERT_EQ(forms(found), (Strings{"etxe", "etab."}));
  EXPECT_EQ(found[0].analisia, "etxe<IZE>");
  // Capitals of the lemma are copied; the reading names the table's network.
  t.sareaIzena = "proba";
  found = t.sortuFormak("Bilbo", "<IZE><LIB><ABS>", false, false);
  ASSERT_EQ(forms(found), Strings{"Bilbo"});
  EXPECT_EQ(found[0].sarea, "proba");
}

TEST(TaulaGenerate, ClassTagsStopMarksAndSilentCycles) {
  // "<0x>" and "<1y>" are walked over unspelled; "<Rare>" ends the path.
  Taula t = testing::hand_table({"0 a 1", "1 <0x>:_ 2", "2 <1y>:b 3", "3 <N>:_ 4", "3 <Rare>:_ 5",
                                 "final 4", "final 5"}, 6);
  EXPECT_EQ(forms(t.sortuFormak("a", "<N>", false, false)), Strings{"ab"});
  EXPECT_TRUE(t.sortuFormak("a", "<Rare>", false, false).empty());
  Taula cycle = testing::hand_table({"0 a 1", "1 _:x 2", "2 _:y 1", "final 2"}, 3);
  cycle.egoerak[2]->final = false;  // the end arc alone, without the flag, ends a path
  EXPECT_EQ(forms(cycle.sortuFormak("a", "", false, false)), Strings{"ax"});
}

TEST(SareaReplace, AlternativesAndCapitals) {
  Sarea net("eumorfo", "nouns.txt", new Taula(testing::data_path("tables/nouns.txt")));
  EXPECT_EQ(net.taula->sareaIzena, "eumorfo");
  EXPECT_EQ(net.mota, 5);
  Analisia reading("etxe<IZE><ARR><ABS><NUMP><MUGM>[e=x]", "eumorfo");
  EXPECT_EQ(forms(net.ordeztuForma("etxe", reading)), Strings{"etxeak"});
  EXPECT_EQ(forms(net.ordeztuForma("Bilbo/etxe", reading)), Strings{"etxeak"});
  reading.maiuskulaMota = 1;
  EXPECT_EQ(forms(net.ordeztuForma("etxe", reading)), Strings{"Etxeak"});
  reading.maiuskulaMota = 2;
  EXPECT_EQ(forms(net.ordeztuForma("etxe/etxe", reading)), (Strings{"ETXEAK", "ETXEAK"}));
  Sarea copy(net);
  Sarea numbers("zenbakiak", "", nullptr);
  EXPECT_EQ(numbers.mota, 7);
  EXPECT_TRUE(numbers.ordeztuForma("bat", reading).empty());
}

}  // namespace
}  // namespace tarvola
