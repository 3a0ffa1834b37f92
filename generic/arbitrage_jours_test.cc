// The value of one worked day for the arbitration of paid leave.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

// 2024: 262 weekdays, less 1/1, 1/5, 8/5, 15/8, 1/11, 11/11, 25/12, Easter Monday (1/4),
// Ascension (9/5) and Whit Monday (20/5): 252 working days, a twelfth of 21.
using ArbitrageJours = PaieTaux;

TEST_F(ArbitrageJours, CoefficientSurUnDouziemeDesJoursOuvres) {
  r.sCoeffBase = "PART SALARIALE D'UNE RUBRIQUE";
  r.dMontantSalarialRub = 2000;
  EXPECT_DOUBLE_EQ(m.dArbitrageJours(s, vars, r), 95.24);  // 2000 / 21 = 95.238...
}

TEST_F(ArbitrageJours, SansCoefficientUnSurVingtEtUn) {
  EXPECT_DOUBLE_EQ(m.dArbitrageJours(s, vars, r), 0.05);  // 1 / 21
}

TEST_F(ArbitrageJours, SalaireBrutJournalierOuvre) {
  r.sCoeffBase = "PART SALARIALE D'UNE RUBRIQUE";
  r.dMontantSalarialRub = 2520;
  EXPECT_DOUBLE_EQ(TauxS("SALAIRE BRUT JOURNALIER OUVRE"), 120.0);
  EXPECT_EQ(type, "");
}

TEST_F(ArbitrageJours, AutreAnnee) {
  // 2021: 261 weekdays, less 1/1, 14/7, 1/11, 11/11, Easter Monday (5/4), Ascension (13/5)
  // and Whit Monday (24/5): 254 working days.
  m.gPeriodeEncours = "01/06/2021";
  r.sCoeffBase = "PART SALARIALE D'UNE RUBRIQUE";
  r.dMontantSalarialRub = 2540;
  EXPECT_DOUBLE_EQ(m.dArbitrageJours(s, vars, r), 120.0);  // 2540 / (254 / 12)
  r.dMontantSalarialRub = 2000;
  EXPECT_DOUBLE_EQ(m.dArbitrageJours(s, vars, r), 94.49);  // 2000 / 21.1666... = 94.488...
}

}  // namespace
}  // namespace orvalis::taux_test
