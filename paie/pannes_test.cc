// The pay run under faults: killed at any moment, a full disk, a store locked by another
// process, a read-only store, a store of a newer program. Each time the run ends with one
// line and its status, nothing is half-written, and the store still checks clean.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>

#include "paie/commande.h"
#include "paie/paie_test_outils.h"
#include "paie/schema.h"

extern char** environ;

namespace orvalis::paie {
namespace {

using Horloge = std::chrono::steady_clock;

// `orvalis` run as a host runs it, in its own process, standard error kept in a file, with
// `env` added to the environment.
class Processus {
 public:
  Processus(const std::vector<std::string>& args, const std::string& erreurs,
            const std::vector<std::string>& env = {}) {
    std::vector<std::string> environnement(env);
    for (char** e = environ; *e != nullptr; ++e) environnement.emplace_back(*e);
    std::vector<char*> envp;
    for (auto& e : environnement) envp.push_back(e.data());
    envp.push_back(nullptr);
    std::vector<std::string> tous = {ORVALIS_CLI};
    tous.insert(tous.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (auto& a : tous) argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t fa;
    posix_spawn_file_actions_init(&fa);
    posix_spawn_file_actions_addopen(&fa, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&fa, 2, erreurs.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (posix_spawn(&pid_, ORVALIS_CLI, &fa, nullptr, argv.data(), envp.data()) != 0) pid_ = -1;
    posix_spawn_file_actions_destroy(&fa);
  }
  ~Processus() {
    if (pid_ > 0 && !fini_) {
      kill(pid_, SIGKILL);
      waitpid(pid_, nullptr, 0);
    }
  }

  bool Lance() const { return pid_ > 0; }
  // Ended by now (its status kept).
  bool Fini() {
    if (!fini_ && waitpid(pid_, &statut_, WNOHANG) == pid_) fini_ = true;
    return fini_;
  }
  // Killed by SIGKILL; false when it had ended already (even just before the signal).
  bool Tue() {
    if (Fini()) return false;
    kill(pid_, SIGKILL);
    waitpid(pid_, &statut_, 0);
    fini_ = true;
    return WIFSIGNALED(statut_);
  }
  // Its exit status, waiting up to `limite`; -1 if it is still running then (it is killed).
  int Attend(std::chrono::seconds limite) {
    const auto fin = Horloge::now() + limite;
    while (!Fini()) {
      if (Horloge::now() > fin) {
        Tue();
        return -1;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return WIFEXITED(statut_) ? WEXITSTATUS(statut_) : -1;
  }

 private:
  pid_t pid_ = -1;
  int statut_ = 0;
  bool fini_ = false;
};

std::string Contenu(const std::string& fichier) {
  std::ifstream f(fichier);
  std::stringstream s;
  s << f.rdbuf();
  return s.str();
}

// What a month left in the store, table by table.
struct Etat {
  long long calculs, bulletins, lignes, cumuls;
  bool operator==(const Etat&) const = default;
};

class PannesTest : public DossierTest {
 protected:
  static std::string Integrite(const std::string& c) {
    Base b(c, false);
    Requete r = b.Prepare("PRAGMA integrity_check");
    return r.Pas() ? r.Texte(0) : "(no answer)";
  }
  static Etat Mois(const std::string& c) {
    return {Nombre(c, "SELECT count(*) FROM calculs WHERE mois = '202403'"),
            Nombre(c, "SELECT count(*) FROM bulletins WHERE mois = '202403'"),
            Nombre(c, "SELECT count(*) FROM lignes WHERE mois = '202403'"),
            Nombre(c, "SELECT count(*) FROM cumuls_salarie WHERE mois = '202403'")};
  }
  // `orvalis` with these arguments in its own process: exit status and standard error.
  std::pair<int, std::string> Cli(const std::vector<std::string>& args) {
    const std::string e = Chemin("erreurs.txt");
    Processus p(args, e);
    EXPECT_TRUE(p.Lance());
    const int statut = p.Attend(std::chrono::seconds(120));
    return {statut, Contenu(e)};
  }
};

// Twenty kills at twenty moments of the month: while it loads and computes, and while it is
// written. Reopened, each store holds the month whole or not at all, and checks clean.
TEST_F(PannesTest, VingtArretsBrutaux) {
  const std::string modele = Commune(60);
  const Etat vide{0, 0, 0, 0};

  // The whole month, once, for its size and its time.
  const std::string entier = Chemin("entier.db");
  std::filesystem::copy_file(modele, entier);
  const auto t0 = Horloge::now();
  ASSERT_EQ(Cli({"paie", entier, "2024-03"}).first, 0);
  const auto duree = Horloge::now() - t0;
  const Etat complet = Mois(entier);
  // 60 payslips, one row of lines per line of the plan each employee has, and of totals.
  ASSERT_EQ(complet.calculs, 1);
  ASSERT_EQ(complet.bulletins, 60);
  ASSERT_EQ(complet.lignes, Nombre(modele, "SELECT count(*) FROM salarie_rubriques"));
  ASSERT_GT(complet.cumuls, 0);

  int tues = 0, absents = 0, entiers = 0;
  for (int k = 0; k < 20; ++k) {
    // A run that ended before its kill is tried again on a fresh copy, sooner: up to eight
    // times, each at half the delay (a quick build writes the month in a few milliseconds).
    const std::string c = Chemin("k" + std::to_string(k) + ".db");
    bool tue = false;
    for (int essai = 0; essai < 8 && !tue; ++essai) {
      RetireMagasin(c);
      std::filesystem::copy_file(modele, c);
      // In a coverage build, a kill while the process writes its counts would spoil the
      // build's: those of the killed processes go to the test's folder.
      Processus p({"paie", c, "2024-03"}, Chemin("k.txt"), {"GCOV_PREFIX=" + Chemin("gcov")});
      ASSERT_TRUE(p.Lance());
      if (k < 14) {
        // Spread over the whole run: 1/15 of its time, 2/15, ...
        std::this_thread::sleep_for(duree * (k + 1) / 15 / (1 << essai));
      } else {
        // Within the write: once the transaction's journal stands, 0 to 250 ms later.
        const auto limite = Horloge::now() + std::chrono::seconds(60);
        while (!std::filesystem::exists(c + "-journal") && !p.Fini() && Horloge::now() < limite)
          std::this_thread::sleep_for(std::chrono::microseconds(100));
        std::this_thread::sleep_for(std::chrono::milliseconds(10 * (k - 14) * (k - 14)) / (1 << essai));
      }
      tue = p.Tue();
      EXPECT_EQ(Integrite(c), "ok") << "kill " << k;
      const Etat e = Mois(c);
      EXPECT_TRUE(e == vide || e == complet)
          << "kill " << k << ": " << e.calculs << " months, " << e.bulletins << " payslips, "
          << e.lignes << " lines, " << e.cumuls << " totals";
      if (tue) (e == vide ? absents : entiers)++;
    }
    tues += tue;
  }
  RecordProperty("tues", tues);
  RecordProperty("absents", absents);
  // The kills caught the run alive; some before the month was in, none half-way.
  EXPECT_GE(tues, 18);
  EXPECT_GE(absents, 1);
  EXPECT_EQ(absents + entiers, tues);

  // A store killed before its month is written computes it whole when run again.
  const std::string c = Chemin("k0.db");
  if (Mois(c) == vide) {
    EXPECT_EQ(Cli({"paie", c, "2024-03"}).first, 0);
    EXPECT_EQ(Mois(c), complet);
  }
}

// SQLite's page limit, set on every connection this process opens while a test asks: a
// store that cannot grow is a full disk to the run.
int gPagesEnPlus = -1;
int LimitePages(sqlite3* db, const char**, const struct sqlite3_api_routines*) {
  if (gPagesEnPlus < 0) return SQLITE_OK;
  sqlite3_stmt* st = nullptr;
  long long pages = 0;
  if (sqlite3_prepare_v2(db, "PRAGMA page_count", -1, &st, nullptr) == SQLITE_OK &&
      sqlite3_step(st) == SQLITE_ROW)
    pages = sqlite3_column_int64(st, 0);
  sqlite3_finalize(st);
  const std::string sql = "PRAGMA max_page_count = " + std::to_string(pages + gPagesEnPlus);
  sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr);
  return SQLITE_OK;
}

class DisquePleinTest : public PannesTest {
 protected:
  void SetUp() override {
    PannesTest::SetUp();
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(LimitePages));
  }
  void TearDown() override {
    gPagesEnPlus = -1;
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(LimitePages));
    PannesTest::TearDown();
  }
};

TEST_F(DisquePleinTest, LeMoisNEntrePasEtRienNEstEcrit) {
  const std::string c = Commune(20);
  // Two pages more than the store has: the month's 20 payslips and their lines need more.
  gPagesEnPlus = 2;
  EXPECT_EQ(Lance({"paie", c, "2024-03"}), kStatutAcces);
  EXPECT_EQ(erreurs_.str(), "orvalis: " + c +
                                ": the disk or the store is full; nothing was written "
                                "(database or disk is full)\n");
  gPagesEnPlus = -1;
  EXPECT_EQ(Integrite(c), "ok");
  EXPECT_EQ(Mois(c), (Etat{0, 0, 0, 0}));
  // Room made, the same month goes in whole.
  ASSERT_EQ(Lance({"paie", c, "2024-03"}), 0) << erreurs_.str();
  EXPECT_EQ(Mois(c).bulletins, 20);
}

// Another process holds the store: the run waits its five seconds, then says so and ends,
// whether the other holds it whole (nothing can be read) or for writing (the month is
// computed but cannot be written).
TEST_F(PannesTest, MagasinVerrouilleParUnAutreProcessus) {
  const std::string c = Commune(3);
  for (const char* verrou : {"BEGIN EXCLUSIVE", "BEGIN IMMEDIATE"}) {
    Base autre(c, false);
    autre.Execute(verrou);
    const auto t0 = Horloge::now();
    const auto [statut, erreurs] = Cli({"paie", c, "2024-03"});
    const auto secondes = std::chrono::duration<double>(Horloge::now() - t0).count();
    EXPECT_EQ(statut, kStatutAcces) << verrou;
    EXPECT_EQ(erreurs, "orvalis: " + c +
                           ": the store is locked by another process (waited 5 s); nothing was "
                           "written (database is locked)\n")
        << verrou;
    EXPECT_GE(secondes, 4.5) << verrou;
    EXPECT_LT(secondes, 60) << verrou;
    autre.Execute("ROLLBACK");
  }
  EXPECT_EQ(Integrite(c), "ok");
  EXPECT_EQ(Mois(c), (Etat{0, 0, 0, 0}));
  EXPECT_EQ(Cli({"paie", c, "2024-03"}).first, 0);
  EXPECT_EQ(Mois(c).bulletins, 3);
}

// Opened read-only (SQLite's "mode=ro", which holds even for root, whom file modes do not
// stop): the run refuses before computing; payslips of a month already in can still be had.
TEST_F(PannesTest, MagasinOuvertEnLectureSeule) {
  const std::string c = Commune(2);
  ASSERT_EQ(Cli({"paie", c, "2024-02"}).first, 0);
  const std::string lecture = "file:" + c + "?mode=ro";
  const auto [statut, erreurs] = Cli({"paie", lecture, "2024-03"});
  EXPECT_EQ(statut, kStatutAcces);
  EXPECT_EQ(erreurs, "orvalis: " + lecture + ": the store is read-only; nothing was computed\n");
  EXPECT_EQ(Mois(c), (Etat{0, 0, 0, 0}));
  EXPECT_EQ(Cli({"bulletins", lecture, "2024-02", Chemin("b")}).first, 0);
  EXPECT_TRUE(std::filesystem::exists(Chemin("b/index.html")));
  EXPECT_EQ(Integrite(c), "ok");
}

// A file of mode 0444, and a folder where no journal can be made: only a user that file
// modes bind sees them (root writes through them, and then the run simply works).
TEST_F(PannesTest, FichierEtDossierEnLectureSeule) {
  if (geteuid() == 0) GTEST_SKIP() << "root writes whatever the modes; see MagasinOuvertEnLectureSeule";
  const std::string c = Commune(2);
  ASSERT_EQ(chmod(c.c_str(), 0444), 0);
  auto [statut, erreurs] = Cli({"paie", c, "2024-03"});
  EXPECT_EQ(statut, kStatutAcces);
  EXPECT_EQ(erreurs, "orvalis: " + c + ": the store is read-only; nothing was computed\n");
  ASSERT_EQ(chmod(c.c_str(), 0644), 0);

  const std::string dossier = Chemin("ro");
  std::filesystem::create_directory(dossier);
  const std::string d = dossier + "/c.db";
  std::filesystem::copy_file(c, d);
  ASSERT_EQ(chmod(dossier.c_str(), 0555), 0);
  std::tie(statut, erreurs) = Cli({"paie", d, "2024-03"});
  EXPECT_EQ(statut, kStatutAcces);
  EXPECT_TRUE(Contient(erreurs, "nothing was written")) << erreurs;
  EXPECT_EQ(erreurs.find('\n'), erreurs.size() - 1);
  ASSERT_EQ(chmod(dossier.c_str(), 0755), 0);
  EXPECT_EQ(Mois(d), (Etat{0, 0, 0, 0}));
  EXPECT_EQ(Integrite(d), "ok");
}

// A store a newer program has written: refused as it is, bad input, untouched.
TEST_F(PannesTest, SchemaPlusRecent) {
  const std::string c = Commune(2);
  const int v = kVersionSchema + 1;
  Sql(c, "PRAGMA user_version = " + std::to_string(v));
  const auto [statut, erreurs] = Cli({"paie", c, "2024-03"});
  EXPECT_EQ(statut, kStatutEntree);
  EXPECT_EQ(erreurs, "orvalis: " + c + ": schema version " + std::to_string(v) +
                         " is newer than this program's (" + std::to_string(kVersionSchema) + ")\n");
  EXPECT_EQ(Nombre(c, "PRAGMA user_version"), v);
  EXPECT_EQ(Mois(c), (Etat{0, 0, 0, 0}));
  EXPECT_EQ(Integrite(c), "ok");
}

// The store's contents, bad input too: status 2 and the place, from the process.
TEST_F(PannesTest, ContenuFautifEstUneEntreeRefusee) {
  const std::string c = Commune(2);
  Sql(c, "UPDATE situations SET valeur = 'abc' WHERE champ = 'dIndiceMajoreM'");
  const auto [statut, erreurs] = Cli({"paie", c, "2024-03"});
  EXPECT_EQ(statut, kStatutEntree);
  EXPECT_TRUE(Contient(erreurs, "column 'valeur': dIndiceMajoreM needs a number, got the text 'abc'"))
      << erreurs;
  EXPECT_EQ(Mois(c), (Etat{0, 0, 0, 0}));
}

}  // namespace
}  // namespace orvalis::paie
