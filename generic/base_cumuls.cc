// Bases that are a cumulative total, or a signed sum of totals: the pay run's current
// totals (gRsCumuls) or the employee's totals of the month before (gRsCumulsHistoriqueSal).
#include "generic/base_designations.h"

namespace orvalis {

namespace {

constexpr Connue kTous = Connue::DesDeuxMoteurs;
constexpr Connue kCourant = Connue::DuMoteurCourantSeul;
constexpr MoisCumul kMois = MoisCumul::Courant;
constexpr MoisCumul kPrec = MoisCumul::Precedent;

TermeCumul P(const char* code) { return {1, code, "S"}; }    // + employee side
TermeCumul M(const char* code) { return {-1, code, "S"}; }   // - employee side
TermeCumul PP(const char* code) { return {1, code, "P"}; }   // + employer side

const std::vector<LigneCumuls>& Lignes() {
  static const std::vector<LigneCumuls> kLignes = {
      // One current total.
      {"NOMBRE HEURES TRAVAILLEES", kMois, {P("HEURES")}, kTous},
      {"TRAITEMENT DE BASE DU MOIS", kMois, {P("BASE")}, kTous},
      {"BONIFICATION INDICIAIRE", kMois, {P("BONIF")}, kTous},
      {"SUPPFAM", kMois, {P("SUPPFAM")}, kTous},
      {"SUPPLEMENT FAMILIAL", kMois, {P("SUPPFAM")}, kCourant},
      {"INDEMNITE DE RESIDENCE", kMois, {P("INDRES")}, kTous},
      {"HEURESUPP", kMois, {P("HEURESUPP")}, kTous},
      {"TRAITEMENT DE BASE DU MOIS + PRIMES", kMois, {P("TBIETPRIME")}, kTous},
      {"SALAIRE BRUT", kMois, {P("BRUT")}, kTous},
      {"BASE BONIFICATION INDICIAIRE", kMois, {P("ASSBONIF")}, kTous},
      {"BASE BONIFICATION INDICIAIRE DETACHEMENT ETAT", kMois, {P("ASSBONIFDE")}, kTous},
      {"BASE URSSAF TOTALITE", kMois, {P("ASSURSTOT")}, kTous},
      {"BASE URSSAF TOTALITE EXONEREE", kMois, {P("ASSURSEXO")}, kTous},
      {"BASE URSSAF TRANCHE A", kMois, {P("ASSURSTRA")}, kTous},
      {"BASE URSSAF TRANCHE B", kMois, {P("ASSURSTRB")}, kTous},
      {"BASE URSSAF REVENU REMPLACEMENT", kMois, {P("ASSURSREM")}, kTous},
      {"BASE IRCANTEC TRANCHE A", kMois, {P("ASSIRCTRA")}, kTous},
      {"BASE IRCANTEC TRANCHE B", kMois, {P("ASSIRCTRB")}, kTous},
      {"BASE ASSEDIC TRANCHE A", kMois, {P("ASSASSTRA")}, kTous},
      {"BASE ASSEDIC TRANCHE B", kMois, {P("ASSASSTRB")}, kTous},
      {"BASE CNRACL EXONEREE CHARGES PAT.", kMois, {P("ASSCNREXO")}, kTous},
      {"BASE CNRACL DETACHEMENT ETAT", kMois, {P("ASSCNRDET")}, kTous},
      {"BASE CNRACL TEMPS PLEIN", kMois, {P("ASSCNRTP")}, kTous},
      {"BASE CNRACL TEMPS PLEIN BONIF", kMois, {P("ASSCNRTPB")}, kTous},
      {"BASE RAFP", kMois, {P("ASSRAFP")}, kTous},
      {"BASE CNRACL", kMois, {P("ASSCNRACL")}, kTous},
      {"BASE CSG/RDS", kMois, {P("ASSCSG")}, kTous},
      {"REVENUS DE REMPLACEMENT", kMois, {P("BASEREMP")}, kTous},
      {"BASE ATIACL", kMois, {P("ASSATIACL")}, kTous},
      {"BASE URSSAF TOTALITE EXONEREE (SERV PERS)", kMois, {P("ASSURSEXOS")}, kTous},
      {"BASE REDUCTION SUR HS", kMois, {P("ASSREDHS")}, kTous},
      {"BASE REDUCTION SUR HS NON DEDUCTIBLE", kMois, {P("ASSREDHSN")}, kCourant},
      {"CHOMAGE", kMois, {P("ASSURSCHO")}, kCourant},
      {"VALORISATION JOURS CET", kMois, {P("VALJRSCET")}, kCourant},
      {"BASE URSSAF FNAL CALCULEE", kMois, {P("ASSFNALCAL")}, kCourant},
      {"BASE DETACHEMENT ETAT TEMPS PLEIN", kMois, {P("ASSSRETP")}, kCourant},
      {"BASE DETACHEMENT ETAT TEMPS PLEIN BONIF", kMois, {P("ASSSRETPB")}, kCourant},
      {"INDEMNITES JOURNALIERES", kMois, {P("ASSURSIJ")}, kCourant},
      {"DEMI TRAITEMENT", kMois, {P("BASEDEMITR")}, kCourant},
      {"BASE CDG/CNFPT", kMois, {P("ASSCNFPT")}, kTous},
      {"PART PATRONALE PREVOYANCE", kMois, {PP("COTPREVOYA")}, kCourant},
      {"PART PATRONALE FORFAIT SOCIAL", kMois, {PP("COTFORSOC")}, kCourant},
      {"PART PATRONALE RETRAITE COMPLEMENTAIRE", kMois, {PP("COTRETCOMP")}, kCourant},

      // Sums of current totals.
      {"AUTRES PRIMES", kMois, {P("BASEPRP"), M("RETABSPR"), M("RETABSPRR")}, kTous},
      {"AUTRES PRIMES EXCLUES TPP", kMois,
       {P("BASEPRPSTP"), M("RETABSPRT"), M("RETABSPRTR")}, kCourant},
      {"AVANTAGES EN NATURE", kMois,
       {P("AVANTLOG"), P("AVANTREP"), P("AVANTVOI"), P("AVANTDIV")}, kTous},
      {"PART PATRONALE MUTUELLE", kMois, {PP("COTMUTPAT"), P("COTMUTPAT")}, kTous},
      {"SALAIRE BRUT + COTISATIONS PATRONALES DANS CSG", kMois,
       {PP("COTMUTPAT"), P("BRUT")}, kCourant},
      {"SALARIE NET A PAYER", kMois,
       {P("BRUT"), M("TOTDEDUCT"), M("TOTNDEDUCT"), P("TOTNONIMP")}, kTous},
      {"BASE TRAITEMENT MOIS + HRS SUPP", kMois, {P("BASE"), P("HEURESUPP")}, kTous},
      {"BASE ASSEDIC TOTALITE", kMois, {P("BRUT"), M("PAREMP")}, kCourant},
      {"TRAITEMENT DE BASE + ID + ICCSG + HC", kMois,
       {P("BASE"), P("INDDIFF"), P("ICCSG"), P("HEURECOMP")}, kCourant},
      // The two designations naming ICCSG beside the primes read no ICCSG total.
      {"TRAITEMENT BASE + ID + ICCSG + HC + PRIMES + TPP", kMois,
       {P("HEURECOMP"), P("INDDIFF"), P("TBIETPRIME")}, kCourant},
      {"TRAITEMENT DE BASE + ID + ICCSG", kMois, {P("INDDIFF"), P("ICCSG"), P("BASE")}, kCourant},
      {"TRAITEMENT DE BASE + ID + ICCSG + PRIMES + TPP", kMois,
       {P("INDDIFF"), P("TBIETPRIME")}, kCourant},

      // The employee's totals of the month before.
      {"TRAITEMENT DE BASE DU MOIS PREC", kPrec, {P("BASE")}, kTous},
      {"BONIFICATION INDICIAIRE MOIS PREC", kPrec, {P("BONIF")}, kCourant},
      {"INDEMNITE DE RESIDENCE MOIS PREC", kPrec, {P("INDRES")}, kTous},
      {"AUTRES PRIMES MOIS PREC", kPrec, {P("BASEPRP"), M("RETABSPR"), M("RETABSPRR")}, kTous},
      {"AUTRES PRIMES EXCLUES TPP MOIS PREC", kPrec,
       {P("BASEPRPSTP"), M("RETABSPRT"), M("RETABSPRTR")}, kCourant},
      {"TRAITEMENT BASE MOIS PREC SANS RETENUE", kPrec,
       {P("BASE"), M("BASERAPPEL"), M("RETABSTRAI"), M("BONIF")}, kCourant},
      {"INDEMNITE DE RESIDENCE MOIS PREC SANS RETENUE", kPrec,
       {P("INDRES"), M("RETABSIR")}, kCourant},
  };
  return kLignes;
}

}  // namespace

std::span<const LigneCumuls> LignesBaseCumuls() { return Lignes(); }

double SommeCumuls(ContexteBase& c, const LigneCumuls& ligne) {
  double d = 0;
  for (const TermeCumul& t : ligne.termes) {
    double v = 0;
    if (ligne.mois == MoisCumul::Courant) {
      v = c.m.dRechercheValeurCumul(t.code, t.type);
    } else {
      c.m.dRechercheValeurCumulHistorique(c.InfosSalaries.lIdSalarie, c.m.gPeriodeEncours, t.code,
                                          v, "", t.type, 0);
    }
    d = d + t.signe * v;
  }
  return d;
}

}  // namespace orvalis
