// A thin hold on SQLite: a connection, prepared statements, and errors as exceptions.
#ifndef ORVALIS_PAIE_SQLITE_H_
#define ORVALIS_PAIE_SQLITE_H_

#include <sqlite3.h>

#include <string>
#include <vector>

#include "paie/sql.h"

namespace orvalis::paie {

class Base final : public Connexion {
 public:
  // Opens (and creates when asked) the file; a busy store waits up to five seconds.
  Base(const std::string& chemin, bool creer);
  ~Base() override;
  Base(const Base&) = delete;
  Base& operator=(const Base&) = delete;

  void Execute(const std::string& sql) override;
  Requete Prepare(const std::string& sql) override;
  bool TableExiste(const std::string& nom) override;
  void Debut() override { Execute("BEGIN IMMEDIATE"); }
  void Annule() noexcept override { sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr); }
  std::vector<std::string> ColonnesDe(const std::string& table) override;
  sqlite3* Poignee() { return db_; }

 private:
  sqlite3* db_ = nullptr;
};

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_SQLITE_H_
