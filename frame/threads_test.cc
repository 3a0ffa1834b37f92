// Two threads, each with its own engine, paying two employees at once. The values the
// engines of a thread share (the therapeutic part-time percentage, the decimal separators)
// belong to that thread: neither thread sees what the other writes.
#include <gtest/gtest.h>

#include <latch>
#include <string>
#include <thread>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

struct Employe {
  const char* sCodeTpt;     // his therapeutic part-time situation, 1 to 10 March
  Int16 iTaux;              // its percentage
  double dBrut;             // his gross of the month
  double dCotisation;       // 11.10 % of it
  char cSeparateur;         // the decimal separator his thread works with
  const char* sTexteDemi;   // 2.5 written with it
};

struct Resultat {
  int iEchecs = 0;  // calls that gave false, or answers that were not his
  int iTours = 0;
};

SalarieCalculRubrique LigneCnracl() {
  SalarieCalculRubrique r;
  r.sCodeRubrique = "CNRACL";
  r.sValeurBase = "SALAIRE BRUT";
  r.sValeurTauxSalarial = "TAUX DE COTISATION DE L'ORGANISME";
  r.lIdTaux = 1;
  return r;
}

// A month of March 2023 paid again and again, every answer checked at each turn.
void Paie(const Employe& e, std::latch& depart, Resultat& res) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  m.gRsTaux = NouveauRecordset({"CodeTaux", "IdTaux", "PartSalariale", "PartPatronale"});
  m.gRsTaux->AddNew();
  m.gRsTaux->SetField("CodeTaux", "CNRACL");
  m.gRsTaux->SetField("IdTaux", 1);
  m.gRsTaux->SetField("PartSalariale", 11.10);
  m.gRsTaux->SetField("PartPatronale", 30.65);
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
  m.gRsCumuls->AddNew();
  m.gRsCumuls->SetField("CodeCumul", "BRUT");
  m.gRsCumuls->SetField("PartSalariale", e.dBrut);
  // This thread's separators, set once its engine exists.
  cSeparateurDecimal = e.cSeparateur;
  cAutreSeparateur = e.cSeparateur == '.' ? ',' : '.';
  depart.arrive_and_wait();
  for (int tour = 0; tour < 300; ++tour) {
    VarCalculSalarie s = periode_test::SalarieMoisComplet();
    s.rsSituationsExceptionnelles = periode_test::Situations({{e.sCodeTpt, "01/03/2023", "10/03/2023"}});
    const bool bPrep = m.Appel_Methode_Preparation_Calcul_General("NBRE_JOUR_TPT_NON_SUBROGE", s);
    const Int16 iTaux = iTauxTptNonSubroge;
    SalarieCalculRubrique r = LigneCnracl();
    const bool bLigne = m.Appel_Methode_Calcul_General("BASE x TAUX", s, r);
    const bool bSiens = iTaux == e.iTaux && r.dMontantSalarial == e.dCotisation &&
                        r.dTauxSalarial == 11.1 && TexteNombre(2.5) == e.sTexteDemi;
    const int iJours = e.iTaux == 90 ? s.iNBJ_TPTNS90_Total.value() : s.iNBJ_TPTNS50_Total.value();
    if (!bPrep || !bLigne || !bSiens || iJours != 10) ++res.iEchecs;
    ++res.iTours;
  }
}

TEST(ThreadsTest, TwoThreadsPayTwoEmployeesEachWithItsOwnValues) {
  const Int16 iTauxAvant = iTauxTptNonSubroge;
  const char cAvant = cSeparateurDecimal;
  // 2000 x 11.10 % = 222; 3000 x 11.10 % = 333.
  const Employe a{"M9NS", Int16(90), 2000, 2000 * 11.10 / 100, ',', "2,5"};
  const Employe b{"MINS", Int16(50), 3000, 3000 * 11.10 / 100, '.', "2.5"};
  EXPECT_EQ(a.dCotisation, 222.0);
  EXPECT_EQ(b.dCotisation, 333.0);
  std::latch depart(2);
  Resultat ra, rb;
  std::thread ta([&] { Paie(a, depart, ra); });
  std::thread tb([&] { Paie(b, depart, rb); });
  ta.join();
  tb.join();
  EXPECT_EQ(ra.iTours, 300);
  EXPECT_EQ(rb.iTours, 300);
  EXPECT_EQ(ra.iEchecs, 0);
  EXPECT_EQ(rb.iEchecs, 0);
  // The calling thread's own values are as they were.
  EXPECT_EQ(iTauxTptNonSubroge, iTauxAvant);
  EXPECT_EQ(cSeparateurDecimal, cAvant);
}

// A thread that never made an engine starts from the initial values, whatever another
// thread has set.
TEST(ThreadsTest, ANewThreadStartsFromTheInitialValues) {
  const Int16 iAvant = iTauxTptNonSubroge;
  iTauxTptNonSubroge = 70;
  Int16 iVu = -1;
  char cVu = 0, cAutreVu = 0;
  std::thread t([&] {
    iVu = iTauxTptNonSubroge;
    cVu = cSeparateurDecimal;
    cAutreVu = cAutreSeparateur;
  });
  t.join();
  EXPECT_EQ(iVu.value(), 0);
  EXPECT_EQ(cVu, '.');
  EXPECT_EQ(cAutreVu, ',');
  EXPECT_EQ(iTauxTptNonSubroge.value(), 70);
  iTauxTptNonSubroge = iAvant;
}

}  // namespace
}  // namespace orvalis
