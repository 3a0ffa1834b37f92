// Half pay and its supplementary allocation, the family supplement of availability, the
// amount prorated on half pay, and the index bonus with its half-pay share.
#include <gtest/gtest.h>

#include "orvalis/ModOutilsSpec.h"
#include "salary/traitement_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class DemiTraitementTest : public PaieJuillet {
 protected:
  DemiTraitementTest() {
    Constante("TXALLCOMP", 60);
    Constante("TXALLCOMPM", 70);
    s.iEnfant_ACharge = 2;
  }
  // The month of index 366 prepared with these half-pay situations, treatment line first.
  void MoisAvec(const std::vector<LigneSituation>& situations) {
    Prepare(situations, {"NBRE_JOUR_DEMI_TRAITEMENT", "NBRE_JOUR_DISPONIBILITE_OFFICE"});
    ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
    ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT"));
  }
  double Coefficient(const std::string& sType) {
    m.CalculCoefficientDemiTraitement(s, sType);
    return s.dCoefficient_DemiTraitement;
  }
};

// 15 days of half pay on 21620.86 a year: 21620.86 / 12 x 15 / 30 = 900.869167.
constexpr double kQuinzeJours = 21620.86 / 12 * 15 / 30;

TEST_F(DemiTraitementTest, CoefficientByChildrenAndType) {
  EXPECT_EQ(Coefficient("D"), 0.5);
  s.iEnfant_ACharge = 3;
  EXPECT_EQ(Coefficient("D"), 2.0 / 3.0);
  EXPECT_EQ(Coefficient("X"), 0.5);
  EXPECT_EQ(Coefficient(""), 0.5);
}

TEST_F(DemiTraitementTest, AllocationCoefficientOnlyPast180Days) {
  s.sSituation1 = "DT";
  s.iNBJ_DemiTraitement_Total = 10;
  s.sDateDebutSituation1 = "01/07/2005";  // 184 days before 01/01/2006
  EXPECT_DOUBLE_EQ(Coefficient("A"), 0.6);
  s.iEnfant_ACharge = 3;
  EXPECT_DOUBLE_EQ(Coefficient("A"), 0.7);
  s.sDateDebutSituation1 = "05/07/2005";  // 180 days exactly
  EXPECT_EQ(Coefficient("A"), 0);
  s.sDateDebutSituation1 = "01/07/2005";
  s.iNBJ_DemiTraitement_Total = 0;  // no half-pay day in the month
  EXPECT_EQ(Coefficient("A"), 0);
}

TEST_F(DemiTraitementTest, AllocationCoefficientFromTheSecondSituationOrAvailability) {
  s.sSituation1 = "MA";
  s.sDateDebutSituation1 = "01/01/2000";
  s.sSituation2 = "DO";
  s.sDateDebutSituation2 = "01/06/2005";  // 214 days
  EXPECT_EQ(Coefficient("A"), 0);  // no availability day
  s.iNBJ_DispoOfficeIATN = 1;
  EXPECT_DOUBLE_EQ(Coefficient("A"), 0.6);
  s.sSituation1 = "LD";  // the first one first, when it holds
  s.iNBJ_DemiTraitement_Total = 4;
  s.sDateDebutSituation1 = "01/12/2005";  // 31 days
  EXPECT_EQ(Coefficient("A"), 0);
}

TEST_F(DemiTraitementTest, HalfPayWithTwoChildrenPaysTheHalf) {
  MoisAvec({{"DT", "01/07/2023", "15/07/2023"}});
  ASSERT_EQ(s.iNBJ_DemiTraitementINTN.value(), 15);
  s.dMontantAllocationComplementaireMaladie = 9;
  ASSERT_TRUE(Ligne("DEMI TRAITEMENT INDICIAIRE"));
  EXPECT_EQ(s.dCoefficient_DemiTraitement, 0.5);
  EXPECT_DOUBLE_EQ(r.dBase, 1801.73);
  EXPECT_EQ(r.dTauxSalarial, 15);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, kQuinzeJours / 2);  // 450.434583
  EXPECT_EQ(s.dMontantAllocationComplementaireMaladie, 0);
  EXPECT_EQ(r.dMontantPatronal, 0);
  ASSERT_TRUE(Ligne("ALLOCATION COMPLEMENTAIRE MALADIE"));
  EXPECT_EQ(r.dMontantSalarial, 0);
}

TEST_F(DemiTraitementTest, HalfPayWithThreeChildrenLeavesTheSixthToTheAllocation) {
  s.iEnfant_ACharge = 3;
  MoisAvec({{"DT", "01/07/2023", "15/07/2023"}});
  ASSERT_TRUE(Ligne("DEMI TRAITEMENT INDICIAIRE"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, kQuinzeJours / 2);
  // M1 - M2 = 2/3 x 900.869167 - 1/2 x 900.869167 = 150.144861.
  EXPECT_DOUBLE_EQ(s.dMontantAllocationComplementaireMaladie,
                   2.0 / 3.0 * kQuinzeJours - 0.5 * kQuinzeJours);
  ASSERT_TRUE(Ligne("ALLOCATION COMPLEMENTAIRE MALADIE"));
  EXPECT_EQ(r.dBase, 0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, s.dMontantAllocationComplementaireMaladie);
  EXPECT_EQ(Arrondi(r.dMontantSalarial, 2), 150.14);
}

TEST_F(DemiTraitementTest, AvailabilityKeepsItsShareApart) {
  s.iEnfant_ACharge = 3;
  MoisAvec({{"DO", "21/07/2023", ""}});
  ASSERT_EQ(s.iNBJ_DispoOfficeINTN.value(), 10);
  s.dMontantAllocationComplementaireMaladie = 9;
  ASSERT_TRUE(Ligne("DEMI TRAITEMENT INDICIAIRE", "INDCOTRAIT"));
  const double X = 21620.86 / 12 * 10 / 30;  // 600.579444
  EXPECT_EQ(r.dTauxSalarial, 10);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, X / 2);
  EXPECT_DOUBLE_EQ(s.dMontantAllocationComplementaireDispo, 2.0 / 3.0 * X - 0.5 * X);
  EXPECT_EQ(s.dMontantAllocationComplementaireMaladie, 9);
  ASSERT_TRUE(Ligne("ALLOCATION COMPLEMENTAIRE MALADIE", "INDCOCOMPLDEMI"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, s.dMontantAllocationComplementaireDispo);
  ASSERT_TRUE(Ligne("ALLOCATION COMPLEMENTAIRE MALADIE"));
  EXPECT_EQ(r.dMontantSalarial, 9);
}

TEST_F(DemiTraitementTest, QuadrantsTakeTheirYearAndTheirHours) {
  Prepare();
  s.dSalarie_AnnuelPleinA = 20000;
  s.dSalarie_AnnuelPlein = 24000;
  s.dCoefficient_TraitementTA = 0.8;
  s.iNBJ_DemiTraitementIATA = 3;
  s.iNBJ_DemiTraitementIATN = 4;
  s.iNBJ_DemiTraitementINTA = 5;
  s.iNBJ_DemiTraitementINTN = 6;
  ASSERT_TRUE(Ligne("DEMI TRAITEMENT INDICIAIRE"));
  // 0.8 x 20000/12 x 3/30 + 20000/12 x 4/30 + 0.8 x 24000/12 x 5/30 + 24000/12 x 6/30
  // = 133.333 + 222.222 + 266.667 + 400 = 1022.222, half 511.111.
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1022.2222222222222 / 2);
  EXPECT_EQ(r.dTauxSalarial, 18);
}

TEST_F(DemiTraitementTest, AllocationLineOnTheAllocationCoefficient) {
  MoisAvec({{"DT", "01/07/2023", "15/07/2023"}});
  s.sSituation1 = "DT";
  s.sDateDebutSituation1 = "01/07/2005";
  ASSERT_TRUE(Ligne("ALLOCATION COMPLEMENTAIRE"));
  EXPECT_DOUBLE_EQ(s.dCoefficient_DemiTraitement, 0.6);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, kQuinzeJours / 2);
  EXPECT_DOUBLE_EQ(s.dMontantAllocationComplementaireMaladie, 0.6 * kQuinzeJours - 0.5 * kQuinzeJours);
}

TEST_F(DemiTraitementTest, NoSituationWritesNothing) {
  MoisAvec({});
  s.dCoefficient_DemiTraitement = 0.25;
  s.dMontantAllocationComplementaireMaladie = 9;
  r = SalarieCalculRubrique();
  r.dMontantSalarial = 5;
  for (const char* nom : {"DEMI TRAITEMENT INDICIAIRE", "ALLOCATION COMPLEMENTAIRE",
                          "DEMI TRAITEMENT BONIFICATION", "SUPPLEMENT FAMILIAL IC"}) {
    ASSERT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_EQ(r.dMontantSalarial, 5) << nom;
  }
  EXPECT_EQ(s.dCoefficient_DemiTraitement, 0.25);
  EXPECT_EQ(s.dMontantAllocationComplementaireMaladie, 9);
  // The allocation line pays 0 on a coefficient of 0.
  s.dCoefficient_DemiTraitement = 0;
  ASSERT_TRUE(Ligne("ALLOCATION COMPLEMENTAIRE MALADIE"));
  EXPECT_EQ(r.dMontantSalarial, 0);
}

TEST_F(DemiTraitementTest, FamilySupplementOfAvailabilityDays) {
  MoisAvec({{"DO", "21/07/2023", ""}});
  s.dMontant_SFT = 111.37;
  s.dCoefficient_DemiTraitement = 0.25;
  ASSERT_TRUE(Ligne("SUPPLEMENT FAMILIAL IC", "INDCOSFT"));
  EXPECT_EQ(s.dCoefficient_DemiTraitement, 0.25);  // not computed for "INDCOSFT"
  EXPECT_EQ(r.dBase, 111.37);
  EXPECT_EQ(r.dTauxSalarial, 10);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 10 * 111.37 / 30);  // 37.123333
  ASSERT_TRUE(Ligne("SUPPLEMENT FAMILIAL IC", "AUTRE"));
  // The line runs as an allocation ("A"): no situation of more than 180 days gives 0.
  EXPECT_EQ(s.dCoefficient_DemiTraitement, 0);
  EXPECT_EQ(r.dTauxSalarial, 0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 10 * 111.37 / 30);
}

TEST_F(DemiTraitementTest, AmountProratedOnHalfPay) {
  s.iNBJ_Presence_Total = 30;
  s.iNBJ_DemiTraitement_Total = 10;
  s.iNBJ_DispoOffice_Total = 5;
  s.iNBJ_CFA_Total = 2;
  s.iNBJ_CongeMaterniteTempsComplet_Total = 3;
  s.dCoefficient_DemiTraitement = 0.5;
  // (30 - 20) x 300 / 30 + (10 + 5) x 300 x 0.5 / 30 = 100 + 75.
  EXPECT_DOUBLE_EQ(m.dMontantProratiseSuivantDemiTraitement(s, 300).value(), 175);
  s.iNBJ_CongeFormation_Total = 32767;  // 16-bit sum overflows
  EXPECT_THROW(m.dMontantProratiseSuivantDemiTraitement(s, 300), Fault);
}

class BonificationTest : public DemiTraitementTest {
 protected:
  BonificationTest() { s.dBonification = 15; }
};

// 15 x 59.0734 = 886.101 -> 886.10; 886.10 / 12 - 0.0049 = 73.836767 -> 73.84.
constexpr double kNbi = 73.84;

TEST_F(BonificationTest, FullMonth) {
  MoisAvec({});
  const double dPlein = s.dSalaire_MensuelPleinINTN;
  ASSERT_TRUE(Ligne("BONIFICIATION INDICIAIRE"));
  EXPECT_EQ(s.dBonificationTotale, kNbi);
  EXPECT_EQ(r.dBase, kNbi);
  EXPECT_EQ(r.dTauxSalarial, 15);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, kNbi);  // 1 x 73.84 x 30 / 30
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelPleinINTN, dPlein + kNbi);
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelReelINTN, 1801.73 + kNbi);
}

TEST_F(BonificationTest, ZeroOrNegativePointsLeaveTheLine) {
  for (double d : {0.0, -3.0}) {
    s.dBonification = d;
    s.dBonificationTotale = 9;
    r = SalarieCalculRubrique();
    r.dMontantSalarial = 5;
    ASSERT_TRUE(m.Appel_Methode_Calcul_General("BONIFICIATION INDICIAIRE", s, r));
    EXPECT_EQ(r.dMontantSalarial, 5);
    EXPECT_EQ(s.dBonificationTotale, 9);
  }
}

TEST_F(BonificationTest, HoursChangeAndHalfPayAndMaternity) {
  Prepare();
  s.iNBJ_PresenceINTA = 14;
  s.iNBJ_PresenceINTN = 16;
  s.dCoefficient_INTA = 14 / 30.0;
  s.dCoefficient_INTN = 16 / 30.0;
  s.dCoefficient_TraitementTA = 32.0 / 35.0;
  s.iNBJ_DemiTraitementINTN = 6;
  ASSERT_TRUE(Ligne("BONIFICIATION INDICIAIRE"));
  // New hours 16 - 6 = 10 days at 1; old hours 14 days at 32/35.
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, kNbi * 10 / 30 + 32.0 / 35.0 * kNbi * 14 / 30);
  // The old hours' days go into the IATN real salary.
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelReelIATN, 32.0 / 35.0 * kNbi * 14 / 30);
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelReelINTN, kNbi * 16 / 30);

  s.iNBJ_DemiTraitementINTN = 0;
  s.iNBJ_CongeMaterniteTempsCompletINTN = 6;
  s.iNBJ_CongeMaterniteTempsComplet_Total = 6;
  s.dCoefficient_TraitementTN = 0.5;
  ASSERT_TRUE(Ligne("BONIFICIATION INDICIAIRE"));
  // 0.5 x 73.84 x 10 / 30 + 32/35 x 73.84 x 14 / 30 + 6 x 73.84 / 30.
  EXPECT_DOUBLE_EQ(r.dMontantSalarial,
                   0.5 * kNbi * 10 / 30 + 32.0 / 35.0 * kNbi * 14 / 30 + 6 * kNbi / 30);
}

TEST_F(BonificationTest, HalfPayShareOfTheBonus) {
  MoisAvec({{"DT", "01/07/2023", "15/07/2023"}});
  ASSERT_TRUE(Ligne("BONIFICIATION INDICIAIRE"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, kNbi / 2);  // 15 days of 30 in full
  ASSERT_TRUE(Ligne("DEMI TRAITEMENT BONIFICATION"));
  EXPECT_DOUBLE_EQ(r.dBase, kNbi);
  EXPECT_EQ(r.dTauxSalarial, 15);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.5 * (kNbi * 15 / 30));  // 18.46
  EXPECT_EQ(s.dMontantAllocationComplementaireMaladieNBI, 0);

  s.iEnfant_ACharge = 3;
  s.iNBJ_CPAINTN = 5;  // progressive cessation days count with them
  ASSERT_TRUE(Ligne("DEMI TRAITEMENT BONIFICATION"));
  const double X = kNbi * 20 / 30;
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.5 * X);
  EXPECT_DOUBLE_EQ(s.dMontantAllocationComplementaireMaladieNBI, 2.0 / 3.0 * X - 0.5 * X);
  ASSERT_TRUE(Ligne("ALLOCATION COMPLEMENTAIRE MALADIE NBI"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, s.dMontantAllocationComplementaireMaladieNBI);
}

}  // namespace
}  // namespace orvalis::salaire_test
