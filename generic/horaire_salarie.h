// The hourly rate of the month in progress and of the month before, for any engine: the
// employee's own rate from his variables, or else the month's pay over its hours.
#pragma once

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

void TauxHoraireMoisEnCours(MoteurCalcul& m, double dCoeffMajoration,
                            VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                            double& dValeur, std::string& sType);

void TauxHoraireMoisPrec(MoteurCalcul& m, double dCoeffMajoration,
                         VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalariesHisto,
                         const RsRef& RsSalariesHisto, double& dValeur, std::string& sType);

}  // namespace orvalis
