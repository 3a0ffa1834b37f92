// The retroactive CNRACL contribution repaid over three months, and its one message.
#include <gtest/gtest.h>

#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

class CnraclRetroactive : public PaieTaux {
 protected:
  // The employer repays 300 at 120 a month, the employee 150 at 50 a month; the sum was
  // entered on 1 January 2024.
  void Mois(double reprisPatronal, double reprisSalarial, double mensuelPatronal = 120,
            double totalPatronal = 300) {
    vars = paie_test::NouvellesVariables("DateEffet");
    Variable("MTCNRRETRO", mensuelPatronal, 1, "20240101");
    Variable("MTCNRPTOT", totalPatronal, 2);
    Variable("MTCNRPR", reprisPatronal, 3);
    Variable("MTCNRSM", 50.0, 4);
    Variable("MTCNRSTOT", 150.0, 5);
    Variable("MTCNRSR", reprisSalarial, 6);
  }
  static void Variable(const RsRef& rs, const std::string& code, double valeur, int id,
                       const Value& date = Value()) {
    paie_test::AjouteVariable(rs, code, valeur, id, date, "M", "DateEffet");
  }
  void Variable(const std::string& code, double valeur, int id, const Value& date = Value()) {
    Variable(vars, code, valeur, id, date);
  }
  bool Retro() { return Calcul("CNRACL Rétroactive"); }
};

// Three months: 120 and 50, then 120 and 50, then the rest of the employer's total,
// 300 - 240 = 60, and the employee's last 50 (100 + 50 reaches 150).
TEST_F(CnraclRetroactive, RepaidOverThreeMonths) {
  r.dBase = 7;
  r.dTauxSalarial = 7;
  r.dTauxPatronal = 7;
  Mois(0, 0);
  ASSERT_TRUE(Retro());
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 120.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 50.0);
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dTauxSalarial, 0.0);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
  Mois(120, 50);
  ASSERT_TRUE(Retro());
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 120.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 50.0);
  Mois(240, 100);
  ASSERT_TRUE(Retro());
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 60.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 50.0);
  EXPECT_TRUE(m.Messages.empty());
}

// The fourth month: both totals repaid, the sum still entered with its date: the message,
// through the host's callback when it set one, and the line untouched.
TEST_F(CnraclRetroactive, FinishedRepaymentAsksToReenter) {
  Mois(300, 150);
  r.dMontantPatronal = 9;
  r.dMontantSalarial = 9;
  ASSERT_TRUE(Retro());
  ASSERT_EQ(m.Messages.size(), 1u);
  EXPECT_EQ(m.Messages[0],
            "Veuillez resaisir la part CNRACL rétroactive salariale dans l'onglet Mutuelles.");
  EXPECT_EQ(r.dMontantPatronal, 9.0);
  EXPECT_EQ(r.dMontantSalarial, 9.0);
  std::string recu;
  m.OnMessage = [&](const std::string& texte) { recu = texte; };
  ASSERT_TRUE(Retro());
  EXPECT_EQ(recu, m.Messages[0]);
  EXPECT_EQ(m.Messages.size(), 1u);
}

// Repaid beyond the total on one side only: the other side still pays.
TEST_F(CnraclRetroactive, OneSideFinished) {
  Mois(300, 100);
  ASSERT_TRUE(Retro());
  EXPECT_EQ(r.dMontantPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 50.0);
}

// Finished without a date: nothing at all.
TEST_F(CnraclRetroactive, FinishedWithoutDateSaysNothing) {
  vars = paie_test::NouvellesVariables("DateEffet");
  Variable("MTCNRRETRO", 120, 1);
  Variable("MTCNRPTOT", 300, 2);
  Variable("MTCNRPR", 300, 3);
  r.dMontantPatronal = 9;
  ASSERT_TRUE(Retro());
  EXPECT_TRUE(m.Messages.empty());
  EXPECT_EQ(r.dMontantPatronal, 9.0);
}

// A sum without total nor repayment is paid at once, the employee's side from the line's
// base and rate: 2000 x 9.88 % = 197.60; the rate is rounded to 2 places (9.876 -> 9.88).
TEST_F(CnraclRetroactive, SumWithoutScheduleIsPaidAtOnce) {
  vars = paie_test::NouvellesVariables("DateEffet");
  Variable("MTCNRRETRO", 450, 1, "20240101");
  BaseAutreLigne(2000);
  TauxSalarialConstante("TXCNR", 9.876, "T");
  ASSERT_TRUE(Retro());
  EXPECT_DOUBLE_EQ(r.dBase, 2000.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 9.88);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 197.6);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 450.0);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
}

// A negative sum reads no total: it is paid at once as well.
TEST_F(CnraclRetroactive, NegativeSumIsPaidAtOnce) {
  Mois(0, 0, -80);
  BaseAutreLigne(0);
  ASSERT_TRUE(Retro());
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -80.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

// The sums are read to the euro: 120.40 a month repays 120.
TEST_F(CnraclRetroactive, SumsReadToTheEuro) {
  Mois(0, 0, 120.4);
  ASSERT_TRUE(Retro());
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 120.0);
}

// No variable at all: nothing is written and nothing is said.
TEST_F(CnraclRetroactive, EmptySource) {
  vars = paie_test::NouvellesVariables("DateEffet");
  r.dMontantSalarial = 9;
  ASSERT_TRUE(Retro());
  EXPECT_EQ(r.dMontantSalarial, 9.0);
  EXPECT_TRUE(m.Messages.empty());
}

TEST_F(CnraclRetroactive, MissingSourceFaults) {
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("CNRACL Rétroactive", s, r));
}

}  // namespace
}  // namespace orvalis::taux_test
