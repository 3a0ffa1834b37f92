// The parts of the module, bound in this order: recordsets, records, engines.
#ifndef ORVALIS_BINDINGS_PYTHON_BINDINGS_H_
#define ORVALIS_BINDINGS_PYTHON_BINDINGS_H_

#include <pybind11/pybind11.h>

namespace orvalis::python {

void LieRecordsets(pybind11::module_& m);
void LieRecords(pybind11::module_& m);
void LieMoteurs(pybind11::module_& m);

}  // namespace orvalis::python

#endif  // ORVALIS_BINDINGS_PYTHON_BINDINGS_H_
