// Independent checks of the quadrant shares of the month, the split of an
// elected official's month and the treatment coefficient, with values worked
// out by hand from the payroll rules.
#include <gtest/gtest.h>

#include <cmath>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::Quadrants;
using periode_test::Situations;

// ---- Quadrant shares through "COEFFICIENT_INDICE"
// -------------------------------------------

struct Parts {
  bool ok;
  Quadrants q;  // coefficients x 30
  VarCalculSalarie s;
};

int Trente(double c) { return static_cast<int>(std::lround(c * 30)); }

Parts Partage(VarCalculSalarie s, const std::string &sPeriode = "01/03/2023") {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = sPeriode;
  const bool ok = m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_INDICE", s);
  return {ok,
          {Trente(s.dCoefficient_IATA), Trente(s.dCoefficient_IATN), Trente(s.dCoefficient_INTA),
           Trente(s.dCoefficient_INTN)},
          s};
}

VarCalculSalarie Agent(const std::string &sIndice, const std::string &sHeures,
                       const std::string &sDebut = "01/01/2015",
                       const std::string &sModele = "INDNTI") {
  VarCalculSalarie s;
  s.sTypeModele = sModele;
  s.sDateDebut = sDebut;
  s.sDateChangementIndice = sIndice;
  s.sDateChangementHeures = sHeures;
  return s;
}

TEST(CoefficientsReviewTest, CaseAExactQuotients) {
  // DI 05/03, DH 06/03: IATA 4, INTA 6 - 5 = 1, INTN 30 - 6 + 1 = 25.
  const Parts p = Partage(Agent("05/03/2023", "06/03/2023"));
  ASSERT_TRUE(p.ok);
  EXPECT_EQ(p.s.dCoefficient_IATA, 4 / 30.0);
  EXPECT_EQ(p.s.dCoefficient_IATN, 0.0);
  EXPECT_EQ(p.s.dCoefficient_INTA, 1 / 30.0);
  EXPECT_EQ(p.s.dCoefficient_INTN, 25 / 30.0);
}

TEST(CoefficientsReviewTest, CaseAFromTheFirstToThe31st) {
  // DI 01/03, DH 31/03: IATA 0, INTA 31 - 1 = 30, INTN 30 - 31 + 1 = 0.
  EXPECT_EQ(Partage(Agent("01/03/2023", "31/03/2023")).q, (Quadrants{0, 0, 30, 0}));
}

TEST(CoefficientsReviewTest, CaseAFebruary) {
  // DI 10/02, DH 28/02/2023: 9, 0, 18, 30 - 28 + 1 = 3.
  EXPECT_EQ(Partage(Agent("10/02/2023", "28/02/2023"), "01/02/2023").q, (Quadrants{9, 0, 18, 3}));
  // February 2024, DH 29/02: INTN 30 - 29 + 1 = 2.
  EXPECT_EQ(Partage(Agent("10/02/2024", "29/02/2024"), "01/02/2024").q, (Quadrants{9, 0, 19, 2}));
}

TEST(CoefficientsReviewTest, CaseAIgnoresCalendarPay) {
  VarCalculSalarie s = Agent("10/03/2023", "20/03/2023", "05/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Partage(s).q, (Quadrants{9, 0, 10, 11}));
}

TEST(CoefficientsReviewTest, CaseBHoursOnTheFirst) {
  // DH 01/03 not after DI 10/03: IATA 0, IATN 10 - 1 = 9, INTA 0, INTN 30 - 10
  // + 1 = 21.
  EXPECT_EQ(Partage(Agent("10/03/2023", "01/03/2023")).q, (Quadrants{0, 9, 0, 21}));
}

TEST(CoefficientsReviewTest, CaseBIndexOnThe31st) {
  // DH 10/03, DI 31/03: IATA 9, IATN 21, INTN 30 - 31 + 1 = 0.
  EXPECT_EQ(Partage(Agent("31/03/2023", "10/03/2023")).q, (Quadrants{9, 21, 0, 0}));
}

TEST(CoefficientsReviewTest, CaseBCalendarPayUsesTheLastPaidDay) {
  // Entry on the 5th, calendar pay: iJourFin = 31, INTN = 31 - 31 + 1 = 1.
  VarCalculSalarie s = Agent("31/03/2023", "10/03/2023", "05/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Partage(s).q, (Quadrants{9, 21, 0, 1}));
  // Without calendar pay: 30 - 31 + 1 = 0.
  s.bCalculPayeEnJoursCalendaires = false;
  EXPECT_EQ(Partage(s).q, (Quadrants{9, 21, 0, 0}));
}

TEST(CoefficientsReviewTest, CaseBCalendarPayWithAnExitInTheMonth) {
  // Entry 05/03, exit 20/03, both changes on the 15th: iJourFin = 20, INTN = 20
  // - 15 + 1 = 6.
  VarCalculSalarie s = Agent("15/03/2023", "15/03/2023", "05/03/2023");
  s.sDateFin = "20/03/2023";
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Partage(s).q, (Quadrants{14, 0, 0, 6}));
  // Present from the first: the 30-day form, 30 - 15 + 1 = 16, though the exit
  // is the 20th.
  s.sDateDebut = "01/01/2015";
  EXPECT_EQ(Partage(s).q, (Quadrants{14, 0, 0, 16}));
}

TEST(CoefficientsReviewTest, CaseBCalendarPayInFebruary) {
  // Entry 05/02/2024, calendar pay, no end: iJourFin = 29; DH 10/02, DI 20/02:
  // IATA 9, IATN 10, INTN 29 - 20 + 1 = 10.
  VarCalculSalarie s = Agent("20/02/2024", "10/02/2024", "05/02/2024");
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Partage(s, "01/02/2024").q, (Quadrants{9, 10, 0, 10}));
}

TEST(CoefficientsReviewTest, CaseCIgnoresCalendarPay) {
  VarCalculSalarie s = Agent("31/03/2023", "01/01/2020", "05/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  // IATN 31 - 1 = 30, INTN 30 - 31 + 1 = 0.
  EXPECT_EQ(Partage(s).q, (Quadrants{0, 30, 0, 0}));
}

TEST(CoefficientsReviewTest, CaseCHoursInAnotherMonth) {
  // An hours change in the next month is not in the month: case C.
  EXPECT_EQ(Partage(Agent("16/03/2023", "10/04/2023")).q, (Quadrants{0, 15, 0, 15}));
  // The same month of another year is not the month either.
  EXPECT_EQ(Partage(Agent("16/03/2023", "10/03/2022")).q, (Quadrants{0, 15, 0, 15}));
}

TEST(CoefficientsReviewTest, CaseCFebruaryOf29Days) {
  // DI 29/02/2024: IATN 28, INTN 30 - 29 + 1 = 2.
  EXPECT_EQ(Partage(Agent("29/02/2024", "01/01/2020"), "01/02/2024").q, (Quadrants{0, 28, 0, 2}));
}

TEST(CoefficientsReviewTest, CaseDNextMonthAcrossTheYear) {
  // December 2023, index change on 10/01/2024: minus one month is 10/12/2023.
  EXPECT_EQ(Partage(Agent("10/01/2024", "05/12/2023"), "01/12/2023").q, (Quadrants{30, 0, 0, 0}));
}

TEST(CoefficientsReviewTest, CaseDFromTheEndOfNextMonth) {
  // 31/03 minus one month is 28/02: in February 2023, case D.
  EXPECT_EQ(Partage(Agent("31/03/2023", "15/02/2023"), "01/02/2023").q, (Quadrants{30, 0, 0, 0}));
  // 01/04 for March.
  const Parts p = Partage(Agent("01/04/2023", "15/03/2023"));
  EXPECT_EQ(p.q, (Quadrants{30, 0, 0, 0}));
  EXPECT_EQ(p.s.dCoefficient_IATA, 1.0);
}

TEST(CoefficientsReviewTest, CaseESameMonthOtherYearIndex) {
  // DI 15/03/2022 is neither in March 2023 nor next month: the hours decide.
  EXPECT_EQ(Partage(Agent("15/03/2022", "01/03/2023")).q, (Quadrants{0, 0, 0, 30}));
  EXPECT_EQ(Partage(Agent("15/03/2022", "31/03/2023")).q, (Quadrants{0, 0, 30, 0}));
}

TEST(CoefficientsReviewTest, CaseEAndFWithAPastIndexChange) {
  // DI last month.
  EXPECT_EQ(Partage(Agent("15/02/2023", "20/03/2023")).q, (Quadrants{0, 0, 19, 11}));
  EXPECT_EQ(Partage(Agent("15/02/2023", "20/02/2023")).q, (Quadrants{0, 0, 0, 30}));
  // February 2023: DH on the 28th, INTA 27, INTN 3.
  EXPECT_EQ(Partage(Agent("15/01/2022", "28/02/2023"), "01/02/2023").q, (Quadrants{0, 0, 27, 3}));
}

TEST(CoefficientsReviewTest, EntryOnTheHoursDateTurnsCaseAIntoCaseB) {
  // Entry 10/03 and DH 10/03: DH becomes 01/03, not after DI 20/03: case B.
  // IATA 0, IATN 20 - 1 = 19, INTN 30 - 20 + 1 = 11.
  const Parts p = Partage(Agent("20/03/2023", "10/03/2023", "10/03/2023"));
  EXPECT_EQ(p.s.sDateChangementHeures, "01/03/2023");
  EXPECT_EQ(p.q, (Quadrants{0, 19, 0, 11}));
}

TEST(CoefficientsReviewTest, EntryOnTheHoursDateIsRewrittenBeforeTheIndexTest) {
  VarCalculSalarie s = Agent("", "10/03/2023", "10/03/2023", "INDTIT");
  s.dCoefficient_IATN = 0.5;
  const Parts p = Partage(s);
  EXPECT_TRUE(p.ok);
  EXPECT_EQ(p.s.sDateChangementHeures, "01/03/2023");
  EXPECT_EQ(p.s.dCoefficient_IATN, 0.5);
}

TEST(CoefficientsReviewTest, EntryInAnotherMonthKeepsTheHoursDate) {
  const Parts p = Partage(Agent("01/01/2020", "10/02/2023", "10/02/2023"));
  EXPECT_EQ(p.s.sDateChangementHeures, "10/02/2023");
  EXPECT_EQ(p.q, (Quadrants{0, 0, 0, 30}));
}

TEST(CoefficientsReviewTest, OtherModelsKeepTheHoursDate) {
  VarCalculSalarie s = Agent("20/03/2023", "10/03/2023", "10/03/2023", "HORAIR");
  const Parts p = Partage(s);
  EXPECT_TRUE(p.ok);
  EXPECT_EQ(p.s.sDateChangementHeures, "10/03/2023");
  EXPECT_EQ(p.q, (Quadrants{0, 0, 0, 0}));
}

TEST(CoefficientsReviewTest, ModelNamesAreExact) {
  VarCalculSalarie s = Agent("11/03/2023", "01/01/2020", "01/01/2015", "indtit");
  EXPECT_EQ(Partage(s).q, (Quadrants{0, 0, 0, 0}));
  s.sTypeModele = "INDTIT";
  EXPECT_EQ(Partage(s).q, (Quadrants{0, 10, 0, 20}));
}

TEST(CoefficientsReviewTest, UnreadableStartIsAFaultForEveryModel) {
  VarCalculSalarie s = Agent("11/03/2023", "01/01/2020", "", "HORAIR");
  EXPECT_FALSE(Partage(s).ok);
}

// ---- Elected officials' split
// -----------------------------------------------------------------

struct Elus {
  double ancien, nouveau;
  std::string sChangement;
};

Elus PartElus(const std::string &sChangement, const std::string &sDebut,
              const std::string &sPeriode) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.sTypeModele = "ELUS";
  s.sDateDebut = sDebut;
  s.sDateChangementTauxElus = sChangement;
  s.dCoefficient_IAncien = -1;
  s.dCoefficient_INouveau = -1;
  m.CalculCoefficientUtilisationTauxElus(s, sPeriode);
  return {s.dCoefficient_IAncien, s.dCoefficient_INouveau, s.sDateChangementTauxElus};
}

TEST(CoefficientsReviewTest, ElusChangeOnThe31st) {
  // N = 31 - 1 = 30, M = 0.
  const Elus e = PartElus("31/03/2023", "01/01/2015", "01/03/2023");
  EXPECT_EQ(e.ancien, 1.0);
  EXPECT_EQ(e.nouveau, 0.0);
}

TEST(CoefficientsReviewTest, ElusChangeOnTheFirstAndInFebruary) {
  Elus e = PartElus("01/03/2023", "01/01/2015", "01/03/2023");
  EXPECT_EQ(e.ancien, 0.0);
  EXPECT_EQ(e.nouveau, 1.0);
  // 28/02/2023: N = 27, M = 3.
  e = PartElus("28/02/2023", "01/01/2015", "01/02/2023");
  EXPECT_EQ(e.ancien, 27 / 30.0);
  EXPECT_EQ(e.nouveau, 3 / 30.0);
}

TEST(CoefficientsReviewTest, ElusEarlierMonthIsTheNewRate) {
  const Elus e = PartElus("15/01/2023", "01/01/2015", "01/03/2023");
  EXPECT_EQ(e.ancien, 0.0);
  EXPECT_EQ(e.nouveau, 1.0);
}

TEST(CoefficientsReviewTest, ElusLaterMonthButNotAfterTheStart) {
  // A later month of the year gives N = 30, but the change is not after the
  // start: N = 0.
  const Elus e = PartElus("15/05/2023", "20/05/2023", "01/03/2023");
  EXPECT_EQ(e.ancien, 0.0);
  EXPECT_EQ(e.nouveau, 1.0);
}

TEST(CoefficientsReviewTest, ElusPeriodArgumentIsTheMonth) {
  // The month given, not the engine's current month.
  const Elus e = PartElus("11/05/2023", "01/01/2015", "01/05/2023");
  EXPECT_EQ(e.ancien, 10 / 30.0);
  EXPECT_EQ(e.nouveau, 20 / 30.0);
}

TEST(CoefficientsReviewTest, ElusEmptyChangeDateIsTheStart) {
  // The start in the month on the 10th: C = start, difference 0: N = 0.
  const Elus e = PartElus("", "10/03/2023", "01/03/2023");
  EXPECT_EQ(e.sChangement, "10/03/2023");
  EXPECT_EQ(e.ancien, 0.0);
  EXPECT_EQ(e.nouveau, 1.0);
}

TEST(CoefficientsReviewTest, ElusThroughTheEntryUsesTheCurrentMonth) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/06/2023";
  VarCalculSalarie s;
  s.sTypeModele = "ELUS";
  s.sDateDebut = "01/01/2015";
  s.sDateChangementTauxElus = "16/06/2023";
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_INDICE", s));
  EXPECT_EQ(s.dCoefficient_IAncien, 15 / 30.0);
  EXPECT_EQ(s.dCoefficient_INouveau, 15 / 30.0);
}

// ---- Treatment coefficient
// ------------------------------------------------------------------

struct Trois {
  double traitement = -7, avantTP = -7, siTNC = -7;
};

Trois Occupation(VarCalculSalarie s, bool bMoisEnCours = true,
                 const std::string &sPeriode = "01/04/2023") {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = sPeriode;
  Trois t;
  m.CalculCoefficientTraitementEnFonctionOccupationPoste(s, bMoisEnCours, t.traitement, t.avantTP,
                                                         t.siTNC);
  return t;
}

VarCalculSalarie Titulaire(const std::string &sOccupation) {
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sOccupationPoste = sOccupation;
  s.sOccupationPosteMoisPrec = sOccupation;
  s.rsSituationsExceptionnelles = Situations({});
  return s;
}

TEST(CoefficientsReviewTest, QuotityExactComparisons) {
  VarCalculSalarie s = Titulaire("P");
  s.dTauxPoste = 80;
  EXPECT_EQ(Occupation(s).traitement, 6.0 / 7.0);
  s.dTauxPoste = 90;
  EXPECT_EQ(Occupation(s).traitement, 32.0 / 35.0);
  s.dTauxPoste = 79.99999;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 0.7999999);
  s.dTauxPoste = 90.5;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 0.905);
  s.dTauxPoste = 70;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 0.7);
  s.dTauxPoste = 0;
  EXPECT_EQ(Occupation(s).traitement, 0.0);
}

TEST(CoefficientsReviewTest, PartTimeLeavesTheOtherOutputsAtZero) {
  VarCalculSalarie s = Titulaire("P");
  s.dTauxPoste = 80;
  s.dTauxPosteTNC = 50;
  s.dHeuresHebdoOrigineTNC = 20;
  const Trois t = Occupation(s);
  EXPECT_EQ(t.avantTP, 0.0);
  EXPECT_EQ(t.siTNC, 0.0);
}

TEST(CoefficientsReviewTest, NonCompletePostQuotities) {
  VarCalculSalarie s = Titulaire("T");
  s.dTauxPosteTNC = 80;
  s.dHeuresHebdoOrigineTNC = 17.5;
  s.dDureeHebdoLegale = 35;
  Trois t = Occupation(s);
  EXPECT_DOUBLE_EQ(t.avantTP, 0.5);
  EXPECT_EQ(t.siTNC, 6.0 / 7.0);
  EXPECT_DOUBLE_EQ(t.traitement, 0.5 * 6.0 / 7.0);
  s.dTauxPosteTNC = 90;
  t = Occupation(s);
  EXPECT_EQ(t.siTNC, 32.0 / 35.0);
  EXPECT_DOUBLE_EQ(t.traitement, 0.5 * 32.0 / 35.0);
  // Legal duration negative: 35.
  s.dDureeHebdoLegale = -35;
  s.dTauxPosteTNC = 60;
  t = Occupation(s);
  EXPECT_DOUBLE_EQ(t.avantTP, 0.5);
  EXPECT_DOUBLE_EQ(t.traitement, 0.3);
}

TEST(CoefficientsReviewTest, NonCompletePostOn39Hours) {
  VarCalculSalarie s = Titulaire("T");
  s.dTauxPosteTNC = 100;
  s.dHeuresHebdoOrigineTNC = 29.25;
  s.dDureeHebdoLegale = 39;
  const Trois t = Occupation(s);
  EXPECT_DOUBLE_EQ(t.avantTP, 0.75);
  EXPECT_DOUBLE_EQ(t.traitement, 0.75);
}

TEST(CoefficientsReviewTest, HoursAgainstTheLegalDuration) {
  VarCalculSalarie s = Titulaire("C");
  s.iTypeCalculHeure = 1;
  s.dHeuresHebdo = 39;
  s.dDureeHebdoLegale = 39;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 1.0);
  s.dDureeHebdoLegale = 0;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 39.0 / 35.0);
  // Monthly: 37 hours a week, R = 37 x 151.67 / 35 = 160.336857... rounded to
  // 160.34.
  s.iTypeCalculHeure = 0;
  s.dDureeHebdoLegale = 37;
  s.dHeuresMois = 80.17;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 0.5);
  // 39 hours: R = 169.
  s.dDureeHebdoLegale = 39;
  s.dHeuresMois = 169;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 1.0);
  // 35 hours: R = 151.67.
  s.dDureeHebdoLegale = 35;
  s.dHeuresMois = 151.67;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 1.0);
  // No legal duration: 151.67 itself.
  s.dDureeHebdoLegale = 0;
  s.dHeuresMois = 130;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 130 / 151.67);
  // The other outputs stay 0.
  const Trois t = Occupation(s);
  EXPECT_EQ(t.avantTP, 0.0);
  EXPECT_EQ(t.siTNC, 0.0);
}

TEST(CoefficientsReviewTest, OnlyTypeOneIsWeekly) {
  VarCalculSalarie s = Titulaire("N");
  s.iTypeCalculHeure = 2;
  s.dHeuresHebdo = 35;
  s.dHeuresMois = 75.835;
  s.dDureeHebdoLegale = 35;
  EXPECT_DOUBLE_EQ(Occupation(s).traitement, 0.5);
}

TEST(CoefficientsReviewTest, LegalDurationRoundingToZeroIsAFault) {
  // R = 0.001 x 151.67 / 35 = 0.0043 rounds to 0.00: the division faults.
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/04/2023";
  VarCalculSalarie s = Titulaire("C");
  s.dDureeHebdoLegale = 0.001;
  s.dHeuresMois = 10;
  EXPECT_FALSE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
}

TEST(CoefficientsReviewTest, PreviousMonthReadsMonthlyHoursOfItsOwnColumn) {
  VarCalculSalarie s = Titulaire("C");
  s.iTypeCalculHeureMoisPrec = 0;
  s.dDureeHebdoLegaleMoisPrec = 35;
  s.dHeuresMensMoisPrec = 75.835;
  s.dHeuresMoisPrec = 151.67;  // another field, not read here
  s.dHeuresMois = 151.67;
  s.dDureeHebdoLegale = 39;
  EXPECT_DOUBLE_EQ(Occupation(s, false).traitement, 0.5);
}

TEST(CoefficientsReviewTest, PreviousMonthLegalDurationAndWeeklyHours) {
  VarCalculSalarie s = Titulaire("C");
  s.iTypeCalculHeure = 0;
  s.iTypeCalculHeureMoisPrec = 1;
  s.dHeuresHebdoMoisPrec = 19.5;
  s.dDureeHebdoLegaleMoisPrec = 39;
  s.dHeuresHebdo = 35;
  s.dDureeHebdoLegale = 35;
  EXPECT_DOUBLE_EQ(Occupation(s, false).traitement, 0.5);
  s.dDureeHebdoLegaleMoisPrec = 0;
  EXPECT_DOUBLE_EQ(Occupation(s, false).traitement, 19.5 / 35);
}

TEST(CoefficientsReviewTest, EntryWritesEveryFieldOfBothMonths) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/04/2023";
  VarCalculSalarie s = Titulaire("P");
  s.dTauxPoste = 90;
  s.sOccupationPosteMoisPrec = "T";
  s.dTauxPosteTNCMoisPrec = 80;
  s.dHeuresHebdoOrigineTNCMoisPrec = 21;
  s.dDureeHebdoLegaleMoisPrec = 35;
  s.dCoefficientTraitementTPSiTNC = 9;
  s.dCoefficientTraitementTNCAvantTP = 9;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_EQ(s.dCoefficient_TraitementTN, 32.0 / 35.0);
  EXPECT_EQ(s.dCoefficientTraitementTPSiTNC, 0.0);
  EXPECT_EQ(s.dCoefficientTraitementTNCAvantTP, 0.0);
  EXPECT_DOUBLE_EQ(s.dCoefficientTraitementTNCAvantTPMoisPrec, 0.6);
  EXPECT_EQ(s.dCoefficientTraitementTPSiTNCMoisPrec, 6.0 / 7.0);
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTA, 0.6 * 6.0 / 7.0);
}

TEST(CoefficientsReviewTest, ElectedOfficialsRates) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.sTypeModele = "ELUS";
  s.dTauxMaire = 120;
  s.dTauxEPCI = -10;  // not above 0: ignored
  s.dCoefficient_TraitementTN = 0.4;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_DOUBLE_EQ(s.dCoefficient_Traitement, 1.2);
  EXPECT_EQ(s.dCoefficient_TraitementTN, 0.4);
  // 25 % of a 0 % rate is 0.
  s.dTauxMaire = 0;
  s.dTauxEPCI = 25;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_EQ(s.dCoefficient_Traitement, 0.0);
  // 60 % of 70 %: 0.42.
  s.dTauxMaire = 70;
  s.dTauxEPCI = 60;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_DOUBLE_EQ(s.dCoefficient_Traitement, 0.42);
}

TEST(CoefficientsReviewTest, OtherModelsZeroTheThreeAndKeepTheRest) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s = Titulaire("P");
  s.sTypeModele = "";
  s.dCoefficient_TraitementTA = 1;
  s.dCoefficient_TraitementTN = 1;
  s.dCoefficient_Traitement = 1;
  s.dCoefficientTraitementTPSiTNC = 0.25;
  s.rsSituationsExceptionnelles = nullptr;  // never read
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_EQ(s.dCoefficient_TraitementTA, 0.0);
  EXPECT_EQ(s.dCoefficient_TraitementTN, 0.0);
  EXPECT_EQ(s.dCoefficient_Traitement, 0.0);
  EXPECT_EQ(s.dCoefficientTraitementTPSiTNC, 0.25);
}

TEST(CoefficientsReviewTest, HoursPostsNeedNoSituationSource) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/04/2023";
  VarCalculSalarie s = Titulaire("C");
  s.iTypeCalculHeure = 1;
  s.iTypeCalculHeureMoisPrec = 1;
  s.dHeuresHebdo = 17.5;
  s.dHeuresHebdoMoisPrec = 35;
  s.rsSituationsExceptionnelles = nullptr;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTN, 0.5);
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTA, 1.0);
}

// ---- Therapeutic part-time correction
// --------------------------------------------------------

double Corrige(const std::vector<LigneSituation> &lignes, const std::string &sPeriode,
               double dTaux = 50) {
  VarCalculSalarie s = Titulaire("P");
  s.dTauxPoste = dTaux;
  s.rsSituationsExceptionnelles = Situations(lignes);
  return Occupation(s, true, sPeriode).traitement;
}

TEST(CoefficientsReviewTest, TptStretchInA30DayMonth) {
  // 11/04 to 20/04: 9 + 1 = 10 days; (20 x 0.5 + 10) / 30.
  EXPECT_DOUBLE_EQ(Corrige({{"MI", "11/04/2023", "20/04/2023"}}, "01/04/2023"), 20.0 / 30);
}

TEST(CoefficientsReviewTest, TptOneDayIn30And31DayMonths) {
  // One day: difference 0, plus k. April: N = 1; March: N = 0.
  EXPECT_DOUBLE_EQ(Corrige({{"M9", "15/04/2023", "15/04/2023"}}, "01/04/2023"), 15.5 / 30);
  EXPECT_DOUBLE_EQ(Corrige({{"M9", "15/03/2023", "15/03/2023"}}, "01/03/2023"), 0.5);
}

TEST(CoefficientsReviewTest, TptWholeFebruaries) {
  // 2023: 27 + 1 = 28: (2 x 0.5 + 28) / 30.
  EXPECT_DOUBLE_EQ(Corrige({{"MI", "01/01/2023", "31/03/2023"}}, "01/02/2023"), 29.0 / 30);
  // 2024: 28 + 1 = 29: (1 x 0.5 + 29) / 30.
  EXPECT_DOUBLE_EQ(Corrige({{"MI", "15/12/2023", ""}}, "01/02/2024"), 29.5 / 30);
}

TEST(CoefficientsReviewTest, TptUpToThe30thOfA31DayMonth) {
  // 01/03 to 30/03: 29 + 0 = 29: (1 x 0.5 + 29) / 30.
  EXPECT_DOUBLE_EQ(Corrige({{"MV", "01/03/2023", "30/03/2023"}}, "01/03/2023"), 29.5 / 30);
}

TEST(CoefficientsReviewTest, TptWithThe80And90Quotities) {
  // 10 days in April at 80 %: (20 x 6/7 + 10) / 30.
  EXPECT_DOUBLE_EQ(Corrige({{"M6", "21/04/2023", "30/04/2023"}}, "01/04/2023", 80),
                   (20 * (6.0 / 7.0) + 10) / 30);
  EXPECT_DOUBLE_EQ(Corrige({{"M6", "21/04/2023", "30/04/2023"}}, "01/04/2023", 90),
                   (20 * (32.0 / 35.0) + 10) / 30);
}

TEST(CoefficientsReviewTest, TptEveryCodeOfTheFilterAndNoOther) {
  // Each of the six codes: 5 days (01/04 to 05/04: 4 + 1); the 'M7' clause with
  // its missing blank still selects.
  for (const char *code : {"MI", "M6", "M7", "M8", "M9", "MV"}) {
    EXPECT_DOUBLE_EQ(Corrige({{code, "01/04/2023", "05/04/2023"}}, "01/04/2023"), 17.5 / 30)
        << code;
  }
  for (const char *code : {"MINS", "M7NS", "MVNS", "LM", "CM", "M5", "M"}) {
    EXPECT_DOUBLE_EQ(Corrige({{code, "01/04/2023", "05/04/2023"}}, "01/04/2023"), 0.5) << code;
  }
}

TEST(CoefficientsReviewTest, TptSituationBeforeTheMonthSubtracts) {
  // Start stays 01/04, end becomes 31/01: difference -60, plus 1: N = -59.
  // ((30 + 59) x 0.5 - 59) / 30 = -14.5 / 30.
  EXPECT_DOUBLE_EQ(Corrige({{"MI", "01/01/2023", "31/01/2023"}}, "01/04/2023"), -14.5 / 30);
}

TEST(CoefficientsReviewTest, TptSituationAfterTheMonthSubtracts) {
  // Start becomes 10/05, end stays 30/04: difference -10, plus 1: N = -9.
  // (39 x 0.5 - 9) / 30 = 10.5 / 30.
  EXPECT_DOUBLE_EQ(Corrige({{"MI", "10/05/2023", "20/05/2023"}}, "01/04/2023"), 10.5 / 30);
}

TEST(CoefficientsReviewTest, TptPreviousMonthIsCorrectedOnTheCurrentMonth) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/04/2023";
  VarCalculSalarie s = Titulaire("C");
  s.iTypeCalculHeure = 1;
  s.dHeuresHebdo = 35;
  s.sOccupationPosteMoisPrec = "P";
  s.dTauxPosteMoisPrec = 50;
  s.rsSituationsExceptionnelles = Situations({{"MI", "01/04/2023", "10/04/2023"}});
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  // N = 9 + 1 = 10: (20 x 0.5 + 10) / 30.
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTA, 20.0 / 30);
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTN, 1.0);
  EXPECT_EQ(s.rsSituationsExceptionnelles->RecordCount(), 1);
}

TEST(CoefficientsReviewTest, TptNonCompletePostCorrectsTheShareOnly) {
  VarCalculSalarie s = Titulaire("T");
  s.dTauxPosteTNC = 80;
  s.dHeuresHebdoOrigineTNC = 28;
  s.dDureeHebdoLegale = 35;
  s.rsSituationsExceptionnelles = Situations({{"M8", "16/04/2023", ""}});
  const Trois t = Occupation(s);
  // N = 14 + 1 = 15: (15 x 6/7 + 15) / 30.
  EXPECT_DOUBLE_EQ(t.siTNC, (15 * (6.0 / 7.0) + 15) / 30);
  EXPECT_DOUBLE_EQ(t.avantTP, 0.8);
  EXPECT_DOUBLE_EQ(t.traitement, 0.8 * 6.0 / 7.0);
}

TEST(CoefficientsReviewTest, TptEmptySourceLeavesTheQuotity) {
  EXPECT_EQ(Corrige({}, "01/04/2023", 80), 6.0 / 7.0);
}

}  // namespace
}  // namespace orvalis
