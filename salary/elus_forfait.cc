// Officials' allowances of a fixed amount (dEluForfait) a month: the month of a paid period
// with the earlier months of the period, or the month alone.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "salary/elus_lignes.h"
#include "salary/elus_outils.h"

namespace orvalis {

void elus::TraitementForfaitaireElus(MoteurCalcul& m, VarCalculSalarie& s,
                                     SalarieCalculRubrique& Rubrique) {
  if (!MoisPaye(s, m.gPeriodeEncours, true)) return;
  s.dSalarie_MensuelReelN = s.dEluForfait;
  s.dSalarie_MensuelPleinN = PleinSurIndiceDuMois(m, s);
  s.dSalarie_MensuelN = s.iNBJ_PresenceN * s.dSalarie_MensuelReelN / 30;
  // The earlier months of the period are paid whole.
  const int K = MoisAnterieurs(s, m.gPeriodeEncours, true);
  if (K > 0) s.dSalarie_MensuelN = K * s.dSalarie_MensuelReelN + s.dSalarie_MensuelN;
  const double dMontant = s.dTraitementEluForfaitNonMensuel != 0 ? s.dTraitementEluForfaitNonMensuel
                                                                 : s.dSalarie_MensuelN;
  Ligne(Rubrique, s.dSalarie_MensuelN, 0, dMontant);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementForfaitaireElus(VarCalculSalarie& InfosSalaries,
                                                                   SalarieCalculRubrique& Rubrique) {
  elus::TraitementForfaitaireElus(*this, InfosSalaries, Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementForfaitaireElusMois(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  s.dSalarie_MensuelReelN = s.dEluForfait;
  CalculCoefficientUtilisationTauxElus(s, gPeriodeEncours);
  s.dSalarie_MensuelN = s.iNBJ_PresenceN * s.dSalarie_MensuelReelN / 30;
  elus::Ligne(Rubrique, s.dSalarie_MensuelPleinN, s.dIndiceMajoreM, s.dSalarie_MensuelN);
}

}  // namespace orvalis
