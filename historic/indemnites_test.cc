// The residence allowance, the family supplement and the other allowances of the historic
// engine beside the current engine, on the months of the treatment tests: new index 366
// (month 1801.73), old index 340 paid on the minimum 361 (month 1777.12).
#include "historic/elements_test_outils.h"

namespace orvalis::historique_test {
namespace {

class IndemnitesHistorique : public ElementsDeuxMoteurs {
 protected:
  IndemnitesHistorique() {
    s.dIndiceMajoreA = 340;
    s.iZoneResid = 3;
    // "IndResid" 313: Round2(313 x 59.0734 = 18489.9742) = 18489.97, a month of
    // Round2(1540.830833 - 0.0049) = 1540.83.
    Fixe("IndResid", 313);
  }
  // The index change on the 11th at 80 % (paid 6/7), with the month's treatment lines: real
  // salaries 1029.56 (new index, 20 days) and 1777.12 x 2/7 = 507.748571 (old, 10 days).
  void MoisAChangementDIndice(const std::vector<std::string>& autres = {}) {
    s.sDateChangementIndice = "11/03/2024";
    s.dTauxPoste = 80;
    Prepare(autres);
    Traitement();
  }
  void Traitement() {
    Ligne("TRAITEMENT INDICIAIRE MOIS");
    Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT");
  }
};

TEST_F(IndemnitesHistorique, ResidenceOnAWholeMonth) {
  Prepare();
  Traitement();
  Ligne("INDEMNITE DE RESIDENCE");
  // S = 1801.73 above the floor 1540.83: 3 % of it, 54.0519.
  Attendu(rN, 1801.73, 3, 54.0519);
  Attendu(rH, 1801.73, 3, 54.0519);
  EXPECT_NEAR(sH.dIndResTotale, 54.0519, 1e-9);
}

TEST_F(IndemnitesHistorique, ResidenceWithAnIndexChange) {
  MoisAChangementDIndice();
  Ligne("INDEMNITE DE RESIDENCE");
  // S = 1029.56 x 20 / 20 + 507.748571 x 10 / 10 = 1537.308571 above the floor
  // 1540.83 x 6/7 = 1320.711429; 3 % of it, 46.119257.
  const double S = 1029.56 + 1777.12 * 2 / 7;
  Attendu(rN, S, 3, S * 3 / 100);
  Attendu(rH, S, 3, S * 3 / 100);
}

// Index 200, at the threshold, is paid as it stands: 984.55 a month, below the floor.
TEST_F(IndemnitesHistorique, ResidenceOnItsFloor) {
  s.dIndiceMajoreM = 200;
  Prepare();
  Ligne("TRAITEMENT INDICIAIRE MOIS");
  ASSERT_DOUBLE_EQ(rH.dBase, 984.55);
  Ligne("INDEMNITE DE RESIDENCE");
  // B = 1540.83, 3 % = 46.2249.
  Attendu(rN, 1540.83, 3, 46.2249);
  Attendu(rH, 1540.83, 3, 46.2249);
}

// Where they differ: dNB_Jours_Max_Decalage_Mois at 0 stops the current allowance; the
// historic engine does not read that field.
TEST_F(IndemnitesHistorique, ResidenceWithoutTheDecalOfDays) {
  s.dNB_Jours_Max_Decalage_Mois = 0;
  Prepare();
  Traitement();
  Ligne("INDEMNITE DE RESIDENCE");
  Attendu(rN, 1801.73, 3, 0);
  Attendu(rH, 1801.73, 3, 54.0519);
}

TEST_F(IndemnitesHistorique, ResidenceZoneZeroLeavesTheLine) {
  s.iZoneResid = 0;
  Prepare();
  rH.dMontantSalarial = 7;
  ASSERT_TRUE(h.Appel_Methode_Calcul_General("INDEMNITE DE RESIDENCE", sH, rH, vars));
  EXPECT_EQ(rH.dMontantSalarial, 7);
}

// Two children, floor index 300 (month Round2(1476.835 - 0.0049) = 1476.83), ceiling 717
// (3529.63). The full salaries 1801.73 x 2/3 + 1777.12 x 1/3 = 1793.526667 lie between:
// A = trunc2(10.67 + 1793.526667 x 3 %) = 64.47, L = trunc2(10.67 + 1476.83 x 3 %) = 54.97.
// A post at 80 %: each cell's share, 64.47 x 6/7 x (10 + 20) / 30 = 55.26, above 54.97.
TEST_F(IndemnitesHistorique, FamilySupplementWithAnIndexChange) {
  for (auto [c, v] : {std::pair{"IndMinSF", 300.0}, {"IndMaxSF", 717.0}, {"SFFixe2", 10.67},
                      {"SFvar2", 3.0}})
    Fixe(c, v);
  s.iEnfant_ACharge = 2;
  MoisAChangementDIndice();
  Ligne("SUPPLEMENT FAMILIAL");
  const double T = 1801.73 * 2 / 3 + 1777.12 / 3;
  Attendu(rN, T, 2, 64.47 * 6 / 7);
  Attendu(rH, T, 2, 64.47 * 6 / 7);
  EXPECT_NEAR(sH.dMontant_SFT, 55.26, 1e-9);
}

// One child on a whole month: "SFFixe1" alone, over the 30 days.
TEST_F(IndemnitesHistorique, FamilySupplementOneChild) {
  Fixe("SFFixe1", 2.29);
  s.iEnfant_ACharge = 1;
  Prepare();
  Traitement();
  Ligne("SUPPLEMENT FAMILIAL");
  Attendu(rN, 0, 1, 2.29);
  Attendu(rH, 0, 1, 2.29);
}

// End of activity from the 6th to the 20th: 5 days on the old index, 10 on the new. The
// days' share of the real salaries (507.748571 x 5 + 1029.56 x 10) / 30 = 427.811429 is
// below the same share of the minimum index's month, 1777.12 x 15 / 30 = 888.56.
TEST_F(IndemnitesHistorique, EndOfActivity) {
  Situation("CF", "06/03/2024", "20/03/2024");
  MoisAChangementDIndice({"NBRE_JOUR_CFA"});
  ASSERT_EQ(sH.iNBJ_CFAA, 5);
  ASSERT_EQ(sH.iNBJ_CFAN, 10);
  Ligne("CFA");
  const double M = (1777.12 * 2 / 7 * 5 + 1029.56 * 10) / 30;
  Attendu(rN, M, 0, 888.56);
  Attendu(rH, M, 0, 888.56);
}

// Progressive end of activity on the same days: the share, prorated on a month with no half
// pay, stands.
TEST_F(IndemnitesHistorique, ProgressiveEndOfActivity) {
  Situation("CP", "06/03/2024", "20/03/2024");
  MoisAChangementDIndice({"NBRE_JOUR_CPA"});
  ASSERT_EQ(sH.iNBJ_CPAA, 5);
  ASSERT_EQ(sH.iNBJ_CPAN, 10);
  Ligne("CPA");
  const double M = (1777.12 * 2 / 7 * 5 + 1029.56 * 10) / 30;
  Attendu(rN, M, 0, M);
  Attendu(rH, M, 0, M);
}

// IAT: 1.5 x 100 = 150, with 15 days of half pay counted half: 150 x (30 - 7.5) / 30 =
// 112.50, twice.
TEST_F(IndemnitesHistorique, IatOverHalfPayDays) {
  Constante("TXIATDEP", 1.5);
  paie_test::AjouteVariable(vars, "MTIAT", 100, 1, Value::Null(), "M");
  paie_test::AjouteVariable(vars, "MTIATCOEF", 2, 2, Value::Null(), "M");
  Situation("DT", "06/03/2024", "20/03/2024");
  MoisAChangementDIndice({"NBRE_JOUR_DEMI_TRAITEMENT"});
  Ligne("IAT");
  Attendu(rN, 112.5, 2, 225);
  Attendu(rH, 112.5, 2, 225);
}

// Special duties: the reference of each index on its share and days on duty. New index
// 24000 x 2/3 x (20 - 4) / 20 = 12800, old 23000 x 1/3 x 10 / 10 = 7666.666667; a month of
// 20466.666667: Round2(1705.555556 - 0.0049) = 1705.55.
TEST_F(IndemnitesHistorique, SpecialDutiesOnEachIndex) {
  s.sDateChangementIndice = "11/03/2024";
  Prepare();
  sN.dBase_HSN = sH.dBase_HSN = 24000;
  sN.dBase_HSA = sH.dBase_HSA = 23000;
  sN.iNBJ_CFAINTN = 4;
  sH.iNBJ_CFAN = 4;
  Ligne("SUJETIONS SPECIALES");
  Attendu(rN, 12800 + 23000.0 / 3, 0, 1705.55);
  Attendu(rH, 12800 + 23000.0 / 3, 0, 1705.55);
}

// Training leave from the 11th: 20 days on the bound Round2(Round2(400 x 59.0734) / 12) =
// 1969.11; Round2(1969.11 x 20 / 30) = 1312.74.
TEST_F(IndemnitesHistorique, TrainingAllowance) {
  Constante("INDMAXFORM", 400);
  s.rsSituationsExceptionnelles = periode_test::Situations({{"C", "11/03/2024", "31/03/2024"}});
  Prepare();
  Ligne("INDEMNITE DE FORMATION");
  Attendu(rN, 20, 0, 1312.74);
  Attendu(rH, 20, 0, 1312.74);
}

// February 2024, a situation "N" from the 15th to the 29th: its end counts as the 30th,
// 16 days; Round2(1969.11 x 16 / 30 = 1050.192) = 1050.19.
TEST_F(IndemnitesHistorique, TrainingAllowanceInFebruary) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/02/2024";
  Constante("INDMAXFORM", 400);
  s.rsSituationsExceptionnelles = periode_test::Situations({{"N", "15/02/2024", "29/02/2024"}});
  Prepare();
  Ligne("INDEMNITE DE FORMATION");
  Attendu(rN, 16, 0, 1050.19);
  Attendu(rH, 16, 0, 1050.19);
}

}  // namespace
}  // namespace orvalis::historique_test
