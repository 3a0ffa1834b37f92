#include "salary/traitement_outils.h"

#include "orvalis/ModOutilsSpec.h"

namespace orvalis::salaire {

double IndiceMinimum(MoteurCalcul& m) {
  const Value v = Source(m.gRsConstantesFixes, "gRsConstantesFixes").Field("IndMinRemuneration");
  if (v.EstNull() || (v.EstTexte() && v.Chaine().empty())) return 0;
  return v.Nombre();
}

double IndiceRetenu(double dIndice, double dMinimum, double dSeuil) {
  if (dIndice < dMinimum && dIndice > dSeuil) return dMinimum;
  return dIndice;
}

double DouziemeArrondi(double dAnnuel) { return Arrondi(dAnnuel / 12 - 0.0049, 2); }

double MensuelPlein(MoteurCalcul& m, double dIndice, double& dAnnuelPlein) {
  dAnnuelPlein = Arrondi(dIndice * m.ConstanteFixe("Point"), 2);
  return DouziemeArrondi(dAnnuelPlein);
}

#define ORVALIS_QUART(Q, TRAITEMENT, ANNUEL)                                                   \
  Quart {                                                                                     \
    s.dCoefficient_##Q, s.TRAITEMENT, s.ANNUEL, s.iNBJ_Presence##Q, s.iNBJ_DemiTraitement##Q,  \
        s.iNBJ_CFA##Q, s.iNBJ_CPA##Q, s.iNBJ_DispoOffice##Q, s.iNBJ_CongeFormation##Q,         \
        s.iNBJ_CongeMaterniteTempsComplet##Q, s.iNBJ_90PourCentTraitement##Q,                  \
        s.iNBJ_2TiersTraitement##Q, s.dSalaire_MensuelPlein##Q, s.dSalaire_MensuelReel##Q,     \
        s.dSalaire_Mensuel##Q                                                                  \
  }

Quart IATA(VarCalculSalarie& s) { return ORVALIS_QUART(IATA, dCoefficient_TraitementTA, dSalarie_AnnuelPleinA); }
Quart IATN(VarCalculSalarie& s) { return ORVALIS_QUART(IATN, dCoefficient_TraitementTN, dSalarie_AnnuelPleinA); }
Quart INTA(VarCalculSalarie& s) { return ORVALIS_QUART(INTA, dCoefficient_TraitementTA, dSalarie_AnnuelPlein); }
Quart INTN(VarCalculSalarie& s) { return ORVALIS_QUART(INTN, dCoefficient_TraitementTN, dSalarie_AnnuelPlein); }

#undef ORVALIS_QUART

namespace {
const Int16 kAucunJour{0};
}  // namespace

Quart CelluleAncienne(VarCalculSalarie& s) {
  return {s.dCoefficient_IAncien,        s.dCoefficient_Traitement,
          s.dSalarie_AnnuelPleinA,       s.iNBJ_PresenceA,
          s.iNBJ_DemiTraitementA,        s.iNBJ_CFAA,
          s.iNBJ_CPAA,                   s.iNBJ_DispoOfficeA,
          s.iNBJ_FormationA,             s.iNBJ_CongeMaterniteTempsCompletA,
          kAucunJour,                    kAucunJour,
          s.dSalarie_MensuelPleinA,      s.dSalarie_MensuelReelA,
          s.dSalarie_MensuelA};
}

Quart CelluleNouvelle(VarCalculSalarie& s) {
  return {s.dCoefficient_INouveau,       s.dCoefficient_Traitement,
          s.dSalarie_AnnuelPlein,        s.iNBJ_PresenceN,
          s.iNBJ_DemiTraitementN,        s.iNBJ_CFAN,
          s.iNBJ_CPAN,                   s.iNBJ_DispoOfficeN,
          s.iNBJ_FormationN,             s.iNBJ_CongeMaterniteTempsCompletN,
          kAucunJour,                    kAucunJour,
          s.dSalarie_MensuelPleinN,      s.dSalarie_MensuelReelN,
          s.dSalarie_MensuelN};
}

TotauxDuMois TotauxQuatreQuarts(const VarCalculSalarie& s) {
  return {s.iNBJ_Presence_Total,      s.iNBJ_DemiTraitement_Total,
          s.iNBJ_CFA_Total,           s.iNBJ_DispoOffice_Total,
          s.iNBJ_CongeFormation_Total, s.iNBJ_CongeMaterniteTempsComplet_Total};
}

TotauxDuMois TotauxDeuxCellules(const VarCalculSalarie& s) {
  return {s.iNBJ_PresenceA + s.iNBJ_PresenceN,
          s.iNBJ_DemiTraitementA + s.iNBJ_DemiTraitementN,
          s.iNBJ_CFAA + s.iNBJ_CFAN,
          s.iNBJ_DispoOfficeA + s.iNBJ_DispoOfficeN,
          s.iNBJ_FormationA + s.iNBJ_FormationN,
          s.iNBJ_CongeMaterniteTempsCompletA + s.iNBJ_CongeMaterniteTempsCompletN};
}

double SalaireDesJours(const Quart& q, double dAbsenceNS, Int16 iAbsents) {
  return (q.iPresence - (q.dCoefficient * dAbsenceNS + iAbsents)) * q.dReel /
         (q.dCoefficient * 30);
}

}  // namespace orvalis::salaire
