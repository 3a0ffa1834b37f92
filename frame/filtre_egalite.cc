// The equality filters, typed on the in-memory source.
#include "frame/filtre_egalite.h"

#include <cstdint>
#include <typeinfo>

#include "frame/memory_recordset.h"

namespace orvalis {

namespace {

MemoryRecordset* EnMemoire(Recordset& rs) {
  return typeid(rs) == typeid(MemoryRecordset) ? static_cast<MemoryRecordset*>(&rs) : nullptr;
}

}  // namespace

void FiltreCode(Recordset& rs, const char* colonne, const std::string& sCode) {
  MemoryRecordset* m = EnMemoire(rs);
  if (m != nullptr && sCode.find('\'') == std::string::npos) {
    m->FiltreTexte(colonne, sCode);
    return;
  }
  rs.Filter(std::string(colonne) + " = '" + sCode + "'");
}

void FiltreId(Recordset& rs, const char* colonne, Int32 lId) {
  if (MemoryRecordset* m = EnMemoire(rs)) {
    m->FiltreNombre(colonne, static_cast<double>(lId.value()));
    return;
  }
  rs.Filter(std::string(colonne) + " = " + std::to_string(static_cast<std::int32_t>(lId.value())));
}

}  // namespace orvalis
