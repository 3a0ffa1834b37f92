// The monthly indexed treatment, split on the index change: the days of the new index on
// "TRAITEMENT INDICIAIRE MOIS", those of the old one on "TRAITEMENT INDICIAIRE MOIS
// PRECEDENT"; and the treatment of a particular base. Each leaves in the employee's record
// the full, real and paid salaries of its cells, which later lines read.
#include <iterator>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elements_cellules.h"

namespace orvalis {

namespace salaire {

namespace {

// The index of the monthly lines: the minimum applies above "INDNONIMR" (200 when unset).
double IndiceDuMois(MoteurCalcul& m, double dIndice) {
  double dSeuil = m.dRechercheValeur_Constantes(m.gRsConstantes, "INDNONIMR");
  if (dSeuil == 0) dSeuil = 200;
  return IndiceRetenu(dIndice, IndiceMinimum(m), dSeuil);
}

// Days away from the treatment: half pay, cessation, availability, training, full-time
// maternity, 90 % and two-thirds sick pay.
Int16 JoursHorsTraitement(const Quart& q) {
  return q.iDemiTraitement + q.iCFA + q.iDispoOffice + q.iCongeFormation + q.iCongeMaternite +
         q.i90PourCent + q.i2Tiers;
}

// The salary paid for the cell's days; maternity leave is paid on the full-time salary.
void SalaireDuQuart(const Quart& q, double dAbsenceNS) {
  if (q.dCoefficient == 0) {
    q.dMensuel = 0;
    return;
  }
  q.dMensuel = SalaireDesJours(q, dAbsenceNS, JoursHorsTraitement(q));
  if (q.iCongeMaternite != 0) {
    q.dMensuel = q.dMensuel + q.iCongeMaternite * q.dPlein / (q.dCoefficient * 30);
  }
}

// The salaries paid of the cells, the last one first.
double SalairesPayes(std::initializer_list<Quart> cellules) {
  double d = 0;
  for (auto it = std::rbegin(cellules); it != std::rend(cellules); ++it) d = d + it->dMensuel;
  return d;
}

}  // namespace

void RubriqueTraitementIndice(MoteurCalcul& m, double dIndiceStocke, double& dAnnuelPlein,
                              std::initializer_list<Quart> cellules, double dAbsenceNS,
                              SalarieCalculRubrique& Rubrique) {
  const double dIndice = IndiceDuMois(m, dIndiceStocke);
  const double M = MensuelPlein(m, dIndice, dAnnuelPlein);
  for (const Quart& q : cellules) q.dPlein = q.dCoefficient * M;
  for (const Quart& q : cellules) q.dReel = q.dTraitement * q.dPlein;
  for (const Quart& q : cellules) SalaireDuQuart(q, dAbsenceNS);

  Rubrique.dBase = M;
  Rubrique.dTauxSalarial = dIndice;
  Rubrique.dMontantSalarial = SalairesPayes(cellules);
  SansPartPatronale(Rubrique);
}

void RubriqueTraitementBaseParticulier(const LectureLigne& l,
                                       std::initializer_list<Quart> cellules) {
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  Rubrique.dBase = l.Base();
  std::string sType;
  Rubrique.dTauxSalarial = Arrondi(l.TauxSalarial(sType), 4);
  // The month is the base times the rate, whatever the kind of rate.
  const double R = Arrondi(Rubrique.dBase * Rubrique.dTauxSalarial, 4);

  l.InfosSalaries.dSalarie_AnnuelPlein = Arrondi(R * 12, 2);
  for (const Quart& q : cellules) q.dPlein = Arrondi(R, 2) * q.dCoefficient;
  for (const Quart& q : cellules) q.dReel = q.dTraitement * q.dPlein;
  // Only half pay, cessation and availability come off this treatment.
  for (const Quart& q : cellules) {
    q.dMensuel =
        q.dCoefficient == 0 ? 0 : SalaireDesJours(q, 0, q.iDemiTraitement + q.iCFA + q.iDispoOffice);
  }
  Rubrique.dMontantSalarial = SalairesPayes(cellules);
  SansPartPatronale(Rubrique);
}

}  // namespace salaire

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireMois(VarCalculSalarie& InfosSalaries,
                                                                  SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueTraitementIndice(*this, s.dIndiceMajoreM, s.dSalarie_AnnuelPlein,
                                    {salaire::INTN(s), salaire::INTA(s)}, s.dNBJ_AutreAbsenceNS,
                                    Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireMoisPrecedent(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  // The unpaid other absences fall on the new index alone.
  salaire::RubriqueTraitementIndice(*this, s.dIndiceMajoreA, s.dSalarie_AnnuelPleinA,
                                    {salaire::IATA(s), salaire::IATN(s)}, 0, Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementBaseParticulier(
    VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueTraitementBaseParticulier(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto},
      {salaire::INTN(s), salaire::INTA(s)});
}

}  // namespace orvalis
