#include "tarvola/engine/network_config.h"

#include <sys/stat.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "tarvola/base/tags.h"

namespace tarvola::engine {

namespace {

bool is_comment(const std::string& line) {
  return line.empty() || tags::starts_with(line, "//") || line[0] == ' ' || line[0] == '\t' ||
         line[0] == '\r' || tags::starts_with(line, "\n\t");
}

// Existence only: an unreadable file passes and is the table loader's affair.
bool file_exists(const std::string& path) {
  struct stat info;
  return stat(path.c_str(), &info) == 0;
}

}  // namespace

std::vector<std::string> read_network_config(const std::string& path) {
  std::vector<std::string> accepted;
  std::ifstream file(path);
  if (!file) return accepted;

  std::string line;
  while (std::getline(file, line)) {
    if (is_comment(line)) continue;
    if (static_cast<int>(accepted.size()) == kMaxNetworks) {
      std::printf("kargatu_sareak: Taula kopuru handiegia: %d da topea!\n", kMaxNetworks);
      break;
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!file_exists(line)) {
      std::fputs("Ezin da ireki '", stdout);
      std::fwrite(line.data(), 1, line.size(), stdout);
      std::fputs("'\n", stdout);
      continue;
    }
    accepted.push_back(line);
  }
  return accepted;
}

std::string network_name(std::string_view path) {
  std::size_t slash = path.rfind('/');
  std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  name = name.substr(0, name.find('.'));
  // The "PG" test reads the name's last two bytes; shorter names are an
  // error of the configuration that construction does not survive.
  if (name.size() < 2) throw std::out_of_range("invalid string position");
  if (tags::ends_with(name, "PG")) name.remove_suffix(2);
  return std::string(name);
}

}  // namespace tarvola::engine
