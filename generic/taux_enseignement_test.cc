// Hourly rates of the teaching allowances.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

class TauxEnseignement : public PaieTaux {
 protected:
  TauxEnseignement() {
    s.dIndiceDebutGrade = 400;
    s.dIndiceFinGrade = 600;  // mean index 500
    Fixe("Point", 60.0);      // P = 30000
    Constante("IMINDHENSP", 800.0);  // out of class: P = 48000
  }
};

TEST_F(TauxEnseignement, IndiceMoyenDuGradeSansDureeLegale) {
  // 30000 x 9 / 13 x 1.2 / 12 / 4 = 324000 / 624
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT 1ERE HEURE"), 324000.0 / 624, 1e-9);
  EXPECT_EQ(type, "");
  // 30000 x 9 / 13 / 12 / 4 = 270000 / 624
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT"), 270000.0 / 624, 1e-9);
  // 30000 x 9 / 13 x 1.25 / 36 = 337500 / 468
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT MAJORE"), 337500.0 / 468, 1e-9);
}

TEST_F(TauxEnseignement, ParHeureDeLaDureeLegale) {
  s.dDureeHebdoLegale = 18;  // D = 30000 / 18
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT"), 15000.0 / 624, 1e-9);
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT 1ERE HEURE"), 18000.0 / 624, 1e-9);
}

TEST_F(TauxEnseignement, ProfesseurHorsClasse) {
  // 48000 x 9 / 13 x 1.1 x 1.2 / 12 / 4 = 570240 / 624
  EXPECT_NEAR(TauxS("TAUX HORAIRE IND ENS 1ERE HEURE PROF HORS CLASSE"), 570240.0 / 624, 1e-9);
  // 48000 x 9 / 13 x 1.1 / 12 / 4 = 475200 / 624
  EXPECT_NEAR(TauxS("TAUX HORAIRE IND ENS PROF HORS CLASSE"), 475200.0 / 624, 1e-9);
  // 48000 x 9 / 13 x 1.1 x 1.25 / 36 = 594000 / 468
  EXPECT_NEAR(TauxS("TAUX HORAIRE IND ENS MAJORE PROF HORS CLASSE"), 594000.0 / 468, 1e-9);
  s.dDureeHebdoLegale = 16;  // D = 3000
  EXPECT_NEAR(TauxS("TAUX HORAIRE IND ENS PROF HORS CLASSE"), 29700.0 / 624, 1e-9);
}

TEST_F(TauxEnseignement, PointNulDonneZero) {
  Fixe("Point", Value());
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE IND ENS PROF HORS CLASSE"), 0.0);
}

}  // namespace
}  // namespace orvalis::taux_test
