// Shared pieces of the fuzz harnesses: recognising the inputs that end the
// process on purpose (so that a harness skips them instead of reporting a
// crash), and exercising a loaded table with a few fixed words.
#ifndef TARVOLA_FUZZ_FUZZ_SUPPORT_H
#define TARVOLA_FUZZ_FUZZ_SUPPORT_H

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tarvola/base/tags.h"
#include "tarvola/tables/Egoera.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/internal/lookup_walk.h"
#include "tarvola/tables/internal/taula_access.h"

namespace tarvola::fuzz {

// Stops the run with a message libFuzzer keeps beside the crashing input.
[[noreturn]] inline void fail(const char* what) {
  std::fprintf(stderr, "tarvola fuzz check failed: %s\n", what);
  std::abort();
}

// Whether every tag of the text (tags::for_each_tag's reading) is short
// enough for the analysis parser, which ends the process on a longer one.
inline bool tags_fit(std::string_view text) {
  for (std::size_t i = text.find('<'); i != std::string_view::npos;) {
    std::size_t end = text.find('>', i + 1);
    std::size_t stop = end == std::string_view::npos ? text.size() : end;
    if (stop - i - 1 > tags::kMaxTagLength) return false;
    i = end == std::string_view::npos ? end : text.find('<', end + 1);
  }
  return true;
}

// Where a tag scan stands after reading some text: -1 outside a tag, k >= 0
// inside a tag whose text so far has k bytes. Reading more text maps a
// larger position to a larger or equal one, so the largest position a state
// can be reached in bounds every tag a path through it can spell.
inline int tag_position_after(int position, std::string_view text) {
  for (char c : text) {
    if (position < 0)
      position = c == '<' ? 0 : -1;
    else
      position = c == '>' ? -1 : position + 1;
    if (position > static_cast<int>(tags::kMaxTagLength)) return position;
  }
  return position;
}

// Whether no path from state 0 can spell, on the analysis side, a tag too
// long for the parser: lookup and generation turn the upper sides of a path
// into analysis strings. Generation leaves some upper sides unspelled ("<>"
// and a symbol whose second byte is "0" or "1"), so both readings of such an
// arc are followed. Positions only grow and are capped, so the fixed point
// is reached in a bounded number of rounds.
inline bool table_tags_fit(const std::vector<Egoera*>& states) {
  const int cap = static_cast<int>(tags::kMaxTagLength) + 1;
  std::vector<int> reached(states.size(), -2);  // -2: not reached
  std::vector<std::size_t> work;
  if (states.empty()) return true;
  reached[0] = -1;
  work.push_back(0);
  while (!work.empty()) {
    std::size_t s = work.back();
    work.pop_back();
    if (!states[s]) continue;
    for (const Zubia* arc : states[s]->zubiak) {
      if (!arc) continue;
      const std::string& up = arc->goikoIkurra;
      int position = tag_position_after(reached[s], up);
      if (position >= cap) return false;
      if (up == "<>" || (up.size() >= 2 && (up[1] == '0' || up[1] == '1')))
        position = std::max(position, reached[s]);
      if (arc->hurrengoEgoera < 0 || static_cast<std::size_t>(arc->hurrengoEgoera) >= states.size())
        continue;
      int& target = reached[static_cast<std::size_t>(arc->hurrengoEgoera)];
      if (position > target) {
        target = position;
        work.push_back(static_cast<std::size_t>(arc->hurrengoEgoera));
      }
    }
  }
  return true;
}

// Frees states a loader filled when no table takes them over.
inline void free_states(std::vector<Egoera*>& states) {
  for (Egoera* state : states) {
    if (state) state->deleteZubiak();
    delete state;
  }
  states.clear();
}

// Takes the loaded states into a table, indexes it and runs fixed lookups
// and a generation: the indexed walk must give what the walk over the state
// objects gives, and every reading must come out whole. A table can drive
// every walk to its step budget, so each input runs two words and one
// generation target, picked by `choice`, to stay well under a second under
// the sanitizers.
inline void exercise_table(std::vector<Egoera*>&& states, std::size_t choice) {
  Taula table;
  table.egoerak = std::move(states);
  table.sareaIzena = "fuzz";
  if (!table_tags_fit(table.egoerak)) return;  // the table's owner would end the process
  internal::TaulaAccess::reindex(table);

  static const char* const kOtherWords[] = {"ETXEA", "gizon\361a", "Etxean"};
  for (const char* word : {"etxea", kOtherWords[choice % 3]}) {
    internal::WalkResults indexed, reference;
    internal::TaulaAccess::walk(table, word, indexed, false);
    internal::TaulaAccess::walk(table, word, reference, true);
    // The index skips branches that cannot consume the next letter, so the
    // object walk may reach its step budget sooner: up to where the shorter
    // one stopped, both must give the same readings in the same order.
    const internal::WalkResults& shorter = indexed.size() < reference.size() ? indexed : reference;
    const internal::WalkResults& longer = indexed.size() < reference.size() ? reference : indexed;
    for (std::size_t i = 0; i < shorter.size(); ++i)
      if (shorter[i] != longer[i]) fail("indexed and object lookups differ");
    std::vector<Analisia> readings = table.analizatuTokena(word);
    if (readings.size() > indexed.size()) fail("more readings than walk results");
  }

  struct Target {
    const char* lemma;
    const char* tags;
    bool prefix;
  };
  static const Target kTargets[] = {{"etxe", "<IZE><ARR><ABS><NUMS><MUGM>", false},
                                    {"ba", "<AUR><IZE>", true}};
  const Target& t = kTargets[choice / 3 % 2];
  for (const Analisia& a : table.sortuFormak(t.lemma, t.tags, t.prefix, false))
    if (a.sarea != "fuzz") fail("generated reading without its network");
}

}  // namespace tarvola::fuzz

#endif
