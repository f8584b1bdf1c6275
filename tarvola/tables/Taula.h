// A finite-state letter transducer table: numbered states (state 0 is the
// start), each with its arcs in file order. Analysis walks it from the
// surface side, generation from the analysis side; results come out in
// depth-first order over the arcs as the file lists them.
//
// Loading: a name containing "SARE8" selects the enciphered form, any other
// the plain text form. A plain table file that cannot be opened ends the
// process with status 0 after printing "<path> ez da existitzen."; a missing
// enciphered file leaves an empty table. Tables whose arcs point past the
// last state, or whose epsilon arcs form a cycle, are not rejected: such
// arcs are skipped and such cycles are not followed round, so every lookup
// ends.
//
// At the end of loading a compact read-only index of the states is built
// and shared by copies of the table; lookups and generation read it
// without locking, so a loaded table may serve several threads at once.
// Editing a table (addEgoera, addZubiaTaulan, kargatu, deleteEgoerak) drops
// the index, and later walks read egoerak directly. Edit the public vectors
// by hand only on a table that is not being read by another thread.
//
// Copies share the states; they are freed when the last copy goes.
#ifndef TARVOLA_TABLES_TAULA_H
#define TARVOLA_TABLES_TAULA_H

#include <memory>
#include <string>
#include <vector>

#include "tarvola/analysis/Analisia.h"
#include "tarvola/export.h"
#include "tarvola/tables/Egoera.h"

namespace tarvola {

namespace internal {
class CompactTable;
struct TaulaAccess;
}  // namespace internal

class TARVOLA_API Taula {
 public:
  std::string izena;             // the table file's path; selects its form
  std::vector<Egoera*> egoerak;  // indexed by state number
  std::string sareaIzena;        // the owning network's name, copied into readings

  Taula();
  explicit Taula(std::string izena);            // loads at once
  Taula(std::string izena, int egoeraKopurua);  // null slots, loads nothing
  Taula(const Taula& other);
  Taula& operator=(const Taula& other);
  virtual ~Taula();

  void kargatu();
  void addEgoera(Egoera* egoera);
  // Sets state n's final flag and appends the arc. A null slot gets a new
  // state; a number past the end grows the table; a negative one is ignored.
  void addZubiaTaulan(int n, bool final, Zubia* zubia);
  void deleteEgoerak();
  void printTaula() const;
  void printEgoera(int n) const;

  // Every reading of the word, in the order the depth-first walk finds them.
  std::vector<Analisia> analizatuTokena(std::string hitza) const;
  // Every form whose analysis side spells lema + etiketak (with "<>" pieces
  // removed), each reading's forma holding the surface form.
  std::vector<Analisia> sortuFormak(std::string lema, std::string etiketak,
                                    bool aurrizkia, bool bigarrena) const;

 private:
  friend struct internal::TaulaAccess;

  void kargatu_taula();
  void kargatu_enkriptatua();
  void release();
  void reindex();
  const internal::CompactTable* current_index() const;

  std::shared_ptr<int> holders_;  // one count shared by the table and its copies
  std::shared_ptr<const internal::CompactTable> index_;
};

}  // namespace tarvola

#endif
