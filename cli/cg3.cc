// tarvola cg3: Constraint Grammar cohorts of each paragraph.
#include <memory>

#include "commands.h"
#include "common/engine.h"
#include "common/io.h"
#include "common/items.h"

namespace tarvola_cli {

namespace {

// The library writes word cohorts as <"form">; CG-3 tools read only
// "<form>" as a cohort, so each such line is rewritten.
std::string quote_cohorts(const std::string& text) {
  std::string out;
  out.reserve(text.size());
  std::size_t at = 0;
  while (at < text.size()) {
    std::size_t nl = text.find('\n', at);
    std::size_t end = nl == std::string::npos ? text.size() : nl;
    std::string_view line(text.data() + at, end - at);
    if (line.size() >= 4 && line.compare(0, 2, "<\"") == 0 &&
        line.compare(line.size() - 2, 2, "\">") == 0) {
      out += "\"<";
      out.append(line.substr(2, line.size() - 4));
      out += ">\"";
    } else {
      out.append(line);
    }
    if (nl != std::string::npos) out += '\n';
    at = end + 1;
  }
  return out;
}

}  // namespace

Runner register_cg3(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    bool attributes = false;
    bool vislcg3 = false;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "cg3", "Constraint Grammar (CG3) cohorts with their readings, sentence by sentence.");
  add_text_inputs(*app, args->common, true);
  app->add_flag("--attributes", args->attributes, "Add each reading's mark values <s=.. h=.. e=..>");
  app->add_flag("--vislcg3", args->vislcg3,
                "Write word cohorts as \"<form>\" so that vislcg3 reads them");
  add_engine_options(*app, args->common, false);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open_for_paragraphs(o);
    Output out;
    if (!engine || !out.open(o.output, o.unbuffered)) return 2;
    bool read_ok = render_paragraphs(o, engine->get(), out,
                                     [&](tarvola::Tarvola& e, const EnginePiece& piece, int number) {
      tarvola::Paragrafoa p = e.analizatu_paragrafoa(number, piece.text());
      p.id = number;  // the engine numbers every paragraph 1; the stream counts them
      std::string text = piece.restore(p.get_CG3(args->attributes, false, false), o.text_encoding());
      return args->vislcg3 ? quote_cohorts(text) : text;
    });
    return out.close() && read_ok ? 0 : 2;
  };
}

}  // namespace tarvola_cli
