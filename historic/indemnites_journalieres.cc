// The historic daily benefits: the three slots of the record only, each compared month by
// month with the total "BASE" of that month and always capped to it.
#include "absences/indemnites_journalieres_periode.h"
#include "absences/montant_brut_mois.h"
#include "orvalis/MethodeCalculG.h"
#include "period/periode_outils.h"

namespace orvalis {

void MethodeCalculG::CalculRubrique_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique,
                                                            const RsRef& RsSalariesHisto) {
  if (ij::LigneDeLHote(InfosSalaries)) return;
  Calcul_Indemnites_journalieres(InfosSalaries, Rubrique, RsSalariesHisto);
}

void MethodeCalculG::Calcul_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                                    SalarieCalculRubrique& Rubrique,
                                                    const RsRef& RsSalariesHisto) {
  ij::IndemnitesEmplacements(InfosSalaries, Rubrique, ij::ColonnesIJ::kHistoriques,
                             [&](Int16 NumIJ) {
                               CalculIJ_Periode(InfosSalaries, RsSalariesHisto, NumIJ, Rubrique);
                             });
}

// The month's salary is its treatment, the total "BASE": of this pay run for the pay month,
// of the employee's history for an earlier one. No guaranteed income: the benefit retained
// never exceeds that salary.
void MethodeCalculG::CalculIJ_Periode(VarCalculSalarie& InfosSalaries,
                                      const RsRef& /*RsSalariesHisto*/, Int16 NumIJ,
                                      SalarieCalculRubrique& Rubrique) {
  const auto base = [&](const std::string& sCurseur, Date dCurseur) {
    if (periode::MemeMois(dCurseur, LireDate(gPeriodeEncours)))
      return dRechercheValeurCumul("BASE", "S");
    double d = 0;
    return dRechercheValeurCumulHistorique(InfosSalaries.lIdSalarie, gPeriodeEncours, "BASE", d,
                                           CleMoisHistorique(sCurseur), "S", 0);
  };
  ij::CalculIJ_PeriodeEmplacement(InfosSalaries, ij::EmplacementIJ(InfosSalaries, NumIJ.value()),
                                  Rubrique, false, base);
}

}  // namespace orvalis
