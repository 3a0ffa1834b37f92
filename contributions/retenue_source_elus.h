// What the two withholding rules of elected officials share beyond the engine's interface.
#ifndef ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_H_
#define ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_H_

#include <functional>
#include <optional>

#include "contributions/retenue_source_elus_detail.h"
#include "orvalis/MoteurCalcul.h"

namespace orvalis::elus {

// The tranche of the officials' tax scale for a net taxable amount of the period.
void Bareme(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double dNetImposable,
            double dPeriodesAn, double& dTauxTranche, double& dTrancheBasse,
            double& dTrancheHaute, double& dConstante);

// The frame of one payment period of the official, by sEluPeriodicite read as a text ("2",
// "3", "4", any other monthly): the expenses allowance of a mandate, the ceiling of the
// period, periods a year, months a period, and the coefficient of the scale's constants.
void DonneesMandat(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double& dFraisMandat,
                   double& dPlafondPeriode, double& dPeriodesAn, double& dMoisPeriode,
                   double& dCoefBareme);

// The rates of the new method into t: IRCANTEC "IRCTRA" and "IRCTRB", CSG "URSDCSG", URSSAF
// on the whole ("URSRGMAL" + "URSRGVEU") and under the ceiling ("URSRGVIEP").
void LitTaux(MoteurCalcul& m, MontantsRetenue& t);

// The expenses of the principal remuneration: none on a net of 0 or less; else at most its
// net when there are mandates, the whole allowance when there are none.
void FraisPrincipal(MontantsRetenue& t, bool bMandats);

// The amounts of a mandate written back into its row, its expenses at 0 until worked out.
void EcritMandat(Recordset& m, double dPlafond, double dCotisations, double dIrcA, double dIrcB,
                 double dCsg, double dNet);

// A mandate's expenses, at most its net, join the total; gives them (0 on a net of 0 or less).
double FraisMandat(MontantsRetenue& t, double dNetMandat);

// The tax of the period from the nets and expenses in t: the expenses kept (at most one and
// a half allowances), the net taxable, its tranche of the scale, the whole euros, the tax.
void Impot(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double dPeriodesAn,
           MontantsRetenue& t);

// The pay line of the new method: the whole euros taxed and the tax.
void EcritLigne(SalarieCalculRubrique& Rubrique, const MontantsRetenue& t);

// "RETENUE A LA SOURCE NOUVELLE METHODE" in the form of an engine: a new detail table
// rsDetailNeuf on the line; for an opted official whose payment period bFinPeriode ends, the
// frame of the period, the rates and the principal gross into t, then calcul works out the
// principal remuneration and the mandates of rsAutresIndemnites, and the tax follows; the
// detail rows in that form, and the pay line.
void RetenueNouvelleMethode(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                            SalarieCalculRubrique& Rubrique, const RsRef& rsDetailNeuf,
                            FormeDetail forme, const std::function<bool()>& bFinPeriode,
                            const std::function<void(MontantsRetenue&, Recordset&)>& calcul);

// A new, empty detail table of the historic withholding (rsRetenueALaSource).
RsRef NouveauDetailRetenueSource();

// "RETENUE A LA SOURCE": the withholding of the historic method, with its detail table.
void RetenueALaSource(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                      SalarieCalculRubrique& Rubrique, const RsRef& RsVariablesSalaries);

// The coefficient that turns a constant of the tax scale, expressed in the periodicity coded
// by sEluBaremeImpot (1 monthly, 2 quarterly, 5 half-yearly, 3 yearly), into one of a payment
// period of dMoisPeriode months: the months of the payment period over those of the scale's.
// A code out of that list gives no coefficient.
std::optional<double> CoefBareme(double dMoisPeriode, double dCodeBareme);

}  // namespace orvalis::elus

#endif  // ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_H_
