#include "tarvola/tables/table_import.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "tarvola/base/cp1252.h"
#include "tarvola/base/latin1.h"
#include "tarvola/tables/table_text.h"

namespace tarvola::table_import {

namespace {

// The longest symbol field the loader accepts.
constexpr std::size_t kMaxField = 98;

std::vector<std::string_view> split_tabs(std::string_view line) {
  std::vector<std::string_view> fields;
  std::size_t start = 0;
  for (;;) {
    std::size_t tab = line.find('\t', start);
    fields.push_back(line.substr(start, tab == std::string_view::npos ? std::string_view::npos : tab - start));
    if (tab == std::string_view::npos) break;
    start = tab + 1;
  }
  // hfst-fst2txt and lt-print may end lines with a tab.
  while (fields.size() > 1 && fields.back().empty()) fields.pop_back();
  return fields;
}

// f(line, its number from 1) for each line of a text, without its "\n" or
// "\r\n": the loader's line reading with no limit on a line's length.
template <typename F>
void for_each_line(std::string_view text, F&& f) {
  table_text::for_each_plain_piece(text, text.size(), std::forward<F>(f));
}

bool parse_state(std::string_view s, long& out) {
  if (s.empty() || s.size() > 9) return false;
  long v = 0;
  for (char c : s) {
    if (!latin1::is_digit(c)) return false;
    v = v * 10 + (c - '0');
  }
  out = v;
  return true;
}

// A symbol as it arrives from one of the tools; empty means epsilon.
struct Symbol {
  std::string text;
  std::string error;  // why the table cannot carry it
};

void replace_all(std::string& s, std::string_view from, std::string_view to) {
  for (std::size_t at = s.find(from); at != std::string::npos; at = s.find(from, at + to.size()))
    s.replace(at, from.size(), to);
}

Symbol read_symbol(std::string_view raw, SourceFormat format, bool utf8) {
  Symbol sym;
  std::string s;
  if (format == SourceFormat::Sfst) {
    if (raw == "<>") return sym;
    for (std::size_t i = 0; i < raw.size(); ++i) {
      if (raw[i] == '\\' && i + 1 < raw.size()) ++i;
      s += raw[i];
    }
  } else {
    if (raw == "@0@" || raw == "@_EPSILON_SYMBOL_@" || raw == "\xCE\xB5") return sym;
    s = std::string(raw);
    replace_all(s, "@_SPACE_@", " ");
    replace_all(s, "@_TAB_@", "\t");
    replace_all(s, "@_COLON_@", ":");
    if (s.size() > 2 && s.front() == '@' && s.back() == '@') {
      sym.error = "toolkit special symbol " + s + " (identity, unknown or flag diacritic) has no table form";
      return sym;
    }
  }
  if (s.find('\t') != std::string::npos || s.find('\n') != std::string::npos ||
      s.find('\r') != std::string::npos) {
    sym.error = "symbol holds a tab or line break";
    return sym;
  }
  if (utf8) {
    if (!utf8_to_cp1252(s, sym.text)) sym.error = "symbol '" + s + "' is not valid UTF-8 or holds a character outside code page 1252";
  } else {
    sym.text = std::move(s);
  }
  return sym;
}

// The symbol field the loader splits back into exactly (upper, lower), or
// an error text.
bool symbol_field(const std::string& upper, const std::string& lower, std::string& field,
                  std::string& error) {
  if (lower == "<>" && upper != "<>") {
    error = "a literal \"<>\" on the surface side reads as epsilon";
    return false;
  }
  if (upper == lower && !upper.empty()) {
    if (upper == ":" || upper.find(':') == std::string::npos) {
      field = upper;
    } else {
      error = "symbol '" + upper + "' holds a colon";
      return false;
    }
  } else if (upper.find(':') != std::string::npos) {
    error = "upper symbol '" + upper + "' holds a colon";
    return false;
  } else {
    field = upper + ":" + (lower.empty() ? "<>" : lower);
  }
  if (field.size() > kMaxField) {
    error = "symbol field of " + std::to_string(field.size()) + " bytes (at most 98 fit)";
    return false;
  }
  return true;
}

struct Arc {
  long target;
  std::string upper;
  std::string lower;
  std::size_t line;
};

struct State {
  std::vector<Arc> arcs;
  bool final = false;
};

class Importer {
 public:
  Importer(const ImportOptions& options, ImportResult& result) : opt_(options), res_(result) {}

  void run(std::string_view text) {
    surface_col_ = opt_.surface_column;
    if (surface_col_ == 0)
      surface_col_ = opt_.format == SourceFormat::Att && looks_like_lt_print(text) ? 3 : 4;
    if (surface_col_ != 3 && surface_col_ != 4) {
      problem(0, "the surface column must be 3 or 4");
      return;
    }
    read(text);
    if (!sections_.empty()) join_sections();
    check_epsilon_cycles();
    if (fatal_) return;
    write();
  }

 private:
  static bool looks_like_lt_print(std::string_view text) {
    return text.find("\xCE\xB5") != std::string_view::npos || text.rfind("--\n", 0) == 0 ||
           text.find("\n--\n") != std::string_view::npos;
  }

  void problem(std::size_t line, std::string message, bool droppable = false) {
    if (res_.problems.size() < 200) res_.problems.push_back({line, std::move(message)});
    if (!(droppable && opt_.drop_unrepresentable)) fatal_ = true;
  }

  State& state(long n) {
    const std::size_t i = static_cast<std::size_t>(base_ + n);
    if (states_.size() <= i) states_.resize(i + 1);
    return states_[i];
  }

  void read(std::string_view text) {
    bool section_open = false;
    for_each_line(text, [&](std::string_view line, std::size_t line_no) {
      if (line.empty()) return;
      if (line == "--") {
        // lt-print's section separator: the next section numbers from 0 again.
        base_ = static_cast<long>(states_.size());
        section_open = false;
        return;
      }
      auto fields = split_tabs(line);
      long src = 0;
      if (!parse_state(fields[0], src)) {
        problem(line_no, "expected a state number at the start of the line");
        return;
      }
      if (!section_open) {
        sections_.push_back(base_ + src);
        section_open = true;
      }
      if (fields.size() <= 2) {
        state(src).final = true;
        return;
      }
      long dst = 0;
      if (!parse_state(fields[1], dst)) {
        problem(line_no, "expected a target state number in the second column");
        return;
      }
      std::string_view in = fields[2];
      std::string_view out = fields.size() >= 4 ? fields[3] : fields[2];
      add_arc(line_no, src, dst, in, out);
    });
  }

  void add_arc(std::size_t line_no, long src, long dst, std::string_view in, std::string_view out) {
    Symbol a = read_symbol(surface_col_ == 3 ? out : in, opt_.format, opt_.utf8_input);
    Symbol s = read_symbol(surface_col_ == 3 ? in : out, opt_.format, opt_.utf8_input);
    state(dst);  // the target exists even when it has no line of its own
    State& from = state(src);
    if (!a.error.empty() || !s.error.empty()) {
      problem(line_no, !a.error.empty() ? a.error : s.error, true);
      return;
    }
    auto renamed = opt_.tag_map.find(a.text);
    if (renamed != opt_.tag_map.end()) a.text = renamed->second;
    if (!opt_.keep_case) latin1::lower_in_place(s.text);
    std::string field, error;
    if (!symbol_field(a.text, s.text, field, error)) {
      problem(line_no, error, true);
      return;
    }
    // Lower-casing can make two arcs the same; a repeated arc would only
    // repeat readings.
    for (const Arc& arc : from.arcs)
      if (arc.target == base_ + dst && arc.upper == a.text && arc.lower == s.text) return;
    from.arcs.push_back({base_ + dst, std::move(a.text), std::move(s.text), line_no});
  }

  // lt-print's sections become one table: a new start state with an arc
  // consuming nothing into each section's start.
  void join_sections() {
    if (sections_.size() == 1) {
      start_ = sections_[0];
      return;
    }
    start_ = static_cast<long>(states_.size());
    State joined;
    for (long s : sections_) joined.arcs.push_back({s, "", "", 0});
    states_.push_back(std::move(joined));
  }

  // Lookup follows arcs with an empty surface symbol without consuming
  // anything, so a cycle of them would never end.
  void check_epsilon_cycles() {
    const std::size_t n = states_.size();
    std::vector<std::uint8_t> mark(n, 0);  // 0 new, 1 on the path, 2 done
    std::vector<std::pair<std::size_t, std::size_t>> stack;
    for (std::size_t root = 0; root < n; ++root) {
      if (mark[root]) continue;
      stack.push_back({root, 0});
      mark[root] = 1;
      while (!stack.empty()) {
        auto& [st, next] = stack.back();
        const auto& arcs = states_[st].arcs;
        if (next == arcs.size()) {
          mark[st] = 2;
          stack.pop_back();
          continue;
        }
        const Arc& arc = arcs[next++];
        if (!arc.lower.empty()) continue;
        const auto t = static_cast<std::size_t>(arc.target);
        if (mark[t] == 1) {
          problem(arc.line, "a cycle of arcs that consume no surface symbol");
          return;
        }
        if (mark[t] == 0) {
          mark[t] = 1;
          stack.push_back({t, 0});
        }
      }
    }
  }

  void write() {
    const std::size_t n = states_.size();
    if (n == 0) {
      problem(0, "the input holds no transducer");
      return;
    }
    // Keep the states that the start reaches and that reach a final state.
    std::vector<std::vector<std::size_t>> preds(n);
    for (std::size_t s = 0; s < n; ++s)
      for (const Arc& arc : states_[s].arcs) preds[static_cast<std::size_t>(arc.target)].push_back(s);
    std::vector<bool> useful(n, false), reached(n, false);
    std::vector<std::size_t> work;
    for (std::size_t s = 0; s < n; ++s)
      if (states_[s].final) useful[s] = true, work.push_back(s);
    while (!work.empty()) {
      std::size_t s = work.back();
      work.pop_back();
      for (std::size_t p : preds[s])
        if (!useful[p]) useful[p] = true, work.push_back(p);
    }
    const auto start = static_cast<std::size_t>(start_);
    reached[start] = true;
    work.push_back(start);
    while (!work.empty()) {
      std::size_t s = work.back();
      work.pop_back();
      for (const Arc& arc : states_[s].arcs) {
        const auto t = static_cast<std::size_t>(arc.target);
        if (useful[t] && !reached[t]) reached[t] = true, work.push_back(t);
      }
    }
    if (!useful[start]) {
      // Nothing is accepted: a table with one state and no arcs says so.
      res_.table = "";
      res_.states = 1;
      res_.written = true;
      return;
    }
    // Dense numbers, the start first, the rest in their original order.
    std::vector<long> number(n, -1);
    std::vector<std::size_t> order{start};
    number[start] = 0;
    for (std::size_t s = 0; s < n; ++s)
      if (s != start && useful[s] && reached[s]) {
        number[s] = static_cast<long>(order.size());
        order.push_back(s);
      }
    std::string out;
    std::string field, error;
    for (std::size_t i = 0; i < order.size(); ++i) {
      const State& st = states_[order[i]];
      const std::string src = std::to_string(i);
      for (const Arc& arc : st.arcs) {
        const long t = number[static_cast<std::size_t>(arc.target)];
        if (t < 0) continue;
        symbol_field(arc.upper, arc.lower, field, error);
        out += src + '\t' + field + '\t' + std::to_string(t) + '\n';
        ++res_.arcs;
      }
      if (st.final) {
        out += "final\t" + src + '\n';
        ++res_.finals;
      }
    }
    res_.table = std::move(out);
    res_.states = order.size();
    res_.written = true;
  }

  const ImportOptions& opt_;
  ImportResult& res_;
  int surface_col_ = 4;
  std::vector<State> states_;
  std::vector<long> sections_;  // start state of each section
  long base_ = 0;
  long start_ = 0;
  bool fatal_ = false;
};

}  // namespace

bool utf8_to_cp1252(std::string_view text, std::string& out) { return cp1252::from_utf8(text, out); }

std::string cp1252_to_utf8(std::string_view text) { return cp1252::to_utf8(text); }

std::map<std::string, std::string> parse_tag_map(std::string_view text, bool utf8,
                                                 std::vector<ImportProblem>& problems) {
  std::map<std::string, std::string> map;
  for_each_line(text, [&](std::string_view line, std::size_t line_no) {
    if (line.empty() || line.front() == '#') return;
    const std::size_t tab = line.find('\t');
    if (tab == 0 || tab == std::string_view::npos || line.find('\t', tab + 1) != std::string_view::npos) {
      problems.push_back({line_no, "expected FROM<TAB>TO"});
      return;
    }
    std::string from(line.substr(0, tab)), to(line.substr(tab + 1));
    if (utf8) {
      std::string f, t;
      if (!utf8_to_cp1252(from, f) || !utf8_to_cp1252(to, t)) {
        problems.push_back({line_no, "not valid UTF-8 or outside code page 1252"});
        return;
      }
      from = std::move(f), to = std::move(t);
    }
    if (!map.emplace(from, to).second) problems.push_back({line_no, "'" + from + "' is renamed twice"});
  });
  return map;
}

ImportResult import_table(std::string_view text, const ImportOptions& options) {
  ImportResult result;
  Importer importer(options, result);
  importer.run(text);
  if (!result.written) result.table.clear();
  return result;
}

}  // namespace tarvola::table_import
