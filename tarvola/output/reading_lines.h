// Pieces shared by the line-oriented renderings of an analysed paragraph
// (CG3 cohorts and Multext lines): the sentence header, the mark values of
// a reading, and the merging of duplicate readings.
//
// Both renderings print each distinct reading of a token once, in byte
// order of its printed text, with the mark values of every duplicate
// gathered behind it; so readings are collected in an ordered map from the
// printed reading to its gathered attribute text before anything is written.
#ifndef TARVOLA_OUTPUT_READING_LINES_H
#define TARVOLA_OUTPUT_READING_LINES_H

#include <map>
#include <ostream>
#include <string>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/text/Esaldia.h"

namespace tarvola::output {

// Printed reading -> attribute texts of all its copies, in byte order.
using ReadingMap = std::map<std::string, std::string>;

// Writes "{p=<paragraph> s=<sentence>[ z=<glued>]}", where <glued> lists the
// 1-based positions of the tokens with no blank after them, comma-separated.
// Nothing follows the closing brace.
void write_sentence_header(std::ostream& out, int paragraph, std::size_t sentence,
                           const Esaldia& esaldia);

// "<s=X h=Y e=Z>" with only the marks that have a value, or "" when none has.
std::string mark_attributes(const Analisia& a);

// Adds a reading: a new key maps to its attributes, a repeated key gets them
// appended to the ones already gathered.
void add_reading(ReadingMap& readings, std::string key, const std::string& attributes);

// " HAS_MAI" / " DEN_MAI" (CG3) or "+Has_mai" / "+Den_mai" (Multext) for an
// initial capital (1) or all capitals (2); nothing otherwise.
const char* capital_suffix(const Analisia& a, bool two_level);

}  // namespace tarvola::output

#endif
