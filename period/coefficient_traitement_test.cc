// The treatment coefficient by occupation of the post, and its correction for therapeutic
// part-time.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::Situations;

struct Sorties {
  double traitement = -1, avantTP = -1, siTNC = -1;
};

VarCalculSalarie Poste(const std::string& sOccupation) {
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sOccupationPoste = sOccupation;
  s.rsSituationsExceptionnelles = Situations({});
  return s;
}

Sorties Position(VarCalculSalarie s, bool bMoisEnCours = true,
                 const std::string& sPeriode = "01/04/2023") {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = sPeriode;
  Sorties o;
  m.CalculCoefficientTraitementEnFonctionOccupationPoste(s, bMoisEnCours, o.traitement, o.avantTP,
                                                         o.siTNC);
  return o;
}

TEST(CoefficientTraitementTest, PartTimeQuotities) {
  VarCalculSalarie s = Poste("P");
  s.dTauxPoste = 80;
  Sorties o = Position(s);
  EXPECT_DOUBLE_EQ(o.traitement, 6.0 / 7.0);
  EXPECT_EQ(o.avantTP, 0);
  EXPECT_EQ(o.siTNC, 0);
  s.dTauxPoste = 90;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 32.0 / 35.0);
  s.dTauxPoste = 50;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 0.5);
  s.dTauxPoste = 80.0001;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 0.800001);
  s.dTauxPoste = 100;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 1.0);
}

TEST(CoefficientTraitementTest, NonCompletePost) {
  VarCalculSalarie s = Poste("T");
  s.dTauxPosteTNC = 100;
  s.dHeuresHebdoOrigineTNC = 28;
  s.dDureeHebdoLegale = 35;
  Sorties o = Position(s);
  EXPECT_DOUBLE_EQ(o.avantTP, 0.8);
  EXPECT_DOUBLE_EQ(o.siTNC, 1.0);
  EXPECT_DOUBLE_EQ(o.traitement, 0.8);

  s.dTauxPosteTNC = 80;
  s.dDureeHebdoLegale = 0;  // 35 then
  o = Position(s);
  EXPECT_DOUBLE_EQ(o.avantTP, 0.8);
  EXPECT_DOUBLE_EQ(o.siTNC, 6.0 / 7.0);
  EXPECT_DOUBLE_EQ(o.traitement, 0.8 * (6.0 / 7.0));

  s.dTauxPosteTNC = 90;
  s.dHeuresHebdoOrigineTNC = 19.5;
  s.dDureeHebdoLegale = 39;
  o = Position(s);
  EXPECT_DOUBLE_EQ(o.avantTP, 0.5);
  EXPECT_DOUBLE_EQ(o.traitement, 0.5 * (32.0 / 35.0));

  s.dHeuresHebdoOrigineTNC = 0;
  EXPECT_EQ(Position(s).traitement, 0);
}

TEST(CoefficientTraitementTest, WeeklyHoursAgainstTheLegalDuration) {
  VarCalculSalarie s = Poste("C");
  s.iTypeCalculHeure = 1;
  s.dHeuresHebdo = 17.5;
  s.dDureeHebdoLegale = 35;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 0.5);
  s.dDureeHebdoLegale = 0;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 0.5);
  s.dDureeHebdoLegale = -4;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 0.5);
  s.dHeuresHebdo = 19.5;
  s.dDureeHebdoLegale = 39;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 0.5);
}

TEST(CoefficientTraitementTest, MonthlyHoursAgainstTheLegalDuration) {
  VarCalculSalarie s = Poste("N");
  s.iTypeCalculHeure = 2;
  s.dHeuresMois = 151.67;
  s.dDureeHebdoLegale = 35;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 1.0);
  // 39 hours: 169.0037 rounded to 169.
  s.dDureeHebdoLegale = 39;
  s.dHeuresMois = 84.5;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 0.5);
  s.dDureeHebdoLegale = 0;
  s.dHeuresMois = 75.835;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 75.835 / 151.67);
  s.dDureeHebdoLegale = -1;
  EXPECT_DOUBLE_EQ(Position(s).traitement, 75.835 / 151.67);
}

TEST(CoefficientTraitementTest, PreviousMonthReadsItsOwnColumns) {
  VarCalculSalarie s = Poste("P");
  s.dTauxPoste = 50;
  s.sOccupationPosteMoisPrec = "T";
  s.dTauxPosteTNCMoisPrec = 90;
  s.dHeuresHebdoOrigineTNCMoisPrec = 28;
  s.dDureeHebdoLegaleMoisPrec = 35;
  const Sorties o = Position(s, false);
  EXPECT_DOUBLE_EQ(o.avantTP, 0.8);
  EXPECT_DOUBLE_EQ(o.siTNC, 32.0 / 35.0);
  EXPECT_DOUBLE_EQ(o.traitement, 0.8 * 32.0 / 35.0);

  VarCalculSalarie h = Poste("P");
  h.sOccupationPosteMoisPrec = "C";
  h.iTypeCalculHeureMoisPrec = 0;
  h.dHeuresMensMoisPrec = 84.5;
  h.dDureeHebdoLegaleMoisPrec = 39;
  h.dHeuresMois = 1000;  // the current month's hours are not read
  EXPECT_DOUBLE_EQ(Position(h, false).traitement, 0.5);
  h.iTypeCalculHeureMoisPrec = 1;
  h.dHeuresHebdoMoisPrec = 19.5;
  EXPECT_DOUBLE_EQ(Position(h, false).traitement, 0.5);
}

TEST(CoefficientTraitementTest, EntryWritesBothMonthsForIndexedModels) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/04/2023";
  VarCalculSalarie s = Poste("T");
  s.sTypeModele = "INDNTI";
  s.dTauxPosteTNC = 100;
  s.dHeuresHebdoOrigineTNC = 28;
  s.dDureeHebdoLegale = 35;
  s.sOccupationPosteMoisPrec = "P";
  s.dTauxPosteMoisPrec = 80;
  s.dCoefficient_Traitement = 0.3;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTN, 0.8);
  EXPECT_DOUBLE_EQ(s.dCoefficientTraitementTNCAvantTP, 0.8);
  EXPECT_DOUBLE_EQ(s.dCoefficientTraitementTPSiTNC, 1.0);
  EXPECT_DOUBLE_EQ(s.dCoefficient_TraitementTA, 6.0 / 7.0);
  EXPECT_EQ(s.dCoefficientTraitementTNCAvantTPMoisPrec, 0);
  EXPECT_EQ(s.dCoefficientTraitementTPSiTNCMoisPrec, 0);
  EXPECT_EQ(s.dCoefficient_Traitement, 0.3);
}

TEST(CoefficientTraitementTest, ElectedOfficials) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.sTypeModele = "ELUS";
  s.dTauxMaire = 50;
  s.dCoefficient_TraitementTA = 0.7;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_DOUBLE_EQ(s.dCoefficient_Traitement, 0.5);
  EXPECT_EQ(s.dCoefficient_TraitementTA, 0.7);
  s.dTauxEPCI = 40;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_DOUBLE_EQ(s.dCoefficient_Traitement, 0.2);
}

TEST(CoefficientTraitementTest, OtherModelsGetZero) {
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  s.sTypeModele = "HORAIR";
  s.sOccupationPoste = "P";
  s.dTauxPoste = 50;
  s.dCoefficient_TraitementTA = 0.5;
  s.dCoefficient_TraitementTN = 0.5;
  s.dCoefficient_Traitement = 0.5;
  ASSERT_TRUE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
  EXPECT_EQ(s.dCoefficient_TraitementTA, 0);
  EXPECT_EQ(s.dCoefficient_TraitementTN, 0);
  EXPECT_EQ(s.dCoefficient_Traitement, 0);
}

// ---- Therapeutic part-time -----------------------------------------------------------------

double MiTemps(const std::vector<LigneSituation>& lignes, const std::string& sPeriode,
               double dTaux = 50) {
  VarCalculSalarie s = Poste("P");
  s.dTauxPoste = dTaux;
  s.rsSituationsExceptionnelles = Situations(lignes);
  return Position(s, true, sPeriode).traitement;
}

TEST(CoefficientAbsencesTptTest, WholeMonthOf30DaysIsFullTime) {
  EXPECT_DOUBLE_EQ(MiTemps({{"MI", "01/04/2023", "30/04/2023"}}, "01/04/2023"), 1.0);
  EXPECT_DOUBLE_EQ(MiTemps({{"MI", "01/01/2023", "31/12/2023"}}, "01/04/2023"), 1.0);
}

TEST(CoefficientAbsencesTptTest, WholeMonthOf31DaysIsFullTime) {
  EXPECT_DOUBLE_EQ(MiTemps({{"MI", "01/03/2023", "31/03/2023"}}, "01/03/2023"), 1.0);
}

TEST(CoefficientAbsencesTptTest, StretchInsideA31DayMonthCountsOneDayLess) {
  // N = 9: (21 x 0.5 + 9) / 30.
  EXPECT_DOUBLE_EQ(MiTemps({{"MI", "11/03/2023", "20/03/2023"}}, "01/03/2023"), 19.5 / 30);
  EXPECT_DOUBLE_EQ(MiTemps({{"M7", "11/03/2023", "20/03/2023"}}, "01/03/2023"), 19.5 / 30);
}

TEST(CoefficientAbsencesTptTest, StretchInsideA30DayMonth) {
  // N = 9 + 1.
  EXPECT_DOUBLE_EQ(MiTemps({{"M8", "11/04/2023", "20/04/2023"}}, "01/04/2023"), 20.0 / 30);
}

TEST(CoefficientAbsencesTptTest, WholeFebruaryCounts28Days) {
  EXPECT_DOUBLE_EQ(MiTemps({{"MV", "01/02/2023", "28/02/2023"}}, "01/02/2023"),
                   (2 * 0.5 + 28) / 30);
  EXPECT_DOUBLE_EQ(MiTemps({{"M9", "01/02/2024", "29/02/2024"}}, "01/02/2024"),
                   (1 * 0.5 + 29) / 30);
}

TEST(CoefficientAbsencesTptTest, OpenSituationRunsToTheMonthsEnd) {
  EXPECT_DOUBLE_EQ(MiTemps({{"M6", "11/04/2023", ""}}, "01/04/2023"), (10 * 0.5 + 20) / 30);
}

TEST(CoefficientAbsencesTptTest, OtherCodesAndTwoStretchesAddUp) {
  EXPECT_DOUBLE_EQ(MiTemps({{"LM", "01/04/2023", "30/04/2023"},
                            {"MINS", "01/04/2023", "30/04/2023"},
                            {"MI", "01/04/2023", "05/04/2023"},
                            {"M6", "21/04/2023", "30/04/2023"}},
                           "01/04/2023", 80),
                   // 5 and 10 days: N = 15, the 80 % post gives 6/7 on the other 15.
                   (15 * (6.0 / 7.0) + 15) / 30);
}

TEST(CoefficientAbsencesTptTest, NonCompletePostCorrectsOnlyThePartTimeShare) {
  VarCalculSalarie s = Poste("T");
  s.dTauxPosteTNC = 50;
  s.dHeuresHebdoOrigineTNC = 35;
  s.dDureeHebdoLegale = 35;
  s.rsSituationsExceptionnelles = Situations({{"MI", "01/04/2023", "30/04/2023"}});
  const Sorties o = Position(s);
  EXPECT_DOUBLE_EQ(o.traitement, 0.5);
  EXPECT_DOUBLE_EQ(o.siTNC, 1.0);
  EXPECT_DOUBLE_EQ(o.avantTP, 1.0);
}

TEST(CoefficientAbsencesTptTest, FilterIsClearedAfterwards) {
  VarCalculSalarie s = Poste("P");
  s.dTauxPoste = 50;
  s.rsSituationsExceptionnelles =
      Situations({{"LM", "01/04/2023", "30/04/2023"}, {"MI", "01/04/2023", "30/04/2023"}});
  Position(s);
  EXPECT_EQ(s.rsSituationsExceptionnelles->RecordCount(), 2);
}

TEST(CoefficientAbsencesTptTest, MissingSourceIsAFault) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/04/2023";
  VarCalculSalarie s = Poste("P");
  s.dTauxPoste = 50;
  s.rsSituationsExceptionnelles = nullptr;
  EXPECT_FALSE(m.Appel_Methode_Preparation_Calcul_General("COEFFICIENT_TRAITEMENT", s));
}

}  // namespace
}  // namespace orvalis
