// Officials' allowances on the reference index: the month of a paid period, the earlier
// months of the period at their own point and index, on the new or the former rate.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "orvalis/value.h"
#include "salary/elus_outils.h"

namespace orvalis {

namespace {

// One side of the change of rate in the month: its share of the month, its days of
// presence and those of the other side.
struct Cote {
  double dCoefficient;
  Int16 iJours;
  Int16 iJoursAutre;
};

Cote CoteDuTaux(const VarCalculSalarie& s, bool bAncien) {
  if (bAncien) return {s.dCoefficient_IAncien, s.iNBJ_PresenceA, s.iNBJ_PresenceN};
  return {s.dCoefficient_INouveau, s.iNBJ_PresenceN, s.iNBJ_PresenceA};
}

// The days present out of the days of this side; dMontant stands when this side fills the
// whole month's other side (30 days).
double SurJoursPresents(double dMontant, const Cote& c) {
  const Int16 iJoursCote = 30 - c.iJoursAutre;
  if (iJoursCote == 0) return dMontant;
  return c.iJours * dMontant / iJoursCote;
}

// The treatment fields of one side of the rate.
struct ChampsTraitement {
  double& dPlein;
  double& dReel;
  double& dMensuel;
};

ChampsTraitement Champs(VarCalculSalarie& s, bool bAncien) {
  if (bAncien) return {s.dSalarie_MensuelPleinA, s.dSalarie_MensuelReelA, s.dSalarie_MensuelA};
  return {s.dSalarie_MensuelPleinN, s.dSalarie_MensuelReelN, s.dSalarie_MensuelN};
}

// The month itself on one side of the rate R: full month, real month, days present.
void MoisDuTaux(MethodeCalculG_Nouv& m, VarCalculSalarie& s, bool bAncien, double R) {
  const ChampsTraitement t = Champs(s, bAncien);
  t.dPlein = elus::PleinSurIndiceDuMois(m, s);
  m.CalculCoefficientUtilisationTauxElus(s, m.gPeriodeEncours);
  const Cote c = CoteDuTaux(s, bAncien);
  t.dReel = c.dCoefficient * t.dPlein * R;
  if (30 - c.iJoursAutre != 0) t.dMensuel = SurJoursPresents(t.dReel, c);
}

// The earlier months of the period, each at its own point and index. The new rate runs
// from the month of the change; the former rate (chosen: the mirror) up to it, from the
// month of entry. The month of the change adds its own side's share.
double MoisAnterieursDuTaux(MethodeCalculG_Nouv& m, VarCalculSalarie& s, bool bAncien,
                            double dTaux, int K) {
  if (K <= 0) return 0;
  const Date dPeriode = LireDate(m.gPeriodeEncours);
  const Date dChangement = PremierJourDuMois(LireDate(s.sDateChangementTauxElus));
  double dTotal = 0;
  for (int i = 1; i <= K; ++i) {
    const Date D = PremierJourDuMois(AjouteMois(dPeriode, -i));
    if (!bAncien && D < dChangement) break;
    if (bAncien) {
      if (D < PremierJourDuMois(LireDate(s.sDateDebut))) break;
      if (D > dChangement) continue;
    }
    double X = 0;
    m.dRechercheIndMajEluPeriode(s, m.gPeriodeEncours, std::to_string(i), X, dTaux);
    if (D == dChangement) {
      const std::string sD = TexteDate(D);
      m.CalculCoefficientUtilisationTauxElus(s, sD);
      m.CalculNombreJourPresence(s, sD);
      const Cote c = CoteDuTaux(s, bAncien);
      X = SurJoursPresents(X * c.dCoefficient, c);
    }
    dTotal += X;
  }
  return dTotal;
}

// A line of a paid period on one side of the rate.
void TraitementPeriode(MethodeCalculG_Nouv& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                       bool bAncien) {
  // The former rate's line is paid on the period's last month alone.
  if (!elus::MoisPaye(s, m.gPeriodeEncours, !bAncien)) return;
  s.dIndiceMajoreM = m.dRechercheValeur_Constantes(m.gRsConstantes, "INDMAJELU");
  const double R = bAncien ? elus::CoefficientTaux(s.dTauxMairePrecedent, s.dTauxEPCIPrecedent)
                           : s.dCoefficient_Traitement;
  MoisDuTaux(m, s, bAncien, R);
  const ChampsTraitement t = Champs(s, bAncien);

  // The host gave the period's amount itself.
  const double dDonne = bAncien ? s.dTraitementEluNonMensuelPrecedent : s.dTraitementEluNonMensuel;
  if (dDonne != 0) {
    elus::Ligne(r, t.dPlein, s.dIndiceMajoreM, dDonne);
    return;
  }

  const int K = elus::MoisAnterieurs(s, m.gPeriodeEncours, !bAncien);
  t.dMensuel = t.dMensuel + MoisAnterieursDuTaux(m, s, bAncien, bAncien ? R : -1, K);
  elus::Ligne(r, t.dPlein, s.dIndiceMajoreM, t.dMensuel);

  if (K > 0) {
    // Back to this month's shares and days for the lines that follow (chosen: the shares
    // too, which a month of change in the loop has left on that month).
    m.CalculCoefficientUtilisationTauxElus(s, m.gPeriodeEncours);
    m.CalculNombreJourPresence(s, "");
  }
}

}  // namespace

double MethodeCalculG_Nouv::dRechercheIndMajElu(double& dValeur, const std::string& sPeriode,
                                                const std::string& sDecalage) {
  const std::string sCle = elus::CleMoisAnterieur(sPeriode, CLng(Value(sDecalage).Nombre()));
  if (dValeur != 0) return dValeur;
  if (sCle < "200611") {
    dValeur = 820;
  } else if (sCle < "201701") {
    dValeur = 821;
  } else {
    dValeur = dRechercheValeur_Constantes(gRsConstantes, "INDMAJELU");
  }
  return dValeur;
}

double MethodeCalculG_Nouv::dRechercheIndMajEluPeriode(VarCalculSalarie& InfosSalaries,
                                                       const std::string& sPeriode,
                                                       const std::string& sDecalage,
                                                       double& dResultat, double dTaux) {
  const Int32 K = CLng(Value(sDecalage).Nombre());
  double P = 0;
  dRecherchePointHistorique(P, sPeriode, std::to_string(-K));
  const double R = dTaux == -1 ? elus::CoefficientTaux(InfosSalaries.dTauxMaire, InfosSalaries.dTauxEPCI)
                               : dTaux;
  double I = 0;
  dRechercheIndMajElu(I, sPeriode, sDecalage);
  const double A = Arrondi(P * I, 2);
  dResultat = elus::MensuelPlein(A) * R;
  return dResultat;
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElus(VarCalculSalarie& InfosSalaries,
                                                                  SalarieCalculRubrique& Rubrique) {
  TraitementPeriode(*this, InfosSalaries, Rubrique, false);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElusPrecedent(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  TraitementPeriode(*this, InfosSalaries, Rubrique, true);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElusMois(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  double I = 0;
  s.dIndiceMajoreM = dRechercheIndMajElu(I, gPeriodeEncours, "0");
  MoisDuTaux(*this, s, false, s.dCoefficient_Traitement);
  elus::Ligne(Rubrique, s.dSalarie_MensuelPleinN, s.dIndiceMajoreM, s.dSalarie_MensuelN);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElusPrecedentMois(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  const double R = elus::CoefficientTaux(s.dTauxMairePrecedent, s.dTauxEPCIPrecedent);
  s.dIndiceMajoreM = dRechercheValeur_Constantes(gRsConstantes, "INDMAJELU");
  s.dSalarie_MensuelPleinA = elus::PleinSurIndiceDuMois(*this, s);
  CalculCoefficientUtilisationTauxElus(s, gPeriodeEncours);
  s.dSalarie_MensuelReelA = s.dCoefficient_IAncien * s.dSalarie_MensuelPleinA * R;
  s.dSalarie_MensuelA = s.dSalarie_MensuelReelA;
  elus::Ligne(Rubrique, s.dSalarie_MensuelPleinA, s.dIndiceMajoreM, s.dSalarie_MensuelA);
}

}  // namespace orvalis
