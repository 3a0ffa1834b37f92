// The indexed treatment lines of the historic engine beside the current engine: the same
// formula over two cells (old index, new index) at the one treatment coefficient.
//
// March 2024. New index 366: yearly Round2(366 x 59.0734 = 21620.8644) = 21620.86, month
// Round2(21620.86 / 12 - 0.0049) = 1801.73. Old index 340 is paid on the minimum 361:
// yearly Round2(21325.4974) = 21325.50, month Round2(1777.125 - 0.0049) = 1777.12.
#include "historic/elements_test_outils.h"

namespace orvalis::historique_test {
namespace {

class TraitementHistorique : public ElementsDeuxMoteurs {
 protected:
  TraitementHistorique() { s.dIndiceMajoreA = 340; }

  // The month set by hand: the current engine's INTN quadrant and the historic new-index
  // cell with the same share, coefficient and days; nothing on the old index.
  void MoisNouvelIndice(double dTraitement, Int16 iPresence) {
    s.dCoefficient_IATN = 0;
    s.dCoefficient_INTN = 1;
    s.dCoefficient_INouveau = 1;
    s.dCoefficient_IAncien = 0;
    s.dCoefficient_TraitementTA = dTraitement;
    s.dCoefficient_TraitementTN = dTraitement;
    s.dCoefficient_Traitement = dTraitement;
    s.iNBJ_PresenceINTN = iPresence;
    s.iNBJ_PresenceN = iPresence;
    s.iNBJ_Presence_Total = iPresence;
  }
  // The same on the old index alone.
  void MoisAncienIndice(double dTraitement, Int16 iPresence) {
    MoisNouvelIndice(dTraitement, 0);
    s.dCoefficient_INTN = 0;
    s.dCoefficient_INouveau = 0;
    s.dCoefficient_IATN = 1;
    s.dCoefficient_IAncien = 1;
    s.iNBJ_PresenceIATN = iPresence;
    s.iNBJ_PresenceA = iPresence;
    s.iNBJ_Presence_Total = iPresence;
  }
  void SansPreparation() {
    sN = s;
    sH = s;
  }
};

TEST_F(TraitementHistorique, WholeMonthInTheNewIndexCell) {
  MoisNouvelIndice(1, 30);
  SansPreparation();
  Ligne("TRAITEMENT INDICIAIRE MOIS");
  // (30 - 0) x 1801.73 / (1 x 30) = 1801.73 on both.
  Attendu(rN, 1801.73, 366, 1801.73);
  Attendu(rH, 1801.73, 366, 1801.73);
  EXPECT_DOUBLE_EQ(sH.dSalarie_MensuelPleinN, 1801.73);
  EXPECT_DOUBLE_EQ(sH.dSalarie_MensuelReelN, 1801.73);
  EXPECT_DOUBLE_EQ(sH.dSalarie_MensuelN, 1801.73);
  EXPECT_DOUBLE_EQ(sH.dSalarie_AnnuelPlein, 21620.86);
  EXPECT_DOUBLE_EQ(sN.dSalaire_MensuelINTN, 1801.73);

  // The old index has no share: its line pays 0 on its month.
  Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT");
  Attendu(rN, 1777.12, 361, 0);
  Attendu(rH, 1777.12, 361, 0);
  EXPECT_EQ(sH.dSalarie_MensuelA, 0);
}

TEST_F(TraitementHistorique, WholeMonthInTheOldIndexCell) {
  MoisAncienIndice(1, 30);
  SansPreparation();
  Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT");
  // (30 - 0) x 1777.12 / 30 = 1777.12 on both; the yearly amount of the old index is kept.
  Attendu(rN, 1777.12, 361, 1777.12);
  Attendu(rH, 1777.12, 361, 1777.12);
  EXPECT_DOUBLE_EQ(sH.dSalarie_AnnuelPleinA, 21325.50);
  EXPECT_DOUBLE_EQ(sH.dSalarie_MensuelA, 1777.12);

  Ligne("TRAITEMENT INDICIAIRE MOIS");
  Attendu(rN, 1801.73, 366, 0);
  Attendu(rH, 1801.73, 366, 0);
}

TEST_F(TraitementHistorique, NoDayOfPresence) {
  MoisNouvelIndice(1, 0);
  SansPreparation();
  Ligne("TRAITEMENT INDICIAIRE MOIS");
  Attendu(rN, 1801.73, 366, 0);
  Attendu(rH, 1801.73, 366, 0);
}

// Index change on the 11th at 80 % (paid 6/7): the old index 10 days (share 1/3), the new
// one 20 days (share 2/3), both engines preparing the month themselves.
TEST_F(TraitementHistorique, IndexChangeInsideTheMonth) {
  s.sDateChangementIndice = "11/03/2024";
  s.dTauxPoste = 80;
  Prepare();
  ASSERT_NEAR(sH.dCoefficient_Traitement, 6.0 / 7, 1e-12);
  ASSERT_NEAR(sN.dCoefficient_TraitementTN, 6.0 / 7, 1e-12);
  ASSERT_EQ(sH.iNBJ_PresenceA, 10);
  ASSERT_EQ(sH.iNBJ_PresenceN, 20);

  Ligne("TRAITEMENT INDICIAIRE MOIS");
  // Full 2/3 x 1801.73 = 1201.1533; real x 6/7 = 1029.56; 20 days / (2/3 x 30) = 1029.56.
  Attendu(rN, 1801.73, 366, 1029.56);
  Attendu(rH, 1801.73, 366, 1029.56);
  EXPECT_NEAR(sH.dSalarie_MensuelPleinN, 1801.73 * 2 / 3, 1e-9);
  EXPECT_NEAR(sH.dSalarie_MensuelReelN, 1029.56, 1e-9);

  Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT");
  // Full 1777.12 / 3 = 592.3733; real x 6/7 = 507.748571; 10 days / (1/3 x 30).
  Attendu(rN, 1777.12, 361, 1777.12 * 2 / 7);
  Attendu(rH, 1777.12, 361, 1777.12 * 2 / 7);
  EXPECT_NEAR(sH.dSalarie_MensuelA, 507.748571428571, 1e-9);
}

// A change on the 15th of February: the historic cells 14 and 16 days of a 30-day month.
TEST_F(TraitementHistorique, IndexChangeInFebruary) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/02/2024";
  s.sDateChangementIndice = "15/02/2024";
  Prepare();
  ASSERT_EQ(sH.iNBJ_PresenceA, 14);
  ASSERT_EQ(sH.iNBJ_PresenceN, 16);
  ASSERT_EQ(sN.iNBJ_PresenceIATN, 14);
  ASSERT_EQ(sN.iNBJ_PresenceINTN, 16);

  Ligne("TRAITEMENT INDICIAIRE MOIS");
  // 16 / 30 x 1801.73 = 960.922667 on both.
  Attendu(rN, 1801.73, 366, 1801.73 * 16 / 30);
  Attendu(rH, 1801.73, 366, 1801.73 * 16 / 30);
  Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT");
  // 14 / 30 x 1777.12 = 829.322667.
  Attendu(rN, 1777.12, 361, 1777.12 * 14 / 30);
  Attendu(rH, 1777.12, 361, 1777.12 * 14 / 30);
}

// Half pay from the 6th to the 20th: 5 days on the old index, 10 on the new.
TEST_F(TraitementHistorique, HalfPayDaysComeOffEachCell) {
  s.sDateChangementIndice = "11/03/2024";
  s.dTauxPoste = 80;
  Situation("DT", "06/03/2024", "20/03/2024");
  Prepare({"NBRE_JOUR_DEMI_TRAITEMENT"});
  ASSERT_EQ(sH.iNBJ_DemiTraitementA, 5);
  ASSERT_EQ(sH.iNBJ_DemiTraitementN, 10);

  Ligne("TRAITEMENT INDICIAIRE MOIS");
  // (20 - 10) x 1029.56 / 20 = 514.78.
  Attendu(rN, 1801.73, 366, 514.78);
  Attendu(rH, 1801.73, 366, 514.78);
  Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT");
  // (10 - 5) x 507.748571 / 10 = 253.874286.
  Attendu(rN, 1777.12, 361, 1777.12 / 7);
  Attendu(rH, 1777.12, 361, 1777.12 / 7);
}

// Maternity leave is paid on the full-time salary: at 0.5, 30 days of it give the month.
TEST_F(TraitementHistorique, MaternityOnTheFullTimeSalary) {
  MoisNouvelIndice(0.5, 30);
  s.iNBJ_CongeMaterniteTempsCompletINTN = 30;
  s.iNBJ_CongeMaterniteTempsCompletN = 30;
  SansPreparation();
  Ligne("TRAITEMENT INDICIAIRE MOIS");
  // (30 - 30) x 900.865 / 30 + 30 x 1801.73 / 30 = 1801.73.
  Attendu(rN, 1801.73, 366, 1801.73);
  Attendu(rH, 1801.73, 366, 1801.73);
}

// Where they differ: the unpaid other absences and the 90 % days. The first come off the
// new index in both; the current engine alone has 90 % days (the historic one does not
// count them: "NBRE_JOUR_90POURCENT_TRAITEMENT" is not one of its preparations).
TEST_F(TraitementHistorique, NinetyPercentDaysOnlyInTheCurrentEngine) {
  MoisNouvelIndice(1, 30);
  s.dNBJ_AutreAbsenceNS = 3;
  s.iNBJ_90PourCentTraitementINTN = 10;
  SansPreparation();
  Ligne("TRAITEMENT INDICIAIRE MOIS");
  // Current: (30 - (3 + 10)) x 1801.73 / 30 = 1021.0137; historic: (30 - 3) x ... = 1621.557.
  Attendu(rN, 1801.73, 366, 1801.73 * 17 / 30);
  Attendu(rH, 1801.73, 366, 1801.73 * 27 / 30);
}

// A 16-bit overflow of the days off is a fault on both.
TEST_F(TraitementHistorique, SixteenBitOverflowIsAFault) {
  MoisNouvelIndice(1, 30);
  s.iNBJ_DemiTraitementINTN = 32767;
  s.iNBJ_CFAINTN = 1;
  s.iNBJ_DemiTraitementN = 32767;
  s.iNBJ_CFAN = 1;
  SansPreparation();
  EXPECT_FALSE(n.Appel_Methode_Calcul_General("TRAITEMENT INDICIAIRE MOIS", sN, rN, vars));
  EXPECT_FALSE(h.Appel_Methode_Calcul_General("TRAITEMENT INDICIAIRE MOIS", sH, rH, vars));
}

TEST_F(TraitementHistorique, ParticularBaseOnTheNewIndexCell) {
  // Base "INDICE MAJORE" 366 times the rate 4.92278 of constant 7: rate 4.9228,
  // R = 1801.7448, month Round2(R) = 1801.74, yearly Round2(R x 12 = 21620.9376).
  Constante("PTMENS", 4.92278, 7);
  s.sDateChangementIndice = "11/03/2024";
  Prepare();
  r.sValeurBase = "INDICE MAJORE";
  r.sValeurTauxSalarial = "CONSTANTE";
  r.lIdValeurTauxSalarial = 7;
  rN = r;
  rH = r;
  ASSERT_TRUE(n.Appel_Methode_Calcul_General("TRAITEMENT BASE PARTICULIER", sN, rN, vars, vars));
  ASSERT_TRUE(h.Appel_Methode_Calcul_General("TRAITEMENT BASE PARTICULIER", sH, rH, vars, vars));
  // The new index's 20 days: 2/3 x 1801.74 x 20 / (2/3 x 30) = 1201.16.
  Attendu(rN, 366, 4.9228, 1801.74 * 2 / 3);
  Attendu(rH, 366, 4.9228, 1801.74 * 2 / 3);
  EXPECT_DOUBLE_EQ(sH.dSalarie_AnnuelPlein, 21620.94);
  EXPECT_NEAR(sH.dSalarie_MensuelPleinN, 1801.74 * 2 / 3, 1e-9);
}

// The second weekly schedule, 17.5 h over 20 days worked: the whole month of the index into
// the new index's full salary, W = 0.5, V = 20 x (1801.73 x 0.5) / 30 = 600.576667.
TEST_F(TraitementHistorique, WeeklyScheduleOverTheWholeMonth) {
  s.sDateChangementIndice = "11/03/2024";
  RsRef rs = NouveauRecordset({"HeureHebdo2", "HebdoDebut2", "HebdoFin2", "NbJoursTravailles2"});
  rs->AddNew();
  rs->SetField("HeureHebdo2", 17.5);
  rs->SetField("HebdoDebut2", "01/03/2024");
  rs->SetField("HebdoFin2", "31/03/2024");
  rs->SetField("NbJoursTravailles2", 20);
  s.RsHeuresHebdoMultiples = rs;
  Prepare();
  Ligne("TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "TRAITINDH2");
  Attendu(rN, 1801.73, 366, 20 * (1801.73 * 0.5) / 30);
  Attendu(rH, 1801.73, 366, 20 * (1801.73 * 0.5) / 30);
  EXPECT_EQ(rH.sDesignation, "Traitement indiciaire du 01/03/2024 au 31/03/2024 (17.5 h./ 35 h.)");
  EXPECT_EQ(rH.sDesignation, rN.sDesignation);
  EXPECT_NEAR(sH.dSalarie_MensuelPleinN, 1801.73, 1e-9);
  EXPECT_NEAR(sH.dSalarie_MensuelN - s.dSalarie_MensuelN, 600.576666666667, 1e-9);
}

// Where they differ: a change of hours on the 16th, from full time to 80 %. The current
// engine pays each half of the month at its hours (1 and 6/7); the historic one has one
// treatment coefficient for the month, that of the month's post, 6/7.
TEST_F(TraitementHistorique, HoursChangeInsideTheMonth) {
  s.sDateChangementHeures = "16/03/2024";
  s.dTauxPoste = 80;
  s.dBonification = 15;
  Prepare();
  ASSERT_EQ(sN.iNBJ_PresenceINTA, 15);
  ASSERT_EQ(sN.iNBJ_PresenceINTN, 15);
  ASSERT_EQ(sH.iNBJ_PresenceN, 30);

  Ligne("TRAITEMENT INDICIAIRE MOIS");
  // Current: 1/2 x 1801.73 x 1 + 1/2 x 1801.73 x 6/7 = 900.865 + 772.17 = 1673.035.
  // Historic: 1801.73 x 6/7 = 1544.34.
  Attendu(rN, 1801.73, 366, 1673.035);
  Attendu(rH, 1801.73, 366, 1544.34);

  Ligne("BONIFICIATION INDICIAIRE");
  // Current: 73.84 x (6/7 x 15 + 1 x 15) / 30 = 68.565714; historic 73.84 x 6/7 = 63.291429.
  Attendu(rN, 73.84, 15, 73.84 * (6.0 / 7 * 15 + 15) / 30);
  Attendu(rH, 73.84, 15, 73.84 * 6 / 7);
}

}  // namespace
}  // namespace orvalis::historique_test
