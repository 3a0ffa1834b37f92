// Lookups by code on sources of growing size: the cost must not grow with the rows.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/Recordset.h"

namespace orvalis {
namespace {

std::string Code(long i) { return "C" + std::to_string(100000 + i); }

RsRef Table(const std::vector<std::string>& colonnes, long n) {
  RsRef rs = NouveauRecordset(colonnes);
  for (long i = 0; i < n; ++i) {
    rs->AddNew();
    rs->SetField(colonnes[0], Code(i));
    for (std::size_t c = 1; c < colonnes.size(); ++c)
      rs->SetField(colonnes[c], static_cast<double>(i) + 0.125 * static_cast<double>(c));
  }
  return rs;
}

// Sixteen codes spread over the table, looked up in turn.
std::vector<std::string> Codes(long n) {
  std::vector<std::string> v;
  for (long k = 0; k < 16; ++k) v.push_back(Code(k * n / 16));
  return v;
}

void BM_dRechercheValeur_Constantes(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  m.gRsConstantes = Table({"CodeConstante", "Valeur"}, state.range(0));
  const auto codes = Codes(state.range(0));
  std::size_t k = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(m.dRechercheValeur_Constantes(m.gRsConstantes, codes[k++ & 15]));
  }
}

void BM_dRechercheValeurTaux(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  m.gRsTaux = Table({"CodeTaux", "PartSalariale", "PartPatronale"}, state.range(0));
  const auto codes = Codes(state.range(0));
  std::size_t k = 0;
  for (auto _ : state) benchmark::DoNotOptimize(m.dRechercheValeurTaux(codes[k++ & 15]));
}

void BM_dRechercheValeurCumul(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  m.gRsCumuls = Table({"CodeCumul", "PartSalariale", "PartPatronale"}, state.range(0));
  const auto codes = Codes(state.range(0));
  std::size_t k = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(m.dRechercheValeurCumul(codes[k & 15], (k & 1) ? "S" : "P"));
    ++k;
  }
}

// For reference: the rounding that rates and totals pass through.
void BM_Arrondi2(benchmark::State& state) {
  double d = 1234.5678;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Arrondi(d, 2));
    d += 0.001;
  }
}

BENCHMARK(BM_Arrondi2);
BENCHMARK(BM_dRechercheValeur_Constantes)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_dRechercheValeurTaux)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_dRechercheValeurCumul)->Arg(10)->Arg(1000)->Arg(10000);

}  // namespace
}  // namespace orvalis
