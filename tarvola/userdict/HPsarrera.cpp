#include "tarvola/userdict/HPsarrera.h"

#include <cstdio>
#include <utility>

namespace tarvola {

HPsarrera::HPsarrera() = default;

HPsarrera::HPsarrera(std::string lema_, std::string kategoria_, std::string forma_,
                     std::string osagarria1_, std::string osagarria2_,
                     std::string jatorria_, std::string paradigma_)
    : lema(std::move(lema_)),
      kategoria(std::move(kategoria_)),
      forma(std::move(forma_)),
      osagarria1(std::move(osagarria1_)),
      osagarria2(std::move(osagarria2_)),
      jatorria(std::move(jatorria_)),
      paradigma(std::move(paradigma_)) {}

HPsarrera::~HPsarrera() = default;

void HPsarrera::print() const {
  std::string line = lema + " | " + kategoria + " | " + forma + " | " + osagarria1 +
                     " | " + osagarria2 + " | " + jatorria + " | " + paradigma + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
}

}  // namespace tarvola
