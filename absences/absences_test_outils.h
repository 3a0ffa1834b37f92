// A pay run of March 2024 for the absence lines: the sources of the generic lines, the
// totals with their back-pay columns, and a pay history with the gross of each month.
#ifndef ORVALIS_ABSENCES_ABSENCES_TEST_OUTILS_H_
#define ORVALIS_ABSENCES_ABSENCES_TEST_OUTILS_H_

#include <string>

#include "generic/taux_test_util.h"

namespace orvalis::absences_test {

class PaieAbsences : public taux_test::PaieTaux {
 protected:
  PaieAbsences() {
    m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale",
                                    "PartSalarialeRappel", "PartPatronaleRappel"});
    histo = NouveauRecordset({"IDSALARIE", "Mois", "HeuresMois", "MtBrut"});
  }

  // A total of the pay run with its back pay.
  void CumulRappel(const std::string& code, const Value& sal, const Value& rappel) {
    m.gRsCumuls->AddNew();
    m.gRsCumuls->SetField("CodeCumul", code);
    m.gRsCumuls->SetField("Idcumul", 0);
    m.gRsCumuls->SetField("PartSalariale", sal);
    m.gRsCumuls->SetField("PartPatronale", 0.0);
    m.gRsCumuls->SetField("PartSalarialeRappel", rappel);
    m.gRsCumuls->SetField("PartPatronaleRappel", 0.0);
  }

  // The gross of a month yyyymm in the employee's pay history.
  void BrutDuMois(const std::string& mois, const Value& brut) {
    histo->AddNew();
    histo->SetField("IDSALARIE", 42);
    histo->SetField("Mois", mois);
    histo->SetField("HeuresMois", 151.67);
    histo->SetField("MtBrut", brut);
  }

  // A total of the employee for a month yyyymm, by id.
  void HistoriqueParId(const std::string& mois, int idCumul, const Value& sal) {
    paie_test::AjouteHistorique(m.gRsCumulsHistoriqueSal, 42, mois, "", sal, 0.0);
    m.gRsCumulsHistoriqueSal->SetField("IdCumul", idCumul);
  }
};

}  // namespace orvalis::absences_test

#endif  // ORVALIS_ABSENCES_ABSENCES_TEST_OUTILS_H_
