#include "tarvola/base/latin1.h"
#include "tarvola/base/cp1252.h"

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

TEST(Cp1252, RoundTripAndRefusals) {
  std::string bytes;
  ASSERT_TRUE(cp1252::from_utf8("Ma\xC3\xB1" "ana \xE2\x82\xAC \xC5\xA1\xE2\x80\x9C", bytes));  // ñ € š “
  EXPECT_EQ(bytes, "Ma\xF1" "ana \x80 \x9A\x93");
  EXPECT_EQ(cp1252::to_utf8(bytes), "Ma\xC3\xB1" "ana \xE2\x82\xAC \xC5\xA1\xE2\x80\x9C");
  EXPECT_FALSE(cp1252::from_utf8("\xE2\x86\x92", bytes));      // an arrow: no byte for it
  EXPECT_FALSE(cp1252::from_utf8("\xF0\x9F\x98\x80", bytes));  // an emoji (four bytes)
  EXPECT_FALSE(cp1252::from_utf8("\xC0\xAF", bytes));          // overlong form
  EXPECT_FALSE(cp1252::from_utf8("\xED\xA0\x80", bytes));      // a surrogate
  EXPECT_FALSE(cp1252::from_utf8("\xC3", bytes));              // cut short
  EXPECT_EQ(cp1252::code_point(0x81), 0u);                     // undefined byte
  EXPECT_EQ(cp1252::byte_for(0x0081), -1);
}

}  // namespace
}  // namespace tarvola
