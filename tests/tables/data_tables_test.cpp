// The networks committed under data/: what each must hold for the
// analyser and the correction document to work.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "support/test_files.h"
#include "tarvola/analysis/Analisia.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/tables/Taula.h"

namespace {

const std::string kData = std::string(TARVOLA_TEST_DATA_DIR) + "/../../data/";
const std::string kCorrections = kData + "tables/zuzenketakPG.txt";

// Generating a reading gives back its own word form. The correction
// document replaces a word by generating its reading's tags with another
// lemma; generation accepts every path that runs past the tags it is given,
// so a reading whose tags begin those of another reading of the same lemma
// (a plural absolutive before every plural case) would bring in forms of
// other cases. Every network of the data set writes its readings so that
// this cannot happen: here, for the committed networks and for a sample of
// corpus words on the converted main network, the generation from a
// reading's own lemma and tag part must give the word and nothing but the
// word (or a spelling variant with the very same reading).

// Readings that generation refuses by design (the walk stops on them), and
// lemmas that form replacement reads as a list of alternatives ("/").
bool generation_skips(const std::string& analysis) {
  return analysis.find('/') != std::string::npos || tarvola::tags::contains(analysis, "ba<AUR>") || tarvola::tags::contains(analysis, "<ADL>") ||
         tarvola::tags::contains(analysis, "<Rare>");
}

// What is wrong with generating `reading` of `word` on `net`; empty when
// the result is the word itself, possibly with spelling variants that carry
// exactly the same reading. The lemma is taken from the analysis string as
// written (with its "+" compound boundaries, which the record's lemma drops).
std::string own_form_fault(const tarvola::Sarea& net, const std::string& word,
                           const tarvola::Analisia& reading) {
  const std::string& analysis = reading.analisia;
  const std::string lemma = analysis.substr(0, analysis.find('<'));
  const std::vector<tarvola::Analisia> generated = net.ordeztuForma(lemma, reading);
  const std::string lower = tarvola::latin1::lowered(word);
  bool found = false;
  for (const auto& g : generated) {
    if (tarvola::latin1::lowered(g.forma) == lower) {
      found = true;
      continue;
    }
    auto back = net.taula->analizatuTokena(g.forma);
    if (std::none_of(back.begin(), back.end(),
                     [&](const tarvola::Analisia& b) { return b.analisia == analysis; }))
      return analysis + " of " + word + " also generates " + g.forma + " (" + g.analisia + ")";
  }
  return found ? "" : analysis + " does not generate " + word;
}

void expect_own_forms(const tarvola::Sarea& net, const std::vector<std::string>& words,
                      std::size_t* checked = nullptr) {
  for (const auto& word : words)
    for (const auto& reading : net.taula->analizatuTokena(word)) {
      if (generation_skips(reading.analisia)) continue;
      EXPECT_EQ(own_form_fault(net, word, reading), "") << net.izena;
      if (checked) ++*checked;
    }
}

// Every word form a table spells, found by generating from nothing.
std::vector<std::string> all_forms(const tarvola::Taula& table) {
  std::set<std::string> forms;
  for (const auto& g : table.sortuFormak("", "", false, false)) forms.insert(g.forma);
  return {forms.begin(), forms.end()};
}

// The personal dictionary's endings network: the linking letters of each
// class are right, and common nouns have every case (OwnForm checks that
// every form reads back as generated).
class HpTable : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { table = new tarvola::Taula(kData + "tables/hpPG.txt"); }
  static void TearDownTestSuite() {
    delete table;
    table = nullptr;
  }
  // Whether generating the class gives the ending with those tags.
  static bool has(const std::string& cls, const std::string& ending, const std::string& tags) {
    for (const auto& a : table->sortuFormak(cls, "", false, false))
      if (a.forma == cls + ending && a.analisia == cls + tags) return true;
    return false;
  }
  static inline tarvola::Taula* table = nullptr;
};

// The non-standard forms network: a non-standard word carries its mark,
// its standard form gets no reading of this network in any capitalisation,
// and form replacement inflects the standard form as the word was
// inflected, in the word's capitalisation.
std::vector<std::string> replacements(const tarvola::Sarea& net, const std::string& word) {
  std::vector<std::string> out;
  for (const auto& a : net.taula->analizatuTokena(word)) {
    const std::string& standard = a.h_balioa.empty() ? a.e_balioa : a.h_balioa;
    for (const auto& q : net.ordeztuForma(standard, a)) out.push_back(q.forma);
  }
  return out;
}

}  // namespace

TEST(OwnForm, EveryFormOfTheCommittedNetworks) {
  for (const char* file : {"demo/eumorfoPG.txt", "tables/zuzenketakPG.txt"}) {
    const std::string path = kData + file;
    ASSERT_TRUE(std::ifstream(path).good()) << path;
    tarvola::Sarea net(file, path, new tarvola::Taula(path));
    const auto words = all_forms(*net.taula);
    ASSERT_GT(words.size(), 80u) << file;
    expect_own_forms(net, words);
  }
}

TEST(OwnForm, EveryEndingOfThePersonalDictionaryClasses) {
  // The "hp" network is read behind a class symbol: generating the class
  // with the tags of one of its readings gives that ending only, and each
  // generated form reads back as generated.
  const std::string path = kData + "tables/hpPG.txt";
  tarvola::Sarea net("hp", path, new tarvola::Taula(path));
  ASSERT_TRUE(std::ifstream(path).good()) << path;
  for (int n = 1; n <= 25; ++n) {
    const std::string cls = "<hp" + std::to_string(n) + ">";
    std::set<std::string> forms;
    for (const auto& g : net.taula->sortuFormak(cls, "", false, false)) {
      // Every generated form analyses back to the reading it came from.
      ASSERT_EQ(g.forma.rfind(cls, 0), 0u) << cls << " " << g.forma;
      auto back = net.taula->analizatuTokena(g.forma);
      EXPECT_TRUE(std::any_of(back.begin(), back.end(), [&](const auto& r) { return r.analisia == g.analisia; }))
          << g.forma << " does not analyse back to " << g.analisia;
      forms.insert(g.forma);
    }
    ASSERT_FALSE(forms.empty()) << cls;
    expect_own_forms(net, {forms.begin(), forms.end()});
  }
}

TEST(OwnForm, CompoundGuessesKeepTheirSuffix) {
  const std::string path = kData + "tables/osag0PG.txt";
  tarvola::Sarea net("osag0", path, new tarvola::Taula(path));
  expect_own_forms(net, {"etxetasun", "etxetasunak", "etxetasunarekin", "mendizalea", "mendizaleen",
                         "ikastegira", "ikastegitik", "ikastegiko", "lanerako"});
}

TEST(OwnForm, WordsOfTheConvertedMainNetwork) {
  const std::string path = std::string(TARVOLA_BUILT_DATA_DIR) + "/eumorfoPG.txt";
  if (!std::ifstream(path).good()) GTEST_SKIP() << "needs the built data set: " << path;
  tarvola::Sarea net("eumorfo", path, new tarvola::Taula(path));
  // Forms whose readings begin other readings of the source: bare stems,
  // numbers alone, -ko and -en forms, cases the source extends, finite
  // verbs with and without agreement or a subordinating suffix.
  std::size_t checked = 0;
  expect_own_forms(net,
                   {"etxe", "etxea", "etxeak", "etxetan", "etxean", "etxeko", "etxekoa", "etxera",
                    "etxerako", "etxearen", "etxeen", "euskara", "euskarak", "handi", "handia",
                    "handiago", "handiagoa", "hartu", "hartua", "hartuta", "hartutako", "hartzen",
                    "hartzeko", "da", "den", "dena", "dela", "denean", "zaio", "du", "dio", "gaur",
                    "gaurko", "ni", "nire", "nirea", "hura", "haiek", "zer", "bi", "bat", "bilbo",
                    "aurrera", "aurrerago", "nahiko", "nahikoa", "baitu", "bainaiz", "baikara",
                    "ikustean", "irakurtzerakoan", "2023a", "100ekoa", "hartutakoa",
                    "egindakoekin", "direktorioa", "bistaratzean", "Rijkaard"},
                   &checked);
  EXPECT_GT(checked, 60u);
  // Forms the data build derives or adds: each is read, and as what it is.
  for (const char* word : {"baitu", "bainaiz", "baikara", "ikustean", "irakurtzerakoan", "2023a",
                           "hartutakoa", "direktorioa", "bistaratzean", "ekaitzaldia", "deabrutxoak",
                           "esklusiboki", "handienetakoa", "ospetsuenak"})
    EXPECT_FALSE(net.taula->analizatuTokena(word).empty()) << word;
  EXPECT_TRUE(net.taula->analizatuTokena("baidu").empty());

  // The first distinct words of the corpus written in lower case.
  std::vector<std::string> words = tarvola::testing::corpus_words("eu-news.cp1252.txt", 2000);
  if (words.empty()) GTEST_SKIP() << "corpus not found";
  words.erase(std::remove_if(words.begin(), words.end(),
                             [](const std::string& w) { return w != tarvola::latin1::lowered(w); }),
              words.end());
  checked = 0;
  expect_own_forms(net, words, &checked);
  EXPECT_GT(checked, 1000u);
}

TEST_F(HpTable, EndingsOfEachKind) {
  // Class, ending, tags after the class, and whether the class has that form.
  struct Row {
    const char* cls;
    const char* ending;
    const char* tags;
    bool present;
  } rows[] = {
      // Common nouns link by their final letter: etxe (vowel), neska (organic
      // a: neska / plural stem nesk-), lagun (consonant), txakur (r doubled
      // before a vowel: txakurr-).
      {"<hp1>", "a", "<NUMS><ABS>", true}, {"<hp1>", "ak", "<NUMP><ABS>", true},
      {"<hp1>", "an", "<NUMS><INE>", true}, {"<hp1>", "tan", "<MG><INE>", true},
      {"<hp1>", "etan", "<NUMP><INE>", true}, {"<hp1>", "ri", "<MG><DAT>", true},
      {"<hp3>", "", "<NUMS><ABS>", true}, {"<hp3>", "n", "<NUMS><INE>", true},
      {"<hp2>", "ei", "<NUMP><DAT>", true}, {"<hp4>", "ari", "<NUMS><DAT>", true},
      {"<hp4>", "ean", "<NUMS><INE>", true}, {"<hp4>", "ik", "<MG><PAR><BUK>", true},
      {"<hp5>", "a", "<NUMS><ABS>", true},
      {"<hp5>", "", "<MG><ABS>", false},  // txakurr alone is no word
      {"<hp6>", "", "<MG><ABS>", true},
      // Proper nouns take no article.
      {"<hp12>", "n", "<MG><INE>", true}, {"<hp12>", "tik", "<MG><ABL><BUK>", true},  // Bilbon, Bilbotik
      {"<hp13>", "en", "<MG><INE>", true}, {"<hp13>", "ko", "<MG><GEL><MG><ABS>", true},  // Parisen, Parisko
      {"<hp25>", "dik", "<MG><ABL><BUK>", true}, {"<hp25>", "go", "<MG><GEL><MG><ABS>", true},  // Madrildik, Madrilgo
      {"<hp18>", "tik", "<MG><ABL><BUK>", true}, {"<hp19>", "era", "<MG><ALA><BUK>", true},  // Zarauztik, Zarautzera
      {"<hp8>", "rengana", "<MG><ALA><BUK>", true},  // Anerengana
      {"<hp12>", "a", "<NUMS><ABS>", false},
      // Verb forms follow the participle.
      {"<hp21>", "ko", "<GERO>", true}, {"<hp22>", "go", "<GERO>", true},  // hartuko, egingo
      {"<hp23>", "da", "<MOD><BUK>", true}, {"<hp20>", "n", "<EZBU><BUK>", true},  // hilda, egiten
      {"<hp20>", "ko", "<MG><GEL><MG><ABS>", true}, {"<hp24>", "", "", true},  // egiteko, har
      {"<hp21>", "", "<BUK>", true}, {"<hp21>", "tako", "<MOD><MG><GEL><MG><ABS>", true},  // hartu, hartutako
  };
  for (const Row& r : rows) EXPECT_EQ(has(r.cls, r.ending, r.tags), r.present) << r.cls << r.ending << " " << r.tags;
}

TEST_F(HpTable, CommonNounsHaveEveryCaseInEveryNumber) {
  // The classes a common noun gets by its final letter (the personal
  // dictionary adds each group together): the union of their forms must
  // hold every case in the indefinite, the singular and the plural; the
  // partitive exists only without number.
  const std::vector<std::vector<std::string>> kinds = {
      {"<hp1>"}, {"<hp3>", "<hp2>"}, {"<hp4>"}, {"<hp6>", "<hp5>"}};
  // Each case with its closing: -ko and -en are declined again, so bare
  // they are the indefinite absolutive; the cases the main network extends
  // (etxerako, etxekiko) are closed with <BUK>.
  const char* cases[] = {"<ABS>",          "<ERG>",      "<DAT>",      "<GEN><MG><ABS>", "<SOZ><BUK>",
                         "<DES><BUK>",     "<INS><BUK>", "<INE>",      "<ALA><BUK>",     "<ABL><BUK>",
                         "<GEL><MG><ABS>", "<PAR><BUK>", "<MOT><BUK>"};
  for (const auto& kind : kinds) {
    std::set<std::string> tags;
    for (const auto& cls : kind)
      for (const auto& a : table->sortuFormak(cls, "", false, false)) tags.insert(a.analisia.substr(cls.size()));
    for (const char* number : {"<MG>", "<NUMS>", "<NUMP>"})
      for (const char* c : cases) {
        const std::string want = std::string(number) + c;
        bool partitive = std::string(c) == "<PAR><BUK>";
        EXPECT_EQ(tags.count(want), partitive && std::string(number) != "<MG>" ? 0u : 1u)
            << kind.front() << " " << want;
      }
  }
}

TEST(CorrectionsTable, StandardFormsGetNoReadingInAnyCase) {
  tarvola::Taula table(kCorrections);
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
  tarvola::Sarea net("zuzenketak", kCorrections, new tarvola::Taula(kCorrections));
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

// Guessed proper nouns (osag0): a capitalised word nothing knows, and a name
// with an ending after a hyphen, read as guesses that soften the verdict but
// never make a word valid.
TEST(GuessedNames, ReadInTextNeverValid) {
  tarvola::testing::TempDir dir;
  std::string conf;
  for (const char* file : {"demo/eumorfoPG.txt", "tables/hpPG.txt", "tables/osag0PG.txt",
                           "tables/zuzenketakPG.txt"})
    conf += kData + file + "\n";
  tarvola::Tarvola engine(dir.write("tarvola.conf", conf));

  // Names, a hyphen's ending, an ending after a title's closing quote.
  const std::string doc =
      engine.getParagrafoaBrindel("Gaur Xabierrek eta Euspot-eko \"Hitzokei\"n etxia.", false);
  for (const char* ok : {"Xabierrek", "Euspot-eko", "n"})
    EXPECT_NE(doc.find(std::string("<frm>") + ok + "</frm>\n\t<prop k=\"ok\"/>"), std::string::npos) << ok << doc;
  EXPECT_NE(doc.find("<frm>etxia</frm>\n\t<prop k=\"ezz\""), std::string::npos) << doc;

  const auto readings = engine.analizatuTokena("Xabierrek", "osag0");
  ASSERT_FALSE(readings.empty());
  for (const auto& r : readings) EXPECT_NE(r.etiketa.find("ASMATUA"), std::string::npos) << r.analisia;
  EXPECT_TRUE(engine.analizatuTokena("xabierrek", "osag0").empty());  // lower case: no name
  for (const char* word : {"Xabierrek", "n", "ren"}) EXPECT_FALSE(engine.isValid(word, false)) << word;
  EXPECT_FALSE(engine.isValid("Xabierrek", true));
}

