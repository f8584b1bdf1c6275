#include "speller.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <system_error>

#include "common/dictionary_change.h"
#include "common/encoding.h"
#include "tarvola/base/latin1.h"

namespace tarvola_enchant {

namespace {

namespace fs = std::filesystem;
using tarvola_cli::Encoding;
using tarvola_cli::EnginePiece;

// Longer "words" (a path, a run of symbols) are not Basque, and the
// suggestion search on them would cost the editor seconds.
constexpr std::size_t kLongestWord = 100;

// Words that are wrong before any lookup: too long, or holding what opens
// or closes a tag in the engine's readings.
bool plainly_wrong(std::string_view word) {
  return word.empty() || word.size() > kLongestWord || word.find_first_of("<>") != std::string_view::npos;
}

bool capitalised(const std::string& text) {
  return !text.empty() && tarvola::latin1::to_lower(text[0]) != text[0];
}

// The data set: $TARVOLA_CONFIG, else the installed one, else what the
// tool would find (the build tree's data, then the demo set).
std::string config_path() {
  if (const char* env = std::getenv("TARVOLA_CONFIG"); env != nullptr && *env != '\0') return {};
  std::error_code ec;
  return fs::exists(TARVOLA_INSTALLED_CONFIG, ec) ? TARVOLA_INSTALLED_CONFIG : std::string();
}

}  // namespace

std::shared_ptr<Speller> Speller::shared(const std::string& dictionary, std::string& error) {
  static std::mutex mutex;
  static std::weak_ptr<Speller> current;
  std::lock_guard<std::mutex> lock(mutex);
  if (std::shared_ptr<Speller> speller = current.lock()) return speller;

  tarvola_cli::CommonOptions options;
  options.config = config_path();
  std::error_code ec;
  if (fs::exists(dictionary, ec)) options.dict = dictionary;
  // The set-up reports on std::cerr; the message is also the caller's.
  std::ostringstream said;
  std::streambuf* old = std::cerr.rdbuf(said.rdbuf());
  std::shared_ptr<Speller> speller(new Speller());
  speller->engine_ = tarvola_cli::Engine::open(
      options, {{"hp", "for the personal dictionary"}, {"eumorfo", "to check words"}});
  std::cerr.rdbuf(old);
  std::cerr << said.str();
  if (!speller->engine_) {
    error = said.str().empty() ? "tarvola: the Basque data could not be loaded" : said.str();
    while (!error.empty() && error.back() == '\n') error.pop_back();
    return nullptr;
  }
  speller->dictionary_ = dictionary;
  current = speller;
  return speller;
}

std::vector<std::string> Speller::standard_forms(const std::string& text) {
  std::vector<std::string> forms;
  for (const tarvola::Analisia& a : engine_->word_readings(engine_->get(), text)) {
    const std::string& form = !a.h_balioa.empty() ? a.h_balioa : a.e_balioa;
    if (form.empty()) return {};
    if (std::find(forms.begin(), forms.end(), form) == forms.end()) forms.push_back(form);
  }
  return forms;
}

bool Speller::check(std::string_view word) {
  EnginePiece piece;
  if (plainly_wrong(word) || !tarvola_cli::to_engine(word, Encoding::kUtf8, nullptr, piece)) return false;
  const std::string& text = piece.text();
  std::lock_guard<std::mutex> lock(mutex_);
  if (!engine_->get().isValid(text, false) && engine_->dictionary_readings(text).empty()) return false;
  return standard_forms(text).empty();
}

std::vector<std::string> Speller::suggest(std::string_view word) {
  EnginePiece piece;
  if (plainly_wrong(word) || !tarvola_cli::to_engine(word, Encoding::kUtf8, nullptr, piece)) return {};
  const std::string& text = piece.text();
  std::vector<std::string> found;
  {
    std::lock_guard<std::mutex> lock(mutex_);
    for (std::string form : standard_forms(text)) {
      // "Nere" at a sentence start gets "Nire".
      if (capitalised(text)) form[0] = tarvola::latin1::to_upper(form[0]);
      found.push_back(std::move(form));
    }
    for (std::string& s : engine_->get().lortu_ezzg_proposamenak(text)) found.push_back(std::move(s));
  }
  std::vector<std::string> out;
  for (const std::string& s : found) {
    std::string utf8 = piece.restore(s, Encoding::kUtf8);
    if (std::find(out.begin(), out.end(), utf8) == out.end()) out.push_back(std::move(utf8));
  }
  return out;
}

bool Speller::add(std::string_view word, bool personal, std::string& error) {
  // The dictionary file and its lookup are in code page 1252.
  tarvola_cli::DecodedText decoded;
  std::size_t column = 0;
  tarvola_cli::decode(word, Encoding::kUtf8, decoded, 1, column, nullptr);
  const std::string& lemma = decoded.bytes;
  const std::string category = capitalised(lemma) ? "<IZB>" : "<ARR>";
  error = decoded.foreign.empty() ? tarvola_cli::entry_problem(lemma, category, "", "")
                                  : "the word holds a character the dictionary file (code page 1252) cannot hold";
  if (!error.empty()) return false;
  std::lock_guard<std::mutex> lock(mutex_);
  if (personal) {
    std::error_code ec;
    fs::create_directories(fs::path(dictionary_).parent_path(), ec);
    const tarvola_cli::DictionaryChange change = tarvola_cli::add_entry(dictionary_, lemma, category, "", "");
    error = tarvola_cli::failure_message(change, dictionary_);
    if (!error.empty()) return false;
  }
  // The engine read the file before: it takes the word for the session.
  engine_->add_session_word(lemma, category);
  return true;
}

}  // namespace tarvola_enchant
