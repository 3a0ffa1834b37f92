// Test fixtures of the salary lines: a pay month of July 2023 (31 days) at the point of
// 01/07/2023 (59.0734 a year), minimum index 361, an indexed civil servant full time in post
// since 2015, whose month the host prepares before the lines.
#ifndef ORVALIS_SALARY_TRAITEMENT_TEST_OUTILS_H_
#define ORVALIS_SALARY_TRAITEMENT_TEST_OUTILS_H_

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "generic/paie_test_util.h"
#include "period/periode_test_outils.h"

namespace orvalis::salaire_test {

using periode_test::LigneSituation;

class PaieJuillet : public ::testing::Test {
 protected:
  PaieJuillet() {
    m.gPeriodeEncours = "01/07/2023";
    m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    m.gRsTaux = NouveauRecordset({"IdOrganisme", "CodeTaux", "PartSalariale", "PartPatronale"});
    m.gRsConstantesFixes = NouveauRecordset({"Point", "IndMinRemuneration", "SmicHor"});
    m.gRsConstantesFixes->AddNew();
    Fixe("Point", 59.0734);
    Fixe("IndMinRemuneration", 361);
    Fixe("SmicHor", 11.52);
    s = periode_test::SalarieMoisComplet();
    s.sOccupationPoste = "P";
    s.dTauxPoste = 100;
    s.sOccupationPosteMoisPrec = "P";
    s.dTauxPosteMoisPrec = 100;
    s.dIndiceMajoreM = 366;
    s.dIndiceMajoreA = 366;
  }

  void Fixe(const std::string& champ, const Value& v) { m.gRsConstantesFixes->SetField(champ, v); }

  void Constante(const std::string& code, const Value& v, int id = 0, const char* type = "M") {
    paie_test::AjouteConstante(m.gRsConstantes, code, v, id, type);
  }

  void Cumul(const std::string& code, double sal) {
    m.gRsCumuls->AddNew();
    m.gRsCumuls->SetField("CodeCumul", code);
    m.gRsCumuls->SetField("Idcumul", 0);
    m.gRsCumuls->SetField("PartSalariale", sal);
    m.gRsCumuls->SetField("PartPatronale", 0);
  }

  // The host's preparations of the month, with these situations.
  void Prepare(const std::vector<LigneSituation>& situations = {},
               std::vector<std::string> autres = {}) {
    s.rsSituationsExceptionnelles = periode_test::Situations(situations);
    std::vector<std::string> noms = {"COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT",
                                     "NBRE_JOUR_PRESENCE"};
    noms.insert(noms.end(), autres.begin(), autres.end());
    for (const auto& nom : noms)
      ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
  }

  // One pay line on a new line record.
  bool Ligne(const std::string& sNom, const std::string& sCode = "") {
    r = SalarieCalculRubrique();
    r.sCodeRubrique = sCode;
    return m.Appel_Methode_Calcul_General(sNom, s, r, vars);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
  RsRef vars = paie_test::NouvellesVariables();
};

}  // namespace orvalis::salaire_test

#endif  // ORVALIS_SALARY_TRAITEMENT_TEST_OUTILS_H_
