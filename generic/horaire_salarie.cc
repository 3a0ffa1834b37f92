// The hourly rate of the employee: from his variables (a percentage of the SMIC or a rate of
// his own), or else from the month's pay over the month's hours; for the month in progress
// and for the month before, with a factor for overtime.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculTauxHoraireSalarie(const RsRef& RsVar,
                                                   const std::string& sCodeTauxSmic,
                                                   const std::string& sCodeTauxHeures,
                                                   const std::string& sCodeType,
                                                   double /*dHeures*/, double dCoeffMajoration,
                                                   double& dValeur, std::string& sType,
                                                   const std::string& /*sMois*/, bool bMoisPrec,
                                                   Int16 iNbDecimales) {
  Recordset& rs = Source(RsVar, "RsVarSalaries");
  if (rs.RecordCount() == 0) return;
  rs.MoveFirst();
  rs.Filter("CodeVariable = '" + sCodeTauxSmic + "'");
  // A null percentage is not above 0: the employee's own rate is tried.
  const double dPourcentage = rs.Eof() ? 0.0 : rs.Field("Valeur").NombreOuZero();
  if (dPourcentage > 0) {
    double dSmic = 0;
    if (bMoisPrec) {
      double dHeures = 0;
      dRechercheSmicHistorique(dSmic, dHeures);
    } else {
      dSmic = ConstanteFixe("SmicHor");
    }
    dValeur = dSmic * dPourcentage * dCoeffMajoration / 100;
  } else {
    rs.ClearFilter();
    rs.Filter("CodeVariable = '" + sCodeTauxHeures + "'");
    if (!rs.Eof()) {
      dValeur = Arrondi(rs.Field("Valeur").Nombre(), iNbDecimales) * dCoeffMajoration;
      sType = sCodeType;
    }
  }
  rs.ClearFilter();
}

void MethodeCalculG_Nouv::CalculTauxHoraireMoisEnCours(double dCoeffMajoration,
                                                       VarCalculSalarie& InfosSalaries,
                                                       const RsRef& RsVarSalaries,
                                                       double& dValeur, std::string& sType) {
  CalculTauxHoraireSalarie(RsVarSalaries, "TXSMIC", "TXHEURES", "M", 0, dCoeffMajoration, dValeur,
                           sType, "N", false, 4);
  if (dValeur != 0) return;
  const double T = InfosSalaries.dMt_IndemniteDifferentielle + dRechercheValeurCumul("BASE", "S") -
                   dRechercheValeurCumul("BASERAPPEL", "S");
  if (InfosSalaries.dHeuresMois == 0) return;
  dValeur = Div(T, InfosSalaries.dHeuresMois * InfosSalaries.iNBJ_Presence_Total / 30) *
            dCoeffMajoration;
  sType = "M";
}

void MethodeCalculG_Nouv::CalculTauxHoraireMoisPrec(double dCoeffMajoration,
                                                    VarCalculSalarie& InfosSalaries,
                                                    const RsRef& RsVarSalariesHisto,
                                                    const RsRef& RsSalariesHisto, double& dValeur,
                                                    std::string& sType) {
  CalculTauxHoraireSalarie(RsVarSalariesHisto, "TXSMIC", "TXHEURES", "M", 0, dCoeffMajoration,
                           dValeur, sType, "H", true, 4);
  if (dValeur != 0) return;
  auto Historique = [&](const char* sCode) {
    double d = 0;
    return dRechercheValeurCumulHistorique(InfosSalaries.lIdSalarie, gPeriodeEncours, sCode, d, "",
                                           "S", 0);
  };
  const double dBase = Historique("BASE");
  const double dRappel = Historique("BASERAPPEL");
  const double dDifferentielle = Historique("INDDIFF");
  const double dHeures = dRechercheHeuresMoisHistorique(RsSalariesHisto, InfosSalaries.lIdSalarie,
                                                        gPeriodeEncours);
  if (dHeures == 0) return;
  dValeur = (dBase + dDifferentielle - dRappel) / dHeures * dCoeffMajoration;
  sType = "M";
}

}  // namespace orvalis
