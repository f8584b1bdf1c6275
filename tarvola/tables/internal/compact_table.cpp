#include "tarvola/tables/internal/compact_table.h"

#include <algorithm>
#include <array>
#include <limits>
#include <unordered_map>

namespace tarvola::internal {

namespace {

constexpr std::uint32_t kDenseRuns = 8;  // more runs than this: a 256-entry row

// Interns symbols into the pool: one-byte and empty symbols by table, the
// rest (tags, letter groups) through a hash map.
class SymbolPool {
 public:
  explicit SymbolPool(std::string& pool) : pool_(pool) { single_.fill(kNone); }

  std::uint32_t add(const std::string& s) {
    if (s.size() <= 1) {
      std::size_t slot = s.empty() ? 256 : static_cast<unsigned char>(s[0]);
      if (single_[slot] == kNone) single_[slot] = append(s);
      return single_[slot];
    }
    auto it = multi_.find(s);
    if (it != multi_.end()) return it->second;
    std::uint32_t at = append(s);
    multi_.emplace(s, at);
    return at;
  }

 private:
  static constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();
  std::uint32_t append(const std::string& s) {
    auto at = static_cast<std::uint32_t>(pool_.size());
    pool_ += s;
    return at;
  }
  std::string& pool_;
  std::array<std::uint32_t, 257> single_{};
  std::unordered_map<std::string, std::uint32_t> multi_;
};

}  // namespace

CompactTable::CompactTable(const std::vector<Egoera*>& states)
    : source_data_(states.data()), source_size_(states.size()) {
  const std::size_t n = states.size();
  if (n > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
    ok_ = false;
    return;
  }
  std::size_t total = 0;
  for (const Egoera* s : states)
    if (s) total += s->zubiak.size();
  if (total >= std::numeric_limits<std::uint32_t>::max()) {
    ok_ = false;
    return;
  }
  states_.resize(n);
  arcs_.reserve(total);
  file_order_.reserve(total);
  SymbolPool symbols(pool_);
  std::vector<CompactArc> scratch;
  for (std::size_t s = 0; s < n; ++s) {
    CompactState& rec = states_[s];
    rec.arc_begin = static_cast<std::uint32_t>(arcs_.size());
    rec.dense_row = -1;
    rec.run_begin = static_cast<std::uint32_t>(runs_.size());
    rec.run_count = rec.epsilon_count = 0;
    scratch.clear();
    if (const Egoera* state = states[s]) {
      std::uint32_t ordinal = 0;
      for (const Zubia* z : state->zubiak) {
        std::uint32_t here = ordinal++;
        if (!z || z->hurrengoEgoera >= static_cast<std::int64_t>(n)) continue;
        if (z->goikoIkurra.size() > 0xFFFF || z->behekoIkurra.size() > 0xFFFF) {
          ok_ = false;
          return;
        }
        scratch.push_back({z->hurrengoEgoera, here, symbols.add(z->goikoIkurra),
                           symbols.add(z->behekoIkurra),
                           static_cast<std::uint16_t>(z->goikoIkurra.size()),
                           static_cast<std::uint16_t>(z->behekoIkurra.size())});
      }
    }
    // Epsilon arcs first, then by first lower byte; file order within each.
    auto key = [this](const CompactArc& a) {
      return a.lower_length == 0 ? -1 : static_cast<int>(static_cast<unsigned char>(pool_[a.lower]));
    };
    std::stable_sort(scratch.begin(), scratch.end(),
                     [&](const CompactArc& a, const CompactArc& b) { return key(a) < key(b); });
    for (const CompactArc& a : scratch) {
      int k = key(a);
      if (k < 0) {
        ++rec.epsilon_count;
      } else if (rec.run_count == 0 || runs_.back().byte != k) {
        runs_.push_back({static_cast<std::uint32_t>(arcs_.size()), 1, static_cast<unsigned char>(k)});
        ++rec.run_count;
      } else {
        ++runs_.back().count;
      }
      arcs_.push_back(a);
    }
    rec.arc_count = static_cast<std::uint32_t>(scratch.size());
    // File order of the state's arcs: sort their indices by ordinal.
    std::size_t order_begin = file_order_.size();
    for (std::uint32_t i = 0; i < rec.arc_count; ++i) file_order_.push_back(rec.arc_begin + i);
    std::sort(file_order_.begin() + static_cast<std::ptrdiff_t>(order_begin), file_order_.end(),
              [this](std::uint32_t a, std::uint32_t b) { return arcs_[a].ordinal < arcs_[b].ordinal; });
    if (rec.run_count > kDenseRuns) {
      rec.dense_row = static_cast<std::int32_t>(dense_rows_.size() / 256);
      dense_rows_.resize(dense_rows_.size() + 256, -1);
      for (std::uint32_t r = 0; r < rec.run_count; ++r) {
        const CompactRun& run = runs_[rec.run_begin + r];
        dense_rows_[static_cast<std::size_t>(rec.dense_row) * 256 + run.byte] =
            static_cast<std::int32_t>(rec.run_begin + r);
      }
    }
  }
  // Walks copy a short symbol with one fixed-size move that may read past
  // its end: the pool ends in that many spare bytes.
  pool_.append(kSymbolPadding, '\0');
  state_count_ = states_.size();
  std::vector<std::uint32_t> order;
  find_epsilon_cycles(order);
  compute_closures(order);
}

// Kahn's algorithm over the epsilon arcs: whatever cannot be peeled off
// lies on or behind a cycle. `order` receives the peeled states, each
// before every state its epsilon arcs lead to.
void CompactTable::find_epsilon_cycles(std::vector<std::uint32_t>& order) {
  const std::size_t n = states_.size();
  std::vector<std::uint32_t> indegree(n, 0);
  for (const CompactArc& a : arcs_)
    if (a.lower_length == 0 && a.target >= 0) ++indegree[static_cast<std::size_t>(a.target)];
  std::vector<std::uint32_t> ready;
  for (std::size_t s = 0; s < n; ++s)
    if (indegree[s] == 0) ready.push_back(static_cast<std::uint32_t>(s));
  std::size_t peeled = 0;
  while (!ready.empty()) {
    std::uint32_t s = ready.back();
    ready.pop_back();
    ++peeled;
    order.push_back(s);
    const CompactState& rec = states_[s];
    for (std::uint32_t i = 0; i < rec.epsilon_count; ++i) {
      const CompactArc& a = arcs_[rec.arc_begin + i];
      if (a.target >= 0 && --indegree[static_cast<std::size_t>(a.target)] == 0)
        ready.push_back(static_cast<std::uint32_t>(a.target));
    }
  }
  epsilon_cycle_ = peeled < n;
}

}  // namespace tarvola::internal

namespace tarvola::internal {

// Closures are filled from the end of the epsilon order backwards, so every
// epsilon target is complete before the states that lead to it. States on
// epsilon cycles are not in that order: they get everything (no pruning).
void CompactTable::compute_closures(const std::vector<std::uint32_t>& order) {
  const std::size_t n = states_.size();
  closure_bytes_.assign(n * 4, 0);
  closure_final_.assign(n, 0);
  if (order.size() < n) {
    std::fill(closure_bytes_.begin(), closure_bytes_.end(), ~std::uint64_t{0});
    std::fill(closure_final_.begin(), closure_final_.end(), 1);
  }
  for (auto it = order.rbegin(); it != order.rend(); ++it) {
    const std::size_t s = *it;
    const CompactState& rec = states_[s];
    std::uint64_t* bytes = &closure_bytes_[s * 4];
    for (std::uint32_t i = 0; i < rec.arc_count; ++i) {
      const CompactArc& a = arcs_[rec.arc_begin + i];
      if (a.lower_length > 0) {
        const unsigned c = static_cast<unsigned char>(pool_[a.lower]);
        bytes[c >> 6] |= std::uint64_t{1} << (c & 63);
      } else if (a.target < 0) {
        closure_final_[s] = 1;
      } else {
        const std::size_t t = static_cast<std::size_t>(a.target);
        for (int w = 0; w < 4; ++w) bytes[w] |= closure_bytes_[t * 4 + static_cast<std::size_t>(w)];
        closure_final_[s] |= closure_final_[t];
      }
    }
  }
}

}  // namespace tarvola::internal
