// The monthly treatment of the hourly staff: the month's hours for the days of presence,
// at the employee's own hourly rate, or else at the rate the month's base gives.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/traitement_outils.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_TraitementHoraireMois(VarCalculSalarie& InfosSalaries,
                                                               const RsRef& RsVarSalaries,
                                                               SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  const double D = s.dNB_Jours_Max_Decalage_Mois == -1 ? 30 : s.dNB_Jours_Max_Decalage_Mois;
  auto BaseDuMois = [&] {
    return dRechercheValeurCumul("BASE", "S") - dRechercheValeurCumul("BASERAPPEL", "S");
  };

  double dTaux = 0;
  if (s.sTypeModele == "HORAIR") {
    std::string sType;
    CalculTauxHoraireSalarie(RsVarSalaries, "TXSMIC", "TXHEURES", "M", s.dHeuresMois, 1, dTaux,
                             sType, "H", false, 4);
    if (dTaux == 0) {
      const double B = BaseDuMois();
      if (s.dHeuresMois != 0) dTaux = Div(B, s.iNBJ_Presence_Total * s.dHeuresMois / 151.67);
    }
  } else if (s.sTypeModele == "INDNTI" || s.sTypeModele == "INDTIT") {
    const double B = BaseDuMois();
    if (s.dHeuresMois != 0) dTaux = Div(B, Div(s.iNBJ_Presence_Total * s.dHeuresMois, D));
  }

  // Days of sick pay at 90 % or two-thirds are paid by their own lines.
  const Int16 iMaladie = s.iNBJ_90PourCentTraitement_Total + s.iNBJ_2TiersTraitement_Total;
  double H = 0;
  if (!s.bPeriodeNonProratisee) {
    H = Arrondi(Div((s.iNBJ_Presence_Total - iMaladie) * s.dHeuresMois, D), 2);
    s.dHeuresMois = Arrondi(Div(s.iNBJ_Presence_Total * s.dHeuresMois, D), 2);
  } else {
    H = Arrondi(Div((D - iMaladie) * s.dHeuresMois, D), 2);
  }

  Rubrique.dBase = H;
  Rubrique.dTauxSalarial = dTaux;
  Rubrique.dMontantSalarial = H * dTaux;
  salaire::SansPartPatronale(Rubrique);
}

}  // namespace orvalis
