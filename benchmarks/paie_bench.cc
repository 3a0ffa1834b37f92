// The month of a large commune: the store read, every employee through the engine, the month
// written, SQLite in and out. Counters: lines and employees per second.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "paie/calcul_mois.h"
#include "paie/commune_exemple.h"
#include "paie/magasin.h"

namespace orvalis::paie {
namespace {

std::string CommuneDe(int agents) {
  const auto chemin = std::filesystem::temp_directory_path() /
                      ("orvalis-bench-" + std::to_string(agents) + ".db");
  std::filesystem::remove(chemin);
  CreeCommuneExemple(chemin.string(), agents);
  return chemin.string();
}

void BM_MoisCommune(benchmark::State& state) {
  const int agents = static_cast<int>(state.range(0));
  const std::string chemin = CommuneDe(agents);
  long lignes = 0;
  for (auto _ : state) {
    auto magasin = OuvreMagasinSqlite(chemin);
    const ResultatMois r = CalculeMois(magasin->ChargeMois("2024-03"));
    magasin->EcritMois(r, true);
    lignes += r.lignes;
  }
  state.counters["lines/s"] = benchmark::Counter(static_cast<double>(lignes), benchmark::Counter::kIsRate);
  state.counters["employees/s"] = benchmark::Counter(
      static_cast<double>(agents) * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  std::filesystem::remove(chemin);
}
BENCHMARK(BM_MoisCommune)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

}  // namespace
}  // namespace orvalis::paie
