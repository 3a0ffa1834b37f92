// The historic month split in two at the index change: the share of the former index and
// that of the new one, on 30 days. There is no split by working hours.
#include "orvalis/MethodeCalculG.h"
#include "period/periode_outils.h"

namespace orvalis {

using periode::JourDe;
using periode::MemeMois;

void MethodeCalculG::CalculCoefficientUtilisationIndice(VarCalculSalarie& InfosSalaries) {
  const std::string& sModele = InfosSalaries.sTypeModele;
  if (sModele != "INDNTI" && sModele != "INDTIT") {
    if (sModele == "ELUS") CalculCoefficientUtilisationTauxElus(InfosSalaries, gPeriodeEncours);
    return;
  }
  if (!EstDate(InfosSalaries.sDateChangementIndice)) return;
  const Date dIndice = LireDate(InfosSalaries.sDateChangementIndice);
  const Date dPeriode = LireDate(gPeriodeEncours);

  // A change within the month splits it; one in the next month leaves it on the former
  // index; any other date is an old change, the month on the new index.
  Int16 iAncien = 0, iNouveau = 30;
  if (MemeMois(dIndice, dPeriode)) {
    iAncien = JourDe(dIndice) - 1;
    iNouveau = 30 - JourDe(dIndice) + 1;
  } else if (MemeMois(AjouteMois(dIndice, -1), dPeriode)) {
    iAncien = 30;
    iNouveau = 0;
  }
  InfosSalaries.dCoefficient_IAncien = iAncien / 30.0;
  InfosSalaries.dCoefficient_INouveau = iNouveau / 30.0;
}

}  // namespace orvalis
