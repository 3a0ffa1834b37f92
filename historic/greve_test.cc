// The historic strike line beside the current one on the same record: the strike counters
// whatever the code, no base shown negative, and the treatment of the month before net of
// what was already taken back from it.
#include <cmath>

#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class GreveHistoriqueTest : public DeuxMoteurs {
 protected:
  GreveHistoriqueTest() {
    r.sValeurBase = "TRAITEMENT DE BASE DU MOIS";
    r.sCodeRubrique = "RETGREVETR";
    histo = NouveauRecordset({"IDSALARIE", "Mois", "HeuresMois"});
    varsHisto = paie_test::NouvellesVariables();
  }

  void HeuresHistorique(const std::string& mois, double heures) {
    histo->AddNew();
    histo->SetField("IDSALARIE", 42);
    histo->SetField("Mois", mois);
    histo->SetField("HeuresMois", heures);
  }

  // The line by name on each engine, with the history of pay and variables.
  void Greve(const std::string& sNom) {
    sN = s;
    sH = s;
    rN = r;
    rH = r;
    ASSERT_TRUE(n.Appel_Methode_Calcul_General(sNom, sN, rN, vars, varsHisto, histo));
    ASSERT_TRUE(h.Appel_Methode_Calcul_General(sNom, sH, rH, vars, varsHisto, histo));
  }

  // The line by name on both engines, the same base and amount expected of each.
  void Both(const std::string& sNom, double dBase, double dMontant) {
    Greve(sNom);
    Ligne(rN, dBase, dMontant);
    Ligne(rH, dBase, dMontant);
  }

  static void Ligne(const SalarieCalculRubrique& l, double dBase, double dMontant) {
    EXPECT_DOUBLE_EQ(l.dBase, dBase);
    EXPECT_EQ(l.dTauxSalarial, 0.0);
    EXPECT_DOUBLE_EQ(l.dMontantSalarial, dMontant);
    EXPECT_EQ(l.dTauxPatronal, 0.0);
    EXPECT_EQ(l.dMontantPatronal, 0.0);
  }

  RsRef histo, varsHisto;
};

// 2 days and a half day on 3000: 2 x 3000 / 30 + 3000 x 1 / 60 = 200 + 50, on both.
TEST_F(GreveHistoriqueTest, DaysAndHalfDaysTheSameOnBoth) {
  Cumul("BASE", 3000);
  s.dGreveJours = 2;
  s.dGreveDemiJours = 1;
  Both("GREVE", 3000, -250);
}

// Hours over the month's hours and "HEURESA": 3 x 3000 / (140 + 10) = 60, on both; with no
// hours in the month the hours take nothing back and nothing is divided.
TEST_F(GreveHistoriqueTest, HoursOverTheMonthsHoursAndHeuresA) {
  Cumul("BASE", 3000);
  s.dGreveHeures = 3;
  s.dHeuresMois = 140;
  paie_test::AjouteVariable(vars, "HEURESA", 10, 0, Value(), "M");
  Both("GREVE", 3000, -60);
  s.dHeuresMois = -10;  // with "HEURESA" 10: no hours
  Both("GREVE", 3000, 0);
}

TEST_F(GreveHistoriqueTest, NothingCountedGivesTheBaseAndNoAmount) {
  Cumul("BASE", 3000);
  Both("GREVE", 3000, 0);
  EXPECT_FALSE(std::signbit(rH.dMontantSalarial));
}

// An other absence: the current engine reads its counters (3 x 3000 / 30 = 300), the
// historic one the strike's (2 x 3000 / 30 = 200).
TEST_F(GreveHistoriqueTest, OnlyTheStrikeCountersHere) {
  Cumul("BASE", 3000);
  s.dGreveJours = 2;
  s.dAutreAbsenceJours = 3;
  s.iNbCarence1 = 4;
  r.sCodeRubrique = "RETABSENCETR";
  Greve("GREVE");
  Ligne(rN, 3000, -300);
  Ligne(rH, 3000, -200);
  r.sCodeRubrique = "RETCARENCETR1";  // 4 x 3000 / 30 = 400 against the strike's 200
  Greve("GREVE");
  Ligne(rN, 3000, -400);
  Ligne(rH, 3000, -200);
  r.sCodeRubrique = "AUTRE";  // a code of no family: nothing on the current engine
  Greve("GREVE");
  Ligne(rN, 3000, 0);
  Ligne(rH, 3000, -200);
}

// 3 days on 1000: 100 taken back on both; the current engine shows the base negative.
TEST_F(GreveHistoriqueTest, NoBaseShownNegative) {
  Cumul("BASE", 1000);
  s.dGreveJours = 3;
  r.sCodeRubrique = "RETGREVETPP";
  Greve("GREVE");
  Ligne(rN, -1000, -100);
  Ligne(rH, 1000, -100);
}

// The month before: February's treatment 3000, of which 600 already taken back. Current:
// 2 x 3000 / 30 + 4 x 3000 / (150 + 10) = 200 + 75. Historic on 2400: 160 + 60.
TEST_F(GreveHistoriqueTest, MonthBeforeNetOfWhatWasTakenBack) {
  paie_test::AjouteHistorique(n.gRsCumulsHistoriqueSal, 42, "202402", "BASE", 3000, 0);
  r.sValeurBase = "TRAITEMENT DE BASE DU MOIS PREC";
  s.dMtRetenueTbiMoisPrec = 600;
  s.dGreveJours = 9;  // this month's: not read
  s.dGreveJoursPrec = 2;
  s.dGreveHeuresPrec = 4;
  HeuresHistorique("202403", 999);
  HeuresHistorique("202402", 150);
  paie_test::AjouteVariable(varsHisto, "HEURESA", 10, 0, Value(), "M");
  Greve("GREVE MOIS PRECEDENT");
  Ligne(rN, 3000, -275);
  Ligne(rH, 2400, -220);
}

// The retained amount is taken off that base alone, and on this month's line too.
TEST_F(GreveHistoriqueTest, RetainedAmountOnlyOnTheTreatmentOfTheMonthBefore) {
  Cumul("BASE", 3000);
  s.dMtRetenueTbiMoisPrec = 600;
  s.dGreveJours = 3;
  Greve("GREVE");
  Ligne(rH, 3000, -300);  // 3 x 3000 / 30
  paie_test::AjouteHistorique(n.gRsCumulsHistoriqueSal, 42, "202402", "BASE", 3000, 0);
  r.sValeurBase = "TRAITEMENT DE BASE DU MOIS PREC";
  Greve("GREVE");
  Ligne(rN, 3000, -300);
  Ligne(rH, 2400, -240);  // 3 x 2400 / 30
  s.dMtRetenueTbiMoisPrec = 3600;  // more than the base: a negative base, a refund
  Greve("GREVE");
  Ligne(rH, -600, 60);  // 3 x -600 / 30 = -60 taken back
}

// January's month before is December of the year before: 2 x 3000 / 120.
TEST_F(GreveHistoriqueTest, MonthBeforeInJanuaryIsDecember) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/01/2024";
  Cumul("BASE", 3000);
  s.dGreveHeuresPrec = 2;
  HeuresHistorique("202401", 999);
  HeuresHistorique("202312", 120);
  Both("GREVE MOIS PRECEDENT", 3000, -50);
}

}  // namespace
}  // namespace orvalis::historique_test
