// Paid leave arbitration: the worked-day value against the gross of the reference year.
#include "absences/absences_test_outils.h"

namespace orvalis::absences_test {
namespace {

// March 2024, 252 working days: the monthly salary 2100 (constant of id 7, the line's
// coefficient) gives a worked day of 2100 / 21 = 100.00. The line pays 5 days (its base),
// the employer rate is the 250 days earned (constant of id 2). The history holds the total
// of id 7 for each month: 2200 from June 2022 to June 2023 (13 months, 28600), 1000 in May
// 2022 and 5000 in July 2023.
class ArbitrageCongesPayes : public PaieAbsences {
 protected:
  ArbitrageCongesPayes() {
    BaseAutreLigne(5);
    Constante("SALAIRE", 2100.0, 7);
    r.sCoeffBase = "UNE CONSTANTE";
    r.lIdCoeffBase = 7;
    HistoriqueParId("202205", 7, 1000.0);
    for (int mois = 202206; mois <= 202212; ++mois)
      HistoriqueParId(std::to_string(mois), 7, 2200.0);
    for (int mois = 202301; mois <= 202306; ++mois)
      HistoriqueParId(std::to_string(mois), 7, 2200.0);
    HistoriqueParId("202307", 7, 5000.0);
    HistoriqueParId("202308", 8, 7777.0);  // another total
    r.dTauxPatronal = 7;
    r.dMontantPatronal = 8;
  }
  void JoursAcquis(double jours, const char* kind) { TauxPatronalConstante("NBJCP", jours, kind); }
  bool Calcule() { return Calcul("ARBITRAGE CONGES PAYES"); }
};

TEST_F(ArbitrageCongesPayes, TreizeMoisDeJuinAJuinGagnent) {
  JoursAcquis(250, "J");
  ASSERT_TRUE(Calcule());
  // Reference year 01/06/2022 to 01/06/2023: R = 28600 / 250 = 114.40; V2 = 5 x 114.40 = 572
  // against V1 = 5 x 100 = 500.
  EXPECT_DOUBLE_EQ(r.dBase, 5.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 114.4);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 572.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 7.0);  // the employer side is not written
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 8.0);
}

TEST_F(ArbitrageCongesPayes, NbjconpaytDecaleDUnAn) {
  JoursAcquis(250, "NBJCONPAYT");
  ASSERT_TRUE(Calcule());
  // 01/06/2023 to 01/06/2024: 2200 (June 2023) + 5000 (July 2023) = 7200; R = 28.80,
  // V2 = 144 < V1 = 500: the worked day wins.
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 100.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 500.0);
}

TEST_F(ArbitrageCongesPayes, EnMaiDeuxAnsEnArriere) {
  m.gPeriodeEncours = "01/05/2024";
  JoursAcquis(250, "J");
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 114.4);  // still June 2022 to June 2023
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 572.0);
}

TEST_F(ArbitrageCongesPayes, EnJuinUnAnEnArriere) {
  m.gPeriodeEncours = "01/06/2024";
  JoursAcquis(250, "J");
  ASSERT_TRUE(Calcule());
  // 01/06/2023 to 01/06/2024: 7200 as above, R = 28.80: the worked day wins.
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 100.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 500.0);
}

TEST_F(ArbitrageCongesPayes, EnJuinAvecNbjconpaytLaMemeAnnee) {
  m.gPeriodeEncours = "01/06/2024";
  JoursAcquis(25, "NBJCONPAYT");
  HistoriqueParId("202406", 7, 3000.0);
  HistoriqueParId("202407", 7, 9000.0);
  ASSERT_TRUE(Calcule());
  // 01/06/2024 to 01/06/2025: 3000 + 9000 = 12000; R = 12000 / 25 = 480; V2 = 2400.
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 480.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 2400.0);
}

TEST_F(ArbitrageCongesPayes, TauxSalarialDonneSansHistorique) {
  JoursAcquis(250, "J");
  TauxSalarialConstante("BRUTREF", 30000.0, "M");
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 120.0);  // 30000 / 250
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 600.0);
}

TEST_F(ArbitrageCongesPayes, RapportArrondiADeuxDecimales) {
  JoursAcquis(300, "J");
  m.gRsConstantes->MoveFirst();
  m.gRsConstantes->SetField("Valeur", 1890.0);  // a worked day of 1890 / 21 = 90: V1 = 450
  ASSERT_TRUE(Calcule());
  // 28600 / 300 = 95.3333: R = 95.33, V2 = 5 x 95.33 = 476.65.
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 95.33);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 476.65);
}

TEST_F(ArbitrageCongesPayes, SansJoursAcquisLePremierGagne) {
  ASSERT_TRUE(Calcule());  // Z = 0: R = 0, V2 = 0
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 100.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 500.0);
}

TEST_F(ArbitrageCongesPayes, SansJoursAcquisUnePremiereValeurNegativePerd) {
  BaseAutreLigne(-5);
  ASSERT_TRUE(Calcule());  // V1 = -500 < V2 = 0
  EXPECT_DOUBLE_EQ(r.dBase, -5.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
}

TEST_F(ArbitrageCongesPayes, EgaliteLaPremiereEstEcrite) {
  BaseAutreLigne(0);
  JoursAcquis(250, "J");
  ASSERT_TRUE(Calcule());  // V1 = V2 = 0
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 100.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
}

TEST_F(ArbitrageCongesPayes, HistoriqueVide) {
  m.gRsCumulsHistoriqueSal = NouveauRecordset(
      {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
  JoursAcquis(250, "J");
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 100.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 500.0);
}

}  // namespace
}  // namespace orvalis::absences_test
