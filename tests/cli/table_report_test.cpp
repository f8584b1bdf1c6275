#include "common/table_report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tarvola/tables/cipher.h"

namespace tarvola_cli {
namespace {

std::vector<std::string> messages(const TableReport& r) {
  std::vector<std::string> out;
  for (const TableProblem& p : r.problems) out.push_back(std::to_string(p.line) + " " + p.message);
  return out;
}

const std::string kGood = "0\ta\t1\n0\t<X>:<>\t2\n1\t<N>:<>\t2\nfinal: 2\n";

TEST(table_report, stats_of_a_sound_table) {
  TableReport r = inspect_table(kGood, false);
  EXPECT_TRUE(r.problems.empty());
  EXPECT_EQ(r.stats.states, 3);
  EXPECT_EQ(r.stats.arcs, 3u);
  EXPECT_EQ(r.stats.final_states, 1u);
  EXPECT_EQ(r.stats.epsilon_arcs, 2u);
  EXPECT_EQ(r.stats.upper_symbols, 3u);
  EXPECT_EQ(r.stats.lower_symbols, 1u);
}

// Each fault of a plain table with its line: the golden case cli.table_check_bad.
TEST(table_report, faults_the_loader_would_trip_on) {
  // A garbled state number: reported, and nothing allocated for it.
  const std::vector<std::string> garbled = messages(inspect_table("0\ta\t1\nfinal: 1\n1777777777\tb\t1\n", false));
  ASSERT_FALSE(garbled.empty());
  EXPECT_EQ(garbled.front(),
            "0 state count 1777777778 is more than the text could fill: the loader refuses the table");
  EXPECT_EQ(messages(inspect_table("0\ta\t1\n", false)),
            (std::vector<std::string>{"0 no final state: the table recognises nothing",
                                      "1 target state 1 out of range (the table counts 1 states)"}));
}

TEST(table_report, enciphered_tables) {
  std::string plain = kGood;
  EXPECT_TRUE(encipher_problems(plain, false).empty());
  TableReport r = inspect_table(tarvola::cipher::encipher(plain), true);
  EXPECT_TRUE(r.problems.empty());
  EXPECT_EQ(r.stats.arcs, 3u);

  std::string shorty = "0\ta\t1\n\n1\tb\t2\nfinal: 2";
  EXPECT_EQ(encipher_problems(shorty, false).size(), 2u);  // short line, no last line end
  // The loader stalls at the empty line and never reaches the final line.
  EXPECT_EQ(messages(inspect_table(tarvola::cipher::encipher(shorty), true)),
            (std::vector<std::string>{"0 no final state: the table recognises nothing",
                                      "2 line under 5 bytes: the enciphered loader stops here"}));
  EXPECT_TRUE(encipher_problems(shorty, true).empty());
  EXPECT_EQ(shorty, "0\ta\t1\n1\tb\t2\nfinal: 2\n");
}

}  // namespace
}  // namespace tarvola_cli
