// The narrower resolvers of the historic engine beside the current ones, on the same
// record: what the historic engine does not know gives what an unknown designation gives.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

using ResolveursHistoriquesTest = DeuxMoteurs;

TEST_F(ResolveursHistoriquesTest, BaseUnknownHereGivesZero) {
  Cumul("SUPPFAM", 120.0);
  Cumul("BRUT", 2000.0);
  r.sValeurBase = "SUPPLEMENT FAMILIAL";
  EXPECT_DOUBLE_EQ(n.RechercheValeurBase(s, vars, r), 120.0);
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), 0.0);
  r.sValeurBase = "SALAIRE BRUT";  // known to both
  EXPECT_DOUBLE_EQ(n.RechercheValeurBase(s, vars, r), 2000.0);
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), 2000.0);
}

TEST_F(ResolveursHistoriquesTest, ParticularTotalFoundByCodeNotById) {
  Cumul("PRIMEX", 55.0, 0, 7);
  Cumul("AUTRE", 99.0, 0, 8);
  r.sValeurBase = "UN CUMUL PARTICULIER";
  r.lIdValeurBase = 7;
  r.sCodeRubrique = "AUTRE";
  EXPECT_DOUBLE_EQ(n.RechercheValeurBase(s, vars, r), 55.0);  // Idcumul = 7
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), 99.0);  // CodeCumul = 'AUTRE'
  r.sCodeRubrique = "ABSENT";
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), 0.0);
}

TEST_F(ResolveursHistoriquesTest, CoefficientUnknownHereGivesOne) {
  r.dMontantSalarialRub = 12.5;
  EXPECT_DOUBLE_EQ(n.RechercheValeurCoefficient(s, vars, 0, "PART SALARIALE D'UNE RUBRIQUE", r),
                   12.5);
  EXPECT_DOUBLE_EQ(h.RechercheValeurCoefficient(s, vars, 0, "PART SALARIALE D'UNE RUBRIQUE", r),
                   1.0);
  Cumul("X", 4.0, 0, 3);
  EXPECT_DOUBLE_EQ(n.RechercheValeurCoefficient(s, vars, 3, "UN CUMUL PARTICULIER", r), 4.0);
  EXPECT_DOUBLE_EQ(h.RechercheValeurCoefficient(s, vars, 3, "UN CUMUL PARTICULIER", r), 1.0);
}

TEST_F(ResolveursHistoriquesTest, EmployeeRateUnknownHereGivesZeroAndNoKind) {
  Cumul("HEURES", 151.67);
  r.sValeurTauxSalarial = "NOMBRE HEURES TRAVAILLEES";
  std::string sType = "x";
  EXPECT_DOUBLE_EQ(n.RechercheValeurTauxSalarial(s, vars, vars, r, sType, nullptr), 151.67);
  sType = "x";
  EXPECT_DOUBLE_EQ(h.RechercheValeurTauxSalarial(s, vars, vars, r, sType, nullptr), 0.0);
  EXPECT_EQ(sType, "");
  Constante("TXX", 6.9, 5, "T");  // a known designation
  r.sValeurTauxSalarial = "UNE CONSTANTE";
  r.lIdValeurTauxSalarial = 5;
  EXPECT_DOUBLE_EQ(h.RechercheValeurTauxSalarial(s, vars, vars, r, sType, nullptr), 6.9);
  EXPECT_EQ(sType, "T");
}

TEST_F(ResolveursHistoriquesTest, WorkAccidentRateIsTheRecordsFirstRate) {
  Taux("URSAT1", 0, 1.6);
  Taux("URSAT2", 0, 1.9);
  s.iTauxAtUtilise = 2;
  s.dTauxAt1 = 2.3;
  r.sValeurTauxPatronal = "TAUX ACCIDENT DE TRAVAIL";
  std::string sType;
  EXPECT_DOUBLE_EQ(n.RechercheValeurTauxPatronal(s, vars, r, sType, ""), 1.9);
  sType.clear();
  EXPECT_DOUBLE_EQ(h.RechercheValeurTauxPatronal(s, vars, r, sType), 2.3);
  EXPECT_EQ(sType, "T");
  s.iTauxAtUtilise = 0;  // none in use: the current engine gives 0, the historic one dTauxAt1
  EXPECT_DOUBLE_EQ(n.RechercheValeurTauxPatronal(s, vars, r, sType, ""), 0.0);
  EXPECT_DOUBLE_EQ(h.RechercheValeurTauxPatronal(s, vars, r, sType), 2.3);
}

TEST_F(ResolveursHistoriquesTest, EmployerRateOfAnotherLineUnknownHere) {
  r.dMontantPatronalRub = 33.0;
  r.sValeurTauxPatronal = "PART PATRONALE D'UNE RUBRIQUE";
  std::string sType;
  EXPECT_DOUBLE_EQ(n.RechercheValeurTauxPatronal(s, vars, r, sType, ""), 33.0);
  EXPECT_DOUBLE_EQ(h.RechercheValeurTauxPatronal(s, vars, r, sType), 0.0);
}

TEST_F(ResolveursHistoriquesTest, TotalOfLastMonthByCodeAndAlwaysEmployeeSide) {
  paie_test::AjouteHistorique(n.gRsCumulsHistoriqueSal, 42, "202402", "BRUT", 1800.0, 700.0);
  double d = 0;
  EXPECT_DOUBLE_EQ(n.dRechercheValeurCumulHistorique(42, "01/03/2024", "BRUT", d, "", "P", 0),
                   700.0);
  EXPECT_DOUBLE_EQ(h.dRechercheValeurCumulHistorique(42, "01/03/2024", "BRUT", d, "", "P", 0),
                   1800.0);
  // An id of total: the current engine looks for IdCumul = 5 and finds none.
  EXPECT_DOUBLE_EQ(n.dRechercheValeurCumulHistorique(42, "01/03/2024", "BRUT", d, "", "S", 5),
                   0.0);
  EXPECT_DOUBLE_EQ(h.dRechercheValeurCumulHistorique(42, "01/03/2024", "BRUT", d, "", "S", 5),
                   1800.0);
  EXPECT_DOUBLE_EQ(d, 1800.0);
}

// "BASE x TAUX": base 2000, employee rate 10 % -> 200; employer 2000 x 1.6 % = 32 here,
// 2000 x 2.3 % = 46 with dTauxAt1 in the historic engine.
TEST_F(ResolveursHistoriquesTest, BaseTimesRateSideBySide) {
  Cumul("BRUT", 2000.0);
  Constante("TXS", 10.0, 5, "T");
  Taux("URSAT1", 0, 1.6);
  s.iTauxAtUtilise = 1;
  s.dTauxAt1 = 2.3;
  r.sValeurBase = "SALAIRE BRUT";
  r.sValeurTauxSalarial = "UNE CONSTANTE";
  r.lIdValeurTauxSalarial = 5;
  r.sValeurTauxPatronal = "TAUX ACCIDENT DE TRAVAIL";
  Calcule("BASE x TAUX");
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 200.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 200.0);
  EXPECT_DOUBLE_EQ(rN.dMontantPatronal, 32.0);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 46.0);
  EXPECT_DOUBLE_EQ(rH.dTauxPatronal, 2.3);
}

// "MONTANT FIXE" with neither amount pays its base: 120 here, nothing where the base is
// unknown.
TEST_F(ResolveursHistoriquesTest, FixedAmountOnABaseUnknownHere) {
  Cumul("SUPPFAM", 120.0);
  r.sValeurBase = "SUPPLEMENT FAMILIAL";
  Calcule("MONTANT FIXE");
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 120.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(rH.dBase, 0.0);
}

// 12 days of a base of 1500 over 30: 600, deducted: -600; the same in both engines.
TEST_F(ResolveursHistoriquesTest, ProrataOfThirtyDaysTheSame) {
  Cumul("BRUT", 1500.0);
  Constante("JOURS", 12.0, 4);
  r.sValeurBase = "SALAIRE BRUT";
  r.sValeurTauxSalarial = "UNE CONSTANTE";
  r.lIdValeurTauxSalarial = 4;
  Calcule("BASE PRORATISEE SELON NB JOURS / 30 (A DEDUIRE)");
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -600.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -600.0);
}

// A name of the current engine that this one does not know leaves the line as it came.
TEST_F(ResolveursHistoriquesTest, NameOfTheCurrentEngineOnlyLeavesTheLine) {
  r.dBase = 3;
  r.dMontantSalarial = 7.77;
  for (const char* nom : {"CONGES PAYES", "EXONERATION ZRR", "BASE / TAUX", "TRAITEMENT HORAIRE MOIS"}) {
    SalarieCalculRubrique ligne = r;
    VarCalculSalarie salarie = s;
    EXPECT_TRUE(h.Appel_Methode_Calcul_General(nom, salarie, ligne, vars, vars, nullptr)) << nom;
    EXPECT_DOUBLE_EQ(ligne.dBase, 3.0) << nom;
    EXPECT_DOUBLE_EQ(ligne.dMontantSalarial, 7.77) << nom;
  }
}

// "SALAIRE IMPOSABLE": "BRUT" 2500 less "TOTDEDUCT" 300 = 2200, less "ASSREDHS" 100 = 2100
// when the reduction on overtime applies; employee side only (the employer's parts 9000 are
// not read). The same in both engines; the abated base, with the assessment of the tax at
// source, is the current engine's alone.
TEST_F(ResolveursHistoriquesTest, TaxableSalaryWithoutTheAssessmentBase) {
  Cumul("BRUT", 2500.0, 9000.0);
  Cumul("TOTDEDUCT", 300.0, 9000.0);
  Cumul("ASSREDHS", 100.0, 9000.0);
  Cumul("NETIMPOS", 1500.13);
  r.sValeurBase = "SALAIRE IMPOSABLE";
  EXPECT_DOUBLE_EQ(n.RechercheValeurBase(s, vars, r), 2200.0);
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), 2200.0);
  s.bCalculReductionSurHS = true;
  EXPECT_DOUBLE_EQ(n.RechercheValeurBase(s, vars, r), 2100.0);
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), 2100.0);
  r.sValeurBase = "SALAIRE IMPOSABLE ABATTU";
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), 0.0);
}

// Deductions above the gross give a negative base, kept as it is: 100 - 300 - 100 = -300.
TEST_F(ResolveursHistoriquesTest, TaxableSalaryMayBeNegative) {
  Cumul("BRUT", 100.0);
  Cumul("TOTDEDUCT", 300.0);
  Cumul("ASSREDHS", 100.0);
  s.bCalculReductionSurHS = true;
  r.sValeurBase = "SALAIRE IMPOSABLE";
  EXPECT_DOUBLE_EQ(h.RechercheValeurBase(s, vars, r), -300.0);
  EXPECT_DOUBLE_EQ(n.RechercheValeurBase(s, vars, r), -300.0);
}

}  // namespace
}  // namespace orvalis::historique_test
