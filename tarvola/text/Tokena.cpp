#include "tarvola/text/Tokena.h"

namespace tarvola {

Tokena::Tokena() : hutsunea(false), maiuskula(false) {}

Tokena::~Tokena() = default;

}  // namespace tarvola
