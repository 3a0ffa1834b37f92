// A thin hold on PostgreSQL through libpq: a connection, statements with bound parameters,
// errors as exceptions with the password taken out.
#ifndef ORVALIS_PAIE_POSTGRES_H_
#define ORVALIS_PAIE_POSTGRES_H_

#include <string>
#include <vector>

#include "paie/sql.h"

struct pg_conn;

namespace orvalis::paie {

// True for a PostgreSQL store: a URI "postgresql://..." or "postgres://...", or a libpq
// connection string "key=value ..." (a file path holds no '=').
bool EstAdressePostgres(const std::string& magasin);

// The text with every password of `adresse` (and of PGPASSWORD, of any URI or "password="
// inside the text) replaced by stars.
std::string SansMotDePasse(const std::string& texte, const std::string& adresse);

// The store's SQL as PostgreSQL reads it: `?` and `?N` become `$N`, and names written with
// capitals are quoted (PostgreSQL would fold them to lower case).
std::string SqlPourPostgres(const std::string& sql);

class BasePg final : public Connexion {
 public:
  // `adresse` is a URI or a connection string; what it leaves out comes from the libpq
  // environment (PGHOST, PGDATABASE, PGSERVICE, PGPASSWORD, the password file).
  explicit BasePg(const std::string& adresse, const std::string& application = "orvalis");
  ~BasePg() override;
  BasePg(const BasePg&) = delete;
  BasePg& operator=(const BasePg&) = delete;

  void Execute(const std::string& sql) override;
  Requete Prepare(const std::string& sql) override;
  Requete PrepareInsertion(const std::string& table, const std::vector<std::string>& colonnes) override;
  bool TableExiste(const std::string& nom) override;
  void Debut() override { Execute("BEGIN"); }
  void Annule() noexcept override;
  std::vector<std::string> ColonnesDe(const std::string& table) override;

  // The address without its password, for messages.
  const std::string& Affichee() const { return affichee_; }
  // The server process of this connection (pg_stat_activity.pid).
  int PidServeur() const;
  pg_conn* Poignee() { return conn_; }
  // The message of a failed result (or of the connection), password removed; the
  // exception is an ErreurConnexion when the connection is gone.
  [[noreturn]] void Echec(const std::string& quoi, const void* resultat);

 private:
  pg_conn* conn_ = nullptr;
  std::string adresse_, affichee_;
};

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_POSTGRES_H_
