// A progress line on standard error for long inputs, only when standard
// error is a terminal; nothing otherwise.
#ifndef TARVOLA_CLI_COMMON_PROGRESS_H
#define TARVOLA_CLI_COMMON_PROGRESS_H

#include <chrono>
#include <cstddef>

namespace tarvola_cli {

class Progress {
 public:
  Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  // Called once per item with the running totals; redraws at most twice a
  // second.
  void update(std::size_t items, std::size_t bytes);

 private:
  bool enabled_;
  bool drawn_ = false;
  unsigned calls_ = 0;
  std::chrono::steady_clock::time_point start_, last_;
};

}  // namespace tarvola_cli

#endif
