// The other rate designations of the employee side: hours worked, the CET buy-back rates,
// the worked day of the leave arbitration, and the tax at source.

#include "generic/taux_regles.h"

namespace orvalis::taux {

namespace {

double Zero(Contexte&, const LigneTaux&) { return 0; }

// Half of the employee's hourly rate with the variable "HRSENFMAT" added.
double AssistanteMaternelle(Contexte& c, const LigneTaux&) {
  double dTaux = 0;
  c.m.CalculTauxHoraireSalarie(c.RsVarSalaries, "TXSMIC", "TXHEURES", "M", 0, 1, dTaux, c.sType,
                               "N", false, 4);
  return (dTaux + c.m.dRechercheValeur_Variable(c.RsVarSalaries, "HRSENFMAT")) * 0.5;
}

double HeuresTravaillees(Contexte& c, const LigneTaux&) {
  return c.m.dRechercheValeurCumul("HEURES", "S");
}

double TauxCsgProfessionnel(Contexte& c) {
  double dTaux = 0;
  c.m.bTauxCsgProfessionnel(dTaux);
  return dTaux;
}

double TotalRachatCet(Contexte& c, const LigneTaux&) {
  const double dTaux = TauxCsgProfessionnel(c);
  return (100 - dTaux) + dTaux + (100 - dTaux);
}

double RafpCetSalarial(Contexte& c, const LigneTaux&) { return 100 - TauxCsgProfessionnel(c); }

double SalaireJournalierOuvre(Contexte& c, const LigneTaux&) {
  return Courant(c).dArbitrageJours(c.InfosSalaries, c.RsVarSalaries, c.Rubrique);
}

// The rate of the tax at source, as the host stores it: a fraction, with no kind.
double TauxPAS(Contexte& c, const LigneTaux&) {
  return Courant(c).CalculPrelevementALaSource_Taux(c.InfosSalaries);
}

double NetAPayerAvantPAS(Contexte& c, const LigneTaux&) {
  return Courant(c).dNetAPayerAvantPAS(c.InfosSalaries);
}

// The allowance of the tax base, and the case that gave it on the line's label. The label is
// not reset: each call adds its suffix once more.
double AbattementPAS(Contexte& c, const LigneTaux&) {
  const VarCalculSalarie& s = c.InfosSalaries;
  const double dAbattement = s.dMontantBase_PAS - c.m.dRechercheValeurCumul("NETIMPOS", "S");
  if (s.bContratCourt) {
    c.Rubrique.sDesignation += " - Contrat court";
  } else if (s.sCodeCategorie == "APPRENTI") {
    c.Rubrique.sDesignation += " - Apprenti";
  } else if (s.sCodeCategorie == "ELUS") {
    c.Rubrique.sDesignation += " - Elu";
  }
  return dAbattement;
}

double TauxImposableIJ(Contexte& c, const LigneTaux&) {
  return 100 - c.m.dRechercheValeurTaux("URSDCSGIJ");
}

constexpr LigneTaux kTauxDivers[] = {
    {.nom = "TAUX RELIQUAT REDUCTION SUR HS", .regle = Zero, .sType = "T"},
    {.nom = "TAUX TRAITEMENT ASS. MATERNELLE", .regle = AssistanteMaternelle},
    {.nom = "NOMBRE HEURES TRAVAILLEES", .regle = HeuresTravaillees},
    {.nom = "TOTAL COTISATIONS RACHAT CET", .regle = TotalRachatCet, .sType = "T"},
    {.nom = "TAUX COTISATION RAFP CET SALARIAL", .regle = RafpCetSalarial, .sType = "T"},
    {.nom = "SALAIRE BRUT JOURNALIER OUVRE", .regle = SalaireJournalierOuvre},
    {.nom = "TAUX PAS", .regle = TauxPAS},
    {.nom = "NET A PAYER + PAS", .regle = NetAPayerAvantPAS},
    {.nom = "ABATTEMENT PAS", .regle = AbattementPAS, .sType = "M"},
    {.nom = "TAUX IMPOSABLE IJ", .regle = TauxImposableIJ},
};

}  // namespace

std::span<const LigneTaux> TauxDivers() { return kTauxDivers; }

}  // namespace orvalis::taux
