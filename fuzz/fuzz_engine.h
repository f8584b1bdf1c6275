// The small fixture engine of the paragraph and tool-boundary harnesses:
// "eumorfo", "hp" and "osag0" from tests/data with the fixture personal
// dictionary, built once per fuzzing process.
#ifndef TARVOLA_FUZZ_FUZZ_ENGINE_H
#define TARVOLA_FUZZ_FUZZ_ENGINE_H

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "fuzz/fuzz_support.h"
#include "tarvola/engine/Tarvola.h"

namespace tarvola::fuzz {

// The fixture configuration names its tables relative to the test data
// folder; the engine reads paths from the working directory, so the harness
// writes a copy with absolute paths.
inline std::string absolute_config() {
  const std::string data = TARVOLA_TEST_DATA_DIR;
  std::ifstream in(data + "/engine.conf");
  std::string config, line;
  while (std::getline(in, line)) {
    bool entry = !line.empty() && line.compare(0, 2, "//") != 0;
    config += (entry ? data + "/" + line : line) + "\n";
  }
  char name[] = "/tmp/tarvola-fuzz-engine-XXXXXX";
  int fd = mkstemp(name);
  if (fd < 0) tarvola::fuzz::fail("no configuration file");
  close(fd);
  std::ofstream(name) << config;
  return name;
}

inline tarvola::Tarvola& engine() {
  static tarvola::Tarvola* const instance = [] {
    // Renderings print; their text is not what is checked.
    if (!std::freopen("/dev/null", "w", stdout)) tarvola::fuzz::fail("no /dev/null");
    const std::string config = absolute_config();
    auto* e = new tarvola::Tarvola(config, std::string(TARVOLA_TEST_DATA_DIR) +
                                               "/engine_hiztegia.txt");
    std::remove(config.c_str());
    return e;
  }();
  return *instance;
}

}  // namespace tarvola::fuzz

#endif
