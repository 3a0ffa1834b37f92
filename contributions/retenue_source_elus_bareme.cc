// Withholding on elected officials' allowances: the frame of a payment period and the tax
// scale of seven tranches.
#include <algorithm>
#include <string>

#include "contributions/elus_outils.h"
#include "contributions/retenue_source_elus.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/fault.h"

namespace orvalis {

namespace elus {

std::optional<double> CoefBareme(double dMoisPeriode, double dCodeBareme) {
  double dMoisBareme = 0;
  if (dCodeBareme == 1) dMoisBareme = 1;
  else if (dCodeBareme == 2) dMoisBareme = 3;
  else if (dCodeBareme == 5) dMoisBareme = 6;
  else if (dCodeBareme == 3) dMoisBareme = 12;
  else return std::nullopt;
  return dMoisPeriode / dMoisBareme;
}

}  // namespace elus

namespace {

// The suffix of the scale's constants by sEluBaremeImpot; none for a code out of the list.
std::optional<std::string> SuffixeConstante(double dCodeBareme) {
  if (dCodeBareme == 1) return "M";
  if (dCodeBareme == 2) return "T";
  if (dCodeBareme == 5) return "S";
  if (dCodeBareme == 3) return "";
  return std::nullopt;
}

}  // namespace

void elus::DonneesMandat(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries,
                         double& dFraisMandat, double& dPlafondPeriode, double& dPeriodesAn,
                         double& dMoisPeriode, double& dCoefBareme) {
  Recordset& rsFixes = Source(m.gRsConstantesFixes, "gRsConstantesFixes");
  const double dFraisAn = InfosSalaries.dIndiceMajoreM * rsFixes.Field("Point").Nombre() *
                          (rsFixes.Field("EluTxFrais").Nombre() / 100);
  const double dPlafSecu = rsFixes.Field("PlafSecu").Nombre();
  const std::string& sPeriodicite = InfosSalaries.sEluPeriodicite;
  if (sPeriodicite == "2") {
    dFraisMandat = dFraisAn / 4;
    dPlafondPeriode = dPlafSecu * 3;
    dPeriodesAn = 4;
    dMoisPeriode = 3;
  } else if (sPeriodicite == "3") {
    dFraisMandat = dFraisAn / 2;
    dPlafondPeriode = dPlafSecu * 6;
    dPeriodesAn = 2;
    dMoisPeriode = 6;
  } else if (sPeriodicite == "4") {
    dFraisMandat = dFraisAn;
    dPlafondPeriode = dPlafSecu * 12;
    dPeriodesAn = 1;
    dMoisPeriode = 12;
  } else {
    dFraisMandat = dFraisAn / 12;
    dPlafondPeriode = dPlafSecu;
    dPeriodesAn = 12;
    dMoisPeriode = 1;
  }

  const std::optional<double> dCoef =
      elus::CoefBareme(dMoisPeriode, Value(InfosSalaries.sEluBaremeImpot).Nombre());
  if (!dCoef) Faute("no periodicity of the tax scale for the code " + InfosSalaries.sEluBaremeImpot);
  dCoefBareme = *dCoef;
}

void MethodeCalculG_Nouv::CalculRetenueSource_DonneesMandat(VarCalculSalarie& InfosSalaries,
                                                            double& dFraisMandat,
                                                            double& dPlafondPeriode,
                                                            double& dPeriodesAn,
                                                            double& dMoisPeriode,
                                                            double& dCoefBareme) {
  elus::DonneesMandat(*this, InfosSalaries, dFraisMandat, dPlafondPeriode, dPeriodesAn,
                      dMoisPeriode, dCoefBareme);
}

void elus::Bareme(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double dNetImposable,
                  double dPeriodesAn, double& dTauxTranche, double& dTrancheBasse,
                  double& dTrancheHaute, double& dConstante) {
  auto Borne = [&](int k) { return m.ConstanteFixe("EluBorne" + std::to_string(k)); };
  auto Taux = [&](int k) { return m.ConstanteFixe("Elutaux" + std::to_string(k)); };

  int iTranche = 1;
  if (dNetImposable > Div(Borne(6), dPeriodesAn)) {
    // The top tranche has no upper limit: dTrancheHaute stays as given.
    dTauxTranche = Source(m.gRsConstantesFixes, "gRsConstantesFixes").Field("Elutaux7").Nombre();
    dTrancheBasse = Borne(6) / 12;
    iTranche = 7;
  } else {
    for (int k = 5; k >= 1 && iTranche == 1; --k) {
      if (dNetImposable > Div(Borne(k), dPeriodesAn)) {
        dTauxTranche = Taux(k + 1);
        dTrancheBasse = Borne(k) / 12;
        dTrancheHaute = Borne(k + 1) / 12;
        iTranche = k + 1;
      }
    }
    if (iTranche == 1) {
      dTauxTranche = Taux(1);
      dTrancheBasse = 0;
      dTrancheHaute = Borne(1) / 12;
    }
  }
  // The limits are shown as monthly figures in the detail, whatever the payment period.

  const std::optional<std::string> sSuffixe =
      SuffixeConstante(Value(InfosSalaries.sEluBaremeImpot).Nombre());
  if (sSuffixe) dConstante = m.ConstanteFixe("EluCste" + std::to_string(iTranche) + *sSuffixe);
}

void MethodeCalculG_Nouv::CalculRetenueSource_Bareme(VarCalculSalarie& InfosSalaries,
                                                     double dNetImposable, double dPeriodesAn,
                                                     double& dTauxTranche, double& dTrancheBasse,
                                                     double& dTrancheHaute, double& dConstante) {
  elus::Bareme(*this, InfosSalaries, dNetImposable, dPeriodesAn, dTauxTranche, dTrancheBasse,
               dTrancheHaute, dConstante);
}

void elus::LitTaux(MoteurCalcul& m, MontantsRetenue& t) {
  t.dTauxTA = m.dRechercheValeurTaux("IRCTRA");
  t.dTauxTB = m.dRechercheValeurTaux("IRCTRB");
  t.dTauxCsg = m.dRechercheValeurTaux("URSDCSG");
  t.dTauxUrssafTot = m.dRechercheValeurTaux("URSRGMAL") + m.dRechercheValeurTaux("URSRGVEU");
  t.dTauxUrssafPlaf = m.dRechercheValeurTaux("URSRGVIEP");
}

void elus::FraisPrincipal(MontantsRetenue& t, bool bMandats) {
  // A single mandate gets the full allowance, even above its net.
  if (t.dNetPrincipal > 0)
    t.dFraisTotal = bMandats ? std::min(t.dNetPrincipal, t.dFraisMandat) : t.dFraisMandat;
  t.dFraisPrincipal = t.dFraisTotal;
}

void elus::EcritMandat(Recordset& m, double dPlafond, double dCotisations, double dIrcA,
                       double dIrcB, double dCsg, double dNet) {
  m.SetField("MontantPlafond", Value(dPlafond));
  m.SetField("MontantCotisations", Value(dCotisations));
  m.SetField("MontantCotisationIrcantecTA", Value(dIrcA));
  m.SetField("MontantCotisationIrcantecTB", Value(dIrcB));
  m.SetField("MontantCotisationCSG", Value(dCsg));
  m.SetField("MontantRemunerationNette", Value(dNet));
  m.SetField("MontantTotalFraisInd", Value(0.0));
}

double elus::FraisMandat(MontantsRetenue& t, double dNetMandat) {
  if (dNetMandat <= 0) return 0;
  const double dFrais = std::min(dNetMandat, t.dFraisMandat);
  t.dFraisTotal += dFrais;
  return dFrais;
}

void elus::Impot(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double dPeriodesAn,
                 MontantsRetenue& t) {
  // All the mandates together get at most one and a half allowances.
  t.dFraisRetenus = std::min(t.dFraisTotal, t.dFraisMax);
  t.dNetBrutImposable = t.dNetMandats + t.dNetPrincipal - t.dFraisRetenus;
  Bareme(m, InfosSalaries, t.dNetBrutImposable, dPeriodesAn, t.dTauxTranche, t.dTrancheBasse,
         t.dTrancheHaute, t.dConstante);
  t.dNetRetenu = dTronqueAuPas(t.dNetBrutImposable, 1, false);
  t.dImpot = std::max(0.0, t.dTauxTranche * t.dNetRetenu - t.dCoefBareme * t.dConstante);
}

void elus::EcritLigne(SalarieCalculRubrique& Rubrique, const MontantsRetenue& t) {
  Rubrique.dBase = t.dNetRetenu;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = t.dImpot;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis
