// Differential allowance: tops the month's base up to what the minimum wage gives for the
// days actually paid, old and new rate of the month apart, on a month of 30 days.
#include "absences/indemnite_differentielle.h"

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/value.h"

namespace orvalis {

namespace differentielle {

namespace {

// Monthly hours of the minimum in Mayotte, whatever the statutory table says.
constexpr double kHeuresMoisMayotte = 169;
// The index at or below which no allowance is due when the constant is absent or 0.
constexpr double kIndiceNonImposableParDefaut = 200;

}  // namespace

Moitie AncienTaux(const VarCalculSalarie& s) {
  return {.presence = {s.iNBJ_PresenceIATA, s.iNBJ_PresenceINTA},
          .cfa = {s.iNBJ_CFAIATA, s.iNBJ_CFAINTA},
          .formation = {s.iNBJ_CongeFormationIATA, s.iNBJ_CongeFormationINTA},
          .cpa = {s.iNBJ_CPAIATA, s.iNBJ_CPAINTA},
          .demiTraitement = {s.iNBJ_DemiTraitementIATA, s.iNBJ_DemiTraitementINTA},
          .dispoOffice = {s.iNBJ_DispoOfficeIATA, s.iNBJ_DispoOfficeINTA},
          .traitement90 = {s.iNBJ_90PourCentTraitementIATA, s.iNBJ_90PourCentTraitementINTA},
          .deuxTiers = {s.iNBJ_2TiersTraitementIATA, s.iNBJ_2TiersTraitementINTA},
          .dCoefficientTraitement = s.dCoefficient_TraitementTA,
          .dCoefficientAutreAbsence = s.dCoefficient_INTA};
}

Moitie NouveauTaux(const VarCalculSalarie& s) {
  return {.presence = {s.iNBJ_PresenceIATN, s.iNBJ_PresenceINTN},
          .cfa = {s.iNBJ_CFAIATN, s.iNBJ_CFAINTN},
          .formation = {s.iNBJ_CongeFormationIATN, s.iNBJ_CongeFormationINTN},
          .cpa = {s.iNBJ_CPAIATN, s.iNBJ_CPAINTN},
          .demiTraitement = {s.iNBJ_DemiTraitementIATN, s.iNBJ_DemiTraitementINTN},
          .dispoOffice = {s.iNBJ_DispoOfficeIATN, s.iNBJ_DispoOfficeINTN},
          .traitement90 = {s.iNBJ_90PourCentTraitementIATN, s.iNBJ_90PourCentTraitementINTN},
          .deuxTiers = {s.iNBJ_2TiersTraitementIATN, s.iNBJ_2TiersTraitementINTN},
          .dCoefficientTraitement = s.dCoefficient_TraitementTN,
          .dCoefficientAutreAbsence = s.dCoefficient_INTN};
}

namespace {

// 16-bit: an overflow is a fault.
Int16 Moins(Int16 iJours, const Paire& p) { return iJours - p.i1 - p.i2; }

// The floor of one half for the monthly minimum S. The day counts are taken off in 16 bits;
// the current member then takes off the other absences weighted by their coefficient, in
// doubles. Half-pay days come back at half weight when the month has a half-pay coefficient.
double PlancherMoitie(const Moitie& h, const VarCalculSalarie& s, Variante v, double S) {
  const Int16 P = h.presence.i1 + h.presence.i2;
  if (P == 0) return 0;
  Int16 iJours = P;
  for (const Paire* p : {&h.cfa, &h.formation, &h.cpa, &h.demiTraitement, &h.dispoOffice})
    iJours = Moins(iJours, *p);
  double dJoursPayes = iJours;
  if (v == Variante::kNouv) {
    iJours = Moins(Moins(iJours, h.traitement90), h.deuxTiers);
    dJoursPayes = iJours - h.dCoefficientAutreAbsence * s.dNBJ_AutreAbsenceNS;
  }
  double F = dJoursPayes * h.dCoefficientTraitement * S / 30;
  if (s.dCoefficient_DemiTraitement != 0) {
    const Int16 iDemi = h.demiTraitement.i1 + h.demiTraitement.i2;
    F = F + h.dCoefficientTraitement * S / 2 * iDemi / 30;
  }
  return F;
}

// A total taken off the base passes through its text of 15 significant digits.
double ParSonTexte(double d) { return Value(TexteNombre(d)).Nombre(); }

}  // namespace

void IndemniteDifferentielle(MoteurCalcul& m, Variante v, VarCalculSalarie& s,
                             SalarieCalculRubrique& Rubrique, const RsRef* RsVarSalaries,
                             const Moitie& ancien, const Moitie& nouveau) {
  double D = 0;
  double I = m.dRechercheValeur_Constantes(m.gRsConstantes, "INDNONIMR");
  if (I == 0) I = kIndiceNonImposableParDefaut;
  if (s.dIndiceMajoreM > I) {
    const double S = (v == Variante::kMayotte ? kHeuresMoisMayotte : m.ConstanteFixe("HrsMois")) *
                     m.ConstanteFixe("SmicHor");
    const double FA = PlancherMoitie(ancien, s, v, S);
    double FN = PlancherMoitie(nouveau, s, v, S);
    if (v != Variante::kPremiere && nouveau.presence.i1 + nouveau.presence.i2 != 0) {
      // Days to pay scale the new-rate half alone, at 7 hours a day of a 151.67-hour month.
      double N = 0;
      m.dRechercheValeur_VariableBis(*RsVarSalaries, "NBJAPAYER", N);
      if (N > 0) FN = FN * N * 7 / 151.67;
    }
    const double F = Arrondi(FA + FN, 2);
    if (m.dRechercheValeurCumul("HEURES", "S") > 0) {
      double B = m.dRechercheValeurCumul("BASE", "S") -
                 ParSonTexte(m.dRechercheValeurCumul("BASERAPPEL", "S"));
      if (v == Variante::kNouv) B = B - ParSonTexte(m.dRechercheValeurCumul("BASEDEGRE", "S"));
      if (v == Variante::kNouv && B == 0) {
        D = 0;
      } else if (B >= F) {
        D = 0;
      } else {
        D = F - B;
      }
    }
  }
  Rubrique.dBase = 0;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = Arrondi(D, 2);
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
  s.dMt_IndemniteDifferentielle = Rubrique.dMontantSalarial;
}

}  // namespace differentielle

using differentielle::AncienTaux;
using differentielle::IndemniteDifferentielle;
using differentielle::NouveauTaux;
using differentielle::Variante;

void MethodeCalculG_Nouv::CalculRubrique_Indemnite_Differentielle(VarCalculSalarie& InfosSalaries,
                                                                  SalarieCalculRubrique& Rubrique) {
  IndemniteDifferentielle(*this, Variante::kPremiere, InfosSalaries, Rubrique, nullptr,
                          AncienTaux(InfosSalaries), NouveauTaux(InfosSalaries));
}

void MethodeCalculG_Nouv::CalculRubrique_Indemnite_Differentielle_Nouv(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries) {
  IndemniteDifferentielle(*this, Variante::kNouv, InfosSalaries, Rubrique, &RsVarSalaries,
                          AncienTaux(InfosSalaries), NouveauTaux(InfosSalaries));
}

void MethodeCalculG_Nouv::CalculRubrique_Indemnite_Differentielle_Mayotte(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries) {
  IndemniteDifferentielle(*this, Variante::kMayotte, InfosSalaries, Rubrique, &RsVarSalaries,
                          AncienTaux(InfosSalaries), NouveauTaux(InfosSalaries));
}

}  // namespace orvalis
