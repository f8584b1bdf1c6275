// Two ways to read a table's arcs, with one interface, so that each walk is
// written once: the compact index (the fast path for loaded tables) and the
// public state objects (for tables built or edited by hand, and the
// reference the index is checked against).
//
//   valid(s)                 s names a state that can be walked
//   guard_cycles()           whether epsilon cycles must be watched for
//   viable(s, next)          whether entering s (a target taken from an arc)
//                            before input byte `next` (-1: end of word) can
//                            still lead to a result
//   matches(s, rest, f)      f(upper, lower_length, target) for every arc of
//                            s whose lower symbol begins `rest`, file order;
//                            f returns false to stop
//   all_arcs(s, f)           f(upper, lower, target) for every arc, file order
#ifndef TARVOLA_TABLES_INTERNAL_ARC_SOURCES_H
#define TARVOLA_TABLES_INTERNAL_ARC_SOURCES_H

#include <cstring>
#include <string_view>
#include <vector>

#include "tarvola/tables/Egoera.h"
#include "tarvola/tables/internal/compact_table.h"

namespace tarvola::internal {

class IndexSource {
 public:
  // Symbols lie in the padded pool (see kSymbolPadding).
  static constexpr bool kPaddedSymbols = true;

  explicit IndexSource(const CompactTable& t) : t_(t), arcs_(t.arcs()), pool_(t.pool()) {}

  bool valid(int s) const { return static_cast<std::size_t>(s) < t_.state_count(); }
  bool guard_cycles() const { return t_.has_epsilon_cycle(); }
  bool viable(int s, int next) const { return t_.viable(static_cast<std::size_t>(s), next); }

  // How many arcs matches() / all_arcs() look at: the walks charge them to
  // their step budgets, so that a state with many arcs costs what it takes.
  std::size_t arc_count(int s) const { return t_.state(static_cast<std::size_t>(s)).arc_count; }

  template <typename F>
  void matches(int s, std::string_view rest, F&& f) const {
    const CompactState& st = t_.state(static_cast<std::size_t>(s));
    const CompactArc* e = arcs_ + st.arc_begin;
    const CompactArc* e_end = e + st.epsilon_count;
    const CompactArc* r = nullptr;
    const CompactArc* r_end = nullptr;
    if (!rest.empty()) {
      if (const CompactRun* run = t_.run_for(st, static_cast<unsigned char>(rest[0]))) {
        r = arcs_ + run->begin;
        r_end = r + run->count;
      }
    }
    // Merge the epsilon run and the byte's run by ordinal: file order.
    for (;;) {
      const CompactArc* a;
      if (e != e_end && (r == r_end || e->ordinal < r->ordinal)) {
        a = e++;
      } else if (r != r_end) {
        a = r++;
        if (a->lower_length > 1 &&
            (a->lower_length > rest.size() ||
             std::memcmp(pool_ + a->lower + 1, rest.data() + 1, a->lower_length - 1u) != 0))
          continue;
      } else {
        return;
      }
      if (!f(std::string_view(pool_ + a->upper, a->upper_length), std::size_t{a->lower_length},
             a->target))
        return;
    }
  }

  template <typename F>
  void all_arcs(int s, F&& f) const {
    const CompactState& st = t_.state(static_cast<std::size_t>(s));
    const std::uint32_t* order = t_.file_order() + st.arc_begin;
    for (std::uint32_t i = 0; i < st.arc_count; ++i) {
      const CompactArc& a = arcs_[order[i]];
      if (!f(std::string_view(pool_ + a.upper, a.upper_length),
             std::string_view(pool_ + a.lower, a.lower_length), a.target))
        return;
    }
  }

 private:
  const CompactTable& t_;
  const CompactArc* arcs_;
  const char* pool_;
};

class ObjectSource {
 public:
  static constexpr bool kPaddedSymbols = false;

  explicit ObjectSource(const std::vector<Egoera*>& states) : states_(states) {}

  bool valid(int s) const {
    return static_cast<std::size_t>(s) < states_.size() && states_[static_cast<std::size_t>(s)];
  }
  bool guard_cycles() const { return true; }
  bool viable(int, int) const { return true; }

  std::size_t arc_count(int s) const { return states_[static_cast<std::size_t>(s)]->zubiak.size(); }

  template <typename F>
  void matches(int s, std::string_view rest, F&& f) const {
    for (const Zubia* z : states_[static_cast<std::size_t>(s)]->zubiak) {
      if (!z || !target_ok(z->hurrengoEgoera)) continue;
      const std::string& lower = z->behekoIkurra;
      if (lower.size() > rest.size() || rest.compare(0, lower.size(), lower) != 0) continue;
      if (!f(std::string_view(z->goikoIkurra), lower.size(), z->hurrengoEgoera)) return;
    }
  }

  template <typename F>
  void all_arcs(int s, F&& f) const {
    for (const Zubia* z : states_[static_cast<std::size_t>(s)]->zubiak) {
      if (!z || !target_ok(z->hurrengoEgoera)) continue;
      if (!f(std::string_view(z->goikoIkurra), std::string_view(z->behekoIkurra), z->hurrengoEgoera))
        return;
    }
  }

 private:
  bool target_ok(int target) const {
    return target < 0 || static_cast<std::size_t>(target) < states_.size();
  }
  const std::vector<Egoera*>& states_;
};

}  // namespace tarvola::internal

#endif
