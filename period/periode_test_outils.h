// Test helpers of the period preparations: an employee present since long before the
// month, and a source of exceptional situations.
#ifndef ORVALIS_PERIOD_PERIODE_TEST_OUTILS_H_
#define ORVALIS_PERIOD_PERIODE_TEST_OUTILS_H_

#include <ostream>
#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/Recordset.h"
#include "orvalis/VarCalculSalarie.h"

namespace orvalis::periode_test {

struct LigneSituation {
  std::string code;
  std::string debut;
  std::string fin;  // empty: a null end date
  Value quotite = Value::Null();
};

inline RsRef Situations(const std::vector<LigneSituation>& lignes) {
  auto rs = NouveauRecordset({"CodeSituationExceptionnelle", "DateDebutSituationExceptionnelle",
                              "DateFinSituationExceptionnelle", "Quotite"});
  for (const auto& l : lignes) {
    rs->AddNew();
    rs->SetField("CodeSituationExceptionnelle", l.code);
    rs->SetField("DateDebutSituationExceptionnelle", l.debut);
    rs->SetField("DateFinSituationExceptionnelle", l.fin.empty() ? Value::Null() : Value(l.fin));
    rs->SetField("Quotite", l.quotite);
  }
  return rs;
}

// An indexed civil servant in post since 2015, no end, no change in the month: coefficients
// and presence of a whole month on the new index and hours.
inline VarCalculSalarie SalarieMoisComplet() {
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sDateDebut = "01/01/2015";
  s.sDateChangementIndice = "01/01/2020";
  s.sDateChangementHeures = "01/01/2020";
  s.dCoefficient_INTN = 1;
  s.iNBJ_PresenceINTN = 30;
  s.iNBJ_PresenceN = 30;
  s.iNBJ_Presence_Total = 30;
  s.rsSituationsExceptionnelles = Situations({});
  return s;
}

struct Quadrants {
  int iata, iatn, inta, intn;
  friend bool operator==(const Quadrants&, const Quadrants&) = default;
};

inline std::ostream& operator<<(std::ostream& os, const Quadrants& q) {
  return os << "{" << q.iata << ", " << q.iatn << ", " << q.inta << ", " << q.intn << "}";
}

}  // namespace orvalis::periode_test

#endif  // ORVALIS_PERIOD_PERIODE_TEST_OUTILS_H_
