// The pay run on several threads writes what one thread writes, row for row, in the same order.
#include <fmt/format.h>

#include <filesystem>
#include <sstream>
#include <vector>

#include "paie/calcul_mois.h"
#include "paie/commande.h"
#include "paie/paie_test_outils.h"

namespace orvalis::paie {
namespace {

class TravailleursTest : public DossierTest {
 protected:
  int Paie(const std::string& store, const std::string& jobs) {
    std::ostringstream sortie, erreurs;
    const int statut = CommandePaie({"paie", store, "2024-03", "--jobs", jobs}, sortie, erreurs, false);
    dernieresErreurs_ = erreurs.str();
    return statut;
  }

  // Every row of a query, each cell with its type; reals written to the last bit.
  static std::vector<std::string> Rangs(const std::string& store, const std::string& sql) {
    Base b(store, false);
    Requete r = b.Prepare(sql);
    std::vector<std::string> rangs;
    while (r.Pas()) {
      std::string rang;
      for (int i = 0; i < r.Colonnes(); ++i) {
        if (r.EstNull(i)) rang += "null|";
        else if (r.Type(i) == TypeCellule::Reel) rang += fmt::format("{:a}|", r.Reel(i));
        else rang += r.Texte(i) + "|";
      }
      rangs.push_back(std::move(rang));
    }
    return rangs;
  }

  std::string dernieresErreurs_;
};

TEST_F(TravailleursTest, TroisTravailleursEcriventCeQuUnSeulEcrit) {
  const std::string un = Commune(kAgentsCommune);
  const std::string trois = Chemin("trois.db");
  std::filesystem::copy_file(un, trois);
  ASSERT_EQ(Paie(un, "1"), 0) << dernieresErreurs_;
  ASSERT_EQ(Paie(trois, "3"), 0) << dernieresErreurs_;

  for (const char* sql :
       {"SELECT mois, salaries, lignes, echecs FROM calculs ORDER BY rowid",
        "SELECT * FROM bulletins ORDER BY rowid", "SELECT * FROM lignes ORDER BY rowid",
        "SELECT * FROM cumuls_salarie ORDER BY rowid"}) {
    SCOPED_TRACE(sql);
    const auto attendus = Rangs(un, sql);
    const auto vus = Rangs(trois, sql);
    ASSERT_EQ(vus.size(), attendus.size());
    for (std::size_t i = 0; i < vus.size(); ++i) ASSERT_EQ(vus[i], attendus[i]) << "row " << i;
  }
  // Not a comparison of empty months: each agent has a payslip, and the pay differs.
  EXPECT_EQ(Nombre(un, "SELECT count(*) FROM bulletins"), kAgentsCommune);
  EXPECT_GT(Nombre(un, "SELECT count(DISTINCT net_paye) FROM bulletins"), 10);
  EXPECT_GT(Nombre(un, "SELECT count(*) FROM lignes"), 10 * kAgentsCommune);
}

TEST_F(TravailleursTest, PlusDeTravailleursQueDeSalaries) {
  const std::string c = Commune(2);
  ASSERT_EQ(Paie(c, "8"), 0) << dernieresErreurs_;
  EXPECT_EQ(Nombre(c, "SELECT count(*) FROM bulletins"), 2);
  EXPECT_EQ(Nombre(c, "SELECT salaries FROM calculs"), 2);
}

TEST_F(TravailleursTest, AucunTravailleurEstRefuse) {
  EXPECT_EQ(Paie(Commune(1), "0"), 2);
  EXPECT_TRUE(Contient(dernieresErreurs_, "--jobs"));
}

// The progression is called once per employee, counts in order, from whichever worker.
TEST_F(TravailleursTest, ProgressionUneFoisParSalarie) {
  auto m = OuvreMagasinSqlite(Commune(7));
  std::vector<std::size_t> vus;
  const ResultatMois r = CalculeMois(
      m->ChargeMois("202403"), [&](std::size_t fait, std::size_t total) {
        EXPECT_EQ(total, 7u);
        vus.push_back(fait);
      },
      2);
  EXPECT_EQ(vus, (std::vector<std::size_t>{1, 2, 3, 4, 5, 6, 7}));
  ASSERT_EQ(r.bulletins.size(), 7u);
  for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(r.bulletins[i].lIdSalarie, 1001 + static_cast<int>(i));
}

// An engine pays its employees one after the other on one totals source set back to zero:
// each payslip is the one the employee gets alone on a fresh engine.
TEST_F(TravailleursTest, ChaqueBulletinCommeSeul) {
  auto m = OuvreMagasinSqlite(Commune(12));
  const DonneesMois d = m->ChargeMois("202403");
  const ResultatMois r = CalculeMois(d, {}, 1);
  ASSERT_EQ(r.bulletins.size(), d.salaries.size());
  for (std::size_t i = 0; i < d.salaries.size(); ++i) {
    SCOPED_TRACE(i);
    MethodeCalculG_Nouv seul;
    PrepareMoteur(seul, d);
    const Bulletin b = CalculeSalarie(seul, d, d.salaries[i]);
    const Bulletin& mois = r.bulletins[i];
    EXPECT_EQ(mois.cumuls, b.cumuls);
    EXPECT_EQ(mois.echecs, b.echecs);
    ASSERT_EQ(mois.lignes.size(), b.lignes.size());
    for (std::size_t l = 0; l < b.lignes.size(); ++l) {
      EXPECT_EQ(mois.lignes[l].sCodeRubrique, b.lignes[l].sCodeRubrique);
      EXPECT_EQ(mois.lignes[l].dBase, b.lignes[l].dBase);
      EXPECT_EQ(mois.lignes[l].dMontantSalarial, b.lignes[l].dMontantSalarial);
      EXPECT_EQ(mois.lignes[l].dMontantPatronal, b.lignes[l].dMontantPatronal);
    }
    EXPECT_EQ(mois.totaux.netPaye, b.totaux.netPaye);
  }
  // The totals are not all zero: the comparison sees what an employee feeds them.
  EXPECT_GT(r.bulletins.back().cumuls.at("NETIMPOS").first, 0);
}

}  // namespace
}  // namespace orvalis::paie
