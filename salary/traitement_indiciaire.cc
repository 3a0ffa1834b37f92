// The monthly indexed treatment, split on the index change: the days of the new index on
// "TRAITEMENT INDICIAIRE MOIS", those of the old one on "TRAITEMENT INDICIAIRE MOIS
// PRECEDENT"; and the treatment of a particular base. Each leaves in the employee's record
// the full, real and paid salaries of its quadrants, which later lines read.
#include "generic/lecture_ligne.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/traitement_outils.h"

namespace orvalis {

namespace {

using salaire::Quart;

// The index of the monthly lines: the minimum applies above "INDNONIMR" (200 when unset).
double IndiceDuMois(MethodeCalculG_Nouv& m, double dIndice) {
  double dSeuil = m.dRechercheValeur_Constantes(m.gRsConstantes, "INDNONIMR");
  if (dSeuil == 0) dSeuil = 200;
  return salaire::IndiceRetenu(dIndice, salaire::IndiceMinimum(m), dSeuil);
}

// Days away from the treatment: half pay, cessation, availability, training, full-time
// maternity, 90 % and two-thirds sick pay.
Int16 JoursHorsTraitement(const Quart& q) {
  return q.iDemiTraitement + q.iCFA + q.iDispoOffice + q.iCongeFormation + q.iCongeMaternite +
         q.i90PourCent + q.i2Tiers;
}

// The salary paid for the quadrant's days; maternity leave is paid on the full-time salary.
void SalaireDuQuart(const Quart& q, double dAbsenceNS) {
  if (q.dCoefficient == 0) {
    q.dMensuel = 0;
    return;
  }
  q.dMensuel = salaire::SalaireDesJours(q, dAbsenceNS, JoursHorsTraitement(q));
  if (q.iCongeMaternite != 0) {
    q.dMensuel = q.dMensuel + q.iCongeMaternite * q.dPlein / (q.dCoefficient * 30);
  }
}

// The month of one index on its two quadrants, each with its treatment coefficient, in the
// order they are paid; the line gives the index, its full month and the two salaries paid.
struct QuartTraite {
  Quart q;
  double dCoefficientTraitement;
};
void TraitementDeLIndice(MethodeCalculG_Nouv& m, double dIndiceStocke, double& dAnnuelPlein,
                         QuartTraite premier, QuartTraite second, double dAbsenceNS,
                         SalarieCalculRubrique& Rubrique) {
  const double dIndice = IndiceDuMois(m, dIndiceStocke);
  const double M = salaire::MensuelPlein(m, dIndice, dAnnuelPlein);
  for (const QuartTraite& t : {premier, second}) t.q.dPlein = t.q.dCoefficient * M;
  for (const QuartTraite& t : {premier, second}) t.q.dReel = t.dCoefficientTraitement * t.q.dPlein;
  SalaireDuQuart(premier.q, dAbsenceNS);
  SalaireDuQuart(second.q, dAbsenceNS);

  Rubrique.dBase = M;
  Rubrique.dTauxSalarial = dIndice;
  Rubrique.dMontantSalarial = second.q.dMensuel + premier.q.dMensuel;
  salaire::SansPartPatronale(Rubrique);
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireMois(VarCalculSalarie& InfosSalaries,
                                                                  SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  TraitementDeLIndice(*this, s.dIndiceMajoreM, s.dSalarie_AnnuelPlein,
                      {salaire::INTN(s), s.dCoefficient_TraitementTN},
                      {salaire::INTA(s), s.dCoefficient_TraitementTA}, s.dNBJ_AutreAbsenceNS,
                      Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireMoisPrecedent(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  // The unpaid other absences fall on the new index alone.
  TraitementDeLIndice(*this, s.dIndiceMajoreA, s.dSalarie_AnnuelPleinA,
                      {salaire::IATA(s), s.dCoefficient_TraitementTA},
                      {salaire::IATN(s), s.dCoefficient_TraitementTN}, 0, Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementBaseParticulier(
    VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto) {
  VarCalculSalarie& s = InfosSalaries;
  const LectureLigne l{*this,    InfosSalaries, RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  Rubrique.dBase = l.Base();
  std::string sType;
  Rubrique.dTauxSalarial = Arrondi(l.TauxSalarial(sType), 4);
  // The month is the base times the rate, whatever the kind of rate.
  const double R = Arrondi(Rubrique.dBase * Rubrique.dTauxSalarial, 4);

  s.dSalarie_AnnuelPlein = Arrondi(R * 12, 2);
  const Quart intn = salaire::INTN(s);
  const Quart inta = salaire::INTA(s);
  intn.dPlein = Arrondi(R, 2) * intn.dCoefficient;
  inta.dPlein = Arrondi(R, 2) * inta.dCoefficient;
  intn.dReel = s.dCoefficient_TraitementTN * intn.dPlein;
  inta.dReel = s.dCoefficient_TraitementTA * inta.dPlein;
  // Only half pay, cessation and availability come off this treatment.
  for (const Quart& q : {intn, inta}) {
    q.dMensuel = q.dCoefficient == 0
                     ? 0
                     : salaire::SalaireDesJours(q, 0, q.iDemiTraitement + q.iCFA + q.iDispoOffice);
  }
  Rubrique.dMontantSalarial = inta.dMensuel + intn.dMensuel;
  salaire::SansPartPatronale(Rubrique);
}

}  // namespace orvalis
