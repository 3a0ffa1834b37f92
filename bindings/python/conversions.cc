#include "conversions.h"

#include <cmath>
#include <limits>
#include <memory>

namespace orvalis::python {

namespace {

// Deeper JSON arguments than this are refused rather than followed: a list that holds itself
// must not recurse without end.
constexpr int kProfondeurMax = 256;

std::string NomTypePython(py::handle objet) { return py::type::handle_of(objet).attr("__name__").cast<std::string>(); }

[[noreturn]] void Refuse(py::handle objet, const std::string& quoi, const char* attendu) {
  Leve(PyExc_TypeError, quoi + " takes " + attendu + ", got " + NomTypePython(objet));
}

tools::Json Json(py::handle objet, const std::string& lieu, int profondeur) {
  if (profondeur > kProfondeurMax) Leve(lieu + ": nested deeper than " + std::to_string(kProfondeurMax) + " levels");
  if (objet.is_none()) return nullptr;
  if (PyBool_Check(objet.ptr())) return objet.ptr() == Py_True;
  if (PyLong_Check(objet.ptr()))
    return EntierDepuisPython(objet, lieu, std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max());
  if (PyFloat_Check(objet.ptr())) return PyFloat_AsDouble(objet.ptr());
  if (PyUnicode_Check(objet.ptr())) return TexteDepuisPython(objet, lieu);
  if (py::isinstance<Recordset>(objet)) return tools::EcritRecordset(objet.cast<RsRef>());
  if (PyList_Check(objet.ptr()) || PyTuple_Check(objet.ptr())) {
    tools::Json tableau = tools::Json::array();
    std::size_t i = 0;
    for (py::handle element : objet) tableau.push_back(Json(element, tools::Indice(lieu, i++), profondeur + 1));
    return tableau;
  }
  if (PyDict_Check(objet.ptr())) {
    tools::Json o = tools::Json::object();
    for (auto [cle, valeur] : py::reinterpret_borrow<py::dict>(objet)) {
      if (!PyUnicode_Check(cle.ptr())) Refuse(cle, lieu + " key", "a str");
      const std::string nom = TexteDepuisPython(cle, lieu + " key");
      o[nom] = Json(valeur, tools::Sous(lieu, nom), profondeur + 1);
    }
    return o;
  }
  Refuse(objet, lieu, "None, a bool, an int, a float, a str, a list, a dict or a Recordset");
}

}  // namespace

void Leve(const std::string& texte) { Leve(ClasseErreur(), texte); }

void Leve(py::handle classe, const std::string& texte) {
  PyErr_SetObject(classe.ptr(), VersPython(texte).ptr());
  throw py::error_already_set();
}

py::str VersPython(const std::string& texte) {
  PyObject* s = PyUnicode_DecodeUTF8(texte.data(), static_cast<Py_ssize_t>(texte.size()), "surrogateescape");
  if (s == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(s);
}

std::string TexteDepuisPython(py::handle objet, const std::string& quoi) {
  if (!PyUnicode_Check(objet.ptr())) Refuse(objet, quoi, "a str");
  PyObject* octets = PyUnicode_AsEncodedString(objet.ptr(), "utf-8", "surrogateescape");
  if (octets == nullptr) throw py::error_already_set();
  const auto garde = py::reinterpret_steal<py::bytes>(octets);
  return std::string(PyBytes_AS_STRING(octets), static_cast<std::size_t>(PyBytes_GET_SIZE(octets)));
}

long long EntierDepuisPython(py::handle objet, const std::string& quoi, long long min, long long max) {
  if (!PyLong_Check(objet.ptr()) || PyBool_Check(objet.ptr())) Refuse(objet, quoi, "an int");
  int deborde = 0;
  const long long v = PyLong_AsLongLongAndOverflow(objet.ptr(), &deborde);
  if (v == -1 && PyErr_Occurred()) throw py::error_already_set();
  if (deborde != 0 || v < min || v > max)
    Leve(PyExc_OverflowError, quoi + ": " + py::str(objet).cast<std::string>() + " is out of range (" +
                                  std::to_string(min) + " to " + std::to_string(max) + ")");
  return v;
}

double DoubleDepuisPython(py::handle objet, const std::string& quoi) {
  if (PyFloat_Check(objet.ptr())) return PyFloat_AsDouble(objet.ptr());
  if (PyLong_Check(objet.ptr()) && !PyBool_Check(objet.ptr())) {
    const double d = PyLong_AsDouble(objet.ptr());
    if (d == -1.0 && PyErr_Occurred()) throw py::error_already_set();
    return d;
  }
  Refuse(objet, quoi, "a float");
}

bool BooleenDepuisPython(py::handle objet, const std::string& quoi) {
  if (!PyBool_Check(objet.ptr())) Refuse(objet, quoi, "a bool");
  return objet.ptr() == Py_True;
}

py::object VersPython(const Value& v) {
  if (v.EstNull()) return py::none();
  if (v.EstBooleen()) return py::bool_(v.Booleen());
  if (v.EstNombre()) return py::float_(v.Double());
  return VersPython(v.Chaine());
}

RsRef TableDepuisPython(py::handle objet, const std::string& quoi) {
  if (objet.is_none()) return nullptr;
  if (py::isinstance<Recordset>(objet)) return objet.cast<RsRef>();
  if (PyList_Check(objet.ptr()) || PyTuple_Check(objet.ptr()) || PyDict_Check(objet.ptr()))
    return tools::LitTable(Json(objet, quoi, 0), quoi);
  Refuse(objet, quoi, "None, a Recordset, a list of dicts or {\"columns\", \"rows\"}");
}

py::object VersPython(const RsRef& rs) { return rs ? py::cast(rs) : py::none(); }

py::list DictsDepuisTable(const Recordset& rs) {
  const std::vector<std::string> colonnes = rs.Columns();
  std::vector<py::str> cles;
  for (const auto& c : colonnes) cles.push_back(VersPython(c));
  py::list lignes;
  for (const auto& ligne : rs.Rows()) {
    py::dict d;
    for (std::size_t i = 0; i < cles.size() && i < ligne.size(); ++i) d[cles[i]] = VersPython(ligne[i]);
    lignes.append(std::move(d));
  }
  return lignes;
}

tools::Json JsonDepuisPython(py::handle objet, const std::string& lieu) { return Json(objet, lieu, 0); }

py::object VersPython(const tools::Json& j) {
  switch (j.type()) {
    case tools::Json::value_t::null: return py::none();
    case tools::Json::value_t::boolean: return py::bool_(j.get<bool>());
    case tools::Json::value_t::number_integer: return py::int_(j.get<std::int64_t>());
    case tools::Json::value_t::number_unsigned: return py::int_(j.get<std::uint64_t>());
    case tools::Json::value_t::number_float: return py::float_(j.get<double>());
    case tools::Json::value_t::string: return VersPython(j.get_ref<const std::string&>());
    case tools::Json::value_t::array: {
      py::list l;
      for (const auto& e : j) l.append(VersPython(e));
      return l;
    }
    case tools::Json::value_t::object: {
      py::dict d;
      for (const auto& [cle, valeur] : j.items()) d[VersPython(cle)] = VersPython(valeur);
      return d;
    }
    default: return py::none();
  }
}

}  // namespace orvalis::python
