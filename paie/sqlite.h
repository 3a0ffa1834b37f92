// A thin hold on SQLite: a connection, prepared statements, and errors as exceptions.
#ifndef ORVALIS_PAIE_SQLITE_H_
#define ORVALIS_PAIE_SQLITE_H_

#include <sqlite3.h>

#include <string>
#include <vector>

#include "paie/sql.h"

namespace orvalis::paie {

// How long a store that another process holds is waited for.
inline constexpr int kAttenteVerrouMs = 5000;

class Base final : public Connexion {
 public:
  // Opens (and creates when asked) the file, or a SQLite URI ("file:c.db?mode=ro"); a busy
  // store waits up to kAttenteVerrouMs.
  Base(const std::string& chemin, bool creer);
  ~Base() override;
  Base(const Base&) = delete;
  Base& operator=(const Base&) = delete;

  void Execute(const std::string& sql) override;
  Requete Prepare(const std::string& sql) override;
  bool TableExiste(const std::string& nom) override;
  void Debut() override { Execute("BEGIN IMMEDIATE"); }
  // Rolls back the open transaction, if SQLite has not already done so (a full disk or an
  // I/O error may end it), keeping quiet: the error being handled is the one to tell.
  void Annule() noexcept override;
  // The file can be read only (its mode, or opened so).
  bool LectureSeule() override;
  std::vector<std::string> ColonnesDe(const std::string& table) override;
  sqlite3* Poignee() { return db_; }

 private:
  sqlite3* db_ = nullptr;
};

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_SQLITE_H_
