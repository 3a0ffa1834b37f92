// Bases before deductions, of training leave and of the apprentices' threshold.
#include "generic/base_test_util.h"

namespace orvalis::test {
namespace {

// ---- "SANS RETENUE" ---------------------------------------------------------------------

class BaseSansRetenueTest : public PaieDeMars {
 protected:
  BaseSansRetenueTest() {
    Cumul("BASE", 1500.0);
    Cumul("RETABSTRAI", 100.0);
    Cumul("BASERAPPEL", 50.0);
    Cumul("INDRES", 60.0);
    Cumul("RETABSIR", 6.0);
    s.dSalaire_MensuelIATA = 500;
    s.dSalaire_MensuelIATN = 600;
    s.dSalaire_MensuelINTA = 700;
    s.dSalaire_MensuelINTN = 800.5;
    s.iNBJ_Presence_Total = 20;
    s.iNbJourDecalagePaieMoisPrecIATA = 2;
    s.iNbJourDecalagePaieMoisPrecINTA = 1;
    s.iNbJourDecalagePaieMoisPrecIATN = 1;
    s.iNbJourDecalagePaieMoisPrecINTN = 1;
  }
};

TEST_F(BaseSansRetenueTest, TraitementOfAnIndexedModelIsTheMonthsTreatment) {
  s.sTypeModele = "INDTIT";
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 2600.5);
  s.sTypeModele = "INDNTI";
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 2600.5);
}

TEST_F(BaseSansRetenueTest, TraitementOfAnotherModelIsTheTotalsOverThePaidDays) {
  s.sTypeModele = "HORAIR";
  // (1500 - 100 - 50) x 30 / (20 + 2 + 1 + 1 + 1)
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 1620.0);
}

TEST_F(BaseSansRetenueTest, NoPaidDaysGivesZeroWhateverTheModel) {
  s.sTypeModele = "INDTIT";
  s.iNBJ_Presence_Total = 0;
  s.iNbJourDecalagePaieMoisPrecIATA = 0;
  s.iNbJourDecalagePaieMoisPrecINTA = 0;
  s.iNbJourDecalagePaieMoisPrecIATN = 0;
  s.iNbJourDecalagePaieMoisPrecINTN = 0;
  EXPECT_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 0);
  s.sTypeModele = "HORAIR";
  EXPECT_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 0);
  EXPECT_EQ(Base("INDEMNITE DE RESIDENCE SANS RETENUE"), 0);
}

TEST_F(BaseSansRetenueTest, ShiftedDaysThatCancelThePresenceGiveZero) {
  s.iNBJ_Presence_Total = 10;
  s.iNbJourDecalagePaieMoisPrecIATA = -15;
  s.iNbJourDecalagePaieMoisPrecINTA = 5;
  s.iNbJourDecalagePaieMoisPrecIATN = 0;
  s.iNbJourDecalagePaieMoisPrecINTN = 0;
  EXPECT_EQ(Base("INDEMNITE DE RESIDENCE SANS RETENUE"), 0);
}

TEST_F(BaseSansRetenueTest, PaidDaysAreSummedIn16Bits) {
  s.iNBJ_Presence_Total = 32765;
  EXPECT_THROW(Base("TRAITEMENT BASE MOIS SANS RETENUE"), Fault);
}

TEST_F(BaseSansRetenueTest, IndemniteDeResidence) {
  s.sTypeModele = "INDTIT";  // no model branch here
  // (60 - 6) x 30 / 25
  EXPECT_DOUBLE_EQ(Base("INDEMNITE DE RESIDENCE SANS RETENUE"), 64.8);
}

// ---- Training leave ----------------------------------------------------------------------

class BaseFormationTest : public PaieDeMars {
 protected:
  BaseFormationTest() {
    s.dSalaire_MensuelPleinIATA = 1000;
    s.dSalaire_MensuelPleinINTA = 200;
    s.dSalaire_MensuelPleinIATN = 300;
    s.dSalaire_MensuelPleinINTN = 400;
    s.dIndResTotale = 60;
    s.dCoefficient_TraitementTA = 0.8;
    s.dCoefficient_TraitementTN = 0.5;
    s.dCoefficient_IATA = 0.5;
    s.dCoefficient_INTA = 0.25;
    s.dCoefficient_IATN = 0.1;
    s.dCoefficient_INTN = 0.15;
    s.iNBJ_CongeFormationIATA = 3;
    s.iNBJ_CongeFormationINTA = 2;
    s.iNBJ_CongeFormationIATN = 4;
    s.iNBJ_CongeFormationINTN = 1;
    s.iNBJ_CongeFormation_Total = 7;
  }
};

TEST_F(BaseFormationTest, PostNotOccupiedByQuadrant) {
  s.sOccupationPoste = "N";
  // 1200 x 0.8 x 0.75 x 5 / 30 = 120
  // 700 x 0.5 x 0.25 x 5 / 30 = 14.58333
  // 60 x 0.8 x 0.75 x 5 / 30 = 6
  // 60 x 0.5 x (0.15 + 0.15) x 5 / 30 = 1.5   (the new-index share twice)
  EXPECT_DOUBLE_EQ(Base("ASSIETTE FORMATION"), 142.08);
}

TEST_F(BaseFormationTest, PostNotOccupiedRoundsHalfAwayFromZero) {
  s.sOccupationPoste = "N";
  s.dIndResTotale = 0;
  s.dSalaire_MensuelPleinIATN = 0;
  s.dSalaire_MensuelPleinINTN = 0;
  s.dSalaire_MensuelPleinIATA = 1.01;
  s.dSalaire_MensuelPleinINTA = 0;
  s.dCoefficient_TraitementTA = 1;
  s.dCoefficient_IATA = 1;
  s.dCoefficient_INTA = 0;
  s.iNBJ_CongeFormationIATA = 15;
  s.iNBJ_CongeFormationINTA = 0;
  EXPECT_DOUBLE_EQ(Base("ASSIETTE FORMATION"), 0.51);  // 0.505
}

TEST_F(BaseFormationTest, OtherOccupationOverTheWholeMonthUnrounded) {
  s.sOccupationPoste = "P";
  // (1000 + 300 + 200 + 400 + 60) x 7 / 30
  EXPECT_NEAR(Base("ASSIETTE FORMATION"), 457.3333333333, 1e-9);
  s.sOccupationPoste = "";
  EXPECT_NEAR(Base("ASSIETTE FORMATION"), 457.3333333333, 1e-9);
}

TEST_F(BaseFormationTest, QuadrantDaysAreSummedIn16Bits) {
  s.sOccupationPoste = "N";
  s.iNBJ_CongeFormationIATA = 32767;
  EXPECT_THROW(Base("ASSIETTE FORMATION"), Fault);
}

// ---- Apprentices ---------------------------------------------------------------------------
// SmicHor 11.65: S = 11.65 x 151.67 = 1766.9555; L = 0.79 x S = 1395.894845, to the euro 1396.

class BaseApprentiTest : public PaieDeMars {
 protected:
  BaseApprentiTest() { Fixe("SmicHor", 11.65); }
};

TEST_F(BaseApprentiTest, UnderTheThresholdAtTheThreshold) {
  Cumul("ASSURSTOT", 1396.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1396.0);
  EXPECT_EQ(Base("BASE URSSAF TOTALITE APPRENTI"), 0);
}

TEST_F(BaseApprentiTest, BelowTheThreshold) {
  Cumul("ASSURSTOT", 1000.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1000.0);
  EXPECT_EQ(Base("BASE URSSAF TOTALITE APPRENTI"), 0);
}

TEST_F(BaseApprentiTest, AboveTheThreshold) {
  Cumul("ASSURSTOT", 2000.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1396.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF TOTALITE APPRENTI"), 604.0);
}

TEST_F(BaseApprentiTest, OneCentAboveTheThreshold) {
  Cumul("ASSURSTOT", 1396.01);
  EXPECT_NEAR(Base("BASE URSSAF TOTALITE APPRENTI"), 0.01, 1e-9);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1396.0);
}

TEST_F(BaseApprentiTest, PlafonneeReadsTrancheA) {
  Cumul("ASSURSTOT", 3000.0);
  Cumul("ASSURSTRA", 1800.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF PLAFONNEE APPRENTI"), 404.0);
}

TEST_F(BaseApprentiTest, ThresholdRoundsToTheEuro) {
  // SmicHor 10: S = 1516.7, 0.79 x S = 1198.193 -> 1198.
  Fixe("SmicHor", 10.0);
  Cumul("ASSURSTRA", 1198.4);
  EXPECT_NEAR(Base("BASE URSSAF PLAFONNEE APPRENTI"), 0.4, 1e-9);
}

TEST_F(BaseApprentiTest, NullSmicGivesAThresholdOfZero) {
  Fixe("SmicHor", Value());
  Cumul("ASSURSTOT", 250.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF TOTALITE APPRENTI"), 250.0);
  EXPECT_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 0);
}

}  // namespace
}  // namespace orvalis::test
