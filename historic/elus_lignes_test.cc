// The officials' lines of the historic engine beside the current one: one body, the index
// of the month the one difference. Current: the constant "INDMAJELU" 830, a year of
// Arrondi(830 x 59.0734, 2) = 49030.92, a month Arrondi(49030.92 / 12 - 0.0049, 2) = 4085.91.
// Historic from November 2006: 821, Arrondi(821 x 59.0734, 2) = 48499.26, a month
// Arrondi(4041.6001, 2) = 4041.60. The mayor at 51.6 %.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

constexpr double kPleinN = 4085.91;
constexpr double kPleinH = 4041.60;

class ElusLignesHistoriqueTest : public DeuxMoteurs {
 protected:
  ElusLignesHistoriqueTest() {
    n.gRsConstantesFixes->AjouteColonne("Point");
    Fixe("Point", 59.0734);
    n.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "Point"});
    h.gRsConstantesFixesHistorique = n.gRsConstantesFixesHistorique;
    for (const char* mois : {"202401", "202402", "202403", "202404", "202405"}) {
      n.gRsConstantesFixesHistorique->AddNew();
      n.gRsConstantesFixesHistorique->SetField("Mois", mois);
      n.gRsConstantesFixesHistorique->SetField("Point", 59.0734);
    }
    Constante("INDMAJELU", 830);
    s.sTypeModele = "ELUS";
    s.sDateDebut = "01/01/2020";
    s.sEluPeriodicite = "1";
    s.dTauxMaire = 51.6;
    s.dCoefficient_Traitement = 0.516;
    s.iNBJ_PresenceA = 0;
    s.iNBJ_PresenceN = 30;
    r.dBase = -1;
    r.dMontantSalarial = -1;
  }
  void Lignes(double dBaseN, double dIndiceN, double dMontantN, double dBaseH, double dIndiceH,
              double dMontantH) {
    EXPECT_NEAR(rN.dBase, dBaseN, 1e-9);
    EXPECT_EQ(rN.dTauxSalarial, dIndiceN);
    EXPECT_NEAR(rN.dMontantSalarial, dMontantN, 1e-9);
    EXPECT_NEAR(rH.dBase, dBaseH, 1e-9);
    EXPECT_EQ(rH.dTauxSalarial, dIndiceH);
    EXPECT_NEAR(rH.dMontantSalarial, dMontantH, 1e-9);
    EXPECT_EQ(rH.dTauxPatronal, 0.0);
    EXPECT_EQ(rH.dMontantPatronal, 0.0);
  }
};

// A whole month on the new rate: 4085.91 x 0.516 = 2108.32956; 4041.60 x 0.516 = 2085.4656.
TEST_F(ElusLignesHistoriqueTest, MonthlyWholeMonth) {
  Calcule("TRAITEMENT INDICIAIRE ELUS");
  Lignes(kPleinN, 830, 2108.32956, kPleinH, 821, 2085.4656);
  EXPECT_EQ(sH.dIndiceMajoreM, 821);
  EXPECT_EQ(sH.dSalarie_AnnuelPlein, 48499.26);
  EXPECT_EQ(sH.dCoefficient_INouveau, 1);
}

// Quarterly in March: January and February added, each at its own point and index, at the
// mayor's rate (current) or the treatment coefficient (historic), both 0.516 here:
// 3 x 2108.32956 = 6324.98868; 3 x 2085.4656 = 6256.3968.
TEST_F(ElusLignesHistoriqueTest, QuarterlyInMarchAddsTwoMonths) {
  s.sEluPeriodicite = "2";
  Calcule("TRAITEMENT INDICIAIRE ELUS");
  Lignes(kPleinN, 830, 6324.98868, kPleinH, 821, 6256.3968);
  // The month's days are counted again for the lines that follow.
  EXPECT_EQ(sH.iNBJ_PresenceN, 30);
  EXPECT_EQ(sH.iNBJ_PresenceA, 0);
}

TEST_F(ElusLignesHistoriqueTest, QuarterlyInFebruaryWritesNothing) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/02/2024";
  s.sEluPeriodicite = "2";
  Calcule("TRAITEMENT INDICIAIRE ELUS");
  Lignes(-1, 0, -1, -1, 0, -1);
  EXPECT_EQ(sH.dIndiceMajoreM, 0);
}

// A mandate ending on 31 May, quarterly: May and April paid, 2 x 2108.32956 = 4216.65912;
// 2 x 2085.4656 = 4170.9312.
TEST_F(ElusLignesHistoriqueTest, MandateEndingOnThe31st) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/05/2024";
  s.sEluPeriodicite = "2";
  s.sDateFin = "31/05/2024";
  Calcule("TRAITEMENT INDICIAIRE ELUS");
  Lignes(kPleinN, 830, 4216.65912, kPleinH, 821, 4170.9312);
}

// The amount of the period given by the host replaces the computed one; the base keeps
// each engine's full month.
TEST_F(ElusLignesHistoriqueTest, AmountGivenByTheHost) {
  s.sEluPeriodicite = "2";
  s.dTraitementEluNonMensuel = 1234.56;
  Calcule("TRAITEMENT INDICIAIRE ELUS");
  Lignes(kPleinN, 830, 1234.56, kPleinH, 821, 1234.56);
}

// The rate changes on 16 March: 15 days each side. New rate 0.5 x full month x 0.516, the
// 15 days present of 30 - 15: 1054.16478 and 1042.7328. Former rate 40 %: 0.5 x 4085.91 x
// 0.4 = 817.182; 0.5 x 4041.60 x 0.4 = 808.32.
TEST_F(ElusLignesHistoriqueTest, RateChangeInsideTheMonth) {
  s.sDateChangementTauxElus = "16/03/2024";
  s.dTauxMairePrecedent = 40;
  s.iNBJ_PresenceA = 15;
  s.iNBJ_PresenceN = 15;
  Calcule("TRAITEMENT INDICIAIRE ELUS");
  Lignes(kPleinN, 830, 1054.16478, kPleinH, 821, 1042.7328);
  EXPECT_DOUBLE_EQ(sH.dCoefficient_IAncien, 0.5);
  Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT");
  Lignes(kPleinN, 830, 817.182, kPleinH, 821, 808.32);
  EXPECT_EQ(sH.dSalarie_MensuelPleinA, kPleinH);
  Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT MOIS");
  Lignes(kPleinN, 830, 817.182, kPleinH, 821, 808.32);
}

// 30 - iNBJ_PresenceA past 16 bits is a fault in both engines.
TEST_F(ElusLignesHistoriqueTest, DayCountOverflowFaults) {
  s.iNBJ_PresenceA = -32767;
  sN = s;
  sH = s;
  EXPECT_FALSE(n.Appel_Methode_Calcul_General("TRAITEMENT INDICIAIRE ELUS", sN, rN, vars, vars));
  EXPECT_FALSE(h.Appel_Methode_Calcul_General("TRAITEMENT INDICIAIRE ELUS", sH, rH, vars, vars));
}

// The month alone: in 2024 the current engine reads "INDMAJELU", the historic one keeps 821.
TEST_F(ElusLignesHistoriqueTest, MonthAlone) {
  Calcule("TRAITEMENT INDICIAIRE ELUS MOIS");
  Lignes(kPleinN, 830, 2108.32956, kPleinH, 821, 2085.4656);
}

// October 2006: both engines on 820, Arrondi(820 x 59.0734, 2) = 48440.19, a month
// Arrondi(4036.6776, 2) = 4036.68, x 0.516 = 2082.92688. November 2006: 821 in both.
TEST_F(ElusLignesHistoriqueTest, MonthAloneAroundNovember2006) {
  n.gPeriodeEncours = h.gPeriodeEncours = "01/10/2006";
  Calcule("TRAITEMENT INDICIAIRE ELUS MOIS");
  Lignes(4036.68, 820, 2082.92688, 4036.68, 820, 2082.92688);
  n.gPeriodeEncours = h.gPeriodeEncours = "01/11/2006";
  Calcule("TRAITEMENT INDICIAIRE ELUS MOIS");
  Lignes(kPleinH, 821, 2085.4656, kPleinH, 821, 2085.4656);
}

// A fixed 600 a month, quarterly in March: 2 x 600 + 30 x 600 / 30 = 1800 in both engines.
TEST_F(ElusLignesHistoriqueTest, FixedAmountQuarterly) {
  s.dEluForfait = 600;
  s.sEluPeriodicite = "2";
  Calcule("TRAITEMENT FORFAITAIRE ELUS");
  Lignes(1800, 0, 1800, 1800, 0, 1800);
}

// No day present: nothing for the month.
TEST_F(ElusLignesHistoriqueTest, FixedAmountWithoutPresence) {
  s.dEluForfait = 600;
  s.iNBJ_PresenceN = 0;
  Calcule("TRAITEMENT FORFAITAIRE ELUS");
  Lignes(0, 0, 0, 0, 0, 0);
}

}  // namespace
}  // namespace orvalis::historique_test
