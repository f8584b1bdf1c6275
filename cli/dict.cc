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
#include "tarvola/userdict/dictionary_file.h"

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

// The file without the lines of the word: every other line is kept as it
// is written, those the loader skips (comments, a word without its
// category) included. False when the file cannot be read.
bool without_word(const std::string& path, const std::string& lemma, const std::string& category,
                  std::string& text, bool& found) {
  found = false;
  text.clear();
  const bool read = tarvola::userdict::for_each_line(path, [&](std::string_view line) {
    const auto parsed = tarvola::userdict::parse_line(line);
    if (parsed && parsed->lemma == lemma && parsed->category == category) {
      found = true;
      return;
    }
    if (!line.empty()) text.append("\n").append(line);
  });
  text += '\n';
  return read;
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
    // A change is made under the file's lock, on the file as it is then,
    // so that programs changing it at the same time never lose each
    // other's words.
    std::unique_ptr<tarvola::userdict::DictionaryLock> lock;
    if (add->parsed() || remove->parsed()) {
      lock = std::make_unique<tarvola::userdict::DictionaryLock>(args->file);
      if (!lock->held()) {
        std::cerr << "tarvola: cannot lock the personal dictionary " << args->file << " (through "
                  << args->file << ".lock)\n";
        return 2;
      }
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
      if (!tarvola::userdict::append_durably(
              args->file, tarvola::userdict::appended_line(lemma, category, extra1, extra2))) {
        std::cerr << "tarvola: could not write to the personal dictionary " << args->file << "\n";
        return 2;
      }
    } else if (remove->parsed()) {
      std::string text;
      bool found = false;
      if (!without_word(args->file, lemma, category, text, found)) {
        std::cerr << "tarvola: cannot read the personal dictionary " << args->file << "\n";
        return 2;
      }
      if (!found) {
        std::cerr << "tarvola: " << args->lemma << " " << args->category << " is not in " << args->file << "\n";
        return 1;
      }
      if (!tarvola::userdict::replace_durably(args->file, text)) {
        std::cerr << "tarvola: could not rewrite the personal dictionary " << args->file
                  << "; it is left as it was\n";
        return 2;
      }
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
