// The month run: every employee of the month through the engine, line by line, in the
// plan's order, with the cumulative totals kept between lines.
#ifndef ORVALIS_PAIE_CALCUL_MOIS_H_
#define ORVALIS_PAIE_CALCUL_MOIS_H_

#include <cstddef>
#include <functional>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "paie/donnees.h"

namespace orvalis::paie {

// Called after each employee with the count done and the total.
using Progression = std::function<void(std::size_t fait, std::size_t total)>;

// One engine object set up with the month's reference sources.
void PrepareMoteur(MethodeCalculG_Nouv& m, const DonneesMois& d);

// One employee's payslip: the preparations, then each of the employee's lines. A line whose
// entry gives false is kept with ok = false and feeds no total; the run goes on.
Bulletin CalculeSalarie(MethodeCalculG_Nouv& m, const DonneesMois& d, const Salarie& s);

// The whole month, in the order of the employees, on `travailleurs` threads (one engine
// each): the same payslips in the same order whatever their number. With several threads,
// `progression` is called from the workers, one call at a time.
ResultatMois CalculeMois(const DonneesMois& d, const Progression& progression = {},
                         unsigned travailleurs = 1);

// The number of cores, at least 1: the pay run's threads by default.
unsigned CoeursDisponibles();

// The payslip's totals from its lines (and the taxable net from the total "NETIMPOS").
Totaux TotauxBulletin(const Bulletin& b);

}  // namespace orvalis::paie

#endif  // ORVALIS_PAIE_CALCUL_MOIS_H_
