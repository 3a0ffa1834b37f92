// Half pay, the supplementary allocation and the index bonus of the historic engine beside
// the current engine: index change on the 11th of March 2024 at 80 % (paid 6/7), the old
// index 340 paid on the minimum 361 (yearly 21325.50), the new index 366 (yearly 21620.86).
#include "historic/elements_test_outils.h"

namespace orvalis::historique_test {
namespace {

class DemiTraitementHistorique : public ElementsDeuxMoteurs {
 protected:
  DemiTraitementHistorique() {
    s.dIndiceMajoreA = 340;
    s.sDateChangementIndice = "11/03/2024";
    s.dTauxPoste = 80;
    s.dBonification = 15;
  }
  // The month with one situation, then its treatment lines: real salaries of 1029.56 on
  // the new index and 1777.12 x 2/7 = 507.748571 on the old.
  void MoisAvec(const std::string& sCode, const std::string& sDebut, const std::string& sFin,
                const std::string& sPreparation) {
    Situation(sCode, sDebut, sFin);
    Prepare({sPreparation});
    Ligne("TRAITEMENT INDICIAIRE MOIS");
    Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT");
  }
};

// Half pay from the 6th to the 20th: 5 days on the old index, 10 on the new, C = 1/2.
TEST_F(DemiTraitementHistorique, HalfPayOverBothCells) {
  MoisAvec("DT", "06/03/2024", "20/03/2024", "NBRE_JOUR_DEMI_TRAITEMENT");
  Ligne("DEMI TRAITEMENT INDICIAIRE");
  // X old = 6/7 x 21325.50 / 12 x 5 / 30 = 253.875; X new = 6/7 x 21620.86 / 12 x 10 / 30
  // = 514.782381; M1 = 1/2 x 768.657381 = 384.328690. Base: the real salaries
  // 1029.56 + 507.748571 = 1537.308571; rate: the 15 days.
  const double M1 = 0.5 * (21325.50 / 84 + 21620.86 / 42);
  Attendu(rN, 1029.56 + 1777.12 * 2 / 7, 15, M1);
  Attendu(rH, 1029.56 + 1777.12 * 2 / 7, 15, M1);
  EXPECT_EQ(sH.dCoefficient_DemiTraitement, 0.5);
  EXPECT_EQ(sH.dMontantAllocationComplementaireMaladie, 0);
}

// Three children: C = 2/3; the line pays the half, the sixth is kept for the allocation.
TEST_F(DemiTraitementHistorique, ThreeChildrenKeepTheSixthForTheAllocation) {
  s.iEnfant_ACharge = 3;
  MoisAvec("DT", "06/03/2024", "20/03/2024", "NBRE_JOUR_DEMI_TRAITEMENT");
  Ligne("DEMI TRAITEMENT INDICIAIRE");
  const double X = 21325.50 / 84 + 21620.86 / 42;  // 768.657381
  Attendu(rN, 1029.56 + 1777.12 * 2 / 7, 15, 0.5 * X);
  Attendu(rH, 1029.56 + 1777.12 * 2 / 7, 15, 0.5 * X);
  // (2/3 - 1/2) x 768.657381 = 128.109563.
  EXPECT_NEAR(sN.dMontantAllocationComplementaireMaladie, X * 2 / 3 - 0.5 * X, 1e-9);
  EXPECT_NEAR(sH.dMontantAllocationComplementaireMaladie, X * 2 / 3 - 0.5 * X, 1e-9);
}

// The allocation of a half pay begun on 01/07/2005, 184 days before 01/01/2006: C =
// "TXALLCOMP" 60 / 100. Its days in March, 1st to 20th: 10 and 10.
TEST_F(DemiTraitementHistorique, SupplementaryAllocation) {
  Constante("TXALLCOMP", 60);
  MoisAvec("DT", "01/07/2005", "20/03/2024", "NBRE_JOUR_DEMI_TRAITEMENT");
  ASSERT_EQ(sH.iNBJ_DemiTraitementA, 10);
  ASSERT_EQ(sH.iNBJ_DemiTraitementN, 10);
  Ligne("ALLOCATION COMPLEMENTAIRE");
  // X old = 6/7 x 21325.50 / 12 x 10 / 30 = 507.75, X new = 514.782381; the line pays
  // M2 = 511.266190, the allocation keeps M1 - M2 = 0.1 x 1022.532381 = 102.253238.
  const double X = 21325.50 / 42 + 21620.86 / 42;
  Attendu(rN, 1029.56 + 1777.12 * 2 / 7, 20, 0.5 * X);
  Attendu(rH, 1029.56 + 1777.12 * 2 / 7, 20, 0.5 * X);
  EXPECT_NEAR(sH.dCoefficient_DemiTraitement, 0.6, 1e-12);
  EXPECT_NEAR(sH.dMontantAllocationComplementaireMaladie, 0.6 * X - 0.5 * X, 1e-9);
  EXPECT_NEAR(sN.dMontantAllocationComplementaireMaladie, 0.6 * X - 0.5 * X, 1e-9);

  // The bonus's allocation: 20 days, X = 6/7 x 73.84 x 20 / 30 = 42.194286.
  Ligne("BONIFICIATION INDICIAIRE");
  Ligne("ALLOCATION COMPLEMENTAIRE BONIFICATION");
  const double XB = 6.0 / 7 * 73.84 * 20 / 30;
  Attendu(rN, 6.0 / 7 * 73.84, 20, 0.5 * XB);
  Attendu(rH, 6.0 / 7 * 73.84, 20, 0.5 * XB);
  EXPECT_NEAR(sH.dMontantAllocationComplementaireMaladieNBI, 0.6 * XB - 0.5 * XB, 1e-9);
}

// The bonus: 15 points, yearly Round2(15 x 59.0734 = 886.101) = 886.10, month
// Round2(73.841667 - 0.0049) = 73.84; paid on the 15 days not on half pay.
TEST_F(DemiTraitementHistorique, IndexBonusAndItsHalfPay) {
  MoisAvec("DT", "06/03/2024", "20/03/2024", "NBRE_JOUR_DEMI_TRAITEMENT");
  const double dPleinN = sH.dSalarie_MensuelPleinN;
  const double dReelN = sH.dSalarie_MensuelReelN;
  Ligne("BONIFICIATION INDICIAIRE");
  // 6/7 x 73.84 x (30 - 15) / 30 = 31.645714.
  Attendu(rN, 73.84, 15, 6.0 / 7 * 73.84 * 15 / 30);
  Attendu(rH, 73.84, 15, 6.0 / 7 * 73.84 * 15 / 30);
  EXPECT_EQ(sH.dBonificationTotale, 73.84);
  // The whole month's bonus into the new index's full salary, its 30 days into the real.
  EXPECT_NEAR(sH.dSalarie_MensuelPleinN - dPleinN, 73.84, 1e-9);
  EXPECT_NEAR(sH.dSalarie_MensuelReelN - dReelN, 6.0 / 7 * 73.84, 1e-9);
  EXPECT_NEAR(sN.dSalaire_MensuelReelINTN - dReelN, 6.0 / 7 * 73.84, 1e-9);

  Ligne("DEMI TRAITEMENT BONIFICATION");
  // X = 6/7 x 73.84 x 15 / 30 = 31.645714; C = 1/2: 15.822857. Base 1 x 6/7 x 73.84.
  Attendu(rN, 6.0 / 7 * 73.84, 15, 0.5 * 6.0 / 7 * 73.84 * 15 / 30);
  Attendu(rH, 6.0 / 7 * 73.84, 15, 0.5 * 6.0 / 7 * 73.84 * 15 / 30);
}

// A bonus of 0 and a month without half pay leave the host's line as it came.
TEST_F(DemiTraitementHistorique, NothingToPayLeavesTheLine) {
  s.dBonification = 0;
  Prepare({"NBRE_JOUR_DEMI_TRAITEMENT"});
  for (const char* nom : {"BONIFICIATION INDICIAIRE", "DEMI TRAITEMENT INDICIAIRE",
                          "DEMI TRAITEMENT BONIFICATION", "SUPPLEMENT FAMILIAL IC",
                          "INDEMNITE COORDINATION (IND RES)"}) {
    r.dBase = 1;
    r.dMontantSalarial = 3;
    rH = r;
    ASSERT_TRUE(h.Appel_Methode_Calcul_General(nom, sH, rH, vars)) << nom;
    EXPECT_EQ(rH.dBase, 1) << nom;
    EXPECT_EQ(rH.dMontantSalarial, 3) << nom;
  }
}

// Availability from the 6th to the 20th: 5 and 10 days of leave of office.
TEST_F(DemiTraitementHistorique, AvailabilityLines) {
  MoisAvec("DO", "06/03/2024", "20/03/2024", "NBRE_JOUR_DISPONIBILITE_OFFICE");
  ASSERT_EQ(sH.iNBJ_DispoOfficeA, 5);
  ASSERT_EQ(sH.iNBJ_DispoOfficeN, 10);
  sN.dMontant_SFT = sH.dMontant_SFT = 100;
  sN.dIndResTotale = sH.dIndResTotale = 54;

  Ligne("SUPPLEMENT FAMILIAL IC", "INDCOSFT");
  // 15 x 100 / 30 = 50.
  Attendu(rN, 100, 15, 50);
  Attendu(rH, 100, 15, 50);

  Ligne("INDEMNITE COORDINATION (IND RES)", "INDCOIR");
  // C = 1/2 ("D", no child): 15 x 54 / 30 x 1/2 = 13.5.
  Attendu(rN, 54, 15, 13.5);
  Attendu(rH, 54, 15, 13.5);
}

TEST_F(DemiTraitementHistorique, PublicOperationsOnTwoCells) {
  MoisAvec("DT", "06/03/2024", "20/03/2024", "NBRE_JOUR_DEMI_TRAITEMENT");
  sH.dCoefficient_DemiTraitement = 0;
  Int16 iA = 7, iN = 7;
  h.dCoefficientIndemnitaireDemiTraitement(sH, iA, iN, "D", "DEMITRAIT");
  EXPECT_EQ(iA, 5);
  EXPECT_EQ(iN, 10);
  EXPECT_EQ(sH.dCoefficient_DemiTraitement, 0.5);
  // "INDCOSFT": the availability days (none), the coefficient left as it is.
  sH.dCoefficient_DemiTraitement = 0.25;
  h.dCoefficientIndemnitaireDemiTraitement(sH, iA, iN, "D", "INDCOSFT");
  EXPECT_EQ(iA, 0);
  EXPECT_EQ(iN, 0);
  EXPECT_EQ(sH.dCoefficient_DemiTraitement, 0.25);

  h.CalculCoefficientDemiTraitement(sH, "D");
  n.CalculCoefficientDemiTraitement(sN, "D");
  // (30 - 15) x 300 / 30 + 15 x 300 x 1/2 / 30 = 150 + 75 = 225, on both.
  EXPECT_NEAR(h.dMontantProratiseSuivantDemiTraitement(sH, 300).value(), 225, 1e-9);
  EXPECT_NEAR(n.dMontantProratiseSuivantDemiTraitement(sN, 300).value(), 225, 1e-9);
}

}  // namespace
}  // namespace orvalis::historique_test
