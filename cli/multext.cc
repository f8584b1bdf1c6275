// tarvola multext: Multext-style lines of each paragraph.
#include <memory>

#include "commands.h"
#include "common/engine.h"
#include "common/io.h"
#include "common/items.h"

namespace tarvola_cli {

Runner register_multext(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    bool attributes = false;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "multext",
      "Multext-style lines: FORM<TAB>BOS|EOS|<TAB>LEMMA\\TAGS|... per token, sentence by sentence.");
  add_text_inputs(*app, args->common);
  app->add_flag("--attributes", args->attributes, "Add each reading's mark values <s=.. h=.. e=..>");
  add_engine_options(*app, args->common, false);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open_for_paragraphs(o);
    Output out;
    if (!engine || !out.open(o.output, o.unbuffered)) return 2;
    // The rendering prints to standard output by design: it is caught in a
    // temporary file and moved to the results.
    StdoutCapture capture;
    if (!capture.ok()) {
      std::cerr << "tarvola: cannot create a temporary file\n";
      return 2;
    }
    int number = 0;
    bool read_ok = for_each_paragraph(o, [&](const EnginePiece& piece) {
      tarvola::Paragrafoa p = engine->get().analizatu_paragrafoa(++number, piece.text());
      p.id = number;
      out.write(piece.restore(capture.run([&] { p.print_Multext(args->attributes, false, false); }),
                              o.text_encoding()));
      out.end_item();
    });
    return out.close() && read_ok ? 0 : 2;
  };
}

}  // namespace tarvola_cli
