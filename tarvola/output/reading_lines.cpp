#include "tarvola/output/reading_lines.h"

#include <utility>

namespace tarvola::output {

void write_sentence_header(std::ostream& out, int paragraph, std::size_t sentence,
                           const Esaldia& esaldia) {
  out << "{p=" << paragraph << " s=" << sentence;
  const char* separator = " z=";
  for (std::size_t k = 0; k < esaldia.tokenak.size(); ++k) {
    if (esaldia.tokenak[k].hutsunea) continue;
    out << separator << k + 1;
    separator = ",";
  }
  out << '}';
}

std::string mark_attributes(const Analisia& a) {
  std::string text;
  auto add = [&text](const char* key, const std::string& value) {
    if (value.empty()) return;
    text += text.empty() ? "<" : " ";
    text += key;
    text += value;
  };
  add("s=", a.s_balioa);
  add("h=", a.h_balioa);
  add("e=", a.e_balioa);
  if (!text.empty()) text += '>';
  return text;
}

void add_reading(ReadingMap& readings, std::string key, const std::string& attributes) {
  auto [it, inserted] = readings.try_emplace(std::move(key), attributes);
  if (!inserted) it->second += attributes;
}

const char* capital_suffix(const Analisia& a, bool two_level) {
  if (a.maiuskulaMota == 1) return two_level ? "+Has_mai" : " HAS_MAI";
  if (a.maiuskulaMota == 2) return two_level ? "+Den_mai" : " DEN_MAI";
  return "";
}

}  // namespace tarvola::output
