// The yearly reference salary of overtime on one index, for any engine.
#pragma once

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

// On dIndice, sType "ENCOURS" (this month's values) or "ANCIEN" (the month before); with
// bPlancherSmic the treatment is held up to the yearly minimum wage.
double SalaireBaseHSPeriode(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double dIndice,
                            const std::string& sType, bool bPlancherSmic);

}  // namespace orvalis
