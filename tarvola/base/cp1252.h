// Code page 1252, the library's single-byte character set, against Unicode:
// the one place that knows which character each byte is. The library itself
// never converts; the command-line tool and the table importer convert at
// their edges through these functions.
//
//   code_point(b)      the character of byte b; 0 for the five bytes the
//                      code page leaves undefined (0x81 0x8D 0x8F 0x90 0x9D)
//   byte_for(cp)       the byte of character cp, or -1 when it has none
//   utf8_sequence(s)   the length of the valid UTF-8 sequence at the start
//                      of s (and its character), 0 when it is not one
//   append_utf8        appends a character (below U+10000) as UTF-8
//   from_utf8/to_utf8  whole texts; from_utf8 fails on invalid UTF-8 and on
//                      characters the code page cannot hold
#ifndef TARVOLA_BASE_CP1252_H
#define TARVOLA_BASE_CP1252_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "tarvola/export.h"

namespace tarvola::cp1252 {

TARVOLA_API std::uint32_t code_point(unsigned char byte);
TARVOLA_API int byte_for(std::uint32_t cp);
TARVOLA_API std::size_t utf8_sequence(std::string_view s, std::uint32_t& cp);
TARVOLA_API void append_utf8(std::string& out, std::uint32_t cp);
TARVOLA_API bool from_utf8(std::string_view text, std::string& out);
TARVOLA_API std::string to_utf8(std::string_view text);

}  // namespace tarvola::cp1252

#endif
