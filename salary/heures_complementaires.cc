// Complementary hours of the month and of the month before, and the differential
// complement of the workers moved to 35 hours.
#include <string>

#include "generic/taux_regles.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/salaire_outils.h"

namespace orvalis {

namespace {

// The statutory values the hourly rate reads, of the month or of the month before.
struct Smic {
  double dSmicHoraire;
  double dHeuresMois;
};

// Indexed models: the yearly reference over the hours of a year, never below the SMIC.
// Other models: their percentage of the SMIC, or their own hourly rate.
double TauxComplementaire(MoteurCalcul& m, const VarCalculSalarie& s, const RsRef& RsVariables,
                          double dReference, const Smic& smic) {
  const double Sm = Arrondi(smic.dSmicHoraire, 2);
  if (taux::ModeleIndiciaire(s)) {
    const double Hm = Arrondi(smic.dHeuresMois, 2);
    double dTaux = 0;
    if (s.dDureeHebdoLegale != 0) {
      dTaux = dReference / (s.dDureeHebdoLegale * 52);
    } else if (Hm != 0) {
      dTaux = dReference / (Hm * 12);
    }
    dTaux = Arrondi(dTaux, 2);
    return dTaux < Sm ? Sm : dTaux;
  }
  const double dTxSmic = m.dValeurVariableSansArrondi(RsVariables, "TXSMIC");
  if (dTxSmic != 0) return dTxSmic * Sm / 100;
  return m.dRechercheValeur_Variable(RsVariables, "TXHEURES");
}

void LigneComplementaire(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                         SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                         const RsRef& RsVariablesDuTaux, double dReference, const Smic& smic) {
  const double H = m.BaseDeLigne(InfosSalaries, RsVarSalaries, Rubrique);
  const double dTaux =
      H == 0 ? 0 : TauxComplementaire(m, InfosSalaries, RsVariablesDuTaux, dReference, smic);
  salaire::EcritLigne(Rubrique, H, dTaux, dTaux * H);
}

}  // namespace

void MoteurCalcul::CalculRubrique_HeuresComplementaires(VarCalculSalarie& s,
                                                        SalarieCalculRubrique& r,
                                                        const RsRef& RsVarSalaries) {
  LigneComplementaire(*this, s, r, RsVarSalaries, RsVarSalaries, s.dBase_HSN,
                      {ConstanteFixe("SmicHor"), ConstanteFixe("HrsMois")});
}

// The hours of the month before are paid at that month's rate: its reference salary, its
// SMIC and hours, and the hourly variables of that month when the host passes them.
void MoteurCalcul::CalculRubrique_HeuresComplementairesPrec(VarCalculSalarie& s,
                                                            SalarieCalculRubrique& r,
                                                            const RsRef& RsVarSalaries,
                                                            const RsRef& RsVarSalariesHisto) {
  Smic smic{0, 0};
  dRechercheSmicHistorique(smic.dSmicHoraire, smic.dHeuresMois);
  LigneComplementaire(*this, s, r, RsVarSalaries,
                      RsVarSalariesHisto ? RsVarSalariesHisto : RsVarSalaries, s.dBase_HSA, smic);
}

void MoteurCalcul::CalculRubrique_ComplementDifferentiel35H(VarCalculSalarie& /*InfosSalaries*/,
                                                            SalarieCalculRubrique& Rubrique,
                                                            const RsRef& RsVarSalaries) {
  const double dHeuresTravaillees = dRechercheValeurCumul("HEURES", "S");
  double A = dRechercheValeur_Variable(RsVarSalaries, "NBHRAV35");
  // 169 stands for a full month before 35 hours: it follows the hours worked.
  if (A == 169) A = Div(dHeuresTravaillees * 169, ConstanteFixe("HrsMois"));

  Rubrique.dTauxSalarial = 0;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
  if (A <= 0) {
    Rubrique.dBase = 0;
    Rubrique.dMontantSalarial = 0;
    return;
  }

  // A percentage of the SMIC, when the employee has one (even of 0), else his hourly rate.
  Recordset& rs = Source(RsVarSalaries, "RsVarSalaries");
  rs.Filter("CodeVariable = 'TXSMIC'");
  const bool bTxSmic = !rs.Eof();
  const double dTxSmic = bTxSmic ? rs.Field("Valeur").NombreOuZero() : 0;
  rs.ClearFilter();
  double dTaux = 0;
  if (bTxSmic) {
    dTaux = dTxSmic * ConstanteFixe("SmicHor") / 100;
  } else {
    dRechercheValeur_VariableBis(RsVarSalaries, "TXHEURES", dTaux);
  }

  const double dPaye = dHeuresTravaillees * dTaux;
  const double dGaranti =
      Arrondi((dRechercheValeur_Constantes(gRsConstantes, "SMICTXVAL") / 100 + 1) *
                  dRechercheValeur_Constantes(gRsConstantes, "SMIC35") * A,
              2);
  Rubrique.dBase = dGaranti;
  Rubrique.dMontantSalarial = dGaranti - dPaye;
}

}  // namespace orvalis
