// Running a checked case on one engine object, and the output it gives.
#include "tools/case_runner.h"

#include <memory>
#include <ostream>

#include "tools/json_writer.h"

namespace orvalis::tools {

namespace {

// The engine object of a case with the records that the steps share.
class Session {
 public:
  explicit Session(TypeMoteur m) {
    if (m == TypeMoteur::Nouv) nouv_ = std::make_unique<MethodeCalculG_Nouv>();
    else histo_ = std::make_unique<MethodeCalculG>();
  }

  MoteurCalcul& Moteur() { return nouv_ ? static_cast<MoteurCalcul&>(*nouv_) : *histo_; }

  void Affecte(const std::vector<AffectationSource>& sources) {
    for (const auto& a : sources) {
      if (a.source->commun != nullptr) Moteur().*(a.source->commun) = a.valeur;
      else nouv_.get()->*(a.source->nouv) = a.valeur;
    }
  }

  Json operator()(const EtapePrepare& e) {
    const bool ok = nouv_ ? nouv_->Appel_Methode_Preparation_Calcul_General(e.nom, *salarie_)
                          : histo_->Appel_Methode_Preparation_Calcul_General(e.nom, *salarie_);
    Json r = {{"ok", ok}};
    if (e.snapshot) r["salarie"] = EcritRecord(*salarie_);
    return r;
  }

  Json operator()(const EtapeCalc& e) {
    auto ligne = e.garde ? derniereLigne_ : std::make_shared<SalarieCalculRubrique>();
    Applique(*ligne, e.rubrique);
    derniereLigne_ = ligne;
    ligneCourante_ = ligne;
    const bool ok =
        nouv_ ? nouv_->Appel_Methode_Calcul_General(e.nom, *salarie_, *ligne, e.RsVarSalaries,
                                                    e.RsVarSalariesHisto, e.RsSalariesHisto)
              : histo_->Appel_Methode_Calcul_General(e.nom, *salarie_, *ligne, e.RsVarSalaries,
                                                     e.RsVarSalariesHisto, e.RsSalariesHisto);
    Json r = {{"ok", ok}, {"rubrique", EcritRecord(*ligne)}};
    if (e.snapshot) r["salarie"] = EcritRecord(*salarie_);
    return r;
  }

  Json operator()(const EtapeSet& e) {
    Applique(*salarie_, e.champs);
    return {{"ok", true}};
  }

  Json operator()(const EtapeSources& e) {
    Affecte(e.sources);
    return {{"ok", true}};
  }

  Json operator()(const EtapeCall& e) {
    ContexteAppel contexte{Moteur(), nouv_.get(), histo_.get(), *salarie_, ligneCourante_};
    Json r = Json::object();
    // Operations called directly have no trap of their own: their faults are the result.
    try {
      ResultatAppel res = e.appel(contexte);
      r["result"] = std::move(res.resultat);
      r["out"] = std::move(res.sorties);
      if (res.avecRubrique) r["rubrique"] = EcritRecord(*ligneCourante_);
    } catch (const std::exception& f) {
      r = {{"fault", f.what()}};
    } catch (...) {
      r = {{"fault", "unknown fault"}};
    }
    if (e.snapshot) r["salarie"] = EcritRecord(*salarie_);
    return r;
  }

  VarCalculSalarie& Salarie() { return *salarie_; }

 private:
  std::unique_ptr<MethodeCalculG_Nouv> nouv_;
  std::unique_ptr<MethodeCalculG> histo_;
  std::unique_ptr<VarCalculSalarie> salarie_ = std::make_unique<VarCalculSalarie>();
  std::shared_ptr<SalarieCalculRubrique> derniereLigne_;  // of the last calc step
  std::shared_ptr<SalarieCalculRubrique> ligneCourante_;  // what "$rubrique" stands for
};

}  // namespace

Json ExecuteCas(Cas& cas) {
  Session s(cas.moteur);
  MoteurCalcul& m = s.Moteur();
  m.gPeriodeEncours = cas.gPeriodeEncours;
  s.Affecte(cas.sources);
  Applique(s.Salarie(), cas.salarie);

  Json etapes = Json::array();
  for (const auto& e : cas.etapes) etapes.push_back(std::visit(s, e));

  Json sortie = Json::object();
  sortie["steps"] = std::move(etapes);
  sortie["salarie"] = EcritRecord(s.Salarie());
  sortie["engine"] = {{"gPeriodeEncours", m.gPeriodeEncours},
                      {"gdSmicMensuel", EcritDouble(m.gdSmicMensuel)},
                      {"iTauxTptNonSubroge", EcritInt16(iTauxTptNonSubroge)}};
  sortie["messages"] = m.Messages;
  return sortie;
}

int LanceCas(const std::string& texte, const std::string& nomEntree, std::ostream& sortie,
             std::ostream& erreurs) {
  std::string resultat;
  try {
    Json j = LitTexteJson(texte, nomEntree);
    Cas cas = LitCas(j);
    // The whole output is built before any of it is printed.
    resultat = EcritJson(ExecuteCas(cas));
  } catch (const ErreurCas& e) {
    erreurs << e.what() << '\n';
    return 2;
  }
  sortie << resultat << std::flush;
  return 0;
}

}  // namespace orvalis::tools
