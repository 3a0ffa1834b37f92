// The retroactive CNRACL pension contribution, repaid month by month until its total is
// reached, on the employer's side and on the employee's.
#include <string>

#include "contributions/contributions_partagees.h"
#include "generic/lecture_ligne.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

namespace {

// One side's repayment: the monthly sum R, the total T and what was repaid so far Q.
struct Remboursement {
  double R = 0;
  double T = 0;
  double Q = 0;
};

Remboursement LitRemboursement(MoteurCalcul& m, const RsRef& rs, const char* sMensuel,
                               const char* sTotal, const char* sRembourse) {
  Remboursement r;
  r.R = m.dRechercheValeur_Variable(rs, sMensuel);
  if (r.R >= 0) {
    r.T = m.dRechercheValeur_Variable(rs, sTotal);
    r.Q = m.dRechercheValeur_Variable(rs, sRembourse);
  }
  return r;
}

// The month's part: the monthly sum, or the rest of the total in the last month; nothing
// once the total is repaid (a negative sum reads no total).
double PartDuMois(const Remboursement& r) {
  if (r.Q >= r.T) return 0;
  return r.R + r.Q < r.T ? r.R : r.T - r.Q;
}

}  // namespace

void RubriqueCnraclRetroactive(const LectureLigne& l) {
  MoteurCalcul& m = l.m;
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const Remboursement patronal =
      LitRemboursement(m, l.RsVarSalaries, "MTCNRRETRO", "MTCNRPTOT", "MTCNRPR");
  const std::string E = m.dRechercheDate_Variable(l.RsVarSalaries, "MTCNRRETRO");
  const double P = PartDuMois(patronal);
  const double S =
      PartDuMois(LitRemboursement(m, l.RsVarSalaries, "MTCNRSM", "MTCNRSTOT", "MTCNRSR"));

  if (patronal.R != 0 && patronal.T == 0 && patronal.Q == 0) {
    // A sum without a schedule: paid at once, the employee's side by its base and rate.
    Rubrique.dBase = l.Base();
    std::string sType;
    Rubrique.dTauxSalarial = Arrondi(l.TauxSalarial(sType), 2);
    Rubrique.dMontantPatronal = patronal.R;
    Rubrique.dMontantSalarial = Rubrique.dTauxSalarial * Rubrique.dBase / 100;
    Rubrique.dTauxPatronal = 0;
  } else if (P != 0 || S != 0) {
    Rubrique.dMontantPatronal = P;
    Rubrique.dMontantSalarial = S;
    Rubrique.dBase = 0;
    Rubrique.dTauxSalarial = 0;
    Rubrique.dTauxPatronal = 0;
  } else if (!E.empty()) {
    // The repayment is over on both sides but the sum is still entered.
    m.MsgBox("Veuillez resaisir la part CNRACL rétroactive salariale dans l'onglet Mutuelles.");
  }
}

void MoteurCalcul::CalculRubrique_CnraclRetroactive(VarCalculSalarie& InfosSalaries,
                                                           SalarieCalculRubrique& Rubrique,
                                                           const RsRef& RsVarSalaries,
                                                           const RsRef& RsVarSalariesHisto,
                                                           const RsRef& RsSalariesHisto) {
  RubriqueCnraclRetroactive(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

}  // namespace orvalis
