// The equality filters, typed on the in-memory source.
#include "frame/filtre_egalite.h"

#include <algorithm>
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

bool FiltreTextesEnMemoire(Recordset& rs, const char* colonne, const std::vector<std::string>& textes) {
  MemoryRecordset* m = EnMemoire(rs);
  const auto sansQuote = [](const std::string& t) { return t.find('\'') == std::string::npos; };
  if (m == nullptr || textes.empty() || !std::all_of(textes.begin(), textes.end(), sansQuote))
    return false;
  m->FiltreTextes(colonne, textes);
  return true;
}

void FiltreId(Recordset& rs, const char* colonne, Int32 lId) {
  if (MemoryRecordset* m = EnMemoire(rs)) {
    m->FiltreNombre(colonne, static_cast<double>(lId.value()));
    return;
  }
  rs.Filter(std::string(colonne) + " = " + std::to_string(static_cast<std::int32_t>(lId.value())));
}

}  // namespace orvalis
