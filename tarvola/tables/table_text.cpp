#include "tarvola/tables/table_text.h"

#include <climits>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"

namespace tarvola::table_text {

int leading_int(std::string_view s) {
  std::size_t i = 0;
  while (i < s.size() && (s[i] == ' ' || (s[i] >= '\t' && s[i] <= '\r'))) ++i;
  bool negative = false;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) negative = s[i++] == '-';
  long long value = 0;
  for (; i < s.size() && latin1::is_digit(s[i]); ++i) {
    value = value * 10 + (s[i] - '0');
    if (value > INT_MAX) value = static_cast<long long>(INT_MAX) + 1;
  }
  if (negative) value = -value;
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

namespace {

bool final_number(std::string_view line, int& number) {
  if (tags::starts_with(line, "final: ")) {
    number = leading_int(line.substr(7));
    return true;
  }
  if (tags::starts_with(line, "final")) {
    number = line.size() > 6 ? leading_int(line.substr(6)) : 0;
    return true;
  }
  return false;
}

}  // namespace

bool counted_number(std::string_view line, int& number) {
  if (final_number(line, number)) return true;
  if (!line.empty() && latin1::is_digit(line[0])) {
    number = leading_int(line);
    return true;
  }
  return false;
}

TableLine parse_line(std::string_view line) {
  TableLine out;
  if (line.size() < kMinLine) return out;
  if (final_number(line, out.state)) {
    out.kind = LineKind::kFinal;
    return out;
  }
  std::size_t tab1 = line.find('\t');
  std::string_view source = line.substr(0, tab1);
  std::size_t tab2 = tab1 == std::string_view::npos ? tab1 : line.find('\t', tab1 + 1);
  std::string_view symbol;
  if (tab1 != std::string_view::npos) symbol = line.substr(tab1 + 1, tab2 == std::string_view::npos ? std::string_view::npos : tab2 - tab1 - 1);
  if (source.size() > kMaxField || symbol.size() > kMaxField) {
    out.kind = LineKind::kFieldTooLong;
    return out;
  }
  if (tab2 == std::string_view::npos) {
    out.kind = LineKind::kMalformed;
    return out;
  }
  out.kind = LineKind::kArc;
  out.state = leading_int(source);
  out.target = leading_int(line.substr(tab2 + 1));
  std::size_t colon = symbol.find(':');
  if (colon != std::string_view::npos && symbol.size() >= 2) {
    out.upper = symbol.substr(0, colon);
    out.lower = symbol.substr(colon + 1);
    if (out.lower == "<>") out.lower = {};
  } else {
    out.upper = out.lower = symbol;
  }
  return out;
}

long count_plain(std::string_view text) {
  int last = 0;
  bool seen = false;
  for_each_plain_piece(text, kCountPiece, [&](std::string_view piece, std::size_t) {
    int n;
    if (counted_number(piece, n)) {
      last = n;
      seen = true;
    }
  });
  return seen ? static_cast<long>(last) + 1 : 1;
}

namespace {

// Deciphered text: lines end at "\n"; `f` gets every line and whether a
// line end closed it.
template <typename F>
bool for_each_deciphered_line(std::string_view text, LoadReport& report, F&& f) {
  std::size_t at = 0;
  std::size_t number = 0;
  while (at < text.size()) {
    std::size_t nl = text.find('\n', at);
    bool closed = nl != std::string_view::npos;
    std::string_view line = text.substr(at, closed ? nl - at : std::string_view::npos);
    ++number;
    if (line.size() > kMaxDecipheredLine) {
      report.problem = LoadReport::kLineTooLong;
      report.line = number;
      return false;
    }
    f(line, closed, number);
    at = closed ? nl + 1 : text.size();
  }
  return true;
}

void apply(const TableLine& line, std::vector<Egoera*>& states) {
  if (line.kind != LineKind::kFinal && line.kind != LineKind::kArc) return;
  if (line.state < 0 || static_cast<std::size_t>(line.state) >= states.size()) return;
  Egoera*& state = states[static_cast<std::size_t>(line.state)];
  if (!state) state = new Egoera();
  if (line.kind == LineKind::kFinal) {
    state->zubiak.push_back(new Zubia(-1, std::string(), std::string()));
    state->final = true;
  } else {
    state->zubiak.push_back(new Zubia(line.target, std::string(line.upper), std::string(line.lower)));
    state->final = false;
  }
}

void add_states(std::vector<Egoera*>& states, long count) {
  if (count <= 0) return;
  states.reserve(states.size() + static_cast<std::size_t>(count));
  for (long i = 0; i < count; ++i) states.push_back(new Egoera());
}

}  // namespace

long count_deciphered(std::string_view text, LoadReport& report) {
  int last = 0;
  bool seen = false;
  for_each_deciphered_line(text, report, [&](std::string_view line, bool, std::size_t) {
    int n;
    if (counted_number(line, n)) {
      last = n;
      seen = true;
    }
  });
  return seen ? static_cast<long>(last) + 1 : 1;
}

namespace {

// Applies one line to the states, or records the field that is too long.
void load_line(std::string_view text_line, std::size_t number, std::vector<Egoera*>& states,
               LoadReport& report) {
  if (report.problem != LoadReport::kNone) return;
  TableLine line = parse_line(text_line);
  if (line.kind == LineKind::kFieldTooLong) {
    report.problem = LoadReport::kFieldTooLong;
    report.line = number;
    return;
  }
  apply(line, states);
}

// Adds the counted states, unless the count cannot be right for this text.
bool make_states(std::string_view text, std::vector<Egoera*>& states, LoadReport& report) {
  if (report.problem != LoadReport::kNone) return false;
  if (!plausible_state_count(report.states, text.size())) {
    report.problem = LoadReport::kTooManyStates;
    return false;
  }
  add_states(states, report.states);
  return true;
}

}  // namespace

bool plausible_state_count(long count, std::size_t text_size) {
  return count <= static_cast<long>(text_size / 2) + 1024;
}

LoadReport load_plain(std::string_view text, std::vector<Egoera*>& states) {
  LoadReport report;
  report.states = count_plain(text);
  if (!make_states(text, states, report)) return report;
  for_each_plain_piece(text, kLoadPiece, [&](std::string_view piece, std::size_t number) {
    load_line(piece, number, states, report);
  });
  return report;
}

LoadReport load_deciphered(std::string_view text, std::vector<Egoera*>& states) {
  LoadReport report;
  report.states = count_deciphered(text, report);
  if (!make_states(text, states, report)) return report;
  for_each_deciphered_line(text, report, [&](std::string_view line, bool closed, std::size_t number) {
    // An unterminated last line is counted but not loaded.
    if (closed) load_line(line, number, states, report);
  });
  return report;
}

}  // namespace tarvola::table_text
