// Differential allowance: the minimum wage for the days paid against the month's base.
#include "absences/absences_test_outils.h"

namespace orvalis::absences_test {
namespace {

// SMIC 11.65 an hour, 151.67 hours a month: S = 1766.9555. Index 366, a whole month at the
// new rate, 151.67 hours worked, a base of 1700.
class IndemniteDifferentielle : public PaieAbsences {
 protected:
  IndemniteDifferentielle() {
    Fixe("SmicHor", 11.65);
    Fixe("HrsMois", 151.67);
    s.dIndiceMajoreM = 366;
    s.iNBJ_PresenceINTN = 30;
    s.dCoefficient_TraitementTN = 1;
    Cumul("HEURES", 151.67);
    Cumul("BASE", 1700.0);
    s.dMt_IndemniteDifferentielle = 9;
    r.dMontantSalarial = 5;
  }
  bool Nouv() { return Calcul("INDEMNITE DIFFERENTIELLE"); }
  bool Mayotte() { return Calcul("INDEMNITE DIFFERENTIELLE MAYOTTE"); }
  bool PremiereGeneration() {
    try {
      m.CalculRubrique_Indemnite_Differentielle(s, r);
      return true;
    } catch (const Fault&) {
      return false;
    }
  }
  void EcritAvec(double montant) {
    EXPECT_DOUBLE_EQ(r.dBase, 0.0);
    EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
    EXPECT_DOUBLE_EQ(r.dMontantSalarial, montant);
    EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
    EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
    EXPECT_DOUBLE_EQ(s.dMt_IndemniteDifferentielle, montant);
  }
  // 10 days at the old rate, 2 of them CPA; 20 at the new rate, 4 of them on half pay.
  void MoisPartage() {
    s.iNBJ_PresenceIATA = 10;
    s.iNBJ_CPAIATA = 2;
    s.dCoefficient_TraitementTA = 1;
    s.iNBJ_PresenceINTN = 20;
    s.iNBJ_DemiTraitementINTN = 4;
    s.dCoefficient_DemiTraitement = 0.5;
  }
};

TEST_F(IndemniteDifferentielle, PlancherDuMoisComplet) {
  ASSERT_TRUE(Nouv());
  EcritAvec(66.96);  // F = 30 x 1 x 1766.9555 / 30 = 1766.96; 1766.96 - 1700
}

TEST_F(IndemniteDifferentielle, BaseAuPlancherRienADonner) {
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->MoveNext();
  m.gRsCumuls->SetField("PartSalariale", 1766.96);
  ASSERT_TRUE(Nouv());
  EcritAvec(0.0);
}

TEST_F(IndemniteDifferentielle, IndiceAuSeuilParDefautRienADonner) {
  s.dIndiceMajoreM = 200;
  ASSERT_TRUE(Nouv());
  EcritAvec(0.0);
  s.dIndiceMajoreM = 201;
  ASSERT_TRUE(Nouv());
  EcritAvec(66.96);
}

TEST_F(IndemniteDifferentielle, SeuilDeLaConstante) {
  Constante("INDNONIMR", 366.0);
  ASSERT_TRUE(Nouv());
  EcritAvec(0.0);
  s.dIndiceMajoreM = 367;
  ASSERT_TRUE(Nouv());
  EcritAvec(66.96);
}

TEST_F(IndemniteDifferentielle, SansHeuresRienADonner) {
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->SetField("PartSalariale", 0.0);
  ASSERT_TRUE(Nouv());
  EcritAvec(0.0);
  ASSERT_TRUE(PremiereGeneration());
  EcritAvec(0.0);
}

TEST_F(IndemniteDifferentielle, BaseNulleSeuleLaNouvelleNeDonneRien) {
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->MoveNext();
  m.gRsCumuls->SetField("PartSalariale", 0.0);
  ASSERT_TRUE(Nouv());
  EcritAvec(0.0);
  ASSERT_TRUE(PremiereGeneration());
  EcritAvec(1766.96);
  ASSERT_TRUE(Mayotte());
  EcritAvec(1968.85);  // 169 x 11.65
}

TEST_F(IndemniteDifferentielle, MayotteSurCentSoixanteNeufHeures) {
  ASSERT_TRUE(Mayotte());
  EcritAvec(268.85);  // 1968.85 - 1700
  Fixe("HrsMois", 100.0);
  ASSERT_TRUE(Mayotte());
  EcritAvec(268.85);
}

TEST_F(IndemniteDifferentielle, MoisPartageEtRappelsOtes) {
  MoisPartage();
  Cumul("BASERAPPEL", 100.0);
  Cumul("BASEDEGRE", 50.0);
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->MoveNext();
  m.gRsCumuls->SetField("PartSalariale", 1200.0);
  // Old rate: (10 - 2) x S / 30 = 471.1881. New rate: (20 - 4) x S / 30 = 942.3763, and the
  // 4 half-pay days back at half weight, S / 2 x 4 / 30 = 117.7970: F = 1531.36.
  ASSERT_TRUE(PremiereGeneration());
  EcritAvec(431.36);  // 1531.36 - (1200 - 100)
  // Mayotte, S = 1968.85: 525.0267 + 1181.31 = 1706.34.
  ASSERT_TRUE(Mayotte());
  EcritAvec(606.34);  // 1706.34 - 1100
}

TEST_F(IndemniteDifferentielle, NouvOteLesJoursMaintenusEtLesAutresAbsences) {
  MoisPartage();
  s.iNBJ_90PourCentTraitementINTN = 3;
  s.dCoefficient_INTN = 20.0 / 30;
  s.dNBJ_AutreAbsenceNS = 1.5;
  Cumul("BASERAPPEL", 100.0);
  Cumul("BASEDEGRE", 50.0);
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->MoveNext();
  m.gRsCumuls->SetField("PartSalariale", 1200.0);
  // New rate: 20 - 4 - 3 - 20/30 x 1.5 = 12 days: 12 x S / 30 + 117.7970 = 824.5792;
  // F = 471.1881 + 824.5792 = 1295.77; B = 1200 - 100 - 50.
  ASSERT_TRUE(Nouv());
  EcritAvec(245.77);
  // The first generation ignores them: 1531.36 - 1100.
  ASSERT_TRUE(PremiereGeneration());
  EcritAvec(431.36);
}

TEST_F(IndemniteDifferentielle, JoursAPayerSurLeNouveauTauxSeul) {
  Variable(vars, "NBJAPAYER", 5.0);
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->MoveNext();
  m.gRsCumuls->SetField("PartSalariale", 100.0);
  ASSERT_TRUE(Nouv());
  EcritAvec(307.75);  // 1766.9555 x 5 x 7 / 151.67 = 407.75; - 100
  ASSERT_TRUE(Mayotte());
  EcritAvec(354.34);  // 1968.85 x 5 x 7 / 151.67 = 454.3400: 454.34 - 100
}

TEST_F(IndemniteDifferentielle, JoursAPayerSansEffetSurLAncienTaux) {
  s.iNBJ_PresenceINTN = 0;
  s.iNBJ_PresenceIATA = 30;
  s.dCoefficient_TraitementTA = 1;
  Variable(vars, "NBJAPAYER", 5.0);
  ASSERT_TRUE(Nouv());
  EcritAvec(66.96);
  vars = nullptr;  // not even read
  ASSERT_TRUE(Nouv());
  EcritAvec(66.96);
}

TEST_F(IndemniteDifferentielle, ToutEnDemiTraitement) {
  s.iNBJ_DemiTraitementINTN = 30;
  s.dCoefficient_DemiTraitement = 0.5;
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->MoveNext();
  m.gRsCumuls->SetField("PartSalariale", 500.0);
  ASSERT_TRUE(Nouv());
  EcritAvec(383.48);  // S / 2 x 30 / 30 = 883.48; - 500
  s.dCoefficient_DemiTraitement = 0;
  ASSERT_TRUE(Nouv());
  EcritAvec(0.0);  // a floor of 0 under a base of 500
}

TEST_F(IndemniteDifferentielle, SansJourDePresenceBaseNegative) {
  s.iNBJ_PresenceINTN = 0;
  m.gRsCumuls->MoveFirst();
  m.gRsCumuls->MoveNext();
  m.gRsCumuls->SetField("PartSalariale", -10.0);
  ASSERT_TRUE(PremiereGeneration());
  EcritAvec(10.0);  // F = 0 above B = -10
}

TEST_F(IndemniteDifferentielle, SmicNulPasDePlancher) {
  Fixe("SmicHor", Value());
  ASSERT_TRUE(Nouv());
  EcritAvec(0.0);
}

TEST_F(IndemniteDifferentielle, DebordementSeizeBitsPiege) {
  s.iNBJ_PresenceIATA = 32767;
  s.iNBJ_PresenceINTA = 1;
  EXPECT_FALSE(Nouv());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 5.0);
  EXPECT_DOUBLE_EQ(s.dMt_IndemniteDifferentielle, 9.0);
}

TEST_F(IndemniteDifferentielle, DebordementDesJoursOtesPiege) {
  s.iNBJ_PresenceIATA = 1;
  s.dCoefficient_TraitementTA = 1;
  s.iNBJ_CFAIATA = 32767;  // 1 - 32767 = -32766 still fits
  s.iNBJ_CFAINTA = 10;     // -32776 does not
  EXPECT_FALSE(PremiereGeneration());
  s.iNBJ_CFAINTA = 2;  // -32768 fits: a negative floor under the base, nothing to pay
  ASSERT_TRUE(PremiereGeneration());
  EcritAvec(0.0);
}

}  // namespace
}  // namespace orvalis::absences_test
