// The officials' withholding "RETENUE A LA SOURCE NOUVELLE METHODE" in its earlier form: the
// principal remuneration and every row of the mandates split into IRCANTEC tranches by one
// ratio to the period's ceiling, URSSAF on the principal remuneration of a mayor alone, no
// employer's pension, and the same tax scale as the current engine.
#include "contributions/elus_outils.h"
#include "contributions/retenue_source_elus.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

// One mandate row: its tranches on the ratio of the period, its IRCANTEC, CSG and net
// written back into it; its net and its expenses join the totals.
void CalculeMandat(Recordset& m, double dTotal, elus::MontantsRetenue& t) {
  const double dBrut = m.Field("MontantRemunerationBrute").Nombre();
  const double dTrancheA = elus::TrancheAProrata(dBrut, t.dPlafondPeriode, dTotal);
  const double dTrancheB = dBrut - dTrancheA;
  const double dIrcA = t.dTauxTA * dTrancheA / 100;
  const double dIrcB = t.dTauxTB * dTrancheB / 100;
  const double dCsg = dBrut * t.dCoefCsg * t.dTauxCsg / 100;
  const double dCotisations = dIrcA + dIrcB + dCsg;
  const double dNet = dBrut - dCotisations;
  t.dNetMandats += dNet;

  // Tranche A stands in the row's ceiling column.
  elus::EcritMandat(m, dTrancheA, dCotisations, dIrcA, dIrcB, dCsg, dNet);
  if (dNet > 0) m.SetField("MontantTotalFraisInd", Value(elus::FraisMandat(t, dNet)));
}

// The principal remuneration and every row of the mandates on the ratio of the period's
// ceiling to the remuneration of reference; URSSAF on a mayor's principal remuneration.
void PrincipalEtMandats(MoteurCalcul& e, const VarCalculSalarie& InfosSalaries,
                        elus::MontantsRetenue& t, Recordset& rsAutres) {
  t.dCoefCsg = e.dRechercheValeur_Constantes(e.gRsConstantes, "~TXCSGPROF");
  // The remuneration of reference: every allowance of the period and the principal one.
  double dMontantTotalIndemnites = 0;
  elus::PourChaqueLigne(rsAutres, [&](Recordset& m) {
    dMontantTotalIndemnites += m.Field("MontantRemunerationBrute").Nombre();
  });
  const double dTotal = dMontantTotalIndemnites + t.dBrutPrincipal;

  const double dTrancheA = elus::TrancheAProrata(t.dBrutPrincipal, t.dPlafondPeriode, dTotal);
  t.dIrcA = t.dTauxTA * dTrancheA / 100;
  t.dIrcB = t.dTauxTB * (t.dBrutPrincipal - dTrancheA) / 100;
  if (InfosSalaries.sCodeModele == "ELUMAIRESP") {
    t.dUrssafTot = e.dRechercheValeurCumul("ASSURSTOT", "S") * t.dTauxUrssafTot / 100;
    t.dUrssafPlaf = t.dTauxUrssafPlaf * e.dRechercheValeurCumul("ASSURSPLA", "S") / 100;
    t.dUrssaf = t.dUrssafTot + t.dUrssafPlaf;
  }
  t.dCsg = t.dBrutPrincipal * t.dCoefCsg * t.dTauxCsg / 100;
  t.dNetPrincipal = t.dBrutPrincipal - (t.dIrcA + t.dIrcB + t.dCsg + t.dUrssaf);
  elus::FraisPrincipal(t, rsAutres.RecordCount() > 0);

  elus::PourChaqueLigne(rsAutres, [&](Recordset& m) { CalculeMandat(m, dTotal, t); });
}

}  // namespace

RsRef MethodeCalculG::EnregistreDetailRetenueSource_NouvelleMethode() {
  return NouveauRecordset(elus::ColonnesDetailNouvelleMethode(elus::FormeDetail::kHistorique));
}

void MethodeCalculG::CalculRetenueSource_DonneesMandat(VarCalculSalarie& InfosSalaries,
                                                       double& dFraisMandat,
                                                       double& dPlafondPeriode,
                                                       double& dPeriodesAn, double& dMoisPeriode,
                                                       double& dCoefBareme) {
  elus::DonneesMandat(*this, InfosSalaries, dFraisMandat, dPlafondPeriode, dPeriodesAn,
                      dMoisPeriode, dCoefBareme);
}

void MethodeCalculG::CalculRetenueSource_Bareme(VarCalculSalarie& InfosSalaries,
                                                double dNetImposable, double dPeriodesAn,
                                                double& dTauxTranche, double& dTrancheBasse,
                                                double& dTrancheHaute, double& dConstante) {
  elus::Bareme(*this, InfosSalaries, dNetImposable, dPeriodesAn, dTauxTranche, dTrancheBasse,
               dTrancheHaute, dConstante);
}

void MethodeCalculG::CalculRubrique_Retenue_a_la_source_NouvelleMethode(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
    const RsRef& /*RsVariablesSalaries*/) {
  // The month test alone: a mandate ended within the period waits for its end.
  const auto FinPeriode = [&] {
    return elus::FinDePeriode(elus::MoisDeLaPeriode(InfosSalaries.sEluPeriodicite),
                              Mois(LireDate(gPeriodeEncours)));
  };
  elus::RetenueNouvelleMethode(
      *this, InfosSalaries, Rubrique, EnregistreDetailRetenueSource_NouvelleMethode(),
      elus::FormeDetail::kHistorique, FinPeriode,
      [&](elus::MontantsRetenue& t, Recordset& rsAutres) {
        PrincipalEtMandats(*this, InfosSalaries, t, rsAutres);
      });
}

}  // namespace orvalis
