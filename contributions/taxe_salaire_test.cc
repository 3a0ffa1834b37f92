// The payroll tax of 2024: limits 8985 and 17936 a year, 749 and 1495 a month
// (8985 / 12 = 748.75 and 17936 / 12 = 1494.67, rounded to the euro).
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

class TaxeSalaire : public PaieTaux {
 protected:
  TaxeSalaire() {
    m.gRsConstantesFixes = NouveauRecordset({"TxSalaire1", "TxSalaire2"});
    m.gRsConstantesFixes->AddNew();
    m.gRsConstantesFixes->SetField("TxSalaire1", 8985.0);
    m.gRsConstantesFixes->SetField("TxSalaire2", 17936.0);
    TauxSalarialConstante("TSSAL", 1.5, "T");
    TauxPatronalConstante("TSPAT", 4.25, "T");
    s.sBaseTaxeSalaire = "M";
  }
  // The base of rate 1 and of rate 2 for a pay B.
  double Base1(double B) {
    BaseAutreLigne(B);
    EXPECT_TRUE(Calcul("TAXE SUR SALAIRE TAUX 1"));
    return r.dBase;
  }
  double Base2(double B) {
    BaseAutreLigne(B);
    EXPECT_TRUE(Calcul("TAXE SUR SALAIRE TAUX 2"));
    return r.dBase;
  }
  double Annuel1(double K, double B) {
    s.sBaseTaxeSalaire = "A";
    s.dCumul_Brut = K;
    return Base1(B);
  }
  double Annuel2(double K, double B) {
    s.sBaseTaxeSalaire = "A";
    s.dCumul_Brut = K;
    return Base2(B);
  }
};

// A pay of 2000: rate 1 on 1495 - 749 = 746: employee 1.5 % = 11.19, employer 4.25 % =
// 31.705; rate 2 on 2000 - 1495 = 505.
TEST_F(TaxeSalaire, MonthlyPayAboveBothLimits) {
  EXPECT_DOUBLE_EQ(Base1(2000), 746.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 11.19);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1.5);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 31.705);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 4.25);
  EXPECT_DOUBLE_EQ(Base2(2000), 505.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 21.4625);  // 505 x 4.25 %
}

// Between the limits: 1200 - 749 = 451 at rate 1, nothing at rate 2.
TEST_F(TaxeSalaire, MonthlyPayBetweenTheLimits) {
  EXPECT_DOUBLE_EQ(Base1(1200), 451.0);
  EXPECT_EQ(Base2(1200), 0.0);
}

// Each limit reached exactly: 749 gives 0 at rate 1; 1495 gives 746 at rate 1 and 0 at 2.
TEST_F(TaxeSalaire, MonthlyLimitsReachedExactly) {
  EXPECT_EQ(Base1(749), 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
  EXPECT_DOUBLE_EQ(Base1(1495), 746.0);
  EXPECT_EQ(Base2(1495), 0.0);
  EXPECT_DOUBLE_EQ(Base2(1496), 1.0);
}

TEST_F(TaxeSalaire, MonthlyZeroAndNegativePay) {
  EXPECT_EQ(Base1(0), 0.0);
  EXPECT_EQ(Base2(0), 0.0);
  EXPECT_EQ(Base1(-100), 0.0);
  EXPECT_EQ(Base2(-100), 0.0);
}

// Rate 1 over the year: nothing once the year passed the second limit (at it exactly too),
// nothing while the year stays under the first.
TEST_F(TaxeSalaire, AnnualRate1OutsideTheBand) {
  EXPECT_EQ(Annuel1(18000, 2000), 0.0);
  EXPECT_EQ(Annuel1(17936, 2000), 0.0);
  EXPECT_EQ(Annuel1(6000, 2000), 0.0);  // 8000 < 8985
}

// The year crosses the second limit: 17936 - 17000 = 936. Inside the band: the whole pay.
// Crossing the first: 8000 + 2000 - 8985 = 1015; reaching it exactly: 0.
TEST_F(TaxeSalaire, AnnualRate1InTheBand) {
  EXPECT_DOUBLE_EQ(Annuel1(17000, 2000), 936.0);
  EXPECT_DOUBLE_EQ(Annuel1(10000, 2000), 2000.0);
  EXPECT_DOUBLE_EQ(Annuel1(8000, 2000), 1015.0);
  EXPECT_EQ(Annuel1(6985, 2000), 0.0);
  // Starting exactly at the first limit, the year is not above it: 8985 + 2000 - 8985.
  EXPECT_DOUBLE_EQ(Annuel1(8985, 2000), 2000.0);
}

// Rate 2 over the year: the whole pay above the second limit; the part above it when the
// month crosses it (17000 + 2000 - 17936 = 1064); 0 when it reaches it exactly or stays below.
TEST_F(TaxeSalaire, AnnualRate2) {
  EXPECT_DOUBLE_EQ(Annuel2(18000, 2000), 2000.0);
  EXPECT_DOUBLE_EQ(Annuel2(17000, 2000), 1064.0);
  EXPECT_EQ(Annuel2(15936, 2000), 0.0);
  EXPECT_EQ(Annuel2(10000, 2000), 0.0);
  EXPECT_EQ(Annuel2(17936, 0), 0.0);  // K at the limit is not above it
}

// Limits of the year rounded to the euro: 8985.4 -> 8985, 17936.5 -> 17937.
TEST_F(TaxeSalaire, AnnualLimitsRoundedToTheEuro) {
  m.gRsConstantesFixes->SetField("TxSalaire1", 8985.4);
  m.gRsConstantesFixes->SetField("TxSalaire2", 17936.5);
  EXPECT_DOUBLE_EQ(Annuel1(17000, 2000), 937.0);
  EXPECT_DOUBLE_EQ(Annuel2(17000, 2000), 1063.0);
}

// Null limits count as 0: every pay is above both.
TEST_F(TaxeSalaire, NullLimits) {
  m.gRsConstantesFixes = NouveauRecordset({"TxSalaire1", "TxSalaire2"});
  m.gRsConstantesFixes->AddNew();
  EXPECT_EQ(Base1(2000), 0.0);
  EXPECT_DOUBLE_EQ(Base2(2000), 2000.0);
}

// Another mode leaves the line's base as it stood: 123 x 1.5 % = 1.845.
TEST_F(TaxeSalaire, OtherModeKeepsTheLineBase) {
  s.sBaseTaxeSalaire = "";
  r.dBase = 123;
  BaseAutreLigne(2000);
  ASSERT_TRUE(Calcul("TAXE SUR SALAIRE TAUX 1"));
  EXPECT_DOUBLE_EQ(r.dBase, 123.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1.845);
}

// The employer's amount on the base weighted by its coefficient (746 x 0.5 = 373) with the
// rate before rounding (373 x 4.256 % = 15.87488), the employee's on 746 (11.19).
TEST_F(TaxeSalaire, EmployerAmountOnTheWeightedBase) {
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  TauxSalarialConstante("TSSAL", 1.5, "T");
  TauxPatronalConstante("TSPAT", 4.256, "T");
  r.sCoeffBase = "PART PATRONALE D'UNE RUBRIQUE";
  r.dMontantPatronalRub = 0.5;
  EXPECT_DOUBLE_EQ(Base1(2000), 373.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 11.19);
  EXPECT_NEAR(r.dMontantPatronal, 15.87488, 1e-9);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 4.26);
}

// A rate that is no percentage multiplies the base: 746 x 0.015 = 11.19; rounded 0.02.
TEST_F(TaxeSalaire, RateThatIsNoPercentage) {
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  TauxSalarialConstante("TSSAL", 0.015, "M");
  TauxPatronalConstante("TSPAT", 0.0425, "M");
  EXPECT_DOUBLE_EQ(Base1(2000), 746.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 11.19);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.02);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 31.705);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.04);
}

TEST_F(TaxeSalaire, RateZIsRecognisedAndDoesNothing) {
  r.dBase = 5;
  BaseAutreLigne(2000);
  ASSERT_TRUE(Calcul("TAXE SUR SALAIRE TAUX Z"));
  EXPECT_EQ(r.dBase, 5.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

}  // namespace
}  // namespace orvalis::taux_test
