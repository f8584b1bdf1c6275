// tarvola dict add|remove|list: the personal dictionary file.
#include <iostream>
#include <memory>
#include <string>
#include <utility>

#include "commands.h"
#include "common/encoding.h"
#include "common/io.h"
#include "tarvola/base/tags.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola_cli {

namespace {

const char* const kCategories[] = {"<ARR>", "<IZO>", "<ADI>", "<PIB>", "<LIB>", "<IZB>"};

// The dictionary file is in code page 1252 and cannot hold a placeholder.
bool to_file_text(const std::string& text, Encoding encoding, std::string& out) {
  DecodedText decoded;
  std::size_t column = 0;
  decode(text, encoding, decoded, 1, column, nullptr);
  if (!decoded.foreign.empty()) {
    std::cerr << "tarvola: \"" << text << "\" holds a character the dictionary file (code page "
              << "1252) cannot hold\n";
    return false;
  }
  out = decoded.bytes;
  return true;
}

// What would break the file or the analyses built from a field: a line
// break or tab starts a new line or column; a "|" ends the lemma when the
// file is read back; and the lemma and extra texts become part of every
// analysis of the word, where a "<" opens a tag, one the engine ends the
// whole process on when it runs past tags::kMaxTagLength bytes. Empty when
// the field is fine.
std::string field_problem(const std::string& text, bool lemma) {
  if (text.find_first_of("\t\r\n") != std::string::npos) return "a tab or a line break";
  if (lemma && text.find_first_of("|<>") != std::string::npos) return "\"|\", \"<\" or \">\"";
  return tarvola::tags::tags_closed_in_time(text)
             ? std::string()
             : "a \"<\" not closed by \">\" within " + std::to_string(tarvola::tags::kMaxTagLength) +
                   " bytes";
}

bool has_entry(const tarvola::HiztegiPertsonala& d, const std::string& lemma, const std::string& cat) {
  for (const tarvola::HPsarrera* e : d.sarrerak)
    if (e->lema == lemma && e->kategoria == cat) return true;
  return false;
}

}  // namespace

Runner register_dict(CLI::App& parent) {
  struct Args {
    std::string file, encoding = "utf-8", lemma, category, extra1, extra2;
  };
  auto args = std::make_shared<Args>();
  CLI::App* app = parent.add_subcommand("dict", "Add, remove or list words of a personal dictionary file.");
  app->require_subcommand(1);
  app->add_option("--dict", args->file, "The personal dictionary file")->required();
  app->add_option("--encoding", args->encoding, "Encoding of arguments and output")
      ->check(CLI::IsMember({"utf-8", "cp1252"}))
      ->capture_default_str();
  std::string categories = "ARR (common noun), IZO (adjective), ADI (verb), PIB, LIB, IZB (proper nouns)";
  CLI::App* add = app->add_subcommand("add", "Add a word (the file is created when missing).");
  add->add_option("lemma", args->lemma, "The word")->required();
  add->add_option("category", args->category, "Its category: <ARR>, <IZO>, <ADI>, <PIB>, <LIB> or <IZB>; " + categories)
      ->required();
  add->add_option("--extra1", args->extra1, "First extra text, carried into the readings");
  add->add_option("--extra2", args->extra2, "Second extra text (the file keeps only one of the two when both are given)");
  CLI::App* remove = app->add_subcommand("remove", "Remove a word (the file is rewritten; its comments are lost).");
  remove->add_option("lemma", args->lemma, "The word")->required();
  remove->add_option("category", args->category, "Its category as it was added")->required();
  CLI::App* list = app->add_subcommand("list", "List the words: LEMMA<TAB>CATEGORY<TAB>EXTRA1<TAB>EXTRA2.");

  return [args, add, remove, list]() {
    const Encoding encoding = args->encoding == "cp1252" ? Encoding::kCp1252 : Encoding::kUtf8;
    std::string lemma, category, extra1, extra2;
    if (!to_file_text(args->lemma, encoding, lemma) || !to_file_text(args->category, encoding, category) ||
        !to_file_text(args->extra1, encoding, extra1) || !to_file_text(args->extra2, encoding, extra2))
      return 2;
    if (!add->parsed() && !std::filesystem::exists(args->file)) {
      std::cerr << "tarvola: personal dictionary " << args->file << " not found\n";
      return 2;
    }
    tarvola::HiztegiPertsonala dictionary(args->file);
    if (add->parsed()) {
      for (const auto& [field, text] : {std::pair<const char*, const std::string*>{"word", &lemma},
                                        {"--extra1", &extra1}, {"--extra2", &extra2}}) {
        const std::string problem = field_problem(*text, text == &lemma);
        if (problem.empty()) continue;
        std::cerr << "tarvola: the " << field << " holds " << problem
                  << ", which the dictionary file cannot keep\n";
        return 2;
      }
      bool known = false;
      for (const char* c : kCategories) known = known || category == c;
      if (!known || lemma.size() < 2) {
        std::cerr << "tarvola: " << (known ? "the word must have two characters at least"
                                           : "unknown category \"" + args->category + "\"; use one of <ARR> <IZO> <ADI> <PIB> <LIB> <IZB>")
                  << "\n";
        return 2;
      }
      if (has_entry(dictionary, lemma, category)) {
        std::cerr << "tarvola: " << args->lemma << " " << args->category << " is already in "
                  << args->file << "\n";
        return 0;
      }
      dictionary.gehitu_sarrera(true, lemma, category, extra1, extra2, "HP");
    } else if (remove->parsed()) {
      if (!has_entry(dictionary, lemma, category)) {
        std::cerr << "tarvola: " << args->lemma << " " << args->category << " is not in " << args->file << "\n";
        return 1;
      }
      dictionary.kendu_sarrera(true, lemma, category);
    } else if (list->parsed()) {
      Output out;
      if (!out.open("-", false)) return 2;
      EnginePiece plain;
      for (const tarvola::HPsarrera* e : dictionary.sarrerak)
        out.write(plain.restore(e->lema + "\t" + e->kategoria + "\t" + e->osagarria1 + "\t" +
                                    e->osagarria2 + "\n",
                                encoding));
      return out.close() ? 0 : 2;
    }
    return 0;
  };
}

}  // namespace tarvola_cli
