// Time to analyse and render corpus paragraphs: the correction document
// (with and without the suggestion search) and the CG3 text.
//
// The data set is the configuration given by TARVOLA_BENCH_CONFIG (default:
// the committed demo set), its table paths taken relative to its folder.
// Paragraphs are the lines of the prose corpus, cut to 2000 bytes.
//
//   TARVOLA_BENCH_CONFIG=data/built/tarvola.conf ./build/bench/render_bench
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "support/engine_fixture.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"

namespace {

struct Setup {
  tarvola::testing::TempDir dir;
  std::unique_ptr<tarvola::Tarvola> engine;
  std::vector<std::string> paragraphs;
};

Setup& setup() {
  static Setup s;
  if (s.engine) return s;
  std::ifstream corpus(tarvola::testing::corpus_path("eu-ud-dev.cp1252.txt"), std::ios::binary);
  for (std::string line; std::getline(corpus, line);)
    if (!line.empty()) s.paragraphs.push_back(line.substr(0, 2000));
  const char* given = std::getenv("TARVOLA_BENCH_CONFIG");
  const std::filesystem::path config =
      std::filesystem::absolute(given ? given : TARVOLA_SOURCE_DIR "/data/demo/tarvola.conf");
  s.engine = std::make_unique<tarvola::Tarvola>(s.dir.write(
      "engine.conf",
      tarvola::testing::absolute_config(config.string(), config.parent_path().string())));
  return s;
}

bool ready(benchmark::State& state, const Setup& s) {
  if (!s.paragraphs.empty()) return true;
  state.SkipWithError("corpus text not found");
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
