// A thin hold on SQLite: a connection, prepared statements, and errors as exceptions.
#ifndef ORVALIS_PAIE_SQLITE_H_
#define ORVALIS_PAIE_SQLITE_H_

#include <sqlite3.h>

#include <stdexcept>
#include <string>

#include "orvalis/value.h"

namespace orvalis::paie {

// A store that cannot be read or written as asked: the message names the table, row and
// column when there is one, else the store's file.
class ErreurMagasin : public std::runtime_error {
 public:
  // What stopped the run: what was asked or what the store holds (the input), or the store's
  // file as the system lets it be used now (locked, full, read-only, failing).
  enum class Cause { Donnees, Acces };
  explicit ErreurMagasin(const std::string& message, Cause cause = Cause::Donnees)
      : std::runtime_error(message), cause_(cause) {}
  Cause cause() const { return cause_; }

 private:
  Cause cause_;
};

class Requete;

inline constexpr int kAttenteVerrouMs = 5000;

class Base {
 public:
  // Opens (and creates when asked) the file, or the SQLite URI ("file:c.db?mode=ro"); a busy
  // store waits up to kAttenteVerrouMs before the call fails.
  Base(const std::string& chemin, bool creer);
  ~Base();
  Base(const Base&) = delete;
  Base& operator=(const Base&) = delete;

  void Execute(const std::string& sql);
  Requete Prepare(const std::string& sql);
  sqlite3* Poignee() { return db_; }
  bool TableExiste(const std::string& nom);
  // The file can be read only (its mode, or opened so).
  bool LectureSeule();
  // Rolls back the open transaction, if SQLite has not already done so (a full disk or an
  // I/O error may end it), keeping quiet: the error being handled is the one to tell.
  void AnnuleTransaction() noexcept;

 private:
  sqlite3* db_ = nullptr;
};

class Requete {
 public:
  Requete(sqlite3* db, const std::string& sql);
  ~Requete();
  Requete(Requete&& r) noexcept : st_(r.st_), db_(r.db_) { r.st_ = nullptr; }
  Requete(const Requete&) = delete;
  Requete& operator=(const Requete&) = delete;

  // Binds parameters from 1, in order.
  Requete& Lie(int i, double v);
  Requete& Lie(int i, long long v);
  Requete& Lie(int i, int v) { return Lie(i, static_cast<long long>(v)); }
  Requete& Lie(int i, const std::string& v);
  Requete& Lie(int i, const Value& v);
  Requete& LieNull(int i);
  // True while a row stands.
  bool Pas();
  // Runs to the end and rearms the statement for the next binding.
  void Execute();
  void Rearme();

  int Colonnes() const;
  std::string NomColonne(int i) const;
  bool EstNull(int i) const;
  int TypeColonne(int i) const;  // SQLITE_INTEGER, SQLITE_FLOAT, SQLITE_TEXT, ...
  long long Entier(int i) const;
  double Reel(int i) const;
  std::string Texte(int i) const;
  // The cell as an engine value: null, number or text.
  Value Valeur(int i) const;

 private:
  sqlite3_stmt* st_ = nullptr;
  sqlite3* db_;
};

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_SQLITE_H_
