#include "tarvola/tables/Taula.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "tarvola/base/fatal.h"
#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"
#include "tarvola/tables/cipher.h"
#include "tarvola/tables/internal/arc_sources.h"
#include "tarvola/tables/internal/compact_table.h"
#include "tarvola/tables/internal/generate_walk.h"
#include "tarvola/tables/internal/lookup_walk.h"
#include "tarvola/tables/internal/path_check.h"
#include "tarvola/tables/internal/taula_access.h"
#include "tarvola/tables/table_text.h"

namespace tarvola {

namespace {

constexpr std::size_t kMaxPath = 9999;

// Reads a whole file; false when it cannot be opened. A file that opens but
// cannot be read (a directory) reads as empty, as a line reader sees it.
bool read_file(const std::string& path, std::string& out) {
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) return false;
  char buffer[1 << 16];
  std::size_t n;
  while ((n = std::fread(buffer, 1, sizeof buffer, f)) > 0) out.append(buffer, n);
  std::fclose(f);
  return true;
}

std::string c_path(const std::string& name) {
  return name.substr(0, std::min(name.find('\0'), kMaxPath));
}

// Turns a loader's report into the table's fixed reactions.
void react(const table_text::LoadReport& report, const std::string& path) {
  using table_text::LoadReport;
  switch (report.problem) {
    case LoadReport::kNone:
      return;
    case LoadReport::kFieldTooLong:
      fatal_exit("[" + path + " ]  " + std::to_string(report.line) +
                 ". lerroko eremua luzeegia da (98 karaktere gehienez)");
    case LoadReport::kLineTooLong:
      fatal_exit("[" + path + " ]  " + std::to_string(report.line) +
                 ". lerroa luzeegia da (2221 karaktere gehienez)");
    case LoadReport::kTooManyStates:
      std::printf("[%s ]  egoera kopurua okerra: %ld\n", path.c_str(), report.states);
      return;
  }
}

std::string without_empty_tags(std::string tags) {
  for (std::size_t at; (at = tags.find("<>")) != std::string::npos;) tags.erase(at, 2);
  return tags;
}

}  // namespace

Taula::Taula() : holders_(std::make_shared<int>(0)) {}

Taula::Taula(std::string izena_) : izena(std::move(izena_)), holders_(std::make_shared<int>(0)) {
  kargatu();
}

Taula::Taula(std::string izena_, int egoeraKopurua)
    : izena(std::move(izena_)), holders_(std::make_shared<int>(0)) {
  if (egoeraKopurua > 0) egoerak.assign(static_cast<std::size_t>(egoeraKopurua), nullptr);
}

Taula::Taula(const Taula& other)
    : izena(other.izena),
      egoerak(other.egoerak),
      sareaIzena(other.sareaIzena),
      holders_(other.holders_),
      index_(other.index_) {}

Taula& Taula::operator=(const Taula& other) {
  if (this != &other) {
    release();
    izena = other.izena;
    egoerak = other.egoerak;
    sareaIzena = other.sareaIzena;
    holders_ = other.holders_;
    index_ = other.index_;
  }
  return *this;
}

Taula::~Taula() { release(); }

void Taula::release() {
  if (holders_ && holders_.use_count() == 1) deleteEgoerak();
  holders_.reset();
}

void Taula::kargatu() {
  if (tags::contains(izena, "SARE8"))
    kargatu_enkriptatua();
  else
    kargatu_taula();
}

void Taula::kargatu_taula() {
  const std::string path = c_path(izena);
  std::string text;
  if (!read_file(path, text)) {
    std::printf("[%s ]  kontatzeko taula ezin da ireki!", path.c_str());
    std::printf("%s ez da existitzen.\n", path.c_str());
    std::fflush(nullptr);
    std::exit(0);
  }
  react(table_text::load_plain(text, egoerak), path);
  reindex();
}

void Taula::kargatu_enkriptatua() {
  const std::string path = c_path(izena);
  std::string stored;
  if (!read_file(path, stored)) return;
  const std::string text = cipher::decipher(stored);
  stored.clear();
  react(table_text::load_deciphered(text, egoerak), path);
  reindex();
}

void Taula::reindex() {
  auto index = std::make_shared<internal::CompactTable>(egoerak);
  if (index->ok())
    index_ = std::move(index);
  else
    index_.reset();
}

const internal::CompactTable* Taula::current_index() const {
  const internal::CompactTable* index = index_.get();
  if (!index || index->source_data() != egoerak.data() || index->source_size() != egoerak.size())
    return nullptr;
  return index;
}

void Taula::addEgoera(Egoera* egoera) {
  index_.reset();
  egoerak.push_back(egoera);
}

void Taula::addZubiaTaulan(int n, bool final, Zubia* zubia) {
  if (n < 0) {
    delete zubia;
    return;
  }
  index_.reset();
  if (static_cast<std::size_t>(n) >= egoerak.size()) egoerak.resize(static_cast<std::size_t>(n) + 1, nullptr);
  Egoera*& state = egoerak[static_cast<std::size_t>(n)];
  if (!state) state = new Egoera();
  state->final = final;
  state->zubiak.push_back(zubia);
}

void Taula::deleteEgoerak() {
  index_.reset();
  for (Egoera*& state : egoerak) {
    if (!state) continue;
    state->deleteZubiak();
    delete state;
    state = nullptr;
  }
}

void Taula::printTaula() const {
  std::printf("Guztira %zu egoera\n", egoerak.size());
  for (const Egoera* state : egoerak)
    if (state) state->printEgoera();
}

void Taula::printEgoera(int n) const {
  if (n >= 0 && static_cast<std::size_t>(n) < egoerak.size() && egoerak[static_cast<std::size_t>(n)])
    egoerak[static_cast<std::size_t>(n)]->printEgoera();
}

namespace {

// False for a multi-word span whose first word and blank no path of the
// table spells: it has no reading, and finding that once for each first
// word spares the walk for every span the sentence analysis tries there.
bool may_begin_span(const internal::CompactTable& index, std::string_view word) {
  const std::size_t blank = word.find(' ');
  if (blank == std::string_view::npos) return true;
  const std::string_view first = word.substr(0, blank + 1);
  bool may = true;
  if (index.cache().find_start(first, may)) return may;
  may = internal::some_path_begins(index, latin1::lowered(first));
  index.cache().put_start(first, may);
  return may;
}

}  // namespace

std::vector<Analisia> Taula::analizatuTokena(std::string hitza) const {
  const std::string_view word = internal::walk_word(hitza);
  const internal::CompactTable* index = current_index();
  std::vector<Analisia> out;
  if (index && index->cache().find(word, sareaIzena, out)) return out;
  if (index && !may_begin_span(*index, word)) return out;
  internal::WalkResults found;
  internal::TaulaAccess::walk(*this, word, found);

  // Capitalisation kind of the word: 0 lower-case start, 1 initial capital
  // (or a first byte case does not touch), 2 nothing to upper-case.
  int kind = 0;
  if (word.empty() || latin1::to_upper(word[0]) == word[0]) kind = latin1::is_all_upper(word) ? 2 : 1;

  out.reserve(found.size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    Analisia reading(std::string(found[i]), sareaIzena);
    reading.maiuskulaMota = kind;
    // A reading whose non-standard mark names the word itself is dropped.
    std::string_view prefix = word.substr(0, reading.lema.size());
    if (!prefix.empty() && (prefix == reading.e_balioa || prefix == reading.h_balioa)) continue;
    out.push_back(std::move(reading));
  }
  if (index) index->cache().put(word, sareaIzena, out);
  return out;
}

std::vector<Analisia> Taula::sortuFormak(std::string lema, std::string etiketak, bool aurrizkia,
                                         bool /*bigarrena: accepted, decides nothing*/) const {
  std::string target = lema + without_empty_tags(std::move(etiketak));
  target = target.substr(0, std::min(target.find('\0'), internal::kMaxTarget));
  return internal::TaulaAccess::generate(*this, target, aurrizkia, false);
}

namespace internal {

void TaulaAccess::walk(const Taula& t, std::string_view word, WalkResults& results, bool reference) {
  const CompactTable* index = reference ? nullptr : t.current_index();
  if (index) {
    IndexSource source(*index);
    LookupWalk<IndexSource>(source, word, results).run();
  } else {
    ObjectSource source(t.egoerak);
    LookupWalk<ObjectSource>(source, word, results).run();
  }
}

std::vector<Analisia> TaulaAccess::generate(const Taula& t, std::string_view target,
                                            bool aurrizkia, bool reference) {
  std::vector<Analisia> results;
  const CompactTable* index = reference ? nullptr : t.current_index();
  if (index) {
    IndexSource source(*index);
    GenerateWalk<IndexSource>(source, target, aurrizkia, t.sareaIzena, results).run();
  } else {
    ObjectSource source(t.egoerak);
    GenerateWalk<ObjectSource>(source, target, aurrizkia, t.sareaIzena, results).run();
  }
  return results;
}

void copy_capitals(std::string_view upper, std::string& surface) {
  for (std::size_t i = 0; i < upper.size() && i < surface.size() && upper[i] != '<'; ++i)
    if (latin1::is_ascii_upper(upper[i]) && surface[i] == latin1::to_lower(upper[i]))
      surface[i] = upper[i];
}

}  // namespace internal

}  // namespace tarvola
