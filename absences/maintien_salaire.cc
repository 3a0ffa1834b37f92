// Sick leave on maintained pay, 90 % or two thirds: the days of the line valued on the
// annual salary of their index and the coefficient of their rate.
#include <string>

#include "absences/maintien_outils.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

void MethodeCalculG_Nouv::dMaintienSalaireCoefficient(VarCalculSalarie& InfosSalaries,
                                                      Int16& iJoursIATA, Int16& iJoursIATN,
                                                      Int16& iJoursINTA, Int16& iJoursINTN,
                                                      const std::string& sCodeRubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  iJoursIATA = 0;
  iJoursIATN = 0;
  iJoursINTA = 0;
  iJoursINTN = 0;
  if (sCodeRubrique == "MAINTIEN90") {
    iJoursIATA = s.iNBJ_90PourCentTraitementIATA;
    iJoursIATN = s.iNBJ_90PourCentTraitementIATN;
    iJoursINTA = s.iNBJ_90PourCentTraitementINTA;
    iJoursINTN = s.iNBJ_90PourCentTraitementINTN;
  } else if (sCodeRubrique == "MAINTIEN66") {
    iJoursIATA = s.iNBJ_2TiersTraitementIATA;
    iJoursIATN = s.iNBJ_2TiersTraitementIATN;
    iJoursINTA = s.iNBJ_2TiersTraitementINTA;
    iJoursINTN = s.iNBJ_2TiersTraitementINTN;
  }
}

void MethodeCalculG_Nouv::CalculRubrique_MaintienSalaire(VarCalculSalarie& InfosSalaries,
                                                         SalarieCalculRubrique& Rubrique,
                                                         Int16 iPourcentage) {
  if (maintien::AucunJourMaintenu(InfosSalaries)) return;

  maintien::Jours j;
  dMaintienSalaireCoefficient(InfosSalaries, j.JA, j.JB, j.JC, j.JD, Rubrique.sCodeRubrique);
  const double Q = maintien::PartMaintenue(iPourcentage);

  // The line shows the days in the rate's place; its amount is not base times rate.
  Rubrique.dBase = maintien::SalaireMensuelReel(InfosSalaries);
  Rubrique.dTauxSalarial = j.Total();
  Rubrique.dMontantSalarial = maintien::MontantMaintenu(InfosSalaries, j, Q);
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis
