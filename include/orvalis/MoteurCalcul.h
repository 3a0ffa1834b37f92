// The frame shared by both engine classes: the public tabular properties, the lookups of
// reference data, the message box and the fault trap of the entry points.
//
// An engine object runs on its caller's thread, one call at a time. Lookups change the
// filter and position of the source they read, so a source serves one calculation at once.
#ifndef ORVALIS_MOTEURCALCUL_H_
#define ORVALIS_MOTEURCALCUL_H_

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "orvalis/Recordset.h"
#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"
#include "orvalis/numeric.h"

namespace orvalis {

// The percentage of the therapeutic part-time situation last met by the preparation
// "NBRE_JOUR_TPT_NON_SUBROGE". Starts at 0. One per thread: the engine objects of a thread
// share it, those of two threads never do.
extern thread_local Int16 iTauxTptNonSubroge;

class MoteurCalcul {
 public:
  MoteurCalcul(const MoteurCalcul&) = delete;
  MoteurCalcul& operator=(const MoteurCalcul&) = delete;
  virtual ~MoteurCalcul();  // Class_Terminate

  // Public properties, shared with the host (references, not copies).
  std::string gPeriodeEncours;            // the pay month, "dd/mm/yyyy" of its first day
  RsRef gRsConstantes;                    // constants, by CodeConstante or IdConstante
  RsRef gRsTaux;                          // contribution rates, by CodeTaux
  RsRef gRsTauxSpecifique;                // kept for the host
  RsRef gRsCumuls;                        // cumulative totals of the pay run, by CodeCumul
  RsRef gRsConstantesFixes;               // the current row of statutory values
  RsRef gRsVariables;                     // kept for the host
  RsRef gRsConstantesFixesHistorique;     // statutory values by month (Mois)
  RsRef gRsCumulsHistoriqueSal;           // the employee's totals by month
  double gdSmicMensuel = 0;               // left by the base "SMIC MENSUEL"

  // The one dialog of the system. When the host sets OnMessage the text goes there;
  // otherwise it is kept in Messages for the host to read after the call.
  std::function<void(const std::string&)> OnMessage;
  std::vector<std::string> Messages;
  void MsgBox(const std::string& texte);

  // ---- Lookups of reference data ----------------------------------------------------
  // Each: the default on an empty source; otherwise first row, filter, read if a row stands,
  // clear the filter. A null column gives 0 or the empty text. A source left at "no source"
  // is a Fault; a value that is not numeric, or a missing column, too.

  // "CodeConstante = 'code'", Valeur.
  double dRechercheValeur_Constantes(const RsRef& rs, const std::string& sCode);
  // "IdConstante = id" on gRsConstantes: Valeur into dValeur, TauxMontant into sType.
  void RechercheValeurType_Constantes(Int32 lId, double& dValeur, std::string& sType);
  // "CodeTaux = 'code'" on gRsTaux: PartSalariale rounded to 2 places.
  double dRechercheValeurTaux(const std::string& sCode);
  // "CodeCumul = 'code'" on gRsCumuls: PartSalariale for "S", else PartPatronale; 2 places.
  double dRechercheValeurCumul(const std::string& sCode, const std::string& sType);
  // "CodeVariable = 'code'": Valeur rounded to vNbDecimale places (absent: to the unit).
  double dRechercheValeur_Variable(const RsRef& RsVariablesSalaries, const std::string& sCode,
                                   std::optional<Int16> vNbDecimale = std::nullopt);
  // The same variable read without rounding, a null giving 0. The rules that read a
  // variable "with no rounding" go through this one.
  double dValeurVariableSansArrondi(const RsRef& RsVariablesSalaries, const std::string& sCode);
  // DateEffet of the variable, as "dd/mm/yyyy"; a null gives the empty text.
  std::string dRechercheDate_Variable(const RsRef& RsVariablesSalaries, const std::string& sCode);
  // Valeur of the variable into dValeur (0 by default); gives dValeur.
  double dRechercheValeur_VariableBis(const RsRef& RsVariablesSalaries, const std::string& sCode,
                                      double& dValeur);
  // Point of the month sMois (yyyymm) in gRsConstantesFixesHistorique, into dValeur.
  double dRecherchePointMois(Int32 lIdSalarie, const std::string& sPeriode,
                             const std::string& sCode, double& dValeur, const std::string& sMois);
  // Valeur of the constant for the month sMois.
  double dRechercheValeurConstanteHistorique(const RsRef& rs, const std::string& sCode,
                                             const std::string& sMois);
  // The employee's total of a month (the month before sPeriode when sMois is empty), by
  // code, or by id when lIdCumul is not 0. Into dValeur; gives dValeur.
  // The historic engine has its own, narrower form.
  virtual double dRechercheValeurCumulHistorique(Int32 lIdSalarie, const std::string& sPeriode,
                                                 const std::string& sCode, double& dValeur,
                                                 const std::string& sMois,
                                                 const std::string& sType, Int32 lIdCumul);
  // HeuresMois of the month before sDate in the employee's pay history. The history is the
  // employee's own: lIdSalarie is not part of the criterion.
  double dRechercheHeuresMoisHistorique(const RsRef& RsSalariesHisto, Int32 lIdSalarie,
                                        const std::string& sDate);
  // Point of the month sDate shifted by sDecalage months, into dPoint; gives dPoint.
  double dRecherchePointHistorique(double& dPoint, const std::string& sDate,
                                   const std::string& sDecalage);
  // IndMinRemuneration of the month sDate shifted by sDecalage months; gives dIndMin.
  double dRechercheIndMinHistorique(double& dIndMin, const std::string& sDate,
                                    const std::string& sDecalage);
  // Any column of gRsConstantesFixesHistorique for gPeriodeEncours shifted by vDecalage
  // months (absent: -1); gives dValeur.
  double dRechercheHistoriqueMois(const std::string& sChamp, double& dValeur,
                                  std::optional<int> vDecalage = std::nullopt);
  // SmicHor and HrsMois of the month before gPeriodeEncours.
  void dRechercheSmicHistorique(double& dSmic, double& dHeures);

  // F(field): a column of the current row of gRsConstantesFixes, a null giving 0.
  double ConstanteFixe(const std::string& sChamp);

  // ---- Rate lookups and the hourly rate, the same in both engines (generic/) -------------
  // "CodeTaux = 'code'" on gRsTaux: PartPatronale rounded to 2 places; 0 by default or null.
  double dRechercheTauxPatronal(const std::string& sCode);
  // The rate of the CET designations into dTaux: the constant "~TXCSGPROF" times the rates
  // "URSDCSG" + "URSCSG" + "URSRDS". Gives true.
  bool bTauxCsgProfessionnel(double& dTaux);
  // The employee's own hourly rate from his variables. sCodeTauxSmic (a percentage of the
  // SMIC of the month, or of the month before when bMoisPrec) above 0 gives
  // SMIC x percentage x dCoeffMajoration / 100; otherwise sCodeTauxHeures, rounded to
  // iNbDecimales, times dCoeffMajoration, with sType = sCodeType. With neither variable, or
  // no row in RsVar, dValeur and sType stay as given. dHeures and sMois are not read.
  void CalculTauxHoraireSalarie(const RsRef& RsVar, const std::string& sCodeTauxSmic,
                                const std::string& sCodeTauxHeures, const std::string& sCodeType,
                                double dHeures, double dCoeffMajoration, double& dValeur,
                                std::string& sType, const std::string& sMois, bool bMoisPrec,
                                Int16 iNbDecimales);

  // ---- The four reads of a generic pay line, each engine with its own resolvers ----------
  // The handlers both engines share read a line through these; each engine forwards to its
  // RechercheValeurBase, RechercheValeurCoefficient, RechercheValeurTauxSalarial and
  // RechercheValeurTauxPatronal, with the arguments it has.
  virtual double BaseDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                             SalarieCalculRubrique& Rubrique) = 0;
  virtual double CoefficientDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                    Int32 lIdCoeffBase, const std::string& sCoeffBase,
                                    SalarieCalculRubrique& Rubrique) = 0;
  virtual double TauxSalarialDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                     const RsRef& RsVarSalariesHisto,
                                     SalarieCalculRubrique& Rubrique, std::string& sType,
                                     const RsRef& RsSalariesHisto) = 0;
  virtual double TauxPatronalDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                     SalarieCalculRubrique& Rubrique, std::string& sType) = 0;

  // ---- Pay lines with one body in both engines -----------------------------------------
  // They read a line through the four reads above and the lookups of this frame, so the
  // same body serves the current and the historic engine.
  void CalculCoefficientUtilisationTauxElus(VarCalculSalarie& InfosSalaries,
                                            const std::string& sPeriode);
  // The tranche of the officials' tax scale for a net taxable amount of the period.
  void CalculRetenueSource_Bareme(VarCalculSalarie& InfosSalaries, double dNetImposable,
                                  double dPeriodesAn, double& dTauxTranche,
                                  double& dTrancheBasse, double& dTrancheHaute,
                                  double& dConstante);
  // The frame of one payment period of the official: the expenses allowance of a mandate,
  // the social security ceiling of the period, periods a year, months a period, and the
  // coefficient that brings a constant of the tax scale to the payment periodicity.
  void CalculRetenueSource_DonneesMandat(VarCalculSalarie& InfosSalaries, double& dFraisMandat,
                                         double& dPlafondPeriode, double& dPeriodesAn,
                                         double& dMoisPeriode, double& dCoefBareme);
  void CalculRubrique_AllocationFormation(VarCalculSalarie& InfosSalaries,
                                          const RsRef& RsVarSalaries,
                                          SalarieCalculRubrique& Rubrique);
  void CalculRubrique_BaseProrata30(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                    const RsRef& RsVarSalariesHisto,
                                    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseProrata30ADeduire(VarCalculSalarie& InfosSalaries,
                                            const RsRef& RsVarSalaries,
                                            const RsRef& RsVarSalariesHisto,
                                            SalarieCalculRubrique& Rubrique,
                                            const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseTaux(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                               const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                               const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseTauxChoix(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                    const RsRef& RsVarSalariesHisto,
                                    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseTauxSmic(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                   const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                                   const RsRef& RsSalariesHisto);
  void CalculRubrique_CnraclRetroactive(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_ComplementDifferentiel35H(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsVarSalaries);
  void CalculRubrique_CreditMunicipal(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries);
  void CalculRubrique_FondsSolidarite(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique);
  void CalculRubrique_HS_Ferie(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                               const RsRef& RsVarSalaries);
  void CalculRubrique_HS_FeriePrec(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                   const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HS_Moins14(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                 const RsRef& RsVarSalaries);
  void CalculRubrique_HS_Moins14Prec(VarCalculSalarie& InfosSalaries,
                                     SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                     const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HS_Nuit(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                              const RsRef& RsVarSalaries);
  void CalculRubrique_HS_NuitFeriePlus14(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique,
                                         const RsRef& RsVarSalaries, const std::string& sNomcalcul);
  void CalculRubrique_HS_NuitFeriePlus14Prec(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsVarSalaries,
                                             const RsRef& RsVarSalariesHisto,
                                             const std::string& sNomcalcul);
  void CalculRubrique_HS_NuitPrec(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HS_Plus14(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                const RsRef& RsVarSalaries);
  void CalculRubrique_HS_Plus14Prec(VarCalculSalarie& InfosSalaries,
                                    SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                    const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HeuresComplementaires(VarCalculSalarie& InfosSalaries,
                                            SalarieCalculRubrique& Rubrique,
                                            const RsRef& RsVarSalaries);
  void CalculRubrique_HeuresComplementairesPrec(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& RsVarSalariesHisto);
  void CalculRubrique_IndemniteFormation(VarCalculSalarie& InfosSalaries,
                                         const RsRef& RsVarSalaries,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_IndemniteKilometrique(VarCalculSalarie& InfosSalaries,
                                            SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Indice_Reference(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                       const RsRef& RsVarSalariesHisto,
                                       SalarieCalculRubrique& Rubrique,
                                       const RsRef& RsSalariesHisto);
  void CalculRubrique_Indice_Reference_CAS(VarCalculSalarie& InfosSalaries,
                                           const RsRef& RsVarSalaries,
                                           const RsRef& RsVarSalariesHisto,
                                           SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Indice_Reference_CAS_Communal(VarCalculSalarie& InfosSalaries,
                                                    const RsRef& RsVarSalaries,
                                                    const RsRef& RsVarSalariesHisto,
                                                    SalarieCalculRubrique& Rubrique);
  void CalculRubrique_MontantFixe(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                  const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsSalariesHisto);
  void CalculRubrique_MontantFixeAnnuel(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        SalarieCalculRubrique& Rubrique,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_MontantReference(VarCalculSalarie& InfosSalaries,
                                       SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries);
  void CalculRubrique_PrimeInformatique(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique,
                                        const RsRef& RsVarSalaries);
  void CalculRubrique_Retenue_a_la_source(VarCalculSalarie& InfosSalaries,
                                          SalarieCalculRubrique& Rubrique,
                                          const RsRef& RsVariablesSalaries);
  void CalculRubrique_TraitementForfaitaireElus(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique);
  // New, empty detail tables of the withholding: the historic one (rsRetenueALaSource) and
  // the one of the new method (rsRetenueALaSourceNouvelleMethode).
  RsRef EnregistreDetailRetenueSource();
  // One journey of lKmParcouru km in a vehicle of lKmPuissance fiscal horsepower, lKmCumule
  // km having been driven before it in the year: the rate of the band of that distance for
  // lKm1 km and, for the part past the band's end, the rate of the next band for lKm2 km.
  // Gives the amount, also written to dMontant.
  double dBaremeKilometrique(Int32 lKmParcouru, Int32 lKmPuissance, Int32 lKmCumule,
                             double& dTaux1, double& dTaux2, Int32& lKm1, Int32& lKm2,
                             double& dMontant);

 protected:
  MoteurCalcul();  // Class_Initialize

  // Runs one entry's work under the trap: any fault ends it and gives false; the records
  // keep what was written before the fault.
  template <typename Travail>
  static bool SousPiege(Travail&& travail) noexcept {
    try {
      travail();
      return true;
    } catch (...) {
      // The host learns only the false result; what was written stays written.
      return false;
    }
  }
};

}  // namespace orvalis

#endif  // ORVALIS_MOTEURCALCUL_H_
