// Rate designations of the employer side only, and the two rate lookups they use.
#include <array>

#include "generic/taux_regles.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

double MoteurCalcul::dRechercheTauxPatronal(const std::string& sCode) {
  Recordset& rs = Source(gRsTaux, "gRsTaux");
  if (rs.RecordCount() == 0) return 0;
  rs.MoveFirst();
  rs.Filter("CodeTaux = '" + sCode + "'");
  double dTaux = 0;
  if (!rs.Eof()) dTaux = Arrondi(rs.Field("PartPatronale").NombreOuZero(), 2);
  rs.ClearFilter();
  return dTaux;
}

bool MoteurCalcul::bTauxCsgProfessionnel(double& dTaux) {
  const double dCoefficient = dRechercheValeur_Constantes(gRsConstantes, "~TXCSGPROF");
  dTaux = dCoefficient * (dRechercheValeurTaux("URSDCSG") + dRechercheValeurTaux("URSCSG") +
                          dRechercheValeurTaux("URSRDS"));
  return true;
}

namespace taux {

namespace {

// "TAUX ACCIDENT DE TRAVAIL": the employer rate of the work-accident rate in use (1 to 3).
double TauxAccidentTravail(Contexte& c, const LigneTaux&) {
  static constexpr std::array<const char*, 3> kCodes = {"URSAT1", "URSAT2", "URSAT3"};
  const int i = c.InfosSalaries.iTauxAtUtilise;
  if (i < 1 || i > 3) return 0;
  return c.m.dRechercheTauxPatronal(kCodes[i - 1]);
}

// "TAUX COTISATION RAFP CET PATRONAL": what the professional CSG rate leaves of 100.
double RafpCetPatronal(Contexte& c, const LigneTaux&) {
  double dTaux = 0;
  c.m.bTauxCsgProfessionnel(dTaux);
  return 100 - dTaux;
}

constexpr LigneTaux kTauxPatronaux[] = {
    {.nom = "TAUX ACCIDENT DE TRAVAIL", .regle = TauxAccidentTravail, .sType = "T"},
    {.nom = "TAUX COTISATION RAFP CET PATRONAL", .regle = RafpCetPatronal, .sType = "T"},
};

}  // namespace

std::span<const LigneTaux> TauxPatronaux() { return kTauxPatronaux; }

}  // namespace taux

}  // namespace orvalis
