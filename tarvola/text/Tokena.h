// A token of a sentence: its form as written, whether a blank followed it,
// its capitalisation mark and, after analysis, its readings.
#ifndef TARVOLA_TEXT_TOKENA_H
#define TARVOLA_TEXT_TOKENA_H

#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/export.h"

namespace tarvola {

class TARVOLA_API Tokena {
 public:
  std::string forma;
  bool hutsunea;
  bool maiuskula;
  std::vector<Analisia> analisiak;

  Tokena();
  Tokena(const Tokena&) = default;
  Tokena& operator=(const Tokena&) = default;
  Tokena(Tokena&&) noexcept = default;
  Tokena& operator=(Tokena&&) noexcept = default;
  virtual ~Tokena();
};

}  // namespace tarvola

#endif
