// The two entry points: names walked exactly, names with no effect, unknown names, the
// tests that pick one of two handlers, and the trap.
#include "frame/dispatch.h"

#include <gtest/gtest.h>

#include <set>

#include "frame/records_compare.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {
namespace {

const char* const kSansEffet[] = {
    "ASSIETTE URSSAF APPRENTI",
    "BASE CDG/CNFPT REGIME GENERAL",
    "BASE CDG/CNFPT REGIME SPECIAL",
    "BASE URSSAF TOTALITE EXONEREE REGIME GENERAL",
    "BASE URSSAF TOTALITE EXONEREE REGIME SPECIAL",
    "BASE URSSAF TOTALITE REGIME GENERAL",
    "BASE URSSAF TOTALITE REGIME SPECIAL",
    "BASE URSSAF TRANCHE A REGIME GENERAL",
    "BASE URSSAF TRANCHE A REGIME SPECIAL",
    "GREVE INDEMNITE RESIDENCE",
    "GREVE TRAITEMENT",
    "TAXE SUR SALAIRE TAUX Z",
};

SalarieCalculRubrique LigneRemplie() {
  SalarieCalculRubrique r;
  r.sValeurBase = "TRAITEMENT DE BASE";
  r.dBase = 1234.5;
  r.dTauxSalarial = 7.5;
  r.dMontantSalarial = -92.59;
  r.dTauxPatronal = 30.65;
  r.dMontantPatronal = 378.37;
  r.sCodeRubrique = "CNRDETACH";
  r.lIdTaux = 17;
  return r;
}

TEST(DispatchTest, NamesWithNoEffectLeaveTheLineAndGiveTrue) {
  MethodeCalculG_Nouv m;
  for (const char* nom : kSansEffet) {
    VarCalculSalarie s;
    s.iNBJ_Presence_Total = 30;
    SalarieCalculRubrique r = LigneRemplie();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneRemplie())) << nom;
    EXPECT_EQ(s.iNBJ_Presence_Total.value(), 30);
  }
}

TEST(DispatchTest, UnknownNamesMatchNothingAndGiveTrue) {
  MethodeCalculG_Nouv m;
  for (const char* nom : {"", "montant fixe", "MONTANT FIXE ", " MONTANT FIXE", "BASE X TAUX",
                          "CNRACL Retroactive", "COEFFICIENT_INDICE"}) {
    VarCalculSalarie s;
    SalarieCalculRubrique r = LigneRemplie();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneRemplie())) << nom;
    EXPECT_TRUE(MemesChamps(s, VarCalculSalarie{})) << nom;
  }
  for (const char* nom : {"", "coefficient_indice", "COEFFICIENT_INDICE ", "MONTANT FIXE"}) {
    VarCalculSalarie s;
    EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
    EXPECT_TRUE(MemesChamps(s, VarCalculSalarie{})) << nom;
  }
}

TEST(DispatchTest, CalculationTableHoldsEveryNameOnce) {
  auto table = TableCalculNouv();
  EXPECT_EQ(table.size(), 100u + 12u);
  std::set<std::string> noms;
  for (const auto& l : table) {
    EXPECT_TRUE(noms.insert(l.nom).second) << l.nom;
    EXPECT_NE(l.executer, nullptr) << l.nom;
  }
  EXPECT_STREQ(table[0].nom, "MONTANT FIXE");
  EXPECT_STREQ(table[0].handler, "CalculRubrique_MontantFixe");
  EXPECT_STREQ(table[12].nom, "BONIFICIATION INDICIAIRE");
  EXPECT_TRUE(noms.count("CNRACL Rétroactive"));
  EXPECT_TRUE(noms.count("MGEN (-30 ans)"));
  EXPECT_STREQ(table[99].nom, "REDUCTION SUR CSG/RDS NON DED. CHOMAGE");
}

TEST(DispatchTest, PreparationTableInItsOrder) {
  auto table = TablePreparationNouv();
  const char* const attendus[] = {
      "COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT", "NBRE_JOUR_PRESENCE", "SALAIRE_BASE_HS",
      "NBRE_JOUR_DEMI_TRAITEMENT", "NBRE_JOUR_CPA", "NBRE_JOUR_CFA", "NBRE_JOUR_DETACHEMENT",
      "NBRE_JOUR_DISPONIBILITE_OFFICE", "NBRE_JOUR_FORMATION", "NBRE_JOUR_AUTREABSENCE",
      "NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", "NBRE_JOUR_DETACHEMENT_SANS_PENSION",
      "NBRE_JOUR_90POURCENT_TRAITEMENT", "NBRE_JOUR_2TIERS_TRAITEMENT",
      "NBRE_JOUR_MALADIE_SANS_TRAITEMENT", "NBRE_JOUR_TPT_NON_SUBROGE"};
  ASSERT_EQ(table.size(), std::size(attendus));
  for (size_t i = 0; i < table.size(); ++i) EXPECT_STREQ(table[i].nom, attendus[i]);
}

TEST(DispatchTest, DetachmentTestNeedsBothCountsAboveZeroAndAPensionCode) {
  VarCalculSalarie s;
  SalarieCalculRubrique r;
  r.sCodeRubrique = "CNRDETACH";
  s.iNBJ_DETACHEMENT = 12;
  s.iNBJ_DETACHEMENT2 = 0;
  EXPECT_FALSE(TestDetachement(s, r));
  s.iNBJ_DETACHEMENT2 = -3;
  EXPECT_FALSE(TestDetachement(s, r));
  s.iNBJ_DETACHEMENT2 = 1;
  EXPECT_TRUE(TestDetachement(s, r));
  s.iNBJ_DETACHEMENT = 0;
  EXPECT_FALSE(TestDetachement(s, r));
  s.iNBJ_DETACHEMENT = 30;
  for (const char* code : {"CNRDETACH", "CNRBONIFDE", "CIVSURCOTP", "CIVSURBONP", "CNRDETC20",
                           "CNRDETCB20", "CIVSURP20", "CIVSURBP20"}) {
    r.sCodeRubrique = code;
    EXPECT_TRUE(TestDetachement(s, r)) << code;
  }
  for (const char* code : {"", "cnrdetach", "CNRDETACH ", "CNRTIT"}) {
    r.sCodeRubrique = code;
    EXPECT_FALSE(TestDetachement(s, r)) << code;
  }
}

TEST(DispatchTest, ModelTestIsTheExactHourlyModel) {
  VarCalculSalarie s;
  s.sTypeModele = "HORAIR";
  EXPECT_TRUE(TestModeleHoraire(s));
  for (const char* modele : {"INDTIT", "horair", "HORAIRE", ""}) {
    s.sTypeModele = modele;
    EXPECT_FALSE(TestModeleHoraire(s)) << modele;
  }
}

TEST(HistoricDispatchTest, KnowsItsEightyTwoNamesAndTwelvePreparations) {
  EXPECT_EQ(TableCalculHisto().size(), 82u);
  EXPECT_EQ(TablePreparationHisto().size(), 12u);
  std::set<std::string> noms;
  for (const auto& l : TableCalculHisto()) {
    EXPECT_TRUE(noms.insert(l.nom).second) << l.nom;
    EXPECT_NE(l.executer, nullptr) << l.nom;
  }
  for (const auto& l : TablePreparationHisto()) EXPECT_NE(l.executer, nullptr) << l.nom;
  EXPECT_EQ(noms.count("CARENCE"), 0u);
  EXPECT_EQ(noms.count("BASE / TAUX"), 0u);
  for (const auto& l : TableCalculHisto()) {
    if (std::string(l.nom) == "BASE x TAUX") {
      EXPECT_STREQ(l.handler, "CalculRubrique_BaseTaux");
    }
    if (std::string(l.nom) == "INDEMNITE DIFFERENTIELLE") {
      EXPECT_STREQ(l.handler, "CalculRubrique_Indemnite_Differentielle");
    }
  }
}

TEST(HistoricDispatchTest, NamesOfTheCurrentEngineOnlyDoNothing) {
  MethodeCalculG m;
  for (const char* nom : {"CARENCE", "BASE / TAUX", "MAINTIEN SALAIRE 90%", "IRF",
                          "TRAITEMENT HORAIRE MOIS", "REDUCTION SUR CSG/RDS NON DED. CHOMAGE"}) {
    VarCalculSalarie s;
    SalarieCalculRubrique r = LigneRemplie();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneRemplie())) << nom;
  }
  for (const char* nom : {"NBRE_JOUR_2TIERS_TRAITEMENT", "NBRE_JOUR_90POURCENT_TRAITEMENT",
                          "NBRE_JOUR_DETACHEMENT_SANS_PENSION", "NBRE_JOUR_MALADIE_SANS_TRAITEMENT",
                          "NBRE_JOUR_TPT_NON_SUBROGE"}) {
    VarCalculSalarie s;
    EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
    EXPECT_TRUE(MemesChamps(s, VarCalculSalarie{})) << nom;
  }
  for (const char* nom : kSansEffet) {
    VarCalculSalarie s;
    SalarieCalculRubrique r = LigneRemplie();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneRemplie())) << nom;
  }
}

}  // namespace
}  // namespace orvalis
