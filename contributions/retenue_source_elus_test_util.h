// Reference data of the officials' withholding tests: statutory values and a scale of
// seven tranches in round figures, the rates of the contributions, mandates and ceiling
// periods built row by row.
#ifndef ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_TEST_UTIL_H_
#define ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_TEST_UTIL_H_

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "contributions/pas_test_util.h"
#include "orvalis/fault.h"

namespace orvalis::retenue_test {

using pas_test::Colonne;
using pas_test::NbLignes;
using pas_test::Table;

// One row of named values.
inline RsRef Ligne(std::initializer_list<std::pair<const char*, Value>> valeurs) {
  std::vector<std::string> colonnes;
  for (const auto& [nom, valeur] : valeurs) colonnes.emplace_back(nom);
  RsRef rs = NouveauRecordset(colonnes);
  rs->AddNew();
  for (const auto& [nom, valeur] : valeurs) rs->SetField(nom, valeur);
  return rs;
}

// Expenses allowance 1000 x 6 x 10 % = 600 a year (50 a month); ceiling 3864 a month.
// Annual bounds 12000, 24000, 36000, 48000, 60000, 120000 (a twelfth: 1000, 2000, 3000,
// 4000, 5000, 10000); rates 0, 10 %, 20 %, 30 %, 40 %, 45 %, 50 %. The constants differ by
// suffix so that a wrong one shows.
inline RsRef ConstantesFixes() {
  return Ligne({{"Point", 6.0},         {"EluTxFrais", 10.0},   {"PlafSecu", 3864.0},
                {"EluBorne1", 12000.0}, {"EluBorne2", 24000.0}, {"EluBorne3", 36000.0},
                {"EluBorne4", 48000.0}, {"EluBorne5", 60000.0}, {"EluBorne6", 120000.0},
                {"Elutaux1", 0.0},      {"Elutaux2", 0.1},      {"Elutaux3", 0.2},
                {"Elutaux4", 0.3},      {"Elutaux5", 0.4},      {"Elutaux6", 0.45},
                {"Elutaux7", 0.5},      {"EluCste1M", 0.0},     {"EluCste2M", 100.0},
                {"EluCste3M", 300.0},   {"EluCste4M", 600.0},   {"EluCste5M", 1000.0},
                {"EluCste6M", 1250.0},  {"EluCste7M", 1500.0},  {"EluCste2T", 310.0},
                {"EluCste3T", 910.0},   {"EluCste2S", 620.0},   {"EluCste3S", 1820.0},
                {"EluCste2", 1240.0},   {"EluCste3", 3640.0},   {"EluCste7", 18000.0}});
}

inline RsRef Taux() {
  return Table({"CodeTaux", "PartSalariale", "PartPatronale"},
               {{"IRCTRA", 2.8, 4.2},
                {"IRCTRB", 6.95, 12.55},
                {"URSDCSG", 6.8, 0.0},
                {"URSRGMAL", 0.0, 7.0},
                {"URSRGVEU", 0.4, 1.9},
                {"URSRGVIEP", 6.9, 8.55}});
}

inline RsRef Cumuls(std::initializer_list<std::vector<Value>> lignes) {
  return Table({"CodeCumul", "PartSalariale", "PartPatronale"}, lignes);
}

// Mandate rows as the host gives them; the amounts the withholding writes start null.
struct Mandat {
  Value salaire;
  const char* sDesignation;
  const char* sDebut;
  const char* sFin;
  Value brute;
  Value theorique;
  Value soumiseUrssaf;
  Value retSoumiseCsg;
  Value retPasSoumiseCsg;
};

inline RsRef Mandats(std::initializer_list<Mandat> mandats) {
  RsRef rs = NouveauRecordset(
      {"Salaire", "Designation", "DateDebut", "DateFin", "MontantRemunerationBrute",
       "MontantRemunerationBruteTheorique", "SoumiseUrssaf", "RetComplPatBruteSoumiseCSG",
       "RetComplPatBrutePasSoumiseCsg", "MontantPlafond", "MontantCotisations",
       "MontantCotisationIrcantecTA", "MontantCotisationIrcantecTB", "MontantCotisationCSG",
       "MontantRemunerationNette", "MontantTotalFraisInd", "MontantCotisationUrssafPlaf",
       "MontantCotisationUrssafTot"});
  for (const auto& md : mandats) {
    rs->AddNew();
    rs->SetField("Salaire", md.salaire);
    rs->SetField("Designation", md.sDesignation);
    rs->SetField("DateDebut", md.sDebut);
    rs->SetField("DateFin", md.sFin);
    rs->SetField("MontantRemunerationBrute", md.brute);
    rs->SetField("MontantRemunerationBruteTheorique", md.theorique);
    rs->SetField("SoumiseUrssaf", md.soumiseUrssaf);
    rs->SetField("RetComplPatBruteSoumiseCSG", md.retSoumiseCsg);
    rs->SetField("RetComplPatBrutePasSoumiseCsg", md.retPasSoumiseCsg);
  }
  return rs;
}

// A ceiling period, dates yyyymmdd.
struct Periode {
  const char* sDebut;
  const char* sFin;
  double dTotalIndemnites;
  double dPlafondSS;
  double dIndemniteColleEnCours;
  double dNbJour;
  double dNbJourSurPaie;
};

inline RsRef PeriodesIrcantec(std::initializer_list<Periode> periodes) {
  RsRef rs = NouveauRecordset({"DateDebutPeriode", "DateFinPeriode", "TotalIndemnitesPeriode",
                               "PlafondSSPeriode", "IndemniteColleEnCoursPeriode",
                               "NbJourPeriode", "NbJourPeriodeSurPaieMoisEnCours"});
  for (const auto& p : periodes) {
    rs->AddNew();
    rs->SetField("DateDebutPeriode", p.sDebut);
    rs->SetField("DateFinPeriode", p.sFin);
    rs->SetField("TotalIndemnitesPeriode", p.dTotalIndemnites);
    rs->SetField("PlafondSSPeriode", p.dPlafondSS);
    rs->SetField("IndemniteColleEnCoursPeriode", p.dIndemniteColleEnCours);
    rs->SetField("NbJourPeriode", p.dNbJour);
    rs->SetField("NbJourPeriodeSurPaieMoisEnCours", p.dNbJourSurPaie);
  }
  return rs;
}

struct PeriodeUrssaf {
  Periode p;
  Value soumis;
  double dAssietteTa;
  double dAssietteTb;
};

inline RsRef PeriodesUrssaf(std::initializer_list<PeriodeUrssaf> periodes) {
  RsRef rs = NouveauRecordset({"DateDebutPeriode", "DateFinPeriode", "TotalIndemnitesPeriode",
                               "PlafondSSPeriode", "NbJourPeriode",
                               "NbJourPeriodeSurPaieMoisEnCours", "SoumisUrssaf",
                               "AssietteTaTotal", "AssietteTbTotal"});
  for (const auto& u : periodes) {
    rs->AddNew();
    rs->SetField("DateDebutPeriode", u.p.sDebut);
    rs->SetField("DateFinPeriode", u.p.sFin);
    rs->SetField("TotalIndemnitesPeriode", u.p.dTotalIndemnites);
    rs->SetField("PlafondSSPeriode", u.p.dPlafondSS);
    rs->SetField("NbJourPeriode", u.p.dNbJour);
    rs->SetField("NbJourPeriodeSurPaieMoisEnCours", u.p.dNbJourSurPaie);
    rs->SetField("SoumisUrssaf", u.soumis);
    rs->SetField("AssietteTaTotal", u.dAssietteTa);
    rs->SetField("AssietteTbTotal", u.dAssietteTb);
  }
  return rs;
}

// An engine for March 2024 with the data above, and an official paid monthly who has
// opted for the withholding, on the monthly scale.
class RetenueElus : public ::testing::Test {
 protected:
  void SetUp() override {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantesFixes = ConstantesFixes();
    m.gRsConstantes = pas_test::Constantes({{"~TXCSGPROF", 0.9825}});
    m.gRsTaux = Taux();
    m.gRsCumuls = Cumuls({{"BRUT", 2000.0, 0.0}, {"BASERAPPEL", 0.0, 0.0}});
    s.sCodeCategorie = "ELUS";
    s.sEluPeriodicite = "1";
    s.sEluBaremeImpot = "1";
    s.iEluChoixImpot = 0;
    s.dIndiceMajoreM = 1000;
    s.iNBJ_Presence_Total = 30;
    s.rsAutresIndemnites = Mandats({});
    s.RsPlafondIrcantecPeriodes =
        PeriodesIrcantec({{"20240301", "20240331", 3000.0, 3864.0, 2000.0, 30.0, 30.0}});
    s.RsPlafondUrssafPeriodes = PeriodesUrssaf({});
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

}  // namespace orvalis::retenue_test

#endif  // ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_TEST_UTIL_H_
