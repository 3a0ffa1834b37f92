// One generic pay line "BASE x TAUX" through the entry: its base a total, its coefficient a
// constant, both its rates those of an organisation, on sources of a commune's size.
#include <benchmark/benchmark.h>

#include "benchmarks/commune.h"
#include "benchmarks/verifie.h"

namespace orvalis {
namespace {

using bench::Verifie;

// The deductible CSG: 98.25 % of the gross, at the employee's 6.8 %.
SalarieCalculRubrique LigneCsg() {
  SalarieCalculRubrique r;
  r.sCodeRubrique = "CSGDED";
  r.sValeurBase = "SALAIRE BRUT";
  r.sCoeffBase = "UNE CONSTANTE";
  r.lIdCoeffBase = bench::kIdCoefCsg;
  r.sValeurTauxSalarial = "TAUX DE COTISATION DE L'ORGANISME";
  r.sValeurTauxPatronal = "TAUX DE COTISATION DE L'ORGANISME";
  r.lIdTaux = bench::kIdPremierTaux + 2;  // URSDCSG
  return r;
}

void BM_LigneBaseTaux(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  bench::SourcesDeLaCommune(m);
  RsRef vars;
  VarCalculSalarie s = bench::Fonctionnaire(vars);
  // The line keeps its designations; each call writes the same base, rates and amounts.
  SalarieCalculRubrique r = LigneCsg();
  Verifie(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars), "BASE x TAUX gives true");
  // 2461.47 x 0.9825 = 2418.394275; x 6.8 % = 164.450810700.
  Verifie(r.dBase == 2461.47 * 0.9825 && r.dValeurCoefficient == 0.9825, "base and coefficient");
  Verifie(r.dTauxSalarial == 6.8 && r.dTauxPatronal == 0, "rates");
  Verifie(bench::AuCentime(r.dMontantSalarial, 164.45) && r.dMontantPatronal == 0, "amounts");
  for (auto _ : state) {
    benchmark::DoNotOptimize(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r, vars));
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK(BM_LigneBaseTaux);

}  // namespace
}  // namespace orvalis
