// Operations that a case calls directly ({"call": NAME, "args": [...]}), one row each.
//
// A row is a name and a function: `Op("Arrondi", &Arrondi)`. The parameter kinds come from
// the signature itself, so adding an operation is adding its row:
//   - a value or const reference is an input, read from its JSON argument;
//   - a non-const reference (double&, std::string&, Int16&) is in/out: it starts from its
//     argument and comes back in "out", in signature order;
//   - VarCalculSalarie& takes "$salarie", SalarieCalculRubrique& takes "$rubrique" (records
//     are never in "out");
//   - std::optional<T> takes "$absent" or a T; double* is an optional output ("$absent" or
//     its initial value).
// A member of MoteurCalcul is callable on both engines, a member of one engine class on that
// engine only, and a free function on both unless the row says otherwise.
#ifndef ORVALIS_TOOLS_CALL_TABLE_H_
#define ORVALIS_TOOLS_CALL_TABLE_H_

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "tools/case_json.h"

namespace orvalis::tools {

// Engines, as a mask.
enum : unsigned { kNouv = 1, kHisto = 2, kLesDeux = kNouv | kHisto };

// What a call works on: the engine object and the two records of the case.
struct ContexteAppel {
  MoteurCalcul& moteur;
  MethodeCalculG_Nouv* nouv;  // null with MethodeCalculG
  MethodeCalculG* histo;      // null with MethodeCalculG_Nouv
  VarCalculSalarie& salarie;
  // The pay line record of the last calc step; before any, made at its first use.
  std::shared_ptr<SalarieCalculRubrique>& rubrique;
};

struct ResultatAppel {
  Json resultat;                 // null for an operation with no result
  Json sorties = Json::array();  // outputs and in/outs, in signature order
  bool avecRubrique = false;     // "$rubrique" was an argument
};

// A call read and checked, ready to run once.
using AppelPrepare = std::function<ResultatAppel(ContexteAppel&)>;

struct Operation {
  std::string nom;
  unsigned moteurs;
  std::vector<std::string> parametres;  // "double", "in/out text", "VarCalculSalarie", ...
  // Reads the arguments (an array) at `lieu`; a wrong count or value is an ErreurCas.
  std::function<AppelPrepare(const Json& args, const std::string& lieu)> prepare;
};

// The table, in one place (call_table.cc).
const std::vector<Operation>& TableDesAppels();

// ---- Parameters by declared type -------------------------------------------------------

namespace appel {

// "$salarie", "$rubrique" and "$absent" stand for records and a left-out argument; they are
// never texts of an argument of another kind.
void RefuseJeton(const Json& j, const std::string& lieu, const char* attendu);

template <typename T>
T LitScalaire(const Json& j, const std::string& lieu) {
  if constexpr (std::is_same_v<T, double>) return LitDouble(j, lieu);
  else if constexpr (std::is_same_v<T, Int16>) return LitInt16(j, lieu);
  else if constexpr (std::is_same_v<T, Int32>) return LitInt32(j, lieu);
  else if constexpr (std::is_same_v<T, int>) return LitInt32(j, lieu).value();
  else if constexpr (std::is_same_v<T, bool>) return LitBooleen(j, lieu);
  else if constexpr (std::is_same_v<T, std::string>) return LitTexte(j, lieu);
  else if constexpr (std::is_same_v<T, RsRef>) return LitTable(j, lieu);
  else static_assert(sizeof(T) == 0, "no JSON reading for this parameter type");
}

template <typename T>
Json EcritScalaire(const T& v) {
  if constexpr (std::is_same_v<T, double>) return EcritDouble(v);
  else if constexpr (std::is_same_v<T, Int16>) return EcritInt16(v);
  else if constexpr (std::is_same_v<T, Int32>) return EcritInt32(v);
  else if constexpr (std::is_same_v<T, RsRef>) return EcritRecordset(v);
  else if constexpr (std::is_same_v<T, std::optional<double>>) return v ? EcritDouble(*v) : Json();
  else return Json(v);
}

template <typename T>
const char* NomType() {
  if constexpr (std::is_same_v<T, double>) return "double";
  else if constexpr (std::is_same_v<T, Int16>) return "16-bit integer";
  else if constexpr (std::is_same_v<T, Int32> || std::is_same_v<T, int>) return "32-bit integer";
  else if constexpr (std::is_same_v<T, bool>) return "boolean";
  else if constexpr (std::is_same_v<T, std::string>) return "text";
  else return "recordset";
}

template <typename T>
struct Entree {
  using Stockage = T;
  static constexpr bool sortie = false, rubrique = false;
  static std::string Decrit() { return NomType<T>(); }
  static Stockage Lit(const Json& j, const std::string& lieu) {
    RefuseJeton(j, lieu, NomType<T>());
    return LitScalaire<T>(j, lieu);
  }
  static const T& Passe(Stockage& s, ContexteAppel&) { return s; }
};

template <typename T>
struct EntreeSortie : Entree<T> {
  static constexpr bool sortie = true;
  static std::string Decrit() { return std::string("in/out ") + NomType<T>(); }
  static T& Passe(T& s, ContexteAppel&) { return s; }
  static Json Valeur(const T& s) { return EcritScalaire(s); }
};

// A recordset argument: a TABLE, null or "$absent" for no source.
struct EntreeSource : Entree<RsRef> {
  static Stockage Lit(const Json& j, const std::string& lieu) {
    if (j.is_string() && j.get_ref<const std::string&>() == "$absent") return nullptr;
    RefuseJeton(j, lieu, "recordset");
    return LitTable(j, lieu);
  }
};

template <typename R>
struct Record {
  using Stockage = std::monostate;
  static constexpr bool sortie = false, rubrique = std::is_same_v<R, SalarieCalculRubrique>;
  static constexpr const char* kJeton =
      std::is_same_v<R, VarCalculSalarie> ? "$salarie" : "$rubrique";
  static std::string Decrit() { return NomRecord<R>(); }
  static Stockage Lit(const Json& j, const std::string& lieu) {
    if (!(j.is_string() && j.get_ref<const std::string&>() == kJeton))
      throw ErreurCas(lieu, std::string("expected \"") + kJeton + "\" for the " + NomRecord<R>() +
                                " record, got " + (j.is_string() ? "\"" + j.get<std::string>() + "\"" : tools::Decrit(j)));
    return {};
  }
  static R& Passe(Stockage&, ContexteAppel& c) {
    if constexpr (std::is_same_v<R, VarCalculSalarie>) {
      return c.salarie;
    } else {
      if (!c.rubrique) c.rubrique = std::make_shared<SalarieCalculRubrique>();
      return *c.rubrique;
    }
  }
};

template <typename T>
struct Optionnel {
  using Stockage = std::optional<T>;
  static constexpr bool sortie = false, rubrique = false;
  static std::string Decrit() { return std::string("optional ") + NomType<T>(); }
  static Stockage Lit(const Json& j, const std::string& lieu) {
    if (j.is_string() && j.get_ref<const std::string&>() == "$absent") return std::nullopt;
    RefuseJeton(j, lieu, NomType<T>());
    return LitScalaire<T>(j, lieu);
  }
  static const Stockage& Passe(Stockage& s, ContexteAppel&) { return s; }
};

// double*: an output written only when the caller gives it a place.
struct SortieOptionnelle {
  using Stockage = std::optional<double>;
  static constexpr bool sortie = true, rubrique = false;
  static std::string Decrit() { return "optional out double"; }
  static Stockage Lit(const Json& j, const std::string& lieu) { return Optionnel<double>::Lit(j, lieu); }
  static double* Passe(Stockage& s, ContexteAppel&) { return s ? &*s : nullptr; }
  static Json Valeur(const Stockage& s) { return s ? EcritDouble(*s) : Json(); }
};

// Declared types without a row here do not compile: a new kind of parameter gets its line.
template <typename P>
struct Param;
template <> struct Param<double> : Entree<double> {};
template <> struct Param<Int16> : Entree<Int16> {};
template <> struct Param<Int32> : Entree<Int32> {};
template <> struct Param<int> : Entree<int> {};
template <> struct Param<bool> : Entree<bool> {};
template <> struct Param<std::string> : Entree<std::string> {};
template <> struct Param<const std::string&> : Entree<std::string> {};
template <> struct Param<const double&> : Entree<double> {};
template <> struct Param<const Int16&> : Entree<Int16> {};
template <> struct Param<const Int32&> : Entree<Int32> {};
template <> struct Param<double&> : EntreeSortie<double> {};
template <> struct Param<Int16&> : EntreeSortie<Int16> {};
template <> struct Param<Int32&> : EntreeSortie<Int32> {};
template <> struct Param<bool&> : EntreeSortie<bool> {};
template <> struct Param<std::string&> : EntreeSortie<std::string> {};
template <> struct Param<RsRef> : EntreeSource {};
template <> struct Param<const RsRef&> : EntreeSource {};
template <> struct Param<VarCalculSalarie&> : Record<VarCalculSalarie> {};
template <> struct Param<SalarieCalculRubrique&> : Record<SalarieCalculRubrique> {};
template <> struct Param<const VarCalculSalarie&> : Record<VarCalculSalarie> {};
template <> struct Param<const SalarieCalculRubrique&> : Record<SalarieCalculRubrique> {};
template <typename T> struct Param<std::optional<T>> : Optionnel<T> {};
template <> struct Param<double*> : SortieOptionnelle {};

template <typename R>
Json EcritResultat(const R& r) {
  if constexpr (std::is_same_v<R, bool> || std::is_same_v<R, std::string>) return Json(r);
  else return EcritScalaire(r);
}

template <typename P, typename S>
void AjouteSortie(Json& sorties, const S& s) {
  if constexpr (Param<P>::sortie) sorties.push_back(Param<P>::Valeur(s));
}

template <typename R, typename... P, typename F, std::size_t... I>
AppelPrepare Prepare(F appelle, [[maybe_unused]] const Json& args,
                     [[maybe_unused]] const std::string& lieu, std::index_sequence<I...>) {
  using Valeurs = std::tuple<typename Param<P>::Stockage...>;
  // Braces read the arguments left to right: the first wrong one is the one reported.
  Valeurs lues{Param<P>::Lit(args[I], Indice(lieu, I))...};
  return [appelle, lues]([[maybe_unused]] ContexteAppel& c) {
    Valeurs v = lues;
    ResultatAppel r;
    if constexpr (std::is_void_v<R>) {
      appelle(c, Param<P>::Passe(std::get<I>(v), c)...);
    } else {
      r.resultat = EcritResultat<R>(appelle(c, Param<P>::Passe(std::get<I>(v), c)...));
    }
    (AjouteSortie<P>(r.sorties, std::get<I>(v)), ...);
    r.avecRubrique = (false || ... || Param<P>::rubrique);
    return r;
  };
}

std::string Signature(const std::string& nom, const std::vector<std::string>& parametres);

template <typename R, typename... P, typename F>
Operation Construit(const char* nom, unsigned moteurs, F appelle) {
  Operation op{nom, moteurs, {Param<P>::Decrit()...}, {}};
  const std::string signature = Signature(op.nom, op.parametres);
  op.prepare = [appelle, signature](const Json& args, const std::string& lieu) -> AppelPrepare {
    if (!args.is_array()) throw ErreurCas(lieu, "expected an array of arguments, got " + Decrit(args));
    if (args.size() != sizeof...(P))
      throw ErreurCas(lieu, signature + " takes " + std::to_string(sizeof...(P)) +
                                " argument" + (sizeof...(P) == 1 ? "" : "s") + ", got " +
                                std::to_string(args.size()));
    return Prepare<R, P...>(appelle, args, lieu, std::index_sequence_for<P...>{});
  };
  return op;
}

template <typename C>
C& Objet(ContexteAppel& c) {
  if constexpr (std::is_same_v<C, MoteurCalcul>) return c.moteur;
  else if constexpr (std::is_same_v<C, MethodeCalculG_Nouv>) return *c.nouv;
  else return *c.histo;
}

template <typename C>
constexpr unsigned MoteursDe() {
  if constexpr (std::is_same_v<C, MoteurCalcul>) return kLesDeux;
  else if constexpr (std::is_same_v<C, MethodeCalculG_Nouv>) return kNouv;
  else return kHisto;
}

}  // namespace appel

// A member operation of an engine class, or of their common base.
template <typename C, typename R, typename... P>
Operation Op(const char* nom, R (C::*f)(P...)) {
  return appel::Construit<R, P...>(nom, appel::MoteursDe<C>(), [f](ContexteAppel& c, auto&&... a) -> R {
    return (appel::Objet<C>(c).*f)(std::forward<decltype(a)>(a)...);
  });
}

template <typename C, typename R, typename... P>
Operation Op(const char* nom, R (C::*f)(P...) const) {
  return appel::Construit<R, P...>(nom, appel::MoteursDe<C>(), [f](ContexteAppel& c, auto&&... a) -> R {
    return (appel::Objet<C>(c).*f)(std::forward<decltype(a)>(a)...);
  });
}

// A utility: a free function, on the engines of the mask.
template <typename R, typename... P>
Operation Op(const char* nom, R (*f)(P...), unsigned moteurs = kLesDeux) {
  return appel::Construit<R, P...>(nom, moteurs, [f](ContexteAppel&, auto&&... a) -> R {
    return f(std::forward<decltype(a)>(a)...);
  });
}

}  // namespace orvalis::tools

#endif  // ORVALIS_TOOLS_CALL_TABLE_H_
