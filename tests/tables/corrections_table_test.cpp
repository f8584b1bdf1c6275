// The non-standard forms network as committed in data/tables: a
// non-standard word carries its mark, its standard form gets no reading of
// this network in any capitalisation, and form replacement inflects the
// standard form as the word was inflected, in the word's capitalisation.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"

namespace {

const std::string kTable = std::string(TARVOLA_TEST_DATA_DIR) + "/../../data/tables/zuzenketakPG.txt";

std::vector<std::string> replacements(const tarvola::Sarea& net, const std::string& word) {
  std::vector<std::string> out;
  for (const auto& a : net.taula->analizatuTokena(word)) {
    const std::string& standard = a.h_balioa.empty() ? a.e_balioa : a.h_balioa;
    for (const auto& q : net.ordeztuForma(standard, a)) out.push_back(q.forma);
  }
  return out;
}

}  // namespace

TEST(CorrectionsTable, StandardFormsGetNoReadingInAnyCase) {
  tarvola::Taula table(kTable);
  for (const char* w : {"eta", "Eta", "ETA", "hau da", "Hau da", "zen", "Zen", "Euskara", "euskaraz",
                        "Euskaraz", "Horiek"})
    EXPECT_TRUE(table.analizatuTokena(w).empty()) << w;
  auto nere = table.analizatuTokena("Nere");
  ASSERT_EQ(nere.size(), 1u);
  EXPECT_EQ(nere[0].h_balioa, "nire");
  auto osea = table.analizatuTokena("osea");
  ASSERT_EQ(osea.size(), 1u);
  EXPECT_EQ(osea[0].e_balioa, "hau da");
}

TEST(CorrectionsTable, ReplacementKeepsInflectionAndCase) {
  tarvola::Sarea net("zuzenketak", kTable, new tarvola::Taula(kTable));
  EXPECT_EQ(replacements(net, "Osea"), std::vector<std::string>({"Hau da"}));
  EXPECT_EQ(replacements(net, "hontan"), std::vector<std::string>({"honetan"}));
  EXPECT_EQ(replacements(net, "euskeraren"), std::vector<std::string>({"euskararen", "euskararen"}));
  EXPECT_EQ(replacements(net, "EUSKERAZ"), std::vector<std::string>({"EUSKARAZ", "EUSKARAZ"}));
  // The plural absolutive's tags are not the beginning of the other plural
  // cases' (nor the bare form's of the inflected ones), so each reading
  // brings its own form only.
  EXPECT_EQ(replacements(net, "EUSKERAK"), std::vector<std::string>({"EUSKARAK", "EUSKARAK", "EUSKARAK"}));
  EXPECT_EQ(replacements(net, "euskera"), std::vector<std::string>({"euskara", "euskara"}));
  EXPECT_EQ(replacements(net, "euskeretatik"), std::vector<std::string>({"euskaretatik"}));
  EXPECT_EQ(replacements(net, "Nere"), std::vector<std::string>({"Nire"}));
  EXPECT_EQ(replacements(net, "emen"), std::vector<std::string>({"hemen"}));
}
