// Coefficients of a pay line: 1 unless a designation of the table gives another value.
#include "generic/base_test_util.h"

namespace orvalis::test {
namespace {

using CoefficientTest = PaieDeMars;

TEST_F(CoefficientTest, EmptyOrUnknownDesignationGivesOne) {
  EXPECT_EQ(Coefficient(""), 1);
  EXPECT_EQ(Coefficient("COEFFICIENT INCONNU"), 1);
  EXPECT_EQ(Coefficient("une constante", 7), 1);  // case counts
  EXPECT_EQ(Coefficient("COEFFICIENT DE TRAITEMENT "), 1);
}

TEST_F(CoefficientTest, UnknownDesignationReadsNoSource) {
  m.gRsConstantes = nullptr;
  m.gRsCumuls = nullptr;
  vars = nullptr;
  EXPECT_EQ(Coefficient("SALAIRE BRUT", 7), 1);
}

// ---- "UNE CONSTANTE", "CONSTANTE" -------------------------------------------------------

TEST_F(CoefficientTest, ConstantePercentageIsDividedBy100) {
  Constante("TXPRIME", 80.0, 7, "T");
  EXPECT_DOUBLE_EQ(Coefficient("UNE CONSTANTE", 7), 0.8);
}

TEST_F(CoefficientTest, ConstanteAmountIsTakenAsItStands) {
  Constante("NBPOINTS", 80.0, 7, "M");
  Constante("AUTRE", 12.5, 8, Value());
  EXPECT_DOUBLE_EQ(Coefficient("CONSTANTE", 7), 80.0);
  EXPECT_DOUBLE_EQ(Coefficient("CONSTANTE", 8), 12.5);
}

TEST_F(CoefficientTest, ConstanteIdZeroGivesOneNotZero) {
  Constante("ZERO", 0.0, 0);
  EXPECT_EQ(Coefficient("UNE CONSTANTE", 0), 1);
  EXPECT_EQ(Coefficient("UNE CONSTANTE", -1), 1);
}

TEST_F(CoefficientTest, ConstanteWithNoRowOrEmptySourceGivesOne) {
  EXPECT_EQ(Coefficient("UNE CONSTANTE", 7), 1);
  Constante("AUTRE", 50.0, 8);
  EXPECT_EQ(Coefficient("UNE CONSTANTE", 7), 1);
  EXPECT_EQ(m.gRsConstantes->RecordCount(), 1);  // filter cleared
}

TEST_F(CoefficientTest, ConstanteNullValueNullifiesTheBase) {
  Constante("NUL", Value(), 7, "T");
  Constante("NUL2", Value(), 8, "M");
  EXPECT_EQ(Coefficient("UNE CONSTANTE", 7), 0);
  EXPECT_EQ(Coefficient("UNE CONSTANTE", 8), 0);
}

TEST_F(CoefficientTest, ConstanteWithNoSourceIsAFault) {
  m.gRsConstantes = nullptr;
  EXPECT_THROW(Coefficient("UNE CONSTANTE", 7), Fault);
}

// ---- "UNE VARIABLE SALARIE", "VARIABLE" ------------------------------------------------

TEST_F(CoefficientTest, VariablePercentageAndAmount) {
  Variable("TXTEMPS", 80.0, 11, Value(), "T");
  Variable("NBH", 80.0, 12, Value(), "M");
  EXPECT_DOUBLE_EQ(Coefficient("UNE VARIABLE SALARIE", 11), 0.8);
  EXPECT_DOUBLE_EQ(Coefficient("VARIABLE", 12), 80.0);
}

TEST_F(CoefficientTest, VariableEffectiveDate) {
  Variable("A", 50.0, 11, "20240301", "T");
  Variable("B", 50.0, 12, "20240229", "T");
  Variable("C", 50.0, 13, "", "T");
  Variable("D", 50.0, 14, "20240415", "T");
  EXPECT_DOUBLE_EQ(Coefficient("VARIABLE", 11), 0.5);  // the first of the month
  EXPECT_EQ(Coefficient("VARIABLE", 12), 1);           // before the month: stays 1
  EXPECT_DOUBLE_EQ(Coefficient("VARIABLE", 13), 0.5);
  EXPECT_DOUBLE_EQ(Coefficient("VARIABLE", 14), 0.5);
}

TEST_F(CoefficientTest, VariableNullValueGivesZero) {
  Variable("NUL", Value(), 11, "20240301", "M");
  EXPECT_EQ(Coefficient("VARIABLE", 11), 0);
}

TEST_F(CoefficientTest, VariableWithNoRowGivesOneAndClearsTheFilter) {
  Variable("A", 50.0, 11);
  EXPECT_EQ(Coefficient("VARIABLE", 99), 1);
  EXPECT_EQ(vars->RecordCount(), 1);
  EXPECT_DOUBLE_EQ(m.dValeurVariableSansArrondi(vars, "A"), 50.0);
}

TEST_F(CoefficientTest, VariableIdZeroOrEmptySourceGivesOne) {
  Variable("A", 50.0, 0);
  EXPECT_EQ(Coefficient("VARIABLE", 0), 1);
  vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "DateEffet", "TauxMontant"});
  EXPECT_EQ(Coefficient("VARIABLE", 11), 1);
}

TEST_F(CoefficientTest, VariableWithNoSourceOrABadDateIsAFault) {
  Variable("A", 50.0, 11, "2024-03-01");
  EXPECT_THROW(Coefficient("VARIABLE", 11), Fault);
  vars = nullptr;
  EXPECT_THROW(Coefficient("VARIABLE", 11), Fault);
}

// ---- "UN CUMUL PARTICULIER" ---------------------------------------------------------------

TEST_F(CoefficientTest, CumulParticulierReadsTheEmployeeSideUnrounded) {
  Cumul("COEF", 0.12345, 9.0, 5);
  EXPECT_DOUBLE_EQ(Coefficient("UN CUMUL PARTICULIER", 5), 0.12345);
}

TEST_F(CoefficientTest, CumulParticulierNullGivesZero) {
  Cumul("COEF", Value(), 9.0, 5);
  EXPECT_EQ(Coefficient("UN CUMUL PARTICULIER", 5), 0);
}

TEST_F(CoefficientTest, CumulParticulierIdZeroOrEmptySourceGivesOne) {
  EXPECT_EQ(Coefficient("UN CUMUL PARTICULIER", 5), 1);
  Cumul("COEF", 0.5, 9.0, 0);
  EXPECT_EQ(Coefficient("UN CUMUL PARTICULIER", 0), 1);
}

TEST_F(CoefficientTest, CumulParticulierWithNoRowIsAFault) {
  Cumul("COEF", 0.5, 9.0, 5);
  EXPECT_THROW(Coefficient("UN CUMUL PARTICULIER", 6), Fault);
}

// ---- "COEFFICIENT DE TRAITEMENT" ----------------------------------------------------------

TEST_F(CoefficientTest, CoefficientDeTraitementFullMonthOnTheFormerIndex) {
  s.iNBJ_PresenceIATA = 30;
  s.dCoefficient_TraitementTA = 0.8;
  EXPECT_DOUBLE_EQ(Coefficient("COEFFICIENT DE TRAITEMENT"), 0.8);
}

TEST_F(CoefficientTest, CoefficientDeTraitementPairsNewTimeWithNewIndex) {
  s.iNBJ_PresenceINTA = 20;
  s.iNBJ_PresenceIATA = 10;
  s.dCoefficient_TraitementTN = 0.6;
  s.dCoefficient_TraitementTA = 0.9;
  // 20 x 0.6 / 30 + 10 x 0.9 / 30
  EXPECT_NEAR(Coefficient("COEFFICIENT DE TRAITEMENT"), 0.7, 1e-12);
}

TEST_F(CoefficientTest, CoefficientDeTraitementAllFourQuadrants) {
  s.iNBJ_PresenceIATA = 5;
  s.iNBJ_PresenceIATN = 10;
  s.iNBJ_PresenceINTA = 6;
  s.iNBJ_PresenceINTN = 9;
  s.dCoefficient_TraitementTA = 0.9;
  s.dCoefficient_TraitementTN = 0.6;
  // 15 x 0.6 / 30 + 15 x 0.9 / 30
  EXPECT_NEAR(Coefficient("COEFFICIENT DE TRAITEMENT"), 0.75, 1e-12);
}

TEST_F(CoefficientTest, CoefficientDeTraitementWithNoDaysIsZero) {
  s.dCoefficient_TraitementTA = 1;
  s.dCoefficient_TraitementTN = 1;
  EXPECT_EQ(Coefficient("COEFFICIENT DE TRAITEMENT"), 0);
}

TEST_F(CoefficientTest, CoefficientDeTraitementDaysAreSummedIn16Bits) {
  s.iNBJ_PresenceINTA = 32767;
  s.iNBJ_PresenceINTN = 1;
  EXPECT_THROW(Coefficient("COEFFICIENT DE TRAITEMENT"), Fault);
}

// ---- Parts of another line ---------------------------------------------------------------

TEST_F(CoefficientTest, PartsOfAnotherLine) {
  r.dMontantSalarialRub = -12.34;
  r.dMontantPatronalRub = 56.78;
  EXPECT_DOUBLE_EQ(Coefficient("PART SALARIALE D'UNE RUBRIQUE"), -12.34);
  EXPECT_DOUBLE_EQ(Coefficient("PART PATRONALE D'UNE RUBRIQUE"), 56.78);
}

TEST_F(CoefficientTest, TheIdAndDesignationComeFromTheArgumentsNotTheLine) {
  Constante("A", 40.0, 7, "T");
  Constante("B", 60.0, 8, "T");
  r.lIdCoeffBase = 8;
  r.sCoeffBase = "COEFFICIENT DE TRAITEMENT";
  EXPECT_DOUBLE_EQ(m.RechercheValeurCoefficient(s, vars, 7, "UNE CONSTANTE", r), 0.4);
}

}  // namespace
}  // namespace orvalis::test
