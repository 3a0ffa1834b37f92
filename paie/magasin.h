// The store of a commune's payroll: reference data, employees, the pay plan and the results.
//
// The month run talks to the store through this interface only. SQLite is the embedded
// default (magasin_sqlite.cc); its schema is the contract of docs/paie-store.md.
#ifndef ORVALIS_PAIE_MAGASIN_H_
#define ORVALIS_PAIE_MAGASIN_H_

#include <memory>
#include <string>

#include "paie/donnees.h"
#include "paie/sqlite.h"

namespace orvalis::paie {

class Magasin {
 public:
  virtual ~Magasin() = default;
  // Everything the month needs, checked: a bad store is an ErreurMagasin naming the table,
  // the row and the column.
  virtual DonneesMois ChargeMois(const std::string& mois) = 0;
  virtual bool MoisCalcule(const std::string& mois) = 0;
  // The store can only be read (its file's mode, or a URI "file:...?mode=ro").
  virtual bool LectureSeule() = 0;
  // Writes the month whole, in one transaction, or nothing. A month already written is an
  // error unless `remplacer`, which replaces it in the same transaction.
  virtual void EcritMois(const ResultatMois& r, bool remplacer) = 0;
  // The month as written, with the year-to-date totals of each payslip.
  virtual ResultatMois LitMois(const std::string& mois) = 0;
};

// The SQLite store at `chemin`: created with the current schema when `creer` and absent,
// upgraded when older, refused when newer or not a store.
std::unique_ptr<Magasin> OuvreMagasinSqlite(const std::string& chemin, bool creer = false);

// "2024-03", "03/2024" or "202403" as the key "202403"; anything else is an ErreurMagasin.
std::string CleMois(const std::string& texte);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_MAGASIN_H_
