// Options shared by the subcommands, declared once.
#ifndef TARVOLA_CLI_COMMON_OPTIONS_H
#define TARVOLA_CLI_COMMON_OPTIONS_H

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "common/encoding.h"
#include "common/paragraphs.h"

namespace tarvola_cli {

struct CommonOptions {
  std::string config;
  std::string dict;
  std::string output = "-";
  std::string format = "text";
  std::string encoding = "utf-8";
  std::string paragraph_mode = "line";
  std::vector<std::string> words;   // the word subcommands' WORD... arguments
  std::vector<std::string> inputs;  // files to read: FILE... or --file
  bool unbuffered = false;
  bool verbose = false;
  unsigned threads = 0;  // paragraph subcommands: 0 is one a core

  Encoding text_encoding() const {
    return encoding == "cp1252" ? Encoding::kCp1252 : Encoding::kUtf8;
  }
  bool json() const { return format == "json"; }
  ParagraphMode mode() const {
    return paragraph_mode == "blank-line" ? ParagraphMode::kBlankLine : ParagraphMode::kLine;
  }
};

// What a subcommand does once the arguments are parsed; its exit status.
using Runner = std::function<int()>;

// --config, --dict, --verbose, then --encoding, --output, --unbuffered, and
// --format when `json` is offered: every engine subcommand ends with them.
void add_engine_options(CLI::App& app, CommonOptions& o, bool json);
// FILE... inputs, --paragraph-mode and, with `threads`, --threads, for the
// paragraph subcommands.
void add_text_inputs(CLI::App& app, CommonOptions& o, bool threads = false);
// WORD... arguments and -f,--file, for the subcommands that take a word a
// line.
void add_word_inputs(CLI::App& app, CommonOptions& o,
                     const char* words_help = "Words (none: one a line from --file or stdin)");

}  // namespace tarvola_cli

#endif
