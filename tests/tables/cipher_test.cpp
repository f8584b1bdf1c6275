#include "tarvola/tables/cipher.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvola {
namespace {

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
