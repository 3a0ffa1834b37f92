// Shares of the pay month by quadrant of index and hours, the first and last paid days of
// the employee in a month, and the split of an elected official's month at a change of rate.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_outils.h"

namespace orvalis {

using periode::JourDe;
using periode::MemeMois;

void periode::JoursDebutEtFin(const VarCalculSalarie& InfosSalaries,
                              const std::string& sPeriodeEnCours, bool bCalendaire,
                              std::string& sDernierJourMois, Int16& iJourDeb, Int16& iJourFin) {
  const Date dPeriode = LireDate(sPeriodeEnCours);
  const Date dDernier = AjouteJours(AjouteMois(dPeriode, 1), -1);
  sDernierJourMois = TexteDate(dDernier);

  const Date dDebut = LireDate(InfosSalaries.sDateDebut);
  iJourDeb = DiffJours(dDebut, dPeriode) > 0 ? Int16(1) : JourDe(dDebut);

  if (!InfosSalaries.sDateFin.empty() &&
      DiffJours(LireDate(InfosSalaries.sDateFin), dDernier) >= 0) {
    iJourFin = JourDe(InfosSalaries.sDateFin);
  } else if (bCalendaire && iJourDeb != 1) {
    iJourFin = JourDe(dDernier);
  } else {
    iJourFin = 30;
  }

  if (!bCalendaire) {
    if (iJourDeb > 30) iJourDeb = 30;
    if (iJourFin > 30) iJourFin = 30;
  } else if (iJourFin > 30 && iJourDeb == 1) {
    iJourFin = 30;
  }

  // A February that ends on its last day counts up to day 30.
  if (!bCalendaire && Mois(dPeriode) == 2) {
    if (iJourDeb > Jour(dDernier)) iJourDeb = 30;
    if (iJourFin >= Jour(dDernier) || InfosSalaries.sDateFin.empty()) iJourFin = 30;
  }
}

void MethodeCalculG_Nouv::CalculRechercheJourDebutEtJourFin(VarCalculSalarie& InfosSalaries,
                                                            const std::string& sPeriodeEnCours,
                                                            std::string& sDernierJourMois,
                                                            Int16& iJourDeb, Int16& iJourFin) {
  periode::JoursDebutEtFin(InfosSalaries, sPeriodeEnCours,
                           InfosSalaries.bCalculPayeEnJoursCalendaires, sDernierJourMois,
                           iJourDeb, iJourFin);
}

void MethodeCalculG_Nouv::CalculCoefficientUtilisationIndice(VarCalculSalarie& InfosSalaries) {
  std::string sDernierJourMois;
  Int16 iJourDeb, iJourFin;
  CalculRechercheJourDebutEtJourFin(InfosSalaries, gPeriodeEncours, sDernierJourMois, iJourDeb,
                                    iJourFin);

  const std::string& sModele = InfosSalaries.sTypeModele;
  if (sModele != "INDNTI" && sModele != "INDTIT") {
    if (sModele == "ELUS") CalculCoefficientUtilisationTauxElus(InfosSalaries, gPeriodeEncours);
    return;
  }

  const Date dPeriode = LireDate(gPeriodeEncours);
  // An hours change on the entry date is a change on the first of the month.
  if (MemeMois(LireDate(InfosSalaries.sDateDebut), dPeriode) &&
      InfosSalaries.sDateDebut == InfosSalaries.sDateChangementHeures) {
    InfosSalaries.sDateChangementHeures = gPeriodeEncours;
  }

  if (!EstDate(InfosSalaries.sDateChangementIndice)) return;
  const Date dIndice = LireDate(InfosSalaries.sDateChangementIndice);
  const Int16 jI = JourDe(dIndice);

  Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
  if (MemeMois(dIndice, dPeriode)) {
    const Date dHeures = LireDate(InfosSalaries.sDateChangementHeures);
    const Int16 jH = JourDe(dHeures);
    if (MemeMois(dHeures, dPeriode)) {
      if (DiffJours(dIndice, dHeures) > 0) {  // A
        iIATA = jI - 1;
        iINTA = jH - jI;
        iINTN = 30 - jH + 1;
      } else {  // B
        iIATA = jH - 1;
        iIATN = jI - jH;
        iINTN = (InfosSalaries.bCalculPayeEnJoursCalendaires && iJourDeb != 1) ? iJourFin - jI + 1
                                                                               : 30 - jI + 1;
      }
    } else {  // C
      iIATN = jI - 1;
      iINTN = 30 - jI + 1;
    }
  } else if (MemeMois(AjouteMois(dIndice, -1), dPeriode)) {
    // D: an index change next month keeps the whole month on the old index and hours,
    // whatever the hours do this month.
    iIATA = 30;
  } else {
    const Date dHeures = LireDate(InfosSalaries.sDateChangementHeures);
    if (MemeMois(dHeures, dPeriode)) {  // E
      iINTA = JourDe(dHeures) - 1;
      iINTN = 30 - JourDe(dHeures) + 1;
    } else {  // F
      iINTN = 30;
    }
  }

  InfosSalaries.dCoefficient_IATA = iIATA / 30.0;
  InfosSalaries.dCoefficient_IATN = iIATN / 30.0;
  InfosSalaries.dCoefficient_INTA = iINTA / 30.0;
  InfosSalaries.dCoefficient_INTN = iINTN / 30.0;
}

void periode::CoefficientsTauxElus(VarCalculSalarie& InfosSalaries, const std::string& sPeriode) {
  if (InfosSalaries.sTypeModele != "ELUS") return;
  if (InfosSalaries.sDateChangementTauxElus.empty())
    InfosSalaries.sDateChangementTauxElus = InfosSalaries.sDateDebut;

  const Date dChangement = LireDate(InfosSalaries.sDateChangementTauxElus);
  const Date dPeriode = LireDate(sPeriode);
  Int16 iAncien = 0, iNouveau = 30;
  if (MemeMois(dChangement, dPeriode)) {
    iAncien = JourDe(dChangement) - 1;
    iNouveau = 30 - iAncien;
  }
  // A change in a later month of the same year leaves the whole month on the old rate; a
  // later year is not looked at.
  if (Annee(dChangement) == Annee(dPeriode) && Mois(dChangement) > Mois(dPeriode)) {
    iAncien = 30;
    iNouveau = 0;
  }
  if (DiffJours(dChangement, LireDate(InfosSalaries.sDateDebut)) >= 0) {
    iAncien = 0;
    iNouveau = 30;
  }
  InfosSalaries.dCoefficient_IAncien = iAncien / 30.0;
  InfosSalaries.dCoefficient_INouveau = iNouveau / 30.0;
}

void MoteurCalcul::CalculCoefficientUtilisationTauxElus(VarCalculSalarie& InfosSalaries,
                                                               const std::string& sPeriode) {
  periode::CoefficientsTauxElus(InfosSalaries, sPeriode);
}

}  // namespace orvalis
