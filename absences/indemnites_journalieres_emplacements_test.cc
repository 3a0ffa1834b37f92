// Daily benefits, the older calculation from the three slots of the employee record.
#include "absences/indemnites_journalieres_test_outils.h"

namespace orvalis::absences_test {
namespace {

class IndemnitesJournalieresEmplacements : public PaieIJ {
 protected:
  IndemnitesJournalieresEmplacements() {
    s.sIJType1 = "M";
    s.sIJDateDebut1 = "10/02/2024";
    s.sIJDatefin1 = "20/02/2024";
    s.dIJPercu1 = 330;
    s.sIJType2 = "X";
    s.sIJDateDebut2 = "25/02/2024";
    s.sIJDatefin2 = "05/03/2024";
    s.dIJPercu2 = 400;
    s.sIJType3 = "M";
    s.sIJDateDebut3 = "01/03/2024";
    s.sIJDatefin3 = "31/03/2024";
    s.dIJPercu3 = 0;
    BrutDuMois("202402", 580.0);
  }
  bool Calcule() {
    try {
      m.Calcul_Indemnites_journalieres(s, r, histo);
      return true;
    } catch (const Fault&) {
      return false;
    }
  }
};

TEST_F(IndemnitesJournalieresEmplacements, DeuxEmplacementsParFevrier) {
  s.sDateFin = "15/02/2024";  // the contract does not divide here
  ASSERT_TRUE(Calcule());
  // Slot 1: 11 days, J = 30; February has 29 days: W = 580 / 29 = 20: R = 11 x 20 = 220.
  // Slot 2: 10 days, J = 40. February, 5 days: R = 5 x 20 = 100. March, no gross, 5 days:
  // R = 5 x 40 = 200. Slot 3 receives nothing.
  ASSERT_EQ(NbLignesIJ(), 3u);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NumIJ"), 1.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "NumIJ"), 2.0);
  EXPECT_DOUBLE_EQ(NombreIJ(2, "NumIJ"), 2.0);
  EXPECT_EQ(TexteIJ(0, "Mois"), "10/02/2024");
  EXPECT_EQ(TexteIJ(1, "Mois"), "25/02/2024");
  EXPECT_EQ(TexteIJ(2, "Mois"), "01/03/2024");
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalier"), 20.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 220.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "IJRetenues"), 100.0);
  EXPECT_DOUBLE_EQ(NombreIJ(2, "SalaireJournalier"), 40.0);
  EXPECT_DOUBLE_EQ(NombreIJ(2, "IJRetenues"), 200.0);
  for (const char* colonne : {"IJPAS", "NbJourPresenceCalendaire", "IJDateDebut", "IJDateFin"})
    EXPECT_TRUE(IJ(0, colonne).EstNull()) << colonne;
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 220.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 300.0);  // an unknown type is a work accident here
  EXPECT_DOUBLE_EQ(r.dBase, 730.0);       // 330 + 400 + 0
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -520.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(IndemnitesJournalieresEmplacements, TroisiemeEmplacementLuCommeLesAutres) {
  s.dIJPercu1 = 0;
  s.dIJPercu2 = 0;
  s.sIJType3 = "AT";
  s.dIJPercu3 = 310;
  ASSERT_TRUE(Calcule());
  ASSERT_EQ(NbLignesIJ(), 1u);  // 31 days of March, J = 10, no gross
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NumIJ"), 3.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourIJ"), 31.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 310.0);
  EXPECT_DOUBLE_EQ(r.dBase, 310.0);
}

TEST_F(IndemnitesJournalieresEmplacements, AutreMethodeLaLigneNeBougePas) {
  s.sMethodeCalculIJ = "C";
  r.dBase = 7;
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 220.0);
  EXPECT_DOUBLE_EQ(r.dBase, 7.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
}

TEST_F(IndemnitesJournalieresEmplacements, SansPercuAucuneTableNeRemplaceLAncienne) {
  s.dIJPercu1 = 0;
  s.dIJPercu2 = -5;
  const RsRef ancienne = NouveauRecordset({"X"});
  r.rsIJ = ancienne;
  ASSERT_TRUE(Calcule());
  EXPECT_EQ(r.rsIJ, ancienne);
  EXPECT_DOUBLE_EQ(r.dBase, -5.0);  // 0 - 5 + 0
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
}

TEST_F(IndemnitesJournalieresEmplacements, UnPercuRemplaceLaTablePrecedente) {
  const RsRef ancienne = NouveauRecordset({"X"});
  r.rsIJ = ancienne;
  ASSERT_TRUE(Calcule());
  EXPECT_NE(r.rsIJ, ancienne);
  EXPECT_EQ(NbLignesIJ(), 3u);
}

TEST_F(IndemnitesJournalieresEmplacements, NonPlafonneRevenuGaranti) {
  s.bCalculIJNonPlafonnee = true;
  s.dIJPercu2 = 0;
  s.sIJType1 = "AT";
  s.sIJDateDebut1 = "01/02/2024";
  s.sIJDatefin1 = "10/02/2024";
  s.dIJPercu1 = 300;
  Historique("202402", "BRUT", 290.0);
  ASSERT_TRUE(Calcule());
  // J = 30, W = 290 / 29 = 10: excess (30 - 10) x 10 = 200; R = 10 x 30 uncapped.
  EXPECT_DOUBLE_EQ(s.dIJ_RevenuGarantiBrut, 200.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 300.0);
}

TEST_F(IndemnitesJournalieresEmplacements, HistoriqueVide) {
  histo = NouveauRecordset({"Mois", "MtBrut"});
  ASSERT_TRUE(Calcule());
  // No gross anywhere: W = J, R = N x J: 330 + 400.
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 330.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 400.0);
}

TEST_F(IndemnitesJournalieresEmplacements, DateVideEstUneFaute) {
  s.sIJDatefin2 = "";
  EXPECT_FALSE(Calcule());
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 220.0);  // the first slot stays done
}

}  // namespace
}  // namespace orvalis::absences_test
