// tarvola valid: whether each word is valid standard Basque.
#include <memory>

#include "commands.h"
#include "common/engine.h"
#include "common/items.h"
#include "common/json.h"

namespace tarvola_cli {

Runner register_valid(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    std::vector<std::string> words, files;
    bool prefixes = false;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "valid",
      "Whether each word is valid standard Basque: WORD<TAB>valid|invalid per word.\n"
      "Exit status 0 when all are valid, 1 when one is not, 2 on error.");
  app->add_option("words", args->words, "Words (none: one a line from --file or stdin)");
  app->add_option("-f,--file", args->files, "Read words from this file, one a line ('-': stdin)");
  app->add_flag("--prefixes", args->prefixes,
                "Also accept a word that begins some standard word form");
  add_engine_options(*app, args->common);
  add_io_options(*app, args->common, true);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open(o);
    if (!engine || !engine->require_network("hp", "for the personal dictionary") ||
        !engine->require_network("eumorfo", "to check words"))
      return 2;
    Output out;
    if (!out.open(o.output, o.unbuffered)) return 2;
    bool all_valid = true;
    bool read_ok = for_each_line_item(args->words, args->files, [&](const std::string& word) {
      EnginePiece piece;
      if (!engine_text(word, o.text_encoding(), piece)) {
        all_valid = false;
        return;
      }
      bool valid = engine->get().isValid(piece.text(), args->prefixes);
      all_valid = all_valid && valid;
      if (o.json())
        write_json_line(out, {{"word", piece.restore(piece.text(), Encoding::kUtf8)}, {"valid", valid}});
      else
        out.write(word + (valid ? "\tvalid\n" : "\tinvalid\n"));
      out.end_item();
    });
    if (!out.close() || !read_ok) return 2;
    return all_valid ? 0 : 1;
  };
}

}  // namespace tarvola_cli
