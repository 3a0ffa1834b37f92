// Rate designations of the employee's hourly rate.
#include "generic/taux_test_util.h"
#include "orvalis/fault.h"

namespace orvalis::taux_test {
namespace {

using TauxHoraire = PaieTaux;

TEST_F(TauxHoraire, HorairePourcentageDuSmic) {
  s.sTypeModele = "HORAIR";
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", 110.0);
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE"), 12.815, 1e-12);
  EXPECT_EQ(type, "");
}

TEST_F(TauxHoraire, HoraireTauxPropre) {
  s.sTypeModele = "HORAIR";
  Variable(vars, "TXHEURES", 12.5);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 12.5);
  EXPECT_EQ(type, "M");
}

TEST_F(TauxHoraire, HoraireSansVariableSurLaPaieDuMois) {
  s.sTypeModele = "HORAIR";
  Cumul("BASE", 1820.0);
  Cumul("BASERAPPEL", 20.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 15;
  // 1800 / (100 x 15 / 151.67) = 1800 x 151.67 / 1500
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE"), 182.004, 1e-9);
}

TEST_F(TauxHoraire, HoraireSansHeuresDonneZero) {
  s.sTypeModele = "HORAIR";
  Cumul("BASE", 1820.0);
  s.iNBJ_Presence_Total = 30;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 0.0);
}

TEST_F(TauxHoraire, HoraireSansJoursDePresenceEstUneFaute) {
  s.sTypeModele = "HORAIR";
  s.dHeuresMois = 100;
  EXPECT_THROW(TauxS("TAUX HORAIRE DU SALARIE"), Fault);
}

TEST_F(TauxHoraire, IndiciaireSurLaPaieDuMois) {
  s.sTypeModele = "INDTIT";
  Cumul("BASE", 2000.0);
  Cumul("BASERAPPEL", 200.0);
  s.dMt_IndemniteDifferentielle = 50;
  s.dHeuresMois = 148;
  s.iNBJ_Presence_Total = 30;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 12.5);  // 1850 / 148
  s.sTypeModele = "INDNTI";
  s.iNBJ_Presence_Total = 15;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 25.0);  // 1850 / (148 x 15 / 30)
  s.dHeuresMois = 0;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 0.0);
}

TEST_F(TauxHoraire, AutreModeleDonneZero) {
  s.sTypeModele = "ELUS";
  Variable(vars, "TXHEURES", 12.5);
  Cumul("BASE", 2000.0);
  s.dHeuresMois = 148;
  s.iNBJ_Presence_Total = 30;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 0.0);
}

TEST_F(TauxHoraire, MajoreParUneConstanteSurTrenteJours) {
  s.sTypeModele = "HORAIR";
  Cumul("BASE", 1800.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 15;
  Constante("MAJ125", 125.0, 9, "T");
  Constante("MAJX2", 2.0, 10, "M");
  // 1800 / (100 x 15 / 30) = 36
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", 9), 45.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", 10), 72.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", 11), 0.0);
}

TEST_F(TauxHoraire, MajoreParUneConstanteIndiciaireEtTauxPropre) {
  s.sTypeModele = "INDTIT";
  Cumul("BASE", 1500.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 15;
  Constante("MAJ", 1.1, 9, "M");
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", 9), 33.0, 1e-12);
  s.sTypeModele = "HORAIR";
  Constante("MAJ125", 125.0, 12, "T");
  Variable(vars, "TXHEURES", 12.5);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", 12), 15.625);
  EXPECT_EQ(type, "M");  // the kind of the hourly rate, not that of the constant
}

TEST_F(TauxHoraire, MajorationsDuMoisSurLesVariables) {
  Variable(vars, "TXHEURES", 12.5);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 10 %"), 13.75);
  EXPECT_EQ(type, "M");
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 25 %"), 15.625);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 50 %"), 18.75);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 100 %"), 25.0);
}

TEST_F(TauxHoraire, MajorationsDuMoisSurLaPaieDuMois) {
  s.sTypeModele = "INDTIT";
  Cumul("BASE", 1500.0);
  s.dHeuresMois = 100;
  s.iNBJ_Presence_Total = 30;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 50 %"), 22.5);
  EXPECT_EQ(type, "M");
}

TEST_F(TauxHoraire, MajorationsDuMoisPrecedent) {
  Variable(varsHisto, "TXHEURES", 10.0);
  Variable(vars, "TXHEURES", 50.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MOIS PREC"), 10.0);
  EXPECT_EQ(type, "M");
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 10 % MOIS PREC"), 11.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 25 % MOIS PREC"), 12.5);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 50 % MOIS PREC"), 15.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 100 % MOIS PREC"), 20.0);
}

TEST_F(TauxHoraire, MoisPrecMajoreParConstanteSurLaPaieDuMoisPrecedent) {
  Historique("202402", "BASE", 1600.0);
  Historique("202402", "INDDIFF", 40.0);
  Historique("202402", "BASERAPPEL", 100.0);
  HeuresDuMois("202402", 140.0);
  Constante("MAJ150", 150.0, 9, "T");
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MOIS PREC MAJORE PAR CSTE", 9), 16.5);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MOIS PREC", 9), 11.0);
}

TEST_F(TauxHoraire, AvecIrIdSurLaDureeLegaleOuLesHeuresDuMois) {
  s.sTypeModele = "INDTIT";
  s.dBase_HSN = 24000;
  s.dMt_IndemniteDifferentielle = 100;
  s.dDureeHebdoLegale = 35;
  Fixe("HrsMois", 100.0);
  Fixe("SmicHor", 11.65);
  Constante("MAJ", 2.0, 9, "M");
  // 25200 / 1820 = 13.846... -> 13.85, x 2
  EXPECT_NEAR(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 9), 27.7, 1e-12);
  s.dDureeHebdoLegale = 0;
  // 25200 / 1200, x 2
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 9), 42.0);
}

TEST_F(TauxHoraire, AvecIrIdPasSousLeSmic) {
  s.sTypeModele = "INDNTI";
  s.dBase_HSN = 12000;
  s.dDureeHebdoLegale = 35;
  Fixe("SmicHor", 11.654);
  Constante("MAJ", 110.0, 9, "T");
  EXPECT_NEAR(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 9), 12.815, 1e-12);
  s.dDureeHebdoLegale = 0;  // and no hours in the month: the SMIC stands
  EXPECT_NEAR(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 9), 12.815, 1e-12);
}

TEST_F(TauxHoraire, AvecIrIdAutreModeleDonneZero) {
  s.sTypeModele = "HORAIR";
  s.dBase_HSN = 24000;
  Fixe("SmicHor", 11.65);
  Constante("MAJ", 2.0, 9, "M");
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 9), 0.0);
}

}  // namespace
}  // namespace orvalis::taux_test
