// The gross of one month in the employee's pay history.
#include "absences/montant_brut_mois.h"

#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

std::string CleMoisHistorique(const std::string& sDate) {
  const auto droite = [&](std::size_t n) {
    return sDate.size() <= n ? sDate : sDate.substr(sDate.size() - n);
  };
  return droite(4) + droite(7).substr(0, 2);
}

double dMontantBrutMois(const RsRef& RsSalariesHisto, const std::string& sDate) {
  Recordset& rs = Source(RsSalariesHisto, "RsSalariesHisto");
  double dMontant = 0;
  if (rs.RecordCount() == 0) return dMontant;
  rs.MoveFirst();
  rs.Filter("Mois = '" + CleMoisHistorique(sDate) + "'");
  // Rounded before any test of the column: a null gross is a fault.
  if (!rs.Eof()) dMontant = Arrondi(rs.Field("MtBrut").Nombre(), 2);
  rs.ClearFilter();
  return dMontant;
}

}  // namespace orvalis
