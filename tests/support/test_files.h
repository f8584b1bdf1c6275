// Files for tests: fixture paths, temporary folders that clean up after
// themselves, and writing a file in one call.
#ifndef TARVOLA_TESTS_SUPPORT_TEST_FILES_H
#define TARVOLA_TESTS_SUPPORT_TEST_FILES_H

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "../../data/tools/corpus_words.h"

namespace tarvola::testing {

inline std::string data_path(const std::string& relative) {
  return std::string(TARVOLA_TEST_DATA_DIR) + "/" + relative;
}

inline std::string corpus_path(const std::string& name) {
  return std::string(TARVOLA_CORPUS_DIR) + "/" + name;
}

// The first `most` distinct words of a corpus file, as the data tools count
// words; none when the corpus is missing.
inline std::vector<std::string> corpus_words(const std::string& name, std::size_t most) {
  std::ifstream in(corpus_path(name), std::ios::binary);
  std::set<std::string> seen;
  std::vector<std::string> words;
  for (std::string line; words.size() < most && std::getline(in, line);)
    tarvola_data::for_each_word(line, [&](const std::string& w) {
      if (words.size() < most && seen.insert(w).second) words.push_back(w);
    });
  return words;
}

inline std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void write_file(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
}

// A fresh folder under the system's temporary folder, removed on scope exit.
class TempDir {
 public:
  TempDir() {
    static std::atomic<int> counter{0};
    auto base = std::filesystem::temp_directory_path();
    for (;;) {
      path_ = base / ("tarvola-test-" + std::to_string(reinterpret_cast<std::uintptr_t>(this)) + "-" +
                      std::to_string(counter++));
      if (std::filesystem::create_directory(path_)) break;
    }
  }
  ~TempDir() {
    std::error_code ec;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(path_, ec);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  std::string path() const { return path_.string(); }
  std::string file(const std::string& name) const { return (path_ / name).string(); }
  std::string write(const std::string& name, const std::string& content) const {
    write_file(file(name), content);
    return file(name);
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tarvola::testing

#endif
