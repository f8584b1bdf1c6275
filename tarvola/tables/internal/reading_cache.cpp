#include "tarvola/tables/internal/reading_cache.h"

#include <functional>

namespace tarvola::internal {

namespace {

// A value kept under the word in the shard's map, or null. The key is
// built in a buffer of the thread's own, so a hit allocates nothing.
template <typename Map>
const typename Map::mapped_type* kept(const Map& map, std::string_view word) {
  thread_local std::string key;
  key.assign(word.data(), word.size());
  auto it = map.find(key);
  return it == map.end() ? nullptr : &it->second;
}

// A full map gives up one word it holds, whichever comes first: a working
// set larger than the cache still finds most of its words.
template <typename Map>
void keep(Map& map, std::string_view word, typename Map::mapped_type value) {
  if (map.size() >= ReadingCache::kEntriesPerShard) map.erase(map.begin());
  map[std::string(word)] = std::move(value);
}

}  // namespace

ReadingCache::Shard& ReadingCache::shard_of(std::string_view word) const {
  return shards_[std::hash<std::string_view>()(word) % kShards];
}

bool ReadingCache::keeps(std::string_view word) {
  return word.size() <= kLongestCachedWord && word.find(' ') == std::string_view::npos;
}

bool ReadingCache::find(std::string_view word, const std::string& network,
                        std::vector<Analisia>& out) const {
  if (!keeps(word)) return false;
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  const Entry* entry = kept(shard.entries, word);
  if (entry == nullptr || entry->network != network) return false;
  out = entry->readings;
  return true;
}

void ReadingCache::put(std::string_view word, const std::string& network,
                       const std::vector<Analisia>& readings) const {
  if (!keeps(word)) return;
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  keep(shard.entries, word, Entry{network, readings});
}

bool ReadingCache::find_start(std::string_view word, bool& may_begin) const {
  if (word.size() > kLongestCachedWord) return false;
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  const bool* may = kept(shard.starts, word);
  if (may == nullptr) return false;
  may_begin = *may;
  return true;
}

void ReadingCache::put_start(std::string_view word, bool may_begin) const {
  if (word.size() > kLongestCachedWord) return;
  Shard& shard = shard_of(word);
  std::lock_guard<std::mutex> lock(shard.mutex);
  keep(shard.starts, word, may_begin);
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
