// Complementary hours of the month and of the month before, and the differential complement
// of 35 hours, through the calculation entry. The hours of the line are its base: the
// employee amount of another line, 10 hours.
#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class HeuresComplementaires : public PaieSalaire {
 protected:
  HeuresComplementaires() {
    s.sTypeModele = "INDTIT";
    s.dBase_HSN = 23629.36;  // Arrondi(400 x 59.0734, 2)
    s.dBase_HSA = 21620.86;  // Arrondi(366 x 59.0734, 2)
    Fixe("SmicHor", 11.65);
    Fixe("HrsMois", 151.67);
    FixesDuMois("202402", {{"SmicHor", 11.52}, {"HrsMois", 151.67}});
    BaseAutreLigne(10);
    LigneDuHote();
  }
};

TEST_F(HeuresComplementaires, IndiciaireSurLaDureeLegale) {
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS"));
  Ligne(10, 12.98, 129.8);  // Arrondi(23629.36 / (35 x 52), 2) = Arrondi(12.98316, 2); x 10
}

TEST_F(HeuresComplementaires, IndiciaireSansDureeLegaleSurLesHeuresDuMois) {
  s.dDureeHebdoLegale = 0;
  s.sTypeModele = "INDNTI";
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS"));
  Ligne(10, 12.98, 129.8);  // Arrondi(23629.36 / (151.67 x 12), 2) = Arrondi(12.98288, 2)
}

TEST_F(HeuresComplementaires, IndiciaireReleveAuSmic) {
  s.dBase_HSN = 18000;
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS"));
  Ligne(10, 11.65, 116.5);  // Arrondi(18000 / 1820, 2) = 9.89 < 11.65
  s.dDureeHebdoLegale = 0;
  Fixe("HrsMois", Value());
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS"));
  Ligne(10, 11.65, 116.5);  // no hours: a rate of 0, lifted to the SMIC
}

TEST_F(HeuresComplementaires, AutreModeleEnPourcentageDuSmicSansPlancher) {
  s.sTypeModele = "HORAIR";
  Var("TXSMIC", 80.0);
  Var("TXHEURES", 20.0);
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS"));
  Ligne(10, 9.32, 93.2);  // 80 x 11.65 / 100 = 9.32, below the SMIC and kept
}

TEST_F(HeuresComplementaires, AutreModeleASonTauxHoraire) {
  s.sTypeModele = "HORAIR";
  Var("TXHEURES", 15.4);  // read to the unit: 15
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS"));
  Ligne(10, 15, 150);
}

TEST_F(HeuresComplementaires, SansHeuresLaLigneEstAZero) {
  BaseAutreLigne(0);
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS"));
  Ligne(0, 0, 0);
}

TEST_F(HeuresComplementaires, MoisPrecedentSurLaReferenceEtLeSmicDeCeMois) {
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS PREC."));
  Ligne(10, 11.88, 118.8);  // Arrondi(21620.86 / 1820, 2) = Arrondi(11.87959, 2)
  s.dBase_HSA = 18000;
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS PREC."));
  Ligne(10, 11.52, 115.2);  // 9.89 lifted to the SMIC of February, 11.52
}

TEST_F(HeuresComplementaires, MoisPrecedentAuxVariablesDeCeMois) {
  s.sTypeModele = "HORAIR";
  Var("TXSMIC", 200.0);
  Variable(varsHisto, "TXSMIC", 110.0);
  ASSERT_TRUE(Calcul("HEURES COMPLEMENTAIRES DU MOIS PREC."));
  Ligne(10, 12.672, 126.72);  // 110 x 11.52 / 100
  // Without the variables of that month, those of the month.
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("HEURES COMPLEMENTAIRES DU MOIS PREC.", s, r, vars));
  Ligne(10, 23.04, 230.4);  // 200 x 11.52 / 100
}

class Complement35H : public PaieSalaire {
 protected:
  Complement35H() {
    Fixe("SmicHor", 11.65);
    Fixe("HrsMois", 169.0);
    Constante("SMICTXVAL", 11.4);
    Constante("SMIC35", 10.5);
    Cumul("HEURES", 84.5);
    LigneDuHote();
  }
};

TEST_F(Complement35H, UnMoisCompletSuitLesHeuresTravaillees) {
  Var("NBHRAV35", 169.0);
  Var("TXSMIC", 100.0);
  ASSERT_TRUE(Calcul("COMPLEMENT DIFFERENTIEL 35 H"));
  // A = 84.5 x 169 / 169 = 84.5; guaranteed Arrondi(1.114 x 10.5 x 84.5, 2) = 988.40;
  // paid 84.5 x (100 x 11.65 / 100) = 984.425
  Ligne(988.4, 0, 988.4 - 984.425);
}

TEST_F(Complement35H, DesHeuresAvantTrenteCinqHeuresAuTauxHoraire) {
  Var("NBHRAV35", 150.0);
  Var("TXHEURES", 12.345);  // read as it is
  ASSERT_TRUE(Calcul("COMPLEMENT DIFFERENTIEL 35 H"));
  // Arrondi(1.114 x 10.5 x 150, 2) = 1754.55; paid 84.5 x 12.345 = 1043.1525
  Ligne(1754.55, 0, 1754.55 - 1043.1525);
}

TEST_F(Complement35H, UnTauxSmicNulNePaieRien) {
  Var("NBHRAV35", 150.0);
  Var("TXSMIC", 0.0);
  Var("TXHEURES", 12.345);
  ASSERT_TRUE(Calcul("COMPLEMENT DIFFERENTIEL 35 H"));
  Ligne(1754.55, 0, 1754.55);  // the rate of a TXSMIC of 0 is 0
}

TEST_F(Complement35H, SansHeuresAvantTrenteCinqHeuresLaLigneEstAZero) {
  Var("NBHRAV35", -3.0);
  ASSERT_TRUE(Calcul("COMPLEMENT DIFFERENTIEL 35 H"));
  Ligne(0, 0, 0);
}

TEST_F(Complement35H, UnMoisCompletSansHeuresDuMoisEstUneFaute) {
  Var("NBHRAV35", 169.0);
  Fixe("HrsMois", Value());
  EXPECT_FALSE(Calcul("COMPLEMENT DIFFERENTIEL 35 H"));  // division by zero
}

}  // namespace
}  // namespace orvalis::salaire_test
