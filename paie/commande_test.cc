#include "paie/commande.h"

#include <sstream>

#include "paie/paie_test_outils.h"

namespace orvalis::paie {
namespace {

class CommandeTest : public DossierTest {};

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
  EXPECT_EQ(Lance({"paie", c, "2024-03"}), kStatutEntree);
  EXPECT_EQ(erreurs_.str(), "orvalis: month 2024-03 is already computed (--replace computes it again)\n");
  EXPECT_EQ(Lance({"paie", c, "2024-03", "--replace"}), 0);
}

TEST_F(CommandeTest, MagasinFautifNeRecoitRien) {
  const std::string c = Commune(1);
  Sql(c, "UPDATE rubriques SET methode = 'INCONNUE' WHERE lIdRubrique = 300");
  EXPECT_EQ(Lance({"paie", c, "2024-03"}), kStatutEntree);
  EXPECT_EQ(erreurs_.str(), "orvalis: table 'rubriques', lIdRubrique 300, column 'methode': "
                            "unknown method 'INCONNUE'\n");
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 0);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM lignes"), 0);
}

TEST_F(CommandeTest, LigneDeCommandeFautive) {
  EXPECT_EQ(Lance({"paie", Chemin("c.db")}), 2);
  EXPECT_TRUE(Contient(erreurs_.str(), "MONTH is required"));
  EXPECT_EQ(Lance({"paie", Chemin("c.db"), "2024-03", "--vite"}), 2);
  EXPECT_EQ(Lance({"paie", Chemin("absent.db"), "2024-03"}), kStatutEntree);
  EXPECT_EQ(Lance({"paie", Commune(1), "2024-3"}), kStatutEntree);
  EXPECT_EQ(erreurs_.str(), "orvalis: '2024-3' is not a month (write it 2024-03)\n");
}

TEST_F(CommandeTest, DemoRefuseUnFichierExistant) {
  const std::string c = Commune(1);
  EXPECT_EQ(Lance({"demo", c}), kStatutEntree);
  EXPECT_TRUE(Contient(erreurs_.str(), "already exists"));
  // Asked for, the store is made anew: the month computed in it is gone.
  ASSERT_EQ(Lance({"paie", c, "2024-03"}), 0);
  ASSERT_EQ(Lance({"demo", c, "--replace", "--agents", "2"}), 0) << erreurs_.str();
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM salaries"), 2);
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM calculs"), 0);
}

}  // namespace
}  // namespace orvalis::paie
