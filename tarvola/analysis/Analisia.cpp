#include "tarvola/analysis/Analisia.h"

#include <utility>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"

namespace tarvola {

namespace {

bool is_hp(std::string_view tag) { return tags::starts_with(tag, "hp"); }

// Appends " tag" for each tag the predicate keeps.
template <typename Keep>
std::string collect(const std::string& s, Keep keep) {
  std::string out;
  tags::for_each_tag(s, [&](std::string_view tag) {
    if (!keep(tag)) return;
    out += ' ';
    out.append(tag);
  });
  return out;
}

}  // namespace

Analisia::Analisia() : maiuskulaMota(0) {}

Analisia::Analisia(std::string analisia_, std::string sarea_)
    : analisia(std::move(analisia_)), maiuskulaMota(0) {
  lema = ateraBalioa(analisia, "L");
  etiketa = ateraEtiketa(analisia);
  twol = ateraTWOL(analisia);
  if (lema.size() >= 2 && tags::contains(lema, "+") && !tags::contains(etiketa, "WEB")) {
    std::string joined;
    joined.reserve(lema.size());
    for (char c : lema)
      if (c != '+') joined += c;
    lema = std::move(joined);
  }
  tasuna = ateraTasuna(analisia);
  iritzia = ateraIritzia(analisia);
  s_balioa = ateraBalioa(analisia, "[s=");
  h_balioa = ateraBalioa(analisia, "[h=");
  e_balioa = ateraBalioa(analisia, "[e=");
  sarea = std::move(sarea_);
}

Analisia::~Analisia() = default;

bool Analisia::CompareLemaLuzera(const Analisia& a, const Analisia& b) {
  return a.lema.size() < b.lema.size();
}

std::string Analisia::ateraEtiketa(const std::string& s) {
  return collect(s, [](std::string_view t) {
    return (t.empty() || (t[0] != '0' && t[0] != '1')) && !is_hp(t);
  });
}

std::string Analisia::ateraTasuna(const std::string& s) {
  return collect(s, [](std::string_view t) { return !t.empty() && t[0] == '0'; });
}

std::string Analisia::ateraIritzia(const std::string& s) {
  return collect(s, [](std::string_view t) { return !t.empty() && t[0] == '1'; });
}

std::string Analisia::ateraTWOL(const std::string& s) {
  std::string out;
  tags::for_each_tag(s, [&](std::string_view t) {
    if (t.empty() || t[0] == '0' || t[0] == '1' || t[0] == 'h') return;
    out += '+';
    out += latin1::to_upper(t[0]);
    for (std::size_t i = 1; i < t.size(); ++i) out += latin1::to_lower(t[i]);
  });
  return out;
}

std::string Analisia::ateraBalioa(const std::string& s, const std::string& gakoa) {
  if (gakoa == "L") return tags::lemma_of(s);
  return tags::mark_value(s, gakoa);
}

}  // namespace tarvola
