// The few input errors that end the whole process on purpose (a table field
// of 99 or more bytes, a deciphered table line of 2222 or more, a tag of 99
// or more). They are part of the library's contract: a table that breaks
// them is an installation fault, not something a caller could recover from.
#ifndef TARVOLA_BASE_FATAL_H
#define TARVOLA_BASE_FATAL_H

#include <string_view>

namespace tarvola {

// Writes the message and a line end to standard output, flushes every
// stream and ends the process with exit status 1.
[[noreturn]] void fatal_exit(std::string_view message);

}  // namespace tarvola

#endif
