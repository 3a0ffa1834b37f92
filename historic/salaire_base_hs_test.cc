// The historic reference salary of overtime beside the current one: the fixed month of
// July 2008, a change in the pay month itself, and no floor at the minimum wage.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

// Point 50 this month, 49 the month before; SMIC 11.65 x (151.67 x 12 = 1820.04) =
// 21203.47 a year, on both months.
class SalaireBaseHSHistoriqueTest : public DeuxMoteurs {
 protected:
  SalaireBaseHSHistoriqueTest() {
    n.gRsConstantesFixes = NouveauRecordset({"Point", "SmicHor", "HrsMois", "IndMinRemuneration"});
    n.gRsConstantesFixes->AddNew();
    Fixe("Point", 50);
    Fixe("SmicHor", 11.65);
    Fixe("HrsMois", 151.67);
    Fixe("IndMinRemuneration", 0);
    n.gRsConstantesFixesHistorique =
        NouveauRecordset({"Mois", "Point", "SmicHor", "HrsMois", "IndMinRemuneration"});
    h.gRsConstantesFixes = n.gRsConstantesFixes;
    h.gRsConstantesFixesHistorique = n.gRsConstantesFixesHistorique;
    s.dIndiceMajoreM = 500;
    s.dIndiceMajoreA = 480;
  }
  void MoisPrecedent(const std::string& sMois) {
    auto& rs = n.gRsConstantesFixesHistorique;
    rs->AddNew();
    rs->SetField("Mois", sMois);
    rs->SetField("Point", 49.0);
    rs->SetField("SmicHor", 11.65);
    rs->SetField("HrsMois", 151.67);
    rs->SetField("IndMinRemuneration", 0.0);
  }
  void Prepare() {
    sN = s;
    sH = s;
    ASSERT_TRUE(n.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", sN));
    ASSERT_TRUE(h.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", sH));
  }
};

// An index change within the pay month: the current engine takes the former index for
// HSA (480 x 49 = 23520), the historic one the current index (500 x 50 = 25000).
TEST_F(SalaireBaseHSHistoriqueTest, ChangeInThePayMonth) {
  MoisPrecedent("202402");
  s.sDateChangementIndice = "15/03/2024";
  Prepare();
  EXPECT_DOUBLE_EQ(sN.dBase_HSN, 25000.0);
  EXPECT_DOUBLE_EQ(sH.dBase_HSN, 25000.0);
  EXPECT_DOUBLE_EQ(sN.dBase_HSA, 23520.0);
  EXPECT_DOUBLE_EQ(sH.dBase_HSA, 25000.0);
}

// A change still to come: both on the former index.
TEST_F(SalaireBaseHSHistoriqueTest, ChangeAfterThePayMonth) {
  MoisPrecedent("202402");
  s.sDateChangementIndice = "01/04/2024";
  Prepare();
  EXPECT_DOUBLE_EQ(sN.dBase_HSA, 23520.0);
  EXPECT_DOUBLE_EQ(sH.dBase_HSA, 23520.0);
}

// July 2008 always reads the former index in the historic engine: 480 x 49 = 23520; the
// current engine, with the change in January, keeps the current index.
TEST_F(SalaireBaseHSHistoriqueTest, FixedMonthOfJuly2008) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/07/2008";
  MoisPrecedent("200806");
  s.sDateChangementIndice = "01/01/2008";
  Prepare();
  EXPECT_DOUBLE_EQ(sN.dBase_HSA, 25000.0);
  EXPECT_DOUBLE_EQ(sH.dBase_HSA, 23520.0);
  n.gPeriodeEncours = h.gPeriodeEncours = "01/08/2008";  // a month later: current index
  MoisPrecedent("200807");
  Prepare();
  EXPECT_DOUBLE_EQ(sH.dBase_HSA, 25000.0);
}

// Index 400: 400 x 50 = 20000 is under the yearly SMIC 21203.47, which the current engine
// pays; the historic one keeps 20000.
TEST_F(SalaireBaseHSHistoriqueTest, NoFloorAtTheMinimumWage) {
  s.dIndiceMajoreM = 400;
  s.sDateChangementIndice = "01/01/2024";
  Prepare();
  EXPECT_DOUBLE_EQ(sN.dBase_HSN, 21203.47);
  EXPECT_DOUBLE_EQ(sH.dBase_HSN, 20000.0);
  EXPECT_DOUBLE_EQ(sH.dBase_HSA, 20000.0);
}

}  // namespace
}  // namespace orvalis::historique_test
