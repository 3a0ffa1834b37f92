// What the employer's reductions share: the hourly minimum of the month and the constants
// that fall back on their statutory value.
#ifndef ORVALIS_CONTRIBUTIONS_SMIC_HORAIRE_H_
#define ORVALIS_CONTRIBUTIONS_SMIC_HORAIRE_H_

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis::reductions {

// The hourly minimum H, raised to 35 / legal hours for an employer whose legal week is
// shorter (or lowered for a longer one). A legal week of 0 leaves H as it is.
inline double SmicHoraireLegal(double dSmicHor, double dDureeHebdoLegale) {
  if (dDureeHebdoLegale != 0) return dSmicHor * 35 / dDureeHebdoLegale;
  return dSmicHor;
}

// H of the current month, from SmicHor of the statutory values (a null counts as 0).
inline double SmicHoraireDuMois(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries) {
  return SmicHoraireLegal(m.ConstanteFixe("SmicHor"), InfosSalaries.dDureeHebdoLegale);
}

// A constant of gRsConstantes; an absent code or a value of 0 takes dDefaut, so none of
// these constants can be set to 0.
inline double ConstanteOuDefaut(MoteurCalcul& m, const std::string& sCode, double dDefaut) {
  const double d = m.dRechercheValeur_Constantes(m.gRsConstantes, sCode);
  return d == 0 ? dDefaut : d;
}

}  // namespace orvalis::reductions

#endif  // ORVALIS_CONTRIBUTIONS_SMIC_HORAIRE_H_
