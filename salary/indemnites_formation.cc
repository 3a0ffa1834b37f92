// Training: the hourly training allowance on the minimum index, and the training allowance
// of the days of training leave, held to a twelfth of its yearly ceiling.
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "period/periode_outils.h"
#include "salary/elements_cellules.h"
#include "salary/indemnites_partagees.h"
#include "salary/salaire_outils.h"

namespace orvalis {

namespace {

using salaire::EcritLigne;
using salaire::FixeOuZero;

// Days of the situations "C" and "N" in the pay month, on the 30-day month.
Int16 JoursDeFormation(MoteurCalcul& m, VarCalculSalarie& InfosSalaries) {
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

void indemnites::AllocationFormation(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries,
                                     const RsRef& RsVarSalaries, SalarieCalculRubrique& Rubrique) {
  // The yearly pay of the minimum index with its residence allowance, over the hours of a
  // year.
  const double dPoint = m.ConstanteFixe("Point");
  const double dIndiceMinimum = FixeOuZero(m, "IndMinRemuneration");
  const double dTraitement = Arrondi(dIndiceMinimum * dPoint, 2);
  double dResidence = 0;
  if (InfosSalaries.iZoneResid > 0) {
    const double dIndiceResidence = m.ConstanteFixe("IndResid");
    dResidence = dIndiceMinimum < dIndiceResidence
                     ? Arrondi(dIndiceResidence * dPoint, 2) * InfosSalaries.iZoneResid / 100
                     : dTraitement * InfosSalaries.iZoneResid / 100;
  }
  const double dHeuresAn = m.ConstanteFixe("HrsMois") * 12;
  const double dTaux = dHeuresAn == 0 ? 0 : (dTraitement + dResidence) / dHeuresAn;

  const double dHeures = m.dRechercheValeur_Variable(RsVarSalaries, "HRSALLFOR");
  EcritLigne(Rubrique, dHeures, dTaux, Arrondi(dHeures * dTaux, 2));
}

void MoteurCalcul::CalculRubrique_AllocationFormation(VarCalculSalarie& InfosSalaries,
                                                             const RsRef& RsVarSalaries,
                                                             SalarieCalculRubrique& Rubrique) {
  indemnites::AllocationFormation(*this, InfosSalaries, RsVarSalaries, Rubrique);
}

// The days of training leave of the month, paid on the month's bound over 30 days.
void salaire::RubriqueIndemniteFormation(MoteurCalcul& m, VarCalculSalarie& s,
                                         SalarieCalculRubrique& Rubrique) {
  const double dPlafondAnnuel = Arrondi(
      m.dRechercheValeur_Constantes(m.gRsConstantes, "INDMAXFORM") * m.ConstanteFixe("Point"), 2);
  const double dPlafondMois = Arrondi(dPlafondAnnuel / 12, 2);
  const Int16 iJours = JoursDeFormation(m, s);
  if (iJours == 0) return;
  EcritLigne(Rubrique, iJours.value(), 0, Arrondi(dPlafondMois * iJours.value() / 30, 2));
}

void MoteurCalcul::CalculRubrique_IndemniteFormation(VarCalculSalarie& InfosSalaries,
                                                            const RsRef& /*RsVarSalaries*/,
                                                            SalarieCalculRubrique& Rubrique) {
  salaire::RubriqueIndemniteFormation(*this, InfosSalaries, Rubrique);
}

}  // namespace orvalis
