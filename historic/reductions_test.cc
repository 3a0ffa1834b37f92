// The historic reductions on overtime, their recall and the Fillon reduction, beside the
// current engine where both run on the same record.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class ReductionsHistoriquesTest : public DeuxMoteurs {
 protected:
  ReductionsHistoriquesTest() {
    Cumul("ASSREDHS", 500.0);
    Constante("TXREDHSMAX", 20.0);
    s.dTauxReduction = 21.5;
    r.sValeurBase = "BASE REDUCTION SUR HS";
  }
};

// Rate: the ceiling 20 is not above 21.5, so -20; amount -20 x 500 / 100 = -100. The
// historic engine caps it to the month's "URSSAFTOT" of 80.
TEST_F(ReductionsHistoriquesTest, OvertimeReductionCappedByContributions) {
  Cumul("URSSAFTOT", 80.0);
  Calcule("REDUCTION SUR HS");
  EXPECT_DOUBLE_EQ(rN.dTauxSalarial, -20.0);
  EXPECT_DOUBLE_EQ(rH.dTauxSalarial, -20.0);
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -100.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -80.0);
  EXPECT_DOUBLE_EQ(sN.dMtReductionHS, 100.0);
  EXPECT_DOUBLE_EQ(sH.dMtReductionHS, 0.0);  // not written here
}

TEST_F(ReductionsHistoriquesTest, CapReachedExactlyKeepsTheAmount) {
  Cumul("URSSAFTOT", 100.0);
  Calcule("REDUCTION SUR HS");
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -100.0);
}

// The ceiling above the employee's rate: -15, amount -75.
TEST_F(ReductionsHistoriquesTest, EmployeeRateBelowTheCeiling) {
  Cumul("URSSAFTOT", 1000.0);
  s.dTauxReduction = 15;
  Calcule("REDUCTION SUR HS");
  EXPECT_DOUBLE_EQ(rH.dTauxSalarial, -15.0);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -75.0);
}

TEST_F(ReductionsHistoriquesTest, ExternalCategoryTakesTheDeductions) {
  Cumul("URSSAFTOT", 80.0);
  Cumul("TOTDEDUCT", 65.0);
  for (const char* categorie : {"EXTER", "INSTHOR", "INSTITUT"}) {
    s.sCodeCategorie = categorie;
    s.bRegineFonctionnaire = false;
    Calcule("REDUCTION SUR HS");
    EXPECT_DOUBLE_EQ(rN.dMontantSalarial, -100.0) << categorie;
    EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -65.0) << categorie;
    s.bRegineFonctionnaire = true;  // whatever the regime
    Calcule("REDUCTION SUR HS");
    EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -65.0) << categorie;
  }
}

TEST_F(ReductionsHistoriquesTest, CivilServantIsNotCapped) {
  Cumul("URSSAFTOT", 80.0);
  s.bRegineFonctionnaire = true;
  Calcule("REDUCTION SUR HS");
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, -100.0);
}

class RappelHistoriqueTest : public DeuxMoteurs {
 protected:
  RappelHistoriqueTest() {
    Cumul("ASSREDHS", 37.5);
    Constante("NBH", 250.0, 3);
    Constante("TXSAL", 6.9, 5, "T");
    Constante("TXPAT", 13.8, 6, "T");
    Taux("URSRGVEU", 6.9, 8.55);
    Taux("RAFP", 5.0, 5.0);
    r.sValeurBase = "BASE REDUCTION SUR HS";
    r.sCoeffBase = "UNE CONSTANTE";
    r.lIdCoeffBase = 3;
    r.sValeurTauxSalarial = "UNE CONSTANTE";
    r.lIdValeurTauxSalarial = 5;
    r.sValeurTauxPatronal = "UNE CONSTANTE";
    r.lIdValeurTauxPatronal = 6;
  }
};

// Historic: base = the coefficient 250, amount = the base 37.5, rate 6.9 / 13.8 = 0.5 x 100.
// Current: base 37.5, amount = the employee "rate" 6.9, rate URSRGVEU 6.9.
TEST_F(RappelHistoriqueTest, GeneralRegimeRecall) {
  r.sCodeRubrique = "HSRAPASSRG";
  Calcule("RAPPEL REDUCTION SUR HS");
  EXPECT_DOUBLE_EQ(rN.dBase, 37.5);
  EXPECT_DOUBLE_EQ(rH.dBase, 250.0);
  EXPECT_DOUBLE_EQ(rN.dMontantSalarial, 6.9);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 37.5);
  EXPECT_DOUBLE_EQ(sN.dTauxReductionRappel, 6.9);
  EXPECT_DOUBLE_EQ(sH.dTauxReductionRappel, 50.0);
  EXPECT_DOUBLE_EQ(rH.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 0.0);
}

TEST_F(RappelHistoriqueTest, GeneralRegimeRecallWithoutEmployerRate) {
  r.sCodeRubrique = "HSRAPASSRG";
  r.lIdValeurTauxPatronal = 0;  // no employer rate: 0
  Calcule("RAPPEL REDUCTION SUR HS");
  EXPECT_DOUBLE_EQ(sH.dTauxReductionRappel, 0.0);
}

TEST_F(RappelHistoriqueTest, OtherRecallTakesTheEmployeeRateNegated) {
  r.sCodeRubrique = "HSRAPRAFP";
  Calcule("RAPPEL REDUCTION SUR HS");
  EXPECT_DOUBLE_EQ(sN.dTauxReductionRappel, 5.0);  // "RAFP"
  EXPECT_DOUBLE_EQ(sH.dTauxReductionRappel, -6.9);
}

class FillonHistoriqueTest : public DeuxMoteurs {
 protected:
  FillonHistoriqueTest() {
    Fixe("HrsMois", 151.67);
    Fixe("SmicHor", 11.65);
    s.dCoefficient_Traitement = 1;
    Cumul("ASSURSTOT", 2600.0);
  }
  void Fillon(const char* nom) {
    rH = r;
    sH = s;
    ASSERT_TRUE(h.Appel_Methode_Calcul_General(nom, sH, rH, vars, vars, nullptr));
  }
};

// SMIC of the month: 151.67 x 11.65 = 1766.9555. Brut 2600 - 100 = 2500:
// coef = 1766.9555 / 2500 x 1.6 - 1 = 0.13085152; rate 0.2795 / 0.6 x coef = 0.0610 (4 pl.);
// amount 2500 x 0.061 = 152.50, under the ceiling 27.95 % x 2500 = 698.75.
TEST_F(FillonHistoriqueTest, UnderTheCeiling) {
  Cumul("BRUT", 2600.0);
  Cumul("HEURESUPP", 100.0);
  Fillon("REDUCTION FILLON");
  EXPECT_DOUBLE_EQ(rH.dBase, 2600.0);
  EXPECT_DOUBLE_EQ(rH.dTauxPatronal, -0.061);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, -152.5);
  EXPECT_DOUBLE_EQ(rH.dMontantSalarial, 0.0);
}

// Over 19 agents: 0.2835 / 0.6 x 0.13085152 = 0.0618; 2500 x 0.0618 = 154.50.
TEST_F(FillonHistoriqueTest, OverNineteenAgents) {
  Cumul("BRUT", 2600.0);
  Cumul("HEURESUPP", 100.0);
  Fillon("REDUCTION FILLON (> 19 AGENTS)");
  EXPECT_DOUBLE_EQ(rH.dTauxPatronal, -0.0618);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, -154.5);
}

// Brut 1500: rate 0.4121, 618.15 is above the ceiling 419.25, which is paid at -0.2795.
TEST_F(FillonHistoriqueTest, CappedAtTheCeiling) {
  Cumul("BRUT", 1500.0);
  Fillon("REDUCTION FILLON");
  EXPECT_DOUBLE_EQ(rH.dTauxPatronal, -0.2795);
  EXPECT_NEAR(rH.dMontantPatronal, -419.25, 1e-9);
}

// A civil servant's brut is "BASE": 2500 as above, whatever "BRUT" says.
TEST_F(FillonHistoriqueTest, CivilServantReadsTheTreatment) {
  Cumul("BASE", 2500.0);
  Cumul("BRUT", 9000.0);
  s.bRegineFonctionnaire = true;
  Fillon("REDUCTION FILLON");
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, -152.5);
}

// SMIC of the month 151.67 x 10 = 1516.70 and a brut of 1516.70: coef 0.6, rate 0.2795,
// the amount 423.91765 is the ceiling itself, not above it: the plain rate stands.
TEST_F(FillonHistoriqueTest, BrutExactlyAtTheCeiling) {
  Fixe("SmicHor", 10);
  Cumul("BRUT", 1516.7);
  Fillon("REDUCTION FILLON");
  EXPECT_DOUBLE_EQ(rH.dTauxPatronal, -0.2795);
  EXPECT_NEAR(rH.dMontantPatronal, -423.91765, 1e-9);
}

TEST_F(FillonHistoriqueTest, NoBrutNoReduction) {
  Cumul("BRUT", 0.0);
  Fillon("REDUCTION FILLON");
  EXPECT_DOUBLE_EQ(rH.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 0.0);
  EXPECT_DOUBLE_EQ(rH.dBase, 2600.0);
}

TEST_F(FillonHistoriqueTest, NullHoursCountZero) {
  n.gRsConstantesFixes->SetField("HrsMois", Value());
  Cumul("BRUT", 2000.0);
  Fillon("REDUCTION FILLON");
  // SMIC 0: coef -1, rate 0.2795 / 0.6 x -1 = -0.4658; amount 2000 x -0.4658 = -931.60.
  EXPECT_DOUBLE_EQ(rH.dTauxPatronal, 0.4658);
  EXPECT_DOUBLE_EQ(rH.dMontantPatronal, 931.6);
}

}  // namespace
}  // namespace orvalis::historique_test
