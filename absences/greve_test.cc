// Strike, other absence and waiting-block deductions of the month and of the month before.
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <string>

#include "absences/greve_maintien_test_outils.h"
#include "generic/base_test_util.h"

namespace orvalis::test {
namespace {

// March 2024; the line's base is the month's treatment, the total "BASE".
class GreveTest : public PaieDeMars {
 protected:
  GreveTest() {
    r.sValeurBase = "TRAITEMENT DE BASE DU MOIS";
    r.sCodeRubrique = "RETGREVETR";
    histo = NouveauRecordset({"IDSALARIE", "Mois", "HeuresMois"});
    varsHisto = paie_test::NouvellesVariables();
  }

  void Traitement(double d) { Cumul("BASE", d); }

  void HeuresHistorique(const std::string& mois, double heures) {
    histo->AddNew();
    histo->SetField("IDSALARIE", 42);
    histo->SetField("Mois", mois);
    histo->SetField("HeuresMois", heures);
  }

  void VariableHisto(const std::string& code, double valeur) {
    paie_test::AjouteVariable(varsHisto, code, valeur, 0, Value(), "M");
  }

  void Greve(const std::string& sMode = "N") {
    m.CalculRubrique_Greve(s, r, vars, sMode, histo, varsHisto);
  }

  bool Appel(const std::string& sNom) {
    return m.Appel_Methode_Calcul_General(sNom, s, r, vars, varsHisto, histo);
  }

  void VerifieLigne(double dBase, double dMontantSalarial) {
    absences_test::VerifieLigne(r, dBase, 0, dMontantSalarial);
  }

  // Each code in turn gives the same line.
  void ParCode(std::initializer_list<const char*> codes, double dBase, double dMontantSalarial,
               const std::string& sMode = "N") {
    for (const char* code : codes) {
      SCOPED_TRACE(code);
      r.sCodeRubrique = code;
      Greve(sMode);
      VerifieLigne(dBase, dMontantSalarial);
    }
  }

  RsRef histo;
  RsRef varsHisto;
};

TEST_F(GreveTest, OneDayIsAThirtiethOfTheBase) {
  Traitement(3000);
  s.dGreveJours = 1;
  Greve();
  VerifieLigne(3000, -100);  // 1 x 3000 / 30
}

TEST_F(GreveTest, TwoDays) {
  Traitement(2134.56);
  s.dGreveJours = 2;
  Greve();
  VerifieLigne(2134.56, -142.304);  // 2 x 2134.56 / 30, not rounded
}

TEST_F(GreveTest, HalfDayIsASixtiethOfTheBase) {
  Traitement(3000);
  s.dGreveDemiJours = 1;
  Greve();
  VerifieLigne(3000, -50);  // 3000 x 1 / 60
}

TEST_F(GreveTest, DaysAndHalfDaysAdd) {
  Traitement(3000);
  s.dGreveJours = 2;
  s.dGreveDemiJours = 1;
  Greve();
  VerifieLigne(3000, -250);  // 200 for the days, 50 for the half day
}

TEST_F(GreveTest, HoursOverTheHoursOfTheMonthAndHeuresA) {
  Traitement(3000);
  s.dHeuresMois = 140;
  Variable("HEURESA", 10);
  s.dGreveHeures = 3;
  Greve();
  VerifieLigne(3000, -60);  // 3 x 3000 / (140 + 10)
}

TEST_F(GreveTest, HeuresAIsReadToTheUnit) {
  Traitement(3000);
  s.dHeuresMois = 140;
  Variable("HEURESA", 9.6);  // read as 10
  s.dGreveHeures = 3;
  Greve();
  VerifieLigne(3000, -60);  // 3 x 3000 / 150
}

TEST_F(GreveTest, HoursWithoutHoursOfTheMonthCountNothing) {
  Traitement(3000);
  s.dHeuresMois = 0;
  s.dGreveHeures = 5;
  s.dGreveJours = 1;
  Greve();
  VerifieLigne(3000, -100);  // the day only; no division by 0 hours
}

TEST_F(GreveTest, NegativeHoursOfTheMonthCountNothing) {
  Traitement(3000);
  s.dHeuresMois = 0;
  Variable("HEURESA", -10);
  s.dGreveHeures = 5;
  Greve();
  VerifieLigne(3000, 0);
}

TEST_F(GreveTest, NoCounterWritesTheBaseAndNothingTakenBack) {
  Traitement(3000);
  r.dMontantSalarial = 77;
  r.dTauxSalarial = 5;
  r.dMontantPatronal = 4;
  Greve();
  VerifieLigne(3000, 0);
  EXPECT_FALSE(std::signbit(r.dMontantSalarial));
}

TEST_F(GreveTest, NegativeCountersContributeNothing) {
  Traitement(3000);
  s.dGreveJours = -2;
  s.dGreveDemiJours = -1;
  s.dHeuresMois = 151.67;
  s.dGreveHeures = -7;
  Greve();
  VerifieLigne(3000, 0);
}

TEST_F(GreveTest, AWholeMonthTakesTheWholeBase) {
  Traitement(2345.67);
  s.dGreveJours = 30;
  Greve();
  VerifieLigne(2345.67, -2345.67);  // 30 x 2345.67 / 30
}

TEST_F(GreveTest, MonthBeforeReadsItsCountersAndItsHours) {
  Traitement(3000);
  s.dGreveJours = 5;  // this month's: not read
  s.dGreveHeures = 5;
  s.dHeuresMois = 999;
  Variable("HEURESA", 999);
  s.dGreveJoursPrec = 1;
  s.dGreveHeuresPrec = 3;
  HeuresHistorique("202403", 999);
  HeuresHistorique("202402", 140);  // February, the month before March
  VariableHisto("HEURESA", 10);
  Greve("A");
  VerifieLigne(3000, -160);  // 1 x 3000 / 30 + 3 x 3000 / (140 + 10)
}

TEST_F(GreveTest, MonthBeforeHalfDays) {
  Traitement(3000);
  s.dGreveDemiJoursPrec = 3;
  Greve("A");
  VerifieLigne(3000, -150);  // 3000 x 3 / 60
}

TEST_F(GreveTest, MonthBeforeInJanuaryIsDecember) {
  m.gPeriodeEncours = "01/01/2024";
  Traitement(3000);
  s.dGreveHeuresPrec = 2;
  HeuresHistorique("202401", 999);
  HeuresHistorique("202312", 120);
  Greve("A");
  VerifieLigne(3000, -50);  // 2 x 3000 / 120
}

TEST_F(GreveTest, MonthBeforeWithAnEmptyHistoryCountsNoHours) {
  Traitement(3000);
  s.dGreveHeuresPrec = 4;
  s.dGreveJoursPrec = 1;
  Greve("A");
  VerifieLigne(3000, -100);  // no hours: the day only
}

TEST_F(GreveTest, OnlyTheCapitalAIsTheMonthBefore) {
  Traitement(3000);
  s.dGreveJours = 1;
  s.dGreveJoursPrec = 2;
  for (const char* sMode : {"a", "", "N", "X"}) {
    SCOPED_TRACE(sMode);
    Greve(sMode);
    VerifieLigne(3000, -100);
  }
}

TEST_F(GreveTest, EveryStrikeCodeReadsTheStrikeCounters) {
  Traitement(3000);
  s.dGreveJours = 1;
  s.dAutreAbsenceJours = 2;
  ParCode({"RETGREVETR", "RETGREVENB", "RETGREVEIR", "RETGREVEPR", "RETGREVEPRSTPP", "RETGREVPTR",
           "RETGREVPNB", "RETGREVPIR", "RETGREVPPR", "RETGREVPPRSTPP"},
          3000, -100);
}

TEST_F(GreveTest, EveryOtherAbsenceCodeReadsItsCounters) {
  Traitement(3000);
  s.dGreveJours = 1;
  s.dAutreAbsenceJours = 2;
  s.dAutreAbsenceDemiJours = 1;
  ParCode({"RETABSENCETR", "RETABSENCENB", "RETABSENCEIR", "RETABSENCEPR", "RETABSENCEPRSTPP",
           "RETABSENCEPTR", "RETABSENCEPNB", "RETABSENCEPIR", "RETABSENCEPPR", "RETABSENCEPPRSTPP"},
          3000, -250);  // 2 x 3000 / 30 + 3000 x 1 / 60
}

TEST_F(GreveTest, OtherAbsenceOfTheMonthBefore) {
  Traitement(3000);
  r.sCodeRubrique = "RETABSENCEPR";
  s.dAutreAbsenceJours = 9;
  s.dAutreAbsenceJoursPrec = 1;
  s.dAutreAbsenceDemiJoursPrec = 1;
  s.dAutreAbsenceHeuresPrec = 6;
  HeuresHistorique("202402", 150);
  Greve("A");
  VerifieLigne(3000, -270);  // 100 + 50 + 6 x 3000 / 150
}

TEST_F(GreveTest, TheSevenNegativeBaseCodesShowTheBaseNegative) {
  Traitement(1000);
  s.dGreveJours = 3;
  s.dAutreAbsenceJours = 3;
  s.iNbCarence1 = 3;
  s.iNbCarence2 = 3;
  s.iNbCarence3 = 3;
  ParCode({"RETGREVETPP", "RETGREVEPTPP", "RETABSENCETPP", "RETABSENCEPTPP", "RETCARENCETPP1",
           "RETCARENCETPP2", "RETCARENCETPP3"},
          -1000, -100);  // the amount stays a deduction: 3 x 1000 / 30
}

TEST_F(GreveTest, WaitingBlocksReadTheirOwnDays) {
  Traitement(3000);
  s.iNbCarence1 = 1;
  s.iNbCarence2 = 2;
  s.iNbCarence3 = 3;
  s.dGreveDemiJours = 4;  // waiting blocks have no half days nor hours
  s.dGreveHeures = 4;
  s.dHeuresMois = 150;
  r.sCodeRubrique = "RETCARENCETR1";
  Greve();
  VerifieLigne(3000, -100);
  r.sCodeRubrique = "RETCARENCEPPRSTPP2";
  Greve();
  VerifieLigne(3000, -200);
  r.sCodeRubrique = "RETCARENCENB3";
  Greve();
  VerifieLigne(3000, -300);
}

TEST_F(GreveTest, EveryCodeOfAWaitingBlock) {
  Traitement(3000);
  s.iNbCarence2 = 2;
  ParCode({"RETCARENCETR2", "RETCARENCENB2", "RETCARENCEIR2", "RETCARENCEPR2", "RETCARENCEPRSTPP2",
           "RETCARENCEPTR2", "RETCARENCEPIR2", "RETCARENCEPPR2", "RETCARENCEPPRSTPP2"},
          3000, -200);
}

TEST_F(GreveTest, WaitingBlocksOfTheMonthBeforeTakeTheirPreviousDays) {
  Traitement(3000);
  s.iNbCarence1 = 2;
  s.iNbCarenceMoisPrec1 = 1;
  s.iNbCarenceMoisPrec3 = 3;
  r.sCodeRubrique = "RETCARENCETR1";
  Greve("A");
  VerifieLigne(3000, -100);  // never the current 2 days
  r.sCodeRubrique = "RETCARENCEPIR3";
  Greve("A");
  VerifieLigne(3000, -300);
}

TEST_F(GreveTest, WaitingBlocksHaveNoPnbNorPtppCodes) {
  Traitement(3000);
  s.iNbCarence1 = 2;
  ParCode({"RETCARENCEPNB1", "RETCARENCEPTPP1", "RETCARENCETR4", "RETCARENCETR"}, 3000, 0);
}

TEST_F(GreveTest, AnUnknownCodeWritesTheBaseAndReadsNoHours) {
  Traitement(3000);
  s.dGreveJours = 1;
  for (const char* code : {"", "retgrevetr", "RETGREVETR ", "GREVE"}) {
    SCOPED_TRACE(code);
    r.sCodeRubrique = code;
    // No source of variables: an unknown code looks up no "HEURESA".
    m.CalculRubrique_Greve(s, r, vars, "N", nullptr, nullptr);
    VerifieLigne(3000, 0);
    m.CalculRubrique_Greve(s, r, vars, "A", nullptr, nullptr);
    VerifieLigne(3000, 0);
  }
}

TEST_F(GreveTest, BothNamesReachTheHandler) {
  Traitement(3000);
  s.dGreveJours = 2;
  s.dGreveJoursPrec = 1;
  ASSERT_TRUE(Appel("GREVE"));
  VerifieLigne(3000, -200);
  ASSERT_TRUE(Appel("GREVE MOIS PRECEDENT"));
  VerifieLigne(3000, -100);
}

TEST_F(GreveTest, TheMonthBeforeWithoutAHistoryFaults) {
  Traitement(3000);
  s.dGreveJoursPrec = 1;
  EXPECT_FALSE(
      m.Appel_Methode_Calcul_General("GREVE MOIS PRECEDENT", s, r, vars, varsHisto, nullptr));
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("GREVE MOIS PRECEDENT", s, r, vars, nullptr, histo));
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("GREVE", s, r, nullptr, nullptr, nullptr));
}

}  // namespace
}  // namespace orvalis::test
