// Hourly rates of additional and overtime hours, for the month and for the month before.
//
// The month before reads the statutory values of that month from their history and the
// reference salary dBase_HSA in place of dBase_HSN.

#include "generic/taux_regles.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis::taux {

namespace {

// A statutory value of the month, or of the month before.
double Fixe(Contexte& c, const char* sChamp, bool bMoisPrec) {
  if (!bMoisPrec) return c.m.ConstanteFixe(sChamp);
  double dValeur = 0;
  c.m.dRechercheHistoriqueMois(sChamp, dValeur);
  return dValeur;
}

double BaseHS(const Contexte& c, bool bMoisPrec) {
  return bMoisPrec ? c.InfosSalaries.dBase_HSA : c.InfosSalaries.dBase_HSN;
}

// Indexed models: the reference salary over the hours of a year, not below the SMIC.
// Other models: their percentage of the SMIC, or their own hourly rate.
double HeuresComplementaires(Contexte& c, bool bMoisPrec) {
  const VarCalculSalarie& s = c.InfosSalaries;
  if (ModeleIndiciaire(s)) {
    const double H = Arrondi(Fixe(c, "HrsMois", bMoisPrec), 2);
    double A = 0;
    if (s.dDureeHebdoLegale == 0) {
      if (H != 0) A = Arrondi(BaseHS(c, bMoisPrec) / (H * 12), 2);
    } else {
      A = Arrondi(BaseHS(c, bMoisPrec) / (s.dDureeHebdoLegale * 52), 2);
    }
    const double S = Arrondi(Fixe(c, "SmicHor", bMoisPrec), 2);
    return A < S ? S : A;
  }
  const double V = c.m.dValeurVariableSansArrondi(c.RsVarSalaries, "TXSMIC");
  if (V != 0) return Arrondi(Fixe(c, "SmicHor", bMoisPrec), 2) * V / 100;
  return c.m.dRechercheValeur_Variable(c.RsVarSalaries, "TXHEURES");
}

double Complementaires(Contexte& c, const LigneTaux&) { return HeuresComplementaires(c, false); }
double ComplementairesPrec(Contexte& c, const LigneTaux&) { return HeuresComplementaires(c, true); }

// The yearly reference salary over the coefficient of the row's column, less 0.0049 so that
// the rounding to the cent goes downward.
double HeuresSupp(Contexte& c, const LigneTaux& l, bool bMoisPrec) {
  const double C = Fixe(c, l.sArg, bMoisPrec);
  if (C == 0) return 0;
  return Arrondi(Div(BaseHS(c, bMoisPrec), C) - 0.0049, 2);
}

double Supp(Contexte& c, const LigneTaux& l) { return HeuresSupp(c, l, false); }
double SuppPrec(Contexte& c, const LigneTaux& l) { return HeuresSupp(c, l, true); }

// Designation, rule, and the column of the statutory values that holds its coefficient.
constexpr LigneTaux kTauxHeuresSupp[] = {
    {.nom = "TAUX HEURES COMPLEMENTAIRES", .regle = Complementaires},
    {.nom = "TAUX HEURES SUPP. < 14 HEURES (INDICIAIRE)",
     .regle = Supp, .sArg = "HsCoefNorm"},
    {.nom = "TAUX HEURES SUPP. > 14 HEURES (INDICIAIRE)",
     .regle = Supp, .sArg = "HsCoefSupp"},
    {.nom = "TAUX HEURES SUPP. NUIT < 14 HEURES (INDICIAIRE)",
     .regle = Supp, .sArg = "HSCOEFNUIT"},
    {.nom = "TAUX HEURES SUPP. NUIT > 14 HEURES (INDICIAIRE)",
     .regle = Supp, .sArg = "HSCOEFNUITSUPP"},
    {.nom = "TAUX HEURES SUPP. FERIES < 14 HEURES (INDICIAIRE)",
     .regle = Supp, .sArg = "HSCOEFJF"},
    {.nom = "TAUX HEURES SUPP. FERIES > 14 HEURES (INDICIAIRE)",
     .regle = Supp, .sArg = "HSCOEFJFSUPP"},
    {.nom = "TAUX HEURES COMPLEMENTAIRES MOIS PREC", .regle = ComplementairesPrec},
    {.nom = "TAUX HEURES SUPP. < 14 HEURES MOIS PREC",
     .regle = SuppPrec, .sArg = "HsCoefNorm"},
    {.nom = "TAUX HEURES SUPP. > 14 HEURES MOIS PREC",
     .regle = SuppPrec, .sArg = "HsCoefSupp"},
    {.nom = "TAUX HEURES SUPP. NUIT < 14 HEURES MOIS PREC",
     .regle = SuppPrec, .sArg = "HSCOEFNUIT"},
    {.nom = "TAUX HEURES SUPP. NUIT > 14 HEURES MOIS PREC",
     .regle = SuppPrec, .sArg = "HSCOEFNUITSUPP"},
    {.nom = "TAUX HEURES SUPP. FERIES < 14 HEURES MOIS PREC",
     .regle = SuppPrec, .sArg = "HSCOEFJF"},
    {.nom = "TAUX HEURES SUPP. FERIES > 14 HEURES MOIS PREC",
     .regle = SuppPrec, .sArg = "HSCOEFJFSUPP"},
};

}  // namespace

std::span<const LigneTaux> TauxHeuresSupp() { return kTauxHeuresSupp; }

}  // namespace orvalis::taux
