// An arc of a transducer table: the state it leads to, the upper (analysis
// side) symbol it emits and the lower (surface side) symbol it consumes.
// Target -1 marks the state that owns the arc as final; an empty lower
// symbol consumes nothing.
#ifndef TARVOLA_TABLES_ZUBIA_H
#define TARVOLA_TABLES_ZUBIA_H

#include <string>

#include "tarvola/export.h"

namespace tarvola {

class TARVOLA_API Zubia {
 public:
  int hurrengoEgoera;
  std::string goikoIkurra;
  std::string behekoIkurra;

  Zubia();
  Zubia(int hurrengoEgoera, std::string goikoIkurra, std::string behekoIkurra);
  Zubia(const Zubia&) = default;
  Zubia& operator=(const Zubia&) = default;
  ~Zubia() = default;

  // "\n   - hurrengo_egoera: N\n   - goiko_ikurra: U\n   - beheko_ikurra: L\n"
  std::string toString() const;
};

}  // namespace tarvola

#endif
