// The historic payroll tax and GIPA beside the current engine, and the retroactive pension
// line that both engines share.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

// Limits of the bands by month: 96000 / 12 = 8000 and 192000 / 12 = 16000.
class TaxeSalaireHistoriqueTest : public DeuxMoteurs {
 protected:
  TaxeSalaireHistoriqueTest() {
    Fixe("TxSalaire1", 96000);
    Fixe("TxSalaire2", 192000);
    s.sBaseTaxeSalaire = "M";
    Constante("K", 0.5, 9);
    Constante("TXS", 4.25, 5, "T");
    Constante("TXP", 4.25, 6, "T");
    r.sValeurBase = "TRAITEMENT DE BASE DU MOIS";
    r.sCoeffBase = "UNE CONSTANTE";
    r.lIdCoeffBase = 9;
    r.sValeurTauxSalarial = "UNE CONSTANTE";
    r.lIdValeurTauxSalarial = 5;
    r.sValeurTauxPatronal = "UNE CONSTANTE";
    r.lIdValeurTauxPatronal = 6;
  }
};

// Current: B = "BASE" 9000, band 9000 - 8000 = 1000, employee 4.25 % = 42.50; employer base
// 1000 x 0.5 = 500, 21.25. Historic: B = "BRUT" 10000, band 2000, 85.00 on both sides.
TEST_F(TaxeSalaireHistoriqueTest, FirstBandOnTheGross) {
  Cumul("BASE", 9000.0);
  Cumul("BRUT", 10000.0);
  Calcule("TAXE SUR SALAIRE TAUX 1");
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 42.5);
  EXPECT_DOUBLE_EQ(rN.dBase, 500.0);
  EXPECT_DOUBLE_EQ(rN.dMontantPatronal, 21.25);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 85.0);
  EXPECT_DOUBLE_EQ(rH.dBase, 2000.0);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 85.0);
}

// Gross 17000: second band 17000 - 16000 = 1000, 42.50; the first band is full, 8000.
TEST_F(TaxeSalaireHistoriqueTest, SecondBandOnTheGross) {
  Cumul("BASE", 9000.0);
  Cumul("BRUT", 17000.0);
  Calcule("TAXE SUR SALAIRE TAUX 2");
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 0.0);  // 9000 is under the second limit
  EXPECT_DOUBLE_EQ(rH.dBase, 1000.0);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 42.5);
  Calcule("TAXE SUR SALAIRE TAUX 1");
  EXPECT_DOUBLE_EQ(rH.dBase, 8000.0);
}

// A gross of exactly the first limit pays nothing in the first band.
TEST_F(TaxeSalaireHistoriqueTest, GrossAtTheFirstLimit) {
  Cumul("BRUT", 8000.0);
  Calcule("TAXE SUR SALAIRE TAUX 1");
  EXPECT_DOUBLE_EQ(rH.dBase, 0.0);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 0.0);
}

// (1 + 10 / 100) x 400 x 5 - 400 x 5.1 = 2200 - 2040 = 160. With 40 hours a week among
// employers, the current engine shares it: 160 x 35 / 40 = 140; the historic one pays 160.
TEST_F(DeuxMoteurs, GipaNotSharedByWeeklyHours) {
  Constante("GIPAVI2019", 5.0);
  Constante("GIPAVI2023", 5.1);
  Constante("TXINFL2024", 10.0);
  s.sGipaAnnee = "2024";
  s.dGipaIM_Debut = 400;
  s.dGipaIM_Fin = 400;
  s.dDureeHebdoLegale = 35;
  s.dHeuresCumulsHebdo = 40;
  Calcule("GIPA");
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 140.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 160.0);
  s.dHeuresCumulsHebdo = 35;  // at the legal week both pay 160
  Calcule("GIPA");
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 160.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 160.0);
}

TEST_F(DeuxMoteurs, GipaWithoutShortfallIsZero) {
  Constante("GIPAVI2019", 5.0);
  Constante("GIPAVI2023", 5.5);
  s.sGipaAnnee = "2024";
  s.dGipaIM_Debut = 400;
  s.dGipaIM_Fin = 400;  // 400 x 5 - 400 x 5.5 < 0
  Calcule("GIPA");
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 0.0);
}

// The employer repays 50 a month (100 of 500 so far); the employee's last 10 of 200.
TEST_F(DeuxMoteurs, RetroactivePensionTheSameInBoth) {
  paie_test::AjouteVariable(vars, "MTCNRRETRO", 50.0, 1, Value(), "M");
  paie_test::AjouteVariable(vars, "MTCNRPTOT", 500.0, 2, Value(), "M");
  paie_test::AjouteVariable(vars, "MTCNRPR", 100.0, 3, Value(), "M");
  paie_test::AjouteVariable(vars, "MTCNRSM", 20.0, 4, Value(), "M");
  paie_test::AjouteVariable(vars, "MTCNRSTOT", 200.0, 5, Value(), "M");
  paie_test::AjouteVariable(vars, "MTCNRSR", 190.0, 6, Value(), "M");
  Calcule("CNRACL Rétroactive");
  EXPECT_DOUBLE_EQ(rN.dMontantPatronal, 50.0);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 50.0);
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 10.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 10.0);
}

}  // namespace
}  // namespace orvalis::historique_test
