// Independent checks of the generic pay lines, through the calculation entry by their
// literal names, with amounts worked out by hand.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

// The base is the employee amount of another line; rates come from constants by id.
class RubriqueReviewTest : public PaieTaux {
 protected:
  void Base(double d) { BaseAutreLigne(d); }
  void TS(double v, const char* kind) { TauxSalarialConstante("TS", v, kind); }
  void TP(double v, const char* kind) { TauxPatronalConstante("TP", v, kind); }
  void Coeff(double v, const char* kind) {
    Constante("K", v, 3, kind);
    r.sCoeffBase = "UNE CONSTANTE";
    r.lIdCoeffBase = 3;
  }
};

TEST_F(RubriqueReviewTest, BaseTauxCoefficientEtArrondiDesTaux) {
  Base(1000);
  Coeff(50.0, "T");             // K = 0.5, base 500
  TS(7.123456, "T");            // 500 x 7.123456 / 100 = 35.61728
  TP(-0.000049, "M");           // 500 x -0.000049 = -0.0245, rate rounds to -0
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dBase, 500.0);
  EXPECT_NEAR(r.dMontantSalarial, 35.61728, 1e-12);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 7.1235);
  EXPECT_NEAR(r.dMontantPatronal, -0.0245, 1e-15);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 0.5);
}

TEST_F(RubriqueReviewTest, BaseTauxDetachementSecondePart) {
  Base(900);
  Coeff(10.0, "M");  // not consulted by the detachment variant
  TS(10.0, "T");
  s.iNBJ_DETACHEMENT = 10;
  s.iNBJ_DETACHEMENT2 = 20;
  r.sCodeRubrique = "CIVSURBP20";
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_NEAR(r.dBase, 600.0, 1e-9);  // 900 x 20 / 30
  EXPECT_NEAR(r.dMontantSalarial, 60.0, 1e-9);
  EXPECT_NEAR(r.dValeurCoefficient, 2.0 / 3.0, 1e-15);
  r.sCodeRubrique = "CIVSURBONP";
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_NEAR(r.dBase, 300.0, 1e-9);  // 900 x 10 / 30
  EXPECT_NEAR(r.dValeurCoefficient, 1.0 / 3.0, 1e-15);
}

TEST_F(RubriqueReviewTest, BaseTauxDetachementSommeEn16Bits) {
  Base(900);
  s.iNBJ_DETACHEMENT = 30000;
  s.iNBJ_DETACHEMENT2 = 3000;  // 33000 overflows 16 bits
  r.sCodeRubrique = "CNRDETACH";
  EXPECT_FALSE(Calcul("BASE x TAUX"));
}

TEST_F(RubriqueReviewTest, BaseDivTauxSeuilEtSigne) {
  Base(1000);
  TS(0.000001, "M");  // not above the threshold
  TP(-4.0, "T");      // 1000 / -0.04 = -25000
  r.dMontantSalarial = 7;
  ASSERT_TRUE(Calcul("BASE / TAUX"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 7.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_NEAR(r.dMontantPatronal, -25000.0, 1e-9);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, -4.0);
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 1.0);
}

TEST_F(RubriqueReviewTest, BaseDivTauxFacteur) {
  Base(1000);
  TS(0.0000011, "M");  // just above: 1000 / 0.0000011
  r.dMontantPatronal = 3;
  ASSERT_TRUE(Calcul("BASE / TAUX"));
  EXPECT_NEAR(r.dMontantSalarial, 1000 / 0.0000011, 1e-3);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 3.0);  // no employer rate: untouched
}

TEST_F(RubriqueReviewTest, ChoixTauxSalarialSansPatronal) {
  Base(1000);
  TS(2.5, "T");
  r.dMontantPatronal = 9;
  ASSERT_TRUE(Calcul("BASE x TAUX (CHOIX)"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 25.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 2.5);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 9.0);
}

TEST_F(RubriqueReviewTest, ChoixTauxPatronalFacteur) {
  Base(1000);
  TS(2.5, "T");
  TP(0.123456, "M");  // 123.456, rate 0.1235
  ASSERT_TRUE(Calcul("BASE x TAUX (CHOIX)"));
  EXPECT_NEAR(r.dMontantSalarial, 123.456, 1e-9);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.1235);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
}

TEST_F(RubriqueReviewTest, PourcentageSmic) {
  Base(151.67);
  Fixe("SmicHor", 11.65);
  TS(50.00004, "T");  // 151.67 x 11.65 x 50.00004 / 100, rate 50
  TP(3.0, "T");
  r.dMontantPatronal = 4;
  ASSERT_TRUE(Calcul("BASE x POURCENTAGE SMIC"));
  EXPECT_NEAR(r.dMontantSalarial, 151.67 * 11.65 * 50.00004 / 100, 1e-9);
  EXPECT_NEAR(r.dMontantSalarial, 883.4784568, 1e-6);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 50.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 4.0);
}

TEST_F(RubriqueReviewTest, PourcentageSmicFacteurEtSmicNul) {
  Base(10);
  TS(2.0, "M");
  ASSERT_TRUE(Calcul("BASE x POURCENTAGE SMIC"));  // SmicHor null: 0
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  Fixe("SmicHor", 11.0);
  ASSERT_TRUE(Calcul("BASE x POURCENTAGE SMIC"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 220.0);  // 10 x 11 x 2
}

TEST_F(RubriqueReviewTest, MontantFixeAvecCoefficient) {
  Base(1000);
  Coeff(0.123456, "M");  // rate 0.1235, 123.5
  ASSERT_TRUE(Calcul("MONTANT FIXE"));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.1235);
  EXPECT_NEAR(r.dMontantSalarial, 123.5, 1e-9);
  EXPECT_DOUBLE_EQ(r.dBase, 1000.0);
}

TEST_F(RubriqueReviewTest, MontantFixePatronalSeul) {
  Base(150);
  TP(-12.0, "M");
  r.dTauxSalarial = 5;
  ASSERT_TRUE(Calcul("MONTANT FIXE"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -12.0);
  EXPECT_DOUBLE_EQ(r.dBase, 150.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 5.0);  // untouched
}

TEST_F(RubriqueReviewTest, MontantFixeAnnuelSansCoefficient) {
  Base(1200);
  r.dTauxSalarial = 5;
  ASSERT_TRUE(Calcul("MONTANT FIXE ANNUEL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 100.0);
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(RubriqueReviewTest, MontantFixeAnnuelAvecCoefficient) {
  Base(1200);
  Coeff(0.33333, "M");  // Arrondi 4: 0.3333; 1200 / 12 x 0.3333 = 33.33
  ASSERT_TRUE(Calcul("MONTANT FIXE ANNUEL"));
  EXPECT_NEAR(r.dMontantSalarial, 33.33, 1e-9);
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
}

TEST_F(RubriqueReviewTest, MontantFixeAnnuelUnMontantSansDivision) {
  Base(1200);
  TP(24.0, "M");
  ASSERT_TRUE(Calcul("MONTANT FIXE ANNUEL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 24.0);
  EXPECT_DOUBLE_EQ(r.dBase, 1200.0);
}

TEST_F(RubriqueReviewTest, Prorata30) {
  Base(1500);
  TS(12.34567, "T");  // days; kind and rounding ignored: 12.34567 x 1500 / 30
  ASSERT_TRUE(Calcul("BASE PRORATISEE SELON NB JOURS / 30"));
  EXPECT_NEAR(r.dMontantSalarial, 617.2835, 1e-9);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 12.34567);
  EXPECT_DOUBLE_EQ(r.dBase, 1500.0);
  ASSERT_TRUE(Calcul("BASE PRORATISEE SELON NB JOURS / 30 (A DEDUIRE)"));
  EXPECT_NEAR(r.dMontantSalarial, -617.2835, 1e-9);
}

TEST_F(RubriqueReviewTest, IndiceReferenceEgalPrendLaCelluleSalariale) {
  Base(350);
  Coeff(0.5, "M");
  TS(123.456, "M");
  TP(200.0, "M");
  s.dIndiceMajoreM = 350;
  r.dMontantPatronal = 8;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE"));
  EXPECT_DOUBLE_EQ(r.dBase, 123.456);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 61.73);  // 61.728 -> 61.73
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
  s.dIndiceMajoreM = 350.01;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE"));
  EXPECT_DOUBLE_EQ(r.dBase, 200.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 100.0);
}

TEST_F(RubriqueReviewTest, IndiceReferenceCAS) {
  Base(350);
  r.lIdOrganisme = 7;
  Taux("CAS1", 10.0, 20.0, 0, 8);
  Taux("CAS1", 11.0, 21.0, 0, 7);
  Taux("CAS2", 30.0, Value(), 0, 7);
  Taux("CASC2", 50.0, 60.0, 0, 7);
  s.dIndiceMajoreM = 350;
  r.dBase = 1;
  r.dTauxSalarial = 1;
  r.dTauxPatronal = 1;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 11.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 21.0);
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  s.dIndiceMajoreM = 351;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 30.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);  // null
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS COMMUNAL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 50.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 60.0);
  s.dIndiceMajoreM = 350;  // "CASC1": no row, both amounts 0
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS COMMUNAL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(RubriqueReviewTest, SalaireBrutJournalierOuvre) {
  // 2024: 252 working days, a twelfth of 21; 1234.56 / 21 = 58.788... -> 58.79
  Coeff(1234.56, "M");
  Base(1);
  r.sValeurTauxSalarial = "SALAIRE BRUT JOURNALIER OUVRE";
  ASSERT_TRUE(Calcul("BASE x TAUX"));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 58.79);
  EXPECT_NEAR(r.dMontantSalarial, 58.79 * 1234.56, 1e-6);
}

}  // namespace
}  // namespace orvalis::taux_test
