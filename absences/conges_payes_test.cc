// Paid leave: the allowance on the gross of the contract and the withholding.
#include "absences/absences_test_outils.h"

namespace orvalis::absences_test {
namespace {

// March 2024. Gross of 2000 a month from June 2023 to February 2024 (nine months, 18000),
// 9999 in March 2024 and 1000 in May 2023; this month's gross 2100 with 100 of back pay;
// an allowance of 10 %.
class CongesPayes : public PaieAbsences {
 protected:
  CongesPayes() {
    BrutDuMois("202305", 1000.0);
    for (const char* mois :
         {"202306", "202307", "202308", "202309", "202310", "202311", "202312", "202401", "202402"})
      BrutDuMois(mois, 2000.0);
    BrutDuMois("202403", 9999.0);
    CumulRappel("BRUT", 2100.0, 100.0);
    Constante("TXINDCP", 10.0);
    s.sDateDebut = "01/06/2023";
  }
  bool Calcule() { return Calcul("CONGES PAYES"); }
};

TEST_F(CongesPayes, SansFinDeContratJusquAuMoisPrecedent) {
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 20200.0);  // 2100 + 9 x 2000 + 100
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 10.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 2020.0);  // 20200 x 10 / 100
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(CongesPayes, FinDansLeMoisLitCeMoisDansLHistorique) {
  s.sDateFin = "15/03/2024";
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 30199.0);  // 2100 + 18000 + 9999 + 100
}

TEST_F(CongesPayes, FinPlusTardDansLAnneeArreteAuMoisPrecedent) {
  s.sDateFin = "30/09/2024";
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 20200.0);
}

TEST_F(CongesPayes, FinUneAnneePlusTardAuMoisPlusPetitTient) {
  // January 2025: the month 1 is not after March, so the end date stands and the walk runs
  // to January 2025; the months after March 2024 have no history.
  s.sDateFin = "31/01/2025";
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 30199.0);  // 2100 + 18000 + 9999 + 100
}

TEST_F(CongesPayes, DebutDansLeMoisUneLectureSeulement) {
  s.sDateDebut = "10/03/2024";
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 12199.0);  // 2100 + 9999 + 100
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 1219.9);
}

TEST_F(CongesPayes, DebutUnTrenteEtUn) {
  s.sDateDebut = "31/12/2023";
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 8200.0);  // 2100 + 3 x 2000 (Dec, Jan, Feb) + 100
}

TEST_F(CongesPayes, SansHistoriqueLeCumulSeul) {
  histo = nullptr;
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 2200.0);  // 2100 + 0 + 100
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 220.0);
}

TEST_F(CongesPayes, HistoriqueVide) {
  histo = NouveauRecordset({"IDSALARIE", "Mois", "MtBrut"});
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 2200.0);
}

TEST_F(CongesPayes, BrutNulDansLHistoriqueEstUneFaute) {
  histo->MoveFirst();
  histo->SetField("MtBrut", Value());  // May 2023, before the contract: not read
  histo->MoveNext();
  histo->SetField("MtBrut", Value());  // June 2023
  r.dBase = 7;
  EXPECT_FALSE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 7.0);
}

TEST_F(CongesPayes, SansTauxNiCumulZero) {
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "PartSalariale", "PartSalarialeRappel"});
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 18000.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
}

TEST_F(CongesPayes, BrutDuMoisArrondi) {
  histo = NouveauRecordset({"IDSALARIE", "Mois", "HeuresMois", "MtBrut"});
  BrutDuMois("202306", 1234.565);
  s.sDateDebut = "01/06/2023";
  s.sDateFin = "30/06/2023";
  ASSERT_TRUE(Calcule());
  EXPECT_DOUBLE_EQ(r.dBase, 3434.57);  // 2100 + 1234.57 + 100
}

// A withholding of paid leave: the base negated times the rate, with no percentage.
TEST_F(CongesPayes, RetenueBaseNegativeFoisTaux) {
  BaseAutreLigne(95.24);
  TauxSalarialConstante("NBJCP", 3.0, "J");
  r.dTauxPatronal = 7;
  r.dMontantPatronal = 8;
  ASSERT_TRUE(Calcul("RETENUE CONGES PAYES"));
  EXPECT_DOUBLE_EQ(r.dBase, -95.24);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 3.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -285.72);  // 3 x -95.24
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 7.0);         // not written
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 8.0);
}

TEST_F(CongesPayes, RetenueSansTaux) {
  BaseAutreLigne(95.24);
  ASSERT_TRUE(Calcul("RETENUE CONGES PAYES"));
  EXPECT_DOUBLE_EQ(r.dBase, -95.24);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.0);
}

}  // namespace
}  // namespace orvalis::absences_test
