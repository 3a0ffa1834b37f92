// The two engines side by side on the same sources and the same records: March 2024, an
// employee, a pay line, his variables.
#ifndef ORVALIS_HISTORIC_HISTORIQUE_TEST_OUTILS_H_
#define ORVALIS_HISTORIC_HISTORIQUE_TEST_OUTILS_H_

#include <gtest/gtest.h>

#include <string>

#include "generic/paie_test_util.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::historique_test {

class DeuxMoteurs : public ::testing::Test {
 protected:
  DeuxMoteurs() {
    n.gPeriodeEncours = "01/03/2024";
    n.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    n.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    n.gRsTaux = NouveauRecordset({"CodeTaux", "IdOrganisme", "PartSalariale", "PartPatronale"});
    n.gRsCumulsHistoriqueSal = NouveauRecordset(
        {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
    n.gRsConstantesFixes = NouveauRecordset({"SmicHor", "HrsMois", "TxSalaire1", "TxSalaire2"});
    n.gRsConstantesFixes->AddNew();
    h.gPeriodeEncours = n.gPeriodeEncours;
    h.gRsConstantes = n.gRsConstantes;
    h.gRsCumuls = n.gRsCumuls;
    h.gRsTaux = n.gRsTaux;
    h.gRsCumulsHistoriqueSal = n.gRsCumulsHistoriqueSal;
    h.gRsConstantesFixes = n.gRsConstantesFixes;
    vars = paie_test::NouvellesVariables();
    s.lIdSalarie = 42;
  }

  void Cumul(const std::string& code, double sal, double pat = 0, int id = 0) {
    paie_test::AjouteCumul(n.gRsCumuls, code, sal, pat, id);
  }
  void Constante(const std::string& code, double valeur, int id = 0, const char* type = "M") {
    paie_test::AjouteConstante(n.gRsConstantes, code, valeur, id, type);
  }
  void Taux(const std::string& code, double sal, double pat) {
    n.gRsTaux->AddNew();
    n.gRsTaux->SetField("CodeTaux", code);
    n.gRsTaux->SetField("IdOrganisme", 0);
    n.gRsTaux->SetField("PartSalariale", sal);
    n.gRsTaux->SetField("PartPatronale", pat);
  }
  void Fixe(const std::string& champ, double valeur) {
    n.gRsConstantesFixes->SetField(champ, valeur);
  }

  // One pay line by name on each engine, from the same employee and line; both entries
  // must succeed.
  void Calcule(const std::string& sNom) {
    sN = s;
    sH = s;
    rN = r;
    rH = r;
    ASSERT_TRUE(n.Appel_Methode_Calcul_General(sNom, sN, rN, vars, vars, nullptr)) << sNom;
    ASSERT_TRUE(h.Appel_Methode_Calcul_General(sNom, sH, rH, vars, vars, nullptr)) << sNom;
  }

  MethodeCalculG_Nouv n;
  MethodeCalculG h;
  VarCalculSalarie s, sN, sH;
  SalarieCalculRubrique r, rN, rH;
  RsRef vars;
};

}  // namespace orvalis::historique_test

#endif  // ORVALIS_HISTORIC_HISTORIQUE_TEST_OUTILS_H_
