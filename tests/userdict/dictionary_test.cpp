// The personal dictionary: the paradigm rows each word gets, the verb stems
// behind them, looking words up through the "hp" network, and its file:
// reading lines, appending, removing and rewriting.
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/test_files.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/userdict/HiztegiPertsonala.h"
#include "tarvola/userdict/dictionary_file.h"
#include "tarvola/userdict/verb_stems.h"

#ifndef _WIN32
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace {

using tarvola::Analisia;
using tarvola::HiztegiPertsonala;
using tarvola::HPsarrera;
using tarvola::Sarea;
using Strings = std::vector<std::string>;
using tarvola::testing::read_file;
using tarvola::testing::TempDir;
using tarvola::testing::write_file;

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
  TempDir dir;
  const std::string path = dir.file("hiztegia.txt");
  write_file(path, "lehen\t<ARR>\t\t\tHP");
  HiztegiPertsonala hp(path);
  hp.gehitu_sarrera(true, "bat", "<ARR>", "x", "", "J");
  hp.gehitu_sarrera(true, "bi", "<ARR>", "", "y", "J");
  hp.gehitu_sarrera(true, "hiru", "<ARR>", "x", "y", "J");
  hp.gehitu_sarrera(true, "lau", "<zer>", "", "", "J");
  hp.gehitu_sarrera(true, "lehen", "<ARR>", "", "", "J");  // duplicate: not written
  EXPECT_EQ(read_file(path),
            "lehen\t<ARR>\t\t\tHP"
            "\nbat\t<ARR>\tx\t\tHP"
            "\nbi\t<ARR>\t\ty\tHP"
            "\nhiru\t<ARR>\tx\t\tHP"
            "\nlau\t<zer>\t\t\tHP");
  // A missing file is created by the first append.
  HiztegiPertsonala fresh(dir.file("berria.txt"));
  fresh.gehitu_sarrera(true, "etxe", "<ARR>", "", "", "HP");
  EXPECT_EQ(read_file(dir.file("berria.txt")), "\netxe\t<ARR>\t\t\tHP");
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
  TempDir dir_;
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

namespace ud = tarvola::userdict;

std::string columns(const std::optional<ud::DictionaryLine>& l) {
  if (!l) return "(none)";
  return l->lemma + "|" + l->category + "|" + l->extra1 + "|" + l->extra2 + "|" + l->origin;
}

std::vector<std::string> users(const HiztegiPertsonala& hp) {
  std::vector<std::string> out;
  for (const auto* e : hp.sarrerak) out.push_back(e->lema + " " + e->kategoria);
  return out;
}

std::vector<std::string> keys(const HiztegiPertsonala& hp) {
  std::vector<std::string> out;
  for (const auto& kv : hp.paradigmak) out.push_back(kv.first + " " + kv.second->kategoria);
  return out;
}


// What a rewrite leaves in the folder: no temporary file may remain.
Strings names_in(const std::string& dir) {
  Strings out;
  for (const auto& e : std::filesystem::directory_iterator(dir))
    out.push_back(e.path().filename().string());
  return out;
}

TEST(DictionaryFile, LineColumns) {
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR>\t\t\tHP")), "etxe|<ARR>|||HP");
  EXPECT_EQ(columns(ud::parse_line("etxe|<ARR>\ta\tb\tHP")), "etxe|<ARR>|a|b|HP");
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR>\ta\tb\tHP\tmore")), "etxe|<ARR>|a|b|HP\tmore");
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR>")), "etxe|<ARR>|||");
  EXPECT_EQ(columns(ud::parse_line("etxe\tARR\t\t\tHP")), "etxe||||HP");
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR\t\t\tHP")), "etxe||||HP");
  EXPECT_EQ(columns(ud::parse_line("etxe <ARR>")), "etxe <ARR>||||");
  EXPECT_EQ(columns(ud::parse_line("// etxe\t<ARR>")), "(none)");
  EXPECT_EQ(columns(ud::parse_line("e")), "(none)");
  EXPECT_EQ(columns(ud::parse_line("")), "(none)");
}

TEST(DictionaryFile, LoadingSkipsCommentsAndMalformedLines) {
  TempDir dir;
  // A missing file and one of comments only: no words, the initial bounds.
  for (const std::string& path : {dir.file("ez-dago.txt"), dir.write("iruzkinak.txt", "// bat\n\n//bi\t<ARR>\n \n")}) {
    HiztegiPertsonala none(path);
    EXPECT_TRUE(none.sarrerak.empty());
    EXPECT_EQ(none.luzeraMin, 10000);
    EXPECT_EQ(none.hitzMax, 0);
  }

  HiztegiPertsonala hp(dir.write("h.txt",
             "\netxe\tARR\t\t\tHP"      // no brackets
             "\nx\t<ARR>\t\t\tHP"       // one-byte lemma
             "\nlibururik"              // no tab
             "\nkale nagusi\t<ARR>\t\t\tHP\r"
             "\nhartu|<ADI>\ta\t\tHP"
             "\ngorri\t<ARR>\t\t\tHP"
             "\ngorri\t<ARR>\t\t\tHP\n"));
  EXPECT_EQ(users(hp), (Strings{"kale nagusi <ARR>", "hartu <ADI>", "gorri <ARR>"}));
  EXPECT_EQ(keys(hp), (Strings{"gorri <IZE><ARR>", "har <ADI><ADOIN>", "hartu <ADI><PART>",
                               "hartze <ADI><ADI_IZE>", "kale nagusi <IZE><ARR>"}));
  EXPECT_EQ(hp.luzeraMin, 5);
  EXPECT_EQ(hp.hitzMax, 2);
  EXPECT_EQ(hp.paradigmak.at("hartu")->osagarria1, "a");
  EXPECT_EQ(hp.paradigmak.at("hartu")->jatorria, "HP");
}

class Removal : public ::testing::Test {
 protected:
  TempDir dir;
  std::string path = dir.write("hiztegia.txt",
                               "// iruzkina\n"
                               "etxe\t<ARR>\tbat\tbi\tHP\n"
                               "ETXE\t<ARR>\t\t\tHP\n"
                               "gorri\t<IZO>\t\t\tHP\n"
                               "gorri\t<ARR>\t\t\tHP\n"
                               "hutsa\t<>\t\t\tHP\n");
};

TEST_F(Removal, ComparesLemmasExactlyAndCategoriesAsSubstrings) {
  HiztegiPertsonala hp(path);
  EXPECT_EQ(keys(hp), (Strings{"etxe <IZE><ARR>", "gorri <ADJ><IZO>"}));
  // Upper case removes the user entry stored so, no lower-cased paradigm.
  hp.kendu_sarrera(false, "ETXE", "<ARR>");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>", "gorri <ARR>", "hutsa <>"}));
  EXPECT_EQ(hp.paradigmak.size(), 2u);
  // "<ARR>" is no substring of "<ADJ><IZO>".
  hp.kendu_sarrera(false, "gorri", "<ARR>");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>", "hutsa <>"}));
  EXPECT_EQ(keys(hp), (Strings{"etxe <IZE><ARR>", "gorri <ADJ><IZO>"}));
  // The empty category is in every tag, but only in empty user categories.
  hp.kendu_sarrera(false, "etxe", "");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>", "hutsa <>"}));
  EXPECT_EQ(keys(hp), (Strings{"gorri <ADJ><IZO>"}));
  hp.kendu_sarrera(false, "hutsa", "<>");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>"}));
  // Without idatzi the file is untouched.
  EXPECT_EQ(read_file(path).substr(0, 12), "// iruzkina\n");
}

TEST_F(Removal, RewriteWritesEveryColumnAndLeavesNoTemporaryFile) {
  HiztegiPertsonala hp(path);
  hp.kendu_sarrera(true, "gorri", "<IZO>");
  EXPECT_EQ(read_file(path),
            "\netxe\t<ARR>\tbat\tbi\tHP"
            "\nETXE\t<ARR>\t\t\tHP"
            "\ngorri\t<ARR>\t\t\tHP"
            "\nhutsa\t<>\t\t\tHP\n");
  EXPECT_EQ(names_in(dir.path()), Strings{"hiztegia.txt"});
  // A word that is not there changes nothing, but the file is rewritten.
  write_file(path, "// bakarrik iruzkina\netxe\t<ARR>\t\t\tHP\n");
  hp.kendu_sarrera(true, "ez-dago", "<ARR>");
  EXPECT_EQ(read_file(path).substr(0, 5), "\netxe");
  // The rewritten file loads back to the same words.
  HiztegiPertsonala again(path);
  EXPECT_EQ(users(again), users(hp));
  EXPECT_EQ(again.sarrerak[0]->osagarria2, "bi");
}

TEST_F(Removal, CopiesOwnTheirEntries) {
  HiztegiPertsonala original(path);
  HiztegiPertsonala copy(original);
  EXPECT_NE(copy.sarrerak[0], original.sarrerak[0]);
  copy.kendu_sarrera(false, "etxe", "<ARR>");
  copy.gehitu_sarrera(false, "mendi", "<ARR>", "", "", "HP");
  EXPECT_EQ(original.sarrerak.size(), 5u);
  EXPECT_EQ(original.paradigmak.at("etxe")->lema, "etxe");
  EXPECT_EQ(original.paradigmak.count("mendi"), 0u);

  HiztegiPertsonala assigned;
  assigned = copy;
  HiztegiPertsonala& self = assigned;
  assigned = self;
  original = assigned;
  EXPECT_EQ(users(original), users(copy));
  EXPECT_EQ(keys(original), keys(copy));
  EXPECT_EQ(original.luzeraMin, 4);
  EXPECT_EQ(original.fitxategia, path);

  // An entry a caller put into both containers is freed once.
  auto* shared = new tarvola::HPsarrera("x", "<ARR>", "x", "", "", "HP", "<hp4>");
  original.sarrerak.push_back(shared);
  original.paradigmak.emplace("x", shared);
  HiztegiPertsonala aliased(original);
  EXPECT_EQ(aliased.sarrerak.back(), aliased.paradigmak.at("x"));
  original.kendu_sarrera(false, "x", "<ARR>");
}

#ifndef _WIN32
TEST_F(Removal, ReadOnlyDirectoryKeepsTheOldFile) {
  if (geteuid() == 0) GTEST_SKIP() << "root writes into read-only directories";
  HiztegiPertsonala hp(path);
  const std::string before = read_file(path);
  std::filesystem::permissions(dir.path(), std::filesystem::perms::owner_read |
                                               std::filesystem::perms::owner_exec);
  hp.kendu_sarrera(true, "gorri", "<IZO>");
  EXPECT_EQ(read_file(path), before);
  std::filesystem::permissions(dir.path(), std::filesystem::perms::owner_all);
  EXPECT_EQ(names_in(dir.path()), Strings{"hiztegia.txt"});
}

// A rewrite that fails half-way (here: the file size limit, as on a full
// disk) or kills the process half-way (the limit's default signal) leaves
// the old file whole.
TEST_F(Removal, InterruptedRewriteKeepsTheOldFile) {
  HiztegiPertsonala hp(path);
  for (int i = 0; i < 2000; ++i)
    hp.gehitu_sarrera(false, "hitz" + std::to_string(i), "<ARR>", "", "", "HP");
  const std::string before = read_file(path);
  auto rewrite_with_limit = [&] {
    struct rlimit limit = {4096, 4096};
    setrlimit(RLIMIT_FSIZE, &limit);
    hp.kendu_sarrera(true, "gorri", "<IZO>");
  };
  EXPECT_EXIT({ signal(SIGXFSZ, SIG_IGN); rewrite_with_limit(); _exit(0); },
              ::testing::ExitedWithCode(0), "");
  EXPECT_EQ(read_file(path), before);
  EXPECT_EQ(names_in(dir.path()), Strings{"hiztegia.txt"});

  EXPECT_EXIT({ rewrite_with_limit(); _exit(0); }, ::testing::KilledBySignal(SIGXFSZ), "");
  EXPECT_EQ(read_file(path), before);
}

TEST_F(Removal, RewriteThroughASymbolicLinkKeepsTheLink) {
  const std::string link = dir.file("lotura.txt");
  std::filesystem::create_symlink(path, link);
  HiztegiPertsonala hp(link);
  hp.kendu_sarrera(true, "gorri", "<IZO>");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(read_file(path).substr(0, 5), "\netxe");
}
#endif

}  // namespace
