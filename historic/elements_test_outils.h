// The salary elements on both engines: March 2024 at the point of 59.0734 a year, minimum
// index 361, an indexed civil servant in post since 2015 whose month each engine prepares
// on its own copy of the record before the lines, which run one after the other.
#ifndef ORVALIS_HISTORIC_ELEMENTS_TEST_OUTILS_H_
#define ORVALIS_HISTORIC_ELEMENTS_TEST_OUTILS_H_

#include <string>
#include <vector>

#include "historic/historique_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis::historique_test {

using periode_test::LigneSituation;

class ElementsDeuxMoteurs : public DeuxMoteurs {
 protected:
  ElementsDeuxMoteurs() {
    for (const char* c : {"Point", "IndMinRemuneration", "IndResid", "IndMinSF", "IndMaxSF",
                          "SFFixe1", "SFFixe2", "SFvar2", "SFFixe3", "SFvar3", "SFFixeSup",
                          "SFvarsup"})
      n.gRsConstantesFixes->AjouteColonne(c);
    Fixe("Point", 59.0734);
    Fixe("IndMinRemuneration", 361);
    s = periode_test::SalarieMoisComplet();
    s.lIdSalarie = 42;
    s.sOccupationPoste = "P";
    s.dTauxPoste = 100;
    s.sOccupationPosteMoisPrec = "P";
    s.dTauxPosteMoisPrec = 100;
    s.dIndiceMajoreM = 366;
    s.dIndiceMajoreA = 366;
    s.dDureeHebdoLegale = 35;
    s.dNB_Jours_Max_Decalage_Mois = -1;
  }

  // The situation of the month, in the recordset the current engine reads and in the first
  // situation of the record, which the historic engine reads.
  void Situation(const std::string& sCode, const std::string& sDebut, const std::string& sFin) {
    s.rsSituationsExceptionnelles = periode_test::Situations({{sCode, sDebut, sFin}});
    s.sSituation1 = sCode;
    s.sDateDebutSituation1 = sDebut;
    s.sDatefinSituation1 = sFin;
  }

  // The host's preparations of the month on each engine's copy of the employee.
  void Prepare(const std::vector<std::string>& autres = {}) {
    sN = s;
    sH = s;
    std::vector<std::string> noms = {"COEFFICIENT_INDICE", "COEFFICIENT_TRAITEMENT",
                                     "NBRE_JOUR_PRESENCE"};
    noms.insert(noms.end(), autres.begin(), autres.end());
    for (const auto& nom : noms) {
      ASSERT_TRUE(n.Appel_Methode_Preparation_Calcul_General(nom, sN)) << nom;
      ASSERT_TRUE(h.Appel_Methode_Preparation_Calcul_General(nom, sH)) << nom;
    }
  }

  // One line on each engine's prepared employee, from a fresh line of that code.
  void Ligne(const std::string& sNom, const std::string& sCode = "") {
    rN = SalarieCalculRubrique();
    rN.sCodeRubrique = sCode;
    rH = rN;
    ASSERT_TRUE(n.Appel_Methode_Calcul_General(sNom, sN, rN, vars, vars, nullptr)) << sNom;
    ASSERT_TRUE(h.Appel_Methode_Calcul_General(sNom, sH, rH, vars, vars, nullptr)) << sNom;
  }

  // The employee's three values of a line, on one engine; its employer side is empty.
  static void Attendu(const SalarieCalculRubrique& r, double dBase, double dTaux,
                      double dMontant) {
    EXPECT_NEAR(r.dBase, dBase, 1e-9);
    EXPECT_NEAR(r.dTauxSalarial, dTaux, 1e-9);
    EXPECT_NEAR(r.dMontantSalarial, dMontant, 1e-9);
    EXPECT_EQ(r.dTauxPatronal, 0.0);
    EXPECT_EQ(r.dMontantPatronal, 0.0);
  }
};

}  // namespace orvalis::historique_test

#endif  // ORVALIS_HISTORIC_ELEMENTS_TEST_OUTILS_H_
