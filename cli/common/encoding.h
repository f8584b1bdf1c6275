// Text crosses the tool's boundary in UTF-8 (or code page 1252) and the
// engine's in code page 1252, one byte a character.
//
// A character the code page cannot hold is never dropped: it is replaced,
// for the engine, by a placeholder byte that the engine keeps inside a word
// and never produces itself (a C0 control, DEL, or one of the five bytes code
// page 1252 leaves undefined), and the placeholder is turned back into the
// original bytes on output. The same holds for input bytes that are not valid
// UTF-8 (they are also reported), for the zero byte (the engine would drop
// it) and for the placeholder bytes themselves when they occur in the input.
// A word holding such a character is simply unknown to the engine.
//
// Placeholders are assigned per piece of text (a word, or one engine
// paragraph): there are kPlaceholders of them, so a piece holds at most that
// many distinct foreign characters; the paragraph cutter keeps to that.
#ifndef TARVOLA_CLI_COMMON_ENCODING_H
#define TARVOLA_CLI_COMMON_ENCODING_H

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvola_cli {

enum class Encoding { kUtf8, kCp1252 };

inline constexpr std::size_t kPlaceholders = 32;

// Marks a foreign character inside decoded text (see DecodedText).
inline constexpr char kForeignMark = '\0';

// Text decoded for the engine before placeholders are chosen: every
// character is one byte of code page 1252, except that each foreign
// character is kForeignMark and its original bytes are the next entry of
// `foreign`.
struct DecodedText {
  std::string bytes;
  std::vector<std::string> foreign;
};

// Reports a malformed input byte sequence at a 1-based line and column.
using BadInputReport = std::function<void(std::size_t line, std::size_t column)>;

// Decodes `raw` from the input encoding, appending to `out`. `line` and
// `column` give the position of raw[0] (columns count characters) and are
// advanced. A sequence cut at the end of `raw` is decoded as malformed: the
// caller hands over whole lines or cuts at ASCII bytes.
void decode(std::string_view raw, Encoding encoding, DecodedText& out, std::size_t line,
            std::size_t& column, const BadInputReport& report);

// One piece of text in the engine's code page, with the placeholders it
// uses; restore() turns the engine's output for it back into the output
// encoding.
class EnginePiece {
 public:
  EnginePiece() = default;
  // Takes the characters [from, to) of `text`; `next_foreign` is the index
  // into text.foreign of the first foreign character at or after `from`, and
  // is advanced. Requires at most kPlaceholders distinct foreign characters.
  EnginePiece(const DecodedText& text, std::size_t from, std::size_t to,
              std::size_t& next_foreign);

  const std::string& text() const { return text_; }
  // Engine output (code page 1252, holding this piece's placeholders) in the
  // output encoding.
  std::string restore(std::string_view engine_text, Encoding encoding) const;

 private:
  std::string text_;
  std::array<int, 256> slot_{};  // placeholder byte -> index in originals_ + 1
  std::vector<std::string> originals_;
};

// A whole short text (a word, a lemma) converted for the engine; false when
// it holds more distinct foreign characters than there are placeholders.
bool to_engine(std::string_view raw, Encoding encoding, const BadInputReport& report,
               EnginePiece& piece);

// Code page 1252 to UTF-8, for text that holds no placeholders (the five
// undefined bytes become the C1 controls of the same value).
std::string cp1252_to_utf8(std::string_view text);

// How many distinct foreign characters text[from, to) holds, stopping (and
// returning the position reached) before the one that would exceed `limit`.
std::size_t foreign_limit(const DecodedText& text, std::size_t from, std::size_t to,
                          std::size_t next_foreign, std::size_t limit);

}  // namespace tarvola_cli

#endif
