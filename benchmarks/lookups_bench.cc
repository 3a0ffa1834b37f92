// Lookups by code on sources of growing size: the cost must not grow with the rows. Each
// runs on the in-memory source and, in the same run, on a scanning source for comparison.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "benchmarks/scan_recordset.h"
#include "benchmarks/verifie.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/Recordset.h"

namespace orvalis {
namespace {

using bench::Verifie;
using Fabrique = RsRef (*)(const std::vector<std::string>&);

std::string Code(long i) { return "C" + std::to_string(100000 + i); }

// Row i holds i + 0.125 * c in its column c.
RsRef Table(Fabrique nouveau, const std::vector<std::string>& colonnes, long n) {
  RsRef rs = nouveau(colonnes);
  for (long i = 0; i < n; ++i) {
    rs->AddNew();
    rs->SetField(colonnes[0], Code(i));
    for (std::size_t c = 1; c < colonnes.size(); ++c)
      rs->SetField(colonnes[c], static_cast<double>(i) + 0.125 * static_cast<double>(c));
  }
  return rs;
}

// Sixteen codes spread over the table, looked up in turn, and their rows.
std::vector<long> Rangs(long n) {
  std::vector<long> v;
  for (long k = 0; k < 16; ++k) v.push_back(k * n / 16);
  return v;
}
std::vector<std::string> Codes(long n) {
  std::vector<std::string> v;
  for (long i : Rangs(n)) v.push_back(Code(i));
  return v;
}

template <Fabrique Nouveau>
void BM_dRechercheValeur_Constantes(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  m.gRsConstantes = Table(Nouveau, {"CodeConstante", "Valeur"}, state.range(0));
  const auto codes = Codes(state.range(0));
  const auto rangs = Rangs(state.range(0));
  for (std::size_t k = 0; k < 16; ++k)
    Verifie(m.dRechercheValeur_Constantes(m.gRsConstantes, codes[k]) == rangs[k] + 0.125,
            "constant by code");
  std::size_t k = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(m.dRechercheValeur_Constantes(m.gRsConstantes, codes[k++ & 15]));
  }
}

template <Fabrique Nouveau>
void BM_dRechercheValeurTaux(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  m.gRsTaux = Table(Nouveau, {"CodeTaux", "PartSalariale", "PartPatronale"}, state.range(0));
  const auto codes = Codes(state.range(0));
  const auto rangs = Rangs(state.range(0));
  // 0.125 rounded to 2 places, half away from zero: 0.13.
  for (std::size_t k = 0; k < 16; ++k)
    Verifie(bench::AuCentime(m.dRechercheValeurTaux(codes[k]), rangs[k] + 0.13),
            "rate by code");
  std::size_t k = 0;
  for (auto _ : state) benchmark::DoNotOptimize(m.dRechercheValeurTaux(codes[k++ & 15]));
}

template <Fabrique Nouveau>
void BM_dRechercheValeurCumul(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  m.gRsCumuls = Table(Nouveau, {"CodeCumul", "PartSalariale", "PartPatronale"}, state.range(0));
  const auto codes = Codes(state.range(0));
  const auto rangs = Rangs(state.range(0));
  // Employer side: i + 0.25.
  for (std::size_t k = 0; k < 16; ++k)
    Verifie(bench::AuCentime(m.dRechercheValeurCumul(codes[k], "S"), rangs[k] + 0.13) &&
                m.dRechercheValeurCumul(codes[k], "P") == rangs[k] + 0.25,
            "total by code");
  std::size_t k = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(m.dRechercheValeurCumul(codes[k & 15], (k & 1) ? "S" : "P"));
    ++k;
  }
}

// For reference: the rounding that rates and totals pass through.
void BM_Arrondi2(benchmark::State& state) {
  Verifie(Arrondi(1.005, 2) == 1.01 && Arrondi(-2.675, 2) == -2.68, "rounding");
  double d = 1234.5678;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Arrondi(d, 2));
    d += 0.001;
  }
}

constexpr Fabrique kMemoire = &NouveauRecordset;
constexpr Fabrique kBalayage = &bench::NouveauRecordsetBalayage;

BENCHMARK(BM_Arrondi2);
BENCHMARK(BM_dRechercheValeur_Constantes<kMemoire>)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_dRechercheValeur_Constantes<kBalayage>)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_dRechercheValeurTaux<kMemoire>)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_dRechercheValeurTaux<kBalayage>)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_dRechercheValeurCumul<kMemoire>)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_dRechercheValeurCumul<kBalayage>)->Arg(10)->Arg(1000)->Arg(10000);

}  // namespace
}  // namespace orvalis
