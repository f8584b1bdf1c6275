// What an engine and its copies share: the networks it loaded (each owning
// its table) and its personal dictionary. The block goes when the last
// engine holding it goes, so copies never free anything twice and nothing
// is left behind.
#ifndef TARVOLA_ENGINE_INTERNAL_ENGINE_RESOURCES_H
#define TARVOLA_ENGINE_INTERNAL_ENGINE_RESOURCES_H

#include <map>
#include <memory>
#include <string>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola::internal {

struct EngineResources {
  // By network name, like the engine's map; a later network of the same
  // name replaces (and frees) the earlier one.
  std::map<std::string, std::unique_ptr<Sarea>> networks;
  std::unique_ptr<HiztegiPertsonala> dictionary;
};

}  // namespace tarvola::internal

#endif
