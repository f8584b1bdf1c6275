#include "tarvola/base/cp1252.h"

namespace tarvola::cp1252 {

namespace {

// The characters of bytes 0x80..0x9F; 0 where the code page has none.
constexpr std::uint16_t kHigh[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

}  // namespace

std::uint32_t code_point(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80] : byte;
}

int byte_for(std::uint32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<int>(cp);
  for (int i = 0; i < 32; ++i)
    if (kHigh[i] != 0 && kHigh[i] == cp) return 0x80 + i;
  return -1;
}

std::size_t utf8_sequence(std::string_view s, std::uint32_t& cp) {
  if (s.empty()) return 0;
  const auto b = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
  const unsigned char lead = b(0);
  if (lead < 0x80) {
    cp = lead;
    return 1;
  }
  const std::size_t len = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
  if (len == 0 || lead > 0xF4 || s.size() < len) return 0;
  cp = lead & (0x7F >> len);
  for (std::size_t i = 1; i < len; ++i) {
    if ((b(i) & 0xC0) != 0x80) return 0;
    cp = (cp << 6) | (b(i) & 0x3F);
  }
  static constexpr std::uint32_t kMin[5] = {0, 0, 0x80, 0x800, 0x10000};
  if (cp < kMin[len] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return 0;
  return len;
}

void append_utf8(std::string& out, std::uint32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

bool from_utf8(std::string_view text, std::string& out) {
  out.clear();
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    std::uint32_t cp = 0;
    const std::size_t len = utf8_sequence(text.substr(i), cp);
    const int byte = len == 0 ? -1 : byte_for(cp);
    if (byte < 0) return false;
    out += static_cast<char>(byte);
    i += len;
  }
  return true;
}

std::string to_utf8(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 8);
  for (char c : text) {
    const std::uint32_t cp = code_point(static_cast<unsigned char>(c));
    append_utf8(out, cp != 0 ? cp : static_cast<unsigned char>(c));
  }
  return out;
}

}  // namespace tarvola::cp1252
