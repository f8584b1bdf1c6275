#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "engine/service_fixture.h"

namespace tarvola {
namespace {

using testing::forms;

class Validity : public ::testing::Test {
 protected:
  testing::TempDir dir_;
  std::unique_ptr<Tarvola> engine_ = testing::make_service_engine(dir_);
};

TEST_F(Validity, SingleWords) {
  EXPECT_TRUE(engine_->isValid("etxea", false));
  EXPECT_TRUE(engine_->isValid("ETXEA", false));
  EXPECT_FALSE(engine_->isValid("kaka", false));      // "MAT" only
  EXPECT_TRUE(engine_->isValid("zaharki", false));    // "Rare" from the main network
  EXPECT_FALSE(engine_->isValid("lurjabe", false));   // "Rare" from "osag0"
  EXPECT_TRUE(engine_->isValid("lurbide", false));
  EXPECT_TRUE(engine_->isValid("kalea", false));      // "EZZG" counts here
  EXPECT_TRUE(engine_->isValid("Bilbo", false));
  EXPECT_FALSE(engine_->isValid("bilbo", false));
  EXPECT_FALSE(engine_->isValid("xyz", true));
  EXPECT_FALSE(engine_->isValid("", false));
  EXPECT_FALSE(engine_->isValid("", true));
}

TEST_F(Validity, PersonalDictionaryWords) {
  EXPECT_TRUE(engine_->isValid("kukua", false));
  EXPECT_TRUE(engine_->isValid("kuku", true));
  // The same engine without the dictionary file does not know them.
  testing::TempDir other;
  auto plain = testing::make_engine(other, testing::service_networks());
  EXPECT_FALSE(plain->isValid("kukua", false));
}

TEST_F(Validity, PrefixTest) {
  EXPECT_FALSE(engine_->isValid("hitz", false));
  EXPECT_TRUE(engine_->isValid("hitz", true));
  EXPECT_TRUE(engine_->isValid("HITZ", true));  // lower-cased for the search
  EXPECT_FALSE(engine_->isValid("hitzz", true));
}

TEST_F(Validity, PrefixSearch) {
  EXPECT_EQ(forms(engine_->bilatuHasiera("hitz ", false)),
            (std::vector<std::string>{"hitz egin", "hitz jario"}));
  // "hitz jario" is only a usual form: re-analysed, it carries "[e=".
  const std::vector<Analisia> standard = engine_->bilatuHasiera("hitz ", true);
  ASSERT_EQ(forms(standard), std::vector<std::string>{"hitz egin"});
  EXPECT_EQ(standard[0].analisia, "hitz egin<ADI>");
  EXPECT_TRUE(engine_->bilatuHasiera("hitza ", true).empty());
}

TEST_F(Validity, TextCheckLooksAtFirstSentenceOnly) {
  EXPECT_TRUE(engine_->isValid("etxea ona", false));
  EXPECT_FALSE(engine_->isValid("kalea ona", true));   // sole reading non-standard
  EXPECT_TRUE(engine_->isValid("kalez ona", false));   // two non-standard readings
  EXPECT_FALSE(engine_->isValid("xyzw ona", false));   // the unknown-word fallback
  EXPECT_FALSE(engine_->isValid("etxea-", false));     // the hyphen itself is unknown
  EXPECT_TRUE(engine_->isValid("Etxea ona. Kalea ona", false));
  EXPECT_FALSE(engine_->isValid("Kalea ona. Etxea ona", false));
  EXPECT_TRUE(engine_->isValid("   ", false));
}

TEST(ValidityWithoutNetworks, MissingNetworksGiveNoAnswerAndNoEntry) {
  testing::TempDir dir;
  auto engine = testing::make_engine(dir, {{"osag0", {"l u r b i d e <IZE>:<>"}}});
  EXPECT_TRUE(engine->isValid("lurbide", true));
  EXPECT_FALSE(engine->isValid("lur", true));  // no "eumorfo" to search
  EXPECT_TRUE(engine->bilatuHasiera("lur", false).empty());
  EXPECT_TRUE(engine->sortuFormak("lurbide", "<IZE>").empty());  // neither "eumorfo" nor "hp"
  EXPECT_EQ(engine->lortu_ezzg_proposamenak("lurbida"), std::vector<std::string>{"lurbide"});
  // Nothing was added to the map: a walk over it still works.
  EXPECT_EQ(engine->analizatuTokena("lurbide").size(), 1u);

  Tarvola empty;
  EXPECT_FALSE(empty.isValid("etxea", true));
  EXPECT_TRUE(empty.isValid("etxea ona", false));  // no sentence to reject
  EXPECT_TRUE(empty.bilatuHasiera("etx", true).empty());
  EXPECT_TRUE(empty.sortuFormak("etxe", "<ARR>").empty());
  EXPECT_EQ(empty.getParagrafoaBrindel("etxea", true), "<p>\n</p>\n");
}

}  // namespace
}  // namespace tarvola
