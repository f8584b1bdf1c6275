// Time to analyse and render corpus paragraphs: the correction document
// (with and without the suggestion search) and the CG3 text.
//
// The data set is the configuration given by TARVOLA_BENCH_CONFIG (default:
// the committed demo set); its table paths are relative to its folder, so
// the program works from there. Paragraphs are the lines of the prose
// corpus (TARVOLA_BENCH_CORPUS, default the project's corpus folder), cut
// to 2000 bytes.
//
//   TARVOLA_BENCH_CONFIG=data/built/tarvola.conf ./build/bench/render_bench
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "tarvola/engine/Tarvola.h"

namespace {

struct Setup {
  std::unique_ptr<tarvola::Tarvola> engine;
  std::vector<std::string> paragraphs;
};

Setup& setup() {
  static Setup s = [] {
    Setup out;
    const char* corpus_path = std::getenv("TARVOLA_BENCH_CORPUS");
    std::ifstream corpus(corpus_path ? std::string(corpus_path)
                                     : std::string(TARVOLA_CORPUS_DIR) + "/eu-ud-dev.cp1252.txt",
                         std::ios::binary);
    for (std::string line; std::getline(corpus, line);)
      if (!line.empty()) out.paragraphs.push_back(line.substr(0, 2000));
    const char* given = std::getenv("TARVOLA_BENCH_CONFIG");
    const std::filesystem::path config =
        std::filesystem::absolute(given ? given : TARVOLA_SOURCE_DIR "/data/demo/tarvola.conf");
    std::filesystem::current_path(config.parent_path());
    out.engine = std::make_unique<tarvola::Tarvola>(config.string());
    return out;
  }();
  return s;
}

bool ready(benchmark::State& state, const Setup& s) {
  if (!s.paragraphs.empty()) return true;
  state.SkipWithError("no corpus text (set TARVOLA_BENCH_CORPUS)");
  return false;
}

void BM_Brindel(benchmark::State& state) {
  Setup& s = setup();
  if (!ready(state, s)) return;
  const bool suggestions = state.range(0) != 0;
  std::size_t i = 0, bytes = 0;
  for (auto _ : state) {
    const std::string& p = s.paragraphs[i++ % s.paragraphs.size()];
    benchmark::DoNotOptimize(s.engine->getParagrafoaBrindel(p, suggestions));
    bytes += p.size();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(BM_Brindel)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_Cg3(benchmark::State& state) {
  Setup& s = setup();
  if (!ready(state, s)) return;
  std::size_t i = 0, bytes = 0;
  for (auto _ : state) {
    const std::string& p = s.paragraphs[i++ % s.paragraphs.size()];
    benchmark::DoNotOptimize(s.engine->analizatu_paragrafoa(1, p).get_CG3(true, false, false));
    bytes += p.size();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(BM_Cg3)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
