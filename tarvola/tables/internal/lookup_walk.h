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
// lookup stops after kMaxSteps arc steps or kMaxResults results.
//
// All search state lives in the walk object, on the caller's stack: a
// table is only read, so lookups on one table may run in parallel.
#ifndef TARVOLA_TABLES_INTERNAL_LOOKUP_WALK_H
#define TARVOLA_TABLES_INTERNAL_LOOKUP_WALK_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tarvola/base/latin1.h"
#include "tarvola/tables/internal/lookup_filters.h"

namespace tarvola::internal {

inline constexpr std::size_t kMaxWord = 999;
inline constexpr std::size_t kMaxOutput = 999;
inline constexpr unsigned kMaxDepth = 4000;
inline constexpr std::uint64_t kMaxSteps = std::uint64_t{1} << 24;
inline constexpr std::size_t kMaxResults = std::size_t{1} << 16;

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

template <typename Source>
class LookupWalk {
 public:
  // `word` is the given word (already cut by walk_word).
  LookupWalk(const Source& source, std::string_view word, WalkResults& results)
      : source_(source), given_(word), walked_(word), results_(results) {
    latin1::lower_in_place(walked_);
    given_all_upper_ = latin1::is_all_upper(word);
    output_.reserve(kMaxOutput + 1);
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
      if (pos == walked_.size() && maiuskulaIragazkia(given_, output_) &&
          salbuespenIragazkia(output_))
        accept();
      return;
    }
    if (!source_.valid(state) || depth >= kMaxDepth) return;
    if (output_.size() == 1 && !given_all_upper_ && !maiuskulaIragazkia(given_, output_)) return;
    source_.matches(state, std::string_view(walked_).substr(pos),
                    [&](std::string_view upper, std::size_t lower_length, int target) {
                      follow(upper, pos, lower_length, target, depth);
                      return !stopped_;
                    });
  }

  void follow(std::string_view upper, std::size_t pos, std::size_t lower_length, int target,
              unsigned depth) {
    if (output_.size() + upper.size() > kMaxOutput) return;
    const std::size_t next = pos + lower_length;
    const bool guarded = source_.guard_cycles() && target >= 0;
    if (guarded) {
      if (lower_length == 0 && on_path(target, pos)) return;
      path_.push_back({target, next});
    }
    const std::size_t mark = output_.size();
    output_.append(upper);
    walk(target, next, depth + 1);
    output_.resize(mark);
    if (guarded) path_.pop_back();
  }

  // Whether the state was entered at this input position on the current path.
  bool on_path(int state, std::size_t pos) const {
    for (auto it = path_.rbegin(); it != path_.rend() && it->pos == pos; ++it)
      if (it->state == state) return true;
    return false;
  }

  void accept() {
    results_.text += output_;
    results_.ends.push_back(static_cast<std::uint32_t>(results_.text.size()));
    if (results_.size() >= kMaxResults) stopped_ = true;
  }

  const Source& source_;
  std::string_view given_;
  std::string walked_;
  WalkResults& results_;
  std::string output_;
  std::vector<PathEntry> path_;
  std::uint64_t steps_ = 0;
  bool given_all_upper_ = false;
  bool stopped_ = false;
};

}  // namespace tarvola::internal

#endif
