// A state of a transducer table: its arcs in file order (the order results
// come out in) and a final flag kept for information only (finality is the
// arc numbered -1).
//
// The state owns its arcs but frees them only in deleteZubiak(); copies
// share the arc pointers.
#ifndef TARVOLA_TABLES_EGOERA_H
#define TARVOLA_TABLES_EGOERA_H

#include <string>
#include <vector>

#include "tarvola/export.h"
#include "tarvola/tables/Zubia.h"

namespace tarvola {

class TARVOLA_API Egoera {
 public:
  bool final;
  std::vector<Zubia*> zubiak;

  Egoera();
  Egoera(std::vector<Zubia*> zubiak, bool final);
  Egoera(const Egoera&) = default;
  Egoera& operator=(const Egoera&) = default;
  virtual ~Egoera();

  void addZubia(Zubia* zubia);
  // Frees every arc. The slots stay in the vector, set to null, so that a
  // second call (or a copy's) frees nothing twice.
  void deleteZubiak();
  bool hasZubia(std::string beheko) const;
  void printEgoera() const;
};

}  // namespace tarvola

#endif
