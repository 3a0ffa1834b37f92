#include "paie/sqlite.h"

#include <cmath>

namespace orvalis::paie {

namespace {

// A failed call, in words a payroll officer can act on, with the store's file it concerns.
// What the file lets us do now (locked, full, read-only, failing) is told apart from what
// it holds.
[[noreturn]] void Echec(sqlite3* db) {
  if (db == nullptr) throw ErreurMagasin("out of memory", ErreurMagasin::Cause::Acces);
  const char* fichier = sqlite3_db_filename(db, "main");
  const std::string lieu = fichier && *fichier ? std::string(fichier) + ": " : std::string("store: ");
  const std::string detail = sqlite3_errmsg(db);
  std::string quoi;
  switch (sqlite3_errcode(db)) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      quoi = "the store is locked by another process (waited " +
             std::to_string(kAttenteVerrouMs / 1000) + " s); nothing was written";
      break;
    case SQLITE_FULL: quoi = "the disk or the store is full; nothing was written"; break;
    case SQLITE_READONLY: quoi = "the store is read-only; nothing was written"; break;
    case SQLITE_IOERR: quoi = "input/output error on the store"; break;
    case SQLITE_CANTOPEN: quoi = "cannot make a file beside the store (its folder read-only?); nothing was written"; break;
    case SQLITE_PERM: quoi = "access to the store refused"; break;
    case SQLITE_NOMEM: quoi = "out of memory"; break;
    default: throw ErreurMagasin(lieu + detail);
  }
  throw ErreurMagasin(lieu + quoi + " (" + detail + ")", ErreurMagasin::Cause::Acces);
}

}  // namespace

Base::Base(const std::string& chemin, bool creer) {
  const int drapeaux = SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI | (creer ? SQLITE_OPEN_CREATE : 0);
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
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Echec(db_);
}

bool Base::LectureSeule() { return sqlite3_db_readonly(db_, "main") == 1; }

void Base::AnnuleTransaction() noexcept {
  if (sqlite3_get_autocommit(db_) == 0) sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
}

Requete Base::Prepare(const std::string& sql) { return Requete(db_, sql); }

bool Base::TableExiste(const std::string& nom) {
  Requete r = Prepare("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?");
  r.Lie(1, nom);
  return r.Pas();
}

Requete::Requete(sqlite3* db, const std::string& sql) : db_(db) {
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st_, nullptr) != SQLITE_OK) Echec(db);
}

Requete::~Requete() { sqlite3_finalize(st_); }

Requete& Requete::Lie(int i, double v) {
  if (sqlite3_bind_double(st_, i, v) != SQLITE_OK) Echec(db_);
  return *this;
}
Requete& Requete::Lie(int i, long long v) {
  if (sqlite3_bind_int64(st_, i, v) != SQLITE_OK) Echec(db_);
  return *this;
}
Requete& Requete::Lie(int i, const std::string& v) {
  if (sqlite3_bind_text(st_, i, v.data(), static_cast<int>(v.size()), SQLITE_TRANSIENT) != SQLITE_OK)
    Echec(db_);
  return *this;
}
Requete& Requete::LieNull(int i) {
  if (sqlite3_bind_null(st_, i) != SQLITE_OK) Echec(db_);
  return *this;
}
Requete& Requete::Lie(int i, const Value& v) {
  if (v.EstNull()) return LieNull(i);
  if (v.EstTexte()) return Lie(i, v.Chaine());
  if (v.EstBooleen()) return Lie(i, v.Booleen() ? 1 : 0);
  // Whole numbers are stored as integers: SQLite keeps them so, and types read them so.
  const double d = v.Double();
  if (std::fabs(d) < 9e15 && d == std::trunc(d)) return Lie(i, static_cast<long long>(d));
  return Lie(i, d);
}

bool Requete::Pas() {
  const int rc = sqlite3_step(st_);
  if (rc == SQLITE_ROW) return true;
  if (rc == SQLITE_DONE) return false;
  Echec(db_);
}

void Requete::Execute() {
  while (Pas()) {
  }
  Rearme();
}

void Requete::Rearme() {
  sqlite3_reset(st_);
  sqlite3_clear_bindings(st_);
}

int Requete::Colonnes() const { return sqlite3_column_count(st_); }
std::string Requete::NomColonne(int i) const { return sqlite3_column_name(st_, i); }
bool Requete::EstNull(int i) const { return sqlite3_column_type(st_, i) == SQLITE_NULL; }
int Requete::TypeColonne(int i) const { return sqlite3_column_type(st_, i); }
long long Requete::Entier(int i) const { return sqlite3_column_int64(st_, i); }
double Requete::Reel(int i) const { return sqlite3_column_double(st_, i); }
std::string Requete::Texte(int i) const {
  const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(st_, i));
  return p ? std::string(p, static_cast<std::size_t>(sqlite3_column_bytes(st_, i))) : std::string();
}

Value Requete::Valeur(int i) const {
  switch (TypeColonne(i)) {
    case SQLITE_NULL: return Value();
    case SQLITE_INTEGER: return Value(static_cast<double>(Entier(i)));
    case SQLITE_FLOAT: return Value(Reel(i));
    default: return Value(Texte(i));
  }
}

}  // namespace orvalis::paie
