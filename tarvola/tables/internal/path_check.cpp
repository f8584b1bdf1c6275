#include "tarvola/tables/internal/path_check.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace tarvola::internal {

bool some_path_begins(const CompactTable& table, std::string_view walked) {
  const std::size_t n = walked.size();
  const CompactArc* arcs = table.arcs();
  const char* pool = table.pool();
  // The states reached at each position; a state is marked with the
  // position's stamp when it is queued there, in arrays of the thread's own
  // kept between calls (no allocation per word once they have grown).
  thread_local std::vector<std::uint32_t> marks;
  thread_local std::uint32_t stamp = 0;
  thread_local std::vector<std::vector<int>> at;
  if (marks.size() < table.state_count()) marks.assign(table.state_count(), 0);
  if (stamp > UINT32_MAX - 1000 - n) {
    marks.assign(marks.size(), 0);
    stamp = 0;
  }
  const std::uint32_t base = stamp + 1;
  stamp += static_cast<std::uint32_t>(n) + 1;
  if (at.size() < n + 1) at.resize(n + 1);
  for (std::size_t pos = 0; pos <= n; ++pos) at[pos].clear();
  at[0].push_back(0);
  marks[0] = base;

  // An arc read at `pos`: true when it reaches the end (a path found).
  auto take = [&](const CompactArc& a, std::size_t pos) {
    const std::size_t next = pos + a.lower_length;
    if (next > n) return true;  // a symbol running past the end: the path may go on
    if (a.target < 0) return false;
    if (next == n) return true;
    const std::size_t target = static_cast<std::size_t>(a.target);
    if (target >= table.state_count() || !table.viable(target, static_cast<unsigned char>(walked[next])))
      return false;
    const std::uint32_t mark = base + static_cast<std::uint32_t>(next);
    if (marks[target] != mark) {
      marks[target] = mark;
      at[next].push_back(a.target);
    }
    return false;
  };
  // Nothing is queued at the end: reaching it is the answer.
  for (std::size_t pos = 0; pos < n; ++pos) {
    const std::string_view rest = walked.substr(pos);
    std::vector<int>& here = at[pos];
    for (std::size_t i = 0; i < here.size(); ++i) {
      const CompactState& st = table.state(static_cast<std::size_t>(here[i]));
      for (std::uint32_t k = 0; k < st.epsilon_count; ++k)
        if (take(arcs[st.arc_begin + k], pos)) return true;
      const CompactRun* run = table.run_for(st, static_cast<unsigned char>(rest[0]));
      if (run == nullptr) continue;
      for (std::uint32_t k = 0; k < run->count; ++k) {
        const CompactArc& a = arcs[run->begin + k];
        // The symbol must spell the rest of the text as far as both go.
        const std::size_t common = a.lower_length < rest.size() ? a.lower_length : rest.size();
        if (common > 1 && std::memcmp(pool + a.lower + 1, rest.data() + 1, common - 1) != 0) continue;
        if (take(a, pos)) return true;
      }
    }
  }
  return false;
}

}  // namespace tarvola::internal
