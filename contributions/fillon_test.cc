// The Fillon reduction of a year of pay, and the year's figures it rests on.
#include <gtest/gtest.h>

#include "contributions/reductions_test_util.h"

namespace orvalis {
namespace {

using reductions_test::AnneeDePaie;

class ReductionFillon : public AnneeDePaie {
 protected:
  bool Fillon(const char* nom = "REDUCTION FILLON") {
    return m.Appel_Methode_Calcul_General(nom, s, r);
  }
  void Janvier(double smicHor) {
    m.gPeriodeEncours = "01/01/2024";
    m.gRsConstantesFixes->SetField("SmicHor", smicHor);
  }
};

// A year at the minimum: A = 10 x 1766.96 + 2 x 1801.84 = 21273.28; S = 10 x 1766.9555 +
// 2 x 1801.8396 = 21273.2342; R = S / A x 1.6 - 1 = 0.5999966; T = 0.2795 / 0.6;
// C = 0.2794984 -> 0.279; Y = 21273.28 x 0.279 = 5935.24512.
TEST_F(ReductionFillon, OneMinimumWageOverTwelveMonths) {
  AnneeAuSmic(1, 1);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(s.dAssietteCotAnnuelle, 21273.28, 1e-9);
  EXPECT_NEAR(s.dSmicAnnuelFillon, 21273.2342, 1e-9);
  EXPECT_NEAR(s.dSmicAnnuelAFPourComparaison, 34037.17472, 1e-9);  // x 1.6
  EXPECT_NEAR(s.dMontantReductionFillonAnnee, 5935.24512, 1e-9);
  EXPECT_NEAR(r.dBase, 5935.24512, 1e-9);
  EXPECT_NEAR(r.dMontantPatronal, -5935.24512, 1e-9);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
  EXPECT_EQ(r.dTauxSalarial, 0.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
  EXPECT_TRUE(s.bCalculFillonDejaRealise);
}

// What earlier months took (11 x 450 = 4950) is deducted: 5935.24512 - 4950 = 985.24512.
TEST_F(ReductionFillon, TheMonthBearsTheDifferenceWithEarlierMonths) {
  AnneeAuSmic(1, 1, -450);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(r.dBase, 985.24512, 1e-9);
  EXPECT_NEAR(r.dMontantPatronal, -985.24512, 1e-9);
}

// A = 10 x 2297.04 + 2 x 2342.39 = 27655.18; R = 21273.2342 / 27655.18 x 1.6 - 1 = 0.2307703;
// C = 0.2307703 x 0.2795 / 0.6 = 0.1075005 -> 0.108; Y = 27655.18 x 0.108 = 2986.75944.
TEST_F(ReductionFillon, OnePointThreeMinimumWageOverTwelveMonths) {
  AnneeAuSmic(1.3, 1, -250);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(s.dAssietteCotAnnuelle, 27655.18, 1e-9);
  EXPECT_NEAR(s.dMontantReductionFillonAnnee, 2986.75944, 1e-9);
  EXPECT_NEAR(r.dMontantPatronal, -236.75944, 1e-9);  // 2986.75944 - 11 x 250
}

// A = 10 x 2827.13 + 2 x 2882.94 = 34037.18 is above S x 1.6 = 34037.17472: no reduction at
// all, and what earlier months took (11 x 100) is given back.
TEST_F(ReductionFillon, OnePointSixMinimumWageIsAboveTheCeilingAndGivesBack) {
  AnneeAuSmic(1.6, 1, -100);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(s.dAssietteCotAnnuelle, 34037.18, 1e-9);
  EXPECT_EQ(s.dMontantReductionFillonAnnee, 0.0);
  EXPECT_NEAR(r.dMontantPatronal, 1100.0, 1e-9);
  EXPECT_NEAR(r.dBase, 1100.0, 1e-9);
}

// From June: A = 5 x 1766.96 + 2 x 1801.84 = 12438.48; S = 5 x 1766.9555 + 2 x 1801.8396 =
// 12438.4567; C = 0.279; Y = 12438.48 x 0.279 = 3470.33592.
TEST_F(ReductionFillon, OneMinimumWageOverAYearStartedInJune) {
  AnneeAuSmic(1, 6);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(s.dAssietteCotAnnuelle, 12438.48, 1e-9);
  EXPECT_NEAR(s.dSmicAnnuelFillon, 12438.4567, 1e-9);
  EXPECT_NEAR(r.dMontantPatronal, -3470.33592, 1e-9);
}

// A = 5 x 2297.04 + 2 x 2342.39 = 16169.98; C = 0.108; Y = 16169.98 x 0.108 = 1746.35784.
TEST_F(ReductionFillon, OnePointThreeMinimumWageOverAYearStartedInJune) {
  AnneeAuSmic(1.3, 6);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(r.dMontantPatronal, -1746.35784, 1e-9);
}

// A = 5 x 2827.13 + 2 x 2882.94 = 19901.53, just below S x 1.6 = 19901.53072: no cut, but
// C = Arrondi(0.0000000169, 3) = 0 and the reduction is 0 by the formula.
TEST_F(ReductionFillon, OnePointSixMinimumWageOverAYearStartedInJune) {
  AnneeAuSmic(1.6, 6);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(s.dAssietteCotAnnuelle, 19901.53, 1e-9);
  EXPECT_EQ(s.dMontantReductionFillonAnnee, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

// Larger employers: T = 0.2835 / 0.6 = 0.4725; C = 0.5999966 x 0.4725 = 0.2834984 -> 0.283;
// Y = 21273.28 x 0.283 = 6020.33824.
TEST_F(ReductionFillon, LargerEmployerRate) {
  AnneeAuSmic(1, 1);
  ASSERT_TRUE(Fillon("REDUCTION FILLON (> 19 AGENTS)"));
  EXPECT_NEAR(r.dMontantPatronal, -6020.33824, 1e-9);
}

// Constants of the table replace the defaults: T = 0.3206 / 0.6; C = 0.5999966 x 0.5343333 =
// 0.3205982 -> 0.321; Y = 21273.28 x 0.321 = 6828.72288. A divisor of 0 takes 0.6.
TEST_F(ReductionFillon, ConstantsOfTheTableAndADivisorOfZero) {
  AnneeAuSmic(1, 1);
  Constante("FILLON-20", 0.3206);
  Constante("FILLONDIV", 0);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(r.dMontantPatronal, -6828.72288, 1e-9);
}

// January: no earlier month is read, not even December of the year before.
// S = 151.67 x 11.65 = 1766.9555; A = 1766.96; C = 0.279; Y = 1766.96 x 0.279 = 492.98184.
TEST_F(ReductionFillon, JanuaryReadsNoHistory) {
  Janvier(11.65);
  MoisCourant(1766.96, 151.67);
  paie_test::AjouteHistorique(m.gRsCumulsHistoriqueSal, s.lIdSalarie, "202312", "REDFILLON", 0,
                              -500);
  paie_test::AjouteHistorique(m.gRsCumulsHistoriqueSal, s.lIdSalarie, "202312", "ASSURSTOT",
                              1766.96, 0);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(s.dAssietteCotAnnuelle, 1766.96, 1e-9);
  EXPECT_NEAR(r.dMontantPatronal, -492.98184, 1e-9);
}

// S x F exactly A: S = 100 x 10 = 1000, A = 1600; R = 0 and the reduction is 0.
TEST_F(ReductionFillon, CeilingReachedExactly) {
  Janvier(10);
  MoisCourant(1600, 100);
  ASSERT_TRUE(Fillon());
  EXPECT_EQ(s.dMontantReductionFillonAnnee, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
  EXPECT_EQ(r.dBase, 0.0);
}

// Pay at half the ceiling: A = 800, R = 1000 / 800 x 1.6 - 1 = 1; C = 0.4658333 -> 0.466;
// Y = 800 x 0.466 = 372.80.
TEST_F(ReductionFillon, BelowTheCeiling) {
  Janvier(10);
  MoisCourant(800, 100);
  ASSERT_TRUE(Fillon());
  EXPECT_NEAR(r.dMontantPatronal, -372.8, 1e-9);
}

// No base this year: no reduction, and whatever earlier months took comes back (3 x 120).
TEST_F(ReductionFillon, ZeroBaseGivesBackEarlierReductions) {
  m.gPeriodeEncours = "01/04/2024";
  MoisCourant(0, 0);
  for (int mois = 1; mois <= 3; ++mois) MoisPasse(mois, 0, 0, 0, -120);
  ASSERT_TRUE(Fillon());
  EXPECT_EQ(s.dMontantReductionFillonAnnee, 0.0);
  EXPECT_NEAR(r.dMontantPatronal, 360.0, 1e-9);
  EXPECT_NEAR(r.dBase, 360.0, 1e-9);
}

TEST_F(ReductionFillon, NegativeBaseGivesNoReduction) {
  Janvier(11.65);
  MoisCourant(-500, 151.67);
  ASSERT_TRUE(Fillon());
  EXPECT_EQ(s.dMontantReductionFillonAnnee, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(ReductionFillon, EmptyTotalsGiveNothing) {
  Janvier(11.65);
  ASSERT_TRUE(Fillon());
  EXPECT_EQ(s.dAssietteCotAnnuelle, 0.0);
  EXPECT_EQ(s.dSmicAnnuelFillon, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

// The constants by month are the host's to give once the year has a past month.
TEST_F(ReductionFillon, PastMonthsNeedTheConstantsByMonth) {
  AnneeAuSmic(1, 1);
  m.gRsConstantesHistorique = nullptr;
  r.dMontantPatronal = 9;
  EXPECT_FALSE(Fillon());
  EXPECT_EQ(r.dMontantPatronal, 9.0);
  Janvier(11.65);
  EXPECT_TRUE(Fillon());
}

class DonneesAnnee : public AnneeDePaie {
 protected:
  DonneesAnnee() {
    m.gPeriodeEncours = "01/02/2024";
    m.gRsConstantesFixes->SetField("SmicHor", reductions_test::SmicHor2024(2));
  }
  double Calcule(bool bFillon, bool bMsa) {
    double d = -1;
    m.RechercheDonneesPourCalculExonerationAllocFamOuFillon(s, d, bFillon, bMsa);
    return d;
  }
};

// A legal week of 39 hours: H = 11.65 x 35 / 39 = 10.4551282. Full time at 39 hours reads
// the worked hours this month (169 x H = 1766.9167) and the paid hours of January
// (169 x H = 1766.9167), never January's worked hours.
TEST_F(DonneesAnnee, LegalWeekOf39HoursAndWorkedHours) {
  s.dDureeHebdoLegale = 39;
  s.dHeuresHebdo = 39;
  Cumul("HEURESTRAV", 169);
  Cumul("HEURES", 180);
  Historique(1, "HEURES", 169);
  Historique(1, "HEURESTRAV", 999);
  EXPECT_EQ(Calcule(false, false), 0.0);
  EXPECT_NEAR(s.dSmicAnnuelFillon, 3533.8334, 1e-9);
}

// Part time (30 hours of 39): the paid hours, 180 x 10.4551282 = 1881.9231.
TEST_F(DonneesAnnee, PartTimeReadsPaidHours) {
  s.dDureeHebdoLegale = 39;
  s.dHeuresHebdo = 30;
  Cumul("HEURESTRAV", 169);
  Cumul("HEURES", 180);
  Calcule(false, false);
  EXPECT_NEAR(s.dSmicAnnuelFillon, 1881.9231, 1e-9);
}

// Civil-servant regime: overtime above the hours counts 0 this month (10 - 20 < 0), while
// January keeps its negative product and no 35-hour correction:
// (151.67 - 160) x 11.65 = -97.0445; x 1.6 = -155.2712.
TEST_F(DonneesAnnee, CivilServantOvertimeAboveTheHours) {
  s.bRegineFonctionnaire = true;
  s.dDureeHebdoLegale = 39;
  s.dHeuresHebdo = 39;
  MoisCourant(100, 10, 20);
  MoisPasse(1, 2000, 151.67, 160, -30);
  EXPECT_NEAR(Calcule(true, false), 30.0, 1e-9);
  EXPECT_NEAR(s.dAssietteCotAnnuelle, 2100.0, 1e-9);
  EXPECT_NEAR(s.dSmicAnnuelFillon, -97.0445, 1e-9);
  EXPECT_NEAR(s.dSmicAnnuelAFPourComparaison, -155.2712, 1e-9);
}

// Without the Fillon part the reductions taken are not summed.
TEST_F(DonneesAnnee, WithoutFillonNothingAlreadyTaken) {
  MoisPasse(1, 2000, 151.67, 0, -30);
  EXPECT_EQ(Calcule(false, false), 0.0);
}

// Weights of the family-allowance ceiling: 1.5 now, 1.4 as it stood in January.
// 151.67 x 11.65 = 1766.9555 each month: 1766.9555 x 1.5 + 1766.9555 x 1.4 = 5124.17095.
class ComplementTaux : public DonneesAnnee {
 protected:
  ComplementTaux() {
    Constante("URSAFSMIC", 1.5);
    ConstanteDuMois("URSAFSMIC", 1, 1.4);
    MoisCourant(2700, 151.67);
    MoisPasse(1, 2500, 151.67, 0, 0);
  }
};

TEST_F(ComplementTaux, GeneralRegimeWeights) {
  EXPECT_TRUE(m.bDeclenchementComplementTauxCotisations(s, false));  // 5200 > 5124.17095
  EXPECT_NEAR(s.dSmicAnnuelAFPourComparaison, 5124.17095, 1e-9);
}

// The farming regime has no constant here: 1.6 both months, 3533.911 x 1.6 = 5654.2576.
TEST_F(ComplementTaux, FarmingRegimeDefaults) {
  EXPECT_FALSE(m.bDeclenchementComplementTauxCotisations(s, true));
  EXPECT_NEAR(s.dSmicAnnuelAFPourComparaison, 5654.2576, 1e-9);
}

// Figures already computed stand, even for the other regime.
TEST_F(ComplementTaux, FiguresAlreadyComputedStand) {
  EXPECT_TRUE(m.bDeclenchementComplementTauxCotisations(s, false));
  EXPECT_TRUE(m.bDeclenchementComplementTauxCotisations(s, true));
  s.bCalculFillonDejaRealise = false;
  EXPECT_FALSE(m.bDeclenchementComplementTauxCotisations(s, true));
}

// The ceiling reached exactly is not above it: 100 x 10 x 1.6 = 1600.
TEST_F(DonneesAnnee, ComplementAtTheCeilingExactly) {
  m.gPeriodeEncours = "01/01/2024";
  m.gRsConstantesFixes->SetField("SmicHor", 10.0);
  MoisCourant(1600, 100);
  EXPECT_FALSE(m.bDeclenchementComplementTauxCotisations(s, false));
  s.bCalculFillonDejaRealise = false;
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
  MoisCourant(1600.01, 100);
  EXPECT_TRUE(m.bDeclenchementComplementTauxCotisations(s, false));
}

}  // namespace
}  // namespace orvalis
