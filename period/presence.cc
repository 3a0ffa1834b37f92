// Days of presence of the pay month by quadrant, and real calendar days of employment.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_outils.h"
#include "period/presence_outils.h"

namespace orvalis {

using periode::JourDe;
using periode::MemeMois;

void MethodeCalculG_Nouv::CalculNombreJourPresence(VarCalculSalarie& InfosSalaries,
                                                   const std::string& sPeriode) {
  Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
  CalculNombreJourPresenceMois(InfosSalaries, sPeriode.empty() ? gPeriodeEncours : sPeriode, iIATA,
                               iIATN, iINTA, iINTN);
  InfosSalaries.iNBJ_PresenceIATA = iIATA;
  InfosSalaries.iNBJ_PresenceIATN = iIATN;
  InfosSalaries.iNBJ_PresenceINTA = iINTA;
  InfosSalaries.iNBJ_PresenceINTN = iINTN;
  // Former and new index read one quadrant each, not sums over the hours.
  InfosSalaries.iNBJ_PresenceA = iIATN;
  InfosSalaries.iNBJ_PresenceN = iINTN;
  InfosSalaries.iNBJ_Presence_Total = iIATA + iIATN + iINTA + iINTN;
}

void MethodeCalculG_Nouv::CalculNombreJourPresenceMois(VarCalculSalarie& InfosSalaries,
                                                       const std::string& sPeriodeEnCours,
                                                       Int16& iNbj_IATA, Int16& iNbj_IATN,
                                                       Int16& iNbj_INTA, Int16& iNbj_INTN) {
  const VarCalculSalarie& s = InfosSalaries;
  const periode::MoisPresence mp =
      periode::MoisDePresence(s, sPeriodeEnCours, s.bCalculPayeEnJoursCalendaires);
  const Int16 iJourDeb = mp.iJourDeb;
  const Int16 iJourFin = mp.iJourFin;
  const Date dDernier = mp.dDernier;
  const Date dDebut = mp.dDebut;
  if (mp.bHorsMois) {
    iNbj_IATA = 0;
    iNbj_IATN = 0;
    iNbj_INTA = 0;
    iNbj_INTN = 0;
  } else if (s.sTypeModele == "ELUS") {
    periode::PresenceElus(s, mp, iNbj_IATN, iNbj_INTN);
  } else {
    const bool bIATA = s.dCoefficient_IATA > 0;
    const bool bIATN = s.dCoefficient_IATN > 0;
    const bool bINTA = s.dCoefficient_INTA > 0;
    const bool bINTN = s.dCoefficient_INTN > 0;
    // The change dates are read only by the quadrants that need them.
    auto jI = [&] { return JourDe(s.sDateChangementIndice); };
    auto jH = [&] { return JourDe(s.sDateChangementHeures); };

    iNbj_IATA = 0;
    if (bIATA) {
      const Date dIndice = LireDate(s.sDateChangementIndice);
      const Date dHeures = LireDate(s.sDateChangementHeures);
      const Date dX = DiffJours(dHeures, dIndice) > 0 ? dHeures : dIndice;
      // Without a change in the month the count has no "+ 1": 29 for a whole month.
      iNbj_IATA = (dDebut <= dX && dX <= dDernier) ? JourDe(dX) - iJourDeb : iJourFin - iJourDeb;
    }
    iNbj_IATN = 0;
    if (bIATN) iNbj_IATN = bIATA ? jI() - jH() : jI() - iJourDeb;
    iNbj_INTA = 0;
    if (bINTA) iNbj_INTA = bIATN ? Int16(0) : (bIATA ? jH() - jI() : jH() - iJourDeb);
    iNbj_INTN = 0;
    if (bINTN) {
      if (bINTA) {
        iNbj_INTN = iJourFin - jH() + 1;
      } else if (bIATN || bIATA) {
        iNbj_INTN = iJourFin - jI() + 1;
      } else {
        iNbj_INTN = iJourFin - iJourDeb + 1;
      }
    }
    // Coefficients never set: a full month on the new index and hours.
    if (s.dCoefficient_IATA == 0 && s.dCoefficient_IATN == 0 && s.dCoefficient_INTA == 0 &&
        s.dCoefficient_INTN == 0) {
      iNbj_IATA = 0;
      iNbj_IATN = 0;
      iNbj_INTA = 0;
      iNbj_INTN = 30;
    }
  }

  if (s.bPeriodeNonProratisee) {
    iNbj_IATA = 0;
    iNbj_IATN = 0;
    iNbj_INTA = 0;
    iNbj_INTN =
        s.dNB_Jours_Max_Decalage_Mois == -1 ? Int16(30) : CInt(s.dNB_Jours_Max_Decalage_Mois);
  }
}

periode::MoisPresence periode::MoisDePresence(const VarCalculSalarie& s,
                                              const std::string& sPeriode, bool bCalendaire) {
  std::string sDernierJourMois;
  MoisPresence mp{};
  JoursDebutEtFin(s, sPeriode, bCalendaire, sDernierJourMois, mp.iJourDeb, mp.iJourFin);
  mp.dDernier = LireDate(sDernierJourMois);
  mp.dDebut = LireDate(s.sDateDebut);
  mp.bHorsMois =
      (!s.sDateFin.empty() && DiffJours(LireDate(s.sDateFin), LireDate(sPeriode)) > 0) ||
      DiffJours(mp.dDebut, mp.dDernier) < 0;
  return mp;
}

void periode::PresenceElus(const VarCalculSalarie& s, const MoisPresence& mp, Int16& iAvant,
                           Int16& iApres) {
  if (s.dCoefficient_IAncien > 0) {
    const Int16 jC = JourDe(s.sDateChangementTauxElus);
    iAvant = jC - mp.iJourDeb;
    iApres = mp.iJourFin - jC + 1;
  } else {
    iAvant = 0;
    iApres = mp.iJourFin - mp.iJourDeb + 1;
  }
}

Int16 MethodeCalculG_Nouv::iNbJoursReelsPeriode(VarCalculSalarie& InfosSalaries,
                                                const std::string& sPeriode) {
  if (InfosSalaries.sDateDebut.empty()) return 0;
  const Date dPeriode = LireDate(sPeriode);
  const Date dDernier =
      AjouteJours(AjouteMois(DateSerial(Annee(dPeriode), Mois(dPeriode), 1), 1), -1);
  const Date dDebut = LireDate(InfosSalaries.sDateDebut);
  const Date dS = MemeMois(dDebut, dPeriode) ? dDebut : dPeriode;
  Date dE = dDernier;
  if (!InfosSalaries.sDateFin.empty()) {
    const Date dFin = LireDate(InfosSalaries.sDateFin);
    if (MemeMois(dFin, dPeriode)) dE = dFin;
  }
  return Int16(DiffJours(dS, dE)) + 1;
}

}  // namespace orvalis
