// Training: the hourly training allowance on the minimum index, and the training allowance
// of the days of training leave, held to a twelfth of its yearly ceiling.
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "period/periode_outils.h"
#include "salary/salaire_outils.h"

namespace orvalis {

namespace {

using salaire::EcritLigne;
using salaire::FixeOuZero;

// Days of the situations "C" and "N" in the pay month, on the 30-day month.
Int16 JoursDeFormation(MethodeCalculG_Nouv& m, VarCalculSalarie& InfosSalaries) {
  const Date dDebutMois = LireDate(m.gPeriodeEncours);
  const std::string sDebutMois = TexteDate(dDebutMois);
  const std::string sFinMois = TexteDate(DernierJourDuMois(dDebutMois));
  Int16 iJours = 0;
  static const std::vector<std::string> kCodes = {"C", "N"};
  periode::ParcourtSituations(InfosSalaries, kCodes, [&](Recordset& rs) {
    const periode::Situation sit = periode::LitSituation(rs);
    const std::string sFin = sit.sDateFin.empty() ? sFinMois : sit.sDateFin;
    iJours += iNbJoursBase30Commun(sit.sDateDebut, sFin, sDebutMois, sFinMois);
  });
  return std::min<Int16>(iJours, Int16(30));
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_AllocationFormation(VarCalculSalarie& InfosSalaries,
                                                             const RsRef& RsVarSalaries,
                                                             SalarieCalculRubrique& Rubrique) {
  // The yearly pay of the minimum index with its residence allowance, over the hours of a
  // year.
  const double dPoint = ConstanteFixe("Point");
  const double dIndiceMinimum = FixeOuZero(*this, "IndMinRemuneration");
  const double dTraitement = Arrondi(dIndiceMinimum * dPoint, 2);
  double dResidence = 0;
  if (InfosSalaries.iZoneResid > 0) {
    const double dIndiceResidence = ConstanteFixe("IndResid");
    dResidence = dIndiceMinimum < dIndiceResidence
                     ? Arrondi(dIndiceResidence * dPoint, 2) * InfosSalaries.iZoneResid / 100
                     : dTraitement * InfosSalaries.iZoneResid / 100;
  }
  const double dHeuresAn = ConstanteFixe("HrsMois") * 12;
  const double dTaux = dHeuresAn == 0 ? 0 : (dTraitement + dResidence) / dHeuresAn;

  const double dHeures = dRechercheValeur_Variable(RsVarSalaries, "HRSALLFOR");
  EcritLigne(Rubrique, dHeures, dTaux, Arrondi(dHeures * dTaux, 2));
}

// The days of training leave of the month, paid on the month's bound over 30 days.
void MethodeCalculG_Nouv::CalculRubrique_IndemniteFormation(VarCalculSalarie& InfosSalaries,
                                                            const RsRef& /*RsVarSalaries*/,
                                                            SalarieCalculRubrique& Rubrique) {
  const double dPlafondAnnuel =
      Arrondi(dRechercheValeur_Constantes(gRsConstantes, "INDMAXFORM") * ConstanteFixe("Point"), 2);
  const double dPlafondMois = Arrondi(dPlafondAnnuel / 12, 2);
  const Int16 iJours = JoursDeFormation(*this, InfosSalaries);
  if (iJours == 0) return;
  EcritLigne(Rubrique, iJours.value(), 0, Arrondi(dPlafondMois * iJours.value() / 30, 2));
}

}  // namespace orvalis
