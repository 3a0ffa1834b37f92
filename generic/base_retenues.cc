// Bases of a full month before deductions ("SANS RETENUE"), of training leave, and of the
// apprentices' exemption threshold.
#include "generic/base_designations.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

namespace {

double C(ContexteBase& c, const char* code) { return c.m.dRechercheValeurCumul(code, "S"); }

// Days of presence and days of the month before paid this month.
Int16 JoursPayes(const VarCalculSalarie& s) {
  return s.iNBJ_Presence_Total + s.iNbJourDecalagePaieMoisPrecIATA +
         s.iNbJourDecalagePaieMoisPrecINTA + s.iNbJourDecalagePaieMoisPrecIATN +
         s.iNbJourDecalagePaieMoisPrecINTN;
}

double TraitementMoisSansRetenue(ContexteBase& c) {
  const VarCalculSalarie& s = c.InfosSalaries;
  const Int16 iJours = JoursPayes(s);
  if (iJours == 0) return 0;
  if (s.sTypeModele == "INDTIT" || s.sTypeModele == "INDNTI")
    return s.dSalaire_MensuelIATA + s.dSalaire_MensuelIATN + s.dSalaire_MensuelINTA +
           s.dSalaire_MensuelINTN;
  return Div((C(c, "BASE") - C(c, "RETABSTRAI") - C(c, "BASERAPPEL")) * 30, iJours);
}

double IndResSansRetenue(ContexteBase& c) {
  const Int16 iJours = JoursPayes(c.InfosSalaries);
  if (iJours == 0) return 0;
  return Div((C(c, "INDRES") - C(c, "RETABSIR")) * 30, iJours);
}

double AssietteFormation(ContexteBase& c) {
  const VarCalculSalarie& s = c.InfosSalaries;
  if (s.sOccupationPoste != "N") {
    return (s.dSalaire_MensuelPleinIATA + s.dSalaire_MensuelPleinIATN +
            s.dSalaire_MensuelPleinINTA + s.dSalaire_MensuelPleinINTN + s.dIndResTotale) *
           s.iNBJ_CongeFormation_Total / 30;
  }
  const Int16 iJoursTA = s.iNBJ_CongeFormationIATA + s.iNBJ_CongeFormationINTA;
  const Int16 iJoursTN = s.iNBJ_CongeFormationIATN + s.iNBJ_CongeFormationINTN;
  const double d1 = (s.dSalaire_MensuelPleinIATA + s.dSalaire_MensuelPleinINTA) *
                    s.dCoefficient_TraitementTA * (s.dCoefficient_IATA + s.dCoefficient_INTA) *
                    iJoursTA / 30;
  const double d2 = (s.dSalaire_MensuelPleinIATN + s.dSalaire_MensuelPleinINTN) *
                    s.dCoefficient_TraitementTN * (s.dCoefficient_IATN + s.dCoefficient_INTN) *
                    iJoursTN / 30;
  const double d3 = s.dIndResTotale * s.dCoefficient_TraitementTA *
                    (s.dCoefficient_IATA + s.dCoefficient_INTA) * iJoursTA / 30;
  // The residence allowance under the new hours takes the new-index share twice and the
  // old-index share not at all; hosts' figures rely on it.
  const double d4 = s.dIndResTotale * s.dCoefficient_TraitementTN *
                    (s.dCoefficient_INTN + s.dCoefficient_INTN) * iJoursTN / 30;
  return Arrondi(d1 + d2 + d3 + d4, 2);
}

// Kinds of apprentice base: what is above the threshold, or what lies under it.
enum class Apprenti { AuDessus, EnDessous };

double BaseApprenti(ContexteBase& c, const char* sCumul, Apprenti sens) {
  const double dSmic = c.m.ConstanteFixe("SmicHor") * 151.67;
  const double dSeuil = Arrondi(79.0 / 100 * dSmic, 0);
  const double dAssiette = C(c, sCumul);
  if (sens == Apprenti::EnDessous) return dAssiette <= dSeuil ? dAssiette : dSeuil;
  return dAssiette > dSeuil ? dAssiette - dSeuil : 0;
}

double UrssafTotaliteApprenti(ContexteBase& c) {
  return BaseApprenti(c, "ASSURSTOT", Apprenti::AuDessus);
}
double UrssafPlafonneeApprenti(ContexteBase& c) {
  return BaseApprenti(c, "ASSURSTRA", Apprenti::AuDessus);
}
double UrssafApprentiInfSeuil(ContexteBase& c) {
  return BaseApprenti(c, "ASSURSTOT", Apprenti::EnDessous);
}

constexpr Connue kTous = Connue::DesDeuxMoteurs;
constexpr Connue kCourant = Connue::DuMoteurCourantSeul;

const LigneBase kLignes[] = {
    {"ASSIETTE FORMATION", AssietteFormation, kTous},
    {"TRAITEMENT BASE MOIS SANS RETENUE", TraitementMoisSansRetenue, kCourant},
    {"INDEMNITE DE RESIDENCE SANS RETENUE", IndResSansRetenue, kCourant},
    {"BASE URSSAF TOTALITE APPRENTI", UrssafTotaliteApprenti, kCourant},
    {"BASE URSSAF PLAFONNEE APPRENTI", UrssafPlafonneeApprenti, kCourant},
    {"BASE URSSAF APPRENTI INF SEUIL", UrssafApprentiInfSeuil, kCourant},
};

}  // namespace

std::span<const LigneBase> LignesBaseRetenues() { return kLignes; }

}  // namespace orvalis
