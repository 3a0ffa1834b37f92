// Officials' withholding: the frame of a payment period and the tax scale.
#include <gtest/gtest.h>

#include "contributions/retenue_source_elus_test_util.h"

namespace orvalis {
namespace {

using retenue_test::RetenueElus;

class RetenueElusDonnees : public RetenueElus {
 protected:
  void Donnees(const char* sPeriodicite, const char* sBareme) {
    s.sEluPeriodicite = sPeriodicite;
    s.sEluBaremeImpot = sBareme;
    m.CalculRetenueSource_DonneesMandat(s, dFrais, dPlafond, dPeriodesAn, dMois, dCoef);
  }
  void Fixe(const char* sColonne, const Value& v) {
    m.gRsConstantesFixes->MoveFirst();
    m.gRsConstantesFixes->SetField(sColonne, v);
  }
  double dFrais = -1, dPlafond = -1, dPeriodesAn = -1, dMois = -1, dCoef = -1;
};

// 1000 x 6 x 10 % = 600 a year of expenses allowance; ceiling 3864 a month.
TEST_F(RetenueElusDonnees, MonthlyOfficial) {
  Donnees("1", "1");
  EXPECT_DOUBLE_EQ(dFrais, 50.0);  // 600 / 12
  EXPECT_DOUBLE_EQ(dPlafond, 3864.0);
  EXPECT_DOUBLE_EQ(dPeriodesAn, 12.0);
  EXPECT_DOUBLE_EQ(dMois, 1.0);
  EXPECT_DOUBLE_EQ(dCoef, 1.0);
}

TEST_F(RetenueElusDonnees, QuarterlyOfficial) {
  Donnees("2", "1");
  EXPECT_DOUBLE_EQ(dFrais, 150.0);     // 600 / 4
  EXPECT_DOUBLE_EQ(dPlafond, 11592.0);  // 3864 x 3
  EXPECT_DOUBLE_EQ(dPeriodesAn, 4.0);
  EXPECT_DOUBLE_EQ(dMois, 3.0);
  EXPECT_DOUBLE_EQ(dCoef, 3.0);  // a monthly constant over a quarter
}

TEST_F(RetenueElusDonnees, HalfYearlyOfficial) {
  Donnees("3", "2");
  EXPECT_DOUBLE_EQ(dFrais, 300.0);      // 600 / 2
  EXPECT_DOUBLE_EQ(dPlafond, 23184.0);  // 3864 x 6
  EXPECT_DOUBLE_EQ(dPeriodesAn, 2.0);
  EXPECT_DOUBLE_EQ(dMois, 6.0);
  EXPECT_DOUBLE_EQ(dCoef, 2.0);  // a quarterly constant over a half-year
}

TEST_F(RetenueElusDonnees, YearlyOfficial) {
  Donnees("4", "3");
  EXPECT_DOUBLE_EQ(dFrais, 600.0);
  EXPECT_DOUBLE_EQ(dPlafond, 46368.0);  // 3864 x 12
  EXPECT_DOUBLE_EQ(dPeriodesAn, 1.0);
  EXPECT_DOUBLE_EQ(dMois, 12.0);
  EXPECT_DOUBLE_EQ(dCoef, 1.0);
}

TEST_F(RetenueElusDonnees, EveryCellOfTheScaleCoefficientTable) {
  struct Cas {
    const char* sPeriodicite;
    const char* sBareme;
    double dCoef;
  };
  for (const Cas& c : {Cas{"1", "1", 1.0}, Cas{"1", "2", 1.0 / 3}, Cas{"1", "5", 1.0 / 6},
                       Cas{"1", "3", 1.0 / 12}, Cas{"2", "1", 3.0}, Cas{"2", "2", 1.0},
                       Cas{"2", "5", 0.5}, Cas{"2", "3", 0.25}, Cas{"3", "1", 6.0},
                       Cas{"3", "2", 2.0}, Cas{"3", "5", 1.0}, Cas{"3", "3", 0.5},
                       Cas{"4", "1", 12.0}, Cas{"4", "2", 4.0}, Cas{"4", "5", 2.0},
                       Cas{"4", "3", 1.0}}) {
    Donnees(c.sPeriodicite, c.sBareme);
    EXPECT_DOUBLE_EQ(dCoef, c.dCoef) << c.sPeriodicite << " / " << c.sBareme;
  }
}

TEST_F(RetenueElusDonnees, AnyOtherPeriodicityTextIsMonthly) {
  for (const char* sPeriodicite : {"", "5", "mensuel", " 2", "02"}) {
    Donnees(sPeriodicite, "5");
    EXPECT_DOUBLE_EQ(dFrais, 50.0) << sPeriodicite;
    EXPECT_DOUBLE_EQ(dPlafond, 3864.0);
    EXPECT_DOUBLE_EQ(dPeriodesAn, 12.0);
    EXPECT_DOUBLE_EQ(dMois, 1.0);
    EXPECT_DOUBLE_EQ(dCoef, 1.0 / 6);
  }
}

TEST_F(RetenueElusDonnees, ScaleCodeOutOfTheTableIsAFault) {
  EXPECT_THROW(Donnees("1", "4"), Fault);
  EXPECT_THROW(Donnees("2", "0"), Fault);
  EXPECT_THROW(Donnees("1", "-1"), Fault);
}

TEST_F(RetenueElusDonnees, ScaleCodeThatIsNotANumberIsAFault) {
  EXPECT_THROW(Donnees("1", ""), Fault);
  EXPECT_THROW(Donnees("1", "M"), Fault);
}

TEST_F(RetenueElusDonnees, NullStatutoryValuesAreFaults) {
  Fixe("PlafSecu", Value());
  EXPECT_THROW(Donnees("1", "1"), Fault);
  Fixe("PlafSecu", 3864.0);
  Fixe("EluTxFrais", Value());
  EXPECT_THROW(Donnees("1", "1"), Fault);
}

TEST_F(RetenueElusDonnees, NoIndexGivesNoAllowance) {
  s.dIndiceMajoreM = 0;
  Donnees("2", "1");
  EXPECT_DOUBLE_EQ(dFrais, 0.0);
  EXPECT_DOUBLE_EQ(dPlafond, 11592.0);
}

class RetenueElusBareme : public RetenueElusDonnees {
 protected:
  void Bareme(double dNet, double dPeriodesAnDonne = 12) {
    m.CalculRetenueSource_Bareme(s, dNet, dPeriodesAnDonne, dTaux, dBasse, dHaute, dConstante);
  }
  double dTaux = -1, dBasse = -1, dHaute = -1, dConstante = -1;
};

TEST_F(RetenueElusBareme, ZeroIsInTheFirstTranche) {
  Bareme(0);
  EXPECT_DOUBLE_EQ(dTaux, 0.0);
  EXPECT_DOUBLE_EQ(dBasse, 0.0);
  EXPECT_DOUBLE_EQ(dHaute, 1000.0);  // 12000 / 12
  EXPECT_DOUBLE_EQ(dConstante, 0.0);
}

TEST_F(RetenueElusBareme, NegativeNetIsInTheFirstTranche) {
  Bareme(-250.0);
  EXPECT_DOUBLE_EQ(dTaux, 0.0);
  EXPECT_DOUBLE_EQ(dHaute, 1000.0);
}

TEST_F(RetenueElusBareme, BoundReachedExactlyStaysInTheLowerTranche) {
  Bareme(1000.0);  // 12000 / 12, not above it
  EXPECT_DOUBLE_EQ(dTaux, 0.0);
  EXPECT_DOUBLE_EQ(dHaute, 1000.0);
  Bareme(1000.01);
  EXPECT_DOUBLE_EQ(dTaux, 0.1);
  EXPECT_DOUBLE_EQ(dBasse, 1000.0);
  EXPECT_DOUBLE_EQ(dHaute, 2000.0);
  EXPECT_DOUBLE_EQ(dConstante, 100.0);  // EluCste2M
}

TEST_F(RetenueElusBareme, EachTranche) {
  struct Cas {
    double dNet, dTaux, dBasse, dHaute, dConstante;
  };
  for (const Cas& c : {Cas{2500, 0.2, 2000, 3000, 300}, Cas{3500, 0.3, 3000, 4000, 600},
                       Cas{4500, 0.4, 4000, 5000, 1000}, Cas{10000, 0.45, 5000, 10000, 1250}}) {
    Bareme(c.dNet);
    EXPECT_DOUBLE_EQ(dTaux, c.dTaux) << c.dNet;
    EXPECT_DOUBLE_EQ(dBasse, c.dBasse) << c.dNet;
    EXPECT_DOUBLE_EQ(dHaute, c.dHaute) << c.dNet;
    EXPECT_DOUBLE_EQ(dConstante, c.dConstante) << c.dNet;
  }
}

TEST_F(RetenueElusBareme, TopTrancheLeavesTheUpperLimitUntouched) {
  dHaute = 123.0;
  Bareme(10000.01);  // above 120000 / 12
  EXPECT_DOUBLE_EQ(dTaux, 0.5);
  EXPECT_DOUBLE_EQ(dBasse, 10000.0);
  EXPECT_DOUBLE_EQ(dHaute, 123.0);
  EXPECT_DOUBLE_EQ(dConstante, 1500.0);  // EluCste7M
}

TEST_F(RetenueElusBareme, QuarterlyComparisonButMonthlyLimits) {
  s.sEluBaremeImpot = "2";
  Bareme(6000.0, 4);  // 24000 / 4: not above, tranche 2
  EXPECT_DOUBLE_EQ(dTaux, 0.1);
  EXPECT_DOUBLE_EQ(dBasse, 1000.0);  // 12000 / 12, not / 4
  EXPECT_DOUBLE_EQ(dHaute, 2000.0);
  EXPECT_DOUBLE_EQ(dConstante, 310.0);  // EluCste2T
  Bareme(6000.5, 4);
  EXPECT_DOUBLE_EQ(dTaux, 0.2);
  EXPECT_DOUBLE_EQ(dConstante, 910.0);  // EluCste3T
}

TEST_F(RetenueElusBareme, ConstantBySuffixOfTheScaleCode) {
  s.sEluBaremeImpot = "5";
  Bareme(2500);
  EXPECT_DOUBLE_EQ(dConstante, 1820.0);  // EluCste3S
  s.sEluBaremeImpot = "3";
  Bareme(2500);
  EXPECT_DOUBLE_EQ(dConstante, 3640.0);  // EluCste3
}

TEST_F(RetenueElusBareme, ScaleCodeOutOfTheListLeavesTheConstantAsGiven) {
  s.sEluBaremeImpot = "4";
  dConstante = 77.0;
  Bareme(2500);
  EXPECT_DOUBLE_EQ(dTaux, 0.2);
  EXPECT_DOUBLE_EQ(dConstante, 77.0);
  s.sEluBaremeImpot = "x";
  EXPECT_THROW(Bareme(2500), Fault);
}

TEST_F(RetenueElusBareme, NullBoundsRatesAndConstantsCountZero) {
  Fixe("EluBorne1", Value());
  Fixe("Elutaux2", Value());
  Fixe("EluCste2M", Value());
  Bareme(0.5);  // above a bound of 0: tranche 2
  EXPECT_DOUBLE_EQ(dTaux, 0.0);
  EXPECT_DOUBLE_EQ(dBasse, 0.0);
  EXPECT_DOUBLE_EQ(dHaute, 2000.0);
  EXPECT_DOUBLE_EQ(dConstante, 0.0);
}

TEST_F(RetenueElusBareme, NullTopRateIsAFault) {
  Fixe("Elutaux7", Value());
  Bareme(9000);  // the top rate is not read below the top tranche
  EXPECT_DOUBLE_EQ(dTaux, 0.45);
  EXPECT_THROW(Bareme(20000), Fault);
}

TEST_F(RetenueElusBareme, NoPeriodsInTheYearIsAFault) {
  EXPECT_THROW(Bareme(100, 0), Fault);
}

}  // namespace
}  // namespace orvalis
