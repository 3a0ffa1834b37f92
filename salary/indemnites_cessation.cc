// The progressive end of activity (CPA) and the end of activity (CFA) of the indexed
// models: the real month salary of each quadrant, shared out by the days of the situation.
#include <algorithm>

#include "generic/taux_regles.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/salaire_outils.h"

namespace orvalis {

namespace {

using salaire::EcritLigne;
using salaire::FixeOuZero;

struct JoursDeLaSituation {
  Int16 iIATA, iIATN, iINTA, iINTN;
  bool Aucun() const { return iIATA == 0 && iIATN == 0 && iINTA == 0 && iINTN == 0; }
  Int16 Total() const { return iIATA + iIATN + iINTA + iINTN; }
};

// Whether the line pays: an indexed model, days of the situation, days of presence.
bool SituationPayee(const VarCalculSalarie& s, const JoursDeLaSituation& j) {
  return taux::ModeleIndiciaire(s) && !j.Aucun() && s.iNBJ_Presence_Total != 0;
}

// The real month salary of each quadrant for the situation's share of the days present.
double MontantDesJours(const VarCalculSalarie& s, const JoursDeLaSituation& j) {
  return (s.dSalaire_MensuelReelIATA * j.iIATA.value() +
          s.dSalaire_MensuelReelIATN * j.iIATN.value() +
          s.dSalaire_MensuelReelINTA * j.iINTA.value() +
          s.dSalaire_MensuelReelINTN * j.iINTN.value()) /
         s.iNBJ_Presence_Total.value();
}

}  // namespace

// The CPA days are paid on their share of the month, then prorated like the rest of the
// month's pay for the days of half pay and of leave.
void MethodeCalculG_Nouv::CalculRubrique_CPA(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  const JoursDeLaSituation j{s.iNBJ_CPAIATA, s.iNBJ_CPAIATN, s.iNBJ_CPAINTA, s.iNBJ_CPAINTN};
  if (!SituationPayee(s, j)) return;
  const double dMontant = MontantDesJours(s, j);
  EcritLigne(Rubrique, dMontant, 0,
             dMontantProratiseSuivantDemiTraitement(InfosSalaries, dMontant).value_or(0));
}

// The CFA days are paid on their share of the month, never below the same share of the
// month salary of the minimum index. They are not prorated again: the proration of half
// pay takes the CFA days out of the days paid.
void MethodeCalculG_Nouv::CalculRubrique_CFA(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  const JoursDeLaSituation j{s.iNBJ_CFAIATA, s.iNBJ_CFAIATN, s.iNBJ_CFAINTA, s.iNBJ_CFAINTN};
  if (!SituationPayee(s, j)) return;
  const double dMontant = MontantDesJours(s, j);
  const double dMoisMinimum = Arrondi(
      Arrondi(FixeOuZero(*this, "IndMinRemuneration") * ConstanteFixe("Point"), 2) / 12 - 0.0049,
      2);
  const double dMinimum = dMoisMinimum * j.Total().value() / s.iNBJ_Presence_Total.value();
  EcritLigne(Rubrique, dMontant, 0, std::max(dMontant, dMinimum));
}

}  // namespace orvalis
