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

#define ORVALIS_QUART(Q)                                                                      \
  Quart {                                                                                     \
    s.dCoefficient_##Q, s.iNBJ_Presence##Q, s.iNBJ_DemiTraitement##Q, s.iNBJ_CFA##Q,           \
        s.iNBJ_CPA##Q, s.iNBJ_DispoOffice##Q, s.iNBJ_CongeFormation##Q,                        \
        s.iNBJ_CongeMaterniteTempsComplet##Q, s.iNBJ_90PourCentTraitement##Q,                  \
        s.iNBJ_2TiersTraitement##Q, s.dSalaire_MensuelPlein##Q, s.dSalaire_MensuelReel##Q,     \
        s.dSalaire_Mensuel##Q                                                                  \
  }

Quart IATA(VarCalculSalarie& s) { return ORVALIS_QUART(IATA); }
Quart IATN(VarCalculSalarie& s) { return ORVALIS_QUART(IATN); }
Quart INTA(VarCalculSalarie& s) { return ORVALIS_QUART(INTA); }
Quart INTN(VarCalculSalarie& s) { return ORVALIS_QUART(INTN); }

#undef ORVALIS_QUART

double SalaireDesJours(const Quart& q, double dAbsenceNS, Int16 iAbsents) {
  return (q.iPresence - (q.dCoefficient * dAbsenceNS + iAbsents)) * q.dReel /
         (q.dCoefficient * 30);
}

}  // namespace orvalis::salaire
