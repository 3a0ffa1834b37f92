#include "paie/calcul_mois.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <exception>
#include <mutex>
#include <thread>
#include <unordered_map>

#include "frame/filtre_egalite.h"
#include "orvalis/ModOutilsSpec.h"
#include "paie/mois_outils.h"

namespace orvalis::paie {

namespace {

const std::vector<std::string> kColonnesCumuls = {"Idcumul",      "CodeCumul",
                                                  "PartSalariale", "PartPatronale",
                                                  "PartSalarialeRappel", "PartPatronaleRappel"};

// The employee's totals of the month, as the engine reads them (gRsCumuls) and as the
// store keeps them. A capped total shows the smaller of its sum and its cap. The source is
// built once per engine and set back to zero for each employee: the engine only reads it.
class CumulsSalarie {
 public:
  explicit CumulsSalarie(const std::vector<Cumul>& cumuls)
      : cumuls_(cumuls), rs_(NouveauRecordset(kColonnesCumuls)), sommes_(cumuls.size()),
        vus_(cumuls.size()), plafonnes_(cumuls.size()), ecrit_(cumuls.size(), false) {
    for (std::size_t i = 0; i < cumuls.size(); ++i) {
      const Cumul& c = cumuls[i];
      rs_->AddNew();
      rs_->SetField("Idcumul", Value(static_cast<double>(c.IdCumul)));
      rs_->SetField("CodeCumul", Value(c.CodeCumul));
      for (const char* col : {"PartSalariale", "PartPatronale", "PartSalarialeRappel", "PartPatronaleRappel"})
        rs_->SetField(col, Value(0.0));
      place_.try_emplace(c.CodeCumul, i);
    }
    for (std::size_t i = 0; i < cumuls.size(); ++i)
      if (!cumuls[i].plafondDe.empty()) plafonnes_[Place(cumuls[i].plafondDe)].push_back(i);
    rs_->ClearFilter();
  }

  // Every total back to zero, the source unfiltered, as a new employee finds them.
  void Recommence() {
    for (std::size_t i : ecrits_) {
      sommes_[i] = vus_[i] = {0.0, 0.0};
      Ecrit(i, "PartSalariale", 0.0);
      Ecrit(i, "PartPatronale", 0.0);
      ecrit_[i] = false;
    }
    ecrits_.clear();
    rs_->ClearFilter();
  }

  const RsRef& Source() const { return rs_; }
  std::map<std::string, std::pair<double, double>> Valeurs() const {
    std::map<std::string, std::pair<double, double>> v;
    for (std::size_t i = 0; i < cumuls_.size(); ++i) v.emplace(cumuls_[i].CodeCumul, vus_[i]);
    return v;
  }

  void Ajoute(const std::string& code, char part, double montant) {
    const std::size_t i = Place(code);
    double& x = Cote(sommes_[i], part);
    // Totals stay in cents: the sum of amounts already rounded, rounded again against drift.
    x = Arrondi(x + montant, 2);
    Montre(i, part);
    for (std::size_t j : plafonnes_[i]) Montre(j, part);
  }

 private:
  static double& Cote(std::pair<double, double>& p, char part) { return part == 'P' ? p.second : p.first; }

  // A code that no total has is the store's error: std::out_of_range, as a map's at().
  std::size_t Place(const std::string& code) const { return place_.at(code); }

  void Montre(std::size_t i, char part) {
    const Cumul& c = cumuls_[i];
    double valeur = Cote(sommes_[i], part);
    if (!c.plafondDe.empty())
      valeur = std::min(valeur, Arrondi(Cote(vus_[Place(c.plafondDe)], part) * c.plafondTaux / 100, 2));
    Cote(vus_[i], part) = valeur;
    Ecrit(i, part == 'P' ? "PartPatronale" : "PartSalariale", valeur);
    if (!ecrit_[i]) ecrits_.push_back(i);
    ecrit_[i] = true;
  }

  void Ecrit(std::size_t i, const char* colonne, double valeur) {
    FiltreCode(*rs_, "CodeCumul", cumuls_[i].CodeCumul);
    rs_->SetField(colonne, Value(valeur));
    rs_->ClearFilter();
  }

  const std::vector<Cumul>& cumuls_;
  RsRef rs_;
  std::unordered_map<std::string, std::size_t> place_;  // CodeCumul -> place in cumuls_
  std::vector<std::pair<double, double>> sommes_, vus_;  // (S, P) by place
  std::vector<std::vector<std::size_t>> plafonnes_;     // the totals capped by each one
  std::vector<std::size_t> ecrits_;                     // the places written since the start
  std::vector<bool> ecrit_;                             // by place: in ecrits_
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

// One employee's payslip, on the engine's totals source set back to zero.
Bulletin BulletinDe(MethodeCalculG_Nouv& m, const DonneesMois& d, const Salarie& s,
                    CumulsSalarie& cumuls) {
  // A handler may move the pay month (waiting days of another month): each employee starts
  // on the month of the run.
  m.gPeriodeEncours = PeriodeEncours(d.mois);
  cumuls.Recommence();
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

// A worker's own copy of a reference source: the lookups move a source's filter and
// position, so engines on different threads never read the same one.
RsRef CopieSource(const RsRef& rs) {
  if (!rs) return rs;
  const std::vector<std::string> colonnes = rs->Columns();
  RsRef copie = NouveauRecordset(colonnes);
  for (const auto& ligne : rs->Rows()) {
    copie->AddNew();
    for (std::size_t i = 0; i < colonnes.size(); ++i) copie->SetField(colonnes[i], ligne[i]);
  }
  copie->ClearFilter();
  return copie;
}

// The reference sources of the month, copied for one worker; the rest of the month (plan,
// totals, employees) is only read, and each employee goes to one worker alone.
DonneesMois SourcesDuTravailleur(const DonneesMois& d) {
  DonneesMois w;
  w.mois = d.mois;
  w.constantesFixes = CopieSource(d.constantesFixes);
  w.constantesFixesHistorique = CopieSource(d.constantesFixesHistorique);
  w.constantes = CopieSource(d.constantes);
  w.constantesHistorique = CopieSource(d.constantesHistorique);
  w.taux = CopieSource(d.taux);
  w.baremePAS = CopieSource(d.baremePAS);
  return w;
}

// The payslips of the month on several threads: each worker takes the next employee not
// yet taken and writes the payslip at the employee's place.
void CalculeEnParallele(const DonneesMois& d, std::vector<Bulletin>& bulletins,
                        const Progression& progression, unsigned travailleurs) {
  const std::size_t total = d.salaries.size();
  std::atomic<std::size_t> suivant{0};
  std::mutex verrou;  // the progression and the first error
  std::size_t faits = 0;
  std::exception_ptr erreur;
  auto travail = [&] {
    try {
      MethodeCalculG_Nouv m;
      PrepareMoteur(m, SourcesDuTravailleur(d));
      CumulsSalarie cumuls(d.cumuls);
      for (std::size_t i; (i = suivant.fetch_add(1)) < total;) {
        bulletins[i] = BulletinDe(m, d, d.salaries[i], cumuls);
        if (!progression) continue;
        std::lock_guard<std::mutex> garde(verrou);
        progression(++faits, total);
      }
    } catch (...) {
      // Nothing of the month is written then: the others stop at their next employee.
      suivant.store(total);
      std::lock_guard<std::mutex> garde(verrou);
      if (!erreur) erreur = std::current_exception();
    }
  };
  {
    std::vector<std::jthread> fils;
    for (unsigned t = 0; t < travailleurs; ++t) fils.emplace_back(travail);
  }
  if (erreur) std::rethrow_exception(erreur);
}

}  // namespace

unsigned CoeursDisponibles() { return std::max(1u, std::thread::hardware_concurrency()); }

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
  CumulsSalarie cumuls(d.cumuls);
  return BulletinDe(m, d, s, cumuls);
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

ResultatMois CalculeMois(const DonneesMois& d, const Progression& progression,
                         unsigned travailleurs) {
  const auto debut = std::chrono::steady_clock::now();
  ResultatMois res;
  res.mois = d.mois;
  res.employeur = d.employeur;
  travailleurs = static_cast<unsigned>(std::min<std::size_t>(travailleurs, d.salaries.size()));
  if (travailleurs > 1) {
    res.bulletins.resize(d.salaries.size());
    CalculeEnParallele(d, res.bulletins, progression, travailleurs);
  } else {
    MethodeCalculG_Nouv m;
    PrepareMoteur(m, d);
    CumulsSalarie cumuls(d.cumuls);
    res.bulletins.reserve(d.salaries.size());
    for (std::size_t i = 0; i < d.salaries.size(); ++i) {
      res.bulletins.push_back(BulletinDe(m, d, d.salaries[i], cumuls));
      if (progression) progression(i + 1, d.salaries.size());
    }
  }
  for (const auto& b : res.bulletins) {
    res.lignes += static_cast<long>(b.lignes.size());
    res.echecs += b.echecs;
  }
  res.secondes = std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
  return res;
}

}  // namespace orvalis::paie
