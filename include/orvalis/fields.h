// Field tables: every public field of a record by its exact name, its type and its place.
//
// The records are built from one list each (VarCalculSalarie.fields,
// SalarieCalculRubrique.fields); the same list builds the table, so a host, the case runner
// or a binding reads and writes fields by name without a second list of names.
#ifndef ORVALIS_FIELDS_H_
#define ORVALIS_FIELDS_H_

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "orvalis/Recordset.h"
#include "orvalis/numeric.h"

namespace orvalis {

enum class TypeChamp { I16, I32, D, S, B, RS };

// C++ types of the field kinds, by the prefix of the name.
using I16_t = Int16;
using I32_t = Int32;
using D_t = double;
using S_t = std::string;
using B_t = bool;
using RS_t = RsRef;

template <typename R>
struct Champ {
  const char* nom;
  TypeChamp type;
  std::variant<Int16 R::*, Int32 R::*, double R::*, std::string R::*, bool R::*, RsRef R::*>
      membre;
};

// Specialised for each record.
template <typename R>
std::span<const Champ<R>> Champs();

// The field by exact name (case-sensitive), or null.
template <typename R>
const Champ<R>* TrouveChamp(std::string_view nom) {
  for (const auto& c : Champs<R>())
    if (nom == c.nom) return &c;
  return nullptr;
}

}  // namespace orvalis

#endif  // ORVALIS_FIELDS_H_
