// Overtime and complementary hours as one body for both engines: each engine's member calls
// the line of its name here.
#ifndef ORVALIS_SALARY_HEURES_SUPP_H_
#define ORVALIS_SALARY_HEURES_SUPP_H_

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis::heures {

// The lines of the month.
void HS_Moins14(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                const RsRef& RsVarSalaries);
void HS_Plus14(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
               const RsRef& RsVarSalaries);
void HS_Nuit(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
             const RsRef& RsVarSalaries);
void HS_Ferie(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
              const RsRef& RsVarSalaries);
// Nights or holidays past the limit, by the name of the line.
void HS_NuitFeriePlus14(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                        const RsRef& RsVarSalaries, const std::string& sNomcalcul);

// The lines of the month before, sharing the limit with the month.
void HS_Moins14Prec(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                    const RsRef& RsVarSalaries);
void HS_Plus14Prec(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                   const RsRef& RsVarSalaries);
void HS_NuitPrec(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                 const RsRef& RsVarSalaries);
void HS_FeriePrec(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                  const RsRef& RsVarSalaries);
void HS_NuitFeriePlus14Prec(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                            const RsRef& RsVarSalaries, const std::string& sNomcalcul);

// Complementary hours: the hours from the line's base, through the engine's own resolver.
void HeuresComplementaires(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                           const RsRef& RsVarSalaries);
void HeuresComplementairesPrec(MoteurCalcul& m, VarCalculSalarie& s, SalarieCalculRubrique& r,
                               const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto);
// "COMPLEMENT DIFFERENTIEL 35 H".
void ComplementDifferentiel35H(MoteurCalcul& m, SalarieCalculRubrique& r,
                               const RsRef& RsVarSalaries);

}  // namespace orvalis::heures

#endif  // ORVALIS_SALARY_HEURES_SUPP_H_
