#include "paie/sqlite.h"

namespace orvalis::paie {

namespace {

// A failed call, in words a payroll officer can act on, with the store's file it concerns.
// What the file lets us do now (locked, full, read-only, failing) is told apart from what
// it holds.
[[noreturn]] void Echec(sqlite3* db, const std::string& quoi) {
  if (db == nullptr) throw ErreurMagasin("out of memory", ErreurMagasin::Cause::Acces);
  const char* fichier = sqlite3_db_filename(db, "main");
  const std::string lieu = fichier && *fichier ? std::string(fichier) + ": " : quoi + ": ";
  const std::string detail = sqlite3_errmsg(db);
  std::string raison;
  switch (sqlite3_errcode(db)) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      raison = "the store is locked by another process (waited " +
               std::to_string(kAttenteVerrouMs / 1000) + " s); nothing was written";
      break;
    case SQLITE_FULL: raison = "the disk or the store is full; nothing was written"; break;
    case SQLITE_READONLY: raison = "the store is read-only; nothing was written"; break;
    case SQLITE_IOERR: raison = "input/output error on the store"; break;
    case SQLITE_CANTOPEN:
      raison = "cannot make a file beside the store (its folder read-only?); nothing was written";
      break;
    case SQLITE_PERM: raison = "access to the store refused"; break;
    case SQLITE_NOMEM: raison = "out of memory"; break;
    default: throw ErreurMagasin(lieu + detail);
  }
  throw ErreurMagasin(lieu + raison + " (" + detail + ")", ErreurMagasin::Cause::Acces);
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
      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI | (creer ? SQLITE_OPEN_CREATE : 0);
  if (sqlite3_open_v2(chemin.c_str(), &db_, drapeaux, nullptr) != SQLITE_OK) {
    const std::string message = db_ ? sqlite3_errmsg(db_) : "out of memory";
    sqlite3_close(db_);
    db_ = nullptr;
    throw ErreurMagasin(chemin + ": cannot open: " + message);
  }
  sqlite3_busy_timeout(db_, kAttenteVerrouMs);
  Execute("PRAGMA foreign_keys = ON");
}

Base::~Base() { sqlite3_close(db_); }

void Base::Execute(const std::string& sql) {
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Echec(db_, "SQL");
}

void Base::Annule() noexcept {
  if (sqlite3_get_autocommit(db_) == 0) sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
}

bool Base::LectureSeule() { return sqlite3_db_readonly(db_, "main") == 1; }

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
