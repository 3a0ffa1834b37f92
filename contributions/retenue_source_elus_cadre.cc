// The frame of the officials' withholding, new method, in both its forms: the detail table,
// the opted official at the end of his payment period, its frame, rates and principal gross,
// the tax from the nets, the detail rows and the pay line.
#include "contributions/elus_outils.h"
#include "contributions/retenue_source_elus.h"

namespace orvalis {

void elus::RetenueNouvelleMethode(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                                  SalarieCalculRubrique& Rubrique, const RsRef& rsDetailNeuf,
                                  FormeDetail forme, const std::function<bool()>& bFinPeriode,
                                  const std::function<void(MontantsRetenue&, Recordset&)>& calcul) {
  MontantsRetenue t;  // every amount at 0, one month a period
  Rubrique.rsRetenueALaSourceNouvelleMethode = rsDetailNeuf;
  Recordset& rsDetail = *Rubrique.rsRetenueALaSourceNouvelleMethode;
  Recordset& rsAutres = Source(InfosSalaries.rsAutresIndemnites, "rsAutresIndemnites");

  // Calculated when the official has opted for the withholding (iEluChoixImpot neither 1
  // nor 2), when his payment period ends.
  const bool bOpte = InfosSalaries.iEluChoixImpot != 1 && InfosSalaries.iEluChoixImpot != 2;
  if (bOpte && bFinPeriode()) {
    double dPeriodesAn = 0;
    DonneesMandat(m, InfosSalaries, t.dFraisMandat, t.dPlafondPeriode, dPeriodesAn,
                  t.dMoisPeriode, t.dCoefBareme);
    t.dFraisMax = t.dFraisMandat * 1.5;
    LitTaux(m, t);
    t.dBrutPrincipal = m.dRechercheValeurCumul("BRUT", "S") -
                       m.dRechercheValeurCumul("BASERAPPEL", "S");
    calcul(t, rsAutres);
    Impot(m, InfosSalaries, dPeriodesAn, t);
  }

  EcritDetailNouvelleMethode(rsDetail, rsAutres, t, forme);
  EcritLigne(Rubrique, t);
}

}  // namespace orvalis
