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
#include "tarvola/tarvola.h"

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

// Renders each paragraph of the inputs with render(engine, piece, number)
// (number counts from 1) and writes the texts in input order. With more
// than one thread (options.threads, 0 for one a core; 1 with --unbuffered,
// which must answer each paragraph as it comes) blocks of paragraphs are
// shared among copies of the engine that share its tables: render must
// touch nothing shared but the engine it is given. False when an input
// could not be read.
bool render_paragraphs(const CommonOptions& options, tarvola::Tarvola& engine, Output& out,
                       const std::function<std::string(tarvola::Tarvola&, const EnginePiece&, int)>& render);

// Paragraph subcommands: every engine piece of every input in order (see
// paragraphs.h), with a progress line. False when an input could not be
// read.
bool for_each_paragraph(const CommonOptions& options, const std::function<void(const EnginePiece&)>& f);

}  // namespace tarvola_cli

#endif
