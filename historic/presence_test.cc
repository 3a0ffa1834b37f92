// Days of presence in the two cells of the historic month, after its index coefficients,
// beside the current engine on the same record.
#include <utility>

#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class PresenceHistoriqueTest : public DeuxMoteurs {
 protected:
  PresenceHistoriqueTest() {
    s.sTypeModele = "INDTIT";
    s.sDateDebut = "01/01/2020";
    s.sDateChangementHeures = "01/01/2020";
    s.sDateChangementIndice = "01/01/2020";
  }
  void Prepare() {
    sN = s;
    sH = s;
    for (const char* nom : {"COEFFICIENT_INDICE", "NBRE_JOUR_PRESENCE"}) {
      ASSERT_TRUE(n.Appel_Methode_Preparation_Calcul_General(nom, sN)) << nom;
      ASSERT_TRUE(h.Appel_Methode_Preparation_Calcul_General(nom, sH)) << nom;
    }
  }
  // The historic month prepared: its days on the former and on the new index.
  std::pair<int, int> Presence() {
    Prepare();
    return {sH.iNBJ_PresenceA, sH.iNBJ_PresenceN};
  }
};

// Index change on the 11th: 10 days on the former index, 20 on the new one.
TEST_F(PresenceHistoriqueTest, IndexChangeInsideTheMonth) {
  s.sDateChangementIndice = "11/03/2024";
  Prepare();
  EXPECT_EQ(sH.iNBJ_PresenceA, 10);
  EXPECT_EQ(sH.iNBJ_PresenceN, 20);
  EXPECT_EQ(sN.iNBJ_PresenceA, 10);
  EXPECT_EQ(sN.iNBJ_PresenceN, 20);
  EXPECT_EQ(sN.iNBJ_Presence_Total, 30);
  EXPECT_EQ(sH.iNBJ_Presence_Total, 0);  // no total here
}

TEST_F(PresenceHistoriqueTest, WholeMonthOnTheNewIndex) {
  s.sDateChangementIndice = "15/01/2024";
  Prepare();
  EXPECT_EQ(sH.iNBJ_PresenceA, 0);
  EXPECT_EQ(sH.iNBJ_PresenceN, 30);
}

// The change falls next month: the whole month is the former index's, counted 30 - 1 = 29,
// the short count of a whole month without its change.
TEST_F(PresenceHistoriqueTest, WholeMonthOnTheFormerIndex) {
  s.sDateChangementIndice = "15/04/2024";
  Prepare();
  EXPECT_EQ(sH.iNBJ_PresenceA, 29);
  EXPECT_EQ(sH.iNBJ_PresenceN, 0);
}

TEST_F(PresenceHistoriqueTest, StartOnTheSixteenth) {
  s.sDateDebut = "16/03/2024";
  Prepare();
  EXPECT_EQ(sH.iNBJ_PresenceN, 15);  // 30 - 16 + 1
}

// Calendar pay is unknown here: a start on the 5th of March counts to day 30 (26 days), the
// current engine to day 31 (27).
TEST_F(PresenceHistoriqueTest, CalendarPayIgnored) {
  s.sDateDebut = "05/03/2024";
  s.bCalculPayeEnJoursCalendaires = true;
  Prepare();
  EXPECT_EQ(sN.iNBJ_PresenceN, 27);
  EXPECT_EQ(sH.iNBJ_PresenceN, 26);
}

// Gone before the month: nothing; a non-prorated period is a whole month on the new index
// (the current engine takes its 12 days of shift instead).
TEST_F(PresenceHistoriqueTest, OutOfTheMonthAndNonProrated) {
  s.sDateFin = "28/02/2024";
  Prepare();
  EXPECT_EQ(sH.iNBJ_PresenceA, 0);
  EXPECT_EQ(sH.iNBJ_PresenceN, 0);
  s.bPeriodeNonProratisee = true;
  s.dNB_Jours_Max_Decalage_Mois = 12;
  Prepare();
  EXPECT_EQ(sN.iNBJ_PresenceN, 12);
  EXPECT_EQ(sH.iNBJ_PresenceA, 0);
  EXPECT_EQ(sH.iNBJ_PresenceN, 30);
}

// An official whose rate changes on the 16th: 15 days on each side.
TEST_F(PresenceHistoriqueTest, ElectedOfficial) {
  s.sTypeModele = "ELUS";
  s.sDateChangementTauxElus = "16/03/2024";
  Prepare();
  EXPECT_EQ(sH.iNBJ_PresenceA, 15);
  EXPECT_EQ(sH.iNBJ_PresenceN, 15);
}

// A start on the 16th after an index change on the 10th: the change lies before the
// employee's month, so the former index takes the short count from the start, 30 - 16 = 14,
// and the new one runs from the change, 30 - 10 + 1 = 21: 35 days for a fortnight.
TEST_F(PresenceHistoriqueTest, IndexChangeBeforeTheStart) {
  s.sDateDebut = "16/03/2024";
  s.sDateChangementIndice = "10/03/2024";
  EXPECT_EQ(Presence(), std::make_pair(14, 21));
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 9 / 30.0);  // 10 - 1
}

// No valid index date leaves both cells at 0: a month never split is a whole month on the
// new index, 30 days, even for a start on the 16th.
TEST_F(PresenceHistoriqueTest, CellsNeverSetMakeAWholeMonth) {
  s.sDateChangementIndice = "";
  s.sDateDebut = "16/03/2024";
  EXPECT_EQ(Presence(), std::make_pair(0, 30));
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien + sH.dCoefficient_INouveau, 0.0);
}

// A start after the month (1 April) is out of it: nothing; a start on 31 March is in it,
// on day 30 of the month of 30: 30 - 30 + 1 = 1 day.
TEST_F(PresenceHistoriqueTest, StartAfterTheMonthOrOnItsLastDay) {
  s.sDateDebut = "01/04/2024";
  EXPECT_EQ(Presence(), std::make_pair(0, 0));
  s.sDateDebut = "31/03/2024";
  EXPECT_EQ(Presence(), std::make_pair(0, 1));
}

// A month given by name in place of the month of pay: a start on 16 February counts the
// whole of March, 30 days, but 30 - 16 + 1 = 15 in February (no end: its day 30).
TEST_F(PresenceHistoriqueTest, MonthGivenByName) {
  s.sDateDebut = "16/02/2024";
  EXPECT_EQ(Presence(), std::make_pair(0, 30));
  h.CalculNombreJourPresence(sH, "01/02/2024");
  EXPECT_EQ(sH.iNBJ_PresenceA, 0);
  EXPECT_EQ(sH.iNBJ_PresenceN, 15);
}

}  // namespace
}  // namespace orvalis::historique_test
