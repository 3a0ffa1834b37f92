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
  Situation s;
  s.sCode = rs.Field("CodeSituationExceptionnelle").Texte();
  s.sDateDebut = rs.Field("DateDebutSituationExceptionnelle").Texte();
  // A situation still running has no end date; hosts store it as null.
  s.sDateFin = rs.Field("DateFinSituationExceptionnelle").TexteOuVide();
  return s;
}

void ParcourtSituations(VarCalculSalarie& InfosSalaries, const std::vector<std::string>& codes,
                        const std::function<void(Recordset&)>& pourChaque,
                        const std::string& sCritere) {
  Recordset& rs = Source(InfosSalaries.rsSituationsExceptionnelles, "rsSituationsExceptionnelles");
  if (rs.RecordCount() <= 0) return;
  rs.ClearFilter();
  rs.MoveFirst();
  if (!FiltreTextesEnMemoire(rs, "CodeSituationExceptionnelle", codes))
    rs.Filter(sCritere.empty() ? FiltreCodes(codes) : sCritere);
  while (!rs.Eof()) {
    pourChaque(rs);
    rs.MoveNext();
  }
  rs.ClearFilter();
}

}  // namespace orvalis::periode
