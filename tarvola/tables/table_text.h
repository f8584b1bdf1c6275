// The line grammar of table files, shared by the plain and the enciphered
// form, and the two loading passes (counting, then filling).
//
// A line shorter than 5 bytes is ignored. "final: N" / "final?N" declare
// state N final. Any other line is an arc "source<TAB>symbol<TAB>target";
// the symbol "up:low" splits at its first colon ("<>" as the lower part is
// epsilon), any other symbol is the same on both sides. The source and the
// symbol field hold at most 98 bytes each.
//
// The state count is one more than the number on the last line that is a
// final line or begins with a digit: tables list states in ascending order.
// Loaders report what went wrong (and on which line) instead of acting on
// it, so that the owner of the table decides what the failure does.
#ifndef TARVOLA_TABLES_TABLE_TEXT_H
#define TARVOLA_TABLES_TABLE_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tarvola/export.h"
#include "tarvola/tables/Egoera.h"

namespace tarvola::table_text {

inline constexpr std::size_t kMinLine = 5;
inline constexpr std::size_t kMaxField = 98;
inline constexpr std::size_t kCountPiece = 998;        // plain counting reads
inline constexpr std::size_t kLoadPiece = 9998;        // plain loading reads
inline constexpr std::size_t kMaxDecipheredLine = 2221;

enum class LineKind { kIgnored, kFinal, kArc, kMalformed, kFieldTooLong };

struct TableLine {
  LineKind kind = LineKind::kIgnored;
  int state = 0;   // the final state, or the arc's source
  int target = 0;  // the arc's target
  std::string_view upper;
  std::string_view lower;
};

// Reads one line (without its line end). An arc line that lacks its second
// tab is kMalformed and adds nothing.
TARVOLA_API TableLine parse_line(std::string_view line);

// The number the counting pass reads from a line, if it is a final line or
// begins with a digit.
TARVOLA_API bool counted_number(std::string_view line, int& number);

// The leading decimal integer as the C library's atoi reads it, saturated.
TARVOLA_API int leading_int(std::string_view text);

// Calls f(line, line_number) for each read of at most max_piece bytes, as a
// line-reading loop over a text file sees it: a longer line comes in several
// pieces. One trailing "\n" and then one "\r" are removed.
template <typename F>
void for_each_plain_piece(std::string_view text, std::size_t max_piece, F&& f) {
  std::size_t at = 0;
  std::size_t number = 0;
  while (at < text.size()) {
    std::size_t limit = text.size() - at < max_piece ? text.size() - at : max_piece;
    std::size_t nl = text.substr(at, limit).find('\n');
    std::size_t len = nl == std::string_view::npos ? limit : nl + 1;
    std::string_view piece = text.substr(at, len);
    at += len;
    if (!piece.empty() && piece.back() == '\n') piece.remove_suffix(1);
    if (!piece.empty() && piece.back() == '\r') piece.remove_suffix(1);
    f(piece, ++number);
  }
}

struct LoadReport {
  enum Problem { kNone, kFieldTooLong, kLineTooLong, kTooManyStates };
  Problem problem = kNone;
  std::size_t line = 0;  // 1-based line (or read) number of the problem
  long states = 0;       // the counted number of states
};

// The counting pass over plain table text; -1 never occurs here (an
// unreadable file is the caller's matter).
TARVOLA_API long count_plain(std::string_view text);
// The counting pass over deciphered text; a line of 2222 bytes or more is
// reported in `report`.
TARVOLA_API long count_deciphered(std::string_view text, LoadReport& report);

// Whether `count` states could be right for a text of `text_size` bytes
// (at most half a state per byte, and some slack for tiny tables): a larger
// count comes from a garbled state number and would allocate for nothing.
TARVOLA_API bool plausible_state_count(long count, std::size_t text_size);

// Both passes over plain / deciphered text: appends the counted number of
// states to `states`, then applies every line. Arcs and finals that name a
// state outside the vector are skipped. A state count that the text cannot
// plausibly fill (more than half a state per byte) is refused with
// kTooManyStates and nothing is added.
TARVOLA_API LoadReport load_plain(std::string_view text, std::vector<Egoera*>& states);
TARVOLA_API LoadReport load_deciphered(std::string_view text, std::vector<Egoera*>& states);

}  // namespace tarvola::table_text

#endif
