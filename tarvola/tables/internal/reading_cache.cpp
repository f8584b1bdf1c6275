#include "tarvola/tables/internal/reading_cache.h"

#include <functional>

namespace tarvola::internal {

ReadingCache::Shard& ReadingCache::shard_of(std::string_view word) const {
  return shards_[std::hash<std::string_view>()(word) % kShards];
}

bool ReadingCache::keeps(std::string_view word) {
  return word.size() <= kLongestCachedWord && word.find(' ') == std::string_view::npos;
}

bool ReadingCache::find(std::string_view word, const std::string& network,
                        std::vector<Analisia>& out) const {
  if (!keeps(word)) return false;
  // The key is built in a buffer of the thread's own, so a hit allocates
  // nothing but the copied readings.
  thread_local std::string key;
  key.assign(word.data(), word.size());
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  auto it = shard.entries.find(key);
  if (it == shard.entries.end() || it->second.network != network) return false;
  out = it->second.readings;
  return true;
}

void ReadingCache::put(std::string_view word, const std::string& network,
                       const std::vector<Analisia>& readings) const {
  if (!keeps(word)) return;
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  // A full shard gives up one word it holds, whichever comes first: a
  // working set larger than the cache still finds most of its words.
  if (shard.entries.size() >= kEntriesPerShard) shard.entries.erase(shard.entries.begin());
  shard.entries[std::string(word)] = Entry{network, readings};
}

bool ReadingCache::find_start(std::string_view word, bool& may_begin) const {
  if (word.size() > kLongestCachedWord) return false;
  thread_local std::string key;
  key.assign(word.data(), word.size());
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  auto it = shard.starts.find(key);
  if (it == shard.starts.end()) return false;
  may_begin = it->second;
  return true;
}

void ReadingCache::put_start(std::string_view word, bool may_begin) const {
  if (word.size() > kLongestCachedWord) return;
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  if (shard.starts.size() >= kEntriesPerShard) shard.starts.erase(shard.starts.begin());
  shard.starts[std::string(word)] = may_begin;
}

std::size_t ReadingCache::size() const {
  std::size_t n = 0;
  for (Shard& shard : shards_) {
    std::lock_guard<std::mutex> lock(shard.mutex);
    n += shard.entries.size();
  }
  return n;
}

}  // namespace tarvola::internal
