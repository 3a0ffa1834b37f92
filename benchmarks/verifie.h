// The check every benchmark makes once before it times anything: a benchmark that times
// faults, or the wrong amounts, is worthless, so it stops the run.
#ifndef ORVALIS_BENCHMARKS_VERIFIE_H_
#define ORVALIS_BENCHMARKS_VERIFIE_H_

#include <cstdio>
#include <cstdlib>

namespace orvalis::bench {

inline void Verifie(bool ok, const char* quoi) {
  if (ok) return;
  std::fprintf(stderr, "benchmark check failed: %s\n", quoi);
  std::abort();
}

// Amounts are compared to the cent they are paid at, rates and coefficients exactly.
inline bool AuCentime(double a, double b) { return a - b < 0.005 && b - a < 0.005; }

}  // namespace orvalis::bench

#endif  // ORVALIS_BENCHMARKS_VERIFIE_H_
