#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/Recordset.h"
#include "orvalis/fault.h"

namespace orvalis {
namespace {

RsRef Table(const std::vector<std::string>& colonnes, const std::vector<std::vector<Value>>& lignes) {
  RsRef rs = NouveauRecordset(colonnes);
  for (const auto& ligne : lignes) {
    rs->AddNew();
    for (std::size_t i = 0; i < colonnes.size(); ++i) rs->SetField(colonnes[i], ligne[i]);
  }
  return rs;
}

class Lookups : public ::testing::Test {
 protected:
  MethodeCalculG_Nouv m;
};

// ---- Constants ----------------------------------------------------------------------------

TEST_F(Lookups, ConstanteByCode) {
  RsRef rs = Table({"CodeConstante", "Valeur"}, {{"TXINDCP", 10.0}, {"SMICANNUEL", 21203.0}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "SMICANNUEL"), 21203.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "TXINDCP"), 10.0);
  // The filter is cleared: all rows again, from the first.
  EXPECT_EQ(rs->RecordCount(), 2);
  EXPECT_EQ(rs->Field("CodeConstante").Texte(), "TXINDCP");
}

TEST_F(Lookups, ConstanteWithNoRowGivesZeroWithoutFault) {
  RsRef rs = Table({"CodeConstante", "Valeur"}, {{"TXINDCP", 10.0}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "ABSENT"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "txindcp"), 0.0);  // codes are exact
  EXPECT_EQ(rs->RecordCount(), 1);
}

TEST_F(Lookups, ConstanteNullValeurGivesZero) {
  RsRef rs = Table({"CodeConstante", "Valeur"}, {{"X", Value()}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "X"), 0.0);
}

TEST_F(Lookups, ConstanteOnUpperCaseColumns) {
  RsRef rs = Table({"CODECONSTANTE", "VALEUR"}, {{"X", 4.5}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "X"), 4.5);
}

TEST_F(Lookups, EmptySourceGivesTheDefaultWithoutMoveFirstOrFilter) {
  // The sources of a new engine have no rows and not even columns: a filter would fault.
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(m.gRsConstantes, "X"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("X"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("X", "S"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulRappel("X", "S"), 0.0);
  double d = 7, s = 8;
  std::string t = "T";
  m.RechercheValeurType_Constantes(5, d, t);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(t, "");
  m.RechercheValeursListeCumul("A,B", d, s);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_DOUBLE_EQ(s, 0.0);
  RsRef vide = NouveauRecordset({});
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(vide, "X"), 0.0);
  EXPECT_EQ(m.dRechercheDate_Variable(vide, "X"), "");
  d = 3;
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_VariableBis(vide, "X", d), 0.0);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(vide, 42, "01/03/2024"), 0.0);
  d = 3;
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(42, "01/03/2024", "BASE", d, "", "S", 0), 0.0);
  EXPECT_DOUBLE_EQ(d, 0.0);
}

TEST_F(Lookups, NoSourceIsAFault) {
  RsRef aucune;
  EXPECT_THROW(m.dRechercheValeur_Constantes(aucune, "X"), Fault);
  EXPECT_THROW(m.dRechercheValeur_Variable(aucune, "X"), Fault);
  double d = 0;
  // gRsConstantesFixesHistorique starts with no source.
  EXPECT_THROW(m.dRechercheHistoriqueMois("Point", d), Fault);
  EXPECT_THROW(m.dRecherchePointHistorique(d, "01/03/2024", "-1"), Fault);
  m.gRsTaux = nullptr;
  EXPECT_THROW(m.dRechercheValeurTaux("X"), Fault);
}

TEST_F(Lookups, TypeConstanteById) {
  m.gRsConstantes = Table({"IdConstante", "CodeConstante", "Valeur", "TauxMontant"},
                          {{5.0, "A", 12.5, "T"}, {"123456", "B", 3.0, Value()},
                           {-2.0, "C", Value(), "M"}});
  double d = 0;
  std::string s = "x";
  m.RechercheValeurType_Constantes(5, d, s);
  EXPECT_DOUBLE_EQ(d, 12.5);
  EXPECT_EQ(s, "T");
  m.RechercheValeurType_Constantes(123456, d, s);  // an id stored as text
  EXPECT_DOUBLE_EQ(d, 3.0);
  EXPECT_EQ(s, "");
  m.RechercheValeurType_Constantes(-2, d, s);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(s, "M");
  m.RechercheValeurType_Constantes(99, d, s);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(s, "");
}

TEST_F(Lookups, ConstanteHistorique) {
  RsRef rs = Table({"CodeConstante", "Mois", "Valeur"},
                   {{"URSAFSMIC", "202401", 1.6}, {"URSAFSMIC", "202402", 1.7},
                    {"MSAAFSMIC", "202402", 1.5}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeurConstanteHistorique(rs, "URSAFSMIC", "202402"), 1.7);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurConstanteHistorique(rs, "MSAAFSMIC", "202401"), 0.0);
}

TEST_F(Lookups, FaultLeavesTheFilterAndALaterLookupStillFindsItsRow) {
  RsRef rs = Table({"CodeConstante", "Valeur"}, {{"X", "abc"}, {"Y", 3.0}, {"Z", 4.0}});
  EXPECT_THROW(m.dRechercheValeur_Constantes(rs, "X"), Fault);
  EXPECT_EQ(rs->RecordCount(), 1);  // the filter on X stays set
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "Y"), 3.0);
  EXPECT_EQ(rs->RecordCount(), 3);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Constantes(rs, "Z"), 4.0);
}

TEST_F(Lookups, ConstanteFixeReadsTheCurrentRow) {
  m.gRsConstantesFixes = Table({"Point", "HSCoefNorm", "SmicHor", "HSCOEFNUIT"},
                               {{4.92278, 1.25, Value(), 2.0}});
  EXPECT_DOUBLE_EQ(m.ConstanteFixe("Point"), 4.92278);
  EXPECT_DOUBLE_EQ(m.ConstanteFixe("HsCoefNorm"), 1.25);
  EXPECT_DOUBLE_EQ(m.ConstanteFixe("HSCoefNuit"), 2.0);
  EXPECT_DOUBLE_EQ(m.ConstanteFixe("SmicHor"), 0.0);
  EXPECT_THROW(m.ConstanteFixe("PlafSecu"), Fault);
}

TEST_F(Lookups, ConstanteFixeDoesNotMove) {
  RsRef rs = Table({"Point"}, {{1.0}, {2.0}});
  m.gRsConstantesFixes = rs;
  EXPECT_DOUBLE_EQ(m.ConstanteFixe("Point"), 2.0);  // AddNew left the last row current
  rs->MoveFirst();
  EXPECT_DOUBLE_EQ(m.ConstanteFixe("Point"), 1.0);
  EXPECT_THROW(m.ConstanteFixe("point2"), Fault);
  m.gRsConstantesFixes = NouveauRecordset({"Point"});
  EXPECT_THROW(m.ConstanteFixe("Point"), Fault);  // no current row
}

// ---- Rates and totals -----------------------------------------------------------------------

TEST_F(Lookups, TauxRoundedToTwoPlaces) {
  m.gRsTaux = Table({"codetaux", "PartSalariale", "PartPatronale"},
                    {{"URSMAL", 1.005, 13.0}, {"URSVIE", 0.285, 8.55}, {"NUL", Value(), 1.0},
                     {"NEG", -2.345, 0.0}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("URSMAL"), 1.01);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("URSVIE"), 0.29);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("NUL"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("NEG"), -2.35);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurTaux("ABSENT"), 0.0);
}

TEST_F(Lookups, CumulBySide) {
  m.gRsCumuls = Table({"CodeCumul", "PartSalariale", "PartPatronale", "PartSalarialeRappel",
                       "PartPatronaleRappel"},
                      {{"BASE", 2000.004, 1500.005, 10.125, 20.555},
                       {"BRUT", Value(), Value(), Value(), Value()}});
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", "S"), 2000.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", "P"), 1500.01);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", "s"), 1500.01);  // any side but "S"
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", ""), 1500.01);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BRUT", "S"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("ABSENT", "S"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulRappel("BASE", "S"), 10.13);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulRappel("BASE", "P"), 20.56);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulRappel("BRUT", "P"), 0.0);
}

TEST_F(Lookups, CumulAddedOrChangedAfterALookupIsFound) {
  RsRef rs = Table({"CodeCumul", "PartSalariale", "PartPatronale"}, {{"BASE", 100.0, 50.0}});
  m.gRsCumuls = rs;
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BRUT", "S"), 0.0);
  rs->AddNew();
  rs->SetField("CodeCumul", "BRUT");
  rs->SetField("PartSalariale", 250.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BRUT", "S"), 250.0);
  rs->MoveFirst();
  rs->SetField("CodeCumul", "BASE2");
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE", "P"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumul("BASE2", "P"), 50.0);
}

TEST_F(Lookups, ListeCumulSumsTheRowsOfTheCodes) {
  m.gRsCumuls = Table({"CodeCumul", "PartSalariale", "PartPatronale"},
                      {{"A", 100.5, 40.0}, {"B", 20.25, Value()}, {"C", 1.0, 1.0},
                       {" B", 1000.0, 1000.0}});
  double s = 9, p = 9;
  m.RechercheValeursListeCumul("A,B", s, p);
  EXPECT_DOUBLE_EQ(s, 120.75);
  EXPECT_DOUBLE_EQ(p, 40.0);
  m.RechercheValeursListeCumul("A,ZZ", s, p);  // a code with no row adds nothing
  EXPECT_DOUBLE_EQ(s, 100.5);
  EXPECT_DOUBLE_EQ(p, 40.0);
  m.RechercheValeursListeCumul("ZZ", s, p);
  EXPECT_DOUBLE_EQ(s, 0.0);
  EXPECT_DOUBLE_EQ(p, 0.0);
  m.RechercheValeursListeCumul("A, B", s, p);  // codes taken as they stand
  EXPECT_DOUBLE_EQ(s, 1100.5);
  EXPECT_DOUBLE_EQ(p, 1040.0);
  s = p = 9;
  m.RechercheValeursListeCumul("", s, p);
  EXPECT_DOUBLE_EQ(s, 0.0);
  EXPECT_DOUBLE_EQ(p, 0.0);
  EXPECT_EQ(m.gRsCumuls->RecordCount(), 4);
}

TEST_F(Lookups, ListeCumulWithAQuoteInACodeIsAFault) {
  m.gRsCumuls = Table({"CodeCumul", "PartSalariale", "PartPatronale"}, {{"A", 1.0, 1.0}});
  double s = 0, p = 0;
  EXPECT_THROW(m.RechercheValeursListeCumul("A,L'X", s, p), Fault);
}

TEST_F(Lookups, CumulHistoriqueOfTheMonthBefore) {
  m.gRsCumulsHistoriqueSal = Table(
      {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"},
      {{42.0, "202402", "BASE", 7.0, 1800.0, 900.0},
       {43.0, "202402", "BASE", 7.0, 5000.0, 5000.0},
       {42.0, "202312", "BASE", 7.0, 1700.0, 850.0},
       {42.0, "202402", "BRUT", 8.0, Value(), 12.0},
       {42.0, "202403", "BASE", 7.0, 1.0, 1.0}});
  double d = -1;
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(42, "01/03/2024", "BASE", d, "", "S", 0),
                   1800.0);
  EXPECT_DOUBLE_EQ(d, 1800.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(42, "01/03/2024", "BASE", d, "", "P", 0),
                   900.0);
  // The 31st: one month before is the end of February.
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(42, "31/03/2024", "BASE", d, "", "S", 0),
                   1800.0);
  // January: December of the year before.
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(42, "01/01/2024", "BASE", d, "", "S", 0),
                   1700.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(43, "01/03/2024", "BASE", d, "", "S", 0),
                   5000.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(42, "01/03/2024", "BRUT", d, "", "S", 0), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(44, "01/03/2024", "BASE", d, "", "S", 0), 0.0);
  // By id, the code left aside.
  EXPECT_DOUBLE_EQ(m.dRechercheValeurCumulHistorique(42, "01/03/2024", "SANSCODE", d, "", "P", 8), 12.0);
  // A month given.
  EXPECT_DOUBLE_EQ(
      m.dRechercheValeurCumulHistorique(42, "01/03/2024", "BASE", d, "202403", "S", 0), 1.0);
  EXPECT_DOUBLE_EQ(
      m.dRechercheValeurCumulHistorique(42, "", "BASE", d, "01/12/2023", "S", 0), 1700.0);
  EXPECT_EQ(m.gRsCumulsHistoriqueSal->RecordCount(), 5);
}

// ---- The employee's variables ---------------------------------------------------------------

class LookupsVariables : public Lookups {
 protected:
  RsRef rs = Table({"CodeVariable", "IdVariable", "Valeur", "DateEffet", "TauxMontant"},
                   {{"HEURES", 1.0, 12.5, "20240115", "M"},
                    {"TXSMIC", 2.0, 1.005, Value(), "T"},
                    {"NUL", 3.0, Value(), 20240301.0, Value()},
                    {"NEG", 4.0, -2.5, "2024", Value()},
                    {"TEXTE", 5.0, "abc", "", Value()}});
};

TEST_F(LookupsVariables, ValeurRoundedToTheUnitByDefault) {
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "HEURES"), 13.0);  // half away from zero
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "NEG"), -3.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "TXSMIC"), 1.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "TXSMIC", Int16(2)), 1.01);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "HEURES", Int16(1)), 12.5);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "NUL", Int16(2)), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_Variable(rs, "ABSENT", Int16(2)), 0.0);
  EXPECT_THROW(m.dRechercheValeur_Variable(rs, "TEXTE"), Fault);
}

TEST_F(LookupsVariables, SansArrondiReadsTheRawValue) {
  EXPECT_DOUBLE_EQ(m.dValeurVariableSansArrondi(rs, "TXSMIC"), 1.005);
  EXPECT_DOUBLE_EQ(m.dValeurVariableSansArrondi(rs, "NEG"), -2.5);
  EXPECT_DOUBLE_EQ(m.dValeurVariableSansArrondi(rs, "NUL"), 0.0);
  EXPECT_DOUBLE_EQ(m.dValeurVariableSansArrondi(rs, "ABSENT"), 0.0);
}

TEST_F(LookupsVariables, DateEffetAsADateText) {
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "HEURES"), "15/01/2024");
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "NUL"), "01/03/2024");  // a number reads as its digits
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "TXSMIC"), "");         // null
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "NEG"), "");            // not eight characters
  EXPECT_EQ(m.dRechercheDate_Variable(rs, "ABSENT"), "");
}

TEST_F(LookupsVariables, VariableBisIntoItsArgument) {
  double d = 99;
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_VariableBis(rs, "TXSMIC", d), 1.005);
  EXPECT_DOUBLE_EQ(d, 1.005);
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_VariableBis(rs, "NUL", d), 0.0);
  d = 99;
  EXPECT_DOUBLE_EQ(m.dRechercheValeur_VariableBis(rs, "ABSENT", d), 0.0);
  EXPECT_DOUBLE_EQ(d, 0.0);
  EXPECT_EQ(rs->RecordCount(), 5);
}

// ---- History of the statutory values ------------------------------------------------------

class LookupsHistorique : public Lookups {
 protected:
  LookupsHistorique() {
    // Mois as text and as a number: both answer to quoted and bare keys.
    m.gRsConstantesFixesHistorique =
        Table({"Mois", "Point", "IndMinRemuneration", "SmicHor", "HrsMois", "HSCoefNorm"},
              {{"202312", 4.85, 361.0, 11.52, 151.67, 1.25},
               {202401.0, 4.90, 366.0, 11.65, 151.67, Value()},
               {"202402", 4.92278, 366.0, Value(), 151.67, 1.26},
               {"202405", 5.0, 367.0, 11.88, Value(), 1.27}});
    m.gPeriodeEncours = "01/03/2024";
  }
};

TEST_F(LookupsHistorique, PointMois) {
  double d = -1;
  EXPECT_DOUBLE_EQ(m.dRecherchePointMois(42, "01/03/2024", "", d, "202402"), 4.92278);
  EXPECT_DOUBLE_EQ(d, 4.92278);
  EXPECT_DOUBLE_EQ(m.dRecherchePointMois(42, "01/03/2024", "", d, "202401"), 4.90);
  EXPECT_DOUBLE_EQ(m.dRecherchePointMois(42, "01/03/2024", "", d, "202403"), 0.0);
  EXPECT_DOUBLE_EQ(d, 0.0);
}

TEST_F(LookupsHistorique, PointAndIndMinShiftedBySDecalage) {
  double d = 0;
  EXPECT_DOUBLE_EQ(m.dRecherchePointHistorique(d, "01/03/2024", "-1"), 4.92278);
  EXPECT_DOUBLE_EQ(m.dRecherchePointHistorique(d, "01/03/2024", "-2"), 4.90);
  EXPECT_DOUBLE_EQ(m.dRecherchePointHistorique(d, "31/03/2024", "2"), 5.0);
  EXPECT_DOUBLE_EQ(m.dRecherchePointHistorique(d, "01/03/2024", "0"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheIndMinHistorique(d, "01/03/2024", "-1"), 366.0);
  EXPECT_DOUBLE_EQ(m.dRechercheIndMinHistorique(d, "15/01/2024", "-1"), 361.0);
  EXPECT_DOUBLE_EQ(d, 361.0);
  EXPECT_THROW(m.dRecherchePointHistorique(d, "01/03/2024", "x"), Fault);
}

TEST_F(LookupsHistorique, HistoriqueMoisOfAnyColumn) {
  double d = 0;
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("HsCoefNorm", d), 1.26);  // absent offset: -1
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("SmicHor", d), 0.0);      // null
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("SmicHor", d, -3), 11.52);
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("Point", d, -2), 4.90);
  EXPECT_DOUBLE_EQ(m.dRechercheHistoriqueMois("Point", d, 0), 0.0);
  EXPECT_THROW(m.dRechercheHistoriqueMois("Absente", d), Fault);
}

TEST_F(LookupsHistorique, SmicOfTheMonthBefore) {
  double s = -1, h = -1;
  m.gPeriodeEncours = "01/02/2024";
  m.dRechercheSmicHistorique(s, h);
  EXPECT_DOUBLE_EQ(s, 11.65);
  EXPECT_DOUBLE_EQ(h, 151.67);
  m.gPeriodeEncours = "01/03/2024";
  m.dRechercheSmicHistorique(s, h);  // null SmicHor
  EXPECT_DOUBLE_EQ(s, 0.0);
  EXPECT_DOUBLE_EQ(h, 151.67);
  m.gPeriodeEncours = "01/05/2024";  // no row for April
  m.dRechercheSmicHistorique(s, h);
  EXPECT_DOUBLE_EQ(s, 0.0);
  EXPECT_DOUBLE_EQ(h, 0.0);
  EXPECT_EQ(m.gRsConstantesFixesHistorique->RecordCount(), 4);
}

TEST_F(LookupsHistorique, SmicOnAnEmptyHistoryWalksBackThenFaults) {
  m.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "SmicHor", "HrsMois"});
  double s = 0, h = 0;
  EXPECT_THROW(m.dRechercheSmicHistorique(s, h), Fault);
}

TEST_F(LookupsHistorique, SmicBefore2005HasNoKeyAndFaults) {
  m.gPeriodeEncours = "01/01/2005";
  double s = 0, h = 0;
  EXPECT_THROW(m.dRechercheSmicHistorique(s, h), Fault);
}

TEST_F(Lookups, HeuresMoisOfTheMonthBefore) {
  RsRef rs = Table({"IDSALARIE", "Mois", "HeuresMois"},
                   {{42.0, "202401", 140.0}, {42.0, 202402.0, 151.67}, {42.0, "202312", Value()}});
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(rs, 42, "01/03/2024"), 151.67);
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(rs, 42, "29/02/2024"), 140.0);
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(rs, 42, "01/01/2024"), 0.0);
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(rs, 42, "01/06/2024"), 0.0);
  // The history is the employee's own: another id finds the same month.
  EXPECT_DOUBLE_EQ(m.dRechercheHeuresMoisHistorique(rs, 7, "01/03/2024"), 151.67);
}

}  // namespace
}  // namespace orvalis
