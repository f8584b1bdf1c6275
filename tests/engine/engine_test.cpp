// Building an engine from its configuration, the engine over the fixture
// tables (tests/data): what it finds, and what the library does with each
// kind of bad input a user can hand it: paths that are missing, unreadable
// or folders, empty files, garbage tables, over-long lines.
// docs/ROBUSTNESS.md lists these cases and names the test behind each.
#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/engine_fixture.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/engine/network_config.h"
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

// A table whose one word "hitz" reads as the table's own tag.
std::string word_table(const std::string& tag) {
  return "0\th\t1\n1\ti\t2\n2\tt\t3\n3\tz\t4\n4\t<" + tag + ">:<>\t5\nfinal: 5\n";
}

// What constructing an engine with this configuration prints.
std::string load_output(const std::string& config) {
  ::testing::internal::CaptureStdout();
  { Tarvola engine(config); (void)engine; }
  std::string out = ::testing::internal::GetCapturedStdout();
  const std::string farewell = "Taulak husten...\n";
  EXPECT_TRUE(out.size() >= farewell.size() &&
              out.compare(out.size() - farewell.size(), farewell.size(), farewell) == 0);
  return out.substr(0, out.size() - farewell.size());
}

bool knows(Tarvola& engine, const std::string& network) {
  return !engine.analizatuTokena("hitz", network).empty();
}

TEST(NetworkName, FromThePath) {
  EXPECT_EQ(engine::network_name("data/eumorfoPG.sar"), "eumorfo");
  EXPECT_EQ(engine::network_name("lex/hp.bin"), "hp");
  EXPECT_EQ(engine::network_name("dir/aPG.bin"), "a");
  EXPECT_EQ(engine::network_name("dir\\sub.bin"), "dir\\sub");
  EXPECT_EQ(engine::network_name("a/b.c/PGPG"), "PG");
  EXPECT_THROW(engine::network_name("dir/x.y.z"), std::out_of_range);
  EXPECT_THROW(engine::network_name("dir/"), std::out_of_range);
}

TEST(EngineConfiguration, CommentsAndMissingFiles) {
  TempDir dir;
  std::string table = dir.write("bat.txt", word_table("BAT"));
  EXPECT_EQ(load_output(dir.write("c1", "// bat\n\n " + table + "\n\t" + table + "\n\r\n")), "");

  // Carriage return line ends load; a trailing blank is part of the path.
  EXPECT_EQ(load_output(dir.write("c2", table + "\r\n")), "\n");
  EXPECT_EQ(load_output(dir.write("c3", table + " \n")), "Ezin da ireki '" + table + " '\n");

  Tarvola engine(dir.write("c4", table + "\r\n" + dir.file("gone.txt") + "\n"));
  EXPECT_TRUE(knows(engine, "bat"));
  EXPECT_FALSE(knows(engine, "gone"));
}

TEST(EngineConfiguration, TenTablesAtMost) {
  TempDir dir;
  std::string ten;
  for (int i = 10; i < 20; ++i)
    ten += dir.write("n" + std::to_string(i) + ".txt", word_table("n" + std::to_string(i))) + "\n";
  const std::string eleventh = dir.write("n20.txt", word_table("n20")) + "\n";
  const std::string gone = dir.file("gone.txt") + "\n";
  const std::string limit = "kargatu_sareak: Taula kopuru handiegia: 10 da topea!\n";

  // Eleven listed, or ten and a missing one: ten loaded, the eleventh path
  // neither tested nor loaded.
  for (const std::string& last : {eleventh, gone}) {
    const std::string config = dir.write("c", ten + last);
    EXPECT_EQ(load_output(config), limit + std::string(10, '\n'));
    Tarvola engine(config);
    EXPECT_TRUE(knows(engine, "n19"));
    EXPECT_FALSE(knows(engine, "n20"));
  }

  // Missing files do not count: three missing among ten existing load all
  // ten. (After the tenth, a missing one would meet the limit first.)
  const std::string mixed = dir.write("mixed", dir.file("x1.txt") + "\n" + gone + ten.substr(0, ten.size() / 2) +
                                                   dir.file("x3.txt") + "\n" + ten.substr(ten.size() / 2));
  std::string out = load_output(mixed);
  EXPECT_EQ(out.find("Taula kopuru"), std::string::npos);
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 13);
  Tarvola all(mixed);
  EXPECT_TRUE(knows(all, "n10"));
  EXPECT_TRUE(knows(all, "n19"));
}

TEST(EngineConfiguration, LaterNetworkOfTheSameNameWins) {
  TempDir dir;
  std::filesystem::create_directory(dir.file("a"));
  std::filesystem::create_directory(dir.file("b"));
  std::string first = dir.write("a/sare.txt", word_table("LEHEN"));
  std::string second = dir.write("b/sarePG.bin", word_table("BIGARREN"));
  Tarvola engine(dir.write("conf", first + "\n" + second + "\n"));
  EXPECT_EQ(testing::sourced(engine.analizatuTokena("hitz")), std::vector<std::string>{"sare:hitz<BIGARREN>"});
}

TEST(EngineConfiguration, ShortNetworkNameFailsConstruction) {
  TempDir dir;
  std::string good = dir.write("ongi.txt", word_table("ONGI"));
  std::string bad = dir.write("x.y.z", word_table("X"));
  ::testing::internal::CaptureStdout();
  EXPECT_THROW(Tarvola(dir.write("conf", good + "\n" + bad + "\n")), std::out_of_range);
  // The table before the bad entry was loaded; no engine was left to say goodbye.
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "\n");
}

TEST(EngineConfiguration, CopiesShareAndOutliveEachOther) {
  TempDir dir;
  std::string config = dir.write("conf", dir.write("bat.txt", word_table("BAT")) + "\n");
  ::testing::internal::CaptureStdout();
  auto* original = new Tarvola(config);
  Tarvola copy(*original);
  Tarvola assigned;
  assigned = *original;
  assigned = assigned;
  delete original;
  EXPECT_TRUE(knows(copy, "bat"));
  EXPECT_TRUE(knows(assigned, "bat"));
  assigned = Tarvola();
  EXPECT_FALSE(knows(assigned, "bat"));
  EXPECT_TRUE(knows(copy, "bat"));
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            "\nTaulak husten...\nTaulak husten...\n");
}

TEST(EngineConfiguration, DefaultEngineIsEmptyButSafe) {
  ::testing::internal::CaptureStdout();
  {
    Tarvola engine;
    EXPECT_TRUE(engine.analizatuTokena("etxea").empty());
    EXPECT_TRUE(engine.analizatuTokena("etxea", "eumorfo").empty());
    Paragrafoa p = engine.analizatu_paragrafoa(1, "Kaixo! Zer moduz?");
    EXPECT_EQ(p.id, 1);
    EXPECT_TRUE(p.esaldiak.empty());
    EXPECT_FALSE(engine.isValid("etxea", true));
    EXPECT_TRUE(engine.isValid("etxea ona", false));  // no sentence to reject
    EXPECT_TRUE(engine.bilatuHasiera("etx", true).empty());
    EXPECT_TRUE(engine.sortuFormak("etxe", "<ARR>").empty());
    EXPECT_EQ(engine.getParagrafoaBrindel("etxea", true), "<p>\n</p>\n");
  }
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "Taulak husten...\n");
}

}  // namespace
}  // namespace tarvola
