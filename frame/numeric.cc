// Faults and the checked conversions of doubles to integers.
#include <cmath>

#include "orvalis/numeric.h"

namespace orvalis {

void Faute(const std::string& what) { throw Fault(what); }

namespace {
// Half to even, as the host's integer conversions round: 2.5 gives 2, 3.5 gives 4.
double DemiVersPair(double d) {
  if (std::isnan(d)) Faute("overflow");
  const double plancher = std::floor(d);
  const double reste = d - plancher;
  if (reste > 0.5) return plancher + 1;
  if (reste < 0.5) return plancher;
  return std::fmod(plancher, 2.0) == 0 ? plancher : plancher + 1;
}
template <typename R>
R Convertit(double d) {
  const double r = DemiVersPair(d);
  if (r < std::numeric_limits<typename R::rep>::min() || r > std::numeric_limits<typename R::rep>::max())
    Faute("overflow");
  return R(static_cast<long long>(r));
}
}  // namespace

Int16 CInt(double d) { return Convertit<Int16>(d); }
Int32 CLng(double d) { return Convertit<Int32>(d); }

}  // namespace orvalis
