#include "tarvola/userdict/dictionary_file.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "tarvola/base/tags.h"

#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#endif

namespace tarvola::userdict {

std::optional<DictionaryLine> parse_line(std::string_view line) {
  if (line.size() < 2 || tags::starts_with(line, "//")) return std::nullopt;
  DictionaryLine out;
  const std::size_t lemma_end = line.find_first_of("\t|");
  out.lemma = std::string(line.substr(0, lemma_end));
  if (lemma_end != std::string_view::npos) {
    std::string_view rest = line.substr(lemma_end + 1);
    std::string* columns[] = {&out.category, &out.extra1, &out.extra2, &out.origin};
    for (std::string* column : columns) {
      const std::size_t tab = rest.find('\t');
      // The origin, last, takes whatever is left, tabs included.
      if (column == &out.origin || tab == std::string_view::npos) {
        *column = std::string(rest);
        break;
      }
      *column = std::string(rest.substr(0, tab));
      rest.remove_prefix(tab + 1);
    }
  }
  if (!tags::starts_with(out.category, "<") || !tags::ends_with(out.category, ">"))
    out.category.clear();
  return out;
}

bool for_each_line(const std::string& path,
                   const std::function<void(std::string_view)>& f) {
  std::ifstream in(path);
  if (!in) return false;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    f(line);
  }
  return true;
}

std::string appended_line(std::string_view lemma, std::string_view category,
                          std::string_view extra1, std::string_view extra2) {
  std::string line = "\n";
  line.append(lemma).append("\t").append(category);
  // Only one extra text goes into the file, the first when both are given.
  if (!extra1.empty())
    line.append("\t").append(extra1).append("\t\tHP");
  else if (!extra2.empty())
    line.append("\t\t").append(extra2).append("\tHP");
  else
    line.append("\t\t\tHP");
  return line;
}

std::string rewritten_line(std::string_view lemma, std::string_view category,
                           std::string_view extra1, std::string_view extra2) {
  std::string line = "\n";
  line.append(lemma).append("\t").append(category).append("\t").append(extra1);
  line.append("\t").append(extra2).append("\tHP");
  return line;
}

namespace {

// Pushes what the C library has buffered, then what the system has cached,
// to the disk.
bool flush_to_disk(std::FILE* f) {
  if (std::fflush(f) != 0) return false;
#ifdef _WIN32
  return _commit(_fileno(f)) == 0;
#else
  return fsync(fileno(f)) == 0;
#endif
}

bool write_all(std::FILE* f, std::string_view text) {
  return text.empty() || std::fwrite(text.data(), 1, text.size(), f) == text.size();
}

#ifdef _WIN32
int process_id() { return _getpid(); }

int open_new(const std::string& name, const std::string&) {
  return _open(name.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_TEXT, _S_IREAD | _S_IWRITE);
}

std::FILE* stream_of(int fd) { return _fdopen(fd, "w"); }
void close_descriptor(int fd) { _close(fd); }
#else
int process_id() { return static_cast<int>(getpid()); }

int open_new(const std::string& name, const std::string& target) {
  int fd = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  // The new file takes the old one's permissions and owner, as an in-place
  // rewrite would have kept them.
  struct stat old;
  if (fd >= 0 && stat(target.c_str(), &old) == 0) {
    (void)!fchmod(fd, old.st_mode & 07777);
    (void)!fchown(fd, old.st_uid, old.st_gid);
  }
  return fd;
}

std::FILE* stream_of(int fd) { return fdopen(fd, "w"); }
void close_descriptor(int fd) { close(fd); }
#endif

// Opens a new file of its own beside the target, named after it and the
// process, for writing in text mode. Exclusive creation means a leftover of
// an earlier crash, or a concurrent writer, is never written into.
std::FILE* create_temporary(const std::string& target, std::string& name) {
  for (int attempt = 0; attempt < 100; ++attempt) {
    name = target + ".tmp" + std::to_string(process_id()) + "-" + std::to_string(attempt);
    const int fd = open_new(name, target);
    if (fd < 0) {
      if (errno != EEXIST) return nullptr;
      continue;
    }
    std::FILE* f = stream_of(fd);
    if (!f) {
      close_descriptor(fd);
      std::remove(name.c_str());
    }
    return f;
  }
  return nullptr;
}

#ifndef _WIN32
// A symbolic link is kept and the file it names is replaced.
std::string resolve_link(const std::string& path) {
  char* real = realpath(path.c_str(), nullptr);
  if (!real) return path;
  std::string out(real);
  std::free(real);
  return out;
}

// Makes the rename itself durable: it lives in the directory's entries.
void sync_directory_of(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::string dir = slash == std::string::npos ? "."
                          : slash == 0                ? "/"
                                                      : path.substr(0, slash);
  int fd = open(dir.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return;
  (void)fsync(fd);
  close(fd);
}
#endif

bool rename_over(const std::string& from, const std::string& to) {
#ifdef _WIN32
  return MoveFileExA(from.c_str(), to.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
#else
  return std::rename(from.c_str(), to.c_str()) == 0;
#endif
}

}  // namespace

bool append_durably(const std::string& path, std::string_view text) {
  if (path.empty()) return false;
  std::error_code ec;
  const bool existed = std::filesystem::exists(path, ec);
  std::FILE* f = std::fopen(path.c_str(), "a");
  if (!f) return false;
  // Where the old content ends: a write that fails part way (a full disk)
  // is cut back to it, so that no half line is left behind.
  const long old_size = std::fseek(f, 0, SEEK_END) == 0 ? std::ftell(f) : -1L;
  bool written = old_size >= 0 && write_all(f, text) && flush_to_disk(f);
  written = std::fclose(f) == 0 && written;
  if (!written && old_size >= 0) {
    if (existed)
      std::filesystem::resize_file(path, static_cast<std::uintmax_t>(old_size), ec);
    else
      std::filesystem::remove(path, ec);
  }
  return written;
}

bool replace_durably(const std::string& path, std::string_view text) {
  if (path.empty()) return false;
#ifdef _WIN32
  const std::string target = path;
#else
  const std::string target = resolve_link(path);
#endif
  std::string temporary;
  std::FILE* f = create_temporary(target, temporary);
  if (!f) return false;
  bool ok = write_all(f, text) && flush_to_disk(f);
  ok = std::fclose(f) == 0 && ok;
  ok = ok && rename_over(temporary, target);
  if (!ok) {
    std::remove(temporary.c_str());
    return false;
  }
#ifndef _WIN32
  sync_directory_of(target);
#endif
  return true;
}

#ifdef _WIN32
DictionaryLock::DictionaryLock(const std::string& path) {
  const std::string name = path + ".lock";
  HANDLE h = CreateFileA(name.c_str(), GENERIC_READ | GENERIC_WRITE,
                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
  if (h == INVALID_HANDLE_VALUE) return;
  OVERLAPPED whole = {};
  if (!LockFileEx(h, LOCKFILE_EXCLUSIVE_LOCK, 0, MAXDWORD, MAXDWORD, &whole)) {
    CloseHandle(h);
    return;
  }
  handle_ = h;
  held_ = true;
}

DictionaryLock::~DictionaryLock() {
  if (!handle_) return;
  OVERLAPPED whole = {};
  UnlockFileEx(static_cast<HANDLE>(handle_), 0, MAXDWORD, MAXDWORD, &whole);
  CloseHandle(static_cast<HANDLE>(handle_));
}
#else
DictionaryLock::DictionaryLock(const std::string& path) {
  const std::string name = path + ".lock";
  fd_ = open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (fd_ < 0) return;
  int r;
  do {
    r = flock(fd_, LOCK_EX);
  } while (r != 0 && errno == EINTR);
  if (r != 0) {
    close(fd_);
    fd_ = -1;
    return;
  }
  held_ = true;
}

DictionaryLock::~DictionaryLock() {
  if (fd_ >= 0) close(fd_);  // closing releases the lock
}
#endif

}  // namespace tarvola::userdict
