// Daily benefits, the table-driven calculation behind the two pay-line names.
#include "absences/indemnites_journalieres_test_outils.h"

namespace orvalis::absences_test {
namespace {

using IndemnitesJournalieres = PaieIJ;

TEST_F(IndemnitesJournalieres, DixAuVingtMarsUneLigne) {
  BrutDuMois("202403", 3100.0);
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  // J = 440 / 11 = 40; W = 3100 / 31 days of contract = 100, not below J: R = 11 x 40.
  ASSERT_EQ(NbLignesIJ(), 1u);
  EXPECT_EQ(r.rsIJ->Columns(), (std::vector<std::string>{
                                   "IdSalarie", "NumIJ", "Mois", "SalaireBrut", "SalaireJournalier",
                                   "SalaireJournalierIJ", "NbJourIJ", "IJRetenues", "IJPAS",
                                   "NbJourPresenceCalendaire", "IJDateDebut", "IJDateFin"}));
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IdSalarie"), 42.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NumIJ"), 1.0);
  EXPECT_EQ(TexteIJ(0, "Mois"), "10/03/2024");
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireBrut"), 3100.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalier"), 100.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalierIJ"), 40.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourIJ"), 11.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 440.0);
  EXPECT_TRUE(IJ(0, "IJPAS").EstNull());
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourPresenceCalendaire"), 31.0);
  EXPECT_EQ(TexteIJ(0, "IJDateDebut"), "10/03/2024");
  EXPECT_EQ(TexteIJ(0, "IJDateFin"), "20/03/2024");
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 440.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 0.0);
  EXPECT_DOUBLE_EQ(r.dBase, 440.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -440.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
  EXPECT_DOUBLE_EQ(s.dIJPercu1, 440.0);
}

TEST_F(IndemnitesJournalieres, TroisMoisParFevrierPlafonnes) {
  BrutDuMois("202401", 3100.0);
  BrutDuMois("202402", 580.0);
  Periode("MP", "28/01/2024", "03/03/2024", 1080.0);
  ASSERT_TRUE(Subrogees());
  // 36 days, J = 30. January: 4 days, W = 3100 / 31 = 100: R = 4 x 30 = 120. February:
  // 29 days, W = 580 / 29 = 20 below J: R = 29 x 20 = 580. March: no gross, W = J: R = 90.
  ASSERT_EQ(NbLignesIJ(), 3u);
  EXPECT_EQ(TexteIJ(0, "Mois"), "28/01/2024");
  EXPECT_EQ(TexteIJ(1, "Mois"), "01/02/2024");
  EXPECT_EQ(TexteIJ(2, "Mois"), "01/03/2024");
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourIJ"), 4.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "NbJourIJ"), 29.0);
  EXPECT_DOUBLE_EQ(NombreIJ(2, "NbJourIJ"), 3.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "NbJourPresenceCalendaire"), 29.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "SalaireJournalier"), 20.0);
  EXPECT_DOUBLE_EQ(NombreIJ(2, "SalaireBrut"), 0.0);
  EXPECT_DOUBLE_EQ(NombreIJ(2, "SalaireJournalier"), 30.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 120.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "IJRetenues"), 580.0);
  EXPECT_DOUBLE_EQ(NombreIJ(2, "IJRetenues"), 90.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 790.0);  // occupational disease goes with work accidents
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 0.0);
  EXPECT_DOUBLE_EQ(r.dBase, 1080.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -790.0);
}

TEST_F(IndemnitesJournalieres, LeTrenteEtUn) {
  BrutDuMois("202401", 3100.0);
  BrutDuMois("202402", 2900.0);
  Periode("AT", "31/01/2024", "01/02/2024", 60.0);
  ASSERT_TRUE(Subrogees());
  ASSERT_EQ(NbLignesIJ(), 2u);  // J = 30; one day in each month
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourIJ"), 1.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "NbJourIJ"), 1.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 60.0);
}

TEST_F(IndemnitesJournalieres, NouvelAnNonPlafonne) {
  s.bCalculIJNonPlafonnee = true;
  s.dIJ_RevenuGarantiBrut = 10;
  BrutDuMois("202312", 999.0);  // the capped gross, not read here
  Historique("202312", "BRUT", 2170.0);
  Historique("202312", "TOTIJMALR", 310.0);
  Historique("202401", "BRUT", 465.0);
  Historique("202401", "TOTRETCAR", 0.0);
  Periode("M", "20/12/2023", "10/01/2024", 660.0);
  ASSERT_TRUE(Subrogees());
  // 22 days, J = 30. December: G = 2170 + 310 = 2480, W = 80: no excess, R = 12 x 30.
  // January: G = 465, W = 15: excess (30 - 15) x 10 = 150 guaranteed, R = 10 x 30.
  ASSERT_EQ(NbLignesIJ(), 2u);
  EXPECT_EQ(TexteIJ(0, "Mois"), "20/12/2023");
  EXPECT_EQ(TexteIJ(1, "Mois"), "01/01/2024");
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireBrut"), 2480.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 360.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "SalaireJournalier"), 15.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "IJRetenues"), 300.0);
  EXPECT_DOUBLE_EQ(s.dIJ_RevenuGarantiBrut, 160.0);  // 10 + 150
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 660.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -660.0);
}

TEST_F(IndemnitesJournalieres, MoisEnCoursNonPlafonneLitLesCumulsDuMois) {
  s.bCalculIJNonPlafonnee = true;
  Cumul("BRUT", 3100.0);
  Cumul("TOTRETCAR", -100.0);
  Historique("202403", "BRUT", 1.0);  // not read for the pay month
  Periode("M", "01/03/2024", "05/03/2024", 150.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireBrut"), 3000.0);  // 3100 - 100
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalier"), 3000.0 / 31);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 150.0);
  EXPECT_DOUBLE_EQ(s.dIJ_RevenuGarantiBrut, 0.0);
}

TEST_F(IndemnitesJournalieres, NonSubrogeesLeRevenuGarantiNonRemisAZero) {
  s.bCalculIJNonPlafonnee = true;
  s.sMethodeCalculIJ = "C";
  s.dIJPercu1 = 5;
  Historique("202401", "BRUT", 465.0);
  Historique("202402", "BRUT", 2900.0);
  Periode("M", "01/03/2024", "05/03/2024", 150.0);  // subrogated: not this line's
  Periode("M", "01/01/2024", "29/02/2024", 1800.0, 0);
  ASSERT_TRUE(NonSubrogees());
  // 60 days, J = 30. January: W = 465 / 31 = 15, excess 15 x 31 = 465 stored; R = 930;
  // total 930 - 465 = 465. February: W = 2900 / 29 = 100, no excess, but the 465 left is
  // taken off again: 465 + 870 - 465 = 870.
  ASSERT_EQ(NbLignesIJ(), 2u);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NumIJ"), 0.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "NumIJ"), 0.0);
  EXPECT_DOUBLE_EQ(s.dIJNonSubrogees_RevenuGarantiBrut, 465.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJNonSubrogees, 870.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 0.0);
  EXPECT_DOUBLE_EQ(s.dIJ_RevenuGarantiBrut, 0.0);
  // Written whatever the method; the first slot is left alone.
  EXPECT_DOUBLE_EQ(r.dBase, 1800.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -870.0);
  EXPECT_DOUBLE_EQ(s.dIJPercu1, 5.0);
}

TEST_F(IndemnitesJournalieres, NonSubrogeesPlafonneesOteLeRevenuGarantiLaisse) {
  s.dIJNonSubrogees_RevenuGarantiBrut = 50;
  BrutDuMois("202403", 3100.0);
  Periode("M", "10/03/2024", "20/03/2024", 440.0, 0);
  ASSERT_TRUE(NonSubrogees());
  EXPECT_DOUBLE_EQ(s.dTotalIJNonSubrogees, 390.0);  // 440 - 50
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -390.0);
}

TEST_F(IndemnitesJournalieres, TypeInconnuEstUneMaladie) {
  Periode("X", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 440.0);  // no gross: R = 11 x 40
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 0.0);
}

TEST_F(IndemnitesJournalieres, BrutEgalAuTheoriqueDonneLeJournalierIJ) {
  s.dMtIJTheoriqueMaladieEtATMoisPrec = 3100;
  BrutDuMois("202403", 3100.0);
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireBrut"), 0.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalier"), 40.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 440.0);
}

TEST_F(IndemnitesJournalieres, BrutNegatifRetenueNegative) {
  s.dMtIJTheoriqueMaladieEtATMoisPrec = 3200;
  BrutDuMois("202403", 3100.0);
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  // G = -100, W = -100 / 31, below J: R = 11 x W.
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 11 * (-100.0 / 31));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -(11 * (-100.0 / 31)));
}

TEST_F(IndemnitesJournalieres, ContratFiniDansLeMoisDiviseParSesJours) {
  s.sDateFin = "15/03/2024";
  BrutDuMois("202403", 1500.0);
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  // 15 days of contract: W = 1500 / 15 = 100 above J = 40.
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourPresenceCalendaire"), 15.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalier"), 100.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "IJRetenues"), 440.0);
}

TEST_F(IndemnitesJournalieres, SansJourDeContratLeJournalierIJ) {
  s.sDateDebut = "01/04/2024";
  BrutDuMois("202403", 1500.0);
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourPresenceCalendaire"), 0.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalier"), 40.0);
}

TEST_F(IndemnitesJournalieres, PercuNulOuNegatifIgnore) {
  Periode("M", "10/03/2024", "20/03/2024", 0.0);
  Periode("M", "01/03/2024", "02/03/2024", -60.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_EQ(r.rsIJ, nullptr);
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(s.dIJPercu1, 0.0);
}

TEST_F(IndemnitesJournalieres, TableVideEcritUneLigneAZero) {
  r.dBase = 7;
  ASSERT_TRUE(Subrogees());
  EXPECT_EQ(r.rsIJ, nullptr);
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
}

TEST_F(IndemnitesJournalieres, HistoriqueVideLeJournalierIJPartout) {
  histo = NouveauRecordset({"Mois", "MtBrut"});
  Periode("M", "28/01/2024", "03/03/2024", 1080.0);
  ASSERT_TRUE(Subrogees());
  ASSERT_EQ(NbLignesIJ(), 3u);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "SalaireJournalier"), 30.0);  // no gross: W = J = 1080 / 36
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 1080.0);               // (4 + 29 + 3) x 30
}

TEST_F(IndemnitesJournalieres, SansHistoriquePlafonneEstUneFaute) {
  histo = nullptr;
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  EXPECT_FALSE(Subrogees());
}

TEST_F(IndemnitesJournalieres, SansTableDesPeriodesEstUneFaute) {
  s.rsIndemnitesJournalieres = nullptr;
  EXPECT_FALSE(Subrogees());
}

TEST_F(IndemnitesJournalieres, FinLaVeilleDuDebutDiviseParZero) {
  Periode("M", "10/03/2024", "09/03/2024", 440.0);
  r.dBase = 7;
  EXPECT_FALSE(Subrogees());
  EXPECT_DOUBLE_EQ(r.dBase, 7.0);
  ASSERT_NE(r.rsIJ, nullptr);  // made before the period was spread
  EXPECT_EQ(NbLignesIJ(), 0u);
}

TEST_F(IndemnitesJournalieres, PercuNulEstUneFaute) {
  Periode("M", "10/03/2024", "20/03/2024", Value());
  EXPECT_FALSE(Subrogees());
}

TEST_F(IndemnitesJournalieres, CurseurUneAnneePlusTardAvanceParLeMois) {
  // The start in January 2025, the end in March 2024: the month comparison alone walks on
  // to March 2025, whose end is the end of the month.
  Periode("M", "15/01/2025", "10/03/2024", 100.0);
  ASSERT_TRUE(Subrogees());
  ASSERT_EQ(NbLignesIJ(), 3u);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NbJourIJ"), 17.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "NbJourIJ"), 28.0);
  EXPECT_EQ(TexteIJ(2, "Mois"), "01/03/2025");
  EXPECT_DOUBLE_EQ(NombreIJ(2, "NbJourIJ"), 31.0);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "SalaireJournalierIJ"), 100.0 / -310);  // 310 days back, +1
}

// The gate of the subrogated line.
TEST_F(IndemnitesJournalieres, DejaCalculeeParLHoteRienNeBouge) {
  s.sMethodeCalculIJ = "C";
  s.bPremierCalculIJ = false;
  s.bCalculIJ = true;
  s.dIJPercu1 = 5;
  r.dBase = 7;
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_EQ(r.rsIJ, nullptr);
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 0.0);
  EXPECT_DOUBLE_EQ(s.dIJPercu1, 5.0);
  EXPECT_DOUBLE_EQ(r.dBase, 7.0);
}

TEST_F(IndemnitesJournalieres, PremierCalculAutreMethodeSansMontant) {
  s.sMethodeCalculIJ = "C";
  s.bPremierCalculIJ = true;
  s.bCalculIJ = true;
  r.dBase = 7;
  r.dMontantSalarial = 8;
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_EQ(NbLignesIJ(), 1u);
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 440.0);
  EXPECT_DOUBLE_EQ(s.dIJPercu1, 440.0);
  EXPECT_DOUBLE_EQ(r.dBase, 7.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 8.0);
}

TEST_F(IndemnitesJournalieres, SansCalculDemandeAutreMethodeCalcule) {
  s.sMethodeCalculIJ = "C";
  s.bCalculIJ = false;
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  ASSERT_TRUE(Subrogees());
  EXPECT_DOUBLE_EQ(s.dTotalIJMaladie, 440.0);
}

TEST_F(IndemnitesJournalieres, LaLigneNonSubrogeeAllongeLaTableDeLaSubrogee) {
  Periode("M", "10/03/2024", "20/03/2024", 440.0);
  Periode("AT", "01/03/2024", "02/03/2024", 60.0, 0);
  ASSERT_TRUE(Subrogees());
  const RsRef table = r.rsIJ;
  ASSERT_TRUE(NonSubrogees());
  EXPECT_EQ(r.rsIJ, table);
  ASSERT_EQ(NbLignesIJ(), 2u);
  EXPECT_DOUBLE_EQ(NombreIJ(0, "NumIJ"), 1.0);
  EXPECT_DOUBLE_EQ(NombreIJ(1, "NumIJ"), 0.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJNonSubrogees, 60.0);
  EXPECT_DOUBLE_EQ(s.dTotalIJAT, 0.0);  // non-subrogated periods keep to their own total
  EXPECT_DOUBLE_EQ(r.dBase, 60.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -60.0);
}

}  // namespace
}  // namespace orvalis::absences_test
