// The month's preparations of one employee, every name in the host's order: a part-time
// official whose index changes on the 11th, with half pay, a therapeutic part time and
// three days at 90 % in the month.
#include <benchmark/benchmark.h>

#include "benchmarks/verifie.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using bench::Verifie;

const char* const kPreparations[] = {
    "COEFFICIENT_INDICE",
    "COEFFICIENT_TRAITEMENT",
    "NBRE_JOUR_PRESENCE",
    "NBRE_JOUR_DEMI_TRAITEMENT",
    "NBRE_JOUR_CPA",
    "NBRE_JOUR_CFA",
    "NBRE_JOUR_DETACHEMENT",
    "NBRE_JOUR_DISPONIBILITE_OFFICE",
    "NBRE_JOUR_FORMATION",
    "NBRE_JOUR_AUTREABSENCE",
    "NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET",
    "NBRE_JOUR_DETACHEMENT_SANS_PENSION",
    "NBRE_JOUR_90POURCENT_TRAITEMENT",
    "NBRE_JOUR_2TIERS_TRAITEMENT",
    "NBRE_JOUR_MALADIE_SANS_TRAITEMENT",
    "NBRE_JOUR_TPT_NON_SUBROGE",
};

VarCalculSalarie Agent() {
  VarCalculSalarie s;
  s.sTypeModele = "INDTIT";
  s.sDateDebut = "01/01/2015";
  s.sDateChangementIndice = "11/03/2023";
  s.sDateChangementHeures = "01/01/2020";
  s.sOccupationPoste = "P";
  s.dTauxPoste = 80;
  s.sOccupationPosteMoisPrec = "P";
  s.dTauxPosteMoisPrec = 90;
  s.rsSituationsExceptionnelles =
      periode_test::Situations({{"DT", "06/03/2023", "15/03/2023"},
                                {"MI", "20/03/2023", "29/03/2023"},
                                {"O90", "01/03/2023", "03/03/2023"}});
  return s;
}

bool Mois(MethodeCalculG_Nouv& m, VarCalculSalarie& s) {
  bool ok = true;
  for (const char* nom : kPreparations) ok = m.Appel_Methode_Preparation_Calcul_General(nom, s) && ok;
  return ok;
}

void BM_PreparationsDuMois(benchmark::State& state) {
  MethodeCalculG_Nouv m;
  m.gPeriodeEncours = "01/03/2023";
  const VarCalculSalarie agent = Agent();
  VarCalculSalarie s;
  // Twice, each time from the host's record: some counts add to what the record holds.
  for (int fois = 0; fois < 2; ++fois) {
    s = agent;
    for (const char* nom : kPreparations)
      Verifie(m.Appel_Methode_Preparation_Calcul_General(nom, s), nom);
    // Presence 10 days before the index change and 20 from it; 80 % corrected by the 10
    // days of "MI" (9 counted in a 31-day month); half pay 6 to 15: 5 days each side.
    Verifie(s.dCoefficient_IATN == 10 / 30.0 && s.dCoefficient_INTN == 20 / 30.0,
            "index shares");
    Verifie(s.dCoefficient_TraitementTN == (21 * (6.0 / 7.0) + 9) / 30, "pay coefficient");
    Verifie(s.iNBJ_Presence_Total.value() == 30 && s.iNBJ_DemiTraitement_Total.value() == 10,
            "presence and half pay");
    Verifie(s.iNBJ_TpsTherapeutique.value() == 10 && s.iNBJ_AutreAbsence.value() == 5,
            "therapeutic part time and other absences");
    Verifie(s.iNBJ_90PourCentTraitement_Total.value() == 3, "days at 90 %");
  }
  for (auto _ : state) {
    s = agent;
    benchmark::DoNotOptimize(Mois(m, s));
  }
  state.SetItemsProcessed(state.iterations());
}

// What the copy of the host's record costs in the loop above, to set apart from the month.
void BM_CopieDeLaFiche(benchmark::State& state) {
  const VarCalculSalarie agent = Agent();
  VarCalculSalarie s;
  for (auto _ : state) {
    s = agent;
    benchmark::DoNotOptimize(s);
  }
}

BENCHMARK(BM_PreparationsDuMois);
BENCHMARK(BM_CopieDeLaFiche);

}  // namespace
}  // namespace orvalis
