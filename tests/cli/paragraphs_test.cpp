#include "common/paragraphs.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>
#include <vector>

namespace tarvola_cli {
namespace {

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

}  // namespace
}  // namespace tarvola_cli
