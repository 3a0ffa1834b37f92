// The base resolver as a whole: exact literals, unknown designations, the order of tests
// and the narrower vocabulary of the historic engine.
#include <set>
#include <string>
#include <vector>

#include "generic/base_designations.h"
#include "generic/base_test_util.h"
#include "generic/coefficient.h"

namespace orvalis::test {
namespace {

using BaseValeurTest = PaieDeMars;

TEST_F(BaseValeurTest, EmptyOrUnknownDesignationGivesZero) {
  Cumul("BRUT", 2000.0);
  EXPECT_EQ(Base(""), 0);
  EXPECT_EQ(Base("SALAIRE NET"), 0);
}

TEST_F(BaseValeurTest, DesignationIsMatchedExactly) {
  Cumul("BRUT", 2000.0);
  EXPECT_DOUBLE_EQ(Base("SALAIRE BRUT"), 2000.0);
  EXPECT_EQ(Base("salaire brut"), 0);
  EXPECT_EQ(Base("SALAIRE BRUT "), 0);
  EXPECT_EQ(Base(" SALAIRE BRUT"), 0);
  EXPECT_EQ(Base("Salaire Brut"), 0);
}

TEST_F(BaseValeurTest, UnknownDesignationReadsNoSource) {
  m.gRsCumuls = nullptr;
  m.gRsConstantes = nullptr;
  m.gRsConstantesFixes = nullptr;
  vars = nullptr;
  EXPECT_EQ(Base("BASE INCONNUE", 7), 0);
}

TEST_F(BaseValeurTest, DesignationsAreDistinctLiterals) {
  std::set<std::string> vus;
  std::vector<std::string_view> toutes;
  for (const auto& l : LignesBaseParId()) toutes.push_back(l.designation);
  for (const auto& l : LignesBaseCumuls()) toutes.push_back(l.designation);
  for (const auto& l : LignesBaseFormules()) toutes.push_back(l.designation);
  for (const auto& l : LignesBaseRetenues()) toutes.push_back(l.designation);
  for (auto d : toutes) EXPECT_TRUE(vus.insert(std::string(d)).second) << d;
  // 5 by id, 43 single totals, 14 combined, 8 of the month before, 12 from the records,
  // 15 formulas.
  EXPECT_EQ(vus.size(), 97u);
}

TEST_F(BaseValeurTest, TheRecordIsLeftAsItCame) {
  Cumul("BRUT", 2000.0);
  r.dBase = 12;
  r.dMontantSalarial = 34;
  EXPECT_DOUBLE_EQ(Base("SALAIRE BRUT"), 2000.0);
  EXPECT_EQ(r.dBase, 12);
  EXPECT_EQ(r.dMontantSalarial, 34);
  EXPECT_EQ(r.sValeurBase, "SALAIRE BRUT");
}

// The names the historic resolvers do not know.
const std::vector<std::string> kInconnuesDeLHistorique = {
    "BONIFICATION INDICIAIRE MOIS PREC",
    "AUTRES PRIMES EXCLUES TPP",
    "AUTRES PRIMES EXCLUES TPP MOIS PREC",
    "SALAIRE BRUT + COTISATIONS PATRONALES DANS CSG",
    "PART PATRONALE PREVOYANCE",
    "PART PATRONALE FORFAIT SOCIAL",
    "PART PATRONALE RETRAITE COMPLEMENTAIRE",
    "BASE REDUCTION SUR HS NON DEDUCTIBLE",
    "BASE IAT MENSUELLE",
    "BASE PSR MENSUELLE",
    "BASE IFTS MENSUELLE",
    "BASE IEMP MENSUELLE",
    "TRAITEMENT BASE MOIS SANS RETENUE",
    "TRAITEMENT BASE MOIS PREC SANS RETENUE",
    "CHOMAGE",
    "INDEMNITE DE RESIDENCE SANS RETENUE",
    "INDEMNITE DE RESIDENCE MOIS PREC SANS RETENUE",
    "VALORISATION JOURS CET",
    "NOMBRE JOURS REELS",
    "BASE ASSEDIC TOTALITE",
    "BASE URSSAF FNAL CALCULEE",
    "BASE DETACHEMENT ETAT TEMPS PLEIN",
    "BASE DETACHEMENT ETAT TEMPS PLEIN BONIF",
    "TRAITEMENT DE BASE + PRIMES JANVIER",
    "IJ BRUTES SOUMISES AU PAS",
    "SALAIRE IMPOSABLE ABATTU",
    "BASE URSSAF TOTALITE APPRENTI",
    "BASE URSSAF PLAFONNEE APPRENTI",
    "BASE URSSAF APPRENTI INF SEUIL",
    "TRAITEMENT DE BASE + ID + ICCSG + HC",
    "TRAITEMENT BASE + ID + ICCSG + HC + PRIMES + TPP",
    "TRAITEMENT DE BASE + ID + ICCSG",
    "TRAITEMENT DE BASE + ID + ICCSG + PRIMES + TPP",
    "INDEMNITES JOURNALIERES",
    "DEMI TRAITEMENT",
    "SUPPLEMENT FAMILIAL",
    "BASETAXESALAIRE",
};

TEST_F(BaseValeurTest, HistoricVocabularyLeavesOutTheNewerNames) {
  for (const auto& d : kInconnuesDeLHistorique) {
    EXPECT_TRUE(BaseConnue(d, false)) << d;
    EXPECT_FALSE(BaseConnue(d, true)) << d;
  }
  // "UN CUMUL PARTICULIER" is found another way by the historic engine, which brings its row.
  EXPECT_TRUE(BaseConnue("UN CUMUL PARTICULIER", false));
  EXPECT_FALSE(BaseConnue("UN CUMUL PARTICULIER", true));
  EXPECT_FALSE(BaseConnue("", false));
}

TEST_F(BaseValeurTest, HistoricVocabularyKeepsEveryOtherName) {
  std::set<std::string> inconnues(kInconnuesDeLHistorique.begin(),
                                  kInconnuesDeLHistorique.end());
  inconnues.insert("UN CUMUL PARTICULIER");
  int communes = 0;
  auto verifie = [&](std::string_view d) {
    if (inconnues.count(std::string(d))) return;
    ++communes;
    EXPECT_TRUE(BaseConnue(d, true)) << d;
  };
  for (const auto& l : LignesBaseParId()) verifie(l.designation);
  for (const auto& l : LignesBaseCumuls()) verifie(l.designation);
  for (const auto& l : LignesBaseFormules()) verifie(l.designation);
  for (const auto& l : LignesBaseRetenues()) verifie(l.designation);
  EXPECT_EQ(communes, 97 - 38);
}

TEST_F(BaseValeurTest, HistoricResolverGivesZeroForANewerName) {
  Cumul("ASSURSCHO", 321.0);
  ContexteBase c{m, nullptr, s, vars, r};
  EXPECT_EQ(ResoudBase(c, "CHOMAGE", true), 0);
  EXPECT_DOUBLE_EQ(ResoudBase(c, "CHOMAGE", false), 321.0);
  Cumul("BRUT", 2000.0);
  EXPECT_DOUBLE_EQ(ResoudBase(c, "SALAIRE BRUT", true), 2000.0);
}

TEST_F(BaseValeurTest, RuleOfTheCurrentEngineAloneFaultsForAnotherCaller) {
  ContexteBase c{m, nullptr, s, vars, r};
  s.sDateDebut = "10/03/2024";
  EXPECT_THROW(ResoudBase(c, "NOMBRE JOURS REELS", false), Fault);
}

TEST_F(BaseValeurTest, HistoricCoefficientsLeaveOutTheNewerNames) {
  Cumul("COEF", 0.5, 0.0, 5);
  r.dMontantSalarialRub = 3;
  r.dMontantPatronalRub = 4;
  EXPECT_EQ(ResoudCoefficient(m, s, vars, 5, "UN CUMUL PARTICULIER", r, true), 1);
  EXPECT_EQ(ResoudCoefficient(m, s, vars, 0, "PART SALARIALE D'UNE RUBRIQUE", r, true), 1);
  EXPECT_EQ(ResoudCoefficient(m, s, vars, 0, "PART PATRONALE D'UNE RUBRIQUE", r, true), 1);
  EXPECT_DOUBLE_EQ(ResoudCoefficient(m, s, vars, 5, "UN CUMUL PARTICULIER", r, false), 0.5);
  s.iNBJ_PresenceIATA = 30;
  s.dCoefficient_TraitementTA = 0.8;
  EXPECT_DOUBLE_EQ(ResoudCoefficient(m, s, vars, 0, "COEFFICIENT DE TRAITEMENT", r, true), 0.8);
}

// "BASE x TAUX" on a base it does not know computes on 0.
TEST_F(BaseValeurTest, BaseTauxOnAnUnknownBaseComputesOnZero) {
  m.gRsTaux = NouveauRecordset({"CodeTaux", "IdTaux", "IdOrganisme", "PartSalariale",
                                "PartPatronale"});
  r.sValeurBase = "BASE INCONNUE";
  r.dBase = 99;
  r.dMontantSalarial = 99;
  r.dMontantPatronal = 99;
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars));
  EXPECT_EQ(r.dBase, 0);
  EXPECT_EQ(r.dMontantSalarial, 0);
  EXPECT_EQ(r.dMontantPatronal, 0);
}

// A fault below the resolver reaches the entry point, which gives false.
TEST_F(BaseValeurTest, FaultOfTheResolverMakesTheEntryGiveFalse) {
  Cumul("PRIME", 10.0, 0.0, 12);
  r.sValeurBase = "UN CUMUL PARTICULIER";
  r.lIdValeurBase = 13;
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars));
}

}  // namespace
}  // namespace orvalis::test
