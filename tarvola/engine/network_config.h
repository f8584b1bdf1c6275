// The network configuration file: one table file path a line.
//
//   - Lines that are empty, start with "//", or start with a blank, a tab or
//     a carriage return are comments; an entry starts in the first column.
//   - A trailing carriage return is dropped; nothing else is trimmed.
//   - An entry whose file does not exist prints "Ezin da ireki '<path>'" and
//     is skipped; it does not count towards the limit.
//   - At most kMaxNetworks entries: when one more entry line is met, the
//     limit message is printed and the rest of the file is ignored.
// All messages go to standard output.
#ifndef TARVOLA_ENGINE_NETWORK_CONFIG_H
#define TARVOLA_ENGINE_NETWORK_CONFIG_H

#include <string>
#include <string_view>
#include <vector>

namespace tarvola::engine {

inline constexpr int kMaxNetworks = 10;

// The accepted table paths in file order; none when the file cannot be
// opened (silently).
std::vector<std::string> read_network_config(const std::string& path);

// The network name a table path gives: the file name after the last "/",
// up to its first ".", less one final "PG". A name of fewer than two bytes
// before the "PG" test throws std::out_of_range.
std::string network_name(std::string_view path);

}  // namespace tarvola::engine

#endif
