// tarvola generate: the word forms of a lemma with given tags.
#include <iostream>
#include <memory>

#include "commands.h"
#include "common/engine.h"
#include "common/items.h"
#include "common/json.h"

namespace tarvola_cli {

Runner register_generate(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    std::string lemma, tags;
    std::vector<std::string> files;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "generate",
      "Word forms of LEMMA carrying TAGS (e.g. \"<IZE><ARR><ABS><NUMS><MUGM>\"); an unknown\n"
      "lemma is inflected by its category tag (<ARR> <IZO> <ADI> <PIB> <LIB> <IZB>).\n"
      "Text output: LEMMA<TAB>TAGS<TAB>FORM<TAB>ANALYSIS per form, +? for FORM when there is\n"
      "none, a blank line after each request. Without LEMMA, requests are read as\n"
      "LEMMA<TAB>TAGS lines.");
  app->add_option("lemma", args->lemma, "The lemma");
  app->add_option("tags", args->tags, "The tag string");
  app->add_option("-f,--file", args->files, "Read LEMMA<TAB>TAGS lines from this file ('-': stdin)");
  add_engine_options(*app, args->common);
  add_io_options(*app, args->common, true);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine = Engine::open(o);
    if (!engine || !engine->require_network("eumorfo", "to generate") ||
        !engine->require_network("hp", "to generate for unknown lemmas"))
      return 2;
    Output out;
    if (!out.open(o.output, o.unbuffered)) return 2;
    std::vector<std::string> given;
    if (!args->lemma.empty()) given.push_back(args->lemma + "\t" + args->tags);
    bool read_ok = for_each_line_item(given, args->files, [&](const std::string& line) {
      std::size_t tab = line.find('\t');
      std::string lemma = line.substr(0, tab);
      std::string tags = tab == std::string::npos ? std::string() : line.substr(tab + 1);
      EnginePiece piece;
      if (!engine_text(line, o.text_encoding(), piece)) return;
      const std::string& both = piece.text();
      std::size_t cut = both.find('\t');
      std::vector<tarvola::Analisia> forms = engine->get().sortuFormak(
          both.substr(0, cut), cut == std::string::npos ? std::string() : both.substr(cut + 1));
      if (o.json()) {
        write_json_line(out, {{"lemma", piece.restore(both.substr(0, cut), Encoding::kUtf8)},
                              {"tags", piece.restore(cut == std::string::npos ? "" : both.substr(cut + 1),
                                                     Encoding::kUtf8)},
                              {"forms", readings_json(forms, piece)}});
        return;
      }
      for (const tarvola::Analisia& a : forms)
        out.write(lemma + "\t" + tags + "\t" + piece.restore(a.forma, o.text_encoding()) + "\t" +
                  piece.restore(a.analisia, o.text_encoding()) + "\n");
      if (forms.empty()) out.write(lemma + "\t" + tags + "\t+?\n");
      out.write("\n");
      out.end_item();
    });
    return out.close() && read_ok ? 0 : 2;
  };
}

}  // namespace tarvola_cli
