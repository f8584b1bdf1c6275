// Building the engine for a subcommand.
//
// The configuration is the --config file, else $TARVOLA_CONFIG, else the
// bundled data: <bindir>/../share/tarvola/tarvola.conf beside an installed
// tool, the build tree's data when run from there. Table paths in it are
// taken relative to the configuration's folder. Before the engine is built
// the configuration and every table it lists are checked (the library would
// end the process for a missing plain table); what is missing is named on
// standard error. The library's own messages are captured while it loads
// and unloads and forwarded to standard error.
#ifndef TARVOLA_CLI_COMMON_ENGINE_H
#define TARVOLA_CLI_COMMON_ENGINE_H

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "common/options.h"
#include "tarvola/tarvola.h"

namespace tarvola_cli {

struct NetworkEntry {
  std::string name;              // as the engine names it
  std::string written;           // its path as the configuration gives it
  std::filesystem::path table;   // absolute path of its table file
};

// The first line of the committed demo configuration: a tool running on
// it says so, since its answers are not those of the Basque data set.
inline constexpr const char kDemoConfigMark[] = "// tarvola demo network configuration";
bool is_demo_config(const std::filesystem::path& config);

// The configuration file to use; empty (message printed) when there is
// none.
std::filesystem::path find_config(const std::string& option);

// The entries the engine will load from `config`, checked: false (message
// printed, naming the file and line) when one is missing or unusable.
bool read_config(const std::filesystem::path& config, std::vector<NetworkEntry>& entries);

class Engine {
 public:
  // A network the subcommand cannot do without, and what for.
  struct Need {
    std::string network;
    const char* purpose;  // ends the message "... needed <purpose>"
  };

  // Null (message printed) when the configuration, a table or the personal
  // dictionary is missing, when the engine cannot be built, or when the
  // configuration lacks a needed network (the first one is named).
  static std::unique_ptr<Engine> open(const CommonOptions& options,
                                      const std::vector<Need>& needs = {});
  // The same for the paragraph subcommands, which also need "eumorfo" to
  // split sentences.
  static std::unique_ptr<Engine> open_for_paragraphs(const CommonOptions& options);
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  ~Engine();

  tarvola::Tarvola& get() { return *tarvola_; }
  bool has_network(const std::string& name) const;
  // False (message printed) when the configuration lacks the network.
  bool require_network(const std::string& name, const char* purpose) const;
  const std::vector<NetworkEntry>& networks() const { return networks_; }

  // The readings of the personal dictionary (through the "hp" network) for
  // a word, then those of the session's words; empty without either.
  std::vector<tarvola::Analisia> dictionary_readings(const std::string& word);

  // Takes a word (a personal-dictionary lemma and category) for this
  // engine's lifetime, read like the dictionary file's words but never
  // written: an editor's "ignore all", or a word just added to the file,
  // which this engine read before. False without an "hp" network.
  bool add_session_word(const std::string& lemma, const std::string& category);

  // The readings `analyze` shows for a word with `engine` (this engine's
  // library object or a copy of it): every network's, then the personal
  // dictionary's; the guesses of the compound network "osag0" only when
  // nothing else reads the word, and never its "Rare" ones, as in running
  // text.
  std::vector<tarvola::Analisia> word_readings(tarvola::Tarvola& engine, const std::string& word);

 private:
  Engine() = default;

  std::vector<NetworkEntry> networks_;
  std::filesystem::path folder_;  // the configuration's folder
  std::string dict_path_;
  bool verbose_ = false;
  std::unique_ptr<tarvola::Tarvola> tarvola_;
  // Builds hp_network_ on first use; null without an "hp" network.
  tarvola::Sarea* hp_network();

  // The dictionary lookup, the session's words, and their own "hp" network
  // (owning its table).
  std::unique_ptr<tarvola::HiztegiPertsonala> dictionary_;
  std::unique_ptr<tarvola::HiztegiPertsonala> session_;
  std::unique_ptr<tarvola::Sarea> hp_network_;
};

}  // namespace tarvola_cli

#endif
