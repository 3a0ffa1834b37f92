// The sample commune: reference values of 2024, a pay plan, and agents of every kind.
#ifndef ORVALIS_PAIE_COMMUNE_EXEMPLE_H_
#define ORVALIS_PAIE_COMMUNE_EXEMPLE_H_

#include <string>

namespace orvalis::paie {

// The default size: about forty agents, each kind present.
inline constexpr int kAgentsCommune = 40;

// Creates the store at `chemin` (which must not exist) holding the sample commune with
// `agents` agents; the kinds repeat, with varied indexes, beyond the first forty.
void CreeCommuneExemple(const std::string& chemin, int agents = kAgentsCommune);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_COMMUNE_EXEMPLE_H_
