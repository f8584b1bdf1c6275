#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "support/test_files.h"

namespace tarvola {
namespace {

std::vector<std::string> forms(const std::vector<Analisia>& found) {
  std::vector<std::string> out;
  for (const Analisia& a : found) out.push_back(a.forma);
  return out;
}

Taula nouns() { return Taula(testing::data_path("tables/nouns.txt")); }

TEST(TaulaGenerate, ExactAndPrefixTargets) {
  Taula t = nouns();
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<IZE><ARR><ABS><NUMP><MUGM>", false, false)),
            (std::vector<std::string>{"etxeak"}));
  // A target that stops short accepts every longer path that agrees with it.
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<IZE><ARR><ABS>", false, false)),
            (std::vector<std::string>{"etxea", "etxeak"}));
  // "<>" pieces in the tags are removed before the walk.
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<><IZE><<>><ARR><ERG>", false, true)),
            (std::vector<std::string>{"etxeak"}));
  EXPECT_TRUE(t.sortuFormak("etxe", "<IZE><ADJ>", false, false).empty());
  auto readings = t.sortuFormak("etxe", "<IZE><ARR><ERG>", false, false);
  ASSERT_EQ(readings.size(), 1u);
  EXPECT_EQ(readings[0].analisia, "etxe<IZE><ARR><ERG><NUMS><MUGM>");
  EXPECT_EQ(readings[0].etiketa, " IZE ARR ERG NUMS MUGM");
}

TEST(TaulaGenerate, PrefixFlagStopsAtFirstTag) {
  Taula t = nouns();
  auto found = t.sortuFormak("et", "", true, false);
  ASSERT_EQ(forms(found), (std::vector<std::string>{"etxe", "etab."}));
  EXPECT_EQ(found[0].analisia, "etxe<IZE>");
}

TEST(TaulaGenerate, CapitalsOfTheLemmaAreCopied) {
  Taula t = nouns();
  t.sareaIzena = "proba";
  auto found = t.sortuFormak("Bilbo", "<IZE><LIB><ABS>", false, false);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].forma, "Bilbo");
  EXPECT_EQ(found[0].sarea, "proba");
}

TEST(TaulaGenerate, ClassTagsAndStopMarks) {
  // "<0x>" and "<1y>" are walked over unspelled; "<Rare>" ends the path.
  Taula t("hand", 6);
  t.addZubiaTaulan(0, false, new Zubia(1, "a", "a"));
  t.addZubiaTaulan(1, false, new Zubia(2, "<0x>", ""));
  t.addZubiaTaulan(2, false, new Zubia(3, "<1y>", "b"));
  t.addZubiaTaulan(3, false, new Zubia(4, "<N>", ""));
  t.addZubiaTaulan(3, false, new Zubia(5, "<Rare>", ""));
  t.addZubiaTaulan(4, true, new Zubia(-1, "", ""));
  t.addZubiaTaulan(5, true, new Zubia(-1, "", ""));
  EXPECT_EQ(forms(t.sortuFormak("a", "<N>", false, false)), (std::vector<std::string>{"ab"}));
  EXPECT_TRUE(t.sortuFormak("a", "<Rare>", false, false).empty());
}

TEST(TaulaGenerate, SilentCyclesEnd) {
  Taula t("hand", 3);
  t.addZubiaTaulan(0, false, new Zubia(1, "a", "a"));
  t.addZubiaTaulan(1, false, new Zubia(2, "", "x"));
  t.addZubiaTaulan(2, false, new Zubia(1, "", "y"));
  t.addZubiaTaulan(2, false, new Zubia(-1, "", ""));
  EXPECT_EQ(forms(t.sortuFormak("a", "", false, false)), (std::vector<std::string>{"ax"}));
}

TEST(SareaReplace, AlternativesAndCapitals) {
  Sarea net("eumorfo", "nouns.txt", new Taula(testing::data_path("tables/nouns.txt")));
  EXPECT_EQ(net.taula->sareaIzena, "eumorfo");
  EXPECT_EQ(net.mota, 5);
  Analisia reading("etxe<IZE><ARR><ABS><NUMP><MUGM>[e=x]", "eumorfo");
  EXPECT_EQ(forms(net.ordeztuForma("etxe", reading)), (std::vector<std::string>{"etxeak"}));
  EXPECT_EQ(forms(net.ordeztuForma("Bilbo/etxe", reading)), (std::vector<std::string>{"etxeak"}));
  reading.maiuskulaMota = 1;
  EXPECT_EQ(forms(net.ordeztuForma("etxe", reading)), (std::vector<std::string>{"Etxeak"}));
  reading.maiuskulaMota = 2;
  EXPECT_EQ(forms(net.ordeztuForma("etxe/etxe", reading)),
            (std::vector<std::string>{"ETXEAK", "ETXEAK"}));
  Sarea copy(net);
  Sarea numbers("zenbakiak", "", nullptr);
  EXPECT_EQ(numbers.mota, 7);
  EXPECT_TRUE(numbers.ordeztuForma("bat", reading).empty());
}

}  // namespace
}  // namespace tarvola
