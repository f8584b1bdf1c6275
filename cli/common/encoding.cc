#include "common/encoding.h"

#include <algorithm>
#include <cstdint>
#include <set>

#include "tarvola/base/cp1252.h"

namespace tarvola_cli {

namespace {

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
  const int byte = tarvola::cp1252::byte_for(cp);
  return byte >= 0 && kReserved[byte] ? -1 : byte;
}

void append_utf8(std::uint32_t cp, std::string& out) { tarvola::cp1252::append_utf8(out, cp); }

std::size_t utf8_sequence(std::string_view s, std::uint32_t& cp) {
  return tarvola::cp1252::utf8_sequence(s, cp);
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
    else if (byte >= 0x80 && byte < 0xA0 && tarvola::cp1252::code_point(byte) != 0)
      append_utf8(tarvola::cp1252::code_point(byte), out);
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
