#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/test_files.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

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

std::vector<std::string> paradigms_of(const std::string& lemma, const std::string& category) {
  HiztegiPertsonala hp;
  hp.gehitu_sarrera(false, lemma, category, "", "", "HP");
  return paradigms(hp);
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

TEST(Entries, CommonNounsAndAdjectives) {
  EXPECT_EQ(paradigms_of("Alaba", "<ARR>"),
            (Rows{"alab: alaba <IZE><ARR> alab <hp2>", "alaba: alaba <IZE><ARR> alaba <hp3>"}));
  EXPECT_EQ(paradigms_of("UR", "<ARR>"),
            (Rows{"ur: ur <IZE><ARR> ur <hp6>", "urr: ur <IZE><ARR> urr <hp5>"}));
  EXPECT_EQ(paradigms_of("lan", "<ARR>"), Rows{"lan: lan <IZE><ARR> lan <hp4>"});
  // The adjective's <hp7> row always shares the key of the row before it.
  EXPECT_EQ(paradigms_of("handi", "<IZO>"), Rows{"handi: handi <ADJ><IZO> handi <hp1>"});
  EXPECT_EQ(paradigms_of("zahar", "<IZO>"),
            (Rows{"zahar: zahar <ADJ><IZO> zahar <hp6>", "zaharr: zahar <ADJ><IZO> zaharr <hp5>"}));
  EXPECT_EQ(paradigms_of("polita", "<IZO>"),
            (Rows{"polit: polita <ADJ><IZO> polit <hp2>", "polita: polita <ADJ><IZO> polita <hp3>"}));
  EXPECT_EQ(paradigms_of("\xC1URRE", "<ARR>"), Rows{"\xE1urre: \xE1urre <IZE><ARR> \xE1urre <hp1>"});
}

TEST(Entries, FirstEntryUnderAKeyWins) {
  HiztegiPertsonala hp;
  hp.gehitu_sarrera(false, "gorri", "<ARR>", "", "", "HP");
  hp.gehitu_sarrera(false, "gorri", "<IZO>", "", "", "HP");
  EXPECT_EQ(hp.sarrerak.size(), 2u);
  EXPECT_EQ(paradigms(hp), Rows{"gorri: gorri <IZE><ARR> gorri <hp1>"});
}

TEST(Entries, Verbs) {
  EXPECT_EQ(paradigms_of("egin", "<ADI>"),
            (Rows{"egin: egin <ADI><PART> egin <hp22>", "egite: egin <ADI><ADI_IZE> egite <hp20>"}));
  EXPECT_EQ(paradigms_of("hartu", "<ADI>"),
            (Rows{"har: hartu <ADI><ADOIN> har <hp24>", "hartu: hartu <ADI><PART> hartu <hp21>",
                  "hartze: hartu <ADI><ADI_IZE> hartze <hp20>"}));
  EXPECT_EQ(paradigms_of("hil", "<ADI>"),
            (Rows{"hil: hil <ADI><PART> hil <hp23>", "hiltze: hil <ADI><ADI_IZE> hiltze <hp20>"}));
  // Only a lower-case n or l chooses the participle class.
  EXPECT_EQ(paradigms_of("EGIN", "<ADI>"),
            (Rows{"egin: egin <ADI><PART> egin <hp21>", "egite: egin <ADI><ADI_IZE> egite <hp20>"}));
  // An empty stem is stored under the empty key.
  EXPECT_EQ(paradigms_of("tu", "<ADI>"),
            (Rows{": tu <ADI><ADOIN>  <hp24>", "tu: tu <ADI><PART> tu <hp21>",
                  "tze: tu <ADI><ADI_IZE> tze <hp20>"}));
}

TEST(Entries, ProperNounsKeepTheirCase) {
  EXPECT_EQ(paradigms_of("Bilbo", "<LIB>"), Rows{"bilbo: Bilbo <IZE><LIB> Bilbo <hp12>"});
  EXPECT_EQ(paradigms_of("Aretz", "<LIB>"),
            (Rows{"aretz: Aretz <IZE><LIB> Aretz <hp19>", "arez: Aretz <IZE><LIB> Arez <hp18>"}));
  EXPECT_EQ(paradigms_of("Getxo", "<LIB>"), Rows{"getxo: Getxo <IZE><LIB> Getxo <hp12>"});
  EXPECT_EQ(paradigms_of("Irun", "<LIB>"), Rows{"irun: Irun <IZE><LIB> Irun <hp25>"});
  EXPECT_EQ(paradigms_of("Oier", "<LIB>"),
            (Rows{"oier: Oier <IZE><LIB> Oier <hp14>", "oierr: Oier <IZE><LIB> Oierr <hp15>"}));
  EXPECT_EQ(paradigms_of("Luis", "<LIB>"), Rows{"luis: Luis <IZE><LIB> Luis <hp13>"});
  EXPECT_EQ(paradigms_of("ARETZ", "<LIB>"), Rows{"aretz: ARETZ <IZE><LIB> ARETZ <hp13>"});
  EXPECT_EQ(paradigms_of("Ane", "<PIB>"), Rows{"ane: Ane <IZE><PIB> Ane <hp8>"});
  EXPECT_EQ(paradigms_of("Peter", "<PIB>"),
            (Rows{"peter: Peter <IZE><PIB> Peter <hp10>", "peterr: Peter <IZE><PIB> Peterr <hp11>"}));
  EXPECT_EQ(paradigms_of("Jon", "<PIB>"), Rows{"jon: Jon <IZE><PIB> Jon <hp9>"});
  EXPECT_EQ(paradigms_of("Eroski", "<IZB>"), Rows{"eroski: Eroski <IZE><IZB> Eroski <hp16>"});
  EXPECT_EQ(paradigms_of("Kutxabank", "<IZB>"),
            Rows{"kutxabank: Kutxabank <IZE><IZB> Kutxabank <hp17>"});
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

}  // namespace
