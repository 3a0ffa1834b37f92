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

double Resoud(const std::vector<std::span<const LigneTaux>>& tables, Contexte& c,
              std::span<const std::string_view> exclus) {
  c.sType.clear();
  const std::string sNom =
      c.bPatronal ? c.Rubrique.sValeurTauxPatronal : c.Rubrique.sValeurTauxSalarial;
  const LigneTaux* l = TrouveTaux(tables, sNom, exclus);
  return l == nullptr ? 0.0 : Applique(*l, c);
}

MethodeCalculG_Nouv& Courant(Contexte& c) {
  if (c.courant == nullptr) Faute("rate of the current engine only");
  return *c.courant;
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

double MethodeCalculG_Nouv::BaseDeLigne(VarCalculSalarie& InfosSalaries,
                                        const RsRef& RsVarSalaries,
                                        SalarieCalculRubrique& Rubrique) {
  return RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
}

double MethodeCalculG_Nouv::CoefficientDeLigne(VarCalculSalarie& InfosSalaries,
                                               const RsRef& RsVarSalaries, Int32 lIdCoeffBase,
                                               const std::string& sCoeffBase,
                                               SalarieCalculRubrique& Rubrique) {
  return RechercheValeurCoefficient(InfosSalaries, RsVarSalaries, lIdCoeffBase, sCoeffBase,
                                    Rubrique);
}

double MethodeCalculG_Nouv::TauxSalarialDeLigne(VarCalculSalarie& InfosSalaries,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& RsVarSalariesHisto,
                                                SalarieCalculRubrique& Rubrique,
                                                std::string& sType,
                                                const RsRef& RsSalariesHisto) {
  return RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique,
                                     sType, RsSalariesHisto);
}

// The generic lines pass an empty designation.
double MethodeCalculG_Nouv::TauxPatronalDeLigne(VarCalculSalarie& InfosSalaries,
                                                const RsRef& RsVarSalaries,
                                                SalarieCalculRubrique& Rubrique,
                                                std::string& sType) {
  return RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, sType, "");
}

double MethodeCalculG_Nouv::RechercheValeurTauxSalarial(VarCalculSalarie& InfosSalaries,
                                                        const RsRef& RsVarSalaries,
                                                        const RsRef& RsVarSalariesHisto,
                                                        SalarieCalculRubrique& Rubrique,
                                                        std::string& sType,
                                                        const RsRef& RsSalariesHisto) {
  sType.clear();
  taux::Contexte c{*this, this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, RsSalariesHisto,
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
  taux::Contexte c{*this, this, InfosSalaries, RsVarSalaries, aucune, aucune,
                   Rubrique, Rubrique.lIdValeurTauxPatronal, true, sType};
  const taux::LigneTaux* l = taux::TrouveTauxIndexe(true, Rubrique.sValeurTauxPatronal);
  return l == nullptr ? 0.0 : taux::Applique(*l, c);
}

}  // namespace orvalis
