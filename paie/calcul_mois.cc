#include "paie/calcul_mois.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <unordered_map>

#include "orvalis/ModOutilsSpec.h"
#include "paie/mois_outils.h"

namespace orvalis::paie {

namespace {

const std::vector<std::string> kColonnesCumuls = {"Idcumul",      "CodeCumul",
                                                  "PartSalariale", "PartPatronale",
                                                  "PartSalarialeRappel", "PartPatronaleRappel"};

// The employee's totals of the month, as the engine reads them (gRsCumuls) and as the
// store keeps them. A capped total shows the smaller of its sum and its cap.
class CumulsSalarie {
 public:
  explicit CumulsSalarie(const std::vector<Cumul>& cumuls)
      : cumuls_(cumuls), rs_(NouveauRecordset(kColonnesCumuls)) {
    for (const auto& c : cumuls) {
      rs_->AddNew();
      rs_->SetField("Idcumul", Value(static_cast<double>(c.IdCumul)));
      rs_->SetField("CodeCumul", Value(c.CodeCumul));
      for (const char* col : {"PartSalariale", "PartPatronale", "PartSalarialeRappel", "PartPatronaleRappel"})
        rs_->SetField(col, Value(0.0));
      sommes_[c.CodeCumul] = {0.0, 0.0};
      vus_[c.CodeCumul] = {0.0, 0.0};
    }
    rs_->ClearFilter();
  }

  const RsRef& Source() const { return rs_; }
  std::map<std::string, std::pair<double, double>> Valeurs() const {
    return {vus_.begin(), vus_.end()};
  }

  void Ajoute(const std::string& code, char part, double montant) {
    auto& v = sommes_.at(code);
    double& x = part == 'P' ? v.second : v.first;
    // Totals stay in cents: the sum of amounts already rounded, rounded again against drift.
    x = Arrondi(x + montant, 2);
    Montre(code, part);
    for (const auto& c : cumuls_)
      if (c.plafondDe == code) Montre(c.CodeCumul, part);
  }

 private:
  void Montre(const std::string& code, char part) {
    const Cumul& c = *std::find_if(cumuls_.begin(), cumuls_.end(),
                                   [&](const Cumul& x) { return x.CodeCumul == code; });
    auto cote = [part](std::pair<double, double>& p) -> double& { return part == 'P' ? p.second : p.first; };
    double valeur = cote(sommes_.at(code));
    if (!c.plafondDe.empty())
      valeur = std::min(valeur, Arrondi(cote(vus_.at(c.plafondDe)) * c.plafondTaux / 100, 2));
    cote(vus_.at(code)) = valeur;
    rs_->Filter("CodeCumul = '" + code + "'");
    rs_->SetField(part == 'P' ? "PartPatronale" : "PartSalariale", Value(valeur));
    rs_->ClearFilter();
  }

  const std::vector<Cumul>& cumuls_;
  RsRef rs_;
  std::unordered_map<std::string, std::pair<double, double>> sommes_, vus_;
};

// The record's own tables that the store does not hold yet: empty, so that a handler walking
// them finds no row rather than no table.
void TablesVides(VarCalculSalarie& v) {
  v.rsIndemnitesJournalieres =
      NouveauRecordset({"TypeIJ", "DateDebut", "DateFin", "IJPercu", "IJSubroge", "IJPAS"});
  v.rsAutresIndemnites = NouveauRecordset(
      {"Salaire", "Designation", "DateDebut", "DateFin", "MontantRemunerationBrute",
       "MontantRemunerationBruteTheorique", "SoumiseUrssaf"});
  v.rsExConjoints = NouveauRecordset({"CodeRubrique", "NbEnfantsACharge", "TauxTempsGarde"});
  v.RsHeuresHebdoMultiples = NouveauRecordset({"DateDebut", "DateFin", "HeuresHebdo"});
  const std::vector<std::string> plafonds = {
      "DateDebutPeriode", "DateFinPeriode", "TotalIndemnitesPeriode", "PlafondSSPeriode",
      "IndemniteColleEnCoursPeriode", "NbJourPeriode", "NbJourPeriodeSurPaieMoisEnCours"};
  v.RsPlafondUrssafPeriodes = NouveauRecordset(plafonds);
  v.RsPlafondIrcantecPeriodes = NouveauRecordset(plafonds);
}

// No pay amount reaches ten thousand billion: one that does comes from a value of the store
// gone wrong. Below it, amounts round to cents and any number of them sum and round again
// without leaving the range of the rounding.
constexpr double kMontantMax = 1e13;

// The amount in cents into `centimes`; false, and the amount as it came, when it is not a
// finite amount below the bound.
bool EnCentimes(double montant, double& centimes) {
  if (!(std::fabs(montant) < kMontantMax)) {
    centimes = montant;
    return false;
  }
  centimes = Arrondi(montant, 2);
  return true;
}

double Montant(const LigneBulletin& l, const std::string& quoi) {
  if (quoi == "BASE") return l.dBase;
  if (quoi == "PATRONAL") return l.dMontantPatronal;
  return l.dMontantSalarial;
}

}  // namespace

void PrepareMoteur(MethodeCalculG_Nouv& m, const DonneesMois& d) {
  m.gPeriodeEncours = PeriodeEncours(d.mois);
  m.gRsConstantesFixes = d.constantesFixes;
  m.gRsConstantesFixesHistorique = d.constantesFixesHistorique;
  m.gRsConstantes = d.constantes;
  m.gRsConstantesHistorique = d.constantesHistorique;
  m.gRsTaux = d.taux;
  m.gRsBaremeTauxPAS = d.baremePAS;
}

Bulletin CalculeSalarie(MethodeCalculG_Nouv& m, const DonneesMois& d, const Salarie& s) {
  // A handler may move the pay month (waiting days of another month): each employee starts
  // on the month of the run.
  m.gPeriodeEncours = PeriodeEncours(d.mois);
  CumulsSalarie cumuls(d.cumuls);
  m.gRsCumuls = cumuls.Source();
  m.gRsCumulsHistoriqueSal = s.cumulsHisto;

  VarCalculSalarie v;
  TablesVides(v);
  v.lIdSalarie = s.lIdSalarie;
  v.sMatricule = s.sMatricule;
  tools::Applique(v, s.champs);
  v.rsSituationsExceptionnelles = s.situations;

  Bulletin b;
  b.lIdSalarie = s.lIdSalarie;
  b.sMatricule = s.sMatricule;
  b.nom = s.nom;
  b.prenom = s.prenom;
  b.emploi = s.emploi;
  b.adresse = s.adresse;

  int ordrePreparation = 0;
  for (const auto& nom : d.preparations) {
    --ordrePreparation;
    if (m.Appel_Methode_Preparation_Calcul_General(nom, v)) continue;
    // A failed preparation is kept as a line of its own, before the pay lines.
    LigneBulletin l;
    l.ordre = ordrePreparation;
    l.sCodeRubrique = "PREPARATION";
    l.sDesignation = "Préparation " + nom;
    l.groupe = "INFO";
    l.nature = "INFO";
    l.methode = nom;
    l.ok = false;
    b.lignes.push_back(std::move(l));
  }

  for (std::size_t i : s.rubriques) {
    const RubriquePlan& p = d.plan[i];
    SalarieCalculRubrique r;
    tools::Applique(r, p.champs);
    const bool ok = m.Appel_Methode_Calcul_General(p.methode, v, r, s.variables, s.variablesHisto,
                                                   s.historique);
    LigneBulletin l;
    l.lIdRubrique = p.lIdRubrique;
    l.ordre = p.ordre;
    l.sCodeRubrique = p.sCodeRubrique;
    // Some handlers complete the label (" - Taux neutre", " - Contrat court"): keep theirs.
    l.sDesignation = r.sDesignation.empty() ? p.sDesignation : r.sDesignation;
    l.groupe = p.groupe;
    l.nature = p.nature;
    l.methode = p.methode;
    // The payslip shows cents: amounts are rounded once, here, and the totals add them. A line
    // with an amount out of bounds fails as a line the engine refused.
    const bool base = EnCentimes(r.dBase, l.dBase);
    const bool salarial = EnCentimes(r.dMontantSalarial, l.dMontantSalarial);
    const bool patronal = EnCentimes(r.dMontantPatronal, l.dMontantPatronal);
    l.ok = ok && base && salarial && patronal;
    l.dValeurCoefficient = r.dValeurCoefficient;
    l.dTauxSalarial = r.dTauxSalarial;
    l.dTauxPatronal = r.dTauxPatronal;
    l.sValeurBase = r.sValeurBase;
    l.sCoeffBase = r.sCoeffBase;
    l.sValeurTauxSalarial = r.sValeurTauxSalarial;
    l.sValeurTauxPatronal = r.sValeurTauxPatronal;
    if (l.ok)
      for (const auto& a : p.alimente) cumuls.Ajoute(a.CodeCumul, a.part, a.signe * Montant(l, a.montant));
    else
      ++b.echecs;
    b.lignes.push_back(std::move(l));
  }
  for (const auto& l : b.lignes)
    if (l.sCodeRubrique == "PREPARATION") ++b.echecs;

  b.sTypeModele = v.sTypeModele;
  b.sCodeCategorie = v.sCodeCategorie;
  b.dIndiceMajoreM = v.dIndiceMajoreM;
  b.dBonification = v.dBonification;
  b.dTauxPoste = v.dTauxPoste;
  b.dHeuresMois = v.dHeuresMois;
  b.cumuls = cumuls.Valeurs();
  b.totaux = TotauxBulletin(b);
  return b;
}

Totaux TotauxBulletin(const Bulletin& b) {
  Totaux t;
  double gainsHorsBrut = 0;
  for (const auto& l : b.lignes) {
    if (!l.ok) continue;
    if (l.nature == "GAIN") {
      (l.groupe == "BRUT" ? t.brut : gainsHorsBrut) += l.dMontantSalarial;
    } else if (l.nature == "RETENUE") {
      if (l.groupe == "PAS") {
        t.pas += l.dMontantSalarial;
        t.basePAS = l.dBase;
        t.tauxPAS = l.dTauxSalarial;
      } else {
        t.cotisationsSalariales += l.dMontantSalarial;
      }
    }
    if (l.nature == "RETENUE" || l.nature == "PATRONAL") t.cotisationsPatronales += l.dMontantPatronal;
  }
  t.brut = Arrondi(t.brut, 2);
  t.cotisationsSalariales = Arrondi(t.cotisationsSalariales, 2);
  t.cotisationsPatronales = Arrondi(t.cotisationsPatronales, 2);
  t.netAvantImpot = Arrondi(t.brut - t.cotisationsSalariales + gainsHorsBrut, 2);
  t.netPaye = Arrondi(t.netAvantImpot - t.pas, 2);
  t.coutEmployeur = Arrondi(t.brut + gainsHorsBrut + t.cotisationsPatronales, 2);
  if (auto it = b.cumuls.find("NETIMPOS"); it != b.cumuls.end()) t.netImposable = it->second.first;
  return t;
}

ResultatMois CalculeMois(const DonneesMois& d, const Progression& progression) {
  const auto debut = std::chrono::steady_clock::now();
  ResultatMois res;
  res.mois = d.mois;
  res.employeur = d.employeur;
  MethodeCalculG_Nouv m;
  PrepareMoteur(m, d);
  res.bulletins.reserve(d.salaries.size());
  for (std::size_t i = 0; i < d.salaries.size(); ++i) {
    res.bulletins.push_back(CalculeSalarie(m, d, d.salaries[i]));
    res.lignes += static_cast<long>(res.bulletins.back().lignes.size());
    res.echecs += res.bulletins.back().echecs;
    if (progression) progression(i + 1, d.salaries.size());
  }
  res.secondes = std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
  return res;
}

}  // namespace orvalis::paie
