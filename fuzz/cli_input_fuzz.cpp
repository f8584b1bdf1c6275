// The command-line tool's input boundary: the whole tool, option parsing
// included, run in process on arguments and standard input taken from the
// fuzzer's bytes.
//
// An input is its arguments separated by NUL bytes (an argument can hold any
// other byte), then two NULs, then what the tool reads on standard input:
//   "valid\0--prefixes\0etxea\0\0"         tarvola valid --prefixes etxea
//   "check\0--suggest\0\0Etxea handia da."  with that text on standard input
// The tool runs in a sandbox folder holding copies of the fixture engine's
// configuration, tables and personal dictionary, which $TARVOLA_CONFIG
// names. Arguments cannot leave that folder ("/" and "\" become "_"), and
// after each input the folder is put back as it was, so that "dict add" or
// "--output engine.conf" cannot change what later inputs see.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "fuzz/fuzz_support.h"
#include "tarvola/tables/cipher.h"
#include "tool.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMaxArguments = 24;
// A suggestion search costs tens of milliseconds per long unknown word,
// twenty times that under the sanitizers (see paragraph_fuzz.cpp): an input
// that may ask for suggestions keeps its arguments and text short.
constexpr std::size_t kMaxSuggestedArgument = 10;
constexpr std::size_t kMaxSuggestedText = 10;

std::string read_all(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void write_all(const fs::path& path, std::string_view bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out) tarvola::fuzz::fail("cannot write the sandbox");
}

// The folder the tool runs in, and the files it must hold before each run.
class Sandbox {
 public:
  Sandbox() {
    char name[] = "/tmp/tarvola-fuzz-cli-XXXXXX";
    if (!mkdtemp(name)) tarvola::fuzz::fail("no sandbox folder");
    root_ = name;
    const fs::path data = TARVOLA_TEST_DATA_DIR;
    for (const char* table : {"eumorfo.txt", "hp.txt", "osag0.txt"})
      keep(fs::path("tables/engine") / table, read_all(data / "tables/engine" / table));
    keep("engine.conf", read_all(data / "engine.conf"));
    keep("hiztegia.txt", read_all(data / "engine_hiztegia.txt"));
    keep("nouns.txt", read_all(data / "tables/nouns.txt"));
    keep("nounsSARE8.txt", tarvola::cipher::encipher(read_all(data / "tables/nouns.txt")));
    keep("att.txt", "0\t1\te\te\n1\t2\tt\tt\n2\n");
    keep("testua.txt", "Etxea handia da.\nGizonak etxean daude\n\nEz dakit.\n");
    stdin_path_ = root_.string() + ".stdin";
    restore();
  }

  ~Sandbox() {
    std::error_code ec;
    fs::remove_all(root_, ec);
    fs::remove(stdin_path_, ec);
  }

  const fs::path& root() const { return root_; }
  const std::string& stdin_path() const { return stdin_path_; }

  // Removes what a run created and rewrites what it changed.
  void restore() {
    std::error_code ec;
    std::vector<fs::path> extra;
    for (auto it = fs::recursive_directory_iterator(root_, ec); !ec && it != fs::end(it);
         it.increment(ec)) {
      const fs::path relative = it->path().lexically_relative(root_);
      if (!files_.count(relative) && !is_folder_of_kept(relative)) extra.push_back(it->path());
    }
    for (const fs::path& p : extra) fs::remove_all(p, ec);
    for (const auto& [relative, bytes] : files_) {
      const fs::path path = root_ / relative;
      fs::create_directories(path.parent_path(), ec);
      if (read_all(path) != bytes) write_all(path, bytes);
    }
  }

 private:
  void keep(const fs::path& relative, std::string bytes) { files_[relative] = std::move(bytes); }

  bool is_folder_of_kept(const fs::path& relative) const {
    for (const auto& entry : files_)
      for (fs::path p = entry.first.parent_path(); !p.empty(); p = p.parent_path())
        if (p == relative) return true;
    return false;
  }

  fs::path root_;
  std::string stdin_path_;
  std::map<fs::path, std::string> files_;
};

// Removed when the fuzzing process exits normally.
Sandbox& sandbox() {
  static Sandbox instance;
  return instance;
}

struct Invocation {
  std::vector<std::string> arguments;
  std::string_view text;
};

Invocation split(std::string_view bytes) {
  Invocation call;
  const std::size_t end = bytes.find(std::string_view("\0\0", 2));
  std::string_view head = bytes.substr(0, end);
  call.text = end == std::string_view::npos ? std::string_view() : bytes.substr(end + 2);
  for (std::size_t at = 0; at <= head.size() && call.arguments.size() < kMaxArguments;) {
    std::size_t nul = head.find('\0', at);
    if (nul == std::string_view::npos) nul = head.size();
    std::string argument(head.substr(at, nul - at));
    for (char& c : argument)
      if (c == '/' || c == '\\') c = '_';
    call.arguments.push_back(std::move(argument));
    at = nul + 1;
  }
  if (head.empty()) call.arguments.clear();
  return call;
}

bool may_suggest(const Invocation& call) {
  for (const std::string& a : call.arguments)
    if (a.find("sug") != std::string::npos) return true;
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  if (setenv("TARVOLA_CONFIG", (sandbox().root() / "engine.conf").c_str(), 1) != 0)
    tarvola::fuzz::fail("cannot set the configuration");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Invocation call = split(std::string_view(reinterpret_cast<const char*>(data), size));
  if (may_suggest(call)) {
    for (std::string& a : call.arguments)
      if (a.size() > kMaxSuggestedArgument) a.resize(kMaxSuggestedArgument);
    call.text = call.text.substr(0, kMaxSuggestedText);
  }

  write_all(sandbox().stdin_path(), call.text);
  if (!std::freopen(sandbox().stdin_path().c_str(), "rb", stdin)) tarvola::fuzz::fail("no stdin");

  // libFuzzer's own paths may be relative: the sandbox is the working
  // folder only while the tool runs.
  std::error_code ec;
  const fs::path here = fs::current_path(ec);
  fs::current_path(sandbox().root(), ec);
  if (ec) tarvola::fuzz::fail("cannot enter the sandbox");
  std::vector<char*> argv;
  std::string program = "tarvola";
  argv.push_back(program.data());
  for (std::string& a : call.arguments) argv.push_back(a.data());
  argv.push_back(nullptr);
  const int status = tarvola_cli::run_tool(static_cast<int>(argv.size() - 1), argv.data());
  if (status < 0 || status > 2) tarvola::fuzz::fail("exit status outside 0-2");

  if (fs::current_path(ec) != sandbox().root()) tarvola::fuzz::fail("working folder changed");
  fs::current_path(here, ec);
  sandbox().restore();
  return 0;
}
