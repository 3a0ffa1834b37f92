// The other rate designations of the employee side.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

using TauxDivers = PaieTaux;

TEST_F(TauxDivers, ReliquatReductionSurHS) {
  EXPECT_DOUBLE_EQ(TauxS("TAUX RELIQUAT REDUCTION SUR HS"), 0.0);
  EXPECT_EQ(type, "T");
}

TEST_F(TauxDivers, AssistanteMaternelle) {
  Variable(vars, "TXHEURES", 10.5);
  Variable(vars, "HRSENFMAT", 3.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX TRAITEMENT ASS. MATERNELLE"), 6.75);  // (10.5 + 3) x 0.5
  EXPECT_EQ(type, "M");
}

TEST_F(TauxDivers, AssistanteMaternelleAuSmic) {
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", 100.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX TRAITEMENT ASS. MATERNELLE"), 5.825);
}

TEST_F(TauxDivers, NombreHeuresTravaillees) {
  Cumul("HEURES", 151.67);
  EXPECT_DOUBLE_EQ(TauxS("NOMBRE HEURES TRAVAILLEES"), 151.67);
  EXPECT_EQ(type, "");
}

TEST_F(TauxDivers, TauxPASTelQueLeDonneLHote) {
  s.dTauxPAS = 0.029;
  s.bTauxPasValide = true;
  r.sDesignation = "Impot";
  EXPECT_DOUBLE_EQ(TauxS("TAUX PAS"), 0.029);
  EXPECT_EQ(type, "");
  EXPECT_EQ(r.sDesignation, "Impot");
}

TEST_F(TauxDivers, NetAPayerAvantPAS) {
  Cumul("TOTPASPREF", 120.0);
  Cumul("NETPAYER", 1800.0);
  s.bCollectiviteUtilisePrefigurationPAS = true;
  EXPECT_DOUBLE_EQ(TauxS("NET A PAYER + PAS"), 1920.0);
  EXPECT_EQ(type, "");
  s.bCollectiviteUtilisePrefigurationPAS = false;
  EXPECT_DOUBLE_EQ(TauxS("NET A PAYER + PAS"), 0.0);
}

TEST_F(TauxDivers, AbattementPASContratCourt) {
  Cumul("NETIMPOS", 2000.0);
  s.dMontantBase_PAS = 1500;
  s.bContratCourt = true;
  s.sCodeCategorie = "APPRENTI";  // one suffix only: the short contract comes first
  r.sDesignation = "Abattement";
  EXPECT_DOUBLE_EQ(TauxS("ABATTEMENT PAS"), -500.0);
  EXPECT_EQ(type, "M");
  EXPECT_EQ(r.sDesignation, "Abattement - Contrat court");
  TauxS("ABATTEMENT PAS");  // the label is not reset
  EXPECT_EQ(r.sDesignation, "Abattement - Contrat court - Contrat court");
}

TEST_F(TauxDivers, AbattementPASApprentiEluOuAucun) {
  Cumul("NETIMPOS", 1000.0);
  s.dMontantBase_PAS = 1250.5;
  s.sCodeCategorie = "APPRENTI";
  r.sDesignation = "A";
  EXPECT_DOUBLE_EQ(TauxS("ABATTEMENT PAS"), 250.5);
  EXPECT_EQ(r.sDesignation, "A - Apprenti");
  s.sCodeCategorie = "ELUS";
  r.sDesignation = "A";
  TauxS("ABATTEMENT PAS");
  EXPECT_EQ(r.sDesignation, "A - Elu");
  s.sCodeCategorie = "INSTITUT";
  r.sDesignation = "A";
  TauxS("ABATTEMENT PAS");
  EXPECT_EQ(r.sDesignation, "A");
}

TEST_F(TauxDivers, TauxImposableIJ) {
  Taux("URSDCSGIJ", 6.7, 0.0);
  EXPECT_NEAR(TauxS("TAUX IMPOSABLE IJ"), 93.3, 1e-12);
  EXPECT_EQ(type, "");
  m.gRsTaux = NouveauRecordset({"CodeTaux", "PartSalariale"});
  EXPECT_DOUBLE_EQ(TauxS("TAUX IMPOSABLE IJ"), 100.0);
}

}  // namespace
}  // namespace orvalis::taux_test
