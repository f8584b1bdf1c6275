#include "tarvola/output/cg3_writer.h"

#include <sstream>
#include <string>

#include "tarvola/output/reading_lines.h"

namespace tarvola::output {

namespace {

constexpr const char* kBoundaryCohort = "\"<EBUK>\"\n\t\"EBUK\" EBUK\n";
constexpr const char* kIdMark = "<id=";

void write_cohort(std::ostream& out, const Tokena& token, bool atributuak) {
  // Word cohorts put the angle brackets outside the quotes, unlike the
  // boundary cohorts; consumers of this output expect exactly that.
  out << "<\"" << token.forma << "\">\n";

  ReadingMap readings;
  for (const Analisia& a : token.analisiak) {
    std::string key = "\t\"" + a.lema + "\" <id=>" + a.etiketa + capital_suffix(a, false);
    std::string attributes;
    if (atributuak) {
      attributes = mark_attributes(a);
      if (!attributes.empty()) attributes.insert(0, 1, ' ');
    }
    add_reading(readings, std::move(key), attributes);
  }

  // The number goes into the first "<id=" of the key, so readings are
  // numbered in the order they are printed.
  int number = 0;
  for (const auto& [key, attributes] : readings) {
    const std::size_t mark = key.find(kIdMark);
    const std::size_t after = mark + 4;
    out.write(key.data(), static_cast<std::streamsize>(after));
    out << ++number;
    out.write(key.data() + after, static_cast<std::streamsize>(key.size() - after));
    out << attributes << '\n';
  }
}

}  // namespace

void write_cg3(std::ostream& out, const Paragrafoa& paragrafoa, bool atributuak) {
  std::size_t sentence = 0;
  for (const Esaldia& esaldia : paragrafoa.esaldiak) {
    write_sentence_header(out, paragrafoa.id, ++sentence, esaldia);
    out << '\n' << kBoundaryCohort;
    for (const Tokena& token : esaldia.tokenak) write_cohort(out, token, atributuak);
    out << kBoundaryCohort;
  }
}

}  // namespace tarvola::output

namespace tarvola {

// The second and third flags are part of the interface but select nothing.
std::string Paragrafoa::get_CG3(bool atributuak, bool, bool) const {
  std::ostringstream out;
  output::write_cg3(out, *this, atributuak);
  return out.str();
}

}  // namespace tarvola
