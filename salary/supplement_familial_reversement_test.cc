// The family supplement paid over to former spouses. The month's supplement 84.51; CSG and
// RDS 6.8 + 2.4 + 0.5 on 98.25 % of it: 9.7 x 84.51 x 0.9825 / 100 = 8.054014275.
#include <gtest/gtest.h>

#include "salary/indemnites_test_outils.h"

namespace orvalis {
namespace {

constexpr double kCsg = 8.054014275;
constexpr double kNetTitulaire = 84.51 - kCsg - 5 * 84.51 / 100;          // 72.230485725
constexpr double kNetContractuel = 84.51 - kCsg - 7.3 * 84.51 / 100;      // 70.286755725

class ReversementSFT : public indemnites_test::PaieIndemnites {
 protected:
  ReversementSFT() {
    Cumul("SUPPFAM", 84.51);
    Constante("~TXCSGPROF", 0.9825);
    Taux("URSDCSG", 6.8);
    Taux("URSCSG", 2.4);
    Taux("URSRDS", 0.5);
    Taux("RAFP", 5);
    Taux("URSRGVEU", 0.4);
    Taux("URSRGVIEP", 6.9);
    s.iEnfant_ACharge = 2;
    s.bRegineFonctionnaire = true;
    r.sCodeRubrique = "REVSFT";
    s.rsExConjoints = NouveauRecordset({"CodeRubrique", "NbEnfantsACharge", "TauxTempsGarde"});
  }
  void ExConjoint(const Value& code, const Value& enfants, const Value& garde) {
    s.rsExConjoints->AddNew();
    s.rsExConjoints->SetField("CodeRubrique", code);
    s.rsExConjoints->SetField("NbEnfantsACharge", enfants);
    s.rsExConjoints->SetField("TauxTempsGarde", garde);
  }
};

TEST_F(ReversementSFT, OneOfTwoChildrenWithTheFormerSpouse) {
  ExConjoint("REVSFT", 1, 100);
  ASSERT_TRUE(Calcule("REVERSEMENT SFT"));
  Ligne(kNetTitulaire, 1, kNetTitulaire / 2);  // 1 x 1/2 x 100 %
}

TEST_F(ReversementSFT, SharedCustody) {
  ExConjoint("REVSFT", 2, 50);
  ASSERT_TRUE(Calcule("REVERSEMENT SFT"));
  Ligne(kNetTitulaire, 2, kNetTitulaire / 2);  // 2 x 1/2 x 50 %
}

TEST_F(ReversementSFT, ContractStaffPayTheGeneralPension) {
  s.bRegineFonctionnaire = false;
  ExConjoint("REVSFT", 1, 100);
  ASSERT_TRUE(Calcule("REVERSEMENT SFT"));
  Ligne(kNetContractuel, 1, kNetContractuel / 2);
}

TEST_F(ReversementSFT, OnlyTheRowsOfTheLinesCode) {
  ExConjoint("AUTRE", 2, 100);
  ExConjoint("REVSFT", 1, 50);
  ExConjoint(Value(), 1, 100);
  ExConjoint("REVSFT", 1, Value());  // no custody rate: nothing
  ASSERT_TRUE(Calcule("REVERSEMENT SFT"));
  Ligne(kNetTitulaire, 2, kNetTitulaire / 4);  // 1 x 1/2 x 50 % + 1 x 1/2 x 0
}

TEST_F(ReversementSFT, NoFormerSpouse) {
  ASSERT_TRUE(Calcule("REVERSEMENT SFT"));
  Ligne(kNetTitulaire, 0, 0);
  s.rsExConjoints = nullptr;
  ASSERT_TRUE(Calcule("REVERSEMENT SFT"));
  Ligne(kNetTitulaire, 0, 0);
}

TEST_F(ReversementSFT, NoSupplementThisMonth) {
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
  ExConjoint("REVSFT", 1, 100);
  ASSERT_TRUE(Calcule("REVERSEMENT SFT"));
  Ligne(0, 1, 0);
}

TEST_F(ReversementSFT, NoChildLeftFaultsOnARowOfTheCode) {
  s.iEnfant_ACharge = 0;
  ExConjoint("REVSFT", 1, 100);
  EXPECT_FALSE(Calcule("REVERSEMENT SFT"));
}

}  // namespace
}  // namespace orvalis
