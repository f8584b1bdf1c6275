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
    bool prefixes = false;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "valid",
      "Whether each word is valid standard Basque: WORD<TAB>valid|invalid per word.\n"
      "Exit status 0 when all are valid, 1 when one is not, 2 on error.");
  add_word_inputs(*app, args->common);
  app->add_flag("--prefixes", args->prefixes,
                "Also accept a word that begins some standard word form");
  add_engine_options(*app, args->common, true);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open(
        o, {{"hp", "for the personal dictionary"}, {"eumorfo", "to check words"}});
    Output out;
    if (!engine || !out.open(o.output, o.unbuffered)) return 2;
    bool all_valid = true;
    std::size_t unreadable = 0;  // a word the engine cannot be given is not valid
    auto check = [&](const std::string& word, const EnginePiece& piece) {
      bool valid = engine->get().isValid(piece.text(), args->prefixes);
      all_valid = all_valid && valid;
      if (o.json()) {
        write_json_line(out, {{"word", piece.restore(piece.text(), Encoding::kUtf8)}, {"valid", valid}});
        return;
      }
      out.write(word + (valid ? "\tvalid\n" : "\tinvalid\n"));
      out.end_item();
    };
    bool read_ok = for_each_word(o.words, o, check, &unreadable);
    if (!out.close() || !read_ok) return 2;
    return all_valid && unreadable == 0 ? 0 : 1;
  };
}

}  // namespace tarvola_cli
