// Inputs for the benchmarks: the corpus word stream and tables generated
// from it, so that every figure can be reproduced from the shared corpus.
#ifndef TARVOLA_BENCH_BENCH_DATA_H
#define TARVOLA_BENCH_BENCH_DATA_H

#include <string>
#include <vector>

namespace tarvola::bench {

// The words (runs of letters and digits) of the corpus files, in order, in
// code page 1252. Empty when the corpus folder is missing.
std::vector<std::string> corpus_words();

// A plain table of every distinct lower-cased corpus word as a noun lemma
// followed by a shared network of case endings: tens of thousands of states,
// the shape of a real lexicon (a lemma trie feeding an inflection network).
std::string lexicon_table_text(const std::vector<std::string>& words);

// A synthetic plain table of about `arcs` arcs.
std::string synthetic_table_text(std::size_t arcs);

// Writes text to a file under the system's temporary folder; returns its path.
std::string write_temp(const std::string& name, const std::string& text);

}  // namespace tarvola::bench

#endif
