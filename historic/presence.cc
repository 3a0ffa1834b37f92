// Days of presence of the historic month: the former index's and the new one's, on 30 days,
// with no calendar pay and no total.
#include "orvalis/MethodeCalculG.h"
#include "period/periode_outils.h"
#include "period/presence_outils.h"

namespace orvalis {

using periode::JourDe;

void MethodeCalculG::CalculNombreJourPresence(VarCalculSalarie& InfosSalaries,
                                              const std::string& sPeriode) {
  Int16 iA = 0, iN = 0;
  CalculNombreJourPresenceMois(InfosSalaries, sPeriode.empty() ? gPeriodeEncours : sPeriode, iA,
                               iN);
  InfosSalaries.iNBJ_PresenceA = iA;
  InfosSalaries.iNBJ_PresenceN = iN;
}

void MethodeCalculG::CalculNombreJourPresenceMois(VarCalculSalarie& InfosSalaries,
                                                  const std::string& sPeriodeEnCours,
                                                  Int16& iNbj_A, Int16& iNbj_N) {
  const VarCalculSalarie& s = InfosSalaries;
  const periode::MoisPresence mp = periode::MoisDePresence(s, sPeriodeEnCours, false);
  if (mp.bHorsMois) {
    iNbj_A = 0;
    iNbj_N = 0;
  } else if (s.sTypeModele == "ELUS") {
    periode::PresenceElus(s, mp, iNbj_A, iNbj_N);
  } else {
    const bool bAncien = s.dCoefficient_IAncien > 0;
    const bool bNouveau = s.dCoefficient_INouveau > 0;
    // The former index runs to the day before the change when the change lies in the
    // employee's month; otherwise over the month, short of one day as in the four cells.
    iNbj_A = 0;
    if (bAncien) {
      const Date dIndice = LireDate(s.sDateChangementIndice);
      if (DiffJours(mp.dDebut, dIndice) >= 0 && DiffJours(dIndice, mp.dDernier) >= 0) {
        iNbj_A = JourDe(dIndice) - mp.iJourDeb;
      } else {
        iNbj_A = mp.iJourFin - mp.iJourDeb;
      }
    }
    iNbj_N = 0;
    if (bNouveau)
      iNbj_N = bAncien ? mp.iJourFin - JourDe(s.sDateChangementIndice) + 1
                       : mp.iJourFin - mp.iJourDeb + 1;
    // Cells never set: a whole month on the new index.
    if (!bAncien && !bNouveau) {
      iNbj_A = 0;
      iNbj_N = 30;
    }
  }
  if (s.bPeriodeNonProratisee) {
    iNbj_A = 0;
    iNbj_N = 30;
  }
}

}  // namespace orvalis
