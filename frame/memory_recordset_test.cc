#include "frame/memory_recordset.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

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

// The values of one column over the rows under the present filter, from the first.
std::vector<std::string> Parcours(Recordset& rs, const std::string& colonne) {
  std::vector<std::string> r;
  if (rs.RecordCount() == 0) return r;
  rs.MoveFirst();
  while (!rs.Eof()) {
    r.push_back(rs.Field(colonne).TexteOuVide());
    rs.MoveNext();
  }
  return r;
}

std::string TexteFaute(const std::function<void()>& f) {
  try {
    f();
  } catch (const Fault& e) {
    return e.what();
  }
  return "no fault";
}

using V = std::vector<std::string>;

// ---- Position and count --------------------------------------------------------------

TEST(MemoryRecordset, EmptySourceHasNoRowAndFaultsOnMoves) {
  RsRef rs = NouveauRecordset({"CodeConstante", "Valeur"});
  EXPECT_EQ(rs->RecordCount(), 0);
  EXPECT_TRUE(rs->Eof());
  EXPECT_THROW(rs->MoveFirst(), Fault);
  EXPECT_THROW(rs->MoveNext(), Fault);
  EXPECT_EQ(TexteFaute([&] { rs->Field("Valeur"); }), "no current record: Valeur");
  EXPECT_THROW(rs->SetField("Valeur", 1.0), Fault);
}

TEST(MemoryRecordset, SourceWithoutColumnsStillCounts) {
  RsRef rs = NouveauRecordset({});
  EXPECT_EQ(rs->RecordCount(), 0);
  EXPECT_TRUE(rs->Columns().empty());
  EXPECT_THROW(rs->Filter("CodeConstante = 'X'"), Fault);
}

TEST(MemoryRecordset, AddNewAppendsANullRowAndMakesItCurrent) {
  RsRef rs = NouveauRecordset({"Code", "Valeur"});
  rs->AddNew();
  EXPECT_EQ(rs->RecordCount(), 1);
  EXPECT_FALSE(rs->Eof());
  EXPECT_TRUE(rs->Field("Code").EstNull());
  EXPECT_TRUE(rs->Field("Valeur").EstNull());
  rs->SetField("Code", "A");
  rs->AddNew();
  rs->SetField("Code", "B");
  EXPECT_EQ(rs->Field("Code").Texte(), "B");
  EXPECT_EQ(rs->RecordCount(), 2);
}

TEST(MemoryRecordset, MoveNextWalksToEofThenFaults) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}});
  rs->MoveFirst();
  EXPECT_EQ(rs->Field("Code").Texte(), "A");
  rs->MoveNext();
  EXPECT_EQ(rs->Field("Code").Texte(), "B");
  rs->MoveNext();
  EXPECT_TRUE(rs->Eof());
  EXPECT_EQ(TexteFaute([&] { rs->Field("Code"); }), "no current record: Code");
  EXPECT_THROW(rs->MoveNext(), Fault);
  rs->MoveFirst();
  EXPECT_EQ(rs->Field("Code").Texte(), "A");
}

TEST(MemoryRecordset, ColumnsAreMatchedWhateverTheirCase) {
  RsRef rs = Table({"CodeConstante", "HSCoefNorm", "codetaux"}, {{"TX", 1.25, "URS"}});
  EXPECT_EQ(rs->Field("CODECONSTANTE").Texte(), "TX");
  EXPECT_EQ(rs->Field("codeconstante").Texte(), "TX");
  EXPECT_DOUBLE_EQ(rs->Field("HsCoefNorm").Nombre(), 1.25);
  EXPECT_EQ(rs->Field("CodeTaux").Texte(), "URS");
  rs->SetField("HSCOEFNORM", 1.5);
  EXPECT_DOUBLE_EQ(rs->Field("HSCoefNorm").Nombre(), 1.5);
  // The declared spelling is kept.
  EXPECT_EQ(rs->Columns(), (V{"CodeConstante", "HSCoefNorm", "codetaux"}));
}

TEST(MemoryRecordset, MissingColumnIsAFaultNamingIt) {
  RsRef rs = Table({"Code"}, {{"A"}});
  EXPECT_EQ(TexteFaute([&] { rs->Field("Valeur"); }), "missing column: Valeur");
  EXPECT_EQ(TexteFaute([&] { rs->SetField("Valeur", 1.0); }), "missing column: Valeur");
}

TEST(MemoryRecordset, ColumnNamedTwiceIsAFault) {
  EXPECT_THROW(NouveauRecordset({"Valeur", "VALEUR"}), Fault);
}

TEST(MemoryRecordset, AjouteColonneAddsANullCellToEveryRow) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}});
  rs->AjouteColonne("Valeur");
  EXPECT_EQ(rs->Columns(), (V{"Code", "Valeur"}));
  const auto lignes = rs->Rows();
  ASSERT_EQ(lignes.size(), 2u);
  EXPECT_TRUE(lignes[0][1].EstNull());
  EXPECT_TRUE(lignes[1][1].EstNull());
  rs->SetField("valeur", 3.0);  // the current row is still B
  rs->Filter("Valeur = 3");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"B"}));
  EXPECT_THROW(rs->AjouteColonne("CODE"), Fault);
}

TEST(MemoryRecordset, NullIsADistinctValue) {
  RsRef rs = Table({"Code", "Valeur"}, {{"A", Value()}, {"B", 0.0}, {"C", ""}});
  rs->Filter("Valeur = 0");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"B"}));
  rs->Filter("Valeur = ''");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"C"}));
}

TEST(MemoryRecordset, SourceOfNoSourceIsAFaultNamingIt) {
  RsRef vide;
  EXPECT_EQ(TexteFaute([&] { Source(vide, "gRsConstantesFixesHistorique"); }),
            "missing source: gRsConstantesFixesHistorique");
  RsRef rs = NouveauRecordset({"Code"});
  EXPECT_EQ(&Source(rs, "rs"), rs.get());
}

TEST(MemoryRecordset, RowsAndColumnsIgnoreTheFilter) {
  RsRef rs = Table({"Code", "Valeur"}, {{"A", 1.0}, {"B", 2.0}, {"A", 3.0}});
  rs->Filter("Code = 'B'");
  const auto lignes = rs->Rows();
  ASSERT_EQ(lignes.size(), 3u);
  EXPECT_EQ(lignes[2][1], Value(3.0));
  EXPECT_EQ(rs->RecordCount(), 1);
}

// ---- Filter: position and count ----------------------------------------------------------

TEST(MemoryRecordsetFilter, KeepsRowsInOrderAndMovesToTheFirst) {
  RsRef rs = Table({"Code", "Valeur"},
                   {{"A", 1.0}, {"B", 2.0}, {"A", 3.0}, {"C", 4.0}, {"A", 5.0}});
  rs->MoveFirst();
  rs->MoveNext();
  rs->MoveNext();
  rs->MoveNext();
  rs->Filter("Code = 'A'");
  EXPECT_EQ(rs->RecordCount(), 3);
  EXPECT_FALSE(rs->Eof());
  EXPECT_DOUBLE_EQ(rs->Field("Valeur").Nombre(), 1.0);
  rs->MoveNext();
  EXPECT_DOUBLE_EQ(rs->Field("Valeur").Nombre(), 3.0);
  rs->MoveNext();
  EXPECT_DOUBLE_EQ(rs->Field("Valeur").Nombre(), 5.0);
  rs->MoveNext();
  EXPECT_TRUE(rs->Eof());
}

TEST(MemoryRecordsetFilter, NoMatchLeavesNoRow) {
  RsRef rs = Table({"Code"}, {{"A"}});
  rs->Filter("Code = 'Z'");
  EXPECT_EQ(rs->RecordCount(), 0);
  EXPECT_TRUE(rs->Eof());
  EXPECT_THROW(rs->MoveFirst(), Fault);
  EXPECT_THROW(rs->Field("Code"), Fault);
}

TEST(MemoryRecordsetFilter, ClearFilterGivesAllRowsFromTheFirst) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}, {"C"}});
  rs->Filter("Code = 'C'");
  EXPECT_EQ(rs->Field("Code").Texte(), "C");
  rs->ClearFilter();
  EXPECT_EQ(rs->RecordCount(), 3);
  EXPECT_EQ(rs->Field("Code").Texte(), "A");
}

TEST(MemoryRecordsetFilter, ANewFilterReplacesTheOld) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}});
  rs->Filter("Code = 'A'");
  rs->Filter("Code = 'B'");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"B"}));
}

TEST(MemoryRecordsetFilter, EmptyCriterionClearsTheFilter) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}});
  rs->Filter("Code = 'A'");
  rs->Filter("  ");
  EXPECT_EQ(rs->RecordCount(), 2);
}

TEST(MemoryRecordsetFilter, AddNewUnderAFilterJoinsTheFilteredRows) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}, {"A"}});
  rs->Filter("Code = 'A'");
  rs->AddNew();
  EXPECT_EQ(rs->RecordCount(), 3);
  EXPECT_FALSE(rs->Eof());
  rs->SetField("Code", "Z");
  EXPECT_EQ(rs->Field("Code").Texte(), "Z");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"A", "A", "Z"}));
  rs->ClearFilter();
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"A", "B", "A", "Z"}));
  rs->Filter("Code = 'A'");
  EXPECT_EQ(rs->RecordCount(), 2);
}

TEST(MemoryRecordsetFilter, SetFieldUnderAFilterKeepsTheRowUntilTheNextFilter) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}, {"A"}});
  rs->Filter("Code = 'A'");
  rs->SetField("Code", "C");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"C", "A"}));
  rs->Filter("Code = 'A'");
  EXPECT_EQ(rs->RecordCount(), 1);
}

TEST(MemoryRecordsetFilter, FaultLeavesTheFilterAndALaterFilterReplacesIt) {
  RsRef rs = Table({"Code", "Valeur"}, {{"A", "abc"}, {"B", 2.0}});
  rs->Filter("Code = 'A'");
  EXPECT_THROW(rs->Field("Valeur").Nombre(), Fault);
  EXPECT_EQ(rs->RecordCount(), 1);
  rs->MoveFirst();
  rs->Filter("Code = 'B'");
  EXPECT_DOUBLE_EQ(rs->Field("Valeur").Nombre(), 2.0);
}

TEST(MemoryRecordsetFilter, CriterionThatFaultsLeavesThePresentFilter) {
  RsRef rs = Table({"Code"}, {{"A"}, {"B"}, {"C"}});
  rs->Filter("Code = 'B' Or Code = 'C'");
  rs->MoveNext();
  EXPECT_THROW(rs->Filter("Code = 'A' Or Absente = 1"), Fault);
  EXPECT_THROW(rs->Filter("Code = "), Fault);
  EXPECT_EQ(rs->RecordCount(), 2);
  EXPECT_EQ(rs->Field("Code").Texte(), "C");
}

// ---- Criteria -------------------------------------------------------------------------------

class MemoryRecordsetCriteres : public ::testing::Test {
 protected:
  MemoryRecordsetCriteres()
      : rs(Table({"Code", "Mois", "Id", "Flag"},
                 {{"A", "202401", 5.0, true},
                  {"B", "202402", 6.0, false},
                  {"C", 202402.0, "7", Value()},
                  {"l'agent", Value(), 8.5, true},
                  {"a", "202402x", -3.0, false}})) {}
  V Codes(const std::string& critere) {
    rs->Filter(critere);
    return Parcours(*rs, "Code");
  }
  RsRef rs;
};

TEST_F(MemoryRecordsetCriteres, QuotedTextIsExactAndCaseSensitive) {
  EXPECT_EQ(Codes("Code = 'A'"), (V{"A"}));
  EXPECT_EQ(Codes("Code = 'a'"), (V{"a"}));
  EXPECT_EQ(Codes("Code = 'A '"), V{});
}

TEST_F(MemoryRecordsetCriteres, DoubledQuoteStandsForAQuote) {
  EXPECT_EQ(Codes("Code = 'l''agent'"), (V{"l'agent"}));
}

TEST_F(MemoryRecordsetCriteres, BareNumberFindsNumbersAndNumericTexts) {
  EXPECT_EQ(Codes("Mois = 202402"), (V{"B", "C"}));
  EXPECT_EQ(Codes("Id = 7"), (V{"C"}));
  EXPECT_EQ(Codes("Id = 8.5"), (V{"l'agent"}));
  EXPECT_EQ(Codes("Id = -3"), (V{"a"}));
}

TEST_F(MemoryRecordsetCriteres, QuotedTextFindsTheTextOfANumber) {
  EXPECT_EQ(Codes("Id = '5'"), (V{"A"}));
  EXPECT_EQ(Codes("Mois = '202402'"), (V{"B", "C"}));
  EXPECT_EQ(Codes("Id = '5.0'"), V{});
}

TEST_F(MemoryRecordsetCriteres, BooleansAnswerToNumbers) {
  EXPECT_EQ(Codes("Flag = 1"), (V{"A", "l'agent"}));
  EXPECT_EQ(Codes("Flag = -1"), (V{"A", "l'agent"}));
  EXPECT_EQ(Codes("Flag = 0"), (V{"B", "a"}));
  EXPECT_EQ(Codes("Flag = 'True'"), (V{"A", "l'agent"}));
}

TEST_F(MemoryRecordsetCriteres, NullNeverMatches) {
  EXPECT_EQ(Codes("Mois = ''"), V{});
  EXPECT_EQ(Codes("Flag = 0 Or Flag = 1"), (V{"A", "B", "l'agent", "a"}));
}

TEST_F(MemoryRecordsetCriteres, AndBindsTighterThanOr) {
  // A Or (B-month And Id 7): C alone passes the And.
  EXPECT_EQ(Codes("Code = 'A' Or Mois = 202402 And Id = 7"), (V{"A", "C"}));
  EXPECT_EQ(Codes("Mois = 202402 And Id = 7 Or Code = 'A'"), (V{"A", "C"}));
  EXPECT_EQ(Codes("(Code = 'A' Or Mois = 202402) And Id = 7"), (V{"C"}));
}

TEST_F(MemoryRecordsetCriteres, KeywordsAndColumnsInAnyCase) {
  EXPECT_EQ(Codes("code = 'A' OR CODE = 'B'"), (V{"A", "B"}));
  EXPECT_EQ(Codes("MOIS = 202402 aNd iD = 6"), (V{"B"}));
  EXPECT_EQ(Codes("Code = 'A' or Code = 'C'"), (V{"A", "C"}));
}

TEST_F(MemoryRecordsetCriteres, BlanksAreOptionalAroundPieces) {
  EXPECT_EQ(Codes(" Mois = '202401'"), (V{"A"}));
  EXPECT_EQ(Codes("Code = 'B'OR Code = 'A'"), (V{"A", "B"}));
  EXPECT_EQ(Codes("Code='A'Or Code='B'"), (V{"A", "B"}));
  EXPECT_EQ(Codes("Id = 5 And Mois = '202401'And Code = 'A'"), (V{"A"}));
  EXPECT_EQ(Codes("Mois = 202401And Code = 'A'"), (V{"A"}));
}

TEST_F(MemoryRecordsetCriteres, ColumnBetweenBrackets) {
  EXPECT_EQ(Codes("[Code] = 'A'"), (V{"A"}));
  EXPECT_EQ(Codes("[id] = 6 Or [MOIS] = '202401'"), (V{"A", "B"}));
  for (const char* c : {"[] = 'A'", "[Code = 'A'", "[Code]= "}) EXPECT_THROW(rs->Filter(c), Fault) << c;
  // Any text between brackets names a column, blanks included.
  EXPECT_EQ(TexteFaute([&] { rs->Filter("[Co de] = 'A'"); }), "filter on a missing column: Co de");
}

// A number in the criterion finds a text cell holding the same number, written with an
// exponent, a sign or blanks; an exponent without digits or a text past 64 characters is
// no number.
TEST(MemoryRecordsetFilter, NumberFindsNumericTextsWithAnExponent) {
  RsRef rs = Table({"Code", "Id"}, {{"E", "85e-1"},
                                    {"F", " 85E-1 "},
                                    {"G", "8.5e"},
                                    {"H", "+8.5"},
                                    {"I", "0.085E+2"},
                                    {"J", "8.5e+"},
                                    {"K", "8.5" + std::string(70, '0')}});
  rs->Filter("Id = 8.5");
  // 85e-1 = 8.5; 0.085E+2 = 8.5.
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"E", "F", "H", "I"}));
}

TEST_F(MemoryRecordsetCriteres, OrWithRepeatedRowsGivesEachRowOnce) {
  EXPECT_EQ(Codes("Code = 'A' Or Id = 5 Or Code = 'B'"), (V{"A", "B"}));
}

TEST_F(MemoryRecordsetCriteres, UnreadableCriterionIsAFault) {
  for (const char* c : {"Code = ", "Code 'A'", "Code = 'A", "= 'A'", "Code = 'A' And",
                        "Code = 'A' Xor Code = 'B'", "Id = 12abc", "Id = 1.2.3", "(Code = 'A'",
                        "Code = 'A')", "Code == 'A'", "Code = A", "And = 'A'", "0"}) {
    EXPECT_THROW(rs->Filter(c), Fault) << c;
  }
  EXPECT_EQ(TexteFaute([&] { rs->Filter("Code = "); }), "unreadable filter criterion: Code = ");
}

TEST_F(MemoryRecordsetCriteres, SixtyFourParenthesesAreReadAndOneMoreIsAFault) {
  auto imbrique = [](int n) {
    return std::string(static_cast<std::size_t>(n), '(') + "Code = 'A'" +
           std::string(static_cast<std::size_t>(n), ')');
  };
  EXPECT_EQ(Codes(imbrique(64)), (V{"A"}));
  EXPECT_EQ(TexteFaute([&] { rs->Filter(imbrique(65)); }),
            "filter criterion nested deeper than 64 parentheses");
  // A code holding a quote and a run of parentheses, as a lookup builds it.
  const std::string code = "x' or " + std::string(100000, '(');
  EXPECT_EQ(TexteFaute([&] { rs->Filter("Code = '" + code + "'"); }),
            "filter criterion nested deeper than 64 parentheses");
}

TEST_F(MemoryRecordsetCriteres, UnknownColumnIsAFaultEvenInAnOrBranch) {
  EXPECT_EQ(TexteFaute([&] { rs->Filter("Valeur = 1"); }), "filter on a missing column: Valeur");
  EXPECT_THROW(rs->Filter("Code = 'A' Or Valeur = 1"), Fault);
  EXPECT_THROW(rs->Filter("Code = 'Z' And Valeur = 1"), Fault);
}

// ---- Indexes stay valid ---------------------------------------------------------------------

TEST(MemoryRecordsetIndex, AddNewIsFoundByALaterFilter) {
  RsRef rs = Table({"Code", "Id"}, {{"A", 1.0}, {"B", 2.0}});
  rs->Filter("Code = 'C'");
  rs->Filter("Id = 3");
  EXPECT_EQ(rs->RecordCount(), 0);
  rs->AddNew();
  rs->SetField("Code", "C");
  rs->SetField("Id", 3.0);
  rs->Filter("Code = 'C'");
  EXPECT_EQ(rs->RecordCount(), 1);
  rs->Filter("Id = 3");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"C"}));
  rs->Filter("Id = '3'");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"C"}));
}

TEST(MemoryRecordsetIndex, SetFieldMovesTheRowToItsNewKey) {
  RsRef rs = Table({"Code", "Id"}, {{"A", 1.0}, {"B", 2.0}, {"A", 3.0}});
  rs->Filter("Code = 'A'");
  rs->Filter("Id = 2");
  rs->Filter("Id = '2'");
  rs->Filter("Code = 'B'");
  rs->SetField("Code", "A");
  rs->SetField("Id", "9");
  rs->Filter("Code = 'B'");
  EXPECT_EQ(rs->RecordCount(), 0);
  rs->Filter("Code = 'A'");
  EXPECT_EQ(rs->RecordCount(), 3);  // the changed row in its place, between the two others
  rs->MoveNext();
  EXPECT_EQ(rs->Field("Id").Texte(), "9");
  rs->Filter("Id = 2");
  EXPECT_EQ(rs->RecordCount(), 0);
  rs->Filter("Id = '2'");
  EXPECT_EQ(rs->RecordCount(), 0);
  rs->Filter("Id = 9");
  EXPECT_EQ(rs->RecordCount(), 1);
  rs->SetField("Id", Value());
  rs->Filter("Id = 9");
  EXPECT_EQ(rs->RecordCount(), 0);
}

TEST(MemoryRecordsetIndex, BooleansChangedBySetField) {
  RsRef rs = Table({"Code", "Flag"}, {{"A", true}, {"B", false}});
  rs->Filter("Flag = 1");
  EXPECT_EQ(rs->RecordCount(), 1);
  rs->SetField("Flag", false);
  rs->Filter("Flag = 0");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"A", "B"}));
  rs->Filter("Flag = 1");
  EXPECT_EQ(rs->RecordCount(), 0);
}

TEST(MemoryRecordsetIndex, NonFiniteNumbersMatchNoText) {
  RsRef rs = Table({"Code", "Valeur"}, {{"A", std::numeric_limits<double>::infinity()},
                                         {"B", std::nan("")}, {"C", 1.0}});
  rs->Filter("Valeur = '1'");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"C"}));
  rs->Filter("Valeur = 1");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"C"}));
}

TEST(MemoryRecordsetIndex, MinusZeroIsZero) {
  RsRef rs = Table({"Code", "Valeur"}, {{"A", -0.0}, {"B", "0"}});
  rs->Filter("Valeur = 0");
  EXPECT_EQ(Parcours(*rs, "Code"), (V{"A", "B"}));
  rs->Filter("Valeur = -0");
  EXPECT_EQ(rs->RecordCount(), 2);
}

}  // namespace
}  // namespace orvalis
