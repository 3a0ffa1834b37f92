// The allowances that the employee's variables give as an amount and a coefficient: the
// computer bonus, the municipal credit repayment, the reference amounts, IRF and IPF, IFSE
// and CIA, and the IAT.
#include <algorithm>
#include <string>
#include <utility>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/indemnites_partagees.h"
#include "salary/salaire_outils.h"
#include "salary/elements_cellules.h"

namespace orvalis {

namespace {

using salaire::EcritLigne;

// An amount A paid K times.
void MontantFoisCoefficient(SalarieCalculRubrique& Rubrique, double A, double K) {
  EcritLigne(Rubrique, Arrondi(A, 2), K, Arrondi(A * K, 2));
}

// The variables of the amount and of the coefficient of a line, by its code; none for a
// code the line does not know.
struct Variables {
  std::string sMontant;
  std::string sCoefficient;
};

// The codes "<prefix>1" to "<prefix>4", each with the two variables ending in its digit.
bool VariablesDuGroupe(const std::string& sCode, const std::string& sPrefixe,
                       const std::string& sMontant, const std::string& sCoefficient,
                       Variables& v) {
  if (sCode.size() != sPrefixe.size() + 1 || sCode.compare(0, sPrefixe.size(), sPrefixe) != 0)
    return false;
  const char cGroupe = sCode.back();
  if (cGroupe < '1' || cGroupe > '4') return false;
  v = {sMontant + cGroupe, sCoefficient + cGroupe};
  return true;
}

// The line paid on the amount and coefficient of its variables, when the amount is above 0.
void MontantDesVariables(MoteurCalcul& m, SalarieCalculRubrique& Rubrique,
                         const RsRef& RsVarSalaries, const Variables& v) {
  const double A = m.dRechercheValeur_Variable(RsVarSalaries, v.sMontant);
  if (A <= 0) return;
  MontantFoisCoefficient(Rubrique, A, m.dRechercheValeur_Variable(RsVarSalaries, v.sCoefficient));
}

// Two allowances on one line; one whose amount is not above 0 counts for nothing.
void DeuxMontants(MethodeCalculG_Nouv& m, SalarieCalculRubrique& Rubrique,
                  const RsRef& RsVarSalaries, const Variables& a, const Variables& b) {
  double dMontants = 0, dCoefficients = 0, dProduits = 0;
  for (const Variables* v : {&a, &b}) {
    const double A = m.dRechercheValeur_Variable(RsVarSalaries, v->sMontant);
    if (A <= 0) continue;
    const double K = m.dRechercheValeur_Variable(RsVarSalaries, v->sCoefficient);
    dMontants += A;
    dCoefficients += K;
    dProduits += A * K;
  }
  EcritLigne(Rubrique, Arrondi(dMontants, 2), dCoefficients, Arrondi(dProduits, 2));
}

}  // namespace

void indemnites::PrimeInformatique(MoteurCalcul& m, SalarieCalculRubrique& Rubrique,
                                   const RsRef& RsVarSalaries) {
  const double K = m.dRechercheValeur_Variable(RsVarSalaries, "COEFINF");
  if (K == 0) return;
  const double P = Arrondi(m.ConstanteFixe("Point"), 2);
  const double I = Arrondi(m.ConstanteFixe("IndInform"), 2);
  const double dMois = salaire::DouziemeArrondi(P * I);
  EcritLigne(Rubrique, dMois, K, Arrondi(dMois * K, 2));
}

void MethodeCalculG_Nouv::CalculRubrique_PrimeInformatique(VarCalculSalarie& /*InfosSalaries*/,
                                                           SalarieCalculRubrique& Rubrique,
                                                           const RsRef& RsVarSalaries) {
  indemnites::PrimeInformatique(*this, Rubrique, RsVarSalaries);
}

void indemnites::CreditMunicipal(MoteurCalcul& m, SalarieCalculRubrique& Rubrique,
                                 const RsRef& RsVarSalaries) {
  const double M = m.dRechercheValeur_Variable(RsVarSalaries, "CMREMBMOIS");
  if (M == 0) return;
  const double T = m.dRechercheValeur_Variable(RsVarSalaries, "CMREMBTOT");
  const double R = m.dRechercheValeur_Variable(RsVarSalaries, "CMREMBREST");
  if (R >= T) return;
  // The last instalment repays the balance and no more.
  EcritLigne(Rubrique, 0, 0, M + R >= T ? T - R : M);
}

void MethodeCalculG_Nouv::CalculRubrique_CreditMunicipal(VarCalculSalarie& /*InfosSalaries*/,
                                                         SalarieCalculRubrique& Rubrique,
                                                         const RsRef& RsVarSalaries) {
  indemnites::CreditMunicipal(*this, Rubrique, RsVarSalaries);
}

void indemnites::MontantReference(MoteurCalcul& m, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsVarSalaries) {
  static const std::pair<const char*, Variables> kCodes[] = {
      {"PRSERREN09", {"MTPSR", "MTPSRCOEF"}},
      {"HSIFTS09", {"MTIFTSM", "MTIFTSCOEF"}},
      {"INDEXMIS09", {"MTIEMPM", "MTIEMPCOEF"}},
  };
  for (const auto& [sCode, v] : kCodes)
    if (Rubrique.sCodeRubrique == sCode) MontantDesVariables(m, Rubrique, RsVarSalaries, v);
}

void MethodeCalculG_Nouv::CalculRubrique_MontantReference(VarCalculSalarie& /*InfosSalaries*/,
                                                          SalarieCalculRubrique& Rubrique,
                                                          const RsRef& RsVarSalaries) {
  indemnites::MontantReference(*this, Rubrique, RsVarSalaries);
}

void MethodeCalculG_Nouv::CalculRubrique_Irf(VarCalculSalarie& /*InfosSalaries*/,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsVarSalaries) {
  DeuxMontants(*this, Rubrique, RsVarSalaries, {"MTFON", "MTFONCOEF"}, {"MTRES", "MTRESCOEF"});
}

void MethodeCalculG_Nouv::CalculRubrique_Ipf(VarCalculSalarie& /*InfosSalaries*/,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsVarSalaries) {
  DeuxMontants(*this, Rubrique, RsVarSalaries, {"MTFONPF", "COEFFFONPF"},
               {"MTPERF", "MTPERFCOEF"});
}

void MethodeCalculG_Nouv::CalculRubrique_Ifse(VarCalculSalarie& /*InfosSalaries*/,
                                              SalarieCalculRubrique& Rubrique,
                                              const RsRef& RsVarSalaries) {
  Variables v;
  if (VariablesDuGroupe(Rubrique.sCodeRubrique, "IFSESANSLOGGRP", "MTIFSEG", "COEFIFSEG", v) ||
      VariablesDuGroupe(Rubrique.sCodeRubrique, "IFSEAVECLOGGRP", "MTIFSELOG", "COEIFSELG", v))
    MontantDesVariables(*this, Rubrique, RsVarSalaries, v);
}

void MethodeCalculG_Nouv::CalculRubrique_Cia(VarCalculSalarie& /*InfosSalaries*/,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsVarSalaries) {
  Variables v;
  if (VariablesDuGroupe(Rubrique.sCodeRubrique, "CIAGROUPE", "MTCIAG", "COEFFCIAG", v))
    MontantDesVariables(*this, Rubrique, RsVarSalaries, v);
}

void salaire::RubriqueIat(MoteurCalcul& m, SalarieCalculRubrique& Rubrique,
                          const RsRef& RsVarSalaries, const TotauxDuMois& t) {
  const double X = m.dRechercheValeur_Constantes(m.gRsConstantes, "TXIATDEP") *
                   m.dRechercheValeur_Variable(RsVarSalaries, "MTIAT");
  if (X <= 0) return;
  const double K = m.dRechercheValeur_Variable(RsVarSalaries, "MTIATCOEF");
  double dBase = Arrondi(X, 2);
  // The allowance follows the treatment: nothing for a day of end of activity, half for a
  // day on half pay, over the 30 days of the month.
  const double dJoursRetires = t.iCFA.value() + t.iDemiTraitement.value() / 2.0;
  if (dJoursRetires > 0) dBase = Arrondi(dBase * std::max(30 - dJoursRetires, 0.0) / 30, 2);
  EcritLigne(Rubrique, dBase, K, Arrondi(K * dBase, 2));
}

void MethodeCalculG_Nouv::CalculRubrique_Iat(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsVarSalaries) {
  salaire::RubriqueIat(*this, Rubrique, RsVarSalaries, salaire::TotauxQuatreQuarts(InfosSalaries));
}

}  // namespace orvalis
