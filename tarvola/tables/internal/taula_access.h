// Internal access to a table's walks for benchmarks and tests: the bare
// analysis walk (strings, no records) and whether a table is indexed.
#ifndef TARVOLA_TABLES_INTERNAL_TAULA_ACCESS_H
#define TARVOLA_TABLES_INTERNAL_TAULA_ACCESS_H

#include <string_view>

#include "tarvola/tables/Taula.h"
#include "tarvola/tables/internal/lookup_walk.h"

namespace tarvola::internal {

struct TaulaAccess {
  static bool indexed(const Taula& t) { return t.current_index() != nullptr; }
  // The analysis strings of the word, before filtering into records; with
  // `reference` the walk reads the state objects even when an index exists.
  static void walk(const Taula& t, std::string_view word, WalkResults& results,
                   bool reference = false);
  static std::vector<Analisia> generate(const Taula& t, std::string_view target,
                                        bool aurrizkia, bool reference);
};

}  // namespace tarvola::internal

#endif
