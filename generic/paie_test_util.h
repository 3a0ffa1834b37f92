// What every pay run of the generic tests shares: an engine for March 2024 with empty
// sources of the usual columns, an employee, a pay line and his variables, and the rows
// the tests put in those sources.
#ifndef ORVALIS_GENERIC_PAIE_TEST_UTIL_H_
#define ORVALIS_GENERIC_PAIE_TEST_UTIL_H_

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::paie_test {

inline RsRef NouvellesVariables(const char* sColonneDate = "Dateeffet") {
  return NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", sColonneDate, "TauxMontant"});
}

inline void AjouteConstante(const RsRef& rs, const std::string& code, const Value& valeur,
                            int id, const Value& tauxMontant) {
  rs->AddNew();
  rs->SetField("CodeConstante", code);
  rs->SetField("IdConstante", id);
  rs->SetField("Valeur", valeur);
  rs->SetField("TauxMontant", tauxMontant);
}

inline void AjouteCumul(const RsRef& rs, const std::string& code, const Value& sal,
                        const Value& pat, int id) {
  rs->AddNew();
  rs->SetField("CodeCumul", code);
  rs->SetField("Idcumul", id);
  rs->SetField("PartSalariale", sal);
  rs->SetField("PartPatronale", pat);
}

// A total of an employee for a month yyyymm.
inline void AjouteHistorique(const RsRef& rs, int idSalarie, const std::string& mois,
                             const std::string& code, const Value& sal, const Value& pat) {
  rs->AddNew();
  rs->SetField("IDSALARIE", idSalarie);
  rs->SetField("Mois", mois);
  rs->SetField("CodeCumul", code);
  rs->SetField("IdCumul", 0);
  rs->SetField("PartSalariale", sal);
  rs->SetField("PartPatronale", pat);
}

inline void AjouteVariable(const RsRef& rs, const std::string& code, const Value& valeur, int id,
                           const Value& dateEffet, const Value& tauxMontant,
                           const char* sColonneDate = "Dateeffet") {
  rs->AddNew();
  rs->SetField("CodeVariable", code);
  rs->SetField("IdVariable", id);
  rs->SetField("Valeur", valeur);
  rs->SetField(sColonneDate, dateEffet);
  rs->SetField("TauxMontant", tauxMontant);
}

// The run itself; each fixture names the columns of its statutory values.
class PaieDeMarsCommune : public ::testing::Test {
 protected:
  PaieDeMarsCommune(const std::vector<std::string>& colonnesFixes,
                    const std::vector<std::string>& colonnesFixesHistorique) {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    m.gRsCumulsHistoriqueSal = NouveauRecordset(
        {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
    m.gRsConstantesFixesHistorique = NouveauRecordset(colonnesFixesHistorique);
    m.gRsConstantesFixes = NouveauRecordset(colonnesFixes);
    m.gRsConstantesFixes->AddNew();
    vars = NouvellesVariables();
    s.lIdSalarie = 42;
  }

  void Constante(const std::string& code, const Value& valeur, int id = 0,
                 const Value& tauxMontant = "M") {
    AjouteConstante(m.gRsConstantes, code, valeur, id, tauxMontant);
  }

  void Fixe(const std::string& champ, const Value& valeur) {
    m.gRsConstantesFixes->SetField(champ, valeur);
  }

  double Base(const std::string& designation, int id = 0) {
    r.sValeurBase = designation;
    r.lIdValeurBase = id;
    return m.RechercheValeurBase(s, vars, r);
  }

  double Coefficient(const std::string& designation, int id = 0) {
    return m.RechercheValeurCoefficient(s, vars, id, designation, r);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
  RsRef vars;
};

}  // namespace orvalis::paie_test

#endif  // ORVALIS_GENERIC_PAIE_TEST_UTIL_H_
