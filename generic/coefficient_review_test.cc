// Second reading of the coefficient resolver: 1 unless a row of its table gives a value,
// with the defaults, null columns and faults of each row.
#include <gtest/gtest.h>

#include <string>

#include "generic/paie_test_util.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {
namespace {

class CoefficientReviewTest : public ::testing::Test {
 protected:
  CoefficientReviewTest() {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    vars = paie_test::NouvellesVariables("DateEffet");
  }

  void Constante(int id, const Value& v, const Value& tm) {
    paie_test::AjouteConstante(m.gRsConstantes, "C" + std::to_string(id), v, id, tm);
  }
  void Var(int id, const Value& v, const Value& tm, const Value& date = Value()) {
    paie_test::AjouteVariable(vars, "V" + std::to_string(id), v, id, date, tm, "DateEffet");
  }
  void Cumul(int id, const Value& sal, const Value& pat) {
    paie_test::AjouteCumul(m.gRsCumuls, "K" + std::to_string(id), sal, pat, id);
  }
  double Coef(const std::string& designation, int id = 0) {
    return m.RechercheValeurCoefficient(s, vars, id, designation, r);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
  RsRef vars;
};

TEST_F(CoefficientReviewTest, UnknownOrEmptyGivesOneAndReadsNothing) {
  m.gRsConstantes = nullptr;
  m.gRsCumuls = nullptr;
  vars = nullptr;
  EXPECT_EQ(Coef(""), 1);
  EXPECT_EQ(Coef("Une Constante", 7), 1);
  EXPECT_EQ(Coef("UNE CONSTANTE ", 7), 1);
  EXPECT_EQ(Coef("SALAIRE BRUT", 7), 1);
  EXPECT_EQ(Coef("COEFFICIENT DE TRAITEMENT."), 1);
}

TEST_F(CoefficientReviewTest, ConstantPercentOrFactor) {
  Constante(7, 80.0, "T");
  Constante(8, 80.0, "M");
  Constante(9, 2.5, Value());  // no kind: taken as it stands
  Constante(10, 12.3456, "t");  // "T" only, case counts
  EXPECT_DOUBLE_EQ(Coef("UNE CONSTANTE", 7), 0.8);
  EXPECT_DOUBLE_EQ(Coef("CONSTANTE", 8), 80);
  EXPECT_DOUBLE_EQ(Coef("CONSTANTE", 9), 2.5);
  EXPECT_DOUBLE_EQ(Coef("CONSTANTE", 10), 12.3456);
}

TEST_F(CoefficientReviewTest, ConstantDefaultsAreOneNullValueIsZero) {
  Constante(0, 0.0, "M");
  Constante(7, Value(), "T");
  EXPECT_EQ(Coef("UNE CONSTANTE", 0), 1);
  EXPECT_EQ(Coef("UNE CONSTANTE", -3), 1);
  EXPECT_EQ(Coef("UNE CONSTANTE", 99), 1);  // no row
  EXPECT_EQ(m.gRsConstantes->RecordCount(), 2);
  EXPECT_EQ(Coef("UNE CONSTANTE", 7), 0);
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  EXPECT_EQ(Coef("UNE CONSTANTE", 7), 1);  // empty source
  m.gRsConstantes = nullptr;
  EXPECT_EQ(Coef("UNE CONSTANTE", 0), 1);
  EXPECT_THROW(Coef("UNE CONSTANTE", 7), Fault);
}

TEST_F(CoefficientReviewTest, VariableWithItsEffectiveDate) {
  Var(11, 80.0, "T", "20240301");  // the first of the month
  Var(12, 80.0, "M", "20240229");  // the day before: stays 1
  Var(13, 80.0, "M", "20241231");  // after: counts
  Var(14, 80.0, "M");              // null date
  Var(15, 80.0, "T", "");          // empty date
  Var(16, Value(), "T");           // null value
  EXPECT_DOUBLE_EQ(Coef("UNE VARIABLE SALARIE", 11), 0.8);
  EXPECT_EQ(Coef("VARIABLE", 12), 1);
  EXPECT_DOUBLE_EQ(Coef("VARIABLE", 13), 80);
  EXPECT_DOUBLE_EQ(Coef("VARIABLE", 14), 80);
  EXPECT_DOUBLE_EQ(Coef("VARIABLE", 15), 0.8);
  EXPECT_EQ(Coef("VARIABLE", 16), 0);
  EXPECT_EQ(Coef("VARIABLE", 17), 1);
  EXPECT_EQ(Coef("VARIABLE", 0), 1);
  EXPECT_EQ(vars->RecordCount(), 6);
}

TEST_F(CoefficientReviewTest, VariableSourcesAndBadDate) {
  Var(11, 80.0, "T", "2024-03-01");
  EXPECT_THROW(Coef("VARIABLE", 11), Fault);
  vars = paie_test::NouvellesVariables("DateEffet");
  EXPECT_EQ(Coef("VARIABLE", 11), 1);
  vars = nullptr;
  EXPECT_EQ(Coef("VARIABLE", 0), 1);
  EXPECT_THROW(Coef("VARIABLE", 11), Fault);
}

TEST_F(CoefficientReviewTest, ParticularTotal) {
  Cumul(21, 1.23456, 9.0);  // employee side, unrounded
  Cumul(22, Value(), 9.0);
  EXPECT_DOUBLE_EQ(Coef("UN CUMUL PARTICULIER", 21), 1.23456);
  EXPECT_EQ(Coef("UN CUMUL PARTICULIER", 22), 0);
  EXPECT_EQ(Coef("UN CUMUL PARTICULIER", 0), 1);
  EXPECT_THROW(Coef("UN CUMUL PARTICULIER", 23), Fault);
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
  EXPECT_EQ(Coef("UN CUMUL PARTICULIER", 23), 1);
  m.gRsCumuls = nullptr;
  EXPECT_THROW(Coef("UN CUMUL PARTICULIER", 23), Fault);
}

TEST_F(CoefficientReviewTest, TreatmentCoefficientPairsNewTimeWithNewIndex) {
  s.iNBJ_PresenceIATA = 30;
  s.dCoefficient_TraitementTA = 0.8;
  EXPECT_DOUBLE_EQ(Coef("COEFFICIENT DE TRAITEMENT"), 0.8);
  // (INTA 20 + INTN 0) x 0.9 / 30 + (IATA 0 + IATN 10) x 0.5 / 30 = 0.6 + 0.1666..
  // (by the quadrant names it would be 0.6333..)
  s.iNBJ_PresenceIATA = 0;
  s.iNBJ_PresenceINTA = 20;
  s.iNBJ_PresenceIATN = 10;
  s.dCoefficient_TraitementTA = 0.5;
  s.dCoefficient_TraitementTN = 0.9;
  EXPECT_NEAR(Coef("COEFFICIENT DE TRAITEMENT"), 0.766666666666667, 1e-12);
  EXPECT_EQ(Coef("COEFFICIENT DE TRAITEMENT "), 1);
}

TEST_F(CoefficientReviewTest, TreatmentCoefficientNoDaysAndOverflow) {
  s.dCoefficient_TraitementTA = 1;
  s.dCoefficient_TraitementTN = 1;
  EXPECT_EQ(Coef("COEFFICIENT DE TRAITEMENT"), 0);  // no presence: the base is nullified
  s.iNBJ_PresenceINTA = 32767;
  s.iNBJ_PresenceINTN = 1;
  EXPECT_THROW(Coef("COEFFICIENT DE TRAITEMENT"), Fault);
}

TEST_F(CoefficientReviewTest, AmountsOfAnotherLine) {
  r.dMontantSalarialRub = -0.25;
  r.dMontantPatronalRub = 1.75;
  EXPECT_DOUBLE_EQ(Coef("PART SALARIALE D'UNE RUBRIQUE"), -0.25);
  EXPECT_DOUBLE_EQ(Coef("PART PATRONALE D'UNE RUBRIQUE"), 1.75);
}

TEST_F(CoefficientReviewTest, ThroughBaseTimesRate) {
  m.gRsCumuls->AddNew();
  m.gRsCumuls->SetField("CodeCumul", "BRUT");
  m.gRsCumuls->SetField("PartSalariale", 2500.0);
  Constante(7, 50.0, "T");
  r.sValeurBase = "SALAIRE BRUT";
  r.sCoeffBase = "UNE CONSTANTE";
  r.lIdCoeffBase = 7;
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars, nullptr, nullptr));
  EXPECT_DOUBLE_EQ(r.dBase, 1250);  // 2500 x 0.5
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 0.5);
  r.sCoeffBase = "";
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars, nullptr, nullptr));
  EXPECT_DOUBLE_EQ(r.dBase, 2500);
  EXPECT_EQ(r.dValeurCoefficient, 1);
  r.sCoeffBase = "UN CUMUL PARTICULIER";
  r.lIdCoeffBase = 99;
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars, nullptr, nullptr));
}

}  // namespace
}  // namespace orvalis
