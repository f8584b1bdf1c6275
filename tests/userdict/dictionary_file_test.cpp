#include "tarvola/userdict/dictionary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/test_files.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

#ifndef _WIN32
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace {

using tarvola::HiztegiPertsonala;
namespace ud = tarvola::userdict;
using tarvola::testing::read_file;
using tarvola::testing::write_file;

std::string columns(const std::optional<ud::DictionaryLine>& l) {
  if (!l) return "(none)";
  return l->lemma + "|" + l->category + "|" + l->extra1 + "|" + l->extra2 + "|" + l->origin;
}

std::vector<std::string> users(const HiztegiPertsonala& hp) {
  std::vector<std::string> out;
  for (const auto* e : hp.sarrerak) out.push_back(e->lema + " " + e->kategoria);
  return out;
}

std::vector<std::string> keys(const HiztegiPertsonala& hp) {
  std::vector<std::string> out;
  for (const auto& kv : hp.paradigmak) out.push_back(kv.first + " " + kv.second->kategoria);
  return out;
}

using Strings = std::vector<std::string>;

// What a rewrite leaves in the folder: no temporary file may remain.
Strings names_in(const std::string& dir) {
  Strings out;
  for (const auto& e : std::filesystem::directory_iterator(dir))
    out.push_back(e.path().filename().string());
  return out;
}

TEST(DictionaryFile, LineColumns) {
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR>\t\t\tHP")), "etxe|<ARR>|||HP");
  EXPECT_EQ(columns(ud::parse_line("etxe|<ARR>\ta\tb\tHP")), "etxe|<ARR>|a|b|HP");
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR>\ta\tb\tHP\tmore")), "etxe|<ARR>|a|b|HP\tmore");
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR>")), "etxe|<ARR>|||");
  EXPECT_EQ(columns(ud::parse_line("etxe\tARR\t\t\tHP")), "etxe||||HP");
  EXPECT_EQ(columns(ud::parse_line("etxe\t<ARR\t\t\tHP")), "etxe||||HP");
  EXPECT_EQ(columns(ud::parse_line("etxe <ARR>")), "etxe <ARR>||||");
  EXPECT_EQ(columns(ud::parse_line("// etxe\t<ARR>")), "(none)");
  EXPECT_EQ(columns(ud::parse_line("e")), "(none)");
  EXPECT_EQ(columns(ud::parse_line("")), "(none)");
}

TEST(DictionaryFile, LoadingSkipsCommentsAndMalformedLines) {
  tarvola::testing::TempDir dir;
  // A missing file and one of comments only: no words, the initial bounds.
  for (const std::string& path : {dir.file("ez-dago.txt"), dir.write("iruzkinak.txt", "// bat\n\n//bi\t<ARR>\n \n")}) {
    HiztegiPertsonala none(path);
    EXPECT_TRUE(none.sarrerak.empty());
    EXPECT_EQ(none.luzeraMin, 10000);
    EXPECT_EQ(none.hitzMax, 0);
  }

  HiztegiPertsonala hp(dir.write("h.txt",
             "\netxe\tARR\t\t\tHP"      // no brackets
             "\nx\t<ARR>\t\t\tHP"       // one-byte lemma
             "\nlibururik"              // no tab
             "\nkale nagusi\t<ARR>\t\t\tHP\r"
             "\nhartu|<ADI>\ta\t\tHP"
             "\ngorri\t<ARR>\t\t\tHP"
             "\ngorri\t<ARR>\t\t\tHP\n"));
  EXPECT_EQ(users(hp), (Strings{"kale nagusi <ARR>", "hartu <ADI>", "gorri <ARR>"}));
  EXPECT_EQ(keys(hp), (Strings{"gorri <IZE><ARR>", "har <ADI><ADOIN>", "hartu <ADI><PART>",
                               "hartze <ADI><ADI_IZE>", "kale nagusi <IZE><ARR>"}));
  EXPECT_EQ(hp.luzeraMin, 5);
  EXPECT_EQ(hp.hitzMax, 2);
  EXPECT_EQ(hp.paradigmak.at("hartu")->osagarria1, "a");
  EXPECT_EQ(hp.paradigmak.at("hartu")->jatorria, "HP");
}

class Removal : public ::testing::Test {
 protected:
  tarvola::testing::TempDir dir;
  std::string path = dir.write("hiztegia.txt",
                               "// iruzkina\n"
                               "etxe\t<ARR>\tbat\tbi\tHP\n"
                               "ETXE\t<ARR>\t\t\tHP\n"
                               "gorri\t<IZO>\t\t\tHP\n"
                               "gorri\t<ARR>\t\t\tHP\n"
                               "hutsa\t<>\t\t\tHP\n");
};

TEST_F(Removal, ComparesLemmasExactlyAndCategoriesAsSubstrings) {
  HiztegiPertsonala hp(path);
  EXPECT_EQ(keys(hp), (Strings{"etxe <IZE><ARR>", "gorri <ADJ><IZO>"}));
  // Upper case removes the user entry stored so, no lower-cased paradigm.
  hp.kendu_sarrera(false, "ETXE", "<ARR>");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>", "gorri <ARR>", "hutsa <>"}));
  EXPECT_EQ(hp.paradigmak.size(), 2u);
  // "<ARR>" is no substring of "<ADJ><IZO>".
  hp.kendu_sarrera(false, "gorri", "<ARR>");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>", "hutsa <>"}));
  EXPECT_EQ(keys(hp), (Strings{"etxe <IZE><ARR>", "gorri <ADJ><IZO>"}));
  // The empty category is in every tag, but only in empty user categories.
  hp.kendu_sarrera(false, "etxe", "");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>", "hutsa <>"}));
  EXPECT_EQ(keys(hp), (Strings{"gorri <ADJ><IZO>"}));
  hp.kendu_sarrera(false, "hutsa", "<>");
  EXPECT_EQ(users(hp), (Strings{"etxe <ARR>", "gorri <IZO>"}));
  // Without idatzi the file is untouched.
  EXPECT_EQ(read_file(path).substr(0, 12), "// iruzkina\n");
}

TEST_F(Removal, RewriteWritesEveryColumnAndLeavesNoTemporaryFile) {
  HiztegiPertsonala hp(path);
  hp.kendu_sarrera(true, "gorri", "<IZO>");
  EXPECT_EQ(read_file(path),
            "\netxe\t<ARR>\tbat\tbi\tHP"
            "\nETXE\t<ARR>\t\t\tHP"
            "\ngorri\t<ARR>\t\t\tHP"
            "\nhutsa\t<>\t\t\tHP\n");
  EXPECT_EQ(names_in(dir.path()), Strings{"hiztegia.txt"});
  // A word that is not there changes nothing, but the file is rewritten.
  write_file(path, "// bakarrik iruzkina\netxe\t<ARR>\t\t\tHP\n");
  hp.kendu_sarrera(true, "ez-dago", "<ARR>");
  EXPECT_EQ(read_file(path).substr(0, 5), "\netxe");
  // The rewritten file loads back to the same words.
  HiztegiPertsonala again(path);
  EXPECT_EQ(users(again), users(hp));
  EXPECT_EQ(again.sarrerak[0]->osagarria2, "bi");
}

TEST_F(Removal, CopiesOwnTheirEntries) {
  HiztegiPertsonala original(path);
  HiztegiPertsonala copy(original);
  EXPECT_NE(copy.sarrerak[0], original.sarrerak[0]);
  copy.kendu_sarrera(false, "etxe", "<ARR>");
  copy.gehitu_sarrera(false, "mendi", "<ARR>", "", "", "HP");
  EXPECT_EQ(original.sarrerak.size(), 5u);
  EXPECT_EQ(original.paradigmak.at("etxe")->lema, "etxe");
  EXPECT_EQ(original.paradigmak.count("mendi"), 0u);

  HiztegiPertsonala assigned;
  assigned = copy;
  HiztegiPertsonala& self = assigned;
  assigned = self;
  original = assigned;
  EXPECT_EQ(users(original), users(copy));
  EXPECT_EQ(keys(original), keys(copy));
  EXPECT_EQ(original.luzeraMin, 4);
  EXPECT_EQ(original.fitxategia, path);

  // An entry a caller put into both containers is freed once.
  auto* shared = new tarvola::HPsarrera("x", "<ARR>", "x", "", "", "HP", "<hp4>");
  original.sarrerak.push_back(shared);
  original.paradigmak.emplace("x", shared);
  HiztegiPertsonala aliased(original);
  EXPECT_EQ(aliased.sarrerak.back(), aliased.paradigmak.at("x"));
  original.kendu_sarrera(false, "x", "<ARR>");
}

#ifndef _WIN32
TEST_F(Removal, ReadOnlyDirectoryKeepsTheOldFile) {
  if (geteuid() == 0) GTEST_SKIP() << "root writes into read-only directories";
  HiztegiPertsonala hp(path);
  const std::string before = read_file(path);
  std::filesystem::permissions(dir.path(), std::filesystem::perms::owner_read |
                                               std::filesystem::perms::owner_exec);
  hp.kendu_sarrera(true, "gorri", "<IZO>");
  EXPECT_EQ(read_file(path), before);
  std::filesystem::permissions(dir.path(), std::filesystem::perms::owner_all);
  EXPECT_EQ(names_in(dir.path()), Strings{"hiztegia.txt"});
}

// A rewrite that fails half-way (here: the file size limit, as on a full
// disk) or kills the process half-way (the limit's default signal) leaves
// the old file whole.
TEST_F(Removal, InterruptedRewriteKeepsTheOldFile) {
  HiztegiPertsonala hp(path);
  for (int i = 0; i < 2000; ++i)
    hp.gehitu_sarrera(false, "hitz" + std::to_string(i), "<ARR>", "", "", "HP");
  const std::string before = read_file(path);
  auto rewrite_with_limit = [&] {
    struct rlimit limit = {4096, 4096};
    setrlimit(RLIMIT_FSIZE, &limit);
    hp.kendu_sarrera(true, "gorri", "<IZO>");
  };
  EXPECT_EXIT({ signal(SIGXFSZ, SIG_IGN); rewrite_with_limit(); _exit(0); },
              ::testing::ExitedWithCode(0), "");
  EXPECT_EQ(read_file(path), before);
  EXPECT_EQ(names_in(dir.path()), Strings{"hiztegia.txt"});

  EXPECT_EXIT({ rewrite_with_limit(); _exit(0); }, ::testing::KilledBySignal(SIGXFSZ), "");
  EXPECT_EQ(read_file(path), before);
}

TEST_F(Removal, RewriteThroughASymbolicLinkKeepsTheLink) {
  const std::string link = dir.file("lotura.txt");
  std::filesystem::create_symlink(path, link);
  HiztegiPertsonala hp(link);
  hp.kendu_sarrera(true, "gorri", "<IZO>");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(read_file(path).substr(0, 5), "\netxe");
}
#endif

}  // namespace
