// First and last paid days of a month, shares of the month by quadrant, and the split of an
// elected official's month.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::Quadrants;

struct Jours {
  std::string sDernier;
  int deb;
  int fin;
};

Jours JoursDuMois(const VarCalculSalarie& s0, const std::string& sPeriode) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s = s0;
  Jours j;
  Int16 deb = -1, fin = -1;
  m.CalculRechercheJourDebutEtJourFin(s, sPeriode, j.sDernier, deb, fin);
  j.deb = deb;
  j.fin = fin;
  return j;
}

VarCalculSalarie Employe(const std::string& sDebut, const std::string& sFin = "",
                         bool bCalendaire = false) {
  VarCalculSalarie s;
  s.sDateDebut = sDebut;
  s.sDateFin = sFin;
  s.bCalculPayeEnJoursCalendaires = bCalendaire;
  return s;
}

TEST(JourDebutEtJourFinTest, WholeMonthRunsFromOneToThirty) {
  const Jours j = JoursDuMois(Employe("01/01/2015"), "01/03/2023");
  EXPECT_EQ(j.sDernier, "31/03/2023");
  EXPECT_EQ(j.deb, 1);
  EXPECT_EQ(j.fin, 30);
}

TEST(JourDebutEtJourFinTest, EntryAndExitInTheMonth) {
  EXPECT_EQ(JoursDuMois(Employe("10/03/2023"), "01/03/2023").deb, 10);
  EXPECT_EQ(JoursDuMois(Employe("01/03/2023"), "01/03/2023").deb, 1);
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "20/03/2023"), "01/03/2023").fin, 20);
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "01/04/2023"), "01/03/2023").fin, 30);
  // An end before the month is still read as a day of the month.
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "15/01/2023"), "01/02/2023").fin, 15);
}

TEST(JourDebutEtJourFinTest, TheThirtyFirstCountsThirtyWithoutCalendarPay) {
  const Jours j = JoursDuMois(Employe("31/03/2023", "31/03/2023"), "01/03/2023");
  EXPECT_EQ(j.deb, 30);
  EXPECT_EQ(j.fin, 30);
}

TEST(JourDebutEtJourFinTest, CalendarPay) {
  EXPECT_EQ(JoursDuMois(Employe("05/03/2023", "", true), "01/03/2023").fin, 31);
  EXPECT_EQ(JoursDuMois(Employe("01/03/2023", "", true), "01/03/2023").fin, 30);
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "31/03/2023", true), "01/03/2023").fin, 30);
  EXPECT_EQ(JoursDuMois(Employe("05/03/2023", "31/03/2023", true), "01/03/2023").fin, 31);
  EXPECT_EQ(JoursDuMois(Employe("31/03/2023", "", true), "01/03/2023").deb, 31);
  EXPECT_EQ(JoursDuMois(Employe("05/04/2023", "", true), "01/04/2023").fin, 30);
}

TEST(JourDebutEtJourFinTest, FebruaryOf28Days) {
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015"), "01/02/2023").sDernier, "28/02/2023");
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015"), "01/02/2023").fin, 30);
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "28/02/2023"), "01/02/2023").fin, 30);
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "27/02/2023"), "01/02/2023").fin, 27);
  EXPECT_EQ(JoursDuMois(Employe("28/02/2023"), "01/02/2023").deb, 28);
  // A start after the month with a day past the 28th counts as day 30.
  EXPECT_EQ(JoursDuMois(Employe("29/03/2023"), "01/02/2023").deb, 30);
  // Calendar pay keeps the calendar days of February.
  EXPECT_EQ(JoursDuMois(Employe("10/02/2023", "", true), "01/02/2023").fin, 28);
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "27/02/2023", true), "01/02/2023").fin, 27);
}

TEST(JourDebutEtJourFinTest, FebruaryOf29Days) {
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "28/02/2024"), "01/02/2024").fin, 28);
  EXPECT_EQ(JoursDuMois(Employe("01/01/2015", "29/02/2024"), "01/02/2024").fin, 30);
  EXPECT_EQ(JoursDuMois(Employe("29/02/2024"), "01/02/2024").deb, 29);
}

// ---- Quadrants --------------------------------------------------------------------------

struct Resultat {
  bool ok;
  Quadrants jours;  // coefficients x 30
  VarCalculSalarie s;
};

Resultat Coefficients(VarCalculSalarie s, const std::string& sPeriode = "01/03/2023") {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = sPeriode;
  const bool ok = m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_INDICE", s);
  auto j = [](double c) { return static_cast<int>(c * 30 + (c >= 0 ? 0.5 : -0.5)); };
  return {ok,
          {j(s.dCoefficient_IATA), j(s.dCoefficient_IATN), j(s.dCoefficient_INTA),
           j(s.dCoefficient_INTN)},
          s};
}

VarCalculSalarie Indice(const std::string& sIndice, const std::string& sHeures,
                        const std::string& sDebut = "01/01/2015") {
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sDateDebut = sDebut;
  s.sDateChangementIndice = sIndice;
  s.sDateChangementHeures = sHeures;
  return s;
}

TEST(CoefficientIndiceTest, CaseAIndexThenHours) {
  const Resultat r = Coefficients(Indice("10/03/2023", "20/03/2023"));
  ASSERT_TRUE(r.ok);
  EXPECT_EQ(r.jours, (Quadrants{9, 0, 10, 11}));
  EXPECT_DOUBLE_EQ(r.s.dCoefficient_IATA, 9 / 30.0);
  EXPECT_DOUBLE_EQ(r.s.dCoefficient_INTA, 10 / 30.0);
  EXPECT_DOUBLE_EQ(r.s.dCoefficient_INTN, 11 / 30.0);
  EXPECT_EQ(r.s.dCoefficient_IATN, 0);
}

TEST(CoefficientIndiceTest, CaseAHoursOnThe31st) {
  EXPECT_EQ(Coefficients(Indice("10/03/2023", "31/03/2023")).jours, (Quadrants{9, 0, 21, 0}));
}

TEST(CoefficientIndiceTest, CaseBHoursThenIndex) {
  EXPECT_EQ(Coefficients(Indice("20/03/2023", "10/03/2023")).jours, (Quadrants{9, 10, 0, 11}));
}

TEST(CoefficientIndiceTest, CaseBSameDay) {
  EXPECT_EQ(Coefficients(Indice("15/03/2023", "15/03/2023")).jours, (Quadrants{14, 0, 0, 16}));
}

TEST(CoefficientIndiceTest, CaseBCalendarPayAfterAnEntryInTheMonth) {
  VarCalculSalarie s = Indice("20/03/2023", "10/03/2023", "05/03/2023");
  s.bCalculPayeEnJoursCalendaires = true;
  // iJourFin is 31: INTN = 31 - 20 + 1.
  EXPECT_EQ(Coefficients(s).jours, (Quadrants{9, 10, 0, 12}));
  s.sDateDebut = "01/03/2023";
  EXPECT_EQ(Coefficients(s).jours, (Quadrants{9, 10, 0, 11}));
}

TEST(CoefficientIndiceTest, CaseCIndexOnlyInTheMonth) {
  EXPECT_EQ(Coefficients(Indice("11/03/2023", "01/01/2020")).jours, (Quadrants{0, 10, 0, 20}));
  const Resultat premier = Coefficients(Indice("01/03/2023", "01/01/2020"));
  EXPECT_EQ(premier.jours, (Quadrants{0, 0, 0, 30}));
  EXPECT_DOUBLE_EQ(premier.s.dCoefficient_INTN, 1.0);
  EXPECT_EQ(Coefficients(Indice("31/03/2023", "01/01/2020")).jours, (Quadrants{0, 30, 0, 0}));
}

TEST(CoefficientIndiceTest, CaseCFebruary) {
  EXPECT_EQ(Coefficients(Indice("28/02/2023", "01/01/2020"), "01/02/2023").jours,
            (Quadrants{0, 27, 0, 3}));
}

TEST(CoefficientIndiceTest, CaseDIndexNextMonthIgnoresTheHours) {
  EXPECT_EQ(Coefficients(Indice("15/04/2023", "15/03/2023")).jours, (Quadrants{30, 0, 0, 0}));
}

TEST(CoefficientIndiceTest, CaseDReadsNoHoursDate) {
  // The index alone decides case D: an empty or unreadable hours date is never read there.
  for (const char* sHeures : {"", "pas une date"}) {
    const Resultat r = Coefficients(Indice("15/04/2023", sHeures));
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(r.jours, (Quadrants{30, 0, 0, 0}));
  }
  // Cases E and F must read it: an old index change with no hours date is a fault.
  EXPECT_FALSE(Coefficients(Indice("01/01/2022", "")).ok);
  EXPECT_FALSE(Coefficients(Indice("15/05/2023", "")).ok);
}

TEST(CoefficientIndiceTest, CaseEHoursOnlyInTheMonth) {
  EXPECT_EQ(Coefficients(Indice("01/01/2022", "15/03/2023")).jours, (Quadrants{0, 0, 14, 16}));
}

TEST(CoefficientIndiceTest, CaseFNoChangeInTheMonth) {
  EXPECT_EQ(Coefficients(Indice("01/01/2022", "01/01/2020")).jours, (Quadrants{0, 0, 0, 30}));
  // Two months ahead is read as an old change.
  EXPECT_EQ(Coefficients(Indice("01/05/2023", "01/01/2020")).jours, (Quadrants{0, 0, 0, 30}));
  EXPECT_EQ(Coefficients(Indice("01/05/2023", "12/03/2023")).jours, (Quadrants{0, 0, 11, 19}));
}

TEST(CoefficientIndiceTest, HoursChangeOnTheEntryDateMovesToTheFirst) {
  const Resultat r = Coefficients(Indice("01/01/2022", "10/03/2023", "10/03/2023"));
  EXPECT_EQ(r.s.sDateChangementHeures, "01/03/2023");
  EXPECT_EQ(r.jours, (Quadrants{0, 0, 0, 30}));
  // Another text of the same day is not the entry date.
  const Resultat autre = Coefficients(Indice("01/01/2022", "10/3/2023", "10/03/2023"));
  EXPECT_EQ(autre.s.sDateChangementHeures, "10/3/2023");
  EXPECT_EQ(autre.jours, (Quadrants{0, 0, 9, 21}));
}

TEST(CoefficientIndiceTest, InvalidIndexDateLeavesTheCoefficients) {
  for (const char* sIndice : {"", "pas une date"}) {
    VarCalculSalarie s = Indice(sIndice, "10/03/2023");
    s.dCoefficient_IATA = 0.25;
    s.dCoefficient_INTN = 0.75;
    const Resultat r = Coefficients(s);
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(r.s.dCoefficient_IATA, 0.25);
    EXPECT_EQ(r.s.dCoefficient_INTN, 0.75);
  }
}

TEST(CoefficientIndiceTest, OtherModelsLeaveTheCoefficients) {
  VarCalculSalarie s = Indice("10/03/2023", "20/03/2023");
  s.sTypeModele = "HORAIR";
  s.dCoefficient_INTN = 0.5;
  const Resultat r = Coefficients(s);
  EXPECT_TRUE(r.ok);
  EXPECT_EQ(r.s.dCoefficient_INTN, 0.5);
  EXPECT_EQ(r.s.dCoefficient_IATA, 0);
}

TEST(CoefficientIndiceTest, IndexInTheMonthNeedsAnHoursDate) {
  EXPECT_FALSE(Coefficients(Indice("10/03/2023", "")).ok);
}

TEST(CoefficientIndiceTest, NoStartDateIsAFault) {
  EXPECT_FALSE(Coefficients(Indice("10/03/2023", "20/03/2023", "")).ok);
}

// ---- Elected officials ---------------------------------------------------------------------

VarCalculSalarie Elu(const std::string& sChangement, const std::string& sDebut = "01/01/2015") {
  VarCalculSalarie s;
  s.sTypeModele = "ELUS";
  s.sDateDebut = sDebut;
  s.sDateChangementTauxElus = sChangement;
  return s;
}

std::pair<double, double> PartsElu(VarCalculSalarie s, const std::string& sPeriode = "01/03/2023") {
  MethodeCalculG_Nouv m;
  m.CalculCoefficientUtilisationTauxElus(s, sPeriode);
  return {s.dCoefficient_IAncien * 30, s.dCoefficient_INouveau * 30};
}

TEST(CoefficientTauxElusTest, ChangeInTheMonthSplitsIt) {
  const auto [n, mm] = PartsElu(Elu("11/03/2023"));
  EXPECT_DOUBLE_EQ(n, 10);
  EXPECT_DOUBLE_EQ(mm, 20);
}

TEST(CoefficientTauxElusTest, ChangeLaterInTheYearKeepsTheOldRate) {
  const auto [n, mm] = PartsElu(Elu("15/05/2023"));
  EXPECT_DOUBLE_EQ(n, 30);
  EXPECT_DOUBLE_EQ(mm, 0);
}

TEST(CoefficientTauxElusTest, ChangeInALaterYearIsNotLookedAt) {
  const auto [n, mm] = PartsElu(Elu("15/01/2024"));
  EXPECT_DOUBLE_EQ(n, 0);
  EXPECT_DOUBLE_EQ(mm, 30);
}

TEST(CoefficientTauxElusTest, ChangeNotAfterTheStartIsTheNewRate) {
  auto [n, mm] = PartsElu(Elu("11/03/2023", "15/03/2023"));
  EXPECT_DOUBLE_EQ(n, 0);
  EXPECT_DOUBLE_EQ(mm, 30);
  std::tie(n, mm) = PartsElu(Elu("11/03/2023", "11/03/2023"));
  EXPECT_DOUBLE_EQ(n, 0);
  std::tie(n, mm) = PartsElu(Elu("11/03/2023", "05/03/2023"));
  EXPECT_DOUBLE_EQ(n, 10);
}

TEST(CoefficientTauxElusTest, EmptyChangeDateTakesTheStart) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s = Elu("", "05/03/2023");
  m.CalculCoefficientUtilisationTauxElus(s, "01/03/2023");
  EXPECT_EQ(s.sDateChangementTauxElus, "05/03/2023");
  EXPECT_DOUBLE_EQ(s.dCoefficient_IAncien, 0);
  EXPECT_DOUBLE_EQ(s.dCoefficient_INouveau, 1);
}

TEST(CoefficientTauxElusTest, OtherModelsAreLeftAlone) {
  VarCalculSalarie s = Elu("11/03/2023");
  s.sTypeModele = "INDTIT";
  MethodeCalculG_Nouv m;
  m.CalculCoefficientUtilisationTauxElus(s, "01/03/2023");
  EXPECT_EQ(s.dCoefficient_IAncien, 0);
  EXPECT_EQ(s.dCoefficient_INouveau, 0);
}

TEST(CoefficientTauxElusTest, ReachedThroughCoefficientIndice) {
  const Resultat r = Coefficients(Elu("11/03/2023"));
  ASSERT_TRUE(r.ok);
  EXPECT_DOUBLE_EQ(r.s.dCoefficient_IAncien, 10 / 30.0);
  EXPECT_DOUBLE_EQ(r.s.dCoefficient_INouveau, 20 / 30.0);
  EXPECT_EQ(r.jours, (Quadrants{0, 0, 0, 0}));
}

}  // namespace
}  // namespace orvalis
