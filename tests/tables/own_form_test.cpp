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
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "../../data/tools/corpus_words.h"
#include "tarvola/analysis/Analisia.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"
#include "tarvola/tables/Taula.h"
#include "support/test_files.h"

namespace {

const std::string kData = std::string(TARVOLA_TEST_DATA_DIR) + "/../../data/";

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
  const std::string path = kData + "built/eumorfoPG.txt";
  if (!std::ifstream(path).good()) GTEST_SKIP() << "needs data/built (sh data/build-data.sh)";
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
                    "aurrera", "aurrerago", "nahiko", "nahikoa"},
                   &checked);
  EXPECT_GT(checked, 60u);

  // The first distinct words of the corpus written in lower case.
  const std::string corpus = tarvola::testing::corpus_path("eu-news.cp1252.txt");
  if (!std::ifstream(corpus).good()) GTEST_SKIP() << "corpus not found: " << corpus;
  std::set<std::string> seen;
  std::vector<std::string> words;
  std::ifstream in(corpus);
  for (std::string line; std::getline(in, line) && words.size() < 1500;)
    tarvola_data::for_each_word(line, [&](const std::string& w) {
      if (w == tarvola::latin1::lowered(w) && seen.insert(w).second) words.push_back(w);
    });
  checked = 0;
  expect_own_forms(net, words, &checked);
  EXPECT_GT(checked, 1000u);
}
