// What the officials' allowance lines share: the gate of the paid period, the earlier months
// that a period's last month adds, the rate of a mandate and the full month on the index.
#ifndef ORVALIS_SALARY_ELUS_OUTILS_H_
#define ORVALIS_SALARY_ELUS_OUTILS_H_

#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "salary/indemnite_ligne.h"

namespace orvalis::elus {

using indemnites::Ligne;
using indemnites::MensuelPlein;

// The mandate ends in the month of sPeriode: the "mm/yyyy" of sDateFin and sPeriode agree.
inline bool FinMandatDansMois(const VarCalculSalarie& s, const std::string& sPeriode) {
  const std::string& f = s.sDateFin;
  if (f.size() < 7 || sPeriode.size() < 7) return false;
  return f.compare(f.size() - 7, 7, sPeriode, sPeriode.size() - 7, 7) == 0;
}

// Months of a paid period by sEluPeriodicite: "2" a quarter, "3" a half-year, "4" a year.
// Any other periodicity is paid monthly.
inline int MoisParPeriode(const VarCalculSalarie& s) {
  if (s.sEluPeriodicite == "2") return 3;
  if (s.sEluPeriodicite == "3") return 6;
  if (s.sEluPeriodicite == "4") return 12;
  return 1;
}

// The month of sPeriode closes a paid period, or (bFinMandat) the mandate ends in it.
inline bool MoisPaye(const VarCalculSalarie& s, const std::string& sPeriode, bool bFinMandat) {
  const int n = MoisParPeriode(s);
  if (n == 1) return true;
  if (Mois(LireDate(sPeriode)) % n == 0) return true;
  return bFinMandat && FinMandatDansMois(s, sPeriode);
}

// The earlier months of the period that its paid month adds: 2, 5 or 11, or when the
// mandate ends in the month, those from the first month of its period.
inline int MoisAnterieurs(const VarCalculSalarie& s, const std::string& sPeriode,
                          bool bFinMandat) {
  const int n = MoisParPeriode(s);
  if (n == 1) return 0;
  if (bFinMandat && FinMandatDansMois(s, sPeriode)) return (Mois(LireDate(sPeriode)) - 1) % n;
  return n - 1;
}

// The rate of a mandate as a coefficient: the mayor's percentage of the reference index,
// times the intercommunal percentage when there is one.
inline double CoefficientTaux(double dTauxMaire, double dTauxEPCI) {
  double R = dTauxMaire / 100;
  if (dTauxEPCI > 0) R = dTauxEPCI * R / 100;
  return R;
}

// The month key yyyymm of sPeriode moved back iMois months.
inline std::string CleMoisAnterieur(const std::string& sPeriode, int iMois) {
  const Date d = AjouteMois(LireDate(sPeriode), -iMois);
  const int cle = Annee(d) * 100 + Mois(d);
  return std::to_string(cle);
}

// The year's treatment of dIndiceMajoreM on "Point" (a null reading 0) into
// dSalarie_AnnuelPlein; gives its full month.
inline double PleinSurIndiceDuMois(MoteurCalcul& m, VarCalculSalarie& s) {
  s.dSalarie_AnnuelPlein = Arrondi(s.dIndiceMajoreM * m.ConstanteFixe("Point"), 2);
  return MensuelPlein(s.dSalarie_AnnuelPlein);
}

}  // namespace orvalis::elus

#endif  // ORVALIS_SALARY_ELUS_OUTILS_H_
