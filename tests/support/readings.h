// Readings flattened to strings, so that a test compares a whole list in
// one line, and tables built arc by arc for walks no file can express
// (shared states, cycles, arcs past the end).
#ifndef TARVOLA_TESTS_SUPPORT_READINGS_H
#define TARVOLA_TESTS_SUPPORT_READINGS_H

#include <cstdio>
#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/internal/taula_access.h"
#include "tarvola/text/Paragrafoa.h"

namespace tarvola::testing {

using Strings = std::vector<std::string>;

inline Strings analyses(const std::vector<Analisia>& readings) {
  Strings out;
  for (const Analisia& a : readings) out.push_back(a.analisia);
  return out;
}

// "network:analysis" for each reading, in order.
inline Strings sourced(const std::vector<Analisia>& readings) {
  Strings out;
  for (const Analisia& a : readings) out.push_back(a.sarea + ":" + a.analisia);
  return out;
}

// The generated surface forms, in order.
inline Strings forms(const std::vector<Analisia>& readings) {
  Strings out;
  for (const Analisia& a : readings) out.push_back(a.forma);
  return out;
}

// "form network:analysis capitals" for every reading of a paragraph.
inline Strings paragraph_readings(const Paragrafoa& p) {
  Strings out;
  for (const Esaldia& s : p.esaldiak)
    for (const Tokena& t : s.tokenak)
      for (const Analisia& a : t.analisiak)
        out.push_back(t.forma + " " + a.sarea + ":" + a.analisia + " " + std::to_string(a.maiuskulaMota));
  return out;
}

// The bare analysis strings of a walk over the table, before they are
// filtered into records; `reference` reads the state objects even when an
// index exists.
inline Strings walked(const Taula& t, const std::string& word, bool reference = false) {
  internal::WalkResults results;
  internal::TaulaAccess::walk(t, word, results, reference);
  Strings out;
  for (std::size_t i = 0; i < results.size(); ++i) out.emplace_back(results[i]);
  return out;
}

// Lines "src symbol target" or "final N"; a symbol "up:low" splits into its
// sides, "_" standing for an empty one. No index is built.
inline Taula hand_table(const Strings& lines, int states) {
  Taula t("hand", states);
  for (const std::string& line : lines) {
    char symbol[64];
    int a = 0, b = 0;
    if (std::sscanf(line.c_str(), "final %d", &a) == 1) {
      t.addZubiaTaulan(a, true, new Zubia(-1, "", ""));
    } else if (std::sscanf(line.c_str(), "%d %63s %d", &a, symbol, &b) == 3) {
      std::string s = symbol, up = s, low = s;
      if (auto colon = s.find(':'); colon != std::string::npos && s.size() > 1) {
        up = s.substr(0, colon);
        low = s.substr(colon + 1);
      }
      t.addZubiaTaulan(a, false, new Zubia(b, up == "_" ? "" : up, low == "_" ? "" : low));
    }
  }
  return t;
}

}  // namespace tarvola::testing

#endif
