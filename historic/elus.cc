// The elected officials' lines of the historic engine: the shared bodies, on a fixed index.
#include <string>

#include "orvalis/MethodeCalculG.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elus_lignes.h"
#include "salary/elus_outils.h"

namespace orvalis {

namespace {

// 820 before November 2006, 821 from then on, for the month sPeriode moved back iMois
// months; the constant "INDMAJELU" is not read.
double IndiceFixe(const std::string& sPeriode, int iMois) {
  return elus::CleMoisAnterieur(sPeriode, iMois) < "200611" ? 820 : 821;
}

// The historic engine answers the officials' lines with the fixed index, for a line of a
// period as for the month alone, and with its own two-cell month.
class ElusHistorique : public elus::MoteurElus {
 public:
  explicit ElusHistorique(MethodeCalculG& moteur) : MoteurElus(moteur), h(moteur) {}
  double IndiceDeLaPeriode() override { return IndiceFixe(h.gPeriodeEncours, 0); }
  double IndiceDuMois() override { return IndiceFixe(h.gPeriodeEncours, 0); }
  double MoisAnterieur(VarCalculSalarie& s, int iMois, double dTaux) override {
    double X = 0;
    return h.dRechercheIndMajEluPeriode(s, h.gPeriodeEncours, std::to_string(iMois), X, dTaux);
  }
  void CoefficientsDuTaux(VarCalculSalarie& s, const std::string& sPeriode) override {
    h.CalculCoefficientUtilisationTauxElus(s, sPeriode);
  }
  void JoursDePresence(VarCalculSalarie& s, const std::string& sPeriode) override {
    h.CalculNombreJourPresence(s, sPeriode);
  }

 private:
  MethodeCalculG& h;
};

}  // namespace

// With no rate given, the month's treatment coefficient applies (the mayor's rate is not
// read here).
double MethodeCalculG::dRechercheIndMajEluPeriode(VarCalculSalarie& InfosSalaries,
                                                  const std::string& sPeriode,
                                                  const std::string& sDecalage,
                                                  double& dResultat, double dTaux) {
  const Int32 K = CLng(Value(sDecalage).Nombre());
  double P = 0;
  dRecherchePointHistorique(P, sPeriode, std::to_string(-K));
  const double I = IndiceFixe(sPeriode, K.value());
  const double R = dTaux == -1 ? InfosSalaries.dCoefficient_Traitement : dTaux;
  dResultat = elus::MensuelPlein(Arrondi(P * I, 2)) * R;
  return dResultat;
}

void MethodeCalculG::CalculRubrique_TraitementIndiciaireElus(VarCalculSalarie& InfosSalaries,
                                                             SalarieCalculRubrique& Rubrique) {
  ElusHistorique e(*this);
  elus::TraitementIndiciaireElus(e, InfosSalaries, Rubrique, false);
}

void MethodeCalculG::CalculRubrique_TraitementIndiciaireElusPrecedent(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  ElusHistorique e(*this);
  elus::TraitementIndiciaireElus(e, InfosSalaries, Rubrique, true);
}

void MethodeCalculG::CalculRubrique_TraitementIndiciaireElusMois(VarCalculSalarie& InfosSalaries,
                                                                 SalarieCalculRubrique& Rubrique) {
  ElusHistorique e(*this);
  elus::TraitementIndiciaireElusMois(e, InfosSalaries, Rubrique);
}

void MethodeCalculG::CalculRubrique_TraitementIndiciaireElusPrecedentMois(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  ElusHistorique e(*this);
  elus::TraitementIndiciaireElusPrecedentMois(e, InfosSalaries, Rubrique);
}

void MethodeCalculG::CalculRubrique_TraitementForfaitaireElus(VarCalculSalarie& InfosSalaries,
                                                              SalarieCalculRubrique& Rubrique) {
  elus::TraitementForfaitaireElus(*this, InfosSalaries, Rubrique);
}

}  // namespace orvalis
