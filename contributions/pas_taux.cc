// Income tax at source: the rate, individual or neutral from the scale gRsBaremeTauxPAS,
// and the former rate kept for the hosts.
#include <cmath>
#include <optional>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

// The scale's filter on the employee's type of scale ("MM" reads the monthly scale "M",
// prorated). The filter never outlives the call: the normal path lifts it with Leve(); a
// fault unwinding through here has it lifted on the way.
class FiltreBareme {
 public:
  FiltreBareme(Recordset& rs, const std::string& sTypeBareme) : rs_(rs) {
    rs_.Filter(sTypeBareme == "MM" ? std::string("TypeBareme = 'M'")
                                   : "TypeBareme = '" + sTypeBareme + "'");
    actif_ = true;
  }
  FiltreBareme(const FiltreBareme&) = delete;
  FiltreBareme& operator=(const FiltreBareme&) = delete;
  void Leve() {
    actif_ = false;
    rs_.ClearFilter();
  }
  ~FiltreBareme() {
    if (!actif_) return;
    // Only reached while a fault unwinds: that fault is the one the entry point must see.
    try {
      rs_.ClearFilter();
    } catch (...) {
    }
  }

 private:
  Recordset& rs_;
  bool actif_ = false;
};

// Prorata of the monthly scale from the days of presence: an official paid on a longer
// period is prorated on the days of that period. The days of a recall join the presence only
// on the monthly path, so their 16-bit sum is only made there.
double ProrataPresence(const VarCalculSalarie& InfosSalaries, bool bAvecRappel) {
  const std::string sPeriodicite =
      InfosSalaries.sEluPeriodicite.empty() ? std::string("1") : InfosSalaries.sEluPeriodicite;
  const double dPeriodicite = Value(sPeriodicite).Nombre();
  if (InfosSalaries.sCodeCategorie == "ELUS" && dPeriodicite != 1) {
    return InfosSalaries.iNBJ_Presence_Total_Periode_Elus / 30;
  }
  if (bAvecRappel) {
    return (InfosSalaries.iNBJ_Presence_Total + InfosSalaries.iNBJ_Presence_Total_Rappel) / 30;
  }
  return InfosSalaries.iNBJ_Presence_Total / 30;
}

// One side of a bracket test; a null bound holds for nothing.
std::optional<bool> Compare(const Value& borne, double dProrata, double dAssiette, bool bInf) {
  if (borne.EstNull()) return std::nullopt;
  const double d = borne.Nombre() * dProrata;
  return bInf ? d <= dAssiette : d >= dAssiette;
}

// Walks the filtered scale from its first row: the first bracket whose prorated bounds, both
// inclusive, hold dAssiette gives its TauxNeutre.
bool TrouveTauxNeutre(Recordset& rs, double dProrata, double dAssiette, double& dTaux) {
  if (rs.RecordCount() == 0) return false;
  rs.MoveFirst();
  while (!rs.Eof()) {
    const std::optional<bool> bInf = Compare(rs.Field("BorneInf"), dProrata, dAssiette, true);
    const std::optional<bool> bSup = Compare(rs.Field("BorneSup"), dProrata, dAssiette, false);
    if (bInf.value_or(false) && bSup.value_or(false)) {
      dTaux = rs.Field("TauxNeutre").Nombre();
      return true;
    }
    rs.MoveNext();
  }
  return false;
}

}  // namespace

double MethodeCalculG_Nouv::CalculPrelevementALaSource_Taux(VarCalculSalarie& InfosSalaries) {
  InfosSalaries.bUtiliseTauxNeutre = false;
  double dTaux = 0;
  if (InfosSalaries.dTauxPAS >= 0) {
    dTaux = InfosSalaries.dTauxPAS;
    if (InfosSalaries.bTauxPasValide) return dTaux;
  }

  Recordset& rsBareme = Source(gRsBaremeTauxPAS, "gRsBaremeTauxPAS");
  if (rsBareme.RecordCount() == 0) return dTaux;

  const double dAssiette = dMtIJImposable(InfosSalaries) + InfosSalaries.dMontantBase_PAS;

  FiltreBareme filtre(rsBareme, InfosSalaries.sTypeBareme);
  if (rsBareme.RecordCount() == 0) {
    filtre.Leve();
    return dTaux;
  }

  double dProrata = 1;
  if (InfosSalaries.sTypeBareme == "MM") {
    dProrata = ProrataPresence(InfosSalaries, true);
    const bool bDatesRappel =
        !InfosSalaries.sDateDebutRappel.empty() && !InfosSalaries.sDateFinRappel.empty();
    if (dProrata == 0 && bDatesRappel) {
      // A recall with no presence this month: the presence of the month before.
      Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
      CalculNombreJourPresenceMois(InfosSalaries, TexteDate(AjouteMois(LireDate(gPeriodeEncours), -1)),
                                   iIATA, iIATN, iINTA, iINTN);
      dProrata = (iIATA + iIATN + iINTA + iINTN) / 30;
    }
    if (dProrata == 0 && bDatesRappel) {
      // Then the length of the recall itself, its last day not added.
      const Int32 lJours = DiffJours(LireDate(InfosSalaries.sDateDebutRappel),
                                     LireDate(InfosSalaries.sDateFinRappel));
      dProrata = lJours >= 30 ? 1.0 : lJours / 30;
    }
  }

  if (TrouveTauxNeutre(rsBareme, dProrata, dAssiette, dTaux)) {
    InfosSalaries.bUtiliseTauxNeutre = true;
  }
  filtre.Leve();
  return dTaux;
}

double MethodeCalculG_Nouv::CalculPrelevementALaSource_Tauxold(VarCalculSalarie& InfosSalaries,
                                                               double& dBase,
                                                               std::string& sDesignationRubrique) {
  // The base arrives as the deduction's negative amount.
  dBase = std::fabs(dBase);
  double dTaux = 0;
  if (InfosSalaries.dTauxPAS >= 0) {
    dTaux = InfosSalaries.dTauxPAS;
  } else {
    Recordset& rsBareme = Source(gRsBaremeTauxPAS, "gRsBaremeTauxPAS");
    if (rsBareme.RecordCount() != 0) {
      FiltreBareme filtre(rsBareme, InfosSalaries.sTypeBareme);
      double dProrata = 1;
      if (InfosSalaries.sTypeBareme == "MM") {
        dProrata = ProrataPresence(InfosSalaries, false);
      }
      if (TrouveTauxNeutre(rsBareme, dProrata, dBase, dTaux)) {
        sDesignationRubrique += " - Taux neutre";
        if (InfosSalaries.bContratCourt) {
          dBase = dBase - dRechercheValeur_Constantes(gRsConstantes, "DEMISMIC");
          if (dBase < 0) dBase = 0;
          InfosSalaries.dMontantBase_PAS = dBase;
        }
      }
      filtre.Leve();
    }
  }

  if (InfosSalaries.sCodeModele == "STAGIAIRE" || InfosSalaries.sCodeCategorie == "APPRENTI") {
    dBase = dSeuilPrelevementSource(InfosSalaries);
  }
  dBase = -dBase;
  return dTaux;
}

}  // namespace orvalis
