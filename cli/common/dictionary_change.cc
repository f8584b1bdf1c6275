#include "common/dictionary_change.h"

#include <string_view>
#include <utility>

#include "tarvola/base/tags.h"
#include "tarvola/userdict/dictionary_file.h"

namespace tarvola_cli {

namespace {

namespace userdict = tarvola::userdict;

// What would break the file or the analyses built from a field: a line
// break or tab starts a new line or column; a "|" ends the lemma when the
// file is read back; and the lemma and extra texts become part of every
// analysis of the word, where a "<" opens a tag, one the engine ends the
// whole process on when it runs past tags::kMaxTagLength bytes.
std::string field_problem(const std::string& text, bool lemma) {
  if (text.find_first_of("\t\r\n") != std::string::npos) return "a tab or a line break";
  if (lemma && text.find_first_of("|<>") != std::string::npos) return "\"|\", \"<\" or \">\"";
  return tarvola::tags::tags_closed_in_time(text)
             ? std::string()
             : "a \"<\" not closed by \">\" within " + std::to_string(tarvola::tags::kMaxTagLength) +
                   " bytes";
}

bool is_entry_of(std::string_view line, const std::string& lemma, const std::string& category) {
  const auto parsed = userdict::parse_line(line);
  return parsed && parsed->lemma == lemma && parsed->category == category;
}

}  // namespace

std::string entry_problem(const std::string& lemma, const std::string& category,
                          const std::string& extra1, const std::string& extra2) {
  const std::string_view known(kDictionaryCategories);
  // Five bytes each, one blank apart.
  const std::size_t at = known.find(category);
  const bool whole = category.size() == 5 && at != std::string_view::npos && at % 6 == 0;
  if (!whole) return "an unknown category \"" + category + "\"; use one of " + std::string(known);
  if (lemma.size() < 2) return "a word shorter than two characters";
  for (const auto& [field, text] : {std::pair<const char*, const std::string*>{"word", &lemma},
                                    {"first extra text", &extra1}, {"second extra text", &extra2}}) {
    const std::string problem = field_problem(*text, text == &lemma);
    if (!problem.empty())
      return std::string("the ") + field + " holds " + problem + ", which the dictionary file cannot keep";
  }
  return {};
}

DictionaryChange add_entry(const std::string& path, const std::string& lemma,
                           const std::string& category, const std::string& extra1,
                           const std::string& extra2) {
  userdict::DictionaryLock lock(path);
  if (!lock.held()) return DictionaryChange::kCannotLock;
  bool there = false;
  // A missing file is an empty dictionary: the append creates it.
  userdict::for_each_line(path, [&](std::string_view line) {
    there = there || is_entry_of(line, lemma, category);
  });
  if (there) return DictionaryChange::kAlreadyThere;
  return userdict::append_durably(path, userdict::appended_line(lemma, category, extra1, extra2))
             ? DictionaryChange::kDone
             : DictionaryChange::kCannotWrite;
}

DictionaryChange remove_entry(const std::string& path, const std::string& lemma,
                              const std::string& category) {
  userdict::DictionaryLock lock(path);
  if (!lock.held()) return DictionaryChange::kCannotLock;
  bool found = false;
  std::string text;
  const bool read = userdict::for_each_line(path, [&](std::string_view line) {
    if (is_entry_of(line, lemma, category))
      found = true;
    else if (!line.empty())
      text.append("\n").append(line);
  });
  if (!read) return DictionaryChange::kCannotRead;
  if (!found) return DictionaryChange::kNotThere;
  return userdict::replace_durably(path, text + "\n") ? DictionaryChange::kDone
                                                      : DictionaryChange::kCannotWrite;
}

std::string failure_message(DictionaryChange change, const std::string& path) {
  switch (change) {
    case DictionaryChange::kCannotLock:
      return "cannot lock the personal dictionary " + path + " (through " + path + ".lock)";
    case DictionaryChange::kCannotRead:
      return "cannot read the personal dictionary " + path;
    case DictionaryChange::kCannotWrite:
      return "could not write the personal dictionary " + path + "; it is left as it was";
    default:
      return {};
  }
}

}  // namespace tarvola_cli
