// Paragraph analysis throughput: the corpus text, one paragraph a line,
// through Tarvola::analizatu_paragrafoa. "fixture" uses the small test
// networks (nearly every word unknown, so it measures the pipeline itself:
// splitting, tokenising, span lookups, fallback readings); "demo" uses the
// committed demo data set (data/demo/tarvola.conf).
#include <benchmark/benchmark.h>

#include <cstddef>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "support/engine_fixture.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"

namespace {

std::vector<std::string> corpus_paragraphs() {
  std::vector<std::string> lines;
  std::ifstream in(tarvola::testing::corpus_path("eu-ud-dev.cp1252.txt"), std::ios::binary);
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}

void BM_AnalizatuParagrafoa(benchmark::State& state, const std::string& config) {
  const std::vector<std::string> paragraphs = corpus_paragraphs();
  if (paragraphs.empty()) {
    state.SkipWithError("corpus text not found");
    return;
  }
  tarvola::testing::TempDir dir;
  auto engine = std::make_unique<tarvola::Tarvola>(
      dir.write("engine.conf", config), tarvola::testing::data_path("engine_hiztegia.txt"));

  std::size_t next = 0, tokens = 0, done = 0;
  for (auto _ : state) {
    tarvola::Paragrafoa p = engine->analizatu_paragrafoa(1, paragraphs[next]);
    for (const tarvola::Esaldia& e : p.esaldiak) tokens += e.tokenak.size();
    benchmark::DoNotOptimize(p);
    ++done;
    next = (next + 1) % paragraphs.size();
  }
  state.counters["paragraphs/s"] =
      benchmark::Counter(static_cast<double>(done), benchmark::Counter::kIsRate);
  state.counters["tokens/s"] =
      benchmark::Counter(static_cast<double>(tokens), benchmark::Counter::kIsRate);
}

BENCHMARK_CAPTURE(BM_AnalizatuParagrafoa, fixture, tarvola::testing::absolute_engine_config());
BENCHMARK_CAPTURE(BM_AnalizatuParagrafoa, demo,
                  tarvola::testing::absolute_config(TARVOLA_SOURCE_DIR "/data/demo/tarvola.conf",
                                                    TARVOLA_SOURCE_DIR "/data/demo"));

}  // namespace
