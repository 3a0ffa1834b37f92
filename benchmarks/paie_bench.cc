// The month of a large commune: the store read, every employee through the engine, the month
// written, SQLite in and out, on 1 or more worker threads. Counters: lines and employees per
// second.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "benchmarks/verifie.h"
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
  const auto travailleurs = static_cast<unsigned>(state.range(1));
  const std::string chemin = CommuneDe(agents);
  long lignes = 0;
  for (auto _ : state) {
    auto magasin = OuvreMagasinSqlite(chemin);
    const ResultatMois r = CalculeMois(magasin->ChargeMois("2024-03"), {}, travailleurs);
    magasin->EcritMois(r, true);
    lignes += r.lignes;
    // A month that times failed lines is not the month asked for.
    bench::Verifie(r.bulletins.size() == static_cast<std::size_t>(agents) && r.echecs == 0 &&
                       r.lignes > 10L * agents,
                   "the month's payslips, every line computing");
  }
  state.counters["lines/s"] = benchmark::Counter(static_cast<double>(lignes), benchmark::Counter::kIsRate);
  state.counters["employees/s"] = benchmark::Counter(
      static_cast<double>(agents) * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  std::filesystem::remove(chemin);
}
BENCHMARK(BM_MoisCommune)->ArgNames({"agents", "jobs"})->Args({10000, 1})->Args({10000, 2})->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

}  // namespace
}  // namespace orvalis::paie
