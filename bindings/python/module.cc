// The Python module `orvalis`: the engine classes, their records and recordsets, the
// operations of the call table.
#include "bindings.h"
#include "conversions.h"
#include "orvalis/fault.h"
#include "orvalis/orvalis.h"
#include "tools/case_error.h"

namespace orvalis::python {

namespace {
py::handle gErreur, gFaute;
}  // namespace

py::handle ClasseErreur() { return gErreur; }
py::handle ClasseFaute() { return gFaute; }

}  // namespace orvalis::python

PYBIND11_MODULE(orvalis, m) {
  namespace py = pybind11;
  using namespace orvalis::python;
  m.doc() = "Payroll calculation engine for French public employers.";
  m.attr("__version__") = ORVALIS_VERSION;
  // A call or a table the module cannot take as written; a fault of the engine below it.
  gErreur = py::register_exception<orvalis::tools::ErreurCas>(m, "Error", PyExc_Exception).ptr();
  gFaute = py::register_exception<orvalis::Fault>(m, "Fault", gErreur).ptr();
  LieRecordsets(m);
  LieRecords(m);
  LieMoteurs(m);
}
