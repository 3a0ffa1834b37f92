// A pay run for the tests of the base and coefficient resolvers: an engine for March 2024
// with empty sources of the usual columns, an employee, a pay line and his variables.
#ifndef ORVALIS_GENERIC_BASE_TEST_UTIL_H_
#define ORVALIS_GENERIC_BASE_TEST_UTIL_H_

#include <string>

#include "generic/paie_test_util.h"

namespace orvalis::test {

class PaieDeMars : public paie_test::PaieDeMarsCommune {
 protected:
  PaieDeMars()
      : PaieDeMarsCommune({"Point", "PlafSecu", "SmicHor", "HrsMois"},
                          {"Mois", "Point", "SmicHor", "HrsMois"}) {}

  void Cumul(const std::string& code, const Value& sal, const Value& pat = Value(),
             int id = 0) {
    paie_test::AjouteCumul(m.gRsCumuls, code, sal, pat, id);
  }

  void Historique(const std::string& mois, const std::string& code, const Value& sal,
                  int idSalarie = 42) {
    paie_test::AjouteHistorique(m.gRsCumulsHistoriqueSal, idSalarie, mois, code, sal, 0.0);
  }

  void Variable(const std::string& code, const Value& valeur, int id = 0,
                const Value& dateEffet = Value(), const Value& tauxMontant = "M") {
    paie_test::AjouteVariable(vars, code, valeur, id, dateEffet, tauxMontant);
  }
};

}  // namespace orvalis::test

#endif  // ORVALIS_GENERIC_BASE_TEST_UTIL_H_
