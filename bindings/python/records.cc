// The two records as Python classes: one attribute per field of the field table, with the
// field's type checked on every write.
#include <limits>
#include <memory>

#include "bindings.h"
#include "conversions.h"
#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"
#include "tools/case_json.h"

namespace orvalis::python {

namespace {

const char* NomPython(TypeChamp t) {
  switch (t) {
    case TypeChamp::I16: return "int16";
    case TypeChamp::I32: return "int32";
    case TypeChamp::D: return "float";
    case TypeChamp::S: return "str";
    case TypeChamp::B: return "bool";
    case TypeChamp::RS: return "Recordset";
  }
  return "?";
}

template <typename R>
py::object LitChamp(const R& r, const Champ<R>& c) {
  return std::visit(
      [&](auto R::*membre) -> py::object {
        const auto& v = r.*membre;
        using T = std::remove_cvref_t<decltype(v)>;
        if constexpr (std::is_same_v<T, Int16> || std::is_same_v<T, Int32>) return py::int_(v.value());
        else if constexpr (std::is_same_v<T, double>) return py::float_(v);
        else if constexpr (std::is_same_v<T, bool>) return py::bool_(v);
        else if constexpr (std::is_same_v<T, std::string>) return VersPython(v);
        else return VersPython(RsRef(v));
      },
      c.membre);
}

template <typename R>
void EcritChamp(R& r, const Champ<R>& c, py::handle valeur) {
  const std::string quoi = std::string(tools::NomRecord<R>()) + "." + c.nom;
  std::visit(
      [&](auto R::*membre) {
        auto& v = r.*membre;
        using T = std::remove_cvref_t<decltype(v)>;
        if constexpr (std::is_same_v<T, Int16> || std::is_same_v<T, Int32>) {
          using Rep = typename T::rep;
          v = T(static_cast<Rep>(EntierDepuisPython(valeur, quoi, std::numeric_limits<Rep>::min(),
                                                    std::numeric_limits<Rep>::max())));
        } else if constexpr (std::is_same_v<T, double>) {
          v = DoubleDepuisPython(valeur, quoi);
        } else if constexpr (std::is_same_v<T, bool>) {
          v = BooleenDepuisPython(valeur, quoi);
        } else if constexpr (std::is_same_v<T, std::string>) {
          v = TexteDepuisPython(valeur, quoi);
        } else {
          v = TableDepuisPython(valeur, quoi);
        }
      },
      c.membre);
}

template <typename R>
void LieRecord(py::module_& m, const char* doc) {
  py::class_<R, std::shared_ptr<R>> classe(m, tools::NomRecord<R>(), doc);
  classe.def(py::init([](const py::kwargs& champs) {
               auto r = std::make_shared<R>();
               for (auto [nom, valeur] : champs) {
                 const std::string n = py::str(nom).template cast<std::string>();
                 const Champ<R>* c = TrouveChamp<R>(n);
                 if (c == nullptr)
                   Leve(PyExc_AttributeError, std::string(tools::NomRecord<R>()) + " has no field '" + n + "'");
                 EcritChamp(*r, *c, valeur);
               }
               return r;
             }),
             "A record with every field at its default (0, \"\", False, None), then the fields "
             "given by name.");
  py::dict types;
  for (const Champ<R>& c : Champs<R>()) {
    const Champ<R>* champ = &c;
    classe.def_property(
        c.nom, [champ](const R& r) { return LitChamp(r, *champ); },
        [champ](R& r, py::handle v) { EcritChamp(r, *champ, v); }, NomPython(c.type));
    types[c.nom] = NomPython(c.type);
  }
  classe.attr("fields") = types;
  classe.def(
      "to_dict",
      [](const R& r) {
        py::dict d;
        for (const Champ<R>& c : Champs<R>()) {
          py::object v = LitChamp(r, c);
          if (c.type == TypeChamp::RS && !v.is_none()) v = DictsDepuisTable(*v.cast<RsRef>());
          d[c.nom] = v;
        }
        return d;
      },
      "Every field by name, in the order of the field table; recordsets as lists of dicts.");
  classe.def("copy", [](const R& r) { return std::make_shared<R>(r); },
             "A copy of the record; its recordsets are shared, not copied.");
  classe.def("__repr__", [](const R&) { return std::string("<orvalis.") + tools::NomRecord<R>() + ">"; });
}

}  // namespace

void LieRecords(py::module_& m) {
  LieRecord<VarCalculSalarie>(m, "The employee record of one pay month.");
  LieRecord<SalarieCalculRubrique>(m, "The record of one pay line.");
}

}  // namespace orvalis::python
