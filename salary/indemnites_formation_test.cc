// The hourly training allowance and the training allowance of the days of training leave,
// through the calculation entry. Point 59.0734; minimum index 366: Arrondi(366 x 59.0734, 2)
// = 21620.86 a year; hours of a year 151.67 x 12 = 1820.04.
#include "period/periode_test_outils.h"
#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

using periode_test::Situations;

class Formation : public PaieSalaire {
 protected:
  Formation() {
    Fixe("Point", 59.0734);
    Fixe("IndMinRemuneration", 366.0);
    Fixe("IndResid", 313.0);
    Fixe("HrsMois", 151.67);
    Var("HRSALLFOR", 20.0);
    Constante("INDMAXFORM", 650.0);
    s.rsSituationsExceptionnelles = Situations({});
    LigneDuHote();
  }
};

TEST_F(Formation, AllocationSansResidence) {
  ASSERT_TRUE(Calcul("ALLOCATION FORMATION"));
  Ligne(20, 21620.86 / 1820.04, 237.59);  // Arrondi(20 x 11.8793323, 2)
}

TEST_F(Formation, AllocationAvecLaResidenceDuTraitement) {
  s.iZoneResid = 3;
  ASSERT_TRUE(Calcul("ALLOCATION FORMATION"));
  // 366 >= 313: 21620.86 x 3 / 100 = 648.6258; (21620.86 + 648.6258) / 1820.04 = 12.2357123
  Ligne(20, (21620.86 + 648.6258) / 1820.04, 244.71);
}

TEST_F(Formation, AllocationAvecLaResidenceDuPlancher) {
  s.iZoneResid = 1;
  Fixe("IndResid", 400.0);
  ASSERT_TRUE(Calcul("ALLOCATION FORMATION"));
  // 366 < 400: Arrondi(400 x 59.0734, 2) x 1 / 100 = 236.2936; 21857.1536 / 1820.04
  Ligne(20, (21620.86 + 236.2936) / 1820.04, 240.18);
}

TEST_F(Formation, AllocationSansHeuresDuMois) {
  Fixe("HrsMois", Value());
  ASSERT_TRUE(Calcul("ALLOCATION FORMATION"));
  Ligne(20, 0, 0);
}

// The month's bound: Arrondi(650 x 59.0734, 2) = 38397.71 a year, Arrondi(38397.71 / 12, 2)
// = 3199.81 a month.
TEST_F(Formation, IndemniteDesJoursDeFormationDuMois) {
  s.rsSituationsExceptionnelles = Situations({{"C", "11/03/2024", "20/03/2024"},
                                              {"N", "25/03/2024", ""},
                                              {"M", "01/03/2024", "10/03/2024"}});
  ASSERT_TRUE(Calcul("INDEMNITE DE FORMATION"));
  Ligne(16, 0, 1706.57);  // 10 + 6 days (25th to the 31st, day 30): 3199.81 x 16 / 30
}

TEST_F(Formation, IndemniteDUnMoisEntier) {
  s.rsSituationsExceptionnelles =
      Situations({{"C", "01/02/2024", "30/04/2024"}, {"N", "15/03/2024", "31/03/2024"}});
  ASSERT_TRUE(Calcul("INDEMNITE DE FORMATION"));
  Ligne(30, 0, 3199.81);  // 30 + 16 days held to the month's 30
}

TEST_F(Formation, IndemniteDeFevrierJusquAuDernierJour) {
  m.gPeriodeEncours = "01/02/2024";
  s.rsSituationsExceptionnelles = Situations({{"C", "15/02/2024", "29/02/2024"}});
  ASSERT_TRUE(Calcul("INDEMNITE DE FORMATION"));
  Ligne(16, 0, 1706.57);  // the 15th to the end of February, day 30: 16 days; 3199.81 x 16 / 30
}

TEST_F(Formation, IndemniteSansJourDeFormation) {
  s.rsSituationsExceptionnelles = Situations({{"C", "01/02/2024", "29/02/2024"}});
  ASSERT_TRUE(Calcul("INDEMNITE DE FORMATION"));
  LigneDuHoteIntacte();
}

}  // namespace
}  // namespace orvalis::salaire_test
