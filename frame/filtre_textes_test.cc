// "Column = 'a' Or Column = 'b' ..." set from the texts on the in-memory source: the rows,
// position and faults of the criterion text, and the cases left to the text.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/filtre_egalite.h"
#include "frame/memory_recordset.h"
#include "orvalis/fault.h"

namespace orvalis {
namespace {

// Codes as a host stores them: a number where a code looks like one, a null, a repeat.
RsRef Codes() {
  RsRef rs = NouveauRecordset({"Code", "Rang"});
  const std::vector<Value> codes = {Value("B"), Value(5.0), Value::Null(), Value("A"),
                                    Value("B"), Value("a"), Value("5")};
  for (std::size_t i = 0; i < codes.size(); ++i) {
    rs->AddNew();
    rs->SetField("Code", codes[i]);
    rs->SetField("Rang", Value(static_cast<double>(i)));
  }
  rs->ClearFilter();
  return rs;
}

std::vector<double> Rangs(Recordset& rs) {
  std::vector<double> r;
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) r.push_back(rs.Field("Rang").Nombre());
  return r;
}

TEST(FiltreTextes, SameRowsInOrderAsTheCriterion) {
  RsRef texte = Codes(), textes = Codes();
  texte->Filter("Code = 'B' Or Code = '5' Or Code = 'A' Or Code = 'Z' Or Code = 'B'");
  ASSERT_TRUE(FiltreTextesEnMemoire(*textes, "Code", {"B", "5", "A", "Z", "B"}));
  // B at 0 and 4; 5 at 1 (the number) and 6 (the text); A at 3, not 'a' at 5; the null none.
  EXPECT_EQ(Rangs(*textes), (std::vector<double>{0, 1, 3, 4, 6}));
  EXPECT_EQ(Rangs(*textes), Rangs(*texte));
  EXPECT_EQ(textes->RecordCount(), 5);
}

TEST(FiltreTextes, MovesToTheFirstRowAndNoneWhenNothingPasses) {
  RsRef rs = Codes();
  rs->MoveFirst();
  rs->MoveNext();
  ASSERT_TRUE(FiltreTextesEnMemoire(*rs, "Code", {"A"}));
  EXPECT_DOUBLE_EQ(rs->Field("Rang").Nombre(), 3);
  ASSERT_TRUE(FiltreTextesEnMemoire(*rs, "code", {"Z", "b "}));
  EXPECT_EQ(rs->RecordCount(), 0);
  EXPECT_TRUE(rs->Eof());
}

TEST(FiltreTextes, MissingColumnFaultsAndLeavesTheFilter) {
  RsRef rs = Codes();
  ASSERT_TRUE(FiltreTextesEnMemoire(*rs, "Code", {"B"}));
  try {
    FiltreTextesEnMemoire(*rs, "Sigle", {"B"});
    ADD_FAILURE() << "no fault";
  } catch (const Fault& e) {
    EXPECT_STREQ(e.what(), "filter on a missing column: Sigle");
  }
  EXPECT_EQ(Rangs(*rs), (std::vector<double>{0, 4}));
}

TEST(FiltreTextes, NoTextOrAQuoteIsLeftToTheCriterion) {
  RsRef rs = Codes();
  rs->Filter("Code = 'A'");
  EXPECT_FALSE(FiltreTextesEnMemoire(*rs, "Code", {}));
  EXPECT_FALSE(FiltreTextesEnMemoire(*rs, "Code", {"B", "l'A"}));
  // Nothing was done: the filter stands.
  EXPECT_EQ(Rangs(*rs), (std::vector<double>{3}));
}

}  // namespace
}  // namespace orvalis
