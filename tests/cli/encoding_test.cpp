#include "common/encoding.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tarvola/base/latin1.h"

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

}  // namespace
}  // namespace tarvola_cli
