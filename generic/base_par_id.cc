// Bases named by an id: a constant, an employee variable and a particular total, each read
// from its source by lIdValeurBase.
#include <string>

#include "frame/filtre_egalite.h"
#include "generic/base_designations.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

bool DateEffetAtteinte(const Value& dateEffet, const std::string& gPeriodeEncours) {
  const std::string sDate = dateEffet.TexteOuVide();
  if (sDate.empty()) return true;
  const Date dEffet = LireDate(MajChaineEnFormatDate(sDate));
  return DiffJours(dEffet, LireDate(gPeriodeEncours)) <= 0;
}

namespace {

double UneConstante(ContexteBase& c) {
  const Int32 id = c.Rubrique.lIdValeurBase;
  if (id <= 0) return 0;
  Recordset& rs = Source(c.m.gRsConstantes, "gRsConstantes");
  if (rs.RecordCount() == 0) return 0;
  double d = 0;
  rs.MoveFirst();
  FiltreId(rs, "IdConstante", id);
  if (!rs.Eof()) d = rs.Field("Valeur").NombreOuZero();
  rs.ClearFilter();
  return d;
}

double UneVariableSalarie(ContexteBase& c) {
  const Int32 id = c.Rubrique.lIdValeurBase;
  if (id <= 0) return 0;
  Recordset& rs = Source(c.RsVarSalaries, "RsVarSalaries");
  if (rs.RecordCount() == 0) return 0;
  rs.MoveFirst();
  FiltreId(rs, "IdVariable", id);
  if (rs.Eof()) {
    rs.ClearFilter();
    return 0;
  }
  double d = 0;
  if (DateEffetAtteinte(rs.Field("Dateeffet"), c.m.gPeriodeEncours))
    d = rs.Field("Valeur").NombreOuZero();
  rs.ClearFilter();
  return d;
}

// No test of an empty result: an id with no row is a fault.
double UnCumulParticulier(ContexteBase& c) {
  const Int32 id = c.Rubrique.lIdValeurBase;
  if (id <= 0) return 0;
  Recordset& rs = Source(c.m.gRsCumuls, "gRsCumuls");
  if (rs.RecordCount() == 0) return 0;
  rs.MoveFirst();
  FiltreId(rs, "Idcumul", id);
  const double d = rs.Field("PartSalariale").NombreOuZero();
  rs.ClearFilter();
  return d;
}

constexpr Connue kTous = Connue::DesDeuxMoteurs;

const LigneBase kLignesParId[] = {
    {"UNE CONSTANTE", UneConstante, kTous},
    {"CONSTANTE", UneConstante, kTous},
    {"UNE VARIABLE SALARIE", UneVariableSalarie, kTous},
    {"VARIABLE", UneVariableSalarie, kTous},
    // The historic engine finds this total in its own way and brings its own row.
    {"UN CUMUL PARTICULIER", UnCumulParticulier, Connue::DuMoteurCourantSeul},
};

}  // namespace

std::span<const LigneBase> LignesBaseParId() { return kLignesParId; }

}  // namespace orvalis
