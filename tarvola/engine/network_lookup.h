// Finding a network of the engine's map by name without ever adding an
// entry (operator[] would insert a null network that every later walk of
// the map would trip over).
#ifndef TARVOLA_ENGINE_NETWORK_LOOKUP_H
#define TARVOLA_ENGINE_NETWORK_LOOKUP_H

#include <string>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/tables/Taula.h"

namespace tarvola::engine {

// The named network, or null when the map has none of that name.
inline Sarea* find_network(const SareMapa& sareak, const std::string& name) {
  auto it = sareak.find(name);
  return it == sareak.end() ? nullptr : it->second;
}

// The named network's table, or null when the network or its table is missing.
inline const Taula* find_table(const SareMapa& sareak, const std::string& name) {
  const Sarea* sarea = find_network(sareak, name);
  return sarea == nullptr ? nullptr : sarea->taula;
}

}  // namespace tarvola::engine

#endif
