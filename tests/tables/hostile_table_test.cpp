// Tables a converter got wrong must not stall the caller: a chain of doubled
// epsilon arcs has exponentially many paths, and each lookup or generation
// gives up after its step budget, keeping what it found first.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/test_files.h"
#include "tarvola/tables/Taula.h"

namespace tarvola {
namespace {

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
  // Many walks in a row: with a budget sized for real tables this is quick;
  // an unbounded or oversized budget makes the suite crawl.
  for (int i = 0; i < 10; ++i) {
    std::vector<Analisia> found = table.analizatuTokena("etxea");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].analisia, "etxe<IZE>");
    EXPECT_TRUE(table.analizatuTokena("z").empty());
    EXPECT_TRUE(table.sortuFormak("z", "<IZE>", false, false).empty());
  }
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
  for (int i = 0; i < 10; ++i) {
    EXPECT_TRUE(table.analizatuTokena("z").empty());
    EXPECT_TRUE(table.sortuFormak("z", "<IZE>", true, false).empty());
  }
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

}  // namespace
}  // namespace tarvola
