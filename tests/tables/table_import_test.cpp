#include "tarvola/tables/table_import.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tarvola/tables/table_text.h"

namespace ti = tarvola::table_import;
using tarvola::table_text::LineKind;

namespace {

using Strings = std::vector<std::string>;

// Reads table text by the loader's own line grammar and walks it from the
// surface side, so the tests check what lookup will see, not how the lines
// happen to be spelt.
struct Table {
  struct Arc {
    int target;
    std::string upper, lower;
  };
  std::vector<std::vector<Arc>> states;
  int counted = 1;

  explicit Table(const std::string& text) {
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
      const auto l = tarvola::table_text::parse_line(line);
      EXPECT_TRUE(l.kind == LineKind::kArc || l.kind == LineKind::kFinal) << line;
      if (l.kind == LineKind::kFinal) at(l.state).push_back({-1, "", ""});
      if (l.kind == LineKind::kArc) at(l.state).push_back({l.target, std::string(l.upper), std::string(l.lower)});
      counted = l.state + 1;
    }
  }
  std::vector<Arc>& at(int n) {
    if (states.size() <= static_cast<std::size_t>(n)) states.resize(n + 1);
    return states[n];
  }
  std::vector<std::string> lookup(const std::string& word) const {
    std::vector<std::string> out;
    std::function<void(int, std::size_t, std::string)> walk = [&](int s, std::size_t pos, std::string up) {
      if (s < 0) {
        if (pos == word.size()) out.push_back(up);
        return;
      }
      EXPECT_LT(s, counted) << "state beyond the counted number";
      for (const Arc& a : states[s])
        if (word.compare(pos, a.lower.size(), a.lower) == 0) walk(a.target, pos + a.lower.size(), up + a.upper);
    };
    walk(0, 0, "");
    return out;
  }
};

ti::ImportResult run(const std::string& text, ti::ImportOptions opt = {}) { return ti::import_table(text, opt); }

std::set<std::string> as_set(const std::vector<std::string>& v) { return {v.begin(), v.end()}; }

// foma's "write att" of [{etxe} "+N":0 | {etxe} "+N":0 "+Pl":{ak}].
const char* kFoma =
    "0\t2\te\te\n0\t1\t+N\t+N\n1\t8\t:\t:\n2\t3\tt\tt\n3\t4\tx\tx\n4\t5\te\te\n"
    "5\t6\t+N\t@0@\n6\t7\t+Pl\ta\n7\t8\t@0@\tk\n6\n8\n";

}  // namespace

TEST(TableImport, AttFromFomaAnalysesTheLowerSide) {
  auto r = run(kFoma);
  ASSERT_TRUE(r.ok()) << r.problems.front().message;
  Table t(r.table);
  EXPECT_EQ(as_set(t.lookup("etxe")), (std::set<std::string>{"etxe+N"}));
  EXPECT_EQ(t.lookup("etxeak"), Strings{"etxe+N+Pl"});
  EXPECT_EQ(t.lookup("+n:"), Strings{"+N:"});
  EXPECT_EQ(r.states, 9u);
  EXPECT_EQ(r.finals, 2u);
  // States ascend and each final line follows its state's arcs, the
  // highest state last so that counting from the last line sees them all.
  EXPECT_NE(r.table.find("5\t+N:<>\t6\n6\t+Pl:a\t7\nfinal\t6\n"), std::string::npos);
  EXPECT_EQ(r.table.substr(r.table.size() - 8), "final\t8\n");
}

TEST(TableImport, SurfaceColumnCanBeChosen) {
  ti::ImportOptions opt;
  opt.surface_column = 3;
  Table t(run(kFoma, opt).table);
  EXPECT_EQ(t.lookup("etxe+n+pl"), Strings{"etxeak"});
  opt.surface_column = 5;
  EXPECT_FALSE(run(kFoma, opt).ok());
}

TEST(TableImport, HfstWeightsAndSpacesAreRead) {
  // hfst-fst2txt: weights in a fifth column, finals with a weight, the
  // space written as @_SPACE_@, epsilon as @0@.
  auto r = run("0\t1\tbat@_SPACE_@egin\tbat@_SPACE_@egin\t0.000000\n1\t2\t<ADI>\t@0@\t0.0\n2\t0.000000\n");
  ASSERT_TRUE(r.ok());
  EXPECT_EQ(Table(r.table).lookup("bat egin"), Strings{"bat egin<ADI>"});
}

TEST(TableImport, LtPrintSectionsAreJoinedUnderANewStart) {
  // lt-print: surface on the left, "ε" for epsilon, sections split by "--",
  // each numbered from 0, lines ending in a tab.
  const std::string text =
      "0\t1\t.\t.\t0.000000\t\n1\t2\tε\t<sent>\t0.000000\t\n2\t0.000000\n--\n"
      "0\t1\tE\te\t0.000000\t\n1\t2\tz\tz\t0.000000\t\n2\t3\tε\t<adv>\t0.000000\t\n3\t0.000000\n";
  auto r = run(text);
  ASSERT_TRUE(r.ok());
  Table t(r.table);
  EXPECT_EQ(t.lookup("."), Strings{".<sent>"});
  // The surface is lower-cased, the analysis side keeps its case.
  EXPECT_EQ(t.lookup("ez"), Strings{"ez<adv>"});
  EXPECT_TRUE(t.lookup("Ez").empty());
  EXPECT_EQ(r.table.rfind("0\t:<>\t", 0), 0u);
}

TEST(TableImport, KeepCaseLeavesTheSurfaceAlone) {
  ti::ImportOptions opt;
  opt.keep_case = true;
  auto r = run("0\t1\tBilbo\tBilbo\n1\t2\t<LIB>\t@0@\n2\n", opt);
  EXPECT_EQ(Table(r.table).lookup("Bilbo"), Strings{"Bilbo<LIB>"});
  r = run("0\t1\tBilbo\tBilbo\n0\t1\tBilbo\tbilbo\n1\t2\t<LIB>\t@0@\n2\n");
  // Both arcs become the same once lower-cased: one reading, not two.
  EXPECT_EQ(Table(r.table).lookup("bilbo"), Strings{"Bilbo<LIB>"});
}

TEST(TableImport, SfstPrintIsRead) {
  // fst-print: "<>" for epsilon, escaped colon, finals as a bare number.
  const std::string text =
      "0\t1\t\xC3\xA4\t\xC3\xA4\n0\t1\t\\:\t\\:\n0\t1\ta\t\\:\n0\t2\te\te\n1\n2\t3\tt\tt\n3\t4\tx\tx\n"
      "4\t5\te\te\n5\t6\t<N>\t<>\n6\t7\t<PL>\ta\n6\n7\t1\t<>\tk\n";
  ti::ImportOptions opt;
  opt.format = ti::SourceFormat::Sfst;
  auto r = run(text, opt);
  ASSERT_TRUE(r.ok()) << r.problems.front().message;
  Table t(r.table);
  EXPECT_EQ(t.lookup("etxeak"), Strings{"etxe<N><PL>"});
  EXPECT_EQ(t.lookup("\xE4"), Strings{"\xE4"});  // UTF-8 a-umlaut to cp1252
  EXPECT_EQ(as_set(t.lookup(":")), (std::set<std::string>{":", "a"}));
}

TEST(TableImport, TagsAreRenamedOnTheAnalysisSideOnly) {
  std::vector<ti::ImportProblem> problems;
  ti::ImportOptions opt;
  opt.tag_map = ti::parse_tag_map("# Apertium to ours\n<n>\t<IZE><ARR>\n<sg>\t\nbad line\n", true, problems);
  ASSERT_EQ(problems.size(), 1u);
  EXPECT_EQ(problems[0].line, 4u);
  auto r = run("0\t1\tetxe\tetxe\n1\t2\t<n>\t@0@\n2\t3\t<sg>\t@0@\n3\t4\t<n>\t<n>\n3\n4\n", opt);
  ASSERT_TRUE(r.ok());
  Table t(r.table);
  EXPECT_EQ(t.lookup("etxe"), Strings{"etxe<IZE><ARR>"});
  EXPECT_EQ(t.lookup("etxe<n>"), Strings{"etxe<IZE><ARR><IZE><ARR>"});
}

TEST(TableImport, WhatTheLineGrammarCannotCarryIsReportedWithItsLine) {
  const std::string long_tag = "<" + std::string(97, 'X') + ">";
  struct Case {
    std::string line;
    std::string says;
  } cases[] = {
      {"0\t1\ta:b\tc\n", "colon"},
      {"0\t1\t" + long_tag + "\t@0@\n", "at most 98"},
      {"0\t1\t\xE2\x82\xACx\t\xE4\xB8\xAD\n", "code page 1252"},  // a CJK character
      {"0\t1\ta\t\xC3\n", "UTF-8"},
      {"0\t1\t@_IDENTITY_SYMBOL_@\t@_IDENTITY_SYMBOL_@\n", "special"},
      {"0\t1\t@P.CASE.ERG@\t@0@\n", "special"},
      {"0\t1\tx\t<>\n", "<>"},
      {"zero\t1\ta\ta\n", "state number"},
  };
  for (const Case& c : cases) {
    auto r = run("0\t0\ty\ty\n" + c.line + "1\n");
    EXPECT_FALSE(r.ok()) << c.line;
    EXPECT_TRUE(r.table.empty());
    ASSERT_EQ(r.problems.size(), 1u) << c.line;
    EXPECT_EQ(r.problems[0].line, 2u);
    EXPECT_NE(r.problems[0].message.find(c.says), std::string::npos) << r.problems[0].message;
  }
  // A euro sign and a 98-byte field do fit.
  EXPECT_TRUE(run("0\t1\t\xE2\x82\xAC\t\xE2\x82\xAC\n1\n").ok());
  EXPECT_TRUE(run("0\t1\t<" + std::string(93, 'X') + ">\t@0@\n1\n").ok());
}

TEST(TableImport, DroppingUnrepresentableArcsKeepsTheRest) {
  ti::ImportOptions opt;
  opt.drop_unrepresentable = true;
  auto r = run("0\t1\ta\ta\n0\t2\ta:b\tc\n2\t1\td\td\n1\n", opt);
  ASSERT_TRUE(r.ok());
  EXPECT_EQ(r.problems.size(), 1u);
  Table t(r.table);
  EXPECT_EQ(t.lookup("a"), Strings{"a"});
  // State 2 led nowhere once its only way in was dropped: it is gone.
  EXPECT_EQ(r.states, 2u);
}

TEST(TableImport, EpsilonCyclesOnTheSurfaceAreRefused) {
  auto r = run("0\t1\ta\ta\n1\t2\t<X>\t@0@\n2\t1\t<Y>\t@0@\n2\n");
  EXPECT_FALSE(r.ok());
  ASSERT_FALSE(r.problems.empty());
  EXPECT_NE(r.problems[0].message.find("cycle"), std::string::npos);
  // A cycle that consumes surface symbols is an ordinary loop.
  EXPECT_TRUE(run("0\t1\ta\ta\n1\t0\t<X>\tb\n1\n").ok());
}

TEST(TableImport, StatesThatLeadNowhereAreLeftOutAndTheRestRenumbered) {
  auto r = run("0\t5\ta\ta\n0\t3\tb\tb\n3\t9\tc\tc\n5\n");
  ASSERT_TRUE(r.ok());
  EXPECT_EQ(r.table, "0\ta\t1\nfinal\t1\n");
  // Nothing accepted at all: an empty table, which loads as one bare state.
  r = run("0\t1\ta\ta\n");
  ASSERT_TRUE(r.ok());
  EXPECT_TRUE(r.table.empty());
}
