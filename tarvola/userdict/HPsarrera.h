// An entry of the personal dictionary: a user entry (what the user added)
// or a paradigm entry (a stem form and the inflection class it takes).
#ifndef TARVOLA_USERDICT_HPSARRERA_H
#define TARVOLA_USERDICT_HPSARRERA_H

#include <string>

#include "tarvola/export.h"

namespace tarvola {

class TARVOLA_API HPsarrera {
 public:
  std::string lema;
  std::string kategoria;
  std::string forma;
  std::string osagarria1;
  std::string osagarria2;
  std::string jatorria;
  std::string paradigma;

  HPsarrera();
  HPsarrera(std::string lema, std::string kategoria, std::string forma,
            std::string osagarria1, std::string osagarria2,
            std::string jatorria, std::string paradigma);
  HPsarrera(const HPsarrera&) = default;
  HPsarrera& operator=(const HPsarrera&) = default;
  virtual ~HPsarrera();

  // The seven fields separated by " | ", then a line end, on standard output.
  void print() const;
};

}  // namespace tarvola

#endif
