// The personal dictionary's entries: the paradigm rows each word gets, the
// verb stems behind them, appending to the file, and looking words up
// through the "hp" network.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/test_files.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/userdict/HiztegiPertsonala.h"
#include "tarvola/userdict/verb_stems.h"

namespace {

using tarvola::Analisia;
using tarvola::HiztegiPertsonala;
using tarvola::HPsarrera;
using tarvola::Sarea;
using Strings = std::vector<std::string>;

// "key: lemma tag form class" for every paradigm entry, in key order.
std::vector<std::string> paradigms(const HiztegiPertsonala& hp) {
  std::vector<std::string> out;
  for (const auto& [key, e] : hp.paradigmak)
    out.push_back(key + ": " + e->lema + " " + e->kategoria + " " + e->forma + " " +
                  e->paradigma);
  return out;
}

TEST(Entries, UserEntryAndDuplicate) {
  HiztegiPertsonala hp;
  hp.gehitu_sarrera(false, "etxe", "<ARR>", "o1", "o2", "J");
  hp.gehitu_sarrera(false, "etxe", "<ARR>", "x", "y", "z");
  ASSERT_EQ(hp.sarrerak.size(), 1u);
  const HPsarrera& u = *hp.sarrerak[0];
  EXPECT_EQ(u.lema + "|" + u.kategoria + "|" + u.forma + "|" + u.osagarria1 + "|" +
                u.osagarria2 + "|" + u.jatorria + "|" + u.paradigma,
            "etxe|<ARR>||o1|o2|HP|");
  ASSERT_EQ(paradigms(hp), Strings{"etxe: etxe <IZE><ARR> etxe <hp1>"});
  const HPsarrera& p = *hp.paradigmak.at("etxe");
  EXPECT_EQ(p.osagarria1 + "|" + p.osagarria2 + "|" + p.jatorria, "o1|o2|J");
  // Case-sensitive duplicate test: another spelling is another word.
  hp.gehitu_sarrera(false, "Etxe", "<ARR>", "", "", "HP");
  EXPECT_EQ(hp.sarrerak.size(), 2u);
  EXPECT_EQ(hp.paradigmak.size(), 1u);
}

// One row per paradigm rule: the paradigm rows of one entry, "; "-joined.
TEST(Entries, ParadigmClasses) {
  struct Row {
    const char* lemma;
    const char* category;
    const char* rows;
  } rows[] = {
      {"Alaba", "<ARR>", "alab: alaba <IZE><ARR> alab <hp2>; alaba: alaba <IZE><ARR> alaba <hp3>"},
      {"UR", "<ARR>", "ur: ur <IZE><ARR> ur <hp6>; urr: ur <IZE><ARR> urr <hp5>"},
      {"lan", "<ARR>", "lan: lan <IZE><ARR> lan <hp4>"},
      {"\xC1URRE", "<ARR>", "\xE1urre: \xE1urre <IZE><ARR> \xE1urre <hp1>"},
      // The adjective's <hp7> row always shares the key of the row before it.
      {"handi", "<IZO>", "handi: handi <ADJ><IZO> handi <hp1>"},
      {"zahar", "<IZO>", "zahar: zahar <ADJ><IZO> zahar <hp6>; zaharr: zahar <ADJ><IZO> zaharr <hp5>"},
      {"polita", "<IZO>", "polit: polita <ADJ><IZO> polit <hp2>; polita: polita <ADJ><IZO> polita <hp3>"},
      {"egin", "<ADI>", "egin: egin <ADI><PART> egin <hp22>; egite: egin <ADI><ADI_IZE> egite <hp20>"},
      {"hartu", "<ADI>", "har: hartu <ADI><ADOIN> har <hp24>; hartu: hartu <ADI><PART> hartu <hp21>; "
                         "hartze: hartu <ADI><ADI_IZE> hartze <hp20>"},
      {"hil", "<ADI>", "hil: hil <ADI><PART> hil <hp23>; hiltze: hil <ADI><ADI_IZE> hiltze <hp20>"},
      // Only a lower-case n or l chooses the participle class.
      {"EGIN", "<ADI>", "egin: egin <ADI><PART> egin <hp21>; egite: egin <ADI><ADI_IZE> egite <hp20>"},
      // An empty stem is stored under the empty key.
      {"tu", "<ADI>", ": tu <ADI><ADOIN>  <hp24>; tu: tu <ADI><PART> tu <hp21>; tze: tu <ADI><ADI_IZE> tze <hp20>"},
      // Proper nouns keep their case.
      {"Bilbo", "<LIB>", "bilbo: Bilbo <IZE><LIB> Bilbo <hp12>"},
      {"Aretz", "<LIB>", "aretz: Aretz <IZE><LIB> Aretz <hp19>; arez: Aretz <IZE><LIB> Arez <hp18>"},
      {"Getxo", "<LIB>", "getxo: Getxo <IZE><LIB> Getxo <hp12>"},
      {"Irun", "<LIB>", "irun: Irun <IZE><LIB> Irun <hp25>"},
      {"Oier", "<LIB>", "oier: Oier <IZE><LIB> Oier <hp14>; oierr: Oier <IZE><LIB> Oierr <hp15>"},
      {"Luis", "<LIB>", "luis: Luis <IZE><LIB> Luis <hp13>"},
      {"ARETZ", "<LIB>", "aretz: ARETZ <IZE><LIB> ARETZ <hp13>"},
      {"Ane", "<PIB>", "ane: Ane <IZE><PIB> Ane <hp8>"},
      {"Peter", "<PIB>", "peter: Peter <IZE><PIB> Peter <hp10>; peterr: Peter <IZE><PIB> Peterr <hp11>"},
      {"Jon", "<PIB>", "jon: Jon <IZE><PIB> Jon <hp9>"},
      {"Eroski", "<IZB>", "eroski: Eroski <IZE><IZB> Eroski <hp16>"},
      {"Kutxabank", "<IZB>", "kutxabank: Kutxabank <IZE><IZB> Kutxabank <hp17>"},
  };
  for (const Row& r : rows) {
    HiztegiPertsonala hp;
    hp.gehitu_sarrera(false, r.lemma, r.category, "", "", "HP");
    std::string got;
    for (const std::string& row : paradigms(hp)) got += (got.empty() ? "" : "; ") + row;
    EXPECT_EQ(got, r.rows) << r.lemma;
  }
  // The first entry under a key wins.
  HiztegiPertsonala hp;
  hp.gehitu_sarrera(false, "gorri", "<ARR>", "", "", "HP");
  hp.gehitu_sarrera(false, "gorri", "<IZO>", "", "", "HP");
  EXPECT_EQ(hp.sarrerak.size(), 2u);
  EXPECT_EQ(paradigms(hp), Strings{"gorri: gorri <IZE><ARR> gorri <hp1>"});
}

TEST(Entries, UnknownCategoriesGiveNoParadigm) {
  for (const char* category : {"<arr>", "<ARR> ", "ARR", "<IZE>", ""}) {
    HiztegiPertsonala hp;
    hp.gehitu_sarrera(false, "etxe", category, "", "", "HP");
    EXPECT_EQ(hp.sarrerak.size(), 1u) << category;
    EXPECT_TRUE(hp.paradigmak.empty()) << category;
  }
}

TEST(Entries, OneByteLocalityNameInSXZThrowsOutOfRange) {
  for (const char* lemma : {"s", "X", "z"}) {
    HiztegiPertsonala hp;
    EXPECT_THROW(hp.gehitu_sarrera(false, lemma, "<LIB>", "", "", "HP"), std::out_of_range);
    EXPECT_EQ(hp.sarrerak.size(), 1u);  // kept, and freed with the dictionary
    EXPECT_TRUE(hp.paradigmak.empty());
  }
  HiztegiPertsonala hp;
  EXPECT_NO_THROW(hp.gehitu_sarrera(false, "s", "<PIB>", "", "", "HP"));
  EXPECT_NO_THROW(hp.gehitu_sarrera(false, "", "<LIB>", "", "", "HP"));
}

TEST(Entries, AppendedLines) {
  tarvola::testing::TempDir dir;
  const std::string path = dir.file("hiztegia.txt");
  tarvola::testing::write_file(path, "lehen\t<ARR>\t\t\tHP");
  HiztegiPertsonala hp(path);
  hp.gehitu_sarrera(true, "bat", "<ARR>", "x", "", "J");
  hp.gehitu_sarrera(true, "bi", "<ARR>", "", "y", "J");
  hp.gehitu_sarrera(true, "hiru", "<ARR>", "x", "y", "J");
  hp.gehitu_sarrera(true, "lau", "<zer>", "", "", "J");
  hp.gehitu_sarrera(true, "lehen", "<ARR>", "", "", "J");  // duplicate: not written
  EXPECT_EQ(tarvola::testing::read_file(path),
            "lehen\t<ARR>\t\t\tHP"
            "\nbat\t<ARR>\tx\t\tHP"
            "\nbi\t<ARR>\t\ty\tHP"
            "\nhiru\t<ARR>\tx\t\tHP"
            "\nlau\t<zer>\t\t\tHP");
  // A missing file is created by the first append.
  HiztegiPertsonala fresh(dir.file("berria.txt"));
  fresh.gehitu_sarrera(true, "etxe", "<ARR>", "", "", "HP");
  EXPECT_EQ(tarvola::testing::read_file(dir.file("berria.txt")), "\netxe\t<ARR>\t\t\tHP");
  // Without a file, writing is a no-op.
  HiztegiPertsonala none;
  none.gehitu_sarrera(true, "etxe", "<ARR>", "", "", "HP");
  EXPECT_EQ(none.sarrerak.size(), 1u);
}

struct StemCase {
  const char* lemma;
  const char* stem;
  const char* noun;
};

// One row per rule of the two tables, then the cases where the order of the
// rules or the minimum lengths decide.
const StemCase kCases[] = {
    {"hoztu", "hotz", "hozte"},     {"hestu", "hets", "heste"},
    {"utzi", "utz", "uzte"},        {"hautsi", "hauts", "hauste"},
    {"egin", "egin", "egite"},      {"ikusi", "ikusi", "ikuste"},
    {"etorri", "etor", "etortze"},  {"ibili", "ibil", "ibiltze"},
    {"hartu", "har", "hartze"},     {"galdu", "gal", "galtze"},
    {"itxi", "itxi", "itxitze"},    // the repeated "tsi" row never fires
    {"jarri", "jar", "jartze"},     // "rri" before "ri"
    {"edu", "edu", "edutze"},       // -du only through "ldu"/"ndu"
    {"n", "n", "ntze"},             // "n" needs two bytes
    {"tu", "", "tze"},              {"", "", "tze"},
    {"hil", "hil", "hiltze"},       {"ezkondu", "ezkon", "ezkontze"},
    // Endings are tested lower-cased but cut from the lemma as given.
    {"HARTU", "HAR", "HARtze"},     {"UTZI", "Utz", "Uzte"},
    {"EGIN", "EGIN", "EGIte"},
};

TEST(VerbStems, RuleTablesInOrder) {
  for (const StemCase& c : kCases) {
    EXPECT_EQ(tarvola::userdict::verb_stem(c.lemma), c.stem) << c.lemma;
    EXPECT_EQ(tarvola::userdict::verbal_noun(c.lemma), c.noun) << c.lemma;
  }
}

// The "hp" network over the fixture endings.
class Lookup : public ::testing::Test {
 protected:
  // A dictionary loaded from a file, as the engine makes it.
  HiztegiPertsonala loaded(const std::string& lines) {
    return HiztegiPertsonala(dir_.write("hiztegia.txt", lines));
  }

  Strings readings(const HiztegiPertsonala& hp, const std::string& token) {
    Strings out;
    for (const Analisia& a : hp.analizatu(token, &network_))
      out.push_back(a.analisia + " " + std::to_string(a.maiuskulaMota));
    return out;
  }

  const std::string path_ = tarvola::testing::data_path("tables/hp_endings.txt");
  Sarea network_{"hp", path_, new tarvola::Taula(path_)};
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
  std::vector<Analisia> result = hp.analizatu("etxean", &network_);
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
  EXPECT_EQ(hp.analizatu("lanean", &network_)[0].s_balioa, "J");
  EXPECT_TRUE(hp.analizatu("lanean", nullptr).empty());
}

}  // namespace
