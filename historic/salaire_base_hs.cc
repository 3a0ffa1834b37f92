// The historic reference salary of overtime: a fixed month for the former index, and no
// floor at the minimum wage.
#include "orvalis/MethodeCalculG.h"
#include "orvalis/dates.h"
#include "period/salaire_base_hs.h"

namespace orvalis {

double MethodeCalculG::CalculSalaireBaseHS_Periode(VarCalculSalarie& InfosSalaries,
                                                   double dIndice, const std::string& sType) {
  return SalaireBaseHSPeriode(*this, InfosSalaries, dIndice, sType, false);
}

void MethodeCalculG::CalculSalaireBaseHS(VarCalculSalarie& InfosSalaries) {
  InfosSalaries.dBase_HSN =
      CalculSalaireBaseHS_Periode(InfosSalaries, InfosSalaries.dIndiceMajoreM, "ENCOURS");
  bool bAncienIndice = gPeriodeEncours == "01/07/2008";
  if (!bAncienIndice)
    bAncienIndice =
        DiffMois(LireDate(InfosSalaries.sDateChangementIndice), LireDate(gPeriodeEncours)) < 0;
  InfosSalaries.dBase_HSA =
      bAncienIndice
          ? CalculSalaireBaseHS_Periode(InfosSalaries, InfosSalaries.dIndiceMajoreA, "ANCIEN")
          : InfosSalaries.dBase_HSN;
}

}  // namespace orvalis
