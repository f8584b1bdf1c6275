#include "tarvola/base/cp1252.h"

#include <gtest/gtest.h>

namespace tarvola {
namespace {

TEST(Cp1252, RoundTripAndRefusals) {
  std::string bytes;
  ASSERT_TRUE(cp1252::from_utf8("Ma\xC3\xB1" "ana \xE2\x82\xAC \xC5\xA1", bytes));  // ñ € š
  EXPECT_EQ(bytes, "Ma\xF1" "ana \x80 \x9A");
  EXPECT_EQ(cp1252::to_utf8(bytes), "Ma\xC3\xB1" "ana \xE2\x82\xAC \xC5\xA1");
  EXPECT_FALSE(cp1252::from_utf8("\xE2\x86\x92", bytes));      // an arrow: no byte for it
  EXPECT_FALSE(cp1252::from_utf8("\xC0\xAF", bytes));          // overlong form
  EXPECT_FALSE(cp1252::from_utf8("\xED\xA0\x80", bytes));      // a surrogate
  EXPECT_FALSE(cp1252::from_utf8("\xC3", bytes));              // cut short
  EXPECT_EQ(cp1252::code_point(0x81), 0u);                     // undefined byte
  EXPECT_EQ(cp1252::byte_for(0x0081), -1);
}

}  // namespace
}  // namespace tarvola
