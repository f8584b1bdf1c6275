// The compact index must give exactly what a walk over the state objects
// gives, readings and order alike, on any table: checked on many small
// random ones (epsilon arcs, letter groups, finals, arcs past the end,
// cycles).
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tarvola/tables/Taula.h"
#include "tarvola/tables/internal/taula_access.h"
#include "support/readings.h"
#include "support/test_files.h"

namespace tarvola {
namespace {

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

}  // namespace
}  // namespace tarvola
