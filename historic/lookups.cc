// The historic form of the lookup of the employee's totals by month.
#include "orvalis/MethodeCalculG.h"
#include "orvalis/dates.h"

namespace orvalis {

double MethodeCalculG::dRechercheValeurCumulHistorique(Int32 lIdSalarie,
                                                       const std::string& sPeriode,
                                                       const std::string& sCode, double& dValeur,
                                                       const std::string& sMois,
                                                       const std::string& /*sType*/,
                                                       Int32 /*lIdCumul*/) {
  // The common lookup on the code alone, on the employee side whatever side is asked.
  return MoteurCalcul::dRechercheValeurCumulHistorique(lIdSalarie, sPeriode, sCode, dValeur,
                                                       sMois, "S", 0);
}

}  // namespace orvalis
