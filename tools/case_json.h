// Conversions between the JSON of a case file and the engine's values: numbers of each
// width, texts, booleans, tables (recordsets) and whole records by their field tables.
//
// Reading checks the JSON type and the range and throws ErreurCas naming the place; writing
// gives the JSON that the output prints (doubles stay doubles, integers stay integers).
#ifndef ORVALIS_TOOLS_CASE_JSON_H_
#define ORVALIS_TOOLS_CASE_JSON_H_

#include <string>
#include <variant>
#include <vector>

#include <nlohmann/json.hpp>

#include "orvalis/Recordset.h"
#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"
#include "orvalis/fields.h"
#include "orvalis/numeric.h"
#include "tools/case_error.h"

namespace orvalis::tools {

// Objects keep their keys in the order written: a table's columns follow the first row.
using Json = nlohmann::ordered_json;

// "a string", "an array", "the number 2.5", ... for the messages.
std::string Decrit(const Json& j);

Int16 LitInt16(const Json& j, const std::string& lieu);
Int32 LitInt32(const Json& j, const std::string& lieu);
double LitDouble(const Json& j, const std::string& lieu);
std::string LitTexte(const Json& j, const std::string& lieu);
bool LitBooleen(const Json& j, const std::string& lieu);
// A TABLE (array of row objects, or {"columns", "rows"}) as a new in-memory recordset
// standing at its first row, or null for JSON null.
RsRef LitTable(const Json& j, const std::string& lieu);

// Doubles as JSON floats (printed in their shortest exact form), integers as integers.
Json EcritDouble(double d);
Json EcritInt16(Int16 i);
Json EcritInt32(Int32 i);
Json EcritCellule(const Value& v);
// {"columns": [...], "rows": [[...]]} with every row whatever the filter, or null.
Json EcritRecordset(const RsRef& rs);

// ---- Records by their field tables ----------------------------------------------------

using ValeurChamp = std::variant<Int16, Int32, double, std::string, bool, RsRef>;

template <typename R>
struct Affectation {
  const Champ<R>* champ;
  ValeurChamp valeur;
};

template <typename R>
const char* NomRecord();
template <>
inline const char* NomRecord<VarCalculSalarie>() { return "VarCalculSalarie"; }
template <>
inline const char* NomRecord<SalarieCalculRubrique>() { return "SalarieCalculRubrique"; }

// The value of a field of type t, read from JSON.
ValeurChamp LitValeurChamp(TypeChamp t, const Json& j, const std::string& lieu);

// An object of fields by exact name, checked against the record's field table.
template <typename R>
std::vector<Affectation<R>> LitChamps(const Json& objet, const std::string& lieu) {
  if (!objet.is_object()) throw ErreurCas(lieu, "expected an object of fields, got " + Decrit(objet));
  std::vector<Affectation<R>> champs;
  for (const auto& [nom, valeur] : objet.items()) {
    const std::string ici = Sous(lieu, nom);
    const Champ<R>* c = TrouveChamp<R>(nom);
    if (c == nullptr)
      throw ErreurCas(ici, std::string(NomRecord<R>()) + " has no field '" + nom + "'");
    champs.push_back({c, LitValeurChamp(c->type, valeur, ici)});
  }
  return champs;
}

// Writes the fields into the record, in order, as a host does.
template <typename R>
void Applique(R& record, const std::vector<Affectation<R>>& champs) {
  for (const auto& a : champs) {
    std::visit(
        [&](auto R::*membre) {
          using T = std::remove_reference_t<decltype(record.*membre)>;
          record.*membre = std::get<T>(a.valeur);
        },
        a.champ->membre);
  }
}

// Every field of the record, in the order of its field table.
template <typename R>
Json EcritRecord(const R& record) {
  Json j = Json::object();
  for (const auto& c : Champs<R>()) {
    std::visit(
        [&](auto R::*membre) {
          const auto& v = record.*membre;
          using T = std::remove_cvref_t<decltype(v)>;
          if constexpr (std::is_same_v<T, Int16>) j[c.nom] = EcritInt16(v);
          else if constexpr (std::is_same_v<T, Int32>) j[c.nom] = EcritInt32(v);
          else if constexpr (std::is_same_v<T, double>) j[c.nom] = EcritDouble(v);
          else if constexpr (std::is_same_v<T, RsRef>) j[c.nom] = EcritRecordset(v);
          else j[c.nom] = v;
        },
        c.membre);
  }
  return j;
}

}  // namespace orvalis::tools

#endif  // ORVALIS_TOOLS_CASE_JSON_H_
