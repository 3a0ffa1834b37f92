// The differential allowance as one body for its members and both engines: the month in two
// halves, each with its day counts and its treatment coefficient.
#ifndef ORVALIS_ABSENCES_INDEMNITE_DIFFERENTIELLE_H_
#define ORVALIS_ABSENCES_INDEMNITE_DIFFERENTIELLE_H_

#include "orvalis/MoteurCalcul.h"

namespace orvalis::differentielle {

enum class Variante { kPremiere, kNouv, kMayotte };

// A day count of one half, its two cells (IATA and INTA, or IATN and INTN; a month of two
// cells gives one count and 0).
struct Paire {
  Int16 i1, i2;
};

// One half of the month, old rate or new rate.
struct Moitie {
  Paire presence, cfa, formation, cpa, demiTraitement, dispoOffice, traitement90, deuxTiers;
  double dCoefficientTraitement;
  double dCoefficientAutreAbsence;
};

// The halves of the current engine's four quadrants.
Moitie AncienTaux(const VarCalculSalarie& s);
Moitie NouveauTaux(const VarCalculSalarie& s);

// Tops the month's base up to the floor of the two halves; writes the line and
// dMt_IndemniteDifferentielle. RsVarSalaries is read by the _Nouv and Mayotte members only.
void IndemniteDifferentielle(MoteurCalcul& m, Variante v, VarCalculSalarie& s,
                             SalarieCalculRubrique& Rubrique, const RsRef* RsVarSalaries,
                             const Moitie& ancien, const Moitie& nouveau);

}  // namespace orvalis::differentielle

#endif  // ORVALIS_ABSENCES_INDEMNITE_DIFFERENTIELLE_H_
