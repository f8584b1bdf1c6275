#include "tarvola/analysis/Analisia.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tarvola/base/tags.h"

namespace tarvola {
namespace {

TEST(Analisia, FieldsOfATypicalReading) {
  Analisia a("etxe<IZE><ARR>[s=S1]<0tas><1iri><hpx><hil>[h=etxe][e=etx]<ABS>", "eumorfo");
  EXPECT_EQ(a.lema, "etxe");
  EXPECT_EQ(a.etiketa, " IZE ARR hil ABS");
  EXPECT_EQ(a.twol, "+Ize+Arr+Abs");
  EXPECT_EQ(a.tasuna, " 0tas");
  EXPECT_EQ(a.iritzia, " 1iri");
  EXPECT_EQ(a.s_balioa, "S1");
  EXPECT_EQ(a.h_balioa, "etxe");
  EXPECT_EQ(a.e_balioa, "etx");
  EXPECT_EQ(a.sarea, "eumorfo");
  EXPECT_EQ(a.forma, "");
  EXPECT_EQ(a.maiuskulaMota, 0);
}

TEST(Analisia, NoTags) {
  Analisia a("kaixo[s=x]", "n");
  EXPECT_EQ(a.lema, "kaixo");
  EXPECT_EQ(a.etiketa, "");
  EXPECT_EQ(a.twol, "");
  EXPECT_EQ(a.tasuna, "");
  EXPECT_EQ(a.s_balioa, "x");
  EXPECT_EQ(Analisia("", "n").lema, "");
}

TEST(Analisia, LemmaWalk) {
  EXPECT_EQ(Analisia("etxe<0x>ko<IZE>", "").lema, "etxeko");      // "0" tags skipped
  EXPECT_EQ(Analisia("etxe[s=a]<IZE>ko<ADJ>", "").lema, "etxeko");  // tag after a mark skipped
  EXPECT_EQ(Analisia("ba<AUR><MEN><BALD>etorri<ADI>", "").lema, "etorri");
  EXPECT_EQ(Analisia("ba<AUR><PRT>da<ADL>", "").lema, "da");
  EXPECT_EQ(Analisia("bait<AUR><MEN><KAUS>dago<ADL>", "").lema, "dago");
  EXPECT_EQ(Analisia("etxe[s=a", "").lema, "etxe");  // unclosed mark ends the lemma
  EXPECT_EQ(Analisia("etxe<0x", "").lema, "etxe");
}

TEST(Analisia, CompoundPlusSigns) {
  EXPECT_EQ(Analisia("etxe+ko+andre<IZE>", "").lema, "etxekoandre");
  EXPECT_EQ(Analisia("www+x+eus<WEB>", "").lema, "www+x+eus");
  EXPECT_EQ(Analisia("+<PUNT>", "").lema, "+");
}

TEST(Analisia, LatinOneTwoLevelCase) {
  // First byte upper-cased, the rest lower-cased, by the Latin-1 mapping.
  EXPECT_EQ(Analisia("x<\xE9S\xC9>", "").twol, "+\xC9s\xE9");
  EXPECT_EQ(Analisia("x<>", "").twol, "");
  EXPECT_EQ(Analisia("x<>", "").etiketa, " ");
}

TEST(Analisia, MarkKeys) {
  const std::string s = "a[p=1][a=2][z=3][c=4][q=5][e=]<X>";
  EXPECT_EQ(tags::mark_value(s, "[p="), "1");
  EXPECT_EQ(tags::mark_value(s, "[a="), "2");
  EXPECT_EQ(tags::mark_value(s, "[z="), "3");
  EXPECT_EQ(tags::mark_value(s, "[c="), "4");
  EXPECT_EQ(tags::mark_value(s, "[q="), "");
  EXPECT_EQ(tags::mark_value(s, "[e="), "");
  EXPECT_EQ(tags::tag_part("etxe[s=x]<IZE><0t>[h=y]<ARR>"), "<IZE><ARR>");
  EXPECT_EQ(tags::tag_part("etxe"), "etxe");
}

TEST(Analisia, SortByLemmaLengthInBytes) {
  std::vector<Analisia> v{Analisia("\xE9\xE9\xE9<X>", ""), Analisia("ab<X>", ""),
                          Analisia("abcd<X>", "")};
  std::stable_sort(v.begin(), v.end(), Analisia::CompareLemaLuzera);
  EXPECT_EQ(v[0].lema, "ab");
  EXPECT_EQ(v[1].lema, "\xE9\xE9\xE9");
  EXPECT_FALSE(Analisia::CompareLemaLuzera(v[1], Analisia("abc<X>", "")));
}

TEST(AnalisiaDeathTest, OverlongTagEndsTheProcess) {
  EXPECT_EXIT(Analisia("a<" + std::string(99, 'T') + ">", ""), ::testing::ExitedWithCode(1), "");
  Analisia ok("a<" + std::string(98, 'T') + ">", "");
  EXPECT_EQ(ok.etiketa.size(), 99u);
}

}  // namespace
}  // namespace tarvola
