// The generation walk: a depth-first search from state 0 over every arc in
// file order, spelling the upper side into one area and the lower side into
// another, and keeping only paths whose upper side agrees with the target
// (lemma + tags) over the shorter of the two lengths. A path is emitted at
// a final arc, or, with `aurrizkia`, as soon as a tag-bearing upper side
// begins with the whole target.
//
// An arc whose upper side would disagree with the target is not descended
// into: the next level would return at once, so results and their order are
// those of the unpruned walk. The "contains" tests on the upper area are kept
// as flags updated from the few bytes each arc adds, not searched afresh.
//
// Limits that keep every table finite: both areas stay under 10000 bytes,
// a state is not re-entered on one path while the upper side has not grown
// (a cycle that spells nothing), and one generation stops after
// kMaxGenerateSteps steps, kMaxGenerateResults results or kMaxResultBytes
// of emitted text.
#ifndef TARVOLA_TABLES_INTERNAL_GENERATE_WALK_H
#define TARVOLA_TABLES_INTERNAL_GENERATE_WALK_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/base/tags.h"
#include "tarvola/tables/internal/lookup_walk.h"

namespace tarvola::internal {

inline constexpr std::size_t kMaxTarget = 999;
inline constexpr std::size_t kMaxArea = 9999;
inline constexpr std::uint64_t kMaxGenerateSteps = std::uint64_t{1} << 19;  // see kMaxSteps
// A real generation gives at most about 1,600 forms (a subordinating prefix
// before an auxiliary verb); see kMaxResults.
inline constexpr std::size_t kMaxGenerateResults = std::size_t{1} << 13;

// Copies the lemma's capitals onto the surface form, position by position,
// up to the first tag of the upper side.
void copy_capitals(std::string_view upper, std::string& surface);

template <typename Source>
class GenerateWalk {
 public:
  GenerateWalk(const Source& source, std::string_view target, bool aurrizkia,
               const std::string& network, std::vector<Analisia>& results)
      : source_(source), target_(target), aurrizkia_(aurrizkia), network_(network),
        results_(results) {
    target_eli_ = tags::contains(target_, "<ELI_IZE");
    target_psp_ = tags::contains(target_, "<PSP");
  }

  void run() {
    path_.push_back({0, 0});
    walk(0, 0, 0);
  }

 private:
  enum : unsigned { kLess = 1, kEli = 2, kPsp = 4, kStop = 8 };
  struct PathEntry {
    int state;
    std::size_t upper_length;
  };

  void walk(int state, unsigned flags, unsigned depth) {
    if (++steps_ > kMaxGenerateSteps) stopped_ = true;
    if (stopped_) return;
    // Callers only descend while the upper side agrees with the target.
    if (state < 0) return emit();
    if (target_eli_ && upper_ == target_) return emit();
    if (aurrizkia_ && (flags & kLess)) {
      if (tags::starts_with(upper_, target_)) emit();
      return;
    }
    if (((flags & kEli) && !target_eli_) || ((flags & kPsp) && !target_psp_)) return;
    if ((flags & kStop) || !source_.valid(state) || depth >= kMaxDepth) return;
    steps_ += source_.arc_count(state);  // each arc is looked at (see kMaxSteps)
    if (steps_ > kMaxGenerateSteps) stopped_ = true;
    if (stopped_) return;
    source_.all_arcs(state, [&](std::string_view upper, std::string_view lower, int target) {
      follow(upper, lower, target, flags, depth);
      return !stopped_;
    });
  }

  void follow(std::string_view upper, std::string_view lower, int target, unsigned flags,
              unsigned depth) {
    // "<>" and the tags of the classes 0 and 1 are walked over unspelled.
    if (upper == "<>" || (upper.size() >= 2 && (upper[1] == '0' || upper[1] == '1')))
      upper = {};
    if (upper_.size() + upper.size() > kMaxArea || surface_.size() + lower.size() > kMaxArea)
      return;
    const std::size_t upper_mark = upper_.size();
    const std::size_t surface_mark = surface_.size();
    if (!agrees_after(upper, upper_mark)) return;
    if (upper.empty() && target >= 0 && (on_path(target, upper_mark) || stopped_)) return;
    upper_.append(upper);
    surface_.append(lower);
    path_.push_back({target, upper_.size()});
    walk(target, flags | new_flags(upper_mark), depth + 1);
    path_.pop_back();
    upper_.resize(upper_mark);
    surface_.resize(surface_mark);
  }

  // Whether upper_ + added still agrees with the target over the shorter length.
  bool agrees_after(std::string_view added, std::size_t at) const {
    if (at >= target_.size()) return true;
    std::size_t n = std::min(added.size(), target_.size() - at);
    return target_.compare(at, n, added.data(), n) == 0;
  }

  // Flags for what the bytes appended since `from` bring into the upper area.
  unsigned new_flags(std::size_t from) const {
    unsigned f = 0;
    auto window = [&](std::size_t pattern) {
      std::size_t begin = from >= pattern - 1 ? from - (pattern - 1) : 0;
      return std::string_view(upper_).substr(begin);
    };
    if (upper_.size() == from) return 0;
    if (tags::contains(window(1), "<")) f |= kLess;
    if (tags::contains(window(8), "<ELI_IZE")) f |= kEli;
    if (tags::contains(window(4), "<PSP")) f |= kPsp;
    std::string_view w = window(7);
    if (tags::contains(w, "ba<AUR>") || tags::contains(w, "<ADL>") || tags::contains(w, "<Rare>"))
      f |= kStop;
    return f;
  }

  // Counts the entries it looks at as steps, as the lookup walk does.
  bool on_path(int state, std::size_t upper_length) {
    for (auto it = path_.rbegin(); it != path_.rend() && it->upper_length == upper_length; ++it) {
      if (++steps_ > kMaxGenerateSteps) stopped_ = true;
      if (it->state == state) return true;
    }
    return false;
  }

  void emit() {
    copy_capitals(upper_, surface_);
    results_.emplace_back(upper_, network_);
    results_.back().forma = surface_;
    emitted_bytes_ += upper_.size() + surface_.size();
    if (results_.size() >= kMaxGenerateResults || emitted_bytes_ >= kMaxResultBytes)
      stopped_ = true;
  }

  const Source& source_;
  std::string target_;
  bool aurrizkia_;
  const std::string& network_;
  std::vector<Analisia>& results_;
  std::string upper_;
  std::string surface_;
  std::vector<PathEntry> path_;
  std::uint64_t steps_ = 0;
  std::size_t emitted_bytes_ = 0;
  bool target_eli_ = false;
  bool target_psp_ = false;
  bool stopped_ = false;
};

}  // namespace tarvola::internal

#endif
