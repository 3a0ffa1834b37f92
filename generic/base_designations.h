// The vocabulary of pay-line bases: each designation is one row {literal, rule}.
//
// The rows live in a few tables by kind (read by id, sums of cumulative totals, formulas).
// RechercheValeurBase tests the designations read by id first, in their order, then looks
// the designation up among the other rows, whose literals are all distinct. Each row says
// whether the historic engine knows it, so that engine can build its narrower resolver
// from the same rows.
#ifndef ORVALIS_GENERIC_BASE_DESIGNATIONS_H_
#define ORVALIS_GENERIC_BASE_DESIGNATIONS_H_

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "orvalis/MoteurCalcul.h"
#include "orvalis/Recordset.h"
#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"

namespace orvalis {

class MethodeCalculG_Nouv;

// What a rule may read: the engine's sources and lookups, the two records and the
// employee's variables. `courant` is the current engine when the caller is one; only the
// rows of the current engine alone use it.
struct ContexteBase {
  MoteurCalcul& m;
  MethodeCalculG_Nouv* courant;
  VarCalculSalarie& InfosSalaries;
  const RsRef& RsVarSalaries;
  SalarieCalculRubrique& Rubrique;
};

using RegleBase = double (*)(ContexteBase&);

// Which engines know a designation.
enum class Connue { DesDeuxMoteurs, DuMoteurCourantSeul };

struct LigneBase {
  std::string_view designation;
  RegleBase regle;
  Connue connue;
};

// One cumulative total with its sign: +1 or -1, its code and its side ("S" employee,
// "P" employer).
struct TermeCumul {
  double signe;
  const char* code;
  const char* type;
};

// Whose month the totals of a row are: the pay run's current totals, or the employee's
// history for the month before gPeriodeEncours.
enum class MoisCumul { Courant, Precedent };

struct LigneCumuls {
  std::string_view designation;
  MoisCumul mois;
  std::vector<TermeCumul> termes;
  Connue connue;
};

// The tables, each in its order of tests.
std::span<const LigneBase> LignesBaseParId();      // "UNE CONSTANTE", "VARIABLE", ...
std::span<const LigneCumuls> LignesBaseCumuls();   // sums of totals, this month or the last
std::span<const LigneBase> LignesBaseFormules();   // record fields and statutory formulas
std::span<const LigneBase> LignesBaseRetenues();   // "SANS RETENUE", training, apprentices

// The sum of a row of totals, term after term from 0.
double SommeCumuls(ContexteBase& c, const LigneCumuls& ligne);

// The base of a designation: the rows read by id first, in order, then the other rows;
// with bHistorique only the rows the historic engine knows. No row matched gives 0.
double ResoudBase(ContexteBase& c, const std::string& sValeurBase, bool bHistorique);

// Whether a resolver knows the designation (with bHistorique: the historic engine's).
bool BaseConnue(std::string_view sValeurBase, bool bHistorique);

// Whether a variable row's effective date lets its value count this month: a null or empty
// Dateeffet always does; a yyyymmdd date does when it is not before gPeriodeEncours.
bool DateEffetAtteinte(const Value& dateEffet, const std::string& gPeriodeEncours);

// The current engine behind a context; a fault when the caller is another engine.
MethodeCalculG_Nouv& MoteurCourant(ContexteBase& c);

}  // namespace orvalis

#endif  // ORVALIS_GENERIC_BASE_DESIGNATIONS_H_
