// Rate designations known on both sides, and what an unknown designation gives.
#include "generic/taux_test_util.h"
#include "orvalis/fault.h"

namespace orvalis::taux_test {
namespace {

using TauxCommuns = PaieTaux;

TEST_F(TauxCommuns, ConstanteParIdAvecSonType) {
  Constante("TXCOT", 7.85, 7, "T");
  Constante("FORFAIT", 150.0, 8, "M");
  EXPECT_DOUBLE_EQ(TauxS("UNE CONSTANTE", 7), 7.85);
  EXPECT_EQ(type, "T");
  // A percentage is handed back as it stands: no division by 100 here.
  EXPECT_DOUBLE_EQ(TauxP("CONSTANTE", 8), 150.0);
  EXPECT_EQ(type, "M");
}

TEST_F(TauxCommuns, ConstanteChaqueCoteLitSonId) {
  Constante("A", 1.5, 1, "T");
  Constante("B", 2.5, 2, "T");
  r.lIdValeurTauxPatronal = 2;
  EXPECT_DOUBLE_EQ(TauxS("UNE CONSTANTE", 1), 1.5);
  r.lIdValeurTauxSalarial = 1;
  EXPECT_DOUBLE_EQ(TauxP("UNE CONSTANTE", 2), 2.5);
}

TEST_F(TauxCommuns, ConstanteIdNulOuNegatifDonneZero) {
  Constante("ZERO", 9.0, 0, "T");
  Constante("NEG", 9.0, -1, "T");
  EXPECT_DOUBLE_EQ(TauxS("UNE CONSTANTE", 0), 0.0);
  EXPECT_EQ(type, "");
  EXPECT_DOUBLE_EQ(TauxP("CONSTANTE", -1), 0.0);
  EXPECT_EQ(type, "");
}

TEST_F(TauxCommuns, ConstanteValeurNulleDonneZero) {
  Constante("NUL", Value(), 4, "T");
  EXPECT_DOUBLE_EQ(TauxS("CONSTANTE", 4), 0.0);
}

TEST_F(TauxCommuns, VariableSansDateEffet) {
  Variable(vars, "TXPREV", 12.5, 3, Value(), "T");
  EXPECT_DOUBLE_EQ(TauxS("UNE VARIABLE SALARIE", 3), 12.5);
  EXPECT_EQ(type, "T");
  Variable(vars, "MTPREV", 30.0, 5, "", "M");
  EXPECT_DOUBLE_EQ(TauxP("VARIABLE", 5), 30.0);
  EXPECT_EQ(type, "M");
}

TEST_F(TauxCommuns, VariableDateEffetDuMoisOuApres) {
  Variable(vars, "V1", 4.0, 1, "20240301", "T");
  Variable(vars, "V2", 6.0, 2, "20240315", "T");
  EXPECT_DOUBLE_EQ(TauxS("VARIABLE", 1), 4.0);
  EXPECT_DOUBLE_EQ(TauxS("VARIABLE", 2), 6.0);
}

TEST_F(TauxCommuns, VariableDateEffetAvantLeMoisDonneZero) {
  Variable(vars, "V1", 4.0, 1, "20240229", "T");
  EXPECT_DOUBLE_EQ(TauxS("VARIABLE", 1), 0.0);
  EXPECT_EQ(type, "");
}

TEST_F(TauxCommuns, VariableTypeNulOuValeurNulle) {
  Variable(vars, "V1", 4.0, 1, Value(), Value());
  Variable(vars, "V2", Value(), 2, Value(), "T");
  EXPECT_DOUBLE_EQ(TauxS("VARIABLE", 1), 4.0);
  EXPECT_EQ(type, "");
  EXPECT_DOUBLE_EQ(TauxS("VARIABLE", 2), 0.0);
}

TEST_F(TauxCommuns, VariableAbsenteOuIdNul) {
  Variable(vars, "V1", 4.0, 1);
  EXPECT_DOUBLE_EQ(TauxS("UNE VARIABLE SALARIE", 9), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("UNE VARIABLE SALARIE", 0), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("UNE VARIABLE SALARIE", 1), 4.0);  // the filter was cleared
}

TEST_F(TauxCommuns, CumulParticulierPartSalarialeDesDeuxCotes) {
  Cumul("PRIMES", 345.67, 99.0, 12);
  EXPECT_DOUBLE_EQ(TauxS("UN CUMUL PARTICULIER", 12), 345.67);
  EXPECT_EQ(type, "M");
  EXPECT_DOUBLE_EQ(TauxP("UN CUMUL PARTICULIER", 12), 345.67);
  EXPECT_EQ(type, "M");
}

TEST_F(TauxCommuns, CumulParticulierSansLigneEstUneFaute) {
  Cumul("PRIMES", 345.67, 99.0, 12);
  EXPECT_THROW(TauxS("UN CUMUL PARTICULIER", 13), Fault);
  EXPECT_DOUBLE_EQ(TauxS("UN CUMUL PARTICULIER", 0), 0.0);
}

TEST_F(TauxCommuns, TauxDeLOrganismeParIdTaux) {
  Taux("URSVIEP", 6.9, 8.55, 4);
  Taux("URSMAL", 0.0, 13.0, 5);
  r.lIdTaux = 4;
  EXPECT_DOUBLE_EQ(TauxS("TAUX DE COTISATION DE L'ORGANISME"), 6.9);
  EXPECT_EQ(type, "T");
  EXPECT_DOUBLE_EQ(TauxP("TAUX DE COTISATION DE L'ORGANISME"), 8.55);
  EXPECT_EQ(type, "T");
  r.lIdTaux = 0;
  EXPECT_DOUBLE_EQ(TauxP("TAUX DE COTISATION DE L'ORGANISME"), 0.0);
  r.lIdTaux = 6;
  EXPECT_DOUBLE_EQ(TauxP("TAUX DE COTISATION DE L'ORGANISME"), 0.0);
}

TEST_F(TauxCommuns, TauxDeLOrganismeNonArrondi) {
  Taux("X", 7.123456, Value(), 4);
  r.lIdTaux = 4;
  EXPECT_DOUBLE_EQ(TauxS("TAUX DE COTISATION DE L'ORGANISME"), 7.123456);
  EXPECT_DOUBLE_EQ(TauxP("TAUX DE COTISATION DE L'ORGANISME"), 0.0);  // null
}

TEST_F(TauxCommuns, PartsDUneRubrique) {
  r.dMontantSalarialRub = 123.45;
  r.dMontantPatronalRub = 67.89;
  EXPECT_DOUBLE_EQ(TauxS("PART SALARIALE D'UNE RUBRIQUE"), 123.45);
  EXPECT_EQ(type, "");
  EXPECT_DOUBLE_EQ(TauxS("PART PATRONALE D'UNE RUBRIQUE"), 67.89);
  EXPECT_DOUBLE_EQ(TauxP("PART SALARIALE D'UNE RUBRIQUE"), 123.45);
  EXPECT_DOUBLE_EQ(TauxP("PART PATRONALE D'UNE RUBRIQUE"), 67.89);
  EXPECT_EQ(type, "");
}

TEST_F(TauxCommuns, DesignationInconnueDonneZeroEtTypeVide) {
  r.dMontantSalarialRub = 123.45;
  type = "T";
  EXPECT_DOUBLE_EQ(TauxS("TAUX INCONNU"), 0.0);
  EXPECT_EQ(type, "");
  type = "T";
  EXPECT_DOUBLE_EQ(TauxP(""), 0.0);
  EXPECT_EQ(type, "");
  // Exact comparison: letter case and a trailing blank count.
  EXPECT_DOUBLE_EQ(TauxS("part salariale d'une rubrique"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("PART SALARIALE D'UNE RUBRIQUE "), 0.0);
}

TEST_F(TauxCommuns, ChaqueCoteNeConnaitQueSesDesignations) {
  Cumul("HEURES", 151.67);
  s.iTauxAtUtilise = 1;
  Taux("URSAT1", 0.0, 1.5);
  EXPECT_DOUBLE_EQ(TauxP("NOMBRE HEURES TRAVAILLEES"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX ACCIDENT DE TRAVAIL"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("NOMBRE HEURES TRAVAILLEES"), 151.67);
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 1.5);
}

}  // namespace
}  // namespace orvalis::taux_test
