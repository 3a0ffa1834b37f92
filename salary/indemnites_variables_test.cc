// The allowances read from the employee's variables, through the calculation entry.
#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class IndemnitesVariables : public PaieSalaire {
 protected:
  IndemnitesVariables() { LigneDuHote(); }
};

TEST_F(IndemnitesVariables, PrimeInformatiqueUnMoisDePointsFoisLeCoefficient) {
  Fixe("Point", 59.0734);
  Fixe("IndInform", 35.5);
  Var("COEFINF", 2.0);
  ASSERT_TRUE(Calcul("PRIME INFORMATIQUE"));
  // Arrondi(59.07 x 35.5 / 12 - 0.0049, 2) = Arrondi(174.74385, 2) = 174.74; x 2
  Ligne(174.74, 2, 349.48);
}

TEST_F(IndemnitesVariables, PrimeInformatiqueSansCoefficientLaLigneResteDuHote) {
  Fixe("Point", 59.0734);
  Fixe("IndInform", 35.5);
  ASSERT_TRUE(Calcul("PRIME INFORMATIQUE"));
  LigneDuHoteIntacte();
  Var("COEFINF", 0.4);  // read to the unit: 0
  ASSERT_TRUE(Calcul("PRIME INFORMATIQUE"));
  LigneDuHoteIntacte();
}

TEST_F(IndemnitesVariables, CreditMunicipalUneMensualite) {
  Var("CMREMBMOIS", 100.0);
  Var("CMREMBTOT", 1000.0);
  Var("CMREMBREST", 850.0);
  ASSERT_TRUE(Calcul("CREDIT MUNICIPAL"));
  Ligne(0, 0, 100);  // 100 + 850 < 1000
}

TEST_F(IndemnitesVariables, CreditMunicipalLeDernierMoisLeSolde) {
  Var("CMREMBMOIS", 100.0);
  Var("CMREMBTOT", 1000.0);
  Var("CMREMBREST", 950.0);
  ASSERT_TRUE(Calcul("CREDIT MUNICIPAL"));
  Ligne(0, 0, 50);  // 100 + 950 >= 1000: 1000 - 950
}

TEST_F(IndemnitesVariables, CreditMunicipalLeSoldeAtteintExactement) {
  Var("CMREMBMOIS", 100.0);
  Var("CMREMBTOT", 1000.0);
  Var("CMREMBREST", 900.0);
  ASSERT_TRUE(Calcul("CREDIT MUNICIPAL"));
  Ligne(0, 0, 100);  // 100 + 900 = 1000: 1000 - 900
}

TEST_F(IndemnitesVariables, CreditMunicipalRembourseOuSansMensualite) {
  Var("CMREMBTOT", 1000.0);
  Var("CMREMBREST", 1000.0);
  ASSERT_TRUE(Calcul("CREDIT MUNICIPAL"));
  LigneDuHoteIntacte();
  Var("CMREMBMOIS", 100.0);
  ASSERT_TRUE(Calcul("CREDIT MUNICIPAL"));
  LigneDuHoteIntacte();  // nothing left to repay
}

TEST_F(IndemnitesVariables, MontantReferenceSelonLeCode) {
  Var("MTPSR", 250.0);
  Var("MTPSRCOEF", 3.0);
  Var("MTIFTSM", 120.0);
  Var("MTIFTSCOEF", 2.0);
  Var("MTIEMPM", 80.0);
  Var("MTIEMPCOEF", 4.0);
  r.sCodeRubrique = "PRSERREN09";
  ASSERT_TRUE(Calcul("MONTANT REFERENCE"));
  Ligne(250, 3, 750);
  r.sCodeRubrique = "HSIFTS09";
  ASSERT_TRUE(Calcul("MONTANT REFERENCE"));
  Ligne(120, 2, 240);
  r.sCodeRubrique = "INDEXMIS09";
  ASSERT_TRUE(Calcul("MONTANT REFERENCE"));
  Ligne(80, 4, 320);
}

TEST_F(IndemnitesVariables, MontantReferenceSansMontantOuCodeInconnu) {
  Var("MTPSRCOEF", 3.0);
  r.sCodeRubrique = "PRSERREN09";
  ASSERT_TRUE(Calcul("MONTANT REFERENCE"));
  LigneDuHoteIntacte();
  Var("MTPSR", 250.0);
  r.sCodeRubrique = "PRSERREN10";
  ASSERT_TRUE(Calcul("MONTANT REFERENCE"));
  LigneDuHoteIntacte();
}

TEST_F(IndemnitesVariables, IrfLesDeuxParts) {
  Var("MTFON", 300.0);
  Var("MTFONCOEF", 2.0);
  Var("MTRES", 150.0);
  Var("MTRESCOEF", 3.0);
  ASSERT_TRUE(Calcul("IRF"));
  Ligne(450, 5, 1050);  // 300 + 150; 2 + 3; 300 x 2 + 150 x 3
}

TEST_F(IndemnitesVariables, IrfUnePartNegativeCompteZeroAvecSonCoefficient) {
  Var("MTFON", 300.0);
  Var("MTFONCOEF", 2.0);
  Var("MTRES", -10.0);
  Var("MTRESCOEF", 3.0);
  ASSERT_TRUE(Calcul("IRF"));
  Ligne(300, 2, 600);
}

TEST_F(IndemnitesVariables, IpfUnePartNulleCompteZero) {
  Var("MTFONPF", 0.0);
  Var("COEFFFONPF", 4.0);
  Var("MTPERF", 200.0);
  Var("MTPERFCOEF", 1.0);
  ASSERT_TRUE(Calcul("IPF"));
  Ligne(200, 1, 200);
}

TEST_F(IndemnitesVariables, IpfSansRienLaLigneEstAZero) {
  ASSERT_TRUE(Calcul("IPF"));
  Ligne(0, 0, 0);
}

TEST_F(IndemnitesVariables, IfseSansEtAvecLogementParGroupe) {
  Var("MTIFSEG2", 400.0);
  Var("COEFIFSEG2", 1.0);
  Var("MTIFSELOG4", 300.0);
  Var("COEIFSELG4", 2.0);
  r.sCodeRubrique = "IFSESANSLOGGRP2";
  ASSERT_TRUE(Calcul("IFSE (RIFSEEP)"));
  Ligne(400, 1, 400);
  r.sCodeRubrique = "IFSEAVECLOGGRP4";
  ASSERT_TRUE(Calcul("IFSE (RIFSEEP)"));
  Ligne(300, 2, 600);
}

TEST_F(IndemnitesVariables, IfseAutreCodeOuSansMontant) {
  Var("MTIFSEG5", 400.0);
  Var("COEFIFSEG5", 1.0);
  r.sCodeRubrique = "IFSESANSLOGGRP5";
  ASSERT_TRUE(Calcul("IFSE (RIFSEEP)"));
  LigneDuHoteIntacte();
  r.sCodeRubrique = "IFSESANSLOGGRP1";
  ASSERT_TRUE(Calcul("IFSE (RIFSEEP)"));
  LigneDuHoteIntacte();
  r.sCodeRubrique = "CIAGROUPE1";  // not a code of this line
  Var("MTCIAG1", 1000.0);
  ASSERT_TRUE(Calcul("IFSE (RIFSEEP)"));
  LigneDuHoteIntacte();
}

TEST_F(IndemnitesVariables, CiaParGroupe) {
  Var("MTCIAG1", 1000.0);
  Var("COEFFCIAG1", 0.0);
  Var("MTCIAG3", 600.0);
  Var("COEFFCIAG3", 1.0);
  r.sCodeRubrique = "CIAGROUPE1";
  ASSERT_TRUE(Calcul("COMPLEMENT INDEMNITAIRE ANNUEL (RIFSEEP)"));
  Ligne(1000, 0, 0);
  r.sCodeRubrique = "CIAGROUPE3";
  ASSERT_TRUE(Calcul("COMPLEMENT INDEMNITAIRE ANNUEL (RIFSEEP)"));
  Ligne(600, 1, 600);
  LigneDuHote();
  r.sCodeRubrique = "IFSESANSLOGGRP3";
  ASSERT_TRUE(Calcul("COMPLEMENT INDEMNITAIRE ANNUEL (RIFSEEP)"));
  LigneDuHoteIntacte();
}

class Iat : public IndemnitesVariables {
 protected:
  Iat() {
    Constante("TXIATDEP", 1.05);
    Var("MTIAT", 475.0);
    Var("MTIATCOEF", 3.0);
  }
};

TEST_F(Iat, UnMoisPlein) {
  ASSERT_TRUE(Calcul("IAT"));
  Ligne(498.75, 3, 1496.25);  // 1.05 x 475 = 498.75; x 3
}

TEST_F(Iat, LesJoursDeFinDActiviteEtDeDemiTraitement) {
  s.iNBJ_CFA_Total = 10;
  s.iNBJ_DemiTraitement_Total = 4;
  ASSERT_TRUE(Calcul("IAT"));
  Ligne(299.25, 3, 897.75);  // 30 - 10 - 4 / 2 = 18 days: Arrondi(498.75 x 18 / 30, 2); x 3
}

TEST_F(Iat, UnMoisEntierHorsDuServiceNePaieRien) {
  s.iNBJ_CFA_Total = 30;
  s.iNBJ_DemiTraitement_Total = 10;
  ASSERT_TRUE(Calcul("IAT"));
  Ligne(0, 3, 0);
}

TEST_F(Iat, SansTauxDepartementalLaLigneResteDuHote) {
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  ASSERT_TRUE(Calcul("IAT"));
  LigneDuHoteIntacte();
}

}  // namespace
}  // namespace orvalis::salaire_test
