// The reader of filter criteria: a small recursive descent over the text.
#include "frame/filter.h"

#include <charconv>
#include <functional>
#include <string>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "orvalis/fault.h"

namespace orvalis::critere {

namespace {

bool EstBlanc(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool EstChiffre(char c) { return c >= '0' && c <= '9'; }
bool EstLettre(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool EgalSansCasse(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char x = a[i], y = b[i];
    if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
    if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
    if (x != y) return false;
  }
  return true;
}

class Lecteur {
 public:
  static constexpr int kProfondeurMax = 64;

  explicit Lecteur(std::string_view s) : s_(s) {}

  Noeud Lire() {
    Noeud n = LireOu();
    SauteBlancs();
    if (i_ != s_.size()) Illisible();
    return n;
  }

 private:
  [[noreturn]] void Illisible() const {
    Faute("unreadable filter criterion: " + std::string(s_));
  }

  void SauteBlancs() {
    while (i_ < s_.size() && EstBlanc(s_[i_])) ++i_;
  }

  // The keyword (And / Or) at the position, whatever its case, not followed by a letter.
  bool MotCle(std::string_view mot) {
    SauteBlancs();
    if (s_.size() - i_ < mot.size()) return false;
    if (!EgalSansCasse(s_.substr(i_, mot.size()), mot)) return false;
    const std::size_t apres = i_ + mot.size();
    if (apres < s_.size() && (EstLettre(s_[apres]) || EstChiffre(s_[apres]))) return false;
    i_ = apres;
    return true;
  }

  static Noeud Joint(Noeud::Type type, std::vector<Noeud> enfants) {
    Noeud n;
    n.type = type;
    n.enfants = std::move(enfants);
    return n;
  }

  Noeud LireOu() {
    Noeud premier = LireEt();
    if (!MotCle("or")) return premier;  // the common case: no list to build
    std::vector<Noeud> termes;
    termes.push_back(std::move(premier));
    do termes.push_back(LireEt()); while (MotCle("or"));
    return Joint(Noeud::Type::kOu, std::move(termes));
  }

  Noeud LireEt() {
    Noeud premier = LirePrimaire();
    if (!MotCle("and")) return premier;
    std::vector<Noeud> facteurs;
    facteurs.push_back(std::move(premier));
    do facteurs.push_back(LirePrimaire()); while (MotCle("and"));
    return Joint(Noeud::Type::kEt, std::move(facteurs));
  }

  Noeud LirePrimaire() {
    SauteBlancs();
    if (i_ < s_.size() && s_[i_] == '(') {
      // A criterion is read by recursion, one level a parenthesis: a bound keeps any text,
      // however many parentheses it opens, a fault and never an overflow of the stack.
      if (++profondeur_ > kProfondeurMax)
        Faute("filter criterion nested deeper than " + std::to_string(kProfondeurMax) +
              " parentheses");
      ++i_;
      Noeud n = LireOu();
      --profondeur_;
      SauteBlancs();
      if (i_ >= s_.size() || s_[i_] != ')') Illisible();
      ++i_;
      return n;
    }
    Noeud n;
    n.egalite.colonne = LireColonne();
    SauteBlancs();
    if (i_ >= s_.size() || s_[i_] != '=') Illisible();
    ++i_;
    SauteBlancs();
    LireLitteral(n.egalite);
    return n;
  }

  // A name of letters, digits and '_', or any text between brackets.
  std::string LireColonne() {
    if (i_ < s_.size() && s_[i_] == '[') {
      const std::size_t fin = s_.find(']', i_ + 1);
      if (fin == std::string_view::npos || fin == i_ + 1) Illisible();
      std::string nom(s_.substr(i_ + 1, fin - i_ - 1));
      i_ = fin + 1;
      return nom;
    }
    if (i_ >= s_.size() || !EstLettre(s_[i_])) Illisible();
    const std::size_t debut = i_;
    while (i_ < s_.size() && (EstLettre(s_[i_]) || EstChiffre(s_[i_]))) ++i_;
    std::string nom(s_.substr(debut, i_ - debut));
    if (EgalSansCasse(nom, "and") || EgalSansCasse(nom, "or")) Illisible();
    return nom;
  }

  void LireLitteral(Egalite& e) {
    if (i_ < s_.size() && s_[i_] == '\'') {
      ++i_;
      std::string t;
      for (;;) {
        if (i_ >= s_.size()) Illisible();
        const char c = s_[i_++];
        if (c != '\'') {
          t += c;
        } else if (i_ < s_.size() && s_[i_] == '\'') {
          t += '\'';
          ++i_;
        } else {
          break;
        }
      }
      e.texte = true;
      e.sTexte = std::move(t);
      return;
    }
    // A bare number: sign, digits, decimal point, digits.
    const std::size_t debut = i_;
    if (i_ < s_.size() && (s_[i_] == '-' || s_[i_] == '+')) ++i_;
    while (i_ < s_.size() && (EstChiffre(s_[i_]) || s_[i_] == '.')) ++i_;
    if (!LitNombre(s_.substr(debut, i_ - debut), e.dNombre)) Illisible();
    e.texte = false;
  }

  std::string_view s_;
  std::size_t i_ = 0;
  int profondeur_ = 0;
};

}  // namespace

Noeud LireCritere(std::string_view criterion) { return Lecteur(criterion).Lire(); }

const Noeud& CritereLu(std::string_view criterion) {
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
  };
  // Criteria built with an employee's id or a month never repeat: past the bound the kept
  // ones are dropped and the cache fills again.
  constexpr std::size_t kGardes = 512;
  thread_local std::unordered_map<std::string, Noeud, Hash, std::equal_to<>> lus;
  const auto it = lus.find(criterion);
  if (it != lus.end()) return it->second;
  Noeud n = LireCritere(criterion);  // an unreadable criterion faults and is not kept
  if (lus.size() >= kGardes) lus.clear();
  return lus.emplace(std::string(criterion), std::move(n)).first->second;
}

bool LitNombre(std::string_view s, double& out) {
  std::size_t debut = 0, fin = s.size();
  while (debut < fin && EstBlanc(s[debut])) ++debut;
  while (fin > debut && EstBlanc(s[fin - 1])) --fin;
  char tampon[64];
  std::size_t n = 0;
  std::size_t i = debut;
  auto ajoute = [&](char c) {
    if (n >= sizeof tampon) return false;
    tampon[n++] = c;
    return true;
  };
  if (i < fin && (s[i] == '+' || s[i] == '-')) {
    if (s[i] == '-' && !ajoute('-')) return false;
    ++i;
  }
  bool chiffres = false;
  while (i < fin && EstChiffre(s[i])) {
    if (!ajoute(s[i++])) return false;
    chiffres = true;
  }
  if (i < fin && (s[i] == '.' || s[i] == ',')) {
    if (!ajoute('.')) return false;
    ++i;
    while (i < fin && EstChiffre(s[i])) {
      if (!ajoute(s[i++])) return false;
      chiffres = true;
    }
  }
  if (!chiffres) return false;
  if (i < fin && (s[i] == 'e' || s[i] == 'E')) {
    if (!ajoute('e')) return false;
    ++i;
    if (i < fin && (s[i] == '+' || s[i] == '-') && !ajoute(s[i++])) return false;
    bool exposant = false;
    while (i < fin && EstChiffre(s[i])) {
      if (!ajoute(s[i++])) return false;
      exposant = true;
    }
    if (!exposant) return false;
  }
  if (i != fin) return false;
  double d = 0;
  const auto r = std::from_chars(tampon, tampon + n, d);
  if (r.ec != std::errc() || r.ptr != tampon + n) return false;
  out = d;
  return true;
}

}  // namespace orvalis::critere
