// The historic split of the month at the index change, in two cells, beside the current
// four quadrants on the same record.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class CoefficientIndiceHistoriqueTest : public DeuxMoteurs {
 protected:
  CoefficientIndiceHistoriqueTest() {
    s.sTypeModele = "INDTIT";
    s.sDateDebut = "01/01/2020";
    s.sDateChangementHeures = "01/01/2020";
  }
  void Prepare(const std::string& sDateIndice) {
    s.sDateChangementIndice = sDateIndice;
    sN = s;
    sH = s;
    ASSERT_TRUE(n.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_INDICE", sN));
    ASSERT_TRUE(h.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_INDICE", sH));
  }
};

// A change on the 10th: 9 days of the former index, 21 of the new; the current engine's
// quadrants of the former index add up to the same 9.
TEST_F(CoefficientIndiceHistoriqueTest, ChangeWithinTheMonth) {
  Prepare("10/03/2024");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 9 / 30.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 21 / 30.0);
  EXPECT_DOUBLE_EQ(sN.dCoefficient_IATA + sN.dCoefficient_IATN, 9 / 30.0);
  EXPECT_DOUBLE_EQ(sN.dCoefficient_INTA + sN.dCoefficient_INTN, 21 / 30.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IATN, 0.0);  // the quadrants are not written here
}

TEST_F(CoefficientIndiceHistoriqueTest, ChangeOnTheFirstAndOnTheThirtyFirst) {
  Prepare("01/03/2024");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 0.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 1.0);
  Prepare("31/03/2024");  // day 31: 30 days of the former index, none of the new
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 1.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 0.0);
}

// February 2024 has 29 days; a change on the 28th: 27 and 3 on the month of 30.
TEST_F(CoefficientIndiceHistoriqueTest, February) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/02/2024";
  Prepare("28/02/2024");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 27 / 30.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 3 / 30.0);
}

TEST_F(CoefficientIndiceHistoriqueTest, ChangeNextMonthPastOrLater) {
  Prepare("15/04/2024");  // next month: the whole month on the former index
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 1.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 0.0);
  Prepare("15/05/2024");  // two months ahead: as an old change
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 0.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 1.0);
  Prepare("15/01/2024");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 1.0);
}

TEST_F(CoefficientIndiceHistoriqueTest, NoValidIndexDateLeavesTheCells) {
  s.dCoefficient_IAncien = 0.25;
  s.dCoefficient_INouveau = 0.75;
  Prepare("");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 0.25);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 0.75);
}

// An official whose rate changes on the 16th: 15 days each side; another model: nothing.
TEST_F(CoefficientIndiceHistoriqueTest, ElectedOfficialsAndOtherModels) {
  s.sTypeModele = "ELUS";
  s.sDateChangementTauxElus = "16/03/2024";
  Prepare("");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 0.5);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 0.5);
  s.sTypeModele = "HORAIR";
  s.dCoefficient_IAncien = 0.25;
  Prepare("10/03/2024");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 0.25);
}

// A non-titular on the index ("INDNTI") splits his month as a titular does: a change on the
// 10th gives 10 - 1 = 9 days on the former index and 30 - 10 + 1 = 21 on the new; in
// February 2024 a change on its last day, the 29th, gives 29 - 1 = 28 and 30 - 29 + 1 = 2.
TEST_F(CoefficientIndiceHistoriqueTest, NonTitularSplitsAsATitular) {
  s.sTypeModele = "INDNTI";
  Prepare("10/03/2024");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 9 / 30.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 21 / 30.0);
  n.gPeriodeEncours = h.gPeriodeEncours = "01/02/2024";
  Prepare("29/02/2024");
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 28 / 30.0);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_INouveau, 2 / 30.0);
}

}  // namespace
}  // namespace orvalis::historique_test
