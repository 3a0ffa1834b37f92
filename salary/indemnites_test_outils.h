// Test fixtures of the officials' allowances, the residence allowance and the family
// supplement: a pay run of March 2024 (the point at 59.0734 a year since 01/07/2023) with
// the statutory values, rates and totals those lines read.
#ifndef ORVALIS_SALARY_INDEMNITES_TEST_OUTILS_H_
#define ORVALIS_SALARY_INDEMNITES_TEST_OUTILS_H_

#include <gtest/gtest.h>

#include <string>

#include "generic/paie_test_util.h"

namespace orvalis::indemnites_test {

inline constexpr double kPoint = 59.0734;

class PaieIndemnites : public paie_test::PaieDeMarsCommune {
 protected:
  PaieIndemnites()
      : PaieDeMarsCommune({"Point", "PlafSecu", "IndResid", "IndMinSF", "IndMaxSF", "SFFixe1",
                           "SFFixe2", "SFvar2", "SFFixe3", "SFvar3", "SFFixeSup", "SFvarsup"},
                          {"Mois", "Point"}) {
    m.gRsTaux = NouveauRecordset({"CodeTaux", "PartSalariale", "PartPatronale"});
    Fixe("Point", kPoint);
    // Sentinels: a line that is not computed keeps them.
    r.dBase = -1;
    r.dTauxSalarial = -1;
    r.dMontantSalarial = -1;
    r.dTauxPatronal = -1;
    r.dMontantPatronal = -1;
  }

  // A mayor paid monthly at 51.6 % of the reference index 830, present all month on the
  // new rate, in office since 2020.
  void Maire() {
    Constante("INDMAJELU", 830);
    s.sTypeModele = "ELUS";
    s.sDateDebut = "01/01/2020";
    s.sEluPeriodicite = "1";
    s.dTauxMaire = 51.6;
    s.dCoefficient_Traitement = 0.516;
    s.iNBJ_PresenceA = 0;
    s.iNBJ_PresenceN = 30;
  }

  void Taux(const std::string& code, const Value& sal) {
    m.gRsTaux->AddNew();
    m.gRsTaux->SetField("CodeTaux", code);
    m.gRsTaux->SetField("PartSalariale", sal);
    m.gRsTaux->SetField("PartPatronale", 0.0);
  }

  void Cumul(const std::string& code, const Value& sal) {
    paie_test::AjouteCumul(m.gRsCumuls, code, sal, 0.0, 0);
  }

  // The point of the months yyyymm from premier to dernier (in one or two years).
  void PointHistorique(int premier, int dernier, double dPoint) {
    for (int mois = premier; mois <= dernier; ++mois) {
      if (mois % 100 == 13) mois += 88;  // 202313 -> 202401
      m.gRsConstantesFixesHistorique->AddNew();
      m.gRsConstantesFixesHistorique->SetField("Mois", std::to_string(mois));
      m.gRsConstantesFixesHistorique->SetField("Point", dPoint);
    }
  }

  // The line keeps all five sentinels.
  void LigneIntacte() const {
    EXPECT_EQ(r.dBase, -1);
    EXPECT_EQ(r.dTauxSalarial, -1);
    EXPECT_EQ(r.dMontantSalarial, -1);
    EXPECT_EQ(r.dTauxPatronal, -1);
    EXPECT_EQ(r.dMontantPatronal, -1);
  }

  // The employee part as given, no employer part.
  void Ligne(double dBase, double dTaux, double dMontant) const {
    EXPECT_NEAR(r.dBase, dBase, 1e-9);
    EXPECT_NEAR(r.dTauxSalarial, dTaux, 1e-9);
    EXPECT_NEAR(r.dMontantSalarial, dMontant, 1e-9);
    EXPECT_EQ(r.dTauxPatronal, 0);
    EXPECT_EQ(r.dMontantPatronal, 0);
  }

  bool Calcule(const std::string& sNom) { return m.Appel_Methode_Calcul_General(sNom, s, r); }
};

}  // namespace orvalis::indemnites_test

#endif  // ORVALIS_SALARY_INDEMNITES_TEST_OUTILS_H_
