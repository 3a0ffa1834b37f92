// Situation day counts by family, from the recordset of situations and from the record's two
// situations.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::Mois;
using periode_test::Quadrants;

TEST(SituationsTest, HalfPayCountsItsFiveCodes) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DEMI_TRAITEMENT", {{"DT", "01/03/2023", "10/03/2023"},
                                                      {"LM", "11/03/2023", "14/03/2023"},
                                                      {"DO50", "15/03/2023", "20/03/2023"},
                                                      {"GD", "25/03/2023", "26/03/2023"}}));
  const VarCalculSalarie& s = x.s;
  EXPECT_EQ((Quadrants{s.iNBJ_DemiTraitementIATA, s.iNBJ_DemiTraitementIATN,
                       s.iNBJ_DemiTraitementINTA, s.iNBJ_DemiTraitementINTN}),
            (Quadrants{0, 0, 0, 18}));
  EXPECT_EQ(s.iNBJ_DemiTraitement_Total.value(), 18);
  EXPECT_EQ(x.s.rsSituationsExceptionnelles->RecordCount(), 4);
}

TEST(SituationsTest, NoSituationWritesZeros) {
  Mois x;
  x.s.iNBJ_DemiTraitementINTN = 9;
  x.s.iNBJ_DemiTraitement_Total = 9;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DEMI_TRAITEMENT", {}));
  EXPECT_EQ(x.s.iNBJ_DemiTraitementINTN.value(), 0);
  EXPECT_EQ(x.s.iNBJ_DemiTraitement_Total.value(), 0);
}

TEST(SituationsTest, TotalSumsTheQuadrants) {
  Mois x;
  x.IndiceSeul();
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_CFA", {{"CF", "01/02/2023", ""}}));
  EXPECT_EQ(x.s.iNBJ_CFAIATN.value(), 10);
  EXPECT_EQ(x.s.iNBJ_CFAINTN.value(), 20);
  EXPECT_EQ(x.s.iNBJ_CFA_Total.value(), 30);
}

TEST(SituationsTest, EachFamilyReadsItsOwnCode) {
  struct Cas {
    const char* nom;
    const char* code;
    Int16 VarCalculSalarie::*intn;
    Int16 VarCalculSalarie::*total;
  };
  using S = VarCalculSalarie;
  const Cas cas[] = {
      {"NBRE_JOUR_CPA", "CP", &S::iNBJ_CPAINTN, &S::iNBJ_CPA_Total},
      {"NBRE_JOUR_CFA", "CF", &S::iNBJ_CFAINTN, &S::iNBJ_CFA_Total},
      {"NBRE_JOUR_DISPONIBILITE_OFFICE", "DO", &S::iNBJ_DispoOfficeINTN,
       &S::iNBJ_DispoOffice_Total},
      {"NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", "MM", &S::iNBJ_CongeMaterniteTempsCompletINTN,
       &S::iNBJ_CongeMaterniteTempsComplet_Total},
      {"NBRE_JOUR_FORMATION", "CO", &S::iNBJ_CongeFormationINTN, &S::iNBJ_CongeFormation_Total},
  };
  for (const Cas& c : cas) {
    Mois x;
    ASSERT_TRUE(x.Prepare(
        c.nom, {{c.code, "05/03/2023", "14/03/2023"}, {"DT", "01/03/2023", "31/03/2023"}}))
        << c.nom;
    EXPECT_EQ((x.s.*c.intn).value(), 10) << c.nom;
    EXPECT_EQ((x.s.*c.total).value(), 10) << c.nom;
  }
}

TEST(SituationsTest, ProgressiveRetirementCodes) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_CPA", {{"PD", "01/06/2022", ""}}));
  EXPECT_EQ(x.s.iNBJ_CPA_Total.value(), 30);
  EXPECT_EQ(x.s.sTypeCPA, "PD");
  EXPECT_DOUBLE_EQ(x.s.dCoefficient_CPA, 0.85714);
}

TEST(SituationsTest, AvailabilityGivesWayToHalfPay) {
  Mois x;
  x.s.iNBJ_DemiTraitement_Total = 20;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DISPONIBILITE_OFFICE", {{"DO", "01/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DispoOfficeINTN.value(), 10);
  EXPECT_EQ(x.s.iNBJ_DispoOffice_Total.value(), 30);
}

TEST(SituationsTest, AvailabilityAtExactlyThirtyIsKept) {
  Mois x;
  x.s.iNBJ_DemiTraitement_Total = 10;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DISPONIBILITE_OFFICE", {{"DO", "11/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DispoOfficeINTN.value(), 20);
  x.s.iNBJ_DemiTraitement_Total = 11;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DISPONIBILITE_OFFICE", {{"DO", "11/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DispoOfficeINTN.value(), 19);
  EXPECT_EQ(x.s.iNBJ_DispoOffice_Total.value(), 20);
}

TEST(SituationsTest, AvailabilityCapOverflowIsAFault) {
  Mois x;
  x.s.iNBJ_DemiTraitement_Total = 32767;
  EXPECT_FALSE(x.Prepare("NBRE_JOUR_DISPONIBILITE_OFFICE", {{"DO", "01/03/2023", "31/03/2023"}}));
  // The counts were written before the cap faulted.
  EXPECT_EQ(x.s.iNBJ_DispoOffice_Total.value(), 30);
}

TEST(SituationsTest, DetachmentFirstAndLastRecords) {
  Mois x;
  x.s.iNBJ_DETACHEMENT2 = 99;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DETACHEMENT", {{"D", "01/03/2023", "10/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 10);
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT2.value(), 99);

  Mois y;
  ASSERT_TRUE(y.Prepare("NBRE_JOUR_DETACHEMENT", {{"D", "01/03/2023", "10/03/2023"},
                                                  {"P", "01/03/2023", "31/03/2023"},
                                                  {"D", "15/03/2023", "31/03/2023"},
                                                  {"M", "20/03/2023", "25/03/2023"}}));
  EXPECT_EQ(y.s.iNBJ_DETACHEMENT.value(), 10);
  EXPECT_EQ(y.s.iNBJ_DETACHEMENT2.value(), 6);
}

TEST(SituationsTest, DetachmentCappedByTotalPresence) {
  Mois x;
  x.s.iNBJ_Presence_Total = 22;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DETACHEMENT", {{"D", "01/01/2023", ""}}));
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 22);
}

TEST(SituationsTest, DetachmentWithoutPensionRunsTheNewCount) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DETACHEMENT_SANS_PENSION", {{"P", "01/03/2023", "10/03/2023"},
                                                               {"D", "11/03/2023", "20/03/2023"},
                                                               {"P", "21/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT_SANSPENSION.value(), 20);
  Mois vide;
  vide.s.iNBJ_DETACHEMENT_SANSPENSION = 5;
  ASSERT_TRUE(vide.Prepare("NBRE_JOUR_DETACHEMENT_SANS_PENSION", {}));
  EXPECT_EQ(vide.s.iNBJ_DETACHEMENT_SANSPENSION.value(), 0);
}

TEST(SituationsTest, MissingSourceIsAFault) {
  for (const char* nom :
       {"NBRE_JOUR_DEMI_TRAITEMENT", "NBRE_JOUR_CPA", "NBRE_JOUR_CFA", "NBRE_JOUR_DETACHEMENT",
        "NBRE_JOUR_DISPONIBILITE_OFFICE", "NBRE_JOUR_FORMATION",
        "NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", "NBRE_JOUR_DETACHEMENT_SANS_PENSION"}) {
    Mois x;
    x.s.rsSituationsExceptionnelles = nullptr;
    EXPECT_FALSE(x.m.Appel_Methode_Preparation_Calcul_General(nom, x.s)) << nom;
  }
}

// ---- Older form ----------------------------------------------------------------------------

TEST(SituationsAncienneFormeTest, TwoSituationsOfTheRecord) {
  Mois x;
  x.s.sSituation1 = "DT";
  x.s.sDateDebutSituation1 = "01/03/2023";
  x.s.sDatefinSituation1 = "10/03/2023";
  x.s.sSituation2 = "LD";
  x.s.sDateDebutSituation2 = "21/03/2023";
  x.m.CalculNombreJourDemiTraitement(x.s);
  EXPECT_EQ(x.s.iNBJ_DemiTraitementINTN.value(), 20);
  EXPECT_EQ(x.s.iNBJ_DemiTraitement_Total.value(), 20);
  // "DO50" is a code of the recordset only.
  x.s.sSituation2 = "DO50";
  x.m.CalculNombreJourDemiTraitement(x.s);
  EXPECT_EQ(x.s.iNBJ_DemiTraitement_Total.value(), 10);
}

TEST(SituationsAncienneFormeTest, OtherFamilies) {
  Mois x;
  x.s.sSituation1 = "PF";
  x.s.sDateDebutSituation1 = "01/03/2023";
  x.s.sDatefinSituation1 = "10/03/2023";
  x.s.sSituation2 = "CO";
  x.s.sDateDebutSituation2 = "21/03/2023";
  x.m.CalculNombreJourCPA(x.s);
  x.m.CalculNombreJourFormation(x.s);
  x.m.CalculNombreJourCFA(x.s);
  x.m.CalculNombreJourCongeMaternite(x.s);
  EXPECT_EQ(x.s.iNBJ_CPA_Total.value(), 10);
  EXPECT_EQ(x.s.sTypeCPA, "PF");
  EXPECT_EQ(x.s.iNBJ_CongeFormation_Total.value(), 10);
  EXPECT_EQ(x.s.iNBJ_CFA_Total.value(), 0);
  EXPECT_EQ(x.s.iNBJ_CongeMaterniteTempsComplet_Total.value(), 0);
}

TEST(SituationsAncienneFormeTest, AvailabilityCap) {
  Mois x;
  x.s.sSituation1 = "DO";
  x.s.sDateDebutSituation1 = "01/03/2023";
  x.s.iNBJ_DemiTraitement_Total = 12;
  x.m.CalculNombreJourDispoOffice(x.s);
  EXPECT_EQ(x.s.iNBJ_DispoOfficeINTN.value(), 18);
  EXPECT_EQ(x.s.iNBJ_DispoOffice_Total.value(), 30);
}

TEST(SituationsAncienneFormeTest, DetachmentKeepsTheLastSituation) {
  Mois x;
  x.s.sSituation1 = "D";
  x.s.sDateDebutSituation1 = "01/03/2023";
  x.s.sDatefinSituation1 = "10/03/2023";
  x.m.CalculNombreJourDetachement(x.s);
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 10);
  x.s.sSituation2 = "M";
  x.s.sDateDebutSituation2 = "21/03/2023";
  x.m.CalculNombreJourDetachement(x.s);
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 10);
  x.s.sDatefinSituation2 = "25/03/2023";
  x.m.CalculNombreJourDetachement(x.s);
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 5);
}

TEST(SituationsAncienneFormeTest, DetachmentWithoutPension) {
  Mois x;
  x.s.sSituation1 = "P";
  x.s.sDateDebutSituation1 = "01/03/2023";
  x.s.sDatefinSituation1 = "10/03/2023";
  x.s.sSituation2 = "P";
  x.s.sDateDebutSituation2 = "21/03/2023";
  x.m.CalculNombreJourDetachementSansPension(x.s);
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT_SANSPENSION.value(), 20);
}

}  // namespace
}  // namespace orvalis
