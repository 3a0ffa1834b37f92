// The detail table of the officials' withholding, new method: the amounts of one call and
// the writing of its rows.
#ifndef ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_DETAIL_H_
#define ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_DETAIL_H_

#include <string>
#include <vector>

#include "orvalis/Recordset.h"

namespace orvalis::elus {

// The amounts of one payment period, all 0 until worked out; a skipped official keeps them
// so, over a period of one month.
struct MontantsRetenue {
  double dMoisPeriode = 1;
  double dFraisMandat = 0, dFraisMax = 0, dPlafondPeriode = 0, dCoefBareme = 0;
  double dTauxTA = 0, dTauxTB = 0, dTauxCsg = 0, dTauxUrssafTot = 0, dTauxUrssafPlaf = 0;
  double dCoefCsg = 0;
  double dBrutPrincipal = 0, dCotiPatRetraite = 0, dIrcA = 0, dIrcB = 0;
  double dUrssafTot = 0, dUrssafPlaf = 0, dUrssaf = 0, dCsg = 0, dNetPrincipal = 0;
  double dFraisPrincipal = 0, dFraisTotal = 0, dFraisRetenus = 0, dNetMandats = 0;
  double dNetBrutImposable = 0, dNetRetenu = 0;
  double dTauxTranche = 0, dTrancheBasse = 0, dTrancheHaute = 0, dConstante = 0, dImpot = 0;
};

// The detail table of the current engine, or the historic engine's earlier one: no columns
// of the employer's pension, of the two URSSAF bases nor of the officials' training right,
// and a row for every row of the mandates, whatever its Salaire.
enum class FormeDetail { kActuelle, kHistorique };

// The columns of rsRetenueALaSourceNouvelleMethode, in order.
std::vector<std::string> ColonnesDetailNouvelleMethode(FormeDetail forme);

// Writes the rows, amounts per month: the principal remuneration, one row for each mandate
// of rsAutres (from what its row holds now), and the final row of the tax.
void EcritDetailNouvelleMethode(Recordset& rsDetail, Recordset& rsAutres,
                                const MontantsRetenue& t, FormeDetail forme);

}  // namespace orvalis::elus

#endif  // ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_DETAIL_H_
