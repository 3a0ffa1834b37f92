// Dispatch tables of MethodeCalculG_Nouv, in the order the names are tested.
#include "frame/dispatch.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace {

using Prep = AppelPreparation<MethodeCalculG_Nouv>;
using Calc = AppelCalcul<MethodeCalculG_Nouv>;

const Ligne<Prep> kPreparation[] = {
    {"COEFFICIENT_INDICE", "CalculCoefficientUtilisationIndice", [](Prep& a) { a.m.CalculCoefficientUtilisationIndice(a.InfosSalaries); }},
    {"COEFFICIENT_TRAITEMENT", "CalculCoefficientTraitement", [](Prep& a) { a.m.CalculCoefficientTraitement(a.InfosSalaries); }},
    {"NBRE_JOUR_PRESENCE", "CalculNombreJourPresence", [](Prep& a) { a.m.CalculNombreJourPresence(a.InfosSalaries, ""); }},
    {"SALAIRE_BASE_HS", "CalculSalaireBaseHS", [](Prep& a) { a.m.CalculSalaireBaseHS(a.InfosSalaries); }},
    {"NBRE_JOUR_DEMI_TRAITEMENT", "CalculNombreJourDemiTraitement_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourDemiTraitement_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_CPA", "CalculNombreJourCPA_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourCPA_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_CFA", "CalculNombreJourCFA_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourCFA_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_DETACHEMENT", "CalculNombreJourDetachement_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourDetachement_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_DISPONIBILITE_OFFICE", "CalculNombreJourDispoOffice_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourDispoOffice_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_FORMATION", "CalculNombreJourFormation_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourFormation_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_AUTREABSENCE", "CalculNombreJourAutresAbsences_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourAutresAbsences_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", "CalculNombreJourCongeMaternite_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourCongeMaternite_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_DETACHEMENT_SANS_PENSION", "CalculNombreJourDetachementSansPension_NouvelleGestion", [](Prep& a) { a.m.CalculNombreJourDetachementSansPension_NouvelleGestion(a.InfosSalaries); }},
    {"NBRE_JOUR_90POURCENT_TRAITEMENT", "CalculNombreJourMaintienTraitement", [](Prep& a) { a.m.CalculNombreJourMaintienTraitement(a.InfosSalaries, Int16(90)); }},
    {"NBRE_JOUR_2TIERS_TRAITEMENT", "CalculNombreJourMaintienTraitement", [](Prep& a) { a.m.CalculNombreJourMaintienTraitement(a.InfosSalaries, Int16(66)); }},
    {"NBRE_JOUR_MALADIE_SANS_TRAITEMENT", "CalculNombreJourMaintienTraitement", [](Prep& a) { a.m.CalculNombreJourMaintienTraitement(a.InfosSalaries, Int16(0)); }},
    {"NBRE_JOUR_TPT_NON_SUBROGE", "CalculNombreJourTptNonSubroge", [](Prep& a) { a.m.CalculNombreJourTptNonSubroge(a.InfosSalaries); }},
};

const Ligne<Calc> kCalcul[] = {
    {"MONTANT FIXE", "CalculRubrique_MontantFixe", [](Calc& a) { a.m.CalculRubrique_MontantFixe(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"MONTANT FIXE ANNUEL", "CalculRubrique_MontantFixeAnnuel", [](Calc& a) { a.m.CalculRubrique_MontantFixeAnnuel(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE x TAUX", "CalculRubrique_BaseTaux", [](Calc& a) { if (TestDetachement(a.InfosSalaries, a.Rubrique)) a.m.CalculRubrique_BaseTaux_Detachement(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); else a.m.CalculRubrique_BaseTaux(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE / TAUX", "CalculRubrique_BaseDivTaux", [](Calc& a) { a.m.CalculRubrique_BaseDivTaux(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"TRAITEMENT HORAIRE MOIS", "CalculRubrique_TraitementHoraireMois", [](Calc& a) { a.m.CalculRubrique_TraitementHoraireMois(a.InfosSalaries, a.RsVarSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE MOIS", "CalculRubrique_TraitementIndiciaireMois", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireMois(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE MOIS PRECEDENT", "CalculRubrique_TraitementIndiciaireMoisPrecedent", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireMoisPrecedent(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE ELUS", "CalculRubrique_TraitementIndiciaireElus", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElus(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT FORFAITAIRE ELUS", "CalculRubrique_TraitementForfaitaireElus", [](Calc& a) { a.m.CalculRubrique_TraitementForfaitaireElus(a.InfosSalaries, a.Rubrique); }},
    {"DEMI TRAITEMENT INDICIAIRE", "CalculRubrique_DemiTraitementIndiciaire", [](Calc& a) { a.m.CalculRubrique_DemiTraitementIndiciaire(a.InfosSalaries, a.Rubrique, "D"); }},
    {"ALLOCATION COMPLEMENTAIRE MALADIE", "CalculRubrique_AllocationComplementaireMaladie", [](Calc& a) { a.m.CalculRubrique_AllocationComplementaireMaladie(a.InfosSalaries, a.Rubrique); }},
    {"ALLOCATION COMPLEMENTAIRE MALADIE NBI", "CalculRubrique_AllocationComplementaireMaladieNbi", [](Calc& a) { a.m.CalculRubrique_AllocationComplementaireMaladieNbi(a.InfosSalaries, a.Rubrique); }},
    {"BONIFICIATION INDICIAIRE", "CalculRubrique_BonificationIndiciaire", [](Calc& a) { a.m.CalculRubrique_BonificationIndiciaire(a.InfosSalaries, a.Rubrique); }},
    {"DEMI TRAITEMENT BONIFICATION", "CalculRubrique_DemiTraitementBonification", [](Calc& a) { a.m.CalculRubrique_DemiTraitementBonification(a.InfosSalaries, a.Rubrique, "D"); }},
    {"INDEMNITE DE RESIDENCE", "CalculRubrique_IndemniteResidence", [](Calc& a) { a.m.CalculRubrique_IndemniteResidence(a.InfosSalaries, a.Rubrique); }},
    {"INDEMNITE COORDINATION (IND RES)", "CalculRubrique_IndemniteCoordination", [](Calc& a) { a.m.CalculRubrique_IndemniteCoordination(a.InfosSalaries, a.Rubrique, "D"); }},
    {"SUPPLEMENT FAMILIAL", "CalculRubrique_SupplementFamilial", [](Calc& a) { a.m.CalculRubrique_SupplementFamilial(a.InfosSalaries, a.Rubrique); }},
    {"CPA", "CalculRubrique_CPA", [](Calc& a) { a.m.CalculRubrique_CPA(a.InfosSalaries, a.Rubrique); }},
    {"CFA", "CalculRubrique_CFA", [](Calc& a) { a.m.CalculRubrique_CFA(a.InfosSalaries, a.Rubrique); }},
    {"HEURES COMPLEMENTAIRES DU MOIS", "CalculRubrique_HeuresComplementaires", [](Calc& a) { a.m.CalculRubrique_HeuresComplementaires(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES COMPLEMENTAIRES DU MOIS PREC.", "CalculRubrique_HeuresComplementairesPrec", [](Calc& a) { a.m.CalculRubrique_HeuresComplementairesPrec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. < 14 HEURES DU MOIS", "CalculRubrique_HS_Moins14", [](Calc& a) { a.m.CalculRubrique_HS_Moins14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. < 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_Moins14Prec", [](Calc& a) { a.m.CalculRubrique_HS_Moins14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. > 14 HEURES DU MOIS", "CalculRubrique_HS_Plus14", [](Calc& a) { a.m.CalculRubrique_HS_Plus14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_Plus14Prec", [](Calc& a) { a.m.CalculRubrique_HS_Plus14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. NUITS DU MOIS", "CalculRubrique_HS_Nuit", [](Calc& a) { a.m.CalculRubrique_HS_Nuit(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. NUITS DU MOIS PREC.", "CalculRubrique_HS_NuitPrec", [](Calc& a) { a.m.CalculRubrique_HS_NuitPrec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. NUITS > 14 HEURES DU MOIS", "CalculRubrique_HS_NuitFeriePlus14", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.sNomcalcul); }},
    {"HEURES SUPP. FERIES > 14 HEURES DU MOIS", "CalculRubrique_HS_NuitFeriePlus14", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.sNomcalcul); }},
    {"HEURES SUPP. NUITS > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_NuitFeriePlus14Prec", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.sNomcalcul); }},
    {"HEURES SUPP. FERIES > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_NuitFeriePlus14Prec", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.sNomcalcul); }},
    {"HEURES SUPP. FERIES DU MOIS", "CalculRubrique_HS_Ferie", [](Calc& a) { a.m.CalculRubrique_HS_Ferie(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. FERIES DU MOIS PREC.", "CalculRubrique_HS_FeriePrec", [](Calc& a) { a.m.CalculRubrique_HS_FeriePrec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"PRIME INFORMATIQUE", "CalculRubrique_PrimeInformatique", [](Calc& a) { a.m.CalculRubrique_PrimeInformatique(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"FONDS DE SOLIDARITE", "CalculRubrique_FondsSolidarite", [](Calc& a) { a.m.CalculRubrique_FondsSolidarite(a.InfosSalaries, a.Rubrique); }},
    {"CREDIT MUNICIPAL", "CalculRubrique_CreditMunicipal", [](Calc& a) { a.m.CalculRubrique_CreditMunicipal(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"RETENUE A LA SOURCE", "CalculRubrique_Retenue_a_la_source", [](Calc& a) { a.m.CalculRubrique_Retenue_a_la_source(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"RETENUE A LA SOURCE NOUVELLE METHODE", "CalculRubrique_Retenue_a_la_source_NouvelleMethode", [](Calc& a) { a.m.CalculRubrique_Retenue_a_la_source_NouvelleMethode(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"CNRACL Rétroactive", "CalculRubrique_CnraclRetroactive", [](Calc& a) { a.m.CalculRubrique_CnraclRetroactive(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"TAXE SUR SALAIRE TAUX 1", "CalculRubrique_TaxeSalaire_Taux1", [](Calc& a) { a.m.CalculRubrique_TaxeSalaire_Taux1(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"TAXE SUR SALAIRE TAUX 2", "CalculRubrique_TaxeSalaire_Taux2", [](Calc& a) { a.m.CalculRubrique_TaxeSalaire_Taux2(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"INDEMNITES JOURNALIERES", "CalculRubrique_Indemnites_journalieres", [](Calc& a) { a.m.CalculRubrique_Indemnites_journalieres(a.InfosSalaries, a.Rubrique, a.RsSalariesHisto, true); }},
    {"INDEMNITES JOURNALIERES NON SUBROGEES", "CalculRubrique_Indemnites_journalieres", [](Calc& a) { a.m.CalculRubrique_Indemnites_journalieres(a.InfosSalaries, a.Rubrique, a.RsSalariesHisto, false); }},
    {"GREVE", "CalculRubrique_Greve", [](Calc& a) { a.m.CalculRubrique_Greve(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, "N", a.RsSalariesHisto, a.RsVarSalariesHisto); }},
    {"COMPLEMENT DIFFERENTIEL 35 H", "CalculRubrique_ComplementDifferentiel35H", [](Calc& a) { a.m.CalculRubrique_ComplementDifferentiel35H(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"IAT", "CalculRubrique_Iat", [](Calc& a) { a.m.CalculRubrique_Iat(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"INDEMNITE KILOMETRIQUE", "CalculRubrique_IndemniteKilometrique", [](Calc& a) { a.m.CalculRubrique_IndemniteKilometrique(a.InfosSalaries, a.Rubrique); }},
    {"SUJETIONS SPECIALES", "CalculRubrique_SujetionsSpeciales", [](Calc& a) { a.m.CalculRubrique_SujetionsSpeciales(a.InfosSalaries, a.Rubrique); }},
    {"INDEMNITE DIFFERENTIELLE", "CalculRubrique_Indemnite_Differentielle_Nouv", [](Calc& a) { a.m.CalculRubrique_Indemnite_Differentielle_Nouv(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"INDEMNITE DIFFERENTIELLE MAYOTTE", "CalculRubrique_Indemnite_Differentielle_Mayotte", [](Calc& a) { a.m.CalculRubrique_Indemnite_Differentielle_Mayotte(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"INDICE DE REFERENCE", "CalculRubrique_Indice_Reference", [](Calc& a) { a.m.CalculRubrique_Indice_Reference(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"INDICE DE REFERENCE - CAS", "CalculRubrique_Indice_Reference_CAS", [](Calc& a) { a.m.CalculRubrique_Indice_Reference_CAS(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple", [](Calc& a) { a.m.CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple(a.InfosSalaries, a.Rubrique); }},
    {"BASE PRORATISEE SELON NB JOURS / 30 (A DEDUIRE)", "CalculRubrique_BaseProrata30ADeduire", [](Calc& a) { a.m.CalculRubrique_BaseProrata30ADeduire(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE PRORATISEE SELON NB JOURS / 30", "CalculRubrique_BaseProrata30", [](Calc& a) { a.m.CalculRubrique_BaseProrata30(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"GREVE MOIS PRECEDENT", "CalculRubrique_Greve", [](Calc& a) { a.m.CalculRubrique_Greve(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, "A", a.RsSalariesHisto, a.RsVarSalariesHisto); }},
    {"ALLOCATION COMPLEMENTAIRE", "CalculRubrique_DemiTraitementIndiciaire", [](Calc& a) { a.m.CalculRubrique_DemiTraitementIndiciaire(a.InfosSalaries, a.Rubrique, "A"); }},
    {"ALLOCATION COMPLEMENTAIRE BONIFICATION", "CalculRubrique_DemiTraitementBonification", [](Calc& a) { a.m.CalculRubrique_DemiTraitementBonification(a.InfosSalaries, a.Rubrique, "A"); }},
    {"MGEN", "CalculRubrique_Mgen", [](Calc& a) { a.m.CalculRubrique_Mgen(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto, false); }},
    {"SUPPLEMENT FAMILIAL IC", "CalculRubrique_SupplementFamilialIC", [](Calc& a) { a.m.CalculRubrique_SupplementFamilialIC(a.InfosSalaries, a.Rubrique, "A"); }},
    {"REDUCTION SUR HS", "CalculRubrique_ReductionHS", [](Calc& a) { a.m.CalculRubrique_ReductionHS(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"RAPPEL REDUCTION SUR HS", "CalculRubrique_RappelReductionHS", [](Calc& a) { a.m.CalculRubrique_RappelReductionHS(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"TRAITEMENT INDICIAIRE ELUS PRECEDENT", "CalculRubrique_TraitementIndiciaireElusPrecedent", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElusPrecedent(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT BASE PARTICULIER", "CalculRubrique_TraitementBaseParticulier", [](Calc& a) { a.m.CalculRubrique_TraitementBaseParticulier(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"GIPA", "CalculRubrique_Gipa", [](Calc& a) { a.m.CalculRubrique_Gipa(a.InfosSalaries, a.Rubrique); }},
    {"BASE x TAUX (CHOIX)", "CalculRubrique_BaseTauxChoix", [](Calc& a) { a.m.CalculRubrique_BaseTauxChoix(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE x POURCENTAGE SMIC", "CalculRubrique_BaseTauxSmic", [](Calc& a) { a.m.CalculRubrique_BaseTauxSmic(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"ALLOCATION FORMATION", "CalculRubrique_AllocationFormation", [](Calc& a) { a.m.CalculRubrique_AllocationFormation(a.InfosSalaries, a.RsVarSalaries, a.Rubrique); }},
    {"REDUCTION FILLON", "CalculRubrique_ReductionFillon", [](Calc& a) { a.m.CalculRubrique_ReductionFillon(a.InfosSalaries, a.Rubrique, a.sNomcalcul); }},
    {"REDUCTION FILLON (> 19 AGENTS)", "CalculRubrique_ReductionFillon", [](Calc& a) { a.m.CalculRubrique_ReductionFillon(a.InfosSalaries, a.Rubrique, a.sNomcalcul); }},
    {"TRAITEMENT INDICIAIRE ELUS MOIS", "CalculRubrique_TraitementIndiciaireElusMois", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElusMois(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT FORFAITAIRE ELUS MOIS", "CalculRubrique_TraitementForfaitaireElusMois", [](Calc& a) { a.m.CalculRubrique_TraitementForfaitaireElusMois(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE ELUS PRECEDENT MOIS", "CalculRubrique_TraitementIndiciaireElusPrecedentMois", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElusPrecedentMois(a.InfosSalaries, a.Rubrique); }},
    {"MGEN (-30 ans)", "CalculRubrique_Mgen", [](Calc& a) { a.m.CalculRubrique_Mgen(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto, true); }},
    {"INDICE DE REFERENCE - CAS COMMUNAL", "CalculRubrique_Indice_Reference_CAS_Communal", [](Calc& a) { a.m.CalculRubrique_Indice_Reference_CAS_Communal(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique); }},
    {"INDEMNITE DE FORMATION", "CalculRubrique_IndemniteFormation", [](Calc& a) { a.m.CalculRubrique_IndemniteFormation(a.InfosSalaries, a.RsVarSalaries, a.Rubrique); }},
    {"MONTANT REFERENCE", "CalculRubrique_MontantReference", [](Calc& a) { a.m.CalculRubrique_MontantReference(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"REVERSEMENT SFT", "CalculRubrique_ReversementSFT", [](Calc& a) { a.m.CalculRubrique_ReversementSFT(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT JOURNALIER SMIC", "CalculRubrique_TraitementJournalierSmic", [](Calc& a) { a.m.CalculRubrique_TraitementJournalierSmic(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"IRF", "CalculRubrique_Irf", [](Calc& a) { a.m.CalculRubrique_Irf(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"IPF", "CalculRubrique_Ipf", [](Calc& a) { a.m.CalculRubrique_Ipf(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"IFSE (RIFSEEP)", "CalculRubrique_Ifse", [](Calc& a) { a.m.CalculRubrique_Ifse(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"COMPLEMENT INDEMNITAIRE ANNUEL (RIFSEEP)", "CalculRubrique_Cia", [](Calc& a) { a.m.CalculRubrique_Cia(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"TRAITEMENT INDICIAIRE ELUS ECRETE", "CalculRubrique_TraitementIndiciaireElusEcrete", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElusEcrete(a.InfosSalaries, a.Rubrique); }},
    {"INDEMNITE TRANSPORT CORSE", "CalculRubrique_Indemnite_transport_Corse", [](Calc& a) { a.m.CalculRubrique_Indemnite_transport_Corse(a.InfosSalaries, a.RsVarSalaries, a.Rubrique); }},
    {"EXONERATION ZRR", "CalculRubrique_ExonerationZrr", [](Calc& a) { a.m.CalculRubrique_ExonerationZrr(a.InfosSalaries, a.RsVarSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE JOURNALIER", "CalculRubrique_Traitement_Indiciaire_Journalier", [](Calc& a) { a.m.CalculRubrique_Traitement_Indiciaire_Journalier(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique); }},
    {"MAINTIEN SALAIRE 90%", "CalculRubrique_MaintienSalaire", [](Calc& a) { if (TestModeleHoraire(a.InfosSalaries)) a.m.CalculRubrique_MaintienSalaireHoraire(a.InfosSalaries, a.RsVarSalaries, a.Rubrique, Int16(90)); else a.m.CalculRubrique_MaintienSalaire(a.InfosSalaries, a.Rubrique, Int16(90)); }},
    {"MAINTIEN SALAIRE 2/3", "CalculRubrique_MaintienSalaire", [](Calc& a) { if (TestModeleHoraire(a.InfosSalaries)) a.m.CalculRubrique_MaintienSalaireHoraire(a.InfosSalaries, a.RsVarSalaries, a.Rubrique, Int16(66)); else a.m.CalculRubrique_MaintienSalaire(a.InfosSalaries, a.Rubrique, Int16(66)); }},
    {"CONGES PAYES", "CalculRubrique_CongesPayes", [](Calc& a) { a.m.CalculRubrique_CongesPayes(a.InfosSalaries, a.RsSalariesHisto, a.Rubrique); }},
    {"RETENUE A LA SOURCE FRONTALIER", "CalculRubrique_Imposition_a_la_source_Frontalier", [](Calc& a) { a.m.CalculRubrique_Imposition_a_la_source_Frontalier(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"TEMPS PARTIEL THERAPEUTIQUE NON SUBROGE", "CalculRubrique_TptNonSubroge", [](Calc& a) { a.m.CalculRubrique_TptNonSubroge(a.InfosSalaries, a.Rubrique, iTauxTptNonSubroge); }},
    {"CARENCE", "CalculRubrique_Carence", [](Calc& a) { a.m.CalculRubrique_Carence(a.InfosSalaries, a.Rubrique, "N", a.RsSalariesHisto); }},
    {"CARENCE MOIS PRECEDENT", "CalculRubrique_Carence", [](Calc& a) { a.m.CalculRubrique_Carence(a.InfosSalaries, a.Rubrique, "A", a.RsSalariesHisto); }},
    {"COMPENSATION HAUSSE CSG", "CalculRubrique_CompensationHausseCsg", [](Calc& a) { a.m.CalculRubrique_CompensationHausseCsg(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique); }},
    {"RETENUE CONGES PAYES", "CalculRubrique_RetenueCongesPayes", [](Calc& a) { a.m.CalculRubrique_RetenueCongesPayes(a.InfosSalaries, a.RsVarSalaries, a.RsSalariesHisto, a.RsVarSalariesHisto, a.Rubrique); }},
    {"ARBITRAGE CONGES PAYES", "CalculRubrique_ArbitrageCongesPayes", [](Calc& a) { a.m.CalculRubrique_ArbitrageCongesPayes(a.InfosSalaries, a.RsVarSalaries, a.RsSalariesHisto, a.RsVarSalariesHisto, a.Rubrique); }},
    {"DEGRESSIVITE", "CalculRubrique_Degressivite", [](Calc& a) { a.m.CalculRubrique_Degressivite(a.InfosSalaries, a.RsVarSalaries, a.RsSalariesHisto, a.RsVarSalariesHisto, a.Rubrique); }},
    {"REDUCTION SUR CSG DED. CHOMAGE", "CalculRubrique_ReductionCsgChomage", [](Calc& a) { a.m.CalculRubrique_ReductionCsgChomage(a.InfosSalaries, a.Rubrique, "URSCSGDCHO"); }},
    {"REDUCTION SUR CSG/RDS NON DED. CHOMAGE", "CalculRubrique_ReductionCsgChomage", [](Calc& a) { a.m.CalculRubrique_ReductionCsgChomage(a.InfosSalaries, a.Rubrique, "URSCSGNCHO"); a.m.CalculRubrique_ReductionCsgChomage(a.InfosSalaries, a.Rubrique, "URSRDSDCHO"); }},
    // Recognised, and deliberately without effect: the line is left as the host gave it.
    {"ASSIETTE URSSAF APPRENTI", "none", SansEffet<Calc>},
    {"BASE CDG/CNFPT REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE CDG/CNFPT REGIME SPECIAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TOTALITE EXONEREE REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TOTALITE EXONEREE REGIME SPECIAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TOTALITE REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TOTALITE REGIME SPECIAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TRANCHE A REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TRANCHE A REGIME SPECIAL", "none", SansEffet<Calc>},
    {"GREVE INDEMNITE RESIDENCE", "none", SansEffet<Calc>},
    {"GREVE TRAITEMENT", "none", SansEffet<Calc>},
    {"TAXE SUR SALAIRE TAUX Z", "none", SansEffet<Calc>},
};

}  // namespace

std::span<const Ligne<Prep>> TablePreparationNouv() { return kPreparation; }
std::span<const Ligne<Calc>> TableCalculNouv() { return kCalcul; }

bool MethodeCalculG_Nouv::Appel_Methode_Preparation_Calcul_General(
    const std::string& sNomcalcul, VarCalculSalarie& InfosSalaries) {
  return SousPiege([&] {
    const auto* ligne = TrouveLigne(TablePreparationNouv(), sNomcalcul);
    if (ligne == nullptr) return;
    Prep a{*this, InfosSalaries};
    Executer(*ligne, a);
  });
}

bool MethodeCalculG_Nouv::Appel_Methode_Calcul_General(
    const std::string& sNomcalcul, VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
    const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto, const RsRef& RsSalariesHisto) {
  return SousPiege([&] {
    const std::string nom = sNomcalcul;  // the entry works on its own copy of the name
    const auto* ligne = TrouveLigne(TableCalculNouv(), nom);
    if (ligne == nullptr) return;
    Calc a{*this, nom, InfosSalaries, Rubrique, RsVarSalaries, RsVarSalariesHisto, RsSalariesHisto};
    Executer(*ligne, a);
  });
}

}  // namespace orvalis
