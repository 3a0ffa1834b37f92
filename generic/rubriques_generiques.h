// The generic pay lines as one body for both engines: each reads its line through the
// LectureLigne it is given, so through the resolvers of the engine that runs it.
#pragma once

#include "generic/lecture_ligne.h"

namespace orvalis {

void RubriqueBaseTaux(const LectureLigne& l);               // "BASE x TAUX"
void RubriqueBaseTauxChoix(const LectureLigne& l);          // "BASE x TAUX (CHOIX)"
void RubriqueBaseTauxSmic(const LectureLigne& l);           // "BASE x POURCENTAGE SMIC"
void RubriqueMontantFixe(const LectureLigne& l);            // "MONTANT FIXE"
void RubriqueMontantFixeAnnuel(const LectureLigne& l);      // "MONTANT FIXE ANNUEL"
void RubriqueBaseProrata30(const LectureLigne& l);          // "BASE PRORATISEE SELON NB JOURS / 30"
void RubriqueBaseProrata30ADeduire(const LectureLigne& l);  // ... "(A DEDUIRE)"
void RubriqueIndiceReference(const LectureLigne& l);        // "INDICE DE REFERENCE"
// "INDICE DE REFERENCE - CAS" ("CAS1", "CAS2") and its communal form ("CASC1", "CASC2").
void RubriqueIndiceReferenceCAS(const LectureLigne& l, const char* sCode1, const char* sCode2);

}  // namespace orvalis
