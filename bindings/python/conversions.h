// Python values to and from the engine's: texts, checked numbers, cells, tables and the JSON
// arguments of the call table.
#ifndef ORVALIS_BINDINGS_PYTHON_CONVERSIONS_H_
#define ORVALIS_BINDINGS_PYTHON_CONVERSIONS_H_

#include <string>

#include <pybind11/pybind11.h>

#include "orvalis/Recordset.h"
#include "orvalis/value.h"
#include "tools/case_json.h"

namespace orvalis::python {

namespace py = pybind11;

// The module's exceptions: orvalis.Error (a misuse of the module), orvalis.Fault (a fault of
// an operation called directly; the entry points give False instead).
py::handle ClasseErreur();
py::handle ClasseFaute();

// Raises orvalis.Error, or the given Python exception class, with the text.
[[noreturn]] void Leve(const std::string& texte);
[[noreturn]] void Leve(py::handle classe, const std::string& texte);

// Texts cross as UTF-8; bytes that are not UTF-8 (a text cut inside a character) come back as
// surrogate escapes and go out again unchanged.
py::str VersPython(const std::string& texte);
std::string TexteDepuisPython(py::handle objet, const std::string& quoi);

// Checked readings: an int that is not a bool, then its range (OverflowError); a float or an
// int for a double; a bool for a boolean. Another type is a TypeError naming `quoi`.
long long EntierDepuisPython(py::handle objet, const std::string& quoi, long long min, long long max);
double DoubleDepuisPython(py::handle objet, const std::string& quoi);
bool BooleenDepuisPython(py::handle objet, const std::string& quoi);

// A cell: None, bool, float, str.
py::object VersPython(const Value& v);

// A table given by the host: None (no source), a Recordset (shared, not copied), a list of
// dicts (one per row, columns in the order first met) or {"columns": [...], "rows": [...]}.
RsRef TableDepuisPython(py::handle objet, const std::string& quoi);
// The source as a Recordset object sharing it, or None.
py::object VersPython(const RsRef& rs);
// Every row, whatever the filter, as a dict by column.
py::list DictsDepuisTable(const Recordset& rs);

// JSON for the call table, and back.
tools::Json JsonDepuisPython(py::handle objet, const std::string& lieu);
py::object VersPython(const tools::Json& j);

}  // namespace orvalis::python

#endif  // ORVALIS_BINDINGS_PYTHON_CONVERSIONS_H_
