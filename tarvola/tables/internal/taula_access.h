// Internal access to a table's walks for benchmarks and tests: the bare
// analysis walk (strings, no records), whether a table is indexed, and
// indexing a table whose states were filled by hand (the fuzz harnesses load
// table text through the loader functions, without a file).
#ifndef TARVOLA_TABLES_INTERNAL_TAULA_ACCESS_H
#define TARVOLA_TABLES_INTERNAL_TAULA_ACCESS_H

#include <string_view>

#include "tarvola/tables/Taula.h"
#include "tarvola/tables/internal/lookup_walk.h"

namespace tarvola::internal {

struct TaulaAccess {
  static bool indexed(const Taula& t) { return t.current_index() != nullptr; }
  static void reindex(Taula& t) { t.reindex(); }
  // The analysis strings of the word, before filtering into records; with
  // `reference` the walk reads the state objects even when an index exists.
  static void walk(const Taula& t, std::string_view word, WalkResults& results,
                   bool reference = false);
  static std::vector<Analisia> generate(const Taula& t, std::string_view target,
                                        bool aurrizkia, bool reference);
};

}  // namespace tarvola::internal

#endif
