// The schema of the SQLite store, versioned by PRAGMA user_version.
#ifndef ORVALIS_PAIE_SCHEMA_H_
#define ORVALIS_PAIE_SCHEMA_H_

#include "paie/sqlite.h"

namespace orvalis::paie {

inline constexpr int kVersionSchema = 1;

// Creates the schema in an empty file, upgrades an older one step by step, and refuses a
// file that is not a store or comes from a newer program.
void PrepareSchema(Base& base, const std::string& chemin);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_SCHEMA_H_
