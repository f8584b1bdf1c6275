#include "tarvola/tables/cipher.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvola {
namespace {

TEST(Cipher, OnlyWholeThirtyTwoByteStretchesAreEnciphered) {
  const std::string key = "58pwwjtrrqe72961";
  std::string plain(40, 'a');
  std::string stored = cipher::encipher(plain);
  for (std::size_t i = 0; i < 32; ++i) EXPECT_EQ(stored[i], static_cast<char>('a' ^ key[i % 16])) << i;
  EXPECT_EQ(stored.substr(32), std::string(8, 'a'));
  EXPECT_EQ(cipher::decipher(stored), plain);
}

TEST(Cipher, ChunksOf32000Bytes) {
  std::string plain;
  for (int i = 0; plain.size() < 70000; ++i) plain += std::to_string(i) + "\ta:b\t" + std::to_string(i + 1) + "\n";
  std::string stored = cipher::encipher(plain);
  EXPECT_EQ(cipher::decipher(stored), plain);
  // The tail of each chunk past its last multiple of 32 is stored plain.
  const std::size_t tail = 32000 % 32;
  EXPECT_EQ(tail, 0u);
  const std::size_t last = plain.size() - plain.size() % 32000;
  const std::size_t plain_tail = (plain.size() - last) % 32;
  EXPECT_EQ(stored.substr(plain.size() - plain_tail), plain.substr(plain.size() - plain_tail));
}

TEST(Cipher, ZeroByteEndsTheChunk) {
  const std::string key = "58pwwjtrrqe72961";
  std::string stored(64, 'x');
  stored[10] = key[10];  // deciphers to a zero byte
  std::string text = cipher::decipher(stored);
  EXPECT_EQ(text.size(), 10u);
}

}  // namespace
}  // namespace tarvola
