// A scanning source, for comparison only: the classic data-access layer that keeps its rows
// in a vector, reads the criterion text on every filter and walks every row to answer it,
// and finds a column by comparing its name with each column's.
#ifndef ORVALIS_BENCHMARKS_SCAN_RECORDSET_H_
#define ORVALIS_BENCHMARKS_SCAN_RECORDSET_H_

#include <string>
#include <vector>

#include "orvalis/Recordset.h"

namespace orvalis::bench {

// A new scanning source with the given columns and no rows.
RsRef NouveauRecordsetBalayage(const std::vector<std::string>& columns);

}  // namespace orvalis::bench

#endif  // ORVALIS_BENCHMARKS_SCAN_RECORDSET_H_
