// Sentence analysis: readings for every token, with multi-token units.
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "tarvola/base/tags.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/text/Esaldia.h"

namespace tarvola {

namespace {

// Longest unit tried, in tokens.
constexpr std::size_t kMaxSpan = 7;
// A candidate form takes another token only while it stays below this, and
// is cut to kMaxCandidate bytes.
constexpr std::size_t kCandidateRoom = 990;
constexpr std::size_t kMaxCandidate = 998;

// The form that tokens [first, last) spell, blanks kept between them.
std::string candidate_form(const std::vector<Tokena>& tokens, std::size_t first,
                           std::size_t last) {
  std::string form;
  for (std::size_t k = first; k < last; ++k) {
    if (form.size() + tokens[k].forma.size() < kCandidateRoom) form += tokens[k].forma;
    if (tokens[k].hutsunea) form += ' ';
  }
  if (form.size() > kMaxCandidate) form.resize(kMaxCandidate);
  if (!form.empty() && form.back() == ' ') form.pop_back();
  return form;
}

// Whether every tag of the text is short enough for the reading's parser,
// which ends the process on a longer one. Table output is the tables'
// business, but the fallback reading is built from text a user wrote.
bool tags_within_limit(const std::string& text) {
  bool ok = true;
  for (std::size_t i = text.find('<'); ok && i != std::string::npos;) {
    std::size_t end = text.find('>', i + 1);
    std::size_t stop = end == std::string::npos ? text.size() : end;
    ok = stop - i - 1 <= tags::kMaxTagLength;
    i = end == std::string::npos ? end : text.find('<', end + 1);
  }
  return ok;
}

Analisia fixed_reading(const std::string& form, const std::string& tag_text,
                       const std::string& network, const std::string& tag_list) {
  std::string text = form + tag_text;
  Analisia reading;
  if (tags_within_limit(text)) {
    reading = Analisia(text, network);
  } else {
    reading.analisia = text;
    reading.sarea = network;
  }
  reading.lema = form;
  reading.etiketa = tag_list;
  return reading;
}

// The reading a single token gets when nothing recognises it: brackets and
// angle brackets are punctuation of the main network, anything else an
// unknown form.
Analisia fallback_reading(const std::string& form) {
  if (form == "[" || form == "]") return fixed_reading(form, "<PUN><KOR>", "eumorfo", " PUN KOR");
  if (form == "<") return fixed_reading(form, "<PUN><LT>", "eumorfo", " PUN LT");
  if (form == ">") return fixed_reading(form, "<PUN><GT>", "eumorfo", " PUN GT");
  return fixed_reading(form, "<EZZG>", "", " EZZG");
}

void append(std::vector<Analisia>& to, std::vector<Analisia>&& from) {
  to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
}

// The named network when the map holds it with a table.
Sarea* usable(const SareMapa& sareak, const std::string& name) {
  auto it = sareak.find(name);
  if (it == sareak.end() || it->second == nullptr || it->second->taula == nullptr) return nullptr;
  return it->second;
}

}  // namespace

void Esaldia::analizatu(SareMapa sareak, HiztegiPertsonala& hp, bool aukera) {
  // Spans are tried from the longest down, so of two overlapping units the
  // one that starts first wins, and at one start the longest.
  for (std::size_t s = 0; s < tokenak.size(); ++s) {
    std::size_t e = tokenak.size() - s < kMaxSpan + 1 ? tokenak.size() : s + kMaxSpan;
    for (; e > s; --e) {
      const std::string form = candidate_form(tokenak, s, e);
      const std::size_t n = e - s;
      std::vector<Analisia> readings =
          analizatuTokena(sareak, hp, form, static_cast<int>(n), aukera);
      if (!readings.empty()) {
        Tokena& head = tokenak[s];
        head.forma = form;
        head.hutsunea = tokenak[e - 1].hutsunea;
        append(head.analisiak, std::move(readings));
        if (n > 1) {
          // Later tokens move down by form and blank only: the capitalisation
          // mark stays with the slot, as the renderings expect.
          for (std::size_t k = s + 1; k + n - 1 < tokenak.size(); ++k) {
            tokenak[k].forma = tokenak[k + n - 1].forma;
            tokenak[k].hutsunea = tokenak[k + n - 1].hutsunea;
          }
          tokenak.erase(tokenak.end() - static_cast<std::ptrdiff_t>(n - 1), tokenak.end());
        }
        break;
      }
      if (n == 1) {
        tokenak[s].analisiak.push_back(fallback_reading(form));
        break;
      }
    }
  }
}

std::vector<Analisia> Esaldia::analizatuTokena(const SareMapa& sareak, HiztegiPertsonala& hp,
                                               const std::string& forma, int n, bool aukera) {
  std::vector<Analisia> lista;
  const bool personal = !hp.paradigmak.empty() && n <= hp.hitzMax;
  if (aukera && personal) lista = analizatuHiztegiPertsonalean(sareak, hp, forma, lista, n);

  if (lista.empty()) {
    for (const auto& [name, sarea] : sareak) {
      if (sarea == nullptr || sarea->taula == nullptr) continue;
      const std::string& table_name = sarea->taula->sareaIzena;
      if (table_name == "hp" || table_name == "osag0" || sarea->mota < n) continue;
      append(lista, sarea->taula->analizatuTokena(forma));
    }
  }

  if (lista.empty()) {
    const Sarea* compounds = usable(sareak, "osag0");
    if (compounds != nullptr && n <= compounds->mota) {
      // Rare compounds are not offered.
      for (Analisia& reading : compounds->taula->analizatuTokena(forma))
        if (!tags::contains(reading.etiketa, "Rare")) lista.push_back(std::move(reading));
    }
  }

  if (!aukera && personal) lista = analizatuHiztegiPertsonalean(sareak, hp, forma, lista, n);
  return lista;
}

std::vector<Analisia> Esaldia::analizatuHiztegiPertsonalean(const SareMapa& sareak,
                                                            HiztegiPertsonala& hp,
                                                            const std::string& forma,
                                                            std::vector<Analisia>& lista, int n) {
  Sarea* personal = usable(sareak, "hp");
  if (personal != nullptr && !hp.paradigmak.empty() && n <= personal->mota)
    append(lista, hp.analizatu(forma, personal));
  return lista;
}

}  // namespace tarvola
