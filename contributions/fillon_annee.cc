// The year so far of an employee against the minimum wage: the annual contribution base,
// the minimum wage of the hours worked, and the same weighted by the family-allowance
// ceiling. The Fillon reduction and the test of the family-allowance complement rest on it.
#include <algorithm>
#include <string>

#include "contributions/smic_horaire.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

constexpr double kPlafondAFDefaut = 1.6;

// The month key yyyymm of a date.
std::string CleAnneeMois(Date d) { return std::to_string(Annee(d) * 100 + Mois(d)); }

}  // namespace

void MethodeCalculG_Nouv::RechercheDonneesPourCalculExonerationAllocFamOuFillon(
    VarCalculSalarie& InfosSalaries, double& dMtFillonDejaCotise, bool bCalculFillon,
    bool bCalculMSA) {
  VarCalculSalarie& s = InfosSalaries;
  s.bCalculFillonDejaRealise = true;
  s.dAssietteCotAnnuelle = dRechercheValeurCumul("ASSURSTOT", "S");

  // The current month: worked hours for a full-time week, paid hours otherwise.
  const double H = reductions::SmicHoraireDuMois(*this, s);
  double L = (s.dHeuresHebdo == 35 || s.dHeuresHebdo == s.dDureeHebdoLegale)
                 ? dRechercheValeurCumul("HEURESTRAV", "S")
                 : dRechercheValeurCumul("HEURES", "S");
  if (!s.bRegineFonctionnaire) {
    s.dSmicAnnuelFillon = Arrondi(L * H, 4);
  } else {
    L = L - dRechercheValeurCumul("HRSSUPP", "S");
    s.dSmicAnnuelFillon = Arrondi(std::max(L, 0.0) * H, 4);
  }
  const std::string sPlafondAF = bCalculMSA ? "MSAAFSMIC" : "URSAFSMIC";
  s.dSmicAnnuelAFPourComparaison =
      s.dSmicAnnuelFillon * reductions::ConstanteOuDefaut(*this, sPlafondAF, kPlafondAFDefaut);

  // The earlier months of the calendar year, from their history. There the civil-servant
  // regime keeps a negative difference and takes no 35-hour correction.
  dMtFillonDejaCotise = 0;
  const Date dPeriode = LireDate(gPeriodeEncours);
  for (int i = 1; i <= Mois(dPeriode) - 1; ++i) {
    const Date M = AjouteMois(dPeriode, -i);
    const std::string sMois = TexteDate(M);
    double dValeur = 0;
    s.dAssietteCotAnnuelle += dRechercheValeurCumulHistorique(s.lIdSalarie, gPeriodeEncours,
                                                              "ASSURSTOT", dValeur, sMois, "S", 0);
    double Hm = 0;
    dRechercheHistoriqueMois("SmicHor", Hm, -i);
    double dHeures = 0;
    dRechercheValeurCumulHistorique(s.lIdSalarie, gPeriodeEncours, "HEURES", dHeures, sMois, "S",
                                    0);
    double X = 0;
    if (!s.bRegineFonctionnaire) {
      X = Arrondi(dHeures * reductions::SmicHoraireLegal(Hm, s.dDureeHebdoLegale), 4);
    } else {
      double dHrsSupp = 0;
      dRechercheValeurCumulHistorique(s.lIdSalarie, gPeriodeEncours, "HRSSUPP", dHrsSupp, sMois,
                                      "S", 0);
      X = Arrondi((dHeures - dHrsSupp) * Hm, 4);
    }
    s.dSmicAnnuelFillon += X;
    double dPoids =
        dRechercheValeurConstanteHistorique(gRsConstantesHistorique, sPlafondAF, CleAnneeMois(M));
    if (dPoids == 0) dPoids = kPlafondAFDefaut;
    s.dSmicAnnuelAFPourComparaison += X * dPoids;
    if (bCalculFillon) {
      double dReduction = 0;
      dRechercheValeurCumulHistorique(s.lIdSalarie, gPeriodeEncours, "REDFILLON", dReduction, sMois,
                                      "P", 0);
      // The history holds the reduction as a negative amount: what was taken adds up.
      dMtFillonDejaCotise = dMtFillonDejaCotise - dReduction;
    }
  }
}

bool MethodeCalculG_Nouv::bDeclenchementComplementTauxCotisations(VarCalculSalarie& InfosSalaries,
                                                                  bool blnMsa) {
  // Figures already computed this run stand, whatever regime they were computed for.
  if (!InfosSalaries.bCalculFillonDejaRealise) {
    double dMtFillonDejaCotise = 0;
    RechercheDonneesPourCalculExonerationAllocFamOuFillon(InfosSalaries, dMtFillonDejaCotise, false,
                                                          blnMsa);
  }
  return InfosSalaries.dAssietteCotAnnuelle > InfosSalaries.dSmicAnnuelAFPourComparaison;
}

}  // namespace orvalis
