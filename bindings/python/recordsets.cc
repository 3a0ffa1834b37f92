// Recordsets as Python objects: built from a list of dicts, read back as one, shared with the
// engine (the engine sees the host's writes and the host sees the engine's).
#include <memory>

#include "bindings.h"
#include "conversions.h"

namespace orvalis::python {

namespace {

RsRef Construit(py::handle lignes, const py::object& colonnes) {
  if (colonnes.is_none()) {
    RsRef rs = TableDepuisPython(lignes, "rows");
    return rs ? rs : NouveauRecordset({});
  }
  py::dict table;
  table["columns"] = colonnes;
  table["rows"] = lignes.is_none() ? py::list() : py::reinterpret_borrow<py::object>(lignes);
  return TableDepuisPython(table, "table");
}

std::size_t Position(const Recordset& rs, long long i) {
  const long long n = static_cast<long long>(rs.Rows().size());
  if (i < 0) i += n;
  if (i < 0 || i >= n) throw py::index_error("no row " + std::to_string(i) + " (" + std::to_string(n) + " rows)");
  return static_cast<std::size_t>(i);
}

}  // namespace

void LieRecordsets(py::module_& m) {
  py::class_<Recordset, std::shared_ptr<Recordset>>(
      m, "Recordset",
      "A table shared with the engine: named columns (matched whatever their case) and rows.")
      .def(py::init(&Construit), py::arg("rows") = py::none(), py::arg("columns") = py::none(),
           "From a list of dicts (one per row; columns in the order first met, a missing key "
           "is null) or, with `columns`, the declared columns and rows as dicts or lists.")
      .def_property_readonly("columns", [](const Recordset& rs) {
        py::list l;
        for (const auto& c : rs.Columns()) l.append(VersPython(c));
        return l;
      })
      .def("to_list", [](const Recordset& rs) { return DictsDepuisTable(rs); },
           "Every row, whatever the filter, as a dict by column.")
      .def("__len__", [](const Recordset& rs) { return rs.Rows().size(); })
      .def("__getitem__", [](const Recordset& rs, long long i) -> py::object {
        const py::list lignes = DictsDepuisTable(rs);
        return lignes[Position(rs, i)];
      })
      .def("__iter__", [](const Recordset& rs) { return DictsDepuisTable(rs).attr("__iter__")(); })
      .def("__repr__", [](const Recordset& rs) {
        return "<orvalis.Recordset " + std::to_string(rs.Columns().size()) + " columns, " +
               std::to_string(rs.Rows().size()) + " rows>";
      });
}

}  // namespace orvalis::python
