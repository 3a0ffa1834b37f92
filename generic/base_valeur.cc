// RechercheValeurBase: the value of the base a pay line names in sValeurBase.
//
// The designations read by id are tested first, in their order; every other designation is
// a distinct literal, found in one index of all the other rows. A designation that matches
// nothing gives 0, with no fault.
#include <string_view>
#include <unordered_map>

#include "generic/base_designations.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace {

// One rule per designation; a row of the cumulative totals or a formula.
struct Regle {
  const LigneCumuls* cumuls = nullptr;
  RegleBase formule = nullptr;
};

using Index = std::unordered_map<std::string_view, Regle>;

bool Retenue(Connue connue, bool bHistorique) {
  return !bHistorique || connue == Connue::DesDeuxMoteurs;
}

// The first row of a literal wins, as in the order of tests.
Index ConstruitIndex(bool bHistorique) {
  Index index;
  for (const LigneCumuls& l : LignesBaseCumuls())
    if (Retenue(l.connue, bHistorique)) index.emplace(l.designation, Regle{&l, nullptr});
  for (auto table : {LignesBaseFormules(), LignesBaseRetenues()})
    for (const LigneBase& l : table)
      if (Retenue(l.connue, bHistorique)) index.emplace(l.designation, Regle{nullptr, l.regle});
  return index;
}

const Index& IndexDesBases(bool bHistorique) {
  static const Index kCourant = ConstruitIndex(false);
  static const Index kHistorique = ConstruitIndex(true);
  return bHistorique ? kHistorique : kCourant;
}

}  // namespace

double ResoudBase(ContexteBase& c, const std::string& sValeurBase, bool bHistorique) {
  for (const LigneBase& l : LignesBaseParId())
    if (Retenue(l.connue, bHistorique) && sValeurBase == l.designation) return l.regle(c);
  const Index& index = IndexDesBases(bHistorique);
  const auto it = index.find(sValeurBase);
  if (it == index.end()) return 0;
  if (it->second.cumuls != nullptr) return SommeCumuls(c, *it->second.cumuls);
  return it->second.formule(c);
}

bool BaseConnue(std::string_view sValeurBase, bool bHistorique) {
  for (const LigneBase& l : LignesBaseParId())
    if (Retenue(l.connue, bHistorique) && sValeurBase == l.designation) return true;
  return IndexDesBases(bHistorique).contains(sValeurBase);
}

double MethodeCalculG_Nouv::RechercheValeurBase(VarCalculSalarie& InfosSalaries,
                                                const RsRef& RsVarSalaries,
                                                SalarieCalculRubrique& Rubrique) {
  ContexteBase c{*this, this, InfosSalaries, RsVarSalaries, Rubrique};
  // The designation is read before any rule runs (ResoudBase finds the rule first).
  return ResoudBase(c, Rubrique.sValeurBase, false);
}

}  // namespace orvalis
