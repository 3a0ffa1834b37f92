// Month keys "yyyymm" of the store.
#ifndef ORVALIS_PAIE_MOIS_OUTILS_H_
#define ORVALIS_PAIE_MOIS_OUTILS_H_

#include <string>

namespace orvalis::paie {

// The key n months after (before, when negative) `mois`.
std::string DecaleMois(const std::string& mois, int n);
// "2024-03" for the key "202403".
std::string AfficheMois(const std::string& mois);
// "01/03/2024", the engine's gPeriodeEncours, for the key "202403".
std::string PeriodeEncours(const std::string& mois);
// "mars 2024".
std::string MoisEnLettres(const std::string& mois);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_MOIS_OUTILS_H_
