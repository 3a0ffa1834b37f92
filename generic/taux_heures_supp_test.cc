// Hourly rates of additional and overtime hours.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

using TauxHeuresSupp = PaieTaux;

TEST_F(TauxHeuresSupp, ComplementairesIndiciaireSurLaDureeLegale) {
  s.sTypeModele = "INDTIT";
  s.dDureeHebdoLegale = 35;
  s.dBase_HSN = 24000;
  Fixe("HrsMois", 151.67);
  Fixe("SmicHor", 11.65);
  // 24000 / (35 x 52) = 13.1868... -> 13.19
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 13.19);
  EXPECT_EQ(type, "");
}

TEST_F(TauxHeuresSupp, ComplementairesIndiciaireSurLesHeuresDuMois) {
  s.sTypeModele = "INDNTI";
  s.dBase_HSN = 22000;
  Fixe("HrsMois", 151.667);  // 151.67 once rounded
  Fixe("SmicHor", 11.65);
  // 22000 / (151.67 x 12) = 12.0876... -> 12.09
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 12.09);
}

TEST_F(TauxHeuresSupp, ComplementairesPasSousLeSmicArrondi) {
  s.sTypeModele = "INDTIT";
  s.dDureeHebdoLegale = 35;
  s.dBase_HSN = 18000;  // 9.89 an hour
  Fixe("SmicHor", 11.654);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 11.65);
}

TEST_F(TauxHeuresSupp, ComplementairesSansHeuresNiDureeDonneLeSmic) {
  s.sTypeModele = "INDTIT";
  s.dBase_HSN = 24000;
  Fixe("SmicHor", 11.65);  // HrsMois null: no division
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 11.65);
  Fixe("SmicHor", Value());
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 0.0);
}

TEST_F(TauxHeuresSupp, ComplementairesAutreModelePourcentageDuSmic) {
  s.sTypeModele = "HORAIR";
  Fixe("SmicHor", 11.654);
  Variable(vars, "TXSMIC", 120.5);  // read without rounding
  // 11.65 x 120.5 / 100
  EXPECT_NEAR(TauxS("TAUX HEURES COMPLEMENTAIRES"), 14.03825, 1e-12);
}

TEST_F(TauxHeuresSupp, ComplementairesAutreModeleTauxPropre) {
  s.sTypeModele = "HORAIR";
  Fixe("SmicHor", 11.65);
  Variable(vars, "TXSMIC", 0.0);
  Variable(vars, "TXHEURES", 13.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 13.0);
}

TEST_F(TauxHeuresSupp, ComplementairesTauxPropreLuAuxDecimalesParDefaut) {
  // "TXHEURES" goes through the variable lookup with its default count of places.
  s.sTypeModele = "";
  Variable(vars, "TXHEURES", 12.4);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES"), 12.0);
}

TEST_F(TauxHeuresSupp, SuppMoins14DeduitAvantLArrondi) {
  s.dBase_HSN = 21840;
  Fixe("HsCoefNorm", 1820);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. < 14 HEURES (INDICIAIRE)"), 12.0);
  // 22467.9 / 1820 = 12.345: the deduction sends the half cent downward.
  s.dBase_HSN = 22467.9;
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. < 14 HEURES (INDICIAIRE)"), 12.34);
  EXPECT_EQ(type, "");
}

TEST_F(TauxHeuresSupp, ChaqueDesignationLitSaColonne) {
  s.dBase_HSN = 21840;
  Fixe("HsCoefNorm", 1820);
  Fixe("HsCoefSupp", 1456);
  Fixe("HSCOEFNUIT", 910);
  Fixe("HSCOEFNUITSUPP", 728);
  Fixe("HSCOEFJF", 1092);
  Fixe("HSCOEFJFSUPP", 873.6);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. < 14 HEURES (INDICIAIRE)"), 12.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. > 14 HEURES (INDICIAIRE)"), 15.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. NUIT < 14 HEURES (INDICIAIRE)"), 24.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. NUIT > 14 HEURES (INDICIAIRE)"), 30.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. FERIES < 14 HEURES (INDICIAIRE)"), 20.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. FERIES > 14 HEURES (INDICIAIRE)"), 25.0);
}

TEST_F(TauxHeuresSupp, CoefficientNulOuZeroDonneZero) {
  s.dBase_HSN = 21840;
  Fixe("HsCoefNorm", 0.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. < 14 HEURES (INDICIAIRE)"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. > 14 HEURES (INDICIAIRE)"), 0.0);  // null
}

class TauxHeuresSuppMoisPrec : public PaieTaux {
 protected:
  TauxHeuresSuppMoisPrec() {
    s.dBase_HSN = 99999;
    s.dBase_HSA = 21840;
    for (const char* c : {"HsCoefNorm", "HsCoefSupp", "HSCOEFNUIT", "HSCOEFNUITSUPP", "HSCOEFJF",
                          "HSCOEFJFSUPP"})
      Fixe(c, 1.0);
    Fixe("HrsMois", 100.0);
    Fixe("SmicHor", 20.0);
  }
};

TEST_F(TauxHeuresSuppMoisPrec, LitLesColonnesDuMoisPrecedent) {
  FixesDuMois("202402", {{"HsCoefNorm", 1820.0},
                         {"HsCoefSupp", 1456.0},
                         {"HSCOEFNUIT", 910.0},
                         {"HSCOEFNUITSUPP", 728.0},
                         {"HSCOEFJF", 1092.0},
                         {"HSCOEFJFSUPP", 873.6}});
  FixesDuMois("202403", {{"HsCoefNorm", 1.0}});
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. < 14 HEURES MOIS PREC"), 12.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. > 14 HEURES MOIS PREC"), 15.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. NUIT < 14 HEURES MOIS PREC"), 24.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. NUIT > 14 HEURES MOIS PREC"), 30.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. FERIES < 14 HEURES MOIS PREC"), 20.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. FERIES > 14 HEURES MOIS PREC"), 25.0);
}

TEST_F(TauxHeuresSuppMoisPrec, ColonneAZeroOuMoisAbsentDonneZero) {
  FixesDuMois("202402", {{"HsCoefNorm", 0.0}});
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. < 14 HEURES MOIS PREC"), 0.0);
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. > 14 HEURES MOIS PREC"), 0.0);  // null
  m.gRsConstantesFixesHistorique = NouveauRecordset(ColonnesFixes(true));
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES SUPP. < 14 HEURES MOIS PREC"), 0.0);
}

TEST_F(TauxHeuresSuppMoisPrec, ComplementairesDuMoisPrecedent) {
  s.sTypeModele = "INDTIT";
  s.dBase_HSA = 22000;
  FixesDuMois("202402", {{"HrsMois", 151.67}, {"SmicHor", 11.52}});
  // 22000 / (151.67 x 12) = 12.0876... -> 12.09, above the SMIC of February
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES MOIS PREC"), 12.09);
  s.dBase_HSA = 20000;  // 10.99, under it
  EXPECT_DOUBLE_EQ(TauxS("TAUX HEURES COMPLEMENTAIRES MOIS PREC"), 11.52);
}

TEST_F(TauxHeuresSuppMoisPrec, ComplementairesDuMoisPrecedentAutreModele) {
  s.sTypeModele = "HORAIR";
  FixesDuMois("202402", {{"SmicHor", 11.52}});
  Variable(vars, "TXSMIC", 150.0);
  EXPECT_NEAR(TauxS("TAUX HEURES COMPLEMENTAIRES MOIS PREC"), 17.28, 1e-12);
}

}  // namespace
}  // namespace orvalis::taux_test
