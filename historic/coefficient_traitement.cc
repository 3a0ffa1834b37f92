// The historic treatment coefficient: one for the whole month, from the post of the month.
#include "orvalis/MethodeCalculG.h"
#include "period/periode_outils.h"
#include "period/presence_outils.h"

namespace orvalis {

// The post is worked out here once, with no correction for therapeutic part-time (the
// historic month knows no such situation).
void MethodeCalculG::CalculCoefficientTraitement(VarCalculSalarie& InfosSalaries) {
  const std::string& sModele = InfosSalaries.sTypeModele;
  if (sModele == "INDNTI" || sModele == "INDTIT") {
    double dAvantTP = 0, dSiTNC = 0;
    periode::CoefficientOccupationPoste(
        periode::ValeursPosteDuMois(InfosSalaries), [](double d) { return d; },
        InfosSalaries.dCoefficient_Traitement, dAvantTP, dSiTNC);
  } else if (sModele == "ELUS") {
    periode::CoefficientTraitementElus(InfosSalaries);
  } else {
    InfosSalaries.dCoefficient_Traitement = 0;
  }
}

}  // namespace orvalis
