#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/test_files.h"
#include "tarvola/userdict/HiztegiPertsonala.h"
#include "tarvola/userdict/verb_stems.h"

namespace {

using tarvola::HiztegiPertsonala;
using tarvola::HPsarrera;

// "key: lemma tag form class" for every paradigm entry, in key order.
std::vector<std::string> paradigms(const HiztegiPertsonala& hp) {
  std::vector<std::string> out;
  for (const auto& [key, e] : hp.paradigmak)
    out.push_back(key + ": " + e->lema + " " + e->kategoria + " " + e->forma + " " +
                  e->paradigma);
  return out;
}

using Rows = std::vector<std::string>;

TEST(Entries, UserEntryAndDuplicate) {
  HiztegiPertsonala hp;
  hp.gehitu_sarrera(false, "etxe", "<ARR>", "o1", "o2", "J");
  hp.gehitu_sarrera(false, "etxe", "<ARR>", "x", "y", "z");
  ASSERT_EQ(hp.sarrerak.size(), 1u);
  const HPsarrera& u = *hp.sarrerak[0];
  EXPECT_EQ(u.lema + "|" + u.kategoria + "|" + u.forma + "|" + u.osagarria1 + "|" +
                u.osagarria2 + "|" + u.jatorria + "|" + u.paradigma,
            "etxe|<ARR>||o1|o2|HP|");
  ASSERT_EQ(paradigms(hp), Rows{"etxe: etxe <IZE><ARR> etxe <hp1>"});
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
  EXPECT_EQ(paradigms(hp), Rows{"gorri: gorri <IZE><ARR> gorri <hp1>"});
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

}  // namespace
