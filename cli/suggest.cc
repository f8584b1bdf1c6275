// tarvola suggest: spelling suggestions for each word.
#include <memory>

#include "commands.h"
#include "common/engine.h"
#include "common/items.h"
#include "common/json.h"

namespace tarvola_cli {

Runner register_suggest(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    std::vector<std::string> words, files;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "suggest",
      "Spelling suggestions for each word: WORD<TAB>SUGGESTION per suggestion, WORD<TAB>+?\n"
      "when there is none, a blank line after each word.");
  app->add_option("words", args->words, "Words (none: one a line from --file or stdin)");
  app->add_option("-f,--file", args->files, "Read words from this file, one a line ('-': stdin)");
  add_engine_options(*app, args->common);
  add_io_options(*app, args->common, true);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open(o);
    if (!engine || !engine->require_network("hp", "for the personal dictionary") ||
        !engine->require_network("eumorfo", "to check candidates"))
      return 2;
    Output out;
    if (!out.open(o.output, o.unbuffered)) return 2;
    bool read_ok = for_each_line_item(args->words, args->files, [&](const std::string& word) {
      EnginePiece piece;
      if (!engine_text(word, o.text_encoding(), piece)) return;
      std::vector<std::string> found = engine->get().lortu_ezzg_proposamenak(piece.text());
      if (o.json()) {
        nlohmann::ordered_json list = nlohmann::ordered_json::array();
        for (const std::string& s : found) list.push_back(piece.restore(s, Encoding::kUtf8));
        write_json_line(out, {{"word", piece.restore(piece.text(), Encoding::kUtf8)},
                              {"suggestions", list}});
        return;
      }
      for (const std::string& s : found)
        out.write(word + "\t" + piece.restore(s, o.text_encoding()) + "\n");
      if (found.empty()) out.write(word + "\t+?\n");
      out.write("\n");
      out.end_item();
    });
    return out.close() && read_ok ? 0 : 2;
  };
}

}  // namespace tarvola_cli
