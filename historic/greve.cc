// The historic strike line: the strike counters whatever the line's code, and the
// treatment of the month before net of what was already taken back from it.
#include "absences/greve.h"
#include "orvalis/MethodeCalculG.h"

namespace orvalis {

void MethodeCalculG::CalculRubrique_Greve(VarCalculSalarie& InfosSalaries,
                                          SalarieCalculRubrique& Rubrique,
                                          const RsRef& RsVarSalaries, const std::string& sVariante,
                                          const RsRef& RsSalariesHisto,
                                          const RsRef& RsVarSalariesHisto) {
  double B = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  if (Rubrique.sValeurBase == "TRAITEMENT DE BASE DU MOIS PREC")
    B = B - InfosSalaries.dMtRetenueTbiMoisPrec;

  // Only "A" reads the month before; any other mode is the current month. This engine
  // knows no other absence nor waiting days, and no base shown negative.
  const bool bMoisPrecedent = sVariante == "A";
  const greve::Compteurs c = greve::CompteursGreve(InfosSalaries, bMoisPrecedent);
  const double M = greve::HeuresDuMois(*this, InfosSalaries, bMoisPrecedent, RsVarSalaries,
                                       RsSalariesHisto, RsVarSalariesHisto);
  greve::EcritRetenue(Rubrique, B, greve::MontantRetenu(c, B, M));
}

}  // namespace orvalis
