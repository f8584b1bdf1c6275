// tarvola table import|encipher|decipher|check|stats: table file tools.
#include <iostream>
#include <memory>

#include <nlohmann/json.hpp>

#include "commands.h"
#include "common/io.h"
#include "common/json.h"
#include "common/table_report.h"
#include "tarvola/tables/cipher.h"
#ifdef TARVOLA_CLI_HAVE_IMPORT
#include "tarvola/tables/table_import.h"
#endif

namespace tarvola_cli {

namespace {

bool report(const std::string& file, const std::vector<TableProblem>& problems) {
  for (const TableProblem& p : problems)
    std::cerr << file << ":" << (p.line ? std::to_string(p.line) + ":" : "") << " " << p.message << "\n";
  return problems.empty();
}

bool enciphered_name(const std::string& path) { return path.find("SARE8") != std::string::npos; }

}  // namespace

Runner register_table(CLI::App& parent) {
  struct Args {
    std::string in, out, from = "att", tags, format = "text";
    int surface_column = 0;
    bool keep_case = false, drop = false, cp1252 = false, repair = false, enciphered = false;
  };
  auto a = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand("table", "Table file tools.");
  app->require_subcommand(1);

  CLI::App* import = app->add_subcommand(
      "import", "Convert a transducer in AT&T text (hfst-fst2txt, foma, lt-print) or SFST\n"
                "fst-print text into the plain table format. What the format cannot carry is\n"
                "reported with its line and nothing is written.");
  import->add_option("--from", a->from, "Source format")->check(CLI::IsMember({"att", "sfst"}))->capture_default_str();
  import->add_option("--surface-column", a->surface_column,
                     "Column (3 or 4) holding the surface side (default: by the source)")
      ->check(CLI::IsMember({3, 4}));
  import->add_flag("--keep-case", a->keep_case, "Do not lower-case the surface side");
  import->add_option("--tags", a->tags, "Tag renaming file: FROM<TAB>TO lines");
  import->add_flag("--drop-unrepresentable", a->drop, "Leave out (and report) arcs the format cannot carry");
  import->add_flag("--cp1252", a->cp1252, "The input is code page 1252, not UTF-8");
  CLI::App* encipher = app->add_subcommand(
      "encipher", "Encipher a plain table (the engine deciphers paths holding \"SARE8\").");
  encipher->add_flag("--repair", a->repair, "Drop lines under 5 bytes and end the last line");
  CLI::App* decipher = app->add_subcommand("decipher", "Decipher an enciphered table.");
  for (CLI::App* sub : {import, encipher, decipher}) {
    sub->add_option("input", a->in, "Input file ('-': stdin)")->required();
    sub->add_option("output", a->out, "Output file ('-': stdout)")->required();
  }
  CLI::App* check = app->add_subcommand(
      "check", "Report what the loader would trip on; exit status 1 when anything is found.");
  CLI::App* stats = app->add_subcommand("stats", "States, arcs, finals, symbols and epsilon arcs.");
  for (CLI::App* sub : {check, stats}) {
    sub->add_option("input", a->in, "Table file")->required();
    sub->add_flag("--enciphered", a->enciphered, "Decipher first (default: when the name holds SARE8)");
  }
  stats->add_option("--format", a->format, "Output format")->check(CLI::IsMember({"text", "json"}));

  return [a, import, encipher, decipher, check, stats]() {
    std::string text;
    if (!read_file(a->in, text)) return 2;
    const bool enciphered = a->enciphered || enciphered_name(a->in);
    if (check->parsed() || stats->parsed()) {
      TableReport r = inspect_table(text, enciphered);
      if (check->parsed()) return report(a->in, r.problems) ? 0 : 1;
      const TableStats& s = r.stats;
      Output out;
      if (!out.open("-", false)) return 2;
      std::pair<const char*, std::size_t> rows[] = {
          {"states", static_cast<std::size_t>(s.states)}, {"arcs", s.arcs},
          {"final_lines", s.final_lines},  {"final_states", s.final_states},
          {"epsilon_arcs", s.epsilon_arcs}, {"upper_symbols", s.upper_symbols},
          {"lower_symbols", s.lower_symbols}, {"symbol_pairs", s.symbol_pairs}};
      nlohmann::ordered_json object;
      std::string body;
      for (const auto& [key, value] : rows) {
        object[key] = value;
        body += std::string(key) + "\t" + std::to_string(value) + "\n";
      }
      if (a->format == "json")
        write_json_line(out, object);
      else
        out.write(body);
      return out.close() ? 0 : 2;
    }
    std::string result;
    if (decipher->parsed()) {
      result = tarvola::cipher::decipher(text);
    } else if (encipher->parsed()) {
      if (!report(a->in, encipher_problems(text, a->repair))) {
        std::cerr << "tarvola: nothing written (--repair drops short lines and ends the last line)\n";
        return 1;
      }
      result = tarvola::cipher::encipher(text);
      if (tarvola::cipher::decipher(result) != text) {
        std::cerr << "tarvola: the enciphered form does not give " << a->in << " back\n";
        return 2;
      }
      if (!enciphered_name(a->out))
        std::cerr << "tarvola: note: the engine deciphers a table only when its path holds \"SARE8\"\n";
    } else if (import->parsed()) {
#ifdef TARVOLA_CLI_HAVE_IMPORT
      namespace ti = tarvola::table_import;
      ti::ImportOptions options;
      options.format = a->from == "sfst" ? ti::SourceFormat::Sfst : ti::SourceFormat::Att;
      options.surface_column = a->surface_column;
      options.keep_case = a->keep_case;
      options.utf8_input = !a->cp1252;
      options.drop_unrepresentable = a->drop;
      if (!a->tags.empty()) {
        std::string map_text;
        if (!read_file(a->tags, map_text)) return 2;
        std::vector<ti::ImportProblem> problems;
        options.tag_map = ti::parse_tag_map(map_text, !a->cp1252, problems);
        for (const auto& p : problems) std::cerr << a->tags << ":" << p.line << ": " << p.message << "\n";
        if (!problems.empty()) return 1;
      }
      ti::ImportResult r = ti::import_table(text, options);
      for (const auto& p : r.problems)
        std::cerr << a->in << ":" << (p.line ? std::to_string(p.line) + ":" : "") << " " << p.message << "\n";
      if (!r.ok()) {
        std::cerr << "tarvola: nothing written\n";
        return 1;
      }
      std::cerr << a->out << ": " << r.states << " states, " << r.arcs << " arcs, " << r.finals << " finals\n";
      result = std::move(r.table);
#else
      std::cerr << "tarvola: this build has no table importer\n";
      return 2;
#endif
    }
    return write_file(a->out, result) ? 0 : 2;
  };
}

}  // namespace tarvola_cli
