#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/engine_fixture.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"

namespace tarvola {
namespace {

using Strings = std::vector<std::string>;

using testing::sourced;

Strings every_reading(const Paragrafoa& p) {
  Strings out;
  for (const Esaldia& e : p.esaldiak)
    for (const Tokena& t : e.tokenak)
      for (const std::string& r : sourced(t.analisiak)) out.push_back(t.forma + " " + r);
  return out;
}

class EngineAnalysis : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    dir_ = new testing::TempDir;
    std::string config = testing::absolute_engine_config() +
                         testing::engine_table("OSVARmorfoPG.txt") + "\n";
    ::testing::internal::CaptureStdout();
    engine_ = new Tarvola(dir_->write("engine.conf", config),
                          testing::data_path("engine_hiztegia.txt"));
    loaded_ = ::testing::internal::GetCapturedStdout();
  }
  static void TearDownTestSuite() {
    ::testing::internal::CaptureStdout();
    delete engine_;
    ::testing::internal::GetCapturedStdout();
    delete dir_;
  }
  static testing::TempDir* dir_;
  static Tarvola* engine_;
  static std::string loaded_;
};
testing::TempDir* EngineAnalysis::dir_ = nullptr;
Tarvola* EngineAnalysis::engine_ = nullptr;
std::string EngineAnalysis::loaded_;

TEST_F(EngineAnalysis, OneNetwork) {
  EXPECT_EQ(loaded_, "\n\n\n\n");  // one empty line per network loaded
  EXPECT_EQ(sourced(engine_->analizatuTokena("etxea", "eumorfo")),
            (Strings{"eumorfo:etxe<IZE><ARR><ABS><NUMS><MUGM>"}));
  // The table is used as it is: no dictionary, no filtering.
  EXPECT_EQ(sourced(engine_->analizatuTokena("etxezulo", "osag0")),
            (Strings{"osag0:etxe+zulo<IZE><ARR><Rare>"}));
  EXPECT_TRUE(engine_->analizatuTokena("Getxon", "eumorfo").empty());
  // An unknown network gives nothing and leaves the map as it was.
  EXPECT_TRUE(engine_->analizatuTokena("etxea", "ezezaguna").empty());
  // Without a name, every network in name order: capitals sort first, and
  // equal readings of two networks both stay.
  EXPECT_EQ(sourced(engine_->analizatuTokena("etxea")),
            (Strings{"OSVARmorfo:etxe<IZE><ARR><ABS><NUMS><MUGM>",
                     "eumorfo:etxe<IZE><ARR><ABS><NUMS><MUGM>", "osag0:etxe<IZE><ARR><ABS>"}));
  EXPECT_TRUE(engine_->analizatuTokena("xyzw").empty());
}

TEST_F(EngineAnalysis, ParagraphIsAlwaysNumberOne) {
  const std::string text = "Kaixo! Etxean, hala ere, ez. Getxon bai.";
  Paragrafoa seven = engine_->analizatu_paragrafoa(7, text);
  Paragrafoa one = engine_->analizatu_paragrafoa(1, text);
  EXPECT_EQ(seven.id, 1);
  ASSERT_EQ(one.esaldiak.size(), 3u);
  EXPECT_EQ(seven.get_CG3(true, false, false), one.get_CG3(true, false, false));
  EXPECT_EQ(every_reading(seven), every_reading(one));
  // The personal dictionary comes first: "Etxean" gets only its reading.
  const Tokena& etxean = one.esaldiak[1].tokenak[0];
  EXPECT_EQ(etxean.forma, "Etxean");
  ASSERT_EQ(etxean.analisiak.size(), 1u);
  EXPECT_EQ(etxean.analisiak[0].sarea, "hp");
  EXPECT_EQ(one.esaldiak[1].tokenak[2].forma, "hala ere");
  EXPECT_EQ(one.esaldiak[2].tokenak[0].analisiak.at(0).lema, "Getxo");
}

}  // namespace
}  // namespace tarvola
