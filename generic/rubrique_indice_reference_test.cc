// "INDICE DE REFERENCE" and its two "CAS" forms, through the calculation entry.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

// The reference index is the employee amount of another line: 350.
class IndiceReference : public PaieTaux {
 protected:
  IndiceReference() {
    BaseAutreLigne(350);
    TauxSalarialConstante("S", 120.5, "T");
    TauxPatronalConstante("P", 80.333, "T");
    r.dMontantPatronal = 9;
  }
};

TEST_F(IndiceReference, IndiceEgalALaReferencePrendLaCelluleSalariale) {
  s.dIndiceMajoreM = 350;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE"));
  EXPECT_DOUBLE_EQ(r.dBase, 120.5);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 120.5);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(IndiceReference, IndiceAuDessusPrendLaCellulePatronale) {
  s.dIndiceMajoreM = 351;
  r.sCoeffBase = "PART PATRONALE D'UNE RUBRIQUE";
  r.dMontantPatronalRub = 0.5;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE"));
  EXPECT_DOUBLE_EQ(r.dBase, 80.333);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 40.17);  // 40.1665 to the cent
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

// Rows of the fund 3 for the "CAS" forms.
class IndiceReferenceCAS : public PaieTaux {
 protected:
  IndiceReferenceCAS() {
    BaseAutreLigne(350);
    r.lIdOrganisme = 3;
    Taux("CAS1", 10.0, 20.0, 1, 3);
    Taux("CAS2", 30.0, 40.0, 2, 3);
    Taux("CAS1", 50.0, 60.0, 3, 4);
    Taux("CASC1", 70.0, 80.0, 4, 3);
    Taux("CASC2", 90.0, Value(), 5, 3);
    r.dBase = 1;
    r.dTauxSalarial = 2;
    r.dTauxPatronal = 3;
  }
  void ExpectLigneAZero() {
    EXPECT_DOUBLE_EQ(r.dBase, 0.0);
    EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
    EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  }
};

// At the reference index the first row's amounts, above it the second's.
TEST_F(IndiceReferenceCAS, IndiceEgalOuAuDessus) {
  const struct {
    double dIndice;
    double dSalarial;
    double dPatronal;
  } kLignes[] = {
      {350, 10.0, 20.0},
      {350.5, 30.0, 40.0},
  };
  for (const auto& l : kLignes) {
    SCOPED_TRACE(l.dIndice);
    s.dIndiceMajoreM = l.dIndice;
    ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS"));
    EXPECT_DOUBLE_EQ(r.dMontantSalarial, l.dSalarial);
    EXPECT_DOUBLE_EQ(r.dMontantPatronal, l.dPatronal);
    ExpectLigneAZero();
  }
}

TEST_F(IndiceReferenceCAS, Communal) {
  s.dIndiceMajoreM = 300;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS COMMUNAL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 70.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 80.0);
  s.dIndiceMajoreM = 400;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS COMMUNAL"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 90.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);  // null
  ExpectLigneAZero();
}

TEST_F(IndiceReferenceCAS, AutreOrganisme) {
  s.dIndiceMajoreM = 300;
  r.lIdOrganisme = 4;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 50.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 60.0);
}

TEST_F(IndiceReferenceCAS, SansLigneLesMontantsSontNuls) {
  s.dIndiceMajoreM = 300;
  r.lIdOrganisme = 9;
  r.dMontantSalarial = 5;
  r.dMontantPatronal = 6;
  ASSERT_TRUE(Calcul("INDICE DE REFERENCE - CAS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
  ExpectLigneAZero();
  // The filter was cleared: the next lookup of a rate sees every row.
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("CASC1"), 70.0);
}

}  // namespace
}  // namespace orvalis::taux_test
