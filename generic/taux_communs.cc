// Rate designations known on both sides: by id of a constant, a variable or a total, the
// rate of the line's fund, and the amounts of another line.

#include "frame/filtre_egalite.h"
#include "generic/taux_regles.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis::taux {

namespace {

// "UNE CONSTANTE": Valeur as it stands, the kind from TauxMontant.
double Constante(Contexte& c, const LigneTaux&) {
  if (c.lId <= 0) return 0;
  double dValeur = 0;
  c.m.RechercheValeurType_Constantes(c.lId, dValeur, c.sType);
  return dValeur;
}

// "UNE VARIABLE SALARIE": the row of the id, if its date of effect is not before the month.
double Variable(Contexte& c, const LigneTaux&) {
  if (c.lId <= 0) return 0;
  Recordset& rs = Source(c.RsVarSalaries, "RsVarSalaries");
  if (rs.RecordCount() == 0) return 0;
  rs.MoveFirst();
  FiltreId(rs, "IdVariable", c.lId);
  double dValeur = 0;
  if (!rs.Eof()) {
    const std::string sEffet = rs.Field("Dateeffet").TexteOuVide();
    if (sEffet.empty() ||
        DiffJours(LireDate(MajChaineEnFormatDate(sEffet)), LireDate(c.m.gPeriodeEncours)) <= 0) {
      dValeur = rs.Field("Valeur").NombreOuZero();
      c.sType = rs.Field("TauxMontant").TexteOuVide();
    }
  }
  rs.ClearFilter();
  return dValeur;
}

// "UN CUMUL PARTICULIER": PartSalariale of the total of the id, on both sides. As for the
// base, no row for the id is a fault.
double CumulParticulier(Contexte& c, const LigneTaux&) {
  if (c.lId <= 0) return 0;
  Recordset& rs = Source(c.m.gRsCumuls, "gRsCumuls");
  if (rs.RecordCount() == 0) return 0;
  rs.MoveFirst();
  FiltreId(rs, "Idcumul", c.lId);
  const double dValeur = rs.Field("PartSalariale").NombreOuZero();
  rs.ClearFilter();
  return dValeur;
}

// "TAUX DE COTISATION DE L'ORGANISME": the rate of the line's lIdTaux, the side's column.
double TauxOrganisme(Contexte& c, const LigneTaux&) {
  const Int32 lIdTaux = c.Rubrique.lIdTaux;
  if (lIdTaux <= 0) return 0;
  Recordset& rs = Source(c.m.gRsTaux, "gRsTaux");
  if (rs.RecordCount() == 0) return 0;
  rs.MoveFirst();
  FiltreId(rs, "IdTaux", lIdTaux);
  double dValeur = 0;
  if (!rs.Eof()) dValeur = rs.Field(c.bPatronal ? "PartPatronale" : "PartSalariale").NombreOuZero();
  rs.ClearFilter();
  return dValeur;
}

double PartSalarialeRubrique(Contexte& c, const LigneTaux&) {
  return c.Rubrique.dMontantSalarialRub;
}

double PartPatronaleRubrique(Contexte& c, const LigneTaux&) {
  return c.Rubrique.dMontantPatronalRub;
}

constexpr LigneTaux kTauxCommuns[] = {
    {.nom = "UNE CONSTANTE", .regle = Constante},
    {.nom = "CONSTANTE", .regle = Constante},
    {.nom = "UNE VARIABLE SALARIE", .regle = Variable},
    {.nom = "VARIABLE", .regle = Variable},
    {.nom = "UN CUMUL PARTICULIER", .regle = CumulParticulier, .sType = "M"},
    {.nom = "TAUX DE COTISATION DE L'ORGANISME", .regle = TauxOrganisme, .sType = "T"},
    {.nom = "PART SALARIALE D'UNE RUBRIQUE", .regle = PartSalarialeRubrique},
    {.nom = "PART PATRONALE D'UNE RUBRIQUE", .regle = PartPatronaleRubrique},
};

}  // namespace

std::span<const LigneTaux> TauxCommuns() { return kTauxCommuns; }

}  // namespace orvalis::taux
