// The engine fixture: the networks under tests/data/tables/engine/, listed
// by tests/data/engine.conf with paths relative to tests/data. Since the
// engine takes relative paths from the working directory, tests use a copy
// of the configuration whose entries are made absolute.
#ifndef TARVOLA_TESTS_SUPPORT_ENGINE_FIXTURE_H
#define TARVOLA_TESTS_SUPPORT_ENGINE_FIXTURE_H

#include <sstream>
#include <string>

#include "support/test_files.h"

namespace tarvola::testing {

inline std::string engine_table(const std::string& file) {
  return data_path("tables/engine/" + file);
}

// The fixture configuration with every entry line prefixed by the data
// folder; comment and continuation lines are left alone.
inline std::string absolute_engine_config() {
  std::istringstream in(read_file(data_path("engine.conf")));
  std::string out, line;
  while (std::getline(in, line)) {
    bool entry = !line.empty() && line.compare(0, 2, "//") != 0 && line[0] != ' ' && line[0] != '\t';
    out += (entry ? std::string(TARVOLA_TEST_DATA_DIR) + "/" + line : line) + "\n";
  }
  return out;
}

}  // namespace tarvola::testing

#endif
