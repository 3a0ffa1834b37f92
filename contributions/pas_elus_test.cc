// Income tax at source of an elected official: the mandate allowance and its detail table.
#include <gtest/gtest.h>

#include "contributions/pas_test_util.h"
#include "orvalis/dates.h"

namespace orvalis {
namespace {

using pas_test::Constantes;
using pas_test::Cumuls;
using pas_test::Mandats;
using pas_test::NbLignes;

// One mandate allowance: 1000 x 6 x 10 % / 12 = 50 a month; 75 with several mandates.
class PasElus : public ::testing::Test {
 protected:
  void SetUp() override {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantes = Constantes({{"INDMAJELU", 1000.0}, {"ELUABTFISC", 0.0}});
    m.gRsConstantesFixes = pas_test::Table({"Point", "EluTxFrais"}, {{6.0, 10.0}});
    m.gRsCumuls = Cumuls({{"BRUT", 2000.0}});
    s.sCodeCategorie = "ELUS";
    s.sEluPeriodicite = "1";
    s.sDateDebut = "01/01/2020";
    s.rsAutresIndemnites = Mandats({});
  }
  double Abattement() { return m.CalculPrelevementALaSource_CasParticulierElu(s, r); }
  Value Detail(std::size_t ligne, const char* colonne) {
    return pas_test::Colonne(r.rsPrelevementSourceElus, ligne, colonne);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

TEST_F(PasElus, DetailTableHasItsColumnsInOrder) {
  Abattement();
  ASSERT_TRUE(r.rsPrelevementSourceElus);
  EXPECT_EQ(r.rsPrelevementSourceElus->Columns(),
            (std::vector<std::string>{"NumeroOrdre", "DesignationMandat", "DateDebut", "DateFin",
                                      "RemunerationBrute", "IndiceMajore",
                                      "FraisEmploiMandatUnique",
                                      "EluNonEligibleAbatFraisEmploi"}));
  EXPECT_EQ(m.EnregistreDetailPrelevementElu()->RecordCount(), 0);
}

TEST_F(PasElus, MonthlyOfficialWithOneMandate) {
  s.sDateFin = "31/12/2026";
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
  EXPECT_EQ(Detail(0, "NumeroOrdre"), Value(1));
  EXPECT_EQ(Detail(0, "DesignationMandat"), Value("Indemnité principale"));
  EXPECT_EQ(Detail(0, "DateDebut"), Value("01/01/2020"));
  EXPECT_EQ(Detail(0, "DateFin"), Value("31/12/2026"));
  EXPECT_EQ(Detail(0, "RemunerationBrute"), Value(2000.0));
  EXPECT_EQ(Detail(0, "IndiceMajore"), Value(1000.0));
  EXPECT_EQ(Detail(0, "FraisEmploiMandatUnique"), Value(50.0));
  EXPECT_EQ(Detail(0, "EluNonEligibleAbatFraisEmploi"), Value(false));
}

TEST_F(PasElus, MonthlyOfficialWithAnotherMandateThisMonth) {
  // One and a half allowances, 75, of which the principal bears 2000 / 2500: 60.
  s.rsAutresIndemnites = Mandats({{false, false, "Conseiller communautaire", "01/01/2023",
                                   "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 60.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(0, "FraisEmploiMandatUnique"), Value(50.0));
  EXPECT_EQ(Detail(1, "NumeroOrdre"), Value(2));
  EXPECT_EQ(Detail(1, "DesignationMandat"), Value("Conseiller communautaire"));
  EXPECT_EQ(Detail(1, "DateDebut"), Value("01/01/2023"));
  EXPECT_EQ(Detail(1, "DateFin"), Value("31/12/2026"));
  EXPECT_EQ(Detail(1, "RemunerationBrute"), Value(500.0));
  EXPECT_EQ(Detail(1, "IndiceMajore"), Value(1000.0));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(75.0));
  EXPECT_EQ(Detail(1, "EluNonEligibleAbatFraisEmploi"), Value(false));
}

TEST_F(PasElus, MandateRunningFromTheFirstToTheLastDayOfTheMonth) {
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/03/2024", "31/03/2024", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 60.0);
}

TEST_F(PasElus, PrincipalRemunerationRowIsNeverAMandate) {
  s.rsAutresIndemnites = Mandats({{true, false, "Salaire", "01/01/2023", "31/12/2026", 3000.0},
                                  {Value(), false, "Inconnu", "01/01/2023", "31/12/2026", 3000.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
}

TEST_F(PasElus, NonEligibleMandateIsInTheDetailOnly) {
  s.rsAutresIndemnites = Mandats({{false, true, "Office", "01/01/2023", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(1, "RemunerationBrute"), Value(500.0));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(50.0));
  EXPECT_EQ(Detail(1, "EluNonEligibleAbatFraisEmploi"), Value(true));
}

TEST_F(PasElus, NullEligibilityCountsNeitherWay) {
  // Not eligible for the months, not added to the other remunerations, copied as it stands.
  s.rsAutresIndemnites = Mandats({{false, Value(), "Office", "01/01/2023", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_TRUE(Detail(1, "EluNonEligibleAbatFraisEmploi").EstNull());
}

TEST_F(PasElus, NullEndDateIsNeitherRunningNorInThePeriod) {
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/01/2023", Value(), 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
}

TEST_F(PasElus, MandateEndedTheMonthBeforeStaysInTheDetail) {
  // Not running in March (no multiple allowance) but within the window: 2000 / 2500 x 50.
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/01/2023", "29/02/2024", 500.0},
                                  {false, false, "Ancien", "01/01/2023", "31/01/2024", 900.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 40.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(1, "DesignationMandat"), Value("Syndicat"));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(50.0));
}

TEST_F(PasElus, MandateBeginningAfterThePayMonthIsLeftOut) {
  s.rsAutresIndemnites = Mandats({{false, false, "Futur", "01/04/2024", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
}

TEST_F(PasElus, MandateDatesAsDateSerials) {
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", static_cast<double>(DateSerial(2024, 3, 31).serial),
                static_cast<double>(DateSerial(2024, 3, 31).serial) + 0.75, 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 60.0);
}

TEST_F(PasElus, MandateDateNotADateIsAFault) {
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "début 2023", "31/12/2026", 500.0}});
  EXPECT_THROW(Abattement(), Fault);
}

TEST_F(PasElus, LongDesignationIsCutAtFiftyCharacters) {
  const std::string sLong =
      "Vice-président délégué à l'économie, à l'emploi et à la transition écologique";
  s.rsAutresIndemnites = Mandats({{false, false, sLong, "01/01/2023", "31/12/2026", 500.0}});
  Abattement();
  EXPECT_EQ(Detail(1, "DesignationMandat"),
            Value("Vice-président délégué à l'économie, à l'emploi et"));
}

TEST_F(PasElus, FlatTaxAllowanceReplacesBothAllowances) {
  m.gRsConstantes = Constantes({{"INDMAJELU", 1000.0}, {"ELUABTFISC", 60.0}});
  s.bAbattementFiscalElu = true;
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 48.0);
  EXPECT_EQ(Detail(0, "FraisEmploiMandatUnique"), Value(60.0));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(60.0));
}

TEST_F(PasElus, FlatTaxAllowanceOfZeroKeepsTheComputedOnes) {
  s.bAbattementFiscalElu = true;
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
}

TEST_F(PasElus, FlatTaxAllowanceIsReadOnlyWhenTheOfficialHasIt) {
  m.gRsConstantes = Constantes({{"INDMAJELU", 1000.0}, {"ELUABTFISC", 60.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
}

TEST_F(PasElus, OfficialNotEligibleGetsZeroWithAFullDetail) {
  s.bEluNonEligibleAbatFraisEmploi = true;
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(0, "EluNonEligibleAbatFraisEmploi"), Value(true));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(75.0));
}

TEST_F(PasElus, NullPointCountsZero) {
  m.gRsConstantesFixes = pas_test::Table({"Point", "EluTxFrais"}, {{Value(), 10.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
}

TEST_F(PasElus, NullExpenseRateIsAFault) {
  m.gRsConstantesFixes = pas_test::Table({"Point", "EluTxFrais"}, {{6.0, Value()}});
  EXPECT_THROW(Abattement(), Fault);
}

TEST_F(PasElus, NoRemunerationAtAllIsAZeroDivisor) {
  m.gRsCumuls = Cumuls({});
  EXPECT_THROW(Abattement(), Fault);
}

TEST_F(PasElus, NoOtherMandatesSourceIsAFault) {
  s.rsAutresIndemnites = nullptr;
  EXPECT_THROW(Abattement(), Fault);
}

TEST_F(PasElus, PeriodicityThatIsNotANumberIsAFault) {
  s.sEluPeriodicite = "M";
  EXPECT_THROW(Abattement(), Fault);
  s.sEluPeriodicite = "";
  EXPECT_THROW(Abattement(), Fault);
}

TEST_F(PasElus, EachCallHangsANewDetailTable) {
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 500.0}});
  Abattement();
  const RsRef premier = r.rsPrelevementSourceElus;
  Abattement();
  EXPECT_NE(r.rsPrelevementSourceElus, premier);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(NbLignes(premier), 2u);
}

TEST_F(PasElus, PayLineFiguresAreLeftAlone) {
  r.dBase = 11.0;
  r.dMontantSalarial = 22.0;
  r.sDesignation = "PAS";
  Abattement();
  EXPECT_DOUBLE_EQ(r.dBase, 11.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 22.0);
  EXPECT_EQ(r.sDesignation, "PAS");
}

// ---- Officials paid on a longer period ---------------------------------------------------

TEST_F(PasElus, QuarterlyOfficialOutsideTheQuarterEndGetsNothing) {
  m.gPeriodeEncours = "01/05/2024";
  s.sEluPeriodicite = "2";
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  ASSERT_TRUE(r.rsPrelevementSourceElus);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 0u);
}

TEST_F(PasElus, QuarterlyOfficialLeavingThisMonthIsTreated) {
  // Contract ending in May: three months of the single allowance.
  m.gPeriodeEncours = "01/05/2024";
  s.sEluPeriodicite = "2";
  s.sDateFin = "15/05/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
}

TEST_F(PasElus, QuarterlyOfficialLeavingAnotherYearIsNotTreated) {
  m.gPeriodeEncours = "01/05/2024";
  s.sEluPeriodicite = "2";
  s.sDateFin = "15/05/2025";
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
}

TEST_F(PasElus, QuarterlyOfficialAtTheQuarterEnd) {
  m.gPeriodeEncours = "01/06/2024";
  s.sEluPeriodicite = "2";
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
}

TEST_F(PasElus, QuarterlyMandateBegunInTheQuarter) {
  m.gPeriodeEncours = "01/06/2024";
  s.sEluPeriodicite = "2";
  s.sDateDebut = "31/05/2024";  // second month of the quarter
  EXPECT_DOUBLE_EQ(Abattement(), 100.0);
  s.sDateDebut = "01/04/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
  s.sDateDebut = "30/06/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  s.sDateDebut = "01/03/2024";  // before the quarter
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
  s.sDateDebut = "01/06/2023";  // another year
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
}

TEST_F(PasElus, QuarterWithAnotherMandateInOneMonthOnly) {
  // 2 months single + 1 month multiple = 175; principal share 2000 / 2300.
  m.gPeriodeEncours = "01/06/2024";
  s.sEluPeriodicite = "2";
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/06/2024", "30/06/2024", 300.0}});
  EXPECT_NEAR(Abattement(), 152.173913043478, 1e-9);
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(75.0));
}

TEST_F(PasElus, QuarterWindowReachesTheMonthBeforeTheQuarter) {
  // Ended in March, before the quarter April-June: in the detail, no multiple month.
  m.gPeriodeEncours = "01/06/2024";
  s.sEluPeriodicite = "2";
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/01/2024", "31/03/2024", 400.0},
                                  {false, false, "Ancien", "01/01/2024", "29/02/2024", 900.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 125.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(50.0));
}

TEST_F(PasElus, SeveralMandatesInOneMonthCountItOnce) {
  m.gPeriodeEncours = "01/06/2024";
  s.sEluPeriodicite = "2";
  s.rsAutresIndemnites = Mandats({{false, false, "A", "01/06/2024", "30/06/2024", 100.0},
                                  {false, false, "B", "01/05/2024", "30/06/2024", 100.0}});
  // June and May are multiple, April single: 50 + 2 x 75 = 200, share 2000 / 2200.
  EXPECT_NEAR(Abattement(), 181.818181818182, 1e-9);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 3u);
  EXPECT_EQ(Detail(2, "NumeroOrdre"), Value(3));
}

TEST_F(PasElus, HalfYearlyOfficial) {
  m.gPeriodeEncours = "01/12/2024";
  s.sEluPeriodicite = "3";
  EXPECT_DOUBLE_EQ(Abattement(), 300.0);
  m.gPeriodeEncours = "01/09/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  m.gPeriodeEncours = "01/06/2024";
  s.sDateDebut = "01/04/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
}

TEST_F(PasElus, YearlyOfficialWithAnotherMandateInTheAutumn) {
  // Begun in March: 10 months, October and November multiple: 8 x 50 + 2 x 75 = 550,
  // share 2000 / 3000.
  m.gPeriodeEncours = "01/12/2024";
  s.sEluPeriodicite = "4";
  s.sDateDebut = "15/03/2024";
  s.rsAutresIndemnites = Mandats({{false, false, "Syndicat", "01/10/2024", "30/11/2024", 1000.0}});
  EXPECT_NEAR(Abattement(), 366.666666666667, 1e-9);
}

TEST_F(PasElus, YearlyOfficialBeforeDecemberGetsNothing) {
  m.gPeriodeEncours = "01/11/2024";
  s.sEluPeriodicite = "4";
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
}

}  // namespace
}  // namespace orvalis
