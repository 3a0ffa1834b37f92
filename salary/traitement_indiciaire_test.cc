// The monthly indexed treatment at the point of 01/07/2023 (59.0734 a year), its split on an
// index change, part time, non-complete post, the minimum index and the days off treatment.
#include <gtest/gtest.h>

#include "orvalis/ModOutilsSpec.h"
#include "salary/traitement_test_outils.h"

namespace orvalis::salaire_test {
namespace {

using TraitementIndiciaireTest = PaieJuillet;

TEST_F(TraitementIndiciaireTest, FullMonthOfIndexes366_400_821) {
  struct Cas {
    double indice, annuel, mois;
  };
  // 366 x 59.0734 = 21620.8644 -> 21620.86; 21620.86 / 12 - 0.0049 = 1801.733433 -> 1801.73.
  // 400 x 59.0734 = 23629.36; / 12 - 0.0049 = 1969.108433 -> 1969.11.
  // 821 x 59.0734 = 48499.2614 -> 48499.26; / 12 - 0.0049 = 4041.600100 -> 4041.60.
  for (const Cas& k : {Cas{366, 21620.86, 1801.73}, Cas{400, 23629.36, 1969.11},
                       Cas{821, 48499.26, 4041.60}}) {
    SCOPED_TRACE(k.indice);
    s.dIndiceMajoreM = k.indice;
    Prepare();
    ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
    EXPECT_DOUBLE_EQ(s.dSalarie_AnnuelPlein, k.annuel);
    EXPECT_DOUBLE_EQ(r.dBase, k.mois);
    EXPECT_EQ(r.dTauxSalarial, k.indice);
    EXPECT_DOUBLE_EQ(s.dSalaire_MensuelPleinINTN, k.mois);
    // Full presence, C = 1, no absence: the month paid is the real month.
    EXPECT_DOUBLE_EQ(s.dSalaire_MensuelINTN, s.dSalaire_MensuelReelINTN);
    EXPECT_DOUBLE_EQ(r.dMontantSalarial, k.mois);
    EXPECT_EQ(s.dSalaire_MensuelINTA, 0);
    EXPECT_EQ(r.dTauxPatronal, 0);
    EXPECT_EQ(r.dMontantPatronal, 0);
  }
}

TEST_F(TraitementIndiciaireTest, EntryAndExitInTheMonth) {
  s.sDateDebut = "11/07/2023";  // days 11 to 30: 20
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 20 * 1801.73 / 30);  // 1201.153333
  EXPECT_EQ(Arrondi(r.dMontantSalarial, 2), 1201.15);

  s.sDateDebut = "01/01/2015";
  s.sDateFin = "31/07/2023";  // the 31st counts as the 30th: the whole month
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1801.73);

  s.sDateFin = "05/07/2023";  // 5 days
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 5 * 1801.73 / 30);  // 300.288333
}

TEST_F(TraitementIndiciaireTest, FebruaryIsAWholeMonth) {
  m.gPeriodeEncours = "01/02/2024";
  s.dIndiceMajoreM = 400;
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1969.11);
}

TEST_F(TraitementIndiciaireTest, IndexChangeOnThe11thAndThe16th) {
  s.dIndiceMajoreA = 366;
  s.dIndiceMajoreM = 400;
  s.sDateChangementIndice = "11/07/2023";  // 10 days old, 20 new
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  // Full INTN = 20/30 x 1969.11 = 1312.74; paid 20 x 1312.74 / (20/30 x 30).
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelPleinINTN, 1312.74);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1312.74);
  const double dNouveau = r.dMontantSalarial;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT"));
  EXPECT_DOUBLE_EQ(s.dSalarie_AnnuelPleinA, 21620.86);
  EXPECT_DOUBLE_EQ(r.dBase, 1801.73);
  EXPECT_EQ(r.dTauxSalarial, 366);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1801.73 / 3);  // 600.576667
  EXPECT_EQ(Arrondi(dNouveau + r.dMontantSalarial, 2), 1913.32);

  s.sDateChangementIndice = "16/07/2023";  // 15 and 15
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1969.11 / 2);  // 984.555
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1801.73 / 2);  // 900.865
}

TEST_F(TraitementIndiciaireTest, PartTime80And90AndNonCompletePost) {
  s.dIndiceMajoreM = 400;
  s.dTauxPoste = 80;
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelPleinINTN, 1969.11);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1969.11 * 6 / 7);  // 1687.808571
  EXPECT_EQ(Arrondi(r.dMontantSalarial, 2), 1687.81);

  s.dTauxPoste = 90;
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1969.11 * 32 / 35);  // 1800.329143
  EXPECT_EQ(Arrondi(r.dMontantSalarial, 2), 1800.33);

  s.sOccupationPoste = "T";  // 28 of 35 hours
  s.dTauxPosteTNC = 100;
  s.dHeuresHebdoOrigineTNC = 28;
  s.dDureeHebdoLegale = 35;
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1969.11 * 0.8);  // 1575.288
}

TEST_F(TraitementIndiciaireTest, MinimumIndexAppliesOnlyAboveTheThreshold) {
  Fixe("IndMinRemuneration", 343);
  Fixe("Point", 56.2323);
  Constante("INDNONIMR", 0);  // 0: the threshold is 200
  Prepare();
  for (double I : {180.0, 200.0}) {
    s.dIndiceMajoreM = I;
    ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
    EXPECT_EQ(r.dTauxSalarial, I);
  }
  for (double I : {200.5, 300.0, 343.0}) {
    s.dIndiceMajoreM = I;
    ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
    EXPECT_EQ(r.dTauxSalarial, 343);
    // 343 x 56.2323 = 19287.6789 -> 19287.68; / 12 - 0.0049 = 1607.301767 -> 1607.30.
    EXPECT_DOUBLE_EQ(s.dSalarie_AnnuelPlein, 19287.68);
    EXPECT_DOUBLE_EQ(r.dBase, 1607.30);
  }
  s.dIndiceMajoreM = 350;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_EQ(r.dTauxSalarial, 350);
}

TEST_F(TraitementIndiciaireTest, ThresholdConstantAndEmptyMinimum) {
  Fixe("IndMinRemuneration", 343);
  Constante("INDNONIMR", 250);
  Prepare();
  s.dIndiceMajoreM = 250;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_EQ(r.dTauxSalarial, 250);
  s.dIndiceMajoreM = 251;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_EQ(r.dTauxSalarial, 343);
  for (const Value& vide : {Value::Null(), Value("")}) {
    Fixe("IndMinRemuneration", vide);
    ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
    EXPECT_EQ(r.dTauxSalarial, 251);
  }
}

TEST_F(TraitementIndiciaireTest, NullPointGivesNothing) {
  Fixe("Point", Value::Null());
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_EQ(s.dSalarie_AnnuelPlein, 0);
  EXPECT_EQ(r.dBase, 0);
  EXPECT_EQ(r.dMontantSalarial, 0);
}

TEST_F(TraitementIndiciaireTest, DaysOffTreatmentAndUnpaidAbsences) {
  Prepare({{"DT", "01/07/2023", "10/07/2023"}}, {"NBRE_JOUR_DEMI_TRAITEMENT"});
  ASSERT_EQ(s.iNBJ_DemiTraitementINTN.value(), 10);
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 20 * 1801.73 / 30);  // 1201.153333

  s.dNBJ_AutreAbsenceNS = 2.5;  // (30 - (2.5 + 10)) x 1801.73 / 30
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 17.5 * 1801.73 / 30);  // 1051.009167

  s.iNBJ_90PourCentTraitementINTN = 3;
  s.iNBJ_2TiersTraitementINTN = 2;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 12.5 * 1801.73 / 30);  // 750.720833
}

TEST_F(TraitementIndiciaireTest, UnpaidAbsencesDoNotReachTheOldIndex) {
  s.sDateChangementIndice = "16/07/2023";
  Prepare();
  s.dNBJ_AutreAbsenceNS = 3;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS PRECEDENT"));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1801.73 / 2);
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  // C = 0.5: (15 - (0.5 x 3)) x 900.865 / 15.
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 13.5 * 900.865 / 15);  // 810.7785
}

TEST_F(TraitementIndiciaireTest, MaternityIsPaidOnTheFullTimeSalary) {
  Prepare();
  s.dCoefficient_TraitementTN = 0.5;
  s.iNBJ_CongeMaterniteTempsCompletINTN = 30;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelReelINTN, 1801.73 / 2);
  // Presence term (30 - 30) gives 0; maternity 30 x 1801.73 / 30.
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1801.73);
}

TEST_F(TraitementIndiciaireTest, QuadrantWithoutShareIsZeroAndNeverDivides) {
  Prepare();
  s.dCoefficient_INTN = 0;
  s.dSalaire_MensuelINTN = 99;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
  EXPECT_EQ(s.dSalaire_MensuelINTN, 0);
  EXPECT_EQ(r.dMontantSalarial, 0);
  EXPECT_DOUBLE_EQ(r.dBase, 1801.73);
}

TEST_F(TraitementIndiciaireTest, SixteenBitOverflowOfTheDaysOffIsAFault) {
  Prepare();
  s.iNBJ_DemiTraitementINTN = 32767;
  s.iNBJ_CFAINTN = 1;
  r.dMontantSalarial = 7;
  EXPECT_FALSE(Ligne("TRAITEMENT INDICIAIRE MOIS"));
}

TEST_F(TraitementIndiciaireTest, ParticularBase) {
  // Base "INDICE MAJORE" 366 times the rate 4.92278 of constant 7.
  Constante("PTMENS", 4.92278, 7);
  Prepare({{"DT", "01/07/2023", "10/07/2023"}}, {"NBRE_JOUR_DEMI_TRAITEMENT"});
  s.dNBJ_AutreAbsenceNS = 5;  // not read by this line
  s.iNBJ_CongeMaterniteTempsCompletINTN = 4;  // nor this
  r = SalarieCalculRubrique();
  r.sValeurBase = "INDICE MAJORE";
  r.sValeurTauxSalarial = "CONSTANTE";
  r.lIdValeurTauxSalarial = 7;
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("TRAITEMENT BASE PARTICULIER", s, r, vars));
  EXPECT_EQ(r.dBase, 366);
  EXPECT_EQ(r.dTauxSalarial, 4.9228);  // to 4 places
  // R = 366 x 4.9228 = 1801.7448; yearly Round2(21620.9376) = 21620.94.
  EXPECT_DOUBLE_EQ(s.dSalarie_AnnuelPlein, 21620.94);
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelPleinINTN, 1801.74);
  // (30 - 10) x 1801.74 / 30.
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 20 * 1801.74 / 30);  // 1201.16
  EXPECT_EQ(r.dMontantPatronal, 0);
}

}  // namespace
}  // namespace orvalis::salaire_test
