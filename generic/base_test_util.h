// A pay run for the tests of the base and coefficient resolvers: an engine for March 2024
// with empty sources of the usual columns, an employee, a pay line and his variables.
#ifndef ORVALIS_GENERIC_BASE_TEST_UTIL_H_
#define ORVALIS_GENERIC_BASE_TEST_UTIL_H_

#include <gtest/gtest.h>

#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::test {

class PaieDeMars : public ::testing::Test {
 protected:
  PaieDeMars() {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    m.gRsCumulsHistoriqueSal = NouveauRecordset(
        {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
    m.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "Point", "SmicHor", "HrsMois"});
    m.gRsConstantesFixes = NouveauRecordset({"Point", "PlafSecu", "SmicHor", "HrsMois"});
    m.gRsConstantesFixes->AddNew();
    vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "Dateeffet", "TauxMontant"});
    s.lIdSalarie = 42;
  }

  void Cumul(const std::string& code, const Value& sal, const Value& pat = Value(),
             int id = 0) {
    m.gRsCumuls->AddNew();
    m.gRsCumuls->SetField("CodeCumul", code);
    m.gRsCumuls->SetField("Idcumul", id);
    m.gRsCumuls->SetField("PartSalariale", sal);
    m.gRsCumuls->SetField("PartPatronale", pat);
  }

  void Historique(const std::string& mois, const std::string& code, const Value& sal,
                  int idSalarie = 42) {
    m.gRsCumulsHistoriqueSal->AddNew();
    m.gRsCumulsHistoriqueSal->SetField("IDSALARIE", idSalarie);
    m.gRsCumulsHistoriqueSal->SetField("Mois", mois);
    m.gRsCumulsHistoriqueSal->SetField("CodeCumul", code);
    m.gRsCumulsHistoriqueSal->SetField("IdCumul", 0);
    m.gRsCumulsHistoriqueSal->SetField("PartSalariale", sal);
    m.gRsCumulsHistoriqueSal->SetField("PartPatronale", 0.0);
  }

  void Constante(const std::string& code, const Value& valeur, int id = 0,
                 const Value& tauxMontant = "M") {
    m.gRsConstantes->AddNew();
    m.gRsConstantes->SetField("CodeConstante", code);
    m.gRsConstantes->SetField("IdConstante", id);
    m.gRsConstantes->SetField("Valeur", valeur);
    m.gRsConstantes->SetField("TauxMontant", tauxMontant);
  }

  void Variable(const std::string& code, const Value& valeur, int id = 0,
                const Value& dateEffet = Value(), const Value& tauxMontant = "M") {
    vars->AddNew();
    vars->SetField("CodeVariable", code);
    vars->SetField("IdVariable", id);
    vars->SetField("Valeur", valeur);
    vars->SetField("Dateeffet", dateEffet);
    vars->SetField("TauxMontant", tauxMontant);
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

}  // namespace orvalis::test

#endif  // ORVALIS_GENERIC_BASE_TEST_UTIL_H_
