// Paid leave: the allowance on the gross of the contract and the withholding.
#include "absences/montant_brut_mois.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

// The gross of the contract summed month by month from its start to the month before the
// pay month, or to its end when that comes first. Despite its name the value is a sum.
double dMoyenneBrutCongesPayes(const VarCalculSalarie& InfosSalaries, const RsRef& RsSalariesHisto,
                               const std::string& sPeriode) {
  const Date dPeriode = LireDate(sPeriode);
  Date dFin = AjouteJours(dPeriode, -1);
  if (!InfosSalaries.sDateFin.empty()) {
    const Date dFinContrat = LireDate(InfosSalaries.sDateFin);
    if (!(Annee(dFinContrat) >= Annee(dPeriode) && Mois(dFinContrat) > Mois(dPeriode)))
      dFin = dFinContrat;
  }
  double dSomme = 0;
  std::string sCurseur = InfosSalaries.sDateDebut;
  for (;;) {
    if (RsSalariesHisto) dSomme += dMontantBrutMois(RsSalariesHisto, sCurseur);
    const Date dCurseur = LireDate(sCurseur);
    // Year and month are compared apart: either one still behind keeps the walk going.
    if (!(Annee(dCurseur) < Annee(dFin) || Mois(dCurseur) < Mois(dFin))) break;
    sCurseur = TexteDate(AjouteMois(PremierJourDuMois(dCurseur), 1));
  }
  return dSomme;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_CongesPayes(VarCalculSalarie& InfosSalaries,
                                                     const RsRef& RsSalariesHisto,
                                                     SalarieCalculRubrique& Rubrique) {
  const double dBrut = dRechercheValeurCumul("BRUT", "S") +
                       dMoyenneBrutCongesPayes(InfosSalaries, RsSalariesHisto, gPeriodeEncours) +
                       dRechercheValeurCumulRappel("BRUT", "S");
  const double dTaux = dRechercheValeur_Constantes(gRsConstantes, "TXINDCP");
  Rubrique.dBase = dBrut;
  Rubrique.dTauxSalarial = dTaux;
  Rubrique.dMontantSalarial = dBrut * dTaux / 100;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

void MethodeCalculG_Nouv::CalculRubrique_RetenueCongesPayes(VarCalculSalarie& InfosSalaries,
                                                            const RsRef& RsVarSalaries,
                                                            const RsRef& RsSalariesHisto,
                                                            const RsRef& RsVarSalariesHisto,
                                                            SalarieCalculRubrique& Rubrique) {
  Rubrique.dBase = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique) * -1;
  std::string sType;
  Rubrique.dTauxSalarial = RechercheValeurTauxSalarial(
      InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, sType, RsSalariesHisto);
  // The rate is a number of days or an amount, not a percentage: no division by 100.
  Rubrique.dMontantSalarial = Rubrique.dTauxSalarial * Rubrique.dBase;
}

}  // namespace orvalis
