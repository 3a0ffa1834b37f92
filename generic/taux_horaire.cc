// Rate designations of the employee's hourly rate: plain, increased by a percentage, of the
// month before, and multiplied by a constant of the line.

#include "generic/horaire_salarie.h"
#include "generic/taux_regles.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis::taux {

namespace {

double Cumul(Contexte& c, const char* sCode) { return c.m.dRechercheValeurCumul(sCode, "S"); }

// The hourly rate of the month: for "HORAIR" the rate of the employee's variables, or else
// the month's pay over the hours worked, a full month of hours standing for
// dJoursHorair days; for the indexed models the month's pay over the hours of 30 days.
double TauxDuMois(Contexte& c, double dJoursHorair) {
  const VarCalculSalarie& s = c.InfosSalaries;
  if (s.sTypeModele == "HORAIR") {
    double dTaux = 0;
    c.m.CalculTauxHoraireSalarie(c.RsVarSalaries, "TXSMIC", "TXHEURES", "M", 0, 1, dTaux, c.sType,
                                 "N", false, 4);
    if (dTaux == 0 && s.dHeuresMois != 0)
      dTaux = Div(Cumul(c, "BASE") - Cumul(c, "BASERAPPEL"),
                  s.dHeuresMois * s.iNBJ_Presence_Total / dJoursHorair);
    return dTaux;
  }
  if (ModeleIndiciaire(s) && s.dHeuresMois != 0)
    return Div(Cumul(c, "BASE") + s.dMt_IndemniteDifferentielle - Cumul(c, "BASERAPPEL"),
               s.dHeuresMois * s.iNBJ_Presence_Total / 30);
  return 0;
}

double Horaire(Contexte& c, const LigneTaux&) { return TauxDuMois(c, 151.67); }

double HoraireMajoreConstante(Contexte& c, const LigneTaux&) {
  return MajoreParConstante(c, TauxDuMois(c, 30));
}

double HoraireMajore(Contexte& c, const LigneTaux& l) {
  double dTaux = 0;
  TauxHoraireMoisEnCours(c.m, l.dArg, c.InfosSalaries, c.RsVarSalaries, dTaux, c.sType);
  return dTaux;
}

double HoraireMoisPrec(Contexte& c, const LigneTaux& l) {
  double dTaux = 0;
  TauxHoraireMoisPrec(c.m, l.dArg, c.InfosSalaries, c.RsVarSalariesHisto, c.RsSalariesHisto,
                      dTaux, c.sType);
  return dTaux;
}

double MoisPrecParConstante(Contexte& c, const LigneTaux& l) {
  return MajoreParConstante(c, HoraireMoisPrec(c, l));
}

// Indexed models: the reference salary and twelve differential allowances over the hours of
// a year, to the cent, not below the SMIC, times the constant of the line.
double HoraireAvecIrId(Contexte& c, const LigneTaux&) {
  const VarCalculSalarie& s = c.InfosSalaries;
  if (!ModeleIndiciaire(s)) return 0;
  const double H = Arrondi(c.m.ConstanteFixe("HrsMois"), 2);
  const double dAnnuel = s.dBase_HSN + s.dMt_IndemniteDifferentielle * 12;
  double dTaux = 0;
  if (s.dDureeHebdoLegale != 0) {
    dTaux = Arrondi(dAnnuel / (s.dDureeHebdoLegale * 52), 2);
  } else if (H != 0) {
    dTaux = Arrondi(dAnnuel / (H * 12), 2);
  }
  const double dSmic = Arrondi(c.m.ConstanteFixe("SmicHor"), 2);
  if (dTaux < dSmic) dTaux = dSmic;
  return MajoreParConstante(c, dTaux);
}

constexpr LigneTaux kTauxHoraireSalarie[] = {
    {.nom = "TAUX HORAIRE DU SALARIE", .regle = Horaire},
    {.nom = "TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", .regle = HoraireMajoreConstante},
    {.nom = "TAUX HORAIRE DU SALARIE + 10 %", .regle = HoraireMajore, .dArg = 1.1},
    {.nom = "TAUX HORAIRE DU SALARIE + 25 %", .regle = HoraireMajore, .dArg = 1.25},
    {.nom = "TAUX HORAIRE DU SALARIE + 50 %", .regle = HoraireMajore, .dArg = 1.5},
    {.nom = "TAUX HORAIRE DU SALARIE + 100 %", .regle = HoraireMajore, .dArg = 2},
    {.nom = "TAUX HORAIRE DU SALARIE MOIS PREC", .regle = HoraireMoisPrec, .dArg = 1},
    {.nom = "TAUX HORAIRE DU SALARIE MOIS PREC MAJORE PAR CSTE", .regle = MoisPrecParConstante,
     .dArg = 1},
    {.nom = "TAUX HORAIRE DU SALARIE + 10 % MOIS PREC", .regle = HoraireMoisPrec, .dArg = 1.1},
    {.nom = "TAUX HORAIRE DU SALARIE + 25 % MOIS PREC", .regle = HoraireMoisPrec, .dArg = 1.25},
    {.nom = "TAUX HORAIRE DU SALARIE + 50 % MOIS PREC", .regle = HoraireMoisPrec, .dArg = 1.5},
    {.nom = "TAUX HORAIRE DU SALARIE + 100 % MOIS PREC", .regle = HoraireMoisPrec, .dArg = 2},
    {.nom = "TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", .regle = HoraireAvecIrId},
};

}  // namespace

std::span<const LigneTaux> TauxHoraireSalarie() { return kTauxHoraireSalarie; }

}  // namespace orvalis::taux
