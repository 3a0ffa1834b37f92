// Overtime of the month and of the month before, through the calculation entry.
//
// Reference salaries: index 400 at 59.0734 a point, Arrondi(400 x 59.0734, 2) = 23629.36 on
// the new index; index 366, Arrondi(366 x 59.0734, 2) = 21620.86 on the old one. Divisors
// 1456 (< 14 h), 1433.0709 (> 14 h), 728 (nights), 873.6 (holidays), 716.5354 (nights > 14 h),
// 859.8425 (holidays > 14 h), the same in February as in March unless a test says otherwise.
#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class HeuresSupp : public PaieSalaire {
 protected:
  HeuresSupp() {
    s.dBase_HSN = 23629.36;
    s.dBase_HSA = 21620.86;
    Fixe("HSBorne", 14.0);
    Fixe("HsCoefNorm", 1456.0);
    Fixe("HsCoefSupp", 1433.0709);
    Fixe("HSCOEFNUIT", 728.0);
    Fixe("HSCOEFJF", 873.6);
    Fixe("HSCOEFNUITSUPP", 716.5354);
    Fixe("HSCOEFJFSUPP", 859.8425);
    FixesDuMois("202402", {{"HSBorne", 14.0},
                           {"HsCoefNorm", 1456.0},
                           {"HsCoefSupp", 1433.0709},
                           {"HSCOEFNUIT", 728.0},
                           {"HSCOEFJF", 873.6},
                           {"HSCOEFNUITSUPP", 716.5354},
                           {"HSCOEFJFSUPP", 859.8425}});
    LigneDuHote();
  }
};

// Rates of the month: Arrondi(23629.36 / 1456 - 0.0049, 2) = Arrondi(16.22406, 2) = 16.22;
// Arrondi(23629.36 / 1433.0709 - 0.0049, 2) = Arrondi(16.48372, 2) = 16.48.
TEST_F(HeuresSupp, VingtHeuresQuatorzeDansLaBorneSixAuDela) {
  Var("HSNORMALEM", 20.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(14, 16.22, 227.08);  // 14 x 16.22
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS"));
  Ligne(6, 16.48, 98.88);  // (20 - 14) x 16.48
}

TEST_F(HeuresSupp, DixHeuresToutesDansLaBorne) {
  Var("HSNORMALEM", 10.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(10, 16.22, 162.2);  // 10 x 16.22
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS"));
  Ligne(0, 16.48, 0);
}

TEST_F(HeuresSupp, LaBorneAtteinteExactement) {
  Var("HSNORMALEM", 14.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(14, 16.22, 227.08);
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS"));
  Ligne(0, 16.48, 0);
}

TEST_F(HeuresSupp, SansHeuresLaLigneEstEcriteAZero) {
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(0, 0, 0);
  LigneDuHote();
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS"));
  Ligne(0, 0, 0);
}

TEST_F(HeuresSupp, LesHeuresSontLuesALUnite) {
  Var("HSNORMALEM", 7.5);  // read as 8
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(8, 16.22, 129.76);  // 8 x 16.22
}

TEST_F(HeuresSupp, UneBorneNegativeNePaieRienDedansToutAuDela) {
  Fixe("HSBorne", -1.0);
  Var("HSNORMALEM", 20.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(0, 16.22, 0);
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS"));
  Ligne(20, 16.48, 329.6);  // 20 x 16.48
}

TEST_F(HeuresSupp, LaDureeLegaleRameneA35Heures) {
  s.dDureeHebdoLegale = 38;
  Var("HSNORMALEM", 14.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(14, 14.94, 209.16);  // Arrondi(16.22 x 35 / 38, 2) = Arrondi(14.9395, 2); x 14
}

TEST_F(HeuresSupp, SansDureeLegaleNiCoefficientPasDeTaux) {
  s.dDureeHebdoLegale = 0;
  Var("HSNORMALEM", 14.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(14, 0, 0);
  s.dDureeHebdoLegale = 35;
  Fixe("HsCoefNorm", Value());
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS"));
  Ligne(14, 0, 0);
}

// Arrondi(23629.36 / 728 - 0.0049, 2) = Arrondi(32.45301, 2) = 32.45.
TEST_F(HeuresSupp, LesNuitsDuMoisOuExceptionnellesSelonLeCode) {
  Var("HSNUITM", 5.0);
  Var("HSNUITEX", 2.0);
  r.sCodeRubrique = "HSNUITM";
  ASSERT_TRUE(Calcul("HEURES SUPP. NUITS DU MOIS"));
  Ligne(5, 32.45, 162.25);  // 5 x 32.45
  r.sCodeRubrique = "HSNUITEXC";
  ASSERT_TRUE(Calcul("HEURES SUPP. NUITS DU MOIS"));
  Ligne(2, 32.45, 64.9);  // 2 x 32.45
}

// Arrondi(23629.36 / 873.6 - 0.0049, 2) = Arrondi(27.04336, 2) = 27.04.
TEST_F(HeuresSupp, LesFeriesDuMoisOuExceptionnelsSelonLeCode) {
  Var("HSFERIEM", 3.0);
  Var("HSFEREX", 20.0);
  r.sCodeRubrique = "HSFERIEM";
  ASSERT_TRUE(Calcul("HEURES SUPP. FERIES DU MOIS"));
  Ligne(3, 27.04, 81.12);  // 3 x 27.04
  r.sCodeRubrique = "";
  ASSERT_TRUE(Calcul("HEURES SUPP. FERIES DU MOIS"));
  Ligne(14, 27.04, 378.56);  // 20 cut at 14; 14 x 27.04
}

// Arrondi(23629.36 / 716.5354 - 0.0049, 2) = 32.97; Arrondi(23629.36 / 859.8425 - 0.0049, 2)
// = 27.48.
TEST_F(HeuresSupp, NuitsEtFeriesAuDelaDeLaBorne) {
  Var("HSNUITM", 16.0);
  Var("HSFERIEM", 15.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. NUITS > 14 HEURES DU MOIS"));
  Ligne(2, 32.97, 65.94);  // (16 - 14) x 32.97
  ASSERT_TRUE(Calcul("HEURES SUPP. FERIES > 14 HEURES DU MOIS"));
  Ligne(1, 27.48, 27.48);  // (15 - 14) x 27.48
}

// The month before: Arrondi(21620.86 / 1456 - 0.0049, 2) = Arrondi(14.84459, 2) = 14.84 and
// Arrondi(21620.86 / 1433.0709 - 0.0049, 2) = Arrondi(15.08218, 2) = 15.08.
TEST_F(HeuresSupp, LeMoisPrecedentPartageLaBorneAvecLeMois) {
  Var("HSNORMALEP", 6.0);
  Var("HSNORMALEM", 10.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS PREC."));
  Ligne(4, 14.84, 59.36);  // 10 + 6 > 14: 14 - 10 = 4; 4 x 14.84
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS PREC."));
  Ligne(2, 15.08, 30.16);  // 6 - (14 - 10) = 2; 2 x 15.08
}

TEST_F(HeuresSupp, LeMoisPrecedentToutDansLaBorne) {
  Var("HSNORMALEP", 4.0);
  Var("HSNORMALEM", 10.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS PREC."));
  Ligne(4, 14.84, 59.36);  // 10 + 4 = 14, the limit reached: 4 x 14.84
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS PREC."));
  Ligne(0, 15.08, 0);
}

TEST_F(HeuresSupp, LeMoisAEpuiseLaBorne) {
  Var("HSNORMALEP", 6.0);
  Var("HSNORMALEM", 20.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS PREC."));
  Ligne(0, 14.84, 0);  // 14 - 20 < 0
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS PREC."));
  Ligne(6, 15.08, 90.48);  // 6 x 15.08
}

TEST_F(HeuresSupp, SansHeuresDuMoisPrecedentLaLigneEstAZero) {
  Var("HSNORMALEM", 6.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS PREC."));
  Ligne(0, 0, 0);
}

TEST_F(HeuresSupp, LaBorneEtLeCoefficientDuMoisPrecedentDAbord) {
  m.gRsConstantesFixesHistorique->MoveFirst();
  m.gRsConstantesFixesHistorique->SetField("HSBorne", 10.0);
  m.gRsConstantesFixesHistorique->SetField("HsCoefNorm", 0.0);  // 0: the month's divisor
  m.gRsConstantesFixesHistorique->SetField("HsCoefSupp", 1400.0);
  Var("HSNORMALEP", 6.0);
  Var("HSNORMALEM", 6.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS PREC."));
  Ligne(4, 14.84, 59.36);  // 6 + 6 > 10: 10 - 6 = 4; 4 x 14.84
  ASSERT_TRUE(Calcul("HEURES SUPP. > 14 HEURES DU MOIS PREC."));
  // 6 - (10 - 6) = 2; Arrondi(21620.86 / 1400 - 0.0049, 2) = Arrondi(15.43857, 2) = 15.44
  Ligne(2, 15.44, 30.88);
}

// Arrondi(21620.86 / 728 - 0.0049, 2) = 29.69; Arrondi(21620.86 / 873.6 - 0.0049, 2) = 24.74.
TEST_F(HeuresSupp, NuitsEtFeriesDuMoisPrecedent) {
  Var("HSNUITP", 4.0);
  Var("HSNUITM", 12.0);
  Var("HSFERIEP", 2.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. NUITS DU MOIS PREC."));
  Ligne(2, 29.69, 59.38);  // 12 + 4 > 14: 14 - 12 = 2; 2 x 29.69
  ASSERT_TRUE(Calcul("HEURES SUPP. FERIES DU MOIS PREC."));
  Ligne(2, 24.74, 49.48);  // no holiday hours this month: 2 x 24.74
}

// Arrondi(21620.86 / 716.5354 - 0.0049, 2) = 30.17; Arrondi(21620.86 / 859.8425 - 0.0049, 2)
// = 25.14.
TEST_F(HeuresSupp, NuitsEtFeriesDuMoisPrecedentAuDelaDeLaBorne) {
  Var("HSNUITP", 5.0);
  Var("HSNUITM", 12.0);
  Var("HSFERIEP", 4.0);
  Var("HSFERIEM", 14.0);
  ASSERT_TRUE(Calcul("HEURES SUPP. NUITS > 14 HEURES DU MOIS PREC."));
  Ligne(3, 30.17, 90.51);  // 5 - (14 - 12) = 3; 3 x 30.17
  ASSERT_TRUE(Calcul("HEURES SUPP. FERIES > 14 HEURES DU MOIS PREC."));
  Ligne(4, 25.14, 100.56);  // the month used the whole limit: 4 x 25.14
}

TEST_F(HeuresSupp, UnMoisPrecedentSansHistoriqueEstUneFaute) {
  m.gRsConstantesFixesHistorique = nullptr;
  Var("HSNORMALEP", 6.0);
  EXPECT_FALSE(Calcul("HEURES SUPP. < 14 HEURES DU MOIS PREC."));
}

}  // namespace
}  // namespace orvalis::salaire_test
