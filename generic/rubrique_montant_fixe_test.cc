// "MONTANT FIXE", "MONTANT FIXE ANNUEL" and the prorations by days over 30, through the
// calculation entry.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

class MontantFixe : public PaieTaux {
 protected:
  MontantFixe() {
    BaseAutreLigne(150);
  }
  void Montants(double sal, double pat) {
    TauxSalarialConstante("S", sal, "T");  // the kind plays no part
    TauxPatronalConstante("P", pat, "T");
  }
  void Coefficient(double k) {
    r.sCoeffBase = "PART PATRONALE D'UNE RUBRIQUE";
    r.dMontantPatronalRub = k;
  }
};

TEST_F(MontantFixe, SansMontantNiCoefficientLaBaseEstLeMontant) {
  r.dTauxSalarial = 5;
  ASSERT_TRUE(Calcul("MONTANT FIXE"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 150.0);
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(MontantFixe, SansMontantLaBaseFoisLeCoefficientArrondi) {
  Coefficient(0.123456);
  ASSERT_TRUE(Calcul("MONTANT FIXE"));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.1235);
  EXPECT_NEAR(r.dMontantSalarial, 18.525, 1e-12);  // 0.1235 x 150
  EXPECT_DOUBLE_EQ(r.dBase, 150.0);
}

TEST_F(MontantFixe, LeMontantSalarialDeLaDesignation) {
  Montants(10, 0);
  r.dTauxSalarial = 5;
  ASSERT_TRUE(Calcul("MONTANT FIXE"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 10.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dBase, 150.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 5.0);  // not written
}

TEST_F(MontantFixe, UnMontantPatronalSeul) {
  Montants(0, 25.5);
  Coefficient(2);
  ASSERT_TRUE(Calcul("MONTANT FIXE"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 25.5);
  EXPECT_DOUBLE_EQ(r.dBase, 150.0);  // the coefficient is not applied
}

class MontantFixeAnnuel : public MontantFixe {
 protected:
  MontantFixeAnnuel() { r.dMontantSalarialRub = 1200; }
};

TEST_F(MontantFixeAnnuel, UnDouziemeDeLaBase) {
  ASSERT_TRUE(Calcul("MONTANT FIXE ANNUEL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 100.0);
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(MontantFixeAnnuel, UnDouziemeFoisLeCoefficientArrondi) {
  Coefficient(0.55555);
  ASSERT_TRUE(Calcul("MONTANT FIXE ANNUEL"));
  EXPECT_NEAR(r.dMontantSalarial, 55.56, 1e-12);  // 1200 / 12 x 0.5556
  EXPECT_DOUBLE_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
}

TEST_F(MontantFixeAnnuel, UnMontantNestPasDivise) {
  Montants(10, 24);
  ASSERT_TRUE(Calcul("MONTANT FIXE ANNUEL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 10.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 24.0);
  EXPECT_DOUBLE_EQ(r.dBase, 1200.0);
}

class BaseProrata30 : public MontantFixe {
 protected:
  BaseProrata30() {
    r.dMontantSalarialRub = 1500;
    Montants(12, 99);
  }
};

TEST_F(BaseProrata30, JoursSurTrente) {
  r.dMontantPatronal = 7;
  ASSERT_TRUE(Calcul("BASE PRORATISEE SELON NB JOURS / 30"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 600.0);  // 12 x 1500 / 30, the kind "T" ignored
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 12.0);
  EXPECT_DOUBLE_EQ(r.dBase, 1500.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 7.0);
}

TEST_F(BaseProrata30, ADeduire) {
  ASSERT_TRUE(Calcul("BASE PRORATISEE SELON NB JOURS / 30 (A DEDUIRE)"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -600.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 12.0);
}

TEST_F(BaseProrata30, JoursNonArrondisEtCoefficient) {
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  Montants(12.123456, 0);
  Coefficient(0.5);
  ASSERT_TRUE(Calcul("BASE PRORATISEE SELON NB JOURS / 30"));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 12.123456);
  EXPECT_DOUBLE_EQ(r.dBase, 750.0);
  EXPECT_NEAR(r.dMontantSalarial, 12.123456 * 25, 1e-9);
}

}  // namespace
}  // namespace orvalis::taux_test
