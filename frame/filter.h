// Reading the filter criteria of a tabular source.
//
// A criterion is a set of equalities "Column = 'text'" or "Column = 12" joined by And and Or
// (any letter case), And binding tighter than Or, with parentheses for grouping. A quoted
// text doubles its quote ('l''agent'). Blanks between the pieces are optional where the
// pieces can't run together ("CodeCumul = 'M7'OR CodeCumul = 'X'").
#ifndef ORVALIS_FRAME_FILTER_H_
#define ORVALIS_FRAME_FILTER_H_

#include <string>
#include <string_view>
#include <vector>

namespace orvalis::critere {

// One equality: a column and a literal, quoted (texte) or bare (a number).
struct Egalite {
  std::string colonne;
  bool texte = false;
  std::string sTexte;    // when texte
  double dNombre = 0;    // when bare
};

struct Noeud {
  enum class Type { kEgalite, kEt, kOu };
  Type type = Type::kEgalite;
  Egalite egalite;              // kEgalite
  std::vector<Noeud> enfants;   // kEt, kOu: two or more
};

// Reads a criterion; an unreadable one is a Fault quoting it.
Noeud LireCritere(std::string_view criterion);

// The same, read once and kept: the criteria a thread has read, up to a few hundred, are
// looked up by their text. The tree stays valid until the thread's next call.
const Noeud& CritereLu(std::string_view criterion);

// A numeric text as a bare number of a criterion reads it: blanks, a sign, digits with '.'
// or ',' as the decimal separator, an optional exponent. False for anything else.
bool LitNombre(std::string_view s, double& out);

}  // namespace orvalis::critere

#endif  // ORVALIS_FRAME_FILTER_H_
