// The store of a commune's payroll: reference data, employees, the pay plan and the results.
//
// The month run talks to the store through this interface only. SQLite is the embedded
// default, PostgreSQL the server (both in magasin_sql.cc, over sql.h); the schema is the
// contract of docs/paie-store.md and docs/paie-postgresql.md.
#ifndef ORVALIS_PAIE_MAGASIN_H_
#define ORVALIS_PAIE_MAGASIN_H_

#include <memory>
#include <string>
#include <vector>

#include "paie/donnees.h"
#include "paie/sql.h"

namespace orvalis::paie {

class Magasin {
 public:
  virtual ~Magasin() = default;
  // Everything the month needs, checked: a bad store is an ErreurMagasin naming the table,
  // the row and the column.
  virtual DonneesMois ChargeMois(const std::string& mois) = 0;
  // True when the month is published (computed whole).
  virtual bool MoisCalcule(const std::string& mois) = 0;
  // The store can only be read (its file's mode, or a URI "file:...?mode=ro").
  virtual bool LectureSeule() = 0;
  // Writes the month whole, in one transaction, or nothing. A month already written is an
  // error unless `remplacer`, which replaces it in the same transaction.
  virtual void EcritMois(const ResultatMois& r, bool remplacer) = 0;
  // The month as written, with the year-to-date totals of each payslip.
  virtual ResultatMois LitMois(const std::string& mois) = 0;
  // The connection under the store.
  virtual Connexion& Sql() = 0;
};

// The SQLite store at `chemin`: created with the current schema when `creer` and absent,
// upgraded when older, refused when newer or not a store.
std::unique_ptr<Magasin> OuvreMagasinSqlite(const std::string& chemin, bool creer = false);
// The PostgreSQL store at `adresse` (a URI or a libpq connection string): its schema created
// in an empty database, upgraded when older, refused when newer.
std::unique_ptr<Magasin> OuvreMagasinPostgres(const std::string& adresse,
                                              const std::string& application = "orvalis");
// Either, by the form of `magasin` (EstAdressePostgres).
std::unique_ptr<Magasin> OuvreMagasin(const std::string& magasin, bool creer = false);
// The bare connection to either, its schema left as it is.
std::unique_ptr<Connexion> OuvreConnexion(const std::string& magasin, bool creer = false);

// The payslips of a month, their lines and totals, written through `base` inside the
// caller's transaction.
void InsereBulletins(Connexion& base, const std::string& mois, const std::vector<Bulletin>& bulletins);
// Now, "2024-03-01T12:00:00Z".
std::string DateUtc();

// "2024-03", "03/2024" or "202403" as the key "202403"; anything else is an ErreurMagasin.
std::string CleMois(const std::string& texte);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_MAGASIN_H_
