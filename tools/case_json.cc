#include "tools/case_json.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "tools/json_writer.h"

namespace orvalis::tools {

std::string Decrit(const Json& j) {
  switch (j.type()) {
    case Json::value_t::null: return "null";
    case Json::value_t::boolean: return "a boolean";
    case Json::value_t::string: return "a string";
    case Json::value_t::array: return "an array";
    case Json::value_t::object: return "an object";
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned: return "the integer " + j.dump();
    case Json::value_t::number_float: return "the number " + TexteDouble(j.get<double>());
    default: return "an unreadable value";
  }
}

namespace {

// A JSON integer within [min, max], by its exact value.
std::int64_t LitEntier(const Json& j, const std::string& lieu, std::int64_t min, std::int64_t max,
                       const char* nomType) {
  if (j.is_number_float()) {
    // Integers beyond 64 bits are read as floats: they are out of range, not fractions.
    const double d = j.get<double>();
    if (d == std::floor(d) && (d < static_cast<double>(min) || d > static_cast<double>(max)))
      throw ErreurCas(lieu, Decrit(j) + " is out of range for " + nomType + " (" +
                                std::to_string(min) + " to " + std::to_string(max) + ")");
    throw ErreurCas(lieu, std::string("expected ") + nomType + ", got " + Decrit(j) +
                              " written with a fraction or an exponent");
  }
  if (!j.is_number_integer())
    throw ErreurCas(lieu, std::string("expected ") + nomType + ", got " + Decrit(j));
  bool dedans;
  std::int64_t v = 0;
  if (j.is_number_unsigned()) {
    const std::uint64_t u = j.get<std::uint64_t>();
    dedans = u <= static_cast<std::uint64_t>(max);
    v = dedans ? static_cast<std::int64_t>(u) : 0;
  } else {
    v = j.get<std::int64_t>();
    dedans = v >= min && v <= max;
  }
  if (!dedans)
    throw ErreurCas(lieu, j.dump() + " is out of range for " + nomType + " (" +
                              std::to_string(min) + " to " + std::to_string(max) + ")");
  return v;
}

double LitNombreFini(const Json& j, const std::string& lieu, const char* attendu) {
  if (!j.is_number()) throw ErreurCas(lieu, std::string("expected ") + attendu + ", got " + Decrit(j));
  const double d = j.get<double>();
  if (!std::isfinite(d)) throw ErreurCas(lieu, "the number is out of range for a double");
  return d;
}

Value LitCellule(const Json& j, const std::string& lieu) {
  switch (j.type()) {
    case Json::value_t::null: return Value::Null();
    case Json::value_t::boolean: return Value(j.get<bool>());
    case Json::value_t::string: return Value(j.get<std::string>());
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
    case Json::value_t::number_float: return Value(LitNombreFini(j, lieu, "a number"));
    default:
      throw ErreurCas(lieu, "a cell is null, a number, a text or a boolean, got " + Decrit(j));
  }
}

std::string Minuscules(std::string s) {
  for (char& c : s)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return s;
}

// The columns of a table being read, found by name in constant time: a row of thousands of
// keys costs as many look-ups, not a scan of every column for each.
class Colonnes {
 public:
  const std::vector<std::string>& Noms() const { return noms_; }
  std::size_t Taille() const { return noms_.size(); }

  // Adds a column name, refusing an empty name and a name already there in any case.
  void Ajoute(const std::string& nom, const std::string& lieu) {
    if (nom.empty()) throw ErreurCas(lieu, "a column needs a name");
    const auto [it, nouveau] = parMinuscules_.emplace(Minuscules(nom), noms_.size());
    if (!nouveau)
      throw ErreurCas(lieu, "column '" + nom + "' repeats column '" + noms_[it->second] +
                                "' (column names are matched whatever the case)");
    parNom_.emplace(nom, noms_.size());
    noms_.push_back(nom);
  }

  // The place of a column by its exact spelling; Taille() when there is none.
  std::size_t Place(const std::string& nom) const {
    const auto it = parNom_.find(nom);
    return it == parNom_.end() ? noms_.size() : it->second;
  }

 private:
  std::vector<std::string> noms_;
  std::unordered_map<std::string, std::size_t> parNom_;
  std::unordered_map<std::string, std::size_t> parMinuscules_;
};

using Lignes = std::vector<std::vector<Value>>;

// Row objects keyed by column; a missing key is null.
void LitLigneObjet(const Json& ligne, const std::string& lieu, Colonnes& colonnes,
                   bool colonnesOuvertes, Lignes& lignes) {
  std::vector<Value> cellules(colonnes.Taille());
  for (const auto& [nom, valeur] : ligne.items()) {
    const std::string ici = Sous(lieu, nom);
    std::size_t k = colonnes.Place(nom);
    if (k == colonnes.Taille()) {
      if (!colonnesOuvertes) throw ErreurCas(ici, "'" + nom + "' is not a column of the table");
      colonnes.Ajoute(nom, ici);
      cellules.resize(colonnes.Taille());
    }
    cellules[k] = LitCellule(valeur, ici);
  }
  lignes.push_back(std::move(cellules));
}

RsRef Construit(const Colonnes& table, Lignes& lignes, const std::string& lieu) {
  const std::vector<std::string>& colonnes = table.Noms();
  try {
    RsRef rs = NouveauRecordset(colonnes);
    for (auto& ligne : lignes) {
      rs->AddNew();
      ligne.resize(colonnes.size());
      for (std::size_t k = 0; k < colonnes.size(); ++k)
        if (!ligne[k].EstNull()) rs->SetField(colonnes[k], ligne[k]);
    }
    // A source opened by a host stands at its first row; gRsConstantesFixes is read there.
    if (!lignes.empty()) rs->MoveFirst();
    return rs;
  } catch (const Fault& f) {
    throw ErreurCas(lieu, std::string("the table cannot be built: ") + f.what());
  }
}

}  // namespace

Int16 LitInt16(const Json& j, const std::string& lieu) {
  return Int16(LitEntier(j, lieu, std::numeric_limits<std::int16_t>::min(),
                         std::numeric_limits<std::int16_t>::max(), "a 16-bit integer"));
}

Int32 LitInt32(const Json& j, const std::string& lieu) {
  return Int32(LitEntier(j, lieu, std::numeric_limits<std::int32_t>::min(),
                         std::numeric_limits<std::int32_t>::max(), "a 32-bit integer"));
}

double LitDouble(const Json& j, const std::string& lieu) { return LitNombreFini(j, lieu, "a number"); }

std::string LitTexte(const Json& j, const std::string& lieu) {
  if (!j.is_string()) throw ErreurCas(lieu, "expected a string, got " + Decrit(j));
  return j.get<std::string>();
}

bool LitBooleen(const Json& j, const std::string& lieu) {
  if (!j.is_boolean()) throw ErreurCas(lieu, "expected true or false, got " + Decrit(j));
  return j.get<bool>();
}

RsRef LitTable(const Json& j, const std::string& lieu) {
  if (j.is_null()) return nullptr;
  Colonnes colonnes;
  Lignes lignes;
  if (j.is_array()) {
    for (std::size_t i = 0; i < j.size(); ++i) {
      const std::string ici = Indice(lieu, i);
      if (!j[i].is_object())
        throw ErreurCas(ici, "a row of a table is an object, got " + Decrit(j[i]));
      LitLigneObjet(j[i], ici, colonnes, true, lignes);
    }
    return Construit(colonnes, lignes, lieu);
  }
  if (!j.is_object())
    throw ErreurCas(lieu, "expected a table (an array of rows, {\"columns\", \"rows\"} or null), got " +
                              Decrit(j));
  for (const auto& [cle, valeur] : j.items()) {
    (void)valeur;
    if (cle != "columns" && cle != "rows")
      throw ErreurCas(Sous(lieu, cle), "not a key of a table (columns, rows)");
  }
  if (!j.contains("columns")) throw ErreurCas(lieu, "a table object needs \"columns\"");
  if (!j.contains("rows")) throw ErreurCas(lieu, "a table object needs \"rows\"");
  const Json& cols = j["columns"];
  const std::string lieuCols = Sous(lieu, "columns");
  if (!cols.is_array()) throw ErreurCas(lieuCols, "expected an array of column names, got " + Decrit(cols));
  for (std::size_t k = 0; k < cols.size(); ++k) {
    const std::string ici = Indice(lieuCols, k);
    colonnes.Ajoute(LitTexte(cols[k], ici), ici);
  }
  const Json& rows = j["rows"];
  const std::string lieuRows = Sous(lieu, "rows");
  if (!rows.is_array()) throw ErreurCas(lieuRows, "expected an array of rows, got " + Decrit(rows));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::string ici = Indice(lieuRows, i);
    const Json& ligne = rows[i];
    if (ligne.is_object()) {
      LitLigneObjet(ligne, ici, colonnes, false, lignes);
    } else if (ligne.is_array()) {
      if (ligne.size() != colonnes.Taille())
        throw ErreurCas(ici, std::to_string(ligne.size()) + " values for " +
                                 std::to_string(colonnes.Taille()) + " columns");
      std::vector<Value> cellules;
      for (std::size_t k = 0; k < ligne.size(); ++k)
        cellules.push_back(LitCellule(ligne[k], Indice(ici, k)));
      lignes.push_back(std::move(cellules));
    } else {
      throw ErreurCas(ici, "a row is an array of values or an object, got " + Decrit(ligne));
    }
  }
  return Construit(colonnes, lignes, lieu);
}

Json EcritDouble(double d) { return Json(d); }
Json EcritInt16(Int16 i) { return Json(static_cast<std::int64_t>(i.value())); }
Json EcritInt32(Int32 i) { return Json(static_cast<std::int64_t>(i.value())); }

Json EcritCellule(const Value& v) {
  if (v.EstNull()) return nullptr;
  if (v.EstBooleen()) return v.Booleen();
  if (v.EstNombre()) return EcritDouble(v.Double());
  return v.Chaine();
}

Json EcritRecordset(const RsRef& rs) {
  if (!rs) return nullptr;
  Json j = Json::object();
  j["columns"] = rs->Columns();
  Json rows = Json::array();
  for (const auto& ligne : rs->Rows()) {
    Json r = Json::array();
    for (const auto& v : ligne) r.push_back(EcritCellule(v));
    rows.push_back(std::move(r));
  }
  j["rows"] = std::move(rows);
  return j;
}

ValeurChamp LitValeurChamp(TypeChamp t, const Json& j, const std::string& lieu) {
  switch (t) {
    case TypeChamp::I16: return LitInt16(j, lieu);
    case TypeChamp::I32: return LitInt32(j, lieu);
    case TypeChamp::D: return LitDouble(j, lieu);
    case TypeChamp::S: return LitTexte(j, lieu);
    case TypeChamp::B: return LitBooleen(j, lieu);
    case TypeChamp::RS: return LitTable(j, lieu);
  }
  throw ErreurCas(lieu, "field of an unknown type");
}

}  // namespace orvalis::tools
