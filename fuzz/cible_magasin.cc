// Fuzz target: the pay run's store. From the input, a few edits of a small sample commune
// (tables dropped or remade, cells set to values of any type, huge numbers, null cells, rows
// removed or added, columns added or dropped, the schema version changed, unknown method and
// field names), then the month run over it as `orvalis paie` runs it: open, load, compute,
// write, read back. The run answers with an ErreurMagasin of one line naming the place, or
// runs; a crash, a sanitizer report, any other exception or a store left in a transaction is
// a finding.
#include <sqlite3.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include "frame/dispatch.h"
#include "fuzz/octets.h"
#include "orvalis/fields.h"
#include "paie/calcul_mois.h"
#include "paie/commune_exemple.h"
#include "paie/magasin.h"

namespace {

using namespace orvalis;
using namespace orvalis::paie;

// The store under test lives in SQLite's memory file system: shared by name between the
// connection that edits it and the one the run opens, gone when both are closed.
constexpr const char* kUri = "file:/orvalis-fuzz-magasin?vfs=memdb";

void Copie(sqlite3* de, sqlite3* vers) {
  sqlite3_backup* b = sqlite3_backup_init(vers, "main", de, "main");
  if (b == nullptr) std::abort();
  sqlite3_backup_step(b, -1);
  if (sqlite3_backup_finish(b) != SQLITE_OK) std::abort();
}

// The sample commune of two agents with February 2024 computed, built once and kept in
// memory.
sqlite3* Modele() {
  static sqlite3* modele = [] {
    const std::string chemin = (std::filesystem::temp_directory_path() /
                                ("orvalis-fuzz-magasin-" + std::to_string(getpid()) + ".db"))
                                   .string();
    RetireMagasin(chemin);
    CreeCommuneExemple(chemin, 2);
    {
      auto m = OuvreMagasinSqlite(chemin);
      m->EcritMois(CalculeMois(m->ChargeMois("2024-02")), false);
    }
    sqlite3* disque = nullptr;
    sqlite3* memoire = nullptr;
    if (sqlite3_open_v2(chemin.c_str(), &disque, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK ||
        sqlite3_open(":memory:", &memoire) != SQLITE_OK)
      std::abort();
    Copie(disque, memoire);
    sqlite3_close(disque);
    RetireMagasin(chemin);
    return memoire;
  }();
  return modele;
}

// Texts a store holds or a host may type: method, preparation and field names, codes,
// months and dates in every form, and odd ones.
std::vector<std::string> Mots() {
  std::vector<std::string> m = {"", " ", "'", "x' or ((((", "2024-03", "202403", "202402",
                                "2024-3", "31/02/2024", "01/03/2024", "BRUT", "GAIN",
                                "RETENUE", "PATRONAL", "INFO", "S", "P", "BASE", "SALARIAL",
                                "T", "M", "NaN", "1e400", "-0", "TRAITEMENT", "ASSCNRACL",
                                "NETIMPOS", "INCONNUE", "Point", "SmicHor", "HrsMois"};
  for (const auto& l : TableCalculNouv()) m.push_back(l.nom);
  for (const auto& l : TablePreparationNouv()) m.push_back(l.nom);
  for (const auto& c : Champs<VarCalculSalarie>()) m.push_back(c.nom);
  for (const auto& c : Champs<SalarieCalculRubrique>()) m.push_back(c.nom);
  return m;
}

const std::string& Mot(fuzz::Octets& in) {
  static const std::vector<std::string> mots = Mots();
  return mots[in.Choix(mots.size())];
}

// Binds a value of any type: null, integers at the edges of 16, 32 and 64 bits, numbers
// huge and tiny, a word, raw bytes as text or blob.
void LieValeur(fuzz::Octets& in, sqlite3_stmt* st, int i) {
  static const long long kEntiers[] = {0, 1, -1, 2, 12, 100, 32767, 32768, -32768, -32769,
                                       2147483647, 2147483648LL, -2147483649LL,
                                       std::numeric_limits<long long>::max(),
                                       std::numeric_limits<long long>::min()};
  static const double kReels[] = {0.5, -0.0, 1e308, -1e308, 1e-320, 3.5e9, 9e15, 1e16,
                                  std::numeric_limits<double>::infinity()};
  switch (in.Choix(8)) {
    case 0: sqlite3_bind_null(st, i); break;
    case 1: sqlite3_bind_int64(st, i, kEntiers[in.Choix(std::size(kEntiers))]); break;
    case 2: sqlite3_bind_int64(st, i, static_cast<long long>(in.Entier(8))); break;
    case 3: sqlite3_bind_double(st, i, kReels[in.Choix(std::size(kReels))]); break;
    case 4: sqlite3_bind_double(st, i, in.DoubleBrut()); break;
    case 5: {
      const std::string t = in.Texte(24);
      sqlite3_bind_blob(st, i, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
      break;
    }
    case 6: {
      const std::string t = in.Texte(24);
      sqlite3_bind_text(st, i, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
      break;
    }
    default: {
      const std::string& t = Mot(in);
      sqlite3_bind_text(st, i, t.data(), static_cast<int>(t.size()), SQLITE_TRANSIENT);
    }
  }
}

std::vector<std::string> Liste(sqlite3* db, const std::string& sql) {
  std::vector<std::string> v;
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr) == SQLITE_OK)
    while (sqlite3_step(st) == SQLITE_ROW) {
      const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(st, 0));
      v.emplace_back(t ? t : "");
    }
  sqlite3_finalize(st);
  return v;
}

// Runs one edit; the statement may well fail (a constraint, a column that is not there):
// the store stays as it was.
void Edite(fuzz::Octets& in, sqlite3* db, const std::string& sql, int valeurs) {
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr) == SQLITE_OK) {
    for (int i = 1; i <= valeurs; ++i) LieValeur(in, st, i);
    while (sqlite3_step(st) == SQLITE_ROW) {
    }
  }
  sqlite3_finalize(st);
}

std::string Cite(const std::string& nom) {
  std::string s = "\"";
  for (char c : nom) s += c == '"' ? std::string("\"\"") : std::string(1, c);
  return s + "\"";
}

void UneEdition(fuzz::Octets& in, sqlite3* db) {
  const std::vector<std::string> tables =
      Liste(db, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
  if (tables.empty()) return;
  const std::string table = tables[in.Choix(tables.size())];
  const std::string t = Cite(table);
  const std::vector<std::string> colonnes =
      Liste(db, "SELECT name FROM pragma_table_info(" + Cite(table) + ")");
  const std::string c = colonnes.empty() ? "x" : Cite(colonnes[in.Choix(colonnes.size())]);
  const std::string ligne =
      "(SELECT rowid FROM " + t + " LIMIT 1 OFFSET " + std::to_string(in.Choix(40)) + ")";
  switch (in.Choix(14)) {
    case 0:
    case 1:
    case 2: Edite(in, db, "UPDATE " + t + " SET " + c + " = ?1 WHERE rowid = " + ligne, 1); break;
    case 3: Edite(in, db, "UPDATE " + t + " SET " + c + " = ?1", 1); break;
    case 4: Edite(in, db, "DELETE FROM " + t + " WHERE rowid = " + ligne, 0); break;
    case 5: Edite(in, db, "DELETE FROM " + t, 0); break;
    case 6: Edite(in, db, "DROP TABLE " + t, 0); break;
    case 7: Edite(in, db, "ALTER TABLE " + t + " ADD COLUMN " + Cite(Mot(in)), 0); break;
    case 8: Edite(in, db, "ALTER TABLE " + t + " DROP COLUMN " + c, 0); break;
    case 9: {
      // A row copied with one cell changed: a new row where the key is the cell changed.
      Edite(in, db, "CREATE TEMP TABLE copie AS SELECT * FROM " + t + " WHERE rowid = " + ligne, 0);
      Edite(in, db, "UPDATE copie SET " + c + " = ?1", 1);
      Edite(in, db, "INSERT OR IGNORE INTO " + t + " SELECT * FROM copie", 0);
      Edite(in, db, "DROP TABLE temp.copie", 0);
      break;
    }
    case 10:
      Edite(in, db, "PRAGMA user_version = " +
                        std::to_string(in.Booleen() ? static_cast<int>(in.Entier(4)) : int(in.Choix(3))), 0);
      break;
    case 11:
      Edite(in, db, "UPDATE rubriques SET methode = ?1 WHERE rowid = " + ligne, 1);
      break;
    case 12:
      Edite(in, db, "UPDATE situations SET champ = ?1, valeur = ?2 WHERE rowid = " + ligne, 2);
      break;
    default:
      // The table made again with other columns, or as a view.
      Edite(in, db, "DROP TABLE " + t, 0);
      Edite(in, db,
            in.Booleen() ? "CREATE TABLE " + t + " (" + c + ", " + Cite(Mot(in)) + ")"
                         : "CREATE VIEW " + t + " AS SELECT 1 AS " + c,
            0);
  }
}

// The rows of the result tables, as text, to compare before and after a write.
std::vector<std::string> Resultats(sqlite3* db) {
  std::vector<std::string> v;
  for (const char* t : {"calculs", "bulletins", "lignes", "cumuls_salarie"}) {
    const auto lignes = Liste(db, std::string("SELECT quote(mois) || count(*) FROM ") + t +
                                      " GROUP BY mois ORDER BY mois");
    v.insert(v.end(), lignes.begin(), lignes.end());
    v.push_back("|");
  }
  return v;
}

// A refusal is one line that names where: a table, the store's file, or the month.
void VerifieMessage(const std::string& m) {
  if (m.empty() || m.find('\n') != std::string::npos) std::abort();
  if (m.find("table '") == std::string::npos && m.find("/orvalis-fuzz-magasin") == std::string::npos &&
      m.find("month") == std::string::npos && m.find("schema version") == std::string::npos)
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Octets in(data, size);
  sqlite3* modele = Modele();
  sqlite3* db = nullptr;
  if (sqlite3_open_v2(kUri, &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI,
                      nullptr) != SQLITE_OK)
    std::abort();
  Copie(modele, db);
  sqlite3_exec(db, "PRAGMA ignore_check_constraints = ON", nullptr, nullptr, nullptr);
  const std::size_t editions = in.Choix(9);
  for (std::size_t k = 0; k < editions && !in.Fini(); ++k) UneEdition(in, db);

  static const char* const kMois[] = {"2024-03", "2024-03", "2024-03", "2024-02", "2025-01",
                                      "2023-12", "202403"};
  const std::string mois = in.Choix(8) == 7 ? Mot(in) : kMois[in.Choix(std::size(kMois))];
  const bool remplacer = in.Booleen();
  bool ecriture = false;
  std::vector<std::string> avant;
  try {
    auto m = OuvreMagasinSqlite(kUri);
    if (remplacer || !m->MoisCalcule(mois)) {
      const ResultatMois r = CalculeMois(m->ChargeMois(mois));
      avant = Resultats(db);
      ecriture = true;
      m->EcritMois(r, remplacer);
      ecriture = false;
      (void)m->LitMois(mois);
    }
  } catch (const ErreurMagasin& e) {
    VerifieMessage(e.what());
    // A month refused while written left the results as they were.
    if (ecriture && Resultats(db) != avant) std::abort();
  }
  sqlite3_close(db);
  return 0;
}
