#include "paie/mois_outils.h"

#include <cctype>

#include <fmt/format.h>

#include "paie/magasin.h"

namespace orvalis::paie {

namespace {

bool Chiffres(const std::string& s) {
  if (s.empty()) return false;
  for (char c : s)
    if (!std::isdigit(static_cast<unsigned char>(c))) return false;
  return true;
}

}  // namespace

std::string CleMois(const std::string& texte) {
  std::string annee, mois;
  if (texte.size() == 7 && texte[4] == '-') {
    annee = texte.substr(0, 4);
    mois = texte.substr(5, 2);
  } else if (texte.size() == 7 && texte[2] == '/') {
    annee = texte.substr(3, 4);
    mois = texte.substr(0, 2);
  } else if (texte.size() == 6) {
    annee = texte.substr(0, 4);
    mois = texte.substr(4, 2);
  }
  if (!Chiffres(annee) || !Chiffres(mois) || std::stoi(mois) < 1 || std::stoi(mois) > 12 ||
      std::stoi(annee) < 1900)
    throw ErreurMagasin("'" + texte + "' is not a month (write it 2024-03)");
  return annee + mois;
}

std::string DecaleMois(const std::string& mois, int n) {
  int total = std::stoi(mois.substr(0, 4)) * 12 + std::stoi(mois.substr(4, 2)) - 1 + n;
  return fmt::format("{:04d}{:02d}", total / 12, total % 12 + 1);
}

std::string AfficheMois(const std::string& mois) { return mois.substr(0, 4) + "-" + mois.substr(4, 2); }

std::string PeriodeEncours(const std::string& mois) {
  return "01/" + mois.substr(4, 2) + "/" + mois.substr(0, 4);
}

std::string MoisEnLettres(const std::string& mois) {
  static const char* const kNoms[] = {"janvier", "février", "mars",      "avril",   "mai",      "juin",
                                      "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};
  return std::string(kNoms[std::stoi(mois.substr(4, 2)) - 1]) + " " + mois.substr(0, 4);
}

}  // namespace orvalis::paie
