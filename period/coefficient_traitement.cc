// The treatment coefficient: the share of a full-time treatment that the post gives, on the
// current month's values and on the previous month's.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "period/periode_outils.h"
#include "period/presence_outils.h"

namespace orvalis {

namespace {

// The part-time quotity: 80 % and 90 % are paid 6/7 and 32/35 of a full time.
double Quotite(double dTaux) {
  if (dTaux == 80) return 6.0 / 7.0;
  if (dTaux == 90) return 32.0 / 35.0;
  return dTaux / 100;
}

// The days of therapeutic part-time of the month count as full time.
double CalculCoefficientAbsencesTpt(MethodeCalculG_Nouv& m, VarCalculSalarie& InfosSalaries,
                                    double dCoefficient) {
  static const std::vector<std::string> kCodes = {"MI", "M6", "M7", "M8", "M9", "MV"};
  // The missing blank before the fourth OR is how hosts have always received it.
  static const std::string kCritere =
      "CodeSituationExceptionnelle = 'MI' OR CodeSituationExceptionnelle = 'M6' OR "
      "CodeSituationExceptionnelle = 'M7'OR CodeSituationExceptionnelle = 'M8' OR "
      "CodeSituationExceptionnelle = 'M9' OR CodeSituationExceptionnelle = 'MV'";
  const bool bSansLigne =
      Source(InfosSalaries.rsSituationsExceptionnelles, "rsSituationsExceptionnelles")
          .RecordCount() <= 0;
  if (bSansLigne) return dCoefficient;

  double dJours = 0;
  periode::ParcourtSituations(InfosSalaries, kCodes, [&](Recordset& rs) {
    const std::string& sPeriode = m.gPeriodeEncours;
    Date dDebut = LireDate("01" + sPeriode.substr(sPeriode.size() < 8 ? 0 : sPeriode.size() - 8));
    const std::string sFinMois = TexteDate(DernierJourDuMois(LireDate(sPeriode)));
    Date dFin = LireDate(sFinMois);
    // A month of 28, 29 or 30 days gets the day that its difference misses; a month of 31
    // days already has it.
    const std::string sJourFin = sFinMois.substr(0, 2);
    const int k = (sJourFin == "28" || sJourFin == "29" || sJourFin == "30") ? 1 : 0;

    const periode::Situation s = periode::LitSituation(rs);
    const Date dDebutSituation = LireDate(s.sDateDebut);
    if (DiffJours(dDebut, dDebutSituation) > 0) dDebut = dDebutSituation;
    if (!s.sDateFin.empty()) {
      const Date dFinSituation = LireDate(s.sDateFin);
      if (DiffJours(dFin, dFinSituation) < 0) dFin = dFinSituation;
    }
    dJours = dJours + static_cast<double>(DiffJours(dDebut, dFin)) + k;
  }, kCritere);
  return ((30 - dJours) * dCoefficient + dJours) / 30;
}

}  // namespace

void periode::CoefficientOccupationPoste(const ValeursPoste& v,
                                         const std::function<double(double)>& corrigeTpt,
                                         double& dCoefficientTraitement,
                                         double& dCoefficientTraitementTNCAvantTP,
                                         double& dCoefficientTraitementSiTNC) {
  dCoefficientTraitement = 0;
  dCoefficientTraitementTNCAvantTP = 0;
  dCoefficientTraitementSiTNC = 0;
  const double dDuree = v.dDureeLegale > 0 ? v.dDureeLegale : 35;

  if (v.sOccupation == "P") {
    dCoefficientTraitement = corrigeTpt(Quotite(v.dTauxPoste));
  } else if (v.sOccupation == "T") {
    dCoefficientTraitementSiTNC = Quotite(v.dTauxPosteTNC);
    dCoefficientTraitementTNCAvantTP = v.dHeuresOrigineTNC / dDuree;
    dCoefficientTraitement = dCoefficientTraitementTNCAvantTP * dCoefficientTraitementSiTNC;
    // Only the part-time share is corrected: the product keeps the uncorrected value.
    dCoefficientTraitementSiTNC = corrigeTpt(dCoefficientTraitementSiTNC);
  } else if (v.iTypeCalculHeure == 1) {
    dCoefficientTraitement = v.dHeuresHebdo / dDuree;
  } else if (v.dDureeLegale > 0) {
    dCoefficientTraitement = Div(v.dHeuresMois, Arrondi(v.dDureeLegale * 151.67 / 35, 2));
  } else {
    dCoefficientTraitement = v.dHeuresMois / 151.67;
  }
}

void MethodeCalculG_Nouv::CalculCoefficientTraitementEnFonctionOccupationPoste(
    VarCalculSalarie& InfosSalaries, bool bMoisEnCours, double& dCoefficientTraitement,
    double& dCoefficientTraitementTNCAvantTP, double& dCoefficientTraitementSiTNC) {
  const VarCalculSalarie& s = InfosSalaries;
  const periode::ValeursPoste v =
      bMoisEnCours
          ? periode::ValeursPosteDuMois(s)
          : periode::ValeursPoste{s.sOccupationPosteMoisPrec, s.dTauxPosteMoisPrec,
                                  s.dTauxPosteTNCMoisPrec,    s.dHeuresHebdoMoisPrec,
                                  s.dHeuresMensMoisPrec,      s.dHeuresHebdoOrigineTNCMoisPrec,
                                  s.iTypeCalculHeureMoisPrec, s.dDureeHebdoLegaleMoisPrec};
  periode::CoefficientOccupationPoste(
      v, [&](double d) { return CalculCoefficientAbsencesTpt(*this, InfosSalaries, d); },
      dCoefficientTraitement, dCoefficientTraitementTNCAvantTP, dCoefficientTraitementSiTNC);
}

void periode::CoefficientTraitementElus(VarCalculSalarie& s) {
  s.dCoefficient_Traitement = s.dTauxMaire / 100;
  if (s.dTauxEPCI > 0) s.dCoefficient_Traitement = s.dTauxEPCI * s.dCoefficient_Traitement / 100;
}

void MethodeCalculG_Nouv::CalculCoefficientTraitement(VarCalculSalarie& InfosSalaries) {
  const std::string& sModele = InfosSalaries.sTypeModele;
  if (sModele == "INDNTI" || sModele == "INDTIT") {
    CalculCoefficientTraitementEnFonctionOccupationPoste(
        InfosSalaries, true, InfosSalaries.dCoefficient_TraitementTN,
        InfosSalaries.dCoefficientTraitementTNCAvantTP,
        InfosSalaries.dCoefficientTraitementTPSiTNC);
    CalculCoefficientTraitementEnFonctionOccupationPoste(
        InfosSalaries, false, InfosSalaries.dCoefficient_TraitementTA,
        InfosSalaries.dCoefficientTraitementTNCAvantTPMoisPrec,
        InfosSalaries.dCoefficientTraitementTPSiTNCMoisPrec);
  } else if (sModele == "ELUS") {
    periode::CoefficientTraitementElus(InfosSalaries);
  } else {
    InfosSalaries.dCoefficient_TraitementTA = 0;
    InfosSalaries.dCoefficient_TraitementTN = 0;
    InfosSalaries.dCoefficient_Traitement = 0;
  }
}

}  // namespace orvalis
