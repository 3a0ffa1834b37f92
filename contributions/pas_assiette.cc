// Income tax at source: the assessment base, the apprentices' and trainees' threshold, the
// taxable daily benefits and the net pay before the tax.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

double MethodeCalculG_Nouv::CalculPrelevementALaSource_Assiette(VarCalculSalarie& InfosSalaries,
                                                                double& dBase,
                                                                SalarieCalculRubrique& Rubrique) {
  // The neutral rate applies with no individual rate, or with one the host has not validated.
  if (InfosSalaries.dTauxPAS < 0) {
    InfosSalaries.bUtiliseTauxNeutre = true;
  } else {
    InfosSalaries.bUtiliseTauxNeutre = false;
    if (!InfosSalaries.bTauxPasValide) InfosSalaries.bUtiliseTauxNeutre = true;
  }

  if (InfosSalaries.bContratCourt && InfosSalaries.bUtiliseTauxNeutre) {
    dBase = dBase - dRechercheValeur_Constantes(gRsConstantes, "DEMISMIC");
    if (dBase < 0) dBase = 0;
  }

  // Kept as the hosts know it: a short-contract apprentice loses the allowance worked out
  // above, the threshold replaces the whole base.
  if (InfosSalaries.sCodeModele == "STAGIAIRE" || InfosSalaries.sCodeCategorie == "APPRENTI") {
    dBase = dSeuilPrelevementSource(InfosSalaries);
  }

  if (InfosSalaries.sCodeCategorie == "ELUS") {
    dBase = dBase - CalculPrelevementALaSource_CasParticulierElu(InfosSalaries, Rubrique);
    if (dBase < 0) dBase = 0;
  }

  InfosSalaries.dMontantBase_PAS = dBase;
  return dBase;
}

double MethodeCalculG_Nouv::dSeuilPrelevementSource(VarCalculSalarie& InfosSalaries) {
  const Date dPeriode = LireDate(gPeriodeEncours);
  double dCumul = 0;
  // The earlier months of the year: the lookup reads the month before the date it is given,
  // so month i before the pay month is asked with the date i - 1 months before it.
  for (int i = 1; i <= Mois(dPeriode) - 1; ++i) {
    double dValeur = 0;
    dRechercheValeurCumulHistorique(InfosSalaries.lIdSalarie, TexteDate(AjouteMois(dPeriode, 1 - i)),
                                    "NETIMPOS", dValeur, "", "S", 0);
    dCumul = dCumul + dValeur;
  }
  dCumul = dCumul + dRechercheValeurCumul("NETIMPOS", "S");

  const double dSmicAnnuel = dRechercheValeur_Constantes(gRsConstantes, "SMICANNUEL");
  if (dCumul < dSmicAnnuel) return 0;
  // Not bounded below: more already taxed than the excess gives a negative base.
  return dCumul - dSmicAnnuel - InfosSalaries.dMontantBaseDejaCotise_PAS;
}

double MethodeCalculG_Nouv::dMtIJImposable(VarCalculSalarie& InfosSalaries) {
  Recordset& rs = Source(InfosSalaries.rsIndemnitesJournalieres, "rsIndemnitesJournalieres");
  double dMontant = 0;
  if (rs.RecordCount() == 0) return dMontant;
  rs.MoveFirst();
  while (!rs.Eof()) {
    const Value v = rs.Field("IJPAS");
    if (!v.EstNull()) dMontant = dMontant + v.Nombre();
    rs.MoveNext();
  }
  return dMontant;
}

double MethodeCalculG_Nouv::dNetAPayerAvantPAS(VarCalculSalarie& InfosSalaries) {
  if (!InfosSalaries.bCollectiviteUtilisePrefigurationPAS) return 0;
  return dRechercheValeurCumul("TOTPASPREF", "S") + dRechercheValeurCumul("NETPAYER", "S");
}

}  // namespace orvalis
