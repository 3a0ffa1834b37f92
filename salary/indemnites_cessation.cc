// The progressive end of activity (CPA) and the end of activity (CFA) of the indexed
// models: the real month salary of each cell, shared out by the days of the situation.
#include <algorithm>

#include "generic/taux_regles.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elements_cellules.h"
#include "salary/salaire_outils.h"

namespace orvalis {

namespace salaire {

namespace {

// Whether the line pays: an indexed model, days of the situation, days of presence.
bool SituationPayee(const VarCalculSalarie& s, const std::vector<Int16>& j, Int16 iPresence) {
  bool bJours = false;
  for (Int16 n : j) bJours = bJours || n != 0;
  return taux::ModeleIndiciaire(s) && bJours && iPresence != 0;
}

// The real month salary of each cell for the situation's share of the days present.
double MontantDesJours(const std::vector<Quart>& cellules, const std::vector<Int16>& j,
                       Int16 iPresence) {
  double d = 0;
  for (std::size_t i = 0; i < cellules.size(); ++i) d = d + cellules[i].dReel * j[i].value();
  return d / iPresence.value();
}

std::vector<Int16> JoursCPA(const std::vector<Quart>& cellules) {
  std::vector<Int16> j;
  for (const Quart& q : cellules) j.push_back(q.iCPA);
  return j;
}

std::vector<Int16> JoursCFA(const std::vector<Quart>& cellules) {
  std::vector<Int16> j;
  for (const Quart& q : cellules) j.push_back(q.iCFA);
  return j;
}

}  // namespace

// The CPA days are paid on their share of the month, then prorated like the rest of the
// month's pay for the days of half pay and of leave.
void RubriqueCPA(const VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                 const std::vector<Quart>& cellules, const TotauxDuMois& t) {
  const std::vector<Int16> j = JoursCPA(cellules);
  if (!SituationPayee(s, j, t.iPresence)) return;
  const double dMontant = MontantDesJours(cellules, j, t.iPresence);
  EcritLigne(Rubrique, dMontant, 0, MontantProratise(s, t, dMontant));
}

// The CFA days are paid on their share of the month, never below the same share of the
// month salary of the minimum index. They are not prorated again: the proration of half
// pay takes the CFA days out of the days paid.
void RubriqueCFA(MoteurCalcul& m, const VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                 const std::vector<Quart>& cellules, Int16 iPresence) {
  const std::vector<Int16> j = JoursCFA(cellules);
  if (!SituationPayee(s, j, iPresence)) return;
  const double dMontant = MontantDesJours(cellules, j, iPresence);
  const double dMoisMinimum = Arrondi(
      Arrondi(FixeOuZero(m, "IndMinRemuneration") * m.ConstanteFixe("Point"), 2) / 12 - 0.0049, 2);
  Int16 iJours = 0;
  for (Int16 n : j) iJours = iJours + n;
  const double dMinimum = dMoisMinimum * iJours.value() / iPresence.value();
  EcritLigne(Rubrique, dMontant, 0, std::max(dMontant, dMinimum));
}

}  // namespace salaire

void MethodeCalculG_Nouv::CalculRubrique_CPA(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  using namespace salaire;
  RubriqueCPA(s, Rubrique, {IATA(s), IATN(s), INTA(s), INTN(s)}, TotauxQuatreQuarts(s));
}

void MethodeCalculG_Nouv::CalculRubrique_CFA(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  using namespace salaire;
  RubriqueCFA(*this, s, Rubrique, {IATA(s), IATN(s), INTA(s), INTN(s)}, s.iNBJ_Presence_Total);
}

}  // namespace orvalis
