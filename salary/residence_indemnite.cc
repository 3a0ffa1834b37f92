// The residence allowance: the zone's percentage of the month's real treatment, with a floor
// on the treatment of the reference index "IndResid".
#include <algorithm>
#include <array>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/indemnite_ligne.h"

namespace orvalis {

namespace {

// What one quadrant brings to the allowance: its real treatment, its share of the month
// and its days, present and not paid the allowance (end of activity, availability,
// training leave).
struct QuartResidence {
  double dReel;
  double dCoefficient;
  Int16 iPresence;
  Int16 iCFA;
  Int16 iDispo;
  Int16 iFormation;
};

// In the order the allowance adds them: INTN, INTA, IATN, IATA.
std::array<QuartResidence, 4> Quarts(const VarCalculSalarie& s) {
  return {{{s.dSalaire_MensuelReelINTN, s.dCoefficient_INTN, s.iNBJ_PresenceINTN, s.iNBJ_CFAINTN,
            s.iNBJ_DispoOfficeINTN, s.iNBJ_CongeFormationINTN},
           {s.dSalaire_MensuelReelINTA, s.dCoefficient_INTA, s.iNBJ_PresenceINTA, s.iNBJ_CFAINTA,
            s.iNBJ_DispoOfficeINTA, s.iNBJ_CongeFormationINTA},
           {s.dSalaire_MensuelReelIATN, s.dCoefficient_IATN, s.iNBJ_PresenceIATN, s.iNBJ_CFAIATN,
            s.iNBJ_DispoOfficeIATN, s.iNBJ_CongeFormationIATN},
           {s.dSalaire_MensuelReelIATA, s.dCoefficient_IATA, s.iNBJ_PresenceIATA, s.iNBJ_CFAIATA,
            s.iNBJ_DispoOfficeIATA, s.iNBJ_CongeFormationIATA}}};
}

// The month's days that pay no allowance, over the four quadrants.
Int16 JoursSansIndemnite(const VarCalculSalarie& s) {
  return s.iNBJ_CFAIATA + s.iNBJ_CFAIATN + s.iNBJ_CFAINTA + s.iNBJ_CFAINTN +
         (s.iNBJ_DispoOfficeIATA + s.iNBJ_DispoOfficeIATN + s.iNBJ_DispoOfficeINTA +
          s.iNBJ_DispoOfficeINTN) +
         s.iNBJ_CongeFormation_Total;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_IndemniteResidence(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  const double Z = Arrondi(s.iZoneResid, 2);
  if (!(Z > 0)) return;

  // The floor: the full month of the reference index, by the hours of each side of the month.
  const double P = Arrondi(ConstanteFixe("Point"), 4);
  const double R = Arrondi(ConstanteFixe("IndResid"), 2);
  const double F = indemnites::MensuelPlein(Arrondi(P * R, 2));
  double L = F * s.dCoefficient_TraitementTA * (s.dCoefficient_INTA + s.dCoefficient_IATA) +
             F * s.dCoefficient_TraitementTN * (s.dCoefficient_INTN + s.dCoefficient_IATN);

  double S = s.dSalaire_MensuelReelIATN + s.dSalaire_MensuelReelIATA +
             s.dSalaire_MensuelReelINTA + s.dSalaire_MensuelReelINTN;
  s.dIndResTotale = S * Z / 100;

  if (!s.bDureeHebdoMultiple) {
    L = (s.iNBJ_Presence_Total - JoursSansIndemnite(s)) * L / 30;
    S = 0;
    for (const QuartResidence& q : Quarts(s)) {
      if (q.dCoefficient == 0) continue;
      const Int16 iJours = q.iPresence - (q.iCFA + q.iDispo + q.iFormation);
      S = S + q.dReel * iJours / (q.dCoefficient * 30);
    }
  }

  // A month without real treatment falls back on the month's base so far.
  const double B = S != 0 ? std::max(S, L) : std::max(dRechercheValeurCumul("BASE", "S"), L);
  const bool bPaye = s.dNB_Jours_Max_Decalage_Mois != 0 && s.iNBJ_Presence_Total != 0;
  indemnites::Ligne(Rubrique, B, Z, bPaye ? B * Z / 100 : 0);
}

}  // namespace orvalis
