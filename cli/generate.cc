// tarvola generate: the word forms of a lemma with given tags.
#include <iostream>
#include <memory>

#include "commands.h"
#include "common/engine.h"
#include "common/items.h"
#include "common/json.h"
#include "tarvola/base/tags.h"

namespace tarvola_cli {

Runner register_generate(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    std::string lemma, tags;
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
  app->add_option("-f,--file", args->common.inputs,
                  "Read LEMMA<TAB>TAGS lines from this file ('-': stdin)");
  add_engine_options(*app, args->common, true);

  return [args]() {
    const CommonOptions& o = args->common;
    auto engine =
        Engine::open(o, {{"eumorfo", "to generate"}, {"hp", "to generate for unknown lemmas"}});
    Output out;
    if (!engine || !out.open(o.output, o.unbuffered)) return 2;
    std::vector<std::string> given;
    bool refused = false;
    if (!args->lemma.empty()) given.push_back(args->lemma + "\t" + args->tags);
    bool read_ok = for_each_word(given, o, [&](const std::string& line, const EnginePiece& piece) {
      const std::string& both = piece.text();
      std::size_t cut = both.find('\t');
      const std::string lemma = both.substr(0, cut);
      const std::string tags = cut == std::string::npos ? std::string() : both.substr(cut + 1);
      // The lemma becomes part of the analyses generation builds, where an
      // open "<" would end the whole process.
      if (!tarvola::tags::tags_closed_in_time(lemma)) {
        std::cerr << "tarvola: generate: skipped the lemma " << line.substr(0, line.find('\t'))
                  << ": a \"<\" not closed by \">\" within " << tarvola::tags::kMaxTagLength
                  << " bytes\n";
        refused = true;
        return;
      }
      std::vector<tarvola::Analisia> forms = engine->get().sortuFormak(lemma, tags);
      if (o.json()) {
        write_json_line(out, {{"lemma", piece.restore(lemma, Encoding::kUtf8)},
                              {"tags", piece.restore(tags, Encoding::kUtf8)},
                              {"forms", readings_json(forms, piece)}});
        return;
      }
      // The request as given, the tab added when TAGS was left out.
      std::string request = line.find('\t') == std::string::npos ? line + "\t" : line;
      std::vector<std::string> lines;
      for (const tarvola::Analisia& a : forms)
        lines.push_back(piece.restore(a.forma, o.text_encoding()) + "\t" +
                        piece.restore(a.analisia, o.text_encoding()));
      write_results(out, request, lines);
    });
    return out.close() && read_ok && !refused ? 0 : 2;
  };
}

}  // namespace tarvola_cli
