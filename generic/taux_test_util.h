// A pay run for the tests of the rate resolvers and the generic pay lines: an engine for
// March 2024 with empty sources of the usual columns, an employee, a pay line, his
// variables of the month and of the month before, and his pay history.
#ifndef ORVALIS_GENERIC_TAUX_TEST_UTIL_H_
#define ORVALIS_GENERIC_TAUX_TEST_UTIL_H_

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "generic/paie_test_util.h"

namespace orvalis::taux_test {

class PaieTaux : public paie_test::PaieDeMarsCommune {
 protected:
  PaieTaux() : PaieDeMarsCommune(ColonnesFixes(false), ColonnesFixes(true)) {
    m.gRsTaux =
        NouveauRecordset({"CodeTaux", "IdTaux", "IdOrganisme", "PartSalariale", "PartPatronale"});
    varsHisto = paie_test::NouvellesVariables();
    histo = NouveauRecordset({"IDSALARIE", "Mois", "HeuresMois"});
  }

  static std::vector<std::string> ColonnesFixes(bool bHistorique) {
    std::vector<std::string> c = {"Point",      "SmicHor",    "HrsMois",        "HsCoefNorm",
                                  "HsCoefSupp", "HSCOEFNUIT", "HSCOEFNUITSUPP", "HSCOEFJF",
                                  "HSCOEFJFSUPP"};
    if (bHistorique) c.insert(c.begin(), "Mois");
    return c;
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
    paie_test::AjouteCumul(m.gRsCumuls, code, sal, pat, id);
  }

  // A total of the employee for a month yyyymm.
  void Historique(const std::string& mois, const std::string& code, const Value& sal,
                  int idSalarie = 42) {
    paie_test::AjouteHistorique(m.gRsCumulsHistoriqueSal, idSalarie, mois, code, sal, 0.0);
  }

  static void Variable(const RsRef& rs, const std::string& code, const Value& valeur, int id = 0,
                       const Value& dateEffet = Value(), const Value& tauxMontant = "M") {
    paie_test::AjouteVariable(rs, code, valeur, id, dateEffet, tauxMontant);
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

  // The line's base is the employee amount of another line.
  void BaseAutreLigne(double dMontant) {
    r.sValeurBase = "PART SALARIALE D'UNE RUBRIQUE";
    r.dMontantSalarialRub = dMontant;
  }

  // The employee rate from the constant of id 1, the employer rate from that of id 2.
  void TauxSalarialConstante(const std::string& code, const Value& valeur, const Value& kind) {
    Constante(code, valeur, 1, kind);
    r.sValeurTauxSalarial = "UNE CONSTANTE";
    r.lIdValeurTauxSalarial = 1;
  }
  void TauxPatronalConstante(const std::string& code, const Value& valeur, const Value& kind) {
    Constante(code, valeur, 2, kind);
    r.sValeurTauxPatronal = "UNE CONSTANTE";
    r.lIdValeurTauxPatronal = 2;
  }

  bool Calcul(const std::string& nom) {
    return m.Appel_Methode_Calcul_General(nom, s, r, vars, varsHisto, histo);
  }

  RsRef varsHisto;
  RsRef histo;
  std::string type = "?";
};

}  // namespace orvalis::taux_test

#endif  // ORVALIS_GENERIC_TAUX_TEST_UTIL_H_
