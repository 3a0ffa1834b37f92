// The days of the pay month that one exceptional situation covers, for any engine.
#pragma once

#include <optional>
#include <string>

#include "orvalis/VarCalculSalarie.h"
#include "orvalis/dates.h"
#include "orvalis/numeric.h"

namespace orvalis::periode {

// The start of the situation within the employment, and its first and last days d1, d2 on
// the month of 30 days.
struct JoursSituation {
  Date dS;
  Int16 d1;
  Int16 d2;
};

// The days of the situation in the month sPeriode; none when it does not overlap the month.
// A progressive end of activity ("PF", "PD", "CP") also writes its type and coefficients.
std::optional<JoursSituation> JoursDeLaSituation(const std::string& sPeriode, VarCalculSalarie& s,
                                                 const std::string& sSituation,
                                                 const std::string& sDateDeb_Situation,
                                                 const std::string& sDateFin_Situation);

// Books iJours days of a sick leave or therapeutic part-time situation of the record (no
// quotity) in the month's other absences; a code of no such situation books nothing.
void ImputeAutreAbsence(VarCalculSalarie& s, const std::string& sCode, Int16 iJours);

}  // namespace orvalis::periode
