// The reads a generic pay line makes: its base, its coefficient and its two rates, each on
// the line's own arguments. A handler keeps them together and reads them in its rule's order.
#pragma once

#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

struct LectureLigne {
  MethodeCalculG_Nouv& m;
  VarCalculSalarie& InfosSalaries;
  const RsRef& RsVarSalaries;
  const RsRef& RsVarSalariesHisto;
  SalarieCalculRubrique& Rubrique;
  const RsRef& RsSalariesHisto;

  double Base() const { return m.RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique); }

  double Coefficient() const {
    return m.RechercheValeurCoefficient(InfosSalaries, RsVarSalaries, Rubrique.lIdCoeffBase,
                                        Rubrique.sCoeffBase, Rubrique);
  }

  double TauxSalarial(std::string& sType) const {
    return m.RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries, RsVarSalariesHisto,
                                         Rubrique, sType, RsSalariesHisto);
  }

  double TauxPatronal(std::string& sType) const {
    return m.RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, sType, "");
  }

  // The base is on the line before its coefficient is read. Gives the coefficient.
  double BaseFoisCoefficient() const {
    Rubrique.dBase = Base();
    const double K = Coefficient();
    Rubrique.dBase = Rubrique.dBase * K;
    return K;
  }
};

}  // namespace orvalis
