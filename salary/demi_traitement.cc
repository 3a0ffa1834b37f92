// Half pay: the coefficient of the treatment paid for days of half pay or availability, the
// half-pay line with what it leaves for the supplementary allocation, the allocation lines,
// the family supplement of the availability days, and an amount prorated on half pay.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/dates.h"
#include "salary/demi_traitement_outils.h"
#include "salary/elements_cellules.h"

namespace orvalis {

namespace salaire {

namespace {

// Days from the start of a situation to the 1st of January 2006, when the situation is a
// half pay ("DT", "LD", "GD", "CD") or an availability ("DO") that has days in the month.
std::optional<long> JoursDeSituation(Int16 iDemiTraitement, Int16 iDispo,
                                     const std::string& sSituation,
                                     const std::string& sDateDebut) {
  const bool bDemiTraitement = sSituation == "DT" || sSituation == "LD" || sSituation == "GD" ||
                               sSituation == "CD";
  if (bDemiTraitement && iDemiTraitement > 0) {
    return DiffJours(LireDate(sDateDebut), LireDate("01/01/2006"));
  }
  if (sSituation == "DO" && iDispo > 0) {
    return DiffJours(LireDate(sDateDebut), LireDate("01/01/2006"));
  }
  return std::nullopt;
}

}  // namespace

bool EstCodeDisponibilite(const std::string& sCode) {
  return sCode == "INDCOSFT" || sCode == "INDCOBONIF" || sCode == "INDCOTRAIT" ||
         sCode == "INDCOIR";
}

Int16 JoursDeLaLigne(const Quart& q, const std::string& sCodeRubrique) {
  return EstCodeDisponibilite(sCodeRubrique) ? q.iDispoOffice : q.iDemiTraitement;
}

bool ADesJoursDeDemiTraitement(const std::vector<Quart>& cellules) {
  for (const Quart& q : cellules)
    if (q.iDemiTraitement != 0) return true;
  return ADesJoursDeDisponibilite(cellules);
}

bool ADesJoursDeDisponibilite(const std::vector<Quart>& cellules) {
  for (const Quart& q : cellules)
    if (q.iDispoOffice != 0) return true;
  return false;
}

void CoefficientDemiTraitement(MoteurCalcul& m, VarCalculSalarie& s, const std::string& sType,
                               Int16 iDemiTraitement, const std::vector<Quart>& cellules) {
  const bool bFamilleNombreuse = s.iEnfant_ACharge >= 3;
  double C = 0.5;
  if (sType == "A") {
    Int16 iDispo = 0;
    for (const Quart& q : cellules) iDispo = iDispo + q.iDispoOffice;
    std::optional<long> D =
        JoursDeSituation(iDemiTraitement, iDispo, s.sSituation1, s.sDateDebutSituation1);
    if (!D) D = JoursDeSituation(iDemiTraitement, iDispo, s.sSituation2, s.sDateDebutSituation2);
    // Only a situation begun more than 180 days before gives the allocation.
    if (D.value_or(0) > 180) {
      C = m.dRechercheValeur_Constantes(m.gRsConstantes,
                                        bFamilleNombreuse ? "TXALLCOMPM" : "TXALLCOMP") /
          100;
    } else {
      C = 0;
    }
  } else if (sType == "D") {
    C = bFamilleNombreuse ? 2.0 / 3.0 : 0.5;
  }
  s.dCoefficient_DemiTraitement = C;
}

std::vector<Int16> DemiMois::Jours(const std::string& sType,
                                   const std::string& sCodeRubrique) const {
  if (sCodeRubrique != "INDCOSFT")
    CoefficientDemiTraitement(m, s, sType, iDemiTraitementTotal, cellules);
  std::vector<Int16> N;
  for (const Quart& q : cellules) N.push_back(JoursDeLaLigne(q, sCodeRubrique));
  return N;
}

namespace {

// The sum of the line's days, as a rate.
double TotalDesJours(const std::vector<Int16>& N) {
  Int16 i = 0;
  for (Int16 n : N) i = i + n;
  return i.value();
}

}  // namespace

void RubriqueDemiTraitement(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                            const std::string& sType) {
  VarCalculSalarie& s = d.s;
  if (!ADesJoursDeDemiTraitement(d.cellules)) return;
  const std::vector<Int16> N = d.Jours(sType, Rubrique.sCodeRubrique);
  const double C = s.dCoefficient_DemiTraitement;

  // The treatment of each cell's days, on the year of its index and the treatment
  // coefficient of its hours.
  double M1 = 0, M2 = 0, dReel = 0;
  for (std::size_t i = 0; i < d.cellules.size(); ++i) {
    const Quart& q = d.cellules[i];
    const double x = q.dTraitement * q.dAnnuelPlein / 12 * N[i] / 30;
    M1 = M1 + C * x;
    M2 = M2 + 0.5 * x;
    dReel = dReel + q.dReel;
  }

  Rubrique.dBase = dReel;
  Rubrique.dTauxSalarial = TotalDesJours(N);
  // The difference above a half is kept for the allocation line, apart for availability.
  PaieLaMoitie(Rubrique, C, M1, M2, s.dMontantAllocationComplementaireMaladie,
               EstCodeDisponibilite(Rubrique.sCodeRubrique)
                   ? s.dMontantAllocationComplementaireDispo
                   : s.dMontantAllocationComplementaireMaladie);
}

void RubriqueSupplementFamilialIC(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                                  const std::string& sType, Int16 iDispoOfficeTotal) {
  if (!ADesJoursDeDisponibilite(d.cellules)) return;
  const std::vector<Int16> N = d.Jours(sType, Rubrique.sCodeRubrique);
  Rubrique.dBase = d.s.dMontant_SFT;
  Rubrique.dTauxSalarial = TotalDesJours(N);
  Rubrique.dMontantSalarial = iDispoOfficeTotal * d.s.dMontant_SFT / 30;
  SansPartPatronale(Rubrique);
}

void RubriqueIndemniteCoordination(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                                   const std::string& sType) {
  if (!ADesJoursDeDisponibilite(d.cellules)) return;
  const std::vector<Int16> N = d.Jours(sType, Rubrique.sCodeRubrique);
  // The line's days, then the cessation and progressive cessation days of every cell.
  Int16 iJours = 0;
  for (Int16 n : N) iJours = iJours + n;
  for (const Quart& q : d.cellules) iJours = iJours + q.iCFA;
  for (const Quart& q : d.cellules) iJours = iJours + q.iCPA;
  const VarCalculSalarie& s = d.s;
  Rubrique.dMontantSalarial = iJours * s.dIndResTotale / 30 * s.dCoefficient_DemiTraitement;
  Rubrique.dBase = s.dIndResTotale;
  Rubrique.dTauxSalarial = TotalDesJours(N);
  SansPartPatronale(Rubrique);
}

double MontantProratise(const VarCalculSalarie& s, const TotauxDuMois& t, double dMntInitial) {
  const Int16 iHorsTraitement =
      t.iDemiTraitement + t.iCFA + t.iDispoOffice + t.iCongeFormation + t.iCongeMaternite;
  const Int16 iADemi = t.iDemiTraitement + t.iDispoOffice + t.iCongeFormation;
  return (t.iPresence - iHorsTraitement) * dMntInitial / 30 +
         iADemi * dMntInitial * s.dCoefficient_DemiTraitement / 30;
}

}  // namespace salaire

namespace {

// The four quadrants of the current month, in their order, for the half-pay lines.
salaire::DemiMois QuatreQuarts(MethodeCalculG_Nouv& m, VarCalculSalarie& s) {
  return {m, s, {salaire::IATA(s), salaire::IATN(s), salaire::INTA(s), salaire::INTN(s)},
          s.iNBJ_DemiTraitement_Total};
}

}  // namespace

void MethodeCalculG_Nouv::CalculCoefficientDemiTraitement(VarCalculSalarie& InfosSalaries,
                                                          const std::string& sType) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::CoefficientDemiTraitement(*this, s, sType, s.iNBJ_DemiTraitement_Total,
                                     QuatreQuarts(*this, s).cellules);
}

void MethodeCalculG_Nouv::dCoefficientIndemnitaireDemiTraitement(
    VarCalculSalarie& InfosSalaries, Int16& iNbj_IATA, Int16& iNbj_IATN, Int16& iNbj_INTA,
    Int16& iNbj_INTN, const std::string& sType, const std::string& sCodeRubrique) {
  iNbj_IATA = 0;
  iNbj_IATN = 0;
  iNbj_INTA = 0;
  iNbj_INTN = 0;
  const std::vector<Int16> N = QuatreQuarts(*this, InfosSalaries).Jours(sType, sCodeRubrique);
  iNbj_IATA = N[0];
  iNbj_IATN = N[1];
  iNbj_INTA = N[2];
  iNbj_INTN = N[3];
}

void MethodeCalculG_Nouv::CalculRubrique_DemiTraitementIndiciaire(VarCalculSalarie& InfosSalaries,
                                                                  SalarieCalculRubrique& Rubrique,
                                                                  const std::string& sVariante) {
  salaire::RubriqueDemiTraitement(QuatreQuarts(*this, InfosSalaries), Rubrique, sVariante);
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
  salaire::RubriqueSupplementFamilialIC(QuatreQuarts(*this, InfosSalaries), Rubrique, sVariante,
                                        InfosSalaries.iNBJ_DispoOffice_Total);
}

void MethodeCalculG_Nouv::CalculRubrique_IndemniteCoordination(VarCalculSalarie& InfosSalaries,
                                                               SalarieCalculRubrique& Rubrique,
                                                               const std::string& sVariante) {
  salaire::RubriqueIndemniteCoordination(QuatreQuarts(*this, InfosSalaries), Rubrique, sVariante);
}

std::optional<double> MethodeCalculG_Nouv::dMontantProratiseSuivantDemiTraitement(
    VarCalculSalarie& InfosSalaries, double dMntInitial) {
  return salaire::MontantProratise(InfosSalaries, salaire::TotauxQuatreQuarts(InfosSalaries),
                                   dMntInitial);
}

}  // namespace orvalis
