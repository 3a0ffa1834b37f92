// Other absences, maintained pay days, non-subrogated therapeutic part-time bands and the
// reference salary of overtime, checked by hand through the preparation names.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/MoteurCalcul.h"
#include "period/mois_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::Mois;
using periode_test::Situations;

// ---- Other absences ---------------------------------------------------------------------------

TEST(AbsencesReviewTest, FixedTherapeuticSharesRoundHalfToEven) {
  struct Cas {
    const char* code;
    const char* fin;  // from the 1st of March
    int jours;
    double coef;  // days x worked share
    int absence;  // days x remaining share, half to even
  };
  const Cas cas[] = {
      {"MI", "13/03/2023", 13, 6.5, 6},   // 6.5 -> 6
      {"MI", "07/03/2023", 7, 3.5, 4},    // 3.5 -> 4
      {"M6", "05/03/2023", 5, 3.0, 2},    // 2.0
      {"M7", "15/03/2023", 15, 10.5, 4},  // 4.5 -> 4
      {"M7", "05/03/2023", 5, 3.5, 2},    // 1.5 -> 2
      {"M8", "13/03/2023", 13, 10.4, 3},  // 2.6 -> 3
      {"M9", "25/03/2023", 25, 22.5, 2},  // 2.5 -> 2
      {"M9", "05/03/2023", 5, 4.5, 0},    // 0.5 -> 0
      {"M9", "15/03/2023", 15, 13.5, 2},  // 1.5 -> 2
  };
  for (const Cas& c : cas) {
    Mois x;
    ASSERT_TRUE(x.Absences({{c.code, "01/03/2023", c.fin}})) << c.code << " " << c.jours;
    EXPECT_EQ(x.s.iNBJ_TpsTherapeutique.value(), c.jours) << c.code << " " << c.jours;
    EXPECT_DOUBLE_EQ(x.s.dTpsTherapeutiqueCoefRI, c.coef) << c.code << " " << c.jours;
    EXPECT_EQ(x.s.iNBJ_AutreAbsence.value(), c.absence) << c.code << " " << c.jours;
    EXPECT_EQ(x.s.dNBJ_AutreAbsenceNS, 0) << c.code;
  }
}

TEST(AbsencesReviewTest, NotSubrogatedSharesStayDoubles) {
  struct Cas {
    const char* code;
    const char* fin;
    double jours, coef, absence;
  };
  const Cas cas[] = {
      {"MINS", "07/03/2023", 7, 3.5, 3.5},    {"M6NS", "05/03/2023", 5, 3.0, 2.0},
      {"M7NS", "15/03/2023", 15, 10.5, 4.5},  {"M8NS", "13/03/2023", 13, 10.4, 2.6},
      {"M9NS", "25/03/2023", 25, 22.5, 2.5},
  };
  for (const Cas& c : cas) {
    Mois x;
    ASSERT_TRUE(x.Absences({{c.code, "01/03/2023", c.fin}})) << c.code;
    EXPECT_DOUBLE_EQ(x.s.dNBJ_TpsTherapeutiqueNS, c.jours) << c.code;
    EXPECT_DOUBLE_EQ(x.s.dTpsTherapeutiqueCoefNS, c.coef) << c.code;
    EXPECT_DOUBLE_EQ(x.s.dNBJ_AutreAbsenceNS, c.absence) << c.code;
    EXPECT_EQ(x.s.iNBJ_AutreAbsence.value(), 0) << c.code;
    EXPECT_EQ(x.s.iNBJ_TpsTherapeutique.value(), 0) << c.code;
    EXPECT_EQ(x.s.dTpsTherapeutiqueCoefRI, 0) << c.code;
  }
}

TEST(AbsencesReviewTest, VariableQuotity) {
  // "MV" 75 % over 8 days: coefficient 6, and 6 days of absence (the quotity itself).
  Mois a;
  ASSERT_TRUE(a.Absences({{"MV", "01/03/2023", "08/03/2023", 75}}));
  EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 8);
  EXPECT_DOUBLE_EQ(a.s.dTpsTherapeutiqueCoefRI, 6);
  EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 6);
  // 30 % over 5 days: 1.5, and 1.5 days converted half to even: 2.
  Mois b;
  ASSERT_TRUE(b.Absences({{"MV", "01/03/2023", "05/03/2023", 30}}));
  EXPECT_DOUBLE_EQ(b.s.dTpsTherapeutiqueCoefRI, 1.5);
  EXPECT_EQ(b.s.iNBJ_AutreAbsence.value(), 2);
  // 50 % over 5 days: 2.5 gives 2.
  Mois c;
  ASSERT_TRUE(c.Absences({{"MV", "01/03/2023", "05/03/2023", 50}}));
  EXPECT_EQ(c.s.iNBJ_AutreAbsence.value(), 2);
  // "MVNS" 30 % over 10 days: all doubles.
  Mois d;
  ASSERT_TRUE(d.Absences({{"MVNS", "01/03/2023", "10/03/2023", 30}}));
  EXPECT_DOUBLE_EQ(d.s.dNBJ_TpsTherapeutiqueNS, 10);
  EXPECT_DOUBLE_EQ(d.s.dTpsTherapeutiqueCoefNS, 3);
  EXPECT_DOUBLE_EQ(d.s.dNBJ_AutreAbsenceNS, 3);
  EXPECT_EQ(d.s.iNBJ_AutreAbsence.value(), 0);
  // A null quotity can't be used as a number.
  EXPECT_FALSE(Mois().Absences({{"MV", "01/03/2023", "08/03/2023"}}));
  EXPECT_FALSE(Mois().Absences({{"MVNS", "01/03/2023", "08/03/2023"}}));
}

TEST(AbsencesReviewTest, EachRowCountsItsOwnDaysAcrossTheQuadrants) {
  // Index on the 11th: a whole month of "LM" is 10 + 20 days.
  Mois x;
  x.IndiceSeul();
  ASSERT_TRUE(x.Absences({{"LM", "01/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_AutreAbsence.value(), 30);
  // Two rows: 10 and 10 days (the 31st counts as the 30th); each row its own days.
  Mois y;
  ASSERT_TRUE(y.Absences({{"GM", "01/03/2023", "10/03/2023"}, {"CM", "21/03/2023", "31/03/2023"}}));
  EXPECT_EQ(y.s.iNBJ_AutreAbsence.value(), 20);
  // The presence caps each row.
  Mois z;
  z.s.iNBJ_PresenceINTN = 20;
  ASSERT_TRUE(z.Absences({{"LM", "01/03/2023", "31/03/2023"}}));
  EXPECT_EQ(z.s.iNBJ_AutreAbsence.value(), 20);
}

TEST(AbsencesReviewTest, OtherCodesAndOtherMonthsCountNothing) {
  Mois x;
  ASSERT_TRUE(x.Absences({{"DT", "01/03/2023", "10/03/2023"},
                          {"MP9", "01/03/2023", "10/03/2023"},
                          {"MI", "01/01/2023", "31/01/2023"}}));
  EXPECT_EQ(x.s.iNBJ_AutreAbsence.value(), 0);
  EXPECT_EQ(x.s.iNBJ_TpsTherapeutique.value(), 0);
  EXPECT_EQ(x.s.dTpsTherapeutiqueCoefRI, 0);
}

TEST(AbsencesReviewTest, AddsOnWhatTheHostHolds) {
  Mois x;
  x.s.iNBJ_AutreAbsence = 3;
  x.s.iNBJ_TpsTherapeutique = 2;
  x.s.dTpsTherapeutiqueCoefRI = 1.5;
  x.s.dNBJ_AutreAbsenceNS = 0.25;
  ASSERT_TRUE(x.Absences({{"M8", "01/03/2023", "10/03/2023"},    // 10 days: 8 and 2
                          {"MINS", "11/03/2023", "14/03/2023"}}));  // 4 days: 2 not worked
  EXPECT_EQ(x.s.iNBJ_AutreAbsence.value(), 3 + 2);
  EXPECT_EQ(x.s.iNBJ_TpsTherapeutique.value(), 2 + 10);
  EXPECT_DOUBLE_EQ(x.s.dTpsTherapeutiqueCoefRI, 1.5 + 8);
  EXPECT_DOUBLE_EQ(x.s.dNBJ_AutreAbsenceNS, 0.25 + 2);
  EXPECT_DOUBLE_EQ(x.s.dTpsTherapeutiqueCoefNS, 2);
}

TEST(AbsencesReviewTest, SixteenBitOverflowOfTheTherapeuticDaysIsTrapped) {
  for (const char* code : {"MI", "M6", "M7", "M8", "M9"}) {
    Mois x;
    x.s.iNBJ_TpsTherapeutique = 32767;
    EXPECT_FALSE(x.Absences({{code, "01/03/2023", "01/03/2023"}})) << code;
    EXPECT_EQ(x.s.iNBJ_TpsTherapeutique.value(), 32767) << code;
    EXPECT_EQ(x.s.dTpsTherapeutiqueCoefRI, 0) << code;
  }
  // Just below the limit: 32766 + 1.
  Mois y;
  y.s.iNBJ_TpsTherapeutique = 32766;
  ASSERT_TRUE(y.Absences({{"M6", "01/03/2023", "01/03/2023"}}));
  EXPECT_EQ(y.s.iNBJ_TpsTherapeutique.value(), 32767);
}

TEST(AbsencesReviewTest, OlderFormReadsTheTwoSituations) {
  Mois x;
  x.s.sSituation1 = "M9";
  x.s.sDateDebutSituation1 = "01/03/2023";
  x.s.sDatefinSituation1 = "15/03/2023";
  // "MV" is not a code of the older form: its quotity is never needed.
  x.s.sSituation2 = "MV";
  x.s.sDateDebutSituation2 = "16/03/2023";
  x.m.CalculNombreJourAutresAbsences(x.s);
  EXPECT_EQ(x.s.iNBJ_TpsTherapeutique.value(), 15);
  EXPECT_DOUBLE_EQ(x.s.dTpsTherapeutiqueCoefRI, 13.5);
  EXPECT_EQ(x.s.iNBJ_AutreAbsence.value(), 2);
}

// ---- Maintained pay -----------------------------------------------------------------------------

TEST(AbsencesReviewTest, NinetyPercentCodesByQuadrant) {
  // Index on the 11th, "O90" 05/03-15/03: IATN 11 - 5 = 6, INTN 15 - 11 + 1 = 5.
  Mois x;
  x.IndiceSeul();
  x.s.iNBJ_2TiersTraitement_Total = 7;
  x.s.iNBJ_SansTraitement_Total = 8;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_90POURCENT_TRAITEMENT", {{"O90", "05/03/2023", "15/03/2023"},
                                                            {"O66", "20/03/2023", "25/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementIATA.value(), 0);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementIATN.value(), 6);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementINTA.value(), 0);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementINTN.value(), 5);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitement_Total.value(), 11);
  // The other families are not touched.
  EXPECT_EQ(x.s.iNBJ_2TiersTraitement_Total.value(), 7);
  EXPECT_EQ(x.s.iNBJ_SansTraitement_Total.value(), 8);
}

TEST(AbsencesReviewTest, EachPercentageHasItsThreeCodes) {
  const std::vector<LigneSituation> lignes = {
      {"O90", "01/03/2023", "01/03/2023"}, {"A90", "02/03/2023", "03/03/2023"},
      {"MP9", "04/03/2023", "06/03/2023"}, {"O66", "07/03/2023", "10/03/2023"},
      {"A66", "11/03/2023", "15/03/2023"}, {"MP6", "16/03/2023", "21/03/2023"},
      {"OS", "22/03/2023", "28/03/2023"},  {"A0", "29/03/2023", "29/03/2023"},
      {"MP0", "30/03/2023", "31/03/2023"}, {"M90", "01/03/2023", "31/03/2023"},
  };
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_90POURCENT_TRAITEMENT", lignes));
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementINTN.value(), 1 + 2 + 3);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitement_Total.value(), 6);
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_2TIERS_TRAITEMENT", lignes));
  EXPECT_EQ(x.s.iNBJ_2TiersTraitementINTN.value(), 4 + 5 + 6);
  EXPECT_EQ(x.s.iNBJ_2TiersTraitement_Total.value(), 15);
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_MALADIE_SANS_TRAITEMENT", lignes));
  // 22-28 is 7 days, the 29th one, 30-31 one (the 31st is the 30th).
  EXPECT_EQ(x.s.iNBJ_SansTraitementINTN.value(), 7 + 1 + 1);
  EXPECT_EQ(x.s.iNBJ_SansTraitement_Total.value(), 9);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitement_Total.value(), 6);
}

TEST(AbsencesReviewTest, MaintainedDaysRunAndAreCappedByPresence) {
  // 10 + 15 = 25 days, over a presence of 20.
  Mois x;
  x.s.iNBJ_PresenceINTN = 20;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_2TIERS_TRAITEMENT",
                        {{"A66", "01/03/2023", "10/03/2023"}, {"MP6", "11/03/2023", "25/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_2TiersTraitementINTN.value(), 20);
  EXPECT_EQ(x.s.iNBJ_2TiersTraitement_Total.value(), 20);
}

TEST(AbsencesReviewTest, OtherPercentageWritesNothing) {
  Mois x;
  x.s.rsSituationsExceptionnelles = Situations({{"O90", "01/03/2023", "10/03/2023"}});
  x.s.iNBJ_90PourCentTraitement_Total = 4;
  x.m.CalculNombreJourMaintienTraitement(x.s, 50);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitement_Total.value(), 4);
}

// ---- Non-subrogated therapeutic part-time ------------------------------------------------------

class AbsencesReviewTptTest : public ::testing::Test {
 protected:
  void SetUp() override { iTauxTptNonSubroge = 0; }
  void TearDown() override { iTauxTptNonSubroge = 0; }
};

TEST_F(AbsencesReviewTptTest, EachBandItsCodeAndTheLastPercentage) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"MINS", "01/03/2023", "02/03/2023"},
                                                      {"M6NS", "03/03/2023", "05/03/2023"},
                                                      {"M7NS", "06/03/2023", "09/03/2023"},
                                                      {"MI", "10/03/2023", "20/03/2023"},
                                                      {"M8NS", "21/03/2023", "25/03/2023"},
                                                      {"M9NS", "26/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_TPTNS50INTN.value(), 2);
  EXPECT_EQ(x.s.iNBJ_TPTNS50_Total.value(), 2);
  EXPECT_EQ(x.s.iNBJ_TPTNS60_Total.value(), 3);
  EXPECT_EQ(x.s.iNBJ_TPTNS70_Total.value(), 4);
  EXPECT_EQ(x.s.iNBJ_TPTNS80_Total.value(), 5);
  EXPECT_EQ(x.s.iNBJ_TPTNS90INTN.value(), 5);  // 26 to 30
  EXPECT_EQ(x.s.iNBJ_TPTNS90_Total.value(), 5);
  EXPECT_EQ(iTauxTptNonSubroge.value(), 90);
}

TEST_F(AbsencesReviewTptTest, LastSituationMetSetsThePercentage) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE",
                        {{"M9NS", "01/03/2023", "05/03/2023"}, {"MINS", "10/03/2023", "12/03/2023"}}));
  EXPECT_EQ(iTauxTptNonSubroge.value(), 50);
  EXPECT_EQ(x.s.iNBJ_TPTNS90_Total.value(), 5);
  EXPECT_EQ(x.s.iNBJ_TPTNS50_Total.value(), 3);
}

TEST_F(AbsencesReviewTptTest, BandsByQuadrant) {
  Mois x;
  x.IndiceSeul();
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"M7NS", "01/03/2023", ""}}));
  EXPECT_EQ(x.s.iNBJ_TPTNS70IATA.value(), 0);
  EXPECT_EQ(x.s.iNBJ_TPTNS70IATN.value(), 10);
  EXPECT_EQ(x.s.iNBJ_TPTNS70INTA.value(), 0);
  EXPECT_EQ(x.s.iNBJ_TPTNS70INTN.value(), 20);
  EXPECT_EQ(x.s.iNBJ_TPTNS70_Total.value(), 30);
  EXPECT_EQ(iTauxTptNonSubroge.value(), 70);
}

TEST_F(AbsencesReviewTptTest, NoRecordZeroesTheBandsAndKeepsThePercentage) {
  Mois x;
  iTauxTptNonSubroge = 33;
  x.s.iNBJ_TPTNS60INTN = 4;
  x.s.iNBJ_TPTNS60_Total = 4;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"MI", "01/03/2023", "10/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_TPTNS60INTN.value(), 0);
  EXPECT_EQ(x.s.iNBJ_TPTNS60_Total.value(), 0);
  EXPECT_EQ(iTauxTptNonSubroge.value(), 33);
}

// ---- Reference salary for overtime ------------------------------------------------------------

struct Reference {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;

  Reference() {
    m.gPeriodeEncours = "01/03/2023";
    m.gRsConstantesFixes =
        NouveauRecordset({"Point", "SmicHor", "HrsMois", "IndMinRemuneration", "IndResid"});
    m.gRsConstantesFixes->AddNew();
    Fixe("Point", 58.2004);
    Fixe("SmicHor", 11.52);
    Fixe("HrsMois", 151.67);
    Fixe("IndMinRemuneration", 361.0);
    Fixe("IndResid", 313.0);
    m.gRsConstantesFixesHistorique =
        NouveauRecordset({"Mois", "Point", "SmicHor", "HrsMois", "IndMinRemuneration"});
    m.gRsConstantesFixesHistorique->AddNew();
    Historique("Mois", "202302");
    Historique("Point", 57.5);
    Historique("SmicHor", 11.07);
    Historique("HrsMois", 151.67);
    Historique("IndMinRemuneration", 352.0);
    s.sDateChangementIndice = "01/01/2020";
    s.dIndiceMajoreM = 400;
    s.dIndiceMajoreA = 340;
  }
  void Fixe(const char* col, const Value& v) { m.gRsConstantesFixes->SetField(col, v); }
  void Historique(const char* col, const Value& v) {
    m.gRsConstantesFixesHistorique->SetField(col, v);
  }
  double Encours(double dIndice) { return m.CalculSalaireBaseHS_Periode(s, dIndice, "ENCOURS"); }
  double Ancien(double dIndice) { return m.CalculSalaireBaseHS_Periode(s, dIndice, "ANCIEN"); }
  bool Prepare() { return m.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", s); }
};

// Yearly minimum wage: 11.52 x Arrondi(151.67 x 12, 2) = 11.52 x 1820.04 = 20966.8608.
constexpr double kSmicAnnuel = 20966.86;
// Former month: 11.07 x 1820.04 = 20147.8428.
constexpr double kSmicAnnuelAncien = 20147.84;

TEST(AbsencesReviewTest, ReferenceSalaryOnTheCurrentIndex) {
  Reference x;
  EXPECT_DOUBLE_EQ(x.Encours(400), 23280.16);  // 400 x 58.2004
  EXPECT_DOUBLE_EQ(x.Encours(362), 21068.54);  // 21068.5448
  // At or below the minimum index 361: 361 x 58.2004 = 21010.3444.
  EXPECT_DOUBLE_EQ(x.Encours(361), 21010.34);
  EXPECT_DOUBLE_EQ(x.Encours(350), 21010.34);
  // Any type other than "ANCIEN" reads the month's own values.
  EXPECT_DOUBLE_EQ(x.m.CalculSalaireBaseHS_Periode(x.s, 400, ""), 23280.16);
}

TEST(AbsencesReviewTest, ReferenceSalaryBonusPointsAfterTheMinimum) {
  Reference x;
  // 400.5 gives 400 (half to even), 401.5 gives 402: 402 x 58.2004 = 23396.5608.
  x.s.dBonification = 0.5;
  EXPECT_DOUBLE_EQ(x.Encours(400), 23280.16);
  x.s.dBonification = 1.5;
  EXPECT_DOUBLE_EQ(x.Encours(400), 23396.56);
  // The points are added to the minimum index: 361 + 10 = 371, 21592.3484.
  x.s.dBonification = 10;
  EXPECT_DOUBLE_EQ(x.Encours(350), 21592.35);
}

TEST(AbsencesReviewTest, ReferenceSalaryMinimumWageAndResidence) {
  Reference x;
  x.Fixe("IndMinRemuneration", 0.0);
  // 340 x 58.2004 = 19788.136 is lifted to the yearly minimum wage.
  EXPECT_DOUBLE_EQ(x.Encours(340), kSmicAnnuel);
  x.s.iZoneResid = 3;
  // Not below "IndResid" (313): 3 % of the lifted amount, 629.0058.
  EXPECT_DOUBLE_EQ(x.Encours(313), 21595.87);
  EXPECT_DOUBLE_EQ(x.Encours(340), 21595.87);
  // Below it: Arrondi(313 x 58.2004, 2) = 18216.73, 3 % = 546.5019.
  EXPECT_DOUBLE_EQ(x.Encours(312), 21513.36);
  // 1 % of 23280.16 = 232.8016.
  x.s.iZoneResid = 1;
  EXPECT_DOUBLE_EQ(x.Encours(400), 23512.96);
}

TEST(AbsencesReviewTest, ReferenceSalaryOnTheFormerIndexReadsTheMonthBefore) {
  Reference x;
  EXPECT_DOUBLE_EQ(x.Ancien(400), 23000.00);  // 400 x 57.5
  // The former minimum index 352, not the month's 361: 352 x 57.5 = 20240.
  EXPECT_DOUBLE_EQ(x.Ancien(340), 20240.00);
  // The former minimum wage floors it: index 350 with no minimum, 20125 < 20147.84.
  x.Historique("IndMinRemuneration", 0.0);
  EXPECT_DOUBLE_EQ(x.Ancien(350), kSmicAnnuelAncien);
}

TEST(AbsencesReviewTest, ReferenceSalaryFormerResidenceUsesTheFormerPoint) {
  Reference x;
  x.s.iZoneResid = 3;
  x.Fixe("IndResid", 400.0);
  // 352 < 400: Arrondi(400 x 57.5, 2) x 3 / 100 = 690; 20240 + 690.
  EXPECT_DOUBLE_EQ(x.Ancien(340), 20930.00);
}

TEST(AbsencesReviewTest, ReferenceSalaryFormerPointMissing) {
  Reference x;
  x.Historique("Point", 0.0);
  EXPECT_DOUBLE_EQ(x.Ancien(400), 23280.16);  // the month's point
  // A history without the month before: no minimum index, no point, no minimum wage.
  Reference y;
  y.Historique("Mois", "202301");
  EXPECT_DOUBLE_EQ(y.Ancien(340), 19788.14);  // 340 x 58.2004 = 19788.136
}

TEST(AbsencesReviewTest, ReferenceSalaryFormerBaseByDates) {
  struct Cas {
    const char* sMaj;
    const char* sIndice;
    double dAttendu;
  };
  // The current base is 23280.16, the former one (index 340) 20240.
  const Cas cas[] = {
      {"", "28/02/2023", 23280.16},            // index changed a month ago
      {"", "31/12/2022", 23280.16},            // three months ago
      {"", "01/03/2023", 20240.00},            // this month
      {"", "15/04/2023", 20240.00},            // next month
      {"31/03/2023", "01/01/2020", 20240.00},  // regulatory update this month
      {"01/03/2022", "01/01/2020", 23280.16},  // a year ago
      {"28/02/2023", "01/01/2020", 23280.16},  // last month
  };
  for (const Cas& c : cas) {
    Reference x;
    x.s.sDateMajIndiceReglementaire = c.sMaj;
    x.s.sDateChangementIndice = c.sIndice;
    ASSERT_TRUE(x.Prepare()) << c.sMaj << " " << c.sIndice;
    EXPECT_DOUBLE_EQ(x.s.dBase_HSN, 23280.16);
    EXPECT_DOUBLE_EQ(x.s.dBase_HSA, c.dAttendu) << c.sMaj << " " << c.sIndice;
  }
}

TEST(AbsencesReviewTest, ReferenceSalaryReadsOnlyWhatItsBranchNeeds) {
  // A regulatory update this month: the index change date is not read.
  Reference x;
  x.s.sDateMajIndiceReglementaire = "10/03/2023";
  x.s.sDateChangementIndice = "";
  ASSERT_TRUE(x.Prepare());
  EXPECT_DOUBLE_EQ(x.s.dBase_HSA, 20240.00);
  // An old index change: the history is never read, even when there is none.
  Reference y;
  y.m.gRsConstantesFixesHistorique = nullptr;
  ASSERT_TRUE(y.Prepare());
  EXPECT_DOUBLE_EQ(y.s.dBase_HSA, 23280.16);
  // The former base needs the history: a fault, the current base already written.
  Reference z;
  z.m.gRsConstantesFixesHistorique = nullptr;
  z.s.sDateChangementIndice = "01/03/2023";
  EXPECT_FALSE(z.Prepare());
  EXPECT_DOUBLE_EQ(z.s.dBase_HSN, 23280.16);
  EXPECT_EQ(z.s.dBase_HSA, 0);
}

TEST(AbsencesReviewTest, ReferenceSalaryRecordAndEngineAtTheirDefaults) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  bool ok = true;
  EXPECT_NO_THROW(ok = m.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", s));
  EXPECT_FALSE(ok);
  for (const char* nom : {"NBRE_JOUR_AUTREABSENCE", "NBRE_JOUR_90POURCENT_TRAITEMENT",
                          "NBRE_JOUR_2TIERS_TRAITEMENT", "NBRE_JOUR_MALADIE_SANS_TRAITEMENT",
                          "NBRE_JOUR_TPT_NON_SUBROGE"}) {
    VarCalculSalarie d;
    EXPECT_NO_THROW(ok = m.Appel_Methode_Preparation_Calcul_General(nom, d)) << nom;
    EXPECT_FALSE(ok) << nom;  // no source of situations
  }
}

}  // namespace
}  // namespace orvalis
