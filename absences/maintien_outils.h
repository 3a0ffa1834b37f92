// What the maintained-pay lines share: the days of the line by combination of index and
// rate, the share of the salary kept, and the value of those days.
#ifndef ORVALIS_ABSENCES_MAINTIEN_OUTILS_H_
#define ORVALIS_ABSENCES_MAINTIEN_OUTILS_H_

#include "orvalis/VarCalculSalarie.h"
#include "orvalis/numeric.h"

namespace orvalis::maintien {

// Days of a line: old index old rate, old index new rate, new index old rate, new index new
// rate.
struct Jours {
  Int16 JA = 0, JB = 0, JC = 0, JD = 0;
  Int16 Total() const { return JA + JB + JC + JD; }
};

// No day at 90 % nor at two thirds in any combination of the month.
inline bool AucunJourMaintenu(const VarCalculSalarie& s) {
  return s.iNBJ_90PourCentTraitementIATA == 0 && s.iNBJ_90PourCentTraitementIATN == 0 &&
         s.iNBJ_90PourCentTraitementINTA == 0 && s.iNBJ_90PourCentTraitementINTN == 0 &&
         s.iNBJ_2TiersTraitementIATA == 0 && s.iNBJ_2TiersTraitementIATN == 0 &&
         s.iNBJ_2TiersTraitementINTA == 0 && s.iNBJ_2TiersTraitementINTN == 0;
}

// 66 stands for two thirds, not for 0.66.
inline double PartMaintenue(Int16 iPourcentage) {
  if (iPourcentage == 66) return 2.0 / 3.0;
  return iPourcentage / 100.0;
}

// The days valued on the annual salary of their index and the coefficient of their rate,
// each combination's value times the share Q, added in this order.
inline double MontantMaintenu(const VarCalculSalarie& s, const Jours& j, double Q) {
  return (s.dCoefficient_TraitementTA * s.dSalarie_AnnuelPleinA / 12 * j.JA / 30) * Q +
         (s.dSalarie_AnnuelPleinA * s.dCoefficient_TraitementTN / 12 * j.JB / 30) * Q +
         (s.dSalarie_AnnuelPlein * s.dCoefficient_TraitementTA / 12 * j.JC / 30) * Q +
         (s.dSalarie_AnnuelPlein * s.dCoefficient_TraitementTN / 12 * j.JD / 30) * Q;
}

// The four real monthly salaries of the combinations.
inline double SalaireMensuelReel(const VarCalculSalarie& s) {
  return s.dSalaire_MensuelReelIATA + s.dSalaire_MensuelReelIATN + s.dSalaire_MensuelReelINTA +
         s.dSalaire_MensuelReelINTN;
}

}  // namespace orvalis::maintien

#endif  // ORVALIS_ABSENCES_MAINTIEN_OUTILS_H_
