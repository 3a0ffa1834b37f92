// The yearly reference salary of overtime: the annual treatment, held up to the yearly
// minimum wage, plus the residence allowance; on the current index and on the former one.
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"
#include "period/salaire_base_hs.h"

namespace orvalis {

namespace {

// A statutory value of the month that may be left null or empty: 0 then.
double ValeurFixeOuZero(MoteurCalcul& m, const char* sChamp) {
  const Value v = Source(m.gRsConstantesFixes, "gRsConstantesFixes").Field(sChamp);
  if (v.EstNull() || (v.EstTexte() && v.Chaine().empty())) return 0;
  return v.Nombre();
}

}  // namespace

double SalaireBaseHSPeriode(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double dIndice,
                            const std::string& sType, bool bPlancherSmic) {
  const bool bAncien = sType == "ANCIEN";

  double dIndiceMinimum = 0;
  if (bAncien) {
    m.dRechercheIndMinHistorique(dIndiceMinimum, m.gPeriodeEncours, "-1");
  } else {
    dIndiceMinimum = ValeurFixeOuZero(m, "IndMinRemuneration");
  }
  const Int16 iIndice = CInt(std::max(dIndiceMinimum, dIndice) + InfosSalaries.dBonification);

  double dPoint = 0, dSmicHoraire = 0, dHeuresMois = 0;
  if (bAncien) {
    m.dRecherchePointHistorique(dPoint, m.gPeriodeEncours, "-1");
    if (dPoint == 0) dPoint = m.ConstanteFixe("Point");
    if (bPlancherSmic) m.dRechercheSmicHistorique(dSmicHoraire, dHeuresMois);
  } else {
    dPoint = m.ConstanteFixe("Point");
    if (bPlancherSmic) {
      dSmicHoraire = m.ConstanteFixe("SmicHor");
      dHeuresMois = m.ConstanteFixe("HrsMois");
    }
  }

  double dTraitement = Arrondi(iIndice * dPoint, 2);
  if (bPlancherSmic) {
    const double dSmicAnnuel = Arrondi(dSmicHoraire * Arrondi(dHeuresMois * 12, 2), 2);
    if (dTraitement < dSmicAnnuel) dTraitement = dSmicAnnuel;
  }

  double dResidence = 0;
  if (InfosSalaries.iZoneResid > 0) {
    const double dIndiceResidence = m.ConstanteFixe("IndResid");
    if (iIndice < dIndiceResidence) {
      dResidence = Arrondi(dIndiceResidence * dPoint, 2) * InfosSalaries.iZoneResid / 100;
    } else {
      dResidence = dTraitement * InfosSalaries.iZoneResid / 100;
    }
  }
  return Arrondi(dTraitement + dResidence, 2);
}

double MethodeCalculG_Nouv::CalculSalaireBaseHS_Periode(VarCalculSalarie& InfosSalaries,
                                                        double dIndice, const std::string& sType) {
  return SalaireBaseHSPeriode(*this, InfosSalaries, dIndice, sType, true);
}

void MethodeCalculG_Nouv::CalculSalaireBaseHS(VarCalculSalarie& InfosSalaries) {
  InfosSalaries.dBase_HSN =
      CalculSalaireBaseHS_Periode(InfosSalaries, InfosSalaries.dIndiceMajoreM, "ENCOURS");

  const std::string sMajIndice = InfosSalaries.sDateMajIndiceReglementaire.empty()
                                     ? std::string("01/01/2100")
                                     : InfosSalaries.sDateMajIndiceReglementaire;
  const Date dPeriode = LireDate(gPeriodeEncours);
  if (DiffMois(LireDate(sMajIndice), dPeriode) == 0) {
    InfosSalaries.dBase_HSA =
        CalculSalaireBaseHS_Periode(InfosSalaries, InfosSalaries.dIndiceMajoreA, "ANCIEN");
    return;
  }
  if (DiffMois(LireDate(InfosSalaries.sDateChangementIndice), dPeriode) > 0) {
    InfosSalaries.dBase_HSA = InfosSalaries.dBase_HSN;
  } else {
    InfosSalaries.dBase_HSA =
        CalculSalaireBaseHS_Periode(InfosSalaries, InfosSalaries.dIndiceMajoreA, "ANCIEN");
  }
}

}  // namespace orvalis
