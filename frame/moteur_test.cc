// Creation and termination of an engine object, its message box, and the field tables of
// the two records.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {
namespace {

TEST(MoteurTest, CreationGivesSixEmptySourcesAndFourWithout) {
  MethodeCalculG_Nouv m;
  for (const RsRef* rs : {&m.gRsVariables, &m.gRsConstantesFixes, &m.gRsCumuls, &m.gRsTaux,
                          &m.gRsConstantes, &m.gRsCumulsHistoriqueSal}) {
    ASSERT_NE(*rs, nullptr);
    EXPECT_EQ((*rs)->RecordCount(), 0);
  }
  EXPECT_EQ(m.gRsTauxSpecifique, nullptr);
  EXPECT_EQ(m.gRsConstantesFixesHistorique, nullptr);
  EXPECT_EQ(m.gRsConstantesHistorique, nullptr);
  EXPECT_EQ(m.gRsBaremeTauxPAS, nullptr);
  EXPECT_EQ(m.gPeriodeEncours, "");
  EXPECT_EQ(m.gdSmicMensuel, 0.0);
  EXPECT_EQ(cSeparateurDecimal, '.');
  EXPECT_EQ(cAutreSeparateur, ',');
}

TEST(MoteurTest, TheHostKeepsItsSourcesAfterTheEngineEnds) {
  RsRef constantes = NouveauRecordset({"CodeConstante", "Valeur"});
  constantes->AddNew();
  constantes->SetField("CodeConstante", "TXINDCP");
  {
    MethodeCalculG_Nouv m;
    m.gRsConstantes = constantes;
    EXPECT_EQ(constantes.use_count(), 2);
  }
  EXPECT_EQ(constantes.use_count(), 1);
  EXPECT_EQ(constantes->RecordCount(), 1);
}

TEST(MoteurTest, TheHistoricEngineHasTheSameFrame) {
  MethodeCalculG m;
  EXPECT_NE(m.gRsConstantes, nullptr);
  EXPECT_EQ(m.gRsConstantesFixesHistorique, nullptr);
}

TEST(MoteurTest, MessageBoxIsRecordedUnlessTheHostListens) {
  MethodeCalculG_Nouv m;
  m.MsgBox("Attention : taux absent");
  ASSERT_EQ(m.Messages.size(), 1u);
  EXPECT_EQ(m.Messages[0], "Attention : taux absent");
  std::string recu;
  m.OnMessage = [&](const std::string& t) { recu = t; };
  m.MsgBox("second");
  EXPECT_EQ(recu, "second");
  EXPECT_EQ(m.Messages.size(), 1u);
}

TEST(FieldTableTest, PayLineRecordListsItsFieldsInOrder) {
  auto champs = Champs<SalarieCalculRubrique>();
  ASSERT_EQ(champs.size(), 31u);
  EXPECT_STREQ(champs[0].nom, "lIdFiche");
  EXPECT_EQ(champs[0].type, TypeChamp::I32);
  EXPECT_STREQ(champs[12].nom, "dBase");
  EXPECT_EQ(champs[12].type, TypeChamp::D);
  EXPECT_STREQ(champs[30].nom, "dMontantSalarialNonProratise");
  const auto* rs = TrouveChamp<SalarieCalculRubrique>("rsIJ");
  ASSERT_NE(rs, nullptr);
  EXPECT_EQ(rs->type, TypeChamp::RS);
  EXPECT_EQ(TrouveChamp<SalarieCalculRubrique>("dbase"), nullptr);
}

TEST(FieldTableTest, EmployeeRecordTypesFollowThePrefixes) {
  auto champs = Champs<VarCalculSalarie>();
  EXPECT_EQ(champs.size(), 414u);
  EXPECT_STREQ(champs[0].nom, "lIdSalarie");
  const struct {
    const char* nom;
    TypeChamp type;
  } attendus[] = {
      {"iNBJ_Presence_Total", TypeChamp::I16}, {"lKmCumule", TypeChamp::I32},
      {"sEluPeriodicite", TypeChamp::S},       {"bRegineFonctionnaire", TypeChamp::B},
      {"RsHeuresHebdoMultiples", TypeChamp::RS}, {"rsSituationsExceptionnelles", TypeChamp::RS},
      {"dTauxPAS", TypeChamp::D},              {"dMontantBaseDejaCotise_PAS", TypeChamp::D},
  };
  for (const auto& a : attendus) {
    const auto* c = TrouveChamp<VarCalculSalarie>(a.nom);
    ASSERT_NE(c, nullptr) << a.nom;
    EXPECT_EQ(c->type, a.type) << a.nom;
  }
}

TEST(FieldTableTest, MembersReachTheRecord) {
  VarCalculSalarie s;
  const auto* c = TrouveChamp<VarCalculSalarie>("iNBJ_Presence_Total");
  ASSERT_NE(c, nullptr);
  s.*std::get<Int16 VarCalculSalarie::*>(c->membre) = Int16(27);
  EXPECT_EQ(s.iNBJ_Presence_Total.value(), 27);
}

TEST(FieldTableTest, DefaultsAreZeroEmptyFalseAndNoSource) {
  VarCalculSalarie s;
  EXPECT_EQ(s.iNBJ_Presence_Total.value(), 0);
  EXPECT_EQ(s.lIdSalarie.value(), 0);
  EXPECT_EQ(s.dIndiceMajoreM, 0.0);
  EXPECT_EQ(s.sDateFin, "");
  EXPECT_FALSE(s.bRegineFonctionnaire);
  EXPECT_EQ(s.rsSituationsExceptionnelles, nullptr);
}

}  // namespace
}  // namespace orvalis
