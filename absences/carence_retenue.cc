// The sum taken back from one salary element (treatment or index bonus) for the waiting days
// of one of the three waiting periods of the month, with the element's amount as the base.
#include <array>
#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {

namespace {

using S = VarCalculSalarie;

// One combination of index and rate of the month, with what values its waiting days.
struct Combinaison {
  Int16 S::*iTotal;           // waiting days
  Int16 S::*iDT;              // of which on half pay
  Int16 S::*iDemiTraitement;  // half-pay days of the month
  double S::*dCoefficient;    // rate coefficient
  double S::*dAnnuel;         // full annual salary
  double S::*dMensuel;        // salary of the month
  bool bINTA;
};

// Always in this order.
const std::array<Combinaison, 4> kCombinaisons = {{
    {&S::iNBJ_CarenceIATA_Total, &S::iNBJ_CarenceIATA_DT, &S::iNBJ_DemiTraitementIATA,
     &S::dCoefficient_TraitementTA, &S::dSalarie_AnnuelPleinA, &S::dSalaire_MensuelIATA, false},
    {&S::iNBJ_CarenceIATN_Total, &S::iNBJ_CarenceIATN_DT, &S::iNBJ_DemiTraitementIATN,
     &S::dCoefficient_TraitementTN, &S::dSalarie_AnnuelPleinA, &S::dSalaire_MensuelIATN, false},
    {&S::iNBJ_CarenceINTA_Total, &S::iNBJ_CarenceINTA_DT, &S::iNBJ_DemiTraitementINTA,
     &S::dCoefficient_TraitementTA, &S::dSalarie_AnnuelPlein, &S::dSalaire_MensuelINTA, true},
    {&S::iNBJ_CarenceINTN_Total, &S::iNBJ_CarenceINTN_DT, &S::iNBJ_DemiTraitementINTN,
     &S::dCoefficient_TraitementTN, &S::dSalarie_AnnuelPlein, &S::dSalaire_MensuelINTN, false},
}};

// The waiting period a pay-line code selects, and whether it takes back the index bonus.
struct Periode {
  int n = 0;  // 0: none
  bool bBonification = false;
};

Periode PeriodeDuCode(const std::string& sCode) {
  for (int n = 1; n <= 3; ++n) {
    const std::string sN = std::to_string(n);
    if (sCode == "RETCARENCETR" + sN || sCode == "RETCARENCEPTR" + sN) return {n, false};
    if (sCode == "RETCARENCENB" + sN) return {n, true};
  }
  return {};
}

// A stored date yyyymmdd as "dd/mm/yyyy".
std::string DateStockeeEnTexte(const std::string& s) {
  const auto droite = [&](std::size_t k) { return s.size() <= k ? s : s.substr(s.size() - k); };
  return droite(2) + "/" + droite(4).substr(0, 2) + "/" + s.substr(0, 4);
}

bool Indiciaire(const VarCalculSalarie& s) {
  return s.sTypeModele == "INDTIT" || s.sTypeModele == "INDNTI" || s.sCodeModele == "ELUMAIREDT";
}

struct Retenue {
  double A = 0;  // amount taken back
  double B = 0;  // base
};

// An indexed employee: the element's value of a day by the index and rate of each
// combination, half-pay days weighed by one half.
Retenue RetenueIndiciaire(const VarCalculSalarie& s, bool bBonification) {
  // The value of the element for a month; on half pay, INTA's treatment carries the bonus too.
  const auto K = [&](const Combinaison& c, bool bDemiTraitement) {
    if (bBonification) return s.dBonificationTotale;
    if (bDemiTraitement && c.bINTA) return s.*c.dAnnuel / 12 + s.dBonificationTotale;
    return s.*c.dAnnuel / 12;
  };
  Retenue r;
  bool bDemiTraitement = false;
  for (const Combinaison& c : kCombinaisons) bDemiTraitement = bDemiTraitement || s.*c.iDT > 0;
  if (bDemiTraitement) {
    double dSomme = 0;
    for (const Combinaison& c : kCombinaisons)
      if (s.*c.iDT > 0) dSomme = dSomme + K(c, true) * (s.*c.dCoefficient) * (s.*c.iDT) / 30;
    // One half, whatever the half-pay coefficient of the employee.
    r.A = dSomme / 2;
  }
  for (const Combinaison& c : kCombinaisons) {
    const Int16 F = s.*c.iTotal - s.*c.iDT;
    if (F > 0) r.A = r.A + K(c, false) * (s.*c.dCoefficient) * F / 30;
  }

  Int16 iTotal = 0;
  for (const Combinaison& c : kCombinaisons) iTotal = iTotal + s.*c.iTotal;
  if (iTotal <= 0) return r;
  for (const Combinaison& c : kCombinaisons) {
    if (s.*c.iTotal <= 0) continue;
    if (s.*c.iDT > 0) {
      // The new rate and the current annual salary, whatever the combination.
      const Int16 iDemi = s.*c.iDemiTraitement;
      if (bBonification) {
        r.B = r.B + s.dCoefficient_TraitementTN * s.dBonificationTotale * iDemi / 30 *
                        s.dCoefficient_DemiTraitement;
      } else {
        r.B = r.B + s.dSalarie_AnnuelPlein / 12 * s.dCoefficient_TraitementTN * iDemi / 30 *
                        s.dCoefficient_DemiTraitement;
      }
    } else {
      r.B = r.B + (bBonification ? s.dBonificationTotale : s.*c.dMensuel);
    }
  }
  return r;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_Carence(VarCalculSalarie& InfosSalaries,
                                                 SalarieCalculRubrique& Rubrique,
                                                 const std::string& sVariante,
                                                 const RsRef& /*RsSalariesHisto*/) {
  // The waiting days of the month before are taken back by "GREVE MOIS PRECEDENT".
  if (sVariante == "A") return;

  const Periode p = PeriodeDuCode(Rubrique.sCodeRubrique);
  if (p.n == 0) return;
  const std::string sDebut = p.n == 1   ? InfosSalaries.sCarenceDateDebut1
                             : p.n == 2 ? InfosSalaries.sCarenceDateDebut2
                                        : InfosSalaries.sCarenceDateDebut3;
  const std::string sFin = p.n == 1   ? InfosSalaries.sCarenceDateFin1
                           : p.n == 2 ? InfosSalaries.sCarenceDateFin2
                                      : InfosSalaries.sCarenceDateFin3;
  if (sDebut.empty() || sFin.empty()) return;

  CalculNombreJourCarence(InfosSalaries, DateStockeeEnTexte(sDebut), DateStockeeEnTexte(sFin), "");

  const VarCalculSalarie& s = InfosSalaries;
  Retenue r;
  if (Indiciaire(s)) {
    r = RetenueIndiciaire(s, p.bBonification);
  } else {
    bool bPleinTraitement = false;
    for (const Combinaison& c : kCombinaisons)
      bPleinTraitement = bPleinTraitement || s.*c.iTotal - s.*c.iDT > 0;
    if (!p.bBonification && bPleinTraitement) {
      const Int16 P = s.iNBJ_Presence_Total + s.iNbJourDecalagePaieMoisPrecIATA +
                      s.iNbJourDecalagePaieMoisPrecINTA + s.iNbJourDecalagePaieMoisPrecIATN +
                      s.iNbJourDecalagePaieMoisPrecINTN;
      // The month's gross of the days paid, brought to a 30-day month.
      if (P != 0) {
        r.B = (dRechercheValeurCumul("BASE", "S") - dRechercheValeurCumul("RETABSTRAI", "S") -
               dRechercheValeurCumul("BASERAPPEL", "S")) *
              30 / P;
      }
      for (const Combinaison& c : kCombinaisons) {
        const Int16 F = s.*c.iTotal - s.*c.iDT;
        if (F > 0) r.A = r.A + F * r.B / 30;
      }
    }
  }

  Rubrique.dBase = r.B;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = 0 - r.A;  // no negative zero when nothing is taken back
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis
