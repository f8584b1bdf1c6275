// Plain table text, as a third-party converter might write it: loaded
// through the loader's two passes, then looked up and generated from.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "fuzz/fuzz_support.h"
#include "tarvola/tables/table_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tarvola::table_text::LoadReport;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::vector<tarvola::Egoera*> states;
  const LoadReport report = tarvola::table_text::load_plain(text, states);
  if (report.problem == LoadReport::kFieldTooLong) {
    // A table file like this ends the process on purpose; only the loader's
    // own part (no crash, nothing leaked) is checked.
    tarvola::fuzz::free_states(states);
    return 0;
  }
  tarvola::fuzz::exercise_table(std::move(states), size);
  return 0;
}
