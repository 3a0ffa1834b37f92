// Other absences: sick leave stands whole, therapeutic part-time only for its share not
// worked.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::SalarieMoisComplet;
using periode_test::Situations;

struct Absences {
  bool ok;
  VarCalculSalarie s;
};

Absences Calcule(const std::vector<LigneSituation>& lignes,
                 VarCalculSalarie s = SalarieMoisComplet()) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  s.rsSituationsExceptionnelles = Situations(lignes);
  const bool ok = m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_AUTREABSENCE", s);
  return {ok, s};
}

TEST(AutresAbsencesTest, NoRecordLeavesAllAtZero) {
  const Absences a = Calcule({});
  ASSERT_TRUE(a.ok);
  EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 0);
  EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 0);
  EXPECT_EQ(a.s.dTpsTherapeutiqueCoefRI, 0);
  EXPECT_EQ(a.s.dNBJ_AutreAbsenceNS, 0);
}

TEST(AutresAbsencesTest, SickLeaveStandsWhole) {
  for (const char* code : {"LM", "GM", "CM"}) {
    const Absences a = Calcule({{code, "01/03/2023", "10/03/2023"}});
    EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 10) << code;
    EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 0) << code;
  }
}

TEST(AutresAbsencesTest, HalfTimeTherapeuticForTenDays) {
  const Absences a = Calcule({{"MI", "01/03/2023", "10/03/2023"}});
  EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 10);
  EXPECT_DOUBLE_EQ(a.s.dTpsTherapeutiqueCoefRI, 5);
  EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 5);
}

TEST(AutresAbsencesTest, HalfDayRoundsHalfToEven) {
  const Absences cinq = Calcule({{"MI", "01/03/2023", "05/03/2023"}});
  EXPECT_EQ(cinq.s.iNBJ_TpsTherapeutique.value(), 5);
  EXPECT_DOUBLE_EQ(cinq.s.dTpsTherapeutiqueCoefRI, 2.5);
  EXPECT_EQ(cinq.s.iNBJ_AutreAbsence.value(), 2);
  const Absences sept = Calcule({{"MI", "01/03/2023", "07/03/2023"}});
  EXPECT_EQ(sept.s.iNBJ_AutreAbsence.value(), 4);
}

TEST(AutresAbsencesTest, FixedTherapeuticQuotities) {
  struct Cas {
    const char* code;
    double coef;
    int absence;
  };
  for (const Cas& c : {Cas{"M6", 6, 4}, Cas{"M7", 7, 3}, Cas{"M8", 8, 2}, Cas{"M9", 9, 1}}) {
    const Absences a = Calcule({{c.code, "01/03/2023", "10/03/2023"}});
    EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 10) << c.code;
    EXPECT_DOUBLE_EQ(a.s.dTpsTherapeutiqueCoefRI, c.coef) << c.code;
    EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), c.absence) << c.code;
  }
}

TEST(AutresAbsencesTest, VariableQuotityIsTheAbsenceShareItself) {
  const Absences a = Calcule({{"MV", "01/03/2023", "08/03/2023", 75}});
  EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 8);
  EXPECT_DOUBLE_EQ(a.s.dTpsTherapeutiqueCoefRI, 6);
  EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 6);
  EXPECT_FALSE(Calcule({{"MV", "01/03/2023", "08/03/2023"}}).ok);
}

TEST(AutresAbsencesTest, NotSubrogatedGoesToTheDoubleFields) {
  const Absences a = Calcule({{"MINS", "01/03/2023", "05/03/2023"}});
  EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 0);
  EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 0);
  EXPECT_DOUBLE_EQ(a.s.dNBJ_TpsTherapeutiqueNS, 5);
  EXPECT_DOUBLE_EQ(a.s.dTpsTherapeutiqueCoefNS, 2.5);
  EXPECT_DOUBLE_EQ(a.s.dNBJ_AutreAbsenceNS, 2.5);
  const Absences m8 = Calcule({{"M8NS", "01/03/2023", "10/03/2023"}});
  EXPECT_DOUBLE_EQ(m8.s.dTpsTherapeutiqueCoefNS, 8);
  EXPECT_DOUBLE_EQ(m8.s.dNBJ_AutreAbsenceNS, 2);
  const Absences v = Calcule({{"MVNS", "01/03/2023", "10/03/2023", 60}});
  EXPECT_DOUBLE_EQ(v.s.dNBJ_TpsTherapeutiqueNS, 10);
  EXPECT_DOUBLE_EQ(v.s.dTpsTherapeutiqueCoefNS, 6);
  EXPECT_DOUBLE_EQ(v.s.dNBJ_AutreAbsenceNS, 6);
}

TEST(AutresAbsencesTest, RowsAddUpOnTheHostsValues) {
  VarCalculSalarie s = SalarieMoisComplet();
  s.iNBJ_AutreAbsence = 3;
  const Absences a = Calcule({{"MI", "01/03/2023", "10/03/2023"},
                              {"DT", "11/03/2023", "15/03/2023"},
                              {"LM", "21/03/2023", "31/03/2023"},
                              {"M6NS", "16/03/2023", "20/03/2023"}},
                             s);
  EXPECT_EQ(a.s.iNBJ_TpsTherapeutique.value(), 10);
  EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 3 + 5 + 10);
  EXPECT_DOUBLE_EQ(a.s.dNBJ_AutreAbsenceNS, 2);
  EXPECT_EQ(a.s.rsSituationsExceptionnelles->RecordCount(), 4);
}

TEST(AutresAbsencesTest, OverflowOfTheAbsenceCountIsAFault) {
  VarCalculSalarie s = SalarieMoisComplet();
  s.iNBJ_AutreAbsence = 32767;
  EXPECT_FALSE(Calcule({{"LM", "01/03/2023", "10/03/2023"}}, s).ok);
  s.iNBJ_AutreAbsence = 32757;
  const Absences a = Calcule({{"LM", "01/03/2023", "10/03/2023"}}, s);
  EXPECT_TRUE(a.ok);
  EXPECT_EQ(a.s.iNBJ_AutreAbsence.value(), 32767);
}

TEST(AutresAbsencesAncienneFormeTest, TwoSituationsOfTheRecord) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  VarCalculSalarie s = SalarieMoisComplet();
  s.sSituation1 = "M6";
  s.sDateDebutSituation1 = "01/03/2023";
  s.sDatefinSituation1 = "10/03/2023";
  s.sSituation2 = "CM";
  s.sDateDebutSituation2 = "21/03/2023";
  m.CalculNombreJourAutresAbsences(s);
  EXPECT_EQ(s.iNBJ_TpsTherapeutique.value(), 10);
  EXPECT_DOUBLE_EQ(s.dTpsTherapeutiqueCoefRI, 6);
  EXPECT_EQ(s.iNBJ_AutreAbsence.value(), 4 + 10);
  s.sSituation1 = "MV";
  s.sSituation2 = "MINS";
  m.CalculNombreJourAutresAbsences(s);
  EXPECT_EQ(s.iNBJ_AutreAbsence.value(), 14);
}

}  // namespace
}  // namespace orvalis
