#include "tarvola/output/multext_writer.h"

#include <iostream>
#include <string>

#include "tarvola/output/reading_lines.h"

namespace tarvola::output {

namespace {

void write_token(std::ostream& out, const Tokena& token, const char* position,
                 bool atributuak) {
  out << token.forma << '\t' << position << '\t';

  ReadingMap readings;
  for (const Analisia& a : token.analisiak) {
    // A lemma spelled exactly like the form is written "=".
    std::string key = a.lema == token.forma ? std::string("=") : a.lema;
    key += '\\';
    key += a.twol;
    key += capital_suffix(a, true);
    add_reading(readings, std::move(key), atributuak ? mark_attributes(a) : std::string());
  }

  const char* separator = "";
  for (const auto& [key, attributes] : readings) {
    out << separator << key << attributes;
    separator = "|";
  }
  out << std::endl;
}

}  // namespace

void write_multext(std::ostream& out, const Paragrafoa& paragrafoa, bool atributuak) {
  std::size_t sentence = 0;
  for (const Esaldia& esaldia : paragrafoa.esaldiak) {
    write_sentence_header(out, paragrafoa.id, ++sentence, esaldia);
    out << "\tEOS" << std::endl;
    const std::size_t count = esaldia.tokenak.size();
    for (std::size_t k = 0; k < count; ++k) {
      // A sentence of one token marks it as the beginning only.
      const char* position = k == 0 ? "BOS" : (k + 1 == count ? "EOS" : "");
      write_token(out, esaldia.tokenak[k], position, atributuak);
    }
  }
  out << std::endl << std::endl;
}

}  // namespace tarvola::output

namespace tarvola {

// The second and third flags are part of the interface but select nothing.
void Paragrafoa::print_Multext(bool atributuak, bool, bool) const {
  output::write_multext(std::cout, *this, atributuak);
}

}  // namespace tarvola
