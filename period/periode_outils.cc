// Months of date texts and the walk of the exceptional situations.
#include "period/periode_outils.h"

#include "frame/filtre_egalite.h"

namespace orvalis::periode {

std::string FiltreCodes(const std::vector<std::string>& codes) {
  std::string critere;
  for (const std::string& code : codes) {
    if (!critere.empty()) critere += " OR ";
    critere += "CodeSituationExceptionnelle = '";
    critere += code;
    critere += "'";
  }
  return critere;
}

Situation LitSituation(Recordset& rs) {
  // Names too long to be held in place: made once rather than at every row.
  static const std::string kCode = "CodeSituationExceptionnelle";
  static const std::string kDebut = "DateDebutSituationExceptionnelle";
  static const std::string kFin = "DateFinSituationExceptionnelle";
  Situation s;
  s.sCode = rs.Field(kCode).Texte();
  s.sDateDebut = rs.Field(kDebut).Texte();
  // A situation still running has no end date; hosts store it as null.
  s.sDateFin = rs.Field(kFin).TexteOuVide();
  return s;
}

Recordset* FiltreSituations(VarCalculSalarie& InfosSalaries, const std::vector<std::string>& codes,
                            const std::string& sCritere) {
  Recordset& rs = Source(InfosSalaries.rsSituationsExceptionnelles, "rsSituationsExceptionnelles");
  if (rs.RecordCount() <= 0) return nullptr;
  rs.ClearFilter();
  rs.MoveFirst();
  if (!FiltreTextesEnMemoire(rs, "CodeSituationExceptionnelle", codes))
    rs.Filter(sCritere.empty() ? FiltreCodes(codes) : sCritere);
  return &rs;
}

}  // namespace orvalis::periode
