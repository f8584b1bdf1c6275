// Table loading and lookup throughput.
//   loading:   a synthetic table of about one million arcs, both passes
//   lookup:    the corpus word stream through Taula::analizatuTokena (its
//              words repeat, as in running text: mostly served from the
//              table's reading cache)
//   walk:      the same stream through the bare walk (no records built, no
//              cache: what every distinct word costs)
// Both on the built Basque main network (build/data/built/eumorfoPG.txt)
// when it is there, else on a lexicon table generated from the corpus.
#include <benchmark/benchmark.h>

#include <fstream>

#include "bench_data.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/internal/taula_access.h"

namespace tarvola::bench {
namespace {

void BM_LoadMillionArcs(benchmark::State& state) {
  const std::size_t arcs = 1000000;
  const std::string path = write_temp("tarvola-bench-million.txt", synthetic_table_text(arcs));
  for (auto _ : state) {
    Taula t(path);
    benchmark::DoNotOptimize(t.egoerak.data());
  }
  state.counters["arcs/s"] =
      benchmark::Counter(static_cast<double>(arcs), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_LoadMillionArcs)->Unit(benchmark::kMillisecond)->MinTime(3.0);

std::string lexicon_path(const std::vector<std::string>& words) {
  const std::string built = TARVOLA_BUILT_DATA_DIR "/eumorfoPG.txt";
  if (std::ifstream(built).good()) return built;
  return write_temp("tarvola-bench-lexicon.txt", lexicon_table_text(words));
}

struct Lexicon {
  std::vector<std::string> words = corpus_words();
  Taula table{lexicon_path(words)};
};
const Lexicon& lexicon() {
  static const Lexicon instance;
  return instance;
}

void BM_LookupCorpusWords(benchmark::State& state) {
  const Lexicon& lex = lexicon();
  if (lex.words.empty()) return state.SkipWithError("corpus folder missing");
  std::size_t readings = 0;
  for (auto _ : state)
    for (const std::string& w : lex.words) readings += lex.table.analizatuTokena(w).size();
  state.counters["words/s"] = benchmark::Counter(static_cast<double>(lex.words.size()),
                                                 benchmark::Counter::kIsIterationInvariantRate);
  state.counters["states"] = static_cast<double>(lex.table.egoerak.size());
  state.counters["readings/word"] =
      static_cast<double>(readings) / static_cast<double>(lex.words.size() * state.iterations());
}
BENCHMARK(BM_LookupCorpusWords)->Unit(benchmark::kMillisecond);

void BM_WalkCorpusWords(benchmark::State& state) {
  const Lexicon& lex = lexicon();
  if (lex.words.empty()) return state.SkipWithError("corpus folder missing");
  internal::WalkResults results;
  for (auto _ : state) {
    for (const std::string& w : lex.words) {
      results.clear();
      internal::TaulaAccess::walk(lex.table, w, results);
    }
    benchmark::DoNotOptimize(results.text.data());
  }
  state.counters["words/s"] = benchmark::Counter(static_cast<double>(lex.words.size()),
                                                 benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_WalkCorpusWords)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvola::bench
