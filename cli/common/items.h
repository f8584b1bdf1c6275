// The input loops of the subcommands, written once.
#ifndef TARVOLA_CLI_COMMON_ITEMS_H
#define TARVOLA_CLI_COMMON_ITEMS_H

#include <functional>
#include <string>
#include <vector>

#include "common/encoding.h"
#include "common/options.h"

namespace tarvola_cli {

// Word subcommands: the words given as arguments, else the lines of the
// files (standard input when none), one item a line, blank lines skipped.
// False when an input could not be read.
bool for_each_line_item(const std::vector<std::string>& words, const std::vector<std::string>& files,
                        const std::function<void(const std::string&)>& f);

// The item converted for the engine; false (message printed) when it cannot
// be.
bool engine_text(const std::string& item, Encoding encoding, EnginePiece& piece);

// Paragraph subcommands: every engine piece of every input in order (see
// paragraphs.h), with a progress line. False when an input could not be
// read.
bool for_each_paragraph(const CommonOptions& options, const std::function<void(const EnginePiece&)>& f);

}  // namespace tarvola_cli

#endif
