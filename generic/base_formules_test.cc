// Bases read from the records and the statutory formulas.
#include "generic/base_test_util.h"

namespace orvalis::test {
namespace {

using BaseFormulesTest = PaieDeMars;

// ---- Fields of the records ---------------------------------------------------------------

TEST_F(BaseFormulesTest, PartsOfAnotherLine) {
  r.dMontantSalarialRub = -45.3;
  r.dMontantPatronalRub = 88.1;
  EXPECT_DOUBLE_EQ(Base("PART SALARIALE D'UNE RUBRIQUE"), -45.3);
  EXPECT_DOUBLE_EQ(Base("PART PATRONALE D'UNE RUBRIQUE"), 88.1);
}

TEST_F(BaseFormulesTest, IndiceMajore) {
  s.dIndiceMajoreM = 412;
  s.dIndiceMajoreA = 400;
  EXPECT_DOUBLE_EQ(Base("INDICE MAJORE"), 412.0);
}

TEST_F(BaseFormulesTest, TraitementDeBaseATempsPleinAddsTheFourQuadrants) {
  s.dSalaire_MensuelPleinIATA = 1000;
  s.dSalaire_MensuelPleinIATN = 200;
  s.dSalaire_MensuelPleinINTA = 300;
  s.dSalaire_MensuelPleinINTN = 400.5;
  s.dSalaire_MensuelIATA = 9999;
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE A TEMPS PLEIN"), 1900.5);
}

TEST_F(BaseFormulesTest, MonthlyBasesOfAllowancesAreATwelfth) {
  s.dBase_IATAnnuelPlein = 5400;
  s.dBase_PSRAnnuelPlein = 3000;
  s.dBase_IFTSAnnuelPlein = 6000.6;
  EXPECT_DOUBLE_EQ(Base("BASE IAT MENSUELLE"), 450.0);
  EXPECT_DOUBLE_EQ(Base("BASE PSR MENSUELLE"), 250.0);
  EXPECT_DOUBLE_EQ(Base("BASE IFTS MENSUELLE"), 500.05);
}

TEST_F(BaseFormulesTest, BaseIempMensuelleIsRoundedToTheCent) {
  s.dBase_IEMPAnnuelPlein = 1000;  // 83.3333...
  EXPECT_DOUBLE_EQ(Base("BASE IEMP MENSUELLE"), 83.33);
  s.dBase_IEMPAnnuelPlein = 1000.06;  // 83.33833...
  EXPECT_DOUBLE_EQ(Base("BASE IEMP MENSUELLE"), 83.34);
  s.dBase_IATAnnuelPlein = 1000;  // the IAT is not rounded
  EXPECT_NEAR(Base("BASE IAT MENSUELLE"), 83.333333333333, 1e-9);
}

TEST_F(BaseFormulesTest, AllocationChomageIsRecognisedAndGivesZero) {
  Cumul("ALLOCATION CHOMAGE", 500.0);
  Cumul("ASSURSCHO", 500.0);
  EXPECT_EQ(Base("ALLOCATION CHOMAGE"), 0);
}

// ---- Grade and point -----------------------------------------------------------------------

TEST_F(BaseFormulesTest, TraitementMoyenDuGrade) {
  s.dIndiceDebutGrade = 350;
  s.dIndiceFinGrade = 450;
  Fixe("Point", 59.0734);
  // (350 + 450) / 2 x 59.0734 / 12 = 23629.36 / 12
  EXPECT_NEAR(Base("TRAITEMENT DE BASE MOYEN DU GRADE"), 1969.1133333333, 1e-7);
}

TEST_F(BaseFormulesTest, TraitementIndiceFinDuGrade) {
  s.dIndiceFinGrade = 450;
  Fixe("Point", 59.0734);
  EXPECT_NEAR(Base("TRAITEMENT DE BASE INDICE FIN DU GRADE"), 2215.2525, 1e-9);
}

TEST_F(BaseFormulesTest, GradeWithANullPointGivesZero) {
  s.dIndiceFinGrade = 450;
  EXPECT_EQ(Base("TRAITEMENT DE BASE INDICE FIN DU GRADE"), 0);
}

TEST_F(BaseFormulesTest, TraitementAnnuelN1ReadsThePointOfJanuary) {
  auto& h = m.gRsConstantesFixesHistorique;
  for (auto [mois, point] : {std::pair{"202312", 58.0}, {"202401", 59.0734}, {"202403", 60.0}}) {
    h->AddNew();
    h->SetField("Mois", mois);
    h->SetField("Point", point);
  }
  s.dIndiceMajoreM = 400;
  s.dCoefficient_CPA = 0.8;
  EXPECT_NEAR(Base("TRAITEMENT DE BASE ANNUEL N-1"), 18903.488, 1e-8);
}

TEST_F(BaseFormulesTest, TraitementAnnuelN1WithoutJanuaryGivesZero) {
  s.dIndiceMajoreM = 400;
  s.dCoefficient_CPA = 1;
  EXPECT_EQ(Base("TRAITEMENT DE BASE ANNUEL N-1"), 0);
  m.gRsConstantesFixesHistorique = nullptr;
  EXPECT_THROW(Base("TRAITEMENT DE BASE ANNUEL N-1"), Fault);
}

TEST_F(BaseFormulesTest, BaseAtiRoundsTheYearBeforeTheTwelfth) {
  Constante("ALLTEMPINV", 1234.0);
  Fixe("Point", 59.0734);
  // 1234 x 59.0734 = 72896.5756 -> 72896.58, / 12
  EXPECT_NEAR(Base("BASE ATI"), 6074.715, 1e-9);
}

TEST_F(BaseFormulesTest, PlafondMensuelUrssaf) {
  Fixe("PlafSecu", 3864.0);
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 3864.0);  // no total
  Cumul("ASSPLAFOND", 0.0);
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 3864.0);
  m.gRsCumuls->SetField("PartSalariale", 0.01);
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 0.01);
  m.gRsCumuls->SetField("PartSalariale", 0.004);  // rounds to 0
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 3864.0);
}

// ---- SMIC ---------------------------------------------------------------------------------

class BaseSmicTest : public PaieDeMars {
 protected:
  BaseSmicTest() {
    Fixe("HrsMois", 151.67);
    Fixe("SmicHor", 11.65);
    s.iNBJ_Presence_Total = 30;
  }
};

TEST_F(BaseSmicTest, PercentageOfTheSmicOnTheDaysAtFullPay) {
  Variable("TXSMIC", 80.0);
  Variable("TXHEURES", 20.0);
  s.iNBJ_Presence_Total = 15;
  s.iNBJ_90PourCentTraitement_Total = 5;
  // 151.67 x 11.65 x 80 / 100 = 1413.5644, x 10 / 30
  EXPECT_NEAR(Base("SMIC MENSUEL"), 471.1881333333, 1e-9);
  EXPECT_NEAR(m.gdSmicMensuel, 1766.9555, 1e-9);
}

TEST_F(BaseSmicTest, HourlyRateOfTheEmployeeTakesThePlaceOfTheSmicRate) {
  Variable("TXSMIC", 0.0);
  Variable("TXHEURES", 12.45);  // the plain lookup rounds it to the unit: 12
  // 151.67 x 12 over a full month
  EXPECT_NEAR(Base("SMIC MENSUEL"), 1820.04, 1e-9);
  EXPECT_NEAR(m.gdSmicMensuel, 1766.9555, 1e-9);
}

TEST_F(BaseSmicTest, NegativePercentageFallsToTheHourlyRate) {
  Variable("TXSMIC", -5.0);
  Variable("TXHEURES", 12.5);  // half away from zero: 13
  EXPECT_NEAR(Base("SMIC MENSUEL"), 1971.71, 1e-9);
}

TEST_F(BaseSmicTest, WithoutVariablesTheFullSmicOnTheDaysAtFullPay) {
  s.iNBJ_2TiersTraitement_Total = 10;
  EXPECT_NEAR(Base("SMIC MENSUEL"), 1177.9703333333, 1e-9);
}

TEST_F(BaseSmicTest, PercentageIsNotRounded) {
  Variable("TXSMIC", 80.4);
  // 151.67 x 11.65 x 80.4 / 100 over a full month
  EXPECT_NEAR(Base("SMIC MENSUEL"), 1420.6322220, 1e-6);
}

TEST_F(BaseSmicTest, DaysAreSubtractedIn16BitsAndTheSmicIsKeptFirst) {
  s.iNBJ_90PourCentTraitement_Total = 32767;
  s.iNBJ_2TiersTraitement_Total = 100;
  EXPECT_THROW(Base("SMIC MENSUEL"), Fault);
  EXPECT_NEAR(m.gdSmicMensuel, 1766.9555, 1e-9);
}

TEST_F(BaseSmicTest, NoVariablesSourceIsAFault) {
  vars = nullptr;
  EXPECT_THROW(Base("SMIC MENSUEL"), Fault);
}

// ---- Leisure centres -------------------------------------------------------------------------

class BaseClshTest : public PaieDeMars {
 protected:
  BaseClshTest() {
    Variable("NBDCLSH", 2.0);
    Variable("NBJCCLSH", 1.5);  // a half day stays a half day
    Variable("NBJCLSH", 3.0);
    Variable("NBSCLSH", 1.0);
    Variable("NBMCLSH", 2.0);
    Constante("ASSJCLSB", 25.5);
    Constante("ASSSCLSB", 100.0);
    Constante("ASSMCLSB", 300.0);
    Constante("ASSJCLAB", 30.0);
    Constante("ASSSCLAB", 120.0);
    Constante("ASSMCLAB", 350.0);
    Constante("ASSSCLDI", 150.0);
    Constante("ASSMCLDI", 400.0);
  }
};

TEST_F(BaseClshTest, SansBafa) {
  // (2 + 1.5 + 3) x 25.5 + 1 x 100 + 2 x 300
  EXPECT_DOUBLE_EQ(Base("ASSIETTE CLSH SANS BAFA"), 865.75);
}

TEST_F(BaseClshTest, AvecBafa) {
  // 6.5 x 30 + 1 x 120 + 2 x 350
  EXPECT_DOUBLE_EQ(Base("ASSIETTE CLSH AVEC BAFA"), 1015.0);
}

TEST_F(BaseClshTest, DirecteurByStayAndMonthOnly) {
  EXPECT_DOUBLE_EQ(Base("ASSIETTE CLSH DIRECTEUR"), 950.0);
}

TEST_F(BaseClshTest, DirecteurStillReadsTheDays) {
  vars->MoveFirst();
  vars->Filter("CodeVariable = 'NBJCLSH'");
  vars->SetField("Valeur", "trois");
  vars->ClearFilter();
  EXPECT_THROW(Base("ASSIETTE CLSH DIRECTEUR"), Fault);
}

TEST_F(BaseClshTest, MissingVariablesAndConstantsCountZero) {
  vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "Dateeffet"});
  EXPECT_EQ(Base("ASSIETTE CLSH SANS BAFA"), 0);
}

// ---- Through the period and the tax at source -------------------------------------------------

TEST_F(BaseFormulesTest, NombreJoursReelsOfTheMonth) {
  s.sDateDebut = "10/03/2024";
  EXPECT_EQ(Base("NOMBRE JOURS REELS"), 22);
  m.gPeriodeEncours = "01/02/2024";
  s.sDateDebut = "01/01/2020";
  EXPECT_EQ(Base("NOMBRE JOURS REELS"), 29);
  s.sDateDebut = "";
  EXPECT_EQ(Base("NOMBRE JOURS REELS"), 0);
}

TEST_F(BaseFormulesTest, IJBrutesSoumisesAuPas) {
  s.rsIndemnitesJournalieres = NouveauRecordset({"IJPAS"});
  for (Value v : {Value(120.5), Value(), Value(30.0)}) {
    s.rsIndemnitesJournalieres->AddNew();
    s.rsIndemnitesJournalieres->SetField("IJPAS", v);
  }
  EXPECT_DOUBLE_EQ(Base("IJ BRUTES SOUMISES AU PAS"), 150.5);
}

TEST_F(BaseFormulesTest, SalaireImposableAbattuGoesThroughTheAssessmentBase) {
  Cumul("NETIMPOS", 1800.456);
  Cumul("BRUT", 2000.0);
  Cumul("TOTDEDUCT", 300.0);
  s.dTauxPAS = 5;
  s.bTauxPasValide = true;
  EXPECT_DOUBLE_EQ(Base("SALAIRE IMPOSABLE ABATTU"), 1800.46);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 1800.46);
}

TEST_F(BaseFormulesTest, ShortContractAllowanceOnlyOnTheAbatedBase) {
  Cumul("NETIMPOS", 1800.46);
  Cumul("BRUT", 2000.0);
  Cumul("TOTDEDUCT", 300.0);
  Constante("DEMISMIC", 700.0);
  s.dTauxPAS = -1;
  s.bContratCourt = true;
  s.dMontantBase_PAS = -7;
  EXPECT_DOUBLE_EQ(Base("SALAIRE IMPOSABLE"), 1700.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, -7);  // untouched by the plain taxable salary
  EXPECT_NEAR(Base("SALAIRE IMPOSABLE ABATTU"), 1100.46, 1e-9);
  EXPECT_NEAR(s.dMontantBase_PAS, 1100.46, 1e-9);
}

}  // namespace
}  // namespace orvalis::test
