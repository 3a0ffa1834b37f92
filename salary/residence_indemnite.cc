// The residence allowance: the zone's percentage of the month's real treatment, with a floor
// on the treatment of the reference index "IndResid".
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elements_cellules.h"
#include "salary/indemnite_ligne.h"

namespace orvalis {

namespace salaire {

void RubriqueIndemniteResidence(MoteurCalcul& m, VarCalculSalarie& s,
                                SalarieCalculRubrique& Rubrique, const MoisResidence& mois) {
  const double Z = Arrondi(s.iZoneResid, 2);
  if (!(Z > 0)) return;

  // The floor: the full month of the reference index, by the hours of each side of the month.
  const double P = Arrondi(m.ConstanteFixe("Point"), 4);
  const double R = Arrondi(m.ConstanteFixe("IndResid"), 2);
  const double F = indemnites::MensuelPlein(Arrondi(P * R, 2));
  double L = 0;
  for (const std::vector<Quart>& h : mois.heures) {
    double dCoefficients = 0;
    for (const Quart& q : h) dCoefficients = dCoefficients + q.dCoefficient;
    L = L + F * h.front().dTraitement * dCoefficients;
  }

  double S = 0;
  for (const Quart& q : mois.reels) S = S + q.dReel;
  s.dIndResTotale = S * Z / 100;

  if (!s.bDureeHebdoMultiple) {
    // The month's days that pay no allowance: end of activity, availability, training.
    Int16 iSans = 0;
    for (const Quart& q : mois.reels) iSans = iSans + q.iCFA;
    Int16 iDispo = 0;
    for (const Quart& q : mois.reels) iDispo = iDispo + q.iDispoOffice;
    iSans = iSans + iDispo + mois.t.iCongeFormation;
    L = (mois.t.iPresence - iSans) * L / 30;
    S = 0;
    for (const Quart& q : mois.cellules) {
      if (q.dCoefficient == 0) continue;
      const Int16 iJours = q.iPresence - (q.iCFA + q.iDispoOffice + q.iCongeFormation);
      S = S + q.dReel * iJours / (q.dCoefficient * 30);
    }
  }

  // A month without real treatment falls back on the month's base so far.
  const double B = S != 0 ? std::max(S, L) : std::max(m.dRechercheValeurCumul("BASE", "S"), L);
  const bool bPaye = mois.bJoursMaxDecalage && mois.t.iPresence != 0;
  indemnites::Ligne(Rubrique, B, Z, bPaye ? B * Z / 100 : 0);
}

}  // namespace salaire

void MethodeCalculG_Nouv::CalculRubrique_IndemniteResidence(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  using namespace salaire;
  salaire::RubriqueIndemniteResidence(
      *this, s, Rubrique,
      {{{IATA(s), INTA(s)}, {IATN(s), INTN(s)}},
       {IATN(s), IATA(s), INTA(s), INTN(s)},
       {INTN(s), INTA(s), IATN(s), IATA(s)},
       TotauxQuatreQuarts(s),
       s.dNB_Jours_Max_Decalage_Mois != 0});
}

}  // namespace orvalis
