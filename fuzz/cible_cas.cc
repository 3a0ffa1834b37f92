// Fuzz target: a whole case file, read, checked and run as `orvalis run` runs it. Any input
// gives status 0 (ran) or 2 (refused, one line naming the place); never a crash or a hang.
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "orvalis/MoteurCalcul.h"
#include "tools/case_runner.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Process-wide state a case may leave behind: each input starts from the same.
  orvalis::iTauxTptNonSubroge = 0;
  const std::string texte(reinterpret_cast<const char*>(data), size);
  std::ostringstream sortie, erreurs;
  const int statut = orvalis::tools::LanceCas(texte, "fuzz", sortie, erreurs);
  if (statut != 0 && statut != 2) std::abort();
  if (statut == 2 && erreurs.str().empty()) std::abort();  // a refusal always says why
  return 0;
}
