// The historic differential allowance beside the current engine's first generation, on the
// same record: the floor of the minimum wage (150 hours at 12 = 1800 a month) summed over the
// two cells of the month with the one treatment coefficient, against the month's base.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class DifferentielleHistoriqueTest : public DeuxMoteurs {
 protected:
  DifferentielleHistoriqueTest() {
    Fixe("HrsMois", 150);
    Fixe("SmicHor", 12);
    Cumul("HEURES", 151.67);
    Cumul("BASE", 1000);
    Cumul("BASERAPPEL", 0);
    s.dIndiceMajoreM = 300;
    s.dCoefficient_Traitement = 1;
    s.dCoefficient_TraitementTA = 1;
    s.dCoefficient_TraitementTN = 1;
  }

  // The current engine's first generation called by its name, the historic line through
  // the dispatch (where "INDEMNITE DIFFERENTIELLE" has no later variant).
  void Calcule() {
    sN = s;
    sH = s;
    rN = r;
    rH = r;
    n.CalculRubrique_Indemnite_Differentielle(sN, rN);
    ASSERT_TRUE(h.Appel_Methode_Calcul_General("INDEMNITE DIFFERENTIELLE", sH, rH, vars, vars,
                                               nullptr));
  }

  // Both lines after Calcule: the current engine's amount dN, the historic one's dH.
  void Amounts(double dN, double dH) {
    Calcule();
    Ligne(rN, sN, dN);
    Ligne(rH, sH, dH);
  }
  void Amounts(double D) { Amounts(D, D); }

  static void Ligne(const SalarieCalculRubrique& l, const VarCalculSalarie& v, double D) {
    EXPECT_EQ(l.dBase, 0.0);
    EXPECT_EQ(l.dTauxSalarial, 0.0);
    EXPECT_DOUBLE_EQ(l.dMontantSalarial, D);
    EXPECT_EQ(l.dTauxPatronal, 0.0);
    EXPECT_EQ(l.dMontantPatronal, 0.0);
    EXPECT_DOUBLE_EQ(v.dMt_IndemniteDifferentielle, D);
  }
};

// A whole month on the old index: 30 x 1 x 1800 / 30 = 1800 of floor, 800 above the base,
// as the current engine gives for 30 days of its old-rate half.
TEST_F(DifferentielleHistoriqueTest, WholeMonthInTheOldCell) {
  s.iNBJ_PresenceA = 30;
  s.iNBJ_PresenceIATA = 30;
  Amounts(800);
}

TEST_F(DifferentielleHistoriqueTest, WholeMonthInTheNewCell) {
  s.iNBJ_PresenceN = 30;
  s.iNBJ_PresenceIATN = 30;
  Amounts(800);
}

// The index changes on the 13th, treatment at 80 %: 12 days old, 18 new of which 3 of CFA.
// Old: 12 x 0.8 x 60 = 576; new: 15 x 0.8 x 60 = 720; floor 1296, 296 above 1000. The
// current engine, with the same days in its old-rate half (IATA and INTA), the same.
TEST_F(DifferentielleHistoriqueTest, IndexChangeInsideTheMonth) {
  s.dCoefficient_Traitement = 0.8;
  s.dCoefficient_TraitementTA = 0.8;
  s.iNBJ_PresenceA = 12;
  s.iNBJ_PresenceN = 18;
  s.iNBJ_CFAN = 3;
  s.iNBJ_PresenceIATA = 12;
  s.iNBJ_PresenceINTA = 18;
  s.iNBJ_CFAINTA = 3;
  Amounts(296);
}

// Training, CPA and leave of office are taken off in each cell: 30 - 2 - 3 - 4 = 21 days,
// 21 x 60 = 1260, 260 above the base. The 90 % days of the current quadrants are no count
// of the historic month.
TEST_F(DifferentielleHistoriqueTest, EachCellsAbsences) {
  s.iNBJ_PresenceA = 10;
  s.iNBJ_PresenceN = 20;
  s.iNBJ_FormationA = 2;
  s.iNBJ_CPAN = 3;
  s.iNBJ_DispoOfficeN = 4;
  s.iNBJ_90PourCentTraitementIATA = 5;
  Amounts(0, 260);  // no day in the current quadrants
}

// Ten half-pay days of thirty: 20 x 60 = 1200, and back at half weight 1800 / 2 x 10 / 30 =
// 300 with a half-pay coefficient: floor 1500, 500 above the base; without one, 200.
TEST_F(DifferentielleHistoriqueTest, HalfPayDaysAtHalfWeight) {
  s.iNBJ_PresenceA = 30;
  s.iNBJ_DemiTraitementA = 10;
  s.iNBJ_PresenceIATA = 30;
  s.iNBJ_DemiTraitementIATA = 10;
  s.dCoefficient_DemiTraitement = 0.5;
  Amounts(500);
  s.dCoefficient_DemiTraitement = 0;
  Amounts(200);
}

TEST_F(DifferentielleHistoriqueTest, NoDayNoFloor) {
  s.dMt_IndemniteDifferentielle = 99;
  Amounts(0);
}

// An index at the threshold (200 when "INDNONIMR" is absent) gives nothing; one above it
// the whole 800; the constant moves the threshold.
TEST_F(DifferentielleHistoriqueTest, IndexThreshold) {
  s.iNBJ_PresenceA = 30;
  s.iNBJ_PresenceIATA = 30;
  s.dIndiceMajoreM = 200;
  Amounts(0);
  s.dIndiceMajoreM = 200.01;
  Amounts(800);
  Constante("INDNONIMR", 250);
  Amounts(0);
}

// The month's base against the floor of 1800: at it, nothing; one cent under, one cent;
// "BASERAPPEL" taken off the base: 2000 - 300 = 1700, 100 due. No hours in the totals:
// nothing, whatever the floor.
TEST_F(DifferentielleHistoriqueTest, BaseAgainstTheFloor) {
  s.iNBJ_PresenceA = 30;
  s.iNBJ_PresenceIATA = 30;
  const auto Totaux = [&](double heures, double base, double rappel) {
    n.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    h.gRsCumuls = n.gRsCumuls;
    Cumul("HEURES", heures);
    Cumul("BASE", base);
    Cumul("BASERAPPEL", rappel);
  };
  Totaux(151.67, 1800, 0);
  Amounts(0);
  Totaux(151.67, 1799.99, 0);
  Amounts(0.01);
  Totaux(151.67, 2000, 300);
  Amounts(100);
  Totaux(0, 1000, 0);
  Amounts(0);
}

// The days are counted in 16 bits: 32767 days less -1 of CFA overflows, a fault.
TEST_F(DifferentielleHistoriqueTest, SixteenBitOverflowIsAFault) {
  s.iNBJ_PresenceA = 32767;
  s.iNBJ_CFAA = -1;
  sH = s;
  rH = r;
  EXPECT_FALSE(h.Appel_Methode_Calcul_General("INDEMNITE DIFFERENTIELLE", sH, rH, vars, vars,
                                              nullptr));
}

}  // namespace
}  // namespace orvalis::historique_test
