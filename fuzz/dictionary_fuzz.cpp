// Personal dictionary files edited by hand: loaded, looked up through the
// "hp" fixture network, and one word removed without writing the file.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "fuzz/fuzz_support.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/userdict/HiztegiPertsonala.h"
#include "tarvola/userdict/dictionary_file.h"

namespace {

// One scratch file per fuzzing process, rewritten for every input.
class ScratchFile {
 public:
  ScratchFile() {
    char name[] = "/tmp/tarvola-fuzz-dictionary-XXXXXX";
    int fd = mkstemp(name);
    if (fd < 0) tarvola::fuzz::fail("no scratch file");
    close(fd);
    path_ = name;
  }
  ~ScratchFile() { std::remove(path_.c_str()); }
  const std::string& write(std::string_view bytes) const {
    std::FILE* f = std::fopen(path_.c_str(), "wb");
    if (!f) tarvola::fuzz::fail("cannot write the scratch file");
    std::fwrite(bytes.data(), 1, bytes.size(), f);
    std::fclose(f);
    return path_;
  }

 private:
  std::string path_;
};

// A lemma and a category end up side by side in analysis strings: a column
// with a "<" not closed soon within it could form a tag long enough to end
// the process, which the library does on purpose.
bool columns_safe(std::string_view line) {
  std::size_t open = std::string_view::npos;
  for (std::size_t i = 0; i < line.size(); ++i) {
    char c = line[i];
    if (c == '\t' || c == '|') {
      if (open != std::string_view::npos) return false;
    } else if (c == '<' && open == std::string_view::npos) {
      open = i;
    } else if (c == '>' && open != std::string_view::npos) {
      open = std::string_view::npos;
    }
    if (open != std::string_view::npos && i - open > 60) return false;
  }
  return open == std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ScratchFile scratch;
  static tarvola::Sarea* const hp = [] {
    const std::string path = std::string(TARVOLA_TEST_DATA_DIR) + "/tables/hp_endings.txt";
    return new tarvola::Sarea("hp", path, new tarvola::Taula(path));
  }();

  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (std::size_t at = 0; at <= bytes.size();) {
    std::size_t nl = bytes.find('\n', at);
    if (nl == std::string_view::npos) nl = bytes.size();
    if (!columns_safe(bytes.substr(at, nl - at))) return 0;
    at = nl + 1;
  }

  tarvola::HiztegiPertsonala dictionary(scratch.write(bytes));
  static const char* const kTokens[] = {"etxea", "Etxean", "lanak", "hartzen", "a", ""};
  for (const char* token : kTokens) dictionary.analizatu(token, hp);
  if (!dictionary.sarrerak.empty() && dictionary.sarrerak.front()) {
    // Its own word, inflected, and then removed (the file is not touched).
    const tarvola::HPsarrera entry = *dictionary.sarrerak.front();
    dictionary.analizatu(entry.lema + "a", hp);
    dictionary.analizatu(entry.lema, hp);
    dictionary.kendu_sarrera(false, entry.lema, entry.kategoria);
    dictionary.analizatu(entry.lema + "a", hp);
    tarvola::HiztegiPertsonala copy(dictionary);
    copy.gehitu_sarrera(false, entry.lema, entry.kategoria, entry.osagarria1, entry.osagarria2,
                        "HP");
  }
  return 0;
}
