#include "tarvola/base/latin1.h"

#include <gtest/gtest.h>

namespace tarvola {
namespace {

TEST(Latin1, CaseMappingCoversWholeBlocks) {
  EXPECT_EQ(latin1::lowered("ETXEA \xC0\xD7\xDD\xDE"), "etxea \xE0\xF7\xFD\xDE");
  EXPECT_EQ(latin1::uppered("etxea \xE0\xF7\xFD\xFE\xFF"), "ETXEA \xC0\xD7\xDD\xFE\xFF");
  EXPECT_TRUE(latin1::is_all_upper("ETXEA 123,"));
  EXPECT_FALSE(latin1::is_all_upper("ETXEa"));
  EXPECT_FALSE(latin1::is_ascii_lower('\xE9'));
}

TEST(Latin1, TokeniserClasses) {
  for (char c : std::string("*!,[]:\"/?{}();_+='-.\xA1\xBF")) EXPECT_TRUE(latin1::is_punctuation(c)) << c;
  EXPECT_TRUE(latin1::is_punctuation('\0'));
  for (char c : std::string("%#\t\xAB\xBB\xC8")) {
    EXPECT_FALSE(latin1::is_punctuation(c)) << c;
    EXPECT_FALSE(latin1::is_word_char(c)) << c;
  }
  for (char c : std::string("aZ09\x80\x9A\xBA\xD1\xF1\xE9\xFC")) EXPECT_TRUE(latin1::is_word_char(c)) << c;
  EXPECT_FALSE(latin1::is_word_char('\xF0'));
  EXPECT_FALSE(latin1::is_word_char('\xF5'));
}

}  // namespace
}  // namespace tarvola
