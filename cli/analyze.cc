// tarvola analyze: every reading of each word, one line per reading.
#include <iostream>
#include <memory>
#include <string>
#include <unordered_map>

#include "commands.h"
#include "common/engine.h"
#include "common/items.h"
#include "common/json.h"

namespace tarvola_cli {

Runner register_analyze(CLI::App& parent) {
  struct Args {
    CommonOptions common;
    std::string network;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand(
      "analyze",
      "Every reading of each word: all networks, then the personal dictionary.\n"
      "Text output: WORD<TAB>ANALYSIS<TAB>NETWORK per reading, WORD<TAB>+? when there is\n"
      "none, and a blank line after each word.");
  add_word_inputs(*app, args->common, "Words (none: one word per line from --file or stdin)");
  app->add_option("--network", args->network, "Only this network (no personal dictionary)");
  add_engine_options(*app, args->common, true);

  return [args]() {
    const CommonOptions& o = args->common;
    std::vector<Engine::Need> needs;
    if (!args->network.empty()) needs.push_back({args->network, "by --network"});
    auto engine = Engine::open(o, needs);
    Output out;
    if (!engine || !out.open(o.output, o.unbuffered)) return 2;
    // Running text repeats a few thousand words: the text of a word is made
    // once and written again from here. Bounded: emptied when full.
    constexpr std::size_t kKeptWords = 1 << 16;
    std::unordered_map<std::string, std::string> made;
    bool read_ok = for_each_word(o.words, o, [&](const std::string& word, const EnginePiece& piece) {
      if (!o.json()) {
        auto it = made.find(word);
        if (it != made.end()) {
          out.write(it->second);
          out.end_item();
          return;
        }
      }
      std::vector<tarvola::Analisia> readings =
          args->network.empty() ? engine->word_readings(engine->get(), piece.text())
                                : engine->get().analizatuTokena(piece.text(), args->network);
      if (o.json()) {
        write_json_line(out, {{"word", piece.restore(piece.text(), Encoding::kUtf8)},
                              {"readings", readings_json(readings, piece)}});
        return;
      }
      std::vector<std::string> lines;
      for (const tarvola::Analisia& a : readings)
        lines.push_back(piece.restore(a.analisia, o.text_encoding()) + "\t" +
                        piece.restore(a.sarea, o.text_encoding()));
      std::string text = results_text(word, lines);
      out.write(text);
      out.end_item();
      if (made.size() == kKeptWords) made.clear();
      made.emplace(word, std::move(text));
    });
    return out.close() && read_ok ? 0 : 2;
  };
}

}  // namespace tarvola_cli
