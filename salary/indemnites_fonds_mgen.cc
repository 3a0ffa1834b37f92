// Two contributions with a threshold or bounds: the solidarity fund, levied above an index
// threshold on its own base, and the mutual insurance MGEN, held between a minimum and a
// maximum.
#include <string>

#include "generic/lecture_ligne.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/indemnites_partagees.h"

namespace orvalis {

namespace {

// The two rates of the line's lIdTaux in gRsTaux, each null as 0.
struct TauxDeLaLigne {
  double dSalarial = 0;
  double dPatronal = 0;
};

TauxDeLaLigne TauxParId(MoteurCalcul& m, Int32 lIdTaux) {
  TauxDeLaLigne t;
  Recordset& rs = Source(m.gRsTaux, "gRsTaux");
  if (rs.RecordCount() == 0) return t;
  rs.MoveFirst();
  rs.Filter("IdTaux = " + std::to_string(lIdTaux.value()));
  if (!rs.Eof()) {
    t.dSalarial = rs.Field("PartSalariale").NombreOuZero();
    t.dPatronal = rs.Field("PartPatronale").NombreOuZero();
  }
  rs.ClearFilter();
  return t;
}

}  // namespace

void indemnites::FondsSolidarite(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries,
                                 SalarieCalculRubrique& Rubrique) {
  if (!InfosSalaries.bSoumisFondsSolidarite) return;
  const double dSeuil = Arrondi(
      Arrondi(m.ConstanteFixe("Point"), 2) * Arrondi(m.ConstanteFixe("IndFndSol"), 2) / 12 - 0.0049,
      2);
  if (m.dRechercheValeurCumul("SEUILFONDS", "S") <= dSeuil) return;

  // Percentages of the base, as on a line "BASE x TAUX": amounts on the rates as read, the
  // rates shown to 4 places.
  const double dBase = m.dRechercheValeurCumul("ASSFNDSOL", "S");
  const TauxDeLaLigne t = TauxParId(m, Rubrique.lIdTaux);
  Rubrique.dBase = dBase;
  Rubrique.dTauxSalarial = Arrondi(t.dSalarial, 4);
  Rubrique.dMontantSalarial = dBase * t.dSalarial / 100;
  Rubrique.dTauxPatronal = Arrondi(t.dPatronal, 4);
  Rubrique.dMontantPatronal = dBase * t.dPatronal / 100;
}

void MethodeCalculG_Nouv::CalculRubrique_FondsSolidarite(VarCalculSalarie& InfosSalaries,
                                                         SalarieCalculRubrique& Rubrique) {
  indemnites::FondsSolidarite(*this, InfosSalaries, Rubrique);
}

void indemnites::Mgen(const LectureLigne& l, double dTraitementDuMois, bool bOption) {
  MoteurCalcul& m = l.m;
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const double S = dTraitementDuMois;
  double B = l.Base();
  // The treatment of the month leaves the base once the MGEN total goes beyond it.
  if (m.dRechercheValeurCumul("ASSMGEN", "S") > S) B = B - S;
  std::string sType;
  const double dTaux = l.TauxSalarial(sType);
  const double dMontant = sType == "T" ? B * dTaux / 100 : B * dTaux;

  const double dMinimum =
      m.dRechercheValeur_Constantes(m.gRsConstantes, bOption ? "COTMINMG30" : "COTMINMGEN");
  const double dMaximum =
      m.dRechercheValeur_Constantes(m.gRsConstantes, bOption ? "COTMAXMG30" : "COTMAXMGEN");
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
  // A bound of 0 is a bound the host has not set: no ceiling then.
  const bool bSousLeMinimum = dMontant < dMinimum;
  const bool bAuDessusDuMaximum = dMaximum > 0 && dMontant > dMaximum;
  if (bSousLeMinimum || bAuDessusDuMaximum) {
    Rubrique.dBase = 0;
    Rubrique.dTauxSalarial = 0;
    Rubrique.dMontantSalarial = bSousLeMinimum ? dMinimum : dMaximum;
    return;
  }
  Rubrique.dBase = B;
  Rubrique.dTauxSalarial = Arrondi(dTaux, 4);
  Rubrique.dMontantSalarial = dMontant;
}

void MethodeCalculG_Nouv::CalculRubrique_Mgen(VarCalculSalarie& InfosSalaries,
                                              SalarieCalculRubrique& Rubrique,
                                              const RsRef& RsVarSalaries,
                                              const RsRef& RsVarSalariesHisto,
                                              const RsRef& RsSalariesHisto, bool bOption) {
  const VarCalculSalarie& s = InfosSalaries;
  indemnites::Mgen(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto},
      s.dSalaire_MensuelIATA + s.dSalaire_MensuelIATN + s.dSalaire_MensuelINTA +
          s.dSalaire_MensuelINTN,
      bOption);
}

}  // namespace orvalis
