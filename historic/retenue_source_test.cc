// "RETENUE A LA SOURCE" is the same in the historic engine: the same line and the same detail
// table from the same sources.
#include <gtest/gtest.h>

#include "contributions/retenue_source_elus_test_util.h"
#include "orvalis/MethodeCalculG.h"

namespace orvalis {
namespace {

class RetenueSourceDeuxMoteurs : public retenue_test::RetenueElus {
 protected:
  void SetUp() override {
    RetenueElus::SetUp();
    h.gPeriodeEncours = m.gPeriodeEncours;
    h.gRsConstantesFixes = m.gRsConstantesFixes;
    h.gRsConstantes = m.gRsConstantes;
    h.gRsTaux = m.gRsTaux;
    h.gRsCumuls = m.gRsCumuls;
    rsVariables = retenue_test::Table({"CodeVariable", "Valeur"}, {{"ELUSINDM", 500.0}});
  }
  MethodeCalculG h;
  RsRef rsVariables;
};

// Principal slot 2000 and a monthly allowance of 500: taxable 1810.38 + 452.595 - 75 =
// 2187.975, 20 % of 2187 less 300 = 137.40, on both engines.
TEST_F(RetenueSourceDeuxMoteurs, SameLineAndDetail) {
  SalarieCalculRubrique rH = r;
  VarCalculSalarie sH = s;
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("RETENUE A LA SOURCE", s, r, rsVariables));
  ASSERT_TRUE(h.Appel_Methode_Calcul_General("RETENUE A LA SOURCE", sH, rH, rsVariables));
  EXPECT_DOUBLE_EQ(r.dBase, 2187.0);
  EXPECT_DOUBLE_EQ(rH.dBase, 2187.0);
  EXPECT_NEAR(r.dMontantSalarial, 137.4, 1e-9);
  EXPECT_NEAR(rH.dMontantSalarial, 137.4, 1e-9);
  ASSERT_NE(rH.rsRetenueALaSource, nullptr);
  EXPECT_EQ(rH.rsRetenueALaSource->Columns(), h.EnregistreDetailRetenueSource()->Columns());
  EXPECT_DOUBLE_EQ(retenue_test::Colonne(rH.rsRetenueALaSource, 0, "RemunerationBrute2").Nombre(),
                   500.0);
}

}  // namespace
}  // namespace orvalis
