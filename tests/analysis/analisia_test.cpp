#include "tarvola/analysis/Analisia.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tarvola/base/tags.h"

namespace tarvola {
namespace {

// Every field the constructor fills, "|"-joined in declaration order.
std::string fields(const Analisia& a) {
  return a.lema + "|" + a.etiketa + "|" + a.twol + "|" + a.tasuna + "|" + a.iritzia + "|" + a.s_balioa +
         "|" + a.h_balioa + "|" + a.e_balioa + "|" + a.sarea + "|" + a.forma + "|" +
         std::to_string(a.maiuskulaMota);
}

TEST(Analisia, Fields) {
  EXPECT_EQ(fields(Analisia("etxe<IZE><ARR>[s=S1]<0tas><1iri><hpx><hil>[h=etxe][e=etx]<ABS>", "eumorfo")),
            "etxe| IZE ARR hil ABS|+Ize+Arr+Abs| 0tas| 1iri|S1|etxe|etx|eumorfo||0");
  EXPECT_EQ(fields(Analisia("kaixo[s=x]", "n")), "kaixo|||||x|||n||0");
  EXPECT_EQ(fields(Analisia("", "n")), "||||||||n||0");
}

TEST(Analisia, Lemma) {
  EXPECT_EQ(Analisia("etxe<0x>ko<IZE>", "").lema, "etxeko");      // "0" tags skipped
  EXPECT_EQ(Analisia("etxe[s=a]<IZE>ko<ADJ>", "").lema, "etxeko");  // tag after a mark skipped
  EXPECT_EQ(Analisia("ba<AUR><MEN><BALD>etorri<ADI>", "").lema, "etorri");
  EXPECT_EQ(Analisia("ba<AUR><PRT>da<ADL>", "").lema, "da");
  EXPECT_EQ(Analisia("bait<AUR><MEN><KAUS>dago<ADL>", "").lema, "dago");
  EXPECT_EQ(Analisia("etxe[s=a", "").lema, "etxe");  // unclosed mark ends the lemma
  EXPECT_EQ(Analisia("etxe<0x", "").lema, "etxe");
  // Compound boundaries are dropped, except in addresses and a lone "+".
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
  const char* const rows[][2] = {{"[p=", "1"}, {"[a=", "2"}, {"[z=", "3"}, {"[c=", "4"}, {"[q=", ""}, {"[e=", ""}};
  for (const auto& r : rows) EXPECT_EQ(tags::mark_value(s, r[0]), r[1]) << r[0];
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
