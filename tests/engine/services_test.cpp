// The engine's services (generation, validity, suggestions, the correction
// document) over small tables written for the test: a main network
// "eumorfo", the personal dictionary's network "hp" and the compound
// network "osag0", plus a personal dictionary file that knows "kuku".
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/chain_tables.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/engine/suggestion_candidates.h"

namespace tarvola {
namespace {

using testing::chain_table;
using testing::forms;
using testing::TempDir;
using Words = std::vector<std::string>;

// Network name -> table paths (chain_tables.h).
using NetworkPaths = std::map<std::string, std::vector<std::string>>;

// Writes the tables, the configuration and (when given) the dictionary
// into dir and builds an engine over them.
std::unique_ptr<Tarvola> make_engine(const TempDir& dir, const NetworkPaths& networks,
                                     const std::string& dictionary = "") {
  std::string config;
  for (const auto& [name, paths] : networks) config += dir.write(name + ".txt", chain_table(paths)) + "\n";
  const std::string config_path = dir.write("sareak.txt", config);
  if (dictionary.empty()) return std::make_unique<Tarvola>(config_path);
  return std::make_unique<Tarvola>(config_path, dir.write("hiztegia.txt", dictionary));
}

NetworkPaths service_networks() {
  return {{"eumorfo",
           {"e t x e <IZE>:<> <ARR>:<>",
            "e t x e <IZE>:<> <ARR>:<> <ABS>:<> <NUMS>:<> <MUGM>:a",
            // Non-standard: "etxia" is better written "etxea".
            "e t x i <IZE>:<> <ARR>:<> <ABS>:<> <NUMS>:<> <MUGM>:a [h=etxe]:<>",
            "o n a <ADJ>:<>", ". <PUN>:<>", "k a k a <IZE>:<> <MAT>:<>", "z a h a r k i <ADJ>:<> <Rare>:<>",
            "k a l e a <IZE>:<> <EZZG>:<>", "k a l e z <IZE>:<> <EZZG>:<>", "k a l e z <ADJ>:<> <EZZG>:<>",
            // Multi-word readings, the only ones a text with a trailing blank begins.
            "h i t z \\s e g i n <ADI>:<>",
            "h i t z \\s j a r i o <IZE>:<> [e=berbaldi]:<>",
            // Usual rather than standard, replaced by a lemma no table knows.
            "o r d e n a d o r e <IZE>:<> <ARR>:<> <ABS>:<> <NUMS>:<> <MUGM>:a [e=konputagailu]:<>",
            "B:b i l b o <IZE>:<> <LIB>:<>"}},
          // Endings of two paradigm classes, behind their class symbols.
          {"hp", {"<hp1>", "<hp1> <ABS>:<> <NUMS>:<> <MUGM>:a", "<hp4> <ABS>:<> <NUMS>:<> <MUGM>:a"}},
          {"osag0", {"l u r j a b e <IZE>:<> <Rare>:<>", "l u r b i d e <IZE>:<>"}}};
}

// A fresh engine over those networks for each test.
class ServiceTest : public ::testing::Test {
 protected:
  TempDir dir_;
  std::unique_ptr<Tarvola> engine_ = make_engine(dir_, service_networks(), "kuku\t<ARR>\t\t\tHP\n");
};

using Generation = ServiceTest;

TEST_F(Generation, KnownLemma) {
  const std::vector<Analisia> etxe = engine_->sortuFormak("etxe", "<ARR>");
  EXPECT_EQ(forms(etxe), (Words{"etxe", "etxea"}));
  EXPECT_EQ(etxe[1].analisia, "etxe<IZE><ARR><ABS><NUMS><MUGM>");
  EXPECT_EQ(etxe[1].sarea, "eumorfo");
  // Tags that no reading holds: nothing, and no unknown-lemma attempt.
  EXPECT_TRUE(engine_->sortuFormak("etxe", "<ERG>").empty());
  // The reading is cut after the first occurrence of the tags: "etx".
  EXPECT_EQ(forms(engine_->sortuFormak("etxe", "x")), (Words{"etxe", "etxea", "etxia"}));
  // Without tags: every form, generated from nothing.
  const Words all = forms(engine_->sortuFormak("etxe", ""));
  ASSERT_GE(all.size(), 4u);
  EXPECT_EQ(Words(all.begin(), all.begin() + 4), (Words{"etxe", "etxea", "etxia", "ona"}));
  for (const std::string& form : all) EXPECT_NE(form, "zaharki");  // rare readings stop the walk
}

TEST_F(Generation, UnknownLemmaThroughThrowAwayDictionary) {
  // "kuku" is in the personal dictionary, but only the main network makes
  // a lemma known.
  const std::vector<Analisia> kuku = engine_->sortuFormak("kuku", "<ARR>");
  ASSERT_EQ(forms(kuku), (Words{"kuku", "kukua"}));
  EXPECT_EQ(kuku[1].analisia, "kuku<IZE><ARR><hp1><ABS><NUMS><MUGM>");
  EXPECT_EQ(kuku[1].sarea, "HP");
  EXPECT_EQ(kuku[1].etiketa, " IZE ARR ABS NUMS MUGM");
  EXPECT_EQ(forms(engine_->sortuFormak("zorion", "<ARR>")), Words{"zoriona"});
  EXPECT_TRUE(engine_->sortuFormak("kuku", "<XYZ>").empty());
  EXPECT_TRUE(engine_->sortuFormak("kuku", "<arr>").empty());
  // The throw-away dictionary leaves the engine's own alone.
  EXPECT_FALSE(engine_->isValid("zoriona", false));
}

TEST(GenerationCut, FormShorterThanClassSymbolThrows) {
  TempDir dir;
  auto engine = make_engine(dir, {{"eumorfo", {"e t x e <IZE>:<>"}}, {"hp", {"<hp1>:h <ABS>:<>"}}});
  EXPECT_THROW(engine->sortuFormak("kuku", "<ARR>"), std::out_of_range);
}

using Validity = ServiceTest;

// isValid of a word, or of a text's first sentence; with the prefix flag a
// word is also valid when a longer entry of the main network begins with it.
TEST_F(Validity, WordsAndFirstSentences) {
  struct Row {
    const char* text;
    bool prefix;
    bool valid;
  } rows[] = {
      {"etxea", false, true}, {"ETXEA", false, true}, {"Bilbo", false, true}, {"bilbo", false, false},
      {"kaka", false, false},     // "MAT" only
      {"zaharki", false, true},   // "Rare" from the main network
      {"lurjabe", false, false},  // "Rare" from "osag0"
      {"lurbide", false, true},   {"xyz", true, false}, {"", false, false}, {"", true, false},
      {"kalea", false, true},     // "EZZG" counts for a word
      {"hitz", false, false}, {"hitz", true, true}, {"HITZ", true, true}, {"hitzz", true, false},
      {"etxea ona", false, true},
      {"kalea ona", true, false},   // sole reading non-standard
      {"kalez ona", false, true},   // two non-standard readings
      {"xyzw ona", false, false},   // the unknown-word fallback
      {"etxea-", false, false},     // the hyphen itself is unknown
      {"Etxea ona. Kalea ona", false, true}, {"Kalea ona. Etxea ona", false, false}, {"   ", false, true},
  };
  for (const Row& r : rows) EXPECT_EQ(engine_->isValid(r.text, r.prefix), r.valid) << r.text << " " << r.prefix;
}

TEST_F(Validity, PersonalDictionaryWords) {
  EXPECT_TRUE(engine_->isValid("kukua", false));
  EXPECT_TRUE(engine_->isValid("kuku", true));
  // The same engine without the dictionary file does not know them.
  TempDir other;
  auto plain = make_engine(other, service_networks());
  EXPECT_FALSE(plain->isValid("kukua", false));
}

TEST_F(Validity, PrefixSearch) {
  EXPECT_EQ(forms(engine_->bilatuHasiera("hitz ", false)), (Words{"hitz egin", "hitz jario"}));
  // "hitz jario" is only a usual form: re-analysed, it carries "[e=".
  const std::vector<Analisia> standard = engine_->bilatuHasiera("hitz ", true);
  ASSERT_EQ(forms(standard), Words{"hitz egin"});
  EXPECT_EQ(standard[0].analisia, "hitz egin<ADI>");
  EXPECT_TRUE(engine_->bilatuHasiera("hitza ", true).empty());
}

TEST(ValidityWithoutNetworks, MissingNetworksGiveNoAnswerAndNoEntry) {
  TempDir dir;
  auto engine = make_engine(dir, {{"osag0", {"l u r b i d e <IZE>:<>"}}});
  EXPECT_TRUE(engine->isValid("lurbide", true));
  EXPECT_FALSE(engine->isValid("lur", true));  // no "eumorfo" to search
  EXPECT_TRUE(engine->bilatuHasiera("lur", false).empty());
  EXPECT_TRUE(engine->sortuFormak("lurbide", "<IZE>").empty());  // neither "eumorfo" nor "hp"
  EXPECT_EQ(engine->lortu_ezzg_proposamenak("lurbida"), Words{"lurbide"});
  // Nothing was added to the map: a walk over it still works.
  EXPECT_EQ(engine->analizatuTokena("lurbide").size(), 1u);
}

bool has(const Words& list, const std::string& word) {
  return std::find(list.begin(), list.end(), word) != list.end();
}

TEST(SuggestionCandidates, CapitalisedAndSwapped) {
  EXPECT_EQ(engine::capitalised_candidates("bilbo"), Words{"Bilbo"});
  EXPECT_EQ(engine::capitalised_candidates("BILBO"), Words{"Bilbo"});
  EXPECT_TRUE(engine::capitalised_candidates("Bilbo").empty());  // the word itself
  EXPECT_TRUE(engine::capitalised_candidates("ez").empty());     // too short
  EXPECT_EQ(engine::swapped_candidates("etxae"), (Words{"texae", "extae", "etaxe", "etxea"}));
  EXPECT_EQ(engine::swapped_candidates("aab"), Words{"aba"});
  EXPECT_TRUE(engine::swapped_candidates("a").empty());
}

TEST(SuggestionCandidates, LetterGroups) {
  const Words etsea = engine::letter_group_candidates("etsea");
  EXPECT_TRUE(has(etsea, "etxea"));
  EXPECT_TRUE(has(etsea, "etzea"));
  EXPECT_TRUE(has(etsea, "esea"));  // "ts" written for "s"
  EXPECT_EQ(std::count(etsea.begin(), etsea.end(), "etzea"), 1);
  // word, candidate: each letter group both ways, capitals kept.
  const char* const rows[][2] = {
      {"ona", "hona"},         {"Hona", "Ona"},           {"ETSEA", "ETXEA"},
      {"Chakurra", "Txakurra"}, {"ba\xF1" "a", "baina"},   {"kanpa\xF1" "a", "kanpaina"},
      {"campo", "kampo"},      {"kampo", "kanpo"},        {"etxia", "etxea"},
  };
  for (const auto& r : rows) EXPECT_TRUE(has(engine::letter_group_candidates(r[0]), r[1])) << r[0];
  EXPECT_FALSE(has(engine::letter_group_candidates("txakur"), "htxakur"));  // h only before a vowel
  EXPECT_TRUE(engine::letter_group_candidates("").empty());
}

TEST(SuggestionCandidates, OneLetterBlankAndReplaced) {
  // Insertions first, then deletions (one for a doubled letter).
  const Words aa = engine::one_letter_candidates("aa");
  EXPECT_EQ(aa.front(), "aaa");
  EXPECT_EQ(std::count(aa.begin(), aa.end(), "aaa"), 1);
  EXPECT_EQ(std::count(aa.begin(), aa.end(), "a"), 1);
  EXPECT_TRUE(std::find(aa.begin(), aa.end(), "haa") < std::find(aa.begin(), aa.end(), "a"));
  EXPECT_TRUE(has(engine::one_letter_candidates("ETXA"), "ETXEA"));
  EXPECT_TRUE(has(engine::one_letter_candidates("Txa"), "Txea"));
  // A mistyped letter, after every deletion and insertion, and in the case
  // of the letter it replaces.
  const Words etxia = engine::one_letter_candidates("Etxia");
  const auto replaced = std::find(etxia.begin(), etxia.end(), "Etxea");
  ASSERT_NE(replaced, etxia.end());
  EXPECT_TRUE(std::find(etxia.begin(), etxia.end(), "Etxiak") < replaced);
  EXPECT_TRUE(has(etxia, "Atxia"));

  const std::vector<engine::BlankSplit> splits = engine::blank_candidates("abcde");
  ASSERT_EQ(splits.size(), 2u);
  EXPECT_EQ(splits[0].left + "|" + splits[0].right, "ab|cde");
  EXPECT_EQ(splits[1].left + "|" + splits[1].right, "abc|de");
  EXPECT_TRUE(engine::blank_candidates("abc").empty());

  EXPECT_EQ(engine::replaced_candidates("abc").size(), 3u * 26 - 3);
  EXPECT_EQ(engine::replaced_candidates("xbc").front(), "abc");
  EXPECT_TRUE(engine::replaced_candidates("ab").empty());
}

using Suggestions = ServiceTest;

// The first level that finds a valid word answers; what the broad levels
// find is ranked and kept.
TEST_F(Suggestions, LevelsInOrder) {
  const std::pair<std::string, Words> rows[] = {
      {"bilbo", {"Bilbo"}},
      // "etxe" (one letter less) is valid too, but the swap already answered.
      {"etxae", {"etxea"}}, {"etsea", {"etxea"}}, {"hona", {"ona"}},
      {"etxeaa", {"etxea"}}, {"etxeaona", {"etxea ona"}},
      // A non-standard word is still a word: "etxia" is offered beside "etxea".
      {"etxqa", {"etxea", "etxia"}}, {"qqqqqqq", {}}, {"", {}},
      // Longer than any token: no search at all (it would grow quadratically).
      {"etxae" + std::string(100, 'a'), {}},
  };
  for (const auto& [word, expected] : rows) EXPECT_EQ(engine_->lortu_ezzg_proposamenak(word), expected) << word;
}

TEST(SuggestionLimit, AtMostFiveFromTheBroadLevels) {
  TempDir dir;
  std::vector<std::string> words;
  for (const char* w : {"bbc", "abc", "ebc", "ibc", "obc", "ubc"}) words.push_back(testing::word_path(w));
  auto engine = make_engine(dir, {{"eumorfo", words}});
  EXPECT_EQ(engine->lortu_ezzg_proposamenak("xbc"), (Words{"abc", "ebc", "ibc", "obc", "ubc"}));
}

using Brindel = ServiceTest;

// The document frame and its markup are the writer's own tests
// (output/writers_test.cpp); here, what the engine hands it.
TEST_F(Brindel, EmptyTextHasOneEmptySentence) {
  EXPECT_EQ(engine_->getParagrafoaBrindel("", true), "<p>\n<es ezk=\"1\" pzk=\"0\">\n</es>\n</p>\n");
}

// The verdict lines of one-token texts: the engine's own services wired in.
TEST_F(Brindel, Verdicts) {
  struct Row {
    const char* text;
    bool proposamenak;
    const char* verdict;
  } rows[] = {
      // Generation also accepts the path that stops short of the tags ("etxe").
      {"Etxia", false, "\n\t<prop>\n\t\t<hobe>Etxe</hobe>\n\t\t<hobe>Etxea</hobe>\n\t</prop>"},
      // The main network cannot inflect "konputagailu": the personal
      // dictionary's classes give the form with the reading's tags.
      {"ordenadorea", false, "\n\t<prop>\n\t\t<erabili>konputagailua</erabili>\n\t</prop>"},
      {"hitz", false, "\n\t<prop k=\"ezz\" h=\"bai\">\n\t\t<sugg>hitz egin</sugg>\n\t</prop>"},
      {"etxae", false, "\n\t<prop k=\"ezz\"/>"},
      {"etxae", true, "\n\t<prop k=\"ezz\">\n\t\t<sugg>etxea</sugg>\n\t</prop>"},
  };
  for (const Row& r : rows) {
    const std::string doc = engine_->getParagrafoaBrindel(r.text, r.proposamenak);
    const std::size_t begin = doc.find("</frm>") + 6;
    EXPECT_EQ(doc.substr(begin, doc.find("\n</tok>") - begin), r.verdict) << r.text;
  }
}

}  // namespace
}  // namespace tarvola
