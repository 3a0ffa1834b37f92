// MethodeCalculG: the historic engine, kept for the hosts' older parameter sets.
//
// The same entry points and records as MethodeCalculG_Nouv, a shorter list of names, a month
// split in two (old and new index) instead of four, and a few older rules. It has no
// gRsBaremeTauxPAS and no gRsConstantesHistorique.
#ifndef ORVALIS_METHODECALCULG_H_
#define ORVALIS_METHODECALCULG_H_

#include <optional>
#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

class MethodeCalculG : public MoteurCalcul {
 public:
  MethodeCalculG() = default;

  bool Appel_Methode_Preparation_Calcul_General(const std::string& sNomcalcul,
                                                VarCalculSalarie& InfosSalaries);
  bool Appel_Methode_Calcul_General(const std::string& sNomcalcul, VarCalculSalarie& InfosSalaries,
                                    SalarieCalculRubrique& Rubrique,
                                    const RsRef& RsVarSalaries = nullptr,
                                    const RsRef& RsVarSalariesHisto = nullptr,
                                    const RsRef& RsSalariesHisto = nullptr);

  // ---- Period preparation with the historic rule (historic/) ------------------------------
  // dCoefficient_IAncien and dCoefficient_INouveau: the month split at sDateChangementIndice.
  void CalculCoefficientUtilisationIndice(VarCalculSalarie& InfosSalaries);
  void CalculCoefficientUtilisationTauxElus(VarCalculSalarie& InfosSalaries,
                                            const std::string& sPeriode);
  // One situation's days added to the two counts of the month, capped by the presence.
  void CalculNombreJour_Situation(const std::string& sSituation,
                                  const std::string& sDateDeb_Situation,
                                  const std::string& sDateFin_Situation,
                                  VarCalculSalarie& InfosSalaries, Int16& iNbj_A, Int16& iNbj_N);
  // The day counts of the situations, from sSituation1 and sSituation2 of the record.
  void CalculNombreJourDemiTraitement(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCPA(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCFA(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDispoOffice(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCongeMaternite(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourFormation(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDetachement(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourAutresAbsences(VarCalculSalarie& InfosSalaries);
  // dCoefficient_Traitement, once for the whole month.
  void CalculCoefficientTraitement(VarCalculSalarie& InfosSalaries);
  // iNBJ_PresenceA and iNBJ_PresenceN; no total. An empty sPeriode is gPeriodeEncours.
  void CalculNombreJourPresence(VarCalculSalarie& InfosSalaries, const std::string& sPeriode);
  // The two counts of a month; a non-prorated period is a whole month on the new index.
  void CalculNombreJourPresenceMois(VarCalculSalarie& InfosSalaries,
                                    const std::string& sPeriodeEnCours, Int16& iNbj_A,
                                    Int16& iNbj_N);
  // dBase_HSN on the current index; dBase_HSA on the former one in July 2008, or when the
  // index changed after the pay month, else on the current one.
  void CalculSalaireBaseHS(VarCalculSalarie& InfosSalaries);
  // With no floor at the yearly minimum wage.
  double CalculSalaireBaseHS_Periode(VarCalculSalarie& InfosSalaries, double dIndice,
                                     const std::string& sType);

  // ---- Lookups with the historic rule (historic/) ----------------------------------------
  // The officials' full month on the fixed index (820, then 821 from "200611") times the
  // point of the month sPeriode moved back sDecalage months, times dTaux.
  double dRechercheIndMajEluPeriode(VarCalculSalarie& InfosSalaries, const std::string& sPeriode,
                                    const std::string& sDecalage, double& dResultat,
                                    double dTaux);
  // By employee, month and code only (lIdCumul is not read), and always PartSalariale.
  double dRechercheValeurCumulHistorique(Int32 lIdSalarie, const std::string& sPeriode,
                                         const std::string& sCode, double& dValeur,
                                         const std::string& sMois, const std::string& sType,
                                         Int32 lIdCumul) override;

  // ---- Salary elements in the two cells of the month (historic/) ---------------------------
  // The current engine's rules over the old-index and the new-index cells, both on
  // dCoefficient_Traitement; the totals of days are the two cells' sums.
  void CalculRubrique_TraitementIndiciaireMois(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireMoisPrecedent(VarCalculSalarie& InfosSalaries,
                                                        SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple(VarCalculSalarie& InfosSalaries,
                                                           SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementBaseParticulier(VarCalculSalarie& InfosSalaries,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& RsVarSalariesHisto,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsSalariesHisto);
  void CalculCoefficientDemiTraitement(VarCalculSalarie& InfosSalaries, const std::string& sType);
  // The line's days into the two cell counts (old index, new index): availability for the
  // codes "INDCOSFT", "INDCOBONIF", "INDCOTRAIT", "INDCOIR", otherwise half pay; the half-pay
  // coefficient is set first, but for "INDCOSFT".
  void dCoefficientIndemnitaireDemiTraitement(VarCalculSalarie& InfosSalaries, Int16& iNbj_A,
                                              Int16& iNbj_N, const std::string& sType,
                                              const std::string& sCodeRubrique);
  std::optional<double> dMontantProratiseSuivantDemiTraitement(VarCalculSalarie& InfosSalaries,
                                                               double dMntInitial);
  void CalculRubrique_DemiTraitementIndiciaire(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique,
                                               const std::string& sVariante);
  void CalculRubrique_BonificationIndiciaire(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique);
  void CalculRubrique_DemiTraitementBonification(VarCalculSalarie& InfosSalaries,
                                                 SalarieCalculRubrique& Rubrique,
                                                 const std::string& sVariante);
  void CalculRubrique_CPA(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique);
  void CalculRubrique_CFA(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique);
  // Paid whatever dNB_Jours_Max_Decalage_Mois, a field this engine does not read.
  void CalculRubrique_IndemniteResidence(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_IndemniteCoordination(VarCalculSalarie& InfosSalaries,
                                            SalarieCalculRubrique& Rubrique,
                                            const std::string& sVariante);
  void CalculRubrique_SupplementFamilial(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_SupplementFamilialIC(VarCalculSalarie& InfosSalaries,
                                           SalarieCalculRubrique& Rubrique,
                                           const std::string& sVariante);
  void CalculRubrique_Iat(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                          const RsRef& RsVarSalaries);
  void CalculRubrique_SujetionsSpeciales(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_IndemniteFormation(VarCalculSalarie& InfosSalaries,
                                         const RsRef& RsVarSalaries,
                                         SalarieCalculRubrique& Rubrique);

  // ---- Resolvers of the generic pay lines: the designations this engine knows ------------
  double RechercheValeurBase(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                             SalarieCalculRubrique& Rubrique);
  double RechercheValeurCoefficient(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                    Int32 lIdCoeffBase, const std::string& sCoeffBase,
                                    SalarieCalculRubrique& Rubrique);
  double RechercheValeurTauxSalarial(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                     const RsRef& RsVarSalariesHisto,
                                     SalarieCalculRubrique& Rubrique, std::string& sType,
                                     const RsRef& RsSalariesHisto);
  // No designation argument here.
  double RechercheValeurTauxPatronal(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                     SalarieCalculRubrique& Rubrique, std::string& sType);

  double BaseDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                     SalarieCalculRubrique& Rubrique) override;
  double CoefficientDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                            Int32 lIdCoeffBase, const std::string& sCoeffBase,
                            SalarieCalculRubrique& Rubrique) override;
  double TauxSalarialDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                             const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                             std::string& sType, const RsRef& RsSalariesHisto) override;
  double TauxPatronalDeLigne(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                             SalarieCalculRubrique& Rubrique, std::string& sType) override;

  // ---- Generic pay lines: the shared bodies, through the resolvers above -----------------
  void CalculRubrique_BaseTaux(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                               const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                               const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseTauxChoix(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                    const RsRef& RsVarSalariesHisto,
                                    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseTauxSmic(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                   const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                                   const RsRef& RsSalariesHisto);
  void CalculRubrique_MontantFixe(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                  const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsSalariesHisto);
  void CalculRubrique_MontantFixeAnnuel(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        SalarieCalculRubrique& Rubrique,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseProrata30(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                    const RsRef& RsVarSalariesHisto,
                                    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseProrata30ADeduire(VarCalculSalarie& InfosSalaries,
                                            const RsRef& RsVarSalaries,
                                            const RsRef& RsVarSalariesHisto,
                                            SalarieCalculRubrique& Rubrique,
                                            const RsRef& RsSalariesHisto);
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

  // ---- Officials, overtime and other allowances: the current engine's bodies (historic/) --
  // The officials' lines on the fixed index (see dRechercheIndMajEluPeriode).
  void CalculRubrique_TraitementIndiciaireElus(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireElusMois(VarCalculSalarie& InfosSalaries,
                                                   SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireElusPrecedent(VarCalculSalarie& InfosSalaries,
                                                        SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireElusPrecedentMois(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementForfaitaireElus(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique);
  void CalculRubrique_HeuresComplementaires(VarCalculSalarie& InfosSalaries,
                                            SalarieCalculRubrique& Rubrique,
                                            const RsRef& RsVarSalaries);
  void CalculRubrique_HeuresComplementairesPrec(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HS_Moins14(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                 const RsRef& RsVarSalaries);
  void CalculRubrique_HS_Moins14Prec(VarCalculSalarie& InfosSalaries,
                                     SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                     const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HS_Plus14(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                const RsRef& RsVarSalaries);
  void CalculRubrique_HS_Plus14Prec(VarCalculSalarie& InfosSalaries,
                                    SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                    const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HS_NuitFeriePlus14(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique,
                                         const RsRef& RsVarSalaries, const std::string& sNomcalcul);
  void CalculRubrique_HS_NuitFeriePlus14Prec(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsVarSalaries,
                                             const RsRef& RsVarSalariesHisto,
                                             const std::string& sNomcalcul);
  void CalculRubrique_HS_Nuit(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                              const RsRef& RsVarSalaries);
  void CalculRubrique_HS_NuitPrec(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto);
  void CalculRubrique_HS_Ferie(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                               const RsRef& RsVarSalaries);
  void CalculRubrique_HS_FeriePrec(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                   const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto);
  void CalculRubrique_PrimeInformatique(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique,
                                        const RsRef& RsVarSalaries);
  void CalculRubrique_FondsSolidarite(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique);
  void CalculRubrique_CreditMunicipal(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries);
  void CalculRubrique_ComplementDifferentiel35H(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsVarSalaries);
  void CalculRubrique_IndemniteKilometrique(VarCalculSalarie& InfosSalaries,
                                            SalarieCalculRubrique& Rubrique);
  // The mileage scale, as in the current engine.
  double dBaremeKilometrique(Int32 lKmParcouru, Int32 lKmPuissance, Int32 lKmCumule,
                             double& dTaux1, double& dTaux2, Int32& lKm1, Int32& lKm2,
                             double& dMontant);
  // The month's treatment is the sum of the two cells dSalarie_MensuelA and N.
  void CalculRubrique_Mgen(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                           const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
                           const RsRef& RsSalariesHisto, bool bOption);
  void CalculRubrique_AllocationFormation(VarCalculSalarie& InfosSalaries,
                                          const RsRef& RsVarSalaries,
                                          SalarieCalculRubrique& Rubrique);
  void CalculRubrique_MontantReference(VarCalculSalarie& InfosSalaries,
                                       SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries);

  // ---- Contributions with the historic rule (historic/) ----------------------------------
  void CalculRubrique_ReductionHS(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsVarSalaries);
  void CalculRubrique_RappelReductionHS(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_ReductionFillon(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique,
                                      const std::string& sNomcalcul);
  void CalculRubrique_TaxeSalaire_Taux1(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_TaxeSalaire_Taux2(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_Gipa(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique);
  // Not shared among employers by the weekly hours.
  std::optional<double> dMontantGIPA(VarCalculSalarie& InfosSalaries, double dIM_Debut,
                                     double dPoint_Debut, double dIM_Fin, double dPoint_Fin,
                                     double dTauxInflation, double dHrsHebdo,
                                     double dTauxTempsPartiel);
  void CalculRubrique_CnraclRetroactive(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  // The officials' withholding of the historic method, as in the current engine.
  RsRef EnregistreDetailRetenueSource();
  void CalculRubrique_Retenue_a_la_source(VarCalculSalarie& InfosSalaries,
                                          SalarieCalculRubrique& Rubrique,
                                          const RsRef& RsVariablesSalaries);

  // ---- Strike, daily benefits, differential allowance, officials' new method (h3) --------
  // Strike counters only; the treatment of the month before net of dMtRetenueTbiMoisPrec.
  void CalculRubrique_Greve(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                            const RsRef& RsVarSalaries, const std::string& sVariante,
                            const RsRef& RsSalariesHisto, const RsRef& RsVarSalariesHisto);
  // Subrogated benefits only, from the three slots of the record.
  void CalculRubrique_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                              SalarieCalculRubrique& Rubrique,
                                              const RsRef& RsSalariesHisto);
  void Calcul_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique,
                                      const RsRef& RsSalariesHisto);
  // Slot NumIJ spread over its months against the month's total "BASE", always capped.
  void CalculIJ_Periode(VarCalculSalarie& InfosSalaries, const RsRef& RsSalariesHisto,
                        Int16 NumIJ, SalarieCalculRubrique& Rubrique);
  // The first generation, on the two cells of the month.
  void CalculRubrique_Indemnite_Differentielle(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique);
  // The earlier form of the new method: one ceiling ratio, no URSSAF on the mandates, no
  // employer's pension, a shorter detail table.
  void CalculRubrique_Retenue_a_la_source_NouvelleMethode(VarCalculSalarie& InfosSalaries,
                                                          SalarieCalculRubrique& Rubrique,
                                                          const RsRef& RsVariablesSalaries);
  RsRef EnregistreDetailRetenueSource_NouvelleMethode();
  // As in the current engine.
  void CalculRetenueSource_DonneesMandat(VarCalculSalarie& InfosSalaries, double& dFraisMandat,
                                         double& dPlafondPeriode, double& dPeriodesAn,
                                         double& dMoisPeriode, double& dCoefBareme);
  void CalculRetenueSource_Bareme(VarCalculSalarie& InfosSalaries, double dNetImposable,
                                  double dPeriodesAn, double& dTauxTranche,
                                  double& dTrancheBasse, double& dTrancheHaute,
                                  double& dConstante);
};

}  // namespace orvalis

#endif  // ORVALIS_METHODECALCULG_H_
