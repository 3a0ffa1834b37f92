// The situations of the record counted in the two cells of the historic month, beside the
// older form of the current engine on the same record.
#include <utility>

#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class SituationsHistoriquesTest : public DeuxMoteurs {
 protected:
  SituationsHistoriquesTest() {
    s.sTypeModele = "INDTIT";
    s.sDateDebut = "01/01/2020";
    s.sDateChangementHeures = "01/01/2020";
    s.sDateChangementIndice = "01/01/2020";
  }
  void Situation(int i, const char* code, const char* debut, const char* fin) {
    (i == 1 ? s.sSituation1 : s.sSituation2) = code;
    (i == 1 ? s.sDateDebutSituation1 : s.sDateDebutSituation2) = debut;
    (i == 1 ? s.sDatefinSituation1 : s.sDatefinSituation2) = fin;
  }
  // The month prepared on both engines, then the names given.
  void Prepare(std::initializer_list<const char*> noms) {
    sN = s;
    sH = s;
    for (const char* nom : {"COEFFICIENT_INDICE", "NBRE_JOUR_PRESENCE"}) {
      ASSERT_TRUE(n.Appel_Methode_Preparation_Calcul_General(nom, sN)) << nom;
      ASSERT_TRUE(h.Appel_Methode_Preparation_Calcul_General(nom, sH)) << nom;
    }
    for (const char* nom : noms) ASSERT_TRUE(h.Appel_Methode_Preparation_Calcul_General(nom, sH));
  }
  // Half pay after an index change on sIndice: its days on the former and on the new index.
  std::pair<int, int> DemiTraitement(const char* sIndice) {
    s.sDateChangementIndice = sIndice;
    Prepare({"NBRE_JOUR_DEMI_TRAITEMENT"});
    return {sH.iNBJ_DemiTraitementA, sH.iNBJ_DemiTraitementN};
  }
};

// Index change on the 11th, half pay from the 5th to the 20th: 11 - 5 = 6 days on the
// former index, 20 - 11 + 1 = 10 on the new; the current engine's older form puts the same
// in IATN and INTN.
TEST_F(SituationsHistoriquesTest, HalfPayAcrossTheIndexChange) {
  s.sDateChangementIndice = "11/03/2024";
  Situation(1, "DT", "05/03/2024", "20/03/2024");
  Prepare({"NBRE_JOUR_DEMI_TRAITEMENT"});
  n.CalculNombreJourDemiTraitement(sN);
  EXPECT_EQ(sH.iNBJ_DemiTraitementA, 6);
  EXPECT_EQ(sH.iNBJ_DemiTraitementN, 10);
  EXPECT_EQ(sN.iNBJ_DemiTraitementIATN, 6);
  EXPECT_EQ(sN.iNBJ_DemiTraitementINTN, 10);
}

// A whole month of half pay on the new index: 30; a code of another member counts nothing.
TEST_F(SituationsHistoriquesTest, WholeMonthOnTheNewIndex) {
  Situation(1, "DT", "01/02/2024", "30/04/2024");
  Prepare({"NBRE_JOUR_DEMI_TRAITEMENT", "NBRE_JOUR_CFA"});
  EXPECT_EQ(sH.iNBJ_DemiTraitementA, 0);
  EXPECT_EQ(sH.iNBJ_DemiTraitementN, 30);
  EXPECT_EQ(sH.iNBJ_CFAN, 0);
}

// Half pay all month and leave of office from the 16th (15 days): 15 + 30 is above 30, so
// the leave of office keeps 30 - (0 + 30) = 0.
TEST_F(SituationsHistoriquesTest, LeaveOfOfficeWithinWhatHalfPayLeaves) {
  Situation(1, "DT", "01/03/2024", "");
  Situation(2, "DO", "16/03/2024", "31/03/2024");
  Prepare({"NBRE_JOUR_DEMI_TRAITEMENT", "NBRE_JOUR_DISPONIBILITE_OFFICE"});
  EXPECT_EQ(sH.iNBJ_DemiTraitementN, 30);
  EXPECT_EQ(sH.iNBJ_DispoOfficeN, 0);
}

TEST_F(SituationsHistoriquesTest, LeaveOfOfficeAlone) {
  Situation(2, "DO", "16/03/2024", "31/03/2024");  // day 31 counts as 30: 30 - 16 + 1
  Prepare({"NBRE_JOUR_DEMI_TRAITEMENT", "NBRE_JOUR_DISPONIBILITE_OFFICE"});
  EXPECT_EQ(sH.iNBJ_DispoOfficeN, 15);
}

// Two detachments: 10th to 20th (11 days), then 1st to 5th (5); the last one stands.
TEST_F(SituationsHistoriquesTest, DetachmentLastOneStands) {
  Situation(1, "D", "10/03/2024", "20/03/2024");
  Prepare({"NBRE_JOUR_DETACHEMENT"});
  EXPECT_EQ(sH.iNBJ_DETACHEMENT, 11);
  Situation(2, "M", "01/03/2024", "05/03/2024");
  Prepare({"NBRE_JOUR_DETACHEMENT"});
  EXPECT_EQ(sH.iNBJ_DETACHEMENT, 5);
}

// A progressive end of activity "CP" writes its type and coefficients.
TEST_F(SituationsHistoriquesTest, ProgressiveEndOfActivity) {
  Situation(1, "CP", "01/03/2024", "");
  Prepare({"NBRE_JOUR_CPA"});
  EXPECT_EQ(sH.sTypeCPA, "CP");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_CPA, 0.5);
  EXPECT_EQ(sH.iNBJ_CPAN, 30);
}

// A situation over before the month adds nothing.
TEST_F(SituationsHistoriquesTest, SituationBeforeTheMonth) {
  Situation(1, "MM", "01/01/2024", "31/01/2024");
  Prepare({"NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", "NBRE_JOUR_FORMATION"});
  EXPECT_EQ(sH.iNBJ_CongeMaterniteTempsCompletA, 0);
  EXPECT_EQ(sH.iNBJ_CongeMaterniteTempsCompletN, 0);
  EXPECT_EQ(sH.iNBJ_FormationN, 0);
}

}  // namespace
}  // namespace orvalis::historique_test

namespace orvalis::historique_test {
namespace {

// Sick leave from the 21st (10 days) stands whole; a therapeutic part-time "M7" is unknown
// here. "MI" from the 1st to the 10th: 10 days of therapeutic part-time, 5 of absence.
TEST_F(SituationsHistoriquesTest, OtherAbsences) {
  Situation(1, "CM", "21/03/2024", "");
  Situation(2, "M7", "01/03/2024", "10/03/2024");
  Prepare({"NBRE_JOUR_AUTREABSENCE"});
  EXPECT_EQ(sH.iNBJ_AutreAbsence, 10);
  EXPECT_EQ(sH.iNBJ_TpsTherapeutique, 0);
  Situation(2, "MI", "01/03/2024", "10/03/2024");
  Prepare({"NBRE_JOUR_AUTREABSENCE"});
  EXPECT_EQ(sH.iNBJ_AutreAbsence, 15);
  EXPECT_EQ(sH.iNBJ_TpsTherapeutique, 10);
  EXPECT_DOUBLE_EQ(sH.dTpsTherapeutiqueCoefRI, 5.0);
  // Long sick leave "GM" from the 21st (30 - 21 + 1 = 10 days) and "LM" from the 1st to the
  // 5th (5) stand whole: 15 days of absence.
  Situation(1, "GM", "21/03/2024", "");
  Situation(2, "LM", "01/03/2024", "05/03/2024");
  Prepare({"NBRE_JOUR_AUTREABSENCE"});
  EXPECT_EQ(sH.iNBJ_AutreAbsence, 15);
  EXPECT_EQ(sH.iNBJ_TpsTherapeutique, 0);
}

// Index change on the 11th (presence 10 and 20). Half pay from the 15th to the 20th starts
// after the change: all 20 - 15 + 1 = 6 days on the new index. From the 5th to the 10th with
// a change on the 21st (presence 20 and 10): all 10 - 5 + 1 = 6 on the former one.
TEST_F(SituationsHistoriquesTest, HalfPayWhollyOnOneSideOfTheChange) {
  Situation(1, "DT", "15/03/2024", "20/03/2024");
  EXPECT_EQ(DemiTraitement("11/03/2024"), std::make_pair(0, 6));
  Situation(1, "DT", "05/03/2024", "10/03/2024");
  EXPECT_EQ(DemiTraitement("21/03/2024"), std::make_pair(6, 0));
  EXPECT_EQ(sH.iNBJ_PresenceA, 20);  // 21 - 1
}

// A change next month (15 April) leaves the new index empty: half pay from the 1st to the
// 20th takes the change's day number on the former index, 15 - 1 = 14, none on the new.
// With no valid index date neither cell is set: the half pay counts nothing, while the
// presence is a whole month.
TEST_F(SituationsHistoriquesTest, HalfPayWithAnEmptyNewIndex) {
  Situation(1, "DT", "01/03/2024", "20/03/2024");
  EXPECT_EQ(DemiTraitement("15/04/2024"), std::make_pair(14, 0));
  EXPECT_EQ(sH.iNBJ_PresenceA, 29);  // the short count, 30 - 1
  EXPECT_EQ(DemiTraitement(""), std::make_pair(0, 0));
  EXPECT_EQ(sH.iNBJ_PresenceN, 30);
}

// Half pay from the 5th to the 20th, the change on the 20th itself (presence 19 and 11):
// 20 - 5 = 15 days on the former index; the last day is not past the change, so the new
// one takes all 20 - 5 + 1 = 16, lowered to its presence of 30 - 20 + 1 = 11.
TEST_F(SituationsHistoriquesTest, SituationEndingOnTheChangeDay) {
  Situation(1, "DT", "05/03/2024", "20/03/2024");
  EXPECT_EQ(DemiTraitement("20/03/2024"), std::make_pair(15, 11));
}

// Change on the 11th (presence 10 and 20). "DT" from the 5th to the 15th: 11 - 5 = 6 and
// 15 - 11 + 1 = 5. Then "LD" from the 20th to the 25th starts after the change and after
// the former index's 6 days: all 25 - 20 + 1 = 6 more on the new, 5 + 6 = 11.
TEST_F(SituationsHistoriquesTest, SecondSituationAfterTheChange) {
  Situation(1, "DT", "05/03/2024", "15/03/2024");
  Situation(2, "LD", "20/03/2024", "25/03/2024");
  EXPECT_EQ(DemiTraitement("11/03/2024"), std::make_pair(6, 11));
}

// Change on the 11th (presence 10 and 20), two half pays that overlap. "DT" from the 1st to
// the 10th ends before the change: all 10 days on the former index. "LD" from the 5th to
// the 15th adds 11 - 5 = 6 there, 16, lowered to the presence 10, and 15 - 11 + 1 = 5 on the
// new.
TEST_F(SituationsHistoriquesTest, OverlappingSituationsCappedByPresence) {
  Situation(1, "DT", "01/03/2024", "10/03/2024");
  Situation(2, "LD", "05/03/2024", "15/03/2024");
  EXPECT_EQ(DemiTraitement("11/03/2024"), std::make_pair(10, 5));
}

// A detachment of all March (1st to 31st: 30 days) with the index changing next month: the
// presence is the short count 29 + 0, and the detachment is lowered to it. A detachment
// over before the month writes 0 over what the record held.
TEST_F(SituationsHistoriquesTest, DetachmentWithinThePresence) {
  s.sDateChangementIndice = "15/04/2024";
  Situation(1, "D", "01/03/2024", "31/03/2024");
  Prepare({"NBRE_JOUR_DETACHEMENT"});
  EXPECT_EQ(sH.iNBJ_DETACHEMENT, 29);
  s.iNBJ_DETACHEMENT = 7;
  Situation(1, "M", "01/01/2024", "31/01/2024");
  Prepare({"NBRE_JOUR_DETACHEMENT"});
  EXPECT_EQ(sH.iNBJ_DETACHEMENT, 0);
}

}  // namespace
}  // namespace orvalis::historique_test
