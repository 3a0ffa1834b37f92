// The operations that a case may call directly, one row each.
//
// The engine's public operations in their public order, then the lookups of reference data,
// the resolvers of the generic pay lines and the numeric and date utilities. A name may have
// one row per engine class (the entry points); a member of the common base serves both.
#include "tools/call_table.h"

#include "absences/montant_brut_mois.h"

namespace orvalis::tools {

namespace appel {

void RefuseJeton(const Json& j, const std::string& lieu, const char* attendu) {
  if (!j.is_string()) return;
  const auto& s = j.get_ref<const std::string&>();
  if (s == "$salarie" || s == "$rubrique" || s == "$absent")
    throw ErreurCas(lieu, "\"" + s + "\" does not stand for a " + attendu + " argument");
}

std::string Signature(const std::string& nom, const std::vector<std::string>& parametres) {
  std::string s = nom + "(";
  for (std::size_t i = 0; i < parametres.size(); ++i) s += (i ? ", " : "") + parametres[i];
  return s + ")";
}

}  // namespace appel

const std::vector<Operation>& TableDesAppels() {
  using N = MethodeCalculG_Nouv;
  using H = MethodeCalculG;
  using M = MoteurCalcul;
  static const std::vector<Operation> kTable = {
      // ---- Public operations of MethodeCalculG_Nouv ----------------------------------------
      Op("CalculPrelevementALaSource_Tauxold", &N::CalculPrelevementALaSource_Tauxold),
      Op("CalculPrelevementALaSource_Taux", &N::CalculPrelevementALaSource_Taux),
      Op("Appel_Methode_Preparation_Calcul_General", &N::Appel_Methode_Preparation_Calcul_General),
      Op("Appel_Methode_Calcul_General", &N::Appel_Methode_Calcul_General),
      Op("CalculCoefficientUtilisationIndice", &N::CalculCoefficientUtilisationIndice),
      Op("CalculCoefficientUtilisationTauxElus", &N::CalculCoefficientUtilisationTauxElus),
      Op("CalculCoefficientTraitement", &N::CalculCoefficientTraitement),
      Op("CalculCoefficientTraitementEnFonctionOccupationPoste",
         &N::CalculCoefficientTraitementEnFonctionOccupationPoste),
      Op("CalculCoefficientDemiTraitement", &N::CalculCoefficientDemiTraitement),
      Op("CalculNombreJourPresence", &N::CalculNombreJourPresence),
      Op("CalculNombreJourPresenceMois", &N::CalculNombreJourPresenceMois),
      Op("CalculNombreJourAutresAbsences", &N::CalculNombreJourAutresAbsences),
      Op("CalculNombreJourAutresAbsences_NouvelleGestion",
         &N::CalculNombreJourAutresAbsences_NouvelleGestion),
      Op("CalculNombreJour_Situation", &N::CalculNombreJour_Situation),
      Op("CalculNombreJourCarence", &N::CalculNombreJourCarence),
      Op("CalculNombreJourCarenceMois", &N::CalculNombreJourCarenceMois),
      Op("CalculNombreJourCarence_Situation", &N::CalculNombreJourCarence_Situation),
      Op("CalculRubrique_BaseTaux", &N::CalculRubrique_BaseTaux),
      Op("CalculRubrique_BaseTaux_Detachement", &N::CalculRubrique_BaseTaux_Detachement),
      Op("CalculRubrique_BaseDivTaux", &N::CalculRubrique_BaseDivTaux),
      Op("dMtIJImposable", &N::dMtIJImposable),
      Op("iNbJoursReelsPeriode", &N::iNbJoursReelsPeriode),
      Op("CalculTauxHoraireMoisEnCours", &N::CalculTauxHoraireMoisEnCours),
      Op("CalculTauxHoraireMoisPrec", &N::CalculTauxHoraireMoisPrec),
      Op("CalculRubrique_Retenue_a_la_source", &N::CalculRubrique_Retenue_a_la_source),
      Op("CalculRubrique_TaxeSalaire_Taux1", &N::CalculRubrique_TaxeSalaire_Taux1),
      Op("CalculRubrique_TaxeSalaire_Taux2", &N::CalculRubrique_TaxeSalaire_Taux2),
      Op("CalculRubrique_Indemnites_journalieres", &N::CalculRubrique_Indemnites_journalieres),
      Op("Calcul_Indemnites_journalieres", &N::Calcul_Indemnites_journalieres),
      Op("Calcul_Indemnites_Journalieres_NouvelleMethode",
         &N::Calcul_Indemnites_Journalieres_NouvelleMethode),
      Op("CalculRubrique_Indemnite_Differentielle", &N::CalculRubrique_Indemnite_Differentielle),
      Op("CalculRubrique_Indemnite_Differentielle_Nouv",
         &N::CalculRubrique_Indemnite_Differentielle_Nouv),
      Op("CalculRubrique_Indemnite_Differentielle_Mayotte",
         &N::CalculRubrique_Indemnite_Differentielle_Mayotte),
      Op("CalculRubrique_Indice_Reference", &N::CalculRubrique_Indice_Reference),
      Op("CalculRubrique_Indice_Reference_CAS", &N::CalculRubrique_Indice_Reference_CAS),
      Op("CalculRubrique_Indice_Reference_CAS_Communal",
         &N::CalculRubrique_Indice_Reference_CAS_Communal),
      Op("CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple",
         &N::CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple),
      Op("dRechercheValeur_Constantes", &M::dRechercheValeur_Constantes),
      Op("RechercheValeurType_Constantes", &M::RechercheValeurType_Constantes),
      Op("dRechercheValeurTaux", &M::dRechercheValeurTaux),
      Op("dRechercheValeurCumul", &M::dRechercheValeurCumul),
      Op("dRechercheValeurCumulRappel", &N::dRechercheValeurCumulRappel),
      Op("dRechercheValeur_Variable", &M::dRechercheValeur_Variable),
      Op("dRechercheDate_Variable", &M::dRechercheDate_Variable),
      // A public operation of the current class only; the historic class lacks it.
      Op("MajDateEnFormatChaine", &MajDateEnFormatChaine, kNouv),
      Op("MajChaineEnFormatDate", &MajChaineEnFormatDate),
      Op("dMontantProratiseSuivantDemiTraitement", &N::dMontantProratiseSuivantDemiTraitement),
      Op("dCoefficientIndemnitaireDemiTraitement", &N::dCoefficientIndemnitaireDemiTraitement),
      Op("CalculRubrique_Gipa", &N::CalculRubrique_Gipa),
      Op("dMontantGIPA", &N::dMontantGIPA),
      Op("CalculRubrique_BaseTauxChoix", &N::CalculRubrique_BaseTauxChoix),
      Op("CalculRubrique_BaseTauxSmic", &N::CalculRubrique_BaseTauxSmic),
      Op("RechercheDonneesPourCalculExonerationAllocFamOuFillon",
         &N::RechercheDonneesPourCalculExonerationAllocFamOuFillon),
      Op("bDeclenchementComplementTauxCotisations", &N::bDeclenchementComplementTauxCotisations),
      Op("CalculRubrique_Indemnite_transport_Corse", &N::CalculRubrique_Indemnite_transport_Corse),
      Op("dBaremeKilometrique", &N::dBaremeKilometrique),
      Op("CalculRubrique_Retenue_a_la_source_NouvelleMethode",
         &N::CalculRubrique_Retenue_a_la_source_NouvelleMethode),
      Op("RechercheValeursListeCumul", &N::RechercheValeursListeCumul),
      Op("CalculRetenueSource_DonneesMandat", &N::CalculRetenueSource_DonneesMandat),
      Op("CalculRetenueSource_Bareme", &N::CalculRetenueSource_Bareme),
      Op("EnregistreDetailRetenueSource", &N::EnregistreDetailRetenueSource),
      Op("EnregistreDetailRetenueSource_NouvelleMethode",
         &N::EnregistreDetailRetenueSource_NouvelleMethode),
      Op("CalculRubrique_Traitement_Indiciaire_Journalier",
         &N::CalculRubrique_Traitement_Indiciaire_Journalier),
      Op("CalculRubrique_Imposition_a_la_source_Frontalier",
         &N::CalculRubrique_Imposition_a_la_source_Frontalier),
      Op("CalculRubrique_Prelevement_a_la_source", &N::CalculRubrique_Prelevement_a_la_source),
      Op("CalculRechercheJourDebutEtJourFin", &N::CalculRechercheJourDebutEtJourFin),
      Op("CalculPrelevementALaSource_CasParticulierElu",
         &N::CalculPrelevementALaSource_CasParticulierElu),

      // ---- Entry points of MethodeCalculG ----------------------------------------------------
      Op("Appel_Methode_Preparation_Calcul_General", &H::Appel_Methode_Preparation_Calcul_General),
      Op("Appel_Methode_Calcul_General", &H::Appel_Methode_Calcul_General),
      // ---- Public operations of MethodeCalculG landed so far ---------------------------------
      Op("RechercheValeurBase", &H::RechercheValeurBase),
      Op("RechercheValeurCoefficient", &H::RechercheValeurCoefficient),
      Op("RechercheValeurTauxSalarial", &H::RechercheValeurTauxSalarial),
      Op("RechercheValeurTauxPatronal", &H::RechercheValeurTauxPatronal),
      Op("CalculRubrique_BaseTaux", &H::CalculRubrique_BaseTaux),
      Op("CalculRubrique_BaseTauxChoix", &H::CalculRubrique_BaseTauxChoix),
      Op("CalculRubrique_BaseTauxSmic", &H::CalculRubrique_BaseTauxSmic),
      Op("CalculRubrique_MontantFixe", &H::CalculRubrique_MontantFixe),
      Op("CalculRubrique_MontantFixeAnnuel", &H::CalculRubrique_MontantFixeAnnuel),
      Op("CalculRubrique_BaseProrata30", &H::CalculRubrique_BaseProrata30),
      Op("CalculRubrique_BaseProrata30ADeduire", &H::CalculRubrique_BaseProrata30ADeduire),
      Op("CalculRubrique_Indice_Reference", &H::CalculRubrique_Indice_Reference),
      Op("CalculRubrique_Indice_Reference_CAS", &H::CalculRubrique_Indice_Reference_CAS),
      Op("CalculRubrique_Indice_Reference_CAS_Communal",
         &H::CalculRubrique_Indice_Reference_CAS_Communal),
      Op("CalculRubrique_TaxeSalaire_Taux1", &H::CalculRubrique_TaxeSalaire_Taux1),
      Op("CalculRubrique_TaxeSalaire_Taux2", &H::CalculRubrique_TaxeSalaire_Taux2),
      Op("CalculRubrique_Gipa", &H::CalculRubrique_Gipa),
      Op("dMontantGIPA", &H::dMontantGIPA),
      Op("CalculRubrique_Retenue_a_la_source", &H::CalculRubrique_Retenue_a_la_source),
      Op("EnregistreDetailRetenueSource", &H::EnregistreDetailRetenueSource),
      Op("CalculCoefficientUtilisationIndice", &H::CalculCoefficientUtilisationIndice),
      Op("CalculCoefficientUtilisationTauxElus", &H::CalculCoefficientUtilisationTauxElus),
      Op("CalculCoefficientTraitement", &H::CalculCoefficientTraitement),
      Op("CalculNombreJourPresence", &H::CalculNombreJourPresence),
      Op("CalculNombreJourPresenceMois", &H::CalculNombreJourPresenceMois),
      Op("CalculNombreJour_Situation", &H::CalculNombreJour_Situation),
      Op("CalculNombreJourDemiTraitement", &H::CalculNombreJourDemiTraitement),
      Op("CalculNombreJourCPA", &H::CalculNombreJourCPA),
      Op("CalculNombreJourCFA", &H::CalculNombreJourCFA),
      Op("CalculNombreJourDispoOffice", &H::CalculNombreJourDispoOffice),
      Op("CalculNombreJourCongeMaternite", &H::CalculNombreJourCongeMaternite),
      Op("CalculNombreJourFormation", &H::CalculNombreJourFormation),
      Op("CalculNombreJourDetachement", &H::CalculNombreJourDetachement),
      Op("CalculNombreJourAutresAbsences", &H::CalculNombreJourAutresAbsences),
      Op("dRechercheIndMajEluPeriode", &H::dRechercheIndMajEluPeriode),
      Op("dBaremeKilometrique", &H::dBaremeKilometrique),
      Op("CalculSalaireBaseHS", &H::CalculSalaireBaseHS),
      Op("CalculSalaireBaseHS_Periode", &H::CalculSalaireBaseHS_Periode),
      // Strike, daily benefits, differential allowance and the officials' new method.
      Op("CalculRubrique_Greve", &H::CalculRubrique_Greve),
      Op("CalculRubrique_Indemnites_journalieres", &H::CalculRubrique_Indemnites_journalieres),
      Op("Calcul_Indemnites_journalieres", &H::Calcul_Indemnites_journalieres),
      Op("CalculIJ_Periode", &H::CalculIJ_Periode),
      Op("CalculRubrique_Indemnite_Differentielle", &H::CalculRubrique_Indemnite_Differentielle),
      Op("CalculRubrique_Retenue_a_la_source_NouvelleMethode",
         &H::CalculRubrique_Retenue_a_la_source_NouvelleMethode),
      Op("EnregistreDetailRetenueSource_NouvelleMethode",
         &H::EnregistreDetailRetenueSource_NouvelleMethode),
      Op("CalculRetenueSource_DonneesMandat", &H::CalculRetenueSource_DonneesMandat),
      Op("CalculRetenueSource_Bareme", &H::CalculRetenueSource_Bareme),
      Op("CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple",
         &H::CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple),
      Op("CalculCoefficientDemiTraitement", &H::CalculCoefficientDemiTraitement),
      Op("dCoefficientIndemnitaireDemiTraitement", &H::dCoefficientIndemnitaireDemiTraitement),
      Op("dMontantProratiseSuivantDemiTraitement", &H::dMontantProratiseSuivantDemiTraitement),

      // ---- Other lookups of reference data (both engines) ------------------------------------
      Op("dRechercheValeur_VariableBis", &M::dRechercheValeur_VariableBis),
      Op("dRecherchePointMois", &M::dRecherchePointMois),
      Op("dRechercheValeurConstanteHistorique", &M::dRechercheValeurConstanteHistorique),
      Op("dRechercheValeurCumulHistorique", &M::dRechercheValeurCumulHistorique),
      Op("dRechercheHeuresMoisHistorique", &M::dRechercheHeuresMoisHistorique),
      Op("dRecherchePointHistorique", &M::dRecherchePointHistorique),
      Op("dRechercheIndMinHistorique", &M::dRechercheIndMinHistorique),
      Op("dRechercheHistoriqueMois", &M::dRechercheHistoriqueMois),
      Op("dRechercheSmicHistorique", &M::dRechercheSmicHistorique),
      // The gross of a month in the employee's pay history, one body for both engines.
      Op("dMontantBrutMois", &dMontantBrutMois),
      // The officials' reference index and the allowance of an earlier month.
      Op("dRechercheIndMajElu", &N::dRechercheIndMajElu),
      Op("dRechercheIndMajEluPeriode", &N::dRechercheIndMajEluPeriode),

      // ---- Resolvers of the generic pay lines ------------------------------------------------
      Op("RechercheValeurBase", &N::RechercheValeurBase),
      Op("RechercheValeurCoefficient", &N::RechercheValeurCoefficient),
      Op("RechercheValeurTauxSalarial", &N::RechercheValeurTauxSalarial),
      Op("RechercheValeurTauxPatronal", &N::RechercheValeurTauxPatronal),
      Op("dRechercheTauxPatronal", &M::dRechercheTauxPatronal),
      Op("bTauxCsgProfessionnel", &M::bTauxCsgProfessionnel),
      Op("CalculTauxHoraireSalarie", &M::CalculTauxHoraireSalarie),
      Op("dArbitrageJours", &N::dArbitrageJours),

      // ---- Preparations reached by name, and the older forms of the day counts -------------
      Op("CalculSalaireBaseHS", &N::CalculSalaireBaseHS),
      Op("CalculSalaireBaseHS_Periode", &N::CalculSalaireBaseHS_Periode),
      Op("CalculNombreJourDemiTraitement_NouvelleGestion",
         &N::CalculNombreJourDemiTraitement_NouvelleGestion),
      Op("CalculNombreJourDemiTraitement", &N::CalculNombreJourDemiTraitement),
      Op("CalculNombreJourCPA_NouvelleGestion", &N::CalculNombreJourCPA_NouvelleGestion),
      Op("CalculNombreJourCPA", &N::CalculNombreJourCPA),
      Op("CalculNombreJourCFA_NouvelleGestion", &N::CalculNombreJourCFA_NouvelleGestion),
      Op("CalculNombreJourCFA", &N::CalculNombreJourCFA),
      Op("CalculNombreJourDetachement_NouvelleGestion",
         &N::CalculNombreJourDetachement_NouvelleGestion),
      Op("CalculNombreJourDetachement", &N::CalculNombreJourDetachement),
      Op("CalculNombreJourDispoOffice_NouvelleGestion",
         &N::CalculNombreJourDispoOffice_NouvelleGestion),
      Op("CalculNombreJourDispoOffice", &N::CalculNombreJourDispoOffice),
      Op("CalculNombreJourFormation_NouvelleGestion",
         &N::CalculNombreJourFormation_NouvelleGestion),
      Op("CalculNombreJourFormation", &N::CalculNombreJourFormation),
      Op("CalculNombreJourCongeMaternite_NouvelleGestion",
         &N::CalculNombreJourCongeMaternite_NouvelleGestion),
      Op("CalculNombreJourCongeMaternite", &N::CalculNombreJourCongeMaternite),
      Op("CalculNombreJourDetachementSansPension_NouvelleGestion",
         &N::CalculNombreJourDetachementSansPension_NouvelleGestion),
      Op("CalculNombreJourDetachementSansPension", &N::CalculNombreJourDetachementSansPension),
      Op("CalculNombreJourMaintienTraitement", &N::CalculNombreJourMaintienTraitement),
      Op("CalculNombreJourTptNonSubroge", &N::CalculNombreJourTptNonSubroge),

      // ---- Strike, waiting-day and maintained-pay lines reached by name ----------------------
      Op("CalculRubrique_Greve", &N::CalculRubrique_Greve),
      Op("CalculRubrique_Carence", &N::CalculRubrique_Carence),
      Op("CalculRubrique_MaintienSalaire", &N::CalculRubrique_MaintienSalaire),
      Op("CalculRubrique_MaintienSalaireHoraire", &N::CalculRubrique_MaintienSalaireHoraire),
      Op("dMaintienSalaireCoefficient", &N::dMaintienSalaireCoefficient),
      Op("CalculRubrique_TptNonSubroge", &N::CalculRubrique_TptNonSubroge),

      // ---- Generic pay lines reached by name -------------------------------------------------
      Op("CalculRubrique_MontantFixe", &N::CalculRubrique_MontantFixe),
      Op("CalculRubrique_MontantFixeAnnuel", &N::CalculRubrique_MontantFixeAnnuel),
      Op("CalculRubrique_BaseProrata30", &N::CalculRubrique_BaseProrata30),
      Op("CalculRubrique_BaseProrata30ADeduire", &N::CalculRubrique_BaseProrata30ADeduire),

      // ---- Tax at source ---------------------------------------------------------------------
      Op("dSeuilPrelevementSource", &N::dSeuilPrelevementSource),
      Op("dNetAPayerAvantPAS", &N::dNetAPayerAvantPAS),

      // ---- Numeric and date utilities (both engines) -----------------------------------------
      Op("Arrondi", &Arrondi),
      Op("dTronqueAuPas", &dTronqueAuPas),
      Op("dTronqueDecimales", &dTronqueDecimales),
      Op("sNormaliseDecimale", &sNormaliseDecimale),
      Op("iNbJoursBase30", &iNbJoursBase30),
      Op("iNbJoursBase30Commun", &iNbJoursBase30Commun),
      Op("iNbJoursCommunsMois", &iNbJoursCommunsMois),
      Op("bJourOuvre", &bJourOuvre),
      Op("iNbJoursOuvresAnnee", &iNbJoursOuvresAnnee),
      Op("CoefficientsCPA", &CoefficientsCPA),
  };
  return kTable;
}

}  // namespace orvalis::tools
