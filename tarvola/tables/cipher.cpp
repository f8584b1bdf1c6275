#include "tarvola/tables/cipher.h"

#include <algorithm>
#include <cstring>

namespace tarvola::cipher {

namespace {

constexpr char kKey[kBlockSize + 1] = "58pwwjtrrqe72961";

// XORs the first multiple of 32 bytes of one chunk with the key; both
// directions are the same operation.
void apply_key(char* chunk, std::size_t n) {
  const std::size_t m = n / 32 * 32;
  for (std::size_t i = 0; i < m; ++i) chunk[i] = static_cast<char>(chunk[i] ^ kKey[i % kBlockSize]);
}

}  // namespace

std::string decipher(std::string_view stored) {
  std::string text;
  text.reserve(stored.size() + 5);
  char chunk[kChunkSize];
  for (std::size_t at = 0; at < stored.size(); at += kChunkSize) {
    const std::size_t n = std::min(kChunkSize, stored.size() - at);
    std::memcpy(chunk, stored.data() + at, n);
    apply_key(chunk, n);
    const void* zero = std::memchr(chunk, 0, n);
    const std::size_t keep = zero ? static_cast<std::size_t>(static_cast<const char*>(zero) - chunk) : n;
    text.append(chunk, keep);
  }
  return text;
}

std::string encipher(std::string_view plain) {
  std::string stored(plain);
  for (std::size_t at = 0; at < stored.size(); at += kChunkSize)
    apply_key(&stored[at], std::min(kChunkSize, stored.size() - at));
  return stored;
}

}  // namespace tarvola::cipher
