// The hourly rate of the employee, for the month and for the month before.
#include "generic/taux_test_util.h"
#include "orvalis/fault.h"

namespace orvalis::taux_test {
namespace {

using HoraireSalarie = PaieTaux;

TEST_F(HoraireSalarie, TauxPropreFoisLeFacteur) {
  Variable(vars, "TXSMIC", 0.0);
  Variable(vars, "TXHEURES", 12.50);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireSalarie(vars, "TXSMIC", "TXHEURES", "M", 0, 1.25, d, t, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 15.625);
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, TauxPropreArrondiAvantLeFacteur) {
  Variable(vars, "TXHEURES", 12.34567);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireSalarie(vars, "TXSMIC", "TXHEURES", "M", 0, 2, d, t, "H", false, 2);
  EXPECT_DOUBLE_EQ(d, 24.7);  // 12.35 x 2
}

TEST_F(HoraireSalarie, PourcentageDuSmicDuMois) {
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", 105.0);
  Variable(vars, "TXHEURES", 50.0);
  double d = 0;
  std::string t = "X";
  m.CalculTauxHoraireSalarie(vars, "TXSMIC", "TXHEURES", "M", 0, 1.5, d, t, "N", false, 4);
  EXPECT_NEAR(d, 18.34875, 1e-12);  // 11.65 x 105 x 1.5 / 100
  EXPECT_EQ(t, "X");                // the kind is left as it came
}

TEST_F(HoraireSalarie, PourcentageDuSmicDuMoisPrecedent) {
  Fixe("SmicHor", 11.65);
  FixesDuMois("202402", {{"SmicHor", 11.52}, {"HrsMois", 151.67}});
  Variable(varsHisto, "TXSMIC", 105.0);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireSalarie(varsHisto, "TXSMIC", "TXHEURES", "M", 0, 1, d, t, "H", true, 4);
  EXPECT_NEAR(d, 12.096, 1e-12);
}

TEST_F(HoraireSalarie, SansLigneLeTauxResteCommeDonne) {
  double d = 7;
  std::string t = "X";
  m.CalculTauxHoraireSalarie(vars, "TXSMIC", "TXHEURES", "M", 0, 1, d, t, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 7.0);
  EXPECT_EQ(t, "X");
  Variable(vars, "AUTRE", 3.0);
  m.CalculTauxHoraireSalarie(vars, "TXSMIC", "TXHEURES", "M", 0, 1, d, t, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 7.0);
  EXPECT_EQ(t, "X");
}

TEST_F(HoraireSalarie, PourcentageNulPasseAuTauxPropre) {
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", Value());
  Variable(vars, "TXHEURES", 14.0);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireSalarie(vars, "TXSMIC", "TXHEURES", "M", 0, 1, d, t, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 14.0);
}

TEST_F(HoraireSalarie, MoisEnCoursSurLesVariables) {
  Variable(vars, "TXHEURES", 12.50);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisEnCours(2, s, vars, d, t);
  EXPECT_DOUBLE_EQ(d, 25.0);
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, MoisEnCoursSurLaPaieDuMois) {
  s.dMt_IndemniteDifferentielle = 30;
  Cumul("BASE", 1500.0);
  Cumul("BASERAPPEL", 30.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 30;
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisEnCours(1.25, s, vars, d, t);
  EXPECT_DOUBLE_EQ(d, 18.75);  // (30 + 1500 - 30) / 100 x 1.25
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, MoisEnCoursAuProrataDesJours) {
  Cumul("BASE", 750.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 15;
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisEnCours(1, s, vars, d, t);
  EXPECT_DOUBLE_EQ(d, 15.0);  // 750 / (100 x 15 / 30)
}

TEST_F(HoraireSalarie, MoisEnCoursSansHeuresDonneZero) {
  Cumul("BASE", 1500.0);
  s.iNBJ_Presence_Total = 30;
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisEnCours(1, s, vars, d, t);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(t, "");
}

TEST_F(HoraireSalarie, SmicNulDonneZeroEtLaPaieDuMoisPrendLeRelais) {
  Variable(vars, "TXSMIC", 100.0);  // SmicHor is null
  Cumul("BASE", 1200.0);
  s.dHeuresMois = 120;
  s.iNBJ_Presence_Total = 30;
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisEnCours(1, s, vars, d, t);
  EXPECT_DOUBLE_EQ(d, 10.0);
}

TEST_F(HoraireSalarie, MoisEnCoursSansJoursDePresenceEstUneFaute) {
  Cumul("BASE", 1200.0);
  s.dHeuresMois = 120;
  double d = 0;
  std::string t;
  EXPECT_THROW(m.CalculTauxHoraireMoisEnCours(1, s, vars, d, t), Fault);
}

TEST_F(HoraireSalarie, MoisPrecSurLesVariablesDuMoisPrecedent) {
  FixesDuMois("202402", {{"SmicHor", 11.52}});
  Variable(varsHisto, "TXSMIC", 100.0);
  Variable(vars, "TXSMIC", 200.0);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisPrec(1.25, s, varsHisto, histo, d, t);
  EXPECT_NEAR(d, 14.4, 1e-12);  // 11.52 x 100 x 1.25 / 100
}

TEST_F(HoraireSalarie, MoisPrecSurLaPaieDuMoisPrecedent) {
  Historique("202402", "BASE", 1600.0);
  Historique("202402", "INDDIFF", 40.0);
  Historique("202402", "BASERAPPEL", 100.0);
  Historique("202401", "BASE", 9999.0);
  Historique("202402", "BASE", 5000.0, 7);  // another employee
  HeuresDuMois("202402", 140.0);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisPrec(2, s, varsHisto, histo, d, t);
  EXPECT_DOUBLE_EQ(d, 22.0);  // (1600 + 40 - 100) / 140 x 2
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, MoisPrecSansHeuresDonneZero) {
  Historique("202402", "BASE", 1600.0);
  double d = 0;
  std::string t;
  m.CalculTauxHoraireMoisPrec(1, s, varsHisto, histo, d, t);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(t, "");
}

}  // namespace
}  // namespace orvalis::taux_test
