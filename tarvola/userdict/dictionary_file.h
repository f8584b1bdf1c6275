// The personal dictionary file: one word a line, five tab-separated columns
// (lemma, category, first extra text, second extra text, origin "HP").
// Writers put the line break before each line, so a rewritten file starts
// with an empty line; readers skip empty lines, so both shapes load alike.
//
// The file is the user's own data. Appends are pushed to the disk before
// returning; a rewrite goes to a fresh file beside the old one, is pushed to
// the disk and then renamed over it, so at every instant the path holds
// either the whole old content or the whole new one.
#ifndef TARVOLA_USERDICT_DICTIONARY_FILE_H
#define TARVOLA_USERDICT_DICTIONARY_FILE_H

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "tarvola/export.h"

namespace tarvola::userdict {

struct DictionaryLine {
  std::string lemma;
  std::string category;  // empty unless it was "<...>"
  std::string extra1;
  std::string extra2;
  std::string origin;
};

// Splits one line (without its line break). Comment lines ("//...") and
// lines shorter than two bytes give nothing. The lemma ends at the first
// tab or "|", the other columns at single tabs, the last runs to the end.
TARVOLA_API std::optional<DictionaryLine> parse_line(std::string_view line);

// Calls f(line) for each line of the file, read in text mode, without its
// line break (nor a carriage return before it, so a file edited on Windows
// reads the same everywhere). False when the file cannot be opened.
TARVOLA_API bool for_each_line(const std::string& path,
                   const std::function<void(std::string_view)>& f);

// The line an added word gets: a line break, then lemma, category and the
// first non-empty extra text in its own column, "HP" last.
TARVOLA_API std::string appended_line(std::string_view lemma, std::string_view category,
                          std::string_view extra1, std::string_view extra2);

// A line of a rewritten file: a line break, then all five columns.
TARVOLA_API std::string rewritten_line(std::string_view lemma, std::string_view category,
                           std::string_view extra1, std::string_view extra2);

// Appends the text in text mode, creating the file when missing, and pushes
// it to the disk before closing. False on any failure, the file then cut
// back to its old content (removed when the append created it).
TARVOLA_API bool append_durably(const std::string& path, std::string_view text);

// Replaces the file's content with the text (in text mode) through a
// temporary file beside it and an atomic rename. On any failure the old file
// is left untouched, the temporary file is removed and the result is false.
TARVOLA_API bool replace_durably(const std::string& path, std::string_view text);

// An exclusive lock on a dictionary file, held from construction to
// destruction, so that programs changing the same file one after another
// never write over each other's change: each takes the lock, reads the
// file afresh, changes it and releases the lock. The lock is taken on a
// file of its own beside the dictionary (PATH.lock, left in place), since a
// rewrite renames a new dictionary over the old one and a lock on the old
// one would not be met by the next writer. Advisory (flock) on POSIX,
// LockFileEx on Windows; it waits for the holder.
class TARVOLA_API DictionaryLock {
 public:
  explicit DictionaryLock(const std::string& path);
  ~DictionaryLock();
  DictionaryLock(const DictionaryLock&) = delete;
  DictionaryLock& operator=(const DictionaryLock&) = delete;

  // False when the lock file could not be opened or locked.
  bool held() const { return held_; }

 private:
  bool held_ = false;
#ifdef _WIN32
  void* handle_ = nullptr;
#else
  int fd_ = -1;
#endif
};

}  // namespace tarvola::userdict

#endif
