// Half pay: the coefficient of the treatment paid for days of half pay or availability, the
// half-pay line with what it leaves for the supplementary allocation, the allocation lines,
// the family supplement of the availability days, and an amount prorated on half pay.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/dates.h"
#include "salary/demi_traitement_outils.h"
#include "salary/traitement_outils.h"

namespace orvalis {

namespace {

bool EstCodeDisponibilite(const std::string& sCode) {
  return sCode == "INDCOSFT" || sCode == "INDCOBONIF" || sCode == "INDCOTRAIT" ||
         sCode == "INDCOIR";
}

// Days from the start of a situation to the 1st of January 2006, when the situation is a
// half pay ("DT", "LD", "GD", "CD") or an availability ("DO") that has days in the month.
std::optional<long> JoursDeSituation(const VarCalculSalarie& s, const std::string& sSituation,
                                     const std::string& sDateDebut) {
  const bool bDemiTraitement = sSituation == "DT" || sSituation == "LD" || sSituation == "GD" ||
                               sSituation == "CD";
  if (bDemiTraitement && s.iNBJ_DemiTraitement_Total > 0) {
    return DiffJours(LireDate(sDateDebut), LireDate("01/01/2006"));
  }
  const Int16 iDispo = s.iNBJ_DispoOfficeIATA + s.iNBJ_DispoOfficeINTN + s.iNBJ_DispoOfficeIATN +
                       s.iNBJ_DispoOfficeINTA;
  if (sSituation == "DO" && iDispo > 0) {
    return DiffJours(LireDate(sDateDebut), LireDate("01/01/2006"));
  }
  return std::nullopt;
}

}  // namespace

void MethodeCalculG_Nouv::CalculCoefficientDemiTraitement(VarCalculSalarie& InfosSalaries,
                                                          const std::string& sType) {
  VarCalculSalarie& s = InfosSalaries;
  const bool bFamilleNombreuse = s.iEnfant_ACharge >= 3;
  double C = 0.5;
  if (sType == "A") {
    std::optional<long> D = JoursDeSituation(s, s.sSituation1, s.sDateDebutSituation1);
    if (!D) D = JoursDeSituation(s, s.sSituation2, s.sDateDebutSituation2);
    // Only a situation begun more than 180 days before gives the allocation.
    if (D.value_or(0) > 180) {
      C = dRechercheValeur_Constantes(gRsConstantes, bFamilleNombreuse ? "TXALLCOMPM" : "TXALLCOMP") /
          100;
    } else {
      C = 0;
    }
  } else if (sType == "D") {
    C = bFamilleNombreuse ? 2.0 / 3.0 : 0.5;
  }
  s.dCoefficient_DemiTraitement = C;
}

void MethodeCalculG_Nouv::dCoefficientIndemnitaireDemiTraitement(
    VarCalculSalarie& InfosSalaries, Int16& iNbj_IATA, Int16& iNbj_IATN, Int16& iNbj_INTA,
    Int16& iNbj_INTN, const std::string& sType, const std::string& sCodeRubrique) {
  VarCalculSalarie& s = InfosSalaries;
  iNbj_IATA = 0;
  iNbj_IATN = 0;
  iNbj_INTA = 0;
  iNbj_INTN = 0;
  if (sCodeRubrique != "INDCOSFT") CalculCoefficientDemiTraitement(s, sType);
  if (EstCodeDisponibilite(sCodeRubrique)) {
    iNbj_IATA = s.iNBJ_DispoOfficeIATA;
    iNbj_IATN = s.iNBJ_DispoOfficeIATN;
    iNbj_INTA = s.iNBJ_DispoOfficeINTA;
    iNbj_INTN = s.iNBJ_DispoOfficeINTN;
  } else {
    iNbj_IATA = s.iNBJ_DemiTraitementIATA;
    iNbj_IATN = s.iNBJ_DemiTraitementIATN;
    iNbj_INTA = s.iNBJ_DemiTraitementINTA;
    iNbj_INTN = s.iNBJ_DemiTraitementINTN;
  }
}

void MethodeCalculG_Nouv::CalculRubrique_DemiTraitementIndiciaire(VarCalculSalarie& InfosSalaries,
                                                                  SalarieCalculRubrique& Rubrique,
                                                                  const std::string& sVariante) {
  VarCalculSalarie& s = InfosSalaries;
  if (!salaire::ADesJoursDeDemiTraitement(s)) return;
  const salaire::JoursParQuart N = salaire::JoursDeLaLigne(*this, s, sVariante, Rubrique);
  const double C = s.dCoefficient_DemiTraitement;

  // The treatment of each quadrant's days: old index on the previous year's amount, old
  // hours on the previous treatment coefficient.
  const double X[4] = {
      s.dCoefficient_TraitementTA * s.dSalarie_AnnuelPleinA / 12 * N.iata / 30,
      s.dCoefficient_TraitementTN * s.dSalarie_AnnuelPleinA / 12 * N.iatn / 30,
      s.dCoefficient_TraitementTA * s.dSalarie_AnnuelPlein / 12 * N.inta / 30,
      s.dCoefficient_TraitementTN * s.dSalarie_AnnuelPlein / 12 * N.intn / 30,
  };
  double M1 = 0, M2 = 0;
  for (double x : X) {
    M1 = M1 + C * x;
    M2 = M2 + 0.5 * x;
  }

  Rubrique.dBase = s.dSalaire_MensuelReelIATA + s.dSalaire_MensuelReelIATN +
                   s.dSalaire_MensuelReelINTA + s.dSalaire_MensuelReelINTN;
  Rubrique.dTauxSalarial = N.Total();
  // The difference above a half is kept for the allocation line, apart for availability.
  salaire::PaieLaMoitie(Rubrique, C, M1, M2, s.dMontantAllocationComplementaireMaladie,
                        EstCodeDisponibilite(Rubrique.sCodeRubrique)
                            ? s.dMontantAllocationComplementaireDispo
                            : s.dMontantAllocationComplementaireMaladie);
}

void MethodeCalculG_Nouv::CalculRubrique_AllocationComplementaireMaladie(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  const double dAllocation = Rubrique.sCodeRubrique == "INDCOCOMPLDEMI"
                                 ? InfosSalaries.dMontantAllocationComplementaireDispo
                                 : InfosSalaries.dMontantAllocationComplementaireMaladie;
  salaire::LigneAllocation(InfosSalaries, Rubrique, dAllocation);
}

void MethodeCalculG_Nouv::CalculRubrique_AllocationComplementaireMaladieNbi(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  salaire::LigneAllocation(InfosSalaries, Rubrique,
                           InfosSalaries.dMontantAllocationComplementaireMaladieNBI);
}

void MethodeCalculG_Nouv::CalculRubrique_SupplementFamilialIC(VarCalculSalarie& InfosSalaries,
                                                              SalarieCalculRubrique& Rubrique,
                                                              const std::string& sVariante) {
  VarCalculSalarie& s = InfosSalaries;
  if (s.iNBJ_DispoOfficeIATA == 0 && s.iNBJ_DispoOfficeIATN == 0 && s.iNBJ_DispoOfficeINTA == 0 &&
      s.iNBJ_DispoOfficeINTN == 0) {
    return;
  }
  const salaire::JoursParQuart N = salaire::JoursDeLaLigne(*this, s, sVariante, Rubrique);
  Rubrique.dBase = s.dMontant_SFT;
  Rubrique.dTauxSalarial = N.Total();
  Rubrique.dMontantSalarial = s.iNBJ_DispoOffice_Total * s.dMontant_SFT / 30;
  salaire::SansPartPatronale(Rubrique);
}

std::optional<double> MethodeCalculG_Nouv::dMontantProratiseSuivantDemiTraitement(
    VarCalculSalarie& InfosSalaries, double dMntInitial) {
  const VarCalculSalarie& s = InfosSalaries;
  const Int16 iHorsTraitement = s.iNBJ_DemiTraitement_Total + s.iNBJ_CFA_Total +
                                s.iNBJ_DispoOffice_Total + s.iNBJ_CongeFormation_Total +
                                s.iNBJ_CongeMaterniteTempsComplet_Total;
  const Int16 iADemi =
      s.iNBJ_DemiTraitement_Total + s.iNBJ_DispoOffice_Total + s.iNBJ_CongeFormation_Total;
  return (s.iNBJ_Presence_Total - iHorsTraitement) * dMntInitial / 30 +
         iADemi * dMntInitial * s.dCoefficient_DemiTraitement / 30;
}

}  // namespace orvalis
