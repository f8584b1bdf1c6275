#include "common/encoding.h"

#include <algorithm>
#include <cstdint>
#include <set>

namespace tarvola_cli {

namespace {

// Unicode code points of code page 1252's bytes 0x80..0x9F; 0 where the
// code page leaves the byte undefined.
constexpr std::uint16_t kHighBlock[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr std::array<unsigned char, kPlaceholders> make_placeholders() {
  std::array<unsigned char, kPlaceholders> p{};
  std::size_t n = 0;
  for (int c = 0x01; c <= 0x08; ++c) p[n++] = static_cast<unsigned char>(c);
  for (int c = 0x0E; c <= 0x1F; ++c) p[n++] = static_cast<unsigned char>(c);
  p[n++] = 0x7F;
  for (int c : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) p[n++] = static_cast<unsigned char>(c);
  return p;
}
constexpr std::array<unsigned char, kPlaceholders> kPlaceholderBytes = make_placeholders();

constexpr std::array<bool, 256> make_reserved() {
  std::array<bool, 256> r{};
  r[0] = true;  // the engine drops zero bytes
  for (unsigned char c : kPlaceholderBytes) r[c] = true;
  return r;
}
constexpr std::array<bool, 256> kReserved = make_reserved();

// The code page byte for a code point, or -1 when there is none (or when
// the byte is reserved for placeholders).
int cp1252_byte(std::uint32_t cp) {
  int byte = -1;
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
    byte = static_cast<int>(cp);
  } else {
    for (int i = 0; i < 32; ++i)
      if (kHighBlock[i] != 0 && kHighBlock[i] == cp) byte = 0x80 + i;
  }
  return byte >= 0 && kReserved[byte] ? -1 : byte;
}

void append_utf8(std::uint32_t cp, std::string& out) {
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

// Length of the valid UTF-8 sequence at s[0] and its code point; 0 when the
// bytes there are not one.
std::size_t utf8_sequence(std::string_view s, std::uint32_t& cp) {
  const auto b = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
  unsigned char lead = b(0);
  if (lead < 0x80) {
    cp = lead;
    return 1;
  }
  std::size_t len = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
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

}  // namespace

void decode(std::string_view raw, Encoding encoding, DecodedText& out, std::size_t line,
            std::size_t& column, const BadInputReport& report) {
  out.bytes.reserve(out.bytes.size() + raw.size());
  std::size_t i = 0;
  while (i < raw.size()) {
    ++column;
    std::size_t len = 1;
    int byte = static_cast<unsigned char>(raw[i]);
    if (encoding == Encoding::kCp1252) {
      if (kReserved[byte]) byte = -1;
    } else {
      std::uint32_t cp = 0;
      len = utf8_sequence(raw.substr(i), cp);
      if (len == 0) {
        if (report) report(line, column);
        len = 1;
        byte = -1;
      } else {
        byte = cp1252_byte(cp);
      }
    }
    if (byte >= 0) {
      out.bytes += static_cast<char>(byte);
    } else {
      out.bytes += kForeignMark;
      out.foreign.emplace_back(raw.substr(i, len));
    }
    i += len;
  }
}

std::size_t foreign_limit(const DecodedText& text, std::size_t from, std::size_t to,
                          std::size_t next_foreign, std::size_t limit) {
  std::set<std::string_view> seen;
  for (std::size_t i = from; i < to; ++i) {
    if (text.bytes[i] != kForeignMark) continue;
    std::string_view f = text.foreign[next_foreign++];
    if (seen.count(f) == 0) {
      if (seen.size() == limit) return i;
      seen.insert(f);
    }
  }
  return to;
}

EnginePiece::EnginePiece(const DecodedText& text, std::size_t from, std::size_t to,
                         std::size_t& next_foreign)
    : text_(text.bytes, from, to - from) {
  for (char& c : text_) {
    if (c != kForeignMark) continue;
    const std::string& original = text.foreign[next_foreign++];
    auto found = std::find(originals_.begin(), originals_.end(), original);
    std::size_t index = static_cast<std::size_t>(found - originals_.begin());
    if (found == originals_.end()) originals_.push_back(original);
    unsigned char placeholder = kPlaceholderBytes[index];
    slot_[placeholder] = static_cast<int>(index) + 1;
    c = static_cast<char>(placeholder);
  }
}

std::string EnginePiece::restore(std::string_view engine_text, Encoding encoding) const {
  std::string out;
  out.reserve(engine_text.size() + engine_text.size() / 8);
  for (char c : engine_text) {
    unsigned char byte = static_cast<unsigned char>(c);
    if (slot_[byte] != 0)
      out += originals_[static_cast<std::size_t>(slot_[byte] - 1)];
    else if (encoding == Encoding::kCp1252)
      out += c;
    else if (byte >= 0x80 && byte < 0xA0 && kHighBlock[byte - 0x80] != 0)
      append_utf8(kHighBlock[byte - 0x80], out);
    else
      append_utf8(byte, out);
  }
  return out;
}

bool to_engine(std::string_view raw, Encoding encoding, const BadInputReport& report,
               EnginePiece& piece) {
  DecodedText decoded;
  std::size_t column = 0;
  decode(raw, encoding, decoded, 1, column, report);
  const std::size_t size = decoded.bytes.size();
  if (foreign_limit(decoded, 0, size, 0, kPlaceholders) < size) return false;
  std::size_t next = 0;
  piece = EnginePiece(decoded, 0, size, next);
  return true;
}

std::string cp1252_to_utf8(std::string_view text) {
  return EnginePiece().restore(text, Encoding::kUtf8);
}

}  // namespace tarvola_cli
