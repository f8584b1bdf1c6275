#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "engine/service_fixture.h"
#include "tarvola/engine/suggestion_candidates.h"

namespace tarvola {
namespace {

using Words = std::vector<std::string>;

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
  EXPECT_TRUE(has(engine::letter_group_candidates("ona"), "hona"));
  EXPECT_TRUE(has(engine::letter_group_candidates("Hona"), "Ona"));
  EXPECT_TRUE(has(engine::letter_group_candidates("ETSEA"), "ETXEA"));
  EXPECT_TRUE(has(engine::letter_group_candidates("Chakurra"), "Txakurra"));
  EXPECT_TRUE(has(engine::letter_group_candidates("ba\xF1" "a"), "baina"));
  EXPECT_TRUE(has(engine::letter_group_candidates("kanpa\xF1" "a"), "kanpaina"));
  EXPECT_TRUE(has(engine::letter_group_candidates("campo"), "kampo"));
  EXPECT_TRUE(has(engine::letter_group_candidates("kampo"), "kanpo"));
  EXPECT_TRUE(has(engine::letter_group_candidates("etxia"), "etxea"));
  EXPECT_FALSE(has(engine::letter_group_candidates("txakur"), "htxakur"));  // h only before a vowel
  EXPECT_TRUE(engine::letter_group_candidates("").empty());
}

TEST(SuggestionCandidates, OneLetterBlankAndReplaced) {
  const Words aa = engine::one_letter_candidates("aa");
  EXPECT_EQ(aa.front(), "a");  // one deletion, not two
  EXPECT_EQ(std::count(aa.begin(), aa.end(), "aaa"), 1);
  EXPECT_TRUE(has(aa, "haa"));
  EXPECT_TRUE(has(engine::one_letter_candidates("ETXA"), "ETXEA"));
  EXPECT_TRUE(has(engine::one_letter_candidates("Txa"), "Txea"));

  const std::vector<engine::BlankSplit> splits = engine::blank_candidates("abcde");
  ASSERT_EQ(splits.size(), 2u);
  EXPECT_EQ(splits[0].left + "|" + splits[0].right, "ab|cde");
  EXPECT_EQ(splits[1].left + "|" + splits[1].right, "abc|de");
  EXPECT_TRUE(engine::blank_candidates("abc").empty());

  EXPECT_EQ(engine::replaced_candidates("abc").size(), 3u * 26 - 3);
  EXPECT_EQ(engine::replaced_candidates("xbc").front(), "abc");
  EXPECT_TRUE(engine::replaced_candidates("ab").empty());
}

class Suggestions : public ::testing::Test {
 protected:
  testing::TempDir dir_;
  std::unique_ptr<Tarvola> engine_ = testing::make_service_engine(dir_);
};

TEST_F(Suggestions, FirstLevelsAllKeptAndFinal) {
  EXPECT_EQ(engine_->lortu_ezzg_proposamenak("bilbo"), Words{"Bilbo"});
  // "etxe" (one letter less) is valid too, but the swap already answered.
  EXPECT_EQ(engine_->lortu_ezzg_proposamenak("etxae"), Words{"etxea"});
  EXPECT_EQ(engine_->lortu_ezzg_proposamenak("etsea"), Words{"etxea"});
  EXPECT_EQ(engine_->lortu_ezzg_proposamenak("hona"), Words{"ona"});
}

TEST_F(Suggestions, BroadLevels) {
  EXPECT_EQ(engine_->lortu_ezzg_proposamenak("etxeaa"), Words{"etxea"});
  EXPECT_EQ(engine_->lortu_ezzg_proposamenak("etxeaona"), Words{"etxea ona"});
  // A non-standard word is still a word: "etxia" is offered beside "etxea".
  EXPECT_EQ(engine_->lortu_ezzg_proposamenak("etxqa"), (Words{"etxea", "etxia"}));
  EXPECT_TRUE(engine_->lortu_ezzg_proposamenak("qqqqqqq").empty());
  EXPECT_TRUE(engine_->lortu_ezzg_proposamenak("").empty());
  // Longer than any token: no search at all (it would grow quadratically).
  EXPECT_TRUE(engine_->lortu_ezzg_proposamenak("etxae" + std::string(100, 'a')).empty());
}

TEST(SuggestionLimit, AtMostFiveFromTheBroadLevels) {
  testing::TempDir dir;
  std::vector<std::string> words;
  for (const char* w : {"bbc", "abc", "ebc", "ibc", "obc", "ubc"}) words.push_back(testing::word_path(w));
  auto engine = testing::make_engine(dir, {{"eumorfo", words}});
  EXPECT_EQ(engine->lortu_ezzg_proposamenak("xbc"), (Words{"abc", "ebc", "ibc", "obc", "ubc"}));
}

}  // namespace
}  // namespace tarvola
