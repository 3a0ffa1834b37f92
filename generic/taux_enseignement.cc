// Hourly rates of the teaching allowances, from the mean index of the grade (or the index
// of the constant "IMINDHENSP" for teachers out of class) and the point value.

#include "generic/taux_regles.h"

namespace orvalis::taux {

namespace {

// D: the yearly amount of the index, per hour of the legal week when there is one.
double ParHeure(const Contexte& c, double P) {
  const double dDuree = c.InfosSalaries.dDureeHebdoLegale;
  return dDuree != 0 ? P / dDuree : P;
}

double DuGrade(Contexte& c) {
  const double I = (c.InfosSalaries.dIndiceDebutGrade + c.InfosSalaries.dIndiceFinGrade) / 2;
  return ParHeure(c, I * c.m.ConstanteFixe("Point"));
}

double HorsClasse(Contexte& c) {
  return ParHeure(c, c.m.dRechercheValeur_Constantes(c.m.gRsConstantes, "IMINDHENSP") *
                         c.m.ConstanteFixe("Point"));
}

double PremiereHeure(Contexte& c, const LigneTaux&) {
  return DuGrade(c) * 9 / 13 * 1.2 * 1 / 12 * 1 / 4;
}

double Enseignement(Contexte& c, const LigneTaux&) {
  return DuGrade(c) * 9 / 13 * 1 / 12 * 1 / 4;
}

double EnseignementMajore(Contexte& c, const LigneTaux&) {
  return DuGrade(c) * 9 / 13 * 1.25 * 1 / 36;
}

double PremiereHeureHorsClasse(Contexte& c, const LigneTaux&) {
  return HorsClasse(c) * 9 / 13 * 1.1 * 1.2 * 1 / 12 * 1 / 4;
}

double EnseignementHorsClasse(Contexte& c, const LigneTaux&) {
  return HorsClasse(c) * 9 / 13 * 1.1 * 1 / 12 * 1 / 4;
}

double EnseignementMajoreHorsClasse(Contexte& c, const LigneTaux&) {
  return HorsClasse(c) * 9 / 13 * 1.1 * 1.25 * 1 / 36;
}

constexpr LigneTaux kTauxEnseignement[] = {
    {.nom = "TAUX HORAIRE INDEMNITE ENSEIGNEMENT 1ERE HEURE", .regle = PremiereHeure},
    {.nom = "TAUX HORAIRE INDEMNITE ENSEIGNEMENT", .regle = Enseignement},
    {.nom = "TAUX HORAIRE INDEMNITE ENSEIGNEMENT MAJORE", .regle = EnseignementMajore},
    {.nom = "TAUX HORAIRE IND ENS 1ERE HEURE PROF HORS CLASSE", .regle = PremiereHeureHorsClasse},
    {.nom = "TAUX HORAIRE IND ENS PROF HORS CLASSE", .regle = EnseignementHorsClasse},
    {.nom = "TAUX HORAIRE IND ENS MAJORE PROF HORS CLASSE", .regle = EnseignementMajoreHorsClasse},
};

}  // namespace

std::span<const LigneTaux> TauxEnseignement() { return kTauxEnseignement; }

}  // namespace orvalis::taux
