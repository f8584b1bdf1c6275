// The read-only form of a loaded table that lookup and generation walk.
//
// One record per state and one flat arc array. Within a state the arcs are
// laid out in runs: first the epsilon arcs (empty lower symbol, the final
// arcs among them), then one run per first byte of the lower symbol, each
// run in file order. Every arc keeps its ordinal (its place among the
// state's arcs in the file), so merging the epsilon run with the run of the
// next input byte by ordinal visits the candidate arcs exactly in file
// order. Generation needs all arcs in file order: `file_order` lists each
// state's arcs by ordinal.
//
// Symbols are stored once in a character pool. Arcs leading past the last
// state are left out (no walk could follow them anyway).
//
// For pruning, each state also records what its epsilon closure can still
// do: the first bytes it can consume next, and whether it can end without
// consuming more. A branch that can do neither with the rest of the word
// yields nothing, so the lookup walk does not enter it; results and their
// order stay those of the full walk.
#ifndef TARVOLA_TABLES_INTERNAL_COMPACT_TABLE_H
#define TARVOLA_TABLES_INTERNAL_COMPACT_TABLE_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tarvola/tables/Egoera.h"
#include "tarvola/tables/internal/reading_cache.h"

namespace tarvola::internal {

struct CompactArc {
  std::int32_t target;
  std::uint32_t ordinal;
  std::uint32_t upper;  // offset in the pool
  std::uint32_t lower;  // offset in the pool
  std::uint16_t upper_length;
  std::uint16_t lower_length;
};

struct CompactRun {
  std::uint32_t begin;  // first arc of the run (absolute index)
  std::uint32_t count;
  unsigned char byte;
};

struct CompactState {
  std::uint32_t arc_begin;
  std::uint32_t arc_count;
  std::uint32_t epsilon_count;  // the first arcs of the state
  std::uint32_t run_begin;
  std::uint32_t run_count;
  std::int32_t dense_row;       // row of 256 run numbers, or -1
};

// Bytes readable past the start of any symbol in the pool (see
// OutputArea::append_padded).
inline constexpr std::size_t kSymbolPadding = 8;

class CompactTable {
 public:
  // Builds the index from the states as they stand. Symbols longer than
  // 65535 bytes cannot occur in a loaded table (fields are at most 98
  // bytes); a hand-built table holding one is not indexed (ok() is false).
  explicit CompactTable(const std::vector<Egoera*>& states);

  bool ok() const { return ok_; }
  std::size_t state_count() const { return state_count_; }
  // Whether some cycle of epsilon arcs exists; walks then watch for it.
  bool has_epsilon_cycle() const { return epsilon_cycle_; }

  const CompactState& state(std::size_t n) const { return states_[n]; }
  const CompactArc* arcs() const { return arcs_.data(); }
  const std::uint32_t* file_order() const { return file_order_.data(); }
  const char* pool() const { return pool_.data(); }

  // Whether a path entering state s with `next` as the next input byte
  // (-1 at the end of the word) can still be accepted.
  bool viable(std::size_t s, int next) const {
    if (next < 0) return closure_final_[s] != 0;
    const unsigned c = static_cast<unsigned>(next);
    return (closure_bytes_[s * 4 + (c >> 6)] >> (c & 63)) & 1u;
  }

  // The run of `state` whose lower symbols begin with byte c, or null.
  const CompactRun* run_for(const CompactState& state, unsigned char c) const {
    if (state.dense_row >= 0) {
      std::int32_t r = dense_rows_[static_cast<std::size_t>(state.dense_row) * 256 + c];
      return r < 0 ? nullptr : &runs_[static_cast<std::size_t>(r)];
    }
    const CompactRun* run = runs_.data() + state.run_begin;
    for (std::uint32_t i = 0; i < state.run_count; ++i)
      if (run[i].byte == c) return run + i;
    return nullptr;
  }

  // The readings already found in this table (a new index starts empty).
  const ReadingCache& cache() const { return cache_; }

  // Structural identity of the states vector it was built from, used to
  // notice that a table was edited behind the index's back.
  const void* source_data() const { return source_data_; }
  std::size_t source_size() const { return source_size_; }

 private:
  std::uint32_t intern(const std::string& symbol);
  void find_epsilon_cycles(std::vector<std::uint32_t>& order);
  void compute_closures(const std::vector<std::uint32_t>& order);

  ReadingCache cache_;
  std::vector<CompactState> states_;
  std::vector<CompactArc> arcs_;
  std::vector<CompactRun> runs_;
  std::vector<std::int32_t> dense_rows_;
  std::vector<std::uint32_t> file_order_;
  std::string pool_;
  std::vector<std::uint64_t> closure_bytes_;  // 4 words (256 bits) per state
  std::vector<std::uint8_t> closure_final_;
  std::size_t state_count_ = 0;  // states_.size(), kept for the hot path
  bool ok_ = true;
  bool epsilon_cycle_ = false;
  const void* source_data_ = nullptr;
  std::size_t source_size_ = 0;
};

}  // namespace tarvola::internal

#endif
