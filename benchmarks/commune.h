// The reference sources of a commune at a realistic size, and one civil servant of it: 300
// constants, 80 contribution rates, 200 cumulative totals of the pay run, 20 variables of
// the employee. The rows the benchmarks read stand among filler rows of the same shape.
#ifndef ORVALIS_BENCHMARKS_COMMUNE_H_
#define ORVALIS_BENCHMARKS_COMMUNE_H_

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::bench {

constexpr int kConstantes = 300;
constexpr int kTaux = 80;
constexpr int kCumuls = 200;
constexpr int kVariables = 20;

// Ids of the rows the pay lines name.
constexpr int kIdCoefCsg = 2;      // constant "COEFCSG": 98.25 %
constexpr int kIdCoefPlein = 150;  // constant "COEFPLEIN": 100 %
constexpr int kIdPremierTaux = 1;  // the real rates: ids 1 to kTauxReels
// The first variable is paid as a fixed amount: 100 + 10 * id.
constexpr int kIdPremiereVariable = 1;

// A contribution rate: its code and both parts, in percent.
struct TauxReel {
  const char* code;
  double salarial;
  double patronal;
};
const std::vector<TauxReel>& TauxReels();

// The March 2024 month of the engine: every source filled, the statutory values of the
// month in gRsConstantesFixes.
void SourcesDeLaCommune(MethodeCalculG_Nouv& m);

// A full-time tenured official whose index changes on the 11th, two children, residence
// zone 3; his variables in vars.
VarCalculSalarie Fonctionnaire(RsRef& vars);

// The value the sources give a total's employee part: the real ones, then i * 3.5 for the
// filler "CUMnnn".
double Cumul(const std::string& code);

}  // namespace orvalis::bench

#endif  // ORVALIS_BENCHMARKS_COMMUNE_H_
