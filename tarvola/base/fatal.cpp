#include "tarvola/base/fatal.h"

#include <cstdio>
#include <cstdlib>

namespace tarvola {

void fatal_exit(std::string_view message) {
  std::fwrite(message.data(), 1, message.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(nullptr);
  std::exit(1);
}

}  // namespace tarvola
