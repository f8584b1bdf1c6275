// The input loops of the subcommands, and the text shape of a word's
// results, written once.
#ifndef TARVOLA_CLI_COMMON_ITEMS_H
#define TARVOLA_CLI_COMMON_ITEMS_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "common/encoding.h"
#include "common/io.h"
#include "common/options.h"

namespace tarvola_cli {

// Word subcommands: f(item, its engine text) for the words given as
// arguments, else for the lines of options.inputs (standard input when
// none), one item a line, blank lines skipped. An item that cannot be
// converted for the engine is skipped with a message and counted in
// `skipped`. False when an input could not be read.
using WordFunction = std::function<void(const std::string& item, const EnginePiece& piece)>;
bool for_each_word(const std::vector<std::string>& words, const CommonOptions& options,
                   const WordFunction& f, std::size_t* skipped = nullptr);

// The text output of a word subcommand's results: ITEM<TAB>RESULT per
// result, ITEM<TAB>+? when there is none, then a blank line; the item is
// complete.
void write_results(Output& out, const std::string& item, const std::vector<std::string>& results);
// The same text, to write later or again.
std::string results_text(const std::string& item, const std::vector<std::string>& results);

// Paragraph subcommands: every engine piece of every input in order (see
// paragraphs.h), with a progress line. False when an input could not be
// read.
bool for_each_paragraph(const CommonOptions& options, const std::function<void(const EnginePiece&)>& f);

}  // namespace tarvola_cli

#endif
