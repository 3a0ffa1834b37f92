// Withholding on elected officials' allowances, historic method: the remuneration of the
// official in eight fixed slots, one ceiling ratio for the whole period, the same tax scale
// as the new method, and a detail table rsRetenueALaSource of one row, the slots as numbered
// columns.
#include <algorithm>
#include <array>
#include <string>

#include "contributions/elus_outils.h"
#include "contributions/retenue_source_elus.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

constexpr int kNbCases = 8;
using Cases = std::array<double, kNbCases>;

// A slot's variable and the factor that brings it to the payment period of 1, 3, 6 or 12
// months: monthly variables are multiplied, the others divided or multiplied by the ratio
// of the two periods.
struct CaseVariable {
  const char* sCode;
  double dMoisVariable;
};
constexpr std::array<CaseVariable, kNbCases - 1> kVariables = {{{"ELUSINDM", 1},
                                                               {"ELUSINDT", 3},
                                                               {"ELUSINDS", 6},
                                                               {"ELUSINDA", 12},
                                                               {"ELUSINDM2", 1},
                                                               {"ELUSINDM3", 1},
                                                               {"ELUSINDM4", 1}}};

// Months of a payment period by sEluPeriodicite read as a number: 1 monthly, 2 quarterly,
// 3 half-yearly, 4 yearly; any other number has none (0).
double MoisParPeriode(double dPeriodicite) {
  if (dPeriodicite == 1) return 1;
  if (dPeriodicite == 2) return 3;
  if (dPeriodicite == 3) return 6;
  if (dPeriodicite == 4) return 12;
  return 0;
}

// The slot's amount over the payment period: "/ 3" and "× 3" as the table of the slots
// writes them, so that a quarterly variable paid monthly is divided, not multiplied by 1/3.
double AuPeriode(double dValeur, double dMoisVariable, double dMoisPeriode) {
  if (dMoisPeriode == 0) return 0;
  if (dMoisPeriode >= dMoisVariable) return dValeur * (dMoisPeriode / dMoisVariable);
  return dValeur / (dMoisVariable / dMoisPeriode);
}

std::string Numero(const char* sColonne, int n) { return sColonne + std::to_string(n + 1); }

}  // namespace

RsRef elus::NouveauDetailRetenueSource() {
  std::vector<std::string> colonnes;
  for (const char* s : {"RemunerationBrute", "Ircantec_A", "Ircantec_B"})
    for (int n = 0; n < kNbCases; ++n) colonnes.push_back(Numero(s, n));
  colonnes.push_back("URSSAF1");
  for (const char* s : {"CsG", "RemunerationNette", "FraisEmploi"})
    for (int n = 0; n < kNbCases; ++n) colonnes.push_back(Numero(s, n));
  for (const char* s : {"NetImposable", "TotalFais", "FraisEmploiMax", "FraisEmploiRetenue",
                        "NetImposableRetenue", "TrancheImposition", "TrancheImposition2",
                        "TauxImposition", "ConstanteAbattement", "RetenueALaSource", "Impot"})
    colonnes.push_back(s);
  return NouveauRecordset(colonnes);
}

void elus::RetenueALaSource(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                            SalarieCalculRubrique& Rubrique, const RsRef& RsVariablesSalaries) {
  Rubrique.rsRetenueALaSource = NouveauDetailRetenueSource();
  Recordset& rsDetail = *Rubrique.rsRetenueALaSource;

  Cases dBrut{}, dIrcA{}, dIrcB{}, dCsg{}, dNet{}, dFrais{};
  double dUrssaf = 0, dFraisMandat = 0, dFraisMax = 0, dFraisTotal = 0, dFraisRetenus = 0;
  double dNetImposable = 0, dNetRetenu = 0, dImpot = 0, dCoefBareme = 0;
  double dTauxTranche = 0, dTrancheBasse = 0, dTrancheHaute = 0, dConstante = 0;

  const double dCodeBareme = Value(InfosSalaries.sEluBaremeImpot).Nombre();
  const double dPeriodicite = Value(InfosSalaries.sEluPeriodicite).Nombre();
  const double dMoisPeriode = MoisParPeriode(dPeriodicite);
  // sDateFin plays no part: a mandate ended within the period waits for its end.
  auto FinPeriode = [&] {
    return elus::FinDePeriode(static_cast<int>(dMoisPeriode), Mois(LireDate(m.gPeriodeEncours)));
  };
  if (dCodeBareme != 4 && FinPeriode()) {
    Recordset& rsFixes = Source(m.gRsConstantesFixes, "gRsConstantesFixes");
    const double dFraisAn = InfosSalaries.dIndiceMajoreM * rsFixes.Field("Point").Nombre() *
                            (rsFixes.Field("EluTxFrais").Nombre() / 100);
    if (dMoisPeriode != 0) dFraisMandat = dFraisAn / (12 / dMoisPeriode);
    dFraisMax = dFraisMandat * 1.5;

    const double dTauxTA = m.dRechercheValeurTaux("IRCTRA");
    const double dTauxTB = m.dRechercheValeurTaux("IRCTRB");
    const double dTauxCsg = m.dRechercheValeurTaux("URSDCSG");
    const double dTauxUrssafTot = m.dRechercheValeurTaux("URSRGMAL") + m.dRechercheValeurTaux("URSRGVEU");
    const double dTauxUrssafPlaf = m.dRechercheValeurTaux("URSRGVIEP");
    const double dCoefCsg = m.dRechercheValeur_Constantes(m.gRsConstantes, "~TXCSGPROF");
    const double dPlafond = rsFixes.Field("PlafSecu").Nombre() * dMoisPeriode;

    dBrut[0] = m.dRechercheValeurCumul("BRUT", "S") - m.dRechercheValeurCumul("BASERAPPEL", "S");
    for (int n = 1; n < kNbCases; ++n) {
      const CaseVariable& v = kVariables[n - 1];
      dBrut[n] = AuPeriode(m.dRechercheValeur_Variable(RsVariablesSalaries, v.sCode),
                           v.dMoisVariable, dMoisPeriode);
    }
    double dTotal = 0;
    for (double d : dBrut) dTotal += d;

    if (InfosSalaries.sCodeModele == "ELUMAIRESP") {
      const double dUrssafTot = m.dRechercheValeurCumul("ASSURSTOT", "S") * dTauxUrssafTot / 100;
      const double dUrssafPlaf = m.dRechercheValeurCumul("ASSURSPLA", "S") * dTauxUrssafPlaf / 100;
      dUrssaf = dUrssafTot + dUrssafPlaf;
    }

    for (int n = 0; n < kNbCases; ++n) {
      const double X = dBrut[n];
      const double dTrancheA = elus::TrancheAProrata(X, dPlafond, dTotal);
      const double dTrancheB = X - dTrancheA;
      dIrcA[n] = dTauxTA * dTrancheA / 100;
      dIrcB[n] = dTauxTB * dTrancheB / 100;
      dCsg[n] = X * dCoefCsg * dTauxCsg / 100;
      dNet[n] = X - (dIrcA[n] + dIrcB[n] + dCsg[n]);
    }
    dNet[0] -= dUrssaf;  // only the principal slot bears URSSAF

    for (int n = 0; n < kNbCases; ++n) {
      dFrais[n] = dNet[n] > 0 ? std::min(dNet[n], dFraisMandat) : 0;
      dFraisTotal += dFrais[n];
    }
    dFraisRetenus = std::min(dFraisTotal, dFraisMax);

    for (double d : dNet) dNetImposable += d;
    dNetImposable -= dFraisRetenus;
    const double dPeriodesAn = dMoisPeriode == 0 ? 0 : 12 / dMoisPeriode;
    Bareme(m, InfosSalaries, dNetImposable, dPeriodesAn, dTauxTranche, dTrancheBasse,
           dTrancheHaute, dConstante);
    // A scale code out of the list leaves the coefficient at 0.
    dCoefBareme = elus::CoefBareme(dMoisPeriode, dCodeBareme).value_or(0);

    dNetRetenu = dTronqueAuPas(dNetImposable, 1, false);
    dImpot = std::max(0.0, dTauxTranche * dNetRetenu - dCoefBareme * dConstante);
  }

  // The detail shows the amounts per month; the tax lines stand as worked out.
  const double M = dMoisPeriode;
  rsDetail.AddNew();
  double dNetsParMois = 0;
  for (int n = 0; n < kNbCases; ++n) {
    rsDetail.SetField(Numero("RemunerationBrute", n), Value(Div(dBrut[n], M)));
    rsDetail.SetField(Numero("Ircantec_A", n), Value(Div(dIrcA[n], M)));
    rsDetail.SetField(Numero("Ircantec_B", n), Value(Div(dIrcB[n], M)));
    rsDetail.SetField(Numero("CsG", n), Value(Div(dCsg[n], M)));
    rsDetail.SetField(Numero("RemunerationNette", n), Value(Div(dNet[n], M)));
    rsDetail.SetField(Numero("FraisEmploi", n), Value(Div(dFrais[n], M)));
    dNetsParMois += Div(dNet[n], M);
  }
  rsDetail.SetField("URSSAF1", Value(Div(dUrssaf, M)));
  rsDetail.SetField("NetImposable", Value(dNetsParMois));
  rsDetail.SetField("TotalFais", Value(Div(dFraisTotal, M)));
  rsDetail.SetField("FraisEmploiMax", Value(Div(dFraisMax, M)));
  rsDetail.SetField("FraisEmploiRetenue", Value(Div(dFraisRetenus, M)));
  rsDetail.SetField("NetImposableRetenue", Value(dTronqueAuPas(Div(dNetImposable, M), 1, false)));
  rsDetail.SetField("TrancheImposition", Value(dTrancheBasse));
  rsDetail.SetField("TrancheImposition2", Value(dTrancheHaute));
  rsDetail.SetField("TauxImposition", Value(dTauxTranche * 100));
  rsDetail.SetField("ConstanteAbattement", Value(dCoefBareme * dConstante));
  rsDetail.SetField("RetenueALaSource", Value(dImpot));
  rsDetail.SetField("Impot", Value(dImpot));

  Rubrique.dBase = dNetRetenu;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = dImpot;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

RsRef MethodeCalculG_Nouv::EnregistreDetailRetenueSource() {
  return elus::NouveauDetailRetenueSource();
}

void MethodeCalculG_Nouv::CalculRubrique_Retenue_a_la_source(VarCalculSalarie& InfosSalaries,
                                                             SalarieCalculRubrique& Rubrique,
                                                             const RsRef& RsVariablesSalaries) {
  elus::RetenueALaSource(*this, InfosSalaries, Rubrique, RsVariablesSalaries);
}

}  // namespace orvalis
