#include "common/io.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <system_error>

#include "common/platform.h"

namespace tarvola_cli {

namespace {

// The real standard output once route_stdout() has run; -1 before.
int results_fd = -1;

void flush_standard_output() {
  std::cout.flush();
  std::fflush(stdout);
}

}  // namespace

void route_stdout() {
  if (results_fd >= 0) return;
  flush_standard_output();
  platform::set_binary(stdout);
  results_fd = platform::dup_fd(platform::fd_of(stdout));
  if (results_fd >= 0) platform::dup2_fd(platform::fd_of(stderr), platform::fd_of(stdout));
}

Output::~Output() { close(); }

bool Output::open(const std::string& path, bool unbuffered) {
  unbuffered_ = unbuffered;
  name_ = path;
  if (path == "-") {
    file_ = results_fd >= 0 ? platform::open_fd(results_fd, "wb") : stdout;
    owned_ = results_fd >= 0;
    results_fd = -1;  // the stream owns the descriptor now
  } else {
    file_ = std::fopen(path.c_str(), "wb");
    owned_ = true;
  }
  if (file_ == nullptr) {
    std::cerr << "tarvola: cannot write " << (path == "-" ? "standard output" : path) << ": "
              << std::strerror(errno) << "\n";
    return false;
  }
  return true;
}

bool Output::close() {
  if (file_ == nullptr) return true;
  bool ok = std::fflush(file_) == 0 && !std::ferror(file_);
  if (owned_) ok = std::fclose(file_) == 0 && ok;
  file_ = nullptr;
  if (!ok) std::cerr << "tarvola: writing " << (name_ == "-" ? "standard output" : name_) << " failed\n";
  return ok;
}

StdoutCapture::StdoutCapture() {
  std::error_code ec;
  std::filesystem::path dir = std::filesystem::temp_directory_path(ec);
  if (ec) dir = ".";
  std::random_device seed;
  std::mt19937_64 random(seed());
  for (int attempt = 0; attempt < 10 && file_ == nullptr; ++attempt) {
    path_ = dir / ("tarvola-stdout-" + std::to_string(random()) + ".tmp");
    if (!std::filesystem::exists(path_)) file_ = std::fopen(path_.string().c_str(), "w+b");
  }
}

StdoutCapture::~StdoutCapture() {
  if (file_ == nullptr) return;
  std::fclose(file_);
  std::error_code ec;
  std::filesystem::remove(path_, ec);
}

void StdoutCapture::begin() {
  flush_standard_output();
  if (file_ == nullptr) return;
  platform::truncate_file(file_);
  saved_ = platform::dup_fd(platform::fd_of(stdout));
  platform::dup2_fd(platform::fd_of(file_), platform::fd_of(stdout));
}

std::string StdoutCapture::end() {
  flush_standard_output();
  if (file_ == nullptr) return {};
  if (saved_ >= 0) {
    platform::dup2_fd(saved_, platform::fd_of(stdout));
    platform::close_fd(saved_);
    saved_ = -1;
  }
  std::string text;
  std::fseek(file_, 0, SEEK_SET);
  char buffer[1 << 14];
  std::size_t got;
  while ((got = std::fread(buffer, 1, sizeof buffer, file_)) > 0) text.append(buffer, got);
  return text;
}

void forward_diagnostics(std::string_view text, bool verbose) {
  std::size_t at = 0;
  while (at < text.size()) {
    std::size_t nl = text.find('\n', at);
    std::size_t end = nl == std::string_view::npos ? text.size() : nl;
    std::string_view line = text.substr(at, end - at);
    at = end + 1;
    if (!verbose && (line.empty() || line == "Taulak husten...")) continue;
    std::cerr << line << "\n";
  }
}

std::FILE* open_input(const std::string& path) {
  if (path == "-") {
    platform::set_binary(stdin);
    return stdin;
  }
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) std::cerr << "tarvola: cannot read " << path << ": " << std::strerror(errno) << "\n";
  return file;
}

void close_input(std::FILE* file) {
  if (file != nullptr && file != stdin) std::fclose(file);
}

bool read_file(const std::string& path, std::string& out) {
  std::FILE* file = open_input(path);
  if (file == nullptr) return false;
  out.clear();
  char buffer[1 << 16];
  std::size_t got;
  while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) out.append(buffer, got);
  bool ok = !std::ferror(file);
  close_input(file);
  if (!ok) std::cerr << "tarvola: reading " << path << " failed\n";
  return ok;
}

bool write_file(const std::string& path, std::string_view text) {
  Output out;
  if (!out.open(path, false)) return false;
  out.write(text);
  return out.close();
}

}  // namespace tarvola_cli
