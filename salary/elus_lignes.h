// The officials' allowance lines as one body for both engines. The engine answers through
// MoteurElus: the index of the month, which is where the engines differ, and its own shares
// of the month, days of presence and earlier months.
#ifndef ORVALIS_SALARY_ELUS_LIGNES_H_
#define ORVALIS_SALARY_ELUS_LIGNES_H_

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis::elus {

class MoteurElus {
 public:
  explicit MoteurElus(MoteurCalcul& moteur) : m(moteur) {}
  virtual ~MoteurElus() = default;

  // dIndiceMajoreM of a line of a paid period and of the former rate's month.
  virtual double IndiceDeLaPeriode() = 0;
  // dIndiceMajoreM of the line of the month alone.
  virtual double IndiceDuMois() = 0;
  // dRechercheIndMajEluPeriode of the pay month moved back iMois months, at dTaux.
  virtual double MoisAnterieur(VarCalculSalarie& s, int iMois, double dTaux) = 0;
  // CalculCoefficientUtilisationTauxElus and CalculNombreJourPresence of the engine.
  virtual void CoefficientsDuTaux(VarCalculSalarie& s, const std::string& sPeriode) = 0;
  virtual void JoursDePresence(VarCalculSalarie& s, const std::string& sPeriode) = 0;

  MoteurCalcul& m;
};

// "TRAITEMENT INDICIAIRE ELUS" (bAncien false) and "... PRECEDENT" (bAncien true).
void TraitementIndiciaireElus(MoteurElus& e, VarCalculSalarie& s, SalarieCalculRubrique& r,
                              bool bAncien);
void TraitementIndiciaireElusMois(MoteurElus& e, VarCalculSalarie& s, SalarieCalculRubrique& r);
void TraitementIndiciaireElusPrecedentMois(MoteurElus& e, VarCalculSalarie& s,
                                           SalarieCalculRubrique& r);
void TraitementForfaitaireElus(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r);

}  // namespace orvalis::elus

#endif  // ORVALIS_SALARY_ELUS_LIGNES_H_
