// Officials' withholding, historic method: eight slots of remuneration, one ceiling ratio,
// the tax scale, and the one-row detail table.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contributions/retenue_source_elus_test_util.h"

namespace orvalis {
namespace {

using retenue_test::Colonne;
using retenue_test::Cumuls;
using retenue_test::NbLignes;
using retenue_test::RetenueElus;
using retenue_test::Table;

constexpr double kEps = 1e-9;

class RetenueHistorique : public RetenueElus {
 protected:
  void SetUp() override {
    RetenueElus::SetUp();
    rsVariables = Table({"CodeVariable", "Valeur"}, {});
  }
  void Variable(const char* sCode, double dValeur) {
    rsVariables->AddNew();
    rsVariables->SetField("CodeVariable", Value(sCode));
    rsVariables->SetField("Valeur", Value(dValeur));
  }
  void Calcule() { m.CalculRubrique_Retenue_a_la_source(s, r, rsVariables); }
  double Detail(const std::string& colonne) {
    return Colonne(r.rsRetenueALaSource, 0, colonne).Nombre();
  }
  void ExpectLigne(double dBase, double dImpot) {
    EXPECT_NEAR(r.dBase, dBase, kEps);
    EXPECT_EQ(r.dTauxSalarial, 0.0);
    EXPECT_NEAR(r.dMontantSalarial, dImpot, kEps);
    EXPECT_EQ(r.dTauxPatronal, 0.0);
    EXPECT_EQ(r.dMontantPatronal, 0.0);
  }
  RsRef rsVariables;
};

TEST_F(RetenueHistorique, DetailTableHasItsColumnsInOrder) {
  const std::vector<std::string> colonnes = m.EnregistreDetailRetenueSource()->Columns();
  ASSERT_EQ(colonnes.size(), 60u);  // 3 x 8, URSSAF1, 3 x 8, 11
  EXPECT_EQ(colonnes[0], "RemunerationBrute1");
  EXPECT_EQ(colonnes[7], "RemunerationBrute8");
  EXPECT_EQ(colonnes[8], "Ircantec_A1");
  EXPECT_EQ(colonnes[16], "Ircantec_B1");
  EXPECT_EQ(colonnes[24], "URSSAF1");
  EXPECT_EQ(colonnes[25], "CsG1");
  EXPECT_EQ(colonnes[33], "RemunerationNette1");
  EXPECT_EQ(colonnes[41], "FraisEmploi1");
  EXPECT_EQ(colonnes[48], "FraisEmploi8");
  EXPECT_EQ(std::vector<std::string>(colonnes.begin() + 49, colonnes.end()),
            (std::vector<std::string>{"NetImposable", "TotalFais", "FraisEmploiMax",
                                      "FraisEmploiRetenue", "NetImposableRetenue",
                                      "TrancheImposition", "TrancheImposition2", "TauxImposition",
                                      "ConstanteAbattement", "RetenueALaSource", "Impot"}));
  EXPECT_EQ(m.EnregistreDetailRetenueSource()->RecordCount(), 0);
}

// The principal slot alone, monthly: 2000 in tranche A, IRCANTEC 56, CSG 2000 x 0.9825 x
// 6.8 % = 133.62, net 1810.38, allowance 50. Taxable 1760.38: 10 % of 1760 less 100 = 76.
TEST_F(RetenueHistorique, OneMandateMonthly) {
  Calcule();
  ExpectLigne(1760.0, 76.0);
  ASSERT_EQ(NbLignes(r.rsRetenueALaSource), 1u);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute1"), 2000.0);
  EXPECT_DOUBLE_EQ(Detail("Ircantec_A1"), 56.0);
  EXPECT_DOUBLE_EQ(Detail("Ircantec_B1"), 0.0);
  EXPECT_NEAR(Detail("CsG1"), 133.62, kEps);
  EXPECT_NEAR(Detail("RemunerationNette1"), 1810.38, kEps);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploi1"), 50.0);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute2"), 0.0);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploi2"), 0.0);
  EXPECT_DOUBLE_EQ(Detail("URSSAF1"), 0.0);
  EXPECT_NEAR(Detail("NetImposable"), 1810.38, kEps);
  EXPECT_DOUBLE_EQ(Detail("TotalFais"), 50.0);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploiMax"), 75.0);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploiRetenue"), 50.0);
  EXPECT_DOUBLE_EQ(Detail("NetImposableRetenue"), 1760.0);
  EXPECT_DOUBLE_EQ(Detail("TrancheImposition"), 1000.0);
  EXPECT_DOUBLE_EQ(Detail("TrancheImposition2"), 2000.0);
  EXPECT_DOUBLE_EQ(Detail("TauxImposition"), 10.0);
  EXPECT_DOUBLE_EQ(Detail("ConstanteAbattement"), 100.0);
  EXPECT_NEAR(Detail("RetenueALaSource"), 76.0, kEps);
  EXPECT_NEAR(Detail("Impot"), 76.0, kEps);
}

TEST_F(RetenueHistorique, RunsThroughItsNameAtTheEntry) {
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("RETENUE A LA SOURCE", s, r, rsVariables));
  ExpectLigne(1760.0, 76.0);
}

// Monthly, with a monthly allowance of 500 and a quarterly one of 900 (300 a month).
// Slot 2: IRCANTEC 14, CSG 33.405, net 452.595. Slot 3: 8.4, 20.043, net 271.557.
// Three allowances of 50, kept at 75. Taxable 1810.38 + 452.595 + 271.557 - 75 =
// 2459.532: 20 % of 2459 less 300 = 191.80.
TEST_F(RetenueHistorique, TwoMandatesMonthly) {
  Variable("ELUSINDM", 500);
  Variable("ELUSINDT", 900);
  Calcule();
  ExpectLigne(2459.0, 191.8);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute2"), 500.0);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute3"), 300.0);
  EXPECT_NEAR(Detail("CsG2"), 33.405, kEps);
  EXPECT_NEAR(Detail("RemunerationNette3"), 271.557, kEps);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploi3"), 50.0);
  EXPECT_DOUBLE_EQ(Detail("TotalFais"), 150.0);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploiRetenue"), 75.0);
}

// Quarterly in March, monthly scale (coefficient 3). Slots: 9000 principal, 1000 monthly
// (3000), 2400 yearly (600): 12600 above the 11592 ceiling, split by 11592 / 12600:
// A 8280, 2760, 552 and B 720, 240, 48. IRCANTEC A 231.84, 77.28, 15.456; B 50.04, 16.68,
// 3.336. CSG 601.29, 200.43, 40.086. URSSAF of the mayor 9000 x 0.4 % + 8000 x 6.9 % = 588.
// Nets 7528.83, 2705.61, 541.122; allowances 3 x 150 kept at 225. Taxable 10550.562,
// above 48000 / 4: 30 % of 10550 less 3 x 600 = 1365.
TEST_F(RetenueHistorique, ThreeMandatesQuarterlyAboveTheCeiling) {
  s.sEluPeriodicite = "2";
  s.sCodeModele = "ELUMAIRESP";
  m.gRsCumuls = Cumuls({{"BRUT", 9000.0, 0.0},
                        {"BASERAPPEL", 0.0, 0.0},
                        {"ASSURSTOT", 9000.0, 0.0},
                        {"ASSURSPLA", 8000.0, 0.0},
                        {"ASSURSTRA", 1.0, 0.0}});
  Variable("ELUSINDM", 1000);
  Variable("ELUSINDA", 2400);
  Calcule();
  ExpectLigne(10550.0, 1365.0);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute1"), 3000.0);  // per month
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute2"), 1000.0);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute5"), 200.0);
  EXPECT_NEAR(Detail("Ircantec_A1"), 77.28, kEps);  // 231.84 / 3
  EXPECT_NEAR(Detail("Ircantec_B2"), 5.56, kEps);   // 16.68 / 3
  EXPECT_NEAR(Detail("URSSAF1"), 196.0, kEps);      // 588 / 3
  EXPECT_NEAR(Detail("RemunerationNette1"), 7528.83 / 3, kEps);
  EXPECT_NEAR(Detail("NetImposable"), 3591.854, kEps);  // 10775.562 / 3
  EXPECT_DOUBLE_EQ(Detail("TotalFais"), 150.0);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploiMax"), 75.0);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploiRetenue"), 75.0);
  EXPECT_DOUBLE_EQ(Detail("NetImposableRetenue"), 3516.0);  // 3516.854 to the euro
  EXPECT_DOUBLE_EQ(Detail("TrancheImposition"), 3000.0);  // not divided
  EXPECT_DOUBLE_EQ(Detail("TrancheImposition2"), 4000.0);
  EXPECT_DOUBLE_EQ(Detail("TauxImposition"), 30.0);
  EXPECT_DOUBLE_EQ(Detail("ConstanteAbattement"), 1800.0);
  EXPECT_NEAR(Detail("Impot"), 1365.0, kEps);
}

// Half-yearly in June, half-yearly scale: a half-yearly allowance of 9000 and no principal.
// IRCANTEC 252, CSG 601.29, net 8146.71, allowance 300. Taxable 7846.71, above 12000 / 2:
// 10 % of 7846 less 620 = 164.60.
TEST_F(RetenueHistorique, HalfYearlyOfficial) {
  m.gPeriodeEncours = "01/06/2024";
  s.sEluPeriodicite = "3";
  s.sEluBaremeImpot = "5";
  m.gRsCumuls = Cumuls({{"BRUT", 0.0, 0.0}});
  Variable("ELUSINDS", 9000);
  Calcule();
  ExpectLigne(7846.0, 164.6);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute4"), 1500.0);  // 9000 / 6
  EXPECT_DOUBLE_EQ(Detail("FraisEmploi1"), 0.0);
}

// Yearly in December, yearly scale: 30000 yearly and 1000 quarterly (4000). Nets 27155.7
// and 3620.76; allowances 600 + 600 kept at 900. Taxable 29876.46, above 24000:
// 20 % of 29876 less 3640 = 2335.20.
TEST_F(RetenueHistorique, YearlyOfficial) {
  m.gPeriodeEncours = "01/12/2024";
  s.sEluPeriodicite = "4";
  s.sEluBaremeImpot = "3";
  m.gRsCumuls = Cumuls({{"BRUT", 0.0, 0.0}});
  Variable("ELUSINDA", 30000);
  Variable("ELUSINDT", 1000);
  Calcule();
  ExpectLigne(29876.0, 2335.2);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute5"), 2500.0);  // 30000 / 12
  EXPECT_NEAR(Detail("TotalFais"), 100.0, kEps);            // 1200 / 12
}

TEST_F(RetenueHistorique, ScaleFourGivesAZeroRow) {
  s.sEluBaremeImpot = "4";
  Calcule();
  ExpectLigne(0.0, 0.0);
  ASSERT_EQ(NbLignes(r.rsRetenueALaSource), 1u);
  for (const std::string& colonne : r.rsRetenueALaSource->Columns())
    EXPECT_EQ(Detail(colonne), 0.0) << colonne;
}

TEST_F(RetenueHistorique, QuarterlyMandateEndingInFebruaryWaitsForMarch) {
  m.gPeriodeEncours = "01/02/2024";
  s.sEluPeriodicite = "2";
  s.sDateFin = "28/02/2024";
  Calcule();
  ExpectLigne(0.0, 0.0);
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute1"), 0.0);
}

TEST_F(RetenueHistorique, TotalAtTheCeilingStaysInTrancheA) {
  m.gRsCumuls = Cumuls({{"BRUT", 3864.0, 0.0}});
  Calcule();
  EXPECT_NEAR(Detail("Ircantec_A1"), 108.192, kEps);  // 3864 x 2.8 %
  EXPECT_DOUBLE_EQ(Detail("Ircantec_B1"), 0.0);
}

TEST_F(RetenueHistorique, AllSlotsAtZero) {
  m.gRsCumuls = Cumuls({{"BRUT", 0.0, 0.0}});
  Calcule();
  ExpectLigne(0.0, 0.0);
  EXPECT_DOUBLE_EQ(Detail("Ircantec_A1"), 0.0);
  EXPECT_DOUBLE_EQ(Detail("TotalFais"), 0.0);
}

// 100 of principal less 2.8 + 6.681 and the mayor's URSSAF of 146: -55.481, no allowance.
// The other slot, 500, is untouched by URSSAF. Taxable 347.114: no tax.
TEST_F(RetenueHistorique, OnlyThePrincipalSlotBearsUrssaf) {
  s.sCodeModele = "ELUMAIRESP";
  m.gRsCumuls = Cumuls({{"BRUT", 100.0, 0.0}, {"ASSURSTOT", 2000.0, 0.0},
                        {"ASSURSPLA", 2000.0, 0.0}});
  Variable("ELUSINDM", 500);
  Calcule();
  EXPECT_NEAR(Detail("RemunerationNette1"), -55.481, kEps);
  EXPECT_DOUBLE_EQ(Detail("FraisEmploi1"), 0.0);
  EXPECT_NEAR(Detail("RemunerationNette2"), 452.595, kEps);
  EXPECT_NEAR(Detail("NetImposable"), 397.114, kEps);
  ExpectLigne(347.0, 0.0);
}

TEST_F(RetenueHistorique, ScaleCodeOutOfTheTableLeavesTheCoefficientAtZero) {
  s.sEluBaremeImpot = "6";  // no constant: 10 % of 1760
  Calcule();
  ExpectLigne(1760.0, 176.0);
  EXPECT_DOUBLE_EQ(Detail("ConstanteAbattement"), 0.0);
}

TEST_F(RetenueHistorique, VariablesAreReadToTheUnit) {
  Variable("ELUSINDM", 500.4);
  Calcule();
  EXPECT_DOUBLE_EQ(Detail("RemunerationBrute2"), 500.0);
}

TEST_F(RetenueHistorique, PeriodicityOutOfTheListIsAFault) {
  s.sEluPeriodicite = "5";
  EXPECT_THROW(Calcule(), Fault);
  s.sEluBaremeImpot = "4";  // even with nothing to compute, the month count divides
  EXPECT_THROW(Calcule(), Fault);
  s.sEluPeriodicite = "mensuel";
  EXPECT_THROW(Calcule(), Fault);
}

TEST_F(RetenueHistorique, ScaleCodeThatIsNotANumberIsTrappedAtTheEntry) {
  s.sEluBaremeImpot = "";
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("RETENUE A LA SOURCE", s, r, rsVariables));
  ASSERT_TRUE(r.rsRetenueALaSource);
  EXPECT_EQ(NbLignes(r.rsRetenueALaSource), 0u);
}

}  // namespace
}  // namespace orvalis
