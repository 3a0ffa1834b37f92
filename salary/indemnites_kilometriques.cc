// The mileage allowance: each vehicle's journeys of the month on the yearly scale, whose
// rate falls past 2000 and past 10000 km driven in the year.
#include <set>
#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "salary/indemnites_partagees.h"

namespace orvalis {

namespace {

// The last distance of each band but the last.
constexpr Int32::rep kFinsDesTranches[] = {2000, 10000};

int Tranche(Int32 lKmCumule) {
  if (lKmCumule <= kFinsDesTranches[0]) return 1;
  if (lKmCumule <= kFinsDesTranches[1]) return 2;
  return 3;
}

// "KM5CV" below 6 horsepower, "KM7CV" for 6 and 7, "KM8CV" above.
std::string PrefixeDuBareme(Int32 lKmPuissance) {
  if (lKmPuissance < 6) return "KM5CV";
  if (lKmPuissance <= 7) return "KM7CV";
  return "KM8CV";
}

}  // namespace

double indemnites::BaremeKilometrique(MoteurCalcul& m, Int32 lKmParcouru, Int32 lKmPuissance,
                                      Int32 lKmCumule, double& dTaux1, double& dTaux2,
                                      Int32& lKm1, Int32& lKm2, double& dMontant) {
  dTaux1 = 0;
  dTaux2 = 0;
  lKm1 = 0;
  lKm2 = 0;
  dMontant = 0;
  if (lKmParcouru <= 0) return dMontant;

  const std::string sBareme = PrefixeDuBareme(lKmPuissance);
  const auto Taux = [&](int iTranche) {
    return m.dRechercheValeur_Constantes(m.gRsConstantes, sBareme + "TR" + std::to_string(iTranche));
  };
  const int iTranche = Tranche(lKmCumule);
  dTaux1 = Taux(iTranche);
  lKm1 = lKmParcouru;
  if (iTranche < 3) {
    const Int32 lFin = kFinsDesTranches[iTranche - 1];
    if (lKmCumule + lKmParcouru > lFin) {
      lKm1 = lFin - lKmCumule;
      lKm2 = lKmParcouru - lKm1;
      dTaux2 = Taux(iTranche + 1);
    }
  }
  dMontant = dTaux1 * lKm1.value() + dTaux2 * lKm2.value();
  return dMontant;
}

double MethodeCalculG_Nouv::dBaremeKilometrique(Int32 lKmParcouru, Int32 lKmPuissance,
                                                Int32 lKmCumule, double& dTaux1,
                                                double& dTaux2, Int32& lKm1, Int32& lKm2,
                                                double& dMontant) {
  return indemnites::BaremeKilometrique(*this, lKmParcouru, lKmPuissance, lKmCumule, dTaux1,
                                        dTaux2, lKm1, lKm2, dMontant);
}

void indemnites::IndemniteKilometrique(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries,
                                       SalarieCalculRubrique& Rubrique) {
  const Int32 lKmAvant =
      InfosSalaries.lKmCumule - InfosSalaries.lKmParcouru1 - InfosSalaries.lKmParcouru2;
  double dBase = 0, dMontant = 0;
  std::set<double> taux;  // the rates that pay some distance
  const auto Vehicule = [&](Int32 lKmParcouru, Int32 lKmPuissance) {
    double dTaux1 = 0, dTaux2 = 0, dMontantVehicule = 0;
    Int32 lKm1 = 0, lKm2 = 0;
    BaremeKilometrique(m, lKmParcouru, lKmPuissance, lKmAvant, dTaux1, dTaux2, lKm1, lKm2,
                       dMontantVehicule);
    if (lKm1 > 0) taux.insert(dTaux1);
    if (lKm2 > 0) taux.insert(dTaux2);
    dBase += lKm1.value() + lKm2.value();
    dMontant += dMontantVehicule;
  };
  Vehicule(InfosSalaries.lKmParcouru1, InfosSalaries.lKmPuissance1);
  Vehicule(InfosSalaries.lKmParcouru2, InfosSalaries.lKmPuissance2);

  Rubrique.dBase = dBase;
  // One rate shows on the line; several leave it blank, the amount holding their sum.
  Rubrique.dTauxSalarial = taux.size() == 1 ? *taux.begin() : 0;
  Rubrique.dMontantSalarial = dMontant;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

void MethodeCalculG_Nouv::CalculRubrique_IndemniteKilometrique(VarCalculSalarie& InfosSalaries,
                                                               SalarieCalculRubrique& Rubrique) {
  indemnites::IndemniteKilometrique(*this, InfosSalaries, Rubrique);
}

}  // namespace orvalis
