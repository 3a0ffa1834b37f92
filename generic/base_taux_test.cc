// "BASE x TAUX" and its detachment variant, "BASE / TAUX", "BASE x TAUX (CHOIX)" and
// "BASE x POURCENTAGE SMIC", through the calculation entry.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

// A line whose base is the employee amount of another line (1000), with no coefficient.
class LigneGenerique : public PaieTaux {
 protected:
  LigneGenerique() {
    BaseAutreLigne(1000);
    r.lIdTaux = 4;
  }
  // Both rates from the fund's rate row, as percentages.
  void TauxOrganisme(const Value& sal, const Value& pat) {
    Taux("COT", sal, pat, 4);
    r.sValeurTauxSalarial = "TAUX DE COTISATION DE L'ORGANISME";
    r.sValeurTauxPatronal = "TAUX DE COTISATION DE L'ORGANISME";
  }
  // A rate from a constant, of the given kind, on each side.
  void TauxConstantes(double sal, double pat, const char* kind) {
    TauxSalarialConstante("S", sal, kind);
    TauxPatronalConstante("P", pat, kind);
  }
};

using BaseTaux = LigneGenerique;

TEST_F(BaseTaux, PourcentageSurLaBase) {
  TauxOrganisme(7.85, 30.65);
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dBase, 1000.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 7.85);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 78.5);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 30.65);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 306.5);
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 1.0);
}

TEST_F(BaseTaux, FacteurSurLaBase) {
  TauxConstantes(7.85, 0.5, "M");
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 7850.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 500.0);
}

TEST_F(BaseTaux, MontantSurLeTauxAvantSonArrondi) {
  TauxOrganisme(7.123456, -2.000049);
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_NEAR(r.dMontantSalarial, 71.23456, 1e-12);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 7.1235);
  EXPECT_NEAR(r.dMontantPatronal, -20.00049, 1e-12);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, -2.0);
}

TEST_F(BaseTaux, CoefficientDeLaBase) {
  TauxOrganisme(10.0, 20.0);
  r.sCoeffBase = "PART PATRONALE D'UNE RUBRIQUE";
  r.dMontantPatronalRub = 0.5;
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dBase, 500.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 50.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 100.0);
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 0.5);
}

TEST_F(BaseTaux, TauxInconnusDonnentZero) {
  r.sValeurTauxSalarial = "TAUX INCONNU";
  r.dMontantSalarial = 12;
  r.dMontantPatronal = 34;
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dBase, 1000.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

class BaseTauxDetachement : public LigneGenerique {
 protected:
  BaseTauxDetachement() {
    r.dMontantSalarialRub = 3000;
    r.sCoeffBase = "PART PATRONALE D'UNE RUBRIQUE";  // not consulted by the detachment
    r.dMontantPatronalRub = 0.5;
    s.iNBJ_DETACHEMENT = 10;
    s.iNBJ_DETACHEMENT2 = 20;
    TauxOrganisme(10.0, 30.0);
  }
};

TEST_F(BaseTauxDetachement, PartDuPremierDetachement) {
  for (const char* code : {"CNRDETACH", "CNRBONIFDE", "CIVSURCOTP", "CIVSURBONP"}) {
    r.sCodeRubrique = code;
    ASSERT_TRUE(Calcul("BASE x TAUX"));
    EXPECT_NEAR(r.dBase, 1000.0, 1e-9) << code;  // 3000 x 10 / 30
    EXPECT_NEAR(r.dMontantSalarial, 100.0, 1e-9) << code;
    EXPECT_NEAR(r.dMontantPatronal, 300.0, 1e-9) << code;
    EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 10.0 / 30) << code;
  }
}

TEST_F(BaseTauxDetachement, PartDuSecondDetachement) {
  for (const char* code : {"CNRDETC20", "CNRDETCB20", "CIVSURP20", "CIVSURBP20"}) {
    r.sCodeRubrique = code;
    ASSERT_TRUE(Calcul("BASE x TAUX"));
    EXPECT_NEAR(r.dBase, 2000.0, 1e-9) << code;  // 3000 x 20 / 30
    EXPECT_NEAR(r.dMontantSalarial, 200.0, 1e-9) << code;
    EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 20.0 / 30) << code;
  }
}

TEST_F(BaseTauxDetachement, UnSeulDetachementPrendLaLigneOrdinaire) {
  r.sCodeRubrique = "CNRDETACH";
  s.iNBJ_DETACHEMENT2 = 0;
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dBase, 1500.0);  // the line's own coefficient
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 0.5);
}

TEST_F(BaseTauxDetachement, AutreCodePrendLaLigneOrdinaire) {
  r.sCodeRubrique = "CNRACL";
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dBase, 1500.0);
}

using BaseDivTaux = LigneGenerique;

TEST_F(BaseDivTaux, BaseSurLePourcentage) {
  TauxOrganisme(8.0, 40.0);
  ASSERT_TRUE(Calcul("BASE / TAUX"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 12500.0);  // 1000 / 0.08
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 2500.0);
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 1.0);
}

TEST_F(BaseDivTaux, BaseSurLeFacteur) {
  TauxConstantes(8.0, -4.0, "M");
  ASSERT_TRUE(Calcul("BASE / TAUX"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 125.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -250.0);
}

TEST_F(BaseDivTaux, SousLeSeuilLeMontantResteCommeIlEstVenu) {
  TauxConstantes(0.0000005, 0.000001, "M");  // the second stands on the threshold
  r.dMontantSalarial = 42.42;
  r.dMontantPatronal = -7.5;
  ASSERT_TRUE(Calcul("BASE / TAUX"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 42.42);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -7.5);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dBase, 1000.0);
}

TEST_F(BaseDivTaux, JusteAuDessusDuSeuil) {
  TauxConstantes(0.0000011, 3.33333, "M");
  ASSERT_TRUE(Calcul("BASE / TAUX"));
  EXPECT_NEAR(r.dMontantSalarial, 1000 / 0.0000011, 1e-3);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 3.3333);
}

using BaseTauxChoix = LigneGenerique;

TEST_F(BaseTauxChoix, LeTauxPatronalPrime) {
  TauxOrganisme(7.85, 12.5);
  r.dMontantPatronal = 99;
  ASSERT_TRUE(Calcul("BASE x TAUX (CHOIX)"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 125.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 12.5);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 99.0);
}

TEST_F(BaseTauxChoix, SansTauxPatronalLeTauxSalarial) {
  TauxConstantes(1.234567, 0.0, "M");
  ASSERT_TRUE(Calcul("BASE x TAUX (CHOIX)"));
  EXPECT_NEAR(r.dMontantSalarial, 1234.567, 1e-9);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1.2346);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
}

TEST_F(BaseTauxChoix, TauxPatronalEnFacteurSurLaBaseCoefficientee) {
  TauxConstantes(7.0, 2.5, "M");
  r.sCoeffBase = "PART PATRONALE D'UNE RUBRIQUE";
  r.dMontantPatronalRub = 0.2;
  ASSERT_TRUE(Calcul("BASE x TAUX (CHOIX)"));
  EXPECT_NEAR(r.dBase, 200.0, 1e-12);
  EXPECT_NEAR(r.dMontantSalarial, 500.0, 1e-9);
}

class BaseTauxSmic : public LigneGenerique {
 protected:
  BaseTauxSmic() {
    r.dMontantSalarialRub = 10;  // hours
    Fixe("SmicHor", 11.65);
  }
};

TEST_F(BaseTauxSmic, PourcentageDuSmic) {
  TauxOrganisme(50.0, 20.0);
  ASSERT_TRUE(Calcul("BASE x POURCENTAGE SMIC"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 58.25);  // 10 x 11.65 x 50 / 100
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 50.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
}

TEST_F(BaseTauxSmic, FacteurDuSmic) {
  TauxConstantes(0.55555, 3.0, "M");
  r.dMontantPatronal = 8;
  ASSERT_TRUE(Calcul("BASE x POURCENTAGE SMIC"));
  EXPECT_NEAR(r.dMontantSalarial, 10 * 11.65 * 0.55555, 1e-9);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.5556);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 8.0);
}

TEST_F(BaseTauxSmic, SmicNulDonneZero) {
  Fixe("SmicHor", Value());
  TauxOrganisme(50.0, 20.0);
  ASSERT_TRUE(Calcul("BASE x POURCENTAGE SMIC"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
}

}  // namespace
}  // namespace orvalis::taux_test
