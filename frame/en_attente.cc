// Handlers of MethodeCalculG_Nouv that have not landed yet.
//
// Each stands in for its handler so that the dispatch tables are whole: reaching one is a
// fault, and the entry gives false. A handler that lands takes its body out of this file
// and its name out of kEnAttente.
#include "frame/en_attente.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace {
[[noreturn]] void EnAttente(const char* handler) {
  Faute(std::string("not yet available: ") + handler);
}
}  // namespace

const std::vector<std::string>& NomsEnAttente() {
  static const std::vector<std::string> kEnAttente = {
      "CalculCoefficientDemiTraitement",
      "CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple",
      "dMontantProratiseSuivantDemiTraitement",
      "CalculRubrique_Indemnite_transport_Corse",
      "CalculRubrique_Traitement_Indiciaire_Journalier",
      "CalculRubrique_TraitementHoraireMois",
      "CalculRubrique_TraitementIndiciaireMois",
      "CalculRubrique_TraitementIndiciaireMoisPrecedent",
      "CalculRubrique_DemiTraitementIndiciaire",
      "CalculRubrique_AllocationComplementaireMaladie",
      "CalculRubrique_AllocationComplementaireMaladieNbi",
      "CalculRubrique_BonificationIndiciaire",
      "CalculRubrique_DemiTraitementBonification",
      "CalculRubrique_IndemniteCoordination",
      "CalculRubrique_CPA",
      "CalculRubrique_CFA",
      "CalculRubrique_HeuresComplementaires",
      "CalculRubrique_HeuresComplementairesPrec",
      "CalculRubrique_HS_Moins14",
      "CalculRubrique_HS_Moins14Prec",
      "CalculRubrique_HS_Plus14",
      "CalculRubrique_HS_Plus14Prec",
      "CalculRubrique_HS_Nuit",
      "CalculRubrique_HS_NuitPrec",
      "CalculRubrique_HS_NuitFeriePlus14",
      "CalculRubrique_HS_NuitFeriePlus14Prec",
      "CalculRubrique_HS_Ferie",
      "CalculRubrique_HS_FeriePrec",
      "CalculRubrique_PrimeInformatique",
      "CalculRubrique_FondsSolidarite",
      "CalculRubrique_CreditMunicipal",
      "CalculRubrique_Greve",
      "CalculRubrique_ComplementDifferentiel35H",
      "CalculRubrique_Iat",
      "CalculRubrique_IndemniteKilometrique",
      "CalculRubrique_SujetionsSpeciales",
      "CalculRubrique_Mgen",
      "CalculRubrique_SupplementFamilialIC",
      "CalculRubrique_TraitementBaseParticulier",
      "CalculRubrique_AllocationFormation",
      "CalculRubrique_IndemniteFormation",
      "CalculRubrique_MontantReference",
      "CalculRubrique_TraitementJournalierSmic",
      "CalculRubrique_Irf",
      "CalculRubrique_Ipf",
      "CalculRubrique_Ifse",
      "CalculRubrique_Cia",
      "CalculRubrique_MaintienSalaireHoraire",
      "CalculRubrique_MaintienSalaire",
      "CalculRubrique_TptNonSubroge",
      "CalculRubrique_Carence",
  };
  return kEnAttente;
}

void MethodeCalculG_Nouv::CalculCoefficientDemiTraitement(VarCalculSalarie& /*InfosSalaries*/, const std::string& /*sType*/) { EnAttente("CalculCoefficientDemiTraitement"); }
void MethodeCalculG_Nouv::CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple"); }
std::optional<double> MethodeCalculG_Nouv::dMontantProratiseSuivantDemiTraitement(VarCalculSalarie& /*InfosSalaries*/, double /*dMntInitial*/) { EnAttente("dMontantProratiseSuivantDemiTraitement"); }
void MethodeCalculG_Nouv::CalculRubrique_Indemnite_transport_Corse(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_Indemnite_transport_Corse"); }
void MethodeCalculG_Nouv::CalculRubrique_Traitement_Indiciaire_Journalier(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_Traitement_Indiciaire_Journalier"); }
void MethodeCalculG_Nouv::CalculRubrique_TraitementHoraireMois(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_TraitementHoraireMois"); }
void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireMois(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_TraitementIndiciaireMois"); }
void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireMoisPrecedent(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_TraitementIndiciaireMoisPrecedent"); }
void MethodeCalculG_Nouv::CalculRubrique_DemiTraitementIndiciaire(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/) { EnAttente("CalculRubrique_DemiTraitementIndiciaire"); }
void MethodeCalculG_Nouv::CalculRubrique_AllocationComplementaireMaladie(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_AllocationComplementaireMaladie"); }
void MethodeCalculG_Nouv::CalculRubrique_AllocationComplementaireMaladieNbi(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_AllocationComplementaireMaladieNbi"); }
void MethodeCalculG_Nouv::CalculRubrique_BonificationIndiciaire(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_BonificationIndiciaire"); }
void MethodeCalculG_Nouv::CalculRubrique_DemiTraitementBonification(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/) { EnAttente("CalculRubrique_DemiTraitementBonification"); }
void MethodeCalculG_Nouv::CalculRubrique_IndemniteCoordination(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/) { EnAttente("CalculRubrique_IndemniteCoordination"); }
void MethodeCalculG_Nouv::CalculRubrique_CPA(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_CPA"); }
void MethodeCalculG_Nouv::CalculRubrique_CFA(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_CFA"); }
void MethodeCalculG_Nouv::CalculRubrique_HeuresComplementaires(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_HeuresComplementaires"); }
void MethodeCalculG_Nouv::CalculRubrique_HeuresComplementairesPrec(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/) { EnAttente("CalculRubrique_HeuresComplementairesPrec"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_Moins14(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_HS_Moins14"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_Moins14Prec(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/) { EnAttente("CalculRubrique_HS_Moins14Prec"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_Plus14(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_HS_Plus14"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_Plus14Prec(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/) { EnAttente("CalculRubrique_HS_Plus14Prec"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_Nuit(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_HS_Nuit"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_NuitPrec(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/) { EnAttente("CalculRubrique_HS_NuitPrec"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_NuitFeriePlus14(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const std::string& /*sNomcalcul*/) { EnAttente("CalculRubrique_HS_NuitFeriePlus14"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_NuitFeriePlus14Prec(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/, const std::string& /*sNomcalcul*/) { EnAttente("CalculRubrique_HS_NuitFeriePlus14Prec"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_Ferie(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_HS_Ferie"); }
void MethodeCalculG_Nouv::CalculRubrique_HS_FeriePrec(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/) { EnAttente("CalculRubrique_HS_FeriePrec"); }
void MethodeCalculG_Nouv::CalculRubrique_PrimeInformatique(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_PrimeInformatique"); }
void MethodeCalculG_Nouv::CalculRubrique_FondsSolidarite(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_FondsSolidarite"); }
void MethodeCalculG_Nouv::CalculRubrique_CreditMunicipal(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_CreditMunicipal"); }
void MethodeCalculG_Nouv::CalculRubrique_Greve(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const std::string& /*sVariante*/, const RsRef& /*RsSalariesHisto*/, const RsRef& /*RsVarSalariesHisto*/) { EnAttente("CalculRubrique_Greve"); }
void MethodeCalculG_Nouv::CalculRubrique_ComplementDifferentiel35H(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_ComplementDifferentiel35H"); }
void MethodeCalculG_Nouv::CalculRubrique_Iat(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_Iat"); }
void MethodeCalculG_Nouv::CalculRubrique_IndemniteKilometrique(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_IndemniteKilometrique"); }
void MethodeCalculG_Nouv::CalculRubrique_SujetionsSpeciales(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_SujetionsSpeciales"); }
void MethodeCalculG_Nouv::CalculRubrique_Mgen(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/, const RsRef& /*RsSalariesHisto*/, bool /*bOption*/) { EnAttente("CalculRubrique_Mgen"); }
void MethodeCalculG_Nouv::CalculRubrique_SupplementFamilialIC(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/) { EnAttente("CalculRubrique_SupplementFamilialIC"); }
void MethodeCalculG_Nouv::CalculRubrique_TraitementBaseParticulier(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsSalariesHisto*/) { EnAttente("CalculRubrique_TraitementBaseParticulier"); }
void MethodeCalculG_Nouv::CalculRubrique_AllocationFormation(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_AllocationFormation"); }
void MethodeCalculG_Nouv::CalculRubrique_IndemniteFormation(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, SalarieCalculRubrique& /*Rubrique*/) { EnAttente("CalculRubrique_IndemniteFormation"); }
void MethodeCalculG_Nouv::CalculRubrique_MontantReference(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_MontantReference"); }
void MethodeCalculG_Nouv::CalculRubrique_TraitementJournalierSmic(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsSalariesHisto*/) { EnAttente("CalculRubrique_TraitementJournalierSmic"); }
void MethodeCalculG_Nouv::CalculRubrique_Irf(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_Irf"); }
void MethodeCalculG_Nouv::CalculRubrique_Ipf(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_Ipf"); }
void MethodeCalculG_Nouv::CalculRubrique_Ifse(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_Ifse"); }
void MethodeCalculG_Nouv::CalculRubrique_Cia(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/) { EnAttente("CalculRubrique_Cia"); }
void MethodeCalculG_Nouv::CalculRubrique_MaintienSalaireHoraire(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, SalarieCalculRubrique& /*Rubrique*/, Int16 /*iPourcentage*/) { EnAttente("CalculRubrique_MaintienSalaireHoraire"); }
void MethodeCalculG_Nouv::CalculRubrique_MaintienSalaire(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, Int16 /*iPourcentage*/) { EnAttente("CalculRubrique_MaintienSalaire"); }
void MethodeCalculG_Nouv::CalculRubrique_TptNonSubroge(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, Int16& /*iTauxTptNonSubroge*/) { EnAttente("CalculRubrique_TptNonSubroge"); }
void MethodeCalculG_Nouv::CalculRubrique_Carence(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/, const RsRef& /*RsSalariesHisto*/) { EnAttente("CalculRubrique_Carence"); }

}  // namespace orvalis
