#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/test_files.h"
#include "tarvola/text/Esaldia.h"
#include "text/text_networks_support.h"

namespace tarvola {
namespace {

using testing::Networks;
using testing::readings_of;
using testing::sourced;
using testing::token_forms;
using Strings = std::vector<std::string>;

Esaldia analysed(const std::string& text, const SareMapa& sareak, HiztegiPertsonala& hp,
                 bool aukera = true) {
  Esaldia esaldia(0, text);
  esaldia.tokenizatu();
  esaldia.analizatu(sareak, hp, aukera);
  return esaldia;
}

class SentenceAnalysis : public ::testing::Test {
 protected:
  Networks networks{"eumorfo", "hp", "osag0"};
  HiztegiPertsonala dictionary{testing::data_path("engine_hiztegia.txt")};
  HiztegiPertsonala empty;

  Esaldia run(const std::string& text, bool aukera = true) {
    return analysed(text, networks.map(), dictionary, aukera);
  }
};

TEST_F(SentenceAnalysis, MultiTokenUnitsLongestAndFirstWin) {
  Esaldia e = run("hala ere beste");
  EXPECT_EQ(token_forms(e), (Strings{"hala ere", "beste"}));
  EXPECT_TRUE(e.tokenak[0].hutsunea);  // the blank after "ere"
  EXPECT_EQ(readings_of(e.tokenak[0]), (Strings{"hala ere<LOT><LOK>"}));

  // "hala ere" and "ere bai" overlap: the unit that starts first wins.
  e = run("hala ere bai");
  EXPECT_EQ(token_forms(e), (Strings{"hala ere", "bai"}));
  EXPECT_FALSE(e.tokenak[1].hutsunea);

  e = run("zer edo zer, zer");
  EXPECT_EQ(token_forms(e), (Strings{"zer edo zer", ",", "zer"}));
  for (const Tokena& t : e.tokenak) EXPECT_EQ(t.analisiak.size(), 1u);

  // Merging moves only form and blank: the capital mark stays with the slot.
  e = run("hala ere Bai kaixo");
  ASSERT_EQ(token_forms(e), (Strings{"hala ere", "Bai", "kaixo"}));
  EXPECT_FALSE(e.tokenak[1].maiuskula);
  EXPECT_TRUE(e.tokenak[2].maiuskula);
}

TEST_F(SentenceAnalysis, NetworksAllowOnlyTheirUnitLength) {
  // Six tokens: more than an ordinary network's five.
  const std::string six = "bat bi hiru lau bost sei";
  EXPECT_EQ(run(six).tokenak.size(), 6u);
  Networks with_numbers{"eumorfo", "zenbakiak"};
  Esaldia e = analysed(six, with_numbers.map(), empty);
  ASSERT_EQ(e.tokenak.size(), 1u);
  EXPECT_EQ(readings_of(e.tokenak[0]), (Strings{six + "<DET><ZNB>"}));
}

TEST_F(SentenceAnalysis, FallbackReadings) {
  Esaldia e = run("[ ] < > xyzw");
  Strings got;
  for (const Tokena& t : e.tokenak)
    for (const Analisia& a : t.analisiak)
      got.push_back(a.sarea + "|" + a.analisia + "|" + a.lema + "|" + a.etiketa);
  EXPECT_EQ(got, (Strings{"eumorfo|[<PUN><KOR>|[| PUN KOR", "eumorfo|]<PUN><KOR>|]| PUN KOR",
                          "eumorfo|<<PUN><LT>|<| PUN LT", "eumorfo|><PUN><GT>|>| PUN GT",
                          "|xyzw<EZZG>|xyzw| EZZG"}));

  // A long unknown token starting with "<" gets its reading too, although
  // its first "tag" would be too long to parse.
  std::string odd = "<" + std::string(97, 'x');
  e = run(odd);
  ASSERT_EQ(e.tokenak.size(), 1u);
  EXPECT_EQ(e.tokenak[0].analisiak.at(0).analisia, odd + "<EZZG>");
  EXPECT_EQ(e.tokenak[0].analisiak.at(0).etiketa, " EZZG");
}

TEST_F(SentenceAnalysis, CompoundNetworkComesLastWithoutRareReadings) {
  Esaldia e = run("etxezain etxezulo etxea");
  ASSERT_EQ(e.tokenak.size(), 3u);
  EXPECT_EQ(readings_of(e.tokenak[0]), (Strings{"etxe+zain<IZE><ARR>"}));
  EXPECT_EQ(e.tokenak[0].analisiak[0].sarea, "osag0");
  EXPECT_EQ(readings_of(e.tokenak[1]), (Strings{"etxezulo<EZZG>"}));
  // Known to the main network: "osag0" is not asked.
  EXPECT_EQ(readings_of(e.tokenak[2]), (Strings{"etxe<IZE><ARR><ABS><NUMS><MUGM>"}));
}

TEST_F(SentenceAnalysis, PersonalDictionaryFirstOrLast) {
  const std::string network = "etxe<IZE><ARR><INE><NUMS><MUGM>";
  const std::string personal = "hp:" + network;
  EXPECT_EQ(sourced(run("etxean", true).tokenak.at(0).analisiak), Strings{personal});
  EXPECT_EQ(sourced(run("etxean", false).tokenak.at(0).analisiak),
            (Strings{"eumorfo:" + network, personal}));
  // Words only the dictionary knows, either way.
  for (bool aukera : {true, false})
    EXPECT_EQ(run("Getxon", aukera).tokenak.at(0).analisiak.at(0).lema, "Getxo") << aukera;
  // Without the "hp" network, or with an empty dictionary, nothing personal.
  Networks no_hp{"eumorfo"};
  EXPECT_EQ(readings_of(analysed("etxean", no_hp.map(), dictionary).tokenak.at(0)),
            (Strings{network}));
  EXPECT_EQ(readings_of(analysed("Getxon", networks.map(), empty).tokenak.at(0)),
            (Strings{"Getxon<EZZG>"}));
}

TEST_F(SentenceAnalysis, EmptySentenceAndMissingNetworks) {
  EXPECT_TRUE(run("").tokenak.empty());
  Esaldia e = analysed("etxea", SareMapa{}, empty);
  EXPECT_EQ(readings_of(e.tokenak.at(0)), (Strings{"etxea<EZZG>"}));
}

}  // namespace
}  // namespace tarvola
