// The period preparations reached by their literal names through the entry point.
#include <gtest/gtest.h>

#include <utility>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::SalarieMoisComplet;
using periode_test::Situations;

// Every preparation name, with what a record left at its defaults gives: only the treatment
// coefficient needs nothing of the record; the others read a date, a source or a column.
const std::pair<const char*, bool> kNoms[] = {
    {"COEFFICIENT_INDICE", false},
    {"COEFFICIENT_TRAITEMENT", true},
    {"NBRE_JOUR_PRESENCE", false},
    {"SALAIRE_BASE_HS", false},
    {"NBRE_JOUR_DEMI_TRAITEMENT", false},
    {"NBRE_JOUR_CPA", false},
    {"NBRE_JOUR_CFA", false},
    {"NBRE_JOUR_DETACHEMENT", false},
    {"NBRE_JOUR_DISPONIBILITE_OFFICE", false},
    {"NBRE_JOUR_FORMATION", false},
    {"NBRE_JOUR_AUTREABSENCE", false},
    {"NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", false},
    {"NBRE_JOUR_DETACHEMENT_SANS_PENSION", false},
    {"NBRE_JOUR_90POURCENT_TRAITEMENT", false},
    {"NBRE_JOUR_2TIERS_TRAITEMENT", false},
    {"NBRE_JOUR_MALADIE_SANS_TRAITEMENT", false},
    {"NBRE_JOUR_TPT_NON_SUBROGE", false},
};

TEST(PreparationTest, RecordAtItsDefaultsNeverEscapesTheEntry) {
  for (const auto& [nom, attendu] : kNoms) {
    MethodeCalculG_Nouv m;
    VarCalculSalarie s;
    EXPECT_EQ(m.Appel_Methode_Preparation_Calcul_General(nom, s), attendu) << nom;
    MethodeCalculG_Nouv mois;
    mois.gPeriodeEncours = "01/03/2023";
    VarCalculSalarie t;
    EXPECT_EQ(mois.Appel_Methode_Preparation_Calcul_General(nom, t), attendu) << nom;
  }
}

TEST(PreparationTest, DefaultsWithAnEmptySourceOfSituations) {
  const char* noms[] = {"NBRE_JOUR_DEMI_TRAITEMENT",
                        "NBRE_JOUR_CPA",
                        "NBRE_JOUR_CFA",
                        "NBRE_JOUR_DETACHEMENT",
                        "NBRE_JOUR_DISPONIBILITE_OFFICE",
                        "NBRE_JOUR_FORMATION",
                        "NBRE_JOUR_AUTREABSENCE",
                        "NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET",
                        "NBRE_JOUR_DETACHEMENT_SANS_PENSION",
                        "NBRE_JOUR_90POURCENT_TRAITEMENT",
                        "NBRE_JOUR_2TIERS_TRAITEMENT",
                        "NBRE_JOUR_MALADIE_SANS_TRAITEMENT",
                        "NBRE_JOUR_TPT_NON_SUBROGE"};
  for (const char* nom : noms) {
    MethodeCalculG_Nouv m;
    VarCalculSalarie s;
    s.rsSituationsExceptionnelles = Situations({});
    EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
    EXPECT_EQ(s.iNBJ_DemiTraitement_Total.value(), 0) << nom;
  }
}

TEST(PreparationTest, AMonthInTheHostsOrder) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sDateDebut = "01/01/2015";
  s.sDateChangementIndice = "11/03/2023";
  s.sDateChangementHeures = "01/01/2020";
  s.sOccupationPoste = "P";
  s.dTauxPoste = 80;
  s.sOccupationPosteMoisPrec = "P";
  s.dTauxPosteMoisPrec = 90;
  s.rsSituationsExceptionnelles = Situations({{"DT", "06/03/2023", "15/03/2023"},
                                              {"MI", "20/03/2023", "29/03/2023"},
                                              {"O90", "01/03/2023", "03/03/2023"}});
  for (const char* nom :
       {"COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT", "NBRE_JOUR_PRESENCE",
        "NBRE_JOUR_DEMI_TRAITEMENT", "NBRE_JOUR_AUTREABSENCE", "NBRE_JOUR_90POURCENT_TRAITEMENT"})
    ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;

  EXPECT_DOUBLE_EQ(s.dCoefficient_IATN, 10 / 30.0);
  EXPECT_DOUBLE_EQ(s.dCoefficient_INTN, 20 / 30.0);
  // 80 % corrected by the 10 days of "MI" (9 + 1 in a 31-day month: 9).
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTN, (21 * (6.0 / 7.0) + 9) / 30);
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTA, (21 * (32.0 / 35.0) + 9) / 30);
  EXPECT_EQ(s.iNBJ_PresenceIATN.value(), 10);
  EXPECT_EQ(s.iNBJ_PresenceINTN.value(), 20);
  EXPECT_EQ(s.iNBJ_Presence_Total.value(), 30);
  // Half pay 6 to 15 across the index change on the 11th: 5 and 5.
  EXPECT_EQ(s.iNBJ_DemiTraitementIATN.value(), 5);
  EXPECT_EQ(s.iNBJ_DemiTraitementINTN.value(), 5);
  EXPECT_EQ(s.iNBJ_DemiTraitement_Total.value(), 10);
  EXPECT_EQ(s.iNBJ_TpsTherapeutique.value(), 10);
  EXPECT_EQ(s.iNBJ_AutreAbsence.value(), 5);
  EXPECT_EQ(s.iNBJ_90PourCentTraitementIATN.value(), 3);
  EXPECT_EQ(s.iNBJ_90PourCentTraitement_Total.value(), 3);
}

TEST(PreparationTest, SixteenBitOverflowOfADayCountGivesFalse) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  VarCalculSalarie s = SalarieMoisComplet();
  s.iNBJ_PresenceINTN = 32767;
  // 1093 whole months of half pay pass 32767 days.
  std::vector<LigneSituation> lignes(1093, LigneSituation{"DT", "01/03/2023", "31/03/2023"});
  s.rsSituationsExceptionnelles = Situations(lignes);
  EXPECT_FALSE(m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_DEMI_TRAITEMENT", s));
  lignes.resize(1092);
  s.rsSituationsExceptionnelles = Situations(lignes);
  EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_DEMI_TRAITEMENT", s));
  EXPECT_EQ(s.iNBJ_DemiTraitement_Total.value(), 32760);
}

TEST(PreparationTest, NamesDifferingByCaseOrBlankDoNothing) {
  for (const char* nom :
       {"coefficient_traitement", "COEFFICIENT_TRAITEMENT ", "NBRE_JOUR_AUTRE_ABSENCE"}) {
    MethodeCalculG_Nouv m;
    VarCalculSalarie s;
    s.sTypeModele = "HORAIR";
    s.dCoefficient_Traitement = 0.5;
    EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
    EXPECT_EQ(s.dCoefficient_Traitement, 0.5) << nom;
  }
}

}  // namespace
}  // namespace orvalis
