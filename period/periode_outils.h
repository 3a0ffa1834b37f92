// Small helpers shared by the period preparations: months of date texts, and the walk of
// the employee's exceptional situations.
#ifndef ORVALIS_PERIOD_PERIODE_OUTILS_H_
#define ORVALIS_PERIOD_PERIODE_OUTILS_H_

#include <functional>
#include <string>
#include <vector>

#include "orvalis/Recordset.h"
#include "orvalis/VarCalculSalarie.h"
#include "orvalis/dates.h"
#include "orvalis/numeric.h"

namespace orvalis::periode {

// Same year and same month.
inline bool MemeMois(Date a, Date b) { return Annee(a) == Annee(b) && Mois(a) == Mois(b); }

// The day of the month of a date text, as a day count.
inline Int16 JourDe(const std::string& sDate) { return Int16(Jour(LireDate(sDate))); }
inline Int16 JourDe(Date d) { return Int16(Jour(d)); }

// The values of the post that make the treatment coefficient, of one month.
struct ValeursPoste {
  std::string sOccupation;  // "P" part-time, "T" non-full-time post, or other
  double dTauxPoste;
  double dTauxPosteTNC;
  double dHeuresHebdo;
  double dHeuresMois;
  double dHeuresOrigineTNC;
  Int16 iTypeCalculHeure;
  double dDureeLegale;
};

inline ValeursPoste ValeursPosteDuMois(const VarCalculSalarie& s) {
  return {s.sOccupationPoste, s.dTauxPoste,    s.dTauxPosteTNC,          s.dHeuresHebdo,
          s.dHeuresMois,      s.dHeuresHebdoOrigineTNC, s.iTypeCalculHeure, s.dDureeHebdoLegale};
}

// The treatment coefficient of a post, and for a post "T" its two factors; corrigeTpt
// corrects a part-time share for the days of therapeutic part-time.
void CoefficientOccupationPoste(const ValeursPoste& v,
                                const std::function<double(double)>& corrigeTpt,
                                double& dCoefficientTraitement,
                                double& dCoefficientTraitementTNCAvantTP,
                                double& dCoefficientTraitementSiTNC);

// The first and last paid days of the employee in the month sPeriodeEnCours, on 30 days or,
// with bCalendaire, on the calendar; and the text of the month's last day.
void JoursDebutEtFin(const VarCalculSalarie& InfosSalaries, const std::string& sPeriodeEnCours,
                     bool bCalendaire, std::string& sDernierJourMois, Int16& iJourDeb,
                     Int16& iJourFin);

// An elected official's month split at his change of rate, on 30 days, into
// dCoefficient_IAncien and dCoefficient_INouveau; nothing for another model.
void CoefficientsTauxElus(VarCalculSalarie& InfosSalaries, const std::string& sPeriode);

// "CodeSituationExceptionnelle = 'A' OR CodeSituationExceptionnelle = 'B' ...".
std::string FiltreCodes(const std::vector<std::string>& codes);

// The columns of one exceptional situation; an absent end (null or empty) means no end.
struct Situation {
  std::string sCode;
  std::string sDateDebut;
  std::string sDateFin;
};
Situation LitSituation(Recordset& rs);

// Filters rsSituationsExceptionnelles on the rows whose code is one of `codes`; null when
// the source holds no row (nothing done then). A missing source is a fault. A host's own
// source receives the criterion FiltreCodes(codes), or sCritere when one is given.
Recordset* FiltreSituations(VarCalculSalarie& InfosSalaries, const std::vector<std::string>& codes,
                            const std::string& sCritere);

// Walks those rows in order, then clears the filter.
template <class PourChaque>
void ParcourtSituations(VarCalculSalarie& InfosSalaries, const std::vector<std::string>& codes,
                        PourChaque&& pourChaque, const std::string& sCritere = {}) {
  Recordset* rs = FiltreSituations(InfosSalaries, codes, sCritere);
  if (rs == nullptr) return;
  while (!rs->Eof()) {
    pourChaque(*rs);
    rs->MoveNext();
  }
  rs->ClearFilter();
}

}  // namespace orvalis::periode

#endif  // ORVALIS_PERIOD_PERIODE_OUTILS_H_
