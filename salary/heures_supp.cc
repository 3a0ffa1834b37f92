// Overtime of the month and of the month before: hours read from a variable, cut at the
// monthly limit "HSBorne", paid at the reference salary over the coefficient of the kind of
// hour, brought back to 35 hours a week.
//
// The lines of the month before share the limit with the month: what the month has used is
// no longer available to them. Their limit and coefficient are those of that month.
#include <algorithm>
#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/salaire_outils.h"

namespace orvalis {

namespace {

// Which part of the hours a line pays.
enum class Part { DansLaBorne, AuDelaDeLaBorne };

// One overtime line: the variable of the hours, the column of its coefficient, and for the
// month before the variable of the month with which it shares the limit.
struct LigneHS {
  Part part;
  std::string sVariable;
  const char* sCoefficient;
  std::string sVariableDuMois;  // empty for the lines of the month
};

// A statutory value of the month before, or of the month when that one is 0.
double FixeMoisPrecedent(MoteurCalcul& m, const char* sChamp) {
  double dValeur = 0;
  m.dRechercheHistoriqueMois(sChamp, dValeur);
  if (dValeur == 0) dValeur = m.ConstanteFixe(sChamp);
  return dValeur;
}

double HeuresDuMois(Part part, double M, double B) {
  if (part == Part::DansLaBorne) return B < 0 ? 0 : std::min(M, B);
  if (B < 0) return M;
  return M > B ? M - B : 0;
}

// P hours of the month before, when the month has already M of the limit B.
double HeuresDuMoisPrecedent(Part part, double P, double M, double B) {
  if (part == Part::DansLaBorne) {
    if (M + P <= B) return P;
    return std::max(B - M, 0.0);
  }
  if (M + P <= B) return 0;
  if (M >= B) return P;
  return P - (B - M);
}

// The hourly rate: the yearly reference over the coefficient, less 0.0049 so that the cent
// goes downward, then brought back to 35 hours. No legal duration, no rate.
double TauxHS(double dReference, double C, double dDureeHebdoLegale) {
  if (C == 0 || dDureeHebdoLegale <= 0) return 0;
  const double R = Arrondi(dReference / C - 0.0049, 2);
  return Arrondi(R * 35 / dDureeHebdoLegale, 2);
}

void EcritLigne(SalarieCalculRubrique& Rubrique, double dHeures, double dTaux) {
  salaire::EcritLigne(Rubrique, dHeures, dTaux, dTaux * dHeures);
}

void HeuresSuppDuMois(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                      SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                      const LigneHS& l) {
  const double M = m.dRechercheValeur_Variable(RsVarSalaries, l.sVariable);
  double dHeures = 0, dTaux = 0;
  if (M != 0) {
    const double B = Arrondi(m.ConstanteFixe("HSBorne"), 2);
    dHeures = HeuresDuMois(l.part, M, B);
    const double C = Arrondi(m.ConstanteFixe(l.sCoefficient), 4);
    dTaux = TauxHS(InfosSalaries.dBase_HSN, C, InfosSalaries.dDureeHebdoLegale);
  }
  EcritLigne(Rubrique, dHeures, dTaux);
}

void HeuresSuppDuMoisPrecedent(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                               SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                               const LigneHS& l) {
  const double P = m.dRechercheValeur_Variable(RsVarSalaries, l.sVariable);
  double dHeures = 0, dTaux = 0;
  if (P != 0) {
    const double B = Arrondi(FixeMoisPrecedent(m, "HSBorne"), 2);
    const double M = m.dRechercheValeur_Variable(RsVarSalaries, l.sVariableDuMois);
    dHeures = HeuresDuMoisPrecedent(l.part, P, M, B);
    const double C = Arrondi(FixeMoisPrecedent(m, l.sCoefficient), 4);
    dTaux = TauxHS(InfosSalaries.dBase_HSA, C, InfosSalaries.dDureeHebdoLegale);
  }
  EcritLigne(Rubrique, dHeures, dTaux);
}

// The night and holiday lines of the month read the month's variable when the line is
// coded with it, and the exceptional hours otherwise.
std::string VariableSelonCode(const SalarieCalculRubrique& Rubrique, const char* sDuMois,
                              const char* sExceptionnelles) {
  return Rubrique.sCodeRubrique == sDuMois ? sDuMois : sExceptionnelles;
}

bool LigneDeNuit(const std::string& sNomcalcul) { return sNomcalcul.find("NUITS") != std::string::npos; }

}  // namespace

void MoteurCalcul::CalculRubrique_HS_Moins14(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                             const RsRef& RsVarSalaries) {
  HeuresSuppDuMois(*this, s, r, RsVarSalaries, {Part::DansLaBorne, "HSNORMALEM", "HSCoefNorm", ""});
}

void MoteurCalcul::CalculRubrique_HS_Plus14(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                            const RsRef& RsVarSalaries) {
  HeuresSuppDuMois(*this, s, r, RsVarSalaries,
                   {Part::AuDelaDeLaBorne, "HSNORMALEM", "HSCoefSupp", ""});
}

void MoteurCalcul::CalculRubrique_HS_Nuit(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                          const RsRef& RsVarSalaries) {
  HeuresSuppDuMois(*this, s, r, RsVarSalaries,
                   {Part::DansLaBorne, VariableSelonCode(r, "HSNUITM", "HSNUITEX"),
                    "HSCoefNuit", ""});
}

void MoteurCalcul::CalculRubrique_HS_Ferie(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                           const RsRef& RsVarSalaries) {
  HeuresSuppDuMois(*this, s, r, RsVarSalaries,
                   {Part::DansLaBorne, VariableSelonCode(r, "HSFERIEM", "HSFEREX"), "HSCoefJf",
                    ""});
}

void MoteurCalcul::CalculRubrique_HS_NuitFeriePlus14(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                                     const RsRef& RsVarSalaries,
                                                     const std::string& sNomcalcul) {
  const LigneHS l = LigneDeNuit(sNomcalcul)
                        ? LigneHS{Part::AuDelaDeLaBorne, "HSNUITM", "HSCOEFNUITSUPP", ""}
                        : LigneHS{Part::AuDelaDeLaBorne, "HSFERIEM", "HSCOEFJFSUPP", ""};
  HeuresSuppDuMois(*this, s, r, RsVarSalaries, l);
}

void MoteurCalcul::CalculRubrique_HS_Moins14Prec(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                                 const RsRef& RsVarSalaries,
                                                 const RsRef& /*RsVarSalariesHisto*/) {
  HeuresSuppDuMoisPrecedent(*this, s, r, RsVarSalaries,
                            {Part::DansLaBorne, "HSNORMALEP", "HSCoefNorm", "HSNORMALEM"});
}

void MoteurCalcul::CalculRubrique_HS_Plus14Prec(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& /*RsVarSalariesHisto*/) {
  HeuresSuppDuMoisPrecedent(*this, s, r, RsVarSalaries,
                            {Part::AuDelaDeLaBorne, "HSNORMALEP", "HSCoefSupp", "HSNORMALEM"});
}

void MoteurCalcul::CalculRubrique_HS_NuitPrec(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                              const RsRef& RsVarSalaries,
                                              const RsRef& /*RsVarSalariesHisto*/) {
  HeuresSuppDuMoisPrecedent(*this, s, r, RsVarSalaries,
                            {Part::DansLaBorne, "HSNUITP", "HSCoefNuit", "HSNUITM"});
}

void MoteurCalcul::CalculRubrique_HS_FeriePrec(VarCalculSalarie& s, SalarieCalculRubrique& r,
                                               const RsRef& RsVarSalaries,
                                               const RsRef& /*RsVarSalariesHisto*/) {
  HeuresSuppDuMoisPrecedent(*this, s, r, RsVarSalaries,
                            {Part::DansLaBorne, "HSFERIEP", "HSCoefJf", "HSFERIEM"});
}

void MoteurCalcul::CalculRubrique_HS_NuitFeriePlus14Prec(VarCalculSalarie& s,
                                                         SalarieCalculRubrique& r,
                                                         const RsRef& RsVarSalaries,
                                                         const RsRef& /*RsVarSalariesHisto*/,
                                                         const std::string& sNomcalcul) {
  const LigneHS l =
      LigneDeNuit(sNomcalcul)
          ? LigneHS{Part::AuDelaDeLaBorne, "HSNUITP", "HSCOEFNUITSUPP", "HSNUITM"}
          : LigneHS{Part::AuDelaDeLaBorne, "HSFERIEP", "HSCOEFJFSUPP", "HSFERIEM"};
  HeuresSuppDuMoisPrecedent(*this, s, r, RsVarSalaries, l);
}

}  // namespace orvalis
