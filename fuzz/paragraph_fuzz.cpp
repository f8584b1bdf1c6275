// Paragraphs pasted from anywhere (any bytes, up to 20,000): split and
// analysed by an engine over the fixture networks "eumorfo", "hp" and
// "osag0" with the fixture personal dictionary, then rendered as the
// correction document (with and without suggestions), CG3 and Multext.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "fuzz/fuzz_support.h"
#include "tarvola/engine/Tarvola.h"

namespace {

constexpr std::size_t kMaxParagraph = 20000;
// The suggestion search costs a fraction of a millisecond per unknown word
// in a normal build and twenty times that under the sanitizers; on the
// fixture tables nearly every word is unknown. The document with
// suggestions is made from the start of the paragraph only, so that one
// input stays within a second; every code path is reached by short inputs.
constexpr std::size_t kMaxSuggested = 300;

// The fixture configuration names its tables relative to the test data
// folder; the engine reads paths from the working directory, so the harness
// writes a copy with absolute paths.
std::string absolute_config() {
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

tarvola::Tarvola& engine() {
  static tarvola::Tarvola* const instance = [] {
    // The Multext rendering prints; its text is not what is checked.
    if (!std::freopen("/dev/null", "w", stdout)) tarvola::fuzz::fail("no /dev/null");
    const std::string config = absolute_config();
    auto* e = new tarvola::Tarvola(config, std::string(TARVOLA_TEST_DATA_DIR) +
                                               "/engine_hiztegia.txt");
    std::remove(config.c_str());
    return e;
  }();
  return *instance;
}

}  // namespace

// The engine is built before the first input, outside its time limit.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
  engine();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kMaxParagraph) return 0;
  const std::string text(reinterpret_cast<const char*>(data), size);
  tarvola::Paragrafoa paragraph = engine().analizatu_paragrafoa(1, text);
  for (const tarvola::Esaldia& sentence : paragraph.esaldiak)
    for (const tarvola::Tokena& token : sentence.tokenak)
      if (token.analisiak.empty()) tarvola::fuzz::fail("a token without a reading");
  (void)paragraph.get_CG3(size % 2 == 0, false, false);
  paragraph.print_Multext(size % 2 == 1, false, false);
  (void)engine().getParagrafoaBrindel(text, false);
  (void)engine().getParagrafoaBrindel(text.substr(0, kMaxSuggested), true);
  return 0;
}
