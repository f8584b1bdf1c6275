#include "common/table_report.h"

#include <algorithm>
#include <set>
#include <utility>

#include "tarvola/tables/cipher.h"
#include "tarvola/tables/table_text.h"

namespace tarvola_cli {

namespace tt = tarvola::table_text;

namespace {

// Epsilon arcs that close a cycle: lookup could follow them forever.
// Depth-first search with colours, iterative so deep tables cannot
// overflow the stack.
void find_epsilon_cycles(const std::vector<std::vector<std::pair<int, std::size_t>>>& eps,
                         std::vector<TableProblem>& problems) {
  enum : char { kNew, kOpen, kDone };
  std::vector<char> colour(eps.size(), kNew);
  std::vector<std::pair<int, std::size_t>> stack;  // state, next arc index
  for (std::size_t root = 0; root < eps.size(); ++root) {
    if (colour[root] != kNew || eps[root].empty()) continue;
    stack.push_back({static_cast<int>(root), 0});
    colour[root] = kOpen;
    while (!stack.empty()) {
      auto& [state, next] = stack.back();
      if (next == eps[state].size()) {
        colour[state] = kDone;
        stack.pop_back();
        continue;
      }
      auto [target, line] = eps[state][next++];
      if (colour[target] == kOpen) {
        problems.push_back({line, "arc from state " + std::to_string(state) + " to state " +
                                      std::to_string(target) +
                                      " closes a cycle of arcs that consume nothing"});
      } else if (colour[target] == kNew) {
        colour[target] = kOpen;
        stack.push_back({target, 0});
      }
    }
  }
}

template <typename F>
void for_each_deciphered_line(std::string_view text, F&& f) {
  std::size_t at = 0, number = 0;
  while (at < text.size()) {
    std::size_t nl = text.find('\n', at);
    if (nl == std::string_view::npos) nl = text.size();
    f(text.substr(at, nl - at), ++number, nl < text.size());
    at = nl + 1;
  }
}

}  // namespace

TableReport inspect_table(std::string_view bytes, bool enciphered) {
  TableReport r;
  std::string deciphered;
  if (enciphered) {
    deciphered = tarvola::cipher::decipher(bytes);
    tt::LoadReport load;
    r.stats.states = tt::count_deciphered(deciphered, load);
    if (load.problem == tt::LoadReport::kLineTooLong)
      r.problems.push_back({load.line, "line of 2222 bytes or more: the loader ends the process"});
  } else {
    r.stats.states = tt::count_plain(bytes);
  }

  const long count = r.stats.states;
  // A garbled state number must not make the report allocate for it either.
  const bool plausible = tt::plausible_state_count(count, enciphered ? deciphered.size() : bytes.size());
  if (!plausible)
    r.problems.push_back({0, "state count " + std::to_string(count) +
                                 " is more than the text could fill: the loader refuses the table"});
  std::vector<std::vector<std::pair<int, std::size_t>>> eps(
      plausible ? static_cast<std::size_t>(std::max(count, 0L)) : 0);
  std::set<int> finals;
  std::set<std::string_view> uppers, lowers;
  std::set<std::pair<std::string_view, std::string_view>> pairs;
  int last_state = -1;
  bool stopped = false;  // the enciphered loader stalls at a short line

  auto in_range = [&](int s) { return s >= 0 && s < count; };
  auto line_fn = [&](std::string_view line, std::size_t number, bool terminated) {
    if (stopped) return;
    if (enciphered && !terminated) {
      r.problems.push_back({number, "last line has no line end: the enciphered loader ignores it"});
      return;
    }
    if (enciphered && line.size() < tt::kMinLine) {
      r.problems.push_back({number, "line under 5 bytes: the enciphered loader stops here"});
      stopped = true;
      return;
    }
    tt::TableLine t = tt::parse_line(line);
    switch (t.kind) {
      case tt::LineKind::kIgnored:
        return;
      case tt::LineKind::kFieldTooLong:
        r.problems.push_back({number, "field of 99 bytes or more: the loader ends the process"});
        return;
      case tt::LineKind::kMalformed:
        r.problems.push_back({number, "arc line without a target field: the loader skips it"});
        return;
      case tt::LineKind::kFinal:
        ++r.stats.final_lines;
        finals.insert(t.state);
        break;
      case tt::LineKind::kArc:
        ++r.stats.arcs;
        if (!in_range(t.target))
          r.problems.push_back({number, "target state " + std::to_string(t.target) +
                                            " out of range (the table counts " +
                                            std::to_string(count) + " states)"});
        if (t.lower.empty()) {
          ++r.stats.epsilon_arcs;
          if (plausible && in_range(t.state) && in_range(t.target))
            eps[static_cast<std::size_t>(t.state)].push_back({t.target, number});
        } else {
          lowers.insert(t.lower);
        }
        if (!t.upper.empty()) uppers.insert(t.upper);
        pairs.insert({t.upper, t.lower});
        break;
    }
    if (!in_range(t.state))
      r.problems.push_back({number, "state " + std::to_string(t.state) +
                                        " out of range (the table counts " + std::to_string(count) +
                                        " states)"});
    if (t.state < last_state)
      r.problems.push_back({number, "state " + std::to_string(t.state) + " after state " +
                                        std::to_string(last_state) +
                                        ": states must come in ascending order"});
    last_state = std::max(last_state, t.state);
  };
  if (enciphered)
    for_each_deciphered_line(deciphered, line_fn);
  else
    tt::for_each_plain_piece(bytes, tt::kLoadPiece,
                             [&](std::string_view l, std::size_t n) { line_fn(l, n, true); });

  find_epsilon_cycles(eps, r.problems);
  if (finals.empty()) r.problems.push_back({0, "no final state: the table recognises nothing"});
  std::stable_sort(r.problems.begin(), r.problems.end(),
                   [](const TableProblem& a, const TableProblem& b) { return a.line < b.line; });
  r.stats.final_states = finals.size();
  r.stats.upper_symbols = uppers.size();
  r.stats.lower_symbols = lowers.size();
  r.stats.symbol_pairs = pairs.size();
  return r;
}

std::vector<TableProblem> encipher_problems(std::string& plain, bool repair) {
  std::vector<TableProblem> problems;
  std::string kept;
  std::size_t at = 0, number = 0;
  while (at < plain.size()) {
    std::size_t nl = plain.find('\n', at);
    bool terminated = nl != std::string::npos;
    if (!terminated) nl = plain.size();
    std::string_view line(plain.data() + at, nl - at);
    ++number;
    at = nl + 1;
    if (line.find('\0') != std::string_view::npos)
      problems.push_back({number, "zero byte: the enciphered form cannot carry it"});
    if (line.size() > tt::kMaxDecipheredLine)
      problems.push_back({number, "line of 2222 bytes or more: the enciphered loader ends the process"});
    std::string_view body = line;
    if (!body.empty() && body.back() == '\r') body.remove_suffix(1);
    if (body.size() < tt::kMinLine) {
      if (!repair) problems.push_back({number, "line under 5 bytes: the enciphered loader would stop here"});
      continue;  // dropped on repair: the plain loader ignores it too
    }
    if (!terminated && !repair)
      problems.push_back({number, "last line has no line end: the enciphered loader would ignore it"});
    kept.append(line);
    kept += '\n';
  }
  if (repair) plain = std::move(kept);
  return problems;
}

}  // namespace tarvola_cli
