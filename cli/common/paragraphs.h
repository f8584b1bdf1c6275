// Streams input text to the engine in paragraphs it can take.
//
// A paragraph is one input line, or (blank-line mode) a run of non-blank
// lines joined by single blanks. Lines made only of blanks and tabs
// separate paragraphs and are otherwise skipped. Input is read in bounded
// pieces, so memory stays flat whatever the length of a line.
//
// The engine takes paragraphs of at most kMaxParagraph bytes. A longer one
// is cut into consecutive pieces: after the blank that follows the last
// sentence punctuation (". ", "! ", "? ", ": ") within the limit, else after
// the last blank, else at the limit itself. A piece also ends before a
// foreign character it has no placeholder left for (see encoding.h). The
// pieces concatenated are the paragraph: nothing is dropped or reordered.
#ifndef TARVOLA_CLI_COMMON_PARAGRAPHS_H
#define TARVOLA_CLI_COMMON_PARAGRAPHS_H

#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "common/encoding.h"

namespace tarvola_cli {

inline constexpr std::size_t kMaxParagraph = 9999;

enum class ParagraphMode { kLine, kBlankLine };

// Lines of a C stream in pieces of at most `max_piece` bytes; the line end
// ("\n", "\r\n") is removed. A piece cut inside a long line ends after an
// ASCII byte where there is one close by, so UTF-8 sequences stay whole.
class LineReader {
 public:
  explicit LineReader(std::FILE* file, std::size_t max_piece = 1 << 16);
  // False at the end of the input. `ends_line` tells whether the piece is
  // the end of its line.
  bool next(std::string& piece, bool& ends_line);
  std::size_t line() const { return line_; }  // 1-based line of the last piece
  std::size_t bytes_read() const { return total_; }
  bool failed() const { return failed_; }

 private:
  bool fill();

  std::FILE* file_;
  std::size_t max_piece_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0, end_ = 0;
  std::size_t line_ = 0;
  bool at_line_start_ = true;
  bool eof_ = false;
  bool failed_ = false;
  std::size_t total_ = 0;
};

class ParagraphSource {
 public:
  ParagraphSource(std::FILE* file, std::string name, Encoding encoding, ParagraphMode mode);
  // The next piece for the engine; false at the end of the input.
  bool next(EnginePiece& piece);
  std::size_t bytes_read() const { return reader_.bytes_read(); }
  bool failed() const { return reader_.failed(); }
  // Malformed input sequences met so far.
  std::size_t bad_sequences() const { return bad_; }

 private:
  bool read_paragraph_part();
  std::size_t cut_point(std::size_t limit) const;
  void compact();

  LineReader reader_;
  std::string name_;
  Encoding encoding_;
  ParagraphMode mode_;
  DecodedText pending_;
  std::size_t start_ = 0;        // first character of pending_ not yet handed out
  std::size_t next_foreign_ = 0; // index in pending_.foreign matching start_
  bool complete_ = false;        // pending_ holds the end of its paragraph
  bool in_line_ = false;         // inside a line whose start has been read
  bool has_text_ = false;        // the current paragraph has begun
  std::size_t column_ = 0;
  std::size_t bad_ = 0;
};

}  // namespace tarvola_cli

#endif
