// Dispatch by method name: tables of rows {name, handler, call}.
//
// A row names the handler the rules give it; its call adapts the entry's arguments and the
// row's fixed arguments to that handler. A row whose call is still null stands for a handler
// that has not landed: reaching it is a fault, so the entry gives false.
#ifndef ORVALIS_FRAME_DISPATCH_H_
#define ORVALIS_FRAME_DISPATCH_H_

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "orvalis/Recordset.h"
#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"
#include "orvalis/fault.h"

namespace orvalis {

// The arguments of one call of the calculation entry.
template <typename Moteur>
struct AppelCalcul {
  Moteur& m;
  const std::string& sNomcalcul;
  VarCalculSalarie& InfosSalaries;
  SalarieCalculRubrique& Rubrique;
  const RsRef& RsVarSalaries;
  const RsRef& RsVarSalariesHisto;
  const RsRef& RsSalariesHisto;
};

// The arguments of one call of the preparation entry.
template <typename Moteur>
struct AppelPreparation {
  Moteur& m;
  VarCalculSalarie& InfosSalaries;
};

template <typename Appel>
struct Ligne {
  const char* nom;
  const char* handler;
  void (*executer)(Appel&);
};

// The first row of the table with exactly this name, or null. The index is built once per
// table and keeps the first of equal names, as a walk in table order would.
template <typename Appel>
const Ligne<Appel>* TrouveLigne(std::span<const Ligne<Appel>> table, std::string_view nom) {
  static const auto index = [&] {
    std::unordered_map<std::string_view, const Ligne<Appel>*> m;
    for (const auto& l : table) m.emplace(l.nom, &l);
    return m;
  }();
  auto it = index.find(nom);
  return it == index.end() ? nullptr : it->second;
}

// Runs the row.
template <typename Appel>
void Executer(const Ligne<Appel>& l, Appel& a) {
  l.executer(a);
}

// A name recognised that deliberately does nothing.
template <typename Appel>
void SansEffet(Appel&) {}

// The detachment test under "BASE x TAUX": both detachment day counts above 0 and the
// line one of the eight detachment pension codes.
bool TestDetachement(const VarCalculSalarie& InfosSalaries, const SalarieCalculRubrique& Rubrique);

// The model test under "MAINTIEN SALAIRE ...": the hourly model.
bool TestModeleHoraire(const VarCalculSalarie& InfosSalaries);

// The tables of both engines.
class MethodeCalculG_Nouv;
class MethodeCalculG;
std::span<const Ligne<AppelPreparation<MethodeCalculG_Nouv>>> TablePreparationNouv();
std::span<const Ligne<AppelCalcul<MethodeCalculG_Nouv>>> TableCalculNouv();
std::span<const Ligne<AppelPreparation<MethodeCalculG>>> TablePreparationHisto();
std::span<const Ligne<AppelCalcul<MethodeCalculG>>> TableCalculHisto();

}  // namespace orvalis

#endif  // ORVALIS_FRAME_DISPATCH_H_
