#include "common/platform.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

#include <filesystem>
#include <system_error>

namespace tarvola_cli::platform {

#ifdef _WIN32

int fd_of(std::FILE* file) { return _fileno(file); }
int dup_fd(int fd) { return _dup(fd); }
bool dup2_fd(int from, int to) { return _dup2(from, to) == 0; }
void close_fd(int fd) { _close(fd); }
std::FILE* open_fd(int fd, const char* mode) { return _fdopen(fd, mode); }
void set_binary(std::FILE* file) { _setmode(_fileno(file), _O_BINARY); }
bool is_terminal(std::FILE* file) { return _isatty(_fileno(file)) != 0; }
bool truncate_file(std::FILE* file) {
  std::fflush(file);
  return _chsize(_fileno(file), 0) == 0 && std::fseek(file, 0, SEEK_SET) == 0;
}
std::string executable_path() {
  wchar_t buffer[32768];
  DWORD n = GetModuleFileNameW(nullptr, buffer, sizeof buffer / sizeof buffer[0]);
  if (n == 0 || n >= sizeof buffer / sizeof buffer[0]) return {};
  return std::filesystem::path(std::wstring(buffer, n)).u8string();
}

#else

int fd_of(std::FILE* file) { return fileno(file); }
int dup_fd(int fd) { return dup(fd); }
bool dup2_fd(int from, int to) { return dup2(from, to) >= 0; }
void close_fd(int fd) { close(fd); }
std::FILE* open_fd(int fd, const char* mode) { return fdopen(fd, mode); }
void set_binary(std::FILE*) {}
bool is_terminal(std::FILE* file) { return isatty(fileno(file)) != 0; }
bool truncate_file(std::FILE* file) {
  std::fflush(file);
  return ftruncate(fileno(file), 0) == 0 && std::fseek(file, 0, SEEK_SET) == 0;
}
std::string executable_path() {
  std::error_code ec;
  auto p = std::filesystem::read_symlink("/proc/self/exe", ec);
  return ec ? std::string() : p.string();
}

#endif

}  // namespace tarvola_cli::platform
