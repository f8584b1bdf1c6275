// Where the tool's bytes go.
//
// The library writes diagnostics to the process's standard output. Before a
// subcommand runs, route_stdout() keeps a private copy of the real standard
// output for results and points descriptor 1 at standard error, so whatever
// the library prints can never mix with results. Around engine construction
// and destruction, and around the renderings that print, StdoutCapture
// points descriptor 1 at a temporary file instead and hands back the text.
#ifndef TARVOLA_CLI_COMMON_IO_H
#define TARVOLA_CLI_COMMON_IO_H

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarvola_cli {

// Keeps the real standard output for results; descriptor 1 then leads to
// standard error. Call once, after argument parsing (help texts go to the
// real standard output).
void route_stdout();

// The results stream: the real standard output ("-") or a file.
class Output {
 public:
  Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output();

  // False (message printed) when the file cannot be created.
  bool open(const std::string& path, bool unbuffered);
  void write(std::string_view text) { std::fwrite(text.data(), 1, text.size(), file_); }
  // One item is complete: flushed at once in unbuffered mode.
  void end_item() {
    if (unbuffered_) std::fflush(file_);
  }
  // Flushes; false (message printed) when writing failed.
  bool close();

 private:
  std::FILE* file_ = nullptr;
  std::string name_;
  bool owned_ = false;
  bool unbuffered_ = false;
};

// Runs f with descriptor 1 pointed at a temporary file and returns what was
// written to it.
class StdoutCapture {
 public:
  StdoutCapture();
  StdoutCapture(const StdoutCapture&) = delete;
  StdoutCapture& operator=(const StdoutCapture&) = delete;
  ~StdoutCapture();

  bool ok() const { return file_ != nullptr; }
  template <typename F>
  std::string run(F&& f) {
    begin();
    f();
    return end();
  }

 private:
  void begin();
  std::string end();

  std::FILE* file_ = nullptr;
  std::filesystem::path path_;
  int saved_ = -1;
};

// Forwards library diagnostics to standard error, leaving out the routine
// ones (empty lines, "Taulak husten...") unless `verbose`.
void forward_diagnostics(std::string_view text, bool verbose);

// Opens an input file ("-" is standard input) in binary mode; null with a
// message naming the file when it cannot be opened.
std::FILE* open_input(const std::string& path);
void close_input(std::FILE* file);

// Reads a whole file; false with a message naming it on failure.
bool read_file(const std::string& path, std::string& out);
// Writes a whole file; false with a message naming it on failure.
bool write_file(const std::string& path, std::string_view text);

}  // namespace tarvola_cli

#endif
