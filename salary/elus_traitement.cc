// Officials' allowances on the reference index: the month of a paid period, the earlier
// months of the period at their own point and index, on the new or the former rate.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "orvalis/value.h"
#include "salary/elus_lignes.h"
#include "salary/elus_outils.h"

namespace orvalis {

namespace elus {

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
void MoisDuTaux(MoteurElus& e, VarCalculSalarie& s, bool bAncien, double R) {
  const ChampsTraitement t = Champs(s, bAncien);
  t.dPlein = PleinSurIndiceDuMois(e.m, s);
  e.CoefficientsDuTaux(s, e.m.gPeriodeEncours);
  const Cote c = CoteDuTaux(s, bAncien);
  t.dReel = c.dCoefficient * t.dPlein * R;
  if (30 - c.iJoursAutre != 0) t.dMensuel = SurJoursPresents(t.dReel, c);
}

// The earlier months of the period, each at its own point and index. The new rate runs
// from the month of the change; the former rate (chosen: the mirror) up to it, from the
// month of entry. The month of the change adds its own side's share.
double MoisAnterieursDuTaux(MoteurElus& e, VarCalculSalarie& s, bool bAncien, double dTaux,
                            int K) {
  if (K <= 0) return 0;
  const Date dPeriode = LireDate(e.m.gPeriodeEncours);
  const Date dChangement = PremierJourDuMois(LireDate(s.sDateChangementTauxElus));
  double dTotal = 0;
  for (int i = 1; i <= K; ++i) {
    const Date D = PremierJourDuMois(AjouteMois(dPeriode, -i));
    if (!bAncien && D < dChangement) break;
    if (bAncien) {
      if (D < PremierJourDuMois(LireDate(s.sDateDebut))) break;
      if (D > dChangement) continue;
    }
    double X = e.MoisAnterieur(s, i, dTaux);
    if (D == dChangement) {
      const std::string sD = TexteDate(D);
      e.CoefficientsDuTaux(s, sD);
      e.JoursDePresence(s, sD);
      const Cote c = CoteDuTaux(s, bAncien);
      X = SurJoursPresents(X * c.dCoefficient, c);
    }
    dTotal += X;
  }
  return dTotal;
}

}  // namespace

// A line of a paid period on one side of the rate.
void TraitementIndiciaireElus(MoteurElus& e, VarCalculSalarie& s, SalarieCalculRubrique& r,
                              bool bAncien) {
  const std::string& sPeriode = e.m.gPeriodeEncours;
  // The former rate's line is paid on the period's last month alone.
  if (!MoisPaye(s, sPeriode, !bAncien)) return;
  s.dIndiceMajoreM = e.IndiceDeLaPeriode();
  const double R = bAncien ? CoefficientTaux(s.dTauxMairePrecedent, s.dTauxEPCIPrecedent)
                           : s.dCoefficient_Traitement;
  MoisDuTaux(e, s, bAncien, R);
  const ChampsTraitement t = Champs(s, bAncien);

  // The host gave the period's amount itself.
  const double dDonne = bAncien ? s.dTraitementEluNonMensuelPrecedent : s.dTraitementEluNonMensuel;
  if (dDonne != 0) {
    Ligne(r, t.dPlein, s.dIndiceMajoreM, dDonne);
    return;
  }

  const int K = MoisAnterieurs(s, sPeriode, !bAncien);
  t.dMensuel = t.dMensuel + MoisAnterieursDuTaux(e, s, bAncien, bAncien ? R : -1, K);
  Ligne(r, t.dPlein, s.dIndiceMajoreM, t.dMensuel);

  if (K > 0) {
    // Back to this month's shares and days for the lines that follow (chosen: the shares
    // too, which a month of change in the loop has left on that month).
    e.CoefficientsDuTaux(s, sPeriode);
    e.JoursDePresence(s, "");
  }
}

void TraitementIndiciaireElusMois(MoteurElus& e, VarCalculSalarie& s, SalarieCalculRubrique& r) {
  s.dIndiceMajoreM = e.IndiceDuMois();
  MoisDuTaux(e, s, false, s.dCoefficient_Traitement);
  Ligne(r, s.dSalarie_MensuelPleinN, s.dIndiceMajoreM, s.dSalarie_MensuelN);
}

void TraitementIndiciaireElusPrecedentMois(MoteurElus& e, VarCalculSalarie& s,
                                           SalarieCalculRubrique& r) {
  const double R = CoefficientTaux(s.dTauxMairePrecedent, s.dTauxEPCIPrecedent);
  s.dIndiceMajoreM = e.IndiceDeLaPeriode();
  s.dSalarie_MensuelPleinA = PleinSurIndiceDuMois(e.m, s);
  e.CoefficientsDuTaux(s, e.m.gPeriodeEncours);
  s.dSalarie_MensuelReelA = s.dCoefficient_IAncien * s.dSalarie_MensuelPleinA * R;
  s.dSalarie_MensuelA = s.dSalarie_MensuelReelA;
  Ligne(r, s.dSalarie_MensuelPleinA, s.dIndiceMajoreM, s.dSalarie_MensuelA);
}

}  // namespace elus

namespace {

// The current engine: the index of the period is the constant "INDMAJELU", that of the
// month alone follows the date.
class ElusCourant : public elus::MoteurElus {
 public:
  explicit ElusCourant(MethodeCalculG_Nouv& moteur) : MoteurElus(moteur), n(moteur) {}
  double IndiceDeLaPeriode() override {
    return n.dRechercheValeur_Constantes(n.gRsConstantes, "INDMAJELU");
  }
  double IndiceDuMois() override {
    double I = 0;
    return n.dRechercheIndMajElu(I, n.gPeriodeEncours, "0");
  }
  double MoisAnterieur(VarCalculSalarie& s, int iMois, double dTaux) override {
    double X = 0;
    return n.dRechercheIndMajEluPeriode(s, n.gPeriodeEncours, std::to_string(iMois), X, dTaux);
  }
  void CoefficientsDuTaux(VarCalculSalarie& s, const std::string& sPeriode) override {
    n.CalculCoefficientUtilisationTauxElus(s, sPeriode);
  }
  void JoursDePresence(VarCalculSalarie& s, const std::string& sPeriode) override {
    n.CalculNombreJourPresence(s, sPeriode);
  }

 private:
  MethodeCalculG_Nouv& n;
};

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
  ElusCourant e(*this);
  elus::TraitementIndiciaireElus(e, InfosSalaries, Rubrique, false);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElusPrecedent(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  ElusCourant e(*this);
  elus::TraitementIndiciaireElus(e, InfosSalaries, Rubrique, true);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElusMois(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  ElusCourant e(*this);
  elus::TraitementIndiciaireElusMois(e, InfosSalaries, Rubrique);
}

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElusPrecedentMois(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  ElusCourant e(*this);
  elus::TraitementIndiciaireElusPrecedentMois(e, InfosSalaries, Rubrique);
}

}  // namespace orvalis
