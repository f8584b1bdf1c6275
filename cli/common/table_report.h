// What the table loaders would make of a table file, without loading it:
// counts for `table stats` and the faults `table check` reports.
#ifndef TARVOLA_CLI_COMMON_TABLE_REPORT_H
#define TARVOLA_CLI_COMMON_TABLE_REPORT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarvola_cli {

struct TableProblem {
  std::size_t line = 0;  // 1-based; 0 for the table as a whole
  std::string message;
};

struct TableStats {
  long states = 0;  // as the counting pass finds them
  std::size_t arcs = 0;
  std::size_t final_lines = 0;
  std::size_t final_states = 0;
  std::size_t epsilon_arcs = 0;  // arcs that consume nothing
  std::size_t upper_symbols = 0, lower_symbols = 0, symbol_pairs = 0;  // distinct, epsilon excluded
};

struct TableReport {
  TableStats stats;
  std::vector<TableProblem> problems;
};

// The file's bytes; `enciphered` when the loader would decipher it (its
// path holds "SARE8").
TableReport inspect_table(std::string_view file_bytes, bool enciphered);

// Faults that would make an enciphered form of `plain` load differently
// from the plain file: lines under 5 bytes (the enciphered loader stops at
// them), an unterminated last line (ignored there), lines of 2222 bytes or
// more and zero bytes. With `repair`, short lines are dropped and the last
// line is terminated instead of being reported.
std::vector<TableProblem> encipher_problems(std::string& plain, bool repair);

}  // namespace tarvola_cli

#endif
