// The yearly reference salary of overtime.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {
namespace {

struct Moteur {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;

  Moteur() {
    m.gPeriodeEncours = "01/03/2023";
    m.gRsConstantesFixes =
        NouveauRecordset({"Point", "SmicHor", "HrsMois", "IndMinRemuneration", "IndResid"});
    m.gRsConstantesFixes->AddNew();
    Fixe("Point", 58.2004);
    Fixe("SmicHor", 11.27);
    Fixe("HrsMois", 151.67);
    Fixe("IndMinRemuneration", 353.0);
    Fixe("IndResid", 313.0);
    m.gRsConstantesFixesHistorique =
        NouveauRecordset({"Mois", "Point", "SmicHor", "HrsMois", "IndMinRemuneration", "IndResid"});
    m.gRsConstantesFixesHistorique->AddNew();
    Historique("Mois", "202302");
    Historique("Point", 57.5);
    Historique("SmicHor", 11.07);
    Historique("HrsMois", 151.67);
    Historique("IndMinRemuneration", 340.0);
    Historique("IndResid", 313.0);
    s.sDateChangementIndice = "01/01/2020";
  }
  void Fixe(const char* col, const Value& v) { m.gRsConstantesFixes->SetField(col, v); }
  void Historique(const char* col, const Value& v) {
    m.gRsConstantesFixesHistorique->SetField(col, v);
  }
  double Encours(double dIndice) { return m.CalculSalaireBaseHS_Periode(s, dIndice, "ENCOURS"); }
  double Ancien(double dIndice) { return m.CalculSalaireBaseHS_Periode(s, dIndice, "ANCIEN"); }
};

// Yearly minimum wage of the month: 11.27 x 1820.04 = 20511.8508.
constexpr double kSmicAnnuel = 20511.85;

TEST(SalaireBaseHSTest, TreatmentOfTheIndex) {
  Moteur x;
  EXPECT_DOUBLE_EQ(x.Encours(400), 23280.16);  // 400 x 58.2004 = 23280.16
}

TEST(SalaireBaseHSTest, IndexBelowTheMinimumIsPaidOnTheMinimum) {
  Moteur x;
  EXPECT_DOUBLE_EQ(x.Encours(340), 20544.74);  // 353 x 58.2004 = 20544.7412
  EXPECT_DOUBLE_EQ(x.Encours(353), 20544.74);
}

TEST(SalaireBaseHSTest, BonusPointsAreAddedThenRoundedHalfToEven) {
  Moteur x;
  x.s.dBonification = 10.5;
  EXPECT_DOUBLE_EQ(x.Encours(400), 23862.16);  // 410 x 58.2004 = 23862.164
  x.s.dBonification = 11.5;
  EXPECT_DOUBLE_EQ(x.Encours(400), 23978.56);  // 412 x 58.2004 = 23978.5648
}

TEST(SalaireBaseHSTest, TreatmentBelowTheMinimumWageIsLifted) {
  Moteur x;
  x.Fixe("IndMinRemuneration", 300.0);
  EXPECT_DOUBLE_EQ(x.Encours(330), kSmicAnnuel);  // 19206.13 lifted
  x.s.iZoneResid = 1;
  // Above "IndResid" the allowance follows the lifted amount: 20511.85 + 205.1185.
  EXPECT_DOUBLE_EQ(x.Encours(330), 20716.97);
}

TEST(SalaireBaseHSTest, ResidenceAllowance) {
  Moteur x;
  x.s.iZoneResid = 3;
  // 23280.16 + 698.4048.
  EXPECT_DOUBLE_EQ(x.Encours(400), 23978.56);
  // Below "IndResid": 313 x 58.2004 = 18216.7252, rounded, x 3 %: 546.5019.
  x.Fixe("IndMinRemuneration", 0.0);
  EXPECT_DOUBLE_EQ(x.Encours(300), 21058.35);
  x.s.iZoneResid = 0;
  EXPECT_DOUBLE_EQ(x.Encours(300), kSmicAnnuel);
}

TEST(SalaireBaseHSTest, MinimumIndexLeftNullOrEmptyCountsZero) {
  for (const Value& v : {Value::Null(), Value("")}) {
    Moteur x;
    x.Fixe("IndMinRemuneration", v);
    EXPECT_DOUBLE_EQ(x.Encours(360), 20952.14);  // 360 x 58.2004 = 20952.144
  }
}

TEST(SalaireBaseHSTest, FormerIndexReadsTheMonthBefore) {
  Moteur x;
  // 350 x 57.5 = 20125 below 11.07 x 1820.04 = 20147.8428.
  EXPECT_DOUBLE_EQ(x.Ancien(350), 20147.84);
  EXPECT_DOUBLE_EQ(x.Ancien(330), 20147.84);
  EXPECT_DOUBLE_EQ(x.Ancien(400), 23000.00);
}

TEST(SalaireBaseHSTest, FormerIndexWithoutAPointTakesTheCurrentOne) {
  Moteur x;
  x.Historique("Point", Value::Null());
  EXPECT_DOUBLE_EQ(x.Ancien(350), 20370.14);  // 350 x 58.2004 = 20370.14
}

TEST(SalaireBaseHSTest, RegulatoryUpdateThisMonthComputesTheFormerBase) {
  Moteur x;
  x.s.dIndiceMajoreM = 400;
  x.s.dIndiceMajoreA = 350;
  x.s.sDateMajIndiceReglementaire = "15/03/2023";
  ASSERT_TRUE(x.m.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", x.s));
  EXPECT_DOUBLE_EQ(x.s.dBase_HSN, 23280.16);
  EXPECT_DOUBLE_EQ(x.s.dBase_HSA, 20147.84);
}

TEST(SalaireBaseHSTest, OldIndexChangeKeepsTheCurrentBase) {
  Moteur x;
  x.s.dIndiceMajoreM = 400;
  x.s.dIndiceMajoreA = 350;
  x.s.sDateChangementIndice = "31/01/2023";
  ASSERT_TRUE(x.m.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", x.s));
  EXPECT_DOUBLE_EQ(x.s.dBase_HSA, 23280.16);
}

TEST(SalaireBaseHSTest, IndexChangeThisMonthOrLaterComputesTheFormerBase) {
  for (const char* sChangement : {"15/03/2023", "01/05/2023"}) {
    Moteur x;
    x.s.dIndiceMajoreM = 400;
    x.s.dIndiceMajoreA = 350;
    x.s.sDateChangementIndice = sChangement;
    x.s.sDateMajIndiceReglementaire = "01/03/2022";
    ASSERT_TRUE(x.m.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", x.s));
    EXPECT_DOUBLE_EQ(x.s.dBase_HSA, 20147.84) << sChangement;
  }
}

TEST(SalaireBaseHSTest, NoIndexChangeDateIsAFault) {
  Moteur x;
  x.s.sDateChangementIndice = "";
  EXPECT_FALSE(x.m.Appel_Methode_Preparation_Calcul_General("SALAIRE_BASE_HS", x.s));
}

}  // namespace
}  // namespace orvalis
