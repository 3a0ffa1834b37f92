// Maintained pay of an employee paid by the hour: hours of the maintained days times the
// share of an hourly rate, the rate of his file or the one the month's pay gives.
#include <string>

#include "absences/maintien_outils.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_MaintienSalaireHoraire(VarCalculSalarie& InfosSalaries,
                                                                const RsRef& RsVarSalaries,
                                                                SalarieCalculRubrique& Rubrique,
                                                                Int16 iPourcentage) {
  if (maintien::AucunJourMaintenu(InfosSalaries)) return;

  maintien::Jours j;
  dMaintienSalaireCoefficient(InfosSalaries, j.JA, j.JB, j.JC, j.JD, Rubrique.sCodeRubrique);
  const Int16 D = j.Total();
  const double Q = maintien::PartMaintenue(iPourcentage);
  const double P = InfosSalaries.iNBJ_Presence_Total;
  const double H = InfosSalaries.dHeuresMois;

  // An apprentice is paid his percentage of the monthly minimum wage.
  if (InfosSalaries.sCodeCategorie == "APPRENTI") {
    const double R = dRechercheValeur_Variable(RsVarSalaries, "TXSMICAPP");
    if (H != 0) {
      const double T = R * gdSmicMensuel / 100 / H * Q;
      Rubrique.dBase = Arrondi(H * D / 30, 2);
      Rubrique.dTauxSalarial = T;
      Rubrique.dMontantSalarial = Rubrique.dBase * T;
    } else {
      Rubrique.dBase = R * gdSmicMensuel / 100 * D / 30;
      Rubrique.dTauxSalarial = Q;
      Rubrique.dMontantSalarial = Q * Rubrique.dBase;
    }
    Rubrique.dTauxPatronal = 0;
    Rubrique.dMontantPatronal = 0;
    return;
  }

  // The month's treatment paid so far, back pay aside.
  const auto Traitement = [&] {
    return dRechercheValeurCumul("BASE", "S") - dRechercheValeurCumul("BASERAPPEL", "S");
  };
  double T = 0;
  if (InfosSalaries.sTypeModele == "HORAIR") {
    std::string sType;
    // The hours argument is not read by the rate of the file.
    CalculTauxHoraireSalarie(RsVarSalaries, "TXSMIC", "TXHEURES", "M", 1, 1, T, sType, "H", false,
                             4);
    if (T == 0) {
      const double B = Traitement();
      if (H != 0) T = Div(B, P * H / 151.67);
    }
  } else if (InfosSalaries.sTypeModele == "INDTIT" || InfosSalaries.sTypeModele == "INDNTI") {
    const double B = Traitement();
    if (H != 0) T = Div(B, Div(P * H, P));
  }
  T = Q * T;

  Rubrique.dBase = Arrondi(Div(H * D, P), 2);
  Rubrique.dTauxSalarial = T;
  Rubrique.dMontantSalarial = Rubrique.dBase * T;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis
