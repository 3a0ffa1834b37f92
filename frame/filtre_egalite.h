// The filters of the lookups by code and by id: "Column = 'code'" and "Column = id".
//
// On the in-memory source they go straight to its index, with no criterion text to build
// and read; any other source (a host's own) receives the criterion text as it always has.
// A code holding a quote takes the text path everywhere: its criterion can't be read, and
// that stays a fault.
#ifndef ORVALIS_FRAME_FILTRE_EGALITE_H_
#define ORVALIS_FRAME_FILTRE_EGALITE_H_

#include <string>
#include <vector>

#include "orvalis/Recordset.h"
#include "orvalis/numeric.h"

namespace orvalis {

void FiltreCode(Recordset& rs, const char* colonne, const std::string& sCode);
void FiltreId(Recordset& rs, const char* colonne, Int32 lId);
// "Column = 'a' Or Column = 'b' ..." set on the in-memory source from the texts themselves
// (at least one, none holding a quote); false, and nothing done, on any other source, which
// is then given the criterion text.
bool FiltreTextesEnMemoire(Recordset& rs, const char* colonne, const std::vector<std::string>& textes);

}  // namespace orvalis

#endif  // ORVALIS_FRAME_FILTRE_EGALITE_H_
