// Whether any path of a table begins by spelling a text on its lower side:
// the lookup walk's paths without their outputs, filters or budgets. A word
// no path begins with has no reading, and the states a path can be in at
// each position say so at a small part of the walk's cost, since the walk
// follows every output separately. The sentence analysis tries a
// multi-word span at every token, and nearly none of them is in a table.
#ifndef TARVOLA_TABLES_INTERNAL_PATH_CHECK_H
#define TARVOLA_TABLES_INTERNAL_PATH_CHECK_H

#include <string_view>

#include "tarvola/tables/internal/compact_table.h"

namespace tarvola::internal {

// `walked` is the text as the walk reads it (lower-cased, cut by
// walk_word). A path whose last symbol runs past the end counts.
bool some_path_begins(const CompactTable& table, std::string_view walked);

}  // namespace tarvola::internal

#endif
