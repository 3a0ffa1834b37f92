// Rate designations as data: one row per literal, with the rule that values it.
//
// RechercheValeurTauxSalarial and RechercheValeurTauxPatronal walk their tables in order and
// run the row whose literal equals the designation exactly. Each table is a plain array, so
// an engine that knows fewer designations can walk the same tables and skip the literals it
// does not know (TrouveTaux takes that list).
#ifndef ORVALIS_GENERIC_TAUX_REGLES_H_
#define ORVALIS_GENERIC_TAUX_REGLES_H_

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::taux {

// What a rule may read and write for one resolution.
struct Contexte {
  MoteurCalcul& m;
  MethodeCalculG_Nouv* courant;     // the current engine, null for the historic one
  VarCalculSalarie& InfosSalaries;
  const RsRef& RsVarSalaries;
  const RsRef& RsVarSalariesHisto;  // null on the employer side
  const RsRef& RsSalariesHisto;     // null on the employer side
  SalarieCalculRubrique& Rubrique;
  Int32 lId;       // the id of the side: lIdValeurTauxSalarial or lIdValeurTauxPatronal
  bool bPatronal;  // the employer side
  std::string& sType;
};

struct LigneTaux;
using Regle = double (*)(Contexte&, const LigneTaux&);

struct LigneTaux {
  const char* nom;                // the designation, exactly as the host stores it
  Regle regle;
  const char* sType = nullptr;    // the kind written after the rule; null: the rule's own
  const char* sArg = nullptr;     // a column or a code the rule reads
  double dArg = 0;                // a factor the rule applies
};

// The tables, each in its order of tests.
std::span<const LigneTaux> TauxCommuns();            // both sides
std::span<const LigneTaux> TauxPatronaux();          // employer side only
std::span<const LigneTaux> TauxHeuresSupp();         // additional and overtime hours
std::span<const LigneTaux> TauxHoraireSalarie();     // the employee's hourly rate
std::span<const LigneTaux> TauxEnseignement();       // teaching allowances
std::span<const LigneTaux> TauxDivers();             // the rest of the employee side

// The tables of each side, in the order they are walked.
const std::vector<std::span<const LigneTaux>>& TablesSalariales();
const std::vector<std::span<const LigneTaux>>& TablesPatronales();

// The first row named nom exactly, unless nom is one of exclus; null when none.
const LigneTaux* TrouveTaux(const std::vector<std::span<const LigneTaux>>& tables,
                            const std::string& nom, std::span<const std::string_view> exclus = {});

// The current engine behind a context; a fault when the caller is another engine (the rows
// that need it are unknown to the historic resolvers).
MethodeCalculG_Nouv& Courant(Contexte& c);

// Runs the row's rule, then writes the row's kind when it has one.
double Applique(const LigneTaux& l, Contexte& c);

// A whole resolution on the side of the context: the kind cleared, the line's designation
// of that side looked up among the tables (less exclus) and run; 0 when none matches.
double Resoud(const std::vector<std::span<const LigneTaux>>& tables, Contexte& c,
              std::span<const std::string_view> exclus = {});

// Helpers shared by the rules.
bool ModeleIndiciaire(const VarCalculSalarie& InfosSalaries);  // "INDTIT" or "INDNTI"
// The constant of the side's id, times the value, divided by 100 when the constant is "T".
double MajoreParConstante(Contexte& c, double dValeur);

}  // namespace orvalis::taux

#endif  // ORVALIS_GENERIC_TAUX_REGLES_H_
