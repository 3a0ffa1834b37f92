// ModOutilsSpec: the numeric and date utilities of the pay rules.
//
// One rounding routine (Arrondi) for all money and rates, the truncations, the text forms of
// dates and the calendar counts on the 30-day month. None of them traps: a null, a text
// that is not a number or not a date, or a 16-bit overflow is a Fault for the entry point.
#ifndef ORVALIS_MODOUTILSSPEC_H_
#define ORVALIS_MODOUTILSSPEC_H_

#include <optional>
#include <string>

#include "orvalis/numeric.h"

namespace orvalis {

// The two decimal separator characters, set by DetecteSeparateurDecimal: one pair per thread,
// shared by the engine objects of that thread.
extern thread_local char cSeparateurDecimal;
extern thread_local char cAutreSeparateur;

// Rounds half away from zero to iNbDecimales places, through a decimal of 15 significant
// digits, so that 1.005 at 2 places gives 1.01. A negative count of places is a Fault.
double Arrondi(double vValeur, Int16 iNbDecimales);

// Truncates the magnitude to a multiple of vPas; a negative value gives 0, or the negated
// truncation when bGardeNegatif holds. A zero step is a Fault.
double dTronqueAuPas(double dValeur, double vPas, bool bGardeNegatif);

// Truncates to iNbDecimales places through the value's text (0.0123 at 2 places is 0.012).
double dTronqueDecimales(double dValeur, Int16 iNbDecimales);

// Replaces every cAutreSeparateur by cSeparateurDecimal.
std::string sNormaliseDecimale(const std::string& vTexte);

// Sets the two separators from the number conversion of the running system.
void DetecteSeparateurDecimal();

// Rewrites sDate as "dd/mm/yyyy" and gives yyyymmdd, or the empty text when sDate is not
// a ten-character date text.
std::string MajDateEnFormatChaine(std::string& sDate);

// yyyymmdd to "dd/mm/yyyy"; a text of any other length gives the empty text.
std::string MajChaineEnFormatDate(const std::string& sChaine);

// Pay days between two dates on the 30-day month (16-bit arithmetic).
Int16 iNbJoursBase30(const std::string& sDateDebut, const std::string& sDateFin);

// Pay days on the 30-day month that two periods share.
Int16 iNbJoursBase30Commun(const std::string& sDateDebutA, const std::string& sDateFinA,
                           const std::string& sDateDebutB, const std::string& sDateFinB);

// Calendar days that a period shares with the month of sDateMois; an empty sDateFin runs
// to the end of that month.
Int16 iNbJoursCommunsMois(const std::string& sDateDebut, const std::string& sDateFin,
                          const std::string& sDateMois);

// Whether a date is a working day (weekends, fixed holidays, Easter Monday, Ascension,
// Whit Monday from the table of Easter Mondays 2006 to 2050).
bool bJourOuvre(const std::string& sDate, bool bSamediOuvre, bool bDimanchePentecote);

// Working days of the year sAnnee.
Int16 iNbJoursOuvresAnnee(const std::string& sAnnee, bool bSamediOuvre, bool bDimanchePentecote);

// Coefficients of the progressive end of activity by its type; any other type leaves the
// outputs untouched. dPourcentage is written only when given.
void CoefficientsCPA(const std::string& sTypeCPA, const std::string& sDateDebut,
                     const std::string& sDateFin, double& dCoefficient, double& dCoefficientHoraire,
                     double* dPourcentage = nullptr);

// The text of a double as the rules read it: at most 15 significant digits, shortest form,
// with cSeparateurDecimal.
std::string TexteNombre(double d);

}  // namespace orvalis

#endif  // ORVALIS_MODOUTILSSPEC_H_
