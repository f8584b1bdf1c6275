// Byte-level text helpers for the library's single-byte character set
// (Latin-1 / code page 1252). Every subsystem maps case and classifies
// characters through this header, so each rule lives in exactly one place.
//
//   to_lower(c)       'A'..'Z' and 0xC0..0xDD raised by 32 (the whole block,
//                     0xD7 included); every other byte unchanged.
//   to_upper(c)       'a'..'z' and 0xE0..0xFD lowered by 32 (0xF7 included).
//   is_ascii_lower/upper/digit   only the ASCII ranges; bytes >= 0x80 are
//                     never letters here (the tests the text pipeline and the
//                     personal dictionary need).
//   is_punctuation(c) the tokeniser's 23 punctuation bytes, plus the zero byte.
//   is_word_char(c)   ASCII letters and digits, and the accented letters and
//                     signs the tokeniser keeps inside words.
#ifndef TARVOLA_BASE_LATIN1_H
#define TARVOLA_BASE_LATIN1_H

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvola::latin1 {

namespace detail {

enum : std::uint8_t { kPunctuation = 1, kWordChar = 2 };

constexpr std::array<unsigned char, 256> make_lower() {
  std::array<unsigned char, 256> t{};
  for (int c = 0; c < 256; ++c) {
    bool shift = (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDD);
    t[c] = static_cast<unsigned char>(shift ? c + 32 : c);
  }
  return t;
}

constexpr std::array<unsigned char, 256> make_upper() {
  std::array<unsigned char, 256> t{};
  for (int c = 0; c < 256; ++c) {
    bool shift = (c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFD);
    t[c] = static_cast<unsigned char>(shift ? c - 32 : c);
  }
  return t;
}

constexpr std::array<std::uint8_t, 256> make_classes() {
  std::array<std::uint8_t, 256> t{};
  const char* pun = "*!,[]:\"/?{}();_+='-.";
  for (const char* p = pun; *p; ++p) t[static_cast<unsigned char>(*p)] |= kPunctuation;
  t[0xA1] |= kPunctuation;  // inverted exclamation mark
  t[0xBF] |= kPunctuation;  // inverted question mark
  t[0] |= kPunctuation;     // the terminating zero counts as punctuation
  for (int c = '0'; c <= '9'; ++c) t[c] |= kWordChar;
  for (int c = 'A'; c <= 'Z'; ++c) t[c] |= kWordChar;
  for (int c = 'a'; c <= 'z'; ++c) t[c] |= kWordChar;
  const int extra[] = {0x80, 0x9A, 0xBA, 0xC1, 0xC4, 0xC5, 0xC6, 0xC7, 0xC9, 0xCD,
                       0xD1, 0xD3, 0xD6, 0xDA, 0xDC, 0xF1, 0xF2, 0xF3, 0xF4, 0xF6,
                       0xF9, 0xFA, 0xFB, 0xFC};
  for (int c : extra) t[c] |= kWordChar;
  for (int c = 0xE0; c <= 0xEF; ++c) t[c] |= kWordChar;
  return t;
}

inline constexpr std::array<unsigned char, 256> kLower = make_lower();
inline constexpr std::array<unsigned char, 256> kUpper = make_upper();
inline constexpr std::array<std::uint8_t, 256> kClasses = make_classes();

}  // namespace detail

inline char to_lower(char c) {
  return static_cast<char>(detail::kLower[static_cast<unsigned char>(c)]);
}
inline char to_upper(char c) {
  return static_cast<char>(detail::kUpper[static_cast<unsigned char>(c)]);
}

inline void lower_in_place(std::string& s) {
  for (char& c : s) c = to_lower(c);
}
inline void upper_in_place(std::string& s) {
  for (char& c : s) c = to_upper(c);
}
inline std::string lowered(std::string_view s) {
  std::string out(s);
  lower_in_place(out);
  return out;
}
inline std::string uppered(std::string_view s) {
  std::string out(s);
  upper_in_place(out);
  return out;
}
// True when upper-casing leaves the text as it is (no lower-case letter).
inline bool is_all_upper(std::string_view s) {
  for (char c : s)
    if (to_upper(c) != c) return false;
  return true;
}

inline bool is_ascii_lower(char c) { return c >= 'a' && c <= 'z'; }
inline bool is_ascii_upper(char c) { return c >= 'A' && c <= 'Z'; }
inline bool is_digit(char c) { return c >= '0' && c <= '9'; }

inline bool is_punctuation(char c) {
  return detail::kClasses[static_cast<unsigned char>(c)] & detail::kPunctuation;
}
inline bool is_word_char(char c) {
  return detail::kClasses[static_cast<unsigned char>(c)] & detail::kWordChar;
}

}  // namespace tarvola::latin1

#endif
