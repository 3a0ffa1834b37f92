// MethodeCalculG_Nouv: the calculation engine.
//
// The host sets the tabular properties and gPeriodeEncours, fills a VarCalculSalarie, calls
// the preparation entry for each preparation name the month needs, then the calculation
// entry once per pay line with its SalarieCalculRubrique. Both entries select the work by
// its literal French name, exactly and case-sensitively; an unknown name does nothing and
// gives true. Every fault below an entry is trapped there: the entry gives false and the
// records keep what was written before the fault.
#ifndef ORVALIS_METHODECALCULG_NOUV_H_
#define ORVALIS_METHODECALCULG_NOUV_H_

#include <optional>
#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

class MethodeCalculG_Nouv : public MoteurCalcul {
 public:
  MethodeCalculG_Nouv() = default;

  RsRef gRsConstantesHistorique;  // constants by month
  RsRef gRsBaremeTauxPAS;         // neutral-rate scale of the tax at source

  // ---- Entry points --------------------------------------------------------------------
  // Runs one period preparation named sNomcalcul into InfosSalaries.
  bool Appel_Methode_Preparation_Calcul_General(const std::string& sNomcalcul,
                                                VarCalculSalarie& InfosSalaries);
  // Computes one pay line named sNomcalcul into Rubrique (and, for a few names, into
  // InfosSalaries or a detail table). The three sources may be left out (null) for the
  // names that do not read them.
  bool Appel_Methode_Calcul_General(const std::string& sNomcalcul, VarCalculSalarie& InfosSalaries,
                                    SalarieCalculRubrique& Rubrique,
                                    const RsRef& RsVarSalaries = nullptr,
                                    const RsRef& RsVarSalariesHisto = nullptr,
                                    const RsRef& RsSalariesHisto = nullptr);

  // ---- Lookups of this engine ----------------------------------------------------------
  // The back-pay columns of a total: PartSalarialeRappel for "S", else PartPatronaleRappel.
  double dRechercheValeurCumulRappel(const std::string& sCode, const std::string& sType);
  // Sums PartSalariale and PartPatronale of the totals of a comma-separated list of codes.
  void RechercheValeursListeCumul(const std::string& sListeCode, double& dValSal, double& dValPat);

  // Kept in the interface: does nothing, and no name reaches it.
  void CalculRubrique_Prelevement_a_la_source(VarCalculSalarie& InfosSalaries,
                                              SalarieCalculRubrique& Rubrique,
                                              const RsRef& RsVariablesSalaries);

  // ---- Resolvers of the generic pay lines (generic/) -------------------------------------
  double RechercheValeurBase(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                             SalarieCalculRubrique& Rubrique);
  double RechercheValeurCoefficient(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                    Int32 lIdCoeffBase, const std::string& sCoeffBase,
                                    SalarieCalculRubrique& Rubrique);
  double RechercheValeurTauxSalarial(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                     const RsRef& RsVarSalariesHisto,
                                     SalarieCalculRubrique& Rubrique, std::string& sType,
                                     const RsRef& RsSalariesHisto);
  double RechercheValeurTauxPatronal(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                     SalarieCalculRubrique& Rubrique, std::string& sType,
                                     const std::string& sDesignation);
  // dRechercheTauxPatronal, bTauxCsgProfessionnel and CalculTauxHoraireSalarie: MoteurCalcul.
  // The reads of a generic pay line through this engine's resolvers.
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
  // The value of one worked day for the arbitration of paid leave: the line's coefficient
  // over a twelfth of the working days of the year, to 2 places; 0 for a year without one.
  double dArbitrageJours(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                         SalarieCalculRubrique& Rubrique);
  // ---- Generic pay lines (generic/) ------------------------------------------------------
  void CalculRubrique_BaseTaux_Detachement(VarCalculSalarie& InfosSalaries,
                                           const RsRef& RsVarSalaries,
                                           const RsRef& RsVarSalariesHisto,
                                           SalarieCalculRubrique& Rubrique,
                                           const RsRef& RsSalariesHisto);
  void CalculRubrique_BaseDivTaux(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                  const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsSalariesHisto);
  void CalculTauxHoraireMoisEnCours(double dCoeffMajoration, VarCalculSalarie& InfosSalaries,
                                    const RsRef& RsVarSalaries, double& dValeur,
                                    std::string& sType);
  void CalculTauxHoraireMoisPrec(double dCoeffMajoration, VarCalculSalarie& InfosSalaries,
                                 const RsRef& RsVarSalariesHisto, const RsRef& RsSalariesHisto,
                                 double& dValeur, std::string& sType);

  // ---- Period preparation (period/) ------------------------------------------------------
  Int16 iNbJoursReelsPeriode(VarCalculSalarie& InfosSalaries, const std::string& sPeriode);
  void CalculCoefficientUtilisationIndice(VarCalculSalarie& InfosSalaries);
  void CalculCoefficientTraitement(VarCalculSalarie& InfosSalaries);
  void CalculCoefficientTraitementEnFonctionOccupationPoste(VarCalculSalarie& InfosSalaries,
                                                            bool bMoisEnCours,
                                                            double& dCoefficientTraitement,
                                                            double& dCoefficientTraitementTNCAvantTP,
                                                            double& dCoefficientTraitementSiTNC);
  void CalculNombreJourPresence(VarCalculSalarie& InfosSalaries, const std::string& sPeriode);
  void CalculNombreJourPresenceMois(VarCalculSalarie& InfosSalaries,
                                    const std::string& sPeriodeEnCours, Int16& iNbj_IATA,
                                    Int16& iNbj_IATN, Int16& iNbj_INTA, Int16& iNbj_INTN);
  void CalculNombreJourAutresAbsences(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourAutresAbsences_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJour_Situation(const std::string& sSituation,
                                  const std::string& sDateDeb_Situation,
                                  const std::string& sDateFin_Situation,
                                  VarCalculSalarie& InfosSalaries, Int16& iNbj_IATA,
                                  Int16& iNbj_IATN, Int16& iNbj_INTA, Int16& iNbj_INTN);
  void CalculNombreJourCarence(VarCalculSalarie& InfosSalaries,
                               const std::string& sDateDebutCarence,
                               const std::string& sDateFinCarence, const std::string& sPeriode);
  void CalculNombreJourCarenceMois(VarCalculSalarie& InfosSalaries,
                                   const std::string& sPeriodeEnCours,
                                   const std::string& sDateDebutCarence,
                                   const std::string& sDateFinCarence, Int16& iNbj_IATA,
                                   Int16& iNbj_IATN, Int16& iNbj_INTA, Int16& iNbj_INTN);
  void CalculNombreJourCarence_Situation(const std::string& sSituation,
                                         const std::string& sDateDeb_Situation,
                                         const std::string& sDateFin_Situation,
                                         VarCalculSalarie& InfosSalaries,
                                         const std::string& sDateDebutCarence,
                                         const std::string& sDateFinCarence, Int16& iNbj_IATA,
                                         Int16& iNbj_IATN, Int16& iNbj_INTA, Int16& iNbj_INTN);
  void CalculRechercheJourDebutEtJourFin(VarCalculSalarie& InfosSalaries,
                                         const std::string& sPeriodeEnCours,
                                         std::string& sDernierJourMois, Int16& iJourDeb,
                                         Int16& iJourFin);
  void CalculSalaireBaseHS(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDemiTraitement_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCPA_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCFA_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDetachement_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDispoOffice_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourFormation_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCongeMaternite_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDetachementSansPension_NouvelleGestion(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourMaintienTraitement(VarCalculSalarie& InfosSalaries, Int16 iPourcentage);
  void CalculNombreJourTptNonSubroge(VarCalculSalarie& InfosSalaries);
  // The yearly reference salary of overtime on dIndice, sType "ENCOURS" or "ANCIEN".
  double CalculSalaireBaseHS_Periode(VarCalculSalarie& InfosSalaries, double dIndice,
                                     const std::string& sType);
  // Older forms of the situation counts, from sSituation1 and sSituation2 of the record.
  void CalculNombreJourDemiTraitement(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCPA(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCFA(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDispoOffice(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourCongeMaternite(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourFormation(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDetachement(VarCalculSalarie& InfosSalaries);
  void CalculNombreJourDetachementSansPension(VarCalculSalarie& InfosSalaries);

  // ---- Tax at source (contributions/) ----------------------------------------------------
  double CalculPrelevementALaSource_Assiette(VarCalculSalarie& InfosSalaries, double& dBase,
                                             SalarieCalculRubrique& Rubrique);
  double CalculPrelevementALaSource_Taux(VarCalculSalarie& InfosSalaries);
  double dMtIJImposable(VarCalculSalarie& InfosSalaries);
  double dNetAPayerAvantPAS(VarCalculSalarie& InfosSalaries);
  double CalculPrelevementALaSource_Tauxold(VarCalculSalarie& InfosSalaries, double& dBase,
                                            std::string& sDesignationRubrique);
  void CalculRubrique_Retenue_a_la_source_NouvelleMethode(VarCalculSalarie& InfosSalaries,
                                                          SalarieCalculRubrique& Rubrique,
                                                          const RsRef& RsVariablesSalaries);
  void CalculRubrique_Imposition_a_la_source_Frontalier(VarCalculSalarie& InfosSalaries,
                                                        SalarieCalculRubrique& Rubrique,
                                                        const RsRef& RsVariablesSalaries);
  double CalculPrelevementALaSource_CasParticulierElu(VarCalculSalarie& InfosSalaries,
                                                      SalarieCalculRubrique& Rubrique);
  // Taxable base of an apprentice or a trainee: the year's taxable net above "SMICANNUEL".
  double dSeuilPrelevementSource(VarCalculSalarie& InfosSalaries);
  // A new, empty detail table of the officials' tax at source (rsPrelevementSourceElus).
  RsRef EnregistreDetailPrelevementElu();

  // ---- Withholding on elected officials' allowances (contributions/) ---------------------
  RsRef EnregistreDetailRetenueSource_NouvelleMethode();

  // ---- Salary elements (salary/) ---------------------------------------------------------
  void CalculCoefficientDemiTraitement(VarCalculSalarie& InfosSalaries, const std::string& sType);
  void CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple(VarCalculSalarie& InfosSalaries,
                                                           SalarieCalculRubrique& Rubrique);
  std::optional<double> dMontantProratiseSuivantDemiTraitement(VarCalculSalarie& InfosSalaries,
                                                               double dMntInitial);
  void CalculRubrique_Indemnite_transport_Corse(VarCalculSalarie& InfosSalaries,
                                                const RsRef& RsVarSalaries,
                                                SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Traitement_Indiciaire_Journalier(VarCalculSalarie& InfosSalaries,
                                                       const RsRef& RsVarSalaries,
                                                       const RsRef& RsVarSalariesHisto,
                                                       SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementHoraireMois(VarCalculSalarie& InfosSalaries,
                                            const RsRef& RsVarSalaries,
                                            SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireMois(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireMoisPrecedent(VarCalculSalarie& InfosSalaries,
                                                        SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireElus(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique);
  void CalculRubrique_DemiTraitementIndiciaire(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique,
                                               const std::string& sVariante);
  void CalculRubrique_AllocationComplementaireMaladie(VarCalculSalarie& InfosSalaries,
                                                      SalarieCalculRubrique& Rubrique);
  void CalculRubrique_AllocationComplementaireMaladieNbi(VarCalculSalarie& InfosSalaries,
                                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_BonificationIndiciaire(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique);
  void CalculRubrique_DemiTraitementBonification(VarCalculSalarie& InfosSalaries,
                                                 SalarieCalculRubrique& Rubrique,
                                                 const std::string& sVariante);
  void CalculRubrique_IndemniteResidence(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_IndemniteCoordination(VarCalculSalarie& InfosSalaries,
                                            SalarieCalculRubrique& Rubrique,
                                            const std::string& sVariante);
  void CalculRubrique_SupplementFamilial(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_CPA(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique);
  void CalculRubrique_CFA(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Iat(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                          const RsRef& RsVarSalaries);
  void CalculRubrique_SujetionsSpeciales(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Mgen(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                           const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
                           const RsRef& RsSalariesHisto, bool bOption);
  void CalculRubrique_SupplementFamilialIC(VarCalculSalarie& InfosSalaries,
                                           SalarieCalculRubrique& Rubrique,
                                           const std::string& sVariante);
  void CalculRubrique_TraitementIndiciaireElusPrecedent(VarCalculSalarie& InfosSalaries,
                                                        SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementBaseParticulier(VarCalculSalarie& InfosSalaries,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& RsVarSalariesHisto,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsSalariesHisto);
  void CalculRubrique_TraitementIndiciaireElusMois(VarCalculSalarie& InfosSalaries,
                                                   SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementForfaitaireElusMois(VarCalculSalarie& InfosSalaries,
                                                    SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementIndiciaireElusPrecedentMois(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique);
  void CalculRubrique_ReversementSFT(VarCalculSalarie& InfosSalaries,
                                     SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TraitementJournalierSmic(VarCalculSalarie& InfosSalaries,
                                               const RsRef& RsVarSalaries,
                                               const RsRef& RsVarSalariesHisto,
                                               SalarieCalculRubrique& Rubrique,
                                               const RsRef& RsSalariesHisto);
  void CalculRubrique_Irf(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                          const RsRef& RsVarSalaries);
  void CalculRubrique_Ipf(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                          const RsRef& RsVarSalaries);
  void CalculRubrique_Ifse(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                           const RsRef& RsVarSalaries);
  void CalculRubrique_Cia(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                          const RsRef& RsVarSalaries);
  void CalculRubrique_TraitementIndiciaireElusEcrete(VarCalculSalarie& InfosSalaries,
                                                     SalarieCalculRubrique& Rubrique);

  // ---- Elected officials' reference index (salary/) --------------------------------------
  // The reference index of the month sPeriode moved back sDecalage months (a number as a
  // text): dValeur when it is not 0; otherwise 820 before 11/2006, 821 before 2017, then the
  // constant "INDMAJELU". Into dValeur; gives dValeur.
  double dRechercheIndMajElu(double& dValeur, const std::string& sPeriode,
                             const std::string& sDecalage);
  // The allowance of the month sPeriode moved back sDecalage months, on that month's point
  // and index, times the rate dTaux (a coefficient; -1 takes the mandate's own rate). Into
  // dResultat; gives dResultat.
  double dRechercheIndMajEluPeriode(VarCalculSalarie& InfosSalaries, const std::string& sPeriode,
                                    const std::string& sDecalage, double& dResultat,
                                    double dTaux);

  // ---- Half pay (salary/) ------------------------------------------------------------------
  // The half-pay days of the line into the four quadrant counts (IATA, IATN, INTA, INTN):
  // the availability days for the codes "INDCOSFT", "INDCOBONIF", "INDCOTRAIT", "INDCOIR",
  // otherwise the half-pay days; the half-pay coefficient is set first, but for "INDCOSFT".
  void dCoefficientIndemnitaireDemiTraitement(VarCalculSalarie& InfosSalaries, Int16& iNbj_IATA,
                                              Int16& iNbj_IATN, Int16& iNbj_INTA,
                                              Int16& iNbj_INTN, const std::string& sType,
                                              const std::string& sCodeRubrique);

  // ---- Absences and replacement income (absences/) ---------------------------------------
  void CalculRubrique_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                              SalarieCalculRubrique& Rubrique,
                                              const RsRef& RsSalariesHisto, bool bIJSubrogees);
  void Calcul_Indemnites_journalieres(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique,
                                      const RsRef& RsSalariesHisto);
  void Calcul_Indemnites_Journalieres_NouvelleMethode(VarCalculSalarie& InfosSalaries,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsSalariesHisto,
                                                      bool bIJSubrogees);
  void CalculRubrique_Indemnite_Differentielle(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Indemnite_Differentielle_Nouv(VarCalculSalarie& InfosSalaries,
                                                    SalarieCalculRubrique& Rubrique,
                                                    const RsRef& RsVarSalaries);
  void CalculRubrique_Indemnite_Differentielle_Mayotte(VarCalculSalarie& InfosSalaries,
                                                       SalarieCalculRubrique& Rubrique,
                                                       const RsRef& RsVarSalaries);
  void CalculRubrique_Greve(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                            const RsRef& RsVarSalaries, const std::string& sVariante,
                            const RsRef& RsSalariesHisto, const RsRef& RsVarSalariesHisto);
  void CalculRubrique_MaintienSalaireHoraire(VarCalculSalarie& InfosSalaries,
                                             const RsRef& RsVarSalaries,
                                             SalarieCalculRubrique& Rubrique, Int16 iPourcentage);
  void CalculRubrique_MaintienSalaire(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique, Int16 iPourcentage);
  void CalculRubrique_CongesPayes(VarCalculSalarie& InfosSalaries, const RsRef& RsSalariesHisto,
                                  SalarieCalculRubrique& Rubrique);
  void CalculRubrique_TptNonSubroge(VarCalculSalarie& InfosSalaries,
                                    SalarieCalculRubrique& Rubrique, Int16& iTauxTptNonSubroge);
  void CalculRubrique_Carence(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                              const std::string& sVariante, const RsRef& RsSalariesHisto);
  // The four day counts of a maintained-pay line: the 90 % days for "MAINTIEN90", the
  // two-thirds days for "MAINTIEN66", none for any other code.
  void dMaintienSalaireCoefficient(VarCalculSalarie& InfosSalaries, Int16& iJoursIATA,
                                   Int16& iJoursIATN, Int16& iJoursINTA, Int16& iJoursINTN,
                                   const std::string& sCodeRubrique);
  void CalculRubrique_RetenueCongesPayes(VarCalculSalarie& InfosSalaries,
                                         const RsRef& RsVarSalaries, const RsRef& RsSalariesHisto,
                                         const RsRef& RsVarSalariesHisto,
                                         SalarieCalculRubrique& Rubrique);
  void CalculRubrique_ArbitrageCongesPayes(VarCalculSalarie& InfosSalaries,
                                           const RsRef& RsVarSalaries, const RsRef& RsSalariesHisto,
                                           const RsRef& RsVarSalariesHisto,
                                           SalarieCalculRubrique& Rubrique);

  // ---- Contributions and reductions (contributions/) -------------------------------------
  void CalculRubrique_TaxeSalaire_Taux1(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_TaxeSalaire_Taux2(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_Gipa(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique);
  std::optional<double> dMontantGIPA(VarCalculSalarie& InfosSalaries, double dIM_Debut,
                                     double dPoint_Debut, double dIM_Fin, double dPoint_Fin,
                                     double dTauxInflation, double dHrsHebdo,
                                     double dTauxTempsPartiel);
  void RechercheDonneesPourCalculExonerationAllocFamOuFillon(VarCalculSalarie& InfosSalaries,
                                                             double& dMtFillonDejaCotise,
                                                             bool bCalculFillon, bool bCalculMSA);
  bool bDeclenchementComplementTauxCotisations(VarCalculSalarie& InfosSalaries, bool blnMsa);
  void CalculRubrique_ReductionHS(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                                  const RsRef& RsVarSalaries);
  void CalculRubrique_RappelReductionHS(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
                                        const RsRef& RsVarSalariesHisto,
                                        const RsRef& RsSalariesHisto);
  void CalculRubrique_ReductionFillon(VarCalculSalarie& InfosSalaries,
                                      SalarieCalculRubrique& Rubrique,
                                      const std::string& sNomcalcul);
  void CalculRubrique_ExonerationZrr(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                     SalarieCalculRubrique& Rubrique);
  void CalculRubrique_CompensationHausseCsg(VarCalculSalarie& InfosSalaries,
                                            const RsRef& RsVarSalaries,
                                            const RsRef& RsVarSalariesHisto,
                                            SalarieCalculRubrique& Rubrique);
  void CalculRubrique_Degressivite(VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
                                   const RsRef& RsSalariesHisto, const RsRef& RsVarSalariesHisto,
                                   SalarieCalculRubrique& Rubrique);
  void CalculRubrique_ReductionCsgChomage(VarCalculSalarie& InfosSalaries,
                                          SalarieCalculRubrique& Rubrique,
                                          const std::string& sCode);
};

}  // namespace orvalis

#endif  // ORVALIS_METHODECALCULG_NOUV_H_
