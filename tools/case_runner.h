// The case runner: reads a case file whole, checks it, then drives one engine object through
// its steps and gives back what the engine wrote.
//
// Reading and checking come first and touch no engine: a case that cannot be run as written
// is an ErreurCas before anything runs, and nothing is printed.
#ifndef ORVALIS_TOOLS_CASE_RUNNER_H_
#define ORVALIS_TOOLS_CASE_RUNNER_H_

#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

#include "tools/call_table.h"
#include "tools/case_json.h"

namespace orvalis::tools {

enum class TypeMoteur { Nouv, Histo };

// An engine recordset property by its exact name.
struct DefSource {
  const char* nom;
  RsRef MoteurCalcul::*commun;         // a property of both engines, or null
  RsRef MethodeCalculG_Nouv::*nouv;    // a property of MethodeCalculG_Nouv only, or null
};

// The recordset properties of the engines, in one table.
const std::vector<DefSource>& TableDesSources();

// The operation of the call table by exact name on that engine; an unknown name, or one of
// the other engine only, is an ErreurCas at `lieu`.
const Operation& TrouveOperation(const std::string& nom, TypeMoteur m, const std::string& lieu);

struct AffectationSource {
  const DefSource* source;
  RsRef valeur;  // null: no source
};

struct EtapePrepare {
  std::string nom;
  bool snapshot = false;
};

struct EtapeCalc {
  std::string nom;
  std::vector<Affectation<SalarieCalculRubrique>> rubrique;
  RsRef RsVarSalaries, RsVarSalariesHisto, RsSalariesHisto;  // null when absent
  bool garde = false;  // keep_rubrique
  bool snapshot = false;
};

struct EtapeSet {
  std::vector<Affectation<VarCalculSalarie>> champs;
};

struct EtapeSources {
  std::vector<AffectationSource> sources;
};

struct EtapeCall {
  const Operation* operation;
  AppelPrepare appel;
  bool snapshot = false;
};

using Etape = std::variant<EtapePrepare, EtapeCalc, EtapeSet, EtapeSources, EtapeCall>;

// A case read and checked. Its tables are built already; it runs once.
struct Cas {
  TypeMoteur moteur = TypeMoteur::Nouv;
  std::string gPeriodeEncours;
  std::vector<AffectationSource> sources;
  std::vector<Affectation<VarCalculSalarie>> salarie;
  std::vector<Etape> etapes;
};

// The largest case text read: a longer one is an error before it is parsed, and a reader
// need not take more than one byte past it.
inline constexpr std::size_t kCasTailleMax = std::size_t{64} << 20;

// The JSON text of a case (objects keep their key order; a key given twice is an error).
// Limits: kCasTailleMax bytes; 256 levels of arrays and objects; 1,024 keys in an object;
// 100,000 elements in an array; 65,536 bytes in a text or a key.
Json LitTexteJson(const std::string& texte, const std::string& nomEntree);
// The case from its JSON.
Cas LitCas(const Json& j);
// Runs the case on a new engine object: {"steps", "salarie", "engine", "messages"}.
Json ExecuteCas(Cas& cas);

// Reads, checks, runs and prints one case: the output on `sortie` and status 0, or one line
// on `erreurs` and status 2. `nomEntree` names the input in the messages about its text.
int LanceCas(const std::string& texte, const std::string& nomEntree, std::ostream& sortie,
             std::ostream& erreurs);

}  // namespace orvalis::tools

#endif  // ORVALIS_TOOLS_CASE_RUNNER_H_
