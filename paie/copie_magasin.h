// A store copied into another, table by table: the way a commune's SQLite file moves to a
// PostgreSQL server (`orvalis copie`), and the way the sample commune reaches one.
#ifndef ORVALIS_PAIE_COPIE_MAGASIN_H_
#define ORVALIS_PAIE_COPIE_MAGASIN_H_

#include "paie/sql.h"

namespace orvalis::paie {

// Every row of every table of `source` into `destination`, whose tables must be empty, in
// one transaction of the destination. The columns are those of the destination's tables;
// rows keep their order (and so their row numbers in messages).
void CopieMagasin(Connexion& source, Connexion& destination);

// Empties every table of the store, in one transaction.
void VideMagasin(Connexion& base);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_COPIE_MAGASIN_H_
