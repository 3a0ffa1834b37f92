#include "tools/case_error.h"

namespace orvalis::tools {

namespace {
std::string Ligne(const std::string& lieu, const std::string& message) {
  std::string texte = (lieu.empty() ? std::string("case") : lieu) + ": " + message;
  // The error is one line on standard error, whatever the texts quoted in it.
  for (char& c : texte)
    if (c == '\n' || c == '\r') c = ' ';
  return texte;
}
}  // namespace

ErreurCas::ErreurCas(const std::string& lieu, const std::string& message)
    : std::runtime_error(Ligne(lieu, message)), lieu_(lieu), message_(message) {}

std::string Sous(const std::string& lieu, std::string_view cle) {
  if (lieu.empty()) return std::string(cle);
  std::string s = lieu;
  s += '.';
  s += cle;
  return s;
}

std::string Indice(const std::string& lieu, std::size_t i) {
  return lieu + "[" + std::to_string(i) + "]";
}

}  // namespace orvalis::tools
