#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "engine/service_fixture.h"

namespace tarvola {
namespace {

using testing::forms;

class Generation : public ::testing::Test {
 protected:
  testing::TempDir dir_;
  std::unique_ptr<Tarvola> engine_ = testing::make_service_engine(dir_);
};

TEST_F(Generation, KnownLemma) {
  const std::vector<Analisia> etxe = engine_->sortuFormak("etxe", "<ARR>");
  EXPECT_EQ(forms(etxe), (std::vector<std::string>{"etxe", "etxea"}));
  EXPECT_EQ(etxe[1].analisia, "etxe<IZE><ARR><ABS><NUMS><MUGM>");
  EXPECT_EQ(etxe[1].sarea, "eumorfo");
  // Tags that no reading holds: nothing, and no unknown-lemma attempt.
  EXPECT_TRUE(engine_->sortuFormak("etxe", "<ERG>").empty());
  // The reading is cut after the first occurrence of the tags: "etx".
  EXPECT_EQ(forms(engine_->sortuFormak("etxe", "x")),
            (std::vector<std::string>{"etxe", "etxea", "etxia"}));
}

TEST_F(Generation, KnownLemmaWithoutTagsGeneratesFromNothing) {
  const std::vector<std::string> all = forms(engine_->sortuFormak("etxe", ""));
  ASSERT_GE(all.size(), 4u);
  EXPECT_EQ(std::vector<std::string>(all.begin(), all.begin() + 4),
            (std::vector<std::string>{"etxe", "etxea", "etxia", "ona"}));
  for (const std::string& form : all) EXPECT_NE(form, "zaharki");  // rare readings stop the walk
}

TEST_F(Generation, UnknownLemmaThroughThrowAwayDictionary) {
  // "kuku" is in the personal dictionary, but only the main network makes
  // a lemma known.
  const std::vector<Analisia> kuku = engine_->sortuFormak("kuku", "<ARR>");
  ASSERT_EQ(forms(kuku), (std::vector<std::string>{"kuku", "kukua"}));
  EXPECT_EQ(kuku[1].analisia, "kuku<IZE><ARR><hp1><ABS><NUMS><MUGM>");
  EXPECT_EQ(kuku[1].sarea, "HP");
  EXPECT_EQ(kuku[1].etiketa, " IZE ARR ABS NUMS MUGM");
  EXPECT_EQ(forms(engine_->sortuFormak("zorion", "<ARR>")), std::vector<std::string>{"zoriona"});
  EXPECT_TRUE(engine_->sortuFormak("kuku", "<XYZ>").empty());
  EXPECT_TRUE(engine_->sortuFormak("kuku", "<arr>").empty());
  // The throw-away dictionary leaves the engine's own alone.
  EXPECT_FALSE(engine_->isValid("zoriona", false));
}

TEST(GenerationCut, FormShorterThanClassSymbolThrows) {
  testing::TempDir dir;
  auto engine = testing::make_engine(dir, {{"eumorfo", {"e t x e <IZE>:<>"}},
                                           {"hp", {"<hp1>:h <ABS>:<>"}}});
  EXPECT_THROW(engine->sortuFormak("kuku", "<ARR>"), std::out_of_range);
}

}  // namespace
}  // namespace tarvola
