// "RETENUE A LA SOURCE NOUVELLE METHODE" in the historic engine beside the current one, on
// the same official and sources: one ceiling ratio instead of the ceiling periods, the CSG
// coefficient "~TXCSGPROF", URSSAF on a mayor's principal remuneration alone, every row of
// the mandates, no employer's pension, the month test alone, a shorter detail table.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contributions/retenue_source_elus_test_util.h"
#include "orvalis/MethodeCalculG.h"

namespace orvalis {
namespace {

using retenue_test::Colonne;
using retenue_test::Cumuls;
using retenue_test::Mandats;
using retenue_test::NbLignes;

constexpr double kEps = 1e-9;
constexpr const char* kNom = "RETENUE A LA SOURCE NOUVELLE METHODE";

class RetenueNouvelleDeuxMoteurs : public retenue_test::RetenueElus {
 protected:
  void SetUp() override {
    RetenueElus::SetUp();
    Partage();
  }
  void Partage() {
    h.gPeriodeEncours = m.gPeriodeEncours;
    h.gRsConstantesFixes = m.gRsConstantesFixes;
    h.gRsConstantes = m.gRsConstantes;
    h.gRsTaux = m.gRsTaux;
    h.gRsCumuls = m.gRsCumuls;
  }
  // The mayor's allowance (Salaire true) and a councillor's, 1000 and 1500; each engine its
  // own table, as each writes into it.
  static RsRef DeuxMandats() {
    return Mandats({{true, "Indemnité de maire", "01/01/2024", "31/12/2026", 1000.0, 1000.0, 0.0,
                     0.0, 0.0},
                    {false, "Conseiller communautaire", "01/01/2024", "31/12/2026", 1500.0,
                     1500.0, 0.0, 0.0, 0.0}});
  }
  void Calcule(const RsRef& mandatsN = nullptr, const RsRef& mandatsH = nullptr) {
    sH = s;
    rH = r;
    if (mandatsN) s.rsAutresIndemnites = mandatsN;
    if (mandatsH) sH.rsAutresIndemnites = mandatsH;
    ASSERT_TRUE(m.Appel_Methode_Calcul_General(kNom, s, r, nullptr));
    ASSERT_TRUE(h.Appel_Methode_Calcul_General(kNom, sH, rH, nullptr));
  }
  double Detail(std::size_t ligne, const char* colonne) {
    return Colonne(rH.rsRetenueALaSourceNouvelleMethode, ligne, colonne).Nombre();
  }
  static void Ligne(const SalarieCalculRubrique& l, double dBase, double dImpot) {
    EXPECT_NEAR(l.dBase, dBase, kEps);
    EXPECT_EQ(l.dTauxSalarial, 0.0);
    EXPECT_NEAR(l.dMontantSalarial, dImpot, kEps);
    EXPECT_EQ(l.dTauxPatronal, 0.0);
    EXPECT_EQ(l.dMontantPatronal, 0.0);
  }

  MethodeCalculG h;
  VarCalculSalarie sH;
  SalarieCalculRubrique rH;
};

TEST_F(RetenueNouvelleDeuxMoteurs, DetailTableWithoutTheLaterColumns) {
  EXPECT_EQ(h.EnregistreDetailRetenueSource_NouvelleMethode()->Columns(),
            (std::vector<std::string>{
                "NumeroOrdre", "Designation", "RemunerationBrute", "Ircantec_A", "Ircantec_B",
                "URSSAF", "CsG", "RemunerationNette", "FraisEmploi", "NetImposable",
                "TotalFrais", "FraisEmploiMax", "FraisEmploiRetenue", "NetImposableRetenue",
                "TrancheImposition", "TrancheImposition2", "TauxImposition",
                "ConstanteAbattement", "RetenueALaSource", "Impot"}));
  EXPECT_EQ(h.EnregistreDetailRetenueSource_NouvelleMethode()->RecordCount(), 0);
  EXPECT_EQ(m.EnregistreDetailRetenueSource_NouvelleMethode()->Columns().size(), 25u);
}

// Gross 2000 alone, under the ceiling 3864: all in tranche A, IRCANTEC 2.8 % = 56.
// Historic: CSG 2000 x 0.9825 x 6.8 % = 133.62, net 1810.38, the full allowance 50,
// taxable 1760.38: 10 % of 1760 less 100 = 76. Current: CSG 136, net 1808, 75.80.
TEST_F(RetenueNouvelleDeuxMoteurs, PrincipalAloneTheCsgCoefficient) {
  Calcule();
  Ligne(r, 1758, 75.8);
  Ligne(rH, 1760, 76);
  ASSERT_EQ(NbLignes(rH.rsRetenueALaSourceNouvelleMethode), 2u);
  EXPECT_EQ(Colonne(rH.rsRetenueALaSourceNouvelleMethode, 0, "Designation"),
            Value("Rémunération principale"));
  EXPECT_NEAR(Detail(0, "RemunerationBrute"), 2000, kEps);
  EXPECT_NEAR(Detail(0, "Ircantec_A"), 56, kEps);
  EXPECT_NEAR(Detail(0, "Ircantec_B"), 0, kEps);
  EXPECT_NEAR(Detail(0, "URSSAF"), 0, kEps);
  EXPECT_NEAR(Detail(0, "CsG"), 133.62, kEps);
  EXPECT_NEAR(Detail(0, "RemunerationNette"), 1810.38, kEps);
  EXPECT_NEAR(Detail(0, "FraisEmploi"), 50, kEps);
  EXPECT_NEAR(Detail(1, "NetImposable"), 1810.38, kEps);
  EXPECT_NEAR(Detail(1, "TotalFrais"), 50, kEps);
  EXPECT_NEAR(Detail(1, "FraisEmploiMax"), 75, kEps);
  EXPECT_NEAR(Detail(1, "FraisEmploiRetenue"), 50, kEps);
  EXPECT_NEAR(Detail(1, "NetImposableRetenue"), 1760, kEps);
  EXPECT_NEAR(Detail(1, "TrancheImposition"), 1000, kEps);
  EXPECT_NEAR(Detail(1, "TrancheImposition2"), 2000, kEps);
  EXPECT_NEAR(Detail(1, "TauxImposition"), 10, kEps);
  EXPECT_NEAR(Detail(1, "ConstanteAbattement"), 100, kEps);
  EXPECT_NEAR(Detail(1, "Impot"), 76, kEps);
  EXPECT_NEAR(Detail(1, "RetenueALaSource"), 76, kEps);
}

// Principal 2000 and allowances 1000 + 1500: 4500 of reference, above 3864, so tranche A of
// X is 3864 X / 4500, unrounded. Principal: A 1717.3333, B 282.6667, IRCANTEC 48.085333 +
// 19.645333, CSG 133.62, net 1798.649333. Mayor (a row with Salaire true counts here): A
// 858.6667, B 141.3333, IRCANTEC 24.042667 + 9.822667, CSG 66.81, net 899.324667.
// Councillor: A 1288, B 212, IRCANTEC 36.064 + 14.734, CSG 100.215, net 1348.987. Expenses
// 50 x 3 = 150, kept 75. Taxable 2248.311667 + 1798.649333 - 75 = 3971.961: 30 % of 3971
// less 600 = 591.30.
// Current: the mayor's row skipped, the ceiling period under its ceiling: principal net
// 2000 - 56 - 136 = 1808, councillor 1500 - 42 - 102 = 1356, expenses 100 kept 75:
// 3089, 30 % less 600 = 326.70.
TEST_F(RetenueNouvelleDeuxMoteurs, OneCeilingRatioOverEveryRow) {
  const RsRef mandatsH = DeuxMandats();
  Calcule(DeuxMandats(), mandatsH);
  Ligne(r, 3089, 326.7);
  Ligne(rH, 3971, 591.3);

  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantPlafond").Nombre(), 858.0 + 2.0 / 3, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantCotisationIrcantecTA").Nombre(), 24.042666666666, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantCotisationIrcantecTB").Nombre(), 9.822666666667, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantCotisationCSG").Nombre(), 66.81, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantCotisations").Nombre(), 100.675333333333, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantRemunerationNette").Nombre(), 899.324666666667, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantTotalFraisInd").Nombre(), 50, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 1, "MontantPlafond").Nombre(), 1288, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 1, "MontantRemunerationNette").Nombre(), 1348.987, 1e-9);
  // The URSSAF columns of the rows are not touched.
  EXPECT_TRUE(Colonne(mandatsH, 1, "MontantCotisationUrssafPlaf").EstNull());
  EXPECT_TRUE(Colonne(mandatsH, 1, "MontantCotisationUrssafTot").EstNull());

  ASSERT_EQ(NbLignes(rH.rsRetenueALaSourceNouvelleMethode), 4u);
  EXPECT_NEAR(Detail(0, "Ircantec_A"), 48.085333333333, 1e-9);
  EXPECT_NEAR(Detail(0, "Ircantec_B"), 19.645333333333, 1e-9);
  EXPECT_NEAR(Detail(0, "RemunerationNette"), 1798.649333333333, 1e-9);
  EXPECT_EQ(Colonne(rH.rsRetenueALaSourceNouvelleMethode, 1, "Designation"),
            Value("Indemnité de maire"));
  EXPECT_EQ(Colonne(rH.rsRetenueALaSourceNouvelleMethode, 1, "NumeroOrdre"), Value(2));
  EXPECT_NEAR(Detail(1, "RemunerationBrute"), 1000, kEps);
  EXPECT_NEAR(Detail(1, "URSSAF"), 0, kEps);
  EXPECT_NEAR(Detail(1, "CsG"), 66.81, 1e-9);
  EXPECT_NEAR(Detail(1, "FraisEmploi"), 50, kEps);
  EXPECT_NEAR(Detail(2, "Ircantec_B"), 14.734, 1e-9);
  EXPECT_NEAR(Detail(3, "NetImposable"), 2248.311666666667 + 1798.649333333333, 1e-9);
  EXPECT_NEAR(Detail(3, "TotalFrais"), 150, kEps);
  EXPECT_NEAR(Detail(3, "FraisEmploiRetenue"), 75, kEps);
  EXPECT_NEAR(Detail(3, "NetImposableRetenue"), 3971, kEps);
  EXPECT_NEAR(Detail(3, "ConstanteAbattement"), 600, kEps);
}

// A reference of exactly the ceiling: everything in tranche A. 2000 + 1864 = 3864: the
// principal's IRCANTEC B is 0; with one cent more it is not.
TEST_F(RetenueNouvelleDeuxMoteurs, ReferenceExactlyAtTheCeiling) {
  const auto Un = [](double brute) {
    return Mandats({{false, "Adjoint", "01/01/2024", "31/12/2026", brute, brute, 0.0, 0.0, 0.0}});
  };
  Calcule(Un(1864), Un(1864));
  EXPECT_NEAR(Detail(0, "Ircantec_A"), 56, kEps);
  EXPECT_NEAR(Detail(0, "Ircantec_B"), 0, kEps);
  Calcule(Un(1864.01), Un(1864.01));
  // B of the principal: 2000 - 3864 x 2000 / 3864.01 = 0.005176..., at 6.95 %.
  EXPECT_NEAR(Detail(0, "Ircantec_B"), 6.95 * (2000 - 3864.0 * 2000 / 3864.01) / 100, 1e-12);
  EXPECT_GT(Detail(0, "Ircantec_B"), 0);
}

// URSSAF of a mayor: on the whole "ASSURSTOT" 2000 at 0.4 % = 8, under the ceiling the
// historic "ASSURSPLA" 1800 at 6.9 % = 124.2, the current "ASSURSTRA" 1500 = 103.5.
// Historic net 2000 - 56 - 133.62 - 132.2 = 1678.18, taxable 1628.18: 62.80. Current net
// 2000 - 56 - 136 - 111.5 = 1696.5, taxable 1646.5: 64.60.
TEST_F(RetenueNouvelleDeuxMoteurs, UrssafOfAMayorOnItsOwnTotals) {
  m.gRsCumuls = Cumuls({{"BRUT", 2000.0, 0.0},
                        {"BASERAPPEL", 0.0, 0.0},
                        {"ASSURSTOT", 2000.0, 0.0},
                        {"ASSURSPLA", 1800.0, 0.0},
                        {"ASSURSTRA", 1500.0, 0.0}});
  Partage();
  s.sCodeModele = "ELUMAIRESP";
  Calcule();
  Ligne(r, 1646, 64.6);
  Ligne(rH, 1628, 62.8);
  EXPECT_NEAR(Detail(0, "URSSAF"), 132.2, 1e-9);
  EXPECT_NEAR(Detail(0, "RemunerationNette"), 1678.18, 1e-9);
  // An allowance subject to URSSAF by the flag alone: the current engine takes it, the
  // historic one does not (back to 76 as with no URSSAF).
  s.sCodeModele = "ELUS";
  s.bIndemniteEluCotiseUrssaf = true;
  Calcule();
  Ligne(r, 1646, 64.6);
  Ligne(rH, 1760, 76);
}

// The employer's pension "FONCAR" and "CAREL" (200 in all) joins the current net: CSG
// (200 + 2000) x 6.8 % = 149.6, net 2200 - 56 - 149.6 = 1994.4, taxable 1944.4: 94.40.
// The historic engine does not read them: 76 as before.
TEST_F(RetenueNouvelleDeuxMoteurs, NoEmployersPensionHere) {
  m.gRsCumuls = Cumuls({{"BRUT", 2000.0, 0.0},
                        {"BASERAPPEL", 0.0, 0.0},
                        {"FONCAR", 0.0, 150.0},
                        {"CAREL", 0.0, 50.0}});
  Partage();
  Calcule();
  Ligne(r, 1944, 94.4);
  Ligne(rH, 1760, 76);
}

// A quarterly official whose mandate ends in February: the current engine calculates that
// month (a quarter: expenses 150, gross 2000 all in tranche B with no presence over the
// period, 2000 - 139 - 136 - 150 = 1575, first tranche at 0 %), the historic one waits for
// March: a zero line and a detail of zeros.
TEST_F(RetenueNouvelleDeuxMoteurs, MonthTestAlone) {
  m.gPeriodeEncours = "01/02/2024";
  Partage();
  s.sEluPeriodicite = "2";
  s.sDateFin = "15/02/2024";
  Calcule();
  Ligne(r, 1575, 0);
  Ligne(rH, 0, 0);
  ASSERT_EQ(NbLignes(rH.rsRetenueALaSourceNouvelleMethode), 2u);
  EXPECT_NEAR(Detail(0, "RemunerationBrute"), 0, kEps);
  EXPECT_NEAR(Detail(1, "TauxImposition"), 0, kEps);
  // In March the quarter ends: 2000 under the quarter's ceiling 11592, IRCANTEC A 56, CSG
  // 133.62, expenses 150: 1660.38, under 3000 (12000 / 4): the first tranche, 0.
  h.gPeriodeEncours = "01/03/2024";
  sH = s;
  ASSERT_TRUE(h.Appel_Methode_Calcul_General(kNom, sH, rH, nullptr));
  Ligne(rH, 1660, 0);
  EXPECT_NEAR(Detail(0, "FraisEmploi"), 50, kEps);  // per month: 150 / 3
  EXPECT_NEAR(Detail(0, "RemunerationNette"), 1810.38 / 3, 1e-9);
}

// An official who has not opted: a zero line on both.
TEST_F(RetenueNouvelleDeuxMoteurs, NotOptedGivesZero) {
  for (Int16 i : {Int16(1), Int16(2)}) {
    s.iEluChoixImpot = i;
    Calcule();
    Ligne(r, 0, 0);
    Ligne(rH, 0, 0);
    EXPECT_EQ(NbLignes(rH.rsRetenueALaSourceNouvelleMethode), 2u);
  }
}

// Nothing paid: a reference of 0, under the ceiling, so no division; no expenses on a net
// of 0. A gross of 20 alone: net 20 - 0.56 - 1.3362 = 18.1038, the full allowance 50 all the
// same, a taxable -31.8962 kept in the detail and 0 whole euros taxed.
TEST_F(RetenueNouvelleDeuxMoteurs, NothingOrLittlePaid) {
  m.gRsCumuls = Cumuls({{"BRUT", 0.0, 0.0}, {"BASERAPPEL", 0.0, 0.0}});
  Partage();
  Calcule();
  Ligne(rH, 0, 0);
  EXPECT_NEAR(Detail(0, "FraisEmploi"), 0, kEps);
  EXPECT_NEAR(Detail(1, "FraisEmploiRetenue"), 0, kEps);
  m.gRsCumuls = Cumuls({{"BRUT", 20.0, 0.0}, {"BASERAPPEL", 0.0, 0.0}});
  Partage();
  Calcule();
  Ligne(rH, 0, 0);
  EXPECT_NEAR(Detail(0, "RemunerationNette"), 18.1038, 1e-9);
  EXPECT_NEAR(Detail(0, "FraisEmploi"), 50, kEps);
  EXPECT_NEAR(Detail(1, "NetImposable"), 18.1038, 1e-9);
  EXPECT_NEAR(Detail(1, "NetImposableRetenue"), 0, kEps);
  EXPECT_NEAR(Detail(1, "TauxImposition"), 0, kEps);
}

// The public frame and scale are the current engine's numbers.
TEST_F(RetenueNouvelleDeuxMoteurs, FrameAndScaleAsTheCurrentEngine) {
  s.sEluPeriodicite = "3";
  s.sEluBaremeImpot = "2";
  double f = 0, p = 0, a = 0, mo = 0, c = 0;
  h.CalculRetenueSource_DonneesMandat(s, f, p, a, mo, c);
  EXPECT_DOUBLE_EQ(f, 300);    // 600 / 2
  EXPECT_DOUBLE_EQ(p, 23184);  // 3864 x 6
  EXPECT_DOUBLE_EQ(a, 2);
  EXPECT_DOUBLE_EQ(mo, 6);
  EXPECT_DOUBLE_EQ(c, 2);      // a half-year of a quarterly scale
  double t = 0, b = 0, hh = 0, k = 0;
  h.CalculRetenueSource_Bareme(s, 12000.01, 2, t, b, hh, k);  // above 24000 / 2
  EXPECT_DOUBLE_EQ(t, 0.2);
  EXPECT_DOUBLE_EQ(b, 2000);
  EXPECT_DOUBLE_EQ(hh, 3000);
  EXPECT_DOUBLE_EQ(k, 910);  // "EluCste3T"
}

// A mandate with a net of 0 or less gets no expenses (its column stays 0) and its net still
// counts. Principal 2000 under the ceiling: net 1810.38 as above, expenses 50 (its net is
// above them). A mandate of 0: net 0, taxable 1810.38 - 50 = 1760.38: 76 as alone. A mandate
// of -100 (a total of 1900, under the ceiling: all tranche A): IRCANTEC -2.8, CSG -100 x
// 0.9825 x 6.8 % = -6.681, net -90.519; taxable 1810.38 - 90.519 - 50 = 1669.861: 10 % of
// 1669 less 100 = 66.90.
TEST_F(RetenueNouvelleDeuxMoteurs, MandateWithNoNetGetsNoExpenses) {
  const auto Un = [](double brute) {
    return Mandats({{false, "Adjoint", "01/01/2024", "31/12/2026", brute, brute, 0.0, 0.0, 0.0}});
  };
  RsRef mandatsH = Un(0);
  Calcule(Un(0), mandatsH);
  Ligne(rH, 1760, 76);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantRemunerationNette").Nombre(), 0, kEps);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantTotalFraisInd").Nombre(), 0, kEps);
  ASSERT_EQ(NbLignes(rH.rsRetenueALaSourceNouvelleMethode), 3u);
  EXPECT_NEAR(Detail(1, "FraisEmploi"), 0, kEps);
  EXPECT_NEAR(Detail(2, "TotalFrais"), 50, kEps);
  mandatsH = Un(-100);
  Calcule(Un(-100), mandatsH);
  Ligne(rH, 1669, 66.9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantCotisationIrcantecTA").Nombre(), -2.8, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantCotisationCSG").Nombre(), -6.681, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantRemunerationNette").Nombre(), -90.519, 1e-9);
  EXPECT_NEAR(Colonne(mandatsH, 0, "MontantTotalFraisInd").Nombre(), 0, kEps);
  EXPECT_NEAR(Detail(2, "NetImposable"), 1810.38 - 90.519, 1e-9);
  EXPECT_NEAR(Detail(2, "TotalFrais"), 50, kEps);
}

}  // namespace
}  // namespace orvalis
