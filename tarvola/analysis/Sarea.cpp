#include "tarvola/analysis/Sarea.h"

#include <utility>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"

namespace tarvola {

Sarea::Sarea() : taula(nullptr), mota(0), holders_(std::make_shared<int>(0)) {}

Sarea::Sarea(std::string izena_, std::string fitxategia_, Taula* taula_)
    : izena(std::move(izena_)),
      fitxategia(std::move(fitxategia_)),
      taula(taula_),
      mota(tags::contains(izena, "zenbak") ? 7 : 5),
      holders_(std::make_shared<int>(0)) {
  if (taula) taula->sareaIzena = izena;
}

Sarea::Sarea(const Sarea& other)
    : izena(other.izena),
      fitxategia(other.fitxategia),
      taula(other.taula),
      mota(other.mota),
      holders_(other.holders_) {}

Sarea& Sarea::operator=(const Sarea& other) {
  if (this != &other) {
    if (holders_.use_count() == 1) delete taula;
    izena = other.izena;
    fitxategia = other.fitxategia;
    taula = other.taula;
    mota = other.mota;
    holders_ = other.holders_;
  }
  return *this;
}

Sarea::~Sarea() {
  if (holders_.use_count() == 1) delete taula;
}

std::string Sarea::etiketaZatia(const std::string& analisia) { return tags::tag_part(analisia); }

std::vector<Analisia> Sarea::ordeztuForma(const std::string& forma, const Analisia& analisia) const {
  std::vector<Analisia> out;
  if (!taula) return out;
  const std::string tags = etiketaZatia(analisia.analisia);
  // "a/b" lists alternatives; each piece (a trailing empty one too) is
  // generated in turn.
  std::size_t begin = 0;
  for (;;) {
    std::size_t slash = forma.find('/', begin);
    std::string piece = forma.substr(begin, slash == std::string::npos ? std::string::npos : slash - begin);
    std::vector<Analisia> found = taula->sortuFormak(piece, tags, false, true);
    for (Analisia& a : found) out.push_back(std::move(a));
    if (slash == std::string::npos) break;
    begin = slash + 1;
  }
  for (Analisia& a : out) {
    if (analisia.maiuskulaMota == 1 && !a.forma.empty())
      a.forma[0] = latin1::to_upper(a.forma[0]);
    else if (analisia.maiuskulaMota == 2)
      latin1::upper_in_place(a.forma);
  }
  return out;
}

}  // namespace tarvola
