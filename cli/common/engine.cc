#include "common/engine.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <system_error>
#include <utility>

#include "common/io.h"
#include "common/platform.h"

namespace tarvola_cli {

namespace fs = std::filesystem;

namespace {

// Runs f with the working directory set to `folder`: the library takes
// table paths relative to it, as the configuration writes them.
template <typename F>
void in_folder(const fs::path& folder, F&& f) {
  std::error_code ec;
  const fs::path here = fs::current_path(ec);
  fs::current_path(folder, ec);
  f();
  fs::current_path(here, ec);
}

constexpr std::size_t kMaxNetworks = 10;

// The engine's reading of a configuration line: entries start in the first
// column; empty lines, "//" lines and lines starting with a blank, a tab or
// a carriage return are comments.
bool is_entry(const std::string& line) {
  return !line.empty() && line.compare(0, 2, "//") != 0 && line[0] != ' ' && line[0] != '\t' &&
         line[0] != '\r';
}

// The engine's network name rule: the file name after the last "/", up to
// its first ".", less one final "PG". Empty when the name is too short for
// the engine (it would refuse the configuration).
std::string network_name(const std::string& path) {
  std::size_t slash = path.rfind('/');
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  name = name.substr(0, name.find('.'));
  if (name.size() < 2) return {};
  if (name.compare(name.size() - 2, 2, "PG") == 0) name.resize(name.size() - 2);
  return name;
}

bool readable_file(const fs::path& path) {
  std::error_code ec;
  if (!fs::is_regular_file(path, ec)) return false;
  std::ifstream probe(path, std::ios::binary);
  return static_cast<bool>(probe);
}

}  // namespace

bool is_demo_config(const fs::path& config) {
  // The demo configuration says what it is on its first line; that line
  // goes with it when it is installed in place of the full data set.
  std::ifstream in(config, std::ios::binary);
  std::string first;
  std::getline(in, first);
  return first.rfind(kDemoConfigMark, 0) == 0;
}

fs::path find_config(const std::string& option) {
  std::string from;
  fs::path chosen;
  if (!option.empty()) {
    chosen = option;
    from = "--config";
  } else if (const char* env = std::getenv("TARVOLA_CONFIG"); env != nullptr && *env != '\0') {
    chosen = env;
    from = "TARVOLA_CONFIG";
  } else {
    // Beside an installed tool, else the build tree's full data set, else its
    // committed demo set.
    std::string exe = platform::executable_path();
    std::vector<fs::path> candidates;
    if (!exe.empty())
      candidates.push_back(fs::path(exe).parent_path() / TARVOLA_SHARE_FROM_BIN / "tarvola.conf");
    candidates.push_back(TARVOLA_BUILT_CONFIG);
    candidates.push_back(TARVOLA_DEMO_CONFIG);
    std::error_code ec;
    for (const fs::path& c : candidates)
      if (chosen.empty() && fs::exists(c, ec)) chosen = c;
    if (chosen.empty()) chosen = candidates.front();
    from = "the bundled data";
  }
  if (!readable_file(chosen)) {
    std::cerr << "tarvola: configuration file " << chosen.string() << " (from " << from
              << ") not found or not readable\n";
    return {};
  }
  return chosen;
}

bool read_config(const fs::path& config, std::vector<NetworkEntry>& entries) {
  std::ifstream in(config, std::ios::binary);
  if (!in) {
    std::cerr << "tarvola: cannot read configuration file " << config.string() << "\n";
    return false;
  }
  const fs::path folder = fs::absolute(config).parent_path();
  std::string line;
  std::size_t number = 0;
  while (std::getline(in, line)) {
    ++number;
    if (!is_entry(line)) continue;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string where = config.string() + ":" + std::to_string(number) + ": ";
    if (entries.size() == kMaxNetworks) {
      std::cerr << where << "warning: only the first " << kMaxNetworks
                << " tables are loaded; this line and the rest are ignored\n";
      break;
    }
    fs::path table = fs::u8path(line);
    if (table.is_relative()) table = folder / table;
    if (!readable_file(table)) {
      std::cerr << where << "table file " << table.string() << " not found or not readable\n";
      return false;
    }
    std::string name = network_name(line);
    if (name.empty()) {
      std::cerr << where << "the file name of " << line
                << " gives a network name shorter than two characters\n";
      return false;
    }
    entries.push_back({std::move(name), line, table.lexically_normal()});
  }
  if (entries.empty()) {
    std::cerr << "tarvola: configuration file " << config.string() << " lists no table\n";
    return false;
  }
  return true;
}

std::unique_ptr<Engine> Engine::open(const CommonOptions& options, const std::vector<Need>& needs) {
  std::unique_ptr<Engine> engine(new Engine());
  engine->verbose_ = options.verbose;
  fs::path config = find_config(options.config);
  if (config.empty() || !read_config(config, engine->networks_)) return nullptr;
  if (!options.dict.empty()) {
    if (!readable_file(options.dict)) {
      std::cerr << "tarvola: personal dictionary " << options.dict << " not found or not readable\n";
      return nullptr;
    }
    engine->dict_path_ = fs::absolute(options.dict).string();
  }

  engine->folder_ = fs::absolute(config).parent_path();
  const std::string file = config.filename().string();
  std::string failure;
  StdoutCapture capture;
  std::string said = capture.run([&] {
    in_folder(engine->folder_, [&] {
      try {
        engine->tarvola_ = engine->dict_path_.empty()
                               ? std::make_unique<tarvola::Tarvola>(file)
                               : std::make_unique<tarvola::Tarvola>(file, engine->dict_path_);
      } catch (const std::exception& e) {
        failure = e.what();
      }
    });
  });
  forward_diagnostics(said, options.verbose);
  if (!failure.empty()) {
    std::cerr << "tarvola: the engine could not be built from " << config.string() << ": "
              << failure << "\n";
    return nullptr;
  }
  if (is_demo_config(config))
    std::cerr << "tarvola: note: " << config.string()
              << " is the small demo data set (a few hundred words), not the Basque data set;"
                 " build that with 'cmake --build build' (see data/README.md)\n";
  for (const Need& need : needs)
    if (!engine->require_network(need.network, need.purpose)) return nullptr;
  return engine;
}

Engine::~Engine() {
  StdoutCapture capture;
  std::string said = capture.run([this] {
    hp_network_.reset();
    session_.reset();
    dictionary_.reset();
    tarvola_.reset();
  });
  forward_diagnostics(said, verbose_);
}

bool Engine::has_network(const std::string& name) const {
  for (const NetworkEntry& n : networks_)
    if (n.name == name) return true;
  return false;
}

std::unique_ptr<Engine> Engine::open_for_paragraphs(const CommonOptions& options) {
  return open(options, {{"eumorfo", "to split paragraphs into sentences"}});
}

bool Engine::require_network(const std::string& name, const char* purpose) const {
  if (has_network(name)) return true;
  std::cerr << "tarvola: the configuration has no network \"" << name << "\", needed " << purpose
            << "\n";
  return false;
}

std::vector<tarvola::Analisia> Engine::word_readings(tarvola::Tarvola& engine,
                                                    const std::string& word) {
  std::vector<tarvola::Analisia> all = engine.analizatuTokena(word);
  std::vector<tarvola::Analisia> dictionary = dictionary_readings(word);
  const bool known = !dictionary.empty() ||
                     std::any_of(all.begin(), all.end(),
                                 [](const tarvola::Analisia& a) { return a.sarea != "osag0"; });
  std::vector<tarvola::Analisia> shown;
  for (tarvola::Analisia& a : all) {
    const bool guess = a.sarea == "osag0";
    if (!guess || (!known && a.etiketa.find("Rare") == std::string::npos)) shown.push_back(std::move(a));
  }
  for (tarvola::Analisia& a : dictionary) shown.push_back(std::move(a));
  return shown;
}

tarvola::Sarea* Engine::hp_network() {
  if (!hp_network_ && has_network("hp")) {
    // The last entry of a name is the one the engine keeps.
    std::string table;
    for (const NetworkEntry& n : networks_)
      if (n.name == "hp") table = n.written;
    StdoutCapture capture;
    std::string said = capture.run([&] {
      in_folder(folder_, [&] {
        hp_network_ = std::make_unique<tarvola::Sarea>("hp", table, new tarvola::Taula(table));
      });
    });
    forward_diagnostics(said, verbose_);
  }
  return hp_network_.get();
}

std::vector<tarvola::Analisia> Engine::dictionary_readings(const std::string& word) {
  if ((dict_path_.empty() && !session_) || hp_network() == nullptr) return {};
  if (!dictionary_ && !dict_path_.empty()) {
    StdoutCapture capture;
    std::string said = capture.run(
        [&] { dictionary_ = std::make_unique<tarvola::HiztegiPertsonala>(dict_path_); });
    forward_diagnostics(said, verbose_);
  }
  std::vector<tarvola::Analisia> readings;
  if (dictionary_) readings = dictionary_->analizatu(word, hp_network_.get());
  if (session_)
    for (tarvola::Analisia& a : session_->analizatu(word, hp_network_.get())) readings.push_back(std::move(a));
  return readings;
}

bool Engine::add_session_word(const std::string& lemma, const std::string& category) {
  if (hp_network() == nullptr) return false;
  if (!session_) session_ = std::make_unique<tarvola::HiztegiPertsonala>();
  session_->gehitu_sarrera(false, lemma, category, "", "", "HP");
  return true;
}

}  // namespace tarvola_cli
