// Small build-time converter used by build-data.sh: transducer text in,
// plain table out. The same conversion is what "tarvola table import" does;
// this program exists so that the data can be built before (or without) the
// command-line tool.
//
//   import_table [--sfst] [--surface-column N] [--keep-case] [--drop]
//                [--tags MAPFILE] IN OUT
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "tarvola/tables/table_import.h"

namespace ti = tarvola::table_import;

static bool slurp(const char* path, std::string& out) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::ostringstream ss;
  ss << in.rdbuf();
  out = ss.str();
  return true;
}

int main(int argc, char** argv) {
  ti::ImportOptions opt;
  const char* paths[2] = {nullptr, nullptr};
  int n = 0;
  for (int i = 1; i < argc; ++i) {
    if (!std::strcmp(argv[i], "--sfst")) opt.format = ti::SourceFormat::Sfst;
    else if (!std::strcmp(argv[i], "--keep-case")) opt.keep_case = true;
    else if (!std::strcmp(argv[i], "--drop")) opt.drop_unrepresentable = true;
    else if (!std::strcmp(argv[i], "--surface-column") && i + 1 < argc) opt.surface_column = std::atoi(argv[++i]);
    else if (!std::strcmp(argv[i], "--tags") && i + 1 < argc) {
      std::string text;
      if (!slurp(argv[++i], text)) { std::cerr << "cannot read " << argv[i] << "\n"; return 2; }
      std::vector<ti::ImportProblem> problems;
      opt.tag_map = ti::parse_tag_map(text, true, problems);
      for (const auto& p : problems) std::cerr << argv[i] << ":" << p.line << ": " << p.message << "\n";
      if (!problems.empty()) return 1;
    } else if (n < 2) paths[n++] = argv[i];
    else { std::cerr << "usage: import_table [options] IN OUT\n"; return 2; }
  }
  if (n != 2) { std::cerr << "usage: import_table [--sfst] [--surface-column N] [--keep-case] [--drop] [--tags MAP] IN OUT\n"; return 2; }
  std::string text;
  if (!slurp(paths[0], text)) { std::cerr << "cannot read " << paths[0] << "\n"; return 2; }
  ti::ImportResult r = ti::import_table(text, opt);
  for (const auto& p : r.problems) std::cerr << paths[0] << ":" << p.line << ": " << p.message << "\n";
  if (!r.ok()) return 1;
  std::ofstream out(paths[1], std::ios::binary);
  out << r.table;
  if (!out) { std::cerr << "cannot write " << paths[1] << "\n"; return 2; }
  std::cerr << paths[1] << ": " << r.states << " states, " << r.arcs << " arcs, " << r.finals << " finals\n";
  return 0;
}
