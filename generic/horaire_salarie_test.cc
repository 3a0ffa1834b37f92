// The hourly rate of the employee, for the month and for the month before.
#include "generic/taux_test_util.h"
#include "orvalis/fault.h"

namespace orvalis::taux_test {
namespace {

// The rate lands in d and its kind in t, as the engine writes them.
class HoraireSalarie : public PaieTaux {
 protected:
  // The rate read from TXSMIC or TXHEURES of rs, with no hours, times dCoeff.
  void TauxHoraire(const RsRef& rs, double dCoeff, const std::string& sMois, bool bMoisPrec,
                   Int16 iNbDecimales) {
    m.CalculTauxHoraireSalarie(rs, "TXSMIC", "TXHEURES", "M", 0, dCoeff, d, t, sMois, bMoisPrec,
                               iNbDecimales);
  }
  void MoisEnCours(double dCoeff) { m.CalculTauxHoraireMoisEnCours(dCoeff, s, vars, d, t); }
  void MoisPrec(double dCoeff) { m.CalculTauxHoraireMoisPrec(dCoeff, s, varsHisto, histo, d, t); }

  double d = 0;
  std::string t;
};

TEST_F(HoraireSalarie, TauxPropreFoisLeFacteur) {
  Variable(vars, "TXSMIC", 0.0);
  Variable(vars, "TXHEURES", 12.50);
  TauxHoraire(vars, 1.25, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 15.625);
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, TauxPropreArrondiAvantLeFacteur) {
  Variable(vars, "TXHEURES", 12.34567);
  TauxHoraire(vars, 2, "H", false, 2);
  EXPECT_DOUBLE_EQ(d, 24.7);  // 12.35 x 2
}

TEST_F(HoraireSalarie, PourcentageDuSmicDuMois) {
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", 105.0);
  Variable(vars, "TXHEURES", 50.0);
  t = "X";
  TauxHoraire(vars, 1.5, "N", false, 4);
  EXPECT_NEAR(d, 18.34875, 1e-12);  // 11.65 x 105 x 1.5 / 100
  EXPECT_EQ(t, "X");                // the kind is left as it came
}

TEST_F(HoraireSalarie, PourcentageDuSmicDuMoisPrecedent) {
  Fixe("SmicHor", 11.65);
  FixesDuMois("202402", {{"SmicHor", 11.52}, {"HrsMois", 151.67}});
  Variable(varsHisto, "TXSMIC", 105.0);
  TauxHoraire(varsHisto, 1, "H", true, 4);
  EXPECT_NEAR(d, 12.096, 1e-12);
}

TEST_F(HoraireSalarie, SansLigneLeTauxResteCommeDonne) {
  d = 7;
  t = "X";
  TauxHoraire(vars, 1, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 7.0);
  EXPECT_EQ(t, "X");
  Variable(vars, "AUTRE", 3.0);
  TauxHoraire(vars, 1, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 7.0);
  EXPECT_EQ(t, "X");
}

TEST_F(HoraireSalarie, PourcentageNulPasseAuTauxPropre) {
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", Value());
  Variable(vars, "TXHEURES", 14.0);
  TauxHoraire(vars, 1, "N", false, 4);
  EXPECT_DOUBLE_EQ(d, 14.0);
}

TEST_F(HoraireSalarie, MoisEnCoursSurLesVariables) {
  Variable(vars, "TXHEURES", 12.50);
  MoisEnCours(2);
  EXPECT_DOUBLE_EQ(d, 25.0);
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, MoisEnCoursSurLaPaieDuMois) {
  s.dMt_IndemniteDifferentielle = 30;
  Cumul("BASE", 1500.0);
  Cumul("BASERAPPEL", 30.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 30;
  MoisEnCours(1.25);
  EXPECT_DOUBLE_EQ(d, 18.75);  // (30 + 1500 - 30) / 100 x 1.25
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, MoisEnCoursAuProrataDesJours) {
  Cumul("BASE", 750.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 15;
  MoisEnCours(1);
  EXPECT_DOUBLE_EQ(d, 15.0);  // 750 / (100 x 15 / 30)
}

TEST_F(HoraireSalarie, MoisEnCoursSansHeuresDonneZero) {
  Cumul("BASE", 1500.0);
  s.iNBJ_Presence_Total = 30;
  MoisEnCours(1);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(t, "");
}

TEST_F(HoraireSalarie, SmicNulDonneZeroEtLaPaieDuMoisPrendLeRelais) {
  Variable(vars, "TXSMIC", 100.0);  // SmicHor is null
  Cumul("BASE", 1200.0);
  s.dHeuresMois = 120;
  s.iNBJ_Presence_Total = 30;
  MoisEnCours(1);
  EXPECT_DOUBLE_EQ(d, 10.0);
}

TEST_F(HoraireSalarie, MoisEnCoursSansJoursDePresenceEstUneFaute) {
  Cumul("BASE", 1200.0);
  s.dHeuresMois = 120;
  EXPECT_THROW(MoisEnCours(1), Fault);
}

TEST_F(HoraireSalarie, MoisPrecSurLesVariablesDuMoisPrecedent) {
  FixesDuMois("202402", {{"SmicHor", 11.52}});
  Variable(varsHisto, "TXSMIC", 100.0);
  Variable(vars, "TXSMIC", 200.0);
  MoisPrec(1.25);
  EXPECT_NEAR(d, 14.4, 1e-12);  // 11.52 x 100 x 1.25 / 100
}

TEST_F(HoraireSalarie, MoisPrecSurLaPaieDuMoisPrecedent) {
  Historique("202402", "BASE", 1600.0);
  Historique("202402", "INDDIFF", 40.0);
  Historique("202402", "BASERAPPEL", 100.0);
  Historique("202401", "BASE", 9999.0);
  Historique("202402", "BASE", 5000.0, 7);  // another employee
  HeuresDuMois("202402", 140.0);
  MoisPrec(2);
  EXPECT_DOUBLE_EQ(d, 22.0);  // (1600 + 40 - 100) / 140 x 2
  EXPECT_EQ(t, "M");
}

TEST_F(HoraireSalarie, MoisPrecSansHeuresDonneZero) {
  Historique("202402", "BASE", 1600.0);
  MoisPrec(1);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(t, "");
}

}  // namespace
}  // namespace orvalis::taux_test
