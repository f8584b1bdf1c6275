#include "common/paragraphs.h"

#include <algorithm>
#include <cstring>
#include <iostream>
#include <utility>

namespace tarvola_cli {

namespace {

constexpr std::size_t kReadSize = 1 << 16;
constexpr std::size_t kBadReportsShown = 5;

bool is_blank_line(const std::string& s) {
  return s.find_first_not_of(" \t") == std::string::npos;
}

bool ends_sentence(char c) { return c == '.' || c == '!' || c == '?' || c == ':'; }

}  // namespace

LineReader::LineReader(std::FILE* file, std::size_t max_piece)
    : file_(file), max_piece_(max_piece), buffer_(max_piece + kReadSize) {}

bool LineReader::fill() {
  if (eof_) return false;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  std::size_t got = std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, file_);
  if (got == 0) {
    eof_ = true;
    failed_ = std::ferror(file_) != 0;
    return false;
  }
  end_ += got;
  total_ += got;
  return true;
}

bool LineReader::next(std::string& piece, bool& ends_line) {
  for (;;) {
    std::size_t window = std::min(end_ - begin_, max_piece_);
    const char* from = buffer_.data() + begin_;
    const char* nl = static_cast<const char*>(std::memchr(from, '\n', window));
    std::size_t len = 0;
    if (nl != nullptr) {
      len = static_cast<std::size_t>(nl - from);
      ends_line = true;
    } else if (end_ - begin_ >= max_piece_) {
      // A long line: end the piece after an ASCII byte near the limit so
      // that no UTF-8 sequence (and no "\r\n") is split.
      len = max_piece_;
      for (std::size_t back = 0; back < 8 && back < len; ++back) {
        unsigned char c = static_cast<unsigned char>(from[len - 1 - back]);
        if (c < 0x80 && c != '\r') {
          len -= back;
          break;
        }
      }
      ends_line = false;
    } else if (fill()) {
      continue;
    } else if (begin_ < end_) {
      len = end_ - begin_;  // a last line without its line end
      ends_line = true;
    } else {
      return false;
    }
    if (at_line_start_) ++line_;
    piece.assign(buffer_.data() + begin_, len);
    begin_ += len + (nl != nullptr ? 1 : 0);
    if (ends_line && !piece.empty() && piece.back() == '\r') piece.pop_back();
    at_line_start_ = ends_line;
    return true;
  }
}

ParagraphSource::ParagraphSource(std::FILE* file, std::string name, Encoding encoding,
                                 ParagraphMode mode)
    : reader_(file), name_(std::move(name)), encoding_(encoding), mode_(mode) {}

bool ParagraphSource::read_paragraph_part() {
  std::string piece;
  bool ends = false;
  while (reader_.next(piece, ends)) {
    const bool line_start = !in_line_;
    in_line_ = !ends;
    std::size_t skip = 0;
    if (line_start) {
      column_ = 0;
      if (ends && is_blank_line(piece)) {
        if (has_text_) {
          complete_ = true;
          return true;
        }
        continue;
      }
      if (mode_ == ParagraphMode::kBlankLine && has_text_) pending_.bytes += ' ';
      if (reader_.line() == 1 && encoding_ == Encoding::kUtf8 && piece.rfind("\xEF\xBB\xBF", 0) == 0)
        skip = 3;  // byte order mark
    }
    has_text_ = true;
    decode(std::string_view(piece).substr(skip), encoding_, pending_, reader_.line(), column_,
           [this](std::size_t line, std::size_t column) {
             if (++bad_ <= kBadReportsShown)
               std::cerr << name_ << ":" << line << ":" << column
                         << ": not UTF-8; the bytes are passed through unchanged"
                            " (is the input code page 1252? see --encoding)\n";
             else if (bad_ == kBadReportsShown + 1)
               std::cerr << name_ << ": further bytes that are not UTF-8 are not reported\n";
           });
    if (ends && mode_ == ParagraphMode::kLine) complete_ = true;
    return true;
  }
  return false;
}

std::size_t ParagraphSource::cut_point(std::size_t limit) const {
  const std::string& b = pending_.bytes;
  for (std::size_t j = limit; j-- > start_ + 1;)
    if (b[j] == ' ' && ends_sentence(b[j - 1])) return j + 1;
  for (std::size_t j = limit; j-- > start_;)
    if (b[j] == ' ') return j + 1;
  return limit;
}

void ParagraphSource::compact() {
  if (start_ < kReadSize || start_ * 2 < pending_.bytes.size()) return;
  pending_.bytes.erase(0, start_);
  pending_.foreign.erase(pending_.foreign.begin(),
                         pending_.foreign.begin() + static_cast<std::ptrdiff_t>(next_foreign_));
  start_ = 0;
  next_foreign_ = 0;
}

bool ParagraphSource::next(EnginePiece& piece) {
  for (;;) {
    const std::size_t size = pending_.bytes.size();
    const std::size_t avail = size - start_;
    if (avail > 0) {
      std::size_t end = start_ + std::min(avail, kMaxParagraph);
      if (next_foreign_ < pending_.foreign.size())
        end = foreign_limit(pending_, start_, end, next_foreign_, kPlaceholders);
      // Wait for more text unless the piece is already bounded: by the end
      // of the paragraph, the length limit, or the placeholders.
      if (complete_ || avail > kMaxParagraph || end < size) {
        std::size_t cut = complete_ && end == size ? end : cut_point(end);
        piece = EnginePiece(pending_, start_, cut, next_foreign_);
        start_ = cut;
        compact();
        return true;
      }
    } else if (complete_) {
      pending_ = DecodedText();
      start_ = next_foreign_ = 0;
      complete_ = has_text_ = false;
    }
    if (!read_paragraph_part()) {
      if (!has_text_ || complete_) return false;
      complete_ = true;
    }
  }
}

}  // namespace tarvola_cli
