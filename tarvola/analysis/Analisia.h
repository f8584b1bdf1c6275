// One reading of one word: the analysis string a table produced (lemma,
// tags in angle brackets, bracketed marks) and the pieces the rest of the
// library needs, taken apart once when the record is built.
#ifndef TARVOLA_ANALYSIS_ANALISIA_H
#define TARVOLA_ANALYSIS_ANALISIA_H

#include <string>

#include "tarvola/export.h"

namespace tarvola {

class TARVOLA_API Analisia {
 public:
  std::string analisia;  // the analysis string as given
  std::string lema;      // the lemma ("+" compound marks removed unless WEB)
  std::string etiketa;   // ordinary tags, each after one blank: " IZE ARR"
  std::string twol;      // ordinary tags, "+Ize+Arr", "h" tags left out
  std::string sarea;     // the network (or source) that produced the reading
  std::string s_balioa;  // value of the mark "[s="
  std::string h_balioa;  // value of the mark "[h="
  std::string e_balioa;  // value of the mark "[e="
  std::string tasuna;    // tags beginning with 0, each after one blank
  std::string iritzia;   // tags beginning with 1, each after one blank
  std::string forma;     // a surface form, set by generation and replacement
  int maiuskulaMota;     // 0 lower-case start, 1 initial capital, 2 all capitals

  Analisia();
  // Parses the analysis string. A tag of 99 or more bytes ends the process.
  Analisia(std::string analisia, std::string sarea);
  Analisia(const Analisia&) = default;
  Analisia& operator=(const Analisia&) = default;
  Analisia(Analisia&&) noexcept = default;
  Analisia& operator=(Analisia&&) noexcept = default;
  virtual ~Analisia();

  // True when a's lemma is shorter in bytes than b's.
  static bool CompareLemaLuzera(const Analisia& a, const Analisia& b);

 private:
  static std::string ateraEtiketa(const std::string& analisia);
  static std::string ateraTWOL(const std::string& analisia);
  static std::string ateraTasuna(const std::string& analisia);
  static std::string ateraIritzia(const std::string& analisia);
  static std::string ateraBalioa(const std::string& analisia, const std::string& gakoa);
};

}  // namespace tarvola

#endif
