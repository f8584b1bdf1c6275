// A fresh directory for one test's files, removed with everything in it
// when the test ends.
#ifndef TARVOLA_TESTS_USERDICT_SCRATCH_DIR_H
#define TARVOLA_TESTS_USERDICT_SCRATCH_DIR_H

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

class ScratchDir {
 public:
  ScratchDir() {
    std::random_device rd;
    path_ = std::filesystem::temp_directory_path() /
            ("tarvola-userdict-" + std::to_string(rd()) + std::to_string(rd()));
    std::filesystem::create_directories(path_);
  }
  ~ScratchDir() {
    std::error_code ec;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(path_, ec);
  }
  ScratchDir(const ScratchDir&) = delete;
  ScratchDir& operator=(const ScratchDir&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

  std::vector<std::string> names() const {
    std::vector<std::string> out;
    for (const auto& e : std::filesystem::directory_iterator(path_))
      out.push_back(e.path().filename().string());
    return out;
  }

 private:
  std::filesystem::path path_;
};

inline void write_file(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

inline std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

#endif
