#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/test_files.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace {

using tarvola::Analisia;
using tarvola::HiztegiPertsonala;
using tarvola::Sarea;
using Strings = std::vector<std::string>;

// The "hp" network over the fixture endings.
class Lookup : public ::testing::Test {
 protected:
  // A dictionary loaded from a file, as the engine makes it.
  HiztegiPertsonala loaded(const std::string& lines) {
    return HiztegiPertsonala(dir_.write("hiztegia.txt", lines));
  }

  Strings readings(const HiztegiPertsonala& hp, const std::string& token) {
    Strings out;
    for (const Analisia& a : hp.analizatu(token, network_))
      out.push_back(a.analisia + " " + std::to_string(a.maiuskulaMota));
    return out;
  }

  const std::string path_ = tarvola::testing::data_path("tables/hp_endings.txt");
  Sarea owned_{"hp", path_, new tarvola::Taula(path_)};
  Sarea* network_ = &owned_;
  tarvola::testing::TempDir dir_;
};

const char kWords[] =
    "etxe\t<ARR>\tbat\tbi\tHP\n"
    "lan\t<ARR>\t\t\tHP\n"
    "hartu\t<ADI>\t\t\tHP\n"
    "Bilbo\t<LIB>\t\t\tHP\n";

TEST_F(Lookup, RecordCarriesTheEntryAndTheEnding) {
  HiztegiPertsonala hp = loaded(kWords);
  ASSERT_EQ(hp.luzeraMin, 3);
  std::vector<Analisia> result = hp.analizatu("etxean", network_);
  ASSERT_EQ(result.size(), 1u);
  const Analisia& a = result[0];
  EXPECT_EQ(a.analisia, "etxe<IZE><ARR><hp1><INE><NUMS><MUGM>");
  EXPECT_EQ(a.lema + "|" + a.etiketa + "|" + a.sarea + "|" + a.s_balioa + "|" + a.h_balioa + "|" +
                a.e_balioa + "|" + std::to_string(a.maiuskulaMota),
            "etxe| IZE ARR INE NUMS MUGM|hp|HP|bat|bi|0");
}

// "analysis maiuskulaMota" of each reading, in key then table order.
TEST_F(Lookup, ReadingsCapitalsAndProperNouns) {
  HiztegiPertsonala hp = loaded(kWords);
  const std::pair<const char*, Strings> rows[] = {
      {"etxeak", {"etxe<IZE><ARR><hp1><ABS><NUMP><MUGM> 0", "etxe<IZE><ARR><hp1><ERG><NUMS><MUGM> 0"}},
      // The token equal to the form: the class symbol alone.
      {"etxe", {"etxe<IZE><ARR><hp1><MG> 0"}},
      // "har" (stem), "hartu" (participle) and "hartze" all begin with "har".
      {"harturik", {"hartu<ADI><PART><hp21><PART><RIK> 0"}},
      {"har", {"hartu<ADI><ADOIN><hp24><ADOIN> 0"}},
      {"hartzea", {"hartu<ADI><ADI_IZE><hp20><ABS><NUMS><MUGM> 0"}},
      {"etxeetan", {}}, {"mendian", {}}, {"", {}},
      {"Etxean", {"etxe<IZE><ARR><hp1><INE><NUMS><MUGM> 1"}},
      {"ETXEAN", {"etxe<IZE><ARR><hp1><INE><NUMS><MUGM> 2"}},
      // A proper noun's form keeps its capital: found through the token as
      // written, and never in a word written in lower case.
      {"Bilbon", {"Bilbo<IZE><LIB><hp12><INE> 1"}},
      {"Bilbora", {"Bilbo<IZE><LIB><hp12><ALA> 1"}},
      {"bilbon", {}}, {"BILBON", {}},
  };
  for (const auto& [token, expected] : rows) EXPECT_EQ(readings(hp, token), expected) << token;
}

TEST_F(Lookup, SearchIsBoundedByTheShortestLoadedLemma) {
  HiztegiPertsonala hp = loaded("etxe\t<ARR>\t\t\tHP\nhartu\t<ADI>\t\t\tHP\n");
  ASSERT_EQ(hp.luzeraMin, 4);
  EXPECT_EQ(readings(hp, "har"), Strings{"hartu<ADI><ADOIN><hp24><ADOIN> 0"});
  // Added after loading and shorter than the bound: "lan" sorts before the
  // prefix "lana" and is reached only by tokens no longer than itself.
  hp.gehitu_sarrera(false, "lan", "<ARR>", "", "", "HP");
  EXPECT_EQ(readings(hp, "lan"), Strings{"lan<IZE><ARR><hp4><MG> 0"});
  EXPECT_TRUE(readings(hp, "lana").empty());
  EXPECT_TRUE(readings(hp, "lanean").empty());
}

TEST_F(Lookup, DictionaryWithoutAFileTestsEveryEntry) {
  HiztegiPertsonala hp;
  EXPECT_TRUE(readings(hp, "etxean").empty());
  hp.gehitu_sarrera(false, "lan", "<ARR>", "", "", "J");
  hp.gehitu_sarrera(false, "Bilbo", "<LIB>", "", "", "J");
  // The empty prefix never equals a token's first byte: capitalisation 1
  // even for a lower-case word, 2 for one in capitals.
  EXPECT_EQ(readings(hp, "lanean"), Strings{"lan<IZE><ARR><hp4><INE><NUMS><MUGM> 1"});
  EXPECT_EQ(readings(hp, "LANA"), Strings{"lan<IZE><ARR><hp4><ABS><NUMS><MUGM> 2"});
  EXPECT_EQ(readings(hp, "Bilbon"), Strings{"Bilbo<IZE><LIB><hp12><INE> 1"});
  EXPECT_EQ(hp.analizatu("lanean", network_)[0].s_balioa, "J");
  EXPECT_TRUE(hp.analizatu("lanean", nullptr).empty());
}

}  // namespace
