// The command-line tool's input boundary: arbitrary bytes read as UTF-8
// text, cut into the engine's paragraphs, analysed, rendered and turned back
// into UTF-8; and the same bytes as the word or lemma a command takes as an
// argument value (generate, valid, suggest).
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "common/encoding.h"
#include "common/paragraphs.h"
#include "fuzz/fuzz_engine.h"
#include "fuzz/fuzz_support.h"

namespace {

// Suggestions cost most per unknown word (see paragraph_fuzz.cpp), and a
// word argument's suggestion search grows with the square of its length (a
// 90-byte text with blanks takes 0.4 s in a normal build, twenty times that
// under the sanitizers): word arguments are fuzzed up to 24 bytes.
constexpr std::size_t kMaxInput = 4000;
constexpr std::size_t kMaxWordValue = 24;

void text_input(std::string_view bytes, tarvola_cli::ParagraphMode mode) {
  std::FILE* in = fmemopen(const_cast<char*>(bytes.data()), bytes.size(), "r");
  if (!in) return;  // fmemopen refuses an empty buffer on some systems
  tarvola_cli::ParagraphSource source(in, "fuzz", tarvola_cli::Encoding::kUtf8, mode);
  tarvola_cli::EnginePiece piece;
  while (source.next(piece)) {
    if (piece.text().size() > tarvola_cli::kMaxParagraph) tarvola::fuzz::fail("piece over the limit");
    const std::string document = tarvola::fuzz::engine().getParagrafoaBrindel(piece.text(), false);
    (void)piece.restore(document, tarvola_cli::Encoding::kUtf8);
    (void)piece.restore(piece.text(), tarvola_cli::Encoding::kCp1252);
    const std::string cg3 = tarvola::fuzz::engine().analizatu_paragrafoa(1, piece.text()).get_CG3(true, false, false);
    (void)piece.restore(cg3, tarvola_cli::Encoding::kUtf8);
  }
  std::fclose(in);
}

void word_value(std::string_view bytes) {
  tarvola_cli::EnginePiece word;
  if (!tarvola_cli::to_engine(bytes, tarvola_cli::Encoding::kUtf8, [](std::size_t, std::size_t) {},
                              word))
    return;
  tarvola::Tarvola& engine = tarvola::fuzz::engine();
  (void)engine.isValid(word.text(), bytes.size() % 2 == 0);
  for (const std::string& s : engine.lortu_ezzg_proposamenak(word.text()))
    (void)word.restore(s, tarvola_cli::Encoding::kUtf8);
  for (const tarvola::Analisia& a : engine.sortuFormak(word.text(), "<IZE><ARR><ABS><NUMS><MUGM>"))
    (void)word.restore(a.forma, tarvola_cli::Encoding::kUtf8);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  tarvola::fuzz::engine();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kMaxInput) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  text_input(bytes, size % 2 ? tarvola_cli::ParagraphMode::kLine : tarvola_cli::ParagraphMode::kBlankLine);
  if (size <= kMaxWordValue) word_value(bytes);
  return 0;
}
