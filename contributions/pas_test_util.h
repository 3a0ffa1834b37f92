// Reference data of the tax-at-source tests: small in-memory tables built row by row.
#ifndef ORVALIS_CONTRIBUTIONS_PAS_TEST_UTIL_H_
#define ORVALIS_CONTRIBUTIONS_PAS_TEST_UTIL_H_

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/Recordset.h"

namespace orvalis::pas_test {

// A table with the given columns and rows of values, in order.
inline RsRef Table(const std::vector<std::string>& colonnes,
                   std::initializer_list<std::vector<Value>> lignes) {
  RsRef rs = NouveauRecordset(colonnes);
  for (const auto& ligne : lignes) {
    rs->AddNew();
    for (std::size_t i = 0; i < ligne.size(); ++i) rs->SetField(colonnes[i], ligne[i]);
  }
  return rs;
}

inline RsRef Constantes(std::initializer_list<std::pair<const char*, Value>> valeurs) {
  RsRef rs = NouveauRecordset({"CodeConstante", "Valeur"});
  for (const auto& [code, valeur] : valeurs) {
    rs->AddNew();
    rs->SetField("CodeConstante", Value(code));
    rs->SetField("Valeur", valeur);
  }
  return rs;
}

// Totals of the pay run, employee side.
inline RsRef Cumuls(std::initializer_list<std::pair<const char*, double>> valeurs) {
  RsRef rs = NouveauRecordset({"CodeCumul", "PartSalariale", "PartPatronale"});
  for (const auto& [code, valeur] : valeurs) {
    rs->AddNew();
    rs->SetField("CodeCumul", Value(code));
    rs->SetField("PartSalariale", Value(valeur));
    rs->SetField("PartPatronale", Value(0.0));
  }
  return rs;
}

struct CumulMois {
  int lIdSalarie;
  const char* sMois;  // yyyymm
  const char* sCode;
  double dPartSalariale;
};

inline RsRef CumulsHistorique(std::initializer_list<CumulMois> lignes) {
  RsRef rs = NouveauRecordset(
      {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
  for (const auto& l : lignes) {
    rs->AddNew();
    rs->SetField("IDSALARIE", Value(l.lIdSalarie));
    rs->SetField("Mois", Value(l.sMois));
    rs->SetField("CodeCumul", Value(l.sCode));
    rs->SetField("IdCumul", Value(0));
    rs->SetField("PartSalariale", Value(l.dPartSalariale));
    rs->SetField("PartPatronale", Value(0.0));
  }
  return rs;
}

struct Tranche {
  const char* sType;
  Value borneInf;
  Value borneSup;
  Value tauxNeutre;
};

inline RsRef Bareme(std::initializer_list<Tranche> tranches) {
  RsRef rs = NouveauRecordset({"TypeBareme", "BorneInf", "BorneSup", "TauxNeutre"});
  for (const auto& t : tranches) {
    rs->AddNew();
    rs->SetField("TypeBareme", Value(t.sType));
    rs->SetField("BorneInf", t.borneInf);
    rs->SetField("BorneSup", t.borneSup);
    rs->SetField("TauxNeutre", t.tauxNeutre);
  }
  return rs;
}

// The monthly scale "M" in fractions, with shared bounds between brackets, and a quarterly
// scale "T" that the monthly employees must never read.
inline RsRef BaremeMensuel() {
  return Bareme({{"T", 0.0, 4860.0, 0.5},
                 {"M", 0.0, 1620.0, 0.0},
                 {"M", 1620.0, 1683.0, 0.005},
                 {"M", 1683.0, 1791.0, 0.013},
                 {"T", 4860.0, 5049.0, 0.007}});
}

inline RsRef IndemnitesJournalieres(std::initializer_list<Value> montants) {
  RsRef rs = NouveauRecordset({"IJDateDebut", "IJDateFin", "IJPAS"});
  for (const auto& m : montants) {
    rs->AddNew();
    rs->SetField("IJPAS", m);
  }
  return rs;
}

// The elected official's mandates, one row each.
struct Mandat {
  Value salaire;
  Value nonEligible;
  Value designation;
  Value debut;
  Value fin;
  Value brute;
};

inline RsRef Mandats(std::initializer_list<Mandat> mandats) {
  RsRef rs = NouveauRecordset({"Salaire", "EluNonEligibleAbatFraisEmploi", "Designation",
                               "DateDebut", "DateFin", "MontantRemunerationBrute"});
  for (const auto& md : mandats) {
    rs->AddNew();
    rs->SetField("Salaire", md.salaire);
    rs->SetField("EluNonEligibleAbatFraisEmploi", md.nonEligible);
    rs->SetField("Designation", md.designation);
    rs->SetField("DateDebut", md.debut);
    rs->SetField("DateFin", md.fin);
    rs->SetField("MontantRemunerationBrute", md.brute);
  }
  return rs;
}

// The value of a column in a row of a table, by the column's name.
inline Value Colonne(const RsRef& rs, std::size_t ligne, const std::string& colonne) {
  const auto colonnes = rs->Columns();
  for (std::size_t i = 0; i < colonnes.size(); ++i)
    if (colonnes[i] == colonne) return rs->Rows().at(ligne).at(i);
  ADD_FAILURE() << "no column " << colonne;
  return Value();
}

// Rows of a source read back, whatever its filter.
inline std::size_t NbLignes(const RsRef& rs) { return rs->Rows().size(); }

}  // namespace orvalis::pas_test

#endif  // ORVALIS_CONTRIBUTIONS_PAS_TEST_UTIL_H_
