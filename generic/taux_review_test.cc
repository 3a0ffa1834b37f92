// Independent checks of the rate designations: each literal reached through the resolvers,
// with values worked out by hand from the rules.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

using TauxReviewTest = PaieTaux;

TEST_F(TauxReviewTest, DesignationInconnueOuMalEcrite) {
  Cumul("HEURES", 151.67);
  EXPECT_DOUBLE_EQ(TauxS("NOMBRE HEURES TRAVAILLEES "), 0.0);
  EXPECT_EQ(type, "");
  EXPECT_DOUBLE_EQ(TauxS("nombre heures travaillees"), 0.0);
  // Employer side does not know the employee-only literals.
  EXPECT_DOUBLE_EQ(TauxP("NOMBRE HEURES TRAVAILLEES"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("NOMBRE HEURES TRAVAILLEES"), 151.67);
}

TEST_F(TauxReviewTest, HeuresSuppDeductionVersLeBas) {
  s.dBase_HSN = 21845;
  Fixe("HSCOEFNUITSUPP", 1000.0);
  // 21.845 - 0.0049 = 21.8401 -> 21.84 (21.845 alone would give 21.85)
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. NUIT > 14 HEURES (INDICIAIRE)"), 21.84);
  EXPECT_EQ(type, "");
  Fixe("HSCOEFJF", 2000.0);
  // 10.9225 - 0.0049 = 10.9176 -> 10.92
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. FERIES < 14 HEURES (INDICIAIRE)"), 10.92);
  // Null column: 0.
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. > 14 HEURES (INDICIAIRE)"), 0.0);
}

TEST_F(TauxReviewTest, HeuresSuppMoisPrecLitLHistorique) {
  s.dBase_HSN = 1;
  s.dBase_HSA = 30000;
  Fixe("HSCOEFJFSUPP", 1.0);
  FixesDuMois("202403", {{"HSCOEFJFSUPP", 3000.0}});
  FixesDuMois("202402", {{"HSCOEFJFSUPP", 1200.0}});
  // 30000 / 1200 = 25; 25 - 0.0049 = 24.9951 -> 25
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. FERIES > 14 HEURES MOIS PREC"), 25.0);
  // No column value for the month before: 0.
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. NUIT < 14 HEURES MOIS PREC"), 0.0);
}

TEST_F(TauxReviewTest, HeuresComplementairesIndiciaire) {
  s.sTypeModele = "INDNTI";
  Fixe("HrsMois", 151.666);  // H = 151.67
  Fixe("SmicHor", 11.654);   // S = 11.65
  s.dBase_HSN = 25000;
  // 25000 / (151.67 * 12) = 13.73596 -> 13.74
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 13.74);
  s.dDureeHebdoLegale = 39;
  // 25000 / (39 * 52) = 12.3274 -> 12.33
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 12.33);
  s.dBase_HSN = 20000;  // 20000 / 2028 = 9.86 < 11.65
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 11.65);
  EXPECT_EQ(type, "");
  s.dDureeHebdoLegale = 0;
  Fixe("HrsMois", 0.0);  // A skipped: the SMIC
  s.dBase_HSN = 99999;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 11.65);
}

TEST_F(TauxReviewTest, HeuresComplementairesAutresModeles) {
  s.sTypeModele = "HORAIR";
  Fixe("SmicHor", 11.654);
  Variable(vars, "TXSMIC", 110.5);
  // 11.65 * 110.5 / 100 = 12.87325: TXSMIC read with no rounding
  EXPECT_NEAR(TauxS("TAUX HEURES COMPLEMENTAIRES"), 12.87325, 1e-12);
  EXPECT_EQ(type, "");
}

TEST_F(TauxReviewTest, HeuresComplementairesTauxHeures) {
  s.sTypeModele = "CONTRA";
  Variable(vars, "TXSMIC", 0.0);
  Variable(vars, "TXHEURES", 14.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 14.0);
}

TEST_F(TauxReviewTest, HoraireDuSalarieHorairRepli) {
  s.sTypeModele = "HORAIR";
  Cumul("BASE", 1500.0);
  Cumul("BASERAPPEL", 100.0);
  s.dHeuresMois = 151.67;
  s.iNBJ_Presence_Total = 15;
  // 1400 / (151.67 * 15 / 151.67 = 15) = 93.333...
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE"), 93.3333333333, 1e-9);
  s.dHeuresMois = 0;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 0.0);
}

TEST_F(TauxReviewTest, HoraireDuSalarieIndiciaire) {
  s.sTypeModele = "INDTIT";
  Cumul("BASE", 1500.0);
  Cumul("BASERAPPEL", 100.0);
  s.dMt_IndemniteDifferentielle = 50;
  s.dHeuresMois = 120;
  s.iNBJ_Presence_Total = 15;
  // (1500 + 50 - 100) / (120 * 15 / 30 = 60) = 24.1666...
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE"), 24.1666666667, 1e-9);
  s.sTypeModele = "CONTRA";
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE"), 0.0);
}

TEST_F(TauxReviewTest, HoraireMajoreParUneConstanteDiviseur30) {
  s.sTypeModele = "HORAIR";
  Cumul("BASE", 1500.0);
  Cumul("BASERAPPEL", 100.0);
  s.dHeuresMois = 150;
  s.iNBJ_Presence_Total = 15;
  Constante("MAJ", 110.0, 9, "T");
  // 1400 / (150 * 15 / 30 = 75) = 18.6666...; x 110 / 100 = 20.5333...
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", 9), 20.5333333333, 1e-9);
  Constante("FAC", 2.0, 8, "M");
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE MAJORE PAR UNE CONSTANTE", 8), 37.3333333333, 1e-9);
}

TEST_F(TauxReviewTest, HoraireMajoreMoisEnCours) {
  Variable(vars, "TXSMIC", 0.0);
  Variable(vars, "TXHEURES", 12.5);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 25 %"), 15.625);
  EXPECT_EQ(type, "M");
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 100 %"), 25.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 10 %"), 13.75);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 50 %"), 18.75);
}

TEST_F(TauxReviewTest, HoraireMajoreSmic) {
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", 120.0);
  // 11.65 * 120 * 1.25 / 100 = 17.475
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE + 25 %"), 17.475, 1e-12);
}

TEST_F(TauxReviewTest, HoraireMajoreRepliSurLaPaie) {
  Cumul("BASE", 1500.0);
  Cumul("BASERAPPEL", 300.0);
  s.dMt_IndemniteDifferentielle = 0;
  s.dHeuresMois = 120;
  s.iNBJ_Presence_Total = 30;
  // 1200 / 120 x 1.5 = 15
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 50 %"), 15.0);
  EXPECT_EQ(type, "M");
}

TEST_F(TauxReviewTest, HoraireMoisPrec) {
  Variable(varsHisto, "TXHEURES", 10.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 100 % MOIS PREC"), 20.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MOIS PREC"), 10.0);
}

TEST_F(TauxReviewTest, HoraireMoisPrecRepliHistorique) {
  Historique("202402", "BASE", 1800.0);
  Historique("202402", "INDDIFF", 60.0);
  Historique("202402", "BASERAPPEL", 60.0);
  HeuresDuMois("202402", 150.0);
  // (1800 + 60 - 60) / 150 x 1.5 = 18
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE + 50 % MOIS PREC"), 18.0);
  Constante("MAJ", 125.0, 3, "T");
  // 12 x 125 / 100 = 15
  EXPECT_DOUBLE_EQ(TauxS("TAUX HORAIRE DU SALARIE MOIS PREC MAJORE PAR CSTE", 3), 15.0);
}

TEST_F(TauxReviewTest, HoraireAvecIrIdMajoreParConstante) {
  s.sTypeModele = "INDTIT";
  Fixe("HrsMois", 151.67);
  Fixe("SmicHor", 11.65);
  s.dBase_HSN = 24000;
  s.dMt_IndemniteDifferentielle = 100;
  Constante("MAJ", 125.0, 4, "T");
  // (24000 + 1200) / (151.67 x 12 = 1820.04) = 13.8458 -> 13.85; x 1.25 = 17.3125
  EXPECT_NEAR(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 4), 17.3125, 1e-12);
  s.dDureeHebdoLegale = 35;
  // 25200 / 1820 = 13.846 -> 13.85
  EXPECT_NEAR(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 4), 17.3125, 1e-12);
  s.dBase_HSN = 12000;  // 13200 / 1820 = 7.25 < 11.65; x 1.25 = 14.5625
  EXPECT_NEAR(TauxS("TAUX HORAIRE (AVEC IR,ID) MAJORE PAR CONSTANTE", 4), 14.5625, 1e-12);
}

TEST_F(TauxReviewTest, Enseignement) {
  s.dIndiceDebutGrade = 400;
  s.dIndiceFinGrade = 600;
  Fixe("Point", 4.92278);  // P = 500 x 4.92278 = 2461.39, D = P
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT 1ERE HEURE"), 42.6009807692, 1e-9);
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT"), 35.5008173077, 1e-9);
  EXPECT_NEAR(TauxS("TAUX HORAIRE INDEMNITE ENSEIGNEMENT MAJORE"), 59.1680288462, 1e-9);
  EXPECT_EQ(type, "");
}

TEST_F(TauxReviewTest, EnseignementHorsClasse) {
  s.dDureeHebdoLegale = 18;
  Fixe("Point", 4.92278);
  Constante("IMINDHENSP", 800.0);  // D = 800 x 4.92278 / 18 = 218.7902...
  EXPECT_NEAR(TauxS("TAUX HORAIRE IND ENS 1ERE HEURE PROF HORS CLASSE"), 4.1654292308, 1e-9);
  EXPECT_NEAR(TauxS("TAUX HORAIRE IND ENS PROF HORS CLASSE"), 3.4711910256, 1e-9);
  EXPECT_NEAR(TauxS("TAUX HORAIRE IND ENS MAJORE PROF HORS CLASSE"), 5.7853183761, 1e-9);
}

TEST_F(TauxReviewTest, CetEtCsgProfessionnelle) {
  Constante("~TXCSGPROF", 0.9825);
  Taux("URSDCSG", 6.8, 0.0);
  Taux("URSCSG", 2.4, 0.0);
  Taux("URSRDS", 0.5, 0.0);
  // dTaux = 0.9825 x 9.7 = 9.53025
  EXPECT_NEAR(TauxS("TOTAL COTISATIONS RACHAT CET"), 190.46975, 1e-9);
  EXPECT_EQ(type, "T");
  EXPECT_NEAR(TauxS("TAUX COTISATION RAFP CET SALARIAL"), 90.46975, 1e-9);
  EXPECT_EQ(type, "T");
  EXPECT_NEAR(TauxP("TAUX COTISATION RAFP CET PATRONAL"), 90.46975, 1e-9);
  EXPECT_EQ(type, "T");
  // The employee-only literal is unknown on the employer side, and the reverse.
  EXPECT_DOUBLE_EQ(TauxP("TAUX COTISATION RAFP CET SALARIAL"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX COTISATION RAFP CET PATRONAL"), 0.0);
}

TEST_F(TauxReviewTest, TauxImposableIJ) {
  Taux("URSDCSGIJ", 6.125, 0.0);  // rounded to 6.13 by the lookup
  EXPECT_NEAR(TauxS("TAUX IMPOSABLE IJ"), 93.87, 1e-12);
}

TEST_F(TauxReviewTest, ReliquatReductionHS) {
  EXPECT_DOUBLE_EQ(TauxS("TAUX RELIQUAT REDUCTION SUR HS"), 0.0);
  EXPECT_EQ(type, "T");
}

TEST_F(TauxReviewTest, AbattementPASOrdreDesCas) {
  s.dMontantBase_PAS = 2000;
  Cumul("NETIMPOS", 1800.456);  // 1800.46
  s.bContratCourt = true;
  s.sCodeCategorie = "APPRENTI";
  r.sDesignation = "Abattement";
  EXPECT_NEAR(TauxS("ABATTEMENT PAS"), 199.54, 1e-9);
  EXPECT_EQ(type, "M");
  EXPECT_EQ(r.sDesignation, "Abattement - Contrat court");
  s.bContratCourt = false;
  r.sDesignation = "A";
  TauxS("ABATTEMENT PAS");
  EXPECT_EQ(r.sDesignation, "A - Apprenti");
  s.sCodeCategorie = "ELUS";
  TauxS("ABATTEMENT PAS");
  EXPECT_EQ(r.sDesignation, "A - Apprenti - Elu");
  s.sCodeCategorie = "AUTRE";
  TauxS("ABATTEMENT PAS");
  EXPECT_EQ(r.sDesignation, "A - Apprenti - Elu");
}

TEST_F(TauxReviewTest, AssistanteMaternelle) {
  Variable(vars, "TXHEURES", 3.2);
  Variable(vars, "HRSENFMAT", 2.0);
  // (3.2 + 2) x 0.5 = 2.6
  EXPECT_NEAR(TauxS("TAUX TRAITEMENT ASS. MATERNELLE"), 2.6, 1e-12);
}

TEST_F(TauxReviewTest, AccidentDeTravail) {
  s.iTauxAtUtilise = 2;
  Taux("URSAT1", 0.0, 1.1);
  Taux("URSAT2", 0.0, 2.2);
  Taux("URSAT3", 0.0, 3.3);
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 2.2);
  EXPECT_EQ(type, "T");
  s.iTauxAtUtilise = 3;
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 3.3);
  EXPECT_DOUBLE_EQ(TauxS("TAUX ACCIDENT DE TRAVAIL"), 0.0);
}

TEST_F(TauxReviewTest, CommunsDesDeuxCotes) {
  r.lIdTaux = 5;
  Taux("X", 7.123456, 30.5, 5);
  EXPECT_DOUBLE_EQ(TauxS("TAUX DE COTISATION DE L'ORGANISME"), 7.123456);
  EXPECT_EQ(type, "T");
  EXPECT_DOUBLE_EQ(TauxP("TAUX DE COTISATION DE L'ORGANISME"), 30.5);
  EXPECT_EQ(type, "T");
  Cumul("C", 12.345, 99.0, 6);
  EXPECT_DOUBLE_EQ(TauxP("UN CUMUL PARTICULIER", 6), 12.345);  // PartSalariale on both sides
  EXPECT_EQ(type, "M");
  EXPECT_DOUBLE_EQ(TauxP("UN CUMUL PARTICULIER", 0), 0.0);
  Constante("K", 4.5, 7, "T");
  EXPECT_DOUBLE_EQ(TauxS("CONSTANTE", 7), 4.5);  // no division by 100 here
  EXPECT_EQ(type, "T");
  r.dMontantPatronalRub = -3.5;
  EXPECT_DOUBLE_EQ(TauxS("PART PATRONALE D'UNE RUBRIQUE"), -3.5);
  EXPECT_EQ(type, "");
}

TEST_F(TauxReviewTest, VariableDateEffet) {
  Variable(vars, "V", 8.5, 11, "20240301", "T");
  Variable(vars, "W", 9.5, 12, "20240229", "T");
  EXPECT_DOUBLE_EQ(TauxS("VARIABLE", 11), 8.5);
  EXPECT_EQ(type, "T");
  EXPECT_DOUBLE_EQ(TauxS("UNE VARIABLE SALARIE", 12), 0.0);
}

TEST_F(TauxReviewTest, HeuresComplementairesMoisPrecIndiciaire) {
  s.sTypeModele = "INDTIT";
  Fixe("HrsMois", 100.0);
  Fixe("SmicHor", 20.0);
  FixesDuMois("202402", {{"HrsMois", 151.67}, {"SmicHor", 11.52}});
  s.dBase_HSN = 99999;
  s.dBase_HSA = 20000;  // 20000 / 1820.04 = 10.9888 -> 10.99, below 11.52
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES MOIS PREC"), 11.52);
  s.dBase_HSA = 24000;  // 24000 / 1820.04 = 13.1865 -> 13.19
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES MOIS PREC"), 13.19);
}

TEST_F(TauxReviewTest, HoraireMoisPrecSmicDuMoisPrecedent) {
  Fixe("SmicHor", 11.65);
  FixesDuMois("202402", {{"SmicHor", 11.52}});
  Variable(varsHisto, "TXSMIC", 120.0);
  // 11.52 x 120 x 1.1 / 100 = 15.2064
  EXPECT_NEAR(TauxS("TAUX HORAIRE DU SALARIE + 10 % MOIS PREC"), 15.2064, 1e-12);
}

}  // namespace
}  // namespace orvalis::taux_test
