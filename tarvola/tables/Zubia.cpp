#include "tarvola/tables/Zubia.h"

#include <utility>

namespace tarvola {

Zubia::Zubia() : hurrengoEgoera(0) {}

Zubia::Zubia(int hurrengoEgoera, std::string goikoIkurra, std::string behekoIkurra)
    : hurrengoEgoera(hurrengoEgoera),
      goikoIkurra(std::move(goikoIkurra)),
      behekoIkurra(std::move(behekoIkurra)) {}

std::string Zubia::toString() const {
  std::string out = "\n   - hurrengo_egoera: ";
  out += std::to_string(hurrengoEgoera);
  out += "\n   - goiko_ikurra: ";
  out += goikoIkurra;
  out += "\n   - beheko_ikurra: ";
  out += behekoIkurra;
  out += '\n';
  return out;
}

}  // namespace tarvola
