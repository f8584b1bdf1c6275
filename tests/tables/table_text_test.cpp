#include "tarvola/tables/table_text.h"

#include <gtest/gtest.h>

#include <string>

#include "tarvola/tables/Taula.h"
#include "tarvola/tables/cipher.h"
#include "support/test_files.h"

namespace tarvola {
namespace {

using table_text::LineKind;
using table_text::parse_line;

TEST(TableLine, SymbolFields) {
  struct Row {
    const char* line;
    const char* upper;
    const char* lower;
  } rows[] = {
      {"3\ta:b\t4", "a", "b"},     {"1\t<IZE>:<>\t2", "<IZE>", ""}, {"1\tx\t2", "x", "x"},
      {"1\t:\t2", ":", ":"},       {"1\t:a\t2", "", "a"},
      // "<>" on the upper side stays literal; alone it is the same on both sides.
      {"1\t<>:a\t2", "<>", "a"},   {"1\t<>\t2", "<>", "<>"},      {"1\ta:b:c\t2", "a", "b:c"},
  };
  for (const Row& r : rows) {
    auto arc = parse_line(r.line);
    EXPECT_EQ(arc.kind, LineKind::kArc) << r.line;
    EXPECT_EQ(arc.upper, r.upper) << r.line;
    EXPECT_EQ(arc.lower, r.lower) << r.line;
  }
  EXPECT_EQ(parse_line("3\ta:b\t4").state, 3);
  EXPECT_EQ(parse_line("3\ta:b\t4").target, 4);
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

// The states of a text, owned by a table so that they are freed.
Taula loaded(const std::string& text, bool deciphered = false,
             table_text::LoadReport::Problem expected = table_text::LoadReport::kNone) {
  Taula t;
  auto report = deciphered ? table_text::load_deciphered(text, t.egoerak)
                           : table_text::load_plain(text, t.egoerak);
  EXPECT_EQ(report.problem, expected) << text.substr(0, 40);
  return t;
}

TEST(TableLoad, FlagsFollowLastLineOfState) {
  Taula t = loaded("0\ta\t1\nfinal: 0\n0\tb\t1\nfinal\t1\n");
  ASSERT_EQ(t.egoerak.size(), 2u);
  EXPECT_FALSE(t.egoerak[0]->final);  // the arc line after "final: 0" clears it
  ASSERT_EQ(t.egoerak[0]->zubiak.size(), 3u);
  EXPECT_EQ(t.egoerak[0]->zubiak[1]->hurrengoEgoera, -1);
  EXPECT_TRUE(t.egoerak[1]->final);
}

TEST(TableLoad, CrLfOutOfRangeLinesAndImplausibleCounts) {
  Taula crlf = loaded("0\ta\t1\r\nfinal: 1\r\n");
  ASSERT_EQ(crlf.egoerak.size(), 2u);
  EXPECT_EQ(crlf.egoerak[0]->zubiak[0]->goikoIkurra, "a");
  EXPECT_EQ(crlf.egoerak[0]->zubiak[0]->hurrengoEgoera, 1);
  // Source states outside the counted range are skipped, not written.
  Taula wild = loaded("7\ta\t1\n-3\ta\t1\nfinal: 1\n");
  EXPECT_EQ(wild.egoerak.size(), 2u);
  EXPECT_TRUE(wild.egoerak[0]->zubiak.empty());
  EXPECT_TRUE(loaded("final: 999999999\n", false, table_text::LoadReport::kTooManyStates).egoerak.empty());
}

TEST(TableLoad, DecipheredTextRules) {
  Taula t = loaded("0\ta\t1\nfinal: 1", true);
  ASSERT_EQ(t.egoerak.size(), 2u);
  EXPECT_EQ(t.egoerak[0]->zubiak.size(), 1u);
  EXPECT_TRUE(t.egoerak[1]->zubiak.empty());  // unterminated last line not loaded
  loaded("0\ta\t" + std::string(2300, '1') + "\n", true, table_text::LoadReport::kLineTooLong);
}

TEST(TableLoad, MissingEncipheredFileIsSilentAndEmpty) {
  testing::TempDir dir;
  ::testing::internal::CaptureStdout();
  Taula t(dir.file("missingSARE8.bin"));
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_TRUE(t.egoerak.empty());
  EXPECT_TRUE(t.analizatuTokena("x").empty());
}

const std::string kKey = "58pwwjtrrqe72961";

TEST(Cipher, OnlyWholeThirtyTwoByteStretchesOfEachChunkAreEnciphered) {
  std::string stored = cipher::encipher(std::string(40, 'a'));
  for (std::size_t i = 0; i < 32; ++i) EXPECT_EQ(stored[i], static_cast<char>('a' ^ kKey[i % 16])) << i;
  EXPECT_EQ(stored.substr(32), std::string(8, 'a'));
  EXPECT_EQ(cipher::decipher(stored), std::string(40, 'a'));
  // Past the first 32000-byte chunk the round trip holds and the last
  // chunk's tail past its multiple of 32 is again stored plain.
  std::string plain;
  for (int i = 0; plain.size() < 70000; ++i) plain += std::to_string(i) + "\ta:b\t" + std::to_string(i + 1) + "\n";
  stored = cipher::encipher(plain);
  EXPECT_EQ(cipher::decipher(stored), plain);
  const std::size_t tail = (plain.size() % 32000) % 32;
  EXPECT_EQ(stored.substr(plain.size() - tail), plain.substr(plain.size() - tail));
}

TEST(Cipher, ZeroByteEndsTheChunk) {
  std::string stored(64, 'x');
  stored[10] = kKey[10];  // deciphers to a zero byte
  EXPECT_EQ(cipher::decipher(stored).size(), 10u);
}

}  // namespace
}  // namespace tarvola
