#include "paie/sql.h"

#include <cmath>

namespace orvalis::paie {

std::string MessageSurUneLigne(const std::string& message) {
  static constexpr char kHex[] = "0123456789abcdef";
  std::string s;
  s.reserve(message.size());
  for (const char c : message) {
    const auto u = static_cast<unsigned char>(c);
    if (u >= 0x20 && u != 0x7f) {
      s += c;
      continue;
    }
    switch (c) {
      case '\n': s += "\\n"; break;
      case '\t': s += "\\t"; break;
      case '\r': s += "\\r"; break;
      default: s += {'\\', 'x', kHex[u >> 4], kHex[u & 0xf]};
    }
  }
  return s;
}

Requete& Requete::Lie(int i, const Value& v) {
  if (v.EstNull()) return LieNull(i);
  if (v.EstTexte()) return Lie(i, v.Chaine());
  if (v.EstBooleen()) return Lie(i, v.Booleen() ? 1 : 0);
  // Whole numbers are stored as integers: SQLite keeps them so, and types read them so.
  const double d = v.Double();
  if (d == static_cast<double>(static_cast<long long>(d)) && std::fabs(d) < 9e15)
    return Lie(i, static_cast<long long>(d));
  return Lie(i, d);
}

void Requete::Execute() {
  while (Pas()) {
  }
  Rearme();
}

Value Requete::Valeur(int i) const {
  switch (Type(i)) {
    case TypeCellule::Null: return Value();
    case TypeCellule::Entier: return Value(static_cast<double>(Entier(i)));
    case TypeCellule::Reel: return Value(Reel(i));
    default: return Value(Texte(i));
  }
}

Requete Connexion::PrepareInsertion(const std::string& table, const std::vector<std::string>& colonnes) {
  std::string sql = "INSERT INTO " + table + " (";
  std::string valeurs;
  for (std::size_t i = 0; i < colonnes.size(); ++i) {
    sql += (i ? ", " : "") + colonnes[i];
    valeurs += i ? ", ?" : "?";
  }
  return Prepare(sql + ") VALUES (" + valeurs + ")");
}

}  // namespace orvalis::paie
