// Golden cases for the CG3 and Multext renderings: each folder under
// tests/output/<format>/ holds input.txt (a hand-written analysed paragraph)
// and the expected text without marks (expected.txt) and with them
// (expected_atributuak.txt).
#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/test_files.h"
#include "tarvola/output/multext_writer.h"
#include "tarvola/text/Paragrafoa.h"

namespace tarvola {
namespace {

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
