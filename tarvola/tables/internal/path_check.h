// Whether any path of a table consumes a whole word on its lower side: the
// lookup walk's paths without their outputs, filters or budgets. A word no
// path consumes has no reading, and the states a path can be in at each
// position of the word say so at a small part of the walk's cost, since the
// walk follows every output separately. The sentence analysis tries a
// multi-word span at every token, and nearly none of them is in a table.
#ifndef TARVOLA_TABLES_INTERNAL_PATH_CHECK_H
#define TARVOLA_TABLES_INTERNAL_PATH_CHECK_H

#include <string_view>

#include "tarvola/tables/internal/compact_table.h"

namespace tarvola::internal {

// `walked` is the word as the walk reads it (lower-cased, cut by walk_word).
// Whether a path consumes it and ends there, or (`prefix`) consumes it and
// may go on.
bool some_path_consumes(const CompactTable& table, std::string_view walked, bool prefix);

}  // namespace tarvola::internal

#endif
