// The output writers.
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "support/chain_tables.h"
#include "support/test_files.h"
#include "tarvola/output/brindel_writer.h"
#include "tarvola/output/multext_writer.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/text/Paragrafoa.h"

namespace tarvola {
namespace {

// The verdict rules of the correction document, with the engine's services
// replaced by fixed answers so each rule can be seen on its own.
Analisia reading(const std::string& analysis, const std::string& network = "") {
  return Analisia(analysis, network);
}

Analisia generated(const std::string& lemma, const std::string& form) {
  Analisia a(lemma + "<IZE>", "eumorfo");
  a.forma = form;
  return a;
}

Tokena token(const std::string& form, std::vector<Analisia> readings, bool capital = false) {
  Tokena t;
  t.forma = form;
  t.maiuskula = capital;
  t.analisiak = std::move(readings);
  return t;
}

Tokena unknown(const std::string& form, bool capital = false) {
  return token(form, {reading(form + "<EZZG>")}, capital);
}

class BrindelWriter : public ::testing::Test {
 protected:
  BrindelWriter() {
    networks_["eumorfo"] = &network_;
    services_.networks = &networks_;
    services_.prefix_search = [this](const std::string& text) {
      auto it = prefixes_.find(text);
      return it == prefixes_.end() ? std::vector<Analisia>() : it->second;
    };
    services_.suggestions = [this](const std::string&) { return suggestions_; };
    services_.unknown_form = [](const std::string& lemma, const std::string& tags) {
      return lemma + "+" + tags;
    };
  }
  // The verdict text of one token, markup of the document around it cut off.
  std::string verdict(const Tokena& t) {
    Esaldia sentence(-1, "");
    sentence.tokenak.push_back(t);
    std::ostringstream out;
    output::write_brindel(out, {sentence}, services_);
    const std::string doc = out.str();
    const std::size_t begin = doc.find("</frm>") + 6;
    return doc.substr(begin, doc.find("\n</tok>") - begin);
  }

  testing::TempDir dir_;
  const std::string path_ =
      dir_.write("eumorfo.txt", testing::chain_table({"e t x e <IZE>:<> <ABS>:<> <MUGM>:a"}));
  Sarea network_{"eumorfo", path_, new Taula(path_)};
  SareMapa networks_;
  std::map<std::string, std::vector<Analisia>> prefixes_;
  std::vector<std::string> suggestions_;
  output::BrindelServices services_;
};

// (A paragraph of no sentences: EngineConfiguration.DefaultEngineIsEmptyButSafe.)
TEST_F(BrindelWriter, DocumentFrame) {
  Esaldia first(-1, "");
  Tokena a = token("bai", {reading("bai<ITJ>")});
  a.hutsunea = true;
  first.tokenak = {a, token(".", {reading(".<PUN>")})};
  std::ostringstream out;
  output::write_brindel(out, {first, Esaldia(0, "")}, services_);
  EXPECT_EQ(out.str(),
            "<p>\n<es ezk=\"1\" pzk=\"0\">\n"
            "<tok h=\"1\" z=\"32\">\n\t<frm>bai</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "<tok h=\"2\" z=\"0\">\n\t<frm>.</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "</es>\n<es ezk=\"2\" pzk=\"0\">\n</es>\n</p>\n");
}

TEST_F(BrindelWriter, PrefixSuggestions) {
  // Shortest lemma first; a capital lemma, a form already in the verdict
  // text ("bai" of h="bai", "etxea" inside "etxeak") and the sixth are left out.
  prefixes_["etx "] = {generated("etxekoak", "etxekoak"), generated("etxeko", "etxea"),
                       generated("Etxeberri", "Etxeberri"), generated("bai", "bai"),
                       generated("etxe", "etxeak"), generated("etxola", "etxola"),
                       generated("etxalde", "etxalde"), generated("etxarte", "etxarte"),
                       generated("etxaurre", "etxaurre")};
  EXPECT_EQ(verdict(unknown("etx")),
            "\n\t<prop k=\"ezz\" h=\"bai\">"
            "\n\t\t<sugg>etxeak</sugg>\n\t\t<sugg>etxola</sugg>\n\t\t<sugg>etxalde</sugg>"
            "\n\t\t<sugg>etxarte</sugg>\n\t\t<sugg>etxekoak</sugg>\n\t</prop>");
}

TEST_F(BrindelWriter, CapitalisedTokenAlsoSearchesLowerCase) {
  prefixes_["Etx "] = {generated("etxola", "Etxola")};
  prefixes_["etx "] = {generated("etxola", "etxola"), generated("etxe", "etxe")};
  EXPECT_EQ(verdict(unknown("Etx", true)),
            "\n\t<prop k=\"ezz\" h=\"bai\">\n\t\t<sugg>Etxe</sugg>\n\t\t<sugg>Etxola</sugg>\n\t</prop>");
  // Without the capital mark the lower-case search is not made.
  EXPECT_EQ(verdict(unknown("Etx")),
            "\n\t<prop k=\"ezz\" h=\"bai\">\n\t\t<sugg>Etxola</sugg>\n\t</prop>");
}

// Not asked for, no search is made: the services tests' Brindel.Verdicts.
TEST_F(BrindelWriter, SuggestionsWhenAskedForOnceEach) {
  suggestions_ = {"etxea", "etxe", "etxea"};
  services_.proposamenak = true;
  EXPECT_EQ(verdict(unknown("etxae")),
            "\n\t<prop k=\"ezz\">\n\t\t<sugg>etxea</sugg>\n\t\t<sugg>etxe</sugg>\n\t</prop>");
  suggestions_.clear();
  EXPECT_EQ(verdict(unknown("etxae")), "\n\t<prop k=\"ezz\">\n\t</prop>");
}

TEST_F(BrindelWriter, StandardReadingMakesOk) {
  // The replacement gathered before the standard reading is dropped.
  EXPECT_EQ(verdict(token("etxia", {reading("etxi<IZE><ABS><MUGM>[h=etxe]", "eumorfo"),
                                     reading("etxia<IZE>")})),
            "\n\t<prop k=\"ok\"/>");
  // Two readings of which one is an unknown-word fallback are not unknown.
  EXPECT_EQ(verdict(token("xy", {reading("xy<EZZG>"), reading("xy<IZE>")})), "\n\t<prop k=\"ok\"/>");
}

TEST_F(BrindelWriter, ReplacementsOfNonStandardReadings) {
  // "hobe" through the network, once even when two readings give it; the
  // capital of the word is kept.
  Analisia better = reading("etxi<IZE><ABS><MUGM>[h=etxe]", "eumorfo");
  better.maiuskulaMota = 1;
  EXPECT_EQ(verdict(token("Etxia", {better, better})),
            "\n\t<prop>\n\t\t<hobe>Etxea</hobe>\n\t</prop>");
  // ("erabili" through the unknown-form generation: Brindel.Verdicts.)
  // A reading of a network that is not loaded gives nothing.
  EXPECT_EQ(verdict(token("etxia", {reading("etxi<IZE>[h=etxe]", "galdua")})),
            "\n\t<prop>\n\t</prop>");
  // Rare readings are passed over, so a token of rare readings only has an
  // empty verdict.
  EXPECT_EQ(verdict(token("zaharki", {reading("zaharki<ADJ><Rare>"), reading("zaharki<IZE><Rare>")})),
            "\n\t<prop>\n\t</prop>");
}

// Golden cases for the CG3 and Multext renderings: each folder under
// tests/output/<format>/ holds input.txt (a hand-written analysed paragraph)
// and the expected text without marks (expected.txt) and with them
// (expected_atributuak.txt).
namespace fs = std::filesystem;

// A golden case's input.txt: one item a line, fields separated by tabs,
// "#" starting a comment line.
//   p  ID                      the paragraph (first line)
//   s                          a new sentence
//   t  FORM  BLANK             a token; BLANK is 1 when a blank follows it
//   r  ANALYSIS  CAPITALS [NETWORK]
//                              a reading of the last token, parsed from the
//                              analysis string; CAPITALS is maiuskulaMota
Paragrafoa parse_paragraph(const std::string& text) {
  Paragrafoa p(0, "");
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> f;
    std::istringstream fields(line);
    for (std::string field; std::getline(fields, field, '\t');) f.push_back(field);
    if (f[0] == "p") {
      p.id = std::stoi(f.at(1));
    } else if (f[0] == "s") {
      p.esaldiak.emplace_back(static_cast<int>(p.esaldiak.size()) - 1, "");
    } else if (f[0] == "t") {
      Tokena token;
      token.forma = f.at(1);
      token.hutsunea = f.at(2) == "1";
      p.esaldiak.back().tokenak.push_back(token);
    } else if (f[0] == "r") {
      Analisia a(f.at(1), f.size() > 3 ? f[3] : "");
      a.maiuskulaMota = std::stoi(f.at(2));
      p.esaldiak.back().tokenak.back().analisiak.push_back(a);
    }
  }
  return p;
}

fs::path golden_root(const std::string& format) {
  return fs::path(TARVOLA_TEST_DATA_DIR) / ".." / "output" / format;
}

// Calls check(case name, paragraph, flag, expected text) for every case and
// both flags.
template <typename Check>
int for_each_case(const std::string& format, Check check) {
  int cases = 0;
  for (const auto& entry : fs::directory_iterator(golden_root(format))) {
    if (!entry.is_directory()) continue;
    const fs::path dir = entry.path();
    const Paragrafoa p = parse_paragraph(testing::read_file((dir / "input.txt").string()));
    check(dir.filename().string(), p, false, testing::read_file((dir / "expected.txt").string()));
    check(dir.filename().string(), p, true,
          testing::read_file((dir / "expected_atributuak.txt").string()));
    ++cases;
  }
  return cases;
}

TEST(Renderers, Cg3GoldenCases) {
  const int cases = for_each_case(
      "cg3", [](const std::string& name, const Paragrafoa& p, bool marks, const std::string& want) {
        EXPECT_EQ(p.get_CG3(marks, false, false), want) << name << " atributuak=" << marks;
        // The two ignored flags change nothing.
        EXPECT_EQ(p.get_CG3(marks, true, true), want) << name;
      });
  EXPECT_GE(cases, 2);
}

TEST(Renderers, MultextGoldenCases) {
  const int cases = for_each_case(
      "multext", [](const std::string& name, const Paragrafoa& p, bool marks, const std::string& want) {
        std::ostringstream out;
        output::write_multext(out, p, marks);
        EXPECT_EQ(out.str(), want) << name << " atributuak=" << marks;
      });
  EXPECT_GE(cases, 3);
}

TEST(Renderers, MultextGoesToStandardOutput) {
  const Paragrafoa p = parse_paragraph("p\t4\ns\nt\tez\t0\nr\tez<ADB>\t0\n");
  std::ostringstream captured;
  std::streambuf* old = std::cout.rdbuf(captured.rdbuf());
  p.print_Multext(false, true, true);
  std::cout.rdbuf(old);
  EXPECT_EQ(captured.str(), "{p=4 s=1 z=1}\tEOS\nez\tBOS\t=\\+Adb\n\n\n");
}

TEST(Renderers, Cg3OfNoSentenceIsEmpty) {
  EXPECT_EQ(Paragrafoa(1, "").get_CG3(true, false, false), "");
}

}  // namespace
}  // namespace tarvola
