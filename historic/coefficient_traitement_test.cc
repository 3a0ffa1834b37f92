// The historic treatment coefficient, one for the whole month, beside the current engine's
// two (this month's post and last month's) on the same record.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class CoefficientTraitementHistoriqueTest : public DeuxMoteurs {
 protected:
  CoefficientTraitementHistoriqueTest() {
    s.sTypeModele = "INDTIT";
    s.rsSituationsExceptionnelles = NouveauRecordset(
        {"CodeSituationExceptionnelle", "DateDebutSituationExceptionnelle",
         "DateFinSituationExceptionnelle"});
    s.sOccupationPosteMoisPrec = "P";
    s.dTauxPosteMoisPrec = 50;
  }
  void Prepare() {
    sN = s;
    sH = s;
    ASSERT_TRUE(n.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", sN));
    ASSERT_TRUE(h.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", sH));
  }
};

TEST_F(CoefficientTraitementHistoriqueTest, PartTimeQuotities) {
  s.sOccupationPoste = "P";
  s.dTauxPoste = 80;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 6.0 / 7.0);
  EXPECT_DOUBLE_EQ(sN.dCoefficient_TraitementTN, 6.0 / 7.0);
  EXPECT_DOUBLE_EQ(sN.dCoefficient_TraitementTA, 0.5);  // last month's post: not here
  EXPECT_DOUBLE_EQ(sH.dCoefficient_TraitementTA, 0.0);
  s.dTauxPoste = 90;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 32.0 / 35.0);
  s.dTauxPoste = 50;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.5);
}

// Therapeutic part-time all March (31 days: 30 + 0): the current engine pays full time,
// ((30 - 30) x 0.5 + 30) / 30 = 1; the historic one keeps 0.5.
TEST_F(CoefficientTraitementHistoriqueTest, NoTherapeuticPartTimeCorrection) {
  s.sOccupationPoste = "P";
  s.dTauxPoste = 50;
  auto& rs = s.rsSituationsExceptionnelles;
  rs->AddNew();
  rs->SetField("CodeSituationExceptionnelle", "MI");
  rs->SetField("DateDebutSituationExceptionnelle", "01/03/2024");
  rs->SetField("DateFinSituationExceptionnelle", "31/03/2024");
  Prepare();
  EXPECT_DOUBLE_EQ(sN.dCoefficient_TraitementTN, 1.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.5);
}

// A non-full-time post of 28 hours of 35, fully worked: 28 / 35 x 1 = 0.8, for a titular
// and for a non-titular on the index ("INDNTI") alike.
TEST_F(CoefficientTraitementHistoriqueTest, NonFullTimePost) {
  s.sOccupationPoste = "T";
  s.dTauxPosteTNC = 100;
  s.dHeuresHebdoOrigineTNC = 28;
  s.dDureeHebdoLegale = 35;
  for (const char* modele : {"INDTIT", "INDNTI"}) {
    s.sTypeModele = modele;
    Prepare();
    EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.8) << modele;
    EXPECT_DOUBLE_EQ(sN.dCoefficient_TraitementTN, 0.8) << modele;
  }
}

// Weekly hours: 17.5 / 35 = 0.5; monthly with a legal week of 39: 84.5 / 169 = 0.5; with no
// legal week: 75.835 / 151.67 = 0.5.
TEST_F(CoefficientTraitementHistoriqueTest, HoursAgainstTheLegalDuration) {
  s.iTypeCalculHeure = 1;
  s.dHeuresHebdo = 17.5;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.5);
  s.iTypeCalculHeure = 0;
  s.dDureeHebdoLegale = 39;
  s.dHeuresMois = 84.5;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.5);
  s.dDureeHebdoLegale = 0;
  s.dHeuresMois = 75.835;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.5);
}

// Officials: 50 % of the mayor's rate, times 80 % of the intercommunal one: 0.4. Another
// model: 0.
TEST_F(CoefficientTraitementHistoriqueTest, OfficialsAndOtherModels) {
  s.sTypeModele = "ELUS";
  s.dTauxMaire = 50;
  s.dTauxEPCI = 80;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.4);
  s.sTypeModele = "HORAIR";
  s.dCoefficient_Traitement = 0.7;
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dCoefficient_Traitement, 0.0);
}

}  // namespace
}  // namespace orvalis::historique_test
