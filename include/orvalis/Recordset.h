// The tabular data contract: all the engine needs of a source.
//
// A recordset has named columns (matched whatever their case), rows, a current position
// and a filter. The engine reads reference sources through filters and named columns and
// writes rows only into the detail tables it creates itself.
#ifndef ORVALIS_RECORDSET_H_
#define ORVALIS_RECORDSET_H_

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "orvalis/value.h"

namespace orvalis {

class Recordset {
 public:
  virtual ~Recordset() = default;

  // Number of rows that pass the present filter.
  virtual long RecordCount() = 0;
  // To the first row that passes; a Fault when no row passes.
  virtual void MoveFirst() = 0;
  // To the next row that passes; a Fault when already at the end.
  virtual void MoveNext() = 0;
  // True when no row stands at the position.
  virtual bool Eof() = 0;
  // Sets the filter: equalities "Column = 'text'" or "Column = 12" joined by And / Or
  // (any letter case). Moves to the first row that passes. A criterion that cannot be read,
  // or that names a missing column, is a Fault and leaves the present filter; a blank one
  // clears the filter.
  virtual void Filter(const std::string& criterion) = 0;
  // Clears the filter (the host's "Filter = 0") and moves to the first row.
  virtual void ClearFilter() = 0;
  // The column's value in the current row; a missing column, or no current row, is a Fault.
  virtual Value Field(const std::string& column) = 0;
  // Writes the column of the current row; same faults as Field.
  virtual void SetField(const std::string& column, const Value& v) = 0;
  // Appends an empty row (all nulls) and makes it the current row.
  virtual void AddNew() = 0;
  // Adds a column, null in every row, for hosts building a table. A name already present
  // (whatever its case), or a source that can't grow, is a Fault.
  virtual void AjouteColonne(const std::string& column);

  // The whole content, all rows in order, whatever the filter: for hosts and tools.
  virtual std::vector<std::string> Columns() const = 0;
  virtual std::vector<std::vector<Value>> Rows() const = 0;
};

// A counted reference to a source, shared with the host; null means "no source".
using RsRef = std::shared_ptr<Recordset>;

// A new in-memory source with the given columns and no rows. A column name is not empty and
// is one name with no other (see MemeNomDeColonne): a Fault names the first that is not.
RsRef NouveauRecordset(const std::vector<std::string>& columns);

// Whether a source takes two column names for one: equal but for the case of A to Z.
bool MemeNomDeColonne(std::string_view a, std::string_view b);

// The source behind a reference; "no source" is a Fault naming it.
Recordset& Source(const RsRef& rs, const char* name);

}  // namespace orvalis

#endif  // ORVALIS_RECORDSET_H_
