// The PostgreSQL server of the tests, and the store's tests run over both backends.
//
// The server is a throw-away one (scripts/serveur_pg_test.sh): started on first use in a
// temporary folder, on a Unix socket only, stopped and removed when the tests end (and by a
// watcher if they die). ORVALIS_PG_TEST, a connection string of a superuser on another
// server, replaces it. Each test gets a schema of its own.
#ifndef ORVALIS_PAIE_PG_TEST_OUTILS_H_
#define ORVALIS_PAIE_PG_TEST_OUTILS_H_

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "paie/copie_magasin.h"
#include "paie/paie_test_outils.h"
#include "paie/postgres.h"

namespace orvalis::paie {

// The password of the role orvalis_mdp on the test server.
inline constexpr const char* kMotDePasseTest = "Sesame-7Tr3sSecret";

class ServeurPgTest {
 public:
  static ServeurPgTest& Instance() {
    static ServeurPgTest s;
    return s;
  }
  bool Absent() const { return absent_; }
  // Why the server could not start although PostgreSQL is installed; empty when it runs.
  const std::string& Panne() const { return panne_; }

  std::string Admin() const {
    return externe_.empty() ? "host=" + dossier_ + " dbname=postgres user=postgres" : externe_;
  }
  // The socket folder, for the role that logs in with a password.
  const std::string& Dossier() const { return dossier_; }

  // A store in a new schema of its own.
  std::string NouveauSchema(const std::string& nom) {
    BasePg admin(Admin());
    admin.Execute("DROP SCHEMA IF EXISTS " + nom + " CASCADE; CREATE SCHEMA " + nom);
    return Admin() + " options='-c search_path=" + nom + "'";
  }
  void SupprimeSchema(const std::string& nom) {
    BasePg admin(Admin());
    admin.Execute("DROP SCHEMA IF EXISTS " + nom + " CASCADE");
  }

  ~ServeurPgTest() {
    if (!dossier_.empty()) Script("stop " + dossier_);
  }

  // scripts/serveur_pg_test.sh with `arguments`: its exit status, its output into `sortie`.
  static int Script(const std::string& arguments, std::string* sortie = nullptr) {
    const std::string commande = std::string(ORVALIS_SOURCE_DIR) + "/scripts/serveur_pg_test.sh " + arguments;
    FILE* f = popen(commande.c_str(), "r");
    if (f == nullptr) return -1;
    char tampon[512];
    while (std::fgets(tampon, sizeof tampon, f))
      if (sortie) *sortie += tampon;
    const int s = pclose(f);
    return WIFEXITED(s) ? WEXITSTATUS(s) : -1;
  }

 private:
  ServeurPgTest() {
    if (const char* e = std::getenv("ORVALIS_PG_TEST"); e && *e) {
      externe_ = e;
      return;
    }
    std::string sortie;
    const int statut = Script("start " + std::to_string(getpid()), &sortie);
    while (!sortie.empty() && (sortie.back() == '\n' || sortie.back() == ' ')) sortie.pop_back();
    if (statut == 3) absent_ = true;
    else if (statut != 0 || sortie.empty()) panne_ = "scripts/serveur_pg_test.sh start failed (status " + std::to_string(statut) + ")";
    else dossier_ = sortie;
  }

  bool absent_ = false;
  std::string panne_, dossier_, externe_;
};

enum class Moteur { SQLite, PostgreSQL };

inline std::string NomMoteur(const ::testing::TestParamInfo<Moteur>& i) {
  return i.param == Moteur::SQLite ? "SQLite" : "PostgreSQL";
}

// A test over a store of either backend: a file of the test's folder, or a schema of its own.
class MoteurTest : public DossierTest, public ::testing::WithParamInterface<Moteur> {
 protected:
  void SetUp() override {
    DossierTest::SetUp();
    if (!Pg()) return;
    PrepareServeur();
    if (IsSkipped() || HasFatalFailure()) return;
    static int numero = 0;
    schema_ = "essai_" + std::to_string(getpid()) + "_" + std::to_string(++numero);
    adresse_ = ServeurPgTest::Instance().NouveauSchema(schema_);
  }
  void TearDown() override {
    if (!schema_.empty()) ServeurPgTest::Instance().SupprimeSchema(schema_);
    DossierTest::TearDown();
  }

  // Skips the test when PostgreSQL is not installed; fails it when its server cannot start.
  static void PrepareServeur() {
    auto& s = ServeurPgTest::Instance();
    if (s.Absent()) GTEST_SKIP() << "PostgreSQL binaries not found (initdb, pg_ctl): PostgreSQL tests skipped";
    ASSERT_TRUE(s.Panne().empty()) << s.Panne();
  }

  bool Pg() const { return GetParam() == Moteur::PostgreSQL; }
  // An empty store, not yet created.
  std::string Vide() { return Pg() ? adresse_ : Chemin("vide.db"); }
  // The sample commune in the test's store (made in a file, copied into the schema).
  std::string Commune(int agents = kAgentsCommune) {
    if (!Pg()) return DossierTest::Commune(agents);
    const std::string fichier = Chemin("source-" + std::to_string(++sources_) + ".db");
    CreeCommuneExemple(fichier, agents);
    auto m = OuvreMagasinPostgres(adresse_);
    Base source(fichier, false);
    CopieMagasin(source, m->Sql());
    return adresse_;
  }
  // The statement that lets the next ones break the foreign keys, in the same session.
  std::string SansClesEtrangeres() const {
    return Pg() ? "SET session_replication_role = replica; " : "PRAGMA foreign_keys = OFF; ";
  }
  long long VersionSchema(const std::string& m) {
    return Nombre(m, Pg() ? "SELECT version FROM version_schema" : "PRAGMA user_version");
  }
  void FixeVersion(const std::string& m, int v) {
    Sql(m, Pg() ? "UPDATE version_schema SET version = " + std::to_string(v)
                : "PRAGMA user_version = " + std::to_string(v));
  }

  std::string schema_, adresse_;
  int sources_ = 0;
};

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_PG_TEST_OUTILS_H_
