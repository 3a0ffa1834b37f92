// The schema of the store, versioned: PRAGMA user_version on SQLite, the table
// version_schema on PostgreSQL. Both backends hold the same tables.
#ifndef ORVALIS_PAIE_SCHEMA_H_
#define ORVALIS_PAIE_SCHEMA_H_

#include <string>

#include "paie/postgres.h"
#include "paie/sqlite.h"

namespace orvalis::paie {

inline constexpr int kVersionSchema = 2;

// Creates the schema in an empty file, upgrades an older one step by step, and refuses a
// file that is not a store or comes from a newer program.
void PrepareSchema(Base& base, const std::string& chemin);
// The same on a PostgreSQL database (its current schema), in one transaction.
void PrepareSchemaPg(BasePg& base);

// The statements that bring a store from version `depuis` to the next one.
std::string EtapeSchema(int depuis, bool postgres);
// True for the tables whose rows messages name by rowid (a column of that name on PostgreSQL).
bool TableARowid(const std::string& table);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_SCHEMA_H_
