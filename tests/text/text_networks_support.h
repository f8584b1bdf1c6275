// Networks for the text pipeline tests, built straight from the engine
// fixture tables without an engine.
#ifndef TARVOLA_TESTS_TEXT_TEXT_NETWORKS_SUPPORT_H
#define TARVOLA_TESTS_TEXT_TEXT_NETWORKS_SUPPORT_H

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "support/engine_fixture.h"
#include "support/readings.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/text/Esaldia.h"

namespace tarvola::testing {

class Networks {
 public:
  // Each name loads tables/engine/<name>.txt.
  Networks(std::initializer_list<const char*> names) {
    for (const char* name : names) {
      std::string path = engine_table(std::string(name) + ".txt");
      owned_.push_back(std::make_unique<Sarea>(name, path, new Taula(path)));
      map_[name] = owned_.back().get();
    }
  }
  const SareMapa& map() const { return map_; }

 private:
  std::vector<std::unique_ptr<Sarea>> owned_;
  SareMapa map_;
};

inline std::vector<std::string> token_forms(const Esaldia& esaldia) {
  std::vector<std::string> out;
  for (const Tokena& t : esaldia.tokenak) out.push_back(t.forma);
  return out;
}

inline std::vector<std::string> readings_of(const Tokena& token) { return analyses(token.analisiak); }

}  // namespace tarvola::testing

#endif
