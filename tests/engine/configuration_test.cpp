#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/engine/network_config.h"

namespace tarvola {
namespace {

using testing::TempDir;

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
