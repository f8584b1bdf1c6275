// Paragraphs pasted from anywhere (any bytes, up to 20,000): split and
// analysed by an engine over the fixture networks "eumorfo", "hp" and
// "osag0" with the fixture personal dictionary, then rendered as the
// correction document (with and without suggestions), CG3 and Multext.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "fuzz/fuzz_engine.h"
#include "fuzz/fuzz_support.h"
#include "tarvola/engine/Tarvola.h"

namespace {

constexpr std::size_t kMaxParagraph = 20000;
// The suggestion search tests some forty candidates per byte of an unknown
// word, and a candidate holding a blank or a hyphen is a whole paragraph
// analysis: up to some tens of milliseconds per long unknown word in a
// normal build, twenty times that under the sanitizers, and on the fixture
// tables nearly every word is unknown. The document with suggestions is
// made from the first 64 bytes of the paragraph only (100 bytes of binary
// text with hyphens took 0.4 s), so that one input stays within a second;
// every code path is reached by short inputs.
constexpr std::size_t kMaxSuggested = 64;

}  // namespace

// The engine is built before the first input, outside its time limit.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
  tarvola::fuzz::engine();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kMaxParagraph) return 0;
  const std::string text(reinterpret_cast<const char*>(data), size);
  tarvola::Paragrafoa paragraph = tarvola::fuzz::engine().analizatu_paragrafoa(1, text);
  for (const tarvola::Esaldia& sentence : paragraph.esaldiak)
    for (const tarvola::Tokena& token : sentence.tokenak)
      if (token.analisiak.empty()) tarvola::fuzz::fail("a token without a reading");
  (void)paragraph.get_CG3(size % 2 == 0, false, false);
  paragraph.print_Multext(size % 2 == 1, false, false);
  (void)tarvola::fuzz::engine().getParagrafoaBrindel(text, false);
  (void)tarvola::fuzz::engine().getParagrafoaBrindel(text.substr(0, kMaxSuggested), true);
  return 0;
}
