// What the store asks of a database: statements with bound parameters, rows, transactions.
//
// SQLite (sqlite.h) and PostgreSQL (postgres.h) each answer it; the store's reading and writing
// (magasin_sql.cc) is written once over it. Values always travel as bound parameters.
#ifndef ORVALIS_PAIE_SQL_H_
#define ORVALIS_PAIE_SQL_H_

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "orvalis/value.h"

namespace orvalis::paie {

// The message on one line, as a run prints it: a control character (a store's text may hold
// any) is written as C writes it in a string, "\n", "\t", "\r" or "\x1f".
std::string MessageSurUneLigne(const std::string& message);

// A store that cannot be read or written as asked: the message, one line, names the table, row
// and column when there is one, else the store.
class ErreurMagasin : public std::runtime_error {
 public:
  // What stopped the run: what was asked or what the store holds (the input), or the store
  // as the system lets it be used now (locked, full, read-only, failing, unreachable).
  enum class Cause { Donnees, Acces };
  explicit ErreurMagasin(const std::string& message, Cause cause = Cause::Donnees)
      : std::runtime_error(MessageSurUneLigne(message)), cause_(cause) {}
  Cause cause() const { return cause_; }

 private:
  Cause cause_;
};

// The server went away or the connection broke: the transaction under way is lost and the
// work it held returns to the others.
class ErreurConnexion : public ErreurMagasin {
 public:
  explicit ErreurConnexion(const std::string& message) : ErreurMagasin(message, Cause::Acces) {}
};

enum class TypeCellule { Null, Entier, Reel, Texte, Autre };

// One statement of a backend: parameters bound from 1, then rows one at a time.
class Curseur {
 public:
  virtual ~Curseur() = default;
  virtual void Lie(int i, double v) = 0;
  virtual void Lie(int i, long long v) = 0;
  virtual void Lie(int i, const std::string& v) = 0;
  virtual void LieNull(int i) = 0;
  virtual bool Pas() = 0;
  virtual void Rearme() = 0;
  // Rows an insertion still holds back, sent now (see Connexion::PrepareInsertion).
  virtual void Termine() {}
  virtual int Colonnes() const = 0;
  virtual std::string NomColonne(int i) const = 0;
  virtual TypeCellule Type(int i) const = 0;
  virtual long long Entier(int i) const = 0;
  virtual double Reel(int i) const = 0;
  virtual std::string Texte(int i) const = 0;
};

class Requete {
 public:
  explicit Requete(std::unique_ptr<Curseur> c) : c_(std::move(c)) {}

  // Binds parameters from 1, in order.
  Requete& Lie(int i, double v) { c_->Lie(i, v); return *this; }
  Requete& Lie(int i, long long v) { c_->Lie(i, v); return *this; }
  Requete& Lie(int i, int v) { return Lie(i, static_cast<long long>(v)); }
  Requete& Lie(int i, const std::string& v) { c_->Lie(i, v); return *this; }
  Requete& Lie(int i, const Value& v);
  Requete& LieNull(int i) { c_->LieNull(i); return *this; }
  // True while a row stands.
  bool Pas() { return c_->Pas(); }
  // Runs to the end and rearms the statement for the next binding.
  void Execute();
  void Rearme() { c_->Rearme(); }
  void Termine() { c_->Termine(); }

  int Colonnes() const { return c_->Colonnes(); }
  std::string NomColonne(int i) const { return c_->NomColonne(i); }
  TypeCellule Type(int i) const { return c_->Type(i); }
  bool EstNull(int i) const { return Type(i) == TypeCellule::Null; }
  long long Entier(int i) const { return c_->Entier(i); }
  double Reel(int i) const { return c_->Reel(i); }
  std::string Texte(int i) const { return c_->Texte(i); }
  // The cell as an engine value: null, number or text.
  Value Valeur(int i) const;

 private:
  std::unique_ptr<Curseur> c_;
};

class Connexion {
 public:
  virtual ~Connexion() = default;
  // Statements of our own text, without parameters (the schema, BEGIN, ...).
  virtual void Execute(const std::string& sql) = 0;
  // `?` and `?N` mark the parameters.
  virtual Requete Prepare(const std::string& sql) = 0;
  // An insertion of many rows into `table`: each Execute() gives one row; Termine() must
  // follow the last one. A backend may send the rows in groups.
  virtual Requete PrepareInsertion(const std::string& table, const std::vector<std::string>& colonnes);
  virtual bool TableExiste(const std::string& nom) = 0;
  // A write transaction (SQLite takes the write lock at once).
  virtual void Debut() = 0;
  void Valide() { Execute("COMMIT"); }
  // Ends a failed transaction; never throws (the connection may be gone).
  virtual void Annule() noexcept = 0;
  // The columns of a table, in order.
  virtual std::vector<std::string> ColonnesDe(const std::string& table) = 0;
  // The store can be read only (a SQLite file of that mode, or opened so).
  virtual bool LectureSeule() { return false; }
};

// Runs `f` in a write transaction of `c`: committed when it returns, rolled back when it throws.
template <typename F>
void EnTransaction(Connexion& c, F&& f) {
  c.Debut();
  try {
    f();
    c.Valide();
  } catch (...) {
    c.Annule();
    throw;
  }
}

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_SQL_H_
