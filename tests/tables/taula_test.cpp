// Walks over a Taula: lookup, generation, what bounds them on hostile
// tables, the compact index checked against the walk over the states, and
// the readings kept by word.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "support/chain_tables.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/cipher.h"
#include "tarvola/tables/internal/compact_table.h"
#include "tarvola/tables/internal/taula_access.h"

namespace tarvola {
namespace {

using testing::forms;
using testing::hand_table;
using Strings = std::vector<std::string>;

// "lemma capitals network" of each reading: the capital kind comes from the
// token. Every lookup is made twice: the repeat, answered from the readings
// the table keeps by word, must be exactly the first.
Strings capitals(const Taula& t, const std::string& word) {
  Strings out, again;
  for (const Analisia& a : t.analizatuTokena(word))
    out.push_back(a.lema + " " + std::to_string(a.maiuskulaMota) + " " + a.sarea);
  for (const Analisia& a : t.analizatuTokena(word))
    again.push_back(a.lema + " " + std::to_string(a.maiuskulaMota) + " " + a.sarea);
  EXPECT_EQ(again, out) << word;
  return out;
}

Strings readings(const Taula& t, const std::string& word) {
  capitals(t, word);
  return testing::analyses(t.analizatuTokena(word));
}

class NounsTable : public ::testing::Test {
 protected:
  Taula nouns_{testing::data_path("tables/nouns.txt")};
};

TEST_F(NounsTable, ReadingsInFileOrder) {
  EXPECT_EQ(nouns_.egoerak.size(), 28u);
  EXPECT_EQ(readings(nouns_, "etxea"), Strings{"etxe<IZE><ARR><ABS><NUMS><MUGM>"});
  EXPECT_EQ(readings(nouns_, "etxeak"),
            (Strings{"etxe<IZE><ARR><ABS><NUMP><MUGM>", "etxe<IZE><ARR><ERG><NUMS><MUGM>"}));
  EXPECT_TRUE(readings(nouns_, "etxe").empty());
  EXPECT_TRUE(readings(nouns_, "etxeakk").empty());
  EXPECT_TRUE(readings(nouns_, "").empty());
}

TEST_F(NounsTable, CapitalisationKindsAndProperNouns) {
  EXPECT_EQ(capitals(nouns_, "etxea"), Strings{"etxe 0 "});
  EXPECT_EQ(capitals(nouns_, "Etxea"), Strings{"etxe 1 "});
  EXPECT_EQ(capitals(nouns_, "ETXEA"), Strings{"etxe 2 "});
  EXPECT_TRUE(readings(nouns_, "bilbo").empty());  // lower-case word, capital reading
  EXPECT_EQ(readings(nouns_, "Bilbo"), Strings{"Bilbo<IZE><LIB><ABS>"});
  EXPECT_EQ(capitals(nouns_, "BILBO"), Strings{"Bilbo 2 "});
  // A word already looked up follows a change of the network's name.
  nouns_.sareaIzena = "izenak";
  EXPECT_EQ(capitals(nouns_, "etxea"), Strings{"etxe 0 izenak"});
  EXPECT_EQ(readings(nouns_, "etab."), Strings{"etab.<SNB>"});
  EXPECT_TRUE(readings(nouns_, "Etab.").empty());  // must be written as its lemma
}

TEST_F(NounsTable, EncipheredCopyReadsTheSame) {
  testing::TempDir dir;
  std::string plain = testing::read_file(testing::data_path("tables/nouns.txt"));
  Taula enciphered(dir.write("nounsSARE8.bin", cipher::encipher(plain)));
  ASSERT_EQ(enciphered.egoerak.size(), nouns_.egoerak.size());
  for (const char* word : {"etxea", "etxeak", "Bilbo", "etab."})
    EXPECT_EQ(readings(enciphered, word), readings(nouns_, word)) << word;
  // "SARE8" anywhere in the path selects the enciphered form.
  std::filesystem::create_directory(dir.file("SARE8"));
  Taula in_folder(dir.write("SARE8/nouns.bin", cipher::encipher(plain)));
  EXPECT_EQ(readings(in_folder, "etxea"), readings(nouns_, "etxea"));
}

// Small tables built arc by arc, one row per rule of the walk.
TEST(TaulaLookup, WalkRules) {
  // A mark naming the whole word drops its reading; the others stay.
  auto found = hand_table({"0 e 1", "1 t 2", "2 x 3", "3 e 4", "4 a 5", "5 [e=etxea]:_ 6",
                           "5 [h=etx]:_ 6", "5 [s=etxe]:_ 6", "6 <IZE>:_ 7", "final 7"}, 8)
                   .analizatuTokena("etxea");
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].h_balioa, "etx");
  EXPECT_EQ(found[1].s_balioa, "etxe");
  // A single capital on the output side is cut for a lower-case word.
  Taula capital = hand_table({"0 A:a 1", "0 a 1", "1 b 2", "2 <IZE>:_ 3", "final 3"}, 4);
  EXPECT_EQ(readings(capital, "ab"), Strings{"ab<IZE>"});
  EXPECT_EQ(readings(capital, "Ab"), (Strings{"Ab<IZE>", "ab<IZE>"}));
  // Exception readings (<PSP>) are filtered.
  EXPECT_EQ(readings(hand_table({"0 b 1", "1 a 2", "2 t 3", "3 <IZE>:_ 4", "4 <PSP>:_ 5",
                                 "final 5", "3 <ADJ>:_ 5"}, 6), "bat"),
            Strings{"bat<ADJ>"});
  // Duplicate paths both appear.
  EXPECT_EQ(readings(hand_table({"0 a 1", "0 a 1", "1 <X>:_ 2", "final 2"}, 3), "a").size(), 2u);
}

TEST(TaulaLookup, UndefinedTablesStillEnd) {
  // Arcs past the last state are skipped; epsilon cycles are not followed
  // round. (IndexDifferential holds the indexed walk to the same on such tables.)
  Taula t = hand_table({"0 a 9", "0 a 1", "1 <X>:_ 2", "2 <Y>:_ 1", "2 _:_ 1", "final 2"}, 3);
  t.egoerak.resize(3);
  EXPECT_EQ(readings(t, "a"), Strings{"a<X>"});  // the index walk agrees: IndexDifferential
}

TEST(TaulaLookup, LongWordsAreWalkedOnTheirFirst999Bytes) {
  Taula t = hand_table({"0 _:a 0", "0 <W>:_ 1", "final 1"}, 2);
  EXPECT_EQ(readings(t, std::string(999, 'a')).size(), 1u);
  EXPECT_EQ(readings(t, std::string(5000, 'a')).size(), 1u);
  EXPECT_EQ(readings(t, std::string("aa\0b", 4)).size(), 1u);  // a zero byte ends the word
}

TEST(TaulaLookup, CopiesShareStatesAndEditingDropsTheIndex) {
  auto* original = new Taula(testing::data_path("tables/nouns.txt"));
  Taula copy(*original);
  Taula assigned;
  assigned = copy;
  delete original;
  EXPECT_EQ(readings(copy, "etxea").size(), 1u);
  EXPECT_EQ(readings(assigned, "etxeak").size(), 2u);

  // A changed table is walked afresh: nothing found (or not found) before
  // is served.
  Taula edited(testing::data_path("tables/nouns.txt"));
  EXPECT_TRUE(internal::TaulaAccess::indexed(edited));
  EXPECT_TRUE(readings(edited, "ztxea").empty());
  edited.addZubiaTaulan(0, false, new Zubia(1, "e", "z"));
  EXPECT_FALSE(internal::TaulaAccess::indexed(edited));
  EXPECT_EQ(readings(edited, "ztxea"), Strings{"etxe<IZE><ARR><ABS><NUMS><MUGM>"});
}

TEST(TaulaPrint, Texts) {
  EXPECT_EQ(Zubia(3, "a", "b").toString(),
            "\n   - hurrengo_egoera: 3\n   - goiko_ikurra: a\n   - beheko_ikurra: b\n");
  Taula t = hand_table({"0 a:b 1", "final 1"}, 2);
  ::testing::internal::CaptureStdout();
  t.printTaula();
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            "Guztira 2 egoera\n\n\nfinal: 0, zubiak: 1\n  1. zubia:\n   - hurrengo_egoera: 1"
            "\n   - goiko_ikurra: a\n   - beheko_ikurra: b\n\n\nfinal: 1, zubiak: 1\n  1. zubia:"
            "\n   - hurrengo_egoera: -1\n   - goiko_ikurra: \n   - beheko_ikurra: \n");
  EXPECT_TRUE(t.egoerak[0]->hasZubia("b"));
  EXPECT_FALSE(t.egoerak[0]->hasZubia("a"));
}

Taula nouns() { return Taula(testing::data_path("tables/nouns.txt")); }

TEST(TaulaGenerate, ExactAndPrefixTargets) {
  Taula t = nouns();
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<IZE><ARR><ABS><NUMP><MUGM>", false, false)), Strings{"etxeak"});
  // A target that stops short accepts every longer path that agrees with it.
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<IZE><ARR><ABS>", false, false)), (Strings{"etxea", "etxeak"}));
  // "<>" pieces in the tags are removed before the walk.
  EXPECT_EQ(forms(t.sortuFormak("etxe", "<><IZE><<>><ARR><ERG>", false, true)), Strings{"etxeak"});
  EXPECT_TRUE(t.sortuFormak("etxe", "<IZE><ADJ>", false, false).empty());
  auto readings = t.sortuFormak("etxe", "<IZE><ARR><ERG>", false, false);
  ASSERT_EQ(readings.size(), 1u);
  EXPECT_EQ(readings[0].analisia, "etxe<IZE><ARR><ERG><NUMS><MUGM>");
  EXPECT_EQ(readings[0].etiketa, " IZE ARR ERG NUMS MUGM");
  // The prefix flag stops at the first tag.
  auto found = t.sortuFormak("et", "", true, false);
  ASSERT_EQ(forms(found), (Strings{"etxe", "etab."}));
  EXPECT_EQ(found[0].analisia, "etxe<IZE>");
  // Capitals of the lemma are copied; the reading names the table's network.
  t.sareaIzena = "proba";
  found = t.sortuFormak("Bilbo", "<IZE><LIB><ABS>", false, false);
  ASSERT_EQ(forms(found), Strings{"Bilbo"});
  EXPECT_EQ(found[0].sarea, "proba");
}

TEST(TaulaGenerate, ClassTagsStopMarksAndSilentCycles) {
  // "<0x>" and "<1y>" are walked over unspelled; "<Rare>" ends the path.
  Taula t = testing::hand_table({"0 a 1", "1 <0x>:_ 2", "2 <1y>:b 3", "3 <N>:_ 4", "3 <Rare>:_ 5",
                                 "final 4", "final 5"}, 6);
  EXPECT_EQ(forms(t.sortuFormak("a", "<N>", false, false)), Strings{"ab"});
  EXPECT_TRUE(t.sortuFormak("a", "<Rare>", false, false).empty());
  Taula cycle = testing::hand_table({"0 a 1", "1 _:x 2", "2 _:y 1", "final 2"}, 3);
  cycle.egoerak[2]->final = false;  // the end arc alone, without the flag, ends a path
  EXPECT_EQ(forms(cycle.sortuFormak("a", "", false, false)), Strings{"ax"});
}

TEST(SareaReplace, AlternativesAndCapitals) {
  Sarea net("eumorfo", "nouns.txt", new Taula(testing::data_path("tables/nouns.txt")));
  EXPECT_EQ(net.taula->sareaIzena, "eumorfo");
  EXPECT_EQ(net.mota, 5);
  Analisia reading("etxe<IZE><ARR><ABS><NUMP><MUGM>[e=x]", "eumorfo");
  EXPECT_EQ(forms(net.ordeztuForma("etxe", reading)), Strings{"etxeak"});
  EXPECT_EQ(forms(net.ordeztuForma("Bilbo/etxe", reading)), Strings{"etxeak"});
  reading.maiuskulaMota = 1;
  EXPECT_EQ(forms(net.ordeztuForma("etxe", reading)), Strings{"Etxeak"});
  reading.maiuskulaMota = 2;
  EXPECT_EQ(forms(net.ordeztuForma("etxe/etxe", reading)), (Strings{"ETXEAK", "ETXEAK"}));
  Sarea copy(net);
  Sarea numbers("zenbakiak", "", nullptr);
  EXPECT_EQ(numbers.mota, 7);
  EXPECT_TRUE(numbers.ordeztuForma("bat", reading).empty());
}

// Tables a converter got wrong must not stall the caller: a chain of doubled
// epsilon arcs has exponentially many paths, and each lookup or generation
// gives up after its step budget, keeping what it found first.

// State 0 spells "etxe" to a final state first, then enters a chain of 40
// stages with two epsilon arcs each (2^40 paths) that ends nowhere.
std::string doubling_chain() {
  std::string text = "0\tetxe<IZE>:etxea\t1\nfinal: 1\n0\t<>\t2\n";
  for (int s = 2; s < 42; ++s) {
    const std::string next = std::to_string(s + 1);
    text += std::to_string(s) + "\t<>\t" + next + "\n";
    text += std::to_string(s) + "\t<0x>:<>\t" + next + "\n";
  }
  return text + "42\tz\t43\n";
}

TEST(HostileTable, ExponentialPathsEndWithinTheBudget) {
  testing::TempDir dir;
  const Taula table(dir.write("chain.txt", doubling_chain()));
  std::vector<Analisia> found = table.analizatuTokena("etxea");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].analisia, "etxe<IZE>");
  EXPECT_TRUE(table.analizatuTokena("z").empty());
  EXPECT_TRUE(table.sortuFormak("z", "<IZE>", false, false).empty());
}

TEST(HostileTable, LongEpsilonChainsWithArcsBackEnd) {
  // 3,000 states joined by epsilon arcs, each with twenty epsilon arcs back
  // into the chain: every arc back is refused by the cycle check, which has
  // to look along the whole path so far. The budget counts that work too.
  std::string text;
  for (int s = 0; s < 3000; ++s) {
    text += std::to_string(s) + "\t<>\t" + std::to_string(s + 1) + "\n";
    for (int back = 0; back < 20; ++back)
      text += std::to_string(s) + "\t<>\t" + std::to_string(back * s / 20) + "\n";
  }
  text += "3000\tz\t3001\n";
  testing::TempDir dir;
  const Taula table(dir.write("chain.txt", text));
  EXPECT_TRUE(table.analizatuTokena("z").empty());
  EXPECT_TRUE(table.sortuFormak("z", "<IZE>", true, false).empty());
}

TEST(HostileTable, ALongSpellingRoundACycleIsCappedInTotal) {
  // Every round of the cycle 1 -> 2 -> 1 spells eight more bytes and ends at
  // a final state: about 1,200 readings of up to 10,000 bytes each, 6 MB in
  // all, each to be parsed. The walk keeps the first megabyte or so.
  testing::TempDir dir;
  const Taula table(dir.write("cycle.txt",
                              "0\tetxe\t1\n1\t<IZE>:<>\t2\nfinal: 2\n2\t<A>:a\t1\n"));
  std::vector<Analisia> found = table.sortuFormak("etxe", "<IZE>", false, false);
  ASSERT_FALSE(found.empty());
  EXPECT_EQ(found[0].analisia, "etxe<IZE>");
  EXPECT_EQ(found[0].forma, "etxe");
  std::size_t total = 0;
  for (const Analisia& a : found) total += a.analisia.size() + a.forma.size();
  EXPECT_LT(total, std::size_t{1100} * 1000);
  EXPECT_LT(found.size(), 1000u);
}

TEST(HostileTable, ReadingsOfOneWordAreCapped) {
  // 16 stages of two spellings each: 65,536 readings of "etxea", each of
  // which would be parsed into a record.
  std::string text = "0\tetxe<IZE>:etxea\t1\n";
  for (int s = 1; s <= 16; ++s) {
    const std::string next = std::to_string(s + 1);
    text += std::to_string(s) + "\t<A>:<>\t" + next + "\n" + std::to_string(s) + "\t<B>:<>\t" + next + "\n";
  }
  text += "final: 17\n";
  testing::TempDir dir;
  const Taula table(dir.write("many.txt", text));
  std::vector<Analisia> found = table.analizatuTokena("etxea");
  ASSERT_FALSE(found.empty());
  std::string first = "etxe<IZE>";
  for (int s = 1; s <= 16; ++s) first += "<A>";
  EXPECT_EQ(found[0].analisia, first);
  EXPECT_LE(found.size(), 1024u);
  EXPECT_LE(table.sortuFormak("etxe", "<IZE>", false, false).size(), 8192u);
}

// The compact index must give exactly what a walk over the state objects
// gives, readings and order alike, on any table: checked on many small
// random ones (epsilon arcs, letter groups, finals, arcs past the end,
// cycles).
const char* const kLower[] = {"", "", "a", "b", "ab", "ba", "c", "aa", "b"};
const char* const kUpper[] = {"", "a", "b", "<N>", "<0x>", "<1y>", "A", "<>", "<PSP>", "ab"};

// Acyclic tables lead only forward; generation may run past a short target,
// so it is compared on those (a cycle there only ends at the walk's budget).
std::string random_table(std::mt19937& rng, int states, bool acyclic) {
  std::string text;
  std::uniform_int_distribution<int> pick(0, 99);
  for (int s = 0; s < states; ++s) {
    std::uniform_int_distribution<int> state(acyclic ? s + 1 : 0, states);
    int arcs = pick(rng) % 5;
    for (int i = 0; i < arcs; ++i) {
      std::string up = kUpper[pick(rng) % 10], low = kLower[pick(rng) % 9];
      std::string symbol = up == low ? up : up + ":" + (low.empty() ? "<>" : low);
      if (symbol.empty()) symbol = ":<>";
      text += std::to_string(s) + "\t" + symbol + "\t" + std::to_string(state(rng)) + "\n";
      if (pick(rng) < 20) text += "final: " + std::to_string(s) + "\n";
    }
  }
  text += "final: " + std::to_string(states - 1) + "\n";
  return text;
}

std::vector<std::string> generated(const Taula& t, const std::string& target, bool prefix,
                                   bool reference) {
  std::vector<std::string> out;
  for (const Analisia& a : internal::TaulaAccess::generate(t, target, prefix, reference))
    out.push_back(a.analisia + "|" + a.forma);
  return out;
}

TEST(IndexDifferential, RandomTablesAgreeWithTheReferenceWalk) {
  std::mt19937 rng(20261123);
  testing::TempDir dir;
  const char* words[] = {"", "a", "b", "ab", "ba", "abc", "aab", "bab", "Ab", "ABBA", "cab", "abab"};
  const char* targets[] = {"", "a", "ab", "a<N>", "b<N>", "<N>", "aa"};
  int compared = 0;
  for (int round = 0; round < 300; ++round) {
    const bool acyclic = round % 2 == 0;
    std::string path =
        dir.write("t" + std::to_string(round) + ".txt", random_table(rng, 2 + round % 9, acyclic));
    Taula t(path);
    ASSERT_TRUE(internal::TaulaAccess::indexed(t));
    for (const char* w : words) {
      ASSERT_EQ(testing::walked(t, w, false), testing::walked(t, w, true)) << path << " word " << w;
      ++compared;
    }
    if (!acyclic) continue;
    for (const char* target : targets)
      for (bool prefix : {false, true})
        ASSERT_EQ(generated(t, target, prefix, false), generated(t, target, prefix, true))
            << path << " target " << target;
  }
  EXPECT_EQ(compared, 300 * 12);
}

// A multi-word span whose first word and blank no path spells is answered
// without a walk: the answers are still the walk's, in any capitalisation.
TEST(ReadingCache, SpansAsTheWalkFindsThem) {
  testing::TempDir dir;
  Taula t(dir.write("spansPG.txt", testing::chain_table({testing::word_path("hitz egin"),
                                                         testing::word_path("hitz"),
                                                         testing::word_path("etxe")})));
  for (const char* span : {"hitz egin", "Hitz egin", "hitz egin", "hitz ekin", "etxe egin", "hitz egin ",
                           "hitz  egin", "x y"})
    EXPECT_EQ(readings(t, span).size(), testing::walked(t, span, /*reference=*/true).size()) << span;
  EXPECT_EQ(t.analizatuTokena("hitz egin").size(), 1u);
}

TEST(ReadingCache, Bounded) {
  using internal::ReadingCache;
  ReadingCache cache;
  const std::vector<Analisia> none;
  for (int i = 0; i < 40000; ++i) cache.put("w" + std::to_string(i), "n", none);
  EXPECT_LE(cache.size(), ReadingCache::kShards * ReadingCache::kEntriesPerShard);
  cache.put(std::string(ReadingCache::kLongestCachedWord + 1, 'a'), "n", none);
  std::vector<Analisia> out;
  EXPECT_FALSE(cache.find(std::string(ReadingCache::kLongestCachedWord + 1, 'a'), "n", out));
  cache.put("etxe", "n", none);
  EXPECT_TRUE(cache.find("etxe", "n", out));
  EXPECT_FALSE(cache.find("etxe", "m", out));
}

}  // namespace
}  // namespace tarvola
