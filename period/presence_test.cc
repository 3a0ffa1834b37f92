// Days of presence by quadrant, and real calendar days of employment.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::Quadrants;

VarCalculSalarie Employe(double cIATA, double cIATN, double cINTA, double cINTN,
                         const std::string& sDebut = "01/01/2015") {
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sDateDebut = sDebut;
  s.dCoefficient_IATA = cIATA / 30;
  s.dCoefficient_IATN = cIATN / 30;
  s.dCoefficient_INTA = cINTA / 30;
  s.dCoefficient_INTN = cINTN / 30;
  return s;
}

struct Presence {
  bool ok;
  Quadrants q;
  int a, n, total;
};

Presence Calcule(VarCalculSalarie s, const std::string& sPeriode = "01/03/2023") {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = sPeriode;
  const bool ok = m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_PRESENCE", s);
  return {ok,
          {s.iNBJ_PresenceIATA, s.iNBJ_PresenceIATN, s.iNBJ_PresenceINTA, s.iNBJ_PresenceINTN},
          s.iNBJ_PresenceA,
          s.iNBJ_PresenceN,
          s.iNBJ_Presence_Total};
}

TEST(PresenceTest, FullMonthNoChange) {
  const Presence p = Calcule(Employe(0, 0, 0, 30));
  ASSERT_TRUE(p.ok);
  EXPECT_EQ(p.q, (Quadrants{0, 0, 0, 30}));
  EXPECT_EQ(p.a, 0);
  EXPECT_EQ(p.n, 30);
  EXPECT_EQ(p.total, 30);
}

TEST(PresenceTest, CoefficientsNeverSetMakeAFullMonth) {
  EXPECT_EQ(Calcule(Employe(0, 0, 0, 0, "16/03/2023")).q, (Quadrants{0, 0, 0, 30}));
}

TEST(PresenceTest, EntryOnThe16th) {
  const Presence p = Calcule(Employe(0, 0, 0, 30, "16/03/2023"));
  EXPECT_EQ(p.q, (Quadrants{0, 0, 0, 15}));
  EXPECT_EQ(p.total, 15);
}

TEST(PresenceTest, ExitOnThe20th) {
  VarCalculSalarie s = Employe(0, 0, 0, 30);
  s.sDateFin = "20/03/2023";
  EXPECT_EQ(Calcule(s).total, 20);
  s.sDateFin = "31/03/2023";
  EXPECT_EQ(Calcule(s).total, 30);
}

TEST(PresenceTest, IndexChangeOnThe11th) {
  VarCalculSalarie s = Employe(0, 10, 0, 20);
  s.sDateChangementIndice = "11/03/2023";
  const Presence p = Calcule(s);
  EXPECT_EQ(p.q, (Quadrants{0, 10, 0, 20}));
  EXPECT_EQ(p.a, 10);
  EXPECT_EQ(p.n, 20);
  EXPECT_EQ(p.total, 30);
}

TEST(PresenceTest, IndexThenHours) {
  VarCalculSalarie s = Employe(9, 0, 10, 11);
  s.sDateChangementIndice = "10/03/2023";
  s.sDateChangementHeures = "20/03/2023";
  const Presence p = Calcule(s);
  EXPECT_EQ(p.q, (Quadrants{9, 0, 10, 11}));
  EXPECT_EQ(p.total, 30);
  // Former and new index read IATN and INTN alone.
  EXPECT_EQ(p.a, 0);
  EXPECT_EQ(p.n, 11);
}

TEST(PresenceTest, HoursThenIndex) {
  VarCalculSalarie s = Employe(9, 10, 0, 11);
  s.sDateChangementIndice = "20/03/2023";
  s.sDateChangementHeures = "10/03/2023";
  EXPECT_EQ(Calcule(s).q, (Quadrants{9, 10, 0, 11}));
}

TEST(PresenceTest, HoursOnlyWithAnEntryInTheMonth) {
  VarCalculSalarie s = Employe(0, 0, 14, 16, "05/03/2023");
  s.sDateChangementIndice = "01/01/2022";
  s.sDateChangementHeures = "15/03/2023";
  const Presence p = Calcule(s);
  EXPECT_EQ(p.q, (Quadrants{0, 0, 10, 16}));
  EXPECT_EQ(p.total, 26);
}

TEST(PresenceTest, IndexNextMonthCountsTwentyNine) {
  VarCalculSalarie s = Employe(30, 0, 0, 0);
  s.sDateChangementIndice = "15/04/2023";
  s.sDateChangementHeures = "15/04/2023";
  EXPECT_EQ(Calcule(s).total, 29);
  // An hours date before the entry is not within the employment either.
  s.sDateDebut = "01/06/2021";
  s.sDateChangementHeures = "01/01/2020";
  EXPECT_EQ(Calcule(s).total, 29);
}

TEST(PresenceTest, OldIndexCountsUpToTheEarlierChangeWithinTheEmployment) {
  VarCalculSalarie s = Employe(30, 0, 0, 0);
  s.sDateChangementIndice = "15/04/2023";
  s.sDateChangementHeures = "05/03/2023";
  EXPECT_EQ(Calcule(s).q, (Quadrants{4, 0, 0, 0}));
}

TEST(PresenceTest, GoneBeforeTheMonth) {
  VarCalculSalarie s = Employe(0, 0, 0, 30);
  s.sDateFin = "28/02/2023";
  const Presence p = Calcule(s);
  EXPECT_EQ(p.q, (Quadrants{0, 0, 0, 0}));
  EXPECT_EQ(p.total, 0);
  s.bPeriodeNonProratisee = true;
  s.dNB_Jours_Max_Decalage_Mois = 12;
  const Presence d = Calcule(s);
  EXPECT_EQ(d.q, (Quadrants{0, 0, 0, 12}));
  EXPECT_EQ(d.total, 12);
}

TEST(PresenceTest, StartingAfterTheMonth) {
  EXPECT_EQ(Calcule(Employe(0, 0, 0, 30, "01/04/2023")).total, 0);
  EXPECT_EQ(Calcule(Employe(0, 0, 0, 30, "31/03/2023")).total, 1);
}

TEST(PresenceTest, MonthNotProrated) {
  VarCalculSalarie s = Employe(9, 0, 10, 11, "16/03/2023");
  s.sDateChangementIndice = "10/03/2023";
  s.sDateChangementHeures = "20/03/2023";
  s.bPeriodeNonProratisee = true;
  s.dNB_Jours_Max_Decalage_Mois = -1;
  EXPECT_EQ(Calcule(s).q, (Quadrants{0, 0, 0, 30}));
  s.dNB_Jours_Max_Decalage_Mois = 2.5;
  EXPECT_EQ(Calcule(s).q, (Quadrants{0, 0, 0, 2}));
  s.dNB_Jours_Max_Decalage_Mois = 3.5;
  EXPECT_EQ(Calcule(s).q, (Quadrants{0, 0, 0, 4}));
  s.dNB_Jours_Max_Decalage_Mois = 0;
  EXPECT_EQ(Calcule(s).total, 0);
}

TEST(PresenceTest, ShiftBeyond16BitsIsAFault) {
  VarCalculSalarie s = Employe(0, 0, 0, 30);
  s.bPeriodeNonProratisee = true;
  s.dNB_Jours_Max_Decalage_Mois = 40000;
  EXPECT_FALSE(Calcule(s).ok);
}

TEST(PresenceTest, FebruaryCountsThirty) {
  EXPECT_EQ(Calcule(Employe(0, 0, 0, 30), "01/02/2023").total, 30);
  EXPECT_EQ(Calcule(Employe(0, 0, 0, 30, "15/02/2023"), "01/02/2023").total, 16);
  EXPECT_EQ(Calcule(Employe(0, 0, 0, 30, "15/02/2024"), "01/02/2024").total, 16);
}

TEST(PresenceTest, GivenPeriodReplacesTheCurrentMonth) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  VarCalculSalarie s = Employe(0, 0, 0, 30, "10/02/2023");
  m.CalculNombreJourPresence(s, "01/02/2023");
  EXPECT_EQ(s.iNBJ_Presence_Total.value(), 21);
}

TEST(PresenceTest, ElectedOfficials) {
  VarCalculSalarie s = Employe(0, 0, 0, 0);
  s.sTypeModele = "ELUS";
  s.sDateChangementTauxElus = "11/03/2023";
  s.dCoefficient_IAncien = 10 / 30.0;
  Presence p = Calcule(s);
  EXPECT_EQ(p.q, (Quadrants{0, 10, 0, 20}));
  s.dCoefficient_IAncien = 0;
  p = Calcule(s);
  EXPECT_EQ(p.q, (Quadrants{0, 0, 0, 30}));
  s.sDateDebut = "16/03/2023";
  EXPECT_EQ(Calcule(s).q, (Quadrants{0, 0, 0, 15}));
}

TEST(PresenceTest, ElectedOfficialsLeaveOldHoursCountsToTheCaller) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s = Employe(1, 0, 1, 0);
  s.sTypeModele = "ELUS";
  Int16 a = 7, b = 7, c = 7, d = 7;
  m.CalculNombreJourPresenceMois(s, "01/03/2023", a, b, c, d);
  EXPECT_EQ(a.value(), 7);
  EXPECT_EQ(b.value(), 0);
  EXPECT_EQ(c.value(), 7);
  EXPECT_EQ(d.value(), 30);
}

TEST(PresenceTest, ChangeDatesAreNeededOnlyWhereACoefficientIsSet) {
  VarCalculSalarie s = Employe(0, 0, 0, 30);
  s.sDateChangementIndice = "";
  s.sDateChangementHeures = "";
  EXPECT_TRUE(Calcule(s).ok);
  VarCalculSalarie c = Employe(0, 10, 0, 20);
  c.sDateChangementIndice = "";
  EXPECT_FALSE(Calcule(c).ok);
}

// ---- Real days -----------------------------------------------------------------------------

int Reels(const std::string& sDebut, const std::string& sFin, const std::string& sPeriode) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.sDateDebut = sDebut;
  s.sDateFin = sFin;
  return m.iNbJoursReelsPeriode(s, sPeriode);
}

TEST(JoursReelsTest, CalendarDaysOfEmployment) {
  EXPECT_EQ(Reels("10/03/2023", "", "01/03/2023"), 22);
  EXPECT_EQ(Reels("01/01/2015", "", "01/02/2024"), 29);
  EXPECT_EQ(Reels("01/01/2015", "", "01/02/2023"), 28);
  EXPECT_EQ(Reels("01/01/2015", "20/03/2023", "01/03/2023"), 20);
  EXPECT_EQ(Reels("05/03/2023", "20/03/2023", "01/03/2023"), 16);
  EXPECT_EQ(Reels("", "20/03/2023", "01/03/2023"), 0);
}

TEST(JoursReelsTest, AnEndBeforeTheMonthIsNotSeen) {
  EXPECT_EQ(Reels("01/01/2015", "15/02/2023", "01/03/2023"), 31);
}

}  // namespace
}  // namespace orvalis
