// The special forms of the indexed treatment: one of the weekly schedules of an employee on
// several schedules, the daily treatment on the index, and the daily treatment on the SMIC.
#include "generic/lecture_ligne.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elements_cellules.h"

namespace orvalis {

namespace {

// The full month of the index for the special forms (minimum index above 200), over the
// share dCoefficients of the month whatever the hours, into dPlein, as the later lines read
// it.
double IndiceDesFormes(MoteurCalcul& m, VarCalculSalarie& s, double dCoefficients,
                       double& dPlein) {
  const double dIndice =
      salaire::IndiceRetenu(s.dIndiceMajoreM, salaire::IndiceMinimum(m), 200);
  const double M = salaire::MensuelPlein(m, dIndice, s.dSalarie_AnnuelPlein);
  dPlein = M * dCoefficients;
  return dIndice;
}

// "TRAITINDH1" to "TRAITINDH4" name the schedule; any other code names schedule 0.
int NumeroHoraire(const std::string& sCodeRubrique) {
  for (int n = 1; n <= 4; ++n)
    if (sCodeRubrique == "TRAITINDH" + std::to_string(n)) return n;
  return 0;
}

}  // namespace

void salaire::RubriqueHebdoMultiple(MoteurCalcul& m, VarCalculSalarie& s,
                                    SalarieCalculRubrique& Rubrique, double dCoefficients,
                                    const Quart& cible) {
  const double dIndice = IndiceDesFormes(m, s, dCoefficients, cible.dPlein);

  const std::string n = std::to_string(NumeroHoraire(Rubrique.sCodeRubrique));
  Recordset& rs = Source(s.RsHeuresHebdoMultiples, "RsHeuresHebdoMultiples");
  const Value vHeures = rs.Field("HeureHebdo" + n);
  std::string sDesignation;
  Int16 J = 0;
  double W = 0;
  if (vHeures.NombreOuZero() > 0) {
    sDesignation = "Traitement indiciaire du " + rs.Field("HebdoDebut" + n).Texte() + " au " +
                   rs.Field("HebdoFin" + n).Texte() + " (" + vHeures.Texte() + " h./ 35 h.)";
    J = CInt(rs.Field("NbJoursTravailles" + n).Nombre());
    W = vHeures.Nombre() / 35;
  }

  const double V = J * (cible.dPlein * W) / 30;
  cible.dReel = cible.dReel + V;
  cible.dMensuel = cible.dMensuel + V;

  Rubrique.sDesignation = sDesignation;
  Rubrique.dBase = cible.dPlein;
  Rubrique.dTauxSalarial = dIndice;
  Rubrique.dMontantSalarial = V;
  salaire::SansPartPatronale(Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueHebdoMultiple(*this, s, Rubrique, s.dCoefficient_IATN + s.dCoefficient_INTN,
                                 salaire::INTN(s));
}

void MethodeCalculG_Nouv::CalculRubrique_Traitement_Indiciaire_Journalier(
    VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
    SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  IndiceDesFormes(*this, s, s.dCoefficient_IATN + s.dCoefficient_INTN,
                  s.dSalaire_MensuelPleinINTN);
  // A day is seven hours of the 151.67 of a month.
  const double V = s.dSalaire_MensuelPleinINTN * 7 / 151.67;
  const RsRef aucun;
  const LectureLigne l{*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, aucun};
  std::string sType;
  const double R = l.TauxSalarial(sType);

  Rubrique.dBase = s.dSalaire_MensuelPleinINTN;
  Rubrique.dTauxSalarial = R;
  Rubrique.dMontantSalarial = Arrondi(R * V, 2);
  salaire::SansPartPatronale(Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementJournalierSmic(
    VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto) {
  const LectureLigne l{*this,    InfosSalaries, RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  Rubrique.dBase = l.Base();
  std::string sType;
  const double dTaux = l.TauxSalarial(sType);
  Rubrique.dTauxSalarial = Arrondi(dTaux * ConstanteFixe("SmicHor"), 4);
  Rubrique.dMontantSalarial = sType == "T" ? Rubrique.dTauxSalarial * Rubrique.dBase / 100
                                           : Rubrique.dTauxSalarial * Rubrique.dBase;
  Rubrique.dValeurCoefficient = 0;
  salaire::SansPartPatronale(Rubrique);
}

}  // namespace orvalis
