// What an editor asks of tarvola through Enchant: is this word right, what
// should be written instead, and take this word from now on. A thin layer
// over the tool's engine set-up (the same data, personal dictionary and
// text conversion as `tarvola valid` and `tarvola suggest`), in UTF-8.
//
// One Speller is loaded per process and shared by every dictionary handle
// the provider gives out; its calls are serialised, since the engine is
// used by one thread at a time.
#ifndef TARVOLA_ENCHANT_SPELLER_H
#define TARVOLA_ENCHANT_SPELLER_H

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "common/engine.h"

namespace tarvola_enchant {

class Speller {
 public:
  // The process's speller, built on first use with the personal dictionary
  // file `dictionary` (read when it exists, written by add()); null, with
  // the reason in `error`, when the data cannot be loaded. It lives while
  // a caller holds it.
  static std::shared_ptr<Speller> shared(const std::string& dictionary, std::string& error);

  // Valid standard Basque: what `tarvola valid` accepts, less the forms the
  // data knows only as non-standard spellings ("nere" for "nire"), plus the
  // words added in this process.
  bool check(std::string_view word);
  // The standard spellings of a non-standard form first, then the
  // suggestion search's candidates; no duplicates.
  std::vector<std::string> suggest(std::string_view word);
  // Takes the word from now on, with a category guessed from its form (a
  // capitalised word as a proper noun, else a common noun), so that its
  // inflected forms are accepted too. `personal` also writes it to the
  // personal dictionary file; false, with the reason in `error`, when that
  // fails or the file cannot hold the word.
  bool add(std::string_view word, bool personal, std::string& error);

 private:
  Speller() = default;
  // Every reading of the word carries a standard form to write instead;
  // those forms (engine text), in order, or none.
  std::vector<std::string> standard_forms(const std::string& text);

  std::mutex mutex_;
  std::unique_ptr<tarvola_cli::Engine> engine_;
  std::string dictionary_;
};

}  // namespace tarvola_enchant

#endif
