// Overtime and complementary hours: the historic engine beside the current one, one body
// for both. Reference salaries: 23629.36 on the index of the month (400 x 59.0734),
// 21620.86 on that of the month before (366 x 59.0734).
#include "historic/lignes_test_outils.h"

namespace orvalis::historique_test {
namespace {

class HeuresHistoriqueTest : public DeuxLignes {
 protected:
  HeuresHistoriqueTest() {
    n.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "SmicHor", "HrsMois"});
    h.gRsConstantesFixesHistorique = n.gRsConstantesFixesHistorique;
    const std::pair<const char*, double> kCoefs[] = {
        {"HSBorne", 14.0},         {"HsCoefNorm", 1456.0},     {"HsCoefSupp", 1433.0709},
        {"HSCOEFNUIT", 728.0},     {"HSCOEFJF", 873.6},        {"HSCOEFNUITSUPP", 716.5354},
        {"HSCOEFJFSUPP", 859.8425}};
    n.gRsConstantesFixesHistorique->AddNew();
    n.gRsConstantesFixesHistorique->SetField("Mois", "202402");
    for (const auto& [c, v] : kCoefs) {
      n.gRsConstantesFixes->AjouteColonne(c);
      n.gRsConstantesFixesHistorique->AjouteColonne(c);
      Fixe(c, v);
      n.gRsConstantesFixesHistorique->SetField(c, v);
    }
    s.dBase_HSN = 23629.36;
    s.dBase_HSA = 21620.86;
    s.dDureeHebdoLegale = 35;
  }
};

// Rates of the month: Arrondi(23629.36 / 1456 - 0.0049, 2) = Arrondi(16.22406, 2) = 16.22;
// Arrondi(23629.36 / 1433.0709 - 0.0049, 2) = Arrondi(16.48372, 2) = 16.48.
TEST_F(HeuresHistoriqueTest, TwentyHoursFourteenWithinTheLimitSixBeyond) {
  Var("HSNORMALEM", 20);
  Calcule("HEURES SUPP. < 14 HEURES DU MOIS");
  MemeLigne(14, 16.22, 227.08);  // 14 x 16.22
  Calcule("HEURES SUPP. > 14 HEURES DU MOIS");
  MemeLigne(6, 16.48, 98.88);  // 6 x 16.48
}

TEST_F(HeuresHistoriqueTest, LimitReachedExactly) {
  Var("HSNORMALEM", 14);
  Calcule("HEURES SUPP. < 14 HEURES DU MOIS");
  MemeLigne(14, 16.22, 227.08);
  Calcule("HEURES SUPP. > 14 HEURES DU MOIS");
  MemeLigne(0, 16.48, 0);
}

TEST_F(HeuresHistoriqueTest, NoHoursNoRate) {
  Calcule("HEURES SUPP. < 14 HEURES DU MOIS");
  MemeLigne(0, 0, 0);
  Calcule("HEURES SUPP. < 14 HEURES DU MOIS PREC.");
  MemeLigne(0, 0, 0);
}

// Nights: Arrondi(23629.36 / 728 - 0.0049, 2) = Arrondi(32.45301, 2) = 32.45, the line coded
// with the month's variable reads it. Holidays past the limit, by the line's name:
// Arrondi(23629.36 / 859.8425 - 0.0049, 2) = Arrondi(27.47613, 2) = 27.48.
TEST_F(HeuresHistoriqueTest, NightsAndHolidaysOfTheMonth) {
  Var("HSNUITM", 5);
  Var("HSFERIEM", 16);
  r.sCodeRubrique = "HSNUITM";
  Calcule("HEURES SUPP. NUITS DU MOIS");
  MemeLigne(5, 32.45, 162.25);  // 5 x 32.45
  Calcule("HEURES SUPP. FERIES > 14 HEURES DU MOIS");
  MemeLigne(2, 27.48, 54.96);  // (16 - 14) x 27.48
  Calcule("HEURES SUPP. NUITS > 14 HEURES DU MOIS");
  MemeLigne(0, 32.97, 0);  // Arrondi(23629.36 / 716.5354 - 0.0049, 2) = 32.97; 5 < 14
  // A holiday line with another code reads the exceptional hours, none here.
  r.sCodeRubrique = "HSFEREX";
  Calcule("HEURES SUPP. FERIES DU MOIS");
  MemeLigne(0, 0, 0);
}

// February's hours share the limit with the 8 hours of March: 14 - 8 = 6 within it, at
// Arrondi(21620.86 / 1456 - 0.0049, 2) = Arrondi(14.84459, 2) = 14.84, and 10 - 6 = 4 beyond
// it at Arrondi(21620.86 / 1433.0709 - 0.0049, 2) = Arrondi(15.08218, 2) = 15.08.
TEST_F(HeuresHistoriqueTest, MonthBeforeSharesTheLimit) {
  Var("HSNORMALEM", 8);
  Var("HSNORMALEP", 10);
  Calcule("HEURES SUPP. < 14 HEURES DU MOIS PREC.");
  MemeLigne(6, 14.84, 89.04);  // 6 x 14.84
  Calcule("HEURES SUPP. > 14 HEURES DU MOIS PREC.");
  MemeLigne(4, 15.08, 60.32);  // 4 x 15.08
}

// Nights of February, 3 with 12 in March: 14 - 12 = 2 within the limit at
// Arrondi(21620.86 / 728 - 0.0049, 2) = Arrondi(29.69408, 2) = 29.69; 1 beyond at
// Arrondi(21620.86 / 716.5354 - 0.0049, 2) = Arrondi(30.16927, 2) = 30.17. Holidays: 4 with
// none in March, all within, at Arrondi(21620.86 / 873.6 - 0.0049, 2) = 24.74.
TEST_F(HeuresHistoriqueTest, NightsAndHolidaysOfTheMonthBefore) {
  Var("HSNUITM", 12);
  Var("HSNUITP", 3);
  Var("HSFERIEP", 4);
  Calcule("HEURES SUPP. NUITS DU MOIS PREC.");
  MemeLigne(2, 29.69, 59.38);  // 2 x 29.69
  Calcule("HEURES SUPP. NUITS > 14 HEURES DU MOIS PREC.");
  MemeLigne(1, 30.17, 30.17);
  Calcule("HEURES SUPP. FERIES DU MOIS PREC.");
  MemeLigne(4, 24.74, 98.96);  // 4 x 24.74
  Calcule("HEURES SUPP. FERIES > 14 HEURES DU MOIS PREC.");
  MemeLigne(0, 25.14, 0);  // Arrondi(21620.86 / 859.8425 - 0.0049, 2) = 25.14
}

class HeuresComplementairesHistoriqueTest : public HeuresHistoriqueTest {
 protected:
  HeuresComplementairesHistoriqueTest() {
    s.sTypeModele = "INDTIT";
    Fixe("SmicHor", 11.65);
    Fixe("HrsMois", 151.67);
    n.gRsConstantesFixesHistorique->SetField("SmicHor", 11.52);
    n.gRsConstantesFixesHistorique->SetField("HrsMois", 151.67);
    // Ten hours: the employee part of another line.
    r.sValeurBase = "PART SALARIALE D'UNE RUBRIQUE";
    r.dMontantSalarialRub = 10;
  }
};

// Month: Arrondi(23629.36 / (35 x 52), 2) = Arrondi(12.98316, 2) = 12.98, above the SMIC.
// Month before: Arrondi(21620.86 / 1820, 2) = Arrondi(11.87959, 2) = 11.88, above 11.52.
TEST_F(HeuresComplementairesHistoriqueTest, IndexedOnTheLegalWeek) {
  Calcule("HEURES COMPLEMENTAIRES DU MOIS");
  MemeLigne(10, 12.98, 129.8);
  Calcule("HEURES COMPLEMENTAIRES DU MOIS PREC.");
  MemeLigne(10, 11.88, 118.8);
}

// A reference below the SMIC is raised to it: Arrondi(18000 / 1820, 2) = 9.89 < 11.65.
TEST_F(HeuresComplementairesHistoriqueTest, RaisedToTheSmic) {
  s.dBase_HSN = 18000;
  Calcule("HEURES COMPLEMENTAIRES DU MOIS");
  MemeLigne(10, 11.65, 116.5);
}

// The same body reads the hours through each engine's own resolver: the particular total is
// found by its id in the current engine (id 7: 12 hours), by the line's code in the historic
// one ("HCOMP": 5 hours).
TEST_F(HeuresComplementairesHistoriqueTest, HoursThroughEachEnginesResolver) {
  Cumul("HCOMP", 5, 0, 3);
  Cumul("AUTRE", 12, 0, 7);
  r.sValeurBase = "UN CUMUL PARTICULIER";
  r.sCodeRubrique = "HCOMP";
  r.lIdValeurBase = 7;
  Calcule("HEURES COMPLEMENTAIRES DU MOIS");
  EXPECT_NEAR(rN.dMontantSalarial, 155.76, 1e-9);  // 12 x 12.98
  EXPECT_NEAR(rH.dMontantSalarial, 64.9, 1e-9);    // 5 x 12.98
}

TEST_F(HeuresComplementairesHistoriqueTest, NoHoursNoRate) {
  r.dMontantSalarialRub = 0;
  Calcule("HEURES COMPLEMENTAIRES DU MOIS");
  MemeLigne(0, 0, 0);
}

// 169 hours before the 35 hours follow the hours worked: 151.67 x 169 / 151.67 = 169. The
// guarantee: Arrondi((5 / 100 + 1) x 11.65 x 169, 2) = Arrondi(2067.2925, 2) = 2067.29; paid
// 151.67 x 11.65 = 1766.9555; the complement 2067.29 - 1766.9555 = 300.3345.
TEST_F(HeuresComplementairesHistoriqueTest, DifferentialComplementOf35Hours) {
  Cumul("HEURES", 151.67);
  Var("NBHRAV35", 169);
  Var("TXHEURES", 11.65);
  Constante("SMICTXVAL", 5);
  Constante("SMIC35", 11.65);
  Calcule("COMPLEMENT DIFFERENTIEL 35 H");
  MemeLigne(2067.29, 0, 300.3345);
}

TEST_F(HeuresComplementairesHistoriqueTest, DifferentialComplementWithoutHours) {
  Calcule("COMPLEMENT DIFFERENTIEL 35 H");
  MemeLigne(0, 0, 0);
}

}  // namespace
}  // namespace orvalis::historique_test
