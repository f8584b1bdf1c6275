// The readings a table keeps by word: a repeated lookup gives exactly what
// the first did, follows a change of the network name and of the table,
// and the number of words kept stays bounded.
#include <gtest/gtest.h>

#include <string>

#include "support/chain_tables.h"
#include "support/readings.h"
#include "support/test_files.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/internal/compact_table.h"
#include "tarvola/tables/internal/taula_access.h"

namespace tarvola {
namespace {

using internal::ReadingCache;

TEST(ReadingCache, RepeatsAreTheFirstLookupAndFollowTheTable) {
  Taula nouns(testing::data_path("tables/nouns.txt"));
  for (const char* word : {"etxeak", "Etxeak", "ETXEAK", "Bilbo", "xyz"}) {
    const std::vector<Analisia> first = nouns.analizatuTokena(word);
    const std::vector<Analisia> again = nouns.analizatuTokena(word);
    ASSERT_EQ(testing::analyses(again), testing::analyses(first)) << word;
    for (std::size_t i = 0; i < first.size(); ++i) EXPECT_EQ(again[i].maiuskulaMota, first[i].maiuskulaMota);
  }
  nouns.sareaIzena = "izenak";
  EXPECT_EQ(nouns.analizatuTokena("etxeak").at(0).sarea, "izenak");
  // A changed table is indexed afresh: nothing found before is served.
  nouns.addZubiaTaulan(0, false, new Zubia());
  EXPECT_EQ(testing::analyses(nouns.analizatuTokena("etxeak")).size(), 2u);
}

// A multi-word span whose first word and blank no path spells is answered
// without a walk: the answers are still the walk's, in any capitalisation.
TEST(ReadingCache, SpansAsTheWalkFindsThem) {
  testing::TempDir dir;
  Taula t(dir.write("spansPG.txt", testing::chain_table({testing::word_path("hitz egin"),
                                                         testing::word_path("hitz"),
                                                         testing::word_path("etxe")})));
  for (const char* span : {"hitz egin", "Hitz egin", "hitz egin", "hitz ekin", "etxe egin", "hitz egin ",
                           "hitz  egin", "x y"}) {
    internal::WalkResults walked;
    internal::TaulaAccess::walk(t, span, walked, /*reference=*/true);
    EXPECT_EQ(testing::analyses(t.analizatuTokena(span)).size(), walked.size()) << span;
  }
  EXPECT_EQ(t.analizatuTokena("hitz egin").size(), 1u);
}

TEST(ReadingCache, Bounded) {
  ReadingCache cache;
  const std::vector<Analisia> none;
  for (int i = 0; i < 40000; ++i) cache.put("w" + std::to_string(i), "n", none);
  EXPECT_LE(cache.size(), ReadingCache::kShards * ReadingCache::kEntriesPerShard);
  cache.put(std::string(ReadingCache::kLongestCachedWord + 1, 'a'), "n", none);
  std::vector<Analisia> out;
  EXPECT_FALSE(cache.find(std::string(ReadingCache::kLongestCachedWord + 1, 'a'), "n", out));
  cache.put("etxe", "n", none);
  EXPECT_TRUE(cache.find("etxe", "n", out));
  EXPECT_FALSE(cache.find("etxe", "m", out));
}

}  // namespace
}  // namespace tarvola
