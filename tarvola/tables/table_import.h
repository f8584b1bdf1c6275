// Turns transducers written by the finite-state toolkits into the library's
// plain table text.
//
// Accepted input:
//   - AT&T text ("src<TAB>dst<TAB>in<TAB>out[<TAB>weight]" arcs, "state
//     [<TAB>weight]" finals) as hfst-fst2txt and foma's "write att" print it,
//     and as lt-print prints it, where several sections separated by "--"
//     lines are joined under a new start state;
//   - SFST's fst-print output (same columns, "<>" for epsilon, backslash
//     escapes such as "\:").
// The start state is the source state of the first arc line of each section
// (every one of these tools numbers it 0).
//
// Output: one line per arc "src<TAB>upper:lower<TAB>dst" and "final<TAB>n"
// after the arcs of a final state, states in ascending order, with the
// states that lead to no final state left out and the rest renumbered
// densely. The loader counts states from the last line, so the highest
// state always has a line of its own.
//
// The loader's line grammar cannot carry everything a toolkit can: a symbol
// field of 99 or more bytes, an upper symbol with a colon in it, a literal
// "<>" on the surface side, a tab, a character outside code page 1252, a
// toolkit special such as an identity symbol or a flag diacritic, or a cycle
// of arcs that consume nothing on the surface (lookup would never end).
// Every such case is reported with its input line; by default nothing is
// written then, with drop_unrepresentable the offending arcs are left out
// (still reported) and the rest of the table is written.
#ifndef TARVOLA_TABLES_TABLE_IMPORT_H
#define TARVOLA_TABLES_TABLE_IMPORT_H

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tarvola/export.h"

namespace tarvola::table_import {

enum class SourceFormat { Att, Sfst };

struct ImportOptions {
  SourceFormat format = SourceFormat::Att;
  // Which column (3 or 4, counting from 1) holds the surface side. 0 picks
  // by the source: 3 for lt-print's text (recognised by its "ε" epsilons or
  // "--" section lines), 4 otherwise (hfst, foma and SFST put the analysis
  // on the upper, left side).
  int surface_column = 0;
  // Lookup walks the lower-cased word, so surface symbols are lower-cased
  // unless this is set.
  bool keep_case = false;
  // Input is UTF-8 and is converted to code page 1252; when false it is
  // taken as code page 1252 already.
  bool utf8_input = true;
  // Leave out arcs the table format cannot carry instead of failing.
  bool drop_unrepresentable = false;
  // Whole analysis-side symbols renamed (see parse_tag_map); an empty
  // replacement deletes the symbol (the arc then emits nothing).
  std::map<std::string, std::string> tag_map;
};

struct ImportProblem {
  std::size_t line = 0;  // 1-based input line, 0 when it concerns no line
  std::string message;
};

struct ImportResult {
  std::string table;  // the plain table text; empty when not ok()
  std::vector<ImportProblem> problems;
  std::size_t states = 0;
  std::size_t arcs = 0;
  std::size_t finals = 0;
  bool written = false;
  bool ok() const { return written; }
};

// Converts transducer text to the plain table text.
TARVOLA_API ImportResult import_table(std::string_view text, const ImportOptions& options);

// Reads a tag map: one rename a line, "FROM<TAB>TO" (TO may be empty);
// blank lines and lines beginning with "#" are skipped. Malformed lines are
// added to problems. The text is taken as UTF-8 when utf8 is set.
TARVOLA_API std::map<std::string, std::string> parse_tag_map(std::string_view text, bool utf8,
                                                             std::vector<ImportProblem>& problems);

// UTF-8 to code page 1252. False (and out unspecified) when the text is not
// valid UTF-8 or holds a character the code page lacks.
TARVOLA_API bool utf8_to_cp1252(std::string_view text, std::string& out);
// Code page 1252 to UTF-8; the five bytes the code page leaves undefined are
// passed through as the C1 controls of the same value.
TARVOLA_API std::string cp1252_to_utf8(std::string_view text);

}  // namespace tarvola::table_import

#endif
