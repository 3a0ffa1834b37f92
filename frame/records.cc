// Field tables of the two records, built from their field lists.
#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"

namespace orvalis {

#define ORVALIS_FIELD(T, name) {#name, TypeChamp::T, &R::name},

template <>
std::span<const Champ<VarCalculSalarie>> Champs<VarCalculSalarie>() {
  using R = VarCalculSalarie;
  static const Champ<R> kChamps[] = {
#include "orvalis/VarCalculSalarie.fields"
  };
  return kChamps;
}

template <>
std::span<const Champ<SalarieCalculRubrique>> Champs<SalarieCalculRubrique>() {
  using R = SalarieCalculRubrique;
  static const Champ<R> kChamps[] = {
#include "orvalis/SalarieCalculRubrique.fields"
  };
  return kChamps;
}

#undef ORVALIS_FIELD

}  // namespace orvalis
