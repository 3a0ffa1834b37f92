#include "paie/commande.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <sstream>
#include <thread>

#include "paie/paie_test_outils.h"

extern char** environ;

namespace orvalis::paie {
namespace {

class CommandeTest : public DossierTest {
 protected:
  int Lance(const std::vector<std::string>& args) {
    sortie_.str("");
    erreurs_.str("");
    return CommandePaie(args, sortie_, erreurs_, false);
  }
  std::ostringstream sortie_, erreurs_;
};

TEST_F(CommandeTest, DemoPuisMoisPuisBulletins) {
  const std::string c = Chemin("c.db");
  ASSERT_EQ(Lance({"demo", c, "--agents", "3"}), 0) << erreurs_.str();
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM salaries"), 3);
  ASSERT_EQ(Lance({"paie", c, "2024-03", "--payslips", Chemin("b")}), 0) << erreurs_.str();
  EXPECT_TRUE(Contient(sortie_.str(), "month 2024-03: 3 employees"));
  EXPECT_TRUE(Contient(sortie_.str(), "payslips: open " + Chemin("b/index.html")));
  EXPECT_TRUE(std::filesystem::exists(Chemin("b/000001.html")));
  // Quiet off a terminal: nothing on standard error.
  EXPECT_EQ(erreurs_.str(), "");
  ASSERT_EQ(Lance({"bulletins", c, "2024-03", Chemin("d")}), 0) << erreurs_.str();
  EXPECT_TRUE(std::filesystem::exists(Chemin("d/000003.html")));
}

TEST_F(CommandeTest, MoisDejaCalcule) {
  const std::string c = Commune(1);
  ASSERT_EQ(Lance({"paie", c, "2024-03"}), 0);
  EXPECT_EQ(Lance({"paie", c, "2024-03"}), 1);
  EXPECT_EQ(erreurs_.str(), "orvalis: month 2024-03 is already computed (--replace computes it again)\n");
  EXPECT_EQ(Lance({"paie", c, "2024-03", "--replace"}), 0);
}

TEST_F(CommandeTest, MagasinFautifNeRecoitRien) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE rubriques SET methode = 'INCONNUE' WHERE lIdRubrique = 300");
  EXPECT_EQ(Lance({"paie", c, "2024-03"}), 1);
  EXPECT_EQ(erreurs_.str(), "orvalis: table 'rubriques', lIdRubrique 300, column 'methode': "
                            "unknown method 'INCONNUE'\n");
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 0);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes"), 0);
}

TEST_F(CommandeTest, LigneDeCommandeFautive) {
  EXPECT_EQ(Lance({"paie", Chemin("c.db")}), 2);
  EXPECT_TRUE(Contient(erreurs_.str(), "MONTH is required"));
  EXPECT_EQ(Lance({"paie", Chemin("c.db"), "2024-03", "--vite"}), 2);
  EXPECT_EQ(Lance({"paie", Chemin("absent.db"), "2024-03"}), 1);
  EXPECT_EQ(Lance({"paie", Commune(1), "2024-3"}), 1);
  EXPECT_EQ(erreurs_.str(), "orvalis: '2024-3' is not a month (write it 2024-03)\n");
}

TEST_F(CommandeTest, DemoRefuseUnFichierExistant) {
  const std::string c = Commune(1);
  EXPECT_EQ(Lance({"demo", c}), 1);
  EXPECT_TRUE(Contient(erreurs_.str(), "already exists"));
}

// Killed while the month is written, the store holds the month whole or not at all.
TEST_F(CommandeTest, TueEnPleineEcriture) {
  const std::string c = Commune(60);
  const std::string journal = c + "-journal";
  const std::vector<std::string> args = {ORVALIS_CLI, "paie", c, "2024-03"};
  std::vector<char*> argv;
  for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
  argv.push_back(nullptr);

  posix_spawn_file_actions_t fa;
  posix_spawn_file_actions_init(&fa);
  posix_spawn_file_actions_addopen(&fa, 1, "/dev/null", O_WRONLY, 0);
  pid_t pid = 0;
  ASSERT_EQ(posix_spawn(&pid, ORVALIS_CLI, &fa, nullptr, argv.data(), environ), 0);
  posix_spawn_file_actions_destroy(&fa);

  // The rollback journal stands only while the month's transaction is open.
  bool tue = false;
  const auto limite = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  int statut = 0;
  while (std::chrono::steady_clock::now() < limite) {
    if (std::filesystem::exists(journal)) {
      kill(pid, SIGKILL);
      tue = true;
      break;
    }
    if (waitpid(pid, &statut, WNOHANG) == pid) break;
    std::this_thread::sleep_for(std::chrono::microseconds(100));
  }
  if (tue) waitpid(pid, &statut, 0);
  ASSERT_TRUE(tue) << "the run ended before its write could be caught";
  EXPECT_TRUE(WIFSIGNALED(statut));

  // Reopened: the hot journal is rolled back, the month is absent, the file is sound.
  {
    Base b(c, false);
    Requete r = b.Prepare("PRAGMA integrity_check");
    ASSERT_TRUE(r.Pas());
    EXPECT_EQ(r.Texte(0), "ok");
  }
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 0);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 0);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes"), 0);

  // Run again, the month is whole: a payslip per employee, a line per line of the plan.
  ASSERT_EQ(Lance({"paie", c, "2024-03"}), 0) << erreurs_.str();
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 60);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes WHERE ordre > 0"),
            Nombre(c, "SELECT count(*) FROM salarie_rubriques"));
}

}  // namespace
}  // namespace orvalis::paie
