#include "tarvola/tables/Egoera.h"

#include <cstdio>
#include <utility>

namespace tarvola {

Egoera::Egoera() : final(false) {}

Egoera::Egoera(std::vector<Zubia*> zubiak, bool final)
    : final(final), zubiak(std::move(zubiak)) {}

Egoera::~Egoera() = default;

void Egoera::addZubia(Zubia* zubia) { zubiak.push_back(zubia); }

void Egoera::deleteZubiak() {
  for (Zubia*& z : zubiak) {
    delete z;
    z = nullptr;
  }
}

bool Egoera::hasZubia(std::string beheko) const {
  for (const Zubia* z : zubiak)
    if (z && z->behekoIkurra == beheko) return true;
  return false;
}

void Egoera::printEgoera() const {
  std::printf("\n\nfinal: %d, zubiak: %zu\n", final ? 1 : 0, zubiak.size());
  int count = 0;
  for (const Zubia* z : zubiak) {
    ++count;
    if (!z) continue;
    std::string text = z->toString();
    std::printf("  %d. zubia:", count);
    std::fwrite(text.data(), 1, text.size(), stdout);
  }
}

}  // namespace tarvola
