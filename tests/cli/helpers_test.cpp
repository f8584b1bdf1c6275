// The tool's helpers: code page conversion of each piece of input, the
// cutting of a stream into the paragraphs the engine is given, and the
// report on a table file.
#include "common/encoding.h"
#include "common/paragraphs.h"
#include "common/table_report.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tarvola/base/latin1.h"
#include "tarvola/tables/cipher.h"

namespace tarvola_cli {
namespace {

EnginePiece convert(const std::string& raw, Encoding e = Encoding::kUtf8,
                    std::vector<std::pair<std::size_t, std::size_t>>* bad = nullptr) {
  EnginePiece piece;
  EXPECT_TRUE(to_engine(raw, e, [&](std::size_t l, std::size_t c) {
    if (bad) bad->push_back({l, c});
  }, piece));
  return piece;
}

TEST(encoding, code_page_characters_map_to_single_bytes) {
  EnginePiece p = convert("Iruñea €uro “ü”");
  EXPECT_EQ(p.text(), "Iru\xF1" "ea \x80uro \x93\xFC\x94");
  EXPECT_EQ(p.restore(p.text(), Encoding::kUtf8), "Iruñea €uro “ü”");
  EXPECT_EQ(p.restore(p.text(), Encoding::kCp1252), p.text());
  EXPECT_EQ(cp1252_to_utf8("\xF1\x81"), "ñ\xC2\x81");  // undefined byte as its C1 control
}

TEST(encoding, foreign_characters_pass_through_inside_the_word) {
  static const char kRaw[] = "Łódź 日本 a\0b \x01 🙂Ł";
  const std::string raw(kRaw, sizeof kRaw - 1);
  EnginePiece p = convert(raw);
  ASSERT_EQ(p.text().size(), 16u);  // one byte a character
  for (char c : p.text()) {
    EXPECT_NE(c, '\0');
    if (c != ' ') {
      EXPECT_FALSE(tarvola::latin1::is_punctuation(c)) << int(c);
    }
  }
  EXPECT_EQ(p.text()[0], p.text()[15]);  // the same character, the same placeholder
  EXPECT_EQ(p.restore(p.text(), Encoding::kUtf8), raw);
  // Engine output that repeats a form is restored wherever it appears.
  std::string twice = p.text().substr(0, 4) + "\t" + p.text().substr(0, 4);
  EXPECT_EQ(p.restore(twice, Encoding::kUtf8), "Łódź\tŁódź");
}

TEST(encoding, malformed_utf8_is_reported_and_kept) {
  std::vector<std::pair<std::size_t, std::size_t>> bad;
  const std::string raw = "caf\xE9 ok \xC3";  // code page 1252 text given as UTF-8
  EnginePiece p = convert(raw, Encoding::kUtf8, &bad);
  EXPECT_EQ(bad, (std::vector<std::pair<std::size_t, std::size_t>>{{1, 4}, {1, 9}}));
  EXPECT_EQ(p.restore(p.text(), Encoding::kUtf8), raw);
  // Overlong forms and surrogates are malformed too.
  bad.clear();
  convert("\xC0\xAF \xED\xA0\x80", Encoding::kUtf8, &bad);
  EXPECT_EQ(bad.size(), 5u);
}

TEST(encoding, code_page_input_keeps_its_bytes) {
  const std::string raw = std::string("Iru\xF1" "ea\0\x81", 8);
  EnginePiece p = convert(raw, Encoding::kCp1252);
  EXPECT_EQ(p.text().substr(0, 6), "Iru\xF1" "ea");
  EXPECT_NE(p.text()[6], '\0');
  EXPECT_EQ(p.restore(p.text(), Encoding::kCp1252), raw);
  EXPECT_EQ(p.restore(p.text(), Encoding::kUtf8), std::string("Iruñea\0\x81", 9));
}

TEST(encoding, a_word_with_too_many_foreign_characters_is_refused) {
  std::string raw;
  for (int i = 0; i < 33; ++i) raw += "\xD0" + std::string(1, static_cast<char>(0x90 + i));
  EnginePiece piece;
  EXPECT_FALSE(to_engine(raw, Encoding::kUtf8, nullptr, piece));
  raw.resize(64);
  EXPECT_TRUE(to_engine(raw, Encoding::kUtf8, nullptr, piece));
}

struct Cut {
  std::vector<std::string> engine;    // what the engine is given
  std::vector<std::string> restored;  // each piece back in UTF-8
};

Cut read_all(const std::string& input, ParagraphMode mode = ParagraphMode::kLine,
             Encoding encoding = Encoding::kUtf8) {
  std::FILE* f = std::tmpfile();
  std::fwrite(input.data(), 1, input.size(), f);
  std::rewind(f);
  ParagraphSource source(f, "test", encoding, mode);
  Cut cut;
  EnginePiece piece;
  while (source.next(piece)) {
    cut.engine.push_back(piece.text());
    cut.restored.push_back(piece.restore(piece.text(), encoding));
  }
  std::fclose(f);
  return cut;
}

std::string joined(const std::vector<std::string>& v) {
  std::string all;
  for (const std::string& s : v) all += s;
  return all;
}

TEST(paragraphs, lines_and_blank_line_paragraphs) {
  const std::string text = "\xEF\xBB\xBFLehena.\r\n  \nBigarren\nlerroa.\n\n\nHirugarrena";
  EXPECT_EQ(read_all(text).restored,
            (std::vector<std::string>{"Lehena.", "Bigarren", "lerroa.", "Hirugarrena"}));
  EXPECT_EQ(read_all(text, ParagraphMode::kBlankLine).restored,
            (std::vector<std::string>{"Lehena.", "Bigarren lerroa.", "Hirugarrena"}));
  EXPECT_TRUE(read_all("").engine.empty());
  EXPECT_TRUE(read_all("\n \t\n").engine.empty());
}

// Cuts after a sentence end: very_long_lines_stream_in_bounded_pieces.
TEST(paragraphs, long_paragraphs_are_cut_after_sentences_then_blanks) {
  std::string words;
  while (words.size() < 12000) words += "hitza ";
  Cut cut = read_all(words);
  EXPECT_EQ(cut.engine[0].size(), 9996u);  // after the last blank within the limit
  EXPECT_EQ(joined(cut.restored), words);

  std::string solid(25000, 'x');
  cut = read_all(solid);
  EXPECT_EQ(cut.engine.size(), 3u);
  EXPECT_EQ(cut.engine[0].size(), kMaxParagraph);
  EXPECT_EQ(joined(cut.engine), solid);
}

TEST(paragraphs, pieces_never_need_more_placeholders_than_there_are) {
  std::string text;  // Cyrillic: 64 distinct letters the code page lacks
  for (int round = 0; round < 3; ++round)
    for (int i = 0; i < 64; ++i)
      text += std::string("\xD0") + static_cast<char>(0x90 + (i % 48)) + (i % 5 == 0 ? " " : "");
  Cut cut = read_all(text + "\n");
  ASSERT_GT(cut.engine.size(), 1u);
  EXPECT_EQ(joined(cut.restored), text);
  for (const std::string& e : cut.engine) {
    std::set<char> distinct;
    for (char c : e)
      if (static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) >= 0x7F) distinct.insert(c);
    EXPECT_LE(distinct.size(), kPlaceholders);
  }
}

// A line far longer than the reader's buffer comes in pieces of at most an
// engine paragraph, each cut after a sentence end, nothing lost between them.
TEST(paragraphs, very_long_lines_stream_in_bounded_pieces) {
  std::string text;
  while (text.size() < 300000) text += "ñandu hegaztia da eta mendia ere bai. ";
  text += "azkena";
  Cut cut = read_all(text + "\nbukaera\n");
  EXPECT_EQ(cut.restored.back(), "bukaera");
  cut.restored.pop_back();
  cut.engine.pop_back();
  EXPECT_EQ(joined(cut.restored), text);
  for (std::size_t i = 0; i < cut.engine.size(); ++i) {
    EXPECT_LE(cut.engine[i].size(), kMaxParagraph);
    if (i + 1 < cut.engine.size()) {
      EXPECT_EQ(cut.engine[i].substr(cut.engine[i].size() - 2), ". ") << i;
    }
  }
}

std::vector<std::string> messages(const TableReport& r) {
  std::vector<std::string> out;
  for (const TableProblem& p : r.problems) out.push_back(std::to_string(p.line) + " " + p.message);
  return out;
}

const std::string kGood = "0\ta\t1\n0\t<X>:<>\t2\n1\t<N>:<>\t2\nfinal: 2\n";

TEST(table_report, stats_of_a_sound_table) {
  TableReport r = inspect_table(kGood, false);
  EXPECT_TRUE(r.problems.empty());
  EXPECT_EQ(r.stats.states, 3);
  EXPECT_EQ(r.stats.arcs, 3u);
  EXPECT_EQ(r.stats.final_states, 1u);
  EXPECT_EQ(r.stats.epsilon_arcs, 2u);
  EXPECT_EQ(r.stats.upper_symbols, 3u);
  EXPECT_EQ(r.stats.lower_symbols, 1u);
}

// Each fault of a plain table with its line: the golden case cli.table_check_bad.
TEST(table_report, faults_the_loader_would_trip_on) {
  // A garbled state number: reported, and nothing allocated for it.
  const std::vector<std::string> garbled = messages(inspect_table("0\ta\t1\nfinal: 1\n1777777777\tb\t1\n", false));
  ASSERT_FALSE(garbled.empty());
  EXPECT_EQ(garbled.front(),
            "0 state count 1777777778 is more than the text could fill: the loader refuses the table");
  EXPECT_EQ(messages(inspect_table("0\ta\t1\n", false)),
            (std::vector<std::string>{"0 no final state: the table recognises nothing",
                                      "1 target state 1 out of range (the table counts 1 states)"}));
}

TEST(table_report, enciphered_tables) {
  std::string plain = kGood;
  EXPECT_TRUE(encipher_problems(plain, false).empty());
  TableReport r = inspect_table(tarvola::cipher::encipher(plain), true);
  EXPECT_TRUE(r.problems.empty());
  EXPECT_EQ(r.stats.arcs, 3u);

  std::string shorty = "0\ta\t1\n\n1\tb\t2\nfinal: 2";
  EXPECT_EQ(encipher_problems(shorty, false).size(), 2u);  // short line, no last line end
  // The loader stalls at the empty line and never reaches the final line.
  EXPECT_EQ(messages(inspect_table(tarvola::cipher::encipher(shorty), true)),
            (std::vector<std::string>{"0 no final state: the table recognises nothing",
                                      "2 line under 5 bytes: the enciphered loader stops here"}));
  EXPECT_TRUE(encipher_problems(shorty, true).empty());
  EXPECT_EQ(shorty, "0\ta\t1\n1\tb\t2\nfinal: 2\n");
}

}  // namespace
}  // namespace tarvola_cli
