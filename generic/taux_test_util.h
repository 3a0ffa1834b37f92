// A pay run for the tests of the rate resolvers and the generic pay lines: an engine for
// March 2024 with empty sources of the usual columns, an employee, a pay line, his
// variables of the month and of the month before, and his pay history.
#ifndef ORVALIS_GENERIC_TAUX_TEST_UTIL_H_
#define ORVALIS_GENERIC_TAUX_TEST_UTIL_H_

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::taux_test {

class PaieTaux : public ::testing::Test {
 protected:
  PaieTaux() {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    m.gRsTaux =
        NouveauRecordset({"CodeTaux", "IdTaux", "IdOrganisme", "PartSalariale", "PartPatronale"});
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    m.gRsCumulsHistoriqueSal = NouveauRecordset(
        {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
    m.gRsConstantesFixes = NouveauRecordset(ColonnesFixes(false));
    m.gRsConstantesFixes->AddNew();
    m.gRsConstantesFixesHistorique = NouveauRecordset(ColonnesFixes(true));
    vars = NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "Dateeffet", "TauxMontant"});
    varsHisto =
        NouveauRecordset({"CodeVariable", "IdVariable", "Valeur", "Dateeffet", "TauxMontant"});
    histo = NouveauRecordset({"IDSALARIE", "Mois", "HeuresMois"});
    s.lIdSalarie = 42;
  }

  static std::vector<std::string> ColonnesFixes(bool bHistorique) {
    std::vector<std::string> c = {"Point",      "SmicHor",    "HrsMois",        "HsCoefNorm",
                                  "HsCoefSupp", "HSCOEFNUIT", "HSCOEFNUITSUPP", "HSCOEFJF",
                                  "HSCOEFJFSUPP"};
    if (bHistorique) c.insert(c.begin(), "Mois");
    return c;
  }

  void Constante(const std::string& code, const Value& valeur, int id = 0,
                 const Value& tauxMontant = "M") {
    m.gRsConstantes->AddNew();
    m.gRsConstantes->SetField("CodeConstante", code);
    m.gRsConstantes->SetField("IdConstante", id);
    m.gRsConstantes->SetField("Valeur", valeur);
    m.gRsConstantes->SetField("TauxMontant", tauxMontant);
  }

  void Taux(const std::string& code, const Value& sal, const Value& pat, int id = 0,
            int organisme = 0) {
    m.gRsTaux->AddNew();
    m.gRsTaux->SetField("CodeTaux", code);
    m.gRsTaux->SetField("IdTaux", id);
    m.gRsTaux->SetField("IdOrganisme", organisme);
    m.gRsTaux->SetField("PartSalariale", sal);
    m.gRsTaux->SetField("PartPatronale", pat);
  }

  void Cumul(const std::string& code, const Value& sal, const Value& pat = 0.0, int id = 0) {
    m.gRsCumuls->AddNew();
    m.gRsCumuls->SetField("CodeCumul", code);
    m.gRsCumuls->SetField("Idcumul", id);
    m.gRsCumuls->SetField("PartSalariale", sal);
    m.gRsCumuls->SetField("PartPatronale", pat);
  }

  // A total of the employee for a month yyyymm.
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

  static void Variable(const RsRef& rs, const std::string& code, const Value& valeur, int id = 0,
                       const Value& dateEffet = Value(), const Value& tauxMontant = "M") {
    rs->AddNew();
    rs->SetField("CodeVariable", code);
    rs->SetField("IdVariable", id);
    rs->SetField("Valeur", valeur);
    rs->SetField("Dateeffet", dateEffet);
    rs->SetField("TauxMontant", tauxMontant);
  }

  void Fixe(const std::string& champ, const Value& valeur) {
    m.gRsConstantesFixes->SetField(champ, valeur);
  }

  // The statutory values of a month yyyymm.
  void FixesDuMois(const std::string& mois,
                   std::initializer_list<std::pair<const char*, Value>> valeurs) {
    m.gRsConstantesFixesHistorique->AddNew();
    m.gRsConstantesFixesHistorique->SetField("Mois", mois);
    for (const auto& [champ, valeur] : valeurs)
      m.gRsConstantesFixesHistorique->SetField(champ, valeur);
  }

  void HeuresDuMois(const std::string& mois, const Value& heures) {
    histo->AddNew();
    histo->SetField("IDSALARIE", 42);
    histo->SetField("Mois", mois);
    histo->SetField("HeuresMois", heures);
  }

  // The employee rate of a designation; its kind in type.
  double TauxS(const std::string& designation, int id = 0) {
    r.sValeurTauxSalarial = designation;
    r.lIdValeurTauxSalarial = id;
    return m.RechercheValeurTauxSalarial(s, vars, varsHisto, r, type, histo);
  }

  // The employer rate of a designation; its kind in type.
  double TauxP(const std::string& designation, int id = 0) {
    r.sValeurTauxPatronal = designation;
    r.lIdValeurTauxPatronal = id;
    return m.RechercheValeurTauxPatronal(s, vars, r, type, "");
  }

  bool Calcul(const std::string& nom) {
    return m.Appel_Methode_Calcul_General(nom, s, r, vars, varsHisto, histo);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
  RsRef vars;
  RsRef varsHisto;
  RsRef histo;
  std::string type = "?";
};

}  // namespace orvalis::taux_test

#endif  // ORVALIS_GENERIC_TAUX_TEST_UTIL_H_
