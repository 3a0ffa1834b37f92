// The historic differential allowance: the first generation's floor summed over the two
// cells of the month, old index and new index, with the one treatment coefficient.
#include "absences/indemnite_differentielle.h"
#include "orvalis/MethodeCalculG.h"

namespace orvalis {

namespace {

using differentielle::Moitie;

// One cell as a half of the month: its own counts, nothing in a second cell. The first
// generation reads neither the 90 % nor the two-thirds days.
Moitie Cellule(Int16 iPresence, Int16 iCFA, Int16 iFormation, Int16 iCPA, Int16 iDemiTraitement,
               Int16 iDispoOffice, double dCoefficientTraitement) {
  const Int16 zero(0);
  return {.presence = {iPresence, zero},
          .cfa = {iCFA, zero},
          .formation = {iFormation, zero},
          .cpa = {iCPA, zero},
          .demiTraitement = {iDemiTraitement, zero},
          .dispoOffice = {iDispoOffice, zero},
          .traitement90 = {zero, zero},
          .deuxTiers = {zero, zero},
          .dCoefficientTraitement = dCoefficientTraitement,
          .dCoefficientAutreAbsence = 0};
}

}  // namespace

void MethodeCalculG::CalculRubrique_Indemnite_Differentielle(VarCalculSalarie& InfosSalaries,
                                                             SalarieCalculRubrique& Rubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  const Moitie ancien =
      Cellule(s.iNBJ_PresenceA, s.iNBJ_CFAA, s.iNBJ_FormationA, s.iNBJ_CPAA,
              s.iNBJ_DemiTraitementA, s.iNBJ_DispoOfficeA, s.dCoefficient_Traitement);
  const Moitie nouveau =
      Cellule(s.iNBJ_PresenceN, s.iNBJ_CFAN, s.iNBJ_FormationN, s.iNBJ_CPAN,
              s.iNBJ_DemiTraitementN, s.iNBJ_DispoOfficeN, s.dCoefficient_Traitement);
  differentielle::IndemniteDifferentielle(*this, differentielle::Variante::kPremiere,
                                          InfosSalaries, Rubrique, nullptr, ancien, nouveau);
}

}  // namespace orvalis
