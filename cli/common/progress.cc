#include "common/progress.h"

#include <cstdio>

#include "common/platform.h"

namespace tarvola_cli {

Progress::Progress()
    : enabled_(platform::is_terminal(stderr)),
      start_(std::chrono::steady_clock::now()),
      last_(start_) {}

Progress::~Progress() {
  if (drawn_) std::fputs("\r\033[K", stderr);
}

void Progress::update(std::size_t items, std::size_t bytes) {
  if (!enabled_ || (++calls_ & 63) != 0) return;
  auto now = std::chrono::steady_clock::now();
  if (now - last_ < std::chrono::milliseconds(500)) return;
  last_ = now;
  double seconds = std::chrono::duration<double>(now - start_).count();
  std::fprintf(stderr, "\r\033[K%zu items, %.1f MB, %.1f MB/s", items, bytes / 1e6,
               seconds > 0 ? bytes / 1e6 / seconds : 0.0);
  drawn_ = true;
}

}  // namespace tarvola_cli
