#include "tarvola/userdict/HiztegiPertsonala.h"

#include <algorithm>
#include <memory>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"
#include "tarvola/userdict/dictionary_file.h"
#include "tarvola/userdict/paradigms.h"
#include "tarvola/userdict/verb_stems.h"

// Ownership: the dictionary owns every entry in its two containers. A copy
// gets entries of its own (a deep copy), so adding to or removing from one
// copy never frees what another still holds, and each entry is freed
// exactly once: when it is removed, or with its dictionary. An entry that a
// caller put into both containers, or twice into one, is still freed once.

namespace tarvola {

namespace {

// Frees each entry once, paradigm entries first.
void free_all(std::vector<HPsarrera*>& users, std::map<std::string, HPsarrera*>& paradigms) {
  std::unordered_set<HPsarrera*> freed;
  auto release = [&](HPsarrera* e) {
    if (e && freed.insert(e).second) delete e;
  };
  for (auto& kv : paradigms) release(kv.second);
  for (HPsarrera* e : users) release(e);
  paradigms.clear();
  users.clear();
}

// Frees the removed entries that the containers no longer hold.
void free_removed(const std::vector<HPsarrera*>& removed,
                  const std::vector<HPsarrera*>& users,
                  const std::map<std::string, HPsarrera*>& paradigms) {
  if (removed.empty()) return;
  std::unordered_set<HPsarrera*> held(users.begin(), users.end());
  for (const auto& kv : paradigms) held.insert(kv.second);
  std::unordered_set<HPsarrera*> freed;
  for (HPsarrera* e : removed)
    if (e && !held.count(e) && freed.insert(e).second) delete e;
}

// Everything gehitu_sarrera does after its duplicate test: the file line,
// the user entry, the paradigm entries.
void add_word(HiztegiPertsonala& hp, bool write, const std::string& lemma,
              const std::string& category, const std::string& extra1,
              const std::string& extra2, const std::string& origin) {
  if (write)
    userdict::append_durably(hp.fitxategia,
                             userdict::appended_line(lemma, category, extra1, extra2));

  auto user = std::make_unique<HPsarrera>(lemma, category, "", extra1, extra2, "HP", "");
  hp.sarrerak.push_back(user.get());
  user.release();

  // The first entry made under a key keeps it; later ones are dropped.
  for (userdict::ParadigmRow& row : userdict::paradigm_rows(lemma, category)) {
    std::string key = latin1::lowered(row.form);
    if (hp.paradigmak.count(key)) continue;
    auto entry = std::make_unique<HPsarrera>(std::move(row.lemma), std::move(row.tag),
                                             std::move(row.form), extra1, extra2, origin,
                                             std::move(row.klass));
    hp.paradigmak.emplace(std::move(key), entry.get());
    entry.release();
  }
}

}  // namespace

HiztegiPertsonala::HiztegiPertsonala() : luzeraMin(0), hitzMax(0) {}

HiztegiPertsonala::HiztegiPertsonala(const std::string& fitxategia_)
    : fitxategia(fitxategia_), luzeraMin(0), hitzMax(0) {
  try {
    kargatu_fitxategia();
  } catch (...) {
    free_all(sarrerak, paradigmak);
    throw;
  }
}

HiztegiPertsonala::HiztegiPertsonala(const HiztegiPertsonala& other)
    : fitxategia(other.fitxategia), luzeraMin(other.luzeraMin), hitzMax(other.hitzMax) {
  // Aliases among the source's pointers are kept among the clones.
  std::unordered_map<const HPsarrera*, HPsarrera*> clones;
  auto clone = [&](const HPsarrera* e) -> HPsarrera* {
    if (!e) return nullptr;
    auto found = clones.find(e);
    if (found != clones.end()) return found->second;
    auto copy = std::make_unique<HPsarrera>(*e);
    clones.emplace(e, copy.get());
    return copy.release();
  };
  try {
    sarrerak.reserve(other.sarrerak.size());
    for (const HPsarrera* e : other.sarrerak) sarrerak.push_back(clone(e));
    for (const auto& kv : other.paradigmak)
      paradigmak.emplace_hint(paradigmak.end(), kv.first, clone(kv.second));
  } catch (...) {
    // A clone not yet in a container is freed here; the rest by free_all.
    std::unordered_set<HPsarrera*> placed(sarrerak.begin(), sarrerak.end());
    for (const auto& kv : paradigmak) placed.insert(kv.second);
    for (const auto& kv : clones)
      if (!placed.count(kv.second)) delete kv.second;
    free_all(sarrerak, paradigmak);
    throw;
  }
}

HiztegiPertsonala& HiztegiPertsonala::operator=(const HiztegiPertsonala& other) {
  if (this == &other) return *this;
  HiztegiPertsonala copy(other);
  std::swap(fitxategia, copy.fitxategia);
  std::swap(sarrerak, copy.sarrerak);
  std::swap(paradigmak, copy.paradigmak);
  std::swap(luzeraMin, copy.luzeraMin);
  std::swap(hitzMax, copy.hitzMax);
  return *this;
}

HiztegiPertsonala::~HiztegiPertsonala() { free_all(sarrerak, paradigmak); }

void HiztegiPertsonala::gehitu_sarrera(bool idatzi, const std::string& lema,
                                       const std::string& kategoria,
                                       const std::string& osagarria1,
                                       const std::string& osagarria2,
                                       const std::string& jatorria) {
  for (const HPsarrera* e : sarrerak)
    if (e && e->lema == lema && e->kategoria == kategoria) return;
  add_word(*this, idatzi, lema, kategoria, osagarria1, osagarria2, jatorria);
}

void HiztegiPertsonala::kendu_sarrera(bool idatzi, const std::string& lema,
                                      const std::string& kategoria) {
  std::vector<HPsarrera*> removed;
  // User entries: exact lemma and category. Order of the rest is kept.
  auto keep_end = std::stable_partition(sarrerak.begin(), sarrerak.end(), [&](HPsarrera* e) {
    return !(e && e->lema == lema && e->kategoria == kategoria);
  });
  removed.assign(keep_end, sarrerak.end());
  sarrerak.erase(keep_end, sarrerak.end());

  // Paradigm entries: exact lemma, the category anywhere in the paradigm tag
  // ("<ARR>" takes "<IZE><ARR>"; an empty category takes every tag).
  for (auto it = paradigmak.begin(); it != paradigmak.end();) {
    HPsarrera* e = it->second;
    if (e && e->lema == lema && tags::contains(e->kategoria, kategoria)) {
      removed.push_back(e);
      it = paradigmak.erase(it);
    } else {
      ++it;
    }
  }
  free_removed(removed, sarrerak, paradigmak);

  if (!idatzi) return;
  std::string text;
  for (const HPsarrera* e : sarrerak)
    if (e) text += userdict::rewritten_line(e->lema, e->kategoria, e->osagarria1, e->osagarria2);
  text += '\n';
  userdict::replace_durably(fitxategia, text);
}

void HiztegiPertsonala::kargatu_fitxategia() {
  luzeraMin = 10000;
  // Loading starts from an empty dictionary, so the duplicate test can use
  // a set of the words read so far instead of walking every entry.
  std::set<std::pair<std::string, std::string>> seen;
  userdict::for_each_line(fitxategia, [&](std::string_view text) {
    std::optional<userdict::DictionaryLine> line = userdict::parse_line(text);
    if (!line || line->lemma.size() < 2 || line->category.empty()) return;
    if (seen.emplace(line->lemma, line->category).second)
      add_word(*this, false, line->lemma, line->category, line->extra1, line->extra2,
               line->origin);
    const auto words = std::count(line->lemma.begin(), line->lemma.end(), ' ') + 1;
    if (words > hitzMax) hitzMax = static_cast<int>(words);
    if (line->lemma.size() < static_cast<std::size_t>(luzeraMin))
      luzeraMin = static_cast<int>(line->lemma.size());
  });
}

std::string HiztegiPertsonala::lortuAdoin(const std::string& lema) {
  return userdict::verb_stem(lema);
}

std::string HiztegiPertsonala::lortuAditzizen(const std::string& lema) {
  return userdict::verbal_noun(lema);
}

}  // namespace tarvola
