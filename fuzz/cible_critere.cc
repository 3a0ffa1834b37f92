// Fuzz target: a filter criterion on an in-memory source. The whole input is the criterion.
// Setting it either filters or faults (leaving the present filter); the rows under a filter
// are a subset of the table, each of which passes; nothing else may happen.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "frame/filter.h"
#include "frame/memory_recordset.h"
#include "orvalis/fault.h"

namespace {

using orvalis::Fault;
using orvalis::MemoryRecordset;
using orvalis::Value;

void Remplit(MemoryRecordset& rs) {
  const std::vector<std::vector<Value>> lignes = {
      {"CNRACL", 9.7, "202402", true, Value()},
      {"IRCANTEC", 2.8, 202403.0, false, "l'agent"},
      {"cnracl", -1.5, "1,5", Value(), "Mois = 1"},
      {"5", 5.0, "", true, "x' or (("},
      {Value(), 0.0, "0", false, "TRUE"},
  };
  const char* colonnes[] = {"CodeTaux", "Valeur", "Mois", "Actif", "Libelle"};
  for (const auto& l : lignes) {
    rs.AddNew();
    for (std::size_t c = 0; c < l.size(); ++c) rs.SetField(colonnes[c], l[c]);
  }
}

// Sets the filter and walks the rows under it; gives their count, or -1 on a fault.
long Filtre(MemoryRecordset& rs, const std::string& critere) {
  try {
    rs.Filter(critere);
  } catch (const Fault&) {
    return -1;
  }
  long n = 0;
  for (rs.Eof() ? void() : rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    (void)rs.Field("CodeTaux");
    ++n;
  }
  if (n != rs.RecordCount()) std::abort();
  return n;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string critere(reinterpret_cast<const char*>(data), size);

  // The reader alone, and a number read as a bare literal is.
  try {
    (void)orvalis::critere::LireCritere(critere);
  } catch (const Fault&) {
  }
  double d = 0;
  (void)orvalis::critere::LitNombre(critere, d);

  MemoryRecordset rs({"CodeTaux", "Valeur", "Mois", "Actif", "Libelle"});
  Remplit(rs);
  const long total = rs.RecordCount();
  const long n = Filtre(rs, critere);
  if (n > total) std::abort();
  // The indexes follow rows added and changed under a filter; the same criterion set
  // again must agree with a source built afresh with the same rows.
  try {
    rs.AddNew();
    rs.SetField("CodeTaux", Value(critere));
    rs.SetField("Valeur", Value(d));
  } catch (const Fault&) {
    std::abort();
  }
  const long n2 = Filtre(rs, critere);
  MemoryRecordset neuf({"CodeTaux", "Valeur", "Mois", "Actif", "Libelle"});
  Remplit(neuf);
  neuf.AddNew();
  neuf.SetField("CodeTaux", Value(critere));
  neuf.SetField("Valeur", Value(d));
  if (Filtre(neuf, critere) != n2) std::abort();
  return 0;
}
