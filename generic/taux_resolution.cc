// The two rate resolvers of the generic pay lines: a walk of the designation tables, kept
// as one hashed look-up of the first row of each literal.
#include <unordered_map>

#include "generic/taux_regles.h"

namespace orvalis {

namespace taux {

const std::vector<std::span<const LigneTaux>>& TablesSalariales() {
  static const std::vector<std::span<const LigneTaux>> k = {
      TauxCommuns(), TauxHeuresSupp(), TauxHoraireSalarie(), TauxEnseignement(), TauxDivers()};
  return k;
}

const std::vector<std::span<const LigneTaux>>& TablesPatronales() {
  static const std::vector<std::span<const LigneTaux>> k = {TauxCommuns(), TauxPatronaux()};
  return k;
}

namespace {

using IndexTaux = std::unordered_map<std::string_view, const LigneTaux*>;

// The row TrouveTaux finds for each literal, with nothing excluded: the first of its name.
IndexTaux Indexe(const std::vector<std::span<const LigneTaux>>& tables) {
  IndexTaux index;
  for (auto table : tables)
    for (const auto& l : table) index.emplace(l.nom, &l);
  return index;
}

const LigneTaux* TrouveTauxIndexe(bool bPatronal, const std::string& nom) {
  static const IndexTaux kSalarial = Indexe(TablesSalariales());
  static const IndexTaux kPatronal = Indexe(TablesPatronales());
  const IndexTaux& index = bPatronal ? kPatronal : kSalarial;
  const auto it = index.find(nom);
  return it == index.end() ? nullptr : it->second;
}

}  // namespace

const LigneTaux* TrouveTaux(const std::vector<std::span<const LigneTaux>>& tables,
                            const std::string& nom, std::span<const std::string_view> exclus) {
  for (auto e : exclus)
    if (nom == e) return nullptr;
  for (auto table : tables)
    for (const auto& l : table)
      if (nom == l.nom) return &l;
  return nullptr;
}

double Applique(const LigneTaux& l, Contexte& c) {
  const double d = l.regle(c, l);
  if (l.sType != nullptr) c.sType = l.sType;
  return d;
}

bool ModeleIndiciaire(const VarCalculSalarie& InfosSalaries) {
  return InfosSalaries.sTypeModele == "INDTIT" || InfosSalaries.sTypeModele == "INDNTI";
}

double MajoreParConstante(Contexte& c, double dValeur) {
  double dConstante = 0;
  std::string sTypeConstante;
  c.m.RechercheValeurType_Constantes(c.lId, dConstante, sTypeConstante);
  double d = dValeur * dConstante;
  if (sTypeConstante == "T") d = d / 100;
  return d;
}

}  // namespace taux

double MethodeCalculG_Nouv::RechercheValeurTauxSalarial(VarCalculSalarie& InfosSalaries,
                                                        const RsRef& RsVarSalaries,
                                                        const RsRef& RsVarSalariesHisto,
                                                        SalarieCalculRubrique& Rubrique,
                                                        std::string& sType,
                                                        const RsRef& RsSalariesHisto) {
  sType.clear();
  taux::Contexte c{*this,   InfosSalaries, RsVarSalaries, RsVarSalariesHisto, RsSalariesHisto,
                   Rubrique, Rubrique.lIdValeurTauxSalarial, false, sType};
  // The row is found before its rule runs: the rule may rewrite the line's designation.
  const taux::LigneTaux* l = taux::TrouveTauxIndexe(false, Rubrique.sValeurTauxSalarial);
  return l == nullptr ? 0.0 : taux::Applique(*l, c);
}

double MethodeCalculG_Nouv::RechercheValeurTauxPatronal(VarCalculSalarie& InfosSalaries,
                                                        const RsRef& RsVarSalaries,
                                                        SalarieCalculRubrique& Rubrique,
                                                        std::string& sType,
                                                        const std::string& /*sDesignation*/) {
  sType.clear();
  const RsRef aucune;
  taux::Contexte c{*this,   InfosSalaries, RsVarSalaries, aucune, aucune,
                   Rubrique, Rubrique.lIdValeurTauxPatronal, true, sType};
  const taux::LigneTaux* l = taux::TrouveTauxIndexe(true, Rubrique.sValeurTauxPatronal);
  return l == nullptr ? 0.0 : taux::Applique(*l, c);
}

}  // namespace orvalis
