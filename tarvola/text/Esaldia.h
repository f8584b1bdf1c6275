// A sentence: its text (leading blanks and tabs removed) and its tokens.
//
// tokenizatu cuts the text in one left-to-right pass:
//   - a blank (byte 32) ends the pending word and marks the token before it
//     as followed by a blank; tabs and other bytes never separate tokens;
//   - each punctuation byte (latin1::is_punctuation) is a token of its own,
//     except a period after a digit that is not the text's last byte, which
//     is dropped as an ordinal mark ("1990. urtean" -> "1990", "urtean");
//   - a word runs over word characters and anything else that is neither a
//     blank nor punctuation; a period stays inside it unless a blank,
//     punctuation or the end follows the period ("3.5", "etab.etab");
//   - a word starting "http", "ftp", "sftp" or "www." runs to the next blank,
//     and that blank is swallowed, so the address fuses with the next word;
//   - a word keeps at most 98 bytes; the rest up to the next blank or
//     punctuation is dropped.
//   - a zero byte inside the text is dropped.
//
// analizatu gives every token at least one reading, merging runs of up to
// seven tokens that some source analyses as one form (longest first).
#ifndef TARVOLA_TEXT_ESALDIA_H
#define TARVOLA_TEXT_ESALDIA_H

#include <string>
#include <vector>

#include "tarvola/analysis/Sarea.h"
#include "tarvola/export.h"
#include "tarvola/text/Tokena.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {

class TARVOLA_API Esaldia {
 public:
  int id;
  std::string testua;
  std::vector<Tokena> tokenak;

  Esaldia();
  Esaldia(int id, std::string testua);
  Esaldia(const Esaldia&) = default;
  Esaldia& operator=(const Esaldia&) = default;
  Esaldia(Esaldia&&) noexcept = default;
  Esaldia& operator=(Esaldia&&) noexcept = default;
  virtual ~Esaldia();

  void tokenizatu();
  // aukera true: the personal dictionary, when it knows a form, pre-empts
  // the networks; false: its readings follow the networks' ones.
  void analizatu(SareMapa sareak, HiztegiPertsonala& hp, bool aukera);

 private:
  // Every reading of a form that spans n tokens, from the personal
  // dictionary, the networks (all but "hp" and "osag0", in name order) and
  // "osag0" (rare readings left out), in the order aukera selects.
  std::vector<Analisia> analizatuTokena(const SareMapa& sareak, HiztegiPertsonala& hp,
                                        const std::string& forma, int n, bool aukera);
  // lista followed by the personal dictionary's readings of forma, taken
  // through the "hp" network; lista unchanged without that network.
  std::vector<Analisia> analizatuHiztegiPertsonalean(const SareMapa& sareak,
                                                     HiztegiPertsonala& hp,
                                                     const std::string& forma,
                                                     std::vector<Analisia>& lista, int n);
};

}  // namespace tarvola

#endif
