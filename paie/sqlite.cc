#include "paie/sqlite.h"

namespace orvalis::paie {

namespace {

[[noreturn]] void Echec(sqlite3* db, const std::string& quoi) {
  throw ErreurMagasin(quoi + ": " + (db ? sqlite3_errmsg(db) : "out of memory"));
}

class CurseurSqlite final : public Curseur {
 public:
  CurseurSqlite(sqlite3* db, const std::string& sql) : db_(db) {
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st_, nullptr) != SQLITE_OK) Echec(db, "SQL");
  }
  ~CurseurSqlite() override { sqlite3_finalize(st_); }
  CurseurSqlite(const CurseurSqlite&) = delete;
  CurseurSqlite& operator=(const CurseurSqlite&) = delete;

  void Lie(int i, double v) override {
    if (sqlite3_bind_double(st_, i, v) != SQLITE_OK) Echec(db_, "bind");
  }
  void Lie(int i, long long v) override {
    if (sqlite3_bind_int64(st_, i, v) != SQLITE_OK) Echec(db_, "bind");
  }
  void Lie(int i, const std::string& v) override {
    if (sqlite3_bind_text(st_, i, v.data(), static_cast<int>(v.size()), SQLITE_TRANSIENT) != SQLITE_OK)
      Echec(db_, "bind");
  }
  void LieNull(int i) override {
    if (sqlite3_bind_null(st_, i) != SQLITE_OK) Echec(db_, "bind");
  }
  bool Pas() override {
    const int rc = sqlite3_step(st_);
    if (rc == SQLITE_ROW) return true;
    if (rc == SQLITE_DONE) return false;
    Echec(db_, "SQL");
  }
  void Rearme() override {
    sqlite3_reset(st_);
    sqlite3_clear_bindings(st_);
  }
  int Colonnes() const override { return sqlite3_column_count(st_); }
  std::string NomColonne(int i) const override { return sqlite3_column_name(st_, i); }
  TypeCellule Type(int i) const override {
    switch (sqlite3_column_type(st_, i)) {
      case SQLITE_NULL: return TypeCellule::Null;
      case SQLITE_INTEGER: return TypeCellule::Entier;
      case SQLITE_FLOAT: return TypeCellule::Reel;
      case SQLITE_TEXT: return TypeCellule::Texte;
      default: return TypeCellule::Autre;
    }
  }
  long long Entier(int i) const override { return sqlite3_column_int64(st_, i); }
  double Reel(int i) const override { return sqlite3_column_double(st_, i); }
  std::string Texte(int i) const override {
    const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(st_, i));
    return p ? std::string(p, static_cast<std::size_t>(sqlite3_column_bytes(st_, i))) : std::string();
  }

 private:
  sqlite3_stmt* st_ = nullptr;
  sqlite3* db_;
};

}  // namespace

Base::Base(const std::string& chemin, bool creer) {
  // A connection serves one thread at a time: SQLite need not lock it on every call.
  const int drapeaux =
      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (creer ? SQLITE_OPEN_CREATE : 0);
  if (sqlite3_open_v2(chemin.c_str(), &db_, drapeaux, nullptr) != SQLITE_OK) {
    const std::string message = db_ ? sqlite3_errmsg(db_) : "out of memory";
    sqlite3_close(db_);
    db_ = nullptr;
    throw ErreurMagasin(chemin + ": cannot open: " + message);
  }
  sqlite3_busy_timeout(db_, 5000);
  Execute("PRAGMA foreign_keys = ON");
}

Base::~Base() { sqlite3_close(db_); }

void Base::Execute(const std::string& sql) {
  char* erreur = nullptr;
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &erreur) != SQLITE_OK) {
    std::string message = erreur ? erreur : sqlite3_errmsg(db_);
    sqlite3_free(erreur);
    throw ErreurMagasin(message);
  }
}

Requete Base::Prepare(const std::string& sql) { return Requete(std::make_unique<CurseurSqlite>(db_, sql)); }

bool Base::TableExiste(const std::string& nom) {
  Requete r = Prepare("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?");
  r.Lie(1, nom);
  return r.Pas();
}

std::vector<std::string> Base::ColonnesDe(const std::string& table) {
  std::vector<std::string> c;
  Requete r = Prepare("SELECT name FROM pragma_table_info(?) ORDER BY cid");
  r.Lie(1, table);
  while (r.Pas()) c.push_back(r.Texte(0));
  return c;
}

}  // namespace orvalis::paie
