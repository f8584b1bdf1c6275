#include "tarvola/tables/table_text.h"

#include <gtest/gtest.h>

#include "tarvola/tables/Taula.h"
#include "support/test_files.h"

namespace tarvola {
namespace {

using table_text::LineKind;
using table_text::parse_line;

TEST(TableLine, SymbolFields) {
  auto a = parse_line("3\ta:b\t4");
  EXPECT_EQ(a.kind, LineKind::kArc);
  EXPECT_EQ(a.state, 3);
  EXPECT_EQ(a.target, 4);
  EXPECT_EQ(a.upper, "a");
  EXPECT_EQ(a.lower, "b");

  auto tag = parse_line("1\t<IZE>:<>\t2");
  EXPECT_EQ(tag.upper, "<IZE>");
  EXPECT_EQ(tag.lower, "");
  auto same = parse_line("1\tx\t2");
  EXPECT_EQ(same.upper, "x");
  EXPECT_EQ(same.lower, "x");
  auto colon = parse_line("1\t:\t2");
  EXPECT_EQ(colon.upper, ":");
  EXPECT_EQ(colon.lower, ":");
  auto lower_only = parse_line("1\t:a\t2");
  EXPECT_EQ(lower_only.upper, "");
  EXPECT_EQ(lower_only.lower, "a");
  // "<>" on the upper side stays literal; alone it is the same on both sides.
  auto upper_empty_tag = parse_line("1\t<>:a\t2");
  EXPECT_EQ(upper_empty_tag.upper, "<>");
  auto bare = parse_line("1\t<>\t2");
  EXPECT_EQ(bare.upper, "<>");
  EXPECT_EQ(bare.lower, "<>");
  auto first_colon = parse_line("1\ta:b:c\t2");
  EXPECT_EQ(first_colon.upper, "a");
  EXPECT_EQ(first_colon.lower, "b:c");
}

TEST(TableLine, FinalsShortAndMalformed) {
  EXPECT_EQ(parse_line("final: 5").kind, LineKind::kFinal);
  EXPECT_EQ(parse_line("final: 5").state, 5);
  EXPECT_EQ(parse_line("final\t5").state, 5);
  EXPECT_EQ(parse_line("finalX12").state, 12);
  EXPECT_EQ(parse_line("1\ta\t\t").kind, LineKind::kArc);  // target reads as 0
  EXPECT_EQ(parse_line("1\ta2").kind, LineKind::kIgnored);  // 4 bytes
  EXPECT_EQ(parse_line("12345").kind, LineKind::kMalformed);
  EXPECT_EQ(parse_line("1\tabc").kind, LineKind::kMalformed);
  EXPECT_EQ(parse_line(std::string(98, '7') + "\ta\t1").kind, LineKind::kArc);
  EXPECT_EQ(parse_line(std::string(99, '7') + "\ta\t1").kind, LineKind::kFieldTooLong);
  EXPECT_EQ(parse_line("1\t" + std::string(99, 'a') + "\t1").kind, LineKind::kFieldTooLong);
  EXPECT_EQ(parse_line("1\ta\t" + std::string(500, '9')).target, 2147483647);
}

TEST(TableCount, LastCountedLineNotLargest) {
  EXPECT_EQ(table_text::count_plain("0\ta\t9\n9\tb\t1\nfinal: 7\n"), 8);
  EXPECT_EQ(table_text::count_plain("// no states here\n"), 1);
  EXPECT_EQ(table_text::count_plain(""), 1);
  EXPECT_EQ(table_text::count_plain("0\ta\t1\n3\n"), 4);  // counted though too short to load
  table_text::LoadReport report;
  EXPECT_EQ(table_text::count_deciphered("0\ta\t1\nfinal: 4", report), 5);  // unterminated counts
}

TEST(TableLoad, FlagsFollowLastLineOfState) {
  std::vector<Egoera*> states;
  auto report = table_text::load_plain("0\ta\t1\nfinal: 0\n0\tb\t1\nfinal\t1\n", states);
  ASSERT_EQ(report.problem, table_text::LoadReport::kNone);
  ASSERT_EQ(states.size(), 2u);
  EXPECT_FALSE(states[0]->final);  // the arc line after "final: 0" clears it
  ASSERT_EQ(states[0]->zubiak.size(), 3u);
  EXPECT_EQ(states[0]->zubiak[1]->hurrengoEgoera, -1);
  EXPECT_TRUE(states[1]->final);
  Taula owner;
  owner.egoerak = states;
}

TEST(TableLoad, CrLfAndOutOfRangeLines) {
  std::vector<Egoera*> crlf;
  table_text::load_plain("0\ta\t1\r\nfinal: 1\r\n", crlf);
  std::vector<Egoera*> lf;
  table_text::load_plain("0\ta\t1\nfinal: 1\n", lf);
  ASSERT_EQ(crlf.size(), lf.size());
  EXPECT_EQ(crlf[0]->zubiak[0]->goikoIkurra, "a");
  EXPECT_EQ(crlf[0]->zubiak[0]->hurrengoEgoera, 1);
  // Source states outside the counted range are skipped, not written.
  std::vector<Egoera*> wild;
  table_text::load_plain("7\ta\t1\n-3\ta\t1\nfinal: 1\n", wild);
  EXPECT_EQ(wild.size(), 2u);
  EXPECT_TRUE(wild[0]->zubiak.empty());
  Taula a, b, c;
  a.egoerak = crlf;
  b.egoerak = lf;
  c.egoerak = wild;
}

TEST(TableLoad, ImplausibleStateCountIsRefused) {
  std::vector<Egoera*> states;
  auto report = table_text::load_plain("final: 999999999\n", states);
  EXPECT_EQ(report.problem, table_text::LoadReport::kTooManyStates);
  EXPECT_TRUE(states.empty());
}

TEST(TableLoad, DecipheredTextRules) {
  std::vector<Egoera*> states;
  table_text::LoadReport report = table_text::load_deciphered("0\ta\t1\nfinal: 1", states);
  EXPECT_EQ(report.problem, table_text::LoadReport::kNone);
  ASSERT_EQ(states.size(), 2u);
  EXPECT_EQ(states[0]->zubiak.size(), 1u);
  EXPECT_TRUE(states[1]->zubiak.empty());  // unterminated last line not loaded
  std::vector<Egoera*> long_line;
  report = table_text::load_deciphered("0\ta\t" + std::string(2300, '1') + "\n", long_line);
  EXPECT_EQ(report.problem, table_text::LoadReport::kLineTooLong);
  Taula a, b;
  a.egoerak = states;
  b.egoerak = long_line;
}

TEST(TableLoadDeathTest, FieldTooLongEndsTheProcess) {
  testing::TempDir dir;
  std::string path = dir.write("long.txt", "0\t" + std::string(120, 'a') + "\t1\n");
  EXPECT_EXIT({ Taula t(path); }, ::testing::ExitedWithCode(1), "");
}

TEST(TableLoadDeathTest, MissingPlainFileExitsWithZero) {
  testing::TempDir dir;
  std::string path = dir.file("missing.txt");
  EXPECT_EXIT({ Taula t(path); }, ::testing::ExitedWithCode(0), "");
}

TEST(TableLoad, MissingEncipheredFileIsSilentAndEmpty) {
  testing::TempDir dir;
  ::testing::internal::CaptureStdout();
  Taula t(dir.file("missingSARE8.bin"));
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_TRUE(t.egoerak.empty());
  EXPECT_TRUE(t.analizatuTokena("x").empty());
}

}  // namespace
}  // namespace tarvola
