// The engine over the fixture tables (tests/data): what it finds, and what
// the library does with each kind of bad input a user can hand it: paths
// that are missing, unreadable or folders, empty files, garbage tables,
// over-long lines. docs/ROBUSTNESS.md lists these cases and names the test
// behind each.
#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "support/engine_fixture.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/cipher.h"

namespace tarvola {
namespace {

using testing::fixture_config;
using testing::quiet_engine;
using testing::sourced;
using testing::Strings;
using testing::TempDir;

std::size_t token_count(const Paragrafoa& p) {
  std::size_t n = 0;
  for (const Esaldia& s : p.esaldiak) n += s.tokenak.size();
  return n;
}

TEST(BadInput, ConfigurationMissingEmptyOrAFolder) {
  TempDir dir;
  for (const std::string& config : {dir.file("missing.conf"), dir.write("empty.conf", ""), dir.path()}) {
    auto e = quiet_engine(config);
    // No networks: nothing is found, and a paragraph comes back unsplit.
    EXPECT_TRUE(e->analizatuTokena("etxea").empty()) << config;
    EXPECT_TRUE(e->analizatu_paragrafoa(1, "Etxea. Bai.").esaldiak.empty()) << config;
  }
}

TEST(BadInput, TableListedButEmptyOrAFolder) {
  TempDir dir;
  const std::string empty = dir.write("emptyPG.txt", "");
  const std::string folder = dir.file("folderPG.txt");
  ASSERT_EQ(mkdir(folder.c_str(), 0700), 0);
  auto e = quiet_engine(fixture_config(dir, empty + "\n" + folder + "\n"));
  // Both load as tables without states; the other networks work as before.
  EXPECT_TRUE(e->analizatuTokena("etxea", "empty").empty());
  EXPECT_TRUE(e->analizatuTokena("etxea", "folder").empty());
  EXPECT_FALSE(e->analizatuTokena("etxea", "eumorfo").empty());
}

// Loading the file ends the process with that status and message. The
// table's messages go to standard output; in the child of a death test they
// are sent to standard error, where the expectation can read them.
void expect_load_exit(const std::string& path, int status, const char* message) {
  EXPECT_EXIT({ dup2(2, 1); Taula t(path); }, ::testing::ExitedWithCode(status), message);
}

TEST(BadInputDeathTest, MissingPlainTableNamesTheFile) {
  TempDir dir;
  expect_load_exit(dir.file("gone.txt"), 0, "gone.txt ez da existitzen\\.");
}

TEST(BadInputDeathTest, GarbageWithALongFieldEndsWithStatusOne) {
  TempDir dir;
  std::mt19937 rng(7);
  std::string garbage;
  for (int i = 0; i < 4096; ++i) garbage += static_cast<char>(rng() % 256);
  garbage += std::string(200, 'x');  // at least one field over the limit
  expect_load_exit(dir.write("garbage.bin", garbage), 1, "lerroko eremua luzeegia da \\(98 karaktere gehienez\\)");
}

TEST(BadInputDeathTest, DecipheredLineOverTheLimitEndsWithStatusOne) {
  TempDir dir;
  expect_load_exit(dir.write("longSARE8.bin", cipher::encipher("0\ta\t1\n0\ta\t" + std::string(2300, '1') + "\n")),
                   1, "2\\. lerroa luzeegia da \\(2221 karaktere gehienez\\)");
}

TEST(BadInput, GarbageInShortLinesLoadsAndEveryLookupEnds) {
  TempDir dir;
  std::mt19937 rng(11);
  std::string garbage;
  for (int i = 0; i < 20000; ++i) {
    // No "<": a garbage path spelling a tag of 99 bytes or more would end
    // the process, which is the tag rule's own case.
    unsigned r = rng() % 256;
    if (r == '<') r = 'x';
    garbage += static_cast<char>(i % 40 == 39 ? '\n' : r % 7 == 0 ? '\t' : r);
  }
  const std::string files[] = {dir.write("garbage.txt", garbage),
                               dir.write("garbageSARE8.bin", cipher::encipher(garbage))};
  for (const std::string& file : files) {
    ::testing::internal::CaptureStdout();
    Taula t(file);
    ::testing::internal::GetCapturedStdout();
    for (const char* word : {"etxea", "a", "", "\x01\xff"}) (void)t.analizatuTokena(word);
    (void)t.sortuFormak("etxe", "<IZE>", false, false);
    (void)t.sortuFormak("", "", true, false);
  }
}

TEST(BadInput, DictionaryMissingEmptyOrAFolder) {
  TempDir dir;
  const std::string config = fixture_config(dir);
  for (const std::string& dictionary :
       {dir.file("missing.txt"), dir.write("empty.txt", ""), dir.path()}) {
    auto e = quiet_engine(config, dictionary);
    // The tables work without the personal words.
    Paragrafoa p = e->analizatu_paragrafoa(1, "Etxean Getxon.");
    ASSERT_EQ(token_count(p), 3u) << dictionary;
    EXPECT_EQ(p.esaldiak[0].tokenak[0].analisiak.front().sarea, "eumorfo");
  }
}

#ifndef _WIN32
TEST(BadInput, UnreadableFilesActAsMissingOnes) {
  if (geteuid() == 0) GTEST_SKIP() << "permissions do not bind the superuser";
  TempDir dir;
  const std::string config = fixture_config(dir);
  const std::string dictionary = dir.write("hp.txt", "etxe\t<ARR>\t\t\tHP\n");
  ASSERT_EQ(chmod(config.c_str(), 0), 0);
  ASSERT_EQ(chmod(dictionary.c_str(), 0), 0);
  auto e = quiet_engine(config, dictionary);
  EXPECT_TRUE(e->analizatuTokena("etxea").empty());
}
#endif

TEST(BadInput, EmptyAndBinaryParagraphs) {
  TempDir dir;
  auto e = quiet_engine(fixture_config(dir));
  EXPECT_EQ(token_count(e->analizatu_paragrafoa(1, "")), 0u);
  EXPECT_EQ(token_count(e->analizatu_paragrafoa(1, "     ")), 0u);
  std::string binary;
  for (int c = 0; c < 256; ++c) binary += static_cast<char>(c);
  Paragrafoa p = e->analizatu_paragrafoa(1, binary + binary);
  EXPECT_GT(token_count(p), 0u);
  for (const Esaldia& s : p.esaldiak)
    for (const Tokena& t : s.tokenak) EXPECT_FALSE(t.analisiak.empty());
  // A "word" of angle brackets longer than a tag may be becomes an unknown
  // form; the process goes on.
  Paragrafoa tag = e->analizatu_paragrafoa(1, "<" + std::string(300, 'a') + ">");
  EXPECT_GT(token_count(tag), 0u);
}

// The fixture engine with one more network, "OSVARmorfo", whose capital
// sorts it before the others.
class EngineAnalysis : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    TempDir dir;
    engine_ = quiet_engine(fixture_config(dir, testing::engine_table("OSVARmorfoPG.txt") + "\n"));
  }
  static void TearDownTestSuite() { engine_.reset(); }
  static inline std::unique_ptr<Tarvola> engine_;
};

TEST_F(EngineAnalysis, OneNetwork) {
  EXPECT_EQ(sourced(engine_->analizatuTokena("etxea", "eumorfo")), Strings{"eumorfo:etxe<IZE><ARR><ABS><NUMS><MUGM>"});
  // The table is used as it is: no dictionary, no filtering.
  EXPECT_EQ(sourced(engine_->analizatuTokena("etxezulo", "osag0")), Strings{"osag0:etxe+zulo<IZE><ARR><Rare>"});
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
  EXPECT_EQ(testing::paragraph_readings(seven), testing::paragraph_readings(one));
  // The personal dictionary comes first: "Etxean" gets only its reading.
  const Tokena& etxean = one.esaldiak[1].tokenak[0];
  EXPECT_EQ(etxean.forma, "Etxean");
  ASSERT_EQ(etxean.analisiak.size(), 1u);
  EXPECT_EQ(etxean.analisiak[0].sarea, "hp");
  EXPECT_EQ(one.esaldiak[2].tokenak[0].analisiak.at(0).lema, "Getxo");
}

}  // namespace
}  // namespace tarvola
