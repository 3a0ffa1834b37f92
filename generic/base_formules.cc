// Bases read from the records or worked out by a formula: the fields of the pay line and of
// the employee, the grade's treatment, the monthly SMIC, the leisure-centre bases and the
// bases that go through the tax at source.
#include <string>

#include "generic/base_designations.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

MethodeCalculG_Nouv& MoteurCourant(ContexteBase& c) {
  if (c.courant == nullptr) Faute("base of the current engine only");
  return *c.courant;
}

namespace {

double C(ContexteBase& c, const char* code) { return c.m.dRechercheValeurCumul(code, "S"); }
double CPatronal(ContexteBase& c, const char* code) { return c.m.dRechercheValeurCumul(code, "P"); }
double F(ContexteBase& c, const char* champ) { return c.m.ConstanteFixe(champ); }
double Variable(ContexteBase& c, const char* code) {
  return c.m.dValeurVariableSansArrondi(c.RsVarSalaries, code);
}
double Constante(ContexteBase& c, const char* code) {
  return c.m.dRechercheValeur_Constantes(c.m.gRsConstantes, code);
}
std::string AnneeEnCours(ContexteBase& c) {
  return std::to_string(Annee(LireDate(c.m.gPeriodeEncours)));
}

// ---- Totals with a condition or a record field ----------------------------------------

double SalaireImposable(ContexteBase& c) {
  double d = C(c, "BRUT") - C(c, "TOTDEDUCT");
  if (c.InfosSalaries.bCalculReductionSurHS) d = d - C(c, "ASSREDHS");
  return d;
}

double BaseTaxeSalaire(ContexteBase& c) {
  return CPatronal(c, "COTMUTPAT") + C(c, "BRUT") - c.InfosSalaries.dMtIndActPar;
}

// January of the current year, whatever the month of pay.
double TraitementPrimesJanvier(ContexteBase& c) {
  double d = 0;
  c.m.dRechercheValeurCumulHistorique(c.InfosSalaries.lIdSalarie, c.m.gPeriodeEncours,
                                      "TBIETPRIME", d, "01/01/" + AnneeEnCours(c), "S", 0);
  return d;
}

// ---- Fields of the records ---------------------------------------------------------------

double PartSalarialeRubrique(ContexteBase& c) { return c.Rubrique.dMontantSalarialRub; }
double PartPatronaleRubrique(ContexteBase& c) { return c.Rubrique.dMontantPatronalRub; }
double IndiceMajore(ContexteBase& c) { return c.InfosSalaries.dIndiceMajoreM; }

double TraitementTempsPlein(ContexteBase& c) {
  const VarCalculSalarie& s = c.InfosSalaries;
  return s.dSalaire_MensuelPleinIATA + s.dSalaire_MensuelPleinIATN + s.dSalaire_MensuelPleinINTA +
         s.dSalaire_MensuelPleinINTN;
}

double BaseIAT(ContexteBase& c) { return c.InfosSalaries.dBase_IATAnnuelPlein / 12; }
double BasePSR(ContexteBase& c) { return c.InfosSalaries.dBase_PSRAnnuelPlein / 12; }
double BaseIFTS(ContexteBase& c) { return c.InfosSalaries.dBase_IFTSAnnuelPlein / 12; }
double BaseIEMP(ContexteBase& c) { return Arrondi(c.InfosSalaries.dBase_IEMPAnnuelPlein / 12, 2); }

double NombreJoursReels(ContexteBase& c) {
  return MoteurCourant(c).iNbJoursReelsPeriode(c.InfosSalaries, c.m.gPeriodeEncours);
}

double IJSoumisesPAS(ContexteBase& c) { return MoteurCourant(c).dMtIJImposable(c.InfosSalaries); }

double SalaireImposableAbattu(ContexteBase& c) {
  double dBase = C(c, "NETIMPOS");
  return MoteurCourant(c).CalculPrelevementALaSource_Assiette(c.InfosSalaries, dBase, c.Rubrique);
}

double Zero(ContexteBase&) { return 0; }

// ---- Statutory formulas --------------------------------------------------------------------

double TraitementMoyenGrade(ContexteBase& c) {
  const VarCalculSalarie& s = c.InfosSalaries;
  return (s.dIndiceDebutGrade + s.dIndiceFinGrade) / 2 * F(c, "Point") / 12;
}

double TraitementFinGrade(ContexteBase& c) {
  return c.InfosSalaries.dIndiceFinGrade * F(c, "Point") / 12;
}

// The point of January of the current year, in spite of the designation.
double TraitementAnnuelN1(ContexteBase& c) {
  double dPoint = 0;
  c.m.dRecherchePointMois(c.InfosSalaries.lIdSalarie, c.m.gPeriodeEncours, "", dPoint,
                          AnneeEnCours(c) + "01");
  return c.InfosSalaries.dIndiceMajoreM * dPoint * c.InfosSalaries.dCoefficient_CPA;
}

double BaseATI(ContexteBase& c) {
  return Arrondi(Constante(c, "ALLTEMPINV") * F(c, "Point"), 2) / 12;
}

double PlafondMensuelUrssaf(ContexteBase& c) {
  double d = C(c, "ASSPLAFOND");
  if (d == 0) d = F(c, "PlafSecu");
  return d;
}

double SmicMensuel(ContexteBase& c) {
  const VarCalculSalarie& s = c.InfosSalaries;
  double dMois = 0;
  const double dTauxSmic = Variable(c, "TXSMIC");
  if (dTauxSmic > 0) {
    dMois = F(c, "HrsMois") * F(c, "SmicHor") * dTauxSmic / 100;
  } else {
    // Read through the plain lookup: rounded to the unit, unlike "TXSMIC" above.
    const double dTauxHeures = c.m.dRechercheValeur_Variable(c.RsVarSalaries, "TXHEURES");
    if (dTauxHeures > 0) {
      // The employee's hourly rate stands in for the SMIC rate.
      dMois = F(c, "HrsMois") * dTauxHeures;
    } else {
      dMois = F(c, "HrsMois") * F(c, "SmicHor");
    }
  }
  c.m.gdSmicMensuel = F(c, "HrsMois") * F(c, "SmicHor");
  const Int16 iJours =
      s.iNBJ_Presence_Total - s.iNBJ_90PourCentTraitement_Total - s.iNBJ_2TiersTraitement_Total;
  return dMois * iJours / 30;
}

// Days and stays of a leisure centre, valued by the constants of one kind of staff.
double AssietteCLSH(ContexteBase& c, const char* sJour, const char* sSejour, const char* sMois) {
  const double dJours = Variable(c, "NBDCLSH") + Variable(c, "NBJCCLSH") + Variable(c, "NBJCLSH");
  const double dSejours = Variable(c, "NBSCLSH");
  const double dMois = Variable(c, "NBMCLSH");
  return dJours * Constante(c, sJour) + dSejours * Constante(c, sSejour) +
         dMois * Constante(c, sMois);
}

double AssietteCLSHSansBafa(ContexteBase& c) {
  return AssietteCLSH(c, "ASSJCLSB", "ASSSCLSB", "ASSMCLSB");
}

double AssietteCLSHAvecBafa(ContexteBase& c) {
  return AssietteCLSH(c, "ASSJCLAB", "ASSSCLAB", "ASSMCLAB");
}

// A director is paid by stay and by month only; the days are read and enter nothing.
double AssietteCLSHDirecteur(ContexteBase& c) {
  Variable(c, "NBJCLSH");
  const double dSejours = Variable(c, "NBSCLSH");
  const double dMois = Variable(c, "NBMCLSH");
  return dSejours * Constante(c, "ASSSCLDI") + dMois * Constante(c, "ASSMCLDI");
}

constexpr Connue kTous = Connue::DesDeuxMoteurs;
constexpr Connue kCourant = Connue::DuMoteurCourantSeul;

const LigneBase kLignes[] = {
    // "SALAIRE IMPOSABLE" stands once more in the order of tests, beside
    // "SALAIRE IMPOSABLE ABATTU", with the same rule; this first test always wins.
    {"SALAIRE IMPOSABLE", SalaireImposable, kTous},
    {"BASETAXESALAIRE", BaseTaxeSalaire, kCourant},
    {"TRAITEMENT DE BASE + PRIMES JANVIER", TraitementPrimesJanvier, kCourant},

    {"PART SALARIALE D'UNE RUBRIQUE", PartSalarialeRubrique, kTous},
    {"PART PATRONALE D'UNE RUBRIQUE", PartPatronaleRubrique, kTous},
    {"INDICE MAJORE", IndiceMajore, kTous},
    {"TRAITEMENT DE BASE A TEMPS PLEIN", TraitementTempsPlein, kTous},
    {"BASE IAT MENSUELLE", BaseIAT, kCourant},
    {"BASE PSR MENSUELLE", BasePSR, kCourant},
    {"BASE IFTS MENSUELLE", BaseIFTS, kCourant},
    {"BASE IEMP MENSUELLE", BaseIEMP, kCourant},
    {"NOMBRE JOURS REELS", NombreJoursReels, kCourant},
    {"IJ BRUTES SOUMISES AU PAS", IJSoumisesPAS, kCourant},
    {"SALAIRE IMPOSABLE ABATTU", SalaireImposableAbattu, kCourant},
    {"ALLOCATION CHOMAGE", Zero, kTous},

    {"TRAITEMENT DE BASE MOYEN DU GRADE", TraitementMoyenGrade, kTous},
    {"TRAITEMENT DE BASE INDICE FIN DU GRADE", TraitementFinGrade, kTous},
    {"TRAITEMENT DE BASE ANNUEL N-1", TraitementAnnuelN1, kTous},
    {"BASE ATI", BaseATI, kTous},
    {"PLAFOND MENSUEL URSSAF", PlafondMensuelUrssaf, kTous},
    {"SMIC MENSUEL", SmicMensuel, kTous},
    {"ASSIETTE CLSH SANS BAFA", AssietteCLSHSansBafa, kTous},
    {"ASSIETTE CLSH AVEC BAFA", AssietteCLSHAvecBafa, kTous},
    {"ASSIETTE CLSH DIRECTEUR", AssietteCLSHDirecteur, kTous},
};

}  // namespace

std::span<const LigneBase> LignesBaseFormules() { return kLignes; }

}  // namespace orvalis
