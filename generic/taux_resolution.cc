// The two rate resolvers of the generic pay lines: a walk of the designation tables.
#include "generic/taux_regles.h"

namespace orvalis {

namespace taux {

std::vector<std::span<const LigneTaux>> TablesSalariales() {
  return {TauxCommuns(), TauxHeuresSupp(), TauxHoraireSalarie(), TauxEnseignement(),
          TauxDivers()};
}

std::vector<std::span<const LigneTaux>> TablesPatronales() {
  return {TauxCommuns(), TauxPatronaux()};
}

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
  const std::string sNom = Rubrique.sValeurTauxSalarial;
  taux::Contexte c{*this,   InfosSalaries, RsVarSalaries, RsVarSalariesHisto, RsSalariesHisto,
                   Rubrique, Rubrique.lIdValeurTauxSalarial, false, sType};
  const taux::LigneTaux* l = taux::TrouveTaux(taux::TablesSalariales(), sNom);
  return l == nullptr ? 0.0 : taux::Applique(*l, c);
}

double MethodeCalculG_Nouv::RechercheValeurTauxPatronal(VarCalculSalarie& InfosSalaries,
                                                        const RsRef& RsVarSalaries,
                                                        SalarieCalculRubrique& Rubrique,
                                                        std::string& sType,
                                                        const std::string& /*sDesignation*/) {
  sType.clear();
  const std::string sNom = Rubrique.sValeurTauxPatronal;
  const RsRef aucune;
  taux::Contexte c{*this,   InfosSalaries, RsVarSalaries, aucune, aucune,
                   Rubrique, Rubrique.lIdValeurTauxPatronal, true, sType};
  const taux::LigneTaux* l = taux::TrouveTaux(taux::TablesPatronales(), sNom);
  return l == nullptr ? 0.0 : taux::Applique(*l, c);
}

}  // namespace orvalis
