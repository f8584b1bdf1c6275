// Readings already found, by word. A lookup's readings depend only on the
// table, the word and the network name copied into each reading, and
// running text repeats a few thousand words over and over: a repeated word
// is served from here instead of walking the table again.
//
// Bounded (a full shard drops a word for each new one, so memory stays flat
// on any input: about 20 MB at most for the main network) and
// safe from several threads at once: one loaded table serves every engine
// copy. Words longer than kLongestCachedWord are not kept, nor the
// multi-word spans the sentence analysis tries at every token (few repeat);
// what is kept for them is whether a span may begin with a word at all.
#ifndef TARVOLA_TABLES_INTERNAL_READING_CACHE_H
#define TARVOLA_TABLES_INTERNAL_READING_CACHE_H

#include <array>
#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tarvola/analysis/Analisia.h"

namespace tarvola::internal {

class ReadingCache {
 public:
  static constexpr std::size_t kShards = 16;
  static constexpr std::size_t kEntriesPerShard = 2048;
  static constexpr std::size_t kLongestCachedWord = 64;

  // The readings kept for the word under the network name; false when none.
  bool find(std::string_view word, const std::string& network, std::vector<Analisia>& out) const;
  void put(std::string_view word, const std::string& network, const std::vector<Analisia>& readings) const;
  // Whether a multi-word span may begin with the word and a blank, as
  // found before; false when not known yet.
  bool find_start(std::string_view word, bool& may_begin) const;
  void put_start(std::string_view word, bool may_begin) const;

  // How many words are kept now (tests).
  std::size_t size() const;
  // Whether a word is one that is kept.
  static bool keeps(std::string_view word);

 private:
  struct Entry {
    std::string network;
    std::vector<Analisia> readings;
  };
  struct Shard {
    std::mutex mutex;
    std::unordered_map<std::string, Entry> entries;
    std::unordered_map<std::string, bool> starts;
  };
  Shard& shard_of(std::string_view word) const;

  mutable std::array<Shard, kShards> shards_;
};

}  // namespace tarvola::internal

#endif
