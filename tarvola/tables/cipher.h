// The enciphered table form ("SARE8" in the file name): a repeating XOR
// with a 16-byte key, applied file chunk by file chunk. Of every chunk of
// up to 32000 bytes only the first multiple of 32 bytes is enciphered; the
// rest of the chunk (the last n mod 32 bytes of the file) is stored as it
// is. On reading, a zero byte in a deciphered chunk ends that chunk's
// contribution. encipher() and decipher() are exact inverses for text
// without zero bytes.
#ifndef TARVOLA_TABLES_CIPHER_H
#define TARVOLA_TABLES_CIPHER_H

#include <cstddef>
#include <string>
#include <string_view>

#include "tarvola/export.h"

namespace tarvola::cipher {

inline constexpr std::size_t kChunkSize = 32000;
inline constexpr std::size_t kBlockSize = 16;

// Deciphers the bytes of an enciphered table file as the loader reads them.
TARVOLA_API std::string decipher(std::string_view stored);
// Enciphers table text so that decipher() gives it back.
TARVOLA_API std::string encipher(std::string_view plain);

}  // namespace tarvola::cipher

#endif
