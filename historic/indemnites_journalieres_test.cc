// The historic daily benefits beside the current engine's slot-driven generation, on the
// same record: the month's salary is the total "BASE" of that month, the benefit retained
// is always capped to it, and the detail table has no column of the table-driven generation.
#include <algorithm>
#include <vector>

#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class IJHistoriqueTest : public DeuxMoteurs {
 protected:
  IJHistoriqueTest() {
    s.sMethodeCalculIJ = "E";
    s.sIJType1 = "M";
    s.sIJDateDebut1 = "10/03/2024";
    s.sIJDatefin1 = "20/03/2024";
    s.dIJPercu1 = 550;  // 11 days: 50 a day
    histo = NouveauRecordset({"IDSALARIE", "Mois", "HeuresMois", "MtBrut"});
  }

  // The gross of a month yyyymm in the pay history, which the current engine reads.
  void BrutDuMois(const std::string& mois, double brut) {
    histo->AddNew();
    histo->SetField("IDSALARIE", 42);
    histo->SetField("Mois", mois);
    histo->SetField("HeuresMois", 151.67);
    histo->SetField("MtBrut", brut);
  }

  // The current engine's slot-driven generation and the historic line "INDEMNITES
  // JOURNALIERES", from the same record.
  void Calcule() {
    sN = s;
    sH = s;
    rN = r;
    rH = r;
    n.Calcul_Indemnites_journalieres(sN, rN, histo);
    ASSERT_TRUE(h.Appel_Methode_Calcul_General("INDEMNITES JOURNALIERES", sH, rH, vars, vars,
                                               histo));
  }

  static double Cellule(const SalarieCalculRubrique& l, std::size_t ligne, const char* colonne) {
    const auto colonnes = l.rsIJ->Columns();
    const auto it = std::find(colonnes.begin(), colonnes.end(), colonne);
    EXPECT_NE(it, colonnes.end()) << colonne;
    return l.rsIJ->Rows().at(ligne).at(static_cast<std::size_t>(it - colonnes.begin())).Nombre();
  }

  RsRef histo;
};

TEST_F(IJHistoriqueTest, DetailTableWithoutTheTableColumns) {
  Cumul("BASE", 3100);
  Calcule();
  ASSERT_NE(rH.rsIJ, nullptr);
  EXPECT_EQ(rH.rsIJ->Columns(),
            (std::vector<std::string>{"IdSalarie", "NumIJ", "Mois", "SalaireBrut",
                                      "SalaireJournalier", "SalaireJournalierIJ", "NbJourIJ",
                                      "IJRetenues"}));
  EXPECT_EQ(rN.rsIJ->Columns().size(), 12u);
}

// 10 to 20 March, 550 received: J = 50, 11 days, 31 days in March. Historic: "BASE" 3100,
// W = 100, above J: R = 11 x 50 = 550. Current: the history's March gross 620, W = 20:
// R = 11 x 20 = 220.
TEST_F(IJHistoriqueTest, TheMonthsTreatmentNotItsGross) {
  Cumul("BASE", 3100);
  BrutDuMois("202403", 620);
  Calcule();
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -220);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -550);
  EXPECT_DOUBLE_EQ(rH.dBase, 550);
  EXPECT_EQ(rH.dTauxSalarial, 0.0);
  EXPECT_EQ(rH.dTauxPatronal, 0.0);
  EXPECT_EQ(rH.dMontantPatronal, 0.0);
  EXPECT_DOUBLE_EQ(sH.dTotalIJMaladie, 550);
  EXPECT_DOUBLE_EQ(Cellule(rH, 0, "SalaireBrut"), 3100);
  EXPECT_DOUBLE_EQ(Cellule(rH, 0, "SalaireJournalier"), 100);
  EXPECT_DOUBLE_EQ(Cellule(rH, 0, "SalaireJournalierIJ"), 50);
  EXPECT_DOUBLE_EQ(Cellule(rH, 0, "NbJourIJ"), 11);
  EXPECT_DOUBLE_EQ(Cellule(rH, 0, "IJRetenues"), 550);
}

// "BASE" 620: W = 20 under J, the same 220 on both when the current one is capped. With
// the uncapped calculation asked, the current engine retains 550 and 330 of guaranteed
// income ((50 - 20) x 11, its gross "BRUT" 620); the historic one knows no such choice.
TEST_F(IJHistoriqueTest, AlwaysCapped) {
  Cumul("BASE", 620);
  Cumul("BRUT", 620);
  BrutDuMois("202403", 620);
  Calcule();
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -220);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -220);
  s.bCalculIJNonPlafonnee = true;
  Calcule();
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -550);
  EXPECT_DOUBLE_EQ(sN.dIJ_RevenuGarantiBrut, 330);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -220);
  EXPECT_DOUBLE_EQ(sH.dIJ_RevenuGarantiBrut, 0);
}

// 28 January to 3 March 2024, a work accident: 4 + 29 + 3 = 36 days, 3600 received, J = 100.
// January: the history's "BASE" 3100 over 31 days, W = 100, not under J: 4 x 100 = 400.
// February (29 days): "BASE" 1450, W = 50: 29 x 50 = 1450. March: no "BASE" this month,
// W = J: 3 x 100 = 300. In all 2150, for a work accident.
TEST_F(IJHistoriqueTest, APeriodOverThreeMonthsAndFebruary) {
  s.sIJType1 = "";
  s.dIJPercu1 = 0;
  s.sIJType2 = "AT";
  s.sIJDateDebut2 = "28/01/2024";
  s.sIJDatefin2 = "03/03/2024";
  s.dIJPercu2 = 3600;
  paie_test::AjouteHistorique(n.gRsCumulsHistoriqueSal, 42, "202401", "BASE", 3100, 0);
  paie_test::AjouteHistorique(n.gRsCumulsHistoriqueSal, 42, "202402", "BASE", 1450, 0);
  paie_test::AjouteHistorique(n.gRsCumulsHistoriqueSal, 7, "202402", "BASE", 99999, 0);
  Calcule();
  ASSERT_EQ(rH.rsIJ->Rows().size(), 3u);
  EXPECT_EQ(rH.rsIJ->Rows()[0][2].Texte(), "28/01/2024");
  EXPECT_EQ(rH.rsIJ->Rows()[1][2].Texte(), "01/02/2024");
  EXPECT_EQ(rH.rsIJ->Rows()[2][2].Texte(), "01/03/2024");
  EXPECT_DOUBLE_EQ(Cellule(rH, 0, "NumIJ"), 2);
  EXPECT_DOUBLE_EQ(Cellule(rH, 0, "IJRetenues"), 400);
  EXPECT_DOUBLE_EQ(Cellule(rH, 1, "SalaireBrut"), 1450);
  EXPECT_DOUBLE_EQ(Cellule(rH, 1, "SalaireJournalier"), 50);
  EXPECT_DOUBLE_EQ(Cellule(rH, 1, "NbJourIJ"), 29);
  EXPECT_DOUBLE_EQ(Cellule(rH, 1, "IJRetenues"), 1450);
  EXPECT_DOUBLE_EQ(Cellule(rH, 2, "SalaireBrut"), 0);
  EXPECT_DOUBLE_EQ(Cellule(rH, 2, "IJRetenues"), 300);
  EXPECT_DOUBLE_EQ(sH.dTotalIJAT, 2150);
  EXPECT_DOUBLE_EQ(sH.dTotalIJMaladie, 0);
  EXPECT_DOUBLE_EQ(rH.dBase, 3600);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -2150);
  // The current engine on an empty pay history: no gross anywhere, W = J: 3600 retained.
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -3600);
}

// A line the host has calculated under its own method, not for the first time: left alone.
TEST_F(IJHistoriqueTest, TheHostsOwnLineIsLeftAlone) {
  Cumul("BASE", 3100);
  r.dMontantSalarial = -12.5;
  s.sMethodeCalculIJ = "X";
  s.bCalculIJ = true;
  Calcule();
  EXPECT_EQ(rH.rsIJ, nullptr);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -12.5);
  EXPECT_DOUBLE_EQ(sH.dTotalIJMaladie, 0);
  // Its first calculation: the totals and the table, but the line stays the host's.
  s.bPremierCalculIJ = true;
  Calcule();
  ASSERT_NE(rH.rsIJ, nullptr);
  EXPECT_DOUBLE_EQ(sH.dTotalIJMaladie, 550);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -12.5);
}

// Nothing received in any slot: no table, and the line of method "E" with the totals as
// they stand.
TEST_F(IJHistoriqueTest, NothingReceived) {
  s.dIJPercu1 = 0;
  s.dTotalIJAT = 40;
  Calcule();
  EXPECT_EQ(rH.rsIJ, nullptr);
  EXPECT_DOUBLE_EQ(rH.dBase, 0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -40);
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -40);
}

}  // namespace
}  // namespace orvalis::historique_test
