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
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "suggest",
      "Spelling suggestions for each word: WORD<TAB>SUGGESTION per suggestion, WORD<TAB>+?\n"
      "when there is none, a blank line after each word.");
  add_word_inputs(*app, args->common);
  add_engine_options(*app, args->common, true);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open(
        o, {{"hp", "for the personal dictionary"}, {"eumorfo", "to check candidates"}});
    Output out;
    if (!engine || !out.open(o.output, o.unbuffered)) return 2;
    bool read_ok = for_each_word(o.words, o, [&](const std::string& word, const EnginePiece& piece) {
      std::vector<std::string> found = engine->get().lortu_ezzg_proposamenak(piece.text());
      if (o.json()) {
        nlohmann::ordered_json list = nlohmann::ordered_json::array();
        for (const std::string& s : found) list.push_back(piece.restore(s, Encoding::kUtf8));
        write_json_line(out, {{"word", piece.restore(piece.text(), Encoding::kUtf8)},
                              {"suggestions", list}});
        return;
      }
      for (std::string& s : found) s = piece.restore(s, o.text_encoding());
      write_results(out, word, found);
    });
    return out.close() && read_ok ? 0 : 2;
  };
}

}  // namespace tarvola_cli
