// tarvola check: the correction document of each paragraph.
#include <memory>

#include "commands.h"
#include "common/engine.h"
#include "common/io.h"
#include "common/items.h"

namespace tarvola_cli {

Runner register_check(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    bool suggest = false;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "check",
      "Correction document per paragraph: every token with its verdict (ok; hobe/erabili\n"
      "with replacements for non-standard forms; ezz with suggestions for unknown words).");
  add_text_inputs(*app, args->common, true);
  app->add_flag("--suggest", args->suggest,
                "Also run the (slower) spelling suggestion search for unknown words");
  add_engine_options(*app, args->common, false);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open_for_paragraphs(o);
    Output out;
    if (!engine || !out.open(o.output, o.unbuffered)) return 2;
    bool read_ok = render_paragraphs(o, engine->get(), out,
                                     [&](tarvola::Tarvola& e, const EnginePiece& piece, int) {
      return piece.restore(e.getParagrafoaBrindel(piece.text(), args->suggest), o.text_encoding());
    });
    return out.close() && read_ok ? 0 : 2;
  };
}

}  // namespace tarvola_cli
