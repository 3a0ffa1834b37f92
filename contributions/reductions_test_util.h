// An employer's year of pay for the reduction tests: December 2024 (hourly minimum 11.65
// until October, 11.88 from November), the run's totals, the employee's monthly history.
#ifndef ORVALIS_CONTRIBUTIONS_REDUCTIONS_TEST_UTIL_H_
#define ORVALIS_CONTRIBUTIONS_REDUCTIONS_TEST_UTIL_H_

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "generic/paie_test_util.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::reductions_test {

// The key yyyymm of a month of 2024.
inline std::string Mois2024(int mois) { return std::to_string(202400 + mois); }

inline double SmicHor2024(int mois) { return mois <= 10 ? 11.65 : 11.88; }

class AnneeDePaie : public ::testing::Test {
 protected:
  AnneeDePaie() {
    m.gPeriodeEncours = "01/12/2024";
    m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
    m.gRsCumulsHistoriqueSal = NouveauRecordset(
        {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
    m.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "SmicHor"});
    for (int mois = 1; mois <= 11; ++mois) {
      m.gRsConstantesFixesHistorique->AddNew();
      m.gRsConstantesFixesHistorique->SetField("Mois", Mois2024(mois));
      m.gRsConstantesFixesHistorique->SetField("SmicHor", SmicHor2024(mois));
    }
    m.gRsConstantesHistorique = NouveauRecordset({"CodeConstante", "Mois", "Valeur"});
    m.gRsConstantesFixes = NouveauRecordset({"SmicHor"});
    m.gRsConstantesFixes->AddNew();
    m.gRsConstantesFixes->SetField("SmicHor", SmicHor2024(12));
    s.lIdSalarie = 7;
    s.dDureeHebdoLegale = 35;
    s.dHeuresHebdo = 35;
  }

  void Constante(const std::string& code, double valeur) {
    paie_test::AjouteConstante(m.gRsConstantes, code, valeur, 0, "T");
  }
  void ConstanteDuMois(const std::string& code, int mois, double valeur) {
    m.gRsConstantesHistorique->AddNew();
    m.gRsConstantesHistorique->SetField("CodeConstante", code);
    m.gRsConstantesHistorique->SetField("Mois", Mois2024(mois));
    m.gRsConstantesHistorique->SetField("Valeur", valeur);
  }
  void Cumul(const std::string& code, double sal, double pat = 0) {
    paie_test::AjouteCumul(m.gRsCumuls, code, sal, pat, 0);
  }
  void Historique(int mois, const std::string& code, double sal, double pat = 0) {
    paie_test::AjouteHistorique(m.gRsCumulsHistoriqueSal, s.lIdSalarie, Mois2024(mois), code, sal,
                                pat);
  }
  // A past month: its base, its paid hours, its overtime hours and the Fillon reduction it
  // took (an employer amount, negative).
  void MoisPasse(int mois, double assiette, double heures, double hrsSupp, double fillon) {
    Historique(mois, "ASSURSTOT", assiette);
    Historique(mois, "HEURES", heures);
    Historique(mois, "HRSSUPP", hrsSupp);
    Historique(mois, "REDFILLON", 0, fillon);
  }
  // The current month: worked hours and paid hours alike.
  void MoisCourant(double assiette, double heures, double hrsSupp = 0) {
    Cumul("ASSURSTOT", assiette);
    Cumul("HEURESTRAV", heures);
    Cumul("HEURES", heures);
    Cumul("HRSSUPP", hrsSupp);
  }
  // The pay of every month of 2024 from `debut` at k times the monthly minimum
  // (151.67 h x 11.65 = 1766.9555; x 11.88 = 1801.8396), rounded to the cent.
  void AnneeAuSmic(double k, int debut, double fillonParMois = 0) {
    for (int mois = debut; mois <= 12; ++mois) {
      const double dPaie = std::round(k * 151.67 * SmicHor2024(mois) * 100) / 100;
      if (mois < 12) {
        MoisPasse(mois, dPaie, 151.67, 0, fillonParMois);
      } else {
        MoisCourant(dPaie, 151.67);
      }
    }
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

}  // namespace orvalis::reductions_test

#endif  // ORVALIS_CONTRIBUTIONS_REDUCTIONS_TEST_UTIL_H_
