// Officials' withholding, new method: the pay line, the mandate rows written back and the
// detail table, over one, two and three mandates and each periodicity.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contributions/retenue_source_elus_test_util.h"

namespace orvalis {
namespace {

using retenue_test::Colonne;
using retenue_test::Cumuls;
using retenue_test::Mandats;
using retenue_test::NbLignes;
using retenue_test::PeriodesIrcantec;
using retenue_test::PeriodesUrssaf;
using retenue_test::RetenueElus;

constexpr double kEps = 1e-9;

class RetenueNouvelle : public RetenueElus {
 protected:
  void Calcule() { m.CalculRubrique_Retenue_a_la_source_NouvelleMethode(s, r, nullptr); }
  Value Detail(std::size_t ligne, const char* colonne) {
    return Colonne(r.rsRetenueALaSourceNouvelleMethode, ligne, colonne);
  }
  double Montant(std::size_t ligne, const char* colonne) { return Detail(ligne, colonne).Nombre(); }
  double Ecrit(std::size_t ligne, const char* colonne) {
    return Colonne(s.rsAutresIndemnites, ligne, colonne).Nombre();
  }
  void ExpectLigne(double dBase, double dImpot) {
    EXPECT_NEAR(r.dBase, dBase, kEps);
    EXPECT_EQ(r.dTauxSalarial, 0.0);
    EXPECT_NEAR(r.dMontantSalarial, dImpot, kEps);
    EXPECT_EQ(r.dTauxPatronal, 0.0);
    EXPECT_EQ(r.dMontantPatronal, 0.0);
  }
  // The mandate of the two-mandate cases: 500 a month, within the March ceiling.
  static retenue_test::Mandat Conseiller() {
    return {false, "Conseiller communautaire", "01/01/2024", "31/12/2026", 500.0, 500.0, 0.0,
            0.0, 0.0};
  }
};

TEST_F(RetenueNouvelle, DetailTableHasItsColumnsInOrder) {
  EXPECT_EQ(m.EnregistreDetailRetenueSource_NouvelleMethode()->Columns(),
            (std::vector<std::string>{
                "NumeroOrdre", "Designation", "RemunerationBrute", "Ircantec_A", "Ircantec_B",
                "URSSAF", "CsG", "RemunerationNette", "FraisEmploi", "NetImposable",
                "TotalFrais", "FraisEmploiMax", "FraisEmploiRetenue", "NetImposableRetenue",
                "TrancheImposition", "TrancheImposition2", "TauxImposition",
                "ConstanteAbattement", "RetenueALaSource", "Impot", "CotiPartRetrComplNet",
                "URSSAF_Tot", "URSSAF_Plaf", "CotiPartRetrComplBrut", "DIFElus"}));
  EXPECT_EQ(m.EnregistreDetailRetenueSource_NouvelleMethode()->RecordCount(), 0);
}

// One mandate, monthly: gross 2000 all in tranche A (3000 of allowances under the 3864
// ceiling): IRCANTEC A 2.8 % = 56, CSG 6.8 % = 136, net 1808. No other row: the full
// allowance of 50. Taxable 1758, above 1000 (12000 / 12): 10 % less 100 = 75.80.
TEST_F(RetenueNouvelle, OneMandateMonthly) {
  Calcule();
  ExpectLigne(1758.0, 75.8);
  ASSERT_EQ(NbLignes(r.rsRetenueALaSourceNouvelleMethode), 2u);
  EXPECT_EQ(Detail(0, "NumeroOrdre"), Value(1));
  EXPECT_EQ(Detail(0, "Designation"), Value("Rémunération principale"));
  EXPECT_DOUBLE_EQ(Montant(0, "RemunerationBrute"), 2000.0);
  EXPECT_DOUBLE_EQ(Montant(0, "Ircantec_A"), 56.0);
  EXPECT_DOUBLE_EQ(Montant(0, "Ircantec_B"), 0.0);
  EXPECT_DOUBLE_EQ(Montant(0, "URSSAF"), 0.0);
  EXPECT_DOUBLE_EQ(Montant(0, "CsG"), 136.0);
  EXPECT_DOUBLE_EQ(Montant(0, "RemunerationNette"), 1808.0);
  EXPECT_DOUBLE_EQ(Montant(0, "FraisEmploi"), 50.0);
  EXPECT_DOUBLE_EQ(Montant(0, "CotiPartRetrComplNet"), 0.0);
  EXPECT_TRUE(Detail(0, "NetImposable").EstNull());
  EXPECT_TRUE(Detail(0, "DIFElus").EstNull());

  EXPECT_EQ(Detail(1, "NumeroOrdre"), Value(2));
  EXPECT_EQ(Detail(1, "Designation"), Value(""));
  EXPECT_TRUE(Detail(1, "RemunerationBrute").EstNull());
  EXPECT_DOUBLE_EQ(Montant(1, "NetImposable"), 1808.0);
  EXPECT_DOUBLE_EQ(Montant(1, "TotalFrais"), 50.0);
  EXPECT_DOUBLE_EQ(Montant(1, "FraisEmploiMax"), 75.0);
  EXPECT_DOUBLE_EQ(Montant(1, "FraisEmploiRetenue"), 50.0);
  EXPECT_DOUBLE_EQ(Montant(1, "NetImposableRetenue"), 1758.0);
  EXPECT_DOUBLE_EQ(Montant(1, "TrancheImposition"), 1000.0);
  EXPECT_DOUBLE_EQ(Montant(1, "TrancheImposition2"), 2000.0);
  EXPECT_DOUBLE_EQ(Montant(1, "TauxImposition"), 10.0);
  EXPECT_DOUBLE_EQ(Montant(1, "ConstanteAbattement"), 100.0);
  EXPECT_NEAR(Montant(1, "RetenueALaSource"), 75.8, kEps);
  EXPECT_NEAR(Montant(1, "Impot"), 75.8, kEps);
  EXPECT_TRUE(Detail(1, "DIFElus").EstNull());
}

TEST_F(RetenueNouvelle, RunsThroughItsNameAtTheEntry) {
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("RETENUE A LA SOURCE NOUVELLE METHODE", s, r));
  ExpectLigne(1758.0, 75.8);
}

// The principal row of the table is skipped; the mandate: 500 in tranche A, IRCANTEC 14,
// CSG 34, net 452, its allowance 50. The principal now gets min(1808, 50) = 50: 100 of
// expenses, kept at 75. Taxable 452 + 1808 - 75 = 2185, above 2000: 20 % less 300 = 137.
TEST_F(RetenueNouvelle, TwoMandatesMonthly) {
  s.rsAutresIndemnites = Mandats(
      {{true, "Maire", "01/01/2020", "31/12/2026", 2000.0, 2000.0, 0.0, 0.0, 0.0}, Conseiller()});
  Calcule();
  ExpectLigne(2185.0, 137.0);
  EXPECT_TRUE(Colonne(s.rsAutresIndemnites, 0, "MontantCotisations").EstNull());
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantPlafond"), 0.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantCotisations"), 48.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantCotisationIrcantecTA"), 14.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantCotisationIrcantecTB"), 0.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantCotisationCSG"), 34.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantRemunerationNette"), 452.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantTotalFraisInd"), 50.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantCotisationUrssafPlaf"), 0.0);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantCotisationUrssafTot"), 0.0);

  ASSERT_EQ(NbLignes(r.rsRetenueALaSourceNouvelleMethode), 3u);
  EXPECT_DOUBLE_EQ(Montant(0, "FraisEmploi"), 50.0);
  EXPECT_EQ(Detail(1, "NumeroOrdre"), Value(2));
  EXPECT_EQ(Detail(1, "Designation"), Value("Conseiller communautaire"));
  EXPECT_DOUBLE_EQ(Montant(1, "RemunerationBrute"), 500.0);
  EXPECT_DOUBLE_EQ(Montant(1, "Ircantec_A"), 14.0);
  EXPECT_DOUBLE_EQ(Montant(1, "CsG"), 34.0);
  EXPECT_DOUBLE_EQ(Montant(1, "RemunerationNette"), 452.0);
  EXPECT_DOUBLE_EQ(Montant(1, "FraisEmploi"), 50.0);
  EXPECT_TRUE(Detail(1, "NetImposable").EstNull());
  EXPECT_EQ(Detail(2, "NumeroOrdre"), Value(3));
  EXPECT_DOUBLE_EQ(Montant(2, "NetImposable"), 2260.0);
  EXPECT_DOUBLE_EQ(Montant(2, "TotalFrais"), 100.0);
  EXPECT_DOUBLE_EQ(Montant(2, "FraisEmploiRetenue"), 75.0);
  EXPECT_DOUBLE_EQ(Montant(2, "NetImposableRetenue"), 2185.0);
  EXPECT_DOUBLE_EQ(Montant(2, "TauxImposition"), 20.0);
}

// Quarterly official in March, monthly scale (coefficient 3), D = 90 days.
// Principal: gross 6000 over 90 days of presence, brought to 6000 for the quarter.
//   Tranche A: January-February under its ceiling, 6000 x 60 / 90 = 4000; March over it,
//   11592 x 2000 / 4000 x 30 / 90 = 1932: A 5932, B 68. IRCANTEC 166.096 + 4.726.
//   URSSAF: 6000 x 0.4 % = 24 and 5000 x 6.9 % = 345. Pension 100 + 50 = 150 of employer's
//   share: CSG (150 + 6000) x 6.8 % = 418.2. Net 6150 - 958.022 = 5191.978; allowance 150.
// Mandate "Vice-président": 900. Tranche A 900 x 60 / 90 = 600 plus 11592 x (900 x 30 / 90)
//   / 4000 x 30 / 90 = 289.8: 889.8, B 10.2; IRCANTEC 24.9144 + 0.7089. URSSAF over two
//   periods, 30 of pension added at each: 930 then 960. Total base 930 x 60/90 + 960 x
//   30/90 = 940; capped 620 + 960 x 3/4 x 30/90 = 860: 3.76 + 59.34. CSG 61.2. Net
//   900 - 149.9233 = 750.0767; with its pension 30 x 0.932 + 10 = 37.96. Allowance 150.
// Mandate "Conseiller départemental", from February: 300. Tranche A 200 + 96.6 = 296.6,
//   B 3.4; IRCANTEC 8.3048 + 0.2363; CSG 20.4; net 271.0589; allowance 150.
// Mandate "Syndicat": nothing paid, no allowance.
// Expenses 450, kept at 225. Taxable 5191.978 + 750.0767 + 37.96 + 271.0589 - 225
// = 6026.0736, above 24000 / 4: 20 % of 6026 less 3 x 300 = 305.20.
class RetenueTroisMandats : public RetenueNouvelle {
 protected:
  void SetUp() override {
    RetenueNouvelle::SetUp();
    s.sEluPeriodicite = "2";
    s.iNBJ_Presence_Total_Periode_Elus = 90;
    s.bIndemniteEluCotiseUrssaf = true;
    m.gRsCumuls = Cumuls({{"BRUT", 6000.0, 0.0},
                          {"BASERAPPEL", 0.0, 0.0},
                          {"FONCAR", 7.0, 100.0},
                          {"CAREL", 3.0, 50.0},
                          {"ASSURSTOT", 6000.0, 0.0},
                          {"ASSURSTRA", 5000.0, 0.0}});
    s.RsPlafondIrcantecPeriodes =
        PeriodesIrcantec({{"20240101", "20240229", 5000.0, 7728.0, 4000.0, 60.0, 60.0},
                          {"20240301", "20240331", 4000.0, 3864.0, 2000.0, 30.0, 30.0}});
    s.RsPlafondUrssafPeriodes = PeriodesUrssaf(
        {{{"20240101", "20240229", 5000.0, 7728.0, 0.0, 60.0, 60.0}, 1.0, 0.0, 0.0},
         {{"20240301", "20240331", 4000.0, 3864.0, 0.0, 30.0, 30.0}, 1.0, 3000.0, 1000.0}});
    s.rsAutresIndemnites = Mandats(
        {{false, "Vice-président", "01/01/2024", "31/12/2026", 900.0, 900.0, 1.0,
          30.0, 10.0},
         {false, "Conseiller départemental", "01/02/2024", "31/12/2026", 300.0, 300.0, 0.0,
          0.0, 0.0},
         {true, "Maire", "01/01/2020", "31/12/2026", 6000.0, 6000.0, 1.0, 0.0, 0.0},
         {false, "Syndicat", "01/01/2024", "31/12/2026", 0.0, 0.0, Value(), 0.0, 0.0}});
  }
};

TEST_F(RetenueTroisMandats, PayLine) {
  Calcule();
  ExpectLigne(6026.0, 305.2);
}

TEST_F(RetenueTroisMandats, MandateRowsWrittenBack) {
  Calcule();
  EXPECT_NEAR(Ecrit(0, "MontantCotisationIrcantecTA"), 24.9144, kEps);
  EXPECT_NEAR(Ecrit(0, "MontantCotisationIrcantecTB"), 0.7089, kEps);
  EXPECT_NEAR(Ecrit(0, "MontantCotisationUrssafTot"), 3.76, kEps);
  EXPECT_NEAR(Ecrit(0, "MontantCotisationUrssafPlaf"), 59.34, kEps);
  EXPECT_NEAR(Ecrit(0, "MontantCotisationCSG"), 61.2, kEps);
  EXPECT_NEAR(Ecrit(0, "MontantCotisations"), 149.9233, kEps);
  EXPECT_NEAR(Ecrit(0, "MontantRemunerationNette"), 750.0767, kEps);
  EXPECT_DOUBLE_EQ(Ecrit(0, "MontantTotalFraisInd"), 150.0);
  EXPECT_NEAR(Ecrit(1, "MontantCotisationIrcantecTA"), 8.3048, kEps);
  EXPECT_NEAR(Ecrit(1, "MontantCotisationIrcantecTB"), 0.2363, kEps);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantCotisationUrssafTot"), 0.0);
  EXPECT_NEAR(Ecrit(1, "MontantRemunerationNette"), 271.0589, kEps);
  EXPECT_DOUBLE_EQ(Ecrit(1, "MontantTotalFraisInd"), 150.0);
  EXPECT_TRUE(Colonne(s.rsAutresIndemnites, 2, "MontantCotisations").EstNull());
  // A net of 0 gets no allowance; its row is written all the same.
  EXPECT_DOUBLE_EQ(Ecrit(3, "MontantRemunerationNette"), 0.0);
  EXPECT_DOUBLE_EQ(Ecrit(3, "MontantTotalFraisInd"), 0.0);
}

TEST_F(RetenueTroisMandats, DetailPerMonth) {
  Calcule();
  ASSERT_EQ(NbLignes(r.rsRetenueALaSourceNouvelleMethode), 5u);
  EXPECT_DOUBLE_EQ(Montant(0, "RemunerationBrute"), 2000.0);  // 6000 / 3
  EXPECT_NEAR(Montant(0, "Ircantec_A"), 166.096 / 3, kEps);
  EXPECT_NEAR(Montant(0, "Ircantec_B"), 4.726 / 3, kEps);
  EXPECT_NEAR(Montant(0, "URSSAF"), 123.0, kEps);  // 369 / 3
  EXPECT_NEAR(Montant(0, "URSSAF_Tot"), 8.0, kEps);
  EXPECT_NEAR(Montant(0, "URSSAF_Plaf"), 115.0, kEps);
  EXPECT_NEAR(Montant(0, "CsG"), 139.4, kEps);  // 418.2 / 3
  EXPECT_NEAR(Montant(0, "RemunerationNette"), 5191.978 / 3, kEps);
  EXPECT_DOUBLE_EQ(Montant(0, "FraisEmploi"), 50.0);
  EXPECT_NEAR(Montant(0, "CotiPartRetrComplNet"), 46.6, kEps);  // 150 x 0.932 / 3
  EXPECT_DOUBLE_EQ(Montant(0, "CotiPartRetrComplBrut"), 50.0);

  EXPECT_EQ(Detail(1, "Designation"), Value("Vice-président"));
  EXPECT_DOUBLE_EQ(Montant(1, "RemunerationBrute"), 300.0);
  EXPECT_NEAR(Montant(1, "URSSAF"), 63.1 / 3, kEps);
  EXPECT_NEAR(Montant(1, "CsG"), 21.08, kEps);  // (61.2 + 30 x 6.8 %) / 3
  EXPECT_NEAR(Montant(1, "CotiPartRetrComplNet"), 37.96 / 3, kEps);
  EXPECT_NEAR(Montant(1, "RemunerationNette"), 750.0767 / 3 + 37.96 / 3, kEps);
  EXPECT_DOUBLE_EQ(Montant(1, "FraisEmploi"), 50.0);
  EXPECT_DOUBLE_EQ(Montant(1, "CotiPartRetrComplBrut"), 10.0);
  EXPECT_NEAR(Montant(1, "URSSAF_Plaf"), 19.78, kEps);
  EXPECT_EQ(Detail(2, "Designation"), Value("Conseiller départemental"));
  EXPECT_EQ(Detail(3, "Designation"), Value("Syndicat"));
  EXPECT_DOUBLE_EQ(Montant(3, "FraisEmploi"), 0.0);

  EXPECT_EQ(Detail(4, "NumeroOrdre"), Value(5));
  EXPECT_NEAR(Montant(4, "NetImposable"), 6251.0736 / 3, 1e-9);
  EXPECT_DOUBLE_EQ(Montant(4, "TotalFrais"), 150.0);
  EXPECT_DOUBLE_EQ(Montant(4, "FraisEmploiMax"), 75.0);
  EXPECT_DOUBLE_EQ(Montant(4, "FraisEmploiRetenue"), 75.0);
  EXPECT_DOUBLE_EQ(Montant(4, "NetImposableRetenue"), 2008.0);  // 6026.0736 / 3, whole euro
  EXPECT_DOUBLE_EQ(Montant(4, "TrancheImposition"), 2000.0);
  EXPECT_DOUBLE_EQ(Montant(4, "TrancheImposition2"), 3000.0);
  EXPECT_DOUBLE_EQ(Montant(4, "TauxImposition"), 20.0);
  EXPECT_DOUBLE_EQ(Montant(4, "ConstanteAbattement"), 900.0);
  EXPECT_NEAR(Montant(4, "Impot"), 305.2, kEps);  // not divided
}

TEST_F(RetenueTroisMandats, QuarterlyOfficialWaitsForTheEndOfTheQuarter) {
  m.gPeriodeEncours = "01/02/2024";
  Calcule();
  ExpectLigne(0.0, 0.0);
  EXPECT_DOUBLE_EQ(Montant(0, "RemunerationBrute"), 0.0);
  // The mandate rows show what their columns held, undivided: nothing was written.
  EXPECT_DOUBLE_EQ(Montant(1, "RemunerationBrute"), 900.0);
  EXPECT_TRUE(Detail(1, "Ircantec_A").EstNull());
  EXPECT_DOUBLE_EQ(Montant(4, "TauxImposition"), 0.0);
}

TEST_F(RetenueTroisMandats, MandateEndingThisMonthIsCalculatedBeforeTheQuarterEnds) {
  m.gPeriodeEncours = "01/02/2024";
  s.sDateFin = "15/02/2024";
  Calcule();
  EXPECT_GT(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(Montant(0, "RemunerationBrute"), 2000.0);  // over a quarter: 6000 / 3
}

// Half-yearly official in June, half-yearly scale: 12000 over 180 days, all in tranche A:
// IRCANTEC 336, CSG 816, net 10848; allowance 300. Taxable 10548, above 12000 / 2:
// 10 % less 620 (EluCste2S) = 434.80.
TEST_F(RetenueNouvelle, HalfYearlyOfficial) {
  m.gPeriodeEncours = "01/06/2024";
  s.sEluPeriodicite = "3";
  s.sEluBaremeImpot = "5";
  s.iNBJ_Presence_Total_Periode_Elus = 180;
  m.gRsCumuls = Cumuls({{"BRUT", 12000.0, 0.0}});
  s.RsPlafondIrcantecPeriodes =
      PeriodesIrcantec({{"20240101", "20240630", 12000.0, 23184.0, 12000.0, 180.0, 180.0}});
  Calcule();
  ExpectLigne(10548.0, 434.8);
  EXPECT_DOUBLE_EQ(Montant(1, "NetImposable"), 1808.0);  // 10848 / 6
  EXPECT_DOUBLE_EQ(Montant(1, "NetImposableRetenue"), 1758.0);
  EXPECT_DOUBLE_EQ(Montant(1, "ConstanteAbattement"), 620.0);
}

// Yearly official in December, yearly scale, no ceiling period: nothing in tranche A, the
// 24000 all in tranche B: IRCANTEC 6.95 % = 1668, CSG 1632, net 20700; allowance 600.
// Taxable 20100, above 12000: 10 % less 1240 (EluCste2) = 770.
TEST_F(RetenueNouvelle, YearlyOfficialWithAnEmptyCeilingTable) {
  m.gPeriodeEncours = "01/12/2024";
  s.sEluPeriodicite = "4";
  s.sEluBaremeImpot = "3";
  m.gRsCumuls = Cumuls({{"BRUT", 24000.0, 0.0}});
  s.RsPlafondIrcantecPeriodes = PeriodesIrcantec({});
  Calcule();
  ExpectLigne(20100.0, 770.0);
  EXPECT_DOUBLE_EQ(Montant(0, "Ircantec_A"), 0.0);
  EXPECT_DOUBLE_EQ(Montant(0, "Ircantec_B"), 139.0);  // 1668 / 12
  EXPECT_DOUBLE_EQ(Montant(1, "FraisEmploiMax"), 75.0);  // 900 / 12
}

TEST_F(RetenueNouvelle, YearlyOfficialOutsideDecemberGetsAZeroLine) {
  m.gPeriodeEncours = "01/11/2024";
  s.sEluPeriodicite = "4";
  Calcule();
  ExpectLigne(0.0, 0.0);
  ASSERT_EQ(NbLignes(r.rsRetenueALaSourceNouvelleMethode), 2u);
}

TEST_F(RetenueNouvelle, NotOptedGivesZerosAndAZeroDetail) {
  for (Int16 iChoix : {Int16(1), Int16(2)}) {
    s.iEluChoixImpot = iChoix;
    s.rsAutresIndemnites = Mandats({Conseiller()});
    Calcule();
    ExpectLigne(0.0, 0.0);
    ASSERT_EQ(NbLignes(r.rsRetenueALaSourceNouvelleMethode), 3u);
    EXPECT_DOUBLE_EQ(Montant(0, "RemunerationBrute"), 0.0);
    EXPECT_DOUBLE_EQ(Montant(0, "CsG"), 0.0);
    EXPECT_DOUBLE_EQ(Montant(1, "RemunerationBrute"), 500.0);
    EXPECT_TRUE(Detail(1, "URSSAF").EstNull());
    EXPECT_DOUBLE_EQ(Montant(1, "CotiPartRetrComplNet"), 0.0);
    EXPECT_DOUBLE_EQ(Montant(2, "TauxImposition"), 0.0);
    EXPECT_DOUBLE_EQ(Montant(2, "Impot"), 0.0);
    EXPECT_TRUE(Colonne(s.rsAutresIndemnites, 0, "MontantCotisations").EstNull());
  }
}

TEST_F(RetenueNouvelle, NotOptedReadsNoPayMonth) {
  s.iEluChoixImpot = 2;
  m.gPeriodeEncours = "";
  Calcule();
  ExpectLigne(0.0, 0.0);
  m.gPeriodeEncours = "pas une date";
  s.iEluChoixImpot = 0;
  EXPECT_THROW(Calcule(), Fault);
}

// The mayor's URSSAF: 2000 x 0.4 % + 2000 x 6.9 % = 146; net 1662, taxable 1612:
// 10 % less 100 = 61.20.
TEST_F(RetenueNouvelle, PrincipalRemunerationBearsUrssafForTheMayorModel) {
  s.sCodeModele = "ELUMAIRESP";
  m.gRsCumuls = Cumuls({{"BRUT", 2000.0, 0.0}, {"ASSURSTOT", 2000.0, 0.0},
                        {"ASSURSTRA", 2000.0, 0.0}});
  Calcule();
  ExpectLigne(1612.0, 61.2);
  EXPECT_DOUBLE_EQ(Montant(0, "URSSAF"), 146.0);
}

TEST_F(RetenueNouvelle, SingleMandateGetsTheFullAllowanceAboveItsNet) {
  // Net 18.08 of 20 gross; the whole 50 comes off: taxable below 0, no tax.
  m.gRsCumuls = Cumuls({{"BRUT", 20.0, 0.0}});
  Calcule();
  ExpectLigne(0.0, 0.0);
  EXPECT_DOUBLE_EQ(Montant(0, "FraisEmploi"), 50.0);
  EXPECT_DOUBLE_EQ(Montant(1, "NetImposableRetenue"), 0.0);
}

TEST_F(RetenueNouvelle, ZeroPrincipalGetsNoAllowance) {
  m.gRsCumuls = Cumuls({{"BRUT", 0.0, 0.0}});
  Calcule();
  ExpectLigne(0.0, 0.0);
  EXPECT_DOUBLE_EQ(Montant(0, "FraisEmploi"), 0.0);
}

TEST_F(RetenueNouvelle, CeilingPeriodAtItsCeilingIsUncapped) {
  // Total 3864 is not above 3864: the full 2000 in tranche A.
  s.RsPlafondIrcantecPeriodes =
      PeriodesIrcantec({{"20240301", "20240331", 3864.0, 3864.0, 1000.0, 30.0, 30.0}});
  Calcule();
  EXPECT_DOUBLE_EQ(Montant(0, "Ircantec_A"), 56.0);
  EXPECT_DOUBLE_EQ(Montant(0, "Ircantec_B"), 0.0);
}

TEST_F(RetenueNouvelle, NullOrTrueSalaryFlagSkipsTheRow) {
  s.rsAutresIndemnites = Mandats({Conseiller()});
  s.rsAutresIndemnites->MoveFirst();
  s.rsAutresIndemnites->SetField("Salaire", Value());
  Calcule();
  ASSERT_EQ(NbLignes(r.rsRetenueALaSourceNouvelleMethode), 2u);
  // Rows were there, so the principal's allowance is bounded by its net: 50 all the same.
  ExpectLigne(1758.0, 75.8);
}

TEST_F(RetenueNouvelle, MissingColumnIsTrappedAtTheEntry) {
  s.RsPlafondIrcantecPeriodes = retenue_test::Table({"DateDebutPeriode"}, {{"20240301"}});
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("RETENUE A LA SOURCE NOUVELLE METHODE", s, r));
  ASSERT_TRUE(r.rsRetenueALaSourceNouvelleMethode);
  EXPECT_EQ(NbLignes(r.rsRetenueALaSourceNouvelleMethode), 0u);
}

TEST_F(RetenueNouvelle, NoMandateTableIsAFault) {
  s.rsAutresIndemnites = nullptr;
  EXPECT_THROW(Calcule(), Fault);
}

TEST_F(RetenueNouvelle, AnyPeriodicityTextThatIsNotANumberIsMonthly) {
  s.sEluPeriodicite = "M";
  Calcule();
  ExpectLigne(1758.0, 75.8);
}

}  // namespace
}  // namespace orvalis
