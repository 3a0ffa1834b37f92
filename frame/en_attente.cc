// Handlers of MethodeCalculG_Nouv that have not landed yet: none is left. A handler added to
// the dispatch tables before its rule is written stands here as a body that faults, and its
// name in kEnAttente.
#include "frame/en_attente.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

const std::vector<std::string>& NomsEnAttente() {
  static const std::vector<std::string> kEnAttente = {
  };
  return kEnAttente;
}

}  // namespace orvalis
