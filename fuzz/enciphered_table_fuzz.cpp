// Enciphered table bytes: deciphered and loaded as the table loader does
// for a "SARE8" file, then looked up and generated from.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/fuzz_support.h"
#include "tarvola/tables/cipher.h"
#include "tarvola/tables/table_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tarvola::table_text::LoadReport;
  const std::string text =
      tarvola::cipher::decipher(std::string_view(reinterpret_cast<const char*>(data), size));
  std::vector<tarvola::Egoera*> states;
  const LoadReport report = tarvola::table_text::load_deciphered(text, states);
  if (report.problem == LoadReport::kFieldTooLong || report.problem == LoadReport::kLineTooLong) {
    tarvola::fuzz::free_states(states);
    return 0;
  }
  tarvola::fuzz::exercise_table(std::move(states), size);
  return 0;
}
