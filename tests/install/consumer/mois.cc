// A host in C++: the CNRACL and RAFP lines of one civil servant's March 2024, through the
// installed headers and library. Exits 0 when the amounts are those of the law.
#include <cmath>
#include <cstdio>

#include "orvalis/MethodeCalculG_Nouv.h"

using namespace orvalis;

namespace {

RsRef Table(const std::vector<std::string>& colonnes, const std::vector<std::vector<Value>>& lignes) {
  RsRef rs = NouveauRecordset(colonnes);
  for (const auto& ligne : lignes) {
    rs->AddNew();
    for (std::size_t i = 0; i < colonnes.size(); ++i) rs->SetField(colonnes[i], ligne[i]);
  }
  return rs;
}

bool Egal(const char* quoi, double lu, double attendu) {
  const bool ok = std::fabs(lu - attendu) < 1e-6;
  std::printf("%-22s %12.5f %s\n", quoi, lu, ok ? "ok" : "WRONG");
  return ok;
}

}  // namespace

int main() {
  MethodeCalculG_Nouv moteur;
  moteur.gPeriodeEncours = "01/03/2024";
  moteur.gRsTaux = Table({"IdTaux", "CodeTaux", "PartSalariale", "PartPatronale"},
                         {{1, "CNRACL", 11.1, 30.65}, {2, "RAFP", 5.0, 5.0}});
  moteur.gRsCumuls = Table({"Idcumul", "CodeCumul", "PartSalariale", "PartPatronale"},
                           {{4, "ASSCNRACL", 2067.56, 0.0}, {5, "ASSRAFP", 120.0, 0.0}});

  VarCalculSalarie salarie;
  salarie.sTypeModele = "INDTIT";
  salarie.dIndiceMajoreM = 420;

  bool ok = true;
  SalarieCalculRubrique cnracl;
  cnracl.sValeurBase = "BASE CNRACL";
  cnracl.lIdTaux = 1;
  cnracl.sValeurTauxSalarial = cnracl.sValeurTauxPatronal = "TAUX DE COTISATION DE L'ORGANISME";
  ok = moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, cnracl) && ok;
  ok = Egal("CNRACL employee", cnracl.dMontantSalarial, 229.49916) && ok;
  ok = Egal("CNRACL employer", cnracl.dMontantPatronal, 633.70714) && ok;

  SalarieCalculRubrique rafp = cnracl;
  rafp.sValeurBase = "BASE RAFP";
  rafp.lIdTaux = 2;
  ok = moteur.Appel_Methode_Calcul_General("BASE x TAUX", salarie, rafp) && ok;
  ok = Egal("RAFP employee", rafp.dMontantSalarial, 6) && ok;
  return ok ? 0 : 1;
}
