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

}  // namespace
}  // namespace tarvola
