// Independent checks of the engine frame: the two records field by field, both dispatch
// tables row by row, the tests that choose a handler, the trap, and the lookups' criteria,
// defaults, null rules, rounding and month keys, seen through a source that records the
// calls made to it.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "frame/dispatch.h"
#include "frame/records_compare.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/Recordset.h"
#include "orvalis/fault.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

struct ChampAttendu {
  const char* nom;
  TypeChamp type;
};

struct NomHandler {
  const char* nom;
  const char* handler;
};

// The employee record, every field in its order, its type by its prefix.
const ChampAttendu kChampsSalarie[] = {
    {"lIdSalarie", TypeChamp::I32},
    {"sMatricule", TypeChamp::S},
    {"sSousMatricule", TypeChamp::S},
    {"sTypeModele", TypeChamp::S},
    {"sCodeModele", TypeChamp::S},
    {"sCodeCategorie", TypeChamp::S},
    {"bRegineFonctionnaire", TypeChamp::B},
    {"iEnfant_ACharge", TypeChamp::I16},
    {"iNbEnfant_A_charge_Janvier", TypeChamp::I16},
    {"dEnfantsNonACharges", TypeChamp::D},
    {"bAlsaceMoselle", TypeChamp::B},
    {"bSalarieMSA", TypeChamp::B},
    {"bSalarieFrontalier", TypeChamp::B},
    {"iZoneResid", TypeChamp::I16},
    {"sDateDebut", TypeChamp::S},
    {"sDateFin", TypeChamp::S},
    {"sOccupationPoste", TypeChamp::S},
    {"iTypeCalculHeure", TypeChamp::I16},
    {"dHeuresHebdo", TypeChamp::D},
    {"dHeuresMois", TypeChamp::D},
    {"dHeuresMoisPrec", TypeChamp::D},
    {"dDureeHebdoLegale", TypeChamp::D},
    {"dHeuresCumulsHebdo", TypeChamp::D},
    {"dTauxPoste", TypeChamp::D},
    {"dTauxPosteTNC", TypeChamp::D},
    {"dHeuresHebdoOrigineTNC", TypeChamp::D},
    {"dCoefficientTraitementTNCAvantTP", TypeChamp::D},
    {"dCoefficientTraitementTPSiTNC", TypeChamp::D},
    {"sDateChangementHeures", TypeChamp::S},
    {"sDateChangementIndice", TypeChamp::S},
    {"sDateMajIndiceReglementaire", TypeChamp::S},
    {"sOccupationPosteMoisPrec", TypeChamp::S},
    {"iTypeCalculHeureMoisPrec", TypeChamp::I16},
    {"dTauxPosteMoisPrec", TypeChamp::D},
    {"dHeuresHebdoMoisPrec", TypeChamp::D},
    {"dHeuresMensMoisPrec", TypeChamp::D},
    {"dTauxPosteTNCMoisPrec", TypeChamp::D},
    {"dHeuresHebdoOrigineTNCMoisPrec", TypeChamp::D},
    {"dDureeHebdoLegaleMoisPrec", TypeChamp::D},
    {"dCoefficientTraitementTNCAvantTPMoisPrec", TypeChamp::D},
    {"dCoefficientTraitementTPSiTNCMoisPrec", TypeChamp::D},
    {"bDureeHebdoMultiple", TypeChamp::B},
    {"RsHeuresHebdoMultiples", TypeChamp::RS},
    {"dHeureHebdo1", TypeChamp::D},
    {"dHeureHebdo2", TypeChamp::D},
    {"dHeureHebdo3", TypeChamp::D},
    {"bHeuresEnseignant", TypeChamp::B},
    {"dNb_Heures_Rappel", TypeChamp::D},
    {"bPeriodeNonProratisee", TypeChamp::B},
    {"bCalculPayeEnJoursCalendaires", TypeChamp::B},
    {"dNB_Jours_Max_Decalage_Mois", TypeChamp::D},
    {"dIndiceMajoreM", TypeChamp::D},
    {"dIndiceMajoreA", TypeChamp::D},
    {"dIndiceMajore1", TypeChamp::D},
    {"dIndiceMajore2", TypeChamp::D},
    {"dIndiceMajore3", TypeChamp::D},
    {"dBonification1", TypeChamp::D},
    {"dBonification2", TypeChamp::D},
    {"dBonification3", TypeChamp::D},
    {"dBonification", TypeChamp::D},
    {"dBonificationTotale", TypeChamp::D},
    {"dIndiceDebutGrade", TypeChamp::D},
    {"dIndiceFinGrade", TypeChamp::D},
    {"dCalculIntercoIndice", TypeChamp::D},
    {"sDateDebutSituation1", TypeChamp::S},
    {"sDatefinSituation1", TypeChamp::S},
    {"sSituation1", TypeChamp::S},
    {"sDateDebutSituation2", TypeChamp::S},
    {"sDatefinSituation2", TypeChamp::S},
    {"sSituation2", TypeChamp::S},
    {"rsSituationsExceptionnelles", TypeChamp::RS},
    {"sTypeCPA", TypeChamp::S},
    {"sTypeDetachementEtat", TypeChamp::S},
    {"sDateDebutRappel", TypeChamp::S},
    {"sDateFinRappel", TypeChamp::S},
    {"dTauxMaire", TypeChamp::D},
    {"dTauxAdjoint", TypeChamp::D},
    {"dTauxEPCI", TypeChamp::D},
    {"dTauxMairePrecedent", TypeChamp::D},
    {"dTauxEPCIPrecedent", TypeChamp::D},
    {"sDateChangementTauxElus", TypeChamp::S},
    {"sEluPeriodicite", TypeChamp::S},
    {"dEluForfait", TypeChamp::D},
    {"sEluBaremeImpot", TypeChamp::S},
    {"iEluChoixImpot", TypeChamp::I16},
    {"dTraitementEluNonMensuel", TypeChamp::D},
    {"dTraitementEluNonMensuelPrecedent", TypeChamp::D},
    {"dTraitementEluForfaitNonMensuel", TypeChamp::D},
    {"bIndemniteEluCotiseUrssaf", TypeChamp::B},
    {"bIndemniteEluCotiseDIFElus", TypeChamp::B},
    {"bEluSansHisto", TypeChamp::B},
    {"bAbattementFiscalElu", TypeChamp::B},
    {"bEluNonEligibleAbatFraisEmploi", TypeChamp::B},
    {"iNBJ_Presence_Total_Periode_Elus", TypeChamp::I16},
    {"iTauxAtUtilise", TypeChamp::I16},
    {"dTauxAt1", TypeChamp::D},
    {"dTauxAt2", TypeChamp::D},
    {"dTauxAt3", TypeChamp::D},
    {"sCalculPlafond", TypeChamp::S},
    {"dPlafondMensuel", TypeChamp::D},
    {"bCotise_IRCANTEC", TypeChamp::B},
    {"bCotise_ASSEDIC", TypeChamp::B},
    {"bCotise_URSSAF", TypeChamp::B},
    {"bCotise_MSA", TypeChamp::B},
    {"bExonereASSEDIC", TypeChamp::B},
    {"bSoumisFondsSolidarite", TypeChamp::B},
    {"bSoumisTaxeTransport", TypeChamp::B},
    {"bSurCotisationCNRACL", TypeChamp::B},
    {"bPasSurCotisationCNRACLSalariale", TypeChamp::B},
    {"iTauxMajorationChomageCDD", TypeChamp::I16},
    {"sBaseTaxeSalaire", TypeChamp::S},
    {"RsPlafondUrssafPeriodes", TypeChamp::RS},
    {"RsPlafondIrcantecPeriodes", TypeChamp::RS},
    {"iTypeExoZRR", TypeChamp::I16},
    {"dTauxExoZRRCotSS", TypeChamp::D},
    {"dTauxExoZRRFnal", TypeChamp::D},
    {"dTauxExoZRRTransport", TypeChamp::D},
    {"bCalculFillonDejaRealise", TypeChamp::B},
    {"bCalculReductionFillon", TypeChamp::B},
    {"dAssietteCotAnnuelle", TypeChamp::D},
    {"dSmicAnnuelFillon", TypeChamp::D},
    {"dSmicAnnuelAFPourComparaison", TypeChamp::D},
    {"dMontantReductionFillonAnnee", TypeChamp::D},
    {"dSalaireBrutAVenir", TypeChamp::D},
    {"bCalculReductionSurHS", TypeChamp::B},
    {"dTauxReduction", TypeChamp::D},
    {"dTauxReductionRappel", TypeChamp::D},
    {"dTauxReductionNonDeductible", TypeChamp::D},
    {"dMtReductionHS", TypeChamp::D},
    {"dMtReductionHSNonDeductible", TypeChamp::D},
    {"dBaseCSG_HS_Deductible", TypeChamp::D},
    {"dTotalEcretementCotisationChomagePartiel", TypeChamp::D},
    {"dNetAPayer_AavantEcretement_chomage", TypeChamp::D},
    {"dMtIndActPar", TypeChamp::D},
    {"dCumul_Brut", TypeChamp::D},
    {"dCumul_Plafond", TypeChamp::D},
    {"dCumul_TotaliteURSSAF", TypeChamp::D},
    {"dCumul_TotaliteIRCANTEC", TypeChamp::D},
    {"dCumul_TotaliteASSEDIC", TypeChamp::D},
    {"dCumul_TotaliteAURSSAF", TypeChamp::D},
    {"dCumul_TotaliteAIRCANTEC", TypeChamp::D},
    {"dCumul_TotaliteAASSEDIC", TypeChamp::D},
    {"dCumul_TotaliteBURSSAF", TypeChamp::D},
    {"dCumul_TotaliteBIRCANTEC", TypeChamp::D},
    {"dCumul_TotaliteBASSEDIC", TypeChamp::D},
    {"dCumul_AssietteCSG", TypeChamp::D},
    {"dCumul_AssietteCNRACL", TypeChamp::D},
    {"dCumul_AssietteRAFP", TypeChamp::D},
    {"dCumul_TraitInd", TypeChamp::D},
    {"dCumul_AssietteBonif", TypeChamp::D},
    {"dCumul_ExcluRafp", TypeChamp::D},
    {"dGreveJours", TypeChamp::D},
    {"dGreveDemiJours", TypeChamp::D},
    {"dGreveHeures", TypeChamp::D},
    {"dGreveJoursPrec", TypeChamp::D},
    {"dGreveDemiJoursPrec", TypeChamp::D},
    {"dGreveHeuresPrec", TypeChamp::D},
    {"dAutreAbsenceJours", TypeChamp::D},
    {"dAutreAbsenceDemiJours", TypeChamp::D},
    {"dAutreAbsenceHeures", TypeChamp::D},
    {"dAutreAbsenceJoursPrec", TypeChamp::D},
    {"dAutreAbsenceDemiJoursPrec", TypeChamp::D},
    {"dAutreAbsenceHeuresPrec", TypeChamp::D},
    {"bCalculGreve", TypeChamp::B},
    {"bCalculAutreAbsence", TypeChamp::B},
    {"bCalculIJ", TypeChamp::B},
    {"bCalculKm", TypeChamp::B},
    {"sIJType1", TypeChamp::S},
    {"sIJDateDebut1", TypeChamp::S},
    {"sIJDatefin1", TypeChamp::S},
    {"dIJPercu1", TypeChamp::D},
    {"sIJType2", TypeChamp::S},
    {"sIJDateDebut2", TypeChamp::S},
    {"sIJDatefin2", TypeChamp::S},
    {"dIJPercu2", TypeChamp::D},
    {"sIJType3", TypeChamp::S},
    {"sIJDateDebut3", TypeChamp::S},
    {"sIJDatefin3", TypeChamp::S},
    {"dIJPercu3", TypeChamp::D},
    {"sMethodeCalculIJ", TypeChamp::S},
    {"bPremierCalculIJ", TypeChamp::B},
    {"bCalculIJNonPlafonnee", TypeChamp::B},
    {"dTotalIJAT", TypeChamp::D},
    {"dTotalIJMaladie", TypeChamp::D},
    {"dTotalIJNonDeductible", TypeChamp::D},
    {"dTotalIJATNette", TypeChamp::D},
    {"dTotalIJNonSubrogees", TypeChamp::D},
    {"dIJ_RevenuGarantiBrut", TypeChamp::D},
    {"dIJNonSubrogees_RevenuGarantiBrut", TypeChamp::D},
    {"dMtIJTheoriqueMaladieEtATMoisPrec", TypeChamp::D},
    {"rsIndemnitesJournalieres", TypeChamp::RS},
    {"dNetAPayer_Attendu", TypeChamp::D},
    {"dDernier_NetAPayer", TypeChamp::D},
    {"dNetAPayer_SansIJ", TypeChamp::D},
    {"lIdRubriqueNetAPayerAttendu", TypeChamp::I32},
    {"dMontantBrut1", TypeChamp::D},
    {"dMontantBrut2", TypeChamp::D},
    {"sCarenceDateDebut1", TypeChamp::S},
    {"sCarenceDateFin1", TypeChamp::S},
    {"iNbCarence1", TypeChamp::I16},
    {"sCarenceDateDebutMoisPrec1", TypeChamp::S},
    {"sCarenceDateFinMoisPrec1", TypeChamp::S},
    {"iNbCarenceMoisPrec1", TypeChamp::I16},
    {"sCarenceDateDebut2", TypeChamp::S},
    {"sCarenceDateFin2", TypeChamp::S},
    {"iNbCarence2", TypeChamp::I16},
    {"sCarenceDateDebutMoisPrec2", TypeChamp::S},
    {"sCarenceDateFinMoisPrec2", TypeChamp::S},
    {"iNbCarenceMoisPrec2", TypeChamp::I16},
    {"sCarenceDateDebut3", TypeChamp::S},
    {"sCarenceDateFin3", TypeChamp::S},
    {"iNbCarence3", TypeChamp::I16},
    {"sCarenceDateDebutMoisPrec3", TypeChamp::S},
    {"sCarenceDateFinMoisPrec3", TypeChamp::S},
    {"iNbCarenceMoisPrec3", TypeChamp::I16},
    {"dTpsTherapeutiqueCoefRI", TypeChamp::D},
    {"iNBJ_TpsTherapeutique", TypeChamp::I16},
    {"dNBJ_TpsTherapeutiqueNS", TypeChamp::D},
    {"dTpsTherapeutiqueCoefNS", TypeChamp::D},
    {"dNBJ_AutreAbsenceNS", TypeChamp::D},
    {"dSalarie_AnnuelPlein", TypeChamp::D},
    {"dSalarie_AnnuelPleinA", TypeChamp::D},
    {"dSalarie_MensuelPleinA", TypeChamp::D},
    {"dSalarie_MensuelPleinN", TypeChamp::D},
    {"dSalarie_MensuelReelA", TypeChamp::D},
    {"dSalarie_MensuelReelN", TypeChamp::D},
    {"dSalarie_MensuelA", TypeChamp::D},
    {"dSalarie_MensuelN", TypeChamp::D},
    {"dBase_HSA", TypeChamp::D},
    {"dBase_HSN", TypeChamp::D},
    {"dIndResTotale", TypeChamp::D},
    {"dMontant_SFT", TypeChamp::D},
    {"dMt_IndemniteDifferentielle", TypeChamp::D},
    {"dMontantAllocationComplementaireMaladie", TypeChamp::D},
    {"dMontantAllocationComplementaireDispo", TypeChamp::D},
    {"dMontantAllocationComplementaireMaladieNBI", TypeChamp::D},
    {"dMtRetenueTbiMoisPrec", TypeChamp::D},
    {"dMtRetenueNbiMoisPrec", TypeChamp::D},
    {"dMontantTotalIndemnites", TypeChamp::D},
    {"dMontantTotalIndemnitesSoumisesUrssaf", TypeChamp::D},
    {"rsAutresIndemnites", TypeChamp::RS},
    {"rsExConjoints", TypeChamp::RS},
    {"dBase_IATAnnuelPlein", TypeChamp::D},
    {"dBase_PSRAnnuelPlein", TypeChamp::D},
    {"dBase_IFTSAnnuelPlein", TypeChamp::D},
    {"dBase_IEMPAnnuelPlein", TypeChamp::D},
    {"lKmCumule", TypeChamp::I32},
    {"lKmPuissance1", TypeChamp::I32},
    {"lKmPuissance2", TypeChamp::I32},
    {"lKmParcouru1", TypeChamp::I32},
    {"lKmParcouru2", TypeChamp::I32},
    {"sGipaAnnee", TypeChamp::S},
    {"dGipaIM_Debut", TypeChamp::D},
    {"dGipaIM_Fin", TypeChamp::D},
    {"dGipaHrsHebdo", TypeChamp::D},
    {"dGipaTauxTempsPartiel", TypeChamp::D},
    {"dCoefficient_IAncien", TypeChamp::D},
    {"dCoefficient_INouveau", TypeChamp::D},
    {"dCoefficient_Traitement", TypeChamp::D},
    {"dCoefficient_DemiTraitement", TypeChamp::D},
    {"dCoefficient_IATA", TypeChamp::D},
    {"dCoefficient_IATN", TypeChamp::D},
    {"dCoefficient_INTA", TypeChamp::D},
    {"dCoefficient_INTN", TypeChamp::D},
    {"dCoefficient_TraitementTA", TypeChamp::D},
    {"dCoefficient_TraitementTN", TypeChamp::D},
    {"dCoefficient_CPA", TypeChamp::D},
    {"dCoefficient_CPAH", TypeChamp::D},
    {"iNBJ_PresenceIATA", TypeChamp::I16},
    {"iNBJ_PresenceIATN", TypeChamp::I16},
    {"iNBJ_PresenceINTA", TypeChamp::I16},
    {"iNBJ_PresenceINTN", TypeChamp::I16},
    {"iNBJ_Presence_Total", TypeChamp::I16},
    {"iNBJ_PresenceA", TypeChamp::I16},
    {"iNBJ_PresenceN", TypeChamp::I16},
    {"iNBJ_DemiTraitementIATA", TypeChamp::I16},
    {"iNBJ_DemiTraitementIATN", TypeChamp::I16},
    {"iNBJ_DemiTraitementINTA", TypeChamp::I16},
    {"iNBJ_DemiTraitementINTN", TypeChamp::I16},
    {"iNBJ_DemiTraitement_Total", TypeChamp::I16},
    {"iNBJ_DemiTraitementA", TypeChamp::I16},
    {"iNBJ_DemiTraitementN", TypeChamp::I16},
    {"iNBJ_CPAIATA", TypeChamp::I16},
    {"iNBJ_CPAIATN", TypeChamp::I16},
    {"iNBJ_CPAINTA", TypeChamp::I16},
    {"iNBJ_CPAINTN", TypeChamp::I16},
    {"iNBJ_CPA_Total", TypeChamp::I16},
    {"iNBJ_CPAA", TypeChamp::I16},
    {"iNBJ_CPAN", TypeChamp::I16},
    {"iNBJ_CFAIATA", TypeChamp::I16},
    {"iNBJ_CFAIATN", TypeChamp::I16},
    {"iNBJ_CFAINTA", TypeChamp::I16},
    {"iNBJ_CFAINTN", TypeChamp::I16},
    {"iNBJ_CFA_Total", TypeChamp::I16},
    {"iNBJ_CFAA", TypeChamp::I16},
    {"iNBJ_CFAN", TypeChamp::I16},
    {"iNBJ_DispoOfficeIATA", TypeChamp::I16},
    {"iNBJ_DispoOfficeIATN", TypeChamp::I16},
    {"iNBJ_DispoOfficeINTA", TypeChamp::I16},
    {"iNBJ_DispoOfficeINTN", TypeChamp::I16},
    {"iNBJ_DispoOffice_Total", TypeChamp::I16},
    {"iNBJ_DispoOfficeA", TypeChamp::I16},
    {"iNBJ_DispoOfficeN", TypeChamp::I16},
    {"iNBJ_CongeSpecialIATA", TypeChamp::I16},
    {"iNBJ_CongeSpecialIATN", TypeChamp::I16},
    {"iNBJ_CongeSpecialINTA", TypeChamp::I16},
    {"iNBJ_CongeSpecialINTN", TypeChamp::I16},
    {"iNBJ_CongeSpecial_Total", TypeChamp::I16},
    {"iNBJ_CongeFormationIATA", TypeChamp::I16},
    {"iNBJ_CongeFormationIATN", TypeChamp::I16},
    {"iNBJ_CongeFormationINTA", TypeChamp::I16},
    {"iNBJ_CongeFormationINTN", TypeChamp::I16},
    {"iNBJ_CongeFormation_Total", TypeChamp::I16},
    {"iNBJ_FormationA", TypeChamp::I16},
    {"iNBJ_FormationN", TypeChamp::I16},
    {"iNBJ_CongeMaterniteTempsCompletIATA", TypeChamp::I16},
    {"iNBJ_CongeMaterniteTempsCompletIATN", TypeChamp::I16},
    {"iNBJ_CongeMaterniteTempsCompletINTA", TypeChamp::I16},
    {"iNBJ_CongeMaterniteTempsCompletINTN", TypeChamp::I16},
    {"iNBJ_CongeMaterniteTempsComplet_Total", TypeChamp::I16},
    {"iNBJ_CongeMaterniteTempsCompletA", TypeChamp::I16},
    {"iNBJ_CongeMaterniteTempsCompletN", TypeChamp::I16},
    {"iNBJ_90PourCentTraitementIATA", TypeChamp::I16},
    {"iNBJ_90PourCentTraitementIATN", TypeChamp::I16},
    {"iNBJ_90PourCentTraitementINTA", TypeChamp::I16},
    {"iNBJ_90PourCentTraitementINTN", TypeChamp::I16},
    {"iNBJ_90PourCentTraitement_Total", TypeChamp::I16},
    {"iNBJ_2TiersTraitementIATA", TypeChamp::I16},
    {"iNBJ_2TiersTraitementIATN", TypeChamp::I16},
    {"iNBJ_2TiersTraitementINTA", TypeChamp::I16},
    {"iNBJ_2TiersTraitementINTN", TypeChamp::I16},
    {"iNBJ_2TiersTraitement_Total", TypeChamp::I16},
    {"iNBJ_80PourCentTraitementIATA", TypeChamp::I16},
    {"iNBJ_80PourCentTraitementIATN", TypeChamp::I16},
    {"iNBJ_80PourCentTraitementINTA", TypeChamp::I16},
    {"iNBJ_80PourCentTraitementINTN", TypeChamp::I16},
    {"iNBJ_80PourCentTraitement_Total", TypeChamp::I16},
    {"iNBJ_20PourCentTraitementIATA", TypeChamp::I16},
    {"iNBJ_20PourCentTraitementIATN", TypeChamp::I16},
    {"iNBJ_20PourCentTraitementINTA", TypeChamp::I16},
    {"iNBJ_20PourCentTraitementINTN", TypeChamp::I16},
    {"iNBJ_20PourCentTraitement_Total", TypeChamp::I16},
    {"iNBJ_SansTraitementIATA", TypeChamp::I16},
    {"iNBJ_SansTraitementIATN", TypeChamp::I16},
    {"iNBJ_SansTraitementINTA", TypeChamp::I16},
    {"iNBJ_SansTraitementINTN", TypeChamp::I16},
    {"iNBJ_SansTraitement_Total", TypeChamp::I16},
    {"iNBJ_CarenceIATA_Total", TypeChamp::I16},
    {"iNBJ_CarenceIATN_Total", TypeChamp::I16},
    {"iNBJ_CarenceINTA_Total", TypeChamp::I16},
    {"iNBJ_CarenceINTN_Total", TypeChamp::I16},
    {"iNBJ_CarenceIATA_DT", TypeChamp::I16},
    {"iNBJ_CarenceIATN_DT", TypeChamp::I16},
    {"iNBJ_CarenceINTA_DT", TypeChamp::I16},
    {"iNBJ_CarenceINTN_DT", TypeChamp::I16},
    {"iNBJ_TPTNS50IATA", TypeChamp::I16},
    {"iNBJ_TPTNS50IATN", TypeChamp::I16},
    {"iNBJ_TPTNS50INTA", TypeChamp::I16},
    {"iNBJ_TPTNS50INTN", TypeChamp::I16},
    {"iNBJ_TPTNS50_Total", TypeChamp::I16},
    {"iNBJ_TPTNS60IATA", TypeChamp::I16},
    {"iNBJ_TPTNS60IATN", TypeChamp::I16},
    {"iNBJ_TPTNS60INTA", TypeChamp::I16},
    {"iNBJ_TPTNS60INTN", TypeChamp::I16},
    {"iNBJ_TPTNS60_Total", TypeChamp::I16},
    {"iNBJ_TPTNS70IATA", TypeChamp::I16},
    {"iNBJ_TPTNS70IATN", TypeChamp::I16},
    {"iNBJ_TPTNS70INTA", TypeChamp::I16},
    {"iNBJ_TPTNS70INTN", TypeChamp::I16},
    {"iNBJ_TPTNS70_Total", TypeChamp::I16},
    {"iNBJ_TPTNS80IATA", TypeChamp::I16},
    {"iNBJ_TPTNS80IATN", TypeChamp::I16},
    {"iNBJ_TPTNS80INTA", TypeChamp::I16},
    {"iNBJ_TPTNS80INTN", TypeChamp::I16},
    {"iNBJ_TPTNS80_Total", TypeChamp::I16},
    {"iNBJ_TPTNS90IATA", TypeChamp::I16},
    {"iNBJ_TPTNS90IATN", TypeChamp::I16},
    {"iNBJ_TPTNS90INTA", TypeChamp::I16},
    {"iNBJ_TPTNS90INTN", TypeChamp::I16},
    {"iNBJ_TPTNS90_Total", TypeChamp::I16},
    {"iNBJ_DETACHEMENT", TypeChamp::I16},
    {"iNBJ_DETACHEMENT2", TypeChamp::I16},
    {"iNBJ_DETACHEMENT_SANSPENSION", TypeChamp::I16},
    {"iNBJ_AutreAbsence", TypeChamp::I16},
    {"iNBJ_Presence_Total_Rappel", TypeChamp::I16},
    {"iNbJourPresencePeriodePaie", TypeChamp::I16},
    {"iNbJourDecalagePaieMoisPrecN", TypeChamp::I16},
    {"iNbJourDecalagePaieMoisPrecA", TypeChamp::I16},
    {"iNbJourDecalagePaieMoisPrecINTA", TypeChamp::I16},
    {"iNbJourDecalagePaieMoisPrecINTN", TypeChamp::I16},
    {"iNbJourDecalagePaieMoisPrecIATN", TypeChamp::I16},
    {"iNbJourDecalagePaieMoisPrecIATA", TypeChamp::I16},
    {"dSalaire_MensuelPleinIATA", TypeChamp::D},
    {"dSalaire_MensuelPleinIATN", TypeChamp::D},
    {"dSalaire_MensuelPleinINTA", TypeChamp::D},
    {"dSalaire_MensuelPleinINTN", TypeChamp::D},
    {"dSalaire_MensuelReelIATA", TypeChamp::D},
    {"dSalaire_MensuelReelIATN", TypeChamp::D},
    {"dSalaire_MensuelReelINTA", TypeChamp::D},
    {"dSalaire_MensuelReelINTN", TypeChamp::D},
    {"dSalaire_MensuelIATA", TypeChamp::D},
    {"dSalaire_MensuelIATN", TypeChamp::D},
    {"dSalaire_MensuelINTA", TypeChamp::D},
    {"dSalaire_MensuelINTN", TypeChamp::D},
    {"dTauxPAS", TypeChamp::D},
    {"sTypeBareme", TypeChamp::S},
    {"bContratCourt", TypeChamp::B},
    {"bUtiliseTauxNeutre", TypeChamp::B},
    {"bCollectiviteUtilisePrefigurationPAS", TypeChamp::B},
    {"bTauxPasValide", TypeChamp::B},
    {"sDateValiditeDebutPas", TypeChamp::S},
    {"sDateValiditeFinPas", TypeChamp::S},
    {"dMontantBase_PAS", TypeChamp::D},
    {"dMontantBaseDejaCotise_PAS", TypeChamp::D},
};

// The pay line record, every field in its order.
const ChampAttendu kChampsRubrique[] = {
    {"lIdFiche", TypeChamp::I32},
    {"lIdRubrique", TypeChamp::I32},
    {"lIdTaux", TypeChamp::I32},
    {"lIdValeurBase", TypeChamp::I32},
    {"sValeurBase", TypeChamp::S},
    {"lIdCoeffBase", TypeChamp::I32},
    {"sCoeffBase", TypeChamp::S},
    {"lIdValeurTauxSalarial", TypeChamp::I32},
    {"sValeurTauxSalarial", TypeChamp::S},
    {"lIdValeurTauxPatronal", TypeChamp::I32},
    {"sValeurTauxPatronal", TypeChamp::S},
    {"sDesignation", TypeChamp::S},
    {"dBase", TypeChamp::D},
    {"dTauxSalarial", TypeChamp::D},
    {"dMontantSalarial", TypeChamp::D},
    {"dTauxPatronal", TypeChamp::D},
    {"dMontantPatronal", TypeChamp::D},
    {"dMontantSalarialRub", TypeChamp::D},
    {"dMontantPatronalRub", TypeChamp::D},
    {"rsIJ", TypeChamp::RS},
    {"lIdOrganisme", TypeChamp::I32},
    {"sCodeRubrique", TypeChamp::S},
    {"rsRetenueALaSource", TypeChamp::RS},
    {"dValeurCoefficient", TypeChamp::D},
    {"bRappelAuto", TypeChamp::B},
    {"sTypeRubrique", TypeChamp::S},
    {"rsRetenueALaSourceNouvelleMethode", TypeChamp::RS},
    {"dMtIndemniteCompensationCSG_MoisSuiv", TypeChamp::D},
    {"dCoefficientVariationTempsCompensationCSG", TypeChamp::D},
    {"rsPrelevementSourceElus", TypeChamp::RS},
    {"dMontantSalarialNonProratise", TypeChamp::D},
};

// The preparation table, in its order: name and handler.
const NomHandler kPreparationNouv[] = {
    {"COEFFICIENT_INDICE", "CalculCoefficientUtilisationIndice"},
    {"COEFFICIENT_TRAITEMENT", "CalculCoefficientTraitement"},
    {"NBRE_JOUR_PRESENCE", "CalculNombreJourPresence"},
    {"SALAIRE_BASE_HS", "CalculSalaireBaseHS"},
    {"NBRE_JOUR_DEMI_TRAITEMENT", "CalculNombreJourDemiTraitement_NouvelleGestion"},
    {"NBRE_JOUR_CPA", "CalculNombreJourCPA_NouvelleGestion"},
    {"NBRE_JOUR_CFA", "CalculNombreJourCFA_NouvelleGestion"},
    {"NBRE_JOUR_DETACHEMENT", "CalculNombreJourDetachement_NouvelleGestion"},
    {"NBRE_JOUR_DISPONIBILITE_OFFICE", "CalculNombreJourDispoOffice_NouvelleGestion"},
    {"NBRE_JOUR_FORMATION", "CalculNombreJourFormation_NouvelleGestion"},
    {"NBRE_JOUR_AUTREABSENCE", "CalculNombreJourAutresAbsences_NouvelleGestion"},
    {"NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", "CalculNombreJourCongeMaternite_NouvelleGestion"},
    {"NBRE_JOUR_DETACHEMENT_SANS_PENSION", "CalculNombreJourDetachementSansPension_NouvelleGestion"},
    {"NBRE_JOUR_90POURCENT_TRAITEMENT", "CalculNombreJourMaintienTraitement"},
    {"NBRE_JOUR_2TIERS_TRAITEMENT", "CalculNombreJourMaintienTraitement"},
    {"NBRE_JOUR_MALADIE_SANS_TRAITEMENT", "CalculNombreJourMaintienTraitement"},
    {"NBRE_JOUR_TPT_NON_SUBROGE", "CalculNombreJourTptNonSubroge"},
};

// The calculation table, in its order: name and handler (for the two-way rows, the
// handler of the default branch).
const NomHandler kCalculNouv[] = {
    {"MONTANT FIXE", "CalculRubrique_MontantFixe"},
    {"MONTANT FIXE ANNUEL", "CalculRubrique_MontantFixeAnnuel"},
    {"BASE x TAUX", "CalculRubrique_BaseTaux"},
    {"BASE / TAUX", "CalculRubrique_BaseDivTaux"},
    {"TRAITEMENT HORAIRE MOIS", "CalculRubrique_TraitementHoraireMois"},
    {"TRAITEMENT INDICIAIRE MOIS", "CalculRubrique_TraitementIndiciaireMois"},
    {"TRAITEMENT INDICIAIRE MOIS PRECEDENT", "CalculRubrique_TraitementIndiciaireMoisPrecedent"},
    {"TRAITEMENT INDICIAIRE ELUS", "CalculRubrique_TraitementIndiciaireElus"},
    {"TRAITEMENT FORFAITAIRE ELUS", "CalculRubrique_TraitementForfaitaireElus"},
    {"DEMI TRAITEMENT INDICIAIRE", "CalculRubrique_DemiTraitementIndiciaire"},
    {"ALLOCATION COMPLEMENTAIRE MALADIE", "CalculRubrique_AllocationComplementaireMaladie"},
    {"ALLOCATION COMPLEMENTAIRE MALADIE NBI", "CalculRubrique_AllocationComplementaireMaladieNbi"},
    {"BONIFICIATION INDICIAIRE", "CalculRubrique_BonificationIndiciaire"},
    {"DEMI TRAITEMENT BONIFICATION", "CalculRubrique_DemiTraitementBonification"},
    {"INDEMNITE DE RESIDENCE", "CalculRubrique_IndemniteResidence"},
    {"INDEMNITE COORDINATION (IND RES)", "CalculRubrique_IndemniteCoordination"},
    {"SUPPLEMENT FAMILIAL", "CalculRubrique_SupplementFamilial"},
    {"CPA", "CalculRubrique_CPA"},
    {"CFA", "CalculRubrique_CFA"},
    {"HEURES COMPLEMENTAIRES DU MOIS", "CalculRubrique_HeuresComplementaires"},
    {"HEURES COMPLEMENTAIRES DU MOIS PREC.", "CalculRubrique_HeuresComplementairesPrec"},
    {"HEURES SUPP. < 14 HEURES DU MOIS", "CalculRubrique_HS_Moins14"},
    {"HEURES SUPP. < 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_Moins14Prec"},
    {"HEURES SUPP. > 14 HEURES DU MOIS", "CalculRubrique_HS_Plus14"},
    {"HEURES SUPP. > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_Plus14Prec"},
    {"HEURES SUPP. NUITS DU MOIS", "CalculRubrique_HS_Nuit"},
    {"HEURES SUPP. NUITS DU MOIS PREC.", "CalculRubrique_HS_NuitPrec"},
    {"HEURES SUPP. NUITS > 14 HEURES DU MOIS", "CalculRubrique_HS_NuitFeriePlus14"},
    {"HEURES SUPP. FERIES > 14 HEURES DU MOIS", "CalculRubrique_HS_NuitFeriePlus14"},
    {"HEURES SUPP. NUITS > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_NuitFeriePlus14Prec"},
    {"HEURES SUPP. FERIES > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_NuitFeriePlus14Prec"},
    {"HEURES SUPP. FERIES DU MOIS", "CalculRubrique_HS_Ferie"},
    {"HEURES SUPP. FERIES DU MOIS PREC.", "CalculRubrique_HS_FeriePrec"},
    {"PRIME INFORMATIQUE", "CalculRubrique_PrimeInformatique"},
    {"FONDS DE SOLIDARITE", "CalculRubrique_FondsSolidarite"},
    {"CREDIT MUNICIPAL", "CalculRubrique_CreditMunicipal"},
    {"RETENUE A LA SOURCE", "CalculRubrique_Retenue_a_la_source"},
    {"RETENUE A LA SOURCE NOUVELLE METHODE", "CalculRubrique_Retenue_a_la_source_NouvelleMethode"},
    {"CNRACL Rétroactive", "CalculRubrique_CnraclRetroactive"},
    {"TAXE SUR SALAIRE TAUX 1", "CalculRubrique_TaxeSalaire_Taux1"},
    {"TAXE SUR SALAIRE TAUX 2", "CalculRubrique_TaxeSalaire_Taux2"},
    {"INDEMNITES JOURNALIERES", "CalculRubrique_Indemnites_journalieres"},
    {"INDEMNITES JOURNALIERES NON SUBROGEES", "CalculRubrique_Indemnites_journalieres"},
    {"GREVE", "CalculRubrique_Greve"},
    {"COMPLEMENT DIFFERENTIEL 35 H", "CalculRubrique_ComplementDifferentiel35H"},
    {"IAT", "CalculRubrique_Iat"},
    {"INDEMNITE KILOMETRIQUE", "CalculRubrique_IndemniteKilometrique"},
    {"SUJETIONS SPECIALES", "CalculRubrique_SujetionsSpeciales"},
    {"INDEMNITE DIFFERENTIELLE", "CalculRubrique_Indemnite_Differentielle_Nouv"},
    {"INDEMNITE DIFFERENTIELLE MAYOTTE", "CalculRubrique_Indemnite_Differentielle_Mayotte"},
    {"INDICE DE REFERENCE", "CalculRubrique_Indice_Reference"},
    {"INDICE DE REFERENCE - CAS", "CalculRubrique_Indice_Reference_CAS"},
    {"TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple"},
    {"BASE PRORATISEE SELON NB JOURS / 30 (A DEDUIRE)", "CalculRubrique_BaseProrata30ADeduire"},
    {"BASE PRORATISEE SELON NB JOURS / 30", "CalculRubrique_BaseProrata30"},
    {"GREVE MOIS PRECEDENT", "CalculRubrique_Greve"},
    {"ALLOCATION COMPLEMENTAIRE", "CalculRubrique_DemiTraitementIndiciaire"},
    {"ALLOCATION COMPLEMENTAIRE BONIFICATION", "CalculRubrique_DemiTraitementBonification"},
    {"MGEN", "CalculRubrique_Mgen"},
    {"SUPPLEMENT FAMILIAL IC", "CalculRubrique_SupplementFamilialIC"},
    {"REDUCTION SUR HS", "CalculRubrique_ReductionHS"},
    {"RAPPEL REDUCTION SUR HS", "CalculRubrique_RappelReductionHS"},
    {"TRAITEMENT INDICIAIRE ELUS PRECEDENT", "CalculRubrique_TraitementIndiciaireElusPrecedent"},
    {"TRAITEMENT BASE PARTICULIER", "CalculRubrique_TraitementBaseParticulier"},
    {"GIPA", "CalculRubrique_Gipa"},
    {"BASE x TAUX (CHOIX)", "CalculRubrique_BaseTauxChoix"},
    {"BASE x POURCENTAGE SMIC", "CalculRubrique_BaseTauxSmic"},
    {"ALLOCATION FORMATION", "CalculRubrique_AllocationFormation"},
    {"REDUCTION FILLON", "CalculRubrique_ReductionFillon"},
    {"REDUCTION FILLON (> 19 AGENTS)", "CalculRubrique_ReductionFillon"},
    {"TRAITEMENT INDICIAIRE ELUS MOIS", "CalculRubrique_TraitementIndiciaireElusMois"},
    {"TRAITEMENT FORFAITAIRE ELUS MOIS", "CalculRubrique_TraitementForfaitaireElusMois"},
    {"TRAITEMENT INDICIAIRE ELUS PRECEDENT MOIS", "CalculRubrique_TraitementIndiciaireElusPrecedentMois"},
    {"MGEN (-30 ans)", "CalculRubrique_Mgen"},
    {"INDICE DE REFERENCE - CAS COMMUNAL", "CalculRubrique_Indice_Reference_CAS_Communal"},
    {"INDEMNITE DE FORMATION", "CalculRubrique_IndemniteFormation"},
    {"MONTANT REFERENCE", "CalculRubrique_MontantReference"},
    {"REVERSEMENT SFT", "CalculRubrique_ReversementSFT"},
    {"TRAITEMENT JOURNALIER SMIC", "CalculRubrique_TraitementJournalierSmic"},
    {"IRF", "CalculRubrique_Irf"},
    {"IPF", "CalculRubrique_Ipf"},
    {"IFSE (RIFSEEP)", "CalculRubrique_Ifse"},
    {"COMPLEMENT INDEMNITAIRE ANNUEL (RIFSEEP)", "CalculRubrique_Cia"},
    {"TRAITEMENT INDICIAIRE ELUS ECRETE", "CalculRubrique_TraitementIndiciaireElusEcrete"},
    {"INDEMNITE TRANSPORT CORSE", "CalculRubrique_Indemnite_transport_Corse"},
    {"EXONERATION ZRR", "CalculRubrique_ExonerationZrr"},
    {"TRAITEMENT INDICIAIRE JOURNALIER", "CalculRubrique_Traitement_Indiciaire_Journalier"},
    {"MAINTIEN SALAIRE 90%", "CalculRubrique_MaintienSalaire"},
    {"MAINTIEN SALAIRE 2/3", "CalculRubrique_MaintienSalaire"},
    {"CONGES PAYES", "CalculRubrique_CongesPayes"},
    {"RETENUE A LA SOURCE FRONTALIER", "CalculRubrique_Imposition_a_la_source_Frontalier"},
    {"TEMPS PARTIEL THERAPEUTIQUE NON SUBROGE", "CalculRubrique_TptNonSubroge"},
    {"CARENCE", "CalculRubrique_Carence"},
    {"CARENCE MOIS PRECEDENT", "CalculRubrique_Carence"},
    {"COMPENSATION HAUSSE CSG", "CalculRubrique_CompensationHausseCsg"},
    {"RETENUE CONGES PAYES", "CalculRubrique_RetenueCongesPayes"},
    {"ARBITRAGE CONGES PAYES", "CalculRubrique_ArbitrageCongesPayes"},
    {"DEGRESSIVITE", "CalculRubrique_Degressivite"},
    {"REDUCTION SUR CSG DED. CHOMAGE", "CalculRubrique_ReductionCsgChomage"},
    {"REDUCTION SUR CSG/RDS NON DED. CHOMAGE", "CalculRubrique_ReductionCsgChomage"},
};

const char* const kCalculHisto[] = {
    "ALLOCATION COMPLEMENTAIRE",
    "ALLOCATION COMPLEMENTAIRE BONIFICATION",
    "ALLOCATION FORMATION",
    "ASSIETTE URSSAF APPRENTI",
    "BASE CDG/CNFPT REGIME GENERAL",
    "BASE CDG/CNFPT REGIME SPECIAL",
    "BASE PRORATISEE SELON NB JOURS / 30",
    "BASE PRORATISEE SELON NB JOURS / 30 (A DEDUIRE)",
    "BASE URSSAF TOTALITE EXONEREE REGIME GENERAL",
    "BASE URSSAF TOTALITE EXONEREE REGIME SPECIAL",
    "BASE URSSAF TOTALITE REGIME GENERAL",
    "BASE URSSAF TOTALITE REGIME SPECIAL",
    "BASE URSSAF TRANCHE A REGIME GENERAL",
    "BASE URSSAF TRANCHE A REGIME SPECIAL",
    "BASE x POURCENTAGE SMIC",
    "BASE x TAUX",
    "BASE x TAUX (CHOIX)",
    "BONIFICIATION INDICIAIRE",
    "CFA",
    "CNRACL Rétroactive",
    "COMPLEMENT DIFFERENTIEL 35 H",
    "CPA",
    "CREDIT MUNICIPAL",
    "DEMI TRAITEMENT BONIFICATION",
    "DEMI TRAITEMENT INDICIAIRE",
    "FONDS DE SOLIDARITE",
    "GIPA",
    "GREVE",
    "GREVE INDEMNITE RESIDENCE",
    "GREVE MOIS PRECEDENT",
    "GREVE TRAITEMENT",
    "HEURES COMPLEMENTAIRES DU MOIS",
    "HEURES COMPLEMENTAIRES DU MOIS PREC.",
    "HEURES SUPP. < 14 HEURES DU MOIS",
    "HEURES SUPP. < 14 HEURES DU MOIS PREC.",
    "HEURES SUPP. > 14 HEURES DU MOIS",
    "HEURES SUPP. > 14 HEURES DU MOIS PREC.",
    "HEURES SUPP. FERIES > 14 HEURES DU MOIS",
    "HEURES SUPP. FERIES > 14 HEURES DU MOIS PREC.",
    "HEURES SUPP. FERIES DU MOIS",
    "HEURES SUPP. FERIES DU MOIS PREC.",
    "HEURES SUPP. NUITS > 14 HEURES DU MOIS",
    "HEURES SUPP. NUITS > 14 HEURES DU MOIS PREC.",
    "HEURES SUPP. NUITS DU MOIS",
    "HEURES SUPP. NUITS DU MOIS PREC.",
    "IAT",
    "INDEMNITE COORDINATION (IND RES)",
    "INDEMNITE DE FORMATION",
    "INDEMNITE DE RESIDENCE",
    "INDEMNITE DIFFERENTIELLE",
    "INDEMNITE KILOMETRIQUE",
    "INDEMNITES JOURNALIERES",
    "INDICE DE REFERENCE",
    "INDICE DE REFERENCE - CAS",
    "INDICE DE REFERENCE - CAS COMMUNAL",
    "MGEN",
    "MGEN (-30 ans)",
    "MONTANT FIXE",
    "MONTANT FIXE ANNUEL",
    "MONTANT REFERENCE",
    "PRIME INFORMATIQUE",
    "RAPPEL REDUCTION SUR HS",
    "REDUCTION FILLON",
    "REDUCTION FILLON (> 19 AGENTS)",
    "REDUCTION SUR HS",
    "RETENUE A LA SOURCE",
    "RETENUE A LA SOURCE NOUVELLE METHODE",
    "SUJETIONS SPECIALES",
    "SUPPLEMENT FAMILIAL",
    "SUPPLEMENT FAMILIAL IC",
    "TAXE SUR SALAIRE TAUX 1",
    "TAXE SUR SALAIRE TAUX 2",
    "TAXE SUR SALAIRE TAUX Z",
    "TRAITEMENT BASE PARTICULIER",
    "TRAITEMENT FORFAITAIRE ELUS",
    "TRAITEMENT INDICIAIRE ELUS",
    "TRAITEMENT INDICIAIRE ELUS MOIS",
    "TRAITEMENT INDICIAIRE ELUS PRECEDENT",
    "TRAITEMENT INDICIAIRE ELUS PRECEDENT MOIS",
    "TRAITEMENT INDICIAIRE HEBDO MULTIPLE",
    "TRAITEMENT INDICIAIRE MOIS",
    "TRAITEMENT INDICIAIRE MOIS PRECEDENT",
};

const char* const kInconnusHisto[] = {
    "ALLOCATION COMPLEMENTAIRE MALADIE",
    "ALLOCATION COMPLEMENTAIRE MALADIE NBI",
    "ARBITRAGE CONGES PAYES",
    "BASE / TAUX",
    "CARENCE",
    "CARENCE MOIS PRECEDENT",
    "COMPENSATION HAUSSE CSG",
    "COMPLEMENT INDEMNITAIRE ANNUEL (RIFSEEP)",
    "CONGES PAYES",
    "DEGRESSIVITE",
    "EXONERATION ZRR",
    "IFSE (RIFSEEP)",
    "INDEMNITE DIFFERENTIELLE MAYOTTE",
    "INDEMNITE TRANSPORT CORSE",
    "INDEMNITES JOURNALIERES NON SUBROGEES",
    "IPF",
    "IRF",
    "MAINTIEN SALAIRE 2/3",
    "MAINTIEN SALAIRE 90%",
    "REDUCTION SUR CSG DED. CHOMAGE",
    "REDUCTION SUR CSG/RDS NON DED. CHOMAGE",
    "RETENUE A LA SOURCE FRONTALIER",
    "RETENUE CONGES PAYES",
    "REVERSEMENT SFT",
    "TEMPS PARTIEL THERAPEUTIQUE NON SUBROGE",
    "TRAITEMENT FORFAITAIRE ELUS MOIS",
    "TRAITEMENT HORAIRE MOIS",
    "TRAITEMENT INDICIAIRE ELUS ECRETE",
    "TRAITEMENT INDICIAIRE JOURNALIER",
    "TRAITEMENT JOURNALIER SMIC",
};

const char* const kPreparationHisto[] = {
    "COEFFICIENT_INDICE",
    "COEFFICIENT_TRAITEMENT",
    "NBRE_JOUR_PRESENCE",
    "NBRE_JOUR_DEMI_TRAITEMENT",
    "NBRE_JOUR_CPA",
    "NBRE_JOUR_CFA",
    "NBRE_JOUR_DETACHEMENT",
    "NBRE_JOUR_DISPONIBILITE_OFFICE",
    "NBRE_JOUR_FORMATION",
    "NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET",
    "NBRE_JOUR_AUTREABSENCE",
    "SALAIRE_BASE_HS",
};

const char* const kSansEffet[] = {
    "ASSIETTE URSSAF APPRENTI",
    "BASE CDG/CNFPT REGIME GENERAL",
    "BASE CDG/CNFPT REGIME SPECIAL",
    "BASE URSSAF TOTALITE EXONEREE REGIME GENERAL",
    "BASE URSSAF TOTALITE EXONEREE REGIME SPECIAL",
    "BASE URSSAF TOTALITE REGIME GENERAL",
    "BASE URSSAF TOTALITE REGIME SPECIAL",
    "BASE URSSAF TRANCHE A REGIME GENERAL",
    "BASE URSSAF TRANCHE A REGIME SPECIAL",
    "GREVE INDEMNITE RESIDENCE",
    "GREVE TRAITEMENT",
    "TAXE SUR SALAIRE TAUX Z",
};

// ---- The records ----------------------------------------------------------------------------

template <typename R, std::size_t N>
void VerifieChamps(const ChampAttendu (&attendus)[N]) {
  const auto champs = Champs<R>();
  ASSERT_EQ(champs.size(), N);
  for (std::size_t i = 0; i < N; ++i) {
    EXPECT_STREQ(champs[i].nom, attendus[i].nom) << "place " << i;
    EXPECT_EQ(champs[i].type, attendus[i].type) << attendus[i].nom;
  }
}

TEST(FrameReviewTest, PayLineRecordHasEveryFieldInOrderWithItsType) {
  VerifieChamps<SalarieCalculRubrique>(kChampsRubrique);
}

TEST(FrameReviewTest, EmployeeRecordHasEveryFieldInOrderWithItsType) {
  VerifieChamps<VarCalculSalarie>(kChampsSalarie);
}

// Every field of a new record: 0, empty, false, no source.
template <typename R>
void VerifieDefauts() {
  const R r{};
  for (const auto& c : Champs<R>()) {
    std::visit(
        [&](auto membre) {
          using T = std::remove_cvref_t<decltype(r.*membre)>;
          if constexpr (std::is_same_v<T, double>) {
            EXPECT_EQ(r.*membre, 0.0) << c.nom;
          } else if constexpr (std::is_same_v<T, std::string>) {
            EXPECT_EQ(r.*membre, "") << c.nom;
          } else if constexpr (std::is_same_v<T, bool>) {
            EXPECT_FALSE(r.*membre) << c.nom;
          } else if constexpr (std::is_same_v<T, RsRef>) {
            EXPECT_EQ(r.*membre, nullptr) << c.nom;
          } else {
            EXPECT_EQ((r.*membre).value(), 0) << c.nom;
          }
        },
        c.membre);
  }
}

TEST(FrameReviewTest, EveryFieldOfANewRecordIsZeroEmptyFalseOrNoSource) {
  VerifieDefauts<SalarieCalculRubrique>();
  VerifieDefauts<VarCalculSalarie>();
}

// ---- The current engine's tables ------------------------------------------------------------

using CalcNouv = AppelCalcul<MethodeCalculG_Nouv>;
using CalcHisto = AppelCalcul<MethodeCalculG>;

TEST(FrameReviewTest, PreparationTableOfTheCurrentEngineRowByRow) {
  const auto table = TablePreparationNouv();
  const std::size_t n = std::size(kPreparationNouv);
  ASSERT_EQ(n, 17u);
  ASSERT_EQ(table.size(), n);
  for (std::size_t i = 0; i < n; ++i) {
    EXPECT_STREQ(table[i].nom, kPreparationNouv[i].nom) << i;
    EXPECT_STREQ(table[i].handler, kPreparationNouv[i].handler) << kPreparationNouv[i].nom;
    EXPECT_NE(table[i].executer, nullptr) << kPreparationNouv[i].nom;
  }
}

TEST(FrameReviewTest, CalculationTableOfTheCurrentEngineRowByRowThenTheTwelveWithNoEffect) {
  const auto table = TableCalculNouv();
  const std::size_t n = std::size(kCalculNouv);
  ASSERT_EQ(n, 100u);
  ASSERT_EQ(table.size(), n + std::size(kSansEffet));
  for (std::size_t i = 0; i < n; ++i) {
    EXPECT_STREQ(table[i].nom, kCalculNouv[i].nom) << i;
    EXPECT_STREQ(table[i].handler, kCalculNouv[i].handler) << kCalculNouv[i].nom;
    EXPECT_NE(table[i].executer, nullptr) << kCalculNouv[i].nom;
    EXPECT_NE(table[i].executer, &SansEffet<CalcNouv>) << kCalculNouv[i].nom;
  }
  for (std::size_t i = 0; i < std::size(kSansEffet); ++i) {
    EXPECT_STREQ(table[n + i].nom, kSansEffet[i]);
    EXPECT_EQ(table[n + i].executer, &SansEffet<CalcNouv>) << kSansEffet[i];
  }
  std::set<std::string> vus;
  for (const auto& l : table) EXPECT_TRUE(vus.insert(l.nom).second) << "twice: " << l.nom;
}

SalarieCalculRubrique LigneDeLHote() {
  SalarieCalculRubrique r;
  r.lIdFiche = 3;
  r.sDesignation = "Ligne";
  r.dBase = 1500.25;
  r.dTauxSalarial = 9.94;
  r.dMontantSalarial = -149.12;
  r.dTauxPatronal = 30.65;
  r.dMontantPatronal = 459.83;
  r.dValeurCoefficient = 0.5;
  r.sCodeRubrique = "CNRDETACH";
  return r;
}

VarCalculSalarie SalarieDeLHote() {
  VarCalculSalarie s;
  s.sTypeModele = "HORAIR";
  s.iNBJ_DETACHEMENT = 10;
  s.iNBJ_DETACHEMENT2 = 20;
  s.iNBJ_Presence_Total = 30;
  s.dIndiceMajoreM = 352;
  return s;
}

TEST(FrameReviewTest, NamesWithNoEffectLeaveBothRecordsAndGiveTrue) {
  MethodeCalculG_Nouv m;
  for (const char* nom : kSansEffet) {
    VarCalculSalarie s = SalarieDeLHote();
    SalarieCalculRubrique r = LigneDeLHote();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneDeLHote())) << nom;
    EXPECT_TRUE(MemesChamps(s, SalarieDeLHote())) << nom;
  }
}

TEST(FrameReviewTest, NearMissesOfTableNamesMatchNothing) {
  MethodeCalculG_Nouv m;
  for (const char* nom :
       {"", " ", "BASE X TAUX", "BASE x TAUX ", "base x taux", "BASE  x TAUX",
        "CNRACL Retroactive", "CNRACL RÉTROACTIVE", "BONIFICATION INDICIAIRE",
        "REDUCTION SUR CSG/RDS NON DED. CHOMAGE ", "MAINTIEN SALAIRE 90 %", "NBRE_JOUR_PRESENCE",
        "MGEN (-30 ANS)"}) {
    VarCalculSalarie s = SalarieDeLHote();
    SalarieCalculRubrique r = LigneDeLHote();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneDeLHote())) << nom;
    EXPECT_TRUE(MemesChamps(s, SalarieDeLHote())) << nom;
  }
  for (const char* nom : {"", "coefficient_indice", "COEFFICIENT_INDICE ", "MONTANT FIXE",
                          "NBRE_JOUR_TPT_NON_SUBROGE_"}) {
    VarCalculSalarie s = SalarieDeLHote();
    EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
    EXPECT_TRUE(MemesChamps(s, SalarieDeLHote())) << nom;
  }
}

// ---- The detachment test and the model test -------------------------------------------------

TEST(FrameReviewTest, DetachmentTestWantsBothCountsAboveZeroAndOneOfTheEightCodes) {
  const char* const codes[] = {"CNRDETACH", "CNRBONIFDE", "CIVSURCOTP", "CIVSURBONP",
                               "CNRDETC20", "CNRDETCB20", "CIVSURP20",  "CIVSURBP20"};
  VarCalculSalarie s;
  SalarieCalculRubrique r;
  for (const char* code : codes) {
    r.sCodeRubrique = code;
    s.iNBJ_DETACHEMENT = 1;
    s.iNBJ_DETACHEMENT2 = 1;
    EXPECT_TRUE(TestDetachement(s, r)) << code;
    s.iNBJ_DETACHEMENT2 = 0;
    EXPECT_FALSE(TestDetachement(s, r)) << code;
    s.iNBJ_DETACHEMENT = 0;
    s.iNBJ_DETACHEMENT2 = 1;
    EXPECT_FALSE(TestDetachement(s, r)) << code;
    s.iNBJ_DETACHEMENT = -1;
    EXPECT_FALSE(TestDetachement(s, r)) << code;
    s.iNBJ_DETACHEMENT = 5;
    s.iNBJ_DETACHEMENT2 = -5;
    EXPECT_FALSE(TestDetachement(s, r)) << code;
  }
  s.iNBJ_DETACHEMENT = 10;
  s.iNBJ_DETACHEMENT2 = 20;
  for (const char* code : {"", "cnrdetach", "CNRDETACH ", "CNRDETAC", "CNRDETC2", "CIVSURBP2O",
                           "INDCOTRAIT"}) {
    r.sCodeRubrique = code;
    EXPECT_FALSE(TestDetachement(s, r)) << code;
  }
}

TEST(FrameReviewTest, ModelTestIsEqualityWithHORAIR) {
  VarCalculSalarie s;
  s.sTypeModele = "HORAIR";
  EXPECT_TRUE(TestModeleHoraire(s));
  for (const char* t : {"", "horair", "HORAIRE", " HORAIR", "INDTIT", "ELUS"}) {
    s.sTypeModele = t;
    EXPECT_FALSE(TestModeleHoraire(s)) << t;
  }
}

// "BASE x TAUX" through the entry: the coefficient written tells the handler. With the
// detachment handler it is a share of detachment days: 10 / (10 + 20) for the first four
// codes, 20 / (10 + 20) for the four others; the line's own coefficient isn't consulted.
TEST(FrameReviewTest, BaseTauxGoesToTheDetachmentHandlerOnlyWhenTheTestHolds) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.iNBJ_DETACHEMENT = 10;
  s.iNBJ_DETACHEMENT2 = 20;
  SalarieCalculRubrique r;
  r.sCodeRubrique = "CIVSURBONP";
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 10.0 / 30.0);
  r = SalarieCalculRubrique{};
  r.sCodeRubrique = "CIVSURBP20";
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 20.0 / 30.0);
  // One count at 0: the plain handler, whose coefficient is that of the empty designation, 1
  // (the detachment share would have been 0 / 10).
  s.iNBJ_DETACHEMENT2 = 0;
  r = SalarieCalculRubrique{};
  r.sCodeRubrique = "CNRDETC20";
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 1.0);
  // Both counts, another code: the plain handler too.
  s.iNBJ_DETACHEMENT2 = 20;
  r = SalarieCalculRubrique{};
  r.sCodeRubrique = "INDCOTRAIT";
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 1.0);
}

// The sum of the two day counts is 16-bit: 32767 + 1 overflows, the entry traps it.
TEST(FrameReviewTest, AnOverflowInAHandlerGivesFalseAndNothingEscapes) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.iNBJ_DETACHEMENT = 32767;
  s.iNBJ_DETACHEMENT2 = 1;
  SalarieCalculRubrique r;
  r.sCodeRubrique = "CNRDETACH";
  bool b = true;
  EXPECT_NO_THROW(b = m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_FALSE(b);
  // The same line is fine once the sum fits.
  s.iNBJ_DETACHEMENT = 32766;
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_DOUBLE_EQ(r.dValeurCoefficient, 32766.0 / 32767.0);
}

// ---- The historic engine's tables -----------------------------------------------------------

TEST(FrameReviewTest, HistoricTablesHoldTheirTwelveAndEightyTwoNamesInOrder) {
  const auto prep = TablePreparationHisto();
  ASSERT_EQ(prep.size(), std::size(kPreparationHisto));
  for (std::size_t i = 0; i < prep.size(); ++i) EXPECT_STREQ(prep[i].nom, kPreparationHisto[i]);
  const auto calc = TableCalculHisto();
  ASSERT_EQ(std::size(kCalculHisto), 82u);
  ASSERT_EQ(calc.size(), 82u);
  for (std::size_t i = 0; i < calc.size(); ++i) EXPECT_STREQ(calc[i].nom, kCalculHisto[i]);
  // Twelve names do nothing here too.
  for (const auto& l : calc) {
    bool sansEffet = false;
    for (const char* n : kSansEffet) sansEffet = sansEffet || std::string(n) == l.nom;
    EXPECT_EQ(l.executer == &SansEffet<CalcHisto>, sansEffet) << l.nom;
  }
}

TEST(FrameReviewTest, HistoricRoutesBaseTauxAndIndemniteDifferentielleToTheirOldHandlers) {
  for (const auto& l : TableCalculHisto()) {
    if (std::string(l.nom) == "BASE x TAUX") {
      EXPECT_STREQ(l.handler, "CalculRubrique_BaseTaux");
    }
    if (std::string(l.nom) == "INDEMNITE DIFFERENTIELLE") {
      EXPECT_STREQ(l.handler, "CalculRubrique_Indemnite_Differentielle");
    }
  }
  // Every other name of the historic table has the handler of the same name today.
  for (const auto& h : TableCalculHisto()) {
    const std::string nom = h.nom;
    if (nom == "INDEMNITE DIFFERENTIELLE") continue;
    for (const auto& n : TableCalculNouv())
      if (nom == n.nom) {
        EXPECT_STREQ(h.handler, n.handler) << nom;
      }
  }
}

TEST(FrameReviewTest, NamesTheHistoricEngineDoesNotKnowLeaveBothRecords) {
  MethodeCalculG m;
  ASSERT_EQ(std::size(kInconnusHisto), 30u);
  for (const char* nom : kInconnusHisto) {
    VarCalculSalarie s = SalarieDeLHote();
    SalarieCalculRubrique r = LigneDeLHote();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneDeLHote())) << nom;
    EXPECT_TRUE(MemesChamps(s, SalarieDeLHote())) << nom;
  }
  for (const char* nom : kSansEffet) {
    VarCalculSalarie s = SalarieDeLHote();
    SalarieCalculRubrique r = LigneDeLHote();
    EXPECT_TRUE(m.Appel_Methode_Calcul_General(nom, s, r)) << nom;
    EXPECT_TRUE(MemesChamps(r, LigneDeLHote())) << nom;
  }
  for (const char* nom : {"NBRE_JOUR_2TIERS_TRAITEMENT", "NBRE_JOUR_90POURCENT_TRAITEMENT",
                          "NBRE_JOUR_DETACHEMENT_SANS_PENSION",
                          "NBRE_JOUR_MALADIE_SANS_TRAITEMENT", "NBRE_JOUR_TPT_NON_SUBROGE"}) {
    VarCalculSalarie s = SalarieDeLHote();
    EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
    EXPECT_TRUE(MemesChamps(s, SalarieDeLHote())) << nom;
  }
}

// ---- Lookups, through a source that records what is asked of it ----------------------------

class Espion final : public Recordset {
 public:
  explicit Espion(RsRef dedans) : in_(std::move(dedans)) {}
  std::vector<std::string> appels;

  long RecordCount() override { appels.push_back("RecordCount"); return in_->RecordCount(); }
  void MoveFirst() override { appels.push_back("MoveFirst"); in_->MoveFirst(); }
  void MoveNext() override { appels.push_back("MoveNext"); in_->MoveNext(); }
  bool Eof() override { return in_->Eof(); }
  void Filter(const std::string& c) override { appels.push_back("Filter[" + c + "]"); in_->Filter(c); }
  void ClearFilter() override { appels.push_back("ClearFilter"); in_->ClearFilter(); }
  Value Field(const std::string& c) override { return in_->Field(c); }
  void SetField(const std::string& c, const Value& v) override { in_->SetField(c, v); }
  void AddNew() override { in_->AddNew(); }
  std::vector<std::string> Columns() const override { return in_->Columns(); }
  std::vector<std::vector<Value>> Rows() const override { return in_->Rows(); }

  // The filters set, in order.
  std::vector<std::string> Filtres() const {
    std::vector<std::string> f;
    for (const auto& a : appels)
      if (a.rfind("Filter[", 0) == 0) f.push_back(a.substr(7, a.size() - 8));
    return f;
  }

 private:
  RsRef in_;
};

std::shared_ptr<Espion> Espionne(const std::vector<std::string>& colonnes,
                               const std::vector<std::vector<Value>>& lignes) {
  RsRef rs = NouveauRecordset(colonnes);
  for (const auto& ligne : lignes) {
    rs->AddNew();
    for (std::size_t i = 0; i < colonnes.size(); ++i) rs->SetField(colonnes[i], ligne[i]);
  }
  return std::make_shared<Espion>(rs);
}

// The calls of one lookup with this criterion: first row, filter, read, clear.
std::vector<std::string> Lecture(const std::string& critere) {
  return {"RecordCount", "MoveFirst", "Filter[" + critere + "]", "ClearFilter"};
}

TEST(FrameReviewTest, ConstantLookupsUseTheirExactCriteria) {
  MethodeCalculG_Nouv m;
  auto rs = Espionne({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"},
                   {{"TXINDCP", 12.0, 10.0, "T"}, {"NUL", 13.0, Value(), Value()}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "TXINDCP"), 10.0);
  EXPECT_EQ(rs->appels, Lecture("CodeConstante = 'TXINDCP'"));
  // A null value gives 0; a code with no row gives 0.
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "NUL"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "txindcp"), 0.0);

  m.gRsConstantes = rs;
  rs->appels.clear();
  double d = -1;
  std::string t = "x";
  m.RechercheValeurType_Constantes(12, d, t);
  EXPECT_DOUBLE_EQ(d, 10.0);
  EXPECT_EQ(t, "T");
  EXPECT_EQ(rs->appels, Lecture("IdConstante = 12"));
  m.RechercheValeurType_Constantes(13, d, t);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(t, "");
  m.RechercheValeurType_Constantes(99, d, t);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(t, "");

  auto histo = Espionne({"CodeConstante", "Mois", "Valeur"},
                      {{"K", "202402", 1.5}, {"K", "202403", 2.5}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeurConstanteHistorique(histo, "K", "202403"), 2.5);
  EXPECT_EQ(histo->appels, Lecture(" CodeConstante = 'K' And Mois = '202403'"));
}

TEST(FrameReviewTest, RateAndTotalLookupsRoundToTwoPlacesAndPickTheirSide) {
  MethodeCalculG_Nouv m;
  auto taux = Espionne({"CodeTaux", "PartSalariale", "PartPatronale"},
                     {{"URSMAL", 1.005, 13.0}, {"NUL", Value(), 1.0}, {"NEG", -0.125, 0.0}});
  m.gRsTaux = taux;
  // Half away from zero on the decimal value: 1.005 gives 1.01, -0.125 gives -0.13.
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("URSMAL"), 1.01);
  EXPECT_EQ(taux->appels, Lecture("CodeTaux = 'URSMAL'"));
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("NEG"), -0.13);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("NUL"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("ABSENT"), 0.0);

  auto cumuls = Espionne({"CodeCumul", "PartSalariale", "PartPatronale", "PartSalarialeRappel",
                        "PartPatronaleRappel"},
                       {{"BASE", 2.675, 1.115, 0.045, -0.005}, {"NUL", Value(), Value(), Value(), Value()}});
  m.gRsCumuls = cumuls;
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", "S"), 2.68);
  EXPECT_EQ(cumuls->appels, Lecture("CodeCumul = 'BASE'"));
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", "P"), 1.12);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", "s"), 1.12);  // only "S" is the employee's
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", ""), 1.12);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("NUL", "S"), 0.0);
  cumuls->appels.clear();
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulRappel("BASE", "S"), 0.05);
  EXPECT_EQ(cumuls->appels, Lecture("CodeCumul = 'BASE'"));
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulRappel("BASE", "P"), -0.01);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulRappel("NUL", "P"), 0.0);
}

TEST(FrameReviewTest, EmptySourcesGiveTheDefaultWithNoMoveFirstAndNoFilter) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2024";
  auto vide = [](std::vector<std::string> c) { return Espionne(c, {}); };
  auto constantes = vide({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  auto taux = vide({"CodeTaux", "PartSalariale"});
  auto cumuls = vide({"CodeCumul", "PartSalariale", "PartPatronale", "PartSalarialeRappel",
                      "PartPatronaleRappel"});
  auto variables = vide({"CodeVariable", "Valeur", "DateEffet"});
  auto fixes = vide({"Mois", "Point", "IndMinRemuneration"});
  auto histoSal = vide({"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale",
                        "PartPatronale"});
  auto paie = vide({"IDSALARIE", "Mois", "HeuresMois"});
  m.gRsConstantes = constantes;
  m.gRsTaux = taux;
  m.gRsCumuls = cumuls;
  m.gRsConstantesFixesHistorique = fixes;
  m.gRsCumulsHistoriqueSal = histoSal;
  double d = -1, d2 = -1;
  std::string t = "x";
  EXPECT_EQ(m.dRechercheValeur_Constantes(constantes, "A"), 0.0);
  m.RechercheValeurType_Constantes(1, d, t);
  EXPECT_EQ(d, 0.0);
  EXPECT_EQ(t, "");
  EXPECT_EQ(m.dRechercheValeurConstanteHistorique(constantes, "A", "202401"), 0.0);
  EXPECT_EQ(m.dRechercheValeurTaux("A"), 0.0);
  EXPECT_EQ(m.dRechercheValeurCumul("A", "S"), 0.0);
  EXPECT_EQ(m.dRechercheValeurCumulRappel("A", "S"), 0.0);
  m.RechercheValeursListeCumul("A,B", d, d2);
  EXPECT_EQ(d, 0.0);
  EXPECT_EQ(d2, 0.0);
  EXPECT_EQ(m.dRechercheValeur_Variable(variables, "A", Int16(2)), 0.0);
  EXPECT_EQ(m.dRechercheDate_Variable(variables, "A"), "");
  d = -1;
  EXPECT_EQ(m.dRechercheValeur_VariableBis(variables, "A", d), 0.0);
  EXPECT_EQ(d, 0.0);
  d = -1;
  EXPECT_EQ(m.dRecherchePointMois(1, "", "", d, "202401"), 0.0);
  EXPECT_EQ(d, 0.0);
  d = -1;
  EXPECT_EQ(m.dRechercheValeurCumulHistorique(1, "01/03/2024", "A", d, "", "S", 0), 0.0);
  EXPECT_EQ(d, 0.0);
  EXPECT_EQ(m.dRechercheHeuresMoisHistorique(paie, 1, "01/03/2024"), 0.0);
  d = -1;
  EXPECT_EQ(m.dRecherchePointHistorique(d, "01/03/2024", "-1"), 0.0);
  EXPECT_EQ(d, 0.0);
  d = -1;
  EXPECT_EQ(m.dRechercheIndMinHistorique(d, "01/03/2024", "-1"), 0.0);
  EXPECT_EQ(d, 0.0);
  d = -1;
  EXPECT_EQ(m.dRechercheHistoriqueMois("Point", d), 0.0);
  EXPECT_EQ(d, 0.0);
  for (const auto& e : {constantes, taux, cumuls, variables, fixes, histoSal, paie})
    for (const auto& a : e->appels) {
      EXPECT_NE(a, "MoveFirst");
      EXPECT_EQ(a.rfind("Filter[", 0), std::string::npos) << a;
    }
}

TEST(FrameReviewTest, VariableLookupsRoundAtTheGivenPlacesAndReadNullsAsZero) {
  MethodeCalculG_Nouv m;
  auto rs = Espionne({"CodeVariable", "Valeur", "Dateeffet"},
                   {{"H", 2.5, "20240315"}, {"N", -2.5, Value()}, {"R", 1.25, 20240229.0},
                    {"Z", Value(), "20240101"}});
  // No count of places: to the unit, half away from zero.
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "H"), 3.0);
  EXPECT_EQ(rs->appels, Lecture("CodeVariable = 'H'"));
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "N"), -3.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "R", Int16(1)), 1.3);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "R", Int16(2)), 1.25);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "Z", Int16(2)), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "ABSENT", Int16(2)), 0.0);
  rs->appels.clear();
  // DateEffet, whatever the case of the column, as a date text; a null gives the empty text.
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "H"), "15/03/2024");
  EXPECT_EQ(rs->appels, Lecture("CodeVariable = 'H'"));
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "R"), "29/02/2024");
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "N"), "");
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "ABSENT"), "");
  double d = -1;
  rs->appels.clear();
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_VariableBis(rs, "R", d), 1.25);
  EXPECT_DOUBLE_EQ(d, 1.25);
  EXPECT_EQ(rs->appels, Lecture("CodeVariable = 'R'"));
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_VariableBis(rs, "Z", d), 0.0);
  d = -1;
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_VariableBis(rs, "ABSENT", d), 0.0);
}

TEST(FrameReviewTest, ListOfTotalsJoinsTheCodesWithOrAndSumsBothSides) {
  MethodeCalculG_Nouv m;
  auto rs = Espionne({"CodeCumul", "PartSalariale", "PartPatronale"},
                   {{"A", 10.004, 1.0}, {"B", 20.0, Value()}, {"C", 100.0, 100.0}, {"A", 0.5, 0.25}});
  m.gRsCumuls = rs;
  double s = -1, p = -1;
  m.RechercheValeursListeCumul("A,B,X", s, p);
  // Not rounded: 10.004 + 20 + 0.5; 1 + 0 (null) + 0.25.
  EXPECT_DOUBLE_EQ(s, 30.504);
  EXPECT_DOUBLE_EQ(p, 1.25);
  const auto f = rs->Filtres();
  ASSERT_EQ(f.size(), 1u);
  EXPECT_EQ(f[0], "CodeCumul = 'A' Or CodeCumul = 'B' Or CodeCumul = 'X'");
  EXPECT_EQ(rs->appels.back(), "ClearFilter");
  m.RechercheValeursListeCumul("", s, p);
  EXPECT_EQ(s, 0.0);
  EXPECT_EQ(p, 0.0);
  m.RechercheValeursListeCumul("X", s, p);
  EXPECT_EQ(s, 0.0);
  EXPECT_EQ(p, 0.0);
  EXPECT_EQ(rs->RecordCount(), 4);
}

TEST(FrameReviewTest, EmployeeTotalOfAMonthUsesItsKeyAndItsCriterion) {
  MethodeCalculG_Nouv m;
  auto rs = Espionne({"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"},
                   {{7.0, "202402", "BRUT", 3.0, 2100.0, Value()},
                    {7.0, "202312", "BRUT", 3.0, 1900.0, 950.0}});
  m.gRsCumulsHistoriqueSal = rs;
  double d = -1;
  // The 31st of March: the month before is February (key 202402).
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(7, "31/03/2024", "BRUT", d, "", "S", 0), 2100.0);
  EXPECT_EQ(rs->appels, Lecture("IDSALARIE = 7 And Mois = '202402'And CodeCumul = 'BRUT'"));
  // The employer side, a null giving 0.
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(7, "31/03/2024", "BRUT", d, "", "P", 0), 0.0);
  EXPECT_DOUBLE_EQ(d, 0.0);
  rs->appels.clear();
  // By id; January's month before is December of the year before.
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(7, "01/01/2024", "", d, "", "P", 3), 950.0);
  EXPECT_EQ(rs->appels, Lecture("IDSALARIE = 7 And Mois = '202312'And IdCumul = 3"));
  // No row: 0, written into dValeur too.
  d = -1;
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(8, "01/01/2024", "BRUT", d, "", "S", 0), 0.0);
  EXPECT_DOUBLE_EQ(d, 0.0);
}

TEST(FrameReviewTest, HistoryOfStatutoryValuesByMonthKey) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2024";
  auto fixes = Espionne({"Mois", "Point", "IndMinRemuneration", "SmicHor", "HrsMois"},
                      {{"202401", 4.92278, 361.0, 11.65, 151.67},
                       {"202402", 4.92279, 366.0, Value(), Value()},
                       {"202403", 4.9228, 367.0, 11.88, 151.67}});
  m.gRsConstantesFixesHistorique = fixes;
  double d = -1;
  EXPECT_DOUBLE_EQ(m.dRecherchePointMois(1, "", "", d, "202402"), 4.92279);
  EXPECT_DOUBLE_EQ(d, 4.92279);
  EXPECT_EQ(fixes->Filtres().back(), " Mois = '202402'");
  EXPECT_DOUBLE_EQ(m.dRecherchePointHistorique(d, "15/03/2024", "-2"), 4.92278);
  EXPECT_EQ(fixes->Filtres().back(), " Mois = '202401'");
  EXPECT_DOUBLE_EQ(m.dRecherchePointHistorique(d, "31/01/2024", "1"), 4.92279);
  EXPECT_EQ(fixes->Filtres().back(), " Mois = '202402'");
  EXPECT_DOUBLE_EQ(m.dRechercheIndMinHistorique(d, "01/03/2024", "0"), 367.0);
  EXPECT_EQ(fixes->Filtres().back(), " Mois = 202403");
  // No shift given: the month before gPeriodeEncours.
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("IndMinRemuneration", d), 366.0);
  EXPECT_EQ(fixes->Filtres().back(), "Mois = '202402'");
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("SmicHor", d, 0), 11.88);
  EXPECT_EQ(fixes->Filtres().back(), "Mois = '202403'");
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("smichor", d, -2), 11.65);
  // A null column gives 0.
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("SmicHor", d), 0.0);
  // The SMIC of the month before, nulls giving 0; then April, whose month before has values.
  double smic = -1, heures = -1;
  m.dRechercheSmicHistorique(smic, heures);
  EXPECT_EQ(fixes->Filtres().back(), " Mois = 202402");
  EXPECT_DOUBLE_EQ(smic, 0.0);
  EXPECT_DOUBLE_EQ(heures, 0.0);
  m.gPeriodeEncours = "01/04/2024";
  m.dRechercheSmicHistorique(smic, heures);
  EXPECT_EQ(fixes->Filtres().back(), " Mois = 202403");
  EXPECT_DOUBLE_EQ(smic, 11.88);
  EXPECT_DOUBLE_EQ(heures, 151.67);
  EXPECT_EQ(fixes->appels.back(), "ClearFilter");
}

TEST(FrameReviewTest, HoursOfTheMonthBeforeUseABareKey) {
  MethodeCalculG_Nouv m;
  auto paie = Espionne({"IDSALARIE", "Mois", "HeuresMois"},
                     {{1.0, "202402", 151.67}, {1.0, "202312", Value()}});
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(paie, 1, "31/03/2024"), 151.67);
  EXPECT_EQ(paie->Filtres().back(), " Mois = 202402");
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(paie, 1, "15/01/2024"), 0.0);
  EXPECT_EQ(paie->Filtres().back(), " Mois = 202312");
  EXPECT_EQ(paie->appels.back(), "ClearFilter");
}

TEST(FrameReviewTest, ALookupAfterAFaultStillFindsItsRow) {
  MethodeCalculG_Nouv m;
  auto rs = Espionne({"CodeConstante", "Valeur"}, {{"A", "abc"}, {"B", 2.0}});
  EXPECT_THROW(m.dRechercheValeur_Constantes(rs, "A"), Fault);
  // The filter stayed on "A"; the next lookup moves first under it, then replaces it.
  EXPECT_EQ(rs->RecordCount(), 1);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "B"), 2.0);
  EXPECT_EQ(rs->RecordCount(), 2);
}

// A host's own source of situations receives the criterion texts it always has, the
// missing blank before the fourth OR included.
TEST(SituationsHote, CriteriaOfTheSituationsAsTheyWere) {
  auto situations = Espionne({"CodeSituationExceptionnelle", "DateDebutSituationExceptionnelle",
                              "DateFinSituationExceptionnelle", "Quotite"},
                             {{"MI", "01/03/2023", "10/03/2023", Value::Null()},
                              {"DT", "15/03/2023", "20/03/2023", Value::Null()}});
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  VarCalculSalarie s = periode_test::SalarieMoisComplet();
  s.sOccupationPoste = "P";
  s.dTauxPoste = 80;
  s.rsSituationsExceptionnelles = situations;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_DEMI_TRAITEMENT", s));
  const std::vector<std::string> filtres = situations->Filtres();
  const std::string tpt =
      "CodeSituationExceptionnelle = 'MI' OR CodeSituationExceptionnelle = 'M6' OR "
      "CodeSituationExceptionnelle = 'M7'OR CodeSituationExceptionnelle = 'M8' OR "
      "CodeSituationExceptionnelle = 'M9' OR CodeSituationExceptionnelle = 'MV'";
  const std::string demi =
      "CodeSituationExceptionnelle = 'DT' OR CodeSituationExceptionnelle = 'LD' OR "
      "CodeSituationExceptionnelle = 'GD' OR CodeSituationExceptionnelle = 'CD' OR "
      "CodeSituationExceptionnelle = 'DO50'";
  EXPECT_NE(std::find(filtres.begin(), filtres.end(), tpt), filtres.end());
  EXPECT_EQ(filtres.back(), demi);
  // Half pay 15 to 20 March: 6 days, on the new index and hours.
  EXPECT_EQ(s.iNBJ_DemiTraitement_Total.value(), 6);
}

}  // namespace
}  // namespace orvalis
