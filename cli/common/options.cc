#include "common/options.h"

namespace tarvola_cli {

void add_engine_options(CLI::App& app, CommonOptions& o, bool json) {
  app.add_option("--config", o.config,
                 "Network configuration file (default: $TARVOLA_CONFIG, else the bundled data)");
  app.add_option("--dict", o.dict, "Personal dictionary file");
  app.add_flag("--verbose", o.verbose, "Also show the library's routine messages on standard error");
  app.add_option("--encoding", o.encoding, "Encoding of input and text output")
      ->check(CLI::IsMember({"utf-8", "cp1252"}))
      ->capture_default_str();
  app.add_option("-o,--output", o.output, "Write results to this file ('-': standard output)")
      ->capture_default_str();
  app.add_flag("-b,--unbuffered", o.unbuffered, "Flush after every item (for two-way pipes)");
  if (json)
    app.add_option("--format", o.format, "Output format; json writes one object per line")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
}

void add_text_inputs(CLI::App& app, CommonOptions& o, bool threads) {
  app.add_option("files", o.inputs, "Input files ('-' or none: standard input)");
  app.add_option("--paragraph-mode", o.paragraph_mode,
                 "line: one paragraph per line; blank-line: paragraphs separated by blank lines")
      ->check(CLI::IsMember({"line", "blank-line"}))
      ->capture_default_str();
  if (threads)
    app.add_option("--threads", o.threads,
                   "Paragraphs analysed at once, on copies of the engine sharing its tables "
                   "(default 0: one a core; output keeps the input order; --unbuffered: 1)")
        ->check(CLI::Range(0u, 64u));
}

void add_word_inputs(CLI::App& app, CommonOptions& o, const char* words_help) {
  app.add_option("words", o.words, words_help);
  app.add_option("-f,--file", o.inputs, "Read words from this file, one a line ('-': stdin)");
}

}  // namespace tarvola_cli
