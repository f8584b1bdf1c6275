// How well the suggestion search repairs one-letter slips, and how long it
// takes per word.
//
// The engine is either a real data set (--config, paths in it relative to
// the working folder) or one main network made of the corpus's own word
// list (word_table.h). Every distinct corpus word of 4 or more letters that
// the engine accepts gets one random slip (a letter deleted, inserted,
// swapped with its neighbour or replaced; fixed seed), slips that give
// another accepted word are left out, and the search is asked for the rest. Printed: the share of words whose intended spelling is among
// the suggestions (overall and per kind of slip), the mean number of
// suggestions, and the median, 90th percentile and worst time per word.
//
//   suggestion_quality [corpus-file] [max-words] [--config tarvola.conf]
//                      [--table out.txt] [--misses]
//
// --table also writes the word-list table to a file; --misses lists each
// slip whose intended word was not suggested, with what was.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "bench/word_table.h"
#include "tarvola/engine/Tarvola.h"

namespace {

using tarvola::bench::distinct_words;
using tarvola::bench::word_table;

constexpr const char* kSlipNames[] = {"deleted", "inserted", "swapped", "replaced"};
constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz";

std::string read_all(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// One slip of the given kind at a random place; "" when the word allows none.
std::string slip(const std::string& word, int kind, std::mt19937& rng) {
  auto pick = [&rng](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng); };
  auto letter = [&] { return kLetters[pick(26)]; };
  std::string out = word;
  switch (kind) {
    case 0:
      out.erase(pick(word.size()), 1);
      break;
    case 1:
      out.insert(out.begin() + static_cast<std::ptrdiff_t>(pick(word.size() + 1)), letter());
      break;
    case 2: {
      std::vector<std::size_t> places;
      for (std::size_t i = 0; i + 1 < word.size(); ++i)
        if (word[i] != word[i + 1]) places.push_back(i);
      if (places.empty()) return "";
      const std::size_t i = places[pick(places.size())];
      std::swap(out[i], out[i + 1]);
      break;
    }
    default: {
      const std::size_t i = pick(word.size());
      char c;
      do c = letter(); while (c == word[i]);
      out[i] = c;
    }
  }
  return out;
}

double percentile(std::vector<double> values, double p) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  return values[static_cast<std::size_t>(p * static_cast<double>(values.size() - 1))];
}

}  // namespace

int main(int argc, char** argv) {
  std::string corpus = std::string(TARVOLA_CORPUS_DIR) + "/eu-ud-dev.cp1252.txt";
  std::size_t max_words = 0;
  std::string table_out;
  std::string config;
  bool show_misses = false;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--table" && i + 1 < argc) table_out = argv[++i];
    else if (arg == "--config" && i + 1 < argc) config = argv[++i];
    else if (arg == "--misses") show_misses = true;
    else if (!arg.empty() && arg.find_first_not_of("0123456789") == std::string::npos) max_words = std::stoul(arg);
    else corpus = arg;
  }

  const std::string text = read_all(corpus);
  if (text.empty()) {
    std::fprintf(stderr, "suggestion_quality: cannot read %s\n", corpus.c_str());
    return 1;
  }
  const std::vector<std::string> corpus_words = distinct_words(text);
  const auto dir = std::filesystem::temp_directory_path() / "tarvola-suggestion-quality";
  std::string source = config;
  if (config.empty()) {
    const std::string table = word_table(corpus_words);
    std::filesystem::create_directories(dir);
    const std::string table_path = (dir / "eumorfo.txt").string();
    std::ofstream(table_path, std::ios::binary) << table;
    if (!table_out.empty()) std::ofstream(table_out, std::ios::binary) << table;
    config = (dir / "sareak.txt").string();
    std::ofstream(config, std::ios::binary) << table_path << "\n";
    source = "the corpus word list (" + std::to_string(table.size()) + " bytes of table)";
  }
  tarvola::Tarvola engine(config);
  std::vector<std::string> words;
  for (const std::string& word : corpus_words)
    if (word.size() >= 4 && engine.isValid(word, false)) words.push_back(word);

  std::mt19937 rng(20261123);
  std::size_t tried = 0, found = 0, real_words = 0, suggestions = 0, empty = 0;
  std::size_t tried_by[4] = {}, found_by[4] = {};
  std::vector<double> micros;
  for (const std::string& word : words) {
    if (max_words != 0 && tried == max_words) break;
    const int kind = static_cast<int>(std::uniform_int_distribution<int>(0, 3)(rng));
    const std::string typo = slip(word, kind, rng);
    if (typo.empty()) continue;
    if (engine.isValid(typo, false)) {
      ++real_words;
      continue;
    }
    const auto start = std::chrono::steady_clock::now();
    const std::vector<std::string> got = engine.lortu_ezzg_proposamenak(typo);
    const auto stop = std::chrono::steady_clock::now();
    micros.push_back(std::chrono::duration<double, std::micro>(stop - start).count());

    ++tried;
    ++tried_by[kind];
    suggestions += got.size();
    if (got.empty()) ++empty;
    if (std::find(got.begin(), got.end(), word) != got.end()) {
      ++found;
      ++found_by[kind];
    } else if (show_misses) {
      std::printf("miss %s -> %s:", word.c_str(), typo.c_str());
      for (const std::string& g : got) std::printf(" %s", g.c_str());
      std::printf("\n");
    }
  }

  auto share = [](std::size_t part, std::size_t whole) {
    return whole == 0 ? 0.0 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
  };
  std::printf("corpus %s: %zu distinct words, %zu of 4+ letters accepted by %s\n",
              corpus.c_str(), corpus_words.size(), words.size(), source.c_str());
  std::printf("misspelt words tried: %zu (slips giving another known word, left out: %zu)\n",
              tried, real_words);
  std::printf("intended word suggested: %.1f%% (%zu); no suggestion at all: %.1f%%\n",
              share(found, tried), found, share(empty, tried));
  for (int k = 0; k < 4; ++k)
    std::printf("  letter %-8s %5.1f%% of %zu\n", kSlipNames[k], share(found_by[k], tried_by[k]),
                tried_by[k]);
  std::printf("mean suggestions per word: %.2f\n",
              tried == 0 ? 0.0 : static_cast<double>(suggestions) / static_cast<double>(tried));
  std::printf("time per word: median %.0f us, 90th percentile %.0f us, worst %.0f us\n",
              percentile(micros, 0.5), percentile(micros, 0.9), percentile(micros, 1.0));
  std::error_code ignored;
  std::filesystem::remove_all(dir, ignored);
  return 0;
}
