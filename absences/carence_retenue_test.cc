// Waiting days taken back from the treatment or the index bonus of the month.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "absences/greve_maintien_test_outils.h"
#include "generic/paie_test_util.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::Situations;

// March 2023. An indexed employee: old index 18000 a year (50 a day of a 30-day month), new
// index 21600 (60 a day), both rates at 1, an index bonus of 90 (3 a day).
class CarenceRetenueTest : public ::testing::Test {
 protected:
  explicit CarenceRetenueTest(const std::string& sPeriode = "01/03/2023") : x(sPeriode) {
    s.dSalarie_AnnuelPleinA = 18000;
    s.dSalarie_AnnuelPlein = 21600;
    s.dCoefficient_TraitementTA = 1;
    s.dCoefficient_TraitementTN = 1;
    s.dSalaire_MensuelIATA = 150;
    s.dSalaire_MensuelIATN = 500;
    s.dSalaire_MensuelINTA = 700;
    s.dSalaire_MensuelINTN = 1200;
    s.dBonificationTotale = 90;
    r.sCodeRubrique = "RETCARENCETR1";
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
  }

  void Periode(int n, const std::string& debut, const std::string& fin) {
    (n == 1 ? s.sCarenceDateDebut1 : n == 2 ? s.sCarenceDateDebut2 : s.sCarenceDateDebut3) = debut;
    (n == 1 ? s.sCarenceDateFin1 : n == 2 ? s.sCarenceDateFin2 : s.sCarenceDateFin3) = fin;
  }
  void DemiTraitement(const std::vector<LigneSituation>& lignes) {
    s.rsSituationsExceptionnelles = Situations(lignes);
  }
  void Cumul(const std::string& code, double d) {
    paie_test::AjouteCumul(m.gRsCumuls, code, d, 0.0, 0);
  }
  // Another model than the indexed ones: the month's gross of 1800, over 30 days paid.
  void Brut() {
    s.sTypeModele = "CONTRA";
    Cumul("BASE", 2100);
    Cumul("RETABSTRAI", 100);
    Cumul("BASERAPPEL", 200);
  }

  void Carence(const std::string& sMode = "N") { m.CalculRubrique_Carence(s, r, sMode, nullptr); }

  void VerifieLigne(double dBase, double dMontantSalarial) {
    absences_test::VerifieLigne(r, dBase, 0, dMontantSalarial);
  }
  periode_test::Quadrants Total() const {
    return {s.iNBJ_CarenceIATA_Total, s.iNBJ_CarenceIATN_Total, s.iNBJ_CarenceINTA_Total,
            s.iNBJ_CarenceINTN_Total};
  }
  periode_test::Quadrants DT() const {
    return {s.iNBJ_CarenceIATA_DT, s.iNBJ_CarenceIATN_DT, s.iNBJ_CarenceINTA_DT,
            s.iNBJ_CarenceINTN_DT};
  }

  periode_test::Mois x;
  MethodeCalculG_Nouv& m = x.m;
  VarCalculSalarie& s = x.s;
  SalarieCalculRubrique r;
};

// ---- Indexed employee ------------------------------------------------------------------

// A waiting period that ends on the day of the index change or before it is counted in
// full on the new index too, by the day count of the month: these periods end after it.
TEST_F(CarenceRetenueTest, OneTwoAndThreeDaysOverAnIndexChange) {
  x.IndiceSeul();  // new index on the 11th: 10 days on the old, 20 on the new
  Periode(1, "20230311", "20230311");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 0, 0, 1}));
  VerifieLigne(1200, -60);  // 21600 / 12 x 1 x 1 / 30; the base is INTN's month

  Periode(1, "20230311", "20230312");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 0, 0, 2}));
  VerifieLigne(1200, -120);  // 2 x 60

  Periode(1, "20230310", "20230312");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 1, 0, 2}));
  VerifieLigne(1700, -170);  // 18000 / 12 x 1 x 1 / 30 = 50, + 2 x 60; base 500 + 1200
}

TEST_F(CarenceRetenueTest, TheRateCoefficientWeighsTheDays) {
  x.IndiceSeul();
  s.dCoefficient_TraitementTN = 0.8;
  s.dCoefficient_TraitementTA = 0.5;  // no day at the old rate: not read
  Periode(2, "20230309", "20230312");
  r.sCodeRubrique = "RETCARENCEPTR2";
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 2, 0, 2}));
  VerifieLigne(1700, -176);  // 1500 x 0.8 x 2 / 30 = 80, + 1800 x 0.8 x 2 / 30 = 96
}

TEST_F(CarenceRetenueTest, AWholeMonthTakesBackTheWholeElement) {
  x.IndiceSeul();
  Periode(3, "20230301", "20230331");
  r.sCodeRubrique = "RETCARENCETR3";
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 10, 0, 20}));
  VerifieLigne(1700, -1700);  // 1500 x 10 / 30 + 1800 x 20 / 30
}

TEST_F(CarenceRetenueTest, TheThirtyFirstIsTheThirtiethDay) {
  Periode(1, "20230331", "20230402");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 0, 0, 1}));
  VerifieLigne(1200, -60);
}

class CarenceFevrierTest : public CarenceRetenueTest {
 protected:
  CarenceFevrierTest() : CarenceRetenueTest("01/02/2023") {}
};

TEST_F(CarenceFevrierTest, TheEndOfFebruaryRunsToTheThirtiethDay) {
  Periode(1, "20230227", "20230302");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 0, 0, 4}));  // days 27 to 30
  VerifieLigne(1200, -240);                                   // 4 x 60
}

TEST_F(CarenceRetenueTest, NoWaitingDayInTheMonthStillWritesTheLine) {
  Periode(1, "20230210", "20230212");
  r.dBase = 5;
  r.dMontantSalarial = 77;
  r.dTauxSalarial = 3;
  Carence();
  VerifieLigne(0, 0);
  EXPECT_FALSE(std::signbit(r.dMontantSalarial));
}

TEST_F(CarenceRetenueTest, HalfPayDaysWeighOneHalfAndTheBaseTheHalfPayCoefficient) {
  DemiTraitement({{"DT", "01/03/2023", "31/03/2023"}});
  s.iNBJ_DemiTraitementINTN = 30;
  s.dCoefficient_DemiTraitement = 0.66;
  Periode(1, "20230310", "20230311");
  Carence();
  EXPECT_EQ(DT(), (periode_test::Quadrants{0, 0, 0, 2}));
  // Amount: 1800 x 1 x 2 / 30 / 2 = 60, not 0.66. Base: 1800 x 1 x 30 / 30 x 0.66.
  VerifieLigne(1188, -60);
}

TEST_F(CarenceRetenueTest, HalfPayAndFullPayDaysOfOneWaitingPeriod) {
  DemiTraitement({{"DT", "11/03/2023", "31/03/2023"}});
  s.iNBJ_DemiTraitementINTN = 20;
  s.dCoefficient_DemiTraitement = 0.5;
  Periode(1, "20230310", "20230312");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 0, 0, 3}));
  EXPECT_EQ(DT(), (periode_test::Quadrants{0, 0, 0, 2}));
  // 1800 x 2 / 30 / 2 = 60 for the half-pay days, 1800 x 1 / 30 = 60 for the full-pay day.
  // Base: 1800 x 1 x 20 / 30 x 0.5 = 600.
  VerifieLigne(600, -120);
}

TEST_F(CarenceRetenueTest, OnHalfPayInIntaTheTreatmentCarriesTheBonus) {
  x.HeuresSeules();  // hours on the 15th: 14 days at the old rate, 16 at the new
  s.dCoefficient_TraitementTA = 0.8;
  DemiTraitement({{"DT", "01/03/2023", "31/03/2023"}});
  s.iNBJ_DemiTraitementINTA = 14;
  s.iNBJ_DemiTraitementINTN = 16;
  s.dCoefficient_DemiTraitement = 0.5;
  Periode(1, "20230313", "20230316");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 0, 2, 2}));
  EXPECT_EQ(DT(), (periode_test::Quadrants{0, 0, 2, 2}));
  // INTA: (1800 + 90) x 0.8 x 2 / 30 = 100.8; INTN: 1800 x 1 x 2 / 30 = 120; half of 220.8.
  // Base, new rate for both: 1800 x 1 x 14 / 30 x 0.5 = 420, + 1800 x 1 x 16 / 30 x 0.5 = 480.
  VerifieLigne(900, -110.4);
}

TEST_F(CarenceRetenueTest, OnFullPayInIntaTheTreatmentHasNoBonus) {
  x.HeuresSeules();
  s.dCoefficient_TraitementTA = 0.8;
  Periode(1, "20230313", "20230316");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{0, 0, 2, 2}));
  // 1800 x 0.8 x 2 / 30 = 96, + 1800 x 1 x 2 / 30 = 120; base 700 + 1200.
  VerifieLigne(1900, -216);
}

TEST_F(CarenceRetenueTest, IndexBonusOfTwoCombinationsGivesTwoMonthsAsBase) {
  // Index and hours both change on the 11th: 10 days IATA, 20 days INTN.
  s.sDateChangementIndice = "11/03/2023";
  s.sDateChangementHeures = "11/03/2023";
  x.Quadrant(10, 0, 0, 20);
  s.dCoefficient_TraitementTA = 0.5;
  r.sCodeRubrique = "RETCARENCENB1";
  Periode(1, "20230310", "20230312");
  Carence();
  EXPECT_EQ(Total(), (periode_test::Quadrants{1, 0, 0, 2}));
  VerifieLigne(180, -7.5);  // 90 x 0.5 x 1 / 30 + 90 x 1 x 2 / 30; base 2 x 90
}

TEST_F(CarenceRetenueTest, IndexBonusOnHalfPay) {
  DemiTraitement({{"DT", "01/03/2023", "31/03/2023"}});
  s.iNBJ_DemiTraitementINTN = 30;
  s.dCoefficient_DemiTraitement = 0.5;
  s.dCoefficient_TraitementTN = 0.8;
  r.sCodeRubrique = "RETCARENCENB2";
  Periode(2, "20230310", "20230312");
  Carence();
  // 90 x 0.8 x 3 / 30 / 2 = 3.6; base 0.8 x 90 x 30 / 30 x 0.5 = 36.
  VerifieLigne(36, -3.6);
}

TEST_F(CarenceRetenueTest, EachCodeTakesItsOwnPeriod) {
  Periode(1, "20230310", "20230310");
  Periode(2, "20230310", "20230311");
  Periode(3, "20230310", "20230312");
  for (const auto& [code, montant] :
       std::vector<std::pair<const char*, double>>{{"RETCARENCETR1", -60},
                                                   {"RETCARENCEPTR1", -60},
                                                   {"RETCARENCETR2", -120},
                                                   {"RETCARENCEPTR2", -120},
                                                   {"RETCARENCETR3", -180},
                                                   {"RETCARENCEPTR3", -180},
                                                   {"RETCARENCENB1", -3},
                                                   {"RETCARENCENB2", -6},
                                                   {"RETCARENCENB3", -9}}) {
    SCOPED_TRACE(code);
    r.sCodeRubrique = code;
    Carence();
    EXPECT_DOUBLE_EQ(r.dMontantSalarial, montant);
  }
}

TEST_F(CarenceRetenueTest, AnElectedMayorOnHalfPayIsIndexed) {
  s.sTypeModele = "ELUS";
  s.sCodeModele = "ELUMAIREDT";
  Periode(1, "20230310", "20230310");
  Carence();
  VerifieLigne(1200, -60);
  s.sCodeModele = "ELUMAIRE";  // any other: the gross-based branch, with no total here
  Carence();
  VerifieLigne(0, 0);
}

TEST_F(CarenceRetenueTest, IndexedNonTitularIsIndexed) {
  s.sTypeModele = "INDNTI";
  Periode(1, "20230310", "20230311");
  Carence();
  VerifieLigne(1200, -120);
}

// ---- Gross-based employee --------------------------------------------------------------

TEST_F(CarenceRetenueTest, GrossBasedOnTheMonthsPaidDays) {
  Brut();
  Periode(1, "20230310", "20230311");
  Carence();
  VerifieLigne(1800, -120);  // (2100 - 100 - 200) x 30 / 30; 2 x 1800 / 30
}

TEST_F(CarenceRetenueTest, GrossBasedCountsTheDaysPaidLate) {
  Brut();
  s.iNbJourDecalagePaieMoisPrecINTN = 4;
  s.iNbJourDecalagePaieMoisPrecIATA = 2;
  Periode(1, "20230310", "20230311");
  Carence();
  VerifieLigne(1500, -100);  // 1800 x 30 / (30 + 4 + 2); 2 x 1500 / 30
}

TEST_F(CarenceRetenueTest, GrossBasedOverAnIndexChange) {
  Brut();
  x.IndiceSeul();
  Periode(1, "20230309", "20230312");
  Carence();
  VerifieLigne(1800, -240);  // 2 days IATN and 2 INTN: 4 x 1800 / 30
}

TEST_F(CarenceRetenueTest, GrossBasedWithoutPaidDaysTakesNothing) {
  Brut();
  s.iNBJ_Presence_Total = 0;
  Periode(1, "20230310", "20230311");
  Carence();
  VerifieLigne(0, 0);
}

TEST_F(CarenceRetenueTest, GrossBasedIndexBonusTakesNothingAndReadsNoTotal) {
  Brut();
  m.gRsCumuls = nullptr;
  r.sCodeRubrique = "RETCARENCENB1";
  Periode(1, "20230310", "20230311");
  Carence();
  VerifieLigne(0, 0);
}

TEST_F(CarenceRetenueTest, GrossBasedHalfPayDaysTakeNothing) {
  Brut();
  m.gRsCumuls = nullptr;
  DemiTraitement({{"DT", "01/03/2023", "31/03/2023"}});
  Periode(1, "20230310", "20230311");
  Carence();
  EXPECT_EQ(DT(), (periode_test::Quadrants{0, 0, 0, 2}));
  VerifieLigne(0, 0);
}

TEST_F(CarenceRetenueTest, GrossBasedDaySumOverflowFaults) {
  Brut();
  s.iNBJ_Presence_Total = 30000;
  s.iNbJourDecalagePaieMoisPrecINTN = 2768;
  Periode(1, "20230310", "20230311");
  r.dMontantSalarial = 77;
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("CARENCE", s, r));
  EXPECT_EQ(r.dMontantSalarial, 77.0);
  s.iNbJourDecalagePaieMoisPrecINTN = 2767;  // 32767: the largest sum
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("CARENCE", s, r));
  EXPECT_DOUBLE_EQ(r.dBase, 1800 * 30 / 32767.0);
}

// ---- Nothing written -------------------------------------------------------------------

TEST_F(CarenceRetenueTest, TheMonthBeforeLeavesTheLineAsItWas) {
  Periode(1, "20230310", "20230311");
  s.sCarenceDateDebutMoisPrec1 = "20230220";
  s.sCarenceDateFinMoisPrec1 = "20230222";
  s.iNBJ_CarenceINTN_Total = 7;
  r.dBase = 5;
  r.dMontantSalarial = 77;
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("CARENCE MOIS PRECEDENT", s, r));
  EXPECT_EQ(r.dBase, 5.0);
  EXPECT_EQ(r.dMontantSalarial, 77.0);
  EXPECT_EQ(s.iNBJ_CarenceINTN_Total.value(), 7);
}

TEST_F(CarenceRetenueTest, AMissingDateOrAnotherCodeWritesNothing) {
  r.dMontantSalarial = 77;
  Periode(1, "20230310", "");
  Carence();
  Periode(1, "", "20230310");
  Carence();
  EXPECT_EQ(r.dMontantSalarial, 77.0);
  Periode(1, "20230310", "20230310");
  for (const char* code :
       {"RETCARENCEIR1", "RETCARENCETPP1", "RETCARENCETR4", "retcarencetr1", "RETGREVETR", ""}) {
    SCOPED_TRACE(code);
    r.sCodeRubrique = code;
    Carence();
    EXPECT_EQ(r.dMontantSalarial, 77.0);
  }
}

TEST_F(CarenceRetenueTest, ThroughTheEntry) {
  Periode(1, "20230310", "20230311");
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("CARENCE", s, r));
  VerifieLigne(1200, -120);
}

TEST_F(CarenceRetenueTest, AnImpossibleDateFaults) {
  Periode(1, "20231340", "20231341");
  r.dMontantSalarial = 77;
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("CARENCE", s, r));
  EXPECT_EQ(r.dMontantSalarial, 77.0);
}

}  // namespace
}  // namespace orvalis
