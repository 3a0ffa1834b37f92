// Bases that are one cumulative total or a signed sum of totals, of this month or of the
// month before.
#include <string>
#include <vector>

#include "generic/base_test_util.h"

namespace orvalis::test {
namespace {

using BaseCumulsTest = PaieDeMars;

struct UnCumul {
  const char* designation;
  const char* code;
  bool patronal;
};

// Each designation with the total it reads.
const std::vector<UnCumul> kUnCumul = {
    {"NOMBRE HEURES TRAVAILLEES", "HEURES", false},
    {"TRAITEMENT DE BASE DU MOIS", "BASE", false},
    {"BONIFICATION INDICIAIRE", "BONIF", false},
    {"SUPPFAM", "SUPPFAM", false},
    {"SUPPLEMENT FAMILIAL", "SUPPFAM", false},
    {"INDEMNITE DE RESIDENCE", "INDRES", false},
    {"HEURESUPP", "HEURESUPP", false},
    {"TRAITEMENT DE BASE DU MOIS + PRIMES", "TBIETPRIME", false},
    {"SALAIRE BRUT", "BRUT", false},
    {"BASE BONIFICATION INDICIAIRE", "ASSBONIF", false},
    {"BASE BONIFICATION INDICIAIRE DETACHEMENT ETAT", "ASSBONIFDE", false},
    {"BASE URSSAF TOTALITE", "ASSURSTOT", false},
    {"BASE URSSAF TOTALITE EXONEREE", "ASSURSEXO", false},
    {"BASE URSSAF TRANCHE A", "ASSURSTRA", false},
    {"BASE URSSAF TRANCHE B", "ASSURSTRB", false},
    {"BASE URSSAF REVENU REMPLACEMENT", "ASSURSREM", false},
    {"BASE IRCANTEC TRANCHE A", "ASSIRCTRA", false},
    {"BASE IRCANTEC TRANCHE B", "ASSIRCTRB", false},
    {"BASE ASSEDIC TRANCHE A", "ASSASSTRA", false},
    {"BASE ASSEDIC TRANCHE B", "ASSASSTRB", false},
    {"BASE CNRACL EXONEREE CHARGES PAT.", "ASSCNREXO", false},
    {"BASE CNRACL DETACHEMENT ETAT", "ASSCNRDET", false},
    {"BASE CNRACL TEMPS PLEIN", "ASSCNRTP", false},
    {"BASE CNRACL TEMPS PLEIN BONIF", "ASSCNRTPB", false},
    {"BASE RAFP", "ASSRAFP", false},
    {"BASE CNRACL", "ASSCNRACL", false},
    {"BASE CSG/RDS", "ASSCSG", false},
    {"REVENUS DE REMPLACEMENT", "BASEREMP", false},
    {"BASE ATIACL", "ASSATIACL", false},
    {"BASE URSSAF TOTALITE EXONEREE (SERV PERS)", "ASSURSEXOS", false},
    {"BASE REDUCTION SUR HS", "ASSREDHS", false},
    {"BASE REDUCTION SUR HS NON DEDUCTIBLE", "ASSREDHSN", false},
    {"CHOMAGE", "ASSURSCHO", false},
    {"VALORISATION JOURS CET", "VALJRSCET", false},
    {"BASE URSSAF FNAL CALCULEE", "ASSFNALCAL", false},
    {"BASE DETACHEMENT ETAT TEMPS PLEIN", "ASSSRETP", false},
    {"BASE DETACHEMENT ETAT TEMPS PLEIN BONIF", "ASSSRETPB", false},
    {"INDEMNITES JOURNALIERES", "ASSURSIJ", false},
    {"DEMI TRAITEMENT", "BASEDEMITR", false},
    {"BASE CDG/CNFPT", "ASSCNFPT", false},
    {"PART PATRONALE PREVOYANCE", "COTPREVOYA", true},
    {"PART PATRONALE FORFAIT SOCIAL", "COTFORSOC", true},
    {"PART PATRONALE RETRAITE COMPLEMENTAIRE", "COTRETCOMP", true},
};

TEST_F(BaseCumulsTest, EachDesignationReadsItsOwnTotalAndSide) {
  for (const UnCumul& u : kUnCumul) {
    SCOPED_TRACE(u.designation);
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    Cumul("AUTRE", 7.0, 8.0);
    Cumul(u.code, 1523.25, 311.5);
    EXPECT_DOUBLE_EQ(Base(u.designation), u.patronal ? 311.5 : 1523.25);
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    Cumul("AUTRE", 7.0, 8.0);
    EXPECT_EQ(Base(u.designation), 0);  // no row of its code
  }
}

TEST_F(BaseCumulsTest, CurrentTotalsAreRoundedToTheCent) {
  Cumul("BRUT", 1000.005, 0.0);
  EXPECT_DOUBLE_EQ(Base("SALAIRE BRUT"), 1000.01);
}

TEST_F(BaseCumulsTest, EmptySourceGivesZeroAndNoSourceIsAFault) {
  EXPECT_EQ(Base("SALAIRE BRUT"), 0);
  EXPECT_EQ(Base("AUTRES PRIMES"), 0);
  m.gRsCumuls = nullptr;
  EXPECT_THROW(Base("SALAIRE BRUT"), Fault);
}

TEST_F(BaseCumulsTest, AutresPrimes) {
  Cumul("BASEPRP", 500.0, 1.0);
  Cumul("RETABSPR", 40.5, 1.0);
  Cumul("RETABSPRR", 9.5, 1.0);
  EXPECT_DOUBLE_EQ(Base("AUTRES PRIMES"), 450.0);
}

TEST_F(BaseCumulsTest, AutresPrimesExcluesTpp) {
  Cumul("BASEPRPSTP", 300.0);
  Cumul("RETABSPRT", 25.0);
  Cumul("RETABSPRTR", 5.25);
  Cumul("BASEPRP", 1000.0);
  EXPECT_DOUBLE_EQ(Base("AUTRES PRIMES EXCLUES TPP"), 269.75);
}

TEST_F(BaseCumulsTest, AvantagesEnNature) {
  Cumul("AVANTLOG", 100.0);
  Cumul("AVANTREP", 50.5);
  Cumul("AVANTVOI", 200.0);
  Cumul("AVANTDIV", 10.25);
  EXPECT_DOUBLE_EQ(Base("AVANTAGES EN NATURE"), 360.75);
}

TEST_F(BaseCumulsTest, PartPatronaleMutuelleAddsBothSides) {
  Cumul("COTMUTPAT", 12.5, 30.0);
  EXPECT_DOUBLE_EQ(Base("PART PATRONALE MUTUELLE"), 42.5);
}

TEST_F(BaseCumulsTest, SalaireBrutPlusCotisationsPatronalesDansCsg) {
  Cumul("COTMUTPAT", 12.5, 30.0);
  Cumul("BRUT", 2000.0, 999.0);
  EXPECT_DOUBLE_EQ(Base("SALAIRE BRUT + COTISATIONS PATRONALES DANS CSG"), 2030.0);
}

TEST_F(BaseCumulsTest, SalaireImposableWithoutAndWithTheOvertimeReduction) {
  Cumul("BRUT", 2000.0);
  Cumul("TOTDEDUCT", 350.4);
  Cumul("ASSREDHS", 120.0);
  Cumul("NETIMPOS", 1111.0);
  s.bCalculReductionSurHS = false;
  EXPECT_DOUBLE_EQ(Base("SALAIRE IMPOSABLE"), 1649.6);
  s.bCalculReductionSurHS = true;
  EXPECT_DOUBLE_EQ(Base("SALAIRE IMPOSABLE"), 1529.6);
}

TEST_F(BaseCumulsTest, SalarieNetAPayer) {
  Cumul("BRUT", 2000.0);
  Cumul("TOTDEDUCT", 350.4);
  Cumul("TOTNDEDUCT", 80.1);
  Cumul("TOTNONIMP", 15.0);
  EXPECT_NEAR(Base("SALARIE NET A PAYER"), 1584.5, 1e-9);
}

TEST_F(BaseCumulsTest, BaseTraitementMoisPlusHeuresSupp) {
  Cumul("BASE", 1800.0);
  Cumul("HEURESUPP", 150.25);
  EXPECT_DOUBLE_EQ(Base("BASE TRAITEMENT MOIS + HRS SUPP"), 1950.25);
}

TEST_F(BaseCumulsTest, BaseAssedicTotalite) {
  Cumul("BRUT", 2000.0);
  Cumul("PAREMP", 60.0);
  EXPECT_DOUBLE_EQ(Base("BASE ASSEDIC TOTALITE"), 1940.0);
}

class BaseCumulsIccsgTest : public PaieDeMars {
 protected:
  BaseCumulsIccsgTest() {
    Cumul("BASE", 1800.0);
    Cumul("INDDIFF", 20.0);
    Cumul("ICCSG", 15.0);
    Cumul("HEURECOMP", 100.0);
    Cumul("TBIETPRIME", 2100.0);
  }
};

// The PRIMES + TPP variants read no ICCSG.
TEST_F(BaseCumulsIccsgTest, TraitementIdIccsg) {
  const struct {
    const char* designation;
    double attendu;
  } kLignes[] = {
      {"TRAITEMENT DE BASE + ID + ICCSG + HC", 1935.0},
      {"TRAITEMENT BASE + ID + ICCSG + HC + PRIMES + TPP", 2220.0},
      {"TRAITEMENT DE BASE + ID + ICCSG", 1835.0},
      {"TRAITEMENT DE BASE + ID + ICCSG + PRIMES + TPP", 2120.0},
  };
  for (const auto& l : kLignes) {
    SCOPED_TRACE(l.designation);
    EXPECT_DOUBLE_EQ(Base(l.designation), l.attendu);
  }
}

TEST_F(BaseCumulsTest, BaseTaxeSalaire) {
  Cumul("COTMUTPAT", 12.5, 30.0);
  Cumul("BRUT", 2000.0, 999.0);
  s.dMtIndActPar = 250.5;
  EXPECT_DOUBLE_EQ(Base("BASETAXESALAIRE"), 1779.5);
}

// ---- The month before: February 2024 for the March pay -----------------------------------

class BaseMoisPrecTest : public PaieDeMars {
 protected:
  BaseMoisPrecTest() {
    Historique("202402", "BASE", 1700.0);
    Historique("202402", "BONIF", 80.0);
    Historique("202402", "INDRES", 51.0);
    Historique("202402", "BASEPRP", 400.0);
    Historique("202402", "RETABSPR", 30.0);
    Historique("202402", "RETABSPRR", 10.0);
    Historique("202402", "BASEPRPSTP", 250.0);
    Historique("202402", "RETABSPRT", 20.0);
    Historique("202402", "RETABSPRTR", 4.5);
    Historique("202402", "BASERAPPEL", 100.0);
    Historique("202402", "RETABSTRAI", 56.67);
    Historique("202402", "RETABSIR", 3.4);
    Historique("202401", "TBIETPRIME", 2050.0);
    // Another month and another employee, never read.
    Historique("202401", "BASE", 1.0);
    Historique("202402", "BASE", 2.0, 43);
    Historique("202403", "BASE", 3.0);
    Cumul("BASE", 4.0);
  }
};

TEST_F(BaseMoisPrecTest, TotauxDuMoisPrec) {
  const struct {
    const char* designation;
    double attendu;
  } kLignes[] = {
      {"TRAITEMENT DE BASE DU MOIS PREC", 1700.0},
      {"BONIFICATION INDICIAIRE MOIS PREC", 80.0},
      {"INDEMNITE DE RESIDENCE MOIS PREC", 51.0},
      {"AUTRES PRIMES MOIS PREC", 360.0},
      {"AUTRES PRIMES EXCLUES TPP MOIS PREC", 225.5},
  };
  for (const auto& l : kLignes) {
    SCOPED_TRACE(l.designation);
    EXPECT_DOUBLE_EQ(Base(l.designation), l.attendu);
  }
}

TEST_F(BaseMoisPrecTest, SansRetenueMoisPrec) {
  const struct {
    const char* designation;
    double attendu;
  } kLignes[] = {
      {"TRAITEMENT BASE MOIS PREC SANS RETENUE", 1463.33},
      {"INDEMNITE DE RESIDENCE MOIS PREC SANS RETENUE", 47.6},
  };
  for (const auto& l : kLignes) {
    SCOPED_TRACE(l.designation);
    EXPECT_NEAR(Base(l.designation), l.attendu, 1e-9);
  }
}

TEST_F(BaseMoisPrecTest, PrimesJanvierReadsJanuaryOfThePayYear) {
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + PRIMES JANVIER"), 2050.0);
  m.gPeriodeEncours = "01/01/2024";  // January itself, not the month before
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE + PRIMES JANVIER"), 2050.0);
  m.gPeriodeEncours = "01/03/2025";
  EXPECT_EQ(Base("TRAITEMENT DE BASE + PRIMES JANVIER"), 0);
}

TEST_F(BaseMoisPrecTest, HistoryIsNotRounded) {
  Historique("202402", "BASE", 1700.456, 44);
  s.lIdSalarie = 44;
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE DU MOIS PREC"), 1700.456);
}

TEST_F(BaseMoisPrecTest, JanuaryPayReadsDecemberOfTheYearBefore) {
  Historique("202312", "BASE", 1650.0);
  m.gPeriodeEncours = "01/01/2024";
  EXPECT_DOUBLE_EQ(Base("TRAITEMENT DE BASE DU MOIS PREC"), 1650.0);
}

TEST_F(BaseCumulsTest, MonthBeforeWithEmptyOrNoHistory) {
  EXPECT_EQ(Base("TRAITEMENT DE BASE DU MOIS PREC"), 0);
  m.gRsCumulsHistoriqueSal = nullptr;
  EXPECT_THROW(Base("TRAITEMENT DE BASE DU MOIS PREC"), Fault);
}

}  // namespace
}  // namespace orvalis::test
