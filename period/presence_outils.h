// What the presence counts and the treatment coefficient of both engines share.
#pragma once

#include <string>

#include "orvalis/VarCalculSalarie.h"
#include "orvalis/dates.h"
#include "orvalis/numeric.h"

namespace orvalis::periode {

// The month of the presence counts: the first and last paid days (with bCalendaire on the
// calendar), the month's last day, the employee's start, and whether the employment misses
// the month (ended before it or starting after it).
struct MoisPresence {
  Int16 iJourDeb;
  Int16 iJourFin;
  Date dDernier;
  Date dDebut;
  bool bHorsMois;
};
MoisPresence MoisDePresence(const VarCalculSalarie& s, const std::string& sPeriode,
                            bool bCalendaire);

// An elected official's days before the change of rate and from it on.
void PresenceElus(const VarCalculSalarie& s, const MoisPresence& mp, Int16& iAvant,
                  Int16& iApres);

// An elected official's treatment coefficient: the mayor's rate, times the intercommunal
// one when there is one.
void CoefficientTraitementElus(VarCalculSalarie& s);

}  // namespace orvalis::periode
