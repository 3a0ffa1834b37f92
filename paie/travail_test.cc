#include "paie/travail.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <cmath>
#include <fstream>
#include <sstream>
#include <thread>

#include "paie/pg_test_outils.h"
#include "tools/version.h"

extern char** environ;

namespace orvalis::paie {
namespace {

using namespace std::chrono_literals;

// `orvalis ARGS...` in its own process, its outputs into files of the test's folder; each
// batch waits `pauseMs` holding its row, so that a test can catch a worker in the middle.
struct Processus {
  pid_t pid = 0;
  std::string sortie, erreurs;
  int statut = 0;

  int Attend() {
    waitpid(pid, &statut, 0);
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }
  static std::string Lit(const std::string& f) {
    std::ifstream in(f);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
  }
};

Processus LanceProcessus(const std::vector<std::string>& args, const std::string& prefixe, int pauseMs) {
  Processus p;
  p.sortie = prefixe + ".out";
  p.erreurs = prefixe + ".err";
  std::vector<std::string> tout = {ORVALIS_CLI};
  tout.insert(tout.end(), args.begin(), args.end());
  std::vector<char*> argv;
  for (auto& a : tout) argv.push_back(a.data());
  argv.push_back(nullptr);
  std::vector<std::string> env;
  for (char** e = environ; *e; ++e)
    if (std::string(*e).rfind("ORVALIS_PAUSE_LOT_MS=", 0) != 0) env.emplace_back(*e);
  env.push_back("ORVALIS_PAUSE_LOT_MS=" + std::to_string(pauseMs));
  std::vector<char*> envp;
  for (auto& e : env) envp.push_back(e.data());
  envp.push_back(nullptr);
  posix_spawn_file_actions_t fa;
  posix_spawn_file_actions_init(&fa);
  posix_spawn_file_actions_addopen(&fa, 1, p.sortie.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  posix_spawn_file_actions_addopen(&fa, 2, p.erreurs.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  if (posix_spawn(&p.pid, ORVALIS_CLI, &fa, nullptr, argv.data(), envp.data()) != 0) p.pid = 0;
  posix_spawn_file_actions_destroy(&fa);
  return p;
}

// Waits until the condition holds (true) or twenty seconds pass (false).
template <typename F>
bool Attends(F condition) {
  const auto limite = std::chrono::steady_clock::now() + 20s;
  while (std::chrono::steady_clock::now() < limite) {
    if (condition()) return true;
    std::this_thread::sleep_for(20ms);
  }
  return false;
}

long long Cents(double x) { return std::llround(x * 100); }

// The same payslips to the cent: each employee's totals, lines and cumulative totals.
void CompareMois(const ResultatMois& a, const ResultatMois& b, const std::string& quoi) {
  SCOPED_TRACE(quoi);
  ASSERT_EQ(a.bulletins.size(), b.bulletins.size());
  EXPECT_EQ(a.lignes, b.lignes);
  EXPECT_EQ(a.echecs, b.echecs);
  for (const Bulletin& x : a.bulletins) {
    const Bulletin* y = BulletinDe(b, x.lIdSalarie);
    ASSERT_NE(y, nullptr) << x.lIdSalarie;
    SCOPED_TRACE("lIdSalarie " + std::to_string(x.lIdSalarie));
    const Totaux &s = x.totaux, &t = y->totaux;
    for (auto [u, v] : {std::pair{s.brut, t.brut}, {s.cotisationsSalariales, t.cotisationsSalariales},
                        {s.netAvantImpot, t.netAvantImpot}, {s.netImposable, t.netImposable},
                        {s.basePAS, t.basePAS}, {s.pas, t.pas}, {s.netPaye, t.netPaye},
                        {s.cotisationsPatronales, t.cotisationsPatronales},
                        {s.coutEmployeur, t.coutEmployeur}})
      EXPECT_EQ(Cents(u), Cents(v));
    // Year to date, which the earlier months feed.
    EXPECT_EQ(Cents(x.annee.brut), Cents(y->annee.brut));
    EXPECT_EQ(Cents(x.annee.netPaye), Cents(y->annee.netPaye));
    ASSERT_EQ(x.lignes.size(), y->lignes.size());
    for (std::size_t i = 0; i < x.lignes.size(); ++i) {
      const LigneBulletin &l = x.lignes[i], &m = y->lignes[i];
      EXPECT_EQ(l.sCodeRubrique, m.sCodeRubrique);
      EXPECT_EQ(l.ok, m.ok);
      EXPECT_EQ(Cents(l.dBase), Cents(m.dBase)) << l.sCodeRubrique;
      EXPECT_EQ(Cents(l.dMontantSalarial), Cents(m.dMontantSalarial)) << l.sCodeRubrique;
      EXPECT_EQ(Cents(l.dMontantPatronal), Cents(m.dMontantPatronal)) << l.sCodeRubrique;
      EXPECT_DOUBLE_EQ(l.dTauxSalarial, m.dTauxSalarial) << l.sCodeRubrique;
    }
    ASSERT_EQ(x.cumuls.size(), y->cumuls.size());
    for (const auto& [code, parts] : x.cumuls) {
      EXPECT_EQ(Cents(parts.first), Cents(y->cumuls.at(code).first)) << code;
      EXPECT_EQ(Cents(parts.second), Cents(y->cumuls.at(code).second)) << code;
    }
  }
}

class TravailTest : public MoteurTest {
 protected:
  OptionsTravail Options(int lot, bool rejoindre = false, bool remplacer = false) {
    OptionsTravail o;
    o.tailleLot = lot;
    o.rejoindre = rejoindre;
    o.remplacer = remplacer;
    return o;
  }
  // The server process of a worker while it holds a batch: its transaction open and idle
  // for longer than any statement of its own takes, which only the batch's pause does.
  long long PidServeurEnLot(pid_t travailleur) {
    return Nombre(adresse_, "SELECT pid FROM pg_stat_activity WHERE application_name LIKE '%:" +
                                std::to_string(travailleur) +
                                "' AND state = 'idle in transaction' "
                                "AND clock_timestamp() - state_change > interval '40 ms'");
  }
  long long LotsFaits(const std::string& m) {
    return Nombre(m, "SELECT count(*) FROM lots WHERE fait = 1");
  }
};

INSTANTIATE_TEST_SUITE_P(PostgreSQL, TravailTest, ::testing::Values(Moteur::PostgreSQL), NomMoteur);

TEST_P(TravailTest, UnTravailleurEcritChaqueLotPuisPublie) {
  const std::string c = Commune(12);
  const BilanTravail b = TravailleMois(c, "2024-03", Options(5));
  // 12 employees in batches of 5: 5 + 5 + 2.
  EXPECT_EQ(b.lots, 3);
  EXPECT_EQ(b.salaries, 12);
  EXPECT_TRUE(b.publie);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lots WHERE fait = 1 AND travailleur IS NOT NULL"), 3);
  EXPECT_EQ(Nombre(c, "SELECT salaries FROM lots WHERE lot = 3"), 2);
  EXPECT_EQ(Nombre(c, "SELECT publie FROM calculs WHERE mois = '202403'"), 1);
  EXPECT_EQ(Nombre(c, "SELECT salaries FROM calculs"), 12);
  EXPECT_EQ(Nombre(c, "SELECT lignes FROM calculs"), Nombre(c, "SELECT count(*) FROM lignes"));
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 12);
  EXPECT_TRUE(OuvreMagasin(c)->MoisCalcule("2024-03"));
}

TEST_P(TravailTest, MoisPublieRecalculeSeulementSurDemande) {
  const std::string c = Commune(3);
  TravailleMois(c, "2024-03", Options(2));
  const long long lignes = Nombre(c, "SELECT count(*) FROM lignes");
  try {
    TravailleMois(c, "2024-03", Options(2, true));
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_STREQ(e.what(), "month 2024-03 is already computed (--replace computes it again)");
  }
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes"), lignes);
  const BilanTravail b = TravailleMois(c, "2024-03", Options(1, false, true));
  EXPECT_EQ(b.lots, 3);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes"), lignes);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 1);
}

// A worker of another version: of the schema (refused before anything is written), or of the
// program that started the month (refused to join).
TEST_P(TravailTest, TravailleurDUneAutreVersion) {
  const std::string c = Commune(3);
  FixeVersion(c, 3);
  try {
    TravailleMois(c, "2024-03", Options(2));
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), "schema version 3 is newer than this program's (2)"));
  }
  FixeVersion(c, 2);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 0);
  Sql(c, "INSERT INTO calculs VALUES ('202403', '2024-04-01T00:00:00Z', '0.0.1-autre', 3, 0, 0, 0, 0);"
         "INSERT INTO lots (mois, lot, premier, dernier, salaries) VALUES ('202403', 1, 1001, 1003, 3)");
  try {
    TravailleMois(c, "2024-03", Options(2, true));
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_EQ(std::string(e.what()),
              "month 2024-03 is being computed by orvalis 0.0.1-autre; this worker is orvalis " +
                  std::string(tools::Version()) + ": every batch of a month comes from the same program");
  }
  EXPECT_EQ(LotsFaits(c), 0);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 0);
}

// A worker under a role that owns nothing, with the grants of docs/paie-postgresql.md.
TEST_P(TravailTest, RoleDeTravailAvecSesSeulsDroits) {
  if (ServeurPgTest::Instance().Dossier().empty()) GTEST_SKIP() << "roles are made on the test server only";
  const std::string c = Commune(4);
  const std::string s = schema_;
  Sql(c, "DO $$ BEGIN IF NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = 'paie_travail') THEN "
         "CREATE ROLE paie_travail LOGIN; END IF; END $$;"
         "GRANT USAGE ON SCHEMA " + s + " TO paie_travail;"
         "GRANT SELECT ON ALL TABLES IN SCHEMA " + s + " TO paie_travail;"
         "GRANT INSERT, UPDATE, DELETE ON " + s + ".calculs, " + s + ".lots, " + s + ".bulletins, " +
         s + ".lignes, " + s + ".cumuls_salarie TO paie_travail");
  const std::string travail = "host=" + ServeurPgTest::Instance().Dossier() +
                              " dbname=postgres user=paie_travail options='-c search_path=" + s + "'";
  const BilanTravail b = TravailleMois(travail, "2024-03", Options(3));
  EXPECT_TRUE(b.publie);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 4);
  // The reference data stays out of its reach.
  EXPECT_THROW(OuvreConnexion(travail)->Execute("DELETE FROM taux"), ErreurMagasin);
  Sql(c, "REVOKE ALL ON ALL TABLES IN SCHEMA " + s + " FROM paie_travail; "
         "REVOKE ALL ON SCHEMA " + s + " FROM paie_travail");
}

// Two runs of one month started at once: one computes it, the other is refused; never two
// months. With --worker, the second joins.
TEST_P(TravailTest, DeuxLancementsDuMemeMois) {
  const std::string c = Commune(8);
  Processus a = LanceProcessus({"paie", c, "2024-03", "--batch", "2"}, Chemin("a"), 150);
  Processus b = LanceProcessus({"paie", c, "2024-03", "--batch", "2"}, Chemin("b"), 150);
  const int sa = a.Attend(), sb = b.Attend();
  EXPECT_EQ(sa + sb, kStatutEntree) << Processus::Lit(a.erreurs) << Processus::Lit(b.erreurs);
  const std::string refus = Processus::Lit(sa == kStatutEntree ? a.erreurs : b.erreurs);
  EXPECT_TRUE(Contient(refus, "orvalis: month 2024-03 is being computed (started ") ||
              Contient(refus, "orvalis: month 2024-03 is already computed"))
      << refus;
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 1);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 8);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM (SELECT DISTINCT mois, lIdSalarie, ordre FROM lignes) x"),
            Nombre(c, "SELECT count(*) FROM lignes"));

  Processus x = LanceProcessus({"paie", c, "2024-04", "--batch", "2", "--worker"}, Chemin("x"), 300);
  Processus y = LanceProcessus({"paie", c, "2024-04", "--batch", "2", "--worker"}, Chemin("y"), 300);
  EXPECT_EQ(x.Attend(), 0) << Processus::Lit(x.erreurs);
  EXPECT_EQ(y.Attend(), 0) << Processus::Lit(y.erreurs);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs WHERE mois = '202404' AND publie = 1"), 1);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins WHERE mois = '202404'"), 8);
  // Exactly one of them published the month.
  const std::string tout = Processus::Lit(x.sortie) + Processus::Lit(y.sortie);
  EXPECT_TRUE(Contient(tout, "published by this worker"));
  EXPECT_TRUE(Contient(tout, "published by another worker"));
}

// A month left unfinished (every worker gone) is not done, and a run without --worker says
// so; one with --worker finishes it, the written batches kept.
TEST_P(TravailTest, MoisInacheveRepris) {
  const std::string c = Commune(6);
  Processus a = LanceProcessus({"paie", c, "2024-03", "--batch", "2"}, Chemin("a"), 300);
  ASSERT_TRUE(Attends([&] { return LotsFaits(c) >= 1 && PidServeurEnLot(a.pid) > 0; }));
  kill(a.pid, SIGKILL);
  a.Attend();
  EXPECT_FALSE(OuvreMagasin(c)->MoisCalcule("2024-03"));
  const long long faits = LotsFaits(c);
  EXPECT_GE(faits, 1);
  EXPECT_LT(faits, 3);
  try {
    TravailleMois(c, "2024-03", Options(2));
    FAIL();
  } catch (const ErreurMagasin& e) {
    EXPECT_TRUE(Contient(e.what(), "month 2024-03 is being computed (started "));
    EXPECT_TRUE(Contient(e.what(), "of 3 batches written): --worker joins it"));
  }
  const BilanTravail b = TravailleMois(c, "2024-03", Options(2, true));
  EXPECT_EQ(b.lots, 3 - faits);
  EXPECT_TRUE(b.publie);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 6);
}

// The connection cut in the middle of a batch: the batch is rolled back, the worker says so,
// connects again and computes it again; nothing lost, nothing twice.
TEST_P(TravailTest, ServeurPerduAuMilieuDUnLot) {
  const std::string c = Commune(6);
  Processus a = LanceProcessus({"paie", c, "2024-03", "--batch", "2"}, Chemin("a"), 300);
  long long pid = 0;
  ASSERT_TRUE(Attends([&] { return (pid = PidServeurEnLot(a.pid)) > 0; }));
  EXPECT_EQ(Nombre(ServeurPgTest::Instance().Admin(),
                   "SELECT count(*) FROM (SELECT pg_terminate_backend(" + std::to_string(pid) + ")) x"), 1);
  EXPECT_EQ(a.Attend(), 0) << Processus::Lit(a.erreurs);
  EXPECT_TRUE(Contient(Processus::Lit(a.erreurs), "orvalis: 2024-03: the connection was lost ("));
  EXPECT_TRUE(Contient(Processus::Lit(a.erreurs), "the batch under way returns to the pool"));
  EXPECT_TRUE(Contient(Processus::Lit(a.sortie), "batches lost with the connection and left to the pool: 1"));
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 6);
  EXPECT_EQ(LotsFaits(c), 3);
  EXPECT_EQ(Nombre(c, "SELECT lignes FROM calculs"), Nombre(c, "SELECT count(*) FROM lignes"));
}

// The server gone for good in the middle of a batch: the worker tries again, then stops with
// a clear error; the month stays unpublished, nothing half written.
TEST_P(TravailTest, ServeurArreteAuMilieuDUnLot) {
  if (ServeurPgTest::Instance().Dossier().empty()) GTEST_SKIP() << "needs a server of its own";
  std::string dossier;
  ASSERT_EQ(ServeurPgTest::Script("start " + std::to_string(getpid()), &dossier), 0);
  while (!dossier.empty() && dossier.back() == '\n') dossier.pop_back();
  const std::string c = "host=" + dossier + " dbname=postgres user=postgres";
  {
    const std::string fichier = DossierTest::Commune(6);
    auto m = OuvreMagasinPostgres(c);
    Base source(fichier, false);
    CopieMagasin(source, m->Sql());
  }
  Processus a = LanceProcessus({"paie", c, "2024-03", "--batch", "2"}, Chemin("a"), 500);
  const bool enLot = Attends([&] {
    return Nombre(c, "SELECT count(*) FROM pg_stat_activity WHERE application_name LIKE '%:" +
                         std::to_string(a.pid) + "' AND state = 'idle in transaction' "
                         "AND clock_timestamp() - state_change > interval '40 ms'") > 0;
  });
  ServeurPgTest::Script("stop " + dossier);
  ASSERT_TRUE(enLot);
  EXPECT_EQ(a.Attend(), kStatutAcces);
  const std::string erreurs = Processus::Lit(a.erreurs);
  EXPECT_TRUE(Contient(erreurs, "orvalis: 2024-03: the connection was lost ("));
  EXPECT_TRUE(Contient(erreurs, "orvalis: 2024-03: the server cannot be reached again after the "
                                "connection was lost ("));
  EXPECT_TRUE(Contient(erreurs, "the month is not published, its unwritten batches are left for "
                                "another worker (--worker)"));
}

// The same month (and the next, which reads its totals) run by one process on SQLite, by one
// process on PostgreSQL, and by three workers on PostgreSQL one of which is killed in the
// middle of a batch: the same payslips to the cent.
TEST_P(TravailTest, SQLiteUnProcessusEtTroisTravailleursDontUnTue) {
  const int agents = 40;
  const std::string fichier = DossierTest::Commune(agents);
  {
    auto m = OuvreMagasinSqlite(fichier);
    for (const char* mois : {"2024-03", "2024-04"}) m->EcritMois(CalculeMois(m->ChargeMois(mois)), false);
  }
  const std::string seul = Commune(agents);
  for (const char* mois : {"2024-03", "2024-04"}) TravailleMois(seul, mois, Options(200));

  const std::string schema = schema_ + "_trois";
  const std::string trois = ServeurPgTest::Instance().NouveauSchema(schema);
  {
    auto m = OuvreMagasinPostgres(trois);
    Base source(fichier, false);
    // The results of the SQLite run are copied too: empty them.
    CopieMagasin(source, m->Sql());
    m->Sql().Execute("DELETE FROM calculs");
  }
  for (const char* mois : {"2024-03", "2024-04"}) {
    std::vector<Processus> p;
    for (int i = 0; i < 3; ++i)
      p.push_back(LanceProcessus({"paie", trois, mois, "--worker", "--batch", "2"}, Chemin(mois + std::to_string(i)), 150));
    if (std::string(mois) == "2024-03") {
      // The first is killed once it has written a batch and holds another.
      ASSERT_TRUE(Attends([&] {
        return Nombre(trois, "SELECT count(*) FROM lots WHERE travailleur LIKE '%:" + std::to_string(p[0].pid) + "'") >= 1 &&
               PidServeurEnLot(p[0].pid) > 0;
      }));
      kill(p[0].pid, SIGKILL);
      p[0].Attend();
      EXPECT_TRUE(WIFSIGNALED(p[0].statut));
    } else {
      EXPECT_EQ(p[0].Attend(), 0) << Processus::Lit(p[0].erreurs);
    }
    EXPECT_EQ(p[1].Attend(), 0) << Processus::Lit(p[1].erreurs);
    EXPECT_EQ(p[2].Attend(), 0) << Processus::Lit(p[2].erreurs);
  }
  EXPECT_EQ(Nombre(trois, "SELECT count(DISTINCT travailleur) FROM lots WHERE mois = '202403'"), 3);

  for (const char* mois : {"2024-03", "2024-04"}) {
    const ResultatMois a = OuvreMagasinSqlite(fichier)->LitMois(mois);
    const ResultatMois b = OuvreMagasin(seul)->LitMois(mois);
    const ResultatMois t = OuvreMagasin(trois)->LitMois(mois);
    ASSERT_EQ(a.bulletins.size(), static_cast<std::size_t>(agents));
    CompareMois(a, b, std::string("SQLite / PostgreSQL ") + mois);
    CompareMois(a, t, std::string("SQLite / three workers ") + mois);
  }
  ServeurPgTest::Instance().SupprimeSchema(schema);
}

}  // namespace
}  // namespace orvalis::paie
