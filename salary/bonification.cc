// The index bonus (points of "NBI"): its month on the days paid in full, and its share on
// the days of half pay with what is left for the supplementary allocation.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/demi_traitement_outils.h"
#include "salary/elements_cellules.h"

namespace orvalis {

namespace salaire {

namespace {

// Days of a group of hours paid in full.
Int16 JoursPleins(const Heures& h) {
  Int16 iPresence = 0, iAbsents = 0;
  for (const Quart& q : h.cellules) iPresence = iPresence + q.iPresence;
  for (const Quart& q : h.cellules)
    iAbsents = iAbsents + q.iDemiTraitement + q.iCFA + q.iDispoOffice + q.iCongeFormation +
               q.iCongeMaternite;
  return iPresence - iAbsents;
}

Int16 Presence(const Heures& h) {
  Int16 i = 0;
  for (const Quart& q : h.cellules) i = i + q.iPresence;
  return i;
}

double Coefficients(const Heures& h) {
  double d = 0;
  for (const Quart& q : h.cellules) d = d + q.dCoefficient;
  return d;
}

}  // namespace

void RubriqueBonification(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                          std::initializer_list<Heures> heures, const TotauxDuMois& t) {
  if (!(s.dBonification > 0)) return;

  const double P = Arrondi(m.ConstanteFixe("Point"), 4);
  s.dBonificationTotale = DouziemeArrondi(Arrondi(s.dBonification * P, 2));
  const double B = s.dBonificationTotale;

  // Maternity leave is paid on the whole bonus, whatever the treatment coefficient.
  bool bMaternite = false;
  for (const Heures& h : heures)
    for (const Quart& q : h.cellules) bMaternite = bMaternite || q.iCongeMaternite != 0;
  const double E = bMaternite ? t.iCongeMaternite * B / 30 : 0;

  // Each group of hours at its own treatment coefficient.
  double dMontant = 0;
  for (const Heures& h : heures) dMontant = dMontant + h.plein.dTraitement * B * JoursPleins(h) / 30;
  dMontant = dMontant + E;

  for (const Heures& h : heures) {
    h.plein.dPlein = h.plein.dPlein + Coefficients(h) * B;
    h.reel.dReel = h.reel.dReel + h.plein.dTraitement * B * Presence(h) / 30;
  }

  Rubrique.dBase = B;
  Rubrique.dTauxSalarial = s.dBonification;
  Rubrique.dMontantSalarial = dMontant;
  SansPartPatronale(Rubrique);
}

void RubriqueDemiTraitementBonification(const DemiMois& d, SalarieCalculRubrique& Rubrique,
                                        const std::string& sType,
                                        std::initializer_list<Heures> heures) {
  VarCalculSalarie& s = d.s;
  if (!ADesJoursDeDemiTraitement(d.cellules)) return;
  const std::vector<Int16> N = d.Jours(sType, Rubrique.sCodeRubrique);
  const double C = s.dCoefficient_DemiTraitement;
  const double B = s.dBonificationTotale;

  // Half pay, cessation and progressive cessation days of each group of hours.
  double M1 = 0, M2 = 0, dBase = 0;
  for (const Heures& h : heures) {
    Int16 iJours = 0;
    for (const Quart& q : h.cellules) iJours = iJours + JoursDeLaLigne(q, Rubrique.sCodeRubrique);
    for (const Quart& q : h.cellules) iJours = iJours + q.iCFA + q.iCPA;
    const double X = h.plein.dTraitement * B * iJours / 30;
    M1 = M1 + C * X;
    M2 = M2 + 0.5 * X;
    dBase = dBase + Coefficients(h) * h.plein.dTraitement;
  }

  Int16 iTotal = 0;
  for (Int16 n : N) iTotal = iTotal + n;
  Rubrique.dBase = dBase * B;
  Rubrique.dTauxSalarial = iTotal.value();
  PaieLaMoitie(Rubrique, C, M1, M2, s.dMontantAllocationComplementaireMaladieNBI,
               s.dMontantAllocationComplementaireMaladieNBI);
}

}  // namespace salaire

namespace {

// The current month by hours: the new hours (IATN, INTN) and the old (IATA, INTA). The
// bonus's full month goes into the new index's quadrant of each; its real month into INTN
// for the new hours and into IATN for the old.
salaire::Heures NouvellesHeures(VarCalculSalarie& s) {
  return {{salaire::IATN(s), salaire::INTN(s)}, salaire::INTN(s), salaire::INTN(s)};
}
salaire::Heures AnciennesHeures(VarCalculSalarie& s) {
  return {{salaire::IATA(s), salaire::INTA(s)}, salaire::INTA(s), salaire::IATN(s)};
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_BonificationIndiciaire(VarCalculSalarie& InfosSalaries,
                                                                SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueBonification(*this, s, Rubrique, {NouvellesHeures(s), AnciennesHeures(s)},
                                salaire::TotauxQuatreQuarts(s));
}

void MethodeCalculG_Nouv::CalculRubrique_DemiTraitementBonification(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
    const std::string& sVariante) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueDemiTraitementBonification(
      {*this, s, {salaire::IATA(s), salaire::IATN(s), salaire::INTA(s), salaire::INTN(s)},
       s.iNBJ_DemiTraitement_Total},
      Rubrique, sVariante, {AnciennesHeures(s), NouvellesHeures(s)});
}

}  // namespace orvalis
