// The rows of the detail table of the officials' withholding, new method.
#include "contributions/retenue_source_elus_detail.h"

#include <optional>
#include <utility>

#include "contributions/elus_outils.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/numeric.h"

namespace orvalis::elus {

namespace {

// An amount of a mandate row as the host's data give it: a null stays null through the
// arithmetic of the detail, as it would in the host's own queries.
using Montant = std::optional<double>;

Montant Lu(Recordset& rs, const char* sColonne) {
  const Value v = rs.Field(sColonne);
  if (v.EstNull()) return std::nullopt;
  return v.Nombre();
}

Montant Plus(Montant a, Montant b) {
  if (!a || !b) return std::nullopt;
  return *a + *b;
}

Montant Fois(Montant a, double d) {
  if (!a) return std::nullopt;
  return *a * d;
}

Montant Par(Montant a, double d) {
  if (!a) return std::nullopt;
  return *a / d;
}

Value Cellule(Montant m) { return m ? Value(*m) : Value(); }

// A mandate's row of the historic table: its amounts as its row holds them, per month, and
// no URSSAF, which the earlier form took on the principal remuneration alone.
void LigneMandatHistorique(Recordset& rsDetail, Recordset& rsAutres, Int32 lNumeroOrdre,
                           double M) {
  rsDetail.SetField("NumeroOrdre", Value(lNumeroOrdre.value()));
  rsDetail.SetField("Designation", CelluleDesignation(rsAutres.Field("Designation")));
  for (const auto& [sColonne, sSource] :
       {std::pair{"RemunerationBrute", "MontantRemunerationBrute"},
        {"Ircantec_A", "MontantCotisationIrcantecTA"},
        {"Ircantec_B", "MontantCotisationIrcantecTB"},
        {"CsG", "MontantCotisationCSG"},
        {"RemunerationNette", "MontantRemunerationNette"},
        {"FraisEmploi", "MontantTotalFraisInd"}})
    rsDetail.SetField(sColonne, Cellule(Par(Lu(rsAutres, sSource), M)));
  rsDetail.SetField("URSSAF", Value(0.0));
}

}  // namespace

std::vector<std::string> ColonnesDetailNouvelleMethode(FormeDetail forme) {
  if (forme == FormeDetail::kHistorique) {
    return {"NumeroOrdre",         "Designation",       "RemunerationBrute", "Ircantec_A",
            "Ircantec_B",          "URSSAF",            "CsG",               "RemunerationNette",
            "FraisEmploi",         "NetImposable",      "TotalFrais",        "FraisEmploiMax",
            "FraisEmploiRetenue",  "NetImposableRetenue", "TrancheImposition",
            "TrancheImposition2",  "TauxImposition",    "ConstanteAbattement",
            "RetenueALaSource",    "Impot"};
  }
  return {"NumeroOrdre",        "Designation",       "RemunerationBrute",
          "Ircantec_A",         "Ircantec_B",        "URSSAF",
          "CsG",                "RemunerationNette", "FraisEmploi",
          "NetImposable",       "TotalFrais",        "FraisEmploiMax",
          "FraisEmploiRetenue", "NetImposableRetenue", "TrancheImposition",
          "TrancheImposition2", "TauxImposition",    "ConstanteAbattement",
          "RetenueALaSource",   "Impot",             "CotiPartRetrComplNet",
          "URSSAF_Tot",         "URSSAF_Plaf",       "CotiPartRetrComplBrut",
          "DIFElus"};
}

void EcritDetailNouvelleMethode(Recordset& rsDetail, Recordset& rsAutres,
                                const MontantsRetenue& t, FormeDetail forme) {
  const bool bActuelle = forme == FormeDetail::kActuelle;
  const double M = t.dMoisPeriode;
  const double dPartNetteCsg = 1 - t.dTauxCsg * t.dCoefCsg / 100;
  Int32 lNumeroOrdre = 1;

  rsDetail.AddNew();
  rsDetail.SetField("NumeroOrdre", Value(lNumeroOrdre.value()));
  rsDetail.SetField("Designation", Value("Rémunération principale"));
  rsDetail.SetField("RemunerationBrute", Value(t.dBrutPrincipal / M));
  rsDetail.SetField("Ircantec_A", Value(t.dIrcA / M));
  rsDetail.SetField("Ircantec_B", Value(t.dIrcB / M));
  rsDetail.SetField("URSSAF", Value(t.dUrssaf / M));
  rsDetail.SetField("CsG", Value(t.dCsg / M));
  rsDetail.SetField("RemunerationNette", Value(t.dNetPrincipal / M));
  rsDetail.SetField("FraisEmploi", Value(t.dFraisPrincipal / M));
  if (bActuelle) {
    rsDetail.SetField("CotiPartRetrComplNet", Value(t.dCotiPatRetraite * dPartNetteCsg / M));
    rsDetail.SetField("URSSAF_Tot", Value(t.dUrssafTot / M));
    rsDetail.SetField("URSSAF_Plaf", Value(t.dUrssafPlaf / M));
    rsDetail.SetField("CotiPartRetrComplBrut", Value(t.dCotiPatRetraite / M));
  }

  if (rsAutres.RecordCount() > 0) {
    rsAutres.MoveFirst();
    while (!rsAutres.Eof()) {
      if (!bActuelle) {
        lNumeroOrdre += 1;
        rsDetail.AddNew();
        LigneMandatHistorique(rsDetail, rsAutres, lNumeroOrdre, M);
      } else if (EstFaux(rsAutres.Field("Salaire"))) {
        const Montant dRetSoumise = Lu(rsAutres, "RetComplPatBruteSoumiseCsg");
        const Montant dCotiNet = Par(
            Plus(Fois(dRetSoumise, dPartNetteCsg), Lu(rsAutres, "RetComplPatBrutePasSoumiseCsg")),
            M);
        lNumeroOrdre += 1;
        rsDetail.AddNew();
        rsDetail.SetField("NumeroOrdre", Value(lNumeroOrdre.value()));
        rsDetail.SetField("Designation", CelluleDesignation(rsAutres.Field("Designation")));
        rsDetail.SetField("RemunerationBrute",
                          Cellule(Par(Lu(rsAutres, "MontantRemunerationBrute"), M)));
        rsDetail.SetField("Ircantec_A", Cellule(Par(Lu(rsAutres, "MontantCotisationIrcantecTA"), M)));
        rsDetail.SetField("Ircantec_B", Cellule(Par(Lu(rsAutres, "MontantCotisationIrcantecTB"), M)));
        rsDetail.SetField("URSSAF", Cellule(Par(Plus(Lu(rsAutres, "MontantCotisationUrssafPlaf"),
                                                     Lu(rsAutres, "MontantCotisationUrssafTot")),
                                                M)));
        rsDetail.SetField(
            "CsG", Cellule(Par(Plus(Lu(rsAutres, "MontantCotisationCSG"),
                                    Fois(dRetSoumise, t.dTauxCsg * t.dCoefCsg / 100)),
                               M)));
        rsDetail.SetField("RemunerationNette",
                          Cellule(Plus(Par(Lu(rsAutres, "MontantRemunerationNette"), M), dCotiNet)));
        rsDetail.SetField("FraisEmploi", Cellule(Par(Lu(rsAutres, "MontantTotalFraisInd"), M)));
        rsDetail.SetField("CotiPartRetrComplNet", Cellule(dCotiNet));
        rsDetail.SetField("URSSAF_Tot", Cellule(Par(Lu(rsAutres, "MontantCotisationUrssafTot"), M)));
        rsDetail.SetField("URSSAF_Plaf",
                          Cellule(Par(Lu(rsAutres, "MontantCotisationUrssafPlaf"), M)));
        rsDetail.SetField("CotiPartRetrComplBrut", Cellule(Par(dRetSoumise, M)));
      }
      rsAutres.MoveNext();
    }
  }

  lNumeroOrdre += 1;
  rsDetail.AddNew();
  rsDetail.SetField("NumeroOrdre", Value(lNumeroOrdre.value()));
  rsDetail.SetField("Designation", Value(""));
  rsDetail.SetField("NetImposable", Value(t.dNetMandats / M + t.dNetPrincipal / M));
  rsDetail.SetField("TotalFrais", Value(t.dFraisTotal / M));
  rsDetail.SetField("FraisEmploiMax", Value(t.dFraisMax / M));
  rsDetail.SetField("FraisEmploiRetenue", Value(t.dFraisRetenus / M));
  rsDetail.SetField("NetImposableRetenue", Value(dTronqueAuPas(t.dNetBrutImposable / M, 1, false)));
  rsDetail.SetField("TrancheImposition", Value(t.dTrancheBasse));
  rsDetail.SetField("TrancheImposition2", Value(t.dTrancheHaute));
  rsDetail.SetField("TauxImposition", Value(t.dTauxTranche * 100));
  rsDetail.SetField("ConstanteAbattement", Value(t.dCoefBareme * t.dConstante));
  rsDetail.SetField("RetenueALaSource", Value(t.dImpot));
  rsDetail.SetField("Impot", Value(t.dImpot));
}

}  // namespace orvalis::elus
