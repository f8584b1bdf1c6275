// The analysis walk: a depth-first search from state 0 that consumes the
// lower-cased word on the lower side of the arcs and spells the upper side
// into an output area, in place (extended before each arc, cut back after
// it, never copied). Two complications beside the plain search:
//  - a path ends at an arc numbered -1; it yields its output only when the
//    whole word is consumed and both lookup filters accept it;
//  - while the output is exactly one character, a capital there cuts the
//    branch for a word written in lower case.
// What the table format leaves undefined gets a defined end: arcs past the
// last state are skipped; an epsilon cycle is not followed round (a state is
// not re-entered at the same input position on one path); the output stays
// under 1000 bytes (an arc that would overflow it is not taken); and one
// lookup stops after kMaxSteps arc steps, kMaxResults results or
// kMaxResultBytes of result text.
//
// All search state lives in the walk object, on the caller's stack: a
// table is only read, so lookups on one table may run in parallel.
#ifndef TARVOLA_TABLES_INTERNAL_LOOKUP_WALK_H
#define TARVOLA_TABLES_INTERNAL_LOOKUP_WALK_H

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "tarvola/base/latin1.h"
#include "tarvola/tables/internal/compact_table.h"
#include "tarvola/tables/internal/lookup_filters.h"

namespace tarvola::internal {

inline constexpr std::size_t kMaxWord = 999;
inline constexpr std::size_t kMaxOutput = 999;
inline constexpr unsigned kMaxDepth = 4000;
// The step budgets bound the time a malformed table can take (a chain of
// doubled epsilon arcs has exponentially many paths) to some tens of
// milliseconds per lookup or generation. A step is a state entered, an arc
// looked at there, or a path entry the cycle check compares. The default
// main network needs at most about 5,000 steps for a lookup and 53,000 for
// a generation of any word of the Basque test corpus.
inline constexpr std::uint64_t kMaxSteps = std::uint64_t{1} << 18;
// Every result becomes a parsed reading (a few microseconds each), so the
// number of results is capped too: real words have at most about ten
// readings. Results are also capped by their total text, since a table can
// emit the same long spelling round a cycle thousands of times; real
// readings are well under 100 bytes each.
inline constexpr std::size_t kMaxResults = std::size_t{1} << 10;
inline constexpr std::size_t kMaxResultBytes = std::size_t{1} << 20;

// The accepted analysis strings of one lookup, packed in one buffer.
struct WalkResults {
  std::string text;
  std::vector<std::uint32_t> ends;

  std::size_t size() const { return ends.size(); }
  std::string_view operator[](std::size_t i) const {
    std::uint32_t begin = i == 0 ? 0 : ends[i - 1];
    return std::string_view(text).substr(begin, ends[i] - begin);
  }
  void clear() {
    text.clear();
    ends.clear();
  }
};

// The word as the walk sees it: cut at a zero byte and to kMaxWord bytes.
inline std::string_view walk_word(std::string_view word) {
  std::size_t zero = word.find('\0');
  if (zero != std::string_view::npos) word = word.substr(0, zero);
  return word.substr(0, kMaxWord);
}

// The output area of a walk: a fixed character area on the caller's stack,
// extended and cut back in place (no allocation per word or per arc).
class OutputArea {
 public:
  std::size_t size() const { return size_; }
  std::string_view view() const { return std::string_view(data_, size_); }
  bool fits(std::size_t more) const { return size_ + more <= kMaxOutput; }
  void append(std::string_view s) {
    // Symbols are a letter or a short tag: a plain loop beats a call.
    char* out = data_ + size_;
    for (char c : s) *out++ = c;
    size_ += s.size();
  }
  // The same for a symbol followed by at least kSymbolPadding readable
  // bytes: a short one moves in one fixed-size copy, whatever its length.
  void append_padded(std::string_view s) {
    if (s.size() > kSymbolPadding) return append(s);
    std::memcpy(data_ + size_, s.data(), kSymbolPadding);
    size_ += s.size();
  }
  void cut(std::size_t size) { size_ = size; }

 private:
  char data_[kMaxOutput + kSymbolPadding];
  std::size_t size_ = 0;
};

template <typename Source>
class LookupWalk {
 public:
  // `word` is the given word (already cut by walk_word).
  LookupWalk(const Source& source, std::string_view word, WalkResults& results)
      : source_(source), given_(word), results_(results) {
    for (std::size_t i = 0; i < word.size(); ++i) walked_[i] = latin1::to_lower(word[i]);
    walked_size_ = word.size();
    given_all_upper_ = latin1::is_all_upper(word);
    given_lower_ = !word.empty() && latin1::is_ascii_lower(word[0]);
  }

  void run() {
    if (source_.guard_cycles()) path_.push_back({0, 0});
    walk(0, 0, 0);
  }

 private:
  struct PathEntry {
    int state;
    std::size_t pos;
  };

  void walk(int state, std::size_t pos, unsigned depth) {
    if (++steps_ > kMaxSteps) stopped_ = true;
    if (stopped_) return;
    if (state < 0) {
      if (pos == walked_size_ && filters_pass(given_, output_.view())) accept();
      return;
    }
    if (!source_.valid(state) || depth >= kMaxDepth) return;
    // A one-character output holds no tag, so of the capitalisation filter
    // only its first rule can fail here: a capital for a lower-case word.
    if (output_.size() == 1 && !given_all_upper_ && given_lower_ &&
        latin1::is_ascii_upper(output_.view()[0]))
      return;
    const std::string_view rest(walked_ + pos, walked_size_ - pos);
    // Charged by the state's whole arc count: a bound on the arcs looked at
    // that costs one load, where finding the byte's run again would not.
    steps_ += source_.arc_count(state);
    if (steps_ > kMaxSteps) stopped_ = true;
    if (stopped_) return;
    source_.matches(state, rest,
                    [&](std::string_view upper, std::size_t lower_length, int target) {
                      follow(upper, pos, lower_length, target, depth);
                      return !stopped_;
                    });
  }

  void follow(std::string_view upper, std::size_t pos, std::size_t lower_length, int target,
              unsigned depth) {
    if (!output_.fits(upper.size())) return;
    const std::size_t next = pos + lower_length;
    if (target >= 0 &&
        !source_.viable(target, next < walked_size_ ? static_cast<unsigned char>(walked_[next]) : -1))
      return;
    const bool guarded = source_.guard_cycles() && target >= 0;
    if (guarded) {
      if (lower_length == 0 && (on_path(target, pos) || stopped_)) return;
      path_.push_back({target, next});
    }
    const std::size_t mark = output_.size();
    if constexpr (Source::kPaddedSymbols)
      output_.append_padded(upper);
    else
      output_.append(upper);
    walk(target, next, depth + 1);
    output_.cut(mark);
    if (guarded) path_.pop_back();
  }

  // Whether the state was entered at this input position on the current path.
  // Each entry looked at counts as a step: on a long chain of epsilon arcs
  // this scan, not the descent, is where the time goes.
  bool on_path(int state, std::size_t pos) {
    for (auto it = path_.rbegin(); it != path_.rend() && it->pos == pos; ++it) {
      if (++steps_ > kMaxSteps) stopped_ = true;
      if (it->state == state) return true;
    }
    return false;
  }

  void accept() {
    results_.text.append(output_.view());
    results_.ends.push_back(static_cast<std::uint32_t>(results_.text.size()));
    if (results_.size() >= kMaxResults || results_.text.size() >= kMaxResultBytes) stopped_ = true;
  }

  const Source& source_;
  std::string_view given_;
  char walked_[kMaxWord + 1];
  std::size_t walked_size_ = 0;
  WalkResults& results_;
  OutputArea output_;
  std::vector<PathEntry> path_;
  std::uint64_t steps_ = 0;
  bool given_all_upper_ = false;
  bool given_lower_ = false;
  bool stopped_ = false;
};

}  // namespace tarvola::internal

#endif
