// The reads a generic pay line makes: its base, its coefficient and its two rates, each on
// the line's own arguments, through the resolvers of the engine at hand. A handler keeps them
// together and reads them in its rule's order.
#pragma once

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

struct LectureLigne {
  MoteurCalcul& m;
  VarCalculSalarie& InfosSalaries;
  const RsRef& RsVarSalaries;
  const RsRef& RsVarSalariesHisto;
  SalarieCalculRubrique& Rubrique;
  const RsRef& RsSalariesHisto;

  double Base() const { return m.BaseDeLigne(InfosSalaries, RsVarSalaries, Rubrique); }

  double Coefficient() const {
    return m.CoefficientDeLigne(InfosSalaries, RsVarSalaries, Rubrique.lIdCoeffBase,
                                Rubrique.sCoeffBase, Rubrique);
  }

  double TauxSalarial(std::string& sType) const {
    return m.TauxSalarialDeLigne(InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique,
                                 sType, RsSalariesHisto);
  }

  double TauxPatronal(std::string& sType) const {
    return m.TauxPatronalDeLigne(InfosSalaries, RsVarSalaries, Rubrique, sType);
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
