// Dispatch tables of MethodeCalculG, the historic engine: a shorter list of names, with
// the same meaning as in the current engine. "BASE x TAUX" has no detachment variant here
// and "INDEMNITE DIFFERENTIELLE" no _Nouv variant.
#include "frame/dispatch.h"
#include "orvalis/MethodeCalculG.h"

namespace orvalis {

namespace {

using Prep = AppelPreparation<MethodeCalculG>;
using Calc = AppelCalcul<MethodeCalculG>;

const Ligne<Prep> kPreparation[] = {
    {"COEFFICIENT_INDICE", "CalculCoefficientUtilisationIndice", [](Prep& a) { a.m.CalculCoefficientUtilisationIndice(a.InfosSalaries); }},
    {"COEFFICIENT_TRAITEMENT", "CalculCoefficientTraitement", [](Prep& a) { a.m.CalculCoefficientTraitement(a.InfosSalaries); }},
    {"NBRE_JOUR_PRESENCE", "CalculNombreJourPresence", [](Prep& a) { a.m.CalculNombreJourPresence(a.InfosSalaries, ""); }},
    {"NBRE_JOUR_DEMI_TRAITEMENT", "CalculNombreJourDemiTraitement", [](Prep& a) { a.m.CalculNombreJourDemiTraitement(a.InfosSalaries); }},
    {"NBRE_JOUR_CPA", "CalculNombreJourCPA", [](Prep& a) { a.m.CalculNombreJourCPA(a.InfosSalaries); }},
    {"NBRE_JOUR_CFA", "CalculNombreJourCFA", [](Prep& a) { a.m.CalculNombreJourCFA(a.InfosSalaries); }},
    {"NBRE_JOUR_DETACHEMENT", "CalculNombreJourDetachement", [](Prep& a) { a.m.CalculNombreJourDetachement(a.InfosSalaries); }},
    {"NBRE_JOUR_DISPONIBILITE_OFFICE", "CalculNombreJourDispoOffice", [](Prep& a) { a.m.CalculNombreJourDispoOffice(a.InfosSalaries); }},
    {"NBRE_JOUR_FORMATION", "CalculNombreJourFormation", [](Prep& a) { a.m.CalculNombreJourFormation(a.InfosSalaries); }},
    {"NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET", "CalculNombreJourCongeMaternite", [](Prep& a) { a.m.CalculNombreJourCongeMaternite(a.InfosSalaries); }},
    {"NBRE_JOUR_AUTREABSENCE", "CalculNombreJourAutresAbsences", [](Prep& a) { a.m.CalculNombreJourAutresAbsences(a.InfosSalaries); }},
    {"SALAIRE_BASE_HS", "CalculSalaireBaseHS", [](Prep& a) { a.m.CalculSalaireBaseHS(a.InfosSalaries); }},
};

const Ligne<Calc> kCalcul[] = {
    {"ALLOCATION COMPLEMENTAIRE", "CalculRubrique_DemiTraitementIndiciaire", [](Calc& a) { a.m.CalculRubrique_DemiTraitementIndiciaire(a.InfosSalaries, a.Rubrique, "A"); }},
    {"ALLOCATION COMPLEMENTAIRE BONIFICATION", "CalculRubrique_DemiTraitementBonification", [](Calc& a) { a.m.CalculRubrique_DemiTraitementBonification(a.InfosSalaries, a.Rubrique, "A"); }},
    {"ALLOCATION FORMATION", "CalculRubrique_AllocationFormation", [](Calc& a) { a.m.CalculRubrique_AllocationFormation(a.InfosSalaries, a.RsVarSalaries, a.Rubrique); }},
    {"ASSIETTE URSSAF APPRENTI", "none", SansEffet<Calc>},
    {"BASE CDG/CNFPT REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE CDG/CNFPT REGIME SPECIAL", "none", SansEffet<Calc>},
    {"BASE PRORATISEE SELON NB JOURS / 30", "CalculRubrique_BaseProrata30", [](Calc& a) { a.m.CalculRubrique_BaseProrata30(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE PRORATISEE SELON NB JOURS / 30 (A DEDUIRE)", "CalculRubrique_BaseProrata30ADeduire", [](Calc& a) { a.m.CalculRubrique_BaseProrata30ADeduire(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE URSSAF TOTALITE EXONEREE REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TOTALITE EXONEREE REGIME SPECIAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TOTALITE REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TOTALITE REGIME SPECIAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TRANCHE A REGIME GENERAL", "none", SansEffet<Calc>},
    {"BASE URSSAF TRANCHE A REGIME SPECIAL", "none", SansEffet<Calc>},
    {"BASE x POURCENTAGE SMIC", "CalculRubrique_BaseTauxSmic", [](Calc& a) { a.m.CalculRubrique_BaseTauxSmic(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE x TAUX", "CalculRubrique_BaseTaux", [](Calc& a) { a.m.CalculRubrique_BaseTaux(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BASE x TAUX (CHOIX)", "CalculRubrique_BaseTauxChoix", [](Calc& a) { a.m.CalculRubrique_BaseTauxChoix(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"BONIFICIATION INDICIAIRE", "CalculRubrique_BonificationIndiciaire", [](Calc& a) { a.m.CalculRubrique_BonificationIndiciaire(a.InfosSalaries, a.Rubrique); }},
    {"CFA", "CalculRubrique_CFA", [](Calc& a) { a.m.CalculRubrique_CFA(a.InfosSalaries, a.Rubrique); }},
    {"CNRACL Rétroactive", "CalculRubrique_CnraclRetroactive", [](Calc& a) { a.m.CalculRubrique_CnraclRetroactive(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"COMPLEMENT DIFFERENTIEL 35 H", "CalculRubrique_ComplementDifferentiel35H", [](Calc& a) { a.m.CalculRubrique_ComplementDifferentiel35H(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"CPA", "CalculRubrique_CPA", [](Calc& a) { a.m.CalculRubrique_CPA(a.InfosSalaries, a.Rubrique); }},
    {"CREDIT MUNICIPAL", "CalculRubrique_CreditMunicipal", [](Calc& a) { a.m.CalculRubrique_CreditMunicipal(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"DEMI TRAITEMENT BONIFICATION", "CalculRubrique_DemiTraitementBonification", [](Calc& a) { a.m.CalculRubrique_DemiTraitementBonification(a.InfosSalaries, a.Rubrique, "D"); }},
    {"DEMI TRAITEMENT INDICIAIRE", "CalculRubrique_DemiTraitementIndiciaire", [](Calc& a) { a.m.CalculRubrique_DemiTraitementIndiciaire(a.InfosSalaries, a.Rubrique, "D"); }},
    {"FONDS DE SOLIDARITE", "CalculRubrique_FondsSolidarite", [](Calc& a) { a.m.CalculRubrique_FondsSolidarite(a.InfosSalaries, a.Rubrique); }},
    {"GIPA", "CalculRubrique_Gipa", [](Calc& a) { a.m.CalculRubrique_Gipa(a.InfosSalaries, a.Rubrique); }},
    {"GREVE", "CalculRubrique_Greve", [](Calc& a) { a.m.CalculRubrique_Greve(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, "N", a.RsSalariesHisto, a.RsVarSalariesHisto); }},
    {"GREVE INDEMNITE RESIDENCE", "none", SansEffet<Calc>},
    {"GREVE MOIS PRECEDENT", "CalculRubrique_Greve", [](Calc& a) { a.m.CalculRubrique_Greve(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, "A", a.RsSalariesHisto, a.RsVarSalariesHisto); }},
    {"GREVE TRAITEMENT", "none", SansEffet<Calc>},
    {"HEURES COMPLEMENTAIRES DU MOIS", "CalculRubrique_HeuresComplementaires", [](Calc& a) { a.m.CalculRubrique_HeuresComplementaires(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES COMPLEMENTAIRES DU MOIS PREC.", "CalculRubrique_HeuresComplementairesPrec", [](Calc& a) { a.m.CalculRubrique_HeuresComplementairesPrec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. < 14 HEURES DU MOIS", "CalculRubrique_HS_Moins14", [](Calc& a) { a.m.CalculRubrique_HS_Moins14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. < 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_Moins14Prec", [](Calc& a) { a.m.CalculRubrique_HS_Moins14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. > 14 HEURES DU MOIS", "CalculRubrique_HS_Plus14", [](Calc& a) { a.m.CalculRubrique_HS_Plus14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_Plus14Prec", [](Calc& a) { a.m.CalculRubrique_HS_Plus14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. FERIES > 14 HEURES DU MOIS", "CalculRubrique_HS_NuitFeriePlus14", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.sNomcalcul); }},
    {"HEURES SUPP. FERIES > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_NuitFeriePlus14Prec", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.sNomcalcul); }},
    {"HEURES SUPP. FERIES DU MOIS", "CalculRubrique_HS_Ferie", [](Calc& a) { a.m.CalculRubrique_HS_Ferie(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. FERIES DU MOIS PREC.", "CalculRubrique_HS_FeriePrec", [](Calc& a) { a.m.CalculRubrique_HS_FeriePrec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"HEURES SUPP. NUITS > 14 HEURES DU MOIS", "CalculRubrique_HS_NuitFeriePlus14", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.sNomcalcul); }},
    {"HEURES SUPP. NUITS > 14 HEURES DU MOIS PREC.", "CalculRubrique_HS_NuitFeriePlus14Prec", [](Calc& a) { a.m.CalculRubrique_HS_NuitFeriePlus14Prec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.sNomcalcul); }},
    {"HEURES SUPP. NUITS DU MOIS", "CalculRubrique_HS_Nuit", [](Calc& a) { a.m.CalculRubrique_HS_Nuit(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"HEURES SUPP. NUITS DU MOIS PREC.", "CalculRubrique_HS_NuitPrec", [](Calc& a) { a.m.CalculRubrique_HS_NuitPrec(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto); }},
    {"IAT", "CalculRubrique_Iat", [](Calc& a) { a.m.CalculRubrique_Iat(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"INDEMNITE COORDINATION (IND RES)", "CalculRubrique_IndemniteCoordination", [](Calc& a) { a.m.CalculRubrique_IndemniteCoordination(a.InfosSalaries, a.Rubrique, "D"); }},
    {"INDEMNITE DE FORMATION", "CalculRubrique_IndemniteFormation", [](Calc& a) { a.m.CalculRubrique_IndemniteFormation(a.InfosSalaries, a.RsVarSalaries, a.Rubrique); }},
    {"INDEMNITE DE RESIDENCE", "CalculRubrique_IndemniteResidence", [](Calc& a) { a.m.CalculRubrique_IndemniteResidence(a.InfosSalaries, a.Rubrique); }},
    {"INDEMNITE DIFFERENTIELLE", "CalculRubrique_Indemnite_Differentielle", [](Calc& a) { a.m.CalculRubrique_Indemnite_Differentielle(a.InfosSalaries, a.Rubrique); }},
    {"INDEMNITE KILOMETRIQUE", "CalculRubrique_IndemniteKilometrique", [](Calc& a) { a.m.CalculRubrique_IndemniteKilometrique(a.InfosSalaries, a.Rubrique); }},
    {"INDEMNITES JOURNALIERES", "CalculRubrique_Indemnites_journalieres", [](Calc& a) { a.m.CalculRubrique_Indemnites_journalieres(a.InfosSalaries, a.Rubrique, a.RsSalariesHisto); }},
    {"INDICE DE REFERENCE", "CalculRubrique_Indice_Reference", [](Calc& a) { a.m.CalculRubrique_Indice_Reference(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"INDICE DE REFERENCE - CAS", "CalculRubrique_Indice_Reference_CAS", [](Calc& a) { a.m.CalculRubrique_Indice_Reference_CAS(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique); }},
    {"INDICE DE REFERENCE - CAS COMMUNAL", "CalculRubrique_Indice_Reference_CAS_Communal", [](Calc& a) { a.m.CalculRubrique_Indice_Reference_CAS_Communal(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique); }},
    {"MGEN", "CalculRubrique_Mgen", [](Calc& a) { a.m.CalculRubrique_Mgen(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto, false); }},
    {"MGEN (-30 ans)", "CalculRubrique_Mgen", [](Calc& a) { a.m.CalculRubrique_Mgen(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto, true); }},
    {"MONTANT FIXE", "CalculRubrique_MontantFixe", [](Calc& a) { a.m.CalculRubrique_MontantFixe(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"MONTANT FIXE ANNUEL", "CalculRubrique_MontantFixeAnnuel", [](Calc& a) { a.m.CalculRubrique_MontantFixeAnnuel(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"MONTANT REFERENCE", "CalculRubrique_MontantReference", [](Calc& a) { a.m.CalculRubrique_MontantReference(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"PRIME INFORMATIQUE", "CalculRubrique_PrimeInformatique", [](Calc& a) { a.m.CalculRubrique_PrimeInformatique(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"RAPPEL REDUCTION SUR HS", "CalculRubrique_RappelReductionHS", [](Calc& a) { a.m.CalculRubrique_RappelReductionHS(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"REDUCTION FILLON", "CalculRubrique_ReductionFillon", [](Calc& a) { a.m.CalculRubrique_ReductionFillon(a.InfosSalaries, a.Rubrique, a.sNomcalcul); }},
    {"REDUCTION FILLON (> 19 AGENTS)", "CalculRubrique_ReductionFillon", [](Calc& a) { a.m.CalculRubrique_ReductionFillon(a.InfosSalaries, a.Rubrique, a.sNomcalcul); }},
    {"REDUCTION SUR HS", "CalculRubrique_ReductionHS", [](Calc& a) { a.m.CalculRubrique_ReductionHS(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"RETENUE A LA SOURCE", "CalculRubrique_Retenue_a_la_source", [](Calc& a) { a.m.CalculRubrique_Retenue_a_la_source(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"RETENUE A LA SOURCE NOUVELLE METHODE", "CalculRubrique_Retenue_a_la_source_NouvelleMethode", [](Calc& a) { a.m.CalculRubrique_Retenue_a_la_source_NouvelleMethode(a.InfosSalaries, a.Rubrique, a.RsVarSalaries); }},
    {"SUJETIONS SPECIALES", "CalculRubrique_SujetionsSpeciales", [](Calc& a) { a.m.CalculRubrique_SujetionsSpeciales(a.InfosSalaries, a.Rubrique); }},
    {"SUPPLEMENT FAMILIAL", "CalculRubrique_SupplementFamilial", [](Calc& a) { a.m.CalculRubrique_SupplementFamilial(a.InfosSalaries, a.Rubrique); }},
    {"SUPPLEMENT FAMILIAL IC", "CalculRubrique_SupplementFamilialIC", [](Calc& a) { a.m.CalculRubrique_SupplementFamilialIC(a.InfosSalaries, a.Rubrique, "A"); }},
    {"TAXE SUR SALAIRE TAUX 1", "CalculRubrique_TaxeSalaire_Taux1", [](Calc& a) { a.m.CalculRubrique_TaxeSalaire_Taux1(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"TAXE SUR SALAIRE TAUX 2", "CalculRubrique_TaxeSalaire_Taux2", [](Calc& a) { a.m.CalculRubrique_TaxeSalaire_Taux2(a.InfosSalaries, a.Rubrique, a.RsVarSalaries, a.RsVarSalariesHisto, a.RsSalariesHisto); }},
    {"TAXE SUR SALAIRE TAUX Z", "none", SansEffet<Calc>},
    {"TRAITEMENT BASE PARTICULIER", "CalculRubrique_TraitementBaseParticulier", [](Calc& a) { a.m.CalculRubrique_TraitementBaseParticulier(a.InfosSalaries, a.RsVarSalaries, a.RsVarSalariesHisto, a.Rubrique, a.RsSalariesHisto); }},
    {"TRAITEMENT FORFAITAIRE ELUS", "CalculRubrique_TraitementForfaitaireElus", [](Calc& a) { a.m.CalculRubrique_TraitementForfaitaireElus(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE ELUS", "CalculRubrique_TraitementIndiciaireElus", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElus(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE ELUS MOIS", "CalculRubrique_TraitementIndiciaireElusMois", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElusMois(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE ELUS PRECEDENT", "CalculRubrique_TraitementIndiciaireElusPrecedent", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElusPrecedent(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE ELUS PRECEDENT MOIS", "CalculRubrique_TraitementIndiciaireElusPrecedentMois", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireElusPrecedentMois(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple", [](Calc& a) { a.m.CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE MOIS", "CalculRubrique_TraitementIndiciaireMois", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireMois(a.InfosSalaries, a.Rubrique); }},
    {"TRAITEMENT INDICIAIRE MOIS PRECEDENT", "CalculRubrique_TraitementIndiciaireMoisPrecedent", [](Calc& a) { a.m.CalculRubrique_TraitementIndiciaireMoisPrecedent(a.InfosSalaries, a.Rubrique); }},
};

}  // namespace

std::span<const Ligne<Prep>> TablePreparationHisto() { return kPreparation; }
std::span<const Ligne<Calc>> TableCalculHisto() { return kCalcul; }

bool MethodeCalculG::Appel_Methode_Preparation_Calcul_General(const std::string& sNomcalcul,
                                                              VarCalculSalarie& InfosSalaries) {
  return SousPiege([&] {
    const auto* ligne = TrouveLigne(TablePreparationHisto(), sNomcalcul);
    if (ligne == nullptr) return;
    Prep a{*this, InfosSalaries};
    Executer(*ligne, a);
  });
}

bool MethodeCalculG::Appel_Methode_Calcul_General(const std::string& sNomcalcul,
                                                  VarCalculSalarie& InfosSalaries,
                                                  SalarieCalculRubrique& Rubrique,
                                                  const RsRef& RsVarSalaries,
                                                  const RsRef& RsVarSalariesHisto,
                                                  const RsRef& RsSalariesHisto) {
  return SousPiege([&] {
    const std::string nom = sNomcalcul;  // the entry works on its own copy of the name
    const auto* ligne = TrouveLigne(TableCalculHisto(), nom);
    if (ligne == nullptr) return;
    Calc a{*this, nom, InfosSalaries, Rubrique, RsVarSalaries, RsVarSalariesHisto, RsSalariesHisto};
    Executer(*ligne, a);
  });
}

}  // namespace orvalis
