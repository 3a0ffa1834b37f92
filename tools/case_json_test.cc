#include "tools/case_json.h"

#include <cstdlib>
#include <cstring>
#include <limits>

#include <gtest/gtest.h>

#include "tools/json_writer.h"

namespace orvalis::tools {
namespace {

std::string Erreur(const std::function<void()>& f) {
  try {
    f();
  } catch (const ErreurCas& e) {
    return e.what();
  }
  return "(no error)";
}

TEST(CaseJsonTest, DoubleTextReadsBackToTheSameDouble) {
  const double valeurs[] = {0.1,
                            0.1 + 0.2,
                            1.005,
                            1.0 / 3.0,
                            2100.5,
                            1e22,
                            1e-7,
                            -0.0,
                            std::numeric_limits<double>::denorm_min(),
                            std::numeric_limits<double>::max(),
                            std::numeric_limits<double>::lowest(),
                            123456789.12345678};
  for (double d : valeurs) {
    const std::string texte = TexteDouble(d);
    const double relu = std::strtod(texte.c_str(), nullptr);
    EXPECT_EQ(std::memcmp(&relu, &d, sizeof d), 0) << texte;
    // Read back through the JSON parser, as a host would.
    EXPECT_EQ(Json::parse(texte).get<double>(), d) << texte;
  }
}

TEST(CaseJsonTest, DoubleTextIsTheShortestForm) {
  EXPECT_EQ(TexteDouble(343), "343");
  EXPECT_EQ(TexteDouble(0), "0");
  EXPECT_EQ(TexteDouble(-0.0), "-0");
  EXPECT_EQ(TexteDouble(1.01), "1.01");
  EXPECT_EQ(TexteDouble(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(TexteDouble(1607.3), "1607.3");
  EXPECT_EQ(TexteDouble(1e22), "1e+22");
}

TEST(CaseJsonTest, SixteenBitBoundsAreKeptAndOneBeyondIsAnError) {
  EXPECT_EQ(LitInt16(Json(32767), "x").value(), 32767);
  EXPECT_EQ(LitInt16(Json(-32768), "x").value(), -32768);
  EXPECT_EQ(LitInt16(Json(0), "x").value(), 0);
  EXPECT_EQ(Erreur([] { LitInt16(Json(32768), "salarie.iNBJ_Presence_Total"); }),
            "salarie.iNBJ_Presence_Total: 32768 is out of range for a 16-bit integer "
            "(-32768 to 32767)");
  EXPECT_EQ(Erreur([] { LitInt16(Json(-32769), "x"); }),
            "x: -32769 is out of range for a 16-bit integer (-32768 to 32767)");
  EXPECT_EQ(Erreur([] { LitInt16(Json::parse("18446744073709551615"), "x"); }),
            "x: 18446744073709551615 is out of range for a 16-bit integer (-32768 to 32767)");
  EXPECT_EQ(Erreur([] { LitInt16(Json::parse("30.0"), "x"); }),
            "x: expected a 16-bit integer, got the number 30 written with a fraction or an "
            "exponent");
  EXPECT_EQ(Erreur([] { LitInt16(Json("30"), "x"); }),
            "x: expected a 16-bit integer, got a string");
}

TEST(CaseJsonTest, ThirtyTwoBitBounds) {
  EXPECT_EQ(LitInt32(Json(2147483647), "x").value(), 2147483647);
  EXPECT_EQ(LitInt32(Json(-2147483648LL), "x").value(), -2147483647 - 1);
  EXPECT_EQ(Erreur([] { LitInt32(Json(2147483648LL), "x"); }),
            "x: 2147483648 is out of range for a 32-bit integer (-2147483648 to 2147483647)");
  EXPECT_EQ(Erreur([] { LitInt32(Json(true), "x"); }),
            "x: expected a 32-bit integer, got a boolean");
}

TEST(CaseJsonTest, DoublesTakeAnyNumberAndNothingElse) {
  EXPECT_EQ(LitDouble(Json(400), "x"), 400.0);
  EXPECT_EQ(LitDouble(Json::parse("1.005"), "x"), 1.005);
  EXPECT_EQ(Erreur([] { LitDouble(Json(nullptr), "x"); }), "x: expected a number, got null");
  EXPECT_EQ(Erreur([] { LitTexte(Json(1), "x"); }), "x: expected a string, got the integer 1");
  EXPECT_EQ(Erreur([] { LitBooleen(Json(0), "x"); }),
            "x: expected true or false, got the integer 0");
}

TEST(CaseJsonTest, RowObjectsGiveColumnsInOrderOfFirstAppearance) {
  RsRef rs = LitTable(Json::parse(R"([{"CodeConstante": "A", "Valeur": 10},
                                      {"Valeur": 2.5, "TauxMontant": "T"}])"),
                      "t");
  ASSERT_TRUE(rs);
  EXPECT_EQ(rs->Columns(), (std::vector<std::string>{"CodeConstante", "Valeur", "TauxMontant"}));
  const auto lignes = rs->Rows();
  ASSERT_EQ(lignes.size(), 2u);
  EXPECT_EQ(lignes[0][0], Value("A"));
  EXPECT_EQ(lignes[0][1], Value(10.0));
  EXPECT_TRUE(lignes[0][2].EstNull());
  EXPECT_TRUE(lignes[1][0].EstNull());
  EXPECT_EQ(lignes[1][2], Value("T"));
  // The table stands at its first row, as a source opened by a host.
  EXPECT_EQ(rs->Field("CodeConstante"), Value("A"));
}

TEST(CaseJsonTest, ColumnsAndRowsFormTakesArraysObjectsAndNoRows) {
  RsRef rs = LitTable(Json::parse(R"({"columns": ["CodeCumul", "PartSalariale"],
                                      "rows": [["BRUT", 2100.5], {"CodeCumul": "BASE"}]})"),
                      "t");
  const auto lignes = rs->Rows();
  ASSERT_EQ(lignes.size(), 2u);
  EXPECT_EQ(lignes[0][1], Value(2100.5));
  EXPECT_TRUE(lignes[1][1].EstNull());
  RsRef vide = LitTable(Json::parse(R"({"columns": ["Mois"], "rows": []})"), "t");
  EXPECT_EQ(vide->Columns(), std::vector<std::string>{"Mois"});
  EXPECT_EQ(vide->RecordCount(), 0);
  EXPECT_EQ(LitTable(Json(nullptr), "t"), nullptr);
}

TEST(CaseJsonTest, ARowOfManyKeysIsReadWithEveryColumnInOrder) {
  Json ligne = Json::object();
  for (int k = 0; k < 2000; ++k) ligne["C" + std::to_string(k)] = k;
  RsRef rs = LitTable(Json::array({ligne, Json::object({{"C1999", -1}})}), "t");
  ASSERT_EQ(rs->Columns().size(), 2000u);
  EXPECT_EQ(rs->Rows()[0][1999].Double(), 1999);
  EXPECT_EQ(rs->Rows()[1][1999].Double(), -1);
  EXPECT_TRUE(rs->Rows()[1][0].EstNull());
}

TEST(CaseJsonTest, AColumnRepeatedInAnotherCaseNamesBothSpellings) {
  try {
    LitTable(Json::parse(R"({"columns": ["Code", "Valeur", "CODE"], "rows": []})"), "t");
    FAIL() << "no error";
  } catch (const ErreurCas& e) {
    EXPECT_NE(std::string(e.what()).find("column 'CODE' repeats column 'Code'"), std::string::npos)
        << e.what();
  }
}

TEST(CaseJsonTest, TablesOfTheWrongShapeAreErrors) {
  EXPECT_EQ(Erreur([] { LitTable(Json::parse(R"({"columns": ["a", "b"], "rows": [[1]]})"), "t"); }),
            "t.rows[0]: 1 values for 2 columns");
  EXPECT_EQ(Erreur([] { LitTable(Json::parse(R"({"columns": ["a", "A"], "rows": []})"), "t"); }),
            "t.columns[1]: column 'A' repeats column 'a' (column names are matched whatever "
            "the case)");
  EXPECT_EQ(Erreur([] { LitTable(Json::parse(R"([{"a": 1, "A": 2}])"), "t"); }),
            "t[0].A: column 'A' repeats column 'a' (column names are matched whatever the case)");
  EXPECT_EQ(Erreur([] { LitTable(Json::parse(R"([{"a": {"b": 1}}])"), "t"); }),
            "t[0].a: a cell is null, a number, a text or a boolean, got an object");
  EXPECT_EQ(Erreur([] { LitTable(Json::parse(R"({"columns": ["a"], "rows": [], "x": 1})"), "t"); }),
            "t.x: not a key of a table (columns, rows)");
  EXPECT_EQ(Erreur([] { LitTable(Json::parse(R"("gRsTaux")"), "t"); }),
            "t: expected a table (an array of rows, {\"columns\", \"rows\"} or null), got a string");
}

TEST(CaseJsonTest, RecordsAreWrittenWholeInFieldOrder) {
  SalarieCalculRubrique r;
  r.dBase = 1607.3;
  r.lIdRubrique = 12;
  r.rsIJ = LitTable(Json::parse(R"([{"Jours": 3}])"), "t");
  const Json j = EcritRecord(r);
  ASSERT_EQ(j.size(), Champs<SalarieCalculRubrique>().size());
  std::size_t i = 0;
  for (const auto& [cle, v] : j.items()) {
    (void)v;
    EXPECT_EQ(cle, Champs<SalarieCalculRubrique>()[i++].nom);
  }
  EXPECT_TRUE(j["lIdRubrique"].is_number_integer());
  EXPECT_EQ(j["dBase"].get<double>(), 1607.3);
  EXPECT_EQ(j["rsIJ"].dump(), R"({"columns":["Jours"],"rows":[[3.0]]})");
  EXPECT_TRUE(j["rsRetenueALaSource"].is_null());
}

TEST(CaseJsonTest, FieldsAreCheckedByNameAndTypeThenWritten) {
  auto champs = LitChamps<VarCalculSalarie>(
      Json::parse(R"({"iEnfant_ACharge": 2, "sTypeModele": "INDTIT", "dIndiceMajoreM": 400})"),
      "salarie");
  VarCalculSalarie s;
  Applique(s, champs);
  EXPECT_EQ(s.iEnfant_ACharge.value(), 2);
  EXPECT_EQ(s.sTypeModele, "INDTIT");
  EXPECT_EQ(s.dIndiceMajoreM, 400.0);
  EXPECT_EQ(Erreur([] { LitChamps<SalarieCalculRubrique>(Json::parse(R"({"dBasee": 1})"),
                                                          "steps[3].rubrique"); }),
            "steps[3].rubrique.dBasee: SalarieCalculRubrique has no field 'dBasee'");
  EXPECT_EQ(Erreur([] { LitChamps<VarCalculSalarie>(Json::parse(R"({"bAlsaceMoselle": 1})"),
                                                     "salarie"); }),
            "salarie.bAlsaceMoselle: expected true or false, got the integer 1");
}

}  // namespace
}  // namespace orvalis::tools
