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
      "CalculRubrique_IndemniteCoordination",
  };
  return kEnAttente;
}

void MethodeCalculG_Nouv::CalculRubrique_IndemniteCoordination(VarCalculSalarie& /*InfosSalaries*/, SalarieCalculRubrique& /*Rubrique*/, const std::string& /*sVariante*/) { EnAttente("CalculRubrique_IndemniteCoordination"); }

}  // namespace orvalis
