// A whole payslip of a civil servant: the month's preparations, then every pay line in the
// host's order, each line computed afresh from its designations.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "benchmarks/commune.h"
#include "benchmarks/verifie.h"

namespace orvalis {
namespace {

using bench::AuCentime;
using bench::Verifie;

struct LigneBulletin {
  std::string sNomcalcul;
  SalarieCalculRubrique modele;
  double dMontantSalarial;  // what the line must pay or withhold
  double dMontantPatronal;
};

const char* const kPreparations[] = {"COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT",
                                     "NBRE_JOUR_PRESENCE"};

// The rate of an organisation on a base, with a coefficient or not.
LigneBulletin Cotisation(const std::string& code, int iTaux, const char* sBase,
                         const std::string& codeCumul, bool bCoefCsg) {
  const bench::TauxReel& t = bench::TauxReels()[static_cast<std::size_t>(iTaux)];
  LigneBulletin l{"BASE x TAUX", {}, 0, 0};
  l.modele.sCodeRubrique = code;
  l.modele.sValeurBase = sBase;
  if (bCoefCsg) {
    l.modele.sCoeffBase = "UNE CONSTANTE";
    l.modele.lIdCoeffBase = bench::kIdCoefCsg;
  }
  l.modele.sValeurTauxSalarial = "TAUX DE COTISATION DE L'ORGANISME";
  l.modele.sValeurTauxPatronal = "TAUX DE COTISATION DE L'ORGANISME";
  l.modele.lIdTaux = bench::kIdPremierTaux + iTaux;
  const double dBase = bench::Cumul(codeCumul) * (bCoefCsg ? 0.9825 : 1.0);
  l.dMontantSalarial = t.salarial * dBase / 100;
  l.dMontantPatronal = t.patronal * dBase / 100;
  return l;
}

std::vector<LigneBulletin> Bulletin() {
  std::vector<LigneBulletin> v;
  auto ligne = [&](const char* nom, const char* code, double sal) {
    LigneBulletin l{nom, {}, sal, 0};
    l.modele.sCodeRubrique = code;
    v.push_back(l);
  };
  ligne("SUPPLEMENT FAMILIAL", "SFT", 77.71);
  // Twenty allowances, each the employee's variable of its id paid as it stands.
  for (int i = 0; i < 20; ++i) {
    LigneBulletin l{"MONTANT FIXE", {}, 100.0 + 10 * (i + 1), 0};
    l.modele.sCodeRubrique = "PRIME" + std::to_string(i + 1);
    l.modele.sValeurBase = "UNE VARIABLE SALARIE";
    l.modele.lIdValeurBase = bench::kIdPremiereVariable + i;
    v.push_back(l);
  }
  // The contributions of an official, on their bases.
  v.push_back(Cotisation("CNRACL", 0, "BASE CNRACL", "ASSCNRACL", false));
  v.push_back(Cotisation("RAFP", 1, "BASE RAFP", "ASSRAFP", false));
  v.push_back(Cotisation("CSGDED", 2, "SALAIRE BRUT", "BRUT", true));
  v.push_back(Cotisation("CSGNDED", 3, "SALAIRE BRUT", "BRUT", true));
  v.push_back(Cotisation("CRDS", 4, "SALAIRE BRUT", "BRUT", true));
  const char* kUrssaf[] = {"URSMAL", "URSAF", "URSFNAL", "URSSOLID"};
  for (int i = 0; i < 4; ++i)
    v.push_back(Cotisation(kUrssaf[i], 5 + i, "BASE URSSAF TOTALITE", "ASSURSTOT", false));
  v.push_back(Cotisation("ATIACL", 9, "BASE ATIACL", "ASSATIACL", false));
  v.push_back(Cotisation("CNFPT", 10, "BASE CDG/CNFPT", "ASSCNFPT", false));
  v.push_back(Cotisation("CDG", 11, "BASE CDG/CNFPT", "ASSCNFPT", false));
  v.push_back(Cotisation("TRANSPORT", 12, "BASE URSSAF TOTALITE", "ASSURSTOT", false));
  v.push_back(Cotisation("VIEILLDEP", 13, "BASE URSSAF TOTALITE", "ASSURSTOT", false));
  v.push_back(Cotisation("VIEILLPLAF", 14, "BASE URSSAF TRANCHE A", "ASSURSTRA", false));
  // Twenty employer lines whose rates are constants of the commune, in percent (the even
  // ids, each id x 1.25 %), on the gross: insurance, social action, the mutual's share, ...
  for (int i = 0; i < 20; ++i) {
    const int id = 10 + 2 * i;
    LigneBulletin l{"BASE x TAUX", {}, 0, 2461.47 * (id * 1.25) / 100};
    l.modele.sCodeRubrique = "PAT" + std::to_string(id);
    l.modele.sValeurBase = "SALAIRE BRUT";
    l.modele.sValeurTauxPatronal = "UNE CONSTANTE";
    l.modele.lIdValeurTauxPatronal = id;
    v.push_back(l);
  }
  return v;
}

// One payslip: false when any call gives false.
bool Paie(MethodeCalculG_Nouv& m, VarCalculSalarie& s, const RsRef& vars,
          std::vector<LigneBulletin>& lignes, std::vector<SalarieCalculRubrique>& rubriques) {
  bool ok = true;
  for (const char* nom : kPreparations) ok = m.Appel_Methode_Preparation_Calcul_General(nom, s) && ok;
  for (std::size_t i = 0; i < lignes.size(); ++i) {
    rubriques[i] = lignes[i].modele;
    ok = m.Appel_Methode_Calcul_General(lignes[i].sNomcalcul, s, rubriques[i], vars) && ok;
  }
  return ok;
}

void BM_BulletinFonctionnaire(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  bench::SourcesDeLaCommune(m);
  RsRef vars;
  VarCalculSalarie s = bench::Fonctionnaire(vars);
  std::vector<LigneBulletin> lignes = Bulletin();
  std::vector<SalarieCalculRubrique> rubriques(lignes.size());
  for (int fois = 0; fois < 2; ++fois) {
    for (const char* nom : kPreparations)
      Verifie(m.Appel_Methode_Preparation_Calcul_General(nom, s), nom);
    for (std::size_t i = 0; i < lignes.size(); ++i) {
      rubriques[i] = lignes[i].modele;
      const SalarieCalculRubrique& r = rubriques[i];
      const LigneBulletin& l = lignes[i];
      Verifie(m.Appel_Methode_Calcul_General(l.sNomcalcul, s, rubriques[i], vars),
              l.modele.sCodeRubrique.c_str());
      if (!AuCentime(r.dMontantSalarial, l.dMontantSalarial) ||
          !AuCentime(r.dMontantPatronal, l.dMontantPatronal)) {
        std::fprintf(stderr, "%s: %.6f and %.6f, expected %.6f and %.6f\n",
                     l.modele.sCodeRubrique.c_str(), r.dMontantSalarial, r.dMontantPatronal,
                     l.dMontantSalarial, l.dMontantPatronal);
        Verifie(false, "the amounts of a line");
      }
    }
  }
  for (auto _ : state) benchmark::DoNotOptimize(Paie(m, s, vars, lignes, rubriques));
  state.SetItemsProcessed(state.iterations());
  state.SetLabel(std::to_string(std::size(kPreparations)) + " preparations, " +
                 std::to_string(lignes.size()) + " lines");
}

BENCHMARK(BM_BulletinFonctionnaire);

}  // namespace
}  // namespace orvalis
