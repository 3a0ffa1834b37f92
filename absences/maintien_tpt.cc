// Therapeutic part-time not subrogated: the employer pays the band's share of the salary for
// the band's days. Each line takes the first band of the month still to pay and marks it
// paid, so a month with two bands needs two lines.
#include <array>

#include "absences/maintien_outils.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace {

using S = VarCalculSalarie;

struct BandeTpt {
  double Q;  // share of the salary
  Int16 S::*iTotal;
  Int16 S::*iIATA;
  Int16 S::*iIATN;
  Int16 S::*iINTA;
  Int16 S::*iINTN;
};

// In the order they are paid.
const std::array<BandeTpt, 5> kBandesTpt = {{
    {0.5, &S::iNBJ_TPTNS50_Total, &S::iNBJ_TPTNS50IATA, &S::iNBJ_TPTNS50IATN, &S::iNBJ_TPTNS50INTA,
     &S::iNBJ_TPTNS50INTN},
    {0.6, &S::iNBJ_TPTNS60_Total, &S::iNBJ_TPTNS60IATA, &S::iNBJ_TPTNS60IATN, &S::iNBJ_TPTNS60INTA,
     &S::iNBJ_TPTNS60INTN},
    {0.7, &S::iNBJ_TPTNS70_Total, &S::iNBJ_TPTNS70IATA, &S::iNBJ_TPTNS70IATN, &S::iNBJ_TPTNS70INTA,
     &S::iNBJ_TPTNS70INTN},
    {0.8, &S::iNBJ_TPTNS80_Total, &S::iNBJ_TPTNS80IATA, &S::iNBJ_TPTNS80IATN, &S::iNBJ_TPTNS80INTA,
     &S::iNBJ_TPTNS80INTN},
    {0.9, &S::iNBJ_TPTNS90_Total, &S::iNBJ_TPTNS90IATA, &S::iNBJ_TPTNS90IATN, &S::iNBJ_TPTNS90INTA,
     &S::iNBJ_TPTNS90INTN},
}};

}  // namespace

// The band comes from the totals alone; the percentage of the last situation met is carried.
void MethodeCalculG_Nouv::CalculRubrique_TptNonSubroge(VarCalculSalarie& InfosSalaries,
                                                       SalarieCalculRubrique& Rubrique,
                                                       Int16& /*iTauxTptNonSubroge*/) {
  for (const BandeTpt& b : kBandesTpt) {
    if (InfosSalaries.*b.iTotal <= 0) continue;
    const maintien::Jours j{InfosSalaries.*b.iIATA, InfosSalaries.*b.iIATN, InfosSalaries.*b.iINTA,
                            InfosSalaries.*b.iINTN};
    InfosSalaries.*b.iTotal = 0;

    Rubrique.dBase = maintien::SalaireMensuelReel(InfosSalaries) * b.Q;
    Rubrique.dTauxSalarial = j.Total();
    Rubrique.dMontantSalarial = maintien::MontantMaintenu(InfosSalaries, j, b.Q);
    Rubrique.dTauxPatronal = 0;
    Rubrique.dMontantPatronal = 0;
    return;
  }
}

}  // namespace orvalis
