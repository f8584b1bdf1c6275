// A loaded table is read without locking by any number of threads, and
// engines may be built side by side. Run under ThreadSanitizer
// (-DTARVOLA_SANITIZE=thread) these tests also show that no write races a
// read; in a normal build they check that every thread sees exactly the
// single-threaded results.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "support/engine_fixture.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/tables/Taula.h"

namespace tarvola {
namespace {

constexpr int kThreads = 8;

// One line per reading: analysis, capitalisation kind, and the surface form
// generation gives.
std::string flatten(const std::vector<Analisia>& readings) {
  std::string out;
  for (const Analisia& a : readings)
    out += a.analisia + "|" + std::to_string(a.maiuskulaMota) + "|" + a.forma + "\n";
  return out;
}

// Distinct words of the code page 1252 prose, or the fixture words when the
// corpus is missing.
std::vector<std::string> test_words() {
  std::vector<std::string> words = testing::corpus_words("eu-ud-dev.cp1252.txt", 3000);
  if (words.empty())
    words = {"etxea", "Etxean", "ETXEA", "gizonarekin", "etxezulo", "hala", "ez", "bai", "xyzw"};
  return words;
}

struct Job {
  std::string word;
  std::string readings;  // the lookup's results
  std::string lemma, tags;
  std::string generated;  // generation from the word's first reading
};

std::vector<Job> single_threaded(const Taula& table, const std::vector<std::string>& words) {
  std::vector<Job> jobs;
  for (const std::string& w : words) {
    Job job;
    job.word = w;
    std::vector<Analisia> readings = table.analizatuTokena(w);
    job.readings = flatten(readings);
    if (!readings.empty()) {
      job.lemma = readings.front().lema;
      const std::string& a = readings.front().analisia;
      job.tags = a.substr(std::min(a.find('<'), a.size()));
      job.generated = flatten(table.sortuFormak(job.lemma, job.tags, false, false));
    }
    jobs.push_back(std::move(job));
  }
  return jobs;
}

TEST(Concurrency, OneTableManyReaders) {
  const Taula table(testing::data_path("../../data/demo/eumorfoPG.txt"));
  ASSERT_FALSE(table.egoerak.empty());
  const std::vector<Job> expected = single_threaded(table, test_words());
  std::size_t known = 0, generated = 0;
  for (const Job& job : expected) {
    known += !job.readings.empty();
    generated += !job.generated.empty();
  }
  ASSERT_GT(known, 0u);
  ASSERT_GT(generated, 0u);

  std::atomic<std::size_t> mismatches{0};
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&, t] {
      // Each thread starts at its own place, so that different words are
      // walked at the same moment.
      for (std::size_t i = 0; i < expected.size(); ++i) {
        const Job& job = expected[(i + static_cast<std::size_t>(t) * 97) % expected.size()];
        if (flatten(table.analizatuTokena(job.word)) != job.readings) ++mismatches;
        if (!job.lemma.empty() &&
            flatten(table.sortuFormak(job.lemma, job.tags, false, false)) != job.generated)
          ++mismatches;
      }
    });
  }
  for (std::thread& t : threads) t.join();
  EXPECT_EQ(mismatches.load(), 0u);
}

TEST(Concurrency, TwoEnginesBuiltAtOnce) {
  testing::TempDir dir;
  const std::string config = testing::fixture_config(dir);
  const std::string dictionary = testing::data_path("engine_hiztegia.txt");
  const std::string text = "Kaixo! Etxean, hala ere, ez. Getxon bai etxezulo.";

  ::testing::internal::CaptureStdout();
  const auto alone = testing::paragraph_readings(Tarvola(config, dictionary).analizatu_paragrafoa(1, text));
  testing::Strings results[2];
  {
    std::thread threads[2];
    for (int i = 0; i < 2; ++i)
      threads[i] = std::thread([&, i] {
        Tarvola engine(config, dictionary);
        results[i] = testing::paragraph_readings(engine.analizatu_paragrafoa(1, text));
      });
    for (std::thread& t : threads) t.join();
  }
  ::testing::internal::GetCapturedStdout();

  ASSERT_FALSE(alone.empty());
  EXPECT_EQ(results[0], alone);
  EXPECT_EQ(results[1], alone);
}

}  // namespace
}  // namespace tarvola
