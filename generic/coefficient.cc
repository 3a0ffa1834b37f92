// RechercheValeurCoefficient: the coefficient a pay line multiplies into its base.
//
// The result starts at 1: a line with no coefficient, or one the table does not know (the
// empty designation included), keeps its base as it is.
#include "generic/coefficient.h"

#include <string>
#include <string_view>

#include "frame/filtre_egalite.h"
#include "generic/base_designations.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace {

struct ContexteCoefficient {
  MoteurCalcul& m;
  VarCalculSalarie& InfosSalaries;
  const RsRef& RsVarSalaries;
  Int32 lIdCoeffBase;
  SalarieCalculRubrique& Rubrique;
};

// A row's value as a coefficient: a percentage ("T") is divided by 100.
double ValeurOuPourcentage(Recordset& rs) {
  const double d = rs.Field("Valeur").NombreOuZero();
  return rs.Field("TauxMontant").TexteOuVide() == "T" ? d / 100 : d;
}

double UneConstante(ContexteCoefficient& c) {
  if (c.lIdCoeffBase <= 0) return 1;
  Recordset& rs = Source(c.m.gRsConstantes, "gRsConstantes");
  if (rs.RecordCount() == 0) return 1;
  rs.MoveFirst();
  FiltreId(rs, "IdConstante", c.lIdCoeffBase);
  double d = 1;
  if (!rs.Eof()) d = ValeurOuPourcentage(rs);
  rs.ClearFilter();
  return d;
}

// A value whose effective date lies before the month leaves the coefficient at 1.
double UneVariableSalarie(ContexteCoefficient& c) {
  if (c.lIdCoeffBase <= 0) return 1;
  Recordset& rs = Source(c.RsVarSalaries, "RsVarSalaries");
  if (rs.RecordCount() == 0) return 1;
  FiltreId(rs, "IdVariable", c.lIdCoeffBase);
  double d = 1;
  if (!rs.Eof() && DateEffetAtteinte(rs.Field("DateEffet"), c.m.gPeriodeEncours))
    d = ValeurOuPourcentage(rs);
  rs.ClearFilter();
  return d;
}

// No test of an empty result: an id with no row is a fault.
double UnCumulParticulier(ContexteCoefficient& c) {
  if (c.lIdCoeffBase <= 0) return 1;
  Recordset& rs = Source(c.m.gRsCumuls, "gRsCumuls");
  if (rs.RecordCount() == 0) return 1;
  rs.MoveFirst();
  FiltreId(rs, "Idcumul", c.lIdCoeffBase);
  const double d = rs.Field("PartSalariale").NombreOuZero();
  rs.ClearFilter();
  return d;
}

// The new working time goes with the days of the new index, the former time with those of
// the former index.
double CoefficientTraitement(ContexteCoefficient& c) {
  const VarCalculSalarie& s = c.InfosSalaries;
  const Int16 iJoursNouvelIndice = s.iNBJ_PresenceINTA + s.iNBJ_PresenceINTN;
  const Int16 iJoursAncienIndice = s.iNBJ_PresenceIATA + s.iNBJ_PresenceIATN;
  return iJoursNouvelIndice * s.dCoefficient_TraitementTN / 30 +
         iJoursAncienIndice * s.dCoefficient_TraitementTA / 30;
}

double PartSalarialeRubrique(ContexteCoefficient& c) { return c.Rubrique.dMontantSalarialRub; }
double PartPatronaleRubrique(ContexteCoefficient& c) { return c.Rubrique.dMontantPatronalRub; }

struct LigneCoefficient {
  std::string_view designation;
  double (*regle)(ContexteCoefficient&);
  Connue connue;
};

constexpr Connue kTous = Connue::DesDeuxMoteurs;
constexpr Connue kCourant = Connue::DuMoteurCourantSeul;

const LigneCoefficient kLignes[] = {
    {"UNE CONSTANTE", UneConstante, kTous},
    {"CONSTANTE", UneConstante, kTous},
    {"UNE VARIABLE SALARIE", UneVariableSalarie, kTous},
    {"VARIABLE", UneVariableSalarie, kTous},
    {"UN CUMUL PARTICULIER", UnCumulParticulier, kCourant},
    {"COEFFICIENT DE TRAITEMENT", CoefficientTraitement, kTous},
    {"PART SALARIALE D'UNE RUBRIQUE", PartSalarialeRubrique, kCourant},
    {"PART PATRONALE D'UNE RUBRIQUE", PartPatronaleRubrique, kCourant},
};

}  // namespace

double ResoudCoefficient(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                         const RsRef& RsVarSalaries, Int32 lIdCoeffBase,
                         const std::string& sCoeffBase, SalarieCalculRubrique& Rubrique,
                         bool bHistorique) {
  ContexteCoefficient c{m, InfosSalaries, RsVarSalaries, lIdCoeffBase, Rubrique};
  for (const LigneCoefficient& l : kLignes)
    if ((!bHistorique || l.connue == Connue::DesDeuxMoteurs) && sCoeffBase == l.designation)
      return l.regle(c);
  return 1;
}

double MethodeCalculG_Nouv::RechercheValeurCoefficient(VarCalculSalarie& InfosSalaries,
                                                       const RsRef& RsVarSalaries,
                                                       Int32 lIdCoeffBase,
                                                       const std::string& sCoeffBase,
                                                       SalarieCalculRubrique& Rubrique) {
  return ResoudCoefficient(*this, InfosSalaries, RsVarSalaries, lIdCoeffBase, sCoeffBase,
                           Rubrique, false);
}

}  // namespace orvalis
