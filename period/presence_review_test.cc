// Independent checks of the first and last paid days of a month, the days of
// presence by quadrant, alone and after the quadrant shares of the same month,
// and the real calendar days of employment, with values worked out by hand from
// the payroll rules.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::Quadrants;

struct Jours {
  bool ok;
  Quadrants q;
  int a, n, total;
};

Jours Lit(bool ok, const VarCalculSalarie &s) {
  return {ok,
          {s.iNBJ_PresenceIATA, s.iNBJ_PresenceIATN, s.iNBJ_PresenceINTA, s.iNBJ_PresenceINTN},
          s.iNBJ_PresenceA,
          s.iNBJ_PresenceN,
          s.iNBJ_Presence_Total};
}

// The host's order: the shares of the month, then the days of presence.
Jours Chaine(VarCalculSalarie s, const std::string &sPeriode = "01/03/2023") {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = sPeriode;
  bool ok = m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_INDICE", s);
  ok = m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_PRESENCE", s) && ok;
  return Lit(ok, s);
}

// The days of presence alone, on coefficients given in 30ths.
Jours Presence(VarCalculSalarie s, const std::string &sPeriode = "01/03/2023") {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = sPeriode;
  const bool ok = m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_PRESENCE", s);
  return Lit(ok, s);
}

VarCalculSalarie Agent(const std::string &sIndice, const std::string &sHeures,
                       const std::string &sDebut = "01/01/2015", const std::string &sFin = "") {
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sDateDebut = sDebut;
  s.sDateFin = sFin;
  s.sDateChangementIndice = sIndice;
  s.sDateChangementHeures = sHeures;
  return s;
}

VarCalculSalarie Parts(VarCalculSalarie s, int iata, int iatn, int inta, int intn) {
  s.dCoefficient_IATA = iata / 30.0;
  s.dCoefficient_IATN = iatn / 30.0;
  s.dCoefficient_INTA = inta / 30.0;
  s.dCoefficient_INTN = intn / 30.0;
  return s;
}

// ---- First and last paid days
// ----------------------------------------------------------------

struct Bornes {
  std::string sDernier;
  int deb = -99;
  int fin = -99;
};

Bornes BornesDuMois(const std::string &sDebut, const std::string &sFin, bool bCalendaire,
                    const std::string &sPeriode) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.sDateDebut = sDebut;
  s.sDateFin = sFin;
  s.bCalculPayeEnJoursCalendaires = bCalendaire;
  Bornes b;
  Int16 deb = -99, fin = -99;
  m.CalculRechercheJourDebutEtJourFin(s, sPeriode, b.sDernier, deb, fin);
  b.deb = deb;
  b.fin = fin;
  return b;
}

TEST(PresenceReviewTest, BornesLastDayTextOfEachMonthLength) {
  EXPECT_EQ(BornesDuMois("01/01/2015", "", false, "01/04/2023").sDernier, "30/04/2023");
  EXPECT_EQ(BornesDuMois("01/01/2015", "", false, "01/12/2023").sDernier, "31/12/2023");
  EXPECT_EQ(BornesDuMois("01/01/2015", "", false, "01/02/2024").sDernier, "29/02/2024");
  EXPECT_EQ(BornesDuMois("01/01/2015", "", false, "01/02/2100").sDernier, "28/02/2100");
}

TEST(PresenceReviewTest, BornesStartOnTheFirstIsDayOne) {
  // Difference from the start to the first of the month is 0, not above 0: day
  // of the start.
  const Bornes b = BornesDuMois("01/03/2023", "", false, "01/03/2023");
  EXPECT_EQ(b.deb, 1);
  EXPECT_EQ(b.fin, 30);
  EXPECT_EQ(BornesDuMois("28/02/2023", "", false, "01/03/2023").deb, 1);
}

TEST(PresenceReviewTest, BornesEndOnTheLastDayAndAfter) {
  // End on the 31st: day 31, clamped to 30 without calendar pay.
  EXPECT_EQ(BornesDuMois("01/01/2015", "31/03/2023", false, "01/03/2023").fin, 30);
  // End on the 30th of a 30-day month.
  EXPECT_EQ(BornesDuMois("01/01/2015", "30/04/2023", false, "01/04/2023").fin, 30);
  // End on the first of the next month: after the month, 30.
  EXPECT_EQ(BornesDuMois("01/01/2015", "01/04/2023", false, "01/03/2023").fin, 30);
  // End the day before the last one.
  EXPECT_EQ(BornesDuMois("01/01/2015", "29/04/2023", false, "01/04/2023").fin, 29);
}

TEST(PresenceReviewTest, BornesEndBeforeTheMonthIsItsDay) {
  // 31/01 lies before 28/02: day 31, clamped to 30, then February makes it 30.
  EXPECT_EQ(BornesDuMois("01/01/2015", "31/01/2023", false, "01/02/2023").fin, 30);
  // 15/01: 15, below the 28th, and the end is not empty: 15 stays.
  EXPECT_EQ(BornesDuMois("01/01/2015", "15/01/2023", false, "01/02/2023").fin, 15);
}

TEST(PresenceReviewTest, BornesStartAfterTheMonth) {
  // Started later: the day of the start, 31 clamped to 30 without calendar pay.
  EXPECT_EQ(BornesDuMois("31/05/2023", "", false, "01/04/2023").deb, 30);
  // With calendar pay the start is left as it is, and the end is the last
  // calendar day.
  const Bornes c = BornesDuMois("31/05/2023", "", true, "01/04/2023");
  EXPECT_EQ(c.deb, 31);
  EXPECT_EQ(c.fin, 30);
}

TEST(PresenceReviewTest, BornesCalendarPay) {
  // No end, start on the 5th of a 31-day month: the last calendar day.
  EXPECT_EQ(BornesDuMois("05/03/2023", "", true, "01/03/2023").fin, 31);
  // No end, present from the first: 30.
  EXPECT_EQ(BornesDuMois("01/01/2015", "", true, "01/03/2023").fin, 30);
  // End after the month behaves as no end.
  EXPECT_EQ(BornesDuMois("05/03/2023", "15/06/2023", true, "01/03/2023").fin, 31);
  EXPECT_EQ(BornesDuMois("01/01/2015", "15/06/2023", true, "01/03/2023").fin, 30);
  // End on the 31st: kept when the start is not the first, clamped when it is.
  EXPECT_EQ(BornesDuMois("10/03/2023", "31/03/2023", true, "01/03/2023").fin, 31);
  EXPECT_EQ(BornesDuMois("01/01/2015", "31/03/2023", true, "01/03/2023").fin, 30);
  // The 31st as first day keeps 31.
  const Bornes t = BornesDuMois("31/03/2023", "", true, "01/03/2023");
  EXPECT_EQ(t.deb, 31);
  EXPECT_EQ(t.fin, 31);
}

TEST(PresenceReviewTest, BornesFebruaryWithoutCalendarPay) {
  // 2023: 28 days.
  EXPECT_EQ(BornesDuMois("01/01/2015", "", false, "01/02/2023").fin, 30);
  EXPECT_EQ(BornesDuMois("10/02/2023", "", false, "01/02/2023").fin, 30);
  EXPECT_EQ(BornesDuMois("01/01/2015", "28/02/2023", false, "01/02/2023").fin, 30);
  EXPECT_EQ(BornesDuMois("01/01/2015", "27/02/2023", false, "01/02/2023").fin, 27);
  EXPECT_EQ(BornesDuMois("01/01/2015", "10/03/2023", false, "01/02/2023").fin, 30);
  EXPECT_EQ(BornesDuMois("28/02/2023", "", false, "01/02/2023").deb, 28);
  // 2024: 29 days. The 28th is no longer the last day.
  EXPECT_EQ(BornesDuMois("01/01/2015", "28/02/2024", false, "01/02/2024").fin, 28);
  EXPECT_EQ(BornesDuMois("01/01/2015", "29/02/2024", false, "01/02/2024").fin, 30);
  EXPECT_EQ(BornesDuMois("29/02/2024", "", false, "01/02/2024").deb, 29);
  // A start on 30/03 seen from February 2024: 30 is above 29, so 30.
  EXPECT_EQ(BornesDuMois("30/03/2024", "", false, "01/02/2024").deb, 30);
  // A start on 29/03 seen from February 2024: 29 is not above 29.
  EXPECT_EQ(BornesDuMois("29/03/2024", "", false, "01/02/2024").deb, 29);
}

TEST(PresenceReviewTest, BornesFebruaryWithCalendarPay) {
  // No February correction with calendar pay.
  EXPECT_EQ(BornesDuMois("10/02/2024", "", true, "01/02/2024").fin, 29);
  EXPECT_EQ(BornesDuMois("10/02/2023", "28/02/2023", true, "01/02/2023").fin, 28);
  // Present from before the month: 30, not the calendar end.
  EXPECT_EQ(BornesDuMois("01/01/2015", "", true, "01/02/2023").fin, 30);
  // An end on the 28th with a start on the 1st: 28 stays (not above 30).
  EXPECT_EQ(BornesDuMois("01/01/2015", "28/02/2023", true, "01/02/2023").fin, 28);
}

// ---- The chain of the two preparations, case by case
// ----------------------------------------

TEST(PresenceReviewTest, CaseAWholeMonth) {
  // Shares 9, 0, 10, 11. IATA: X = DI (DH after it), 10 - 1 = 9; INTA 20 - 10;
  // INTN 30 - 20 + 1.
  const Jours j = Chaine(Agent("10/03/2023", "20/03/2023"));
  ASSERT_TRUE(j.ok);
  EXPECT_EQ(j.q, (Quadrants{9, 0, 10, 11}));
  EXPECT_EQ(j.a, 0);
  EXPECT_EQ(j.n, 11);
  EXPECT_EQ(j.total, 30);
}

TEST(PresenceReviewTest, CaseAWithEntryAndExit) {
  // Entry 05/03: IATA 10 - 5 = 5. Exit 25/03: INTN 25 - 20 + 1 = 6. Total 21.
  const Jours j = Chaine(Agent("10/03/2023", "20/03/2023", "05/03/2023", "25/03/2023"));
  EXPECT_EQ(j.q, (Quadrants{5, 0, 10, 6}));
  EXPECT_EQ(j.total, 21);
}

TEST(PresenceReviewTest, CaseBWholeMonth) {
  // Shares 9, 10, 0, 11. IATA: X = DH, 10 - 1; IATN 20 - 10; INTN 30 - 20 + 1.
  const Jours j = Chaine(Agent("20/03/2023", "10/03/2023"));
  EXPECT_EQ(j.q, (Quadrants{9, 10, 0, 11}));
  EXPECT_EQ(j.a, 10);
  EXPECT_EQ(j.n, 11);
  EXPECT_EQ(j.total, 30);
}

TEST(PresenceReviewTest, CaseBSameDay) {
  // Shares 14, 0, 0, 16. X = DI: 15 - 1 = 14; INTN: IATA above 0, 30 - 15 + 1
  // = 16.
  EXPECT_EQ(Chaine(Agent("15/03/2023", "15/03/2023")).q, (Quadrants{14, 0, 0, 16}));
}

TEST(PresenceReviewTest, CaseCIndexOnThe1stAndOnThe31st) {
  // 1st: shares 0, 0, 0, 30: INTN 30 - 1 + 1 = 30.
  EXPECT_EQ(Chaine(Agent("01/03/2023", "01/01/2020")).q, (Quadrants{0, 0, 0, 30}));
  // 31st: shares 0, 30, 0, 0: IATN 31 - 1 = 30, INTN 0.
  const Jours j = Chaine(Agent("31/03/2023", "01/01/2020"));
  EXPECT_EQ(j.q, (Quadrants{0, 30, 0, 0}));
  EXPECT_EQ(j.a, 30);
  EXPECT_EQ(j.n, 0);
}

TEST(PresenceReviewTest, CaseCEntryAfterTheIndexChangeGoesNegative) {
  // Shares 0, 10, 0, 20 (the share ignores the entry). IATN 11 - 16 = -5, INTN
  // 30 - 11 + 1.
  const Jours j = Chaine(Agent("11/03/2023", "01/01/2020", "16/03/2023"));
  EXPECT_EQ(j.q, (Quadrants{0, -5, 0, 20}));
  EXPECT_EQ(j.total, 15);
}

TEST(PresenceReviewTest, CaseDHoursBeforeTheIndexInTheMonth) {
  // Shares 30, 0, 0, 0. X = DH 15/03, within the employment: 15 - 1 = 14.
  EXPECT_EQ(Chaine(Agent("15/04/2023", "15/03/2023")).q, (Quadrants{14, 0, 0, 0}));
}

TEST(PresenceReviewTest, CaseDHoursOnThe31st) {
  // X = DH 31/03 = the last day of the month: 31 - 1 = 30.
  EXPECT_EQ(Chaine(Agent("15/04/2023", "31/03/2023")).q, (Quadrants{30, 0, 0, 0}));
}

TEST(PresenceReviewTest, CaseDChangeOutsideTheMonthCounts29) {
  // X = DI 15/04 (DH after it): after the month, 30 - 1 = 29.
  EXPECT_EQ(Chaine(Agent("15/04/2023", "20/04/2023")).total, 29);
  // With an exit on the 20th: 20 - 1 = 19.
  EXPECT_EQ(Chaine(Agent("15/04/2023", "20/04/2023", "01/01/2015", "20/03/2023")).total, 19);
  // X before the entry: 30 - 10 = 20.
  EXPECT_EQ(Chaine(Agent("15/04/2023", "05/03/2023", "10/03/2023")).total, 20);
}

TEST(PresenceReviewTest, CaseDXOnTheEntryDay) {
  // Shares set by hand: X = DH = entry: 5 - 5 = 0.
  VarCalculSalarie s = Parts(Agent("15/04/2023", "05/03/2023", "05/03/2023"), 30, 0, 0, 0);
  EXPECT_EQ(Presence(s).q, (Quadrants{0, 0, 0, 0}));
}

TEST(PresenceReviewTest, CaseEHoursInTheMonth) {
  // Shares 0, 0, 14, 16. INTA 15 - 1, INTN 30 - 15 + 1.
  const Jours j = Chaine(Agent("01/01/2022", "15/03/2023"));
  EXPECT_EQ(j.q, (Quadrants{0, 0, 14, 16}));
  EXPECT_EQ(j.a, 0);
  EXPECT_EQ(j.n, 16);
}

TEST(PresenceReviewTest, CaseFWithExit) {
  // Shares 0, 0, 0, 30; exit 12/03: 12 - 1 + 1.
  EXPECT_EQ(Chaine(Agent("01/01/2022", "01/01/2020", "01/01/2015", "12/03/2023")).q,
            (Quadrants{0, 0, 0, 12}));
}

TEST(PresenceReviewTest, February) {
  // 2023, index change on the 28th: shares 0, 27, 0, 3; IATN 28 - 1, INTN 30 -
  // 28 + 1.
  EXPECT_EQ(Chaine(Agent("28/02/2023", "01/01/2020"), "01/02/2023").q, (Quadrants{0, 27, 0, 3}));
  // Exit on the last day of February 2023 counts to day 30.
  EXPECT_EQ(
      Chaine(Agent("01/01/2022", "01/01/2020", "01/01/2015", "28/02/2023"), "01/02/2023").total,
      30);
  // Exit on the 28th of a 29-day February: 28.
  EXPECT_EQ(
      Chaine(Agent("01/01/2022", "01/01/2020", "01/01/2015", "28/02/2024"), "01/02/2024").total,
      28);
  EXPECT_EQ(
      Chaine(Agent("01/01/2022", "01/01/2020", "01/01/2015", "29/02/2024"), "01/02/2024").total,
      30);
  // Entry on 29/02/2024: 30 - 29 + 1 = 2.
  EXPECT_EQ(Chaine(Agent("01/01/2022", "01/01/2020", "29/02/2024"), "01/02/2024").total, 2);
}

TEST(PresenceReviewTest, CalendarPay) {
  VarCalculSalarie s = Agent("01/01/2022", "01/01/2020", "05/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  // Entry on the 5th of March: 31 - 5 + 1 = 27 (26 without calendar pay).
  EXPECT_EQ(Chaine(s).total, 27);
  s.bCalculPayeEnJoursCalendaires = false;
  EXPECT_EQ(Chaine(s).total, 26);
  // February 2024 with calendar pay, entry on the 10th: 29 - 10 + 1 = 20.
  s = Agent("01/01/2022", "01/01/2020", "10/02/2024");
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Chaine(s, "01/02/2024").total, 20);
  // Present from the first, calendar pay: 30.
  s = Agent("01/01/2022", "01/01/2020");
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Chaine(s).total, 30);
}

TEST(PresenceReviewTest, CalendarPayCaseB) {
  // Entry 05/03, DH 10/03, DI 31/03, calendar pay: shares 9, 21, 0, 1.
  // IATA: X = DH: 10 - 5 = 5; IATN 31 - 10 = 21; INTN 31 - 31 + 1 = 1.
  VarCalculSalarie s = Agent("31/03/2023", "10/03/2023", "05/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  const Jours j = Chaine(s);
  EXPECT_EQ(j.q, (Quadrants{5, 21, 0, 1}));
  EXPECT_EQ(j.total, 27);
}

TEST(PresenceReviewTest, The31st) {
  // Entry on the 31st: day 30 to day 30 without calendar pay, 31 to 31 with it.
  EXPECT_EQ(Chaine(Agent("01/01/2022", "01/01/2020", "31/03/2023")).total, 1);
  VarCalculSalarie s = Agent("01/01/2022", "01/01/2020", "31/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Chaine(s).total, 1);
  // Exit on the 31st with calendar pay and an entry on the 10th: 31 - 10 + 1.
  s = Agent("01/01/2022", "01/01/2020", "10/03/2023", "31/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(Chaine(s).total, 22);
}

// ---- Out of the month
// --------------------------------------------------------------------

TEST(PresenceReviewTest, OutOfTheMonthBoundaries) {
  VarCalculSalarie s = Parts(Agent("", "", "01/01/2015", "28/02/2023"), 0, 0, 0, 30);
  EXPECT_EQ(Presence(s).total, 0);
  // Exit on the first of the month is in it: 1 - 1 + 1.
  s.sDateFin = "01/03/2023";
  EXPECT_EQ(Presence(s).q, (Quadrants{0, 0, 0, 1}));
  // Entry on the last day is in the month; the day after is not.
  s = Parts(Agent("", "", "31/03/2023"), 0, 0, 0, 30);
  EXPECT_EQ(Presence(s).total, 1);
  s.sDateDebut = "01/04/2023";
  const Jours j = Presence(s);
  EXPECT_TRUE(j.ok);
  EXPECT_EQ(j.q, (Quadrants{0, 0, 0, 0}));
}

TEST(PresenceReviewTest, OutOfTheMonthClearsEveryQuadrantForTheCaller) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s = Parts(Agent("", "", "01/01/2015", "15/01/2023"), 0, 0, 0, 30);
  s.sTypeModele = "ELUS";
  Int16 a = 5, b = 5, c = 5, d = 5;
  m.CalculNombreJourPresenceMois(s, "01/03/2023", a, b, c, d);
  EXPECT_EQ(a.value(), 0);
  EXPECT_EQ(b.value(), 0);
  EXPECT_EQ(c.value(), 0);
  EXPECT_EQ(d.value(), 0);
}

// ---- Elected officials
// ----------------------------------------------------------------------

VarCalculSalarie Elu(const std::string &sChangement, const std::string &sDebut = "01/01/2015",
                     const std::string &sFin = "") {
  VarCalculSalarie s;
  s.sTypeModele = "ELUS";
  s.sDateDebut = sDebut;
  s.sDateFin = sFin;
  s.sDateChangementTauxElus = sChangement;
  return s;
}

TEST(PresenceReviewTest, ElusChainSplitsAtTheChange) {
  // Shares 10/30 and 20/30; IATN 11 - 1 = 10, INTN 30 - 11 + 1 = 20.
  const Jours j = Chaine(Elu("11/03/2023"));
  EXPECT_EQ(j.q, (Quadrants{0, 10, 0, 20}));
  EXPECT_EQ(j.a, 10);
  EXPECT_EQ(j.n, 20);
  EXPECT_EQ(j.total, 30);
}

TEST(PresenceReviewTest, ElusEntryAndExit) {
  VarCalculSalarie s = Elu("20/03/2023", "16/03/2023", "25/03/2023");
  s.dCoefficient_IAncien = 0.5;
  // IATN 20 - 16 = 4, INTN 25 - 20 + 1 = 6.
  EXPECT_EQ(Presence(s).q, (Quadrants{0, 4, 0, 6}));
  // No former share: 25 - 16 + 1 = 10.
  s.dCoefficient_IAncien = 0;
  EXPECT_EQ(Presence(s).q, (Quadrants{0, 0, 0, 10}));
}

TEST(PresenceReviewTest, ElusChangeOnThe31st) {
  // Share of the former rate 30/30: IATN 31 - 1 = 30, INTN 30 - 31 + 1 = 0.
  const Jours j = Chaine(Elu("31/03/2023"));
  EXPECT_EQ(j.q, (Quadrants{0, 30, 0, 0}));
}

TEST(PresenceReviewTest, ElusFebruary) {
  // 28/02/2023: IATN 27, INTN 30 - 28 + 1 = 3.
  EXPECT_EQ(Chaine(Elu("28/02/2023"), "01/02/2023").q, (Quadrants{0, 27, 0, 3}));
}

TEST(PresenceReviewTest, ElusMonthNotProrated) {
  VarCalculSalarie s = Elu("11/03/2023");
  s.bPeriodeNonProratisee = true;
  s.dNB_Jours_Max_Decalage_Mois = 7;
  s.dCoefficient_IAncien = 1.0 / 3;
  MethodeCalculG_Nouv m;
  Int16 a = 5, b = 5, c = 5, d = 5;
  m.CalculNombreJourPresenceMois(s, "01/03/2023", a, b, c, d);
  EXPECT_EQ(a.value(), 0);
  EXPECT_EQ(b.value(), 0);
  EXPECT_EQ(c.value(), 0);
  EXPECT_EQ(d.value(), 7);
}

// ---- Coefficients and the month not prorated
// ------------------------------------------------

TEST(PresenceReviewTest, CoefficientsAreTestedExactlyAgainstZero) {
  // A tiny IATN share still counts: IATN 11 - 1, INTN 30 - 11 + 1.
  VarCalculSalarie s = Agent("11/03/2023", "01/01/2020");
  s.dCoefficient_IATN = 1e-12;
  s.dCoefficient_INTN = 1;
  EXPECT_EQ(Presence(s).q, (Quadrants{0, 10, 0, 20}));
  // A negative share is not above 0.
  s.dCoefficient_IATN = -0.1;
  EXPECT_EQ(Presence(s).q, (Quadrants{0, 0, 0, 30}));
}

TEST(PresenceReviewTest, CoefficientsNeverSetIgnoreTheExit) {
  VarCalculSalarie s = Parts(Agent("", "", "01/01/2015", "12/03/2023"), 0, 0, 0, 0);
  EXPECT_EQ(Presence(s).q, (Quadrants{0, 0, 0, 30}));
}

TEST(PresenceReviewTest, NotProratedRoundsHalfToEven) {
  VarCalculSalarie s = Parts(Agent("", "", "16/03/2023"), 0, 0, 0, 30);
  s.bPeriodeNonProratisee = true;
  const std::pair<double, int> cas[] = {{-1, 30},   {12.5, 12},   {13.5, 14},    {0.5, 0},
                                        {1.5, 2},   {29.4, 29},   {31, 31},      {-1.5, -2},
                                        {-2.5, -2}, {-0.999, -1}, {32767, 32767}};
  for (const auto &[d, attendu] : cas) {
    s.dNB_Jours_Max_Decalage_Mois = d;
    const Jours j = Presence(s);
    ASSERT_TRUE(j.ok) << d;
    EXPECT_EQ(j.q, (Quadrants{0, 0, 0, attendu})) << d;
    EXPECT_EQ(j.total, attendu) << d;
    EXPECT_EQ(j.n, attendu) << d;
  }
}

TEST(PresenceReviewTest, NotProratedBeyond16BitsIsAFault) {
  VarCalculSalarie s = Parts(Agent("", ""), 0, 0, 0, 30);
  s.bPeriodeNonProratisee = true;
  s.dNB_Jours_Max_Decalage_Mois = 32767.5;  // 32768 half to even
  s.iNBJ_Presence_Total = 99;
  const Jours j = Presence(s);
  EXPECT_FALSE(j.ok);
  // The record keeps what it held.
  EXPECT_EQ(j.total, 99);
}

TEST(PresenceReviewTest, NotProratedFlagOffIgnoresTheShift) {
  VarCalculSalarie s = Parts(Agent("", "", "16/03/2023"), 0, 0, 0, 30);
  s.dNB_Jours_Max_Decalage_Mois = 12;
  EXPECT_EQ(Presence(s).total, 15);
}

TEST(PresenceReviewTest, GivenPeriodDrivesTheLimits) {
  // The month given is February 2024 though the engine's month is March.
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  VarCalculSalarie s = Parts(Agent("", "", "01/01/2015", "29/02/2024"), 0, 0, 0, 30);
  m.CalculNombreJourPresence(s, "01/02/2024");
  EXPECT_EQ(s.iNBJ_Presence_Total.value(), 30);
  s.sDateFin = "28/02/2024";
  m.CalculNombreJourPresence(s, "01/02/2024");
  EXPECT_EQ(s.iNBJ_PresenceINTN.value(), 28);
}

// ---- Real calendar days
// ---------------------------------------------------------------------

int Reels(const std::string &sDebut, const std::string &sFin, const std::string &sPeriode) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.sDateDebut = sDebut;
  s.sDateFin = sFin;
  return m.iNbJoursReelsPeriode(s, sPeriode);
}

TEST(PresenceReviewTest, RealDaysOfEachMonthLength) {
  EXPECT_EQ(Reels("01/01/2015", "", "01/04/2023"), 30);
  EXPECT_EQ(Reels("01/01/2015", "", "01/03/2023"), 31);
  EXPECT_EQ(Reels("01/01/2015", "", "01/02/2023"), 28);
  EXPECT_EQ(Reels("01/01/2015", "", "01/02/2024"), 29);
  EXPECT_EQ(Reels("01/01/2015", "", "01/12/2023"), 31);
}

TEST(PresenceReviewTest, RealDaysEntryAndExit) {
  EXPECT_EQ(Reels("10/03/2023", "", "01/03/2023"), 22);
  EXPECT_EQ(Reels("31/03/2023", "", "01/03/2023"), 1);
  EXPECT_EQ(Reels("01/01/2015", "31/03/2023", "01/03/2023"), 31);
  EXPECT_EQ(Reels("01/01/2015", "01/03/2023", "01/03/2023"), 1);
  EXPECT_EQ(Reels("15/02/2024", "29/02/2024", "01/02/2024"), 15);
  // An exit after the month: to the last day.
  EXPECT_EQ(Reels("10/03/2023", "15/04/2023", "01/03/2023"), 22);
}

TEST(PresenceReviewTest, RealDaysDatesOutsideTheMonth) {
  // An entry after the month is not in it: from the first, 30 days of April.
  EXPECT_EQ(Reels("10/05/2023", "", "01/04/2023"), 30);
  // An exit before the month is not seen.
  EXPECT_EQ(Reels("01/01/2015", "31/03/2023", "01/04/2023"), 30);
  // An exit before the entry within the month: 10 - 20 + 1.
  EXPECT_EQ(Reels("20/03/2023", "10/03/2023", "01/03/2023"), -9);
  // No entry: 0 whatever the rest.
  EXPECT_EQ(Reels("", "31/03/2023", "01/03/2023"), 0);
}

TEST(PresenceReviewTest, RealDaysFromAMonthTextNotOnTheFirst) {
  // S is the period text itself when the entry is not in the month: 15/03 to
  // 31/03.
  EXPECT_EQ(Reels("01/01/2015", "", "15/03/2023"), 17);
}

}  // namespace
}  // namespace orvalis
