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
      "CalculRubrique_Greve",
      "CalculRubrique_SupplementFamilialIC",
      "CalculRubrique_TraitementBaseParticulier",
      "CalculRubrique_TraitementJournalierSmic",
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
void MethodeCalculG_Nouv::CalculRubrique_Greve(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsVarSalaries*/, const std::string& /*sVariante*/, const RsRef& /*RsSalariesHisto*/, const RsRef& /*RsVarSalariesHisto*/) { EnAttente("CalculRubrique_Greve"); }
void MethodeCalculG_Nouv::CalculRubrique_SupplementFamilialIC(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/) { EnAttente("CalculRubrique_SupplementFamilialIC"); }
void MethodeCalculG_Nouv::CalculRubrique_TraitementBaseParticulier(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsSalariesHisto*/) { EnAttente("CalculRubrique_TraitementBaseParticulier"); }
void MethodeCalculG_Nouv::CalculRubrique_TraitementJournalierSmic(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, const RsRef& /*RsVarSalariesHisto*/, SalarieCalculRubrique& /*Rubrique*/, const RsRef& /*RsSalariesHisto*/) { EnAttente("CalculRubrique_TraitementJournalierSmic"); }
void MethodeCalculG_Nouv::CalculRubrique_MaintienSalaireHoraire(VarCalculSalarie& /*InfosSalaries*/, const RsRef& /*RsVarSalaries*/, SalarieCalculRubrique& /*Rubrique*/, Int16 /*iPourcentage*/) { EnAttente("CalculRubrique_MaintienSalaireHoraire"); }
void MethodeCalculG_Nouv::CalculRubrique_MaintienSalaire(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, Int16 /*iPourcentage*/) { EnAttente("CalculRubrique_MaintienSalaire"); }
void MethodeCalculG_Nouv::CalculRubrique_TptNonSubroge(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, Int16& /*iTauxTptNonSubroge*/) { EnAttente("CalculRubrique_TptNonSubroge"); }
void MethodeCalculG_Nouv::CalculRubrique_Carence(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/, const RsRef& /*RsSalariesHisto*/) { EnAttente("CalculRubrique_Carence"); }

}  // namespace orvalis
