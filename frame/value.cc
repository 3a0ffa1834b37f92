// Reading a cell of a tabular source as a number or a text.
#include "orvalis/value.h"

#include <charconv>
#include <string>
#include <system_error>

#include "orvalis/ModOutilsSpec.h"
#include "orvalis/fault.h"

namespace orvalis {

namespace {

bool EstBlanc(char c) { return c == ' ' || c == '\t'; }
bool EstChiffre(char c) { return c >= '0' && c <= '9'; }

// A numeric text: blanks, an optional sign, digits with at most one decimal separator
// ('.' or ','), an optional exponent, blanks. Hosts write both separators.
bool LitNombre(const std::string& s, double& out) {
  std::size_t debut = 0, fin = s.size();
  while (debut < fin && EstBlanc(s[debut])) ++debut;
  while (fin > debut && EstBlanc(s[fin - 1])) --fin;
  std::string t;
  std::size_t i = debut;
  if (i < fin && (s[i] == '+' || s[i] == '-')) {
    if (s[i] == '-') t += '-';
    ++i;
  }
  bool chiffres = false;
  while (i < fin && EstChiffre(s[i])) { t += s[i++]; chiffres = true; }
  if (i < fin && (s[i] == '.' || s[i] == ',')) {
    t += '.';
    ++i;
    while (i < fin && EstChiffre(s[i])) { t += s[i++]; chiffres = true; }
  }
  if (!chiffres) return false;
  if (i < fin && (s[i] == 'e' || s[i] == 'E')) {
    t += 'e';
    ++i;
    if (i < fin && (s[i] == '+' || s[i] == '-')) t += s[i++];
    bool exposant = false;
    while (i < fin && EstChiffre(s[i])) { t += s[i++]; exposant = true; }
    if (!exposant) return false;
  }
  if (i != fin) return false;
  double d = 0;
  const auto r = std::from_chars(t.data(), t.data() + t.size(), d);
  if (r.ec == std::errc::result_out_of_range) Faute("overflow");
  if (r.ec != std::errc() || r.ptr != t.data() + t.size()) return false;
  out = d;
  return true;
}

}  // namespace

double Value::Nombre() const {
  if (EstNull()) Faute("invalid use of null");
  if (EstNombre()) return std::get<double>(v_);
  if (EstBooleen()) return std::get<bool>(v_) ? -1.0 : 0.0;
  double d = 0;
  if (!LitNombre(std::get<std::string>(v_), d))
    Faute("type mismatch: '" + std::get<std::string>(v_) + "' is not a number");
  return d;
}

std::string Value::Texte() const {
  if (EstNull()) Faute("invalid use of null");
  if (EstTexte()) return std::get<std::string>(v_);
  if (EstBooleen()) return std::get<bool>(v_) ? "True" : "False";
  return TexteNombre(std::get<double>(v_));
}

}  // namespace orvalis
