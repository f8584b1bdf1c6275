// The engine fixture: the networks under tests/data/tables/engine/, listed
// by tests/data/engine.conf with paths relative to tests/data. Since the
// engine takes relative paths from the working directory, tests use a copy
// of the configuration whose entries are made absolute.
#ifndef TARVOLA_TESTS_SUPPORT_ENGINE_FIXTURE_H
#define TARVOLA_TESTS_SUPPORT_ENGINE_FIXTURE_H

#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"

namespace tarvola::testing {

inline std::string engine_table(const std::string& file) {
  return data_path("tables/engine/" + file);
}

// A configuration's text with every entry line prefixed by `base`; comment
// and continuation lines are left alone.
inline std::string absolute_config(const std::string& config_path, const std::string& base) {
  std::istringstream in(read_file(config_path));
  std::string out, line;
  while (std::getline(in, line)) {
    bool entry = !line.empty() && line.compare(0, 2, "//") != 0 && line[0] != ' ' && line[0] != '\t';
    out += (entry ? base + "/" + line : line) + "\n";
  }
  return out;
}

// The fixture configuration, its entries made absolute.
inline std::string absolute_engine_config() {
  return absolute_config(data_path("engine.conf"), TARVOLA_TEST_DATA_DIR);
}

// That configuration written into `dir`, with `more` entries after it.
inline std::string fixture_config(const TempDir& dir, const std::string& more = "") {
  return dir.write("engine.conf", absolute_engine_config() + more);
}

// An engine built quietly: what loading prints is the configuration tests'.
inline std::unique_ptr<Tarvola> quiet_engine(const std::string& config,
                                             const std::string& dictionary = data_path("engine_hiztegia.txt")) {
  ::testing::internal::CaptureStdout();
  auto engine = std::make_unique<Tarvola>(config, dictionary);
  ::testing::internal::GetCapturedStdout();
  return engine;
}

}  // namespace tarvola::testing

#endif
