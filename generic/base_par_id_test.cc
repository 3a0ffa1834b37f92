// Bases named by an id: a constant, an employee variable with its effective date, a
// particular total.
#include "generic/base_test_util.h"

namespace orvalis::test {
namespace {

using BaseParIdTest = PaieDeMars;

// ---- "UNE CONSTANTE", "CONSTANTE" -------------------------------------------------------

TEST_F(BaseParIdTest, ConstanteByIdGivesItsValue) {
  Constante("TXINDCP", 10.0, 3);
  Constante("FORFAIT", 123.45, 7);
  EXPECT_DOUBLE_EQ(Base("UNE CONSTANTE", 7), 123.45);
  EXPECT_DOUBLE_EQ(Base("CONSTANTE", 3), 10.0);
}

TEST_F(BaseParIdTest, ConstanteIdZeroOrNegativeGivesZeroWithoutReading) {
  Constante("ZERO", 55.0, 0);
  EXPECT_EQ(Base("UNE CONSTANTE", 0), 0);
  EXPECT_EQ(Base("UNE CONSTANTE", -4), 0);
  m.gRsConstantes = nullptr;  // not read at all
  EXPECT_EQ(Base("CONSTANTE", 0), 0);
}

TEST_F(BaseParIdTest, ConstanteWithNoRowOrEmptySourceGivesZero) {
  EXPECT_EQ(Base("UNE CONSTANTE", 7), 0);
  Constante("AUTRE", 12.0, 8);
  EXPECT_EQ(Base("UNE CONSTANTE", 7), 0);
  EXPECT_EQ(m.gRsConstantes->RecordCount(), 1);  // filter cleared
}

TEST_F(BaseParIdTest, ConstanteNullValueGivesZero) {
  Constante("NUL", Value(), 7);
  EXPECT_EQ(Base("UNE CONSTANTE", 7), 0);
}

TEST_F(BaseParIdTest, ConstanteIsNotRoundedAndTauxMontantPlaysNoPart) {
  Constante("TAUX", 80.125, 7, "T");
  EXPECT_DOUBLE_EQ(Base("UNE CONSTANTE", 7), 80.125);
}

TEST_F(BaseParIdTest, ConstanteWithNoSourceIsAFault) {
  m.gRsConstantes = nullptr;
  EXPECT_THROW(Base("UNE CONSTANTE", 7), Fault);
}

// ---- "UNE VARIABLE SALARIE", "VARIABLE" --------------------------------------------------

TEST_F(BaseParIdTest, VariableWithoutEffectiveDateGivesItsValue) {
  Variable("PRIME", 250.75, 11);
  Variable("AUTRE", 99.0, 12, "");
  EXPECT_DOUBLE_EQ(Base("UNE VARIABLE SALARIE", 11), 250.75);
  EXPECT_DOUBLE_EQ(Base("VARIABLE", 12), 99.0);
}

TEST_F(BaseParIdTest, VariableDatedTheFirstOfTheMonthCounts) {
  Variable("PRIME", 250.75, 11, "20240301");
  EXPECT_DOUBLE_EQ(Base("UNE VARIABLE SALARIE", 11), 250.75);
}

TEST_F(BaseParIdTest, VariableDatedTheDayBeforeTheMonthGivesZero) {
  Variable("PRIME", 250.75, 11, "20240229");
  EXPECT_EQ(Base("UNE VARIABLE SALARIE", 11), 0);
}

TEST_F(BaseParIdTest, VariableDatedLaterInTheMonthOrAfterCounts) {
  Variable("PRIME", 250.75, 11, "20240331");
  Variable("PRIME2", 10.5, 12, "20250101");
  EXPECT_DOUBLE_EQ(Base("VARIABLE", 11), 250.75);
  EXPECT_DOUBLE_EQ(Base("VARIABLE", 12), 10.5);
}

TEST_F(BaseParIdTest, VariableDateColumnIsFoundWhateverItsCase) {
  vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "DateEffet"});
  vars->AddNew();
  vars->SetField("IdVariable", 11);
  vars->SetField("Valeur", 40.0);
  vars->SetField("DateEffet", "20240115");
  EXPECT_EQ(Base("VARIABLE", 11), 0);
}

TEST_F(BaseParIdTest, VariableNullValueGivesZero) {
  Variable("PRIME", Value(), 11);
  EXPECT_EQ(Base("VARIABLE", 11), 0);
}

TEST_F(BaseParIdTest, VariableWithNoRowGivesZeroAndClearsTheFilter) {
  Variable("PRIME", 250.75, 11);
  EXPECT_EQ(Base("VARIABLE", 99), 0);
  EXPECT_EQ(vars->RecordCount(), 1);
}

TEST_F(BaseParIdTest, VariableIdZeroOrEmptySourceGivesZero) {
  Variable("PRIME", 250.75, 0);
  EXPECT_EQ(Base("VARIABLE", 0), 0);
  vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "Dateeffet"});
  EXPECT_EQ(Base("VARIABLE", 11), 0);
}

TEST_F(BaseParIdTest, VariableWithNoSourceIsAFault) {
  vars = nullptr;
  EXPECT_THROW(Base("UNE VARIABLE SALARIE", 11), Fault);
}

TEST_F(BaseParIdTest, VariableEffectiveDateThatIsNotADateIsAFault) {
  Variable("PRIME", 250.75, 11, "2024031");
  EXPECT_THROW(Base("VARIABLE", 11), Fault);
}

// ---- "UN CUMUL PARTICULIER" ---------------------------------------------------------------

TEST_F(BaseParIdTest, CumulParticulierReadsTheEmployeeSideUnrounded) {
  Cumul("BRUT", 2000.0, 3000.0, 5);
  Cumul("PRIME", 1234.567, 99.0, 12);
  EXPECT_DOUBLE_EQ(Base("UN CUMUL PARTICULIER", 12), 1234.567);
}

TEST_F(BaseParIdTest, CumulParticulierNullGivesZero) {
  Cumul("PRIME", Value(), 99.0, 12);
  EXPECT_EQ(Base("UN CUMUL PARTICULIER", 12), 0);
}

TEST_F(BaseParIdTest, CumulParticulierIdZeroOrEmptySourceGivesZero) {
  EXPECT_EQ(Base("UN CUMUL PARTICULIER", 12), 0);
  Cumul("PRIME", 10.0, 0.0, 0);
  EXPECT_EQ(Base("UN CUMUL PARTICULIER", 0), 0);
}

TEST_F(BaseParIdTest, CumulParticulierWithNoRowIsAFault) {
  Cumul("PRIME", 10.0, 0.0, 12);
  EXPECT_THROW(Base("UN CUMUL PARTICULIER", 13), Fault);
}

TEST_F(BaseParIdTest, CumulParticulierWithNoSourceIsAFault) {
  m.gRsCumuls = nullptr;
  EXPECT_THROW(Base("UN CUMUL PARTICULIER", 12), Fault);
}

}  // namespace
}  // namespace orvalis::test
