// tarvola dict add|remove|list: the personal dictionary file.
#include <iostream>
#include <memory>
#include <string>

#include "commands.h"
#include "common/dictionary_change.h"
#include "common/encoding.h"
#include "common/io.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola_cli {

namespace {

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
  CLI::App* remove = app->add_subcommand("remove", "Remove a word (the file is rewritten; its other lines, comments included, are kept as they are).");
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
    if (add->parsed() || remove->parsed()) {
      // Under the file's lock, on the file as it is then.
      if (add->parsed()) {
        const std::string problem = entry_problem(lemma, category, extra1, extra2);
        if (!problem.empty()) {
          std::cerr << "tarvola: cannot add " << args->lemma << ": " << problem << "\n";
          return 2;
        }
      }
      const DictionaryChange change = add->parsed()
                                          ? add_entry(args->file, lemma, category, extra1, extra2)
                                          : remove_entry(args->file, lemma, category);
      switch (change) {
        case DictionaryChange::kDone:
          return 0;
        case DictionaryChange::kAlreadyThere:
          std::cerr << "tarvola: " << args->lemma << " " << args->category << " is already in "
                    << args->file << "\n";
          return 0;
        case DictionaryChange::kNotThere:
          std::cerr << "tarvola: " << args->lemma << " " << args->category << " is not in " << args->file
                    << "\n";
          return 1;
        default:
          std::cerr << "tarvola: " << failure_message(change, args->file) << "\n";
          return 2;
      }
    } else if (list->parsed()) {
      tarvola::HiztegiPertsonala dictionary(args->file);
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
