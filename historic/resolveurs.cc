// The resolvers of the historic engine: the same designation rows as the current engine,
// less those it does not know, which give what an unknown designation gives.
#include <array>
#include <string_view>

#include "generic/base_designations.h"
#include "generic/coefficient.h"
#include "generic/taux_regles.h"
#include "orvalis/MethodeCalculG.h"

namespace orvalis {

namespace {

constexpr std::array<std::string_view, 27> kTauxSalariauxInconnus = {
    "UN CUMUL PARTICULIER",
    "TAUX HEURES COMPLEMENTAIRES",
    "TAUX HEURES COMPLEMENTAIRES MOIS PREC",
    "TAUX HEURES SUPP. < 14 HEURES MOIS PREC",
    "TAUX HEURES SUPP. > 14 HEURES MOIS PREC",
    "TAUX HEURES SUPP. NUIT < 14 HEURES MOIS PREC",
    "TAUX HEURES SUPP. NUIT > 14 HEURES MOIS PREC",
    "TAUX HEURES SUPP. FERIES < 14 HEURES MOIS PREC",
    "TAUX HEURES SUPP. FERIES > 14 HEURES MOIS PREC",
    "TAUX HORAIRE DU SALARIE + 10 %",
    "TAUX HORAIRE DU SALARIE MOIS PREC MAJORE PAR CSTE",
    "TAUX HORAIRE DU SALARIE + 10 % MOIS PREC",
    "TAUX HORAIRE INDEMNITE ENSEIGNEMENT 1ERE HEURE",
    "TAUX HORAIRE IND ENS 1ERE HEURE PROF HORS CLASSE",
    "TAUX HORAIRE IND ENS PROF HORS CLASSE",
    "TAUX HORAIRE IND ENS MAJORE PROF HORS CLASSE",
    "NOMBRE HEURES TRAVAILLEES",
    "PART SALARIALE D'UNE RUBRIQUE",
    "PART PATRONALE D'UNE RUBRIQUE",
    "TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE",
    "TOTAL COTISATIONS RACHAT CET",
    "TAUX COTISATION RAFP CET SALARIAL",
    "SALAIRE BRUT JOURNALIER OUVRE",
    "TAUX PAS",
    "NET A PAYER + PAS",
    "ABATTEMENT PAS",
    "TAUX IMPOSABLE IJ",
};

constexpr std::array<std::string_view, 4> kTauxPatronauxInconnus = {
    "UN CUMUL PARTICULIER",
    "PART SALARIALE D'UNE RUBRIQUE",
    "PART PATRONALE D'UNE RUBRIQUE",
    "TAUX COTISATION RAFP CET PATRONAL",
};

}  // namespace

// The particular total is the line's own code among the current totals, employee side.
double MethodeCalculG::RechercheValeurBase(VarCalculSalarie& InfosSalaries,
                                          const RsRef& RsVarSalaries,
                                          SalarieCalculRubrique& Rubrique) {
  const std::string sValeurBase = Rubrique.sValeurBase;
  if (sValeurBase == "UN CUMUL PARTICULIER")
    return dRechercheValeurCumul(Rubrique.sCodeRubrique, "S");
  ContexteBase c{*this, nullptr, InfosSalaries, RsVarSalaries, Rubrique};
  return ResoudBase(c, sValeurBase, true);
}

double MethodeCalculG::RechercheValeurCoefficient(VarCalculSalarie& InfosSalaries,
                                                 const RsRef& RsVarSalaries, Int32 lIdCoeffBase,
                                                 const std::string& sCoeffBase,
                                                 SalarieCalculRubrique& Rubrique) {
  return ResoudCoefficient(*this, InfosSalaries, RsVarSalaries, lIdCoeffBase, sCoeffBase,
                           Rubrique, true);
}

double MethodeCalculG::RechercheValeurTauxSalarial(VarCalculSalarie& InfosSalaries,
                                                  const RsRef& RsVarSalaries,
                                                  const RsRef& RsVarSalariesHisto,
                                                  SalarieCalculRubrique& Rubrique,
                                                  std::string& sType,
                                                  const RsRef& RsSalariesHisto) {
  taux::Contexte c{*this,    nullptr, InfosSalaries, RsVarSalaries, RsVarSalariesHisto,
                   RsSalariesHisto, Rubrique, Rubrique.lIdValeurTauxSalarial, false, sType};
  return taux::Resoud(taux::TablesSalariales(), c, kTauxSalariauxInconnus);
}

double MethodeCalculG::RechercheValeurTauxPatronal(VarCalculSalarie& InfosSalaries,
                                                  const RsRef& RsVarSalaries,
                                                  SalarieCalculRubrique& Rubrique,
                                                  std::string& sType) {
  // The work-accident rate is not looked up among "URSAT1" to "URSAT3": the record's
  // dTauxAt1 stands in for whichever is in use.
  if (Rubrique.sValeurTauxPatronal == "TAUX ACCIDENT DE TRAVAIL") {
    sType = "T";
    return InfosSalaries.dTauxAt1;
  }
  const RsRef aucune;
  taux::Contexte c{*this,   nullptr, InfosSalaries, RsVarSalaries, aucune, aucune,
                   Rubrique, Rubrique.lIdValeurTauxPatronal, true, sType};
  return taux::Resoud(taux::TablesPatronales(), c, kTauxPatronauxInconnus);
}

double MethodeCalculG::BaseDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                   SalarieCalculRubrique& Rubrique) {
  return RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
}

double MethodeCalculG::CoefficientDeLigne(VarCalculSalarie& InfosSalaries,
                                          const RsRef& RsVarSalaries, Int32 lIdCoeffBase,
                                          const std::string& sCoeffBase,
                                          SalarieCalculRubrique& Rubrique) {
  return RechercheValeurCoefficient(InfosSalaries, RsVarSalaries, lIdCoeffBase, sCoeffBase,
                                    Rubrique);
}

double MethodeCalculG::TauxSalarialDeLigne(VarCalculSalarie& InfosSalaries,
                                           const RsRef& RsVarSalaries,
                                           const RsRef& RsVarSalariesHisto,
                                           SalarieCalculRubrique& Rubrique, std::string& sType,
                                           const RsRef& RsSalariesHisto) {
  return RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique,
                                     sType, RsSalariesHisto);
}

double MethodeCalculG::TauxPatronalDeLigne(VarCalculSalarie& InfosSalaries,
                                           const RsRef& RsVarSalaries,
                                           SalarieCalculRubrique& Rubrique, std::string& sType) {
  return RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, sType);
}

}  // namespace orvalis
