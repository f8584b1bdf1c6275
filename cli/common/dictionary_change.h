// Changing a personal dictionary file: the one way the tool's "dict"
// subcommand, the Python package and the editor provider add and remove
// words.
//
// Every change holds the file's lock (tarvola::userdict::DictionaryLock)
// while it reads the file afresh and writes it, so that programs changing
// the same file at once never lose each other's words. A removal rewrites
// the file keeping every other line exactly as written, the lines the
// loader skips (comments, a word without its category) included. Fields are
// in the file's code page (1252).
#ifndef TARVOLA_CLI_COMMON_DICTIONARY_CHANGE_H
#define TARVOLA_CLI_COMMON_DICTIONARY_CHANGE_H

#include <string>

namespace tarvola_cli {

// The categories a word can be added with.
inline constexpr const char kDictionaryCategories[] = "<ARR> <IZO> <ADI> <PIB> <LIB> <IZB>";

// Why the entry cannot go into the file, as the end of a sentence
// ("the word holds a tab or a line break"); empty when it can.
std::string entry_problem(const std::string& lemma, const std::string& category,
                          const std::string& extra1, const std::string& extra2);

enum class DictionaryChange {
  kDone,
  kAlreadyThere,  // add: the word with that category is in the file
  kNotThere,      // remove: it is not
  kCannotLock,
  kCannotRead,
  kCannotWrite,   // the file is left as it was
};

// Adds the entry (checked with entry_problem first) unless it is there; the
// file is created when missing.
DictionaryChange add_entry(const std::string& path, const std::string& lemma,
                           const std::string& category, const std::string& extra1,
                           const std::string& extra2);
DictionaryChange remove_entry(const std::string& path, const std::string& lemma,
                              const std::string& category);

// "could not write to the personal dictionary PATH", and so on: the
// message of a failed change, without the program name.
std::string failure_message(DictionaryChange change, const std::string& path);

}  // namespace tarvola_cli

#endif
