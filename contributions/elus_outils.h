// What the tax rules of elected officials share: the flags and designations of the mandate
// rows, and the test that a payment period of the official ends in the pay month.
#ifndef ORVALIS_CONTRIBUTIONS_ELUS_OUTILS_H_
#define ORVALIS_CONTRIBUTIONS_ELUS_OUTILS_H_

#include <cstddef>
#include <optional>
#include <string>

#include "orvalis/Recordset.h"
#include "orvalis/numeric.h"
#include "orvalis/value.h"

namespace orvalis::elus {

// The last n characters of a text (all of it when shorter).
inline std::string Droite(const std::string& s, std::size_t n) {
  return s.size() <= n ? s : s.substr(s.size() - n);
}

// A designation column holds 50 characters; the text is cut at a character boundary.
inline std::string TronqueDesignation(const std::string& s) {
  constexpr std::size_t kLongueurDesignation = 50;
  std::size_t nCaracteres = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if ((static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) continue;  // continuation byte
    if (nCaracteres == kLongueurDesignation) return s.substr(0, i);
    ++nCaracteres;
  }
  return s;
}

// A designation cell as written into a detail table: a null stays null.
inline Value CelluleDesignation(const Value& v) {
  return v.EstNull() ? v : Value(TronqueDesignation(v.Texte()));
}

// A flag of a mandate row: a null is neither true nor false.
inline std::optional<bool> Indicateur(const Value& v) {
  if (v.EstNull()) return std::nullopt;
  if (v.EstTexte()) {
    const std::string& s = v.Chaine();
    if (s == "True" || s == "true" || s == "TRUE" || s == "Vrai" || s == "VRAI") return true;
    if (s == "False" || s == "false" || s == "FALSE" || s == "Faux" || s == "FAUX") return false;
  }
  return v.Nombre() != 0;
}

inline bool EstFaux(const Value& v) { return Indicateur(v) == std::optional<bool>(false); }

// Whether the pay month iMois closes a payment period of iMoisPeriode months (3, 6 or 12);
// any other length has no period to close.
inline bool FinDePeriode(int iMoisPeriode, int iMois) {
  switch (iMoisPeriode) {
    case 3: return iMois % 3 == 0;
    case 6: return iMois == 6 || iMois == 12;
    case 12: return iMois == 12;
    default: return true;
  }
}

// Walks every row of a source; an empty one walks nothing.
template <typename Travail>
void PourChaqueLigne(Recordset& rs, Travail&& travail) {
  if (rs.RecordCount() == 0) return;
  rs.MoveFirst();
  while (!rs.Eof()) {
    travail(rs);
    rs.MoveNext();
  }
}

// Tranche A of an amount X of the period: its share of the ceiling dPlafond when the
// remuneration of reference dTotal passes it, otherwise the whole amount; not rounded.
inline double TrancheAProrata(double X, double dPlafond, double dTotal) {
  return dTotal > dPlafond ? Div(dPlafond * X, dTotal) : X;
}

// Months of a payment period by sEluPeriodicite read as a text: "2" a quarter, "3" a
// half-year, "4" a year; any other text is monthly.
inline int MoisDeLaPeriode(const std::string& sPeriodicite) {
  if (sPeriodicite == "2") return 3;
  if (sPeriodicite == "3") return 6;
  if (sPeriodicite == "4") return 12;
  return 1;
}

// The mandate ends in the pay month: sDateFin and the pay month agree on "mm/yyyy".
inline bool DernierMoisMandat(const std::string& sDateFin, const std::string& sPeriode) {
  return !sDateFin.empty() && Droite(sDateFin, 7) == Droite(sPeriode, 7);
}

}  // namespace orvalis::elus

#endif  // ORVALIS_CONTRIBUTIONS_ELUS_OUTILS_H_
