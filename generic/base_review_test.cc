// Second reading of the base resolver: every designation row with the amounts it must give,
// computed by hand, and the behaviour on null columns, empty sources and missing sources.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "generic/paie_test_util.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {
namespace {

class BaseReviewTest : public paie_test::PaieDeMarsCommune {
 protected:
  BaseReviewTest()
      : PaieDeMarsCommune({"Point", "PlafSecu", "SmicHor", "HrsMois"}, {"Mois", "Point"}) {}

  // A current total; the employer side defaults to a figure no rule of the employee side
  // may return.
  void Cumul(const std::string& code, const Value& sal, const Value& pat = 987654.0,
             int id = 0) {
    paie_test::AjouteCumul(m.gRsCumuls, code, sal, pat, id);
  }
  void Histo(int idSalarie, const std::string& mois, const std::string& code, const Value& sal,
             const Value& pat = 876543.0) {
    paie_test::AjouteHistorique(m.gRsCumulsHistoriqueSal, idSalarie, mois, code, sal, pat);
  }
  void Var(const std::string& code, const Value& v, int id = 0, const Value& date = Value(),
           const Value& tm = "M") {
    paie_test::AjouteVariable(vars, code, v, id, date, tm);
  }
};

// ---- One current total, employee side, rounded to 2 places by the lookup ------------------

const std::vector<std::pair<const char*, const char*>> kUnCumul = {
    {"NOMBRE HEURES TRAVAILLEES", "HEURES"},
    {"TRAITEMENT DE BASE DU MOIS", "BASE"},
    {"BONIFICATION INDICIAIRE", "BONIF"},
    {"SUPPFAM", "SUPPFAM"},
    {"SUPPLEMENT FAMILIAL", "SUPPFAM"},
    {"INDEMNITE DE RESIDENCE", "INDRES"},
    {"HEURESUPP", "HEURESUPP"},
    {"TRAITEMENT DE BASE DU MOIS + PRIMES", "TBIETPRIME"},
    {"SALAIRE BRUT", "BRUT"},
    {"BASE BONIFICATION INDICIAIRE", "ASSBONIF"},
    {"BASE BONIFICATION INDICIAIRE DETACHEMENT ETAT", "ASSBONIFDE"},
    {"BASE URSSAF TOTALITE", "ASSURSTOT"},
    {"BASE URSSAF TOTALITE EXONEREE", "ASSURSEXO"},
    {"BASE URSSAF TRANCHE A", "ASSURSTRA"},
    {"BASE URSSAF TRANCHE B", "ASSURSTRB"},
    {"BASE URSSAF REVENU REMPLACEMENT", "ASSURSREM"},
    {"BASE IRCANTEC TRANCHE A", "ASSIRCTRA"},
    {"BASE IRCANTEC TRANCHE B", "ASSIRCTRB"},
    {"BASE ASSEDIC TRANCHE A", "ASSASSTRA"},
    {"BASE ASSEDIC TRANCHE B", "ASSASSTRB"},
    {"BASE CNRACL EXONEREE CHARGES PAT.", "ASSCNREXO"},
    {"BASE CNRACL DETACHEMENT ETAT", "ASSCNRDET"},
    {"BASE CNRACL TEMPS PLEIN", "ASSCNRTP"},
    {"BASE CNRACL TEMPS PLEIN BONIF", "ASSCNRTPB"},
    {"BASE RAFP", "ASSRAFP"},
    {"BASE CNRACL", "ASSCNRACL"},
    {"BASE CSG/RDS", "ASSCSG"},
    {"REVENUS DE REMPLACEMENT", "BASEREMP"},
    {"BASE ATIACL", "ASSATIACL"},
    {"BASE URSSAF TOTALITE EXONEREE (SERV PERS)", "ASSURSEXOS"},
    {"BASE REDUCTION SUR HS", "ASSREDHS"},
    {"BASE REDUCTION SUR HS NON DEDUCTIBLE", "ASSREDHSN"},
    {"CHOMAGE", "ASSURSCHO"},
    {"VALORISATION JOURS CET", "VALJRSCET"},
    {"BASE URSSAF FNAL CALCULEE", "ASSFNALCAL"},
    {"BASE DETACHEMENT ETAT TEMPS PLEIN", "ASSSRETP"},
    {"BASE DETACHEMENT ETAT TEMPS PLEIN BONIF", "ASSSRETPB"},
    {"INDEMNITES JOURNALIERES", "ASSURSIJ"},
    {"DEMI TRAITEMENT", "BASEDEMITR"},
    {"BASE CDG/CNFPT", "ASSCNFPT"},
};

TEST_F(BaseReviewTest, EachSingleTotalReadsItsCodeOnTheEmployeeSideRounded) {
  // Code number i carries 1000.125 + 10 i, which the lookup rounds half away to 1000.13 + 10 i.
  std::vector<std::string> codes;
  for (const auto& [d, code] : kUnCumul) {
    bool vu = false;
    for (const auto& c : codes) vu = vu || c == code;
    if (!vu) codes.push_back(code);
  }
  for (size_t i = 0; i < codes.size(); ++i) Cumul(codes[i], 1000.125 + 10.0 * i);
  for (const auto& [d, code] : kUnCumul) {
    size_t i = 0;
    while (codes[i] != code) ++i;
    EXPECT_NEAR(Base(d), 1000.13 + 10.0 * i, 1e-9) << d;
  }
  EXPECT_EQ(m.gRsCumuls->RecordCount(), static_cast<long>(codes.size()));  // filters cleared
}

TEST_F(BaseReviewTest, SingleTotalWithNoRowGivesZeroAndNullGivesZero) {
  Cumul("BRUT", Value());
  EXPECT_EQ(Base("SALAIRE BRUT"), 0);
  EXPECT_EQ(Base("BASE RAFP"), 0);
}

TEST_F(BaseReviewTest, SingleTotalOnAnEmptySourceIsZeroOnNoSourceAFault) {
  EXPECT_EQ(Base("BASE CSG/RDS"), 0);
  m.gRsCumuls = nullptr;
  EXPECT_THROW(Base("BASE CSG/RDS"), Fault);
}

TEST_F(BaseReviewTest, EmployerSideTotals) {
  // Employee side 1 each: only PartPatronale may come back, rounded to 2 places.
  Cumul("COTPREVOYA", 1.0, 45.125);
  Cumul("COTFORSOC", 1.0, 12.005);    // 12.005 is 12.00499.. in binary: the decimal step
  Cumul("COTRETCOMP", 1.0, Value());  // gives 12.01; a null gives 0
  EXPECT_NEAR(Base("PART PATRONALE PREVOYANCE"), 45.13, 1e-9);
  EXPECT_NEAR(Base("PART PATRONALE FORFAIT SOCIAL"), 12.01, 1e-9);
  EXPECT_EQ(Base("PART PATRONALE RETRAITE COMPLEMENTAIRE"), 0);
}

// ---- Combinations of current totals -------------------------------------------------------

class BaseReviewCombinaisons : public BaseReviewTest {
 protected:
  BaseReviewCombinaisons() {
    Cumul("BASEPRP", 500.0);
    Cumul("RETABSPR", 20.0);
    Cumul("RETABSPRR", 5.0);
    Cumul("BASEPRPSTP", 300.0);
    Cumul("RETABSPRT", 30.0);
    Cumul("RETABSPRTR", 3.0);
    Cumul("AVANTLOG", 10.0);
    Cumul("AVANTREP", 20.0);
    Cumul("AVANTVOI", 40.0);
    Cumul("AVANTDIV", 80.0);
    Cumul("COTMUTPAT", 12.0, 25.0);
    Cumul("BRUT", 2500.0);
    Cumul("TOTDEDUCT", 300.0);
    Cumul("ASSREDHS", 100.0);
    Cumul("TOTNDEDUCT", 50.0);
    Cumul("TOTNONIMP", 70.0);
    Cumul("BASE", 1800.0);
    Cumul("HEURESUPP", 150.0);
    Cumul("PAREMP", 400.0);
    Cumul("INDDIFF", 11.0);
    Cumul("ICCSG", 13.0);
    Cumul("HEURECOMP", 17.0);
    Cumul("TBIETPRIME", 2200.0);
  }
};

TEST_F(BaseReviewCombinaisons, SumsOfCurrentTotals) {
  EXPECT_DOUBLE_EQ(Base("AUTRES PRIMES"), 475);              // 500 - 20 - 5
  EXPECT_DOUBLE_EQ(Base("AUTRES PRIMES EXCLUES TPP"), 267);  // 300 - 30 - 3
  EXPECT_DOUBLE_EQ(Base("AVANTAGES EN NATURE"), 150);        // 10 + 20 + 40 + 80
  EXPECT_DOUBLE_EQ(Base("PART PATRONALE MUTUELLE"), 37);     // 25 (P) + 12 (S)
  EXPECT_DOUBLE_EQ(Base("SALAIRE BRUT + COTISATIONS PATRONALES DANS CSG"), 2525);  // 25 + 2500
  EXPECT_DOUBLE_EQ(Base("SALARIE NET A PAYER"), 2220);       // 2500 - 300 - 50 + 70
  EXPECT_DOUBLE_EQ(Base("BASE TRAITEMENT MOIS + HRS SUPP"), 1950);  // 1800 + 150
  EXPECT_DOUBLE_EQ(Base("BASE ASSEDIC TOTALITE"), 2100);     // 2500 - 400
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + ID + ICCSG + HC"), 1841);  // 1800+11+13+17
  // The two forms naming ICCSG beside the primes read no ICCSG total.
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE + ID + ICCSG + HC + PRIMES + TPP"), 2228);  // 17+11+2200
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + ID + ICCSG"), 1824);                   // 11+13+1800
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + ID + ICCSG + PRIMES + TPP"), 2211);    // 11+2200
}

TEST_F(BaseReviewCombinaisons, BaseTaxeSalaireTakesOffThePartialActivityAllowance) {
  s.dMtIndActPar = 123.45;
  EXPECT_NEAR(Base("BASETAXESALAIRE"), 2401.55, 1e-9);  // 25 + 2500 - 123.45
  s.dMtIndActPar = 0;
  EXPECT_DOUBLE_EQ(Base("BASETAXESALAIRE"), 2525);
}

TEST_F(BaseReviewCombinaisons, SalaireImposableIsGrossLessDeductions) {
  EXPECT_DOUBLE_EQ(Base("SALAIRE IMPOSABLE"), 2200);  // 2500 - 300
  s.bCalculReductionSurHS = true;
  EXPECT_DOUBLE_EQ(Base("SALAIRE IMPOSABLE"), 2100);  // 2500 - 300 - 100
}

TEST_F(BaseReviewCombinaisons, SalaireImposableDoesNotGoThroughTheTaxAtSourceBase) {
  // A short contract on the neutral rate would lose DEMISMIC in the assessment base, and an
  // apprentice would take the threshold: neither touches "SALAIRE IMPOSABLE".
  Constante("DEMISMIC", 500.0);
  Cumul("NETIMPOS", 1900.0);
  s.dTauxPAS = -1;
  s.bContratCourt = true;
  s.sCodeCategorie = "APPRENTI";
  s.dMontantBase_PAS = 777;
  EXPECT_DOUBLE_EQ(Base("SALAIRE IMPOSABLE"), 2200);
  EXPECT_EQ(s.dMontantBase_PAS, 777);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

TEST_F(BaseReviewTest, SalaireImposableAbattuIsTheTaxAtSourceAssessmentBase) {
  Constante("DEMISMIC", 500.0);
  Cumul("NETIMPOS", 1500.125);  // read as 1500.13
  Cumul("BRUT", 9999.0);
  s.dTauxPAS = -1;
  s.bContratCourt = true;
  EXPECT_NEAR(Base("SALAIRE IMPOSABLE ABATTU"), 1000.13, 1e-9);  // 1500.13 - 500
  EXPECT_NEAR(s.dMontantBase_PAS, 1000.13, 1e-9);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  // A valid personal rate: no allowance.
  s.dTauxPAS = 5;
  s.bTauxPasValide = true;
  EXPECT_NEAR(Base("SALAIRE IMPOSABLE ABATTU"), 1500.13, 1e-9);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

// ---- Totals of the month before ---------------------------------------------------------

class BaseReviewMoisPrec : public BaseReviewTest {
 protected:
  BaseReviewMoisPrec() {
    // Decoys: another employee, this month, two months before.
    Histo(43, "202402", "BASE", 1.0);
    Histo(42, "202403", "BASE", 2.0);
    Histo(42, "202401", "BASE", 3.0);
    Histo(42, "202402", "BASE", 1700.555);  // history is read without rounding
    Histo(42, "202402", "BONIF", 80.0);
    Histo(42, "202402", "INDRES", 45.5);
    Histo(42, "202402", "BASEPRP", 400.0);
    Histo(42, "202402", "RETABSPR", 40.0);
    Histo(42, "202402", "RETABSPRR", 4.0);
    Histo(42, "202402", "BASEPRPSTP", 200.0);
    Histo(42, "202402", "RETABSPRT", 20.0);
    Histo(42, "202402", "RETABSPRTR", 2.0);
    Histo(42, "202402", "BASERAPPEL", 100.0);
    Histo(42, "202402", "RETABSTRAI", 50.0);
    Histo(42, "202402", "RETABSIR", 5.5);
    Cumul("BASE", 5555.0);  // the current total is not read
  }
};

TEST_F(BaseReviewMoisPrec, MonthBeforeTotalsOfTheEmployee) {
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE DU MOIS PREC"), 1700.555);
  EXPECT_DOUBLE_EQ(Base("BONIFICATION INDICIAIRE MOIS PREC"), 80);
  EXPECT_DOUBLE_EQ(Base("INDEMNITE DE RESIDENCE MOIS PREC"), 45.5);
  EXPECT_DOUBLE_EQ(Base("AUTRES PRIMES MOIS PREC"), 356);              // 400 - 40 - 4
  EXPECT_DOUBLE_EQ(Base("AUTRES PRIMES EXCLUES TPP MOIS PREC"), 178);  // 200 - 20 - 2
  // 1700.555 - 100 - 50 - 80
  EXPECT_NEAR(Base("TRAITEMENT BASE MOIS PREC SANS RETENUE"), 1470.555, 1e-9);
  EXPECT_DOUBLE_EQ(Base("INDEMNITE DE RESIDENCE MOIS PREC SANS RETENUE"), 40);  // 45.5 - 5.5
}

TEST_F(BaseReviewMoisPrec, MonthBeforeOfJanuaryIsDecemberOfTheYearBefore) {
  m.gPeriodeEncours = "01/01/2024";
  Histo(42, "202312", "BASE", 1650.0);
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE DU MOIS PREC"), 1650);
}

TEST_F(BaseReviewMoisPrec, MonthBeforeWithNoRowGivesZero) {
  s.lIdSalarie = 44;
  EXPECT_EQ(Base("TRAITEMENT DE BASE DU MOIS PREC"), 0);
}

TEST_F(BaseReviewTest, MonthBeforeEmptyHistoryIsZeroNoSourceIsAFault) {
  EXPECT_EQ(Base("INDEMNITE DE RESIDENCE MOIS PREC"), 0);
  m.gRsCumulsHistoriqueSal = nullptr;
  EXPECT_THROW(Base("INDEMNITE DE RESIDENCE MOIS PREC"), Fault);
}

TEST_F(BaseReviewTest, PrimesJanvierReadsJanuaryOfThePayYear) {
  Histo(42, "202401", "TBIETPRIME", 2100.5);
  Histo(42, "202402", "TBIETPRIME", 9.0);
  Histo(42, "202301", "TBIETPRIME", 7.0);
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + PRIMES JANVIER"), 2100.5);
  m.gPeriodeEncours = "01/01/2024";  // January itself, not the month before
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + PRIMES JANVIER"), 2100.5);
  m.gPeriodeEncours = "01/12/2023";
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + PRIMES JANVIER"), 7);
}

// ---- Fields of the records ------------------------------------------------------------------

TEST_F(BaseReviewTest, FieldsOfTheRecords) {
  r.dMontantSalarialRub = -12.34;
  r.dMontantPatronalRub = 56.78;
  s.dIndiceMajoreM = 352;
  s.dSalaire_MensuelPleinIATA = 100;
  s.dSalaire_MensuelPleinIATN = 200;
  s.dSalaire_MensuelPleinINTA = 300;
  s.dSalaire_MensuelPleinINTN = 400.5;
  s.dSalaire_MensuelIATA = 9999;  // not the full-month fields
  EXPECT_DOUBLE_EQ(Base("PART SALARIALE D'UNE RUBRIQUE"), -12.34);
  EXPECT_DOUBLE_EQ(Base("PART PATRONALE D'UNE RUBRIQUE"), 56.78);
  EXPECT_DOUBLE_EQ(Base("INDICE MAJORE"), 352);
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE A TEMPS PLEIN"), 1000.5);
}

TEST_F(BaseReviewTest, MonthlyBasesOfYearlyAllowances) {
  s.dBase_IATAnnuelPlein = 1000;
  s.dBase_PSRAnnuelPlein = 2000;
  s.dBase_IFTSAnnuelPlein = 1;
  s.dBase_IEMPAnnuelPlein = 1000.14;  // 83.345 a month, rounded half away: 83.35
  EXPECT_NEAR(Base("BASE IAT MENSUELLE"), 83.333333333333, 1e-9);  // not rounded
  EXPECT_NEAR(Base("BASE PSR MENSUELLE"), 166.666666666667, 1e-9);
  EXPECT_NEAR(Base("BASE IFTS MENSUELLE"), 0.083333333333, 1e-9);
  EXPECT_DOUBLE_EQ(Base("BASE IEMP MENSUELLE"), 83.35);
  s.dBase_IEMPAnnuelPlein = 1000;  // 83.3333..: 83.33
  EXPECT_DOUBLE_EQ(Base("BASE IEMP MENSUELLE"), 83.33);
}

TEST_F(BaseReviewTest, NombreJoursReels) {
  s.sDateDebut = "10/03/2024";
  EXPECT_EQ(Base("NOMBRE JOURS REELS"), 22);  // 31 - 10 + 1
  s.sDateDebut = "";
  EXPECT_EQ(Base("NOMBRE JOURS REELS"), 0);
  s.sDateDebut = "01/01/2020";
  m.gPeriodeEncours = "01/02/2024";
  EXPECT_EQ(Base("NOMBRE JOURS REELS"), 29);
}

TEST_F(BaseReviewTest, IJBrutesSoumisesAuPasSumTheTaxableBenefits) {
  s.rsIndemnitesJournalieres = NouveauRecordset({"IJPAS"});
  for (const Value& v : {Value(10.5), Value(), Value(20.25)}) {
    s.rsIndemnitesJournalieres->AddNew();
    s.rsIndemnitesJournalieres->SetField("IJPAS", v);
  }
  EXPECT_DOUBLE_EQ(Base("IJ BRUTES SOUMISES AU PAS"), 30.75);
}

TEST_F(BaseReviewTest, AllocationChomageIsKnownAndWorthZero) {
  Cumul("ALLOCATION CHOMAGE", 100.0);
  Cumul("ASSURSCHO", 100.0);
  EXPECT_EQ(Base("ALLOCATION CHOMAGE"), 0);
  m.gRsCumuls = nullptr;
  m.gRsConstantesFixes = nullptr;
  EXPECT_EQ(Base("ALLOCATION CHOMAGE"), 0);
}

// ---- Statutory formulas -----------------------------------------------------------------

TEST_F(BaseReviewTest, GradeTreatments) {
  Fixe("Point", 4.92278);
  s.dIndiceDebutGrade = 350;
  s.dIndiceFinGrade = 450;
  // (350 + 450) / 2 = 400; 400 x 4.92278 = 1969.112; / 12
  EXPECT_NEAR(Base("TRAITEMENT DE BASE MOYEN DU GRADE"), 164.092666666667, 1e-9);
  // 450 x 4.92278 = 2215.251; / 12
  EXPECT_NEAR(Base("TRAITEMENT DE BASE INDICE FIN DU GRADE"), 184.60425, 1e-9);
  Fixe("Point", Value());
  EXPECT_EQ(Base("TRAITEMENT DE BASE INDICE FIN DU GRADE"), 0);
}

TEST_F(BaseReviewTest, TraitementAnnuelN1ReadsThePointOfJanuaryOfThisYear) {
  auto& h = m.gRsConstantesFixesHistorique;
  for (const auto& [mois, point] :
       std::vector<std::pair<const char*, double>>{{"202301", 4.8}, {"202401", 4.85003},
                                                   {"202402", 4.9}, {"202403", 4.92278}}) {
    h->AddNew();
    h->SetField("Mois", mois);
    h->SetField("Point", point);
  }
  s.dIndiceMajoreM = 400;
  s.dCoefficient_CPA = 0.5;
  EXPECT_NEAR(Base("TRAITEMENT DE BASE ANNUEL N-1"), 970.006, 1e-9);  // 400 x 4.85003 x 0.5
  s.dCoefficient_CPA = 0;
  EXPECT_EQ(Base("TRAITEMENT DE BASE ANNUEL N-1"), 0);
}

TEST_F(BaseReviewTest, BaseATIRoundsTheYearlyAmountBeforeTheTwelfth) {
  Fixe("Point", 4.92278);
  Constante("ALLTEMPINV", 1.5);
  // 1.5 x 4.92278 = 7.38417, rounded 7.38; / 12 = 0.615 (unrounded it would be 0.6153475)
  EXPECT_NEAR(Base("BASE ATI"), 0.615, 1e-12);
}

TEST_F(BaseReviewTest, PlafondMensuelUrssaf) {
  Fixe("PlafSecu", 3864.0);
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 3864);  // no total
  Cumul("ASSPLAFOND", 0.01);
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 0.01);
  m.gRsCumuls->SetField("PartSalariale", 0.004);  // read as 0.00: the ceiling stands in
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 3864);
  m.gRsCumuls->SetField("PartSalariale", 0.0);
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), 3864);
  m.gRsCumuls->SetField("PartSalariale", -5.0);
  EXPECT_DOUBLE_EQ(Base("PLAFOND MENSUEL URSSAF"), -5);
}

class BaseReviewSmic : public BaseReviewTest {
 protected:
  BaseReviewSmic() {
    Fixe("HrsMois", 151.67);
    Fixe("SmicHor", 11.65);  // 151.67 x 11.65 = 1766.9555
    s.iNBJ_Presence_Total = 30;
  }
};

TEST_F(BaseReviewSmic, RateOfSmicIsReadWithoutRounding) {
  Var("TXSMIC", 80.5);
  Var("TXHEURES", 12.0);  // not read when TXSMIC is above 0
  s.iNBJ_Presence_Total = 15;
  s.iNBJ_90PourCentTraitement_Total = 5;
  // M = 1766.9555 x 80.5 / 100 = 1422.3991775; x (15 - 5 - 0) / 30
  EXPECT_NEAR(Base("SMIC MENSUEL"), 474.133059166667, 1e-9);
  EXPECT_NEAR(m.gdSmicMensuel, 1766.9555, 1e-9);
}

TEST_F(BaseReviewSmic, HourlyRateStandsInForTheSmic) {
  Var("TXSMIC", 0.0);
  Var("TXHEURES", 12.0);
  EXPECT_NEAR(Base("SMIC MENSUEL"), 1820.04, 1e-9);  // 151.67 x 12 x 30 / 30
  EXPECT_NEAR(m.gdSmicMensuel, 1766.9555, 1e-9);     // always hours x SMIC
}

TEST_F(BaseReviewSmic, FullSmicWhenNeitherRateIsAboveZero) {
  Var("TXSMIC", -10.0);
  Var("TXHEURES", 0.0);
  s.iNBJ_Presence_Total = 20;
  s.iNBJ_2TiersTraitement_Total = 2;
  EXPECT_NEAR(Base("SMIC MENSUEL"), 1060.1733, 1e-9);  // 1766.9555 x 18 / 30
  vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "Dateeffet"});
  s.iNBJ_2TiersTraitement_Total = 0;
  s.iNBJ_Presence_Total = 30;
  EXPECT_NEAR(Base("SMIC MENSUEL"), 1766.9555, 1e-9);
}

TEST_F(BaseReviewSmic, DaysCanGoNegativeAndOverflowIsAFault) {
  s.iNBJ_Presence_Total = 5;
  s.iNBJ_90PourCentTraitement_Total = 10;
  EXPECT_NEAR(Base("SMIC MENSUEL"), -294.492583333333, 1e-9);  // 1766.9555 x -5 / 30
  s.iNBJ_Presence_Total = 32767;
  s.iNBJ_90PourCentTraitement_Total = -1;
  EXPECT_THROW(Base("SMIC MENSUEL"), Fault);
}

TEST_F(BaseReviewSmic, NoVariableSourceIsAFault) {
  vars = nullptr;
  EXPECT_THROW(Base("SMIC MENSUEL"), Fault);
}

class BaseReviewCLSH : public BaseReviewTest {
 protected:
  BaseReviewCLSH() {
    Var("NBDCLSH", 1.5);  // read unrounded: 1.5 + 2 + 3 = 6.5 days
    Var("NBJCCLSH", 2.0);
    Var("NBJCLSH", 3.0);
    Var("NBSCLSH", 2.0);
    Var("NBMCLSH", 1.0);
    Constante("ASSJCLSB", 20.0);
    Constante("ASSSCLSB", 100.0);
    Constante("ASSMCLSB", 400.0);
    Constante("ASSJCLAB", 25.0);
    Constante("ASSSCLAB", 110.0);
    Constante("ASSMCLAB", 450.0);
    Constante("ASSJCLDI", 1000.0);
    Constante("ASSSCLDI", 150.0);
    Constante("ASSMCLDI", 600.0);
  }
};

TEST_F(BaseReviewCLSH, LeisureCentreBases) {
  EXPECT_DOUBLE_EQ(Base("ASSIETTE CLSH SANS BAFA"), 730);    // 6.5x20 + 2x100 + 1x400
  EXPECT_DOUBLE_EQ(Base("ASSIETTE CLSH AVEC BAFA"), 832.5);  // 6.5x25 + 2x110 + 1x450
  EXPECT_DOUBLE_EQ(Base("ASSIETTE CLSH DIRECTEUR"), 900);    // 2x150 + 1x600, no days
}

TEST_F(BaseReviewCLSH, DirectorStillReadsTheDays) {
  vars->MoveFirst();
  vars->Filter("CodeVariable = 'NBJCLSH'");
  vars->SetField("Valeur", "trois");
  vars->ClearFilter();
  EXPECT_THROW(Base("ASSIETTE CLSH DIRECTEUR"), Fault);
}

// ---- Training, full month before deductions, apprentices -----------------------------

class BaseReviewFormation : public BaseReviewTest {
 protected:
  BaseReviewFormation() {
    s.dSalaire_MensuelPleinIATA = 1000;
    s.dSalaire_MensuelPleinINTA = 200;
    s.dSalaire_MensuelPleinIATN = 300;
    s.dSalaire_MensuelPleinINTN = 400;
    s.dCoefficient_TraitementTA = 0.8;
    s.dCoefficient_TraitementTN = 0.9;
    s.dCoefficient_IATA = 0.5;
    s.dCoefficient_INTA = 0.25;
    s.dCoefficient_IATN = 0.1;
    s.dCoefficient_INTN = 0.15;
    s.dIndResTotale = 61;
    s.iNBJ_CongeFormationIATA = 3;
    s.iNBJ_CongeFormationINTA = 2;
    s.iNBJ_CongeFormationIATN = 4;
    s.iNBJ_CongeFormationINTN = 1;
    s.iNBJ_CongeFormation_Total = 7;
  }
};

TEST_F(BaseReviewFormation, VacantPostByQuadrantRounded) {
  s.sOccupationPoste = "N";
  // 1: 1200 x 0.8 x 0.75 x 5 / 30 = 120
  // 2: 700 x 0.9 x 0.25 x 5 / 30 = 26.25
  // 3: 61 x 0.8 x 0.75 x 5 / 30 = 6.1
  // 4: 61 x 0.9 x (0.15 + 0.15) x 5 / 30 = 2.745
  // 155.095, rounded half away: 155.1
  EXPECT_DOUBLE_EQ(Base("ASSIETTE FORMATION"), 155.1);
}

TEST_F(BaseReviewFormation, OtherOccupationFullMonthUnrounded) {
  s.sOccupationPoste = "T";
  // (1000 + 300 + 200 + 400 + 61) x 7 / 30 = 13727 / 30
  EXPECT_NEAR(Base("ASSIETTE FORMATION"), 457.566666666667, 1e-9);
  s.sOccupationPoste = "n";  // not "N"
  EXPECT_NEAR(Base("ASSIETTE FORMATION"), 457.566666666667, 1e-9);
}

TEST_F(BaseReviewFormation, DaySumOverflowIsAFault) {
  s.sOccupationPoste = "N";
  s.iNBJ_CongeFormationIATA = 32767;
  s.iNBJ_CongeFormationINTA = 1;
  EXPECT_THROW(Base("ASSIETTE FORMATION"), Fault);
}

class BaseReviewSansRetenue : public BaseReviewTest {
 protected:
  BaseReviewSansRetenue() {
    Cumul("BASE", 2000.0);
    Cumul("RETABSTRAI", 100.0);
    Cumul("BASERAPPEL", 150.0);
    Cumul("INDRES", 80.0);
    Cumul("RETABSIR", 5.0);
    s.iNBJ_Presence_Total = 20;
    s.iNbJourDecalagePaieMoisPrecIATA = 2;
    s.iNbJourDecalagePaieMoisPrecINTA = 1;
    s.iNbJourDecalagePaieMoisPrecIATN = 1;
    s.iNbJourDecalagePaieMoisPrecINTN = 1;  // D = 25
    s.iNbJourDecalagePaieMoisPrecA = 7;     // not counted
    s.iNbJourDecalagePaieMoisPrecN = 7;
    s.dSalaire_MensuelIATA = 100;
    s.dSalaire_MensuelIATN = 200;
    s.dSalaire_MensuelINTA = 300;
    s.dSalaire_MensuelINTN = 400;
    s.dSalaire_MensuelPleinIATA = 5000;
  }
};

TEST_F(BaseReviewSansRetenue, TotalsBroughtBackToAFullMonth) {
  s.sTypeModele = "HORAIR";
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 2100);     // 1750 x 30 / 25
  EXPECT_DOUBLE_EQ(Base("INDEMNITE DE RESIDENCE SANS RETENUE"), 90);     // 75 x 30 / 25
}

TEST_F(BaseReviewSansRetenue, IndexedModelsTakeTheMonthsTreatment) {
  s.sTypeModele = "INDTIT";
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 1000);  // 100+200+300+400
  s.sTypeModele = "INDNTI";
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 1000);
  EXPECT_DOUBLE_EQ(Base("INDEMNITE DE RESIDENCE SANS RETENUE"), 90);  // no model test here
}

TEST_F(BaseReviewSansRetenue, NoDaysGivesZero) {
  s.sTypeModele = "INDTIT";
  s.iNBJ_Presence_Total = 0;
  s.iNbJourDecalagePaieMoisPrecIATA = -2;  // 0 - 2 + 1 + 1 + 1 = 1
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 1000);
  s.iNbJourDecalagePaieMoisPrecIATA = -3;  // D = 0
  EXPECT_EQ(Base("TRAITEMENT BASE MOIS SANS RETENUE"), 0);
  EXPECT_EQ(Base("INDEMNITE DE RESIDENCE SANS RETENUE"), 0);
}

TEST_F(BaseReviewSansRetenue, DaySumOverflowIsAFault) {
  s.iNBJ_Presence_Total = 32767;
  EXPECT_THROW(Base("INDEMNITE DE RESIDENCE SANS RETENUE"), Fault);
}

class BaseReviewApprenti : public BaseReviewTest {
 protected:
  // S = 11.65 x 151.67 = 1766.9555; 0.79 x S = 1395.894845; L = 1396.
  BaseReviewApprenti() { Fixe("SmicHor", 11.65); }
};

TEST_F(BaseReviewApprenti, AtTheThreshold) {
  Cumul("ASSURSTOT", 1396.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1396);
  EXPECT_EQ(Base("BASE URSSAF TOTALITE APPRENTI"), 0);
}

TEST_F(BaseReviewApprenti, OneCentAboveAndBelow) {
  Cumul("ASSURSTOT", 1396.01);
  Cumul("ASSURSTRA", 1395.99);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1396);
  EXPECT_NEAR(Base("BASE URSSAF TOTALITE APPRENTI"), 0.01, 1e-9);
  EXPECT_EQ(Base("BASE URSSAF PLAFONNEE APPRENTI"), 0);
}

TEST_F(BaseReviewApprenti, CappedBaseReadsTrancheA) {
  Cumul("ASSURSTOT", 3000.0);
  Cumul("ASSURSTRA", 1500.0);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF PLAFONNEE APPRENTI"), 104);   // 1500 - 1396
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF TOTALITE APPRENTI"), 1604);   // 3000 - 1396
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1396);
}

TEST_F(BaseReviewApprenti, ThresholdIsRoundedToTheEuro) {
  // 11.88 x 151.67 = 1801.8396; x 0.79 = 1423.453284: L = 1423.
  Fixe("SmicHor", 11.88);
  Cumul("ASSURSTOT", 1423.4);
  EXPECT_DOUBLE_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 1423);
  EXPECT_NEAR(Base("BASE URSSAF TOTALITE APPRENTI"), 0.4, 1e-9);
  Fixe("SmicHor", Value());  // L = 0
  EXPECT_EQ(Base("BASE URSSAF APPRENTI INF SEUIL"), 0);
  EXPECT_NEAR(Base("BASE URSSAF TOTALITE APPRENTI"), 1423.4, 1e-9);
}

// ---- Designations read by id -----------------------------------------------------------

TEST_F(BaseReviewTest, ConstantById) {
  Constante("AUTRE", 5.0, 0);
  Constante("PRIME", 12.345, 7, "T");  // no rounding, and a percentage is not divided here
  EXPECT_DOUBLE_EQ(Base("UNE CONSTANTE", 7), 12.345);
  EXPECT_DOUBLE_EQ(Base("CONSTANTE", 7), 12.345);
  EXPECT_EQ(Base("UNE CONSTANTE", 0), 0);
  EXPECT_EQ(Base("UNE CONSTANTE", -7), 0);
  EXPECT_EQ(Base("UNE CONSTANTE", 8), 0);
  EXPECT_EQ(m.gRsConstantes->RecordCount(), 2);
  m.gRsConstantes->MoveFirst();
  m.gRsConstantes->MoveNext();
  m.gRsConstantes->SetField("Valeur", Value());
  EXPECT_EQ(Base("CONSTANTE", 7), 0);
}

TEST_F(BaseReviewTest, ConstantByIdSources) {
  EXPECT_EQ(Base("UNE CONSTANTE", 7), 0);  // empty source
  m.gRsConstantes = nullptr;
  EXPECT_EQ(Base("UNE CONSTANTE", 0), 0);  // the id is tested first
  EXPECT_THROW(Base("UNE CONSTANTE", 7), Fault);
}

TEST_F(BaseReviewTest, VariableByIdAndItsEffectiveDate) {
  Var("A", 55.5, 11, "20240301", "T");  // the first of the pay month: counts, not divided
  Var("B", 55.5, 12, "20240229");       // the day before: 0
  Var("C", 55.5, 13, "20240401");       // later: counts
  Var("D", 55.5, 14);                   // null date
  Var("E", 55.5, 15, "");               // empty date
  Var("F", Value(), 16, "20240301");    // null value
  EXPECT_DOUBLE_EQ(Base("UNE VARIABLE SALARIE", 11), 55.5);
  EXPECT_EQ(Base("VARIABLE", 12), 0);
  EXPECT_DOUBLE_EQ(Base("VARIABLE", 13), 55.5);
  EXPECT_DOUBLE_EQ(Base("VARIABLE", 14), 55.5);
  EXPECT_DOUBLE_EQ(Base("VARIABLE", 15), 55.5);
  EXPECT_EQ(Base("VARIABLE", 16), 0);
  EXPECT_EQ(Base("VARIABLE", 17), 0);
  EXPECT_EQ(Base("VARIABLE", 0), 0);
  EXPECT_EQ(vars->RecordCount(), 6);
}

TEST_F(BaseReviewTest, VariableByIdFaultsAndDefaults) {
  Var("X", 1.0, 11, "1/3/2024");
  EXPECT_THROW(Base("VARIABLE", 11), Fault);  // not a yyyymmdd date
  vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "DateEffet"});
  EXPECT_EQ(Base("VARIABLE", 11), 0);  // empty source
  vars = nullptr;
  EXPECT_EQ(Base("VARIABLE", -1), 0);
  EXPECT_THROW(Base("VARIABLE", 11), Fault);
}

TEST_F(BaseReviewTest, ParticularTotalById) {
  Cumul("PRIME", 99.999, 5.0, 21);  // unrounded, employee side
  Cumul("NUL", Value(), 5.0, 22);
  EXPECT_DOUBLE_EQ(Base("UN CUMUL PARTICULIER", 21), 99.999);
  EXPECT_EQ(Base("UN CUMUL PARTICULIER", 22), 0);
  EXPECT_EQ(Base("UN CUMUL PARTICULIER", 0), 0);
  EXPECT_THROW(Base("UN CUMUL PARTICULIER", 23), Fault);  // no row
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
  EXPECT_EQ(Base("UN CUMUL PARTICULIER", 23), 0);  // empty source
  m.gRsCumuls = nullptr;
  EXPECT_THROW(Base("UN CUMUL PARTICULIER", 23), Fault);
}

// ---- Through the entry point ---------------------------------------------------------------

TEST_F(BaseReviewTest, EntryPointUsesTheBaseAndTrapsItsFaults) {
  Cumul("BRUT", 2500.0);
  r.sValeurBase = "SALAIRE BRUT";
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars, nullptr, nullptr));
  EXPECT_DOUBLE_EQ(r.dBase, 2500);
  r.sValeurBase = "Salaire Brut";
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars, nullptr, nullptr));
  EXPECT_EQ(r.dBase, 0);
  r.sValeurBase = "UN CUMUL PARTICULIER";
  r.lIdValeurBase = 99;
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars, nullptr, nullptr));
}

}  // namespace
}  // namespace orvalis
